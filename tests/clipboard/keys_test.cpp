// The keys and commands of the clipboard, as users give them.
#include "tests/clipboard/ClipboardTest.h"

#include <afxres.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr auto control = Modifiers::Control;

class ClipboardKeys : public ClipboardTest
{
protected:
    void Press(WORD key, Modifiers modifiers = control)
    {
        KeyPress(key, modifiers);
        PumpPending();
    }
};

TEST_F(ClipboardKeys, CopyCutAndPaste)
{
    Make();
    Focus();
    Select(0, 0, 0, 1);
    Press('C');
    EXPECT_EQ(TextOnClipboard(), L"0,0\t0,1\r\n");
    cursor.MoveTo(2, 0);
    Press('V');
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|1,1|1,2 / 0,0|0,1|2,2");
    cursor.MoveTo(1, 1);
    Press('X');
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0||1,2 / 0,0|0,1|2,2");
    EXPECT_EQ(TextOnClipboard(), L"1,1\r\n");
    EXPECT_EQ(reports, 3);
}

TEST_F(ClipboardKeys, FillDownAndRight)
{
    Make();
    Focus();
    Select(0, 0, 2, 0);
    Press('D');
    Select(1, 1, 1, 2);
    Press('R');
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 0,0|1,1|1,1 / 0,0|2,1|2,2");
}

// The cursor was attached first, and has these keys, too.
TEST_F(ClipboardKeys, ComeBeforeThoseOfTheCursor_ButOnlyThem)
{
    Make();
    Focus();
    grid.SelectRow(0, true);
    Press('C');
    EXPECT_EQ(grid.GetRowPaste().GetNum(), 0);
    clipboard.SetKeys(false);
    Press('C');
    EXPECT_EQ(grid.GetRowPaste().GetNum(), 1);
    clipboard.SetKeys(true);
    Press('A');
    EXPECT_EQ(Selected(), "0,0-2,2");
    Press('C', control | Modifiers::Shift);
    EXPECT_EQ(TextOnClipboard(), L"0,0\t0,1\t0,2\r\n") << "the copy of before";
}

TEST_F(ClipboardKeys, WithoutACursor_SelectedRowsAreTheCells_AndFillingIsNotKnown)
{
    Make();
    cursor.Detach();
    Focus();
    grid.SelectRow(1, true);
    Press('C');
    EXPECT_EQ(TextOnClipboard(), L"1,0\t1,1\t1,2\r\n");
    Press('D');
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|1,1|1,2 / 2,0|2,1|2,2");
    EXPECT_EQ(reports, 1);
}

TEST_F(ClipboardKeys, InAnOpenEditor_AreTheEditors)
{
    Make();
    Focus();
    PutText(L"pasted\tboth");
    cursor.MoveTo(1, 1);
    cursor.Edit(false);
    ASSERT_TRUE(grid.IsEditing());
    Press('V');
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(reports, 0);
    Press(VK_RETURN, Modifiers::None);
    EXPECT_EQ(grid.GetCell(1, 1).GetText().Left(6), L"pasted");
    EXPECT_EQ(grid.GetCell(1, 2).GetText(), L"1,2");
}

// Loops of programs that do not ask the grid before they dispatch.
TEST_F(ClipboardKeys, WithoutPreTranslation_WorkTheSame)
{
    Make();
    Focus();
    KeyDown(VK_CONTROL);
    grid.SendMessage(WM_KEYDOWN, 'C', 1);
    grid.SendMessage(WM_CHAR, 3, 1);
    KeyUp(VK_CONTROL);
    EXPECT_EQ(TextOnClipboard(), L"0,0\r\n");
    EXPECT_FALSE(grid.IsEditing());
}

// ---- Commands

TEST_F(ClipboardKeys, StandardCommands_AreRunForTheGrid)
{
    Make();
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_SELECT_ALL));
    EXPECT_EQ(Selected(), "0,0-2,2");
    Select(0, 0, 0, 0);
    grid.SendMessage(WM_COMMAND, ID_EDIT_COPY);
    EXPECT_EQ(TextOnClipboard(), L"0,0\r\n");
    cursor.MoveTo(2, 2);
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_PASTE));
    cursor.MoveTo(0, 0);
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_CUT));
    cursor.MoveTo(1, 1);
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_CLEAR));
    EXPECT_EQ(AllTexts(grid), "|0,1|0,2 / 1,0||1,2 / 2,0|2,1|0,0");
    EXPECT_FALSE(clipboard.RunCommand(ID_EDIT_FIND));
    cursor.Detach();
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_SELECT_ALL));
    EXPECT_EQ(grid.GetRowSelNum(), 3);
    clipboard.Detach();
    EXPECT_FALSE(clipboard.RunCommand(ID_EDIT_COPY));
}

TEST_F(ClipboardKeys, StandardCommands_AreTheOpenEditors)
{
    Make();
    Focus();
    cursor.Edit(false);
    ASSERT_TRUE(grid.IsEditing());
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_SELECT_ALL));
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_COPY));
    EXPECT_EQ(TextOnClipboard(), L"0,0");
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_CLEAR));
    CString text;
    grid.EditorWindow()->GetWindowText(text);
    EXPECT_EQ(text, L"");
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_PASTE));
    grid.EditorWindow()->GetWindowText(text);
    EXPECT_EQ(text, L"0,0");
    EXPECT_EQ(reports, 0);
}

// What shows a command, as a menu or a toolbar does.
struct ShownCommand : CCmdUI
{
    explicit ShownCommand(UINT id) { m_nID = id; }
    void Enable(BOOL on) override { isOn = on != FALSE; }
    bool isOn = true;
};

TEST_F(ClipboardKeys, OnCmdMsg_RunsAndEnables)
{
    Make();
    const auto isEnabled = [this](UINT id) {
        ShownCommand shown(id);
        EXPECT_TRUE(clipboard.OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &shown, nullptr));
        return shown.isOn;
    };
    EXPECT_TRUE(isEnabled(ID_EDIT_COPY));
    EXPECT_TRUE(isEnabled(ID_EDIT_CUT));
    EXPECT_FALSE(isEnabled(ID_EDIT_PASTE));
    EXPECT_TRUE(clipboard.OnCmdMsg(ID_EDIT_COPY, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(TextOnClipboard(), L"0,0\r\n");
    EXPECT_TRUE(isEnabled(ID_EDIT_PASTE));
    grid.SetReadOnly(true);
    EXPECT_TRUE(isEnabled(ID_EDIT_COPY));
    EXPECT_FALSE(isEnabled(ID_EDIT_CUT));
    EXPECT_FALSE(isEnabled(ID_EDIT_CLEAR));
    EXPECT_FALSE(isEnabled(ID_EDIT_PASTE));
    grid.SetReadOnly(false);
    grid.Clear();
    EXPECT_FALSE(isEnabled(ID_EDIT_COPY));
    EXPECT_FALSE(isEnabled(ID_EDIT_SELECT_ALL));
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_FILE_OPEN, CN_COMMAND, nullptr, nullptr));
    AFX_CMDHANDLERINFO info{};
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_EDIT_COPY, CN_COMMAND, nullptr, &info)) << "it has no handler to name";
}

} // namespace
} // namespace quor::test
