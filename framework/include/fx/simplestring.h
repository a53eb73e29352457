// CSimpleStringT: the shared, reference-counted character buffer that the string classes build on.
#pragma once

#include "fx/config.h"
#include "fx/diagnostics.h"
#include "fx/exception.h"

// The header of the empty string with its terminator.
struct CNilStringData;

// The header in front of a string's characters. Strings that are copies of each other share one block.
struct QFX_API CStringData
{
    // Characters in use, without the terminator.
    int nDataLength;
    // Characters that fit, without the terminator.
    int nAllocLength;
    // How many strings share the block; negative while it is locked, by the number of locks. The one block
    // of all empty strings, which is never freed, has a count that does not change.
    volatile LONG nRefs;

    void* data() throw() { return this + 1; }
    bool IsShared() const throw() { return nRefs > 1; }
    // A locked block belongs to one string.
    bool IsLocked() const throw() { return nRefs < 0; }
    void Lock() throw()
    {
        ASSERT(nRefs <= 1);
        nRefs = nRefs < 0 ? nRefs - 1 : -1;
    }
    void Unlock() throw()
    {
        ASSERT(IsLocked());
        if (IsLocked())
            nRefs = nRefs == -1 ? 1 : nRefs + 1;
    }
    void AddRef() throw()
    {
        if (nRefs != NilRefs)
            InterlockedIncrement(&nRefs);
    }
    void Release() throw()
    {
        if (nRefs != NilRefs && (nRefs <= 1 || InterlockedDecrement(&nRefs) == 0))
            Free(this);
    }

    // A block with room for nChars characters of nCharSize bytes and a terminator, empty and used once.
    // Throws std::bad_alloc.
    static CStringData* Allocate(int nChars, int nCharSize);
    static void Free(CStringData* pData);
    static CStringData* Nil();

private:
    friend struct CNilStringData;

    enum : LONG
    {
        NilRefs = LONG_MAX
    };
    static CNilStringData s_nil;
};

inline CStringData* CStringData::Nil()
{
    return reinterpret_cast<CStringData*>(&s_nil);
}

// A text of characters of type BaseType. The object is one pointer; copies share the characters until one of
// them is changed. Lengths and positions count characters; positions are zero-based. An out-of-range length
// or a NULL pointer with a length other than 0 throws CInvalidArgException.
template <typename BaseType> class CSimpleStringT
{
public:
    typedef BaseType XCHAR;
    typedef BaseType* PXSTR;
    typedef const BaseType* PCXSTR;

    CSimpleStringT() : m_pszData(NilText()) {}
    CSimpleStringT(const CSimpleStringT& strSrc) : m_pszData(strSrc.Share()) {}
    CSimpleStringT(CSimpleStringT&& strSrc) noexcept : m_pszData(NilText()) { *this = std::move(strSrc); }
    ~CSimpleStringT() { GetData()->Release(); }

    CSimpleStringT& operator=(const CSimpleStringT& strSrc)
    {
        if (this == &strSrc)
            return *this;
        if (GetData()->IsLocked())
            SetString(strSrc.m_pszData, strSrc.GetLength());
        else
            Adopt(strSrc.Share());
        return *this;
    }
    CSimpleStringT& operator=(CSimpleStringT&& strSrc) noexcept
    {
        if (GetData()->IsLocked() || strSrc.GetData()->IsLocked())
            return *this = static_cast<const CSimpleStringT&>(strSrc);
        std::swap(m_pszData, strSrc.m_pszData);
        return *this;
    }
    CSimpleStringT& operator=(PCXSTR pszSrc)
    {
        SetString(pszSrc);
        return *this;
    }

    CSimpleStringT& operator+=(const CSimpleStringT& strSrc)
    {
        Append(strSrc);
        return *this;
    }
    CSimpleStringT& operator+=(PCXSTR pszSrc)
    {
        Append(pszSrc);
        return *this;
    }
    // A character of another type is taken by its code.
    CSimpleStringT& operator+=(char ch)
    {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }
    CSimpleStringT& operator+=(unsigned char ch)
    {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }
    CSimpleStringT& operator+=(wchar_t ch)
    {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }

    // The characters with a terminator, valid until the string changes.
    operator PCXSTR() const throw() { return m_pszData; }
    PCXSTR GetString() const throw() { return m_pszData; }
    int GetLength() const throw() { return GetData()->nDataLength; }
    // Characters that fit without a new block.
    int GetAllocLength() const throw() { return GetData()->nAllocLength; }
    bool IsEmpty() const throw() { return GetLength() == 0; }

    // The character at a position; the terminator may be read.
    XCHAR operator[](int iChar) const
    {
        ASSERT(iChar >= 0 && iChar <= GetLength());
        return m_pszData[iChar];
    }
    XCHAR GetAt(int iChar) const { return (*this)[iChar]; }
    // Replaces the character at a position below the length.
    void SetAt(int iChar, XCHAR ch)
    {
        ENSURE_ARG(iChar >= 0 && iChar < GetLength());
        GetBuffer()[iChar] = ch;
    }

    // Makes the string empty and, unless they are locked, frees its characters.
    void Empty() throw()
    {
        if (GetData()->IsLocked())
            SetLength(0);
        else
            Adopt(NilText());
    }
    // Gives unused room back.
    void FreeExtra()
    {
        if (GetLength() < GetAllocLength() && !GetData()->IsLocked())
            Reallocate(GetLength(), GetLength());
    }
    // Makes room for nLength characters.
    void Preallocate(int nLength) { PrepareWrite(nLength); }

    // Writable characters, no longer shared, with room for at least nMinBufferLength and a terminator; the
    // content is kept. Call ReleaseBuffer after changing the length.
    PXSTR GetBuffer() { return PrepareWrite(GetLength()); }
    PXSTR GetBuffer(int nMinBufferLength) { return PrepareWrite(nMinBufferLength); }
    // As GetBuffer, and the length becomes nLength at once.
    PXSTR GetBufferSetLength(int nLength)
    {
        GetBuffer(nLength);
        SetLength(nLength);
        return m_pszData;
    }
    // Ends the writing: the length is nNewLength, or found by the terminator when that is -1.
    void ReleaseBuffer(int nNewLength = -1)
    {
        SetLength(nNewLength == -1 ? TerminatedLength(m_pszData, GetAllocLength()) : nNewLength);
    }
    void ReleaseBufferSetLength(int nNewLength) { SetLength(nNewLength); }
    // The characters, which until UnlockBuffer are shared with no other string: assigning to or from this
    // one copies them. Locks are counted. Changes of the text may still move it.
    PXSTR LockBuffer()
    {
        if (GetData()->IsShared())
            Reallocate(GetLength(), GetLength());
        GetData()->Lock();
        return m_pszData;
    }
    void UnlockBuffer() throw() { GetData()->Unlock(); }
    // Cuts the string to nNewLength characters.
    void Truncate(int nNewLength)
    {
        ENSURE_ARG(nNewLength >= 0 && nNewLength <= GetLength());
        GetBuffer();
        SetLength(nNewLength);
    }

    // Copies a text into the string; it may be part of this string. NULL makes the string empty.
    void SetString(PCXSTR pszSrc) { SetString(pszSrc, StringLength(pszSrc)); }
    void SetString(PCXSTR pszSrc, int nLength)
    {
        if (nLength == 0)
        {
            Empty();
            return;
        }
        ENSURE_ARG(pszSrc != NULL && nLength > 0);
        CStringData* pData = GetData();
        if (pData->IsShared() || pData->nAllocLength < nLength)
        {
            // The old block is released last: the text may be in it.
            pData = CStringData::Allocate(nLength, sizeof(XCHAR));
            std::memcpy(pData->data(), pszSrc, ByteCount(nLength));
            Adopt(static_cast<PXSTR>(pData->data()));
        }
        else
        {
            std::memmove(m_pszData, pszSrc, ByteCount(nLength));
        }
        SetLength(nLength);
    }

    // Adds a text at the end; it may be part of this string.
    void Append(PCXSTR pszSrc) { Append(pszSrc, StringLength(pszSrc)); }
    void Append(PCXSTR pszSrc, int nLength)
    {
        if (nLength == 0)
            return;
        ENSURE_ARG(pszSrc != NULL && nLength > 0);
        const int nOldLength = GetLength();
        ENSURE_ARG(nLength <= INT_MAX - 1 - nOldLength);
        CSimpleStringT strOld;
        if (Overlaps(pszSrc))
        {
            // Keeps the text alive while the block is replaced.
            const ptrdiff_t nOffset = pszSrc - m_pszData;
            strOld = *this;
            pszSrc = strOld.m_pszData + nOffset;
        }
        std::memcpy(PrepareWrite(nOldLength + nLength) + nOldLength, pszSrc, ByteCount(nLength));
        SetLength(nOldLength + nLength);
    }
    void Append(const CSimpleStringT& strSrc) { Append(strSrc.m_pszData, strSrc.GetLength()); }
    void AppendChar(XCHAR ch) { Append(&ch, 1); }

    // The length of a terminated text; 0 for NULL.
    static int StringLength(PCXSTR psz) throw()
    {
        return psz == NULL ? 0 : static_cast<int>(std::char_traits<XCHAR>::length(psz));
    }
    static void CopyChars(PXSTR pchDest, PCXSTR pchSrc, int nChars) throw()
    {
        std::memcpy(pchDest, pchSrc, ByteCount(nChars));
    }
    // Copies at most as many characters as nDestLen, the room, allows; throws CInvalidArgException for more.
    static void CopyChars(PXSTR pchDest, size_t nDestLen, PCXSTR pchSrc, int nChars)
    {
        ENSURE_ARG(nChars >= 0 && static_cast<size_t>(nChars) <= nDestLen);
        CopyChars(pchDest, pchSrc, nChars);
    }
    static void CopyCharsOverlapped(PXSTR pchDest, PCXSTR pchSrc, int nChars) throw()
    {
        std::memmove(pchDest, pchSrc, ByteCount(nChars));
    }

private:
    CStringData* GetData() const throw() { return reinterpret_cast<CStringData*>(m_pszData) - 1; }
    static PXSTR NilText() { return static_cast<PXSTR>(CStringData::Nil()->data()); }
    static size_t ByteCount(int nChars) { return static_cast<size_t>(nChars) * sizeof(XCHAR); }

    static int TerminatedLength(PCXSTR psz, int nMaxLength)
    {
        int nLength = 0;
        while (nLength < nMaxLength && psz[nLength] != 0)
            ++nLength;
        return nLength;
    }

    bool Overlaps(PCXSTR psz) const { return psz >= m_pszData && psz <= m_pszData + GetLength(); }

    void SetLength(int nLength)
    {
        ENSURE_ARG(nLength >= 0 && nLength <= GetAllocLength());
        if (GetData() == CStringData::Nil())
            return;
        GetData()->nDataLength = nLength;
        m_pszData[nLength] = 0;
    }

    // One more use of the characters, or a copy of locked ones.
    PXSTR Share() const
    {
        CStringData* pData = GetData();
        if (pData->IsLocked())
            return Duplicate(GetLength(), GetLength());
        pData->AddRef();
        return m_pszData;
    }

    // A block of its own for nAllocLength characters, with the first nKeepLength of this string.
    PXSTR Duplicate(int nAllocLength, int nKeepLength) const
    {
        CStringData* pData = CStringData::Allocate(nAllocLength, sizeof(XCHAR));
        PXSTR pszText = static_cast<PXSTR>(pData->data());
        std::memcpy(pszText, m_pszData, ByteCount(nKeepLength));
        pszText[nKeepLength] = 0;
        pData->nDataLength = nKeepLength;
        return pszText;
    }

    // Takes over one use of the block of `pszText` in place of the present one. The locks stay.
    void Adopt(PXSTR pszText)
    {
        CStringData* pOld = GetData();
        m_pszData = pszText;
        if (pOld->IsLocked())
            GetData()->nRefs = pOld->nRefs;
        pOld->Release();
    }

    PXSTR PrepareWrite(int nLength)
    {
        ENSURE_ARG(nLength >= 0);
        const CStringData* pData = GetData();
        if (pData->IsShared())
            Reallocate(nLength > pData->nDataLength ? nLength : pData->nDataLength, pData->nDataLength);
        else if (pData->nAllocLength < nLength)
            Reallocate(GrownLength(pData->nAllocLength, nLength), pData->nDataLength);
        return m_pszData;
    }

    // Repeated appending costs a constant time per character.
    static int GrownLength(int nOldLength, int nNewLength)
    {
        const int nGrown = nOldLength < INT_MAX / 2 ? nOldLength + nOldLength / 2 : nNewLength;
        return nGrown > nNewLength ? nGrown : nNewLength;
    }

    void Reallocate(int nAllocLength, int nKeepLength) { Adopt(Duplicate(nAllocLength, nKeepLength)); }

    PXSTR m_pszData;
};

typedef CSimpleStringT<TCHAR> CSimpleString;
