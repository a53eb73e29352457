// CFileException: why an operation on a file failed.
#pragma once

#include "fx/string.h"

// Thrown by the file classes. Tell the reasons apart by m_cause, which does not depend on the platform.
class QFX_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = CFileException::none, LONG lOsError = -1,
                            LPCTSTR lpszArchiveName = NULL);

    // One of the causes above.
    int m_cause;
    // The error code of the platform, -1 where there is none.
    LONG m_lOsError;
    // The file, where known.
    CString m_strFileName;

    // The cause that an error code of the platform, or an errno value of the run-time library, means.
    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    // Throw the exception for such a code.
    [[noreturn]] static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = NULL);
    [[noreturn]] static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = NULL);

    // A sentence with the name of the file.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;
};

[[noreturn]] QFX_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                       LPCTSTR lpszFileName = NULL);
