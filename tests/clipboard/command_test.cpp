// The commands of the clipboard: when they can be chosen, and what they do in an editor and without a grid.
#include "tests/clipboard/ClipboardTest.h"

#include <afxres.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class SeenCommand : public CCmdUI
{
public:
    void Enable(BOOL on) override { enabled = on != FALSE; }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    bool enabled = false;
};

class ClipboardCommandsTest : public ClipboardTest
{
protected:
    bool IsEnabled(UINT id)
    {
        SeenCommand seen;
        seen.m_nID = id;
        return clipboard.OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &seen, nullptr) != FALSE &&
               seen.enabled;
    }
    // "copy cut clear paste all": those that can be chosen.
    std::string Enabled()
    {
        const std::pair<UINT, const char*> commands[] = {{ID_EDIT_COPY, "copy"},
                                                         {ID_EDIT_CUT, "cut"},
                                                         {ID_EDIT_CLEAR, "clear"},
                                                         {ID_EDIT_PASTE, "paste"},
                                                         {ID_EDIT_SELECT_ALL, "all"}};
        std::string names;
        for (const auto& [id, name] : commands)
            if (IsEnabled(id))
                names += (names.empty() ? "" : " ") + std::string(name);
        return names;
    }
};

TEST_F(ClipboardCommandsTest, WhatCanBeChosen_FollowsTheGrid)
{
    EXPECT_EQ(Enabled(), "");
    Make();
    EXPECT_EQ(Enabled(), "copy cut clear all");
    clipboard.Copy();
    EXPECT_EQ(Enabled(), "copy cut clear paste all");
    grid.SetReadOnly(true);
    EXPECT_EQ(Enabled(), "copy all");
    grid.SetReadOnly(false);
    cursor.Detach();
    EXPECT_EQ(Enabled(), "paste all") << "without a cursor nothing is chosen";
    grid.SelectRow(0, true);
    EXPECT_EQ(Enabled(), "copy cut clear paste all");
    grid.UnSelect();
    grid.SelectCol(0, true);
    EXPECT_EQ(Enabled(), "copy cut clear paste all");
    grid.Clear();
    EXPECT_EQ(Enabled().find("copy"), std::string::npos);
    EXPECT_EQ(Enabled().find("all"), std::string::npos);
}

TEST_F(ClipboardCommandsTest, InAnEditor_TheyAreTheEditors)
{
    Make();
    Focus();
    EmptyClipboardContent();
    grid.BeginEditCell(1, 1);
    ASSERT_NE(grid.EditorWindow(), nullptr);
    EXPECT_EQ(Enabled(), "copy cut clear all");
    grid.EditorWindow()->SendMessage(EM_SETSEL, 0, -1);
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_CUT));
    CString text;
    grid.EditorWindow()->GetWindowText(text);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(Enabled(), "copy cut clear paste all");
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_PASTE));
    grid.EditorWindow()->GetWindowText(text);
    EXPECT_EQ(text, L"1,1");
    EXPECT_EQ(TextOf(grid, 1, 1), L"1,1");
}

TEST_F(ClipboardCommandsTest, OtherMessagesOfCommands_AreNotTheirs)
{
    SeenCommand seen;
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_EDIT_COPY, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(clipboard.RunCommand(ID_EDIT_COPY));
    Make();
    AFX_CMDHANDLERINFO info = {};
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_EDIT_COPY, CN_COMMAND, nullptr, &info));
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_EDIT_FIND, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_EDIT_COPY, static_cast<int>(CN_UPDATE_COMMAND_UI), nullptr, nullptr));
    EXPECT_FALSE(clipboard.OnCmdMsg(ID_EDIT_COPY, BN_SETFOCUS, &seen, nullptr));
    EXPECT_TRUE(clipboard.OnCmdMsg(ID_EDIT_COPY, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(clipboard.CanPaste());
}

TEST_F(ClipboardCommandsTest, SelectingAll_WithoutACursor_SelectsTheRows)
{
    Make();
    cursor.Detach();
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_SELECT_ALL));
    EXPECT_EQ(grid.GetRowSelNum(), 3);
    grid.Clear();
    EXPECT_TRUE(clipboard.RunCommand(ID_EDIT_SELECT_ALL));
    EXPECT_FALSE(grid.IsRowSelected());
}

} // namespace
} // namespace quor::test
