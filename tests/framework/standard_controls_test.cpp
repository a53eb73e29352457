// The wrappers of edit, button, static, list box, combo box and scroll bar, against the platform's controls.
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using namespace quor::test;

class StandardControls : public testing::Test
{
protected:
    HostWindow m_host;
    CRect m_place{10, 10, 210, 110};
};

class EditWrapper : public StandardControls
{
protected:
    EditWrapper()
    {
        m_edit.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, m_place,
                      &m_host, 1);
        m_edit.SetWindowText(L"first\r\nsecond line\r\nthird");
    }

    CString Line(int index)
    {
        wchar_t buffer[64] = {};
        const int length = m_edit.GetLine(index, buffer, 63);
        return CString(buffer, length);
    }

    CEdit m_edit;
};

TEST_F(EditWrapper, Create_PlacesAChildWithItsIdentifier)
{
    CRect rect;
    m_edit.GetWindowRect(&rect);
    m_host.ScreenToClient(&rect);
    EXPECT_EQ(rect, m_place);
    EXPECT_EQ(m_edit.GetDlgCtrlID(), 1);
    EXPECT_EQ(m_edit.GetParent(), &m_host);
    EXPECT_TRUE(m_edit.IsKindOf(RUNTIME_CLASS(CEdit)));
}

TEST_F(EditWrapper, Lines)
{
    EXPECT_EQ(m_edit.GetLineCount(), 3);
    EXPECT_STREQ(Line(1), L"second line");
    EXPECT_EQ(m_edit.LineIndex(1), 7);
    EXPECT_EQ(m_edit.LineFromChar(8), 1);
    EXPECT_EQ(m_edit.LineLength(8), 11);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 0);
    m_edit.SetWindowText(L"");
    for (int i = 0; i < 50; ++i)
        m_edit.ReplaceSel(L"line\r\n");
    m_edit.SetSel(0, 0);
    m_edit.LineScroll(7);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 7);
}

TEST_F(EditWrapper, GetLine_CutsToTheRoom)
{
    wchar_t buffer[8] = {};
    EXPECT_EQ(m_edit.GetLine(1, buffer, 4), 4);
    EXPECT_EQ(std::wstring(buffer, 4), L"seco");
}

TEST_F(EditWrapper, Selection)
{
    m_edit.SetSel(2, 4);
    int begin = 0, end = 0;
    m_edit.GetSel(begin, end);
    EXPECT_EQ(begin, 2);
    EXPECT_EQ(end, 4);
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(2, 4)));
    m_edit.SetSel(MAKELONG(1, 3));
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    m_edit.SetSel(0, -1);
    m_edit.GetSel(begin, end);
    EXPECT_EQ(end, m_edit.GetWindowTextLength());
    m_edit.SetSel(MAKELONG(0, -1));
    m_edit.GetSel(begin, end);
    EXPECT_EQ(end, m_edit.GetWindowTextLength());
}

TEST_F(EditWrapper, ReplaceSel_CanBeUndone)
{
    m_edit.SetSel(0, 5);
    m_edit.ReplaceSel(L"1st", TRUE);
    EXPECT_STREQ(Line(0), L"1st");
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    EXPECT_STREQ(Line(0), L"first");
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
    m_edit.SetModify(FALSE);
    EXPECT_FALSE(m_edit.GetModify());
}

TEST_F(EditWrapper, ClipboardCommands)
{
    m_edit.SetSel(0, 5);
    m_edit.Copy();
    m_edit.Clear();
    EXPECT_STREQ(Line(0), L"");
    m_edit.Paste();
    EXPECT_STREQ(Line(0), L"first");
    m_edit.SetSel(0, 2);
    m_edit.Cut();
    EXPECT_STREQ(Line(0), L"rst");
    m_edit.SetSel(3, 3);
    m_edit.Paste();
    EXPECT_STREQ(Line(0), L"rstfi");
}

TEST_F(EditWrapper, LimitsAndStyles)
{
    m_edit.SetLimitText(5);
    EXPECT_EQ(m_edit.GetLimitText(), 5u);
    m_edit.LimitText(6);
    EXPECT_EQ(m_edit.GetLimitText(), 6u);
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_TRUE(m_edit.GetStyle() & ES_READONLY);
    CEdit password;
    ASSERT_TRUE(password.Create(WS_CHILD | ES_PASSWORD, CRect(0, 0, 50, 20), &m_host, 2));
    password.SetPasswordChar(L'#');
    EXPECT_EQ(password.GetPasswordChar(), L'#');
}

TEST_F(EditWrapper, Geometry)
{
    m_edit.SetRect(CRect(5, 3, 120, 90));
    CRect rect;
    m_edit.GetRect(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(5, 3));
    EXPECT_NEAR(rect.right, 120, 1);
    m_edit.SetMargins(7, 9);
    EXPECT_EQ(m_edit.GetMargins(), static_cast<DWORD>(MAKELONG(7, 9)));
    const CPoint first = m_edit.PosFromChar(0);
    const CPoint onSecondLine = m_edit.PosFromChar(8);
    EXPECT_GT(onSecondLine.y, first.y);
    const int packed = m_edit.CharFromPos(onSecondLine + CSize(1, 1));
    EXPECT_EQ(LOWORD(packed), 8);
    EXPECT_EQ(HIWORD(packed), 1);
}

TEST_F(StandardControls, Button_ChecksStatesAndPictures)
{
    CButton button;
    ASSERT_TRUE(button.Create(L"&Check", WS_CHILD | BS_AUTO3STATE, m_place, &m_host, 3));
    CString caption;
    button.GetWindowText(caption);
    EXPECT_STREQ(caption, L"&Check");
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(button.GetCheck(), BST_INDETERMINATE);
    EXPECT_EQ(button.GetState() & 3, static_cast<UINT>(BST_INDETERMINATE));
    button.SetState(TRUE);
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
    button.SetState(FALSE);
    EXPECT_FALSE(button.GetState() & BST_PUSHED);
    EXPECT_EQ(button.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_AUTO3STATE));
    button.SetButtonStyle(BS_AUTOCHECKBOX);
    EXPECT_EQ(button.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_AUTOCHECKBOX));
    EXPECT_TRUE(m_host.TakeLog().empty()) << "notifications without a click";
    CButton picture;
    ASSERT_TRUE(picture.Create(L"", WS_CHILD | BS_ICON, m_place, &m_host, 4));
    const HICON icon = ::LoadIcon(NULL, IDI_INFORMATION);
    EXPECT_EQ(picture.SetIcon(icon), nullptr);
    EXPECT_EQ(picture.GetIcon(), icon);
}

TEST_F(StandardControls, Static_ShowsTextAndPictures)
{
    CStatic label;
    ASSERT_TRUE(label.Create(L"Name", WS_CHILD | SS_LEFT, m_place, &m_host));
    EXPECT_EQ(label.GetDlgCtrlID(), 0xffff);
    CStatic picture;
    ASSERT_TRUE(picture.Create(NULL, WS_CHILD | SS_ICON, m_place, &m_host, 4));
    const HICON icon = ::LoadIcon(NULL, IDI_WARNING);
    picture.SetIcon(icon);
    EXPECT_EQ(picture.GetIcon(), icon);
    CStatic bitmapBox;
    ASSERT_TRUE(bitmapBox.Create(NULL, WS_CHILD | SS_BITMAP, m_place, &m_host, 5));
    CBitmap bitmap;
    bitmap.CreateBitmap(8, 8, 1, 1, NULL);
    EXPECT_EQ(bitmapBox.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(bitmapBox.GetBitmap(), static_cast<HBITMAP>(bitmap));
    bitmapBox.SetBitmap(NULL);
}

class ListBoxWrapper : public StandardControls
{
protected:
    void Make(DWORD style)
    {
        m_list.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | style, m_place, &m_host, 6);
        for (LPCTSTR text : {L"cherry", L"apple", L"banana", L"Apricot"})
            m_list.AddString(text);
    }

    std::wstring Texts()
    {
        std::wstring all;
        for (int i = 0; i < m_list.GetCount(); ++i)
        {
            CString text;
            m_list.GetText(i, text);
            all += (i == 0 ? L"" : L" ") + std::wstring(text);
        }
        return all;
    }

    CListBox m_list;
};

TEST_F(ListBoxWrapper, Contents)
{
    Make(0);
    EXPECT_EQ(m_list.InsertString(1, L"date"), 1);
    EXPECT_EQ(Texts(), L"cherry date apple banana Apricot");
    EXPECT_EQ(m_list.DeleteString(0), 4);
    EXPECT_EQ(Texts(), L"date apple banana Apricot");
    EXPECT_EQ(m_list.GetTextLen(1), 5);
    wchar_t buffer[16];
    EXPECT_EQ(m_list.GetText(2, buffer), 6);
    EXPECT_STREQ(buffer, L"banana");
    CString missing = L"x";
    m_list.GetText(9, missing);
    EXPECT_TRUE(missing.IsEmpty());
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(ListBoxWrapper, SortedAndSearched)
{
    Make(LBS_SORT);
    EXPECT_EQ(Texts(), L"apple Apricot banana cherry");
    EXPECT_EQ(m_list.FindString(-1, L"AP"), 0);
    EXPECT_EQ(m_list.FindString(0, L"ap"), 1);
    EXPECT_EQ(m_list.FindStringExact(-1, L"ap"), LB_ERR);
    EXPECT_EQ(m_list.FindStringExact(-1, L"BANANA"), 2);
    EXPECT_EQ(m_list.SelectString(-1, L"ch"), 3);
    EXPECT_EQ(m_list.GetCurSel(), 3);
    EXPECT_EQ(m_list.SetCurSel(-1), LB_ERR);
    EXPECT_EQ(m_list.GetCurSel(), LB_ERR);
}

TEST_F(ListBoxWrapper, MultipleSelection)
{
    Make(LBS_EXTENDEDSEL);
    m_list.SetSel(0);
    m_list.SelItemRange(TRUE, 2, 3);
    EXPECT_EQ(m_list.GetSelCount(), 3);
    int items[4] = {};
    EXPECT_EQ(m_list.GetSelItems(4, items), 3);
    EXPECT_EQ(std::vector<int>(items, items + 3), (std::vector<int>{0, 2, 3}));
    m_list.SelItemRange(FALSE, 0, 2);
    EXPECT_EQ(m_list.GetSelItems(4, items), 1);
    EXPECT_EQ(items[0], 3);
    m_list.SelItemRange(FALSE, 3, 3);
    EXPECT_EQ(m_list.GetSelCount(), 0);
    m_list.SetCaretIndex(1);
    EXPECT_EQ(m_list.GetCaretIndex(), 1);
    m_list.SetAnchorIndex(2);
    EXPECT_EQ(m_list.GetAnchorIndex(), 2);
}

TEST_F(ListBoxWrapper, DataAndGeometry)
{
    Make(0);
    EXPECT_NE(m_list.SetItemData(1, 0x123456789), LB_ERR);
    EXPECT_EQ(m_list.GetItemData(1), 0x123456789u);
    m_list.SetItemDataPtr(2, this);
    EXPECT_EQ(m_list.GetItemDataPtr(2), this);
    CRect second;
    m_list.GetItemRect(1, &second);
    EXPECT_EQ(second.Height(), m_list.GetItemHeight(0));
    BOOL outside = TRUE;
    EXPECT_EQ(m_list.ItemFromPoint(second.CenterPoint(), outside), 1u);
    EXPECT_FALSE(outside);
    m_list.ItemFromPoint(CPoint(5, 5000), outside);
    EXPECT_TRUE(outside);
    for (int i = 0; i < 50; ++i)
        m_list.AddString(L"more");
    m_list.SetTopIndex(10);
    EXPECT_EQ(m_list.GetTopIndex(), 10);
}

class ComboWrapper : public StandardControls
{
protected:
    void Make(DWORD style)
    {
        m_combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, m_place, &m_host, 7);
        for (LPCTSTR text : {L"red", L"green", L"blue"})
            m_combo.AddString(text);
    }

    CComboBox m_combo;
};

TEST_F(ComboWrapper, ContentsAndSelection)
{
    Make(CBS_DROPDOWNLIST);
    EXPECT_EQ(m_combo.GetCount(), 3);
    EXPECT_EQ(m_combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(m_combo.SetCurSel(1), 1);
    CString text;
    m_combo.GetWindowText(text);
    EXPECT_STREQ(text, L"green");
    m_combo.GetLBText(2, text);
    EXPECT_STREQ(text, L"blue");
    EXPECT_EQ(m_combo.GetLBTextLen(2), 4);
    m_combo.GetLBText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(m_combo.InsertString(0, L"black"), 0);
    EXPECT_EQ(m_combo.FindString(-1, L"bl"), 0);
    EXPECT_EQ(m_combo.FindString(0, L"bl"), 3);
    EXPECT_EQ(m_combo.FindStringExact(-1, L"bl"), CB_ERR);
    EXPECT_EQ(m_combo.SelectString(-1, L"re"), 1);
    EXPECT_EQ(m_combo.DeleteString(0), 3);
    EXPECT_TRUE(m_host.TakeLog().empty()) << "notifications without a user";
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
}

TEST_F(ComboWrapper, DataHeightsAndDroppedList)
{
    Make(CBS_DROPDOWNLIST);
    m_combo.SetItemData(1, 77);
    EXPECT_EQ(m_combo.GetItemData(1), 77u);
    m_combo.SetItemDataPtr(2, &m_host);
    EXPECT_EQ(m_combo.GetItemDataPtr(2), &m_host);
    m_combo.SetItemHeight(-1, 25);
    const int fieldHeight = m_combo.GetItemHeight(-1);
    m_combo.SetItemHeight(-1, 35);
    EXPECT_EQ(m_combo.GetItemHeight(-1), fieldHeight + 10);
    m_combo.SetDroppedWidth(300);
    EXPECT_EQ(m_combo.GetDroppedWidth(), 300);
    EXPECT_FALSE(m_combo.GetDroppedState());
    m_combo.ShowDropDown();
    EXPECT_TRUE(m_combo.GetDroppedState());
    m_combo.ShowDropDown(FALSE);
    EXPECT_FALSE(m_combo.GetDroppedState());
    CRect dropped;
    m_combo.GetDroppedControlRect(&dropped);
    EXPECT_GT(dropped.Height(), 25);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, m_combo.m_hWnd);
    m_combo.SetExtendedUI();
    EXPECT_TRUE(m_combo.GetExtendedUI());
}

TEST_F(ComboWrapper, EditPart)
{
    Make(CBS_DROPDOWN | CBS_AUTOHSCROLL);
    m_combo.SetWindowText(L"magenta");
    EXPECT_TRUE(m_combo.SetEditSel(2, 5));
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(2, 5)));
    m_combo.Clear();
    CString text;
    m_combo.GetWindowText(text);
    EXPECT_STREQ(text, L"mata");
    m_combo.LimitText(6);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(::SendMessage(info.hwndItem, EM_GETLIMITTEXT, 0, 0), 6);
}

TEST_F(StandardControls, ScrollBar_KeepsRangePageAndPosition)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, m_place, &m_host, 8));
    bar.SetScrollRange(10, 90);
    int low = 0, high = 0;
    bar.GetScrollRange(&low, &high);
    EXPECT_EQ(low, 10);
    EXPECT_EQ(high, 90);
    EXPECT_EQ(bar.SetScrollPos(40), 10);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 21;
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 70);
    SCROLLINFO read = {};
    EXPECT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nPage, 21u);
    EXPECT_EQ(read.nPos, 40);
    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(bar.IsWindowVisible());
    bar.EnableScrollBar(ESB_DISABLE_BOTH);
}

} // namespace
