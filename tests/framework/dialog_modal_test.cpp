// Modal dialogs: results, keys, nesting, and what happens to the owner.
#include "tests/framework/ScriptedDialog.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/MessageBoxProbe.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

constexpr int editId = 101;
constexpr int otherButtonId = 102;

DialogTemplateBuilder EditAndButtons()
{
    DialogTemplateBuilder layout;
    layout.AddEdit(editId).AddDefaultButton(IDOK).AddButton(IDCANCEL).AddButton(otherButtonId);
    return layout;
}

class DialogModal : public testing::Test
{
protected:
    HostWindow m_host;
    DialogTemplateBuilder m_layout = EditAndButtons();
    ScriptedDialog m_dialog{m_layout, &m_host};
};

TEST_F(DialogModal, EndDialog_GivesItsValueToDoModal)
{
    m_dialog.inLoop = [this] { m_dialog.EndDialog(1234); };
    EXPECT_EQ(m_dialog.DoModal(), 1234);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
    EXPECT_EQ(m_dialog.okCalls, 0);
}

TEST_F(DialogModal, EndDialog_InOnInitDialog_EndsItBeforeTheLoop)
{
    m_dialog.atStart = [this] { m_dialog.EndDialog(77); };
    m_dialog.inLoop = [] { FAIL() << "the loop ran"; };
    EXPECT_EQ(m_dialog.DoModal(), 77);
}

TEST_F(DialogModal, EndDialog_LetsTheCurrentHandlerFinish)
{
    bool windowWasAlive = false;
    m_dialog.inLoop = [&] {
        m_dialog.EndDialog(5);
        windowWasAlive = ::IsWindow(m_dialog.m_hWnd) != FALSE;
    };
    EXPECT_EQ(m_dialog.DoModal(), 5);
    EXPECT_TRUE(windowWasAlive);
}

TEST_F(DialogModal, EnterInAnEdit_PressesTheDefaultButton)
{
    m_dialog.inLoop = [this] { PostKey(m_dialog.Item(editId), VK_RETURN); };
    EXPECT_EQ(m_dialog.DoModal(), IDOK);
    EXPECT_EQ(m_dialog.okCalls, 1);
}

TEST_F(DialogModal, Escape_CallsOnCancel)
{
    m_dialog.inLoop = [this] { PostKey(m_dialog.Item(editId), VK_ESCAPE); };
    EXPECT_EQ(m_dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_dialog.cancelCalls, 1);
    EXPECT_EQ(m_dialog.okCalls, 0);
}

TEST_F(DialogModal, EnterWithoutADefaultButton_CallsOnOk)
{
    DialogTemplateBuilder layout;
    layout.AddEdit(editId);
    ScriptedDialog dialog(layout, &m_host);
    dialog.inLoop = [&] { PostKey(dialog.Item(editId), VK_RETURN); };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.okCalls, 1);
}

TEST_F(DialogModal, EnterAfterSetDefID_PressesTheNewDefaultButton)
{
    class OtherDefault : public ScriptedDialog
    {
    public:
        using ScriptedDialog::ScriptedDialog;
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
        {
            if (LOWORD(wParam) == otherButtonId)
                EndDialog(otherButtonId);
            return ScriptedDialog::OnCommand(wParam, lParam);
        }
    };
    OtherDefault dialog(m_layout, &m_host);
    dialog.inLoop = [&] {
        dialog.SetDefID(otherButtonId);
        EXPECT_EQ(LOWORD(dialog.GetDefID()), otherButtonId);
        EXPECT_EQ(HIWORD(dialog.GetDefID()), DC_HASDEFID);
        PostKey(dialog.Item(editId), VK_RETURN);
    };
    EXPECT_EQ(dialog.DoModal(), otherButtonId);
    EXPECT_EQ(dialog.okCalls, 0);
}

TEST_F(DialogModal, EnterInAnEditThatWantsIt_StaysThere)
{
    DialogTemplateBuilder layout;
    layout.AddEdit(editId, WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN).AddDefaultButton(IDOK);
    ScriptedDialog dialog(layout, &m_host);
    int lines = 0;
    dialog.inLoop = [&] {
        ::SetFocus(dialog.Item(editId));
        KeyPress(VK_RETURN);
        lines = static_cast<int>(::SendMessage(dialog.Item(editId), EM_GETLINECOUNT, 0, 0));
        dialog.EndDialog(9);
    };
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_EQ(lines, 2);
    EXPECT_EQ(dialog.okCalls, 0);
}

TEST_F(DialogModal, OnOkThatDoesNotClose_KeepsTheDialogOpen)
{
    m_dialog.closesOnOk = false;
    m_dialog.inLoop = [this] {
        PostKey(m_dialog.Item(editId), VK_RETURN);
        PumpUntil([this] { return m_dialog.okCalls == 1; });
        PostKey(m_dialog.Item(editId), VK_ESCAPE);
    };
    EXPECT_EQ(m_dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_dialog.okCalls, 1);
    EXPECT_EQ(m_dialog.cancelCalls, 1);
}

TEST_F(DialogModal, CloseBox_CallsOnCancel)
{
    m_dialog.inLoop = [this] { m_dialog.PostMessage(WM_SYSCOMMAND, SC_CLOSE); };
    EXPECT_EQ(m_dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_dialog.cancelCalls, 1);
}

TEST_F(DialogModal, Owner_IsDisabledMeanwhileAndActiveAfterwards)
{
    BOOL enabledMeanwhile = TRUE;
    HWND owner = NULL;
    m_dialog.inLoop = [&] {
        enabledMeanwhile = m_host.IsWindowEnabled();
        owner = ::GetWindow(m_dialog.m_hWnd, GW_OWNER);
        m_dialog.EndDialog(1);
    };
    m_dialog.DoModal();
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_EQ(owner, m_host.m_hWnd);
    EXPECT_TRUE(m_host.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), m_host.m_hWnd);
}

TEST_F(DialogModal, Owner_IsEnabledAndActiveBeforeTheDialogIsDestroyed)
{
    struct WatchedDialog : ScriptedDialog
    {
        using ScriptedDialog::ScriptedDialog;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_DESTROY)
            {
                ownerWasEnabled = GetParent()->IsWindowEnabled() != FALSE;
                ownerWasActive = ::GetActiveWindow() == GetParent()->m_hWnd;
            }
            return ScriptedDialog::WindowProc(message, wParam, lParam);
        }
        bool ownerWasEnabled = false;
        bool ownerWasActive = false;
    };
    WatchedDialog dialog(m_layout, &m_host);
    dialog.inLoop = [&] { dialog.EndDialog(1); };
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_TRUE(dialog.ownerWasEnabled);
    EXPECT_TRUE(dialog.ownerWasActive);
}

TEST_F(DialogModal, OwnerThatWasDisabledBefore_StaysDisabled)
{
    m_host.EnableWindow(FALSE);
    m_dialog.inLoop = [this] { m_dialog.EndDialog(1); };
    m_dialog.DoModal();
    EXPECT_FALSE(m_host.IsWindowEnabled());
}

TEST_F(DialogModal, ChildAsParent_DisablesItsTopLevelWindow)
{
    CStatic child;
    ASSERT_TRUE(child.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &m_host));
    ScriptedDialog dialog(m_layout, &child);
    BOOL hostEnabled = TRUE;
    dialog.inLoop = [&] {
        hostEnabled = m_host.IsWindowEnabled();
        dialog.EndDialog(1);
    };
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_FALSE(hostEnabled);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(DialogModal, NestedDialogs_EachHaveTheirResult)
{
    ScriptedDialog inner(m_layout, &m_dialog);
    BOOL outerEnabled = TRUE;
    INT_PTR innerResult = 0;
    inner.inLoop = [&] {
        outerEnabled = m_dialog.IsWindowEnabled();
        PostKey(inner.Item(editId), VK_ESCAPE);
    };
    m_dialog.inLoop = [&] {
        innerResult = inner.DoModal();
        EXPECT_TRUE(m_dialog.IsWindowEnabled());
        EXPECT_FALSE(m_host.IsWindowEnabled());
        PostKey(m_dialog.Item(editId), VK_RETURN);
    };
    EXPECT_EQ(m_dialog.DoModal(), IDOK);
    EXPECT_EQ(innerResult, IDCANCEL);
    EXPECT_FALSE(outerEnabled);
    EXPECT_TRUE(m_host.IsWindowEnabled());
    EXPECT_EQ(m_dialog.cancelCalls, 0);
}

TEST_F(DialogModal, CanRunAgain)
{
    for (int round = 1; round <= 3; ++round)
    {
        m_dialog.inLoop = [&] { m_dialog.EndDialog(round); };
        EXPECT_EQ(m_dialog.DoModal(), round);
    }
    EXPECT_EQ(m_dialog.initCalls, 3);
}

TEST_F(DialogModal, DestroyedWindow_EndsTheLoop)
{
    m_dialog.inLoop = [this] { m_dialog.DestroyWindow(); };
    EXPECT_EQ(m_dialog.DoModal(), -1);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(DialogModal, ExceptionInOnInitDialog_EndsItWithMinusOne)
{
    m_dialog.atStart = [] { AfxThrowUserException(); };
    EXPECT_EQ(m_dialog.DoModal(), -1);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(DialogModal, MissingTemplate_IsMinusOne)
{
    CDialog dialog(31999, &m_host);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(DialogModal, TemplateInAMemoryBlock_IsLockedWhileItRuns)
{
    class FromMemory : public CDialog
    {
    public:
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            EndDialog(::GetDlgItem(m_hWnd, editId) != NULL ? 1 : 2);
            return TRUE;
        }
    };
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, m_layout.SizeInBytes());
    std::memcpy(::GlobalLock(block), m_layout.Get(), m_layout.SizeInBytes());
    ::GlobalUnlock(block);
    FromMemory dialog;
    dialog.InitModalIndirect(block, &m_host);
    EXPECT_EQ(dialog.DoModal(), 1);
    ::GlobalFree(block);
}

TEST_F(DialogModal, TemplateWithoutVisible_IsShownByTheLoop)
{
    DialogTemplateBuilder layout(WS_POPUP | WS_CAPTION | WS_SYSMENU);
    layout.AddEdit(editId);
    ScriptedDialog dialog(layout, &m_host);
    bool shown = false;
    dialog.inLoop = [&] {
        dialog.inLoop = nullptr;
        dialog.SetTimer(1, 1, [](HWND window, UINT, UINT_PTR, DWORD) {
            if (::IsWindowVisible(window))
                ::PostMessage(window, WM_COMMAND, IDCANCEL, 0);
        });
    };
    dialog.atStart = [&] { shown = dialog.IsWindowVisible(); };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(shown) << "visible before the loop";
}

} // namespace
