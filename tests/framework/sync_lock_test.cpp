// Locks on several objects at once, abandoned mutexes, and the counts of semaphores.
#include <afxmt.h>

#include <gtest/gtest.h>

#include <thread>

namespace
{

TEST(SyncLocks, ObjectsKnowTheirClasses)
{
    CMutex mutex;
    CSemaphore semaphore;
    CEvent event;
    CCriticalSection section;
    const CSyncObject* const all[] = {&mutex, &semaphore, &event, &section};
    const char* const names[] = {"CMutex", "CSemaphore", "CEvent", "CCriticalSection"};
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_STREQ(all[i]->GetRuntimeClass()->m_lpszClassName, names[i]);
        EXPECT_TRUE(all[i]->IsKindOf(RUNTIME_CLASS(CSyncObject)));
    }
}

TEST(SyncLocks, ACriticalSectionLocksWithoutATimeLimit)
{
    CCriticalSection section;
    EXPECT_TRUE(static_cast<CSyncObject&>(section).Lock(0));
    bool elsewhere = true;
    std::thread other([&] { elsewhere = ::TryEnterCriticalSection(&section.m_sect) != FALSE; });
    other.join();
    EXPECT_FALSE(elsewhere);
    EXPECT_TRUE(section.Unlock());
}

TEST(SyncLocks, OnlySemaphoresHaveACount)
{
    CSemaphore semaphore(0, 5);
    CMutex mutex;
    LONG before = -1;
    EXPECT_TRUE(semaphore.Unlock(3, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(semaphore.Unlock(3, &before)) << "more than the maximum";
    before = -1;
    EXPECT_TRUE(static_cast<CSyncObject&>(mutex).Unlock(3, &before));
    EXPECT_EQ(before, -1);
}

TEST(SyncLocks, ALockOnSeveralGivesBackTheCountsOfSemaphores)
{
    CSemaphore semaphore(3, 3);
    CEvent event(TRUE, TRUE);
    CSyncObject* objects[] = {&event, &semaphore};
    CMultiLock lock(objects, 2, TRUE);
    EXPECT_TRUE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    LONG before = -1;
    EXPECT_TRUE(lock.Unlock(1, &before));
    EXPECT_EQ(before, 2);
    EXPECT_FALSE(lock.IsLocked(1));
    EXPECT_TRUE(lock.IsLocked(0)) << "an event has no count";
    EXPECT_FALSE(lock.Unlock(1, &before)) << "nothing with a count is locked";
}

TEST(SyncLocks, TheFirstSignalledOfSeveralIsLocked)
{
    CEvent first;
    CEvent second(TRUE);
    CSyncObject* objects[] = {&first, &second};
    CMultiLock lock(objects, 2);
    EXPECT_EQ(lock.Lock(0, FALSE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    lock.Unlock();
    EXPECT_EQ(lock.Lock(0, FALSE), static_cast<DWORD>(WAIT_TIMEOUT)) << "the event has reset itself";
    EXPECT_FALSE(lock.IsLocked(1));
}

// A mutex whose thread ends without giving it back.
void Abandon(CMutex& mutex)
{
    std::thread owner([&] { mutex.Lock(); });
    owner.join();
}

TEST(SyncLocks, AnAbandonedMutexPassesOn)
{
    CMutex mutex;
    Abandon(mutex);
    CSingleLock lock(&mutex);
    EXPECT_TRUE(lock.Lock(1000));
    EXPECT_TRUE(lock.Unlock());
}

TEST(SyncLocks, AnAbandonedMutexAmongSeveralIsLocked)
{
    CEvent event;
    CMutex mutex;
    Abandon(mutex);
    CSyncObject* objects[] = {&event, &mutex};
    CMultiLock lock(objects, 2);
    EXPECT_EQ(lock.Lock(1000, FALSE), static_cast<DWORD>(WAIT_ABANDONED_0 + 1));
    EXPECT_FALSE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    lock.Unlock();
    EXPECT_FALSE(lock.IsLocked(1));
}

TEST(SyncLocks, ASingleLockCountsBack)
{
    CSemaphore semaphore(1, 1);
    CSingleLock lock(&semaphore, TRUE);
    EXPECT_TRUE(lock.IsLocked());
    LONG before = -1;
    EXPECT_TRUE(lock.Unlock(1, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(lock.Unlock(1, &before)) << "nothing to give back";
}

} // namespace
