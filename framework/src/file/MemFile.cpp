// CMemFile: files in memory.
#include "afx.h"

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes)
    : m_growBytes(nGrowBytes),
      m_position(0),
      m_bufferSize(0),
      m_fileSize(0),
      m_buffer(nullptr),
      m_freesBuffer(true)
{
}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : CMemFile(nGrowBytes)
{
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile()
{
    if (m_freesBuffer && m_buffer != nullptr)
        CMemFile::Free(m_buffer);
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    ASSERT(m_buffer == nullptr);
    m_growBytes = nGrowBytes;
    m_position = 0;
    m_bufferSize = nBufferSize;
    m_fileSize = nGrowBytes == 0 ? nBufferSize : 0;
    m_buffer = lpBuffer;
    m_freesBuffer = false;
}

BYTE* CMemFile::Detach()
{
    BYTE* const buffer = m_buffer;
    m_position = m_bufferSize = m_fileSize = 0;
    m_buffer = nullptr;
    m_freesBuffer = true;
    return buffer;
}

BYTE* CMemFile::Alloc(SIZE_T nBytes)
{
    return static_cast<BYTE*>(std::malloc(nBytes));
}

BYTE* CMemFile::Realloc(BYTE* lpMem, SIZE_T nBytes)
{
    return static_cast<BYTE*>(std::realloc(lpMem, nBytes));
}

void CMemFile::Free(BYTE* lpMem)
{
    std::free(lpMem);
}

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes)
{
    return static_cast<BYTE*>(std::memmove(lpMemTarget, lpMemSource, nBytes));
}

void CMemFile::GrowFile(SIZE_T dwNewLen)
{
    if (dwNewLen <= m_bufferSize)
        return;
    if (m_growBytes == 0 || dwNewLen > static_cast<SIZE_T>(PTRDIFF_MAX) - m_growBytes)
        AfxThrowMemoryException();
    const SIZE_T newSize = (dwNewLen + m_growBytes - 1) / m_growBytes * m_growBytes;
    BYTE* const buffer = m_buffer == nullptr ? Alloc(newSize) : Realloc(m_buffer, newSize);
    if (buffer == nullptr)
        AfxThrowMemoryException();
    m_buffer = buffer;
    m_bufferSize = newSize;
}

UINT CMemFile::GetBufferPtr(UINT nCommand, UINT nCount, void** ppBufStart, void** ppBufMax)
{
    switch (nCommand)
    {
    case bufferCheck:
        return bufferDirect;
    case bufferCommit:
        m_position += nCount;
        m_fileSize = (std::max)(m_fileSize, m_position);
        return 0;
    case bufferWrite:
        GrowFile(m_position + nCount);
        break;
    case bufferRead:
        nCount = m_position >= m_fileSize
                     ? 0
                     : static_cast<UINT>((std::min)(static_cast<SIZE_T>(nCount), m_fileSize - m_position));
        break;
    default:
        AfxThrowInvalidArgException();
    }
    ENSURE_ARG(ppBufStart != nullptr && ppBufMax != nullptr);
    *ppBufStart = m_buffer + m_position;
    *ppBufMax = m_buffer + m_position + nCount;
    if (nCommand == bufferRead)
        m_position += nCount;
    return nCount;
}

ULONGLONG CMemFile::GetPosition() const
{
    return m_position;
}

ULONGLONG CMemFile::GetLength() const
{
    return m_fileSize;
}

void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    const SIZE_T length = static_cast<SIZE_T>(dwNewLen);
    GrowFile(length);
    if (length > m_fileSize)
        std::memset(m_buffer + m_fileSize, 0, length - m_fileSize);
    m_fileSize = length;
    m_position = (std::min)(m_position, length);
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    ASSERT(nFrom == begin || nFrom == current || nFrom == end);
    const SIZE_T origin = nFrom == begin ? 0 : nFrom == current ? m_position : m_fileSize;
    const LONGLONG position = static_cast<LONGLONG>(origin) + lOff;
    if (position < 0)
        AfxThrowFileException(CFileException::badSeek);
    m_position = static_cast<SIZE_T>(position);
    return m_position;
}

UINT CMemFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0 || m_position >= m_fileSize)
        return 0;
    const SIZE_T count = (std::min)(static_cast<SIZE_T>(nCount), m_fileSize - m_position);
    Memcpy(static_cast<BYTE*>(lpBuf), m_buffer + m_position, count);
    m_position += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    // What lies between the old end and a pointer behind it is part of the file from now on.
    if (m_position > m_fileSize)
    {
        const SIZE_T position = m_position;
        SetLength(position);
    }
    GrowFile(m_position + nCount);
    Memcpy(m_buffer + m_position, static_cast<const BYTE*>(lpBuf), nCount);
    m_position += nCount;
    m_fileSize = (std::max)(m_fileSize, m_position);
}

void CMemFile::Flush() {}

void CMemFile::Close()
{
    if (m_freesBuffer && m_buffer != nullptr)
        Free(m_buffer);
    Detach();
}

void CMemFile::Abort()
{
    CMemFile::Close();
}

CFile* CMemFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}
