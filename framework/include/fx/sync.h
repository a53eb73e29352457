// Objects that threads synchronise with, and the locks on them.
#pragma once

#include "fx/config.h"
#include "fx/object.h"

// The base of what threads wait for. Lock waits up to a time in milliseconds and tells whether the object is
// locked then; Unlock gives it back.
class QFX_API CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)

public:
    explicit CSyncObject(LPCTSTR pstrName);
    virtual ~CSyncObject();

    HANDLE m_hObject; // closed by the destructor
    operator HANDLE() const { return m_hObject; }

    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = NULL);

private:
    CSyncObject(const CSyncObject&);
    CSyncObject& operator=(const CSyncObject&);
};

// The constructors below throw a CResourceException when the system object cannot be made. An object with a
// name is shared by the processes that use the name.

// One thread at a time; the owner may lock again.
class QFX_API CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)

public:
    CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = NULL, LPSECURITY_ATTRIBUTES lpsaAttribute = NULL);
    virtual ~CMutex();

    virtual BOOL Unlock();
};

// Up to a number of users at a time.
class QFX_API CSemaphore : public CSyncObject
{
    DECLARE_DYNAMIC(CSemaphore)

public:
    CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = NULL,
               LPSECURITY_ATTRIBUTES lpsaAttributes = NULL);
    virtual ~CSemaphore();

    virtual BOOL Unlock();
    // Gives back several uses; the count before is stored unless the pointer is NULL.
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = NULL);
};

// Something that happened. An automatic event is taken back by the one thread that it lets go on, a manual
// one by ResetEvent.
class QFX_API CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)

public:
    CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = NULL,
           LPSECURITY_ATTRIBUTES lpsaAttribute = NULL);
    virtual ~CEvent();

    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    // A lock of an event is a wait, which leaves nothing to give back.
    virtual BOOL Unlock();
};

// One thread of this process at a time; the owner may enter again. It has no handle, and waits for ever.
class QFX_API CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    virtual ~CCriticalSection();

    CRITICAL_SECTION m_sect;
    operator CRITICAL_SECTION*() { return &m_sect; }

    BOOL Lock();
    virtual BOOL Lock(DWORD dwTimeout);
    virtual BOOL Unlock();
};

// Locks one object, until the end of the scope at the latest.
class QFX_API CSingleLock
{
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock();

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = NULL);
    BOOL IsLocked() { return m_isLocked; }

private:
    CSingleLock(const CSingleLock&);
    CSingleLock& operator=(const CSingleLock&);

    CSyncObject* m_object;
    BOOL m_isLocked;
};

// Locks several objects, but no critical sections, until the end of the scope at the latest.
class QFX_API CMultiLock
{
public:
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock();

    // Waits for all objects or for any, and for input that the QS_ bits of dwWakeMask name. The result is
    // that of MsgWaitForMultipleObjects: WAIT_OBJECT_0 plus the index of the object, plus the count of
    // objects for input, WAIT_TIMEOUT, WAIT_FAILED.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = NULL);
    BOOL IsLocked(DWORD dwItem);

private:
    CMultiLock(const CMultiLock&);
    CMultiLock& operator=(const CMultiLock&);
    void TakeNote(DWORD first, DWORD last);

    CSyncObject* m_objects[MAXIMUM_WAIT_OBJECTS];
    HANDLE m_handles[MAXIMUM_WAIT_OBJECTS];
    BOOL m_isLocked[MAXIMUM_WAIT_OBJECTS];
    DWORD m_count;
};
