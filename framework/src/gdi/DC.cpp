// CDC: ownership, the handle map, selection of objects, and the halftone brush.

#include "afxwin.h"
#include "handlemap/HandleMap.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

template <> struct HandleTraits<CDC>
{
    static CDC* Wrap(HDC handle)
    {
        CDC* const dc = new CDC;
        dc->m_hDC = dc->m_hAttribDC = handle;
        return dc;
    }
    static void Unwrap(CDC& dc) { dc.m_hDC = dc.m_hAttribDC = nullptr; }
};

namespace
{

using DeviceContexts = HandleMap<HDC, CDC>;

// Every second pixel, the pattern that dragged outlines are drawn with.
HBRUSH NewHalftoneBrush()
{
    WORD rows[8];
    for (int i = 0; i < 8; ++i)
        rows[i] = static_cast<WORD>(0x5555 << (i & 1));
    const HBITMAP pattern = ::CreateBitmap(8, 8, 1, 1, rows);
    const HBRUSH brush = ::CreatePatternBrush(pattern);
    ::DeleteObject(pattern);
    return brush;
}

} // namespace

CDC::~CDC()
{
    DeleteDC();
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return DeviceContexts::OfThisThread().FromHandle(hDC);
}
void PASCAL CDC::DeleteTempMap()
{
    DeviceContexts::OfThisThread().DeleteTemporaries();
}

BOOL CDC::Attach(HDC hDC)
{
    ASSERT(m_hDC == nullptr);
    if (hDC == nullptr)
        return FALSE;
    m_hDC = hDC;
    DeviceContexts::OfThisThread().Attach(hDC, this);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    if (m_hDC != nullptr)
        DeviceContexts::OfThisThread().Detach(m_hDC, this);
    ReleaseAttribDC();
    return std::exchange(m_hDC, nullptr);
}

void CDC::SetOutputDC(HDC hDC)
{
    ReleaseOutputDC();
    m_hDC = hDC;
    if (hDC != nullptr)
        DeviceContexts::OfThisThread().Attach(hDC, this);
}

void CDC::ReleaseOutputDC()
{
    if (m_hDC != nullptr)
        DeviceContexts::OfThisThread().Detach(m_hDC, this);
    m_hDC = nullptr;
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return Attach(
        ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return Attach(
        ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::DeleteDC()
{
    const HDC handle = Detach();
    return handle != nullptr && ::DeleteDC(handle);
}

CGdiObject* CDC::Select(CGdiObject* pObject)
{
    const HGDIOBJ handle = pObject->GetSafeHandle();
    HGDIOBJ previous = nullptr;
    if (m_hDC != m_hAttribDC && m_hDC != nullptr)
        previous = ::SelectObject(m_hDC, handle);
    if (m_hAttribDC != nullptr)
        previous = ::SelectObject(m_hAttribDC, handle);
    return CGdiObject::FromHandle(previous);
}

int CDC::SelectObject(CRgn* pRgn)
{
    return SelectClipRgn(pRgn);
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    const HGDIOBJ handle = ::GetStockObject(nIndex);
    HGDIOBJ previous = nullptr;
    if (m_hDC != m_hAttribDC && m_hDC != nullptr)
        previous = ::SelectObject(m_hDC, handle);
    if (m_hAttribDC != nullptr)
        previous = ::SelectObject(m_hAttribDC, handle);
    return CGdiObject::FromHandle(previous);
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(pPalette->GetSafeHandle()), bForceBackground));
}

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    // One for the process; GDI frees it with the process.
    static const HBRUSH brush = NewHalftoneBrush();
    return CBrush::FromHandle(brush);
}
