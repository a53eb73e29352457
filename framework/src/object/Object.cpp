// CObject and the run-time class records: what they answer, and the list that FromName searches.

#include "afx.h"

namespace
{

// The list of all registered records. Its link is in the records, so that registering needs no memory and can
// happen before any constructor of this module ran.
CRuntimeClass* g_firstClass = nullptr;
SRWLOCK g_classLock = SRWLOCK_INIT;

std::string NarrowName(LPCWSTR name)
{
    std::string narrow;
    for (; name != nullptr && *name != 0; ++name)
        narrow.push_back(*name < 0x80 ? static_cast<char>(*name) : '?');
    return narrow;
}

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_pClass(pNewClass)
{
    AcquireSRWLockExclusive(&g_classLock);
    pNewClass->m_pNextClass = g_firstClass;
    g_firstClass = pNewClass;
    ReleaseSRWLockExclusive(&g_classLock);
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    AcquireSRWLockExclusive(&g_classLock);
    for (CRuntimeClass** link = &g_firstClass; *link != nullptr; link = &(*link)->m_pNextClass)
    {
        if (*link == m_pClass)
        {
            *link = m_pClass->m_pNextClass;
            break;
        }
    }
    ReleaseSRWLockExclusive(&g_classLock);
}

CObject* CRuntimeClass::CreateObject()
{
    return m_pfnCreateObject == nullptr ? nullptr : m_pfnCreateObject();
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* record = this; record != nullptr;)
    {
        if (record == pBaseClass)
            return TRUE;
        record = record->m_pfnGetBaseClass == nullptr ? nullptr : record->m_pfnGetBaseClass();
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == nullptr)
        return nullptr;
    AcquireSRWLockShared(&g_classLock);
    CRuntimeClass* record = g_firstClass;
    while (record != nullptr && std::strcmp(record->m_lpszClassName, lpszClassName) != 0)
        record = record->m_pNextClass;
    ReleaseSRWLockShared(&g_classLock);
    return record;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    return FromName(NarrowName(lpszClassName).c_str());
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* const record = FromName(lpszClassName);
    return record == nullptr ? nullptr : record->CreateObject();
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    return CreateObject(NarrowName(lpszClassName).c_str());
}

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr,
                                       nullptr};
static const AFX_CLASSINIT _init_CObject(&CObject::classCObject);

CObject::~CObject() = default;

CRuntimeClass* PASCAL CObject::GetThisClass()
{
    return &classCObject;
}
CRuntimeClass* PASCAL CObject::_GetBaseClass()
{
    return nullptr;
}
CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}
BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}
void CObject::AssertValid() const
{
    ASSERT(this != nullptr);
}
void CObject::Serialize(CArchive&) {}

void CObject::Dump(CDumpContext& dc) const
{
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this) << "\n";
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast([[maybe_unused]] CRuntimeClass* pClass, CObject* pObject)
{
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    return pObject;
}
