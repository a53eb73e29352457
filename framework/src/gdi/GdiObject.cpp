// GDI objects: ownership, the handle map, and the creation functions that need more than one call.

#include "afxwin.h"
#include "handlemap/HandleMap.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

template <> struct HandleTraits<CGdiObject>
{
    // The class that fits the handle, because callers cast the result to it.
    static CGdiObject* New(HGDIOBJ handle)
    {
        switch (::GetObjectType(handle))
        {
        case OBJ_PEN:
        case OBJ_EXTPEN:
            return new CPen;
        case OBJ_BRUSH:
            return new CBrush;
        case OBJ_FONT:
            return new CFont;
        case OBJ_BITMAP:
            return new CBitmap;
        case OBJ_PAL:
            return new CPalette;
        case OBJ_REGION:
            return new CRgn;
        default:
            return new CGdiObject;
        }
    }
    static CGdiObject* Wrap(HGDIOBJ handle)
    {
        CGdiObject* const object = New(handle);
        object->m_hObject = handle;
        return object;
    }
    static void Unwrap(CGdiObject& object) { object.m_hObject = nullptr; }
};

namespace
{

using GdiObjects = HandleMap<HGDIOBJ, CGdiObject>;

void RequireResource(BOOL created)
{
    if (!created)
        AfxThrowResourceException();
}

} // namespace

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return GdiObjects::OfThisThread().FromHandle(hObject);
}
void PASCAL CGdiObject::DeleteTempMap()
{
    GdiObjects::OfThisThread().DeleteTemporaries();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    ASSERT(m_hObject == nullptr);
    if (hObject == nullptr)
        return FALSE;
    m_hObject = hObject;
    GdiObjects::OfThisThread().Attach(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    if (m_hObject != nullptr)
        GdiObjects::OfThisThread().Detach(m_hObject, this);
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::DeleteObject()
{
    const HGDIOBJ handle = Detach();
    return handle != nullptr && ::DeleteObject(handle);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    RequireResource(CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    RequireResource(CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle)
{
    return Attach(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                 static_cast<DWORD>(nStyleCount), lpStyle));
}

CBrush::CBrush(COLORREF crColor)
{
    RequireResource(CreateSolidBrush(crColor));
}
CBrush::CBrush(int nIndex, COLORREF crColor)
{
    RequireResource(CreateHatchBrush(nIndex, crColor));
}
CBrush::CBrush(CBitmap* pBitmap)
{
    RequireResource(CreatePatternBrush(pBitmap));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    const HDC dc = pDC != nullptr ? pDC->m_hAttribDC : ::GetDC(nullptr);
    // From tenths of a point to device units, and from these to the logical units fonts are made in.
    POINT height = {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), lpLogFont->lfHeight, 720)};
    POINT origin = {0, 0};
    ::DPtoLP(dc, &height, 1);
    ::DPtoLP(dc, &origin, 1);
    LOGFONT font = *lpLogFont;
    font.lfHeight = -std::abs(height.y - origin.y);
    if (pDC == nullptr)
        ::ReleaseDC(nullptr, dc);
    return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(
        ::CreateMappedBitmap(module, static_cast<INT_PTR>(nIDBitmap), nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits)
{
    return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC)
{
    return Attach(::CreateHalftonePalette(pDC->GetSafeHdc()));
}

int CPalette::GetEntryCount()
{
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const
{
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(*this, static_cast<HRGN>(pRgn1->GetSafeHandle()),
                        static_cast<HRGN>(pRgn2->GetSafeHandle()), nCombineMode);
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return Attach(::PathToRegion(pDC->m_hDC));
}
