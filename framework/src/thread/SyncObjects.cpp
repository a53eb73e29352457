// Mutexes, semaphores, events, critical sections, and the locks on them.
#include "afxmt.h"

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR) : m_hObject(nullptr) {}

CSyncObject::~CSyncObject()
{
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

BOOL CSyncObject::Lock(DWORD dwTimeout)
{
    const DWORD result = ::WaitForSingleObject(m_hObject, dwTimeout);
    // The lock of a thread that ended without giving it back passes on.
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG)
{
    return TRUE;
}

namespace
{

HANDLE ThrowIfMissing(HANDLE made)
{
    if (made == nullptr)
        AfxThrowResourceException();
    return made;
}

} // namespace

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = ThrowIfMissing(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

CMutex::~CMutex() {}

BOOL CMutex::Unlock()
{
    return ::ReleaseMutex(m_hObject);
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName)
{
    m_hObject = ThrowIfMissing(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

CSemaphore::~CSemaphore() {}

BOOL CSemaphore::Unlock()
{
    return Unlock(1, nullptr);
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lpPrevCount)
{
    return ::ReleaseSemaphore(m_hObject, lCount, lpPrevCount);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = ThrowIfMissing(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName));
}

CEvent::~CEvent() {}

BOOL CEvent::Unlock()
{
    return TRUE;
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr)
{
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection()
{
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock()
{
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD)
{
    return Lock();
}

BOOL CCriticalSection::Unlock()
{
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_object(pObject), m_isLocked(FALSE)
{
    ASSERT(pObject != nullptr);
    if (bInitialLock)
        Lock();
}

CSingleLock::~CSingleLock()
{
    Unlock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut)
{
    ASSERT(!m_isLocked);
    m_isLocked = m_object->Lock(dwTimeOut);
    return m_isLocked;
}

BOOL CSingleLock::Unlock()
{
    if (m_isLocked)
        m_isLocked = !m_object->Unlock();
    return !m_isLocked;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    if (m_isLocked)
        m_isLocked = !m_object->Unlock(lCount, lPrevCount);
    return !m_isLocked;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock)
    : m_objects(), m_handles(), m_isLocked(), m_count(dwCount)
{
    ASSERT(dwCount > 0 && dwCount <= MAXIMUM_WAIT_OBJECTS);
    for (DWORD i = 0; i < dwCount; ++i)
    {
        ASSERT(!ppObjects[i]->IsKindOf(RUNTIME_CLASS(CCriticalSection)));
        m_objects[i] = ppObjects[i];
        m_handles[i] = ppObjects[i]->m_hObject;
    }
    if (bInitialLock)
        Lock();
}

CMultiLock::~CMultiLock()
{
    Unlock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask)
{
    const DWORD result =
        dwWakeMask == 0 ? ::WaitForMultipleObjects(m_count, m_handles, bWaitForAll, dwTimeOut)
                        : ::MsgWaitForMultipleObjects(m_count, m_handles, bWaitForAll, dwTimeOut, dwWakeMask);
    const DWORD signalled = result - WAIT_OBJECT_0;
    const DWORD abandoned = result - WAIT_ABANDONED_0;
    if (signalled < m_count)
        TakeNote(bWaitForAll ? 0 : signalled, bWaitForAll ? m_count - 1 : signalled);
    else if (abandoned < m_count)
        TakeNote(bWaitForAll ? 0 : abandoned, bWaitForAll ? m_count - 1 : abandoned);
    return result;
}

void CMultiLock::TakeNote(DWORD first, DWORD last)
{
    for (DWORD i = first; i <= last; ++i)
        m_isLocked[i] = TRUE;
}

BOOL CMultiLock::Unlock()
{
    for (DWORD i = 0; i < m_count; ++i)
    {
        if (m_isLocked[i])
            m_isLocked[i] = !m_objects[i]->Unlock();
    }
    return TRUE;
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    BOOL anyUnlocked = FALSE;
    for (DWORD i = 0; i < m_count; ++i)
    {
        // Only semaphores have a count.
        if (!m_isLocked[i] || !m_objects[i]->IsKindOf(RUNTIME_CLASS(CSemaphore)))
            continue;
        anyUnlocked = m_objects[i]->Unlock(lCount, lPrevCount);
        m_isLocked[i] = !anyUnlocked;
    }
    return anyUnlocked;
}

BOOL CMultiLock::IsLocked(DWORD dwItem)
{
    ASSERT(dwItem < m_count);
    return m_isLocked[dwItem];
}
