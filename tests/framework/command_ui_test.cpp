// The state of menu items and controls: update handlers, automatic greying, disabled accelerators.
#include "tests/framework/DialogTemplateBuilder.h"
#include "tests/framework/WindowLog.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class UpdatingWindow : public CWnd
{
public:
    UpdatingWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, NULL, NULL);
    }
    ~UpdatingWindow() override { DestroyWindow(); }
    bool m_isEnabled = true;
    int m_commands = 0;

protected:
    afx_msg void OnCommandHandler() { ++m_commands; }
    afx_msg void OnUpdate(CCmdUI* state)
    {
        state->Enable(m_isEnabled);
        state->SetCheck(1);
        state->SetText(L"Updated");
    }
    afx_msg void OnUpdateElsewhere(CCmdUI* state) { state->ContinueRouting(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(UpdatingWindow, CWnd)
    ON_COMMAND(100, &UpdatingWindow::OnCommandHandler)
    ON_COMMAND(101, &UpdatingWindow::OnCommandHandler)
    ON_UPDATE_COMMAND_UI(100, &UpdatingWindow::OnUpdate)
    ON_UPDATE_COMMAND_UI(103, &UpdatingWindow::OnUpdateElsewhere)
END_MESSAGE_MAP()

CCmdUI& At(CCmdUI& state, CMenu& menu, UINT index)
{
    state.m_pMenu = &menu;
    state.m_nIndex = index;
    state.m_nID = menu.GetMenuItemID(static_cast<int>(index));
    state.m_nIndexMax = static_cast<UINT>(menu.GetMenuItemCount());
    return state;
}

class CommandUI : public testing::Test
{
protected:
    CommandUI()
    {
        m_menu.CreatePopupMenu();
        for (UINT id = 100; id < 104; ++id)
            m_menu.AppendMenu(MF_STRING, id, L"Item");
    }
    UINT StateAfterUpdate(UINT index, BOOL disable = TRUE)
    {
        CCmdUI state;
        At(state, m_menu, index).DoUpdate(&m_window, disable);
        return m_menu.GetMenuState(index, MF_BYPOSITION);
    }

    UpdatingWindow m_window;
    CMenu m_menu;
};

TEST_F(CommandUI, AHandlerSetsTheItem)
{
    EXPECT_EQ(StateAfterUpdate(0), static_cast<UINT>(MF_CHECKED));
    CString text;
    m_menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, L"Updated");
    m_window.m_isEnabled = false;
    EXPECT_TRUE(StateAfterUpdate(0) & MF_GRAYED);
}

TEST_F(CommandUI, WithoutAnUpdateHandlerTheCommandHandlerDecides)
{
    EXPECT_FALSE(StateAfterUpdate(1) & MF_GRAYED);
    EXPECT_FALSE(StateAfterUpdate(2, FALSE) & MF_GRAYED);
    EXPECT_TRUE(StateAfterUpdate(2) & MF_GRAYED);
    EXPECT_TRUE(StateAfterUpdate(3) & MF_GRAYED) << "a handler that passes on decides nothing";
}

TEST_F(CommandUI, ContinuedRoutingCountsAsNotHandled)
{
    CCmdUI state;
    EXPECT_TRUE(At(state, m_menu, 0).DoUpdate(&m_window, FALSE));
    CCmdUI passed;
    EXPECT_FALSE(At(passed, m_menu, 3).DoUpdate(&m_window, FALSE));
}

TEST_F(CommandUI, ARadioItemGetsADot)
{
    CCmdUI state;
    At(state, m_menu, 0).SetRadio();
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    ::GetMenuItemInfo(m_menu.GetSafeHmenu(), 0, TRUE, &info);
    EXPECT_TRUE(info.fType & MFT_RADIOCHECK);
    EXPECT_TRUE(info.fState & MFS_CHECKED);
}

TEST_F(CommandUI, ACommandThatIsDisabledIsNotRun)
{
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(100, 1));
    EXPECT_EQ(m_window.m_commands, 1);
    m_window.m_isEnabled = false;
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, MAKEWPARAM(100, 1)), 1);
    EXPECT_EQ(m_window.m_commands, 1);
}

// A button that answers for itself.
class SelfUpdatingButton : public CWnd
{
protected:
    afx_msg void OnUpdateSelf(CCmdUI* state) { state->SetText(L"Own"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SelfUpdatingButton, CWnd)
    ON_UPDATE_COMMAND_UI_REFLECT(&SelfUpdatingButton::OnUpdateSelf)
END_MESSAGE_MAP()

TEST_F(CommandUI, DialogControlsAreUpdated)
{
    CWnd handled;
    CWnd unhandled;
    CWnd check;
    SelfUpdatingButton self;
    ASSERT_TRUE(handled.Create(L"BUTTON", L"", BS_AUTOCHECKBOX, CRect(0, 0, 9, 9), &m_window, 100));
    ASSERT_TRUE(unhandled.Create(L"BUTTON", L"", BS_PUSHBUTTON, CRect(0, 0, 9, 9), &m_window, 200));
    ASSERT_TRUE(check.Create(L"BUTTON", L"", BS_AUTOCHECKBOX, CRect(0, 0, 9, 9), &m_window, 201));
    ASSERT_TRUE(self.Create(L"BUTTON", L"", BS_PUSHBUTTON, CRect(0, 0, 9, 9), &m_window, 202));
    m_window.m_isEnabled = false;
    m_window.UpdateDialogControls(&m_window, TRUE);

    EXPECT_FALSE(handled.IsWindowEnabled());
    EXPECT_EQ(handled.SendMessage(BM_GETCHECK), BST_CHECKED);
    EXPECT_FALSE(unhandled.IsWindowEnabled());
    EXPECT_TRUE(check.IsWindowEnabled()) << "only push buttons are disabled for want of a handler";
    EXPECT_TRUE(self.IsWindowEnabled());
    CString text;
    self.GetWindowText(text);
    EXPECT_STREQ(text, L"Own");
}

TEST_F(CommandUI, AFocusedControlThatIsDisabledPassesTheFocusOn)
{
    HostWindow host;
    DialogTemplateBuilder layout;
    layout.AddButton(101).AddButton(102);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), &host));
    dialog.ShowWindow(SW_SHOW);
    CWnd& first = *dialog.GetDlgItem(101);
    CWnd& second = *dialog.GetDlgItem(102);
    first.SetFocus();
    ASSERT_EQ(::GetFocus(), first.m_hWnd);
    CCmdUI state;
    state.m_pOther = &first;
    state.Enable(TRUE);
    EXPECT_EQ(::GetFocus(), first.m_hWnd);
    state.Enable(FALSE);
    EXPECT_EQ(::GetFocus(), second.m_hWnd);
    EXPECT_FALSE(first.IsWindowEnabled());
    dialog.DestroyWindow();
}

} // namespace
} // namespace quor::test
