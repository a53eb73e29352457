// CTreeCtrl::CreateDragImage: the picture of an item that is dragged.
#include "controls/CommonControls.h"

#include <algorithm>

namespace
{

CSize IconSize(HIMAGELIST images)
{
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(images, &width, &height);
    return CSize(width, height);
}

CSize MeasureText(CDC& context, const CString& text)
{
    CRect area;
    context.DrawText(text, area, DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    return area.Size();
}

// An image list of one image: the item's icon and text on a transparent background.
HIMAGELIST DrawItemImage(CTreeCtrl& tree, HTREEITEM item, HIMAGELIST images)
{
    const COLORREF background = ::GetSysColor(COLOR_WINDOW);
    const CString text = tree.GetItemText(item);
    int image = 0;
    int selectedImage = 0;
    tree.GetItemImage(item, image, selectedImage);

    CClientDC screen(&tree);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CFont* const previousFont = memory.SelectObject(tree.GetFont());
    const CSize icon = IconSize(images);
    const CSize textSize = MeasureText(memory, text);
    const CSize size(icon.cx + textSize.cx, (std::max)(icon.cy, textSize.cy));
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, size.cx, size.cy);
    CBitmap* const previousBitmap = memory.SelectObject(&bitmap);
    memory.FillSolidRect(CRect(CPoint(0, 0), size), background);
    ::ImageList_Draw(images, image, memory, 0, 0, ILD_NORMAL);
    memory.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    memory.DrawText(text, CRect(icon.cx, 0, size.cx, size.cy), DT_SINGLELINE | DT_NOPREFIX | DT_VCENTER);
    memory.SelectObject(previousBitmap);
    memory.SelectObject(previousFont);

    const HIMAGELIST list = ::ImageList_Create(size.cx, size.cy, ILC_COLOR24 | ILC_MASK, 1, 0);
    ::ImageList_AddMasked(list, bitmap, background);
    return list;
}

} // namespace

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    HIMAGELIST handle = quorfx::Send<HIMAGELIST>(m_hWnd, TVM_CREATEDRAGIMAGE, 0, hItem);
    if (handle == nullptr)
        return nullptr;
    // Some versions of Wine answer with a list that has no image, since their bitmap is narrower than the
    // list.
    if (::ImageList_GetImageCount(handle) == 0)
    {
        ::ImageList_Destroy(handle);
        handle =
            DrawItemImage(*this, hItem, quorfx::Send<HIMAGELIST>(m_hWnd, TVM_GETIMAGELIST, TVSIL_NORMAL));
    }
    CImageList* const list = new CImageList;
    list->Attach(handle);
    return list;
}
