// Mutexes, semaphores, events, critical sections, and the locks on them.
#include <afxwin.h>
#include <afxmt.h>

#include <gtest/gtest.h>

#include <functional>

namespace
{

constexpr DWORD shortly = 20;

// Runs the work on another thread and waits for its end.
void OnAnotherThread(std::function<void()> work)
{
    const auto run = [](LPVOID given) -> DWORD {
        (*static_cast<std::function<void()>*>(given))();
        return 0;
    };
    const HANDLE thread = ::CreateThread(NULL, 0, run, &work, 0, NULL);
    ::WaitForSingleObject(thread, INFINITE);
    ::CloseHandle(thread);
}

// Whether another thread gets the object; it gives it back at once.
bool IsFree(CSyncObject& object)
{
    bool isFree = false;
    OnAnotherThread([&] {
        isFree = object.Lock(shortly) != FALSE;
        if (isFree)
            object.Unlock();
    });
    return isFree;
}

TEST(Sync, AMutexBelongsToOneThreadAndMayBeLockedAgainByIt)
{
    CMutex mutex(TRUE);
    EXPECT_TRUE(mutex.Lock(0));
    EXPECT_FALSE(IsFree(mutex));
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_FALSE(IsFree(mutex)) << "locked twice, given back once";
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_TRUE(IsFree(mutex));
    EXPECT_FALSE(mutex.Unlock()) << "it belongs to nobody";
}

TEST(Sync, AMutexThatItsThreadLeftLockedPassesOn)
{
    CMutex mutex;
    OnAnotherThread([&] { mutex.Lock(); });
    EXPECT_TRUE(mutex.Lock(shortly));
    mutex.Unlock();
}

TEST(Sync, ASemaphoreLetsSoManyIn)
{
    CSemaphore semaphore(2, 2);
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
    LONG before = -1;
    EXPECT_TRUE(semaphore.Unlock(2, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(semaphore.Unlock()) << "more than there are";
}

TEST(Sync, AnAutomaticEventLetsOneIn)
{
    CEvent event(TRUE);
    EXPECT_TRUE(event.Lock(0));
    EXPECT_FALSE(event.Lock(0));
    EXPECT_TRUE(event.SetEvent());
    EXPECT_TRUE(event.Unlock());
    EXPECT_TRUE(event.Lock(0));
}

TEST(Sync, AManualEventLetsAllInUntilItIsReset)
{
    CEvent event(FALSE, TRUE);
    EXPECT_FALSE(event.Lock(0));
    event.SetEvent();
    EXPECT_TRUE(event.Lock(0));
    EXPECT_TRUE(event.Lock(0));
    EXPECT_TRUE(event.ResetEvent());
    EXPECT_FALSE(event.Lock(0));
}

TEST(Sync, TwoObjectsOfOneNameAreOne)
{
    CEvent event(FALSE, TRUE, L"QuorSyncTest");
    CEvent same(FALSE, TRUE, L"QuorSyncTest");
    event.SetEvent();
    EXPECT_TRUE(same.Lock(0));
    EXPECT_THROW(
        {
            try
            {
                const CMutex mutex(FALSE, L"QuorSyncTest");
            }
            catch (CResourceException* exception)
            {
                exception->Delete();
                throw 1;
            }
        },
        int)
        << "the name is that of an event";
}

TEST(Sync, ACriticalSectionKeepsOtherThreadsOut)
{
    CCriticalSection section;
    EXPECT_TRUE(section.Lock());
    bool entered = true;
    OnAnotherThread([&] { entered = ::TryEnterCriticalSection(section) != FALSE; });
    EXPECT_FALSE(entered);
    EXPECT_TRUE(section.Unlock());
    OnAnotherThread([&] {
        entered = ::TryEnterCriticalSection(&section.m_sect) != FALSE;
        if (entered)
            section.Unlock();
    });
    EXPECT_TRUE(entered);
}

TEST(SingleLock, HoldsTheObjectUntilTheEndOfTheScope)
{
    CMutex mutex;
    {
        CSingleLock lock(&mutex, TRUE);
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_FALSE(IsFree(mutex));
    }
    EXPECT_TRUE(IsFree(mutex));
}

TEST(SingleLock, LocksAndUnlocksWhenAsked)
{
    CSemaphore semaphore(3, 3);
    CSingleLock lock(&semaphore);
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(lock.Lock());
    LONG before = 0;
    EXPECT_TRUE(lock.Unlock(1, &before));
    EXPECT_EQ(before, 2);
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(lock.Unlock()) << "nothing is locked";
}

class MultiLock : public testing::Test
{
protected:
    CMutex m_mutex;
    CSemaphore m_semaphore;
    CEvent m_event{FALSE, TRUE};
    CSyncObject* m_objects[3] = {&m_mutex, &m_semaphore, &m_event};
};

TEST_F(MultiLock, WaitsForAll)
{
    {
        CMultiLock lock(m_objects, 3);
        EXPECT_EQ(lock.Lock(shortly), static_cast<DWORD>(WAIT_TIMEOUT));
        EXPECT_FALSE(lock.IsLocked(0));
        EXPECT_TRUE(IsFree(m_semaphore));
        m_event.SetEvent();
        EXPECT_LT(lock.Lock(shortly), WAIT_OBJECT_0 + 3);
        EXPECT_TRUE(lock.IsLocked(0));
        EXPECT_TRUE(lock.IsLocked(1));
        EXPECT_FALSE(IsFree(m_mutex));
    }
    EXPECT_TRUE(IsFree(m_mutex));
    EXPECT_TRUE(IsFree(m_semaphore));
}

TEST_F(MultiLock, WaitsForAny)
{
    m_semaphore.Lock();
    m_event.SetEvent();
    CSyncObject* lastTwo[] = {&m_semaphore, &m_event};
    CMultiLock lock(lastTwo, 2);
    EXPECT_EQ(lock.Lock(shortly, FALSE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    EXPECT_TRUE(lock.Unlock());
    EXPECT_FALSE(lock.IsLocked(1));
}

TEST_F(MultiLock, WaitsForInputToo)
{
    MSG message;
    while (::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
        ;
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP, 0, 0);
    CSyncObject* event[] = {&m_event};
    CMultiLock lock(event, 1);
    EXPECT_EQ(lock.Lock(shortly, FALSE, QS_POSTMESSAGE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    ::PeekMessage(&message, NULL, 0, 0, PM_REMOVE);
}

} // namespace
