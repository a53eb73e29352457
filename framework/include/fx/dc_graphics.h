// Members of CDC: curves, paths, transformations, glyphs, metafiles, printing. There is no guard: fx/dc.h
// includes it inside the class. Functions without a comment are the GDI functions of the same name.

// ---- Curves and lines.
BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}
BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}
BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                 ptEnd.y);
}
BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                 ptEnd.y);
}
BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
}
int GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}
int SetArcDirection(int nArcDirection)
{
    return ::SetArcDirection(m_hDC, nArcDirection);
}
BOOL PolylineTo(const POINT* lpPoints, int nCount)
{
    return ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}
BOOL PolyBezierTo(const POINT* lpPoints, int nCount)
{
    return ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}
BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
}
BOOL PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}
BOOL FloodFill(int x, int y, COLORREF crColor)
{
    return ::FloodFill(m_hDC, x, y, crColor);
}
// The outline of a dragged rectangle as an area of two thicknesses; the one that was drawn last is taken
// back. NULL brushes stand for the halftone.
void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush = NULL,
                  CBrush* pBrushLast = NULL);
COLORREF GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}
COLORREF SetDCBrushColor(COLORREF crColor)
{
    return ::SetDCBrushColor(m_hDC, crColor);
}
COLORREF GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}
COLORREF SetDCPenColor(COLORREF crColor)
{
    return ::SetDCPenColor(m_hDC, crColor);
}

// ---- Paths.
BOOL BeginPath()
{
    return ::BeginPath(m_hDC);
}
BOOL EndPath()
{
    return ::EndPath(m_hDC);
}
BOOL AbortPath()
{
    return ::AbortPath(m_hDC);
}
BOOL CloseFigure()
{
    return ::CloseFigure(m_hDC);
}
BOOL FillPath()
{
    return ::FillPath(m_hDC);
}
BOOL StrokePath()
{
    return ::StrokePath(m_hDC);
}
BOOL StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}
BOOL FlattenPath()
{
    return ::FlattenPath(m_hDC);
}
BOOL WidenPath()
{
    return ::WidenPath(m_hDC);
}
BOOL SelectClipPath(int nMode)
{
    return ::SelectClipPath(m_hDC, nMode);
}
int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}
float GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hAttribDC, &limit);
    return limit;
}
BOOL SetMiterLimit(float fMiterLimit)
{
    return ::SetMiterLimit(m_hDC, fMiterLimit, NULL);
}

// ---- Transformations and bounds. SetWorldTransform needs the graphics mode GM_ADVANCED.
int GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hDC);
}
int SetGraphicsMode(int iMode)
{
    return ::SetGraphicsMode(m_hDC, iMode);
}
BOOL GetWorldTransform(XFORM& rXform) const
{
    return ::GetWorldTransform(m_hDC, &rXform);
}
BOOL SetWorldTransform(const XFORM& rXform)
{
    return ::SetWorldTransform(m_hDC, &rXform);
}
BOOL ModifyWorldTransform(const XFORM& rXform, DWORD iMode)
{
    return ::ModifyWorldTransform(m_hDC, &rXform, iMode);
}
UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags);
}
UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}
// Between the units here and hundredths of a millimetre, in place.
void DPtoHIMETRIC(LPSIZE lpSize) const;
void HIMETRICtoDP(LPSIZE lpSize) const;
void LPtoHIMETRIC(LPSIZE lpSize) const;
void HIMETRICtoLP(LPSIZE lpSize) const;

// ---- Bits and colours.
BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
             int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, maskBitmap, xMask, yMask,
                     dwRop);
}
BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap& maskBitmap,
            int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, lpPoint, pSrcDC->GetSafeHdc(), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask,
                    yMask);
}
BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}
BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return ::SetColorAdjustment(m_hDC, lpColorAdjust);
}
void UpdateColors()
{
    ::UpdateColors(m_hDC);
}
int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

// ---- Text. The functions with Output in their name ask the output device context.
CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions,
                    int nTabOrigin)
{
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}
CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return CSize(static_cast<DWORD>(
        ::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions)));
}
CSize GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}
CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions) const
{
    return CSize(static_cast<DWORD>(
        ::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions)));
}
CSize GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetOutputTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}
virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                        int nCount, int x, int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, static_cast<HBRUSH>(pBrush->GetSafeHandle()), lpfnOutput, lpData, nCount, x, y,
                        nWidth, nHeight);
}
int SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return ::SetTextJustification(m_hDC, nBreakExtra, nBreakCount);
}
DWORD SetMapperFlags(DWORD dwFlag)
{
    return ::SetMapperFlags(m_hDC, dwFlag);
}
CSize GetAspectRatioFilter() const
{
    CSize size;
    ::GetAspectRatioFilterEx(m_hAttribDC, &size);
    return size;
}
BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hDC, lpMetrics);
}
BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
}
UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const
{
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}
BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const
{
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}
BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const
{
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}
BOOL GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, giFirst, cgi, pgi, lpabc);
}
BOOL GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const
{
    return ::GetCharWidthI(m_hAttribDC, giFirst, cgi, pgi, lpBuffer);
}
BOOL GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hAttribDC, pgiIn, cgi, lpSize);
}
BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                           LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}
DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const
{
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}
DWORD GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hDC);
}
DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                      const MAT2* lpmat2) const
{
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}
int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const
{
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
}
DWORD GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                            DWORD dwFlags) const
{
    return ::GetCharacterPlacement(m_hDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}
DWORD GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const
{
    return GetCharacterPlacement(str, str.GetLength(), nMaxExtent, lpResults, dwFlags);
}

// ---- Metafiles.
BOOL PlayMetaFile(HMETAFILE hMF)
{
    return ::PlayMetaFile(m_hDC, hMF);
}
BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}
BOOL AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}

// ---- Printing. The document functions return a value above 0, or SP_ERROR.
int StartDoc(LPDOCINFO lpDocInfo)
{
    return ::StartDoc(m_hDC, lpDocInfo);
}
int StartDoc(LPCTSTR lpszDocName);
int StartPage()
{
    return ::StartPage(m_hDC);
}
int EndPage()
{
    return ::EndPage(m_hDC);
}
int EndDoc()
{
    return ::EndDoc(m_hDC);
}
int AbortDoc()
{
    return ::AbortDoc(m_hDC);
}
int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int))
{
    return ::SetAbortProc(m_hDC, lpfn);
}
BOOL ResetDC(const DEVMODE* lpDevMode)
{
    return ::ResetDC(m_hAttribDC, lpDevMode) != NULL;
}
virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}
int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}
int DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}
