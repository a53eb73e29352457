// The editing of the gallery's grids: where combo boxes, spins and buttons get their data from. The hooks
// that only log are in GalleryGridLog.cpp.
#include "GalleryGrid.h"

#include "CellTextDialog.h"
#include "ColumnEditors.h"
#include "Language.h"

#include <cwchar>

namespace
{

CString Describe(const QuorUiCtr::TGGridCell& cell)
{
    CString text;
    text.Format(L"cell %ld,%ld \"%s\"", cell.GetRowIndex(), cell.GetColIndex(),
                static_cast<const wchar_t*>(cell.GetText()));
    return text;
}

// The whole text is a number of the range.
bool IsNumberIn(const CString& text, int lower, int upper)
{
    wchar_t* end = nullptr;
    const long number = std::wcstol(text, &end, 10);
    return !text.IsEmpty() && *end == L'\0' && lower <= number && number <= upper;
}

} // namespace

bool GalleryGrid::OnBeforeEdit(TGGridCell& cell, bool& commitNewRow)
{
    Note(L"OnBeforeEdit  %s, commitNewRow %d", Describe(cell), commitNewRow);
    return TGGrid::OnBeforeEdit(cell, commitNewRow);
}

QuorUiCtr::TGCellCtrl* GalleryGrid::OnGetCellEdit(TGGridCell& cell)
{
    Note(L"OnGetCellEdit  %s: %s", Describe(cell), NameOf(EditorOf(cell.GetCol()).kind));
    return TGGrid::OnGetCellEdit(cell);
}

void GalleryGrid::OnCellComboString(TGGridCell& cell, CComboBox& combo)
{
    constexpr int MaxItems = 200;
    const long col = cell.GetColIndex();
    for (long row = 0; row < GetRowNum() && combo.GetCount() < MaxItems; ++row)
    {
        const CString& text = GetCell(row, col).GetText();
        if (!text.IsEmpty() && combo.FindStringExact(-1, text) == CB_ERR)
            combo.AddString(text);
    }
    Note(L"OnCellComboString  %s: %d items", Describe(cell), combo.GetCount());
}

bool GalleryGrid::OnCellButtonDown(TGGridCell& cell, CString& text)
{
    Note(L"OnCellButtonDown  %s, text \"%s\"", Describe(cell), text);
    CellTextDialog dialog(cell.GetCol().GetName(), text, this);
    if (dialog.DoModal() != IDOK)
        return false;
    text = dialog.GetText();
    return true;
}

void GalleryGrid::OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin)
{
    const ColumnEditor& editor = EditorOf(cell.GetCol());
    Note(L"OnCellSpinInit  %s: %d..%d", Describe(cell), editor.lower, editor.upper);
    spin.SetRange32(editor.lower, editor.upper);
}

bool GalleryGrid::OnModified(TGGridCell& cell, CString& text)
{
    const ColumnEditor& editor = EditorOf(cell.GetCol());
    const bool accepted =
        editor.kind != EditorKind::Spin || text.IsEmpty() || IsNumberIn(text, editor.lower, editor.upper);
    Note(L"OnModified  %s, text \"%s\"%s", Describe(cell), text,
         accepted ? CString() : CString(L": ") + Tr(L"refused"));
    return accepted && TGGrid::OnModified(cell, text);
}

void GalleryGrid::OnDataChanged()
{
    AddLine(L"OnDataChanged");
    TGGrid::OnDataChanged();
}

void GalleryGrid::OnCurChanged()
{
    TGGrid::OnCurChanged();
    Note(L"OnCurChanged  row %ld, column %ld", GetCurRowIndex(), GetCurColIndex());
}

void GalleryGrid::OnCmbSelchange(TGGridCell& cell, CComboBox* combo)
{
    Note(L"OnCmbSelchange  %s, item %d", Describe(cell), combo->GetCurSel());
    TGGrid::OnCmbSelchange(cell, combo);
}

void GalleryGrid::OnCmbEditchange(TGGridCell& cell, CComboBox* combo)
{
    CString text;
    combo->GetWindowText(text);
    Note(L"OnCmbEditchange  %s, text \"%s\"", Describe(cell), text);
    TGGrid::OnCmbEditchange(cell, combo);
}

// ---- Tips
// ----------------------------------------------------------------------------------------------------- A tip
// shows 19 characters.

bool GalleryGrid::OnCellTip(long row, long col, CString& text) const
{
    Note(L"OnCellTip  row %ld, column %ld", row, col);
    text.Format(Tr(L"Row %ld, column %ld"), row + 1, col + 1);
    return true;
}

bool GalleryGrid::OnRowTip(long row, CString& text) const
{
    Note(L"OnRowTip  row %ld", row);
    text.Format(Tr(L"Row %ld"), row + 1);
    return true;
}

bool GalleryGrid::OnColTip(long col, CString& text) const
{
    Note(L"OnColTip  column %ld", col);
    const EditorKind kind = EditorOf(const_cast<GalleryGrid*>(this)->GetCol(col)).kind;
    text.Format(Tr(L"Column %ld: %s"), col + 1, NameOf(kind));
    return true;
}

bool GalleryGrid::OnCellButtonTip(long row, long col, CString& text) const
{
    Note(L"OnCellButtonTip  row %ld, column %ld", row, col);
    text = Tr(L"Edit in a dialog");
    return true;
}

bool GalleryGrid::OnActiveQuadTip(CString& text) const
{
    AddLine(L"OnActiveQuadTip");
    text = Tr(L"Double click: all");
    return true;
}
