// CFileStatus: what the system knows of a file.
#pragma once

#include "fx/time.h"

// Filled by CFile::GetStatus, and taken by CFile::SetStatus.
struct CFileStatus
{
    // When the file was created, last written and last read.
    CTime m_ctime;
    CTime m_mtime;
    CTime m_atime;
    // In bytes.
    ULONGLONG m_size;
    // CFile::Attribute values, combined.
    BYTE m_attribute;
    // The full path.
    TCHAR m_szFullName[_MAX_PATH];
};
