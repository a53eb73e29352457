// The wrapper of the list view, against the platform's control.
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{

using namespace quor::test;

class ListWrapper : public testing::Test
{
protected:
    ListWrapper()
    {
        m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_EDITLABELS | LVS_SHOWSELALWAYS |
                          LVS_SHAREIMAGELISTS,
                      CRect(0, 0, 300, 150), &m_host, 6);
        m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
        m_list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 60, 1);
        m_list.InsertItem(0, L"one");
        m_list.InsertItem(1, L"two");
        m_list.InsertItem(2, L"three");
    }

    std::wstring Texts(int subItem = 0)
    {
        std::wstring all;
        for (int i = 0; i < m_list.GetItemCount(); ++i)
            all += (i == 0 ? L"" : L" ") + std::wstring(m_list.GetItemText(i, subItem));
        return all;
    }

    HostWindow m_host;
    CListCtrl m_list;
};

TEST_F(ListWrapper, Columns)
{
    EXPECT_EQ(m_list.GetColumnWidth(1), 60);
    EXPECT_TRUE(m_list.SetColumnWidth(1, 75));
    EXPECT_EQ(m_list.GetColumnWidth(1), 75);
    wchar_t text[32] = {};
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    column.pszText = text;
    column.cchTextMax = 32;
    ASSERT_TRUE(m_list.GetColumn(1, &column));
    EXPECT_STREQ(text, L"Size");
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(column.iSubItem, 1);
    column.mask = LVCF_TEXT;
    column.pszText = const_cast<LPWSTR>(L"Bytes");
    EXPECT_TRUE(m_list.SetColumn(1, &column));
    CHeaderCtrl* header = m_list.GetHeaderCtrl();
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->GetItemCount(), 2);
    EXPECT_EQ(m_list.InsertColumn(2, &column), 2);
    int order[3] = {2, 0, 1};
    EXPECT_TRUE(m_list.SetColumnOrderArray(3, order));
    int read[3] = {};
    EXPECT_TRUE(m_list.GetColumnOrderArray(read));
    EXPECT_EQ(std::vector<int>(read, read + 3), (std::vector<int>{2, 0, 1}));
    EXPECT_TRUE(m_list.DeleteColumn(2));
    EXPECT_EQ(header->GetItemCount(), 2);
}

TEST_F(ListWrapper, ItemsAndSubItems)
{
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_TRUE(m_list.SetItemText(1, 1, L"22"));
    EXPECT_EQ(Texts(1), L" 22 ");
    EXPECT_TRUE(m_list.SetItem(2, 1, LVIF_TEXT, L"333", 0, 0, 0, 0));
    EXPECT_STREQ(m_list.GetItemText(2, 1), L"333");
    LVITEM item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = 1;
    item.pszText = const_cast<LPWSTR>(L"between");
    item.lParam = 9;
    EXPECT_EQ(m_list.InsertItem(&item), 1);
    EXPECT_EQ(Texts(), L"one between two three");
    EXPECT_EQ(m_list.InsertItem(LVIF_TEXT | LVIF_PARAM | LVIF_STATE, 0, L"zero", LVIS_SELECTED, LVIS_SELECTED,
                                0, 4),
              0);
    EXPECT_EQ(m_list.GetItemData(0), 4u);
    EXPECT_TRUE(m_list.DeleteItem(2));
    EXPECT_EQ(Texts(), L"zero one two three");
    EXPECT_TRUE(m_list.DeleteAllItems());
    EXPECT_EQ(m_list.GetItemCount(), 0);
}

TEST_F(ListWrapper, ItemText_OfAnyLength)
{
    const CString longText(L'y', 1500);
    m_list.SetItemText(0, 1, longText);
    EXPECT_EQ(m_list.GetItemText(0, 1), longText);
    wchar_t buffer[8] = {};
    EXPECT_EQ(m_list.GetItemText(2, 0, buffer, 4), 3);
    EXPECT_STREQ(buffer, L"thr");
}

TEST_F(ListWrapper, StateDataAndChecks)
{
    EXPECT_TRUE(m_list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(m_list.GetItemState(1, LVIS_SELECTED), static_cast<UINT>(LVIS_SELECTED));
    EXPECT_EQ(m_list.GetSelectedCount(), 1u);
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 1);
    m_list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(m_list.GetSelectedCount(), 0u);
    EXPECT_TRUE(m_list.SetItemData(2, 0x1122334455));
    EXPECT_EQ(m_list.GetItemData(2), 0x1122334455u);
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    EXPECT_EQ(m_list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
    EXPECT_FALSE(m_list.GetCheck(0));
    EXPECT_TRUE(m_list.SetCheck(0));
    EXPECT_TRUE(m_list.GetCheck(0));
    m_list.SetCheck(0, FALSE);
    EXPECT_FALSE(m_list.GetCheck(0));
    // With LVS_SHAREIMAGELISTS the images of the boxes are the program's, too.
    CImageList* boxes = m_list.SetImageList(NULL, LVSIL_STATE);
    ASSERT_NE(boxes, nullptr);
    EXPECT_TRUE(boxes->DeleteImageList());
}

TEST_F(ListWrapper, SelectedItemPositions)
{
    EXPECT_EQ(m_list.GetFirstSelectedItemPosition(), nullptr);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    POSITION position = m_list.GetFirstSelectedItemPosition();
    EXPECT_EQ(m_list.GetNextSelectedItem(position), 0);
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(m_list.GetNextSelectedItem(position), 2);
    EXPECT_EQ(position, nullptr);
}

TEST_F(ListWrapper, FindItem)
{
    LVFINDINFO info = {};
    info.flags = LVFI_STRING;
    info.psz = L"two";
    EXPECT_EQ(m_list.FindItem(&info), 1);
    info.psz = L"t";
    EXPECT_EQ(m_list.FindItem(&info), -1);
    info.flags = LVFI_PARTIAL;
    EXPECT_EQ(m_list.FindItem(&info), 1);
    EXPECT_EQ(m_list.FindItem(&info, 1), 2);
}

TEST_F(ListWrapper, RectanglesAndHitTests)
{
    CRect item, subItem;
    ASSERT_TRUE(m_list.GetItemRect(1, &item, LVIR_BOUNDS));
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, subItem));
    EXPECT_EQ(subItem.left, 100);
    EXPECT_EQ(subItem.Width(), 60);
    EXPECT_EQ(subItem.top, item.top);
    CRect label;
    ASSERT_TRUE(m_list.GetItemRect(1, &label, LVIR_LABEL));
    UINT flags = 0;
    EXPECT_EQ(m_list.HitTest(CPoint(label.left + 4, label.CenterPoint().y), &flags), 1);
    EXPECT_TRUE(flags & LVHT_ONITEM);
    EXPECT_EQ(m_list.HitTest(CPoint(5, 140)), -1);
    LVHITTESTINFO info = {};
    info.pt = subItem.CenterPoint();
    EXPECT_EQ(m_list.SubItemHitTest(&info), 1);
    EXPECT_EQ(info.iSubItem, 1);
    POINT position = {};
    EXPECT_TRUE(m_list.GetItemPosition(1, &position));
    EXPECT_EQ(position.y, item.top);
}

TEST_F(ListWrapper, VisibilityAndScrolling)
{
    for (int i = 3; i < 60; ++i)
        m_list.InsertItem(i, L"more");
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_TRUE(m_list.EnsureVisible(50, FALSE));
    EXPECT_GT(m_list.GetTopIndex(), 30);
    EXPECT_TRUE(m_list.IsItemVisible(50));
    EXPECT_FALSE(m_list.IsItemVisible(0));
    EXPECT_GT(m_list.GetCountPerPage(), 3);
    CRect first;
    m_list.GetItemRect(0, &first, LVIR_BOUNDS);
    m_list.Scroll(CSize(0, -10000));
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_TRUE(m_list.RedrawItems(0, 5));
    EXPECT_TRUE(m_list.Update(0));
}

int CALLBACK CompareData(LPARAM left, LPARAM right, LPARAM sign)
{
    return static_cast<int>((left - right) * sign);
}

TEST_F(ListWrapper, SortItems)
{
    m_list.SetItemData(0, 2);
    m_list.SetItemData(1, 3);
    m_list.SetItemData(2, 1);
    EXPECT_TRUE(m_list.SortItems(CompareData, 1));
    EXPECT_EQ(Texts(), L"three one two");
    EXPECT_TRUE(m_list.SortItems(CompareData, static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(Texts(), L"two one three");
    EXPECT_TRUE(m_list.SortItemsEx(CompareData, static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(Texts(), L"three one two");
}

TEST_F(ListWrapper, EditLabel)
{
    m_list.SetFocus();
    CEdit* edit = m_list.EditLabel(1);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(m_list.GetEditControl(), edit);
    CString text;
    edit->GetWindowText(text);
    EXPECT_STREQ(text, L"two");
    m_list.CancelEditLabel();
    EXPECT_EQ(m_list.GetEditControl(), nullptr);
}

TEST_F(ListWrapper, ImageListsAndDragImage)
{
    CImageList images;
    images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1);
    images.Add(::LoadIcon(NULL, IDI_APPLICATION));
    EXPECT_EQ(m_list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_SMALL), &images);
    EXPECT_EQ(m_list.InsertItem(3, L"with image", 0), 3);
    POINT corner = {-1, -1};
    std::unique_ptr<CImageList> drag(m_list.CreateDragImage(3, &corner));
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->GetImageCount(), 1);
    EXPECT_EQ(m_list.SetImageList(NULL, LVSIL_SMALL), &images);
}

TEST_F(ListWrapper, ColorsMarksAndView)
{
    EXPECT_TRUE(m_list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_EQ(m_list.GetBkColor(), RGB(1, 2, 3));
    EXPECT_TRUE(m_list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(m_list.GetTextColor(), RGB(4, 5, 6));
    EXPECT_TRUE(m_list.SetTextBkColor(RGB(7, 8, 9)));
    EXPECT_EQ(m_list.GetTextBkColor(), RGB(7, 8, 9));
    m_list.SetSelectionMark(2);
    EXPECT_EQ(m_list.GetSelectionMark(), 2);
    EXPECT_GT(m_list.GetStringWidth(L"a longer text"), m_list.GetStringWidth(L"text"));
    EXPECT_EQ(m_list.GetView(), static_cast<DWORD>(LV_VIEW_DETAILS));
    m_list.SetView(LV_VIEW_LIST);
    EXPECT_EQ(m_list.GetView(), static_cast<DWORD>(LV_VIEW_LIST));
}

// Whether the list of images still exists.
bool IsAlive(HIMAGELIST images)
{
    int width = 0, height = 0;
    return ::ImageList_GetIconSize(images, &width, &height) != FALSE;
}

TEST(ListImages, ThoseOfAnObjectSurviveTheList)
{
    HostWindow host;
    CImageList normal, small, state;
    for (CImageList* const images : {&normal, &small, &state})
        images->Create(16, 16, ILC_COLOR32, 1, 1);
    const HIMAGELIST nobodys = ::ImageList_Create(16, 16, ILC_COLOR32, 1, 1);
    CListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 100, 100), &host, 6);
    list.SetImageList(&normal, LVSIL_NORMAL);
    list.SetImageList(&small, LVSIL_SMALL);
    list.SetImageList(&state, LVSIL_STATE);
    list.DestroyWindow();
    EXPECT_TRUE(IsAlive(normal));
    EXPECT_TRUE(IsAlive(small));
    EXPECT_TRUE(IsAlive(state));

    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 100, 100), &host, 6);
    list.SendMessage(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(nobodys));
    list.DestroyWindow();
    EXPECT_FALSE(IsAlive(nobodys)) << "the list owns one that is nobody's";
}

} // namespace
