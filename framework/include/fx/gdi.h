// The wrappers of GDI objects: pens, brushes, fonts, bitmaps, palettes and regions.
#pragma once

#include "afx.h"
#include "atltypes.h"

class CDC;
class CBitmap;

// A GDI object. The destructor deletes the object that was created or attached; stock objects stay, and so
// does what a temporary wrapper from FromHandle stands for. A failed creation returns FALSE and leaves the
// wrapper empty.
class QFX_API CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject() : m_hObject(NULL) {}
    virtual ~CGdiObject();

    // The handle; NULL when empty or when called on a null pointer.
    HGDIOBJ GetSafeHandle() const { return this == NULL ? NULL : m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }

    // The object of the handle in this thread: the attached one, or a temporary one that lives until the
    // message loop is idle. NULL for a NULL handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();

    // Takes ownership of the handle. FALSE for NULL.
    BOOL Attach(HGDIOBJ hObject);
    // Gives the handle to the caller.
    HGDIOBJ Detach();
    // Deletes the GDI object and empties the wrapper.
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }
    // OBJ_PEN, OBJ_BRUSH ...
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    BOOL operator==(const CGdiObject& obj) const { return m_hObject == obj.m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return m_hObject != obj.m_hObject; }

    HGDIOBJ m_hObject;
};

// A pen. The constructors throw CResourceException when the pen cannot be made.
class QFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen() {}
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = NULL);

    static CPen* PASCAL FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }

    // nWidth in logical units; 0 is one pixel.
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = NULL);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

// A brush. The constructors throw CResourceException when the brush cannot be made.
class QFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() {}
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    static CBrush* PASCAL FromHandle(HBRUSH hBrush)
    {
        return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
    }
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }

    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    // nIndex: HS_HORIZONTAL ...
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor)
    {
        return Attach(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    // The bitmap stays the caller's and must outlive the brush.
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    // nIndex: COLOR_WINDOW ...; the brush belongs to the system.
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

// A font.
class QFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont() {}

    static CFont* PASCAL FromHandle(HFONT hFont)
    {
        return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
    }
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return Attach(::CreateFontIndirect(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
    {
        return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                   cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                   nPitchAndFamily, lpszFacename));
    }
    // A font of a size in tenths of a point (lfHeight of the indirect form), for pDC or else the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = NULL);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = NULL);
    int GetLogFont(LOGFONT* pLogFont) { return GetObject(sizeof(LOGFONT), pLogFont); }
};

// A bitmap. Resources are found through the module chain.
class QFX_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() {}

    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap)
    {
        return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
    }
    operator HBITMAP() const { return static_cast<HBITMAP>(GetSafeHandle()); }

    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    // nIdBitmap: OBM_CLOSE ...
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return Attach(::LoadBitmap(NULL, MAKEINTRESOURCE(nIDBitmap))); }
    // A bitmap resource whose colours in the table, or the standard button colours, become the system's
    // colours.
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = NULL, int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
    {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return Attach(::CreateBitmapIndirect(lpBitmap)); }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
};

// A palette.
class QFX_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette() {}

    static CPalette* PASCAL FromHandle(HPALETTE hPalette)
    {
        return static_cast<CPalette*>(CGdiObject::FromHandle(hPalette));
    }
    operator HPALETTE() const { return static_cast<HPALETTE>(GetSafeHandle()); }

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette) { return Attach(::CreatePalette(lpLogPalette)); }
    BOOL CreateHalftonePalette(CDC* pDC);
    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
    {
        return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
    {
        ::AnimatePalette(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT GetNearestPaletteIndex(COLORREF crColor) const { return ::GetNearestPaletteIndex(*this, crColor); }
    BOOL ResizePalette(UINT nNumEntries) { return ::ResizePalette(*this, nNumEntries); }
};

// A region, in device or logical units as the using function says.
class QFX_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() {}

    static CRgn* PASCAL FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }
    operator HRGN() const { return static_cast<HRGN>(GetSafeHandle()); }

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2)
    {
        return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return Attach(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode)
    {
        return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode)
    {
        return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
    }
    // From the closed path of the context.
    BOOL CreateFromPath(CDC* pDC);
    // From what GetRegionData stored, transformed when lpXForm is given.
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
    {
        return Attach(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
    }
    // The size needed when lpRgnData is NULL.
    int GetRegionData(LPRGNDATA lpRgnData, int nCount) const
    {
        return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nCount), lpRgnData));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
    {
        return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }

    // Become the combination of one or two regions; the result is NULLREGION, SIMPLEREGION, COMPLEXREGION or
    // ERROR. A region must exist before; pRgn2 may be NULL for RGN_COPY.
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int CopyRgn(CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, NULL, RGN_COPY); }
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect) { SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL EqualRgn(CRgn* pRgn) const { return ::EqualRgn(*this, *pRgn); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
};
