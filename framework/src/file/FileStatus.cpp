// CFile: times, size and attributes of files.
#include "afx.h"

namespace
{

CTime ToTime(const FILETIME& time)
{
    return time.dwLowDateTime == 0 && time.dwHighDateTime == 0 ? CTime() : CTime(time);
}

FILETIME ToFileTime(CTime time)
{
    // Tenths of microseconds since 1601.
    const ULONGLONG ticks = static_cast<ULONGLONG>(time.GetTime()) * 10000000 + 116444736000000000;
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

ULONGLONG Joined(DWORD high, DWORD low)
{
    return static_cast<ULONGLONG>(high) << 32 | low;
}

[[noreturn]] void ThrowStatusError(LPCTSTR path)
{
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), path);
}

// The attributes that a byte has room for.
BYTE AttributeByte(DWORD attributes)
{
    return static_cast<BYTE>(attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
}

// A time of 0 leaves the file's as it is.
void SetTimes(LPCTSTR path, const CFileStatus& status)
{
    const CTime times[] = {status.m_ctime, status.m_atime, status.m_mtime};
    FILETIME values[3];
    const FILETIME* given[3] = {};
    for (int i = 0; i < 3; ++i)
    {
        values[i] = ToFileTime(times[i]);
        given[i] = times[i].GetTime() != 0 ? &values[i] : nullptr;
    }
    const HANDLE file = ::CreateFile(path, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        ThrowStatusError(path);
    const BOOL set = ::SetFileTime(file, given[0], given[1], given[2]);
    const DWORD error = ::GetLastError();
    ::CloseHandle(file);
    if (!set)
        CFileException::ThrowOsError(static_cast<LONG>(error), path);
}

} // namespace

BOOL CFile::GetStatus(CFileStatus& rStatus) const
{
    rStatus = CFileStatus();
    if (m_hFile == INVALID_HANDLE_VALUE)
        return TRUE;
    lstrcpyn(rStatus.m_szFullName, m_path, _MAX_PATH);
    BY_HANDLE_FILE_INFORMATION information;
    if (!::GetFileInformationByHandle(m_hFile, &information))
        return FALSE;
    rStatus.m_ctime = ToTime(information.ftCreationTime);
    rStatus.m_mtime = ToTime(information.ftLastWriteTime);
    rStatus.m_atime = ToTime(information.ftLastAccessTime);
    rStatus.m_size = Joined(information.nFileSizeHigh, information.nFileSizeLow);
    rStatus.m_attribute = AttributeByte(information.dwFileAttributes);
    return TRUE;
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus, CAtlTransactionManager*)
{
    rStatus = CFileStatus();
    if (::GetFullPathName(lpszFileName, _MAX_PATH, rStatus.m_szFullName, nullptr) >= _MAX_PATH)
        return FALSE;
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesEx(lpszFileName, GetFileExInfoStandard, &data))
        return FALSE;
    rStatus.m_ctime = ToTime(data.ftCreationTime);
    rStatus.m_mtime = ToTime(data.ftLastWriteTime);
    rStatus.m_atime = ToTime(data.ftLastAccessTime);
    rStatus.m_size = Joined(data.nFileSizeHigh, data.nFileSizeLow);
    rStatus.m_attribute = AttributeByte(data.dwFileAttributes);
    return TRUE;
}

void PASCAL CFile::SetStatus(LPCTSTR lpszFileName, const CFileStatus& status, CAtlTransactionManager*)
{
    if (::GetFileAttributes(lpszFileName) == INVALID_FILE_ATTRIBUTES)
        ThrowStatusError(lpszFileName);
    if (status.m_mtime.GetTime() != 0)
        SetTimes(lpszFileName, status);
    const DWORD attributes = status.m_attribute == 0 ? FILE_ATTRIBUTE_NORMAL : status.m_attribute;
    if (!::SetFileAttributes(lpszFileName, attributes))
        ThrowStatusError(lpszFileName);
}
