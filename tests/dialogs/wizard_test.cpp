// CPropertySheet as a wizard.
#include "tests/dialogs/TestSheet.h"
#include "tests/support/HostWindow.h"

namespace
{

using namespace quor::test;

class Wizard : public testing::Test
{
protected:
    Wizard()
    {
        for (TestPage* page : {&m_one, &m_two, &m_three})
            m_sheet.AddPage(page);
        m_sheet.SetWizardMode();
    }

    HWND Button(int id) { return ::GetDlgItem(m_sheet.m_hWnd, id); }

    std::string m_log;
    HostWindow m_host;
    TestPage m_one{m_log, "one", IDD_FIRST_PAGE};
    TestPage m_two{m_log, "two", IDD_SECOND_PAGE};
    TestPage m_three{m_log, "three", IDD_FIRST_PAGE};
    TestSheet m_sheet{IDS_SHEET, &m_host};
};

TEST_F(Wizard, StepsForwardBackAndToTheFinish)
{
    m_sheet.inLoop = [&] {
        m_sheet.PressButton(PSBTN_NEXT);
        EXPECT_EQ(1, m_sheet.GetActiveIndex());
        m_sheet.PressButton(PSBTN_BACK);
        EXPECT_EQ(&m_one, m_sheet.GetActivePage());
        m_sheet.PressButton(PSBTN_FINISH);
    };
    EXPECT_EQ(ID_WIZFINISH, m_sheet.DoModal());
    // When a page is asked to let go of its data differs between versions of the system.
    std::string steps = m_log;
    for (size_t at; (at = steps.find("one:kill ")) != std::string::npos;)
        steps.erase(at, 9);
    for (size_t at; (at = steps.find("two:kill ")) != std::string::npos;)
        steps.erase(at, 9);
    EXPECT_EQ("one:init one:active one:next two:init two:active two:back one:active one:finish ", steps);
}

TEST_F(Wizard, AStepMayStayOrGoElsewhere)
{
    m_sheet.inLoop = [&] {
        m_one.next = -1;
        m_sheet.PressButton(PSBTN_NEXT);
        EXPECT_EQ(&m_one, m_sheet.GetActivePage());
        m_one.next = IDD_SECOND_PAGE;
        m_sheet.PressButton(PSBTN_NEXT);
        EXPECT_EQ(&m_two, m_sheet.GetActivePage());
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    EXPECT_EQ(IDCANCEL, m_sheet.DoModal());
}

TEST_F(Wizard, FinishMayBeRefused)
{
    m_one.finishes = FALSE;
    m_sheet.inLoop = [&] {
        m_sheet.PressButton(PSBTN_FINISH);
        EXPECT_EQ(&m_one, m_sheet.GetActivePage());
        m_one.finishes = TRUE;
        m_sheet.PressButton(PSBTN_FINISH);
    };
    EXPECT_EQ(ID_WIZFINISH, m_sheet.DoModal());
}

TEST_F(Wizard, PagesChooseTheButtons)
{
    m_one.whenActive = [&] { m_sheet.SetWizardButtons(PSWIZB_NEXT); };
    m_sheet.inLoop = [&] {
        EXPECT_FALSE(::IsWindowEnabled(Button(ID_WIZBACK)));
        EXPECT_TRUE(::IsWindowEnabled(Button(ID_WIZNEXT)));
        m_sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
        EXPECT_TRUE(PumpUntil([&] { return ::IsWindowEnabled(Button(ID_WIZBACK)) != FALSE; }));
        EXPECT_TRUE(::IsWindowVisible(Button(ID_WIZFINISH)));
        m_sheet.SetFinishText(_T("Build it"));
        TCHAR text[20] = {};
        ::GetWindowText(Button(ID_WIZFINISH), text, _countof(text));
        EXPECT_STREQ(_T("Build it"), text);
        m_sheet.PressButton(PSBTN_CANCEL);
    };
    EXPECT_EQ(IDCANCEL, m_sheet.DoModal());
}

} // namespace
