// Random commands on a tree grid without a window, compared with the simple model after each of them.
//
// QUOR_SEED sets the seed, QUOR_FUZZ_STEPS the number of commands.
#include "tests/grid/ItemGrid.h"
#include "tests/grid/ReferenceTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <set>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

struct NumberedData : TGRowData
{
    explicit NumberedData(long number) : id(number) {}
    long id;
};

long FromEnvironment(const char* name, long otherwise)
{
    const char* text = std::getenv(name);
    return text != nullptr ? std::atol(text) : otherwise;
}

long DataOf(const TGGridRow& row)
{
    const auto* data = static_cast<const NumberedData*>(row.GetExtendData());
    return data != nullptr ? data->id : 0;
}

// A host: rows without host data get the next number as host data and label.
class NumberingGrid : public ItemGrid
{
public:
    explicit NumberingGrid(bool hostRepairs) : repairs(hostRepairs) {}

    // What the row header does with rows that are dropped before the row at `to`.
    void MoveSelection(long to)
    {
        long above = 0;
        while (above < GetRowSelNum() && TGGrid::GetSelRow(above).GetIndex() < to)
            ++above;
        ASSERT_TRUE(OnMoveRow(to));
        std::vector<TGGridRow*> aside;
        while (!GetRowPaste().IsEmpty())
            aside.push_back(GetRowPaste().Detach(0));
        ClipSelect();
        TGGrid::Paste((std::min)(to - above, GetRowNum()));
        for (TGGridRow* row : aside)
            GetRowPaste().Append(row);
        OnEndMoveRow();
        OnDataChanged();
    }

protected:
    void OnInsertRow(TGGridRow& row) override { Number(row, true); }
    void OnEndPaste() override
    {
        ItemGrid::OnEndPaste();
        for (long i = 0; i < GetRowSelNum(); ++i)
            Number(TGGrid::GetSelRow(i), false);
    }

private:
    void Number(TGGridRow& row, bool inserted)
    {
        if (row.GetExtendData() == nullptr)
        {
            row.SetExtendData(new NumberedData(++lastData));
            row[0].GetText().Format(L"%ld", lastData);
            if (inserted && repairs && !row.IsParentRow())
                row[1].GetText().Format(L"%d", GetAutoId(_wtoi(row[1].GetText())));
        }
        auto& tree = static_cast<TGGridTreeRow&>(row);
        for (long i = 0; i < tree.GetChildNum(); ++i)
            Number(tree.GetChild(i), inserted);
    }

    bool repairs;
    long lastData = 0;
};

// All that is compared of a tree, as numbers: for each row its depth, host data, label, identifier, fold
// state, index and whether it is selected.
using State = std::vector<long>;
constexpr std::size_t numbersPerRow = 7;

long NumberOf(const CString& text)
{
    return text.IsEmpty() ? 0 : _wtoi(text);
}

void AddState(State& state, TGGrid& grid, TGGridTreeRow& row, long depth)
{
    const long i = row.GetIndex();
    const bool inList = i >= 0 && i < grid.GetRowNum() && &grid.GetRow(i) == &row;
    state.insert(state.end(),
                 {depth, DataOf(row), NumberOf(row[0].GetText()), NumberOf(row[1].GetText()),
                  row.IsFold() ? 0 : 1, inList ? i : -1, inList && grid.IsRowSelected(i) ? 1 : 0});
    // A hidden row that has an index is wrong.
    if (!inList && i != -1)
        state.push_back(i);
    for (long k = 0; k < row.GetChildNum(); ++k)
    {
        EXPECT_EQ(row.GetChild(k).Parent(), &row);
        AddState(state, grid, row.GetChild(k), depth + 1);
    }
}

State StateOf(TGGrid& grid)
{
    State state;
    for (long i = 0; i < grid.GetRowNum(); ++i)
    {
        TGGridRow& row = grid.GetRow(i);
        EXPECT_EQ(row.GetIndex(), i);
        if (!row.IsChildRow())
            AddState(state, grid, static_cast<TGGridTreeRow&>(row), 0);
    }
    for (TGGridRow* row : grid.GetRowPaste())
        AddState(state, grid, static_cast<TGGridTreeRow&>(*row), 100);
    return state;
}

void AddState(State& state, const ReferenceNode& node, long depth, bool shown, long& next)
{
    state.insert(state.end(), {depth, node.data, node.label, node.id, node.unfolded ? 1 : 0,
                               shown ? next : -1, shown && node.selected ? 1 : 0});
    next += shown ? 1 : 0;
    for (const auto& child : node.children)
        AddState(state, *child, depth + 1, shown && node.unfolded, next);
}

State StateOf(const ReferenceTree& reference)
{
    State state;
    long next = 0;
    for (const auto& root : reference.roots)
        AddState(state, *root, 0, true, next);
    for (const auto& node : reference.buffer)
        AddState(state, *node, 100, false, next);
    return state;
}

std::string Text(const State& state)
{
    std::string text;
    for (std::size_t i = 0; i < state.size(); ++i)
        text += (i % numbersPerRow == 0 ? "\n" : " ") + std::to_string(state[i]);
    return text;
}

// Does the same command on a tree grid and on its reference.
class Fuzzer
{
public:
    Fuzzer(bool hostRepairs, unsigned seed)
        : repairs(hostRepairs), random(seed), grid(hostRepairs), reference(hostRepairs)
    {
    }

    // Returns what was done.
    std::string Step()
    {
        if (reference.roots.empty() || Below(400) == 0)
            return StartAnew();
        const long dice = Below(100);
        if (dice < 25)
            return SelectionStep();
        if (dice < 45)
            return InsertionStep();
        if (dice < 72)
            return BufferStep();
        if (dice < 90)
            return TreeStep();
        return dice < 95 ? ServiceStep() : OrderStep();
    }

    void Check(const std::string& done)
    {
        const State expected = StateOf(reference);
        const State actual = StateOf(grid);
        if (actual != expected)
            FAIL() << "after " << done << ", actual:" << Text(actual) << "\nexpected:" << Text(expected);
        ASSERT_EQ(grid.GetRowNum(), static_cast<long>(reference.Shown().size())) << "after " << done;
        if (!repairs)
            return;
        std::set<long> ids;
        for (const ReferenceNode* leaf : reference.Leaves(reference.bufferIsCut))
            if (leaf->id <= 0 || !ids.insert(leaf->id).second)
                FAIL() << "identifier " << leaf->id << " after " << done << Text(actual);
    }

private:
    static constexpr long mostRows = 24;

    long Below(long limit) { return std::uniform_int_distribution<long>(0, limit - 1)(random); }
    bool IsFull() const { return static_cast<long>(reference.All().size()) >= mostRows; }

    std::string StartAnew()
    {
        grid.Clear();
        reference.Clear();
        EXPECT_TRUE(grid.DoAppendTree());
        reference.AppendTree();
        return "DoAppendTree";
    }

    // Runs a command on both and compares the answers and what the grid says of changes.
    template <class Run> std::string Command(const char* name, bool (TGGrid::*command)(), Run run)
    {
        grid.SetModified(false);
        const bool expected = run();
        EXPECT_EQ((grid.*command)(), expected) << name;
        EXPECT_EQ(grid.IsModified(), expected && command != &TGGrid::DoCopy) << name;
        return name;
    }

    std::string SelectionStep();
    std::string InsertionStep();
    std::string BufferStep();
    std::string TreeStep();
    std::string ServiceStep();
    std::string OrderStep();

    bool repairs;
    std::mt19937 random;
    NumberingGrid grid;
    ReferenceTree reference;
};

// Mostly one row, because many commands want one.
std::string Fuzzer::SelectionStep()
{
    grid.UnSelect();
    reference.UnSelect();
    const std::vector<ReferenceNode*> shown = reference.Shown();
    const long number = Below(3) != 0 ? 1 : Below(5);
    for (long k = 0; k < number; ++k)
    {
        const long i = Below(static_cast<long>(shown.size()));
        grid.SelectRow(i, true);
        shown[static_cast<std::size_t>(i)]->selected = true;
    }
    return "SelectRow";
}

std::string Fuzzer::InsertionStep()
{
    if (IsFull())
        return "nothing";
    switch (Below(9))
    {
    case 0:
        return Command("DoInsertRow", &TGGrid::DoInsertRow,
                       [&] { return reference.InsertRow(false, false); });
    case 1:
        return Command("DoInsertRowAfter", &TGGrid::DoInsertRowAfter,
                       [&] { return reference.InsertRow(true, false); });
    case 2:
        return Command("DoInsertTree", &TGGrid::DoInsertTree,
                       [&] { return reference.InsertRow(false, true); });
    case 3:
        return Command("DoInsertTreeAfter", &TGGrid::DoInsertTreeAfter,
                       [&] { return reference.InsertRow(true, true); });
    case 4:
        return Command("DoAppendTree", &TGGrid::DoAppendTree, [&] { return reference.AppendTree(); });
    case 5: {
        const bool select = Below(2) == 0;
        EXPECT_TRUE(reference.AppendRow(select));
        EXPECT_TRUE(grid.DoAppendRow(select));
        return "DoAppendRow";
    }
    default:
        return Command("DoAppendChild", &TGGrid::DoAppendChild, [&] { return reference.AppendChild(); });
    }
}

std::string Fuzzer::BufferStep()
{
    switch (Below(IsFull() ? 4 : 9))
    {
    case 0:
    case 1:
        return Command("DoDelete", &TGGrid::DoDelete, [&] { return reference.Delete(); });
    case 2:
    case 4:
        return Command("DoClip", &TGGrid::DoClip, [&] { return reference.Cut(); });
    case 3: {
        if (reference.Selected().empty())
            return "nothing";
        const long to = Below(static_cast<long>(reference.Shown().size()) + 1);
        reference.Move(to);
        grid.MoveSelection(to);
        return "MoveSelection " + std::to_string(to);
    }
    case 5:
    case 6:
        return Command("DoPaste", &TGGrid::DoPaste, [&] { return reference.Paste(); });
    case 7:
        return Command("DoPasteChild", &TGGrid::DoPasteChild, [&] { return reference.PasteChild(); });
    default:
        return Command("DoCopy", &TGGrid::DoCopy, [&] { return reference.Copy(); });
    }
}

std::string Fuzzer::TreeStep()
{
    const std::vector<ReferenceNode*> shown = reference.Shown();
    const long i = Below(static_cast<long>(shown.size()));
    ReferenceNode* node = shown[static_cast<std::size_t>(i)];
    TGGridTreeRow* row = &grid.GetTreeRow(i);
    // Hidden rows take part too.
    while (node->IsGroup() && Below(2) == 0)
    {
        const long k = Below(static_cast<long>(node->children.size()));
        node = node->children[static_cast<std::size_t>(k)].get();
        row = &row->GetChild(k);
    }
    const std::string at = " at " + std::to_string(i);
    const long dice = Below(100);
    if (dice < 30)
        return reference.Fold(*node), row->Fold(), "Fold" + at;
    if (dice < 80)
        return reference.UnFold(*node), row->UnFold(), "UnFold" + at;
    if (dice < 88)
        return reference.FoldAll(*node), row->FoldAll(), "FoldAll" + at;
    return reference.UnFoldAll(*node), row->UnFoldAll(), "UnFoldAll" + at;
}

// The host asks the services, and lets its user type a valid identifier.
std::string Fuzzer::ServiceStep()
{
    const long id = Below(40);
    EXPECT_EQ(grid.GetAutoId(static_cast<int>(id)), reference.AutoId(id)) << id;
    const CString text(NumberText(id).c_str());
    const bool isRight = reference.IsRightLabel(id);
    EXPECT_EQ(grid.IsRightLabel(text), isRight) << id;
    const std::vector<ReferenceNode*> shown = reference.Shown();
    const long i = Below(static_cast<long>(shown.size()));
    ReferenceNode& node = *shown[static_cast<std::size_t>(i)];
    if (isRight || node.IsGroup() || !repairs)
    {
        node.id = id;
        grid.GetCell(i, 1).SetText(text);
    }
    return "SetText of row " + std::to_string(i);
}

std::string Fuzzer::OrderStep()
{
    const long col = Below(2);
    if (Below(2) == 0)
    {
        const long number = 1 + Below(60);
        EXPECT_EQ(grid.FindAndSel(CString(NumberText(number).c_str()), col),
                  reference.FindAndSel(number, col));
        return "FindAndSel " + std::to_string(number);
    }
    const bool ascending = Below(2) == 0;
    grid.ClearKey();
    grid.AppendKey(col);
    grid.Arrange(ascending);
    reference.Arrange(ascending, col);
    return "Arrange " + std::to_string(col);
}

void RunFuzz(bool hostRepairs)
{
#ifdef _DEBUG
    const long steps = FromEnvironment("QUOR_FUZZ_STEPS", 3000);
#else
    const long steps = FromEnvironment("QUOR_FUZZ_STEPS", 500000);
#endif
    const auto seed =
        static_cast<unsigned>(FromEnvironment("QUOR_SEED", static_cast<long>(std::random_device{}())));
    std::cout << "seed " << seed << ", " << steps << " commands\n";
    Fuzzer fuzzer(hostRepairs, seed);
    for (long step = 0; step < steps; ++step)
    {
        const std::string done = fuzzer.Step();
        fuzzer.Check("step " + std::to_string(step) + ": " + done);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(TreeFuzz, RandomCommandsMatchTheReference)
{
    RunFuzz(false);
}

TEST(TreeFuzz, RandomCommandsOfARepairingHostLeaveAllIdentifiersUnique)
{
    RunFuzz(true);
}

} // namespace
} // namespace quor::test
