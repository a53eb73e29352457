// CDC: the wrapper of a device context, with the drawing functions of GDI.
#pragma once

#include "fx/gdi.h"

class CWnd;

// A device context. Coordinates are logical units unless said otherwise. m_hDC receives the output and
// m_hAttribDC answers the queries; they are the same except while a program sets them apart. The destructor
// deletes the device context that was created or attached. SelectObject returns the object that was selected
// before: it may be a temporary wrapper, so it is good until the message loop is idle. Functions without a
// comment are the GDI functions of the same name.
class QFX_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)
public:
    CDC() : m_hDC(NULL), m_hAttribDC(NULL) {}
    virtual ~CDC();

    // The object of the handle in this thread: the attached one, or a temporary one that lives until the
    // message loop is idle. NULL for a NULL handle.
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();

    // Takes ownership of the device context, for output and queries. FALSE for NULL.
    BOOL Attach(HDC hDC);
    // Gives the output device context to the caller; the object becomes empty.
    HDC Detach();
    // The output device context; NULL when empty or when called on a null pointer.
    HDC GetSafeHdc() const { return this == NULL ? NULL : m_hDC; }
    operator HDC() const { return m_hDC; }
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC() { m_hAttribDC = NULL; }
    virtual void ReleaseOutputDC();
    // The window the device context belongs to, or NULL.
    CWnd* GetWindow() const;
    BOOL IsPrinting() const { return FALSE; }

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    // A memory device context like pDC, or like the screen when that is NULL.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    // SaveDC returns the number to restore by; RestoreDC(-1) restores the latest.
    virtual int SaveDC() { return ::SaveDC(m_hAttribDC); }
    virtual BOOL RestoreDC(int nSavedDC) { return ::RestoreDC(m_hAttribDC, nSavedDC); }
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    // Objects that are selected now.
    CPen* GetCurrentPen() const { return CPen::FromHandle(static_cast<HPEN>(Current(OBJ_PEN))); }
    CBrush* GetCurrentBrush() const { return CBrush::FromHandle(static_cast<HBRUSH>(Current(OBJ_BRUSH))); }
    CPalette* GetCurrentPalette() const
    {
        return CPalette::FromHandle(static_cast<HPALETTE>(Current(OBJ_PAL)));
    }
    CFont* GetCurrentFont() const { return CFont::FromHandle(static_cast<HFONT>(Current(OBJ_FONT))); }
    CBitmap* GetCurrentBitmap() const
    {
        return CBitmap::FromHandle(static_cast<HBITMAP>(Current(OBJ_BITMAP)));
    }

    // Select an object and return the one it replaces. Selecting a region copies it as the clip region and
    // returns its complexity. A stock object is given by its index (WHITE_BRUSH ...).
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen) { return static_cast<CPen*>(Select(pPen)); }
    CBrush* SelectObject(CBrush* pBrush) { return static_cast<CBrush*>(Select(pBrush)); }
    virtual CFont* SelectObject(CFont* pFont) { return static_cast<CFont*>(Select(pFont)); }
    CBitmap* SelectObject(CBitmap* pBitmap) { return static_cast<CBitmap*>(Select(pBitmap)); }
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject) { return Select(pObject); }
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }

    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }

    // Colours and modes. Setters return the previous value.
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF crColor);
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int nBkMode);
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetPolyFillMode(int nPolyFillMode);
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int nDrawMode);
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetStretchBltMode(int nStretchMode);
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD dwLayout) { return ::SetLayout(m_hDC, dwLayout); }

    // The mapping of logical units to device units. Setters return the previous value.
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);

    // Conversion between device and logical units, in place.
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { DPtoLP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { LPtoDP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;

    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush) { return ::FillRgn(m_hDC, *pRgn, *pBrush); }
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
    {
        return ::FrameRgn(m_hDC, *pRgn, *pBrush, nWidth, nHeight);
    }
    BOOL InvertRgn(CRgn* pRgn) { return ::InvertRgn(m_hDC, *pRgn); }
    BOOL PaintRgn(CRgn* pRgn) { return ::PaintRgn(m_hDC, *pRgn); }

    // Clipping. Results are NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR; regions are in device units.
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hAttribDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hAttribDC, lpRect); }
    // NULL takes the clip region away.
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect)
    {
        return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect)
    {
        return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }

    // Lines. MoveTo returns the previous position.
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(LPPOINT lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
    {
        return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyBezier(const POINT* lpPoints, int nCount)
    {
        return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
    {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }

    // Filled shapes, and rectangles drawn with a brush of their own.
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
    {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    // Frames with one-pixel lines: clrTopLeft left and above, clrBottomRight right and below. Leave BkColor
    // changed.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    // Fill with a colour. They set it as BkColor and leave it so.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    // The pattern of every second pixel that a dragged outline is drawn with; owned by the framework.
    static CBrush* PASCAL GetHalftoneBrush();
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect)
    {
        return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
    {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT lpRect, POINT point)
    {
        return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect) { return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
    {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Polygon(LPPOINT lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }

    // Bits. Source coordinates are in the source's logical units.
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
    {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
    {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop)
    {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                            nSrcHeight, dwRop);
    }
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hAttribDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
    {
        return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
    }
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);

    // Text. A count of characters goes with a pointer; -1 in DrawText means a terminated text.
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount)
    {
        return ::TextOut(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths)
    {
        return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
    {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
    }
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
    {
        return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    // A text that DT_MODIFYSTRING may change is copied, so the CString stays as it is.
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams)
    {
        return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
    }
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const { return GetOutputTextExtent(str, str.GetLength()); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags);
    int GetTextFace(int nCount, LPTSTR lpszFacename) const
    {
        return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
    }
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hAttribDC, lpMetrics); }
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextCharacterExtra(int nCharExtra);
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
    {
        return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }

#include "fx/dc_graphics.h"

    // The device context for output, and the one for queries.
    HDC m_hDC;
    HDC m_hAttribDC;

private:
    CGdiObject* Select(CGdiObject* pObject);
    HGDIOBJ Current(UINT nType) const
    {
        return ::GetCurrentObject(m_hAttribDC, nType);
    }
};

#include "fx/dc_derived.h"
