// CMemFile: a file in memory.
#pragma once

#include "fx/file.h"

// Behaves as a binary file, but its content is a block of memory that grows. Duplicate, LockRange and
// UnlockRange throw CNotSupportedException. A derived class may keep the block elsewhere: Alloc, Realloc,
// Free and Memcpy do all that is done with it.
class QFX_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

public:
    // An empty file, whose memory grows by nGrowBytes at least.
    CMemFile(UINT nGrowBytes = 1024);
    // A file in a block that the caller owns; see Attach.
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    virtual ~CMemFile();

    // Uses the caller's block. With nGrowBytes 0 its bytes are the content and the file cannot grow;
    // otherwise the file begins empty and Realloc must be able to grow the block.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    // Closes the file and gives its block to the caller.
    BYTE* Detach();

    // Direct access. bufferCheck: whether there is any (bufferDirect). bufferRead, bufferWrite: the bytes of
    // the block from the file pointer on, at most nCount (for writing exactly that many), and how many they
    // are; the file pointer moves behind them for reading. bufferCommit: nCount bytes have been written.
    virtual UINT GetBufferPtr(UINT nCommand, UINT nCount = 0, void** ppBufStart = NULL,
                              void** ppBufMax = NULL);

    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual void Close();
    virtual void Abort();
    virtual CFile* Duplicate() const;
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

protected:
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    // Makes room for dwNewLen bytes. Throws CMemoryException when the file cannot grow.
    virtual void GrowFile(SIZE_T dwNewLen);

private:
    SIZE_T m_growBytes;
    SIZE_T m_position;
    SIZE_T m_bufferSize;
    SIZE_T m_fileSize;
    BYTE* m_buffer;
    bool m_freesBuffer;
};
