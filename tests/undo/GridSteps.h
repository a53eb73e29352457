// GridSteps: a grid without a window that an undo stack watches.
#pragma once

#include "grid/TGUserAction.h"
#include "module/QuorTexts.h"
#include "tests/grid/ModelGrid.h"
#include "tests/undo/GridSubject.h"
#include "tests/undo/UndoWorld.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <string>

namespace quor::test
{

// Counts what undoing may ask and tell.
class ToldGrid : public ModelGrid
{
public:
    using ModelGrid::ModelGrid;

    int asked = 0;
    int changed = 0;
    std::function<void()> onDataChanged;

protected:
    bool OnModified(QuorUiCtr::TGGridCell&, CString&) override { return ++asked > 0; }
    bool OnBeforeDeleteRow() override { return ++asked > 0; }
    bool OnBeforeInsertRow(long, QuorUiCtr::TGGridRow*&) override { return ++asked > 0; }
    void OnDataChanged() override
    {
        ++changed;
        ModelGrid::OnDataChanged();
        if (const auto act = onDataChanged)
            act();
    }
};

// Undoes and redoes the steps since a state, and undoes them again, which must bring back what was.
inline void GoBackAndForth(ToldGrid& grid, CountingStack& stack, const std::string& before, int steps = 1)
{
    const std::string after = SnapshotOf(grid);
    EXPECT_NE(after, before);
    const auto undo = [&] {
        for (int i = 0; i < steps; ++i)
            EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(SnapshotOf(grid), before);
    };
    undo();
    for (int i = 0; i < steps; ++i)
        EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(SnapshotOf(grid), after);
    undo();
}

class GridSteps : public testing::Test
{
protected:
    GridSteps()
    {
        QuorUiCtr::QuorTexts::SetLanguage(QuorUiCtr::QuorLanguage::English);
        AddCols(grid, 3);
        AddRows(grid, "abcd");
        for (long row = 0; row < 4; ++row)
            grid.GetRow(row).SetExtendData(new NumberedData);
        stack.Watch(grid);
    }
    ~GridSteps() override { QuorUiCtr::QuorTexts::SetLanguage(QuorUiCtr::QuorLanguage::Default); }

    void Type(long row, long col, const wchar_t* text)
    {
        const QuorUiCtr::TGUserAction action(grid, QuorUiCtr::TGActionKind::Type);
        grid.GetCell(row, col).SetText(text);
    }
    void Select(std::initializer_list<long> rows)
    {
        grid.UnSelect();
        for (const long row : rows)
            grid.SelectRow(row, true);
    }
    void GoBackAndForth(const std::string& before, int steps = 1)
    {
        test::GoBackAndForth(grid, stack, before, steps);
    }

    ToldGrid grid;
    CountingStack stack;
};

} // namespace quor::test
