// CStdioFile: buffered files of text lines, over the streams of the C run-time library.
#pragma once

#include "fx/file.h"

#include <cstdio>

// A file with the buffer of a run-time stream. Opened with typeText (the default), the pair CR LF of the file
// is one '\n' for the program, and the characters of the file are those of the run-time library's locale;
// with typeBinary nothing is translated and text is UTF-16; with typeUnicode line ends are translated and
// text is UTF-16 (without a mark at the beginning). Duplicate, LockRange and UnlockRange throw
// CNotSupportedException.
class QFX_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    CStdioFile(CAtlTransactionManager* pTM);
    // For a stream that is open already, such as stdout. The destructor leaves it open.
    CStdioFile(FILE* pOpenStream);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM);
    virtual ~CStdioFile();

    FILE* m_pStream;

    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL);
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM,
                      CFileException* pError = NULL);

    // Writes the text; line ends are those in the text.
    virtual void WriteString(LPCTSTR lpsz);
    // Reads up to and including a '\n', at most nMax - 1 characters. NULL when the file is at its end.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    // Reads a line of any length, without its '\n'. FALSE when the file is at its end.
    virtual BOOL ReadString(CString& rString);

    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual void Close();
    virtual void Abort();
    virtual CFile* Duplicate() const;
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
};
