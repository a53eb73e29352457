// The style switches of the grid pages.
#include "GridStylePanel.h"

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
    bool (TGGrid::*isOn)() const;
    void (TGGrid::*set)(bool);
};

constexpr StyleSwitch Switches[] = {
    {IDC_STYLE_READ_ONLY, L"SetReadOnly", &TGGrid::IsReadOnly, &TGGrid::SetReadOnly},
    {IDC_STYLE_ROW_FIX_LENGTH, L"SetRowFixLength", &TGGrid::IsRowFixLength, &TGGrid::SetRowFixLength},
    {IDC_STYLE_COL_FIX_LENGTH, L"SetColFixLength", &TGGrid::IsColFixLength, &TGGrid::SetColFixLength},
    {IDC_STYLE_ROW_POS_FIX, L"SetRowPosFix", &TGGrid::IsRowPosFix, &TGGrid::SetRowPosFix},
    {IDC_STYLE_COL_POS_FIX, L"SetColPosFix", &TGGrid::IsColPosFix, &TGGrid::SetColPosFix},
    {IDC_STYLE_COL_FIX_WIDTH, L"SetColFixWidth", &TGGrid::IsColFixWidth, &TGGrid::SetColFixWidth},
    {IDC_STYLE_SINGLE_ROW, L"SetSingleSelRow", &TGGrid::IsSingleSelRow, &TGGrid::SetSingleSelRow},
    {IDC_STYLE_NO_APPEND, L"SetNoAppendButton", &TGGrid::IsNoAppendButton, &TGGrid::SetNoAppendButton},
    {IDC_STYLE_NO_PASTE, L"SetNoPaste", &TGGrid::IsNoPaste, &TGGrid::SetNoPaste},
    {IDC_STYLE_NO_MENU, L"SetNoDefaultMenu", &TGGrid::IsNoDefaultMenu, &TGGrid::SetNoDefaultMenu},
    {IDC_STYLE_SORT, L"SetSortEnable", &TGGrid::IsSortEnable, &TGGrid::SetSortEnable},
    {IDC_STYLE_LABEL_SORT, L"SetLabelSort", &TGGrid::IsLabelSort, &TGGrid::SetLabelSort},
    {IDC_STYLE_FLAT, L"SetFlatButton", &TGGrid::IsFlatButton, &TGGrid::SetFlatButton},
    {IDC_STYLE_TREE_LINE, L"SetTreeLine", &TGGrid::IsNeedTreeLine, &TGGrid::SetTreeLine},
    {IDC_STYLE_ROW_HEADER, L"SetRowSel", &TGGrid::IsRowSel, &TGGrid::SetRowSel},
    {IDC_STYLE_COL_HEADER, L"SetColSel", &TGGrid::IsColSel, &TGGrid::SetColSel},
};

constexpr const wchar_t* Keys = L"方向键 Tab Enter Esc 编辑与移动\n"
                                L"PgUp PgDn Home 滚动\n"
                                L"Ins 插入 (Ctrl 树)  Del 删除\n"
                                L"N 新建 (Ctrl 树)  T 新建子行\n"
                                L"C 复制  X 剪切  V 粘贴\n"
                                L"Ctrl+V 粘贴为子行\n"
                                L"A 全选  R 升序  U 降序";

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
        CheckDlgButton(static_cast<int>(entry.control), (grid.*entry.isOn)() ? BST_CHECKED : BST_UNCHECKED);
    SetDlgItemText(IDC_STYLE_KEYS, Keys);
    return TRUE;
}

int GridStylePanel::PlaceAtRight(int width, int height)
{
    if (GetSafeHwnd() == nullptr)
        return width;
    CRect place;
    GetWindowRect(place);
    const int left = std::max(0, width - place.Width());
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
    (grid.*found->set)(on);
    grid.RecalcLayout(1);
    CString line;
    line.Format(L"%s(%s)  style 0x%04X", found->name, on ? L"true" : L"false",
                static_cast<unsigned>(grid.GetStyle()));
    log.Add(line);
    return TRUE;
}
