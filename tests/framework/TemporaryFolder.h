// A folder for the files of one test.
#pragma once

#include <afxwin.h>

namespace quor::test
{

// Exists as long as the object; what is in it goes with it.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        TCHAR place[MAX_PATH], path[MAX_PATH];
        ::GetTempPath(MAX_PATH, place);
        // The name is reserved as a file first.
        ::GetTempFileName(place, _T("qft"), 0, path);
        ::DeleteFile(path);
        ::CreateDirectory(path, NULL);
        m_path = path;
    }
    ~TemporaryFolder()
    {
        WIN32_FIND_DATA found;
        const HANDLE search = ::FindFirstFile(m_path + _T("\\*"), &found);
        for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFile(search, &found))
        {
            ::SetFileAttributes(File(found.cFileName), FILE_ATTRIBUTE_NORMAL);
            ::DeleteFile(File(found.cFileName));
        }
        ::FindClose(search);
        ::RemoveDirectory(m_path);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const CString& Path() const { return m_path; }
    CString File(LPCTSTR name) const { return m_path + _T("\\") + name; }

private:
    CString m_path;
};

// The bytes of a file.
inline std::string BytesOf(const CString& path)
{
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    return bytes;
}

inline void MakeFile(const CString& path, const std::string& bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

// The cause of the file exception that the call throws, or -1.
template <typename TCall> int CauseThrownBy(TCall call)
{
    try
    {
        call();
    }
    catch (CFileException* exception)
    {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

// Whether the call throws an exception of this class.
template <typename TException, typename TCall> bool Throws(TCall call)
{
    try
    {
        call();
    }
    catch (CException* exception)
    {
        const bool expected = exception->IsKindOf(RUNTIME_CLASS(TException)) != FALSE;
        exception->Delete();
        return expected;
    }
    return false;
}

} // namespace quor::test
