// CStdioFile: the streams of the run-time library.
#include "afx.h"

#include <cerrno>
#include <fcntl.h>
#include <io.h>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace
{

int DescriptorFlags(UINT openFlags)
{
    int flags = (openFlags & CFile::modeReadWrite) != 0 ? _O_RDWR
                : (openFlags & CFile::modeWrite) != 0   ? _O_WRONLY
                                                        : _O_RDONLY;
    if (openFlags & CFile::modeNoInherit)
        flags |= _O_NOINHERIT;
    return flags | ((openFlags & CFile::typeBinary) != 0 ? _O_BINARY : _O_TEXT);
}

// What the stream may do. It must never cut the file, which is open already.
CString StreamMode(UINT openFlags)
{
    CString mode = (openFlags & CFile::modeReadWrite) == 0 && (openFlags & CFile::modeWrite) == 0 ? _T("r")
                   : (openFlags & CFile::modeReadWrite) != 0                                      ? _T("r+")
                                                                                                  : _T("w");
    mode += (openFlags & CFile::typeBinary) != 0 ? _T("b") : _T("t");
    return mode;
}

// A stream that owns the handle. When there is none the handle is closed.
FILE* OpenStream(HANDLE handle, UINT openFlags)
{
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), DescriptorFlags(openFlags));
    if (descriptor == -1)
    {
        ::CloseHandle(handle);
        return nullptr;
    }
    FILE* const stream = _tfdopen(descriptor, StreamMode(openFlags));
    if (stream == nullptr)
        _close(descriptor);
    else if (openFlags & CFile::typeUnicode)
        _setmode(descriptor, _O_U16TEXT);
    return stream;
}

[[noreturn]] void ThrowStreamError(const CStdioFile& file)
{
    AfxThrowFileException(CFileException::ErrnoToException(errno), static_cast<LONG>(_doserrno),
                          file.GetFilePath());
}

} // namespace

CStdioFile::CStdioFile() : m_pStream(nullptr) {}

CStdioFile::CStdioFile(CAtlTransactionManager* pTM) : CFile(pTM), m_pStream(nullptr) {}

CStdioFile::CStdioFile(FILE* pOpenStream) : m_pStream(pOpenStream)
{
    m_hFile = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(pOpenStream)));
}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CStdioFile(lpszFileName, nOpenFlags, nullptr)
{
}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM)
    : CFile(pTM), m_pStream(nullptr)
{
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, pTM, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    // The stream closes the handle.
    if (m_pStream != nullptr && m_closesHandle)
        std::fclose(m_pStream);
    m_hFile = INVALID_HANDLE_VALUE;
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    return Open(lpszFileName, nOpenFlags, nullptr, pError);
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM,
                      CFileException* pError)
{
    ASSERT(m_pStream == nullptr);
    if (!CFile::Open(lpszFileName, nOpenFlags, pTM, pError))
        return FALSE;
    m_pStream = OpenStream(m_hFile, nOpenFlags);
    if (m_pStream != nullptr)
        return TRUE;
    if (pError != nullptr)
    {
        pError->m_cause = CFileException::tooManyOpenFiles;
        pError->m_lOsError = static_cast<LONG>(_doserrno);
        pError->m_strFileName = lpszFileName;
    }
    m_hFile = INVALID_HANDLE_VALUE;
    CFile::Abort();
    return FALSE;
}

void CStdioFile::WriteString(LPCTSTR lpsz)
{
    ENSURE_ARG(lpsz != nullptr);
    if (_fputts(lpsz, m_pStream) == _TEOF)
        AfxThrowFileException(CFileException::diskFull, static_cast<LONG>(_doserrno), GetFilePath());
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax)
{
    ENSURE_ARG(lpsz != nullptr && nMax > 0);
    const LPTSTR text = _fgetts(lpsz, static_cast<int>(nMax), m_pStream);
    if (text == nullptr && std::ferror(m_pStream))
    {
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, static_cast<LONG>(_doserrno), GetFilePath());
    }
    return text;
}

BOOL CStdioFile::ReadString(CString& rString)
{
    constexpr UINT kPiece = 256;
    TCHAR piece[kPiece];
    rString.Empty();
    bool anyRead = false;
    while (ReadString(piece, kPiece) != nullptr)
    {
        anyRead = true;
        rString += piece;
        const int length = rString.GetLength();
        if (length > 0 && rString[length - 1] == '\n')
        {
            rString.Truncate(length - 1);
            break;
        }
    }
    return anyRead;
}

ULONGLONG CStdioFile::GetPosition() const
{
    const LONGLONG position = _ftelli64(m_pStream);
    if (position < 0)
        ThrowStreamError(*this);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const
{
    const LONGLONG position = _ftelli64(m_pStream);
    if (position < 0 || _fseeki64(m_pStream, 0, SEEK_END) != 0)
        ThrowStreamError(*this);
    const LONGLONG length = _ftelli64(m_pStream);
    if (length < 0 || _fseeki64(m_pStream, position, SEEK_SET) != 0)
        ThrowStreamError(*this);
    return static_cast<ULONGLONG>(length);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    ASSERT(nFrom == begin || nFrom == current || nFrom == end);
    // The numbers of SeekPosition are those of the run-time library.
    if (_fseeki64(m_pStream, lOff, static_cast<int>(nFrom)) != 0)
        AfxThrowFileException(CFileException::badSeek, static_cast<LONG>(_doserrno), GetFilePath());
    return GetPosition();
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount)
{
    const size_t read = std::fread(lpBuf, 1, nCount, m_pStream);
    if (read < nCount && std::ferror(m_pStream))
    {
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, static_cast<LONG>(_doserrno), GetFilePath());
    }
    return static_cast<UINT>(read);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount)
{
    if (std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
        AfxThrowFileException(CFileException::diskFull, static_cast<LONG>(_doserrno), GetFilePath());
}

void CStdioFile::Flush()
{
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0)
        AfxThrowFileException(CFileException::diskFull, static_cast<LONG>(_doserrno), GetFilePath());
}

void CStdioFile::Close()
{
    FILE* const stream = m_pStream;
    const CString path = GetFilePath();
    m_pStream = nullptr;
    m_hFile = INVALID_HANDLE_VALUE;
    CFile::Abort();
    if (stream != nullptr && std::fclose(stream) != 0)
        AfxThrowFileException(CFileException::diskFull, static_cast<LONG>(_doserrno), path);
}

void CStdioFile::Abort()
{
    if (m_pStream != nullptr && m_closesHandle)
        std::fclose(m_pStream);
    m_pStream = nullptr;
    m_hFile = INVALID_HANDLE_VALUE;
    CFile::Abort();
}

CFile* CStdioFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}
