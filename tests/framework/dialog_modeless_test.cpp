// Modeless dialogs: creation, focus, tab order, command routing and keys.
#include "tests/framework/ControlsResource.h"
#include "tests/framework/ScriptedDialog.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <afxdialogex.h>
#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

constexpr int firstEdit = 101;
constexpr int secondEdit = 102;
constexpr UINT localCommand = 0x4001;
constexpr UINT globalCommand = 0x8001;
constexpr UINT reservedCommand = 0xf000;

class Modeless : public CDialog
{
public:
    bool deleteSelf = false;
    int destroyed = 0;
    int* deletions = nullptr;

    using CDialog::OnCmdMsg;

    ~Modeless() override
    {
        if (deletions != nullptr)
            ++*deletions;
    }

protected:
    void OnOK() override { DestroyWindow(); }
    void OnCancel() override { DestroyWindow(); }
    void PostNcDestroy() override
    {
        ++destroyed;
        if (deleteSelf)
            delete this;
    }
};

// An owner that handles three commands.
class CommandOwner : public HostWindow
{
public:
    int localCalls = 0;
    int globalCalls = 0;
    int reservedCalls = 0;

protected:
    void OnLocal() { ++localCalls; }
    void OnGlobal() { ++globalCalls; }
    void OnReserved() { ++reservedCalls; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandOwner, HostWindow)
    ON_COMMAND(localCommand, &CommandOwner::OnLocal)
    ON_COMMAND(globalCommand, &CommandOwner::OnGlobal)
    ON_COMMAND(reservedCommand, &CommandOwner::OnReserved)
END_MESSAGE_MAP()

class DialogModeless : public testing::Test
{
protected:
    DialogModeless()
    {
        m_layout.AddEdit(firstEdit).AddEdit(secondEdit).AddDefaultButton(IDOK);
        m_dialog.CreateIndirect(m_layout.Get(), &m_owner);
    }

    CommandOwner m_owner;
    DialogTemplateBuilder m_layout;
    Modeless m_dialog;
};

TEST_F(DialogModeless, Create_ShowsAVisibleTemplateAndLeavesTheOwnerEnabled)
{
    ASSERT_NE(m_dialog.m_hWnd, nullptr);
    EXPECT_TRUE(m_dialog.IsWindowVisible());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(CWnd::FromHandlePermanent(m_dialog.m_hWnd), &m_dialog);
}

TEST_F(DialogModeless, Create_WithoutTemplate_Fails)
{
    Modeless dialog;
    EXPECT_FALSE(dialog.Create(31999, &m_owner));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(DialogModeless, FocusStartsOnTheFirstTabStop)
{
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(m_dialog.m_hWnd, firstEdit));
}

TEST_F(DialogModeless, FocusMovesAlongTheTabOrder)
{
    m_dialog.NextDlgCtrl();
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), secondEdit);
    m_dialog.NextDlgCtrl();
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDOK);
    m_dialog.PrevDlgCtrl();
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), secondEdit);
    m_dialog.GotoDlgCtrl(m_dialog.GetDlgItem(firstEdit));
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), firstEdit);
}

TEST_F(DialogModeless, PostedTab_MovesTheFocus)
{
    PostKey(::GetFocus(), VK_TAB);
    EXPECT_TRUE(PumpUntil([] { return ::GetDlgCtrlID(::GetFocus()) == secondEdit; }));
}

TEST_F(DialogModeless, PostedEnter_ReachesOnOk)
{
    PostKey(::GetFocus(), VK_RETURN);
    EXPECT_TRUE(PumpUntil([this] { return m_dialog.m_hWnd == NULL; }));
    EXPECT_EQ(m_dialog.destroyed, 1);
}

TEST_F(DialogModeless, MapDialogRect_GivesPixels)
{
    CRect rect(0, 0, 4, 8);
    m_dialog.MapDialogRect(&rect);
    const DWORD units = ::GetDialogBaseUnits();
    EXPECT_GT(rect.Width(), 2);
    EXPECT_LT(rect.Width(), 4 * LOWORD(units));
    EXPECT_GT(rect.Height(), rect.Width());
}

TEST_F(DialogModeless, Commands_FromTheGlobalRangeReachTheOwner)
{
    m_dialog.SendMessage(WM_COMMAND, globalCommand);
    m_dialog.SendMessage(WM_COMMAND, localCommand);
    m_dialog.SendMessage(WM_COMMAND, reservedCommand);
    EXPECT_EQ(m_owner.globalCalls, 1);
    EXPECT_EQ(m_owner.localCalls, 0);
    EXPECT_EQ(m_owner.reservedCalls, 0);
}

TEST_F(DialogModeless, ControlNotifications_DoNotLeaveTheDialog)
{
    EXPECT_FALSE(m_dialog.OnCmdMsg(globalCommand, EN_CHANGE, NULL, NULL));
    EXPECT_EQ(m_owner.globalCalls, 0);
}

TEST_F(DialogModeless, HeapDialog_DeletesItselfInPostNcDestroy)
{
    int deletions = 0;
    Modeless* dialog = new Modeless;
    dialog->deleteSelf = true;
    dialog->deletions = &deletions;
    ASSERT_TRUE(dialog->CreateIndirect(m_layout.Get(), &m_owner));
    dialog->PostMessage(WM_CLOSE);
    EXPECT_TRUE(PumpUntil([&] { return deletions == 1; }));
}

TEST_F(DialogModeless, OnSetFont_GetsTheFontOfTheTemplateBeforeOnInitDialog)
{
    class FontDialog : public CDialog
    {
    public:
        std::vector<std::string> calls;
        void OnSetFont(CFont* font) override
        {
            calls.push_back(font != NULL ? "font" : "no font");
            CDialog::OnSetFont(font);
        }
        void PreInitDialog() override { calls.push_back("pre"); }
        BOOL OnInitDialog() override
        {
            calls.push_back("init");
            return CDialog::OnInitDialog();
        }
    };
    FontDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_WITH_FONT, &m_owner));
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"font", "pre", "init"}));
}

TEST_F(DialogModeless, InitialDataOfTheTemplate_FillsItsLists)
{
    // Control, message, length, text; ends with a zero.
    const char* items[] = {"first", "second"};
    std::string data;
    const auto append = [&data](const void* bytes, size_t size) {
        data.append(static_cast<const char*>(bytes), size);
    };
    constexpr WORD comboId = 110;
    for (const char* item : items)
    {
        const WORD head[] = {comboId, 0x403};
        const DWORD length = static_cast<DWORD>(std::strlen(item) + 1);
        append(head, sizeof head);
        append(&length, sizeof length);
        append(item, length);
    }
    const WORD end = 0;
    append(&end, sizeof end);

    DialogTemplateBuilder layout;
    layout.Add(L"COMBOBOX", L"", CBS_DROPDOWNLIST, comboId);
    Modeless dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), &m_owner, data.data()));
    CComboBox* combo = static_cast<CComboBox*>(dialog.GetDlgItem(comboId));
    ASSERT_EQ(combo->GetCount(), 2);
    CString text;
    combo->GetLBText(1, text);
    EXPECT_STREQ(text, L"second");
}

TEST_F(DialogModeless, RunTimeClass_IsThatOfADialogEx)
{
    CDialogEx dialog(1U);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CDialogEx)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CDialog)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_STREQ(dialog.GetRuntimeClass()->m_lpszClassName, "CDialogEx");
}

} // namespace
