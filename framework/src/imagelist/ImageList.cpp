// CImageList: ownership, the handle map, creation and dragging.

#include "afxwin.h"
#include "fx/imagelist.h"
#include "handlemap/HandleMap.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

template <> struct HandleTraits<CImageList>
{
    static CImageList* Wrap(HIMAGELIST handle)
    {
        CImageList* const list = new CImageList;
        list->m_hImageList = handle;
        return list;
    }
    static void Unwrap(CImageList& list) { list.m_hImageList = nullptr; }
};

namespace
{

using ImageLists = HandleMap<HIMAGELIST, CImageList>;

HBITMAP BitmapOf(const CBitmap* bitmap)
{
    return static_cast<HBITMAP>(bitmap->GetSafeHandle());
}

} // namespace

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return ImageLists::OfThisThread().FromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return ImageLists::OfThisThread().FindPermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    ImageLists::OfThisThread().DeleteTemporaries();
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    ASSERT(m_hImageList == nullptr);
    if (hImageList == nullptr)
        return FALSE;
    m_hImageList = hImageList;
    ImageLists::OfThisThread().Attach(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    if (m_hImageList != nullptr)
        ImageLists::OfThisThread().Detach(m_hImageList, this);
    return std::exchange(m_hImageList, nullptr);
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadImage(module, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx,
                        int dy)
{
    return Attach(::ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList)
{
    return Attach(::ImageList_Duplicate(pImageList->GetSafeHandle()));
}

BOOL CImageList::DeleteImageList()
{
    const HIMAGELIST handle = Detach();
    return handle != nullptr && ::ImageList_Destroy(handle);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Add(m_hImageList, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return ::ImageList_AddMasked(m_hImageList, BitmapOf(pbmImage), crMask);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Replace(m_hImageList, nImage, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point)
{
    return ::ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock)
{
    return ::ImageList_DragLeave(pWndLock->GetSafeHwnd());
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot)
{
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}

// The platform writes image lists to streams: the archive holds the size of what it wrote, then the bytes.
BOOL CImageList::Write(CArchive* pArchive)
{
    IStream* stream = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &stream)))
        return FALSE;
    STATSTG status = {};
    HGLOBAL memory = nullptr;
    const BOOL written = ::ImageList_Write(m_hImageList, stream) &&
                         SUCCEEDED(stream->Stat(&status, STATFLAG_NONAME)) &&
                         SUCCEEDED(::GetHGlobalFromStream(stream, &memory));
    if (written)
    {
        *pArchive << status.cbSize.LowPart;
        pArchive->Write(::GlobalLock(memory), status.cbSize.LowPart);
        ::GlobalUnlock(memory);
    }
    stream->Release();
    return written;
}

BOOL CImageList::Read(CArchive* pArchive)
{
    DWORD size = 0;
    *pArchive >> size;
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory == nullptr)
        return FALSE;
    const UINT read = pArchive->Read(::GlobalLock(memory), size);
    ::GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(memory, TRUE, &stream)))
    {
        ::GlobalFree(memory);
        return FALSE;
    }
    const BOOL made = read == size && Attach(::ImageList_Read(stream));
    stream->Release();
    return made;
}
