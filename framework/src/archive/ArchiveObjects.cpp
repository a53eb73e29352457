// CArchive: objects, their classes, and the numbers that stand for those that appeared before.
//
// An object is a tag and, when the tag is a class, what its Serialize stores. A tag is a WORD: 0 for NULL,
// the number of an object that appeared before, 0x8000 with the number of a class that appeared before, or
// 0xFFFF before a new class (its version, the length of its name, the name). Numbers that do not fit are
// DWORDs behind the WORD 0x7FFF, with the highest bit for classes.
#include "archive/ObjectTable.h"

namespace
{

constexpr WORD kNewClassTag = 0xFFFF;
constexpr WORD kClassTag = 0x8000;
constexpr DWORD kBigClassTag = 0x80000000;
constexpr WORD kBigObjectTag = 0x7FFF;
constexpr DWORD kLargestNumber = 0x3FFFFFFE;
constexpr UINT kUnknownSchema = static_cast<UINT>(-1);
constexpr WORD kLongestClassName = 64;

void RequireSerialisable(const CRuntimeClass* classRecord)
{
    if (classRecord == nullptr || classRecord->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
}

WORD StoredSchema(const CRuntimeClass* classRecord)
{
    return static_cast<WORD>(classRecord->m_wSchema & 0xFFFF);
}

} // namespace

CArchive::ObjectTable& CArchive::Table()
{
    if (m_pTable == nullptr)
        m_pTable = new ObjectTable;
    const size_t count = IsStoring() ? m_pTable->storedCount : m_pTable->entries.size();
    if (count >= kLargestNumber)
        AfxThrowArchiveException(CArchiveException::badIndex, FileName());
    return *m_pTable;
}

void CArchive::SetStoreParams(UINT nHashSize, UINT)
{
    ASSERT(IsStoring() && m_pTable == nullptr);
    Table().numbers.reserve(nHashSize);
}

void CArchive::SetLoadParams(UINT nGrowBy)
{
    ASSERT(IsLoading() && m_pTable == nullptr);
    Table().entries.reserve(nGrowBy);
}

UINT CArchive::GetObjectSchema()
{
    const UINT schema = m_nSchema;
    m_nSchema = kUnknownSchema;
    return schema;
}

void CArchive::SetObjectSchema(UINT nSchema)
{
    m_nSchema = nSchema;
}

void CArchive::WriteTag(DWORD dwTag, bool bClass)
{
    if (dwTag < kBigObjectTag)
        *this << static_cast<WORD>(bClass ? kClassTag | dwTag : dwTag);
    else
        *this << kBigObjectTag << (bClass ? kBigClassTag | dwTag : dwTag);
}

// A tag as a DWORD with the highest bit for classes; the tag of a new class is kBigClassTag alone.
DWORD CArchive::ReadTag()
{
    WORD tag = 0;
    *this >> tag;
    if (tag == kNewClassTag)
        return kBigClassTag;
    if (tag != kBigObjectTag)
        return (tag & kClassTag) != 0 ? kBigClassTag | (tag & ~kClassTag) : tag;
    DWORD bigTag = 0;
    *this >> bigTag;
    // Only the short form stands for a new class.
    if (bigTag == kBigClassTag)
        AfxThrowArchiveException(CArchiveException::badIndex, FileName());
    return bigTag;
}

void CArchive::MapObject(const CObject* pOb)
{
    ENSURE(m_pFile != nullptr);
    ObjectTable& table = Table();
    if (IsLoading())
        table.entries.push_back({const_cast<CObject*>(pOb), nullptr, 0});
    else if (pOb != nullptr)
        table.AddStored(pOb);
}

void CArchive::WriteObject(const CObject* pOb)
{
    RequireStoring();
    if (pOb == nullptr)
    {
        WriteTag(0, false);
        return;
    }
    if (const DWORD number = Table().NumberOf(pOb))
    {
        WriteTag(number, false);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    // Before its content: what it points to may point back.
    Table().AddStored(pOb);
    const_cast<CObject*>(pOb)->Serialize(*this);
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef)
{
    RequireStoring();
    RequireSerialisable(pClassRef);
    if (const DWORD number = Table().NumberOf(pClassRef))
    {
        WriteTag(number, true);
        return;
    }
    const WORD length = static_cast<WORD>(std::strlen(pClassRef->m_lpszClassName));
    *this << kNewClassTag << StoredSchema(pClassRef) << length;
    Write(pClassRef->m_lpszClassName, length);
    Table().AddStored(pClassRef);
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass)
{
    RequireLoading();
    UINT schema = 0;
    DWORD tag = 0;
    CRuntimeClass* const classRecord = ReadClass(pClass, &schema, &tag);
    if (classRecord == nullptr)
    {
        const ObjectTable& table = Table();
        if (tag >= table.entries.size() || table.entries[tag].classRecord != nullptr)
            AfxThrowArchiveException(CArchiveException::badIndex, FileName());
        CObject* const known = table.entries[tag].object;
        if (known != nullptr && pClass != nullptr && !known->IsKindOf(pClass))
            AfxThrowArchiveException(CArchiveException::badClass, FileName());
        return known;
    }
    CObject* const object = classRecord->CreateObject();
    if (object == nullptr)
        AfxThrowMemoryException();
    // Before its content: what it points to may point back.
    Table().entries.push_back({object, nullptr, 0});
    const UINT outerSchema = m_nSchema;
    m_nSchema = schema;
    object->Serialize(*this);
    m_nSchema = outerSchema;
    return object;
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag)
{
    RequireLoading();
    if (pClassRefRequested != nullptr)
        RequireSerialisable(pClassRefRequested);
    const DWORD tag = ReadTag();
    if ((tag & kBigClassTag) == 0)
    {
        // An object that appeared before, which only ReadObject can use.
        if (pObTag == nullptr)
            AfxThrowArchiveException(CArchiveException::badIndex, FileName());
        *pObTag = tag;
        return nullptr;
    }
    ObjectTable& table = Table();
    if (tag == kBigClassTag)
        table.entries.push_back(ReadNewClass());
    const size_t number = tag == kBigClassTag ? table.entries.size() - 1 : tag & ~kBigClassTag;
    if (number >= table.entries.size() || table.entries[number].classRecord == nullptr)
        AfxThrowArchiveException(CArchiveException::badIndex, FileName());
    const ObjectEntry& entry = table.entries[number];
    if (pClassRefRequested != nullptr && !entry.classRecord->IsDerivedFrom(pClassRefRequested))
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    if (pSchema != nullptr)
        *pSchema = entry.schema;
    else
        m_nSchema = entry.schema;
    if (pObTag != nullptr)
        *pObTag = tag;
    return entry.classRecord;
}

CArchive::ObjectEntry CArchive::ReadNewClass()
{
    WORD schema = 0;
    WORD length = 0;
    *this >> schema >> length;
    char name[kLongestClassName];
    if (length >= kLongestClassName)
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    ReadAll(name, length);
    name[length] = '\0';
    CRuntimeClass* const classRecord = CRuntimeClass::FromName(name);
    if (classRecord == nullptr || classRecord->m_wSchema == 0xFFFF)
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    if ((classRecord->m_wSchema & VERSIONABLE_SCHEMA) == 0 && schema != StoredSchema(classRecord))
        AfxThrowArchiveException(CArchiveException::badSchema, FileName());
    return {nullptr, classRecord, schema};
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef)
{
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb)
{
    ar.WriteObject(pOb);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}
