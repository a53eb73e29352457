// The style switches of the grid pages.
#include "GridStylePanel.h"

#include "Language.h"
#include "resource.h"

#include <algorithm>
#include <iterator>

using QuorUiCtr::TGGrid;

namespace
{

// A check box and the flag that it shows and sets.
struct StyleSwitch
{
    UINT control;
    const wchar_t* name;
    bool (*isOn)(const TGGrid&);
    void (*set)(TGGrid&, bool);
};

constexpr StyleSwitch Switches[] = {
    {IDC_STYLE_READ_ONLY, L"SetReadOnly", [](const TGGrid& grid) { return grid.IsReadOnly(); },
     [](TGGrid& grid, bool on) { grid.SetReadOnly(on); }},
    {IDC_STYLE_ROW_FIX_LENGTH, L"SetRowFixLength", [](const TGGrid& grid) { return grid.IsRowFixLength(); },
     [](TGGrid& grid, bool on) { grid.SetRowFixLength(on); }},
    {IDC_STYLE_COL_FIX_LENGTH, L"SetColFixLength", [](const TGGrid& grid) { return grid.IsColFixLength(); },
     [](TGGrid& grid, bool on) { grid.SetColFixLength(on); }},
    {IDC_STYLE_ROW_POS_FIX, L"SetRowPosFix", [](const TGGrid& grid) { return grid.IsRowPosFix(); },
     [](TGGrid& grid, bool on) { grid.SetRowPosFix(on); }},
    {IDC_STYLE_COL_POS_FIX, L"SetColPosFix", [](const TGGrid& grid) { return grid.IsColPosFix(); },
     [](TGGrid& grid, bool on) { grid.SetColPosFix(on); }},
    {IDC_STYLE_COL_FIX_WIDTH, L"SetColFixWidth", [](const TGGrid& grid) { return grid.IsColFixWidth(); },
     [](TGGrid& grid, bool on) { grid.SetColFixWidth(on); }},
    {IDC_STYLE_SINGLE_ROW, L"SetSingleSelRow", [](const TGGrid& grid) { return grid.IsSingleSelRow(); },
     [](TGGrid& grid, bool on) { grid.SetSingleSelRow(on); }},
    {IDC_STYLE_NO_APPEND, L"SetNoAppendButton", [](const TGGrid& grid) { return grid.IsNoAppendButton(); },
     [](TGGrid& grid, bool on) { grid.SetNoAppendButton(on); }},
    {IDC_STYLE_NO_PASTE, L"SetNoPaste", [](const TGGrid& grid) { return grid.IsNoPaste(); },
     [](TGGrid& grid, bool on) { grid.SetNoPaste(on); }},
    {IDC_STYLE_NO_MENU, L"SetNoDefaultMenu", [](const TGGrid& grid) { return grid.IsNoDefaultMenu(); },
     [](TGGrid& grid, bool on) { grid.SetNoDefaultMenu(on); }},
    {IDC_STYLE_SORT, L"SetSortEnable", [](const TGGrid& grid) { return grid.IsSortEnable(); },
     [](TGGrid& grid, bool on) { grid.SetSortEnable(on); }},
    {IDC_STYLE_LABEL_SORT, L"SetLabelSort", [](const TGGrid& grid) { return grid.IsLabelSort(); },
     [](TGGrid& grid, bool on) { grid.SetLabelSort(on); }},
    {IDC_STYLE_FLAT, L"SetFlatButton", [](const TGGrid& grid) { return grid.IsFlatButton(); },
     [](TGGrid& grid, bool on) { grid.SetFlatButton(on); }},
    {IDC_STYLE_TREE_LINE, L"SetTreeLine", [](const TGGrid& grid) { return grid.IsNeedTreeLine(); },
     [](TGGrid& grid, bool on) { grid.SetTreeLine(on); }},
    {IDC_STYLE_ROW_HEADER, L"SetRowSel", [](const TGGrid& grid) { return grid.IsRowSel(); },
     [](TGGrid& grid, bool on) { grid.SetRowSel(on); }},
    {IDC_STYLE_COL_HEADER, L"SetColSel", [](const TGGrid& grid) { return grid.IsColSel(); },
     [](TGGrid& grid, bool on) { grid.SetColSel(on); }},
};

constexpr const wchar_t* Keys = L"Arrows Tab Enter Esc edit, move\n"
                                L"PgUp PgDn Home scroll\n"
                                L"Ins insert (Ctrl: tree)  Del delete\n"
                                L"N new (Ctrl: tree)  T new child\n"
                                L"C copy  X cut  V paste\n"
                                L"Ctrl+V paste as child\n"
                                L"A all  R ascending  U descending\n"
                                L"F6 next pane";

} // namespace

GridStylePanel::GridStylePanel(TGGrid& shownGrid, LogPane& logPane) : grid(shownGrid), log(logPane) {}

bool GridStylePanel::CreateIn(CWnd& page)
{
    return Create(IDD_GRID_STYLES, &page) != FALSE;
}

BOOL GridStylePanel::OnInitDialog()
{
    CDialog::OnInitDialog();
    for (const StyleSwitch& entry : Switches)
        CheckDlgButton(static_cast<int>(entry.control), entry.isOn(grid) ? BST_CHECKED : BST_UNCHECKED);
    TranslateControls(*this);
    SetDlgItemText(IDC_STYLE_KEYS, Tr(Keys));
    return TRUE;
}

int GridStylePanel::PlaceAtRight(int width, int height)
{
    if (GetSafeHwnd() == nullptr)
        return width;
    CRect place;
    GetWindowRect(place);
    const int left = (std::max)(0, width - place.Width());
    MoveWindow(left, 0, place.Width(), height);
    return left;
}

BOOL GridStylePanel::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const auto found =
        std::find_if(std::begin(Switches), std::end(Switches),
                     [wParam](const StyleSwitch& entry) { return entry.control == LOWORD(wParam); });
    if (HIWORD(wParam) != BN_CLICKED || found == std::end(Switches))
        return CDialog::OnCommand(wParam, lParam);
    const bool on = IsDlgButtonChecked(static_cast<int>(found->control)) != 0;
    found->set(grid, on);
    grid.RecalcLayout(1);
    CString line;
    line.Format(L"%s(%s)  style 0x%04X", found->name, on ? L"true" : L"false",
                static_cast<unsigned>(grid.GetStyle()));
    log.Add(line);
    return TRUE;
}
