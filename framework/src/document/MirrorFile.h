// A file that replaces an existing one only when everything has been written.
#pragma once

#include "fx/file.h"

namespace quorfx
{

// Opened with modeCreate for a file that exists, it writes to another file in the same folder; Close puts
// that in the place of the first, Abort and the destructor delete it. Opened otherwise it is a plain file.
class MirrorFile : public CFile
{
public:
    ~MirrorFile() override;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    void Close() override;
    void Abort() override;

private:
    using CFile::Open;

    CString m_target;
    CString m_mirror; // empty for a plain file
};

} // namespace quorfx
