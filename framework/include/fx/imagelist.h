// CImageList: the wrapper of an image list, with the functions for dragging an image.
#pragma once

#include "afx.h"
#include "atltypes.h"
#include "fx/dc.h"

class CWnd;

// An image list. The destructor destroys the list that was created or attached; temporary wrappers leave
// theirs alone. Images are given by a zero-based index. Sizes are pixels. Functions without a comment are the
// ImageList_ functions.
class QFX_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)
public:
    CImageList() : m_hImageList(NULL) {}
    virtual ~CImageList() { DeleteImageList(); }

    // The object of the handle in this thread: the attached one, or a temporary one that lives until the
    // message loop is idle. NULL for a NULL handle.
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();

    // Takes ownership of the handle. FALSE for NULL.
    BOOL Attach(HIMAGELIST hImageList);
    // Gives the handle to the caller.
    HIMAGELIST Detach();
    // The handle; NULL when empty or when called on a null pointer.
    HIMAGELIST GetSafeHandle() const { return this == NULL ? NULL : m_hImageList; }
    operator HIMAGELIST() const { return m_hImageList; }

    // cx, cy: the size of an image; nInitial: how many to make room for; nGrow: by how many the list grows.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // From a bitmap resource of images beside each other, each cx wide; crMask becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    // An image of one list on top of an image of another.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    // A copy of a list.
    BOOL Create(CImageList* pImageList);
    BOOL DeleteImageList();

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT uNewCount) { return ::ImageList_SetImageCount(m_hImageList, uNewCount); }
    // Both return the index of the first new image, or -1. The bitmaps and icons stay the caller's.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ImageList_AddIcon(m_hImageList, hIcon); }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE)
    {
        return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
    }
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE)
    {
        return ::ImageList_Copy(m_hImageList, iDst, pSrc->GetSafeHandle(), iSrc, uFlags);
    }
    // Writes or reads the pictures; FALSE on failure.
    BOOL Read(CArchive* pArchive);
    BOOL Write(CArchive* pArchive);
    // The caller destroys the icon.
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
    {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    BOOL SetOverlayImage(int nImage, int nOverlay)
    {
        return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
    }

    // nStyle: ILD_NORMAL ...; pt and the sizes in logical units of pDC.
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
    {
        return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
    }
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle)
    {
        return ::ImageList_DrawEx(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, sz.cx, sz.cy, clrBk,
                                  clrFg, nStyle);
    }
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp)
    {
        pimldp->himl = m_hImageList;
        return ::ImageList_DrawIndirect(pimldp);
    }

    // Dragging: one image at a time in the whole program. BeginDrag starts with an image and its hot spot;
    // DragEnter shows it, at a position relative to the window's top left corner (the screen's when pWndLock
    // is NULL), and locks that window's painting; DragLeave hides it and unlocks; EndDrag ends.
    // DragShowNolock shows or hides the image while the window stays locked.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot)
    {
        return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    // Combines an image of this list, a cursor for example, with the dragged one.
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot)
    {
        return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
    }
    // The list that is used for the drag image, temporary, and where it and its hot spot are.
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);

    HIMAGELIST m_hImageList;
};
