// Every command with every hook: the whole order of hooks, and each veto on its own.
#include "tests/grid/CommandGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A command, the state it starts from and what it does.
struct CommandCase
{
    const char* name;
    bool tree;
    std::function<void(CommandGrid&)> prepare;
    std::function<bool(CommandGrid&)> run;
    const char* hooks;
    const char* rowsAfter;
    const char* colsAfter;
};

// Rows a b(c d) e, where b is unfolded: their indices are 0 to 4.
void MakeTree(CommandGrid& grid)
{
    grid.AddRows("abe");
    TGGridTreeRow& parent = grid.GetTreeRow(1);
    grid.AddChild(parent, 'c');
    grid.AddChild(parent, 'd');
    parent.UnFold();
}

std::function<void(CommandGrid&)> PlainRows(std::initializer_list<long> selected)
{
    const std::vector<long> rows(selected);
    return [rows](CommandGrid& grid) {
        grid.AddRows("abcd");
        for (const long row : rows)
            grid.SelectRow(row, true);
    };
}

std::function<void(CommandGrid&)> PlainCols(std::initializer_list<long> selected)
{
    const std::vector<long> cols(selected);
    return [cols](CommandGrid& grid) {
        grid.AddRows("ab");
        for (const long col : cols)
            grid.SelectCol(col, true);
    };
}

std::function<void(CommandGrid&)> TreeRows(long selected)
{
    return [selected](CommandGrid& grid) {
        MakeTree(grid);
        grid.SelectRow(selected, true);
    };
}

// The same with row 0 in the row buffer.
std::function<void(CommandGrid&)> WithBuffer(const std::function<void(CommandGrid&)>& prepare, long selected)
{
    return [prepare, selected](CommandGrid& grid) {
        prepare(grid);
        grid.SelectRows({0});
        grid.DoCopy();
        grid.UnSelect();
        if (selected >= 0)
            grid.SelectRow(selected, true);
    };
}

const CommandCase commands[] = {
    {"DoInsertRow", false, PlainRows({1}), [](CommandGrid& g) { return g.DoInsertRow(); },
     "OnBeforeInsertRow 1 | OnInsertRow 1 | OnDataChanged", "a * b c d", "A B C"},
    {"DoInsertRowAfter", false, PlainRows({1}), [](CommandGrid& g) { return g.DoInsertRowAfter(); },
     "OnBeforeInsertRow 2 | OnInsertRow 2 | OnDataChanged", "a b * c d", "A B C"},
    {"DoAppendRow selecting", false, PlainRows({1}), [](CommandGrid& g) { return g.DoAppendRow(true); },
     "OnBeforeInsertRow 4 | OnInsertRow 4 | OnDataChanged", "a b c d *", "A B C"},
    {"DoAppendRow", false, PlainRows({1}), [](CommandGrid& g) { return g.DoAppendRow(false); },
     "OnBeforeInsertRow 4 | OnInsertRow 4 | OnDataChanged", "a b c d ", "A B C"},
    {"DoInsertCol", false, PlainCols({1}), [](CommandGrid& g) { return g.DoInsertCol(); },
     "OnBeforeInsertCol 1 | OnInsertCol 1 | OnDataChanged", "a b", "A * B C"},
    {"DoInsertColAfter", false, PlainCols({1}), [](CommandGrid& g) { return g.DoInsertColAfter(); },
     "OnBeforeInsertCol 2 | OnInsertCol 2 | OnDataChanged", "a b", "A B * C"},
    {"DoAppendCol", false, PlainCols({1}), [](CommandGrid& g) { return g.DoAppendCol(); },
     "OnBeforeInsertCol 3 | OnInsertCol 3 | OnDataChanged", "a b", "A B C *"},
    {"DoDelete of rows", false, PlainRows({1, 3}), [](CommandGrid& g) { return g.DoDelete(); },
     "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged", "a c", "A B C"},
    {"DoDelete of columns", false, PlainCols({0, 2}), [](CommandGrid& g) { return g.DoDelete(); },
     "OnBeforeDeleteCol | OnEndDeleteCol | OnDataChanged", "", "B"},
    {"DoCopy", false, PlainRows({1, 3}), [](CommandGrid& g) { return g.DoCopy(); },
     "OnBeforeCopy | OnEndCopy", "a b* c d*", "A B C"},
    {"DoClip", false, PlainRows({1, 3}), [](CommandGrid& g) { return g.DoClip(); },
     "OnBeforeClip | OnEndClip | OnDataChanged", "a c", "A B C"},
    {"DoPaste", false, WithBuffer(PlainRows({}), 2), [](CommandGrid& g) { return g.DoPaste(); },
     "OnBeforePaste 2 | OnEndPaste | OnDataChanged", "a b a* c d", "A B C"},
    {"DoPaste at the end", false, WithBuffer(PlainRows({}), -1), [](CommandGrid& g) { return g.DoPaste(); },
     "OnBeforePaste 4 | OnEndPaste | OnDataChanged", "a b c d a*", "A B C"},
    {"DoInsertRow beside a child", true, TreeRows(3), [](CommandGrid& g) { return g.DoInsertRow(); },
     "OnBeforeInsertChild b 1 | OnInsertRow 3 | OnDataChanged", "a b(c * d) e", "A B C"},
    {"DoInsertRowAfter a child", true, TreeRows(3), [](CommandGrid& g) { return g.DoInsertRowAfter(); },
     "OnBeforeInsertChild b 2 | OnInsertRow 4 | OnDataChanged", "a b(c d *) e", "A B C"},
    {"DoInsertTree", true, TreeRows(0), [](CommandGrid& g) { return g.DoInsertTree(); },
     "OnBeforeInsertRow 0 | OnInsertRow 0 | OnDataChanged", "*() a b(c d) e", "A B C"},
    {"DoInsertTree beside a child", true, TreeRows(2), [](CommandGrid& g) { return g.DoInsertTree(); },
     "OnBeforeInsertChild b 0 | OnInsertRow 2 | OnDataChanged", "a b(*() c d) e", "A B C"},
    {"DoInsertTreeAfter", true, TreeRows(0), [](CommandGrid& g) { return g.DoInsertTreeAfter(); },
     "OnBeforeInsertRow 1 | OnInsertRow 1 | OnDataChanged", "a *() b(c d) e", "A B C"},
    {"DoInsertTreeAfter a child", true, TreeRows(2), [](CommandGrid& g) { return g.DoInsertTreeAfter(); },
     "OnBeforeInsertChild b 1 | OnInsertRow 3 | OnDataChanged", "a b(c *() d) e", "A B C"},
    {"DoAppendTree", true, TreeRows(0), [](CommandGrid& g) { return g.DoAppendTree(); },
     "OnBeforeInsertRow 5 | OnInsertRow 5 | OnDataChanged", "a* b(c d) e ()", "A B C"},
    {"DoAppendChild", true, TreeRows(1), [](CommandGrid& g) { return g.DoAppendChild(); },
     "OnBeforeInsertChild b 2 | OnInsertRow 4 | OnDataChanged", "a b*(c d *) e", "A B C"},
    {"DoPaste beside a child", true, WithBuffer(MakeTree, 3), [](CommandGrid& g) { return g.DoPaste(); },
     "OnBeforePaste 3 | OnEndPaste | OnDataChanged", "a b(c a* d) e", "A B C"},
    {"DoPasteChild", true, WithBuffer(MakeTree, 4), [](CommandGrid& g) { return g.DoPasteChild(); },
     "OnBeforePasteChild e | OnEndPaste | OnDataChanged", "a b(c d) e(a*)", "A B C"},
    {"DoDelete of a parent", true, TreeRows(1), [](CommandGrid& g) { return g.DoDelete(); },
     "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged", "a e", "A B C"},
    {"DoClip of a parent", true, TreeRows(1), [](CommandGrid& g) { return g.DoClip(); },
     "OnBeforeClip | OnEndClip | OnDataChanged", "a e", "A B C"},
    {"Arrange descending", false, PlainRows({1}),
     [](CommandGrid& g) {
         g.AppendKey(0);
         g.Arrange(false);
         return true;
     },
     "OnDataChanged", "d c b* a", "A B C"},
};

class Commands : public testing::TestWithParam<CommandCase>
{
protected:
    void Start(CommandGrid& grid)
    {
        for (const wchar_t* name : {L"A", L"B", L"C"})
            grid.AppendCol(name, 50);
        GetParam().prepare(grid);
        grid.TakeLog();
    }
};

// The names of the hooks in a log.
std::vector<std::string> NamesIn(const std::string& log)
{
    std::vector<std::string> names;
    for (std::size_t at = 0; at <= log.size();)
    {
        const std::size_t end = (std::min)(log.find(" | ", at), log.size());
        names.push_back(log.substr(at, (std::min)(log.find(' ', at), end) - at));
        at = end + 3;
    }
    return names;
}

TEST_P(Commands, RunTheHooksInOrder)
{
    CommandGrid grid(GetParam().tree);
    Start(grid);
    EXPECT_TRUE(GetParam().run(grid));
    EXPECT_EQ(grid.TakeText(), GetParam().hooks);
    EXPECT_EQ(grid.Rows(), GetParam().rowsAfter);
    EXPECT_EQ(grid.Cols(), GetParam().colsAfter);
}

TEST_P(Commands, AreStoppedByTheVetoThatTheyAskFor)
{
    for (const std::string& name : NamesIn(GetParam().hooks))
    {
        if (!name.starts_with("OnBefore"))
            continue;
        CommandGrid grid(GetParam().tree);
        Start(grid);
        const std::string rows = grid.Rows();
        const std::string cols = grid.Cols();
        const std::string buffer = grid.Buffer();
        grid.vetoes = {name};
        EXPECT_FALSE(GetParam().run(grid));
        const std::string log = grid.TakeText();
        EXPECT_EQ(NamesIn(log), std::vector<std::string>{name});
        EXPECT_EQ(grid.Rows(), rows);
        EXPECT_EQ(grid.Cols(), cols);
        EXPECT_EQ(grid.Buffer(), buffer);
    }
}

TEST_P(Commands, AreNotStoppedByTheVetoesOfOthers)
{
    static const char* const all[] = {"OnBeforeInsertRow", "OnBeforeInsertChild", "OnBeforeInsertCol",
                                      "OnBeforeDeleteRow", "OnBeforeDeleteCol",   "OnBeforeClip",
                                      "OnBeforeCopy",      "OnBeforePaste",       "OnBeforePasteChild"};
    const std::vector<std::string> own = NamesIn(GetParam().hooks);
    for (const char* name : all)
    {
        if (std::find(own.begin(), own.end(), name) != own.end())
            continue;
        CommandGrid grid(GetParam().tree);
        Start(grid);
        grid.vetoes = {name};
        EXPECT_TRUE(GetParam().run(grid));
        EXPECT_EQ(grid.TakeText(), GetParam().hooks) << name;
        EXPECT_EQ(grid.Rows(), GetParam().rowsAfter);
    }
}

// Hosts that empty the grid inside any hook of any command must not bring it down.
TEST_P(Commands, SurviveAHookThatClearsTheGrid)
{
    for (const std::string& name : NamesIn(GetParam().hooks))
    {
        CommandGrid grid(GetParam().tree);
        Start(grid);
        grid.actions[name] = [&] {
            grid.actions.clear();
            grid.Clear();
        };
        GetParam().run(grid);
        EXPECT_LE(grid.GetRowNum(), 1) << name;
    }
}

TEST_P(Commands, SurviveAHookThatDeletesEveryColumn)
{
    for (const std::string& name : NamesIn(GetParam().hooks))
    {
        CommandGrid grid(GetParam().tree);
        Start(grid);
        grid.actions[name] = [&] {
            grid.actions.clear();
            grid.SetColNum(0);
        };
        GetParam().run(grid);
        EXPECT_LE(grid.GetColNum(), 1) << name;
    }
}

TEST_P(Commands, SurviveASelectionHookThatClearsTheGrid)
{
    CommandGrid grid(GetParam().tree);
    Start(grid);
    grid.actions["OnCurChanged"] = [&] {
        grid.actions.clear();
        grid.Clear();
    };
    GetParam().run(grid);
    const bool cleared = grid.actions.empty();
    EXPECT_TRUE(!cleared || grid.GetRowNum() <= 2) << grid.GetRowNum();
}

// The letters and digits of the command's name.
std::string TestName(const testing::TestParamInfo<CommandCase>& test)
{
    std::string name;
    for (const char character : std::string(test.param.name))
        if (std::isalnum(static_cast<unsigned char>(character)))
            name += character;
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, Commands, testing::ValuesIn(commands), TestName);

} // namespace
} // namespace quor::test
