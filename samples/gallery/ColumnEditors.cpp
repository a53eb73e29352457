// How the columns of the gallery's tables are edited.
#include "ColumnEditors.h"

using QuorUiCtr::TGGrid;
using QuorUiCtr::TGGridCol;

namespace
{

const COLORREF ReadOnlyBack = RGB(240, 240, 240);

constexpr ColumnEditor Editors[] = {
    // The chemical elements.
    {L"原子序数", EditorKind::ReadOnly, 0, 0},
    {L"类别", EditorKind::List, 0, 0},
    {L"周期", EditorKind::Spin, 1, 7},
    {L"族", EditorKind::Spin, 1, 18},
    {L"常温状态", EditorKind::Combo, 0, 0},
    {L"发现者与说明", EditorKind::Button, 0, 0},
    // The countries.
    {L"洲", EditorKind::List, 0, 0},
    {L"区域", EditorKind::Combo, 0, 0},
    {L"国家", EditorKind::Button, 0, 0},
    {L"三字母代码", EditorKind::ReadOnly, 0, 0},
    {L"数字代码", EditorKind::Spin, 1, 999},
};
constexpr ColumnEditor PlainEditor = {L"", EditorKind::Text, 0, 0};

} // namespace

const ColumnEditor& EditorOf(const TGGridCol& col)
{
    for (const ColumnEditor& editor : Editors)
        if (col.GetName() == editor.caption)
            return editor;
    return PlainEditor;
}

const wchar_t* NameOf(EditorKind kind)
{
    switch (kind)
    {
    case EditorKind::ReadOnly:
        return L"只读";
    case EditorKind::Spin:
        return L"数字微调";
    case EditorKind::List:
        return L"下拉列表";
    case EditorKind::Combo:
        return L"可编辑组合框";
    case EditorKind::Button:
        return L"带按钮";
    case EditorKind::Text:
        break;
    }
    return L"文本";
}

void SetColumnEditors(TGGrid& grid)
{
    for (long index = 0; index < grid.GetColNum(); ++index)
    {
        TGGridCol& col = grid.GetCol(index);
        const EditorKind kind = EditorOf(col).kind;
        col.SetReadOnly(kind == EditorKind::ReadOnly);
        col.SetComboSel(kind == EditorKind::List);
        col.SetComboEdit(kind == EditorKind::Combo);
        col.SetRightButton(kind == EditorKind::Button);
        col.SetRightSpin(kind == EditorKind::Spin);
        if (kind == EditorKind::ReadOnly)
            col.SetBackColor(ReadOnlyBack);
    }
}

long FindColumn(TGGrid& grid, EditorKind kind)
{
    for (long index = 0; index < grid.GetColNum(); ++index)
        if (EditorOf(grid.GetCol(index)).kind == kind)
            return index;
    return -1;
}
