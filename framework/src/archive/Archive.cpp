// CArchive: the buffer between the program and the file, and text.
#include "archive/ObjectTable.h"

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pDocument(nullptr),
      m_nMode(nMode),
      m_pFile(pFile),
      m_nBufSize(static_cast<UINT>((std::max)(nBufSize, 128))),
      m_bUserBuf(lpBuf != nullptr && nBufSize >= 128),
      m_lpBufStart(nullptr),
      m_lpBufCur(nullptr),
      m_lpBufMax(nullptr),
      m_nSchema(static_cast<UINT>(-1)),
      m_pTable(nullptr)
{
    ENSURE_ARG(pFile != nullptr);
    m_lpBufStart = m_bUserBuf ? static_cast<BYTE*>(lpBuf) : new BYTE[m_nBufSize];
    m_lpBufCur = m_lpBufStart;
    // A buffer that loads is empty at first, one that stores has all its room.
    m_lpBufMax = m_lpBufStart + (IsLoading() ? 0 : m_nBufSize);
}

CArchive::~CArchive()
{
    if (m_pFile == nullptr || (m_nMode & bNoFlushOnDelete) != 0)
    {
        Abort();
        return;
    }
    try
    {
        Close();
    }
    catch (CException* exception)
    {
        exception->Delete();
        Abort();
    }
}

void CArchive::Close()
{
    Flush();
    Abort();
}

void CArchive::Abort()
{
    m_pFile = nullptr;
    if (!m_bUserBuf)
        delete[] m_lpBufStart;
    m_lpBufStart = m_lpBufCur = m_lpBufMax = nullptr;
    delete m_pTable;
    m_pTable = nullptr;
}

void CArchive::Flush()
{
    ENSURE(m_pFile != nullptr);
    if (IsLoading())
    {
        // The file has been read further than the archive.
        if (m_lpBufMax != m_lpBufCur)
            m_pFile->Seek(-static_cast<LONGLONG>(m_lpBufMax - m_lpBufCur), CFile::current);
        m_lpBufCur = m_lpBufMax = m_lpBufStart;
        return;
    }
    const UINT used = static_cast<UINT>(m_lpBufCur - m_lpBufStart);
    m_lpBufCur = m_lpBufStart;
    m_pFile->Write(m_lpBufStart, used);
    m_pFile->Flush();
}

CString CArchive::FileName() const
{
    return m_pFile == nullptr ? CString() : m_pFile->GetFilePath();
}

void CArchive::RequireStoring() const
{
    if (IsLoading())
        AfxThrowArchiveException(CArchiveException::readOnly, FileName());
    ENSURE(m_pFile != nullptr);
}

void CArchive::RequireLoading() const
{
    if (IsStoring())
        AfxThrowArchiveException(CArchiveException::writeOnly, FileName());
    ENSURE(m_pFile != nullptr);
}

void CArchive::Write(const void* lpBuf, INT nMax)
{
    ENSURE_ARG(nMax >= 0);
    RequireStoring();
    const BYTE* from = static_cast<const BYTE*>(lpBuf);
    for (UINT left = static_cast<UINT>(nMax); left != 0;)
    {
        if (m_lpBufCur == m_lpBufMax)
        {
            m_lpBufCur = m_lpBufStart;
            m_pFile->Write(m_lpBufStart, m_nBufSize);
        }
        // Long pieces do not pass the buffer.
        if (m_lpBufCur == m_lpBufStart && left >= m_nBufSize)
        {
            m_pFile->Write(from, left);
            return;
        }
        const UINT count = (std::min)(left, static_cast<UINT>(m_lpBufMax - m_lpBufCur));
        std::memcpy(m_lpBufCur, from, count);
        m_lpBufCur += count;
        from += count;
        left -= count;
    }
}

UINT CArchive::TakeFromBuffer(BYTE* lpBuf, UINT nMax)
{
    const UINT count = (std::min)(nMax, static_cast<UINT>(m_lpBufMax - m_lpBufCur));
    std::memcpy(lpBuf, m_lpBufCur, count);
    m_lpBufCur += count;
    return count;
}

UINT CArchive::FillBuffer()
{
    m_lpBufCur = m_lpBufMax = m_lpBufStart;
    const UINT read = m_pFile->Read(m_lpBufStart, m_nBufSize);
    m_lpBufMax = m_lpBufStart + read;
    return read;
}

UINT CArchive::Read(void* lpBuf, UINT nMax)
{
    RequireLoading();
    if (nMax == 0)
        return 0;
    BYTE* const to = static_cast<BYTE*>(lpBuf);
    UINT done = TakeFromBuffer(to, nMax);
    while (done < nMax)
    {
        // Long pieces do not pass the buffer.
        const UINT left = nMax - done;
        const UINT read = left >= m_nBufSize  ? m_pFile->Read(to + done, left)
                          : FillBuffer() != 0 ? TakeFromBuffer(to + done, left)
                                              : 0;
        if (read == 0)
            break;
        done += read;
    }
    return done;
}

void CArchive::ReadAll(void* lpBuf, UINT nCount)
{
    if (Read(lpBuf, nCount) != nCount)
        AfxThrowArchiveException(CArchiveException::endOfFile, FileName());
}

void CArchive::WriteString(LPCTSTR lpsz)
{
    ENSURE_ARG(lpsz != nullptr);
    Write(lpsz, static_cast<INT>(std::wcslen(lpsz) * sizeof(TCHAR)));
}

BOOL CArchive::ReadCharacter(TCHAR& ch)
{
    const UINT read = Read(&ch, sizeof(ch));
    if (read != 0 && read != sizeof(ch))
        AfxThrowArchiveException(CArchiveException::endOfFile, FileName());
    return read != 0;
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax)
{
    ENSURE_ARG(lpsz != nullptr);
    if (nMax == 0)
        return nullptr;
    UINT count = 0;
    TCHAR ch = 0;
    bool anyRead = false;
    while (count < nMax - 1 && ReadCharacter(ch))
    {
        anyRead = true;
        if (ch == '\n')
        {
            if (count > 0 && lpsz[count - 1] == '\r')
                --count;
            break;
        }
        lpsz[count++] = ch;
    }
    lpsz[count] = 0;
    return anyRead || nMax == 1 ? lpsz : nullptr;
}

BOOL CArchive::ReadString(CString& rString)
{
    rString.Empty();
    TCHAR ch = 0;
    bool anyRead = false;
    while (ReadCharacter(ch))
    {
        anyRead = true;
        if (ch == '\n')
        {
            const int length = rString.GetLength();
            if (length > 0 && rString[length - 1] == '\r')
                rString.Truncate(length - 1);
            break;
        }
        rString.AppendChar(ch);
    }
    return anyRead;
}
