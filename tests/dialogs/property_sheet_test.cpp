// CPropertySheet with tabs: modal, modeless, its pages and what they are told.
#include "tests/dialogs/TestSheet.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

class SheetWithTabs : public testing::Test
{
protected:
    SheetWithTabs()
    {
        m_sheet.AddPage(&m_one);
        m_sheet.AddPage(&m_two);
    }

    std::string TakeLog()
    {
        std::string log;
        log.swap(m_log);
        return log;
    }
    void Type(TestPage& page, int id, LPCTSTR text) { ::SetWindowText(page.Item(id), text); }
    BOOL IsEnabled(int button) { return ::IsWindowEnabled(::GetDlgItem(m_sheet.m_hWnd, button)); }

    std::string m_log;
    HostWindow m_host;
    TestPage m_one{m_log, "one", IDD_FIRST_PAGE, IDS_FIRST_PAGE};
    TestPage m_two{m_log, "two", IDD_SECOND_PAGE};
    TestSheet m_sheet{_T("Sheet"), &m_host};
};

TEST_F(SheetWithTabs, OkReadsChecksAndAppliesThePagesThatWereShown)
{
    m_one.text = _T("before");
    m_one.number = 3;
    CString shown;
    m_sheet.inLoop = [&] {
        ::GetWindowText(m_one.Item(IDC_NAME), shown.GetBuffer(20), 20);
        shown.ReleaseBuffer();
        Type(m_one, IDC_NAME, _T("after"));
        Type(m_one, IDC_NUMBER, _T("4"));
        m_sheet.PressButton(PSBTN_OK);
    };
    EXPECT_EQ(IDOK, m_sheet.DoModal());
    EXPECT_STREQ(_T("before"), shown);
    EXPECT_STREQ(_T("after"), m_one.text);
    EXPECT_EQ(4, m_one.number);
    EXPECT_EQ("one:init one:active one:kill one:apply one:ok ", m_log);
    EXPECT_EQ(1, m_sheet.initCalls);
    EXPECT_EQ(nullptr, m_sheet.m_hWnd);
    EXPECT_EQ(nullptr, m_one.m_hWnd);
}

TEST_F(SheetWithTabs, CancelAsksTheShownPageAndResetsAll)
{
    m_sheet.inLoop = [&] {
        Type(m_one, IDC_NAME, _T("lost"));
        m_one.agreesToCancel = FALSE;
        m_sheet.PressButton(PSBTN_CANCEL);
        EXPECT_NE(nullptr, m_sheet.GetActivePage());
        m_one.agreesToCancel = TRUE;
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    EXPECT_EQ(IDCANCEL, m_sheet.DoModal());
    EXPECT_EQ("one:init one:active one:query one:query one:reset one:cancel ", m_log);
    EXPECT_TRUE(m_one.text.IsEmpty());
}

TEST_F(SheetWithTabs, DisablesItsOwnerWhileItIsOpen)
{
    BOOL enabled = TRUE;
    m_sheet.inLoop = [&] {
        enabled = m_host.IsWindowEnabled();
        m_sheet.EndDialog(1234);
    };
    EXPECT_EQ(1234, m_sheet.DoModal());
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(SheetWithTabs, PagesAreMadeWhenTheyAreFirstShown)
{
    m_sheet.inLoop = [&] {
        EXPECT_EQ(nullptr, m_two.m_hWnd);
        EXPECT_TRUE(m_sheet.SetActivePage(1));
        EXPECT_EQ(1, m_sheet.GetActiveIndex());
        EXPECT_EQ(&m_two, m_sheet.GetActivePage());
        EXPECT_TRUE(m_sheet.SetActivePage(&m_one));
        EXPECT_EQ(&m_one, m_sheet.GetActivePage());
        EXPECT_FALSE(m_sheet.SetActivePage(7));
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
    EXPECT_EQ("one:init one:active one:kill two:init two:active two:kill one:active "
              "one:query one:reset one:cancel two:reset two:cancel ",
              m_log);
}

TEST_F(SheetWithTabs, APageThatIsShownAgainShowsItsMembers)
{
    CString shown;
    m_sheet.inLoop = [&] {
        m_sheet.SetActivePage(1);
        m_one.text = _T("changed meanwhile");
        m_sheet.SetActivePage(0);
        m_one.GetDlgItemText(IDC_NAME, shown);
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
    EXPECT_STREQ(_T("changed meanwhile"), shown);
}

TEST_F(SheetWithTabs, AFailedCheckKeepsThePage)
{
    MessageBoxProbe boxes;
    m_sheet.inLoop = [&] {
        Type(m_one, IDC_NUMBER, _T("no number"));
        m_sheet.SetActivePage(1);
        EXPECT_EQ(0, m_sheet.GetActiveIndex());
        m_sheet.PressButton(PSBTN_OK);
        EXPECT_EQ(&m_one, m_sheet.GetActivePage());
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    EXPECT_EQ(IDCANCEL, m_sheet.DoModal());
    EXPECT_EQ(2u, boxes.Shown().size());
    EXPECT_EQ("one:init one:active one:stays one:stays one:query one:reset one:cancel ", m_log);
}

TEST_F(SheetWithTabs, APageThatDoesNotApplyKeepsTheSheet)
{
    m_one.applies = FALSE;
    m_sheet.inLoop = [&] {
        m_sheet.PressButton(PSBTN_OK);
        EXPECT_EQ(&m_one, m_sheet.GetActivePage());
        m_one.applies = TRUE;
        m_sheet.PressButton(PSBTN_OK);
    };
    EXPECT_EQ(IDOK, m_sheet.DoModal());
}

TEST_F(SheetWithTabs, APageThatRefusesActivationIsPassedOver)
{
    m_one.acceptsActivation = FALSE;
    m_sheet.inLoop = [&] {
        EXPECT_EQ(&m_two, m_sheet.GetActivePage());
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
    EXPECT_EQ(0u, m_log.find("one:init one:active two:init two:active "));
}

TEST_F(SheetWithTabs, ApplyNeedsAModifiedPageAndKeepsTheSheet)
{
    m_sheet.inLoop = [&] {
        EXPECT_FALSE(IsEnabled(ID_APPLY_NOW));
        m_one.SetModified();
        EXPECT_TRUE(IsEnabled(ID_APPLY_NOW));
        m_one.SetModified(FALSE);
        EXPECT_FALSE(IsEnabled(ID_APPLY_NOW));
        m_one.SetModified();
        TakeLog();
        m_sheet.PressButton(PSBTN_APPLYNOW);
        EXPECT_EQ("one:kill one:apply one:ok ", TakeLog().substr(0, 26));
        EXPECT_FALSE(IsEnabled(ID_APPLY_NOW));
        m_one.CancelToClose();
        EXPECT_FALSE(IsEnabled(IDCANCEL));
        m_sheet.PressButton(PSBTN_OK);
    };
    EXPECT_EQ(IDOK, m_sheet.DoModal());
}

TEST_F(SheetWithTabs, TheStartPageIsShownFirst)
{
    EXPECT_EQ(0, m_sheet.GetActiveIndex());
    EXPECT_TRUE(m_sheet.SetActivePage(1));
    EXPECT_EQ(&m_two, m_sheet.GetActivePage());
    m_sheet.inLoop = [&] {
        EXPECT_EQ(&m_two, m_sheet.GetActivePage());
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
    EXPECT_EQ(0u, m_log.find("two:init two:active "));
}

TEST_F(SheetWithTabs, TabsAndTitleShowTheCaptions)
{
    m_sheet.inLoop = [&] {
        CString title;
        m_sheet.GetWindowText(title);
        EXPECT_STREQ(_T("Sheet"), title);
        m_sheet.SetTitle(_T("Other"));
        m_sheet.GetWindowText(title);
        EXPECT_STREQ(_T("Other"), title);
        CTabCtrl* tabs = m_sheet.GetTabControl();
        ASSERT_EQ(2, tabs->GetItemCount());
        TCHAR text[20] = {};
        TCITEM item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = _countof(text);
        tabs->GetItem(0, &item);
        EXPECT_STREQ(_T("Renamed"), text);
        tabs->GetItem(1, &item);
        EXPECT_STREQ(_T("Second"), text);
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
}

TEST_F(SheetWithTabs, PagesComeAndGo)
{
    TestPage three(m_log, "three", IDD_SECOND_PAGE);
    EXPECT_EQ(2, m_sheet.GetPageCount());
    EXPECT_EQ(1, m_sheet.GetPageIndex(&m_two));
    EXPECT_EQ(-1, m_sheet.GetPageIndex(&three));
    m_sheet.inLoop = [&] {
        m_sheet.AddPage(&three);
        EXPECT_EQ(3, m_sheet.GetTabControl()->GetItemCount());
        EXPECT_EQ(&three, m_sheet.GetPage(2));
        m_sheet.RemovePage(&m_two);
        EXPECT_EQ(2, m_sheet.GetTabControl()->GetItemCount());
        EXPECT_EQ(0, m_sheet.GetPageIndex(&m_one));
        EXPECT_EQ(1, m_sheet.GetPageIndex(&three));
        EXPECT_TRUE(m_sheet.SetActivePage(&three));
        EXPECT_NE(nullptr, three.m_hWnd);
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
    EXPECT_EQ(2, m_sheet.GetPageCount());
    m_sheet.RemovePage(1);
    EXPECT_EQ(1, m_sheet.GetPageCount());
    EXPECT_EQ(&m_one, m_sheet.GetPage(0));
}

TEST_F(SheetWithTabs, PagesAskTheirSiblings)
{
    m_two.siblingAnswer = 17;
    m_sheet.inLoop = [&] {
        EXPECT_EQ(0, m_one.QuerySiblings(1, 2)) << "the second page does not exist yet";
        m_sheet.SetActivePage(1);
        EXPECT_EQ(17, m_two.QuerySiblings(1, 2));
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
}

TEST_F(SheetWithTabs, KeysMoveBetweenControlsAndPages)
{
    m_sheet.inLoop = [&] {
        ::SetFocus(m_one.Item(IDC_NAME));
        KeyPress(VK_TAB);
        EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == m_one.Item(IDC_NUMBER); }));
        KeyPress(VK_TAB, Modifiers::Control);
        EXPECT_TRUE(PumpUntil([&] { return m_sheet.GetActiveIndex() == 1; }));
        KeyPress(VK_ESCAPE);
    };
    EXPECT_EQ(IDCANCEL, m_sheet.DoModal());
}

TEST_F(SheetWithTabs, EnterPressesOk)
{
    m_sheet.inLoop = [&] {
        ::SetFocus(m_one.Item(IDC_NAME));
        KeyPress(VK_RETURN);
    };
    EXPECT_EQ(IDOK, m_sheet.DoModal());
}

TEST_F(SheetWithTabs, ClosingTheWindowIsCancel)
{
    m_sheet.inLoop = [&] { m_sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE); };
    EXPECT_EQ(IDCANCEL, m_sheet.DoModal());
    EXPECT_EQ("one:init one:active one:query one:reset one:cancel ", m_log);
}

TEST_F(SheetWithTabs, MapsDialogUnits)
{
    m_sheet.inLoop = [&] {
        CRect rect(0, 0, 100, 100);
        CRect expected = rect;
        m_sheet.MapDialogRect(&rect);
        ::MapDialogRect(m_sheet.m_hWnd, &expected);
        EXPECT_EQ(expected, rect);
        EXPECT_GT(rect.bottom, 100);
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
}

TEST_F(SheetWithTabs, TabsInOneRowWhenNotStacked)
{
    m_sheet.EnableStackedTabs(FALSE);
    m_sheet.inLoop = [&] {
        EXPECT_EQ(0u, m_sheet.GetTabControl()->GetStyle() & TCS_MULTILINE);
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    m_sheet.DoModal();
}

TEST_F(SheetWithTabs, AMissingTemplateIsAFailure)
{
    std::string log;
    TestPage missing(log, "missing", 9999);
    CPropertySheet sheet(_T("Sheet"), &m_host);
    sheet.AddPage(&missing);
    MessageBoxProbe boxes;
    EXPECT_EQ(-1, sheet.DoModal());
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(SheetWithTabs, ModelessHasNoButtonsAndLeavesTheOwnerEnabled)
{
    ASSERT_TRUE(m_sheet.Create(&m_host));
    EXPECT_TRUE(m_host.IsWindowEnabled());
    EXPECT_TRUE(m_sheet.IsWindowVisible());
    for (const int id : {IDOK, IDCANCEL, static_cast<int>(ID_APPLY_NOW)})
    {
        const HWND button = ::GetDlgItem(m_sheet.m_hWnd, id);
        EXPECT_FALSE(::IsWindowVisible(button)) << id;
        CRect place, sheet;
        ::GetWindowRect(button, &place);
        m_sheet.GetWindowRect(&sheet);
        EXPECT_GE(place.top, sheet.bottom) << "the sheet ends where the buttons would be";
    }
    EXPECT_TRUE(::IsWindowVisible(m_one.m_hWnd));
    EXPECT_TRUE(m_sheet.SetActivePage(1));
    EXPECT_EQ("one:init one:active one:kill two:init two:active ", TakeLog());
    m_sheet.PostMessage(WM_CLOSE);
    EXPECT_TRUE(PumpUntil([&] { return m_sheet.m_hWnd == NULL; }));
    EXPECT_EQ(nullptr, m_two.m_hWnd);
}

TEST_F(SheetWithTabs, ModelessCanBeAChildWithAStyleOfItsOwn)
{
    ASSERT_TRUE(m_sheet.Create(&m_host, WS_CHILD | WS_VISIBLE | DS_CONTROL, WS_EX_CONTROLPARENT));
    EXPECT_EQ(&m_host, m_sheet.GetParent());
    EXPECT_NE(0u, m_sheet.GetStyle() & WS_CHILD);
    EXPECT_EQ(0u, m_sheet.GetStyle() & WS_CAPTION);
    m_sheet.EndDialog(0);
    EXPECT_EQ(nullptr, m_sheet.m_hWnd);
}

} // namespace
