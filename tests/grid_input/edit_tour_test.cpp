// A long edit with the real mouse and keyboard: twenty cells of all kinds and the new-row line.
#include "tests/grid_input/EditDriver.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr long TourRows = 4;

class GridEditTour : public EditInputTest
{
protected:
    // What the user does in one cell.
    static void EditCell(EditDriver& user, long row, long col)
    {
        user.ClickCell(row, col);
        switch (col)
        {
        case Plain:
            user.Type(L"第" + std::to_wstring(row) + L"行 plain");
            break;
        case Button:
            user.Type(L"按钮" + std::to_wstring(row));
            user.PressButton();
            break;
        case Spin:
            user.SpinUp(static_cast<int>(row) + 1);
            break;
        case Combo:
            if (row % 2 == 0)
                user.ChooseItem(1);
            else
                user.Type(L"自由 free");
            break;
        case List:
            user.ChooseItem(static_cast<int>(row) % 3);
            break;
        }
    }
    static std::wstring ExpectedText(long row, long col)
    {
        const wchar_t* const items[] = {L"苹果 apple", L"梨 pear", L"无花果 fig"};
        switch (col)
        {
        case Plain:
            return L"第" + std::to_wstring(row) + L"行 plain";
        case Button:
            return L"按钮" + std::to_wstring(row) + L"!";
        case Spin:
            return std::to_wstring(11 + row);
        case Combo:
            return row % 2 == 0 ? items[1] : L"自由 free";
        default:
            return items[row % 3];
        }
    }
    // The hooks of one edit, without the texts: opened by the click, committed by the next one.
    static std::string ExpectedHooks(long row, long col)
    {
        const std::string cell = " " + std::to_string(row) + "," + std::to_string(col);
        std::string hooks = "OnBeforeEdit" + cell + " | OnGetCellEdit" + cell;
        if (col == Spin)
            hooks += " | OnCellSpinInit" + cell;
        if (col == Combo || col == List)
            hooks += " | OnCellComboString" + cell;
        hooks += " | OnCurChanged" + cell;
        if (col == Button)
            hooks += " | OnCellButtonDown" + cell;
        if (col == List || (col == Combo && row % 2 == 0))
            hooks += " | OnCmbSelchange" + cell + " | OnDataChanged";
        return hooks + " | OnModified" + cell + " | OnDataChanged";
    }
    // The lines of the log with their first two words, without those that tell of selection and painting.
    static std::string EssentialHooks(EditGrid& grid)
    {
        std::string joined;
        for (std::string line : grid.TakeLog())
        {
            if (IsPaintLine(line) || line == "OnCurChanged -1,-1")
                continue;
            const size_t second = line.find(' ');
            const size_t third = second == std::string::npos ? second : line.find(' ', second + 1);
            joined += (joined.empty() ? "" : " | ") + line.substr(0, third);
        }
        return joined;
    }
};

TEST_F(GridEditTour, TwentyCellsOfAllKinds_HoldWhatTheUserEntered)
{
    EditGrid grid;
    MakeAllKinds(grid, TourRows);
    EditDriver user(grid);
    for (long row = 0; row < TourRows; ++row)
        for (long col = Plain; col <= List; ++col)
        {
            EditCell(user, row, col);
            user.ClickBelowRows();
            EXPECT_FALSE(grid.IsEditing());
            EXPECT_EQ(EssentialHooks(grid), ExpectedHooks(row, col));
        }
    for (long row = 0; row < TourRows; ++row)
        for (long col = Plain; col <= List; ++col)
            EXPECT_STREQ(grid.GetCell(row, col).GetText(), ExpectedText(row, col).c_str())
                << row << "," << col;
    EXPECT_EQ(grid.GetRowNum(), TourRows);
    EXPECT_TRUE(grid.IsModified());
}

TEST_F(GridEditTour, ClicksFromCellToCell_CommitTheOneThatIsLeft)
{
    EditGrid grid;
    MakeAllKinds(grid, TourRows);
    EditDriver user(grid);
    for (long row = 0; row < TourRows; ++row)
        for (long col = Plain; col <= List; ++col)
            EditCell(user, row, col);
    user.ClickBelowRows();
    for (long row = 0; row < TourRows; ++row)
        for (long col = Plain; col <= List; ++col)
            EXPECT_STREQ(grid.GetCell(row, col).GetText(), ExpectedText(row, col).c_str())
                << row << "," << col;
}

TEST_F(GridEditTour, NewRowLine_IsFilledCellByCell)
{
    EditGrid grid;
    MakeAllKinds(grid, TourRows);
    EditDriver user(grid);
    // The first cell makes the row, the others are edited in it.
    EditCell(user, TourRows, Plain);
    user.ClickBelowRows();
    EXPECT_EQ(EssentialHooks(grid), "OnBeforeEdit 4,0 | OnGetCellEdit 4,0 | OnCurChanged 4,0 | OnModified "
                                    "4,0 | OnBeforeInsertRow 4 | OnInsertRow 4 | OnDataChanged");
    ASSERT_EQ(grid.GetRowNum(), TourRows + 1);
    grid.GetCell(TourRows, Spin).SetText(L"10");
    for (long col = Button; col <= List; ++col)
        EditCell(user, TourRows, col);
    user.ClickBelowRows();
    for (long col = Plain; col <= List; ++col)
        EXPECT_STREQ(grid.GetCell(TourRows, col).GetText(), ExpectedText(TourRows, col).c_str()) << col;
    EXPECT_EQ(grid.GetRowNum(), TourRows + 1);
}

} // namespace
} // namespace quor::test
