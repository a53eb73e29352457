// Random operations on a grid without a window, compared with the simple model after each of them.
//
// QUOR_SEED sets the seed, QUOR_FUZZ_STEPS the number of operations.
#include "tests/grid/ModelGrid.h"
#include "tests/grid/ReferenceGrid.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

struct NumberedData : TGRowData
{
    explicit NumberedData(int number) : id(number) {}
    int id;
};

long FromEnvironment(const char* name, long otherwise)
{
    const char* text = std::getenv(name);
    return text != nullptr ? std::atol(text) : otherwise;
}

int IdOf(const TGGridRow& row)
{
    return static_cast<NumberedData*>(row.GetExtendData())->id;
}

std::string DescribeRow(TGGrid& grid, TGGridRow& row)
{
    auto* tree = row.IsTreeRow() ? static_cast<TGGridTreeRow*>(&row) : nullptr;
    std::string text = std::to_string(IdOf(row)) + (tree != nullptr && !tree->IsFold() ? "+[" : "[");
    for (long i = 0; i < grid.GetColNum(); ++i)
        text += Narrow(row[i].GetText()) + ",";
    text += "]";
    if (tree != nullptr)
        for (tree->MoveToFirst(); !tree->IsOut(); tree->MoveToNext())
            text += "(" + DescribeRow(grid, tree->CurChild()) + ")";
    return text;
}

std::string Describe(TGGrid& grid)
{
    std::string state = "rows";
    for (long i = 0; i < grid.GetRowNum(); ++i)
    {
        TGGridRow& row = grid.GetRow(i);
        state += row.GetIndex() == i ? " " : " wrong index ";
        state += row.IsChildRow() ? std::to_string(IdOf(row)) : DescribeRow(grid, row);
    }
    state += " | cols";
    for (long i = 0; i < grid.GetColNum(); ++i)
    {
        const TGGridCol& col = grid.GetCol(i);
        state += (col.GetIndex() == i ? " " : " wrong index ") + Narrow(col.GetName()) + ":" +
                 std::to_string((col.*(&OpenCol::GetLeft))()) + "-" +
                 std::to_string((col.*(&OpenCol::GetRight))());
    }
    state += " | sel";
    long rowsSelected = 0;
    for (long i = 0; i < grid.GetRowNum(); ++i)
        if (grid.IsRowSelected(i))
        {
            state += " " + std::to_string(i);
            ++rowsSelected;
        }
    if (rowsSelected != grid.GetRowSelNum())
        state += " and " + std::to_string(grid.GetRowSelNum() - rowsSelected) + " more";
    long colsSelected = 0;
    for (long i = 0; colsSelected < grid.GetColSelNum() && i < 100; ++i)
        if (grid.IsColSelected(i))
        {
            state += " c" + std::to_string(i);
            ++colsSelected;
        }
    return state + " | cur " + std::to_string(grid.GetCurRowIndex()) + "," +
           std::to_string(grid.GetCurColIndex());
}

// Does the same operation on a grid and on its reference.
class Fuzzer
{
public:
    Fuzzer(bool isTree, unsigned seed) : tree(isTree), random(seed), grid(isTree, 10)
    {
        grid.AppendKey(0);
        grid.AppendKey(1);
    }

    // Returns what was done.
    std::string Step()
    {
        const long dice = Below(100);
        if (reference.cols.empty() || dice < 8)
            return ColStep();
        if (dice < 20)
            return SelectionStep();
        if (dice < 32)
            return TextStep();
        if (tree && dice < 75 && !reference.rows.empty())
            return TreeStep();
        return RowStep();
    }

    void Check(const std::string& done)
    {
        const std::string expected = reference.Describe();
        const std::string actual = Describe(grid);
        ASSERT_EQ(actual, expected) << "after " << done;
    }

private:
    long Below(long limit) { return std::uniform_int_distribution<long>(0, limit - 1)(random); }
    long RowNum() const { return static_cast<long>(reference.rows.size()); }
    long ColNum() const { return static_cast<long>(reference.cols.size()); }
    std::string RandomText() { return std::string(1, static_cast<char>('a' + Below(6))); }

    // A position between root rows.
    long RootPosition()
    {
        long i = Below(RowNum() + 1);
        while (i < RowNum() && reference.rows[static_cast<std::size_t>(i)]->parent != nullptr)
            ++i;
        return i;
    }

    TGGridRow* NewRow(int id)
    {
        TGGridRow* row = tree ? new TGGridTreeRow(grid) : new TGGridRow(grid);
        row->SetExtendData(new NumberedData(id));
        return row;
    }

    void Number(long first, int firstId)
    {
        for (long i = first; i < grid.GetRowNum(); ++i)
            grid.GetRow(i).SetExtendData(new NumberedData(firstId++));
    }

    std::string RowStep();
    std::string ColStep();
    std::string SelectionStep();
    std::string TextStep();
    std::string TreeStep();
    void InsertChild(TGGridTreeRow& row, ReferenceRow* other);

    bool tree;
    std::mt19937 random;
    int nextId = 1;
    ModelGrid grid;
    ReferenceGrid reference;
};

std::string Fuzzer::RowStep()
{
    const long dice = Below(100);
    if (RowNum() == 0 || (dice < 40 && RowNum() < 20))
    {
        const long i = RootPosition();
        reference.InsertRow(i, reference.NewRow(nextId));
        TGGridRow* row = NewRow(nextId++);
        if (i == grid.GetRowNum() && dice % 2 == 0)
            grid.AppendRow(row);
        else
            grid.InsertRow(i, row);
        return "InsertRow " + std::to_string(i);
    }
    const long i = Below(RowNum());
    if (dice < 75)
    {
        const bool ex = tree || dice % 2 == 0;
        ex ? reference.DelRowEx(i) : reference.DelRow(i);
        ex ? grid.DelRowEx(i) : grid.DelRow(i);
        return "DelRow(Ex) " + std::to_string(i);
    }
    if (dice < 97 && !tree)
    {
        const long to = Below(RowNum() + 1);
        reference.MoveRow(i, to);
        grid.MoveRow(i, to);
        return "MoveRow " + std::to_string(i) + " " + std::to_string(to);
    }
    if (dice < 98)
    {
        reference.Clear();
        grid.Clear();
        return "Clear";
    }
    const long number = tree ? (std::max)(RowNum(), Below(20)) : Below(20);
    const long kept = (std::min)(number, RowNum());
    const int firstId = nextId;
    reference.SetRowNum(number, nextId);
    grid.SetRowNum(number);
    Number(kept, firstId);
    return "SetRowNum " + std::to_string(number);
}

std::string Fuzzer::ColStep()
{
    const long dice = Below(100);
    const std::string name = RandomText();
    const long width = 1 + Below(9);
    if (ColNum() == 0 || (dice < 45 && ColNum() < 5))
    {
        const long i = Below(ColNum() + 1);
        reference.InsertCol(i, name, width);
        if (i == grid.GetColNum() && dice % 2 == 0)
            grid.AppendCol(CString(name.c_str()), width);
        else
            grid.InsertCol(i, CString(name.c_str()), width);
        return "InsertCol " + std::to_string(i);
    }
    const long i = Below(ColNum());
    if (dice < 75)
    {
        reference.DelCol(i);
        grid.DelCol(i);
        return "DelCol " + std::to_string(i);
    }
    const long to = Below(ColNum() + 1);
    reference.MoveCol(i, to);
    grid.MoveCol(i, to);
    return "MoveCol " + std::to_string(i) + " " + std::to_string(to);
}

std::string Fuzzer::SelectionStep()
{
    const long dice = Below(100);
    const bool select = Below(3) != 0;
    if (dice < 60)
    {
        const long i = Below(RowNum() + 2) - 1;
        reference.SelectRow(i, select);
        grid.SelectRow(i, select);
        return "SelectRow " + std::to_string(i);
    }
    if (dice < 80)
    {
        const long i = Below(ColNum() + 2) - 1;
        reference.SelectCol(i, select);
        grid.SelectCol(i, select);
        return "SelectCol " + std::to_string(i);
    }
    if (dice < 90)
    {
        const std::string text = RandomText();
        const long col = Below(ColNum() + 1);
        EXPECT_EQ(grid.FindAndSel(CString(text.c_str()), col), reference.FindAndSel(text, col, tree));
        return "FindAndSel " + text + " " + std::to_string(col);
    }
    dice < 95 ? reference.SelectAll() : reference.UnSelect();
    dice < 95 ? grid.SelectAll() : grid.UnSelect();
    return dice < 95 ? "SelectAll" : "UnSelect";
}

std::string Fuzzer::TextStep()
{
    if (RowNum() == 0)
        return "nothing";
    const long row = Below(RowNum());
    const long col = Below(ColNum());
    const std::string text = RandomText();
    reference.rows[static_cast<std::size_t>(row)]->cells[static_cast<std::size_t>(col)] = text;
    grid.GetCell(row, col).SetText(CString(text.c_str()));
    return "SetText";
}

void Fuzzer::InsertChild(TGGridTreeRow& row, ReferenceRow* other)
{
    const long k = Below(row.GetChildNum() + 1);
    auto* child = static_cast<TGGridTreeRow*>(NewRow(nextId));
    ReferenceRow* otherChild = reference.NewRow(nextId++);
    if (Below(3) == 0)
    {
        // A sub-tree of its own, unfolded before it is entered.
        auto* grandchild = static_cast<TGGridTreeRow*>(NewRow(nextId));
        ReferenceRow* otherGrandchild = reference.NewRow(nextId++);
        child->AppendChild(grandchild);
        reference.InsertChild(otherChild, 0, otherGrandchild);
        child->UnFold();
        reference.UnFold(otherChild);
    }
    reference.InsertChild(other, k, otherChild);
    row.InsertChild(k, child);
}

std::string Fuzzer::TreeStep()
{
    const long dice = Below(100);
    TGGridTreeRow* row = &grid.GetTreeRow(Below(RowNum()));
    ReferenceRow* other = reference.rows[static_cast<std::size_t>(row->GetIndex())];
    const std::string at = " at " + std::to_string(row->GetIndex());
    // Hidden rows take part too.
    while (row->IsParentRow() && Below(2) == 0)
    {
        const long k = Below(row->GetChildNum());
        row = &row->GetChild(k);
        other = other->children[static_cast<std::size_t>(k)];
    }
    if (dice < 35)
    {
        if (row->RootRow().GetOffspringNum() < 12)
            InsertChild(*row, other);
        return "InsertChild" + at;
    }
    if (dice < 50)
    {
        if (row->IsParentRow())
        {
            const long k = Below(row->GetChildNum());
            reference.DelChild(other, k);
            row->DelChild(k);
        }
        return "DelChild" + at;
    }
    if (dice < 65)
        return reference.Fold(other), row->Fold(), "Fold" + at;
    if (dice < 84)
        return reference.UnFold(other), row->UnFold(), "UnFold" + at;
    if (dice < 88)
        return reference.FoldAll(other), row->FoldAll(), "FoldAll" + at;
    if (dice < 93)
        return reference.UnFoldAll(other), row->UnFoldAll(), "UnFoldAll" + at;
    if (dice < 95)
        return reference.ClearChild(other), row->ClearChild(), "ClearChild" + at;
    // The children are sorted hidden, because sorting leaves the rows shown where they are.
    const bool ascending = dice % 2 == 0;
    reference.FoldAll(other);
    reference.ArrangeChild(other, ascending, {0, 1});
    row->FoldAll();
    row->ArrangeChild(ascending);
    return "ArrangeChild" + at;
}

void RunFuzz(bool tree)
{
#ifdef _DEBUG
    const long steps = FromEnvironment("QUOR_FUZZ_STEPS", 10000);
#else
    const long steps = FromEnvironment("QUOR_FUZZ_STEPS", 500000);
#endif
    const auto seed =
        static_cast<unsigned>(FromEnvironment("QUOR_SEED", static_cast<long>(std::random_device{}())));
    std::cout << "seed " << seed << ", " << steps << " operations\n";
    Fuzzer fuzzer(tree, seed);
    for (long step = 0; step < steps; ++step)
    {
        const std::string done = fuzzer.Step();
        fuzzer.Check("step " + std::to_string(step) + ": " + done);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(ModelFuzz, RandomOperationsOnAPlainGridMatchTheReference)
{
    RunFuzz(false);
}

TEST(ModelFuzz, RandomOperationsOnATreeGridMatchTheReference)
{
    RunFuzz(true);
}

} // namespace
} // namespace quor::test
