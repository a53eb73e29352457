// The wrapper of the tree, against the platform's control.
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{

using namespace quor::test;

// Makes a list with that many images of 16 x 16 pixels.
void FillImages(CImageList& images, int count)
{
    images.Create(16, 16, ILC_COLOR24 | ILC_MASK, count, 1);
    for (int i = 0; i < count; ++i)
        images.Add(::LoadIcon(NULL, IDI_APPLICATION));
}

class TreeWrapper : public testing::Test
{
protected:
    TreeWrapper()
    {
        FillImages(m_images, 3);
        m_tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT |
                          TVS_EDITLABELS | TVS_SHOWSELALWAYS,
                      CRect(0, 0, 200, 150), &m_host, 5);
        m_root = m_tree.InsertItem(L"root");
        m_second = m_tree.InsertItem(L"b", m_root);
        m_first = m_tree.InsertItem(L"a", m_root, TVI_FIRST);
        m_third = m_tree.InsertItem(L"c", 1, 2, m_root, m_second);
    }

    // The children of an item, by their texts.
    std::wstring Children(HTREEITEM parent)
    {
        std::wstring all;
        for (HTREEITEM item = m_tree.GetChildItem(parent); item != NULL;
             item = m_tree.GetNextSiblingItem(item))
            all += m_tree.GetItemText(item).GetString();
        return all;
    }

    HostWindow m_host;
    CImageList m_images;
    CTreeCtrl m_tree;
    HTREEITEM m_root, m_first, m_second, m_third;
};

TEST_F(TreeWrapper, InsertItem_PlacesItemsAmongTheirSiblings)
{
    EXPECT_EQ(Children(m_root), L"abc");
    EXPECT_EQ(m_tree.GetCount(), 4u);
    EXPECT_EQ(m_tree.GetRootItem(), m_root);
    EXPECT_EQ(m_tree.GetParentItem(m_second), m_root);
    EXPECT_EQ(m_tree.GetParentItem(m_root), nullptr);
    EXPECT_EQ(m_tree.GetPrevSiblingItem(m_second), m_first);
    EXPECT_EQ(m_tree.GetNextItem(m_second, TVGN_NEXT), m_third);
    EXPECT_TRUE(m_tree.ItemHasChildren(m_root));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_first));
}

TEST_F(TreeWrapper, InsertItem_ByStructureAndByMask)
{
    TVINSERTSTRUCT insertion = {};
    insertion.hParent = m_root;
    insertion.hInsertAfter = m_first;
    insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
    insertion.item.pszText = const_cast<LPWSTR>(L"s");
    insertion.item.lParam = 55;
    const HTREEITEM byStructure = m_tree.InsertItem(&insertion);
    EXPECT_EQ(m_tree.GetItemData(byStructure), 55u);
    const HTREEITEM byMask = m_tree.InsertItem(TVIF_TEXT | TVIF_PARAM | TVIF_STATE, L"m", 0, 0, TVIS_BOLD,
                                               TVIS_BOLD, 66, m_root, TVI_LAST);
    EXPECT_EQ(m_tree.GetItemData(byMask), 66u);
    EXPECT_EQ(m_tree.GetItemState(byMask, TVIS_BOLD), static_cast<UINT>(TVIS_BOLD));
    EXPECT_EQ(Children(m_root), L"asbcm");
}

TEST_F(TreeWrapper, ItemText_OfAnyLength)
{
    const CString longText(L'x', 1000);
    EXPECT_TRUE(m_tree.SetItemText(m_first, longText));
    EXPECT_EQ(m_tree.GetItemText(m_first), longText);
    EXPECT_TRUE(m_tree.SetItemText(m_first, L""));
    EXPECT_TRUE(m_tree.GetItemText(m_first).IsEmpty());
}

TEST_F(TreeWrapper, ItemImages)
{
    int image = -1, selected = -1;
    EXPECT_TRUE(m_tree.GetItemImage(m_third, image, selected));
    EXPECT_EQ(image, 1);
    EXPECT_EQ(selected, 2);
    EXPECT_TRUE(m_tree.SetItemImage(m_third, 2, 0));
    m_tree.GetItemImage(m_third, image, selected);
    EXPECT_EQ(image, 2);
    EXPECT_EQ(selected, 0);
}

TEST_F(TreeWrapper, ItemStateAndData)
{
    EXPECT_TRUE(m_tree.SetItemState(m_first, TVIS_CUT | TVIS_BOLD, TVIS_CUT | TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(m_first, TVIS_CUT), static_cast<UINT>(TVIS_CUT));
    EXPECT_TRUE(m_tree.SetItemState(m_first, 0, TVIS_CUT));
    EXPECT_EQ(m_tree.GetItemState(m_first, TVIS_CUT | TVIS_BOLD), static_cast<UINT>(TVIS_BOLD));
    EXPECT_TRUE(m_tree.SetItemData(m_first, 0x1234567890));
    EXPECT_EQ(m_tree.GetItemData(m_first), 0x1234567890u);
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = m_first;
    EXPECT_TRUE(m_tree.GetItem(&item));
    EXPECT_EQ(item.lParam, 0x1234567890);
    item.lParam = 7;
    EXPECT_TRUE(m_tree.SetItem(&item));
    EXPECT_EQ(m_tree.GetItemData(m_first), 7u);
    EXPECT_TRUE(m_tree.SetItem(m_first, TVIF_TEXT | TVIF_PARAM, L"z", 0, 0, 0, 0, 8));
    EXPECT_EQ(m_tree.GetItemData(m_first), 8u);
    EXPECT_STREQ(m_tree.GetItemText(m_first), L"z");
}

TEST_F(TreeWrapper, CheckBoxes)
{
    m_tree.ModifyStyle(0, TVS_CHECKBOXES);
    EXPECT_TRUE(m_tree.SetCheck(m_first));
    EXPECT_TRUE(m_tree.GetCheck(m_first));
    m_tree.SetCheck(m_first, FALSE);
    EXPECT_FALSE(m_tree.GetCheck(m_first));
    // The tree makes the images of the boxes and leaves them to the program.
    CImageList* boxes = m_tree.SetImageList(NULL, TVSIL_STATE);
    ASSERT_NE(boxes, nullptr);
    EXPECT_TRUE(boxes->DeleteImageList());
}

TEST_F(TreeWrapper, SelectionTellsTheParent)
{
    m_host.TakeLog();
    EXPECT_TRUE(m_tree.SelectItem(m_second));
    EXPECT_EQ(m_tree.GetSelectedItem(), m_second);
    const auto log = m_host.TakeLog();
    const std::string changed = "notify 5 code " + std::to_string(static_cast<int>(TVN_SELCHANGED));
    EXPECT_NE(std::find(log.begin(), log.end(), changed), log.end());
    m_tree.SelectItem(NULL);
    EXPECT_EQ(m_tree.GetSelectedItem(), nullptr);
}

TEST_F(TreeWrapper, DropTargetAndInsertMark)
{
    m_tree.SelectDropTarget(m_third);
    EXPECT_EQ(m_tree.GetDropHilightItem(), m_third);
    EXPECT_EQ(m_tree.GetItemState(m_third, TVIS_DROPHILITED), static_cast<UINT>(TVIS_DROPHILITED));
    m_tree.SelectDropTarget(m_first);
    EXPECT_EQ(m_tree.GetDropHilightItem(), m_first);
    EXPECT_EQ(m_tree.GetItemState(m_third, TVIS_DROPHILITED), 0u);
    EXPECT_TRUE(m_tree.SetInsertMark(m_first, FALSE));
    m_tree.SetInsertMarkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tree.GetInsertMarkColor(), RGB(1, 2, 3));
}

TEST_F(TreeWrapper, ExpandAndVisibility)
{
    EXPECT_FALSE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_EQ(m_tree.GetNextVisibleItem(m_root), nullptr);
    EXPECT_TRUE(m_tree.Expand(m_root, TVE_EXPAND));
    EXPECT_EQ(m_tree.GetNextVisibleItem(m_root), m_first);
    EXPECT_EQ(m_tree.GetPrevVisibleItem(m_first), m_root);
    EXPECT_EQ(m_tree.GetLastVisibleItem(), m_third);
    for (int i = 0; i < 40; ++i)
        m_tree.InsertItem(L"more", m_root);
    const HTREEITEM last = m_tree.InsertItem(L"last", m_root);
    m_tree.EnsureVisible(last);
    EXPECT_NE(m_tree.GetFirstVisibleItem(), m_root);
    m_tree.SelectSetFirstVisible(m_second);
    EXPECT_EQ(m_tree.GetFirstVisibleItem(), m_second);
    EXPECT_GT(m_tree.GetVisibleCount(), 3u);
}

TEST_F(TreeWrapper, EnsureVisible_ExpandsTheParents)
{
    const HTREEITEM grandchild = m_tree.InsertItem(L"deep", m_second);
    m_tree.EnsureVisible(grandchild);
    EXPECT_TRUE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_TRUE(m_tree.GetItemState(m_second, TVIS_EXPANDED));
}

TEST_F(TreeWrapper, RectanglesAndHitTest)
{
    m_tree.Expand(m_root, TVE_EXPAND);
    CRect whole, text;
    ASSERT_TRUE(m_tree.GetItemRect(m_second, &whole, FALSE));
    ASSERT_TRUE(m_tree.GetItemRect(m_second, &text, TRUE));
    EXPECT_EQ(whole.left, 0);
    EXPECT_GT(text.left, whole.left);
    EXPECT_NEAR(whole.Height(), m_tree.GetItemHeight(), 1);
    UINT flags = 0;
    EXPECT_EQ(m_tree.HitTest(text.CenterPoint(), &flags), m_second);
    EXPECT_EQ(flags, static_cast<UINT>(TVHT_ONITEMLABEL));
    EXPECT_EQ(m_tree.HitTest(CPoint(5, 140)), nullptr);
    TVHITTESTINFO info = {};
    info.pt = text.CenterPoint();
    EXPECT_EQ(m_tree.HitTest(&info), m_second);
    EXPECT_EQ(info.hItem, m_second);
    m_tree.Expand(m_root, TVE_COLLAPSE);
    EXPECT_FALSE(m_tree.GetItemRect(m_second, &whole, FALSE));
}

TEST_F(TreeWrapper, DeleteItem_TakesTheWholeBranch)
{
    m_tree.InsertItem(L"deep", m_second);
    EXPECT_TRUE(m_tree.DeleteItem(m_second));
    EXPECT_EQ(Children(m_root), L"ac");
    EXPECT_EQ(m_tree.GetCount(), 3u);
    EXPECT_TRUE(m_tree.DeleteAllItems());
    EXPECT_EQ(m_tree.GetCount(), 0u);
    EXPECT_EQ(m_tree.GetRootItem(), nullptr);
}

int CALLBACK ByDataDescending(LPARAM left, LPARAM right, LPARAM factor)
{
    return static_cast<int>((right - left) * factor);
}

TEST_F(TreeWrapper, Sorting)
{
    m_tree.InsertItem(L"aa", m_root, TVI_LAST);
    EXPECT_TRUE(m_tree.SortChildren(m_root));
    EXPECT_EQ(Children(m_root), L"aaabc");
    EXPECT_STREQ(m_tree.GetItemText(m_tree.GetChildItem(m_root)), L"a");
    LPARAM data = 0;
    for (HTREEITEM item = m_tree.GetChildItem(m_root); item != NULL; item = m_tree.GetNextSiblingItem(item))
        m_tree.SetItemData(item, static_cast<DWORD_PTR>(++data));
    TVSORTCB sort = {m_root, ByDataDescending, 1};
    EXPECT_TRUE(m_tree.SortChildrenCB(&sort));
    EXPECT_EQ(Children(m_root), L"cbaaa");
}

TEST_F(TreeWrapper, ImageListsAndDragImage)
{
    EXPECT_EQ(m_tree.GetImageList(TVSIL_NORMAL), nullptr);
    EXPECT_EQ(m_tree.SetImageList(&m_images, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(m_tree.GetImageList(TVSIL_NORMAL), &m_images);
    std::unique_ptr<CImageList> drag(m_tree.CreateDragImage(m_root));
    ASSERT_NE(drag, nullptr);
    EXPECT_NE(drag->GetSafeHandle(), m_images.GetSafeHandle());
    EXPECT_EQ(CImageList::FromHandlePermanent(drag->GetSafeHandle()), drag.get());
    drag.reset();
    EXPECT_EQ(m_tree.SetImageList(NULL, TVSIL_NORMAL), &m_images);
}

TEST_F(TreeWrapper, EditLabel)
{
    m_tree.SetFocus();
    CEdit* edit = m_tree.EditLabel(m_root);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(m_tree.GetEditControl(), edit);
    CString text;
    edit->GetWindowText(text);
    EXPECT_STREQ(text, L"root");
    edit->SetSel(0, -1);
    EXPECT_TRUE(m_tree.EndEditLabelNow(TRUE));
    EXPECT_EQ(m_tree.GetEditControl(), nullptr);
    EXPECT_STREQ(m_tree.GetItemText(m_root), L"root");
}

TEST_F(TreeWrapper, Look)
{
    m_tree.SetIndent(31);
    EXPECT_EQ(m_tree.GetIndent(), 31u);
    m_tree.SetItemHeight(24);
    EXPECT_EQ(m_tree.GetItemHeight(), 24);
    m_tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tree.GetBkColor(), RGB(1, 2, 3));
    m_tree.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(m_tree.GetTextColor(), RGB(4, 5, 6));
    m_tree.SetLineColor(RGB(7, 8, 9));
    EXPECT_EQ(m_tree.GetLineColor(), RGB(7, 8, 9));
}

TEST(TreeClass, CreateEx_SetsTheExtendedStyle)
{
    HostWindow host;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.CreateEx(WS_EX_CLIENTEDGE, WS_VISIBLE, CRect(0, 0, 50, 50), &host, 9));
    EXPECT_TRUE(tree.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_TRUE(tree.GetStyle() & WS_CHILD);
    EXPECT_EQ(tree.GetDlgCtrlID(), 9);
    EXPECT_STREQ(tree.GetRuntimeClass()->m_lpszClassName, "CTreeCtrl");
}

// How many pixels a list's first image covers.
int CoveredPixels(CImageList& list, CSize size)
{
    CClientDC screen(NULL);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, size.cx, size.cy);
    CBitmap* const previous = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, size.cx, size.cy, RGB(0, 200, 0));
    list.Draw(&memory, 0, CPoint(0, 0), ILD_TRANSPARENT);
    int count = 0;
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            count += memory.GetPixel(x, y) != RGB(0, 200, 0);
    memory.SelectObject(previous);
    return count;
}

TEST_F(TreeWrapper, CreateDragImage_ShowsIconAndText)
{
    EXPECT_EQ(m_tree.CreateDragImage(m_root), nullptr) << "without images";
    m_tree.SetImageList(&m_images, TVSIL_NORMAL);
    const std::unique_ptr<CImageList> drag(m_tree.CreateDragImage(m_root));
    ASSERT_NE(drag, nullptr);
    ASSERT_EQ(drag->GetImageCount(), 1);
    IMAGEINFO info = {};
    ASSERT_TRUE(drag->GetImageInfo(0, &info));
    const CSize size = CRect(info.rcImage).Size();
    EXPECT_GT(size.cx, 16) << "the text is beside the icon";
    EXPECT_GE(size.cy, 16);
    const int drawn = CoveredPixels(*drag, size);
    EXPECT_GT(drawn, 100);
    EXPECT_LT(drawn, size.cx * size.cy) << "the ground is transparent";
    EXPECT_EQ(m_tree.CreateDragImage(NULL), nullptr);
}

} // namespace
