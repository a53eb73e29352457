// How the columns of the gallery's tables are edited.
#include "ColumnEditors.h"

#include "Language.h"

using QuorUiCtr::TGGrid;
using QuorUiCtr::TGGridCol;

namespace
{

const COLORREF ReadOnlyBack = RGB(240, 240, 240);

constexpr ColumnEditor Editors[] = {
    // The chemical elements.
    {L"Atomic number", EditorKind::ReadOnly, 0, 0},
    {L"原子序数", EditorKind::ReadOnly, 0, 0},
    {L"Category", EditorKind::List, 0, 0},
    {L"类别", EditorKind::List, 0, 0},
    {L"Period", EditorKind::Spin, 1, 7},
    {L"周期", EditorKind::Spin, 1, 7},
    {L"Group", EditorKind::Spin, 1, 18},
    {L"族", EditorKind::Spin, 1, 18},
    {L"State", EditorKind::Combo, 0, 0},
    {L"常温状态", EditorKind::Combo, 0, 0},
    {L"Discoverers and notes", EditorKind::Button, 0, 0},
    {L"发现者与说明", EditorKind::Button, 0, 0},
    // The countries.
    {L"Continent", EditorKind::List, 0, 0},
    {L"洲", EditorKind::List, 0, 0},
    {L"Region", EditorKind::Combo, 0, 0},
    {L"区域", EditorKind::Combo, 0, 0},
    {L"Country", EditorKind::Button, 0, 0},
    {L"国家", EditorKind::Button, 0, 0},
    {L"Letters", EditorKind::ReadOnly, 0, 0},
    {L"三字母代码", EditorKind::ReadOnly, 0, 0},
    {L"Number", EditorKind::Spin, 1, 999},
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
        return Tr(L"read only");
    case EditorKind::Spin:
        return Tr(L"spin");
    case EditorKind::List:
        return Tr(L"list");
    case EditorKind::Combo:
        return Tr(L"combo box");
    case EditorKind::Button:
        return Tr(L"with a button");
    case EditorKind::Text:
        break;
    }
    return Tr(L"text");
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
