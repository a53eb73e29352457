// The defaults of the grid's hooks and the notification of the parent.
#include "tests/grid/ModelGrid.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Opens every hook, so that a test can call the default.
class OpenHooks : public TGGrid
{
public:
    using TGGrid::TGGrid;

    using TGGrid::OnActiveQuadTip;
    using TGGrid::OnBeforeClip;
    using TGGrid::OnBeforeCopy;
    using TGGrid::OnBeforeDeleteCol;
    using TGGrid::OnBeforeDeleteRow;
    using TGGrid::OnBeforeEdit;
    using TGGrid::OnBeforeInsertChild;
    using TGGrid::OnBeforeInsertCol;
    using TGGrid::OnBeforeInsertRow;
    using TGGrid::OnBeforePaste;
    using TGGrid::OnBeforePasteChild;
    using TGGrid::OnBeforeRefresh;
    using TGGrid::OnBeginMoveCol;
    using TGGrid::OnBeginMoveRow;
    using TGGrid::OnCellButtonDown;
    using TGGrid::OnCellButtonTip;
    using TGGrid::OnCellComboString;
    using TGGrid::OnCellSpinInit;
    using TGGrid::OnCellTip;
    using TGGrid::OnCmbEditchange;
    using TGGrid::OnCmbSelchange;
    using TGGrid::OnColTip;
    using TGGrid::OnCurChanged;
    using TGGrid::OnDataChanged;
    using TGGrid::OnDblClick;
    using TGGrid::OnEndClip;
    using TGGrid::OnEndCopy;
    using TGGrid::OnEndDeleteCol;
    using TGGrid::OnEndDeleteRow;
    using TGGrid::OnEndMoveCol;
    using TGGrid::OnEndMoveRow;
    using TGGrid::OnEndPaste;
    using TGGrid::OnInsertCol;
    using TGGrid::OnInsertRow;
    using TGGrid::OnModified;
    using TGGrid::OnMoveCol;
    using TGGrid::OnMoveRow;
    using TGGrid::OnMovingCol;
    using TGGrid::OnMovingRow;
    using TGGrid::OnRClickCell;
    using TGGrid::OnRefresh;
    using TGGrid::OnRowTip;
    using TGGrid::SendParentNotify;
};

class GridHooks : public testing::Test
{
protected:
    GridHooks()
    {
        AddCols(grid, 2);
        row = &AddRoot(grid, L"a");
        cell = &(*row)[0];
        col = &grid.GetCol(0);
    }

    OpenHooks grid{true};
    TGGridTreeRow* row;
    TGGridCell* cell;
    TGGridCol* col;
};

TEST_F(GridHooks, VetoingHooksGoAheadAndSupplyNothing)
{
    bool commitNewRow = false;
    CString text = L"t";
    TGGridCol* newCol = nullptr;
    TGGridRow* newRow = nullptr;
    TGGridTreeRow* child = nullptr;
    EXPECT_TRUE(grid.OnBeforeEdit(*cell, commitNewRow));
    EXPECT_FALSE(commitNewRow);
    EXPECT_TRUE(grid.OnModified(*cell, text));
    EXPECT_EQ(Narrow(text), "t");
    EXPECT_TRUE(grid.OnRefresh(*cell));
    EXPECT_TRUE(grid.OnRefresh(static_cast<TGGridRow&>(*row)));
    EXPECT_TRUE(grid.OnBeforeInsertCol(0, newCol));
    EXPECT_EQ(newCol, nullptr);
    EXPECT_TRUE(grid.OnBeforeDeleteCol());
    EXPECT_TRUE(grid.OnBeginMoveCol());
    EXPECT_TRUE(grid.OnMovingCol(1));
    EXPECT_TRUE(grid.OnBeforeInsertRow(0, newRow));
    EXPECT_EQ(newRow, nullptr);
    EXPECT_TRUE(grid.OnBeforeInsertChild(*row, 0, child));
    EXPECT_EQ(child, nullptr);
    EXPECT_TRUE(grid.OnBeforeDeleteRow());
    EXPECT_TRUE(grid.OnBeforeClip());
    EXPECT_TRUE(grid.OnBeforeCopy());
    EXPECT_TRUE(grid.OnBeforePaste(0));
    EXPECT_TRUE(grid.OnBeforePasteChild(*row));
    EXPECT_TRUE(grid.OnBeginMoveRow());
    EXPECT_TRUE(grid.OnMovingRow(1));
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(GridHooks, InformationHooksAnswerNoAndLeaveTheText)
{
    CString text = L"t";
    EXPECT_FALSE(grid.OnCellButtonDown(*cell, text));
    EXPECT_FALSE(grid.OnCellTip(0, 0, text));
    EXPECT_FALSE(grid.OnRowTip(0, text));
    EXPECT_FALSE(grid.OnColTip(0, text));
    EXPECT_FALSE(grid.OnCellButtonTip(0, 0, text));
    EXPECT_FALSE(grid.OnActiveQuadTip(text));
    EXPECT_EQ(Narrow(text), "t");
}

TEST_F(GridHooks, ObservingHooksDoNothing)
{
    CComboBox combo;
    CSpinButtonCtrl spin;
    grid.SelectRow(0, true);
    grid.OnDblClick(*row);
    grid.OnRClickCell(*cell, CPoint(1, 1));
    grid.OnCellComboString(*cell, combo);
    grid.OnCellSpinInit(*cell, spin);
    grid.OnCmbEditchange(*cell, &combo);
    grid.OnEndDeleteCol();
    grid.OnEndMoveCol();
    grid.OnEndDeleteRow();
    grid.OnEndClip();
    grid.OnEndCopy();
    grid.OnEndPaste();
    grid.OnEndMoveRow();
    EXPECT_FALSE(grid.IsModified());
    EXPECT_EQ(Texts(grid), "a");
    EXPECT_EQ(Selection(grid), "rows 0 | cur 0,-1");
}

TEST_F(GridHooks, InsertionHooksReportChangedData)
{
    grid.OnInsertRow(*row);
    EXPECT_TRUE(grid.IsModified());
    grid.SetModify(false);
    grid.OnInsertCol(*col);
    EXPECT_TRUE(grid.IsModified());
}

TEST_F(GridHooks, StructureOperationsReportNoChangedData)
{
    grid.InsertRow(0, nullptr);
    grid.InsertCol(0, L"x", 0);
    grid.MoveRow(0, 2);
    grid.DelRow(0);
    grid.DelCol(0);
    EXPECT_FALSE(grid.IsModified());
}

class RefusingGrid : public OpenHooks
{
protected:
    bool OnMovingRow(long position) override { return position != 0; }
    bool OnMovingCol(long position) override { return position != 0; }
};

TEST_F(GridHooks, DroppingAnswersWhatPassingOverAnswered)
{
    RefusingGrid refusing;
    EXPECT_FALSE(refusing.OnMoveRow(0));
    EXPECT_TRUE(refusing.OnMoveRow(1));
    EXPECT_FALSE(refusing.OnMoveCol(0));
    EXPECT_TRUE(refusing.OnMoveCol(1));
}

TEST_F(GridHooks, TheCurrentRowAndColumnAreTheOnlySelectedOnes)
{
    grid.AppendRow(nullptr);
    grid.SelectRow(1, true);
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    grid.SelectRow(0, true);
    EXPECT_EQ(Selection(grid), "rows 0 1 | cur -1,-1");
    grid.SelectCol(1, true);
    EXPECT_EQ(Selection(grid), "cols 1 | cur -1,1");
    grid.SetCurRowIndex(1);
    grid.OnCurChanged();
    EXPECT_EQ(Selection(grid), "cols 1 | cur -1,1");
}

TEST_F(GridHooks, ChoosingAnItemStoresItsTextAndChoosingNothingStoresNothing)
{
    HostWindow host;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &host, 9));
    combo.AddString(L"first");
    combo.AddString(L"second");
    grid.OnCmbSelchange(*cell, &combo);
    EXPECT_EQ(Narrow(cell->GetText()), "a");
    combo.SetCurSel(1);
    grid.OnCmbSelchange(*cell, &combo);
    EXPECT_EQ(Narrow(cell->GetText()), "second");
    combo.SetCurSel(0);
    grid.OnCmbSelchange(*cell, &combo);
    EXPECT_EQ(Narrow(cell->GetText()), "first");
    EXPECT_FALSE(grid.IsModified());
}

// ---- Notification of the parent

using Log = std::vector<std::string>;

TEST_F(GridHooks, ColoursWithoutADrawingContextAreSetNowhere)
{
    OpenHooks bare;
    AddCols(bare, 1);
    AddRows(bare, "a");
    bare.OnBeforeRefresh(bare.GetCell(0, 0));
    EXPECT_EQ(bare.GetSafeHwnd(), nullptr);
}

TEST_F(GridHooks, AGridWithoutAWindowNotifiesNobody)
{
    grid.OnDataChanged();
    EXPECT_TRUE(grid.IsModified());
}

TEST_F(GridHooks, ChangedDataReachesTheParentAsAChangeOfTheGridsControl)
{
    HostWindow host;
    {
        OpenHooks shown;
        ASSERT_TRUE(shown.Create(CRect(0, 0, 200, 100), WS_CHILD | WS_VISIBLE, &host));
        shown.SetDlgCtrlID(1234);
        host.TakeLog();
        shown.OnDataChanged();
        EXPECT_EQ(host.TakeLog(), (Log{"command 1234 code 768"}));
        EXPECT_TRUE(shown.IsModified());
        shown.SendParentNotify(7);
        EXPECT_EQ(host.TakeLog(), (Log{"command 1234 code 7"}));
        shown.InsertRow(0, nullptr);
        shown.AppendCol(L"", 0);
        EXPECT_EQ(host.TakeLog(), (Log{}));
    }
}

TEST_F(GridHooks, AGridWithoutAParentSendsNothingAndDoesNotFail)
{
    OpenHooks alone;
    ASSERT_TRUE(
        alone.CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    alone.OnDataChanged();
    EXPECT_TRUE(alone.IsModified());
}

} // namespace
} // namespace quor::test
