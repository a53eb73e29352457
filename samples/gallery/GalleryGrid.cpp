// The editing of the gallery's grids: where combo boxes, spins and buttons get their data from.
#include "GalleryGrid.h"

#include "CellTextDialog.h"
#include "ColumnEditors.h"
#include "Language.h"

#include <cwchar>

namespace
{

// A remark, made like CString::Format.
template <class... Values> CString RemarkText(const wchar_t* format, Values... values)
{
    CString text;
    text.Format(format, values...);
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

BEGIN_MESSAGE_MAP(GalleryGrid, QuorUiCtr::TGGrid)
    ON_WM_PAINT()
END_MESSAGE_MAP()

GalleryGrid::GalleryGrid(bool tree, LogPane& logPane) : HookRecorder(tree), log(logPane) {}

bool GalleryGrid::Note(const samples::HookCall& call) const
{
    log.Add(call);
    return true;
}

void GalleryGrid::OnPaint()
{
    HookRecorder::OnPaint();
    log.EndPainting();
}

// ---- Editing

QuorUiCtr::TGCellCtrl* GalleryGrid::OnGetCellEdit(Cell& cell)
{
    log.Remark(L": " + CString(NameOf(EditorOf(cell.GetCol()).kind)));
    return HookRecorder::OnGetCellEdit(cell);
}

void GalleryGrid::OnCellComboString(Cell& cell, CComboBox& combo)
{
    constexpr int MaxItems = 200;
    const long col = cell.GetColIndex();
    for (long row = 0; row < GetRowNum() && combo.GetCount() < MaxItems; ++row)
    {
        const CString& text = GetCell(row, col).GetText();
        if (!text.IsEmpty() && combo.FindStringExact(-1, text) == CB_ERR)
            combo.AddString(text);
    }
    log.Remark(RemarkText(L": %d items", combo.GetCount()));
    HookRecorder::OnCellComboString(cell, combo);
}

bool GalleryGrid::OnCellButtonDown(Cell& cell, CString& text)
{
    HookRecorder::OnCellButtonDown(cell, text);
    CellTextDialog dialog(cell.GetCol().GetName(), text, this);
    if (dialog.DoModal() != IDOK)
        return false;
    text = dialog.GetText();
    return true;
}

void GalleryGrid::OnCellSpinInit(Cell& cell, CSpinButtonCtrl& spin)
{
    const ColumnEditor& editor = EditorOf(cell.GetCol());
    log.Remark(RemarkText(L": %d..%d", editor.lower, editor.upper));
    HookRecorder::OnCellSpinInit(cell, spin);
    spin.SetRange32(editor.lower, editor.upper);
}

bool GalleryGrid::OnModified(Cell& cell, CString& text)
{
    const ColumnEditor& editor = EditorOf(cell.GetCol());
    const bool accepted =
        editor.kind != EditorKind::Spin || text.IsEmpty() || IsNumberIn(text, editor.lower, editor.upper);
    if (!accepted)
        log.Remark(L": " + CString(Tr(L"refused")));
    return HookRecorder::OnModified(cell, text) && accepted;
}

void GalleryGrid::OnCmbSelchange(Cell& cell, CComboBox* combo)
{
    log.Remark(RemarkText(L", item %d", combo->GetCurSel()));
    HookRecorder::OnCmbSelchange(cell, combo);
}

void GalleryGrid::OnCmbEditchange(Cell& cell, CComboBox* combo)
{
    CString text;
    combo->GetWindowText(text);
    log.Remark(L", text \"" + text + L"\"");
    HookRecorder::OnCmbEditchange(cell, combo);
}

// ---- Tips
// A tip shows 19 characters.

bool GalleryGrid::OnCellTip(long row, long col, CString& text) const
{
    HookRecorder::OnCellTip(row, col, text);
    text.Format(Tr(L"Row %ld, column %ld"), row + 1, col + 1);
    return true;
}

bool GalleryGrid::OnRowTip(long row, CString& text) const
{
    HookRecorder::OnRowTip(row, text);
    text.Format(Tr(L"Row %ld"), row + 1);
    return true;
}

bool GalleryGrid::OnColTip(long col, CString& text) const
{
    HookRecorder::OnColTip(col, text);
    const EditorKind kind = EditorOf(const_cast<GalleryGrid*>(this)->GetCol(col)).kind;
    text.Format(Tr(L"Column %ld: %s"), col + 1, NameOf(kind));
    return true;
}

bool GalleryGrid::OnCellButtonTip(long row, long col, CString& text) const
{
    HookRecorder::OnCellButtonTip(row, col, text);
    text = Tr(L"Edit in a dialog");
    return true;
}

bool GalleryGrid::OnActiveQuadTip(CString& text) const
{
    HookRecorder::OnActiveQuadTip(text);
    text = Tr(L"Double click: all");
    return true;
}
