// A user who edits cells with mouse and keyboard.
#include "tests/grid_input/EditDriver.h"
#include "rules/GridGeometry.h"

#include <stdexcept>

namespace quor::test
{
namespace
{

CPoint MiddleOf(HWND window, int quartersDown = 2)
{
    RECT client = {};
    ::GetClientRect(window, &client);
    return CPoint(client.right / 2, client.bottom * quartersDown / 4);
}

HWND ListOf(HWND combo)
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(combo, &info);
    return info.hwndList;
}

} // namespace

CPoint EditDriver::CellMiddle(long row, long col)
{
    CRect cell;
    // The new-row line has no cell that can be asked for; the first row's columns stand at the same place.
    grid.GetCell(0, col).GetRect(cell);
    return grid.ToClient((cell.left + cell.right) / 2, row * grid.GetRowHeight() + grid.GetRowHeight() / 2);
}

void EditDriver::ClickCell(long row, long col)
{
    Click(grid, CellMiddle(row, col));
}

void EditDriver::RightClickCell(long row, long col)
{
    RightClick(grid, CellMiddle(row, col));
}

void EditDriver::ClickBelowRows()
{
    Click(grid, CellMiddle(grid.GetRowNum() + 2, 0));
}

void EditDriver::PressButton()
{
    const HWND button = grid.EditorPart()->GetSafeHwnd();
    Click(button, MiddleOf(button));
}

void EditDriver::SpinUp(int times)
{
    const HWND spin = grid.EditorPart()->GetSafeHwnd();
    for (int i = 0; i < times; ++i)
        Click(spin, MiddleOf(spin, 1));
}

void EditDriver::SpinDown(int times)
{
    const HWND spin = grid.EditorPart()->GetSafeHwnd();
    for (int i = 0; i < times; ++i)
        Click(spin, MiddleOf(spin, 3));
}

void EditDriver::ChooseItem(int item)
{
    const HWND combo = grid.EditorWindow()->GetSafeHwnd();
    const HWND list = ListOf(combo);
    RECT client = {};
    ::GetClientRect(combo, &client);
    // The arrow stands at the right end.
    Click(combo, CPoint(client.right - 6, client.bottom / 2));
    if (!PumpUntil([list] { return ::IsWindowVisible(list) != FALSE; }))
        throw std::runtime_error("the list does not drop down");
    RECT place = {};
    ::SendMessage(list, LB_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&place));
    Click(list, CPoint((place.left + place.right) / 2, (place.top + place.bottom) / 2));
    if (!PumpUntil([list] { return ::IsWindowVisible(list) == FALSE; }))
        throw std::runtime_error("the list stays open");
}

void EditDriver::ClickFoldBox(long row, long depth)
{
    const CRect box = QuorUiCtr::FoldBoxRect(0, row, depth, grid.GetRowHeight()).As<CRect>();
    Click(grid, grid.ToClient(box.CenterPoint().x, box.CenterPoint().y));
}

void EditInputTest::MakeAllKinds(EditGrid& grid, long rows)
{
    Create(grid, 600, 400);
    Fill(grid, rows, 5);
    grid.GetCol(Button).SetRightButton(true);
    grid.GetCol(Spin).SetRightSpin(true);
    grid.GetCol(Combo).SetComboEdit(true);
    grid.GetCol(List).SetComboSel(true);
    for (long row = 0; row < rows; ++row)
        grid.GetCell(row, Spin).SetText(L"10");
    grid.comboStrings = [](QuorUiCtr::TGGridCell&, CComboBox& combo) {
        for (const wchar_t* item : {L"苹果 apple", L"梨 pear", L"无花果 fig"})
            combo.AddString(item);
    };
    grid.buttonDown = [](QuorUiCtr::TGGridCell&, CString& text) {
        text += L"!";
        return true;
    };
    ASSERT_TRUE(Activate(host));
    PumpPending();
    grid.recording = true;
    grid.TakeText();
}

} // namespace quor::test
