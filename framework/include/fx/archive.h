// CArchive: objects and values written to a file and read back, and the macros for serialisable classes.
#pragma once

#include "fx/file.h"

class CDocument;

// Why an archive could not be read or written.
class QFX_API CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)

public:
    enum
    {
        none,
        genericException,
        // Written to an archive that loads.
        readOnly,
        endOfFile,
        // Read from an archive that stores.
        writeOnly,
        // A reference to an object that is not there.
        badIndex,
        // An object of an unknown or of another class than expected.
        badClass,
        // An object of a version that the class does not read.
        badSchema
    };

    explicit CArchiveException(int cause = CArchiveException::none, LPCTSTR lpszArchiveName = NULL);

    // One of the causes above.
    int m_cause;

    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;

private:
    // The file, where known.
    CString m_strFileName;
};

[[noreturn]] QFX_API void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = NULL);

// Added to the schema of IMPLEMENT_SERIAL: the class reads older versions too, and asks GetObjectSchema.
#define VERSIONABLE_SCHEMA (0x80000000)

// A buffered connection between objects and an open file, either for storing or for loading. An object that
// several pointers lead to is stored once and loaded once, so that graphs with cycles keep their shape.
// Values are stored in the byte order and sizes of the platform. Functions throw CArchiveException or
// CFileException.
class QFX_API CArchive
{
public:
    enum Mode
    {
        store = 0,
        load = 1,
        // The destructor does not close the archive by itself; Close must be called.
        bNoFlushOnDelete = 2,
        bNoByteSwap = 4
    };

    // The file must be open in the right mode and stay open until the archive is closed. The buffer is
    // lpBuf, nBufSize bytes, or an own one.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = NULL);
    // Closes the archive (but see bNoFlushOnDelete), not the file.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    // Loading: whether the next byte must come from the file.
    BOOL IsBufferEmpty() const { return m_lpBufCur == m_lpBufMax; }
    CFile* GetFile() const { return m_pFile; }

    // The document that is serialised; NULL unless its owner sets it.
    CDocument* m_pDocument;

    // Bytes. Read returns fewer than nMax only at the end of the file; Write writes all.
    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, INT nMax);
    // Writes the buffer to the file, or puts the file pointer to where the archive has read.
    void Flush();
    // Flush, and disconnect from the file; the archive cannot be used further.
    void Close();
    // Disconnects without writing the buffer and without exceptions.
    void Abort();

    // Text without its terminating zero and without any line end of its own.
    void WriteString(LPCTSTR lpsz);
    // A line up to CR LF, which is removed: at most nMax - 1 characters, or all. NULL or FALSE at the end of
    // the file.
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    BOOL ReadString(CString& rString);

    // An object with its class, or NULL. The one read belongs to the caller, unless it had been read before.
    // It must be of class `pClass` or of a derived one, if that is not NULL.
    void WriteObject(const CObject* pOb);
    CObject* ReadObject(const CRuntimeClass* pClass);
    // Gives an object a number as if it stood here in the archive: one whose Serialize is called directly and
    // that stored objects point to. Call it at the same place when loading.
    void MapObject(const CObject* pOb);

    // The class alone. pSchema receives its version; without it GetObjectSchema has it. pObTag is for
    // ReadObject.
    void WriteClass(const CRuntimeClass* pClassRef);
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = NULL, UINT* pSchema = NULL,
                             DWORD* pObTag = NULL);
    // WriteClass or ReadClass: keeps the version of a base class.
    void SerializeClass(const CRuntimeClass* pClassRef);

    // Loading: the version of the object that is being read; only the first call in a Serialize function has
    // it, later ones -1.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema);

    // How the tables of objects grow; call them before any object is stored or loaded.
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);
    void SetLoadParams(UINT nGrowBy = 1024);

    CArchive& operator<<(BYTE by) { return Put(by); }
    CArchive& operator<<(WORD w) { return Put(w); }
    CArchive& operator<<(LONG l) { return Put(l); }
    CArchive& operator<<(DWORD dw) { return Put(dw); }
    CArchive& operator<<(float f) { return Put(f); }
    CArchive& operator<<(double d) { return Put(d); }
    CArchive& operator<<(LONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(ULONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(int i) { return Put(i); }
    CArchive& operator<<(short w) { return Put(w); }
    CArchive& operator<<(char ch) { return Put(ch); }
    CArchive& operator<<(wchar_t ch) { return Put(ch); }
    CArchive& operator<<(unsigned u) { return Put(u); }
    CArchive& operator<<(bool b) { return Put(static_cast<BYTE>(b)); }

    CArchive& operator>>(BYTE& by) { return Get(by); }
    CArchive& operator>>(WORD& w) { return Get(w); }
    CArchive& operator>>(LONG& l) { return Get(l); }
    CArchive& operator>>(DWORD& dw) { return Get(dw); }
    CArchive& operator>>(float& f) { return Get(f); }
    CArchive& operator>>(double& d) { return Get(d); }
    CArchive& operator>>(LONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(ULONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(int& i) { return Get(i); }
    CArchive& operator>>(short& w) { return Get(w); }
    CArchive& operator>>(char& ch) { return Get(ch); }
    CArchive& operator>>(wchar_t& ch) { return Get(ch); }
    CArchive& operator>>(unsigned& u) { return Get(u); }
    CArchive& operator>>(bool& b)
    {
        BYTE by = 0;
        Get(by);
        b = by != 0;
        return *this;
    }

private:
    struct ObjectTable;
    struct ObjectEntry;

    template <class TYPE> CArchive& Put(TYPE value)
    {
        Write(&value, static_cast<INT>(sizeof(value)));
        return *this;
    }
    template <class TYPE> CArchive& Get(TYPE& value)
    {
        ReadAll(&value, static_cast<UINT>(sizeof(value)));
        return *this;
    }
    void ReadAll(void* lpBuf, UINT nCount);
    UINT TakeFromBuffer(BYTE* lpBuf, UINT nMax);
    UINT FillBuffer();
    void RequireStoring() const;
    void RequireLoading() const;
    CString FileName() const;
    BOOL ReadCharacter(TCHAR& ch);
    void WriteTag(DWORD dwTag, bool bClass);
    DWORD ReadTag();
    ObjectEntry ReadNewClass();
    ObjectTable& Table();

    UINT m_nMode;
    CFile* m_pFile;
    UINT m_nBufSize;
    bool m_bUserBuf;
    BYTE* m_lpBufStart;
    BYTE* m_lpBufCur;
    BYTE* m_lpBufMax;
    UINT m_nSchema;
    ObjectTable* m_pTable;
};

// Objects through a pointer to the base; DECLARE_SERIAL makes the operator for the class's own pointers.
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb);

// Text with its length; narrow text is told from wide text.
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, const CString& string);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, CString& string);
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, const CStringA& string);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, CStringA& string);

QFX_API CArchive& AFXAPI operator<<(CArchive& ar, SIZE size);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size);
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, POINT point);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, POINT& point);
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect);

// Times as seconds in 64 bits.
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, CTime time);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, CTime& rtime);
QFX_API CArchive& AFXAPI operator<<(CArchive& ar, CTimeSpan timeSpan);
QFX_API CArchive& AFXAPI operator>>(CArchive& ar, CTimeSpan& rtimeSpan);

namespace quorfx
{

// The number of elements of a collection: a WORD, and behind 0xFFFF a DWORD.
QFX_API void WriteElementCount(CArchive& ar, DWORD_PTR count);
QFX_API DWORD_PTR ReadElementCount(CArchive& ar);

} // namespace quorfx

// In the class: as DECLARE_DYNCREATE, and objects can be stored in archives and loaded from them. A module
// that exports the class defines AFX_API as its export macro.
#define DECLARE_SERIAL(class_name)                                                                           \
    DECLARE_DYNCREATE(class_name)                                                                            \
    AFX_API friend CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

// In one source file. wSchema is the version of what the class stores: when it differs from the one in an
// archive, loading fails, unless it is combined with VERSIONABLE_SCHEMA.
#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                               \
    CObject* PASCAL class_name::CreateObject()                                                               \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject)                  \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb)                                              \
    {                                                                                                        \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));                            \
        return ar;                                                                                           \
    }
