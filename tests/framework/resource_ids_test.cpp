// The identifiers of afxres.h: the relations between them that programs and the framework count on.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <set>

namespace
{

constexpr UINT fileCommands[] = {
    ID_FILE_NEW,        ID_FILE_OPEN,         ID_FILE_CLOSE,     ID_FILE_SAVE,         ID_FILE_SAVE_AS,
    ID_FILE_PAGE_SETUP, ID_FILE_PRINT_SETUP,  ID_FILE_PRINT,     ID_FILE_PRINT_DIRECT, ID_FILE_PRINT_PREVIEW,
    ID_FILE_UPDATE,     ID_FILE_SAVE_COPY_AS, ID_FILE_SEND_MAIL, ID_FILE_NEW_FRAME,
};
constexpr UINT recentFiles[] = {
    ID_FILE_MRU_FILE1,  ID_FILE_MRU_FILE2,  ID_FILE_MRU_FILE3,  ID_FILE_MRU_FILE4,
    ID_FILE_MRU_FILE5,  ID_FILE_MRU_FILE6,  ID_FILE_MRU_FILE7,  ID_FILE_MRU_FILE8,
    ID_FILE_MRU_FILE9,  ID_FILE_MRU_FILE10, ID_FILE_MRU_FILE11, ID_FILE_MRU_FILE12,
    ID_FILE_MRU_FILE13, ID_FILE_MRU_FILE14, ID_FILE_MRU_FILE15, ID_FILE_MRU_FILE16,
};
constexpr UINT otherCommands[] = {
    ID_EDIT_CLEAR,
    ID_EDIT_CLEAR_ALL,
    ID_EDIT_COPY,
    ID_EDIT_CUT,
    ID_EDIT_FIND,
    ID_EDIT_PASTE,
    ID_EDIT_PASTE_LINK,
    ID_EDIT_PASTE_SPECIAL,
    ID_EDIT_REPEAT,
    ID_EDIT_REPLACE,
    ID_EDIT_SELECT_ALL,
    ID_EDIT_UNDO,
    ID_EDIT_REDO,
    ID_WINDOW_NEW,
    ID_WINDOW_ARRANGE,
    ID_WINDOW_CASCADE,
    ID_WINDOW_TILE_HORZ,
    ID_WINDOW_TILE_VERT,
    ID_WINDOW_SPLIT,
    ID_APP_ABOUT,
    ID_APP_EXIT,
    ID_HELP_INDEX,
    ID_HELP_FINDER,
    ID_HELP_USING,
    ID_CONTEXT_HELP,
    ID_HELP,
    ID_DEFAULT_HELP,
    ID_NEXT_PANE,
    ID_PREV_PANE,
    ID_FORMAT_FONT,
    ID_VIEW_TOOLBAR,
    ID_VIEW_STATUS_BAR,
    ID_VIEW_REBAR,
    AFX_ID_PREVIEW_CLOSE,
    AFX_ID_PREVIEW_NEXT,
    AFX_ID_PREVIEW_PREV,
    AFX_ID_PREVIEW_NUMPAGE,
    AFX_ID_PREVIEW_PRINT,
    AFX_ID_PREVIEW_ZOOMIN,
    AFX_ID_PREVIEW_ZOOMOUT,
};

TEST(ResourceIds, NoTwoCommandsShareANumber)
{
    std::set<UINT> numbers;
    size_t count = 0;
    const auto add = [&](const auto& commands) {
        for (const UINT command : commands)
        {
            numbers.insert(command);
            ++count;
        }
    };
    add(fileCommands);
    add(recentFiles);
    add(otherCommands);
    EXPECT_EQ(numbers.size(), count);
}

// The numbers below belong to programs; those above are not routed to frames by dialogs.
TEST(ResourceIds, TheFrameworksCommandsLieInTheirOwnRange)
{
    const auto expectInRange = [](const auto& commands) {
        for (const UINT command : commands)
        {
            EXPECT_GE(command, 0xE000u);
            EXPECT_LT(command, 0xF000u);
        }
    };
    expectInRange(fileCommands);
    expectInRange(recentFiles);
    expectInRange(otherCommands);
}

TEST(ResourceIds, TheSixteenRecentFilesFollowEachOther)
{
    UINT expected = ID_FILE_MRU_FIRST;
    for (const UINT command : recentFiles)
        EXPECT_EQ(command, expected++);
    EXPECT_EQ(static_cast<UINT>(ID_FILE_MRU_LAST), expected - 1);
}

TEST(ResourceIds, ACommandThatShowsABarHasTheNumberOfTheBar)
{
    EXPECT_EQ(ID_VIEW_TOOLBAR, AFX_IDW_TOOLBAR);
    EXPECT_EQ(ID_VIEW_STATUS_BAR, AFX_IDW_STATUS_BAR);
    EXPECT_EQ(ID_VIEW_REBAR, AFX_IDW_REBAR);
}

TEST(ResourceIds, DockBarsHaveABitOfTheirOwn)
{
    EXPECT_EQ(AFX_CONTROLBAR_MASK(AFX_IDW_DOCKBAR_TOP) & AFX_CONTROLBAR_MASK(AFX_IDW_DOCKBAR_BOTTOM), 0);
    EXPECT_EQ(AFX_CONTROLBAR_MASK(AFX_IDW_TOOLBAR), 1);
}

TEST(ResourceIds, TheIndicatorsFollowEachOther)
{
    EXPECT_EQ(ID_INDICATOR_CAPS, ID_INDICATOR_EXT + 1);
    EXPECT_EQ(ID_INDICATOR_NUM, ID_INDICATOR_CAPS + 1);
    EXPECT_EQ(ID_INDICATOR_SCRL, ID_INDICATOR_NUM + 1);
    EXPECT_EQ(ID_INDICATOR_OVR, ID_INDICATOR_SCRL + 1);
    EXPECT_EQ(ID_INDICATOR_REC, ID_INDICATOR_OVR + 1);
}

// The text about a command of the system menu stands at the command's place among the system commands.
TEST(ResourceIds, TextsOfSystemCommandsFollowTheCommands)
{
    const auto textOf = [](UINT command) { return ((command - SC_SIZE) >> 4) + AFX_IDS_SCFIRST; };
    EXPECT_EQ(textOf(SC_SIZE), static_cast<UINT>(AFX_IDS_SCSIZE));
    EXPECT_EQ(textOf(SC_MINIMIZE), static_cast<UINT>(AFX_IDS_SCMINIMIZE));
    EXPECT_EQ(textOf(SC_CLOSE), static_cast<UINT>(AFX_IDS_SCCLOSE));
    EXPECT_EQ(textOf(SC_RESTORE), static_cast<UINT>(AFX_IDS_SCRESTORE));
    EXPECT_EQ(textOf(SC_TASKLIST), static_cast<UINT>(AFX_IDS_SCTASKLIST));
}

// A message of the framework's own must be found under its number.
TEST(ResourceIds, TheFrameworksMessagesAreInItsDll)
{
    CString text;
    ASSERT_TRUE(text.LoadString(AFX_IDP_COMMAND_FAILURE));
    EXPECT_EQ(text, L"Command failed.");
}

} // namespace
