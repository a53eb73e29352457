// A file that replaces an existing one only when everything has been written.
#include "document/MirrorFile.h"
#include "document/DocumentSupport.h"

namespace quorfx
{

namespace
{

// Whether the file is there and may be replaced; nothing is changed.
bool IsWritable(LPCTSTR path)
{
    const DWORD attributes = ::GetFileAttributes(path);
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return false;
    const HANDLE file = ::CreateFile(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    ::CloseHandle(file);
    return true;
}

CString UnusedNameBeside(const CString& path)
{
    const CString folder = path.Left(path.GetLength() - FileName(path).GetLength());
    TCHAR name[MAX_PATH] = {};
    return ::GetTempFileName(folder, _T("doc"), 0, name) != 0 ? CString(name) : CString();
}

} // namespace

MirrorFile::~MirrorFile()
{
    Abort();
}

BOOL MirrorFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    m_target = FullPath(lpszFileName);
    m_mirror.Empty();
    // What cannot be replaced is left to the plain file, which says why.
    if ((nOpenFlags & CFile::modeCreate) != 0 && IsWritable(m_target))
        m_mirror = UnusedNameBeside(m_target);
    if (!m_mirror.IsEmpty() && CFile::Open(m_mirror, nOpenFlags, pError))
    {
        // Who asks for the file's name means the document's.
        SetFilePath(m_target);
        return TRUE;
    }
    m_mirror.Empty();
    return CFile::Open(lpszFileName, nOpenFlags, pError);
}

void MirrorFile::Close()
{
    CFile::Close();
    if (m_mirror.IsEmpty())
        return;
    const CString mirror = m_mirror;
    m_mirror.Empty();
    // Keeps owner, rights and attributes of the replaced file; where a file system cannot, the file is moved.
    if (::ReplaceFile(m_target, mirror, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) ||
        ::MoveFileEx(mirror, m_target, MOVEFILE_REPLACE_EXISTING))
        return;
    const LONG error = static_cast<LONG>(::GetLastError());
    ::DeleteFile(mirror);
    CFileException::ThrowOsError(error, m_target);
}

void MirrorFile::Abort()
{
    CFile::Abort();
    if (!m_mirror.IsEmpty())
        ::DeleteFile(m_mirror);
    m_mirror.Empty();
}

} // namespace quorfx
