// The recording host: which name each hook goes by, and what a veto does.
#include "samples/recording/HookRecorder.h"

#include "grid/TGTreeGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using Lines = std::vector<std::string>;

// All hooks of the grid, in the order in which they are declared.
const Lines AllHooks = {"OnDblClick",         "OnRClickCell",      "OnRClickRow",       "OnRClickCol",
                        "OnRClickQuad",       "OnBeforeEdit",      "OnGetCellEdit",     "OnCellComboString",
                        "OnCellButtonDown",   "OnCellSpinInit",    "OnModified",        "OnDataChanged",
                        "OnCurChanged",       "OnCmbSelchange",    "OnCmbEditchange",   "OnBeforeRefresh",
                        "OnRefresh cell",     "OnRefresh row",     "OnBeforeInsertCol", "OnInsertCol",
                        "OnBeforeDeleteCol",  "OnEndDeleteCol",    "OnBeginMoveCol",    "OnMovingCol",
                        "OnMoveCol",          "OnEndMoveCol",      "OnBeforeInsertRow", "OnBeforeInsertChild",
                        "OnInsertRow",        "OnBeforeDeleteRow", "OnEndDeleteRow",    "OnBeforeClip",
                        "OnEndClip",          "OnBeforeCopy",      "OnEndCopy",         "OnBeforePaste",
                        "OnBeforePasteChild", "OnEndPaste",        "OnBeginMoveRow",    "OnMovingRow",
                        "OnMoveRow",          "OnEndMoveRow",      "OnCellTip",         "OnRowTip",
                        "OnColTip",           "OnCellButtonTip",   "OnActiveQuadTip"};

// Writes down the names of the hooks and vetoes all or none.
template <class Grid> class NamingGrid : public samples::HookRecorder<Grid>
{
    using Recorder = samples::HookRecorder<Grid>;

public:
    NamingGrid() : Recorder(true)
    {
        AddCols(*this, 2);
        AddRoot(*this, L"a");
    }

    // Calls those of the hooks that ask, in their order, and returns their answers.
    std::vector<bool> Ask()
    {
        TGGridTreeRow& row = this->GetTreeRow(0);
        TGGridCell& cell = row[0];
        bool commitNewRow = false;
        CString text;
        TGGridCol* suppliedCol = nullptr;
        TGGridRow* suppliedRow = nullptr;
        TGGridTreeRow* child = nullptr;
        return {this->OnBeforeEdit(cell, commitNewRow),
                this->OnModified(cell, text),
                this->OnRefresh(cell),
                this->OnBeforeInsertCol(0, suppliedCol),
                this->OnBeforeDeleteCol(),
                this->OnBeginMoveCol(),
                this->OnMoveCol(1),
                this->OnBeforeInsertRow(0, suppliedRow),
                this->OnBeforeInsertChild(row, 0, child),
                this->OnBeforeDeleteRow(),
                this->OnBeforeClip(),
                this->OnBeforeCopy(),
                this->OnBeforePaste(0),
                this->OnBeforePasteChild(row),
                this->OnBeginMoveRow(),
                this->OnMoveRow(1)};
    }

    // Calls every hook in its order.
    void CallAll()
    {
        TGGridTreeRow& row = this->GetTreeRow(0);
        TGGridCell& cell = row[0];
        CallMouseAndEdit(row, cell);
        this->OnBeforeRefresh(cell);
        this->OnRefresh(cell);
        this->OnRefresh(static_cast<TGGridRow&>(row));
        CallCols();
        CallRows(row);
        CString text;
        this->OnCellTip(0, 0, text);
        this->OnRowTip(0, text);
        this->OnColTip(0, text);
        this->OnCellButtonTip(0, 0, text);
        this->OnActiveQuadTip(text);
    }

    using Recorder::OnInsertRow;

    bool vetoesAll = false;
    mutable Lines names;
    mutable Lines ends;
    mutable Lines asking;

protected:
    bool Note(const samples::HookCall& call) const override
    {
        names.push_back(call.hook);
        if (call.asks)
            asking.push_back(call.hook);
        return !vetoesAll;
    }
    void NoteEnd(const char* hook) const override { ends.push_back(hook); }

private:
    void CallMouseAndEdit(TGGridTreeRow& row, TGGridCell& cell)
    {
        CComboBox combo;
        CSpinButtonCtrl spin;
        CString text;
        bool commitNewRow = false;
        this->OnDblClick(row);
        this->OnRClickCell(cell, CPoint(1, 1));
        this->OnRClickRow(row, CPoint(1, 1));
        this->OnRClickCol(this->GetCol(0), CPoint(1, 1));
        this->OnRClickQuad(CPoint(1, 1));
        this->OnBeforeEdit(cell, commitNewRow);
        EXPECT_EQ(this->OnGetCellEdit(cell), nullptr);
        this->OnCellComboString(cell, combo);
        this->OnCellButtonDown(cell, text);
        this->OnCellSpinInit(cell, spin);
        this->OnModified(cell, text);
        this->OnDataChanged();
        this->OnCurChanged();
        this->OnCmbSelchange(cell, &combo);
        this->OnCmbEditchange(cell, &combo);
    }
    void CallCols()
    {
        TGGridCol* suppliedCol = nullptr;
        this->OnBeforeInsertCol(0, suppliedCol);
        this->OnInsertCol(this->GetCol(0));
        this->OnBeforeDeleteCol();
        this->OnEndDeleteCol();
        this->OnBeginMoveCol();
        this->OnMovingCol(1);
        this->OnMoveCol(1);
        this->OnEndMoveCol();
    }
    void CallRows(TGGridTreeRow& row)
    {
        TGGridRow* suppliedRow = nullptr;
        TGGridTreeRow* child = nullptr;
        this->OnBeforeInsertRow(0, suppliedRow);
        this->OnBeforeInsertChild(row, 0, child);
        this->OnInsertRow(row);
        this->OnBeforeDeleteRow();
        this->OnEndDeleteRow();
        this->OnBeforeClip();
        this->OnEndClip();
        this->OnBeforeCopy();
        this->OnEndCopy();
        this->OnBeforePaste(0);
        this->OnBeforePasteChild(row);
        this->OnEndPaste();
        this->OnBeginMoveRow();
        this->OnMovingRow(1);
        this->OnMoveRow(1);
        this->OnEndMoveRow();
    }
};

template <class Grid> class HookRecorders : public testing::Test
{
protected:
    NamingGrid<Grid> grid;
};

using Grids = testing::Types<TGGrid, TGTreeGrid>;
TYPED_TEST_SUITE(HookRecorders, Grids, );

TYPED_TEST(HookRecorders, TellOfEveryHookByItsOwnName)
{
    this->grid.vetoesAll = true;
    this->grid.names.clear();
    this->grid.CallAll();
    EXPECT_EQ(this->grid.names, AllHooks);
}

TYPED_TEST(HookRecorders, TellOfTheEndOfEveryHookThatDoesNotAsk)
{
    this->grid.vetoesAll = true;
    this->grid.CallAll();
    EXPECT_EQ(this->grid.ends.size() + this->grid.asking.size(), this->grid.names.size());
    for (const std::string& name : this->grid.asking)
        EXPECT_EQ(std::count(this->grid.ends.begin(), this->grid.ends.end(), name), 0) << name;
}

TYPED_TEST(HookRecorders, AnswerFalseForAVetoAndElseAsTheDefault)
{
    for (const bool answer : this->grid.Ask())
        EXPECT_TRUE(answer);
    this->grid.vetoesAll = true;
    for (const bool answer : this->grid.Ask())
        EXPECT_FALSE(answer);
}

TEST(HookRecorder, LeavesOutTheDefaultThatIsVetoed)
{
    NamingGrid<TGGrid> grid;
    grid.vetoesAll = true;
    grid.OnInsertRow(grid.GetRow(0));
    EXPECT_FALSE(grid.IsModified());
    grid.vetoesAll = false;
    grid.OnInsertRow(grid.GetRow(0));
    EXPECT_TRUE(grid.IsModified());
}

} // namespace
} // namespace quor::test
