// Names of files for people.
#include "document/DocumentSupport.h"
#include <commdlg.h>

namespace quorfx
{

CString FullPath(LPCTSTR path)
{
    TCHAR* name = nullptr;
    const DWORD length = ::GetFullPathName(path, 0, nullptr, &name);
    if (length == 0)
        return CString(path);
    CString full;
    ::GetFullPathName(path, length, full.GetBuffer(static_cast<int>(length)), &name);
    full.ReleaseBuffer();
    return full;
}

CString FileName(LPCTSTR path)
{
    const CString text(path);
    const int slash = (std::max)(text.ReverseFind(_T('\\')), text.ReverseFind(_T('/')));
    return text.Mid((std::max)(slash, text.ReverseFind(_T(':'))) + 1);
}

CString FileTitle(LPCTSTR path)
{
    TCHAR title[MAX_PATH] = {};
    return ::GetFileTitle(path, title, MAX_PATH) == 0 ? CString(title) : FileName(path);
}

namespace
{

// The length of "C:\" or "\\server\share\".
int RootLength(const CString& path)
{
    if (path.Left(2) != _T("\\\\"))
        return (std::min)(3, path.GetLength());
    const int share = path.Find(_T('\\'), 2);
    const int end = share < 0 ? -1 : path.Find(_T('\\'), share + 1);
    return end < 0 ? path.GetLength() : end + 1;
}

} // namespace

CString AbbreviatedPath(const CString& path, int maxLength, bool atLeastName)
{
    if (path.GetLength() <= maxLength)
        return path;
    const CString name = FileName(path);
    const CString root = path.Left(RootLength(path)) + _T("...");
    const int room = maxLength - root.GetLength();
    if (room < name.GetLength() + 1)
        return atLeastName || name.GetLength() <= maxLength ? name : CString();
    // As many folders before the name as there is room for.
    int start = path.GetLength() - name.GetLength() - 1;
    for (int next = start; next >= 0 && path.GetLength() - next <= room;)
    {
        start = next;
        next = path.Left(start).ReverseFind(_T('\\'));
    }
    return root + path.Mid(start);
}

} // namespace quorfx
