// Controls: creation with extended styles, what a class does by default, and the tips that they share.
#include "tests/framework/ControlsResource.h"
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <afxcview.h>
#include <afxext.h>

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class ControlCreation : public testing::Test
{
protected:
    template <class Control> void ExpectExtended(LPCTSTR windowClass)
    {
        Control control;
        ASSERT_TRUE(
            control.CreateEx(WS_EX_ACCEPTFILES, WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 30), &m_host, 17));
        EXPECT_TRUE(control.GetExStyle() & WS_EX_ACCEPTFILES);
        EXPECT_EQ(control.GetDlgCtrlID(), 17);
        wchar_t name[64] = L"";
        ::GetClassName(control.m_hWnd, name, 64);
        EXPECT_EQ(::lstrcmpi(name, windowClass), 0) << CStringA(name).GetString();
        EXPECT_TRUE(control.IsKindOf(Control::GetThisClass()));
        EXPECT_TRUE(control.IsKindOf(RUNTIME_CLASS(CWnd)));
        control.DestroyWindow();
    }

    HostWindow m_host;
};

TEST_F(ControlCreation, WithExtendedStyles)
{
    ExpectExtended<CHeaderCtrl>(WC_HEADER);
    ExpectExtended<CSpinButtonCtrl>(UPDOWN_CLASS);
    ExpectExtended<CTabCtrl>(WC_TABCONTROL);
    ExpectExtended<CListCtrl>(WC_LISTVIEW);
    ExpectExtended<CTreeCtrl>(WC_TREEVIEW);
    ExpectExtended<CSliderCtrl>(TRACKBAR_CLASS);
    ExpectExtended<CProgressCtrl>(PROGRESS_CLASS);
    ExpectExtended<CToolBarCtrl>(TOOLBARCLASSNAME);
    ExpectExtended<CStatusBarCtrl>(STATUSCLASSNAME);
}

TEST_F(ControlCreation, ATabHasATextAndAnImage)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 30), &m_host, 18));
    EXPECT_EQ(tabs.InsertItem(0, L"One", 3), 0);
    wchar_t text[16] = L"";
    TCITEM item = {};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(tabs.GetItem(0, &item));
    EXPECT_STREQ(text, L"One");
    EXPECT_EQ(item.iImage, 3);
}

TEST_F(ControlCreation, ToolTipsOfControlsAreExchanged)
{
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_host));
    EXPECT_TRUE(tips.IsKindOf(RUNTIME_CLASS(CToolTipCtrl)));
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 60, 60), &m_host, 19));
    const HWND own = reinterpret_cast<HWND>(list.SendMessage(LVM_GETTOOLTIPS));
    EXPECT_EQ(list.GetToolTips()->GetSafeHwnd(), own);
    EXPECT_EQ(list.SetToolTips(&tips)->GetSafeHwnd(), own) << "the ones before";
    list.SendMessage(LVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(own));
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 60, 60), &m_host, 20));
    tree.SetToolTips(&tips);
    EXPECT_EQ(tree.GetToolTips(), &tips);
    EXPECT_EQ(tree.SetToolTips(nullptr), &tips);
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_CHILD, CRect(0, 0, 60, 60), &m_host, 21));
    slider.SetToolTips(&tips);
    EXPECT_EQ(slider.GetToolTips(), &tips);
    slider.SetToolTips(nullptr);
}

TEST_F(ControlCreation, ATipIsAStringOfTheResources)
{
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_host, TTS_ALWAYSTIP));
    const CRect place(1, 2, 30, 40);
    ASSERT_TRUE(tips.AddTool(&m_host, static_cast<UINT>(IDS_TOOL_TIP), place, 5));
    CToolInfo info;
    ASSERT_TRUE(tips.GetToolInfo(info, &m_host, 5));
    EXPECT_TRUE(CRect(info.rect) == place);
    EXPECT_EQ(info.uId, 5u);
    CString text;
    tips.GetText(text, &m_host, 5);
    EXPECT_STREQ(text, L"A tip of the resources");
    tips.UpdateTipText(L"Another", &m_host, 5);
    tips.GetText(text, &m_host, 5);
    EXPECT_STREQ(text, L"Another");
    tips.UpdateTipText(static_cast<UINT>(IDS_TOOL_TIP), &m_host, 5);
    tips.GetText(text, &m_host, 5);
    EXPECT_STREQ(text, L"A tip of the resources");
    const LRESULT bubble = tips.SendMessage(TTM_GETBUBBLESIZE, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_TRUE(tips.GetBubbleSize(&info) == CSize(LOWORD(bubble), HIWORD(bubble)));
    EXPECT_FALSE(tips.HitTest(&m_host, CPoint(300, 300), &info));
    EXPECT_TRUE(tips.HitTest(&m_host, CPoint(5, 5), &info));
    EXPECT_EQ(info.uId, 5u);
}

TEST_F(ControlCreation, AListOfIconsHasASpacingAndASize)
{
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_CHILD | LVS_ICON, CRect(0, 0, 300, 200), &m_host, 22));
    list.SetIconSpacing(60, 50);
    EXPECT_TRUE(list.SetIconSpacing(CSize(70, 80)) == CSize(60, 50)) << "what it was";
    for (int i = 0; i < 4; ++i)
        list.InsertItem(i, L"x");
    const CSize one = list.ApproximateViewRect(CSize(-1, -1), 1);
    const CSize four = list.ApproximateViewRect(CSize(70, -1), 4);
    EXPECT_GT(one.cx, 0);
    EXPECT_GE(four.cy, one.cy);
    EXPECT_EQ(list.GetNumberOfWorkAreas(), 0u);
}

// Hosts a list that asks about keys.
class KeyListBox : public CListBox
{
public:
    std::vector<UINT> keys;
    int answer = -2;

    int VKeyToItem(UINT key, UINT caret) override
    {
        keys.push_back(key);
        keys.push_back(caret);
        return answer == -1 ? CListBox::VKeyToItem(key, caret) : answer;
    }
    int CharToItem(UINT key, UINT caret) override
    {
        keys.push_back(key + 1000);
        return answer == -1 ? CListBox::CharToItem(key, caret) : answer;
    }
};

TEST_F(ControlCreation, AListBoxDecidesAboutItsKeys)
{
    KeyListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_WANTKEYBOARDINPUT | LBS_HASSTRINGS,
                            CRect(0, 0, 100, 100), &m_host, 23));
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CListBox)));
    for (const wchar_t* text : {L"a", L"b", L"c"})
        list.AddString(text);
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(list.keys, (std::vector<UINT>{VK_DOWN, 0}));
    EXPECT_EQ(list.GetCurSel(), 0) << "-2: the list does nothing more";
    list.answer = 2;
    list.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(list.GetCurSel(), 2) << "the item of that number";
    list.SetCurSel(0);
    list.answer = -1;
    list.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(list.GetCurSel(), 1) << "the default: as any list";
}

TEST_F(ControlCreation, AnOwnerDrawnListBoxDecidesAboutCharacters)
{
    KeyListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_WANTKEYBOARDINPUT | LBS_OWNERDRAWFIXED,
                            CRect(0, 0, 100, 100), &m_host, 24));
    for (LPARAM i = 0; i < 3; ++i)
        list.SendMessage(LB_ADDSTRING, 0, i + 1);
    list.answer = 1;
    list.SendMessage(WM_CHAR, 'x');
    EXPECT_EQ(list.keys, std::vector<UINT>{'x' + 1000});
    EXPECT_EQ(list.GetCurSel(), 1);
    list.answer = -1;
    list.SendMessage(WM_CHAR, 'x');
    EXPECT_EQ(list.keys.size(), 2u);
    EXPECT_EQ(list.GetCurSel(), 1);
}

// Sorts its items by their data.
class SortedCombo : public CComboBox
{
public:
    int comparisons = 0;
    bool sortsAsTheBase = false;
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        ++comparisons;
        if (sortsAsTheBase)
            return CComboBox::CompareItem(items);
        return items->itemData1 < items->itemData2 ? -1 : items->itemData1 > items->itemData2 ? 1 : 0;
    }
};

TEST_F(ControlCreation, AnOwnerDrawnComboComparesItsItems)
{
    SortedCombo combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT,
                             CRect(0, 0, 100, 100), &m_host, 25));
    for (const LPARAM data : {7, 3, 5})
        combo.SendMessage(CB_ADDSTRING, 0, data);
    EXPECT_GT(combo.comparisons, 0);
    EXPECT_EQ(combo.GetItemData(0), 3u);
    EXPECT_EQ(combo.GetItemData(2), 7u);
    combo.sortsAsTheBase = true;
    EXPECT_GE(combo.SendMessage(CB_ADDSTRING, 0, 4), 0);
    CString text(L"x");
    combo.GetLBText(99, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(ControlCreation, OwnerDrawnControlsOfThePlainClassesDrawNothing)
{
    CListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_SORT, CRect(0, 0, 50, 50),
                            &m_host, 26));
    for (const LPARAM data : {2, 1})
        list.SendMessage(LB_ADDSTRING, 0, data);
    EXPECT_EQ(list.GetCount(), 2);
    CButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(50, 0, 100, 50), &m_host, 27));
    CStatic label;
    ASSERT_TRUE(label.Create(L"", WS_CHILD | WS_VISIBLE | SS_OWNERDRAW, CRect(100, 0, 150, 50), &m_host, 28));
    CListCtrl report;
    ASSERT_TRUE(report.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED, CRect(150, 0, 250, 50),
                              &m_host, 29));
    report.InsertColumn(0, L"a", LVCFMT_LEFT, 40);
    report.InsertItem(0, L"x");
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE | TCS_OWNERDRAWFIXED, CRect(0, 60, 150, 100), &m_host, 30));
    tabs.InsertItem(0, L"x");
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(WS_CHILD | WS_VISIBLE, CRect(0, 110, 150, 130), &m_host, 31));
    HDITEM column = {};
    column.mask = HDI_WIDTH | HDI_FORMAT;
    column.cxy = 40;
    column.fmt = HDF_OWNERDRAW;
    header.InsertItem(0, &column);
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_SORT,
                             CRect(160, 60, 250, 160), &m_host, 32));
    for (const LPARAM data : {2, 1})
        combo.SendMessage(CB_ADDSTRING, 0, data);
    // The host is told of nothing: the objects have answered.
    m_host.TakeLog();
    m_host.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    for (const std::string& line : m_host.TakeLog())
        EXPECT_EQ(line.find("command"), std::string::npos) << line;
    EXPECT_EQ(combo.GetCount(), 2);
}

TEST_F(ControlCreation, RuntimeClassesOfTheRest)
{
    const CRuntimeClass* const all[] = {
        RUNTIME_CLASS(CStatic),      RUNTIME_CLASS(CButton),   RUNTIME_CLASS(CScrollBar),
        RUNTIME_CLASS(CEdit),        RUNTIME_CLASS(CComboBox), RUNTIME_CLASS(CBitmapButton),
        RUNTIME_CLASS(CSplitterWnd), RUNTIME_CLASS(CToolBar),  RUNTIME_CLASS(CStatusBar)};
    for (const CRuntimeClass* const one : all)
    {
        EXPECT_TRUE(one->IsDerivedFrom(RUNTIME_CLASS(CWnd))) << one->m_lpszClassName;
        EXPECT_EQ(CRuntimeClass::FromName(one->m_lpszClassName), one);
    }
    const CEdit edit;
    EXPECT_STREQ(edit.GetRuntimeClass()->m_lpszClassName, "CEdit");
    const CStatic label;
    EXPECT_STREQ(label.GetRuntimeClass()->m_lpszClassName, "CStatic");
    const CButton button;
    EXPECT_STREQ(button.GetRuntimeClass()->m_lpszClassName, "CButton");
    const CScrollBar bar;
    EXPECT_STREQ(bar.GetRuntimeClass()->m_lpszClassName, "CScrollBar");
    const CBitmapButton picture;
    EXPECT_STREQ(picture.GetRuntimeClass()->m_lpszClassName, "CBitmapButton");
}

} // namespace
} // namespace quor::test
