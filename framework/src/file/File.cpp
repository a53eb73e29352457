// CFile: files of the platform.
#include "afx.h"

IMPLEMENT_DYNAMIC(CFile, CObject)

AFX_DATADEF const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace
{

DWORD AccessOf(UINT openFlags)
{
    switch (openFlags & (CFile::modeWrite | CFile::modeReadWrite))
    {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD ShareModeOf(UINT openFlags)
{
    switch (openFlags & 0x70)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD DispositionOf(UINT openFlags)
{
    if ((openFlags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (openFlags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT openFlags)
{
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if (openFlags & CFile::osNoBuffer)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if (openFlags & CFile::osWriteThrough)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if (openFlags & CFile::osRandomAccess)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if (openFlags & CFile::osSequentialScan)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}

[[noreturn]] void ThrowLastError(LPCTSTR path)
{
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), path);
}

void Report(CFileException* error, int cause, LONG osError, LPCTSTR path)
{
    if (error == nullptr)
        return;
    error->m_cause = cause;
    error->m_lOsError = osError;
    error->m_strFileName = path;
}

// Fails with the platform's error code set.
bool MakeFullPath(LPCTSTR name, CString& path)
{
    const DWORD size = ::GetFullPathName(name, 0, nullptr, nullptr);
    if (size == 0)
        return false;
    ::GetFullPathName(name, size, path.GetBuffer(static_cast<int>(size)), nullptr);
    path.ReleaseBuffer();
    return true;
}

LARGE_INTEGER ToLargeInteger(LONGLONG value)
{
    LARGE_INTEGER large;
    large.QuadPart = value;
    return large;
}

DWORD LowPart(ULONGLONG value)
{
    return static_cast<DWORD>(value);
}
DWORD HighPart(ULONGLONG value)
{
    return static_cast<DWORD>(value >> 32);
}

} // namespace

CFile::CFile() : m_hFile(INVALID_HANDLE_VALUE), m_pTM(nullptr), m_closesHandle(false) {}

CFile::CFile(CAtlTransactionManager* pTM) : m_hFile(INVALID_HANDLE_VALUE), m_pTM(pTM), m_closesHandle(false)
{
}

CFile::CFile(HANDLE hFile) : m_hFile(hFile), m_pTM(nullptr), m_closesHandle(false)
{
    ASSERT(hFile != INVALID_HANDLE_VALUE);
}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CFile(lpszFileName, nOpenFlags, nullptr) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM) : CFile(pTM)
{
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, pTM, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    CloseOwned();
}

void CFile::CloseOwned()
{
    if (m_hFile != INVALID_HANDLE_VALUE && m_closesHandle)
        ::CloseHandle(m_hFile);
    m_hFile = INVALID_HANDLE_VALUE;
    m_closesHandle = false;
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    return Open(lpszFileName, nOpenFlags, nullptr, pError);
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM, CFileException* pError)
{
    ASSERT(m_hFile == INVALID_HANDLE_VALUE);
    ENSURE_ARG(lpszFileName != nullptr);
    CloseOwned();
    m_path.Empty();
    m_pTM = pTM;
    CString path;
    if (MakeFullPath(lpszFileName, path))
    {
        SECURITY_ATTRIBUTES security = {sizeof(security), nullptr, (nOpenFlags & modeNoInherit) == 0};
        m_hFile = ::CreateFile(path, AccessOf(nOpenFlags), ShareModeOf(nOpenFlags), &security,
                               DispositionOf(nOpenFlags), AttributesOf(nOpenFlags), nullptr);
    }
    if (m_hFile == INVALID_HANDLE_VALUE)
    {
        const LONG error = static_cast<LONG>(::GetLastError());
        Report(pError, CFileException::OsErrorToException(error), error, lpszFileName);
        return FALSE;
    }
    m_path = path;
    m_closesHandle = true;
    return TRUE;
}

void CFile::Close()
{
    const HANDLE handle = m_hFile;
    const CString path = m_path;
    m_hFile = INVALID_HANDLE_VALUE;
    m_closesHandle = false;
    m_path.Empty();
    if (handle != INVALID_HANDLE_VALUE && !::CloseHandle(handle))
        ThrowLastError(path);
}

void CFile::Abort()
{
    if (m_hFile != INVALID_HANDLE_VALUE)
        ::CloseHandle(m_hFile);
    m_hFile = INVALID_HANDLE_VALUE;
    m_closesHandle = false;
    m_path.Empty();
}

CFile* CFile::Duplicate() const
{
    HANDLE copy = nullptr;
    const HANDLE process = ::GetCurrentProcess();
    if (!::DuplicateHandle(process, m_hFile, process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS))
        ThrowLastError(m_path);
    CFile* const file = new CFile(copy);
    file->m_closesHandle = true;
    file->m_path = m_path;
    return file;
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    ASSERT(m_hFile != INVALID_HANDLE_VALUE);
    DWORD read = 0;
    if (nCount != 0 && !::ReadFile(m_hFile, lpBuf, nCount, &read, nullptr))
        ThrowLastError(m_path);
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    ASSERT(m_hFile != INVALID_HANDLE_VALUE);
    DWORD written = 0;
    if (nCount != 0 && !::WriteFile(m_hFile, lpBuf, nCount, &written, nullptr))
        ThrowLastError(m_path);
    if (written != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_path);
}

void CFile::Flush()
{
    if (m_hFile != INVALID_HANDLE_VALUE && !::FlushFileBuffers(m_hFile))
        ThrowLastError(m_path);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    ASSERT(nFrom == begin || nFrom == current || nFrom == end);
    LARGE_INTEGER position;
    // The numbers of SeekPosition are those of the platform.
    if (!::SetFilePointerEx(m_hFile, ToLargeInteger(lOff), &position, nFrom))
        ThrowLastError(m_path);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER position;
    if (!::SetFilePointerEx(m_hFile, ToLargeInteger(0), &position, FILE_CURRENT))
        ThrowLastError(m_path);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowLastError(m_path);
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    CFile::Seek(static_cast<LONGLONG>(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile))
        ThrowLastError(m_path);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    if (!::LockFile(m_hFile, LowPart(dwPos), HighPart(dwPos), LowPart(dwCount), HighPart(dwCount)))
        ThrowLastError(m_path);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    if (!::UnlockFile(m_hFile, LowPart(dwPos), HighPart(dwPos), LowPart(dwCount), HighPart(dwCount)))
        ThrowLastError(m_path);
}

CString CFile::GetFilePath() const
{
    return m_path;
}

CString CFile::GetFileName() const
{
    return m_path.Mid((std::max)(m_path.ReverseFind('\\'), m_path.ReverseFind('/')) + 1);
}

CString CFile::GetFileTitle() const
{
    if (m_path.IsEmpty())
        return m_path;
    TCHAR title[MAX_PATH];
    return ::GetFileTitle(m_path, title, _countof(title)) == 0 ? CString(title) : GetFileName();
}

void CFile::SetFilePath(LPCTSTR lpszNewName)
{
    m_path = lpszNewName;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName, CAtlTransactionManager*)
{
    if (!::MoveFile(lpszOldName, lpszNewName))
        ThrowLastError(lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName, CAtlTransactionManager*)
{
    if (!::DeleteFile(lpszFileName))
        ThrowLastError(lpszFileName);
}
