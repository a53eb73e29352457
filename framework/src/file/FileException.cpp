// CFileException: causes of error codes, and sentences for them.
#include "afx.h"

#include <cerrno>

IMPLEMENT_DYNAMIC(CFileException, CException)

namespace
{

struct CauseOfError
{
    LONG code;
    int cause;
};

const CauseOfError kOsErrors[] = {
    {NO_ERROR, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_BAD_NETPATH, CFileException::badPath},
    {ERROR_BAD_NET_NAME, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_SHARING_BUFFER_EXCEEDED, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_NETWORK_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_CANNOT_MAKE, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_INVALID_ACCESS, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_INVALID_TARGET_HANDLE, CFileException::invalidFile},
    {ERROR_DIRECT_ACCESS_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_DIR_NOT_EMPTY, CFileException::removeCurrentDir},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SEEK_ON_DEVICE, CFileException::badSeek},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_GEN_FAILURE, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_IO_DEVICE, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_LOCK_FAILED, CFileException::lockViolation},
    {ERROR_NOT_LOCKED, CFileException::lockViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
};

const CauseOfError kErrnos[] = {
    {0, CFileException::none},
    {EPERM, CFileException::accessDenied},
    {EACCES, CFileException::accessDenied},
    {EEXIST, CFileException::accessDenied},
    {EROFS, CFileException::accessDenied},
    {ENOENT, CFileException::fileNotFound},
    {ENOTDIR, CFileException::badPath},
    {EISDIR, CFileException::badPath},
    {ENAMETOOLONG, CFileException::badPath},
    {EBADF, CFileException::invalidFile},
    {EMFILE, CFileException::tooManyOpenFiles},
    {ENFILE, CFileException::tooManyOpenFiles},
    {EIO, CFileException::hardIO},
    {ENOSPC, CFileException::diskFull},
    {ESPIPE, CFileException::badSeek},
    {EINVAL, CFileException::badSeek},
    {EDEADLOCK, CFileException::lockViolation},
    {ENOTEMPTY, CFileException::removeCurrentDir},
};

template <size_t size> int CauseOf(LONG code, const CauseOfError (&table)[size])
{
    for (const CauseOfError& entry : table)
    {
        if (entry.code == code)
            return entry.cause;
    }
    return CFileException::genericException;
}

// By cause: what is said of the file.
const LPCTSTR kMessages[] = {
    _T("has no error"),
    _T("could not be accessed"),
    _T("was not found"),
    _T("has a path that is not valid"),
    _T("could not be opened because too many files are open"),
    _T("does not allow this access"),
    _T("is not open"),
    _T("could not be removed because the directory is in use"),
    _T("could not be created because the directory is full"),
    _T("has no such position"),
    _T("could not be accessed because of an error of the device"),
    _T("is in use by another program"),
    _T("is partly locked by another program"),
    _T("could not be written because the disk is full"),
    _T("ended unexpectedly"),
};
static_assert(_countof(kMessages) == CFileException::endOfFile + 1, "one message for each cause");

} // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : CException(TRUE), m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName)
{
}

int PASCAL CFileException::OsErrorToException(LONG lOsError)
{
    return CauseOf(lOsError, kOsErrors);
}

int PASCAL CFileException::ErrnoToException(int nErrno)
{
    return CauseOf(nErrno, kErrnos);
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName)
{
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName)
{
    AfxThrowFileException(ErrnoToException(nErrno), static_cast<LONG>(_doserrno), lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    const bool known = m_cause >= 0 && m_cause < static_cast<int>(_countof(kMessages));
    CString message = _T("The file ");
    if (!m_strFileName.IsEmpty())
        message += _T("\"") + m_strFileName + _T("\" ");
    message += kMessages[known ? m_cause : genericException];
    message += _T(".");
    lstrcpyn(lpszError, message, static_cast<int>(nMaxError));
    return TRUE;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}
