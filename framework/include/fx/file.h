// CFile: unbuffered binary files.
#pragma once

#include "fx/fileexception.h"
#include "fx/filestatus.h"

// File transactions are not supported by this framework; where a manager can be passed it is NULL.
class CAtlTransactionManager;

// A file of the platform, read and written without a buffer. Functions that fail throw CFileException, except
// where they return a BOOL. Positions and lengths count bytes and have 64 bits.
class QFX_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    // How to open: one mode, one way of sharing (none given: exclusive), and what else applies.
    enum OpenFlags
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        // Child processes do not inherit the file.
        modeNoInherit = 0x0080,
        // A new file is made; one that exists is cut to length 0.
        modeCreate = 0x1000,
        // With modeCreate: one that exists keeps its content.
        modeNoTruncate = 0x2000,
        // For derived classes: line ends are translated, or not; text is UTF-16 in the file.
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000,
        typeUnicode = 0x400000
    };
    // What an offset counts from.
    enum SeekPosition
    {
        begin = 0x0,
        current = 0x1,
        end = 0x2
    };
    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    // For CMemFile::GetBufferPtr.
    enum BufferCommand
    {
        bufferRead,
        bufferWrite,
        bufferCommit,
        bufferCheck
    };

    enum BufferFlags
    {
        bufferDirect = 0x01,
        bufferBlocking = 0x02
    };

    // What m_hFile is while no file is open.
    static AFX_DATA const HANDLE hFileNull;

    CFile();
    CFile(CAtlTransactionManager* pTM);
    // For a file that is open already. The destructor leaves it open.
    CFile(HANDLE hFile);
    // Opens the file as Open does, but throws CFileException when that fails.
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM);
    // Closes the file when it is open and was opened by this object.
    virtual ~CFile();

    HANDLE m_hFile;
    operator HANDLE() const { return m_hFile; }

    // Opens a file; FALSE, with the reason in *pError, when that fails. The object must not have one open.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL);
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager* pTM,
                      CFileException* pError = NULL);
    // Closes the file; the object can open another one. Abort does it without reporting errors.
    virtual void Close();
    virtual void Abort();
    // A second object for the open file, on the heap, with a handle of its own to the same file pointer.
    virtual CFile* Duplicate() const;

    // Returns how many bytes were read: fewer than nCount only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    // Writes all bytes or throws.
    virtual void Write(const void* lpBuf, UINT nCount);
    // Sees to it that all data reach the disk.
    virtual void Flush();

    // Moves the file pointer; the result counts from the beginning. It may go behind the end, not before the
    // beginning.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, CFile::begin); }
    ULONGLONG SeekToEnd() { return Seek(0, CFile::end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    // Cuts or extends the file and moves the file pointer to the new end.
    virtual void SetLength(ULONGLONG dwNewLen);

    // Deny other processes a range of bytes, which must be unlocked exactly as it was locked.
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

    // The full path; its last part; that part as the system shows it to the user. Empty without a file.
    virtual CString GetFilePath() const;
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    // Gives the object a path; the file of that name need not exist and is not touched.
    virtual void SetFilePath(LPCTSTR lpszNewName);

    // Times, size and attributes, of the open file or of a closed one; FALSE when they cannot be had.
    BOOL GetStatus(CFileStatus& rStatus) const;
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus,
                                 CAtlTransactionManager* pTM = NULL);
    // Sets the attributes and, when m_mtime is not 0, the times that are not 0.
    static void PASCAL SetStatus(LPCTSTR lpszFileName, const CFileStatus& status,
                                 CAtlTransactionManager* pTM = NULL);

    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName, CAtlTransactionManager* pTM = NULL);
    static void PASCAL Remove(LPCTSTR lpszFileName, CAtlTransactionManager* pTM = NULL);

protected:
    CAtlTransactionManager* m_pTM;

private:
    void CloseOwned();

    bool m_closesHandle;
    CString m_path;

    friend class CStdioFile;
};
