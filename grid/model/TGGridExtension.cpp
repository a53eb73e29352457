// The base of all extensions: attaching, the defaults of what they are asked and told, and their services.
#include "grid/TGGridExtension.h"

#include "grid/model/GridExtensions.h"
#include "grid/TGColSelector.h"
#include "grid/TGGrid.h"
#include "grid/window/GridLayout.h"

#include <algorithm>

namespace QuorUiCtr
{

TGGridExtension::~TGGridExtension()
{
    Detach();
}

bool TGGridExtension::AttachTo(TGGrid& newGrid)
{
    if (extendedGrid != nullptr)
        return false;
    return GridExtensions::Attach(newGrid, *this);
}

void TGGridExtension::Detach()
{
    if (extendedGrid != nullptr)
        GridExtensions::Detach(*this);
}

// ---- Defaults

void TGGridExtension::OnAttach() {}
void TGGridExtension::OnDetach(TGGrid&) {}

bool TGGridExtension::OnPreTranslate(MSG&)
{
    return false;
}

bool TGGridExtension::OnMessage(CWnd&, UINT, WPARAM, LPARAM, LRESULT&)
{
    return false;
}

void TGGridExtension::OnCellLook(TGGridCell&, TGTextLook&) {}

bool TGGridExtension::OnDrawContent(TGGridCell&, CDC&, const CRect&, const TGTextLook&)
{
    return false;
}

void TGGridExtension::OnDrawOverlay(CDC&, const CRect&) {}
void TGGridExtension::OnCaptionLook(TGGridCol&, TGTextLook&) {}
void TGGridExtension::OnDrawCaption(TGGridCol&, CDC&, const CRect&) {}

bool TGGridExtension::OnTip(TGGridPlace, long, long, CString&)
{
    return false;
}

void TGGridExtension::OnMenu(TGGridPlace, CMenu&) {}

bool TGGridExtension::OnSort(TGGridTreeRow*, std::span<TGGridRow*>, bool)
{
    return false;
}

void TGGridExtension::OnTextChanged(TGGridCell&, const CString&) {}
void TGGridExtension::OnRowsInserted(TGGridTreeRow*, long, std::span<TGGridRow* const>) {}
void TGGridExtension::OnRowsRemoved(TGRemovedRows&) {}
void TGGridExtension::OnRowMoved(long, long, long) {}
void TGGridExtension::OnRowsSorted(TGGridTreeRow*, std::span<const long>) {}
void TGGridExtension::OnRowsFolded(std::span<TGGridTreeRow* const>) {}
void TGGridExtension::OnColInserted(TGGridCol&) {}
void TGGridExtension::OnColRemoving(TGGridCol&) {}
void TGGridExtension::OnColRemoved(long, std::unique_ptr<TGGridCol>&) {}
void TGGridExtension::OnColMoved(long, long) {}
void TGGridExtension::OnColResized(TGGridCol&, long) {}
void TGGridExtension::OnSelected() {}
void TGGridExtension::OnLaidOut() {}
void TGGridExtension::OnScrolled() {}

bool TGGridExtension::IsCalledFirst() const
{
    return false;
}

bool TGGridExtension::OnEdit(TGGridCell&, TGEditWay)
{
    return false;
}

bool TGGridExtension::OnCurrentCell(long&, long&) const
{
    return false;
}

bool TGGridExtension::OnSelectedCells(std::vector<TGCellRange>&) const
{
    return false;
}

bool TGGridExtension::OnSelectCells(const TGCellRange&)
{
    return false;
}

bool TGGridExtension::OnRestoreCells(std::span<const TGCellRange> ranges, long, long)
{
    return !ranges.empty() && OnSelectCells(ranges.back());
}

void TGGridExtension::OnRowDeleted(const TGGridRow*) {}
void TGGridExtension::OnActionBegin(TGActionKind) {}
void TGGridExtension::OnActionEnd(TGActionKind) {}
void TGGridExtension::OnDataMoved(TGGridRow&, TGGridRow&) {}
void TGGridExtension::OnBufferDropped(TGRemovedRows&) {}

// ---- Places

void TGGridExtension::PointToCell(CPoint point, long& row, long& col) const
{
    ASSERT(extendedGrid != nullptr);
    extendedGrid->PtToCell(point, row, col);
}

CPoint TGGridExtension::ToLogical(CPoint point) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->ClientToLogical(point);
}

TGGridRow* TGGridExtension::FindRow(long row) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->RowAtIndex(row);
}

void TGGridExtension::FindRows(long first, long last, std::vector<TGGridRow*>& found) const
{
    ASSERT(extendedGrid != nullptr);
    first = (std::max)(first, 0L);
    last = (std::min)(last, extendedGrid->GetRowNum() - 1);
    auto slot = first <= last ? extendedGrid->rows.IteratorAt(first) : extendedGrid->rows.end();
    for (; first <= last; ++first, ++slot)
        if (*slot != nullptr)
            found.push_back(*slot);
}

TGGridCell* TGGridExtension::CellOf(TGGridRow& row, long col)
{
    return row.FindCell(col);
}

TGGridCell* TGGridExtension::FindCell(long row, long col) const
{
    ASSERT(extendedGrid != nullptr);
    TGGridRow* const found = extendedGrid->IsNewRow(row) ? extendedGrid->newRow : FindRow(row);
    return found != nullptr ? found->FindCell(col) : nullptr;
}

CRect TGGridExtension::GetCellRect(long row, long col) const
{
    return GetBlockRect(row, col, row, col);
}

CRect TGGridExtension::GetBlockRect(long top, long left, long bottom, long right) const
{
    ASSERT(extendedGrid != nullptr);
    const TGGridCol* const first = extendedGrid->ColAtIndex(left);
    const TGGridCol* const last = extendedGrid->ColAtIndex(right);
    if (first == nullptr || last == nullptr || top < 0 || bottom > extendedGrid->GetRowNum())
        return CRect(0, 0, 0, 0);
    const long height = extendedGrid->GetRowHeight();
    return CRect(first->GetLeft(), top * height, last->GetRight(), (bottom + 1) * height);
}

// Cells draw their lines one pixel further to the right and to the bottom.
void TGGridExtension::InvalidateLogical(const CRect& rect) const
{
    ASSERT(extendedGrid != nullptr);
    if (extendedGrid->GetSafeHwnd() == nullptr)
        return;
    if (extendedGrid->IsUpdating() || extendedGrid->dc == nullptr)
    {
        extendedGrid->Invalidate(0);
        return;
    }
    CRect drawn = rect;
    drawn.InflateRect(0, 0, 1, 1);
    extendedGrid->dc->LPtoDP(&drawn);
    CRect area;
    extendedGrid->GetClientRect(&area);
    if (drawn.IntersectRect(&drawn, &area))
        extendedGrid->InvalidateRect(&drawn, FALSE);
}

void TGGridExtension::ShowLogical(const CRect& rect) const
{
    ASSERT(extendedGrid != nullptr);
    extendedGrid->ShowRect(rect);
}

void TGGridExtension::ScrollBy(int dx, int dy, bool keepEditor) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& scrolled = *extendedGrid;
    if (!keepEditor || !scrolled.IsEditing() || scrolled.layoutPending)
        scrolled.MoveView(dx, dy);
    else if (scrolled.GetSafeHwnd() != nullptr)
        TGGrid::Layout(scrolled).ScrollView(dx, dy, TGGrid::Layout::OpenEditor::Keep);
}

CRect TGGridExtension::GetView() const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->GetSafeHwnd() != nullptr ? TGGrid::Layout(*extendedGrid).ViewRect()
                                                  : CRect(0, 0, 0, 0);
}

bool TGGridExtension::HasNewRowLine() const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->IsAppendRowShown();
}

// ---- Texts

TGTextLook TGGridExtension::GetLook(TGGridCell& cell) const
{
    ASSERT(extendedGrid != nullptr);
    const TGGridCol& col = cell.GetCol();
    TGTextLook look{cell.GetText(), col.GetTextColor(), col.GetBackColor(), cell.TextFormat()};
    extendedGrid->extensions->Tell(GridExtensions::CellLook, cell, look);
    return look;
}

TGTextLook TGGridExtension::GetLook(TGGridCol& col) const
{
    ASSERT(extendedGrid != nullptr);
    TGTextLook look{col.GetName(), RGB(0, 0, 0), ::GetSysColor(COLOR_BTNFACE),
                    TGColSelector::CaptionFormat(col)};
    extendedGrid->extensions->Tell(GridExtensions::CaptionLook, col, look);
    return look;
}

CRect TGGridExtension::GetTextPlace(const TGGridCell& cell, const TGTextLook& look) const
{
    CRect place = cell.TextPlace();
    place.DeflateRect(&look.inset);
    return place;
}

CRect TGGridExtension::GetTextPlace(const TGGridCol& col, const TGTextLook& look) const
{
    ASSERT(extendedGrid != nullptr);
    CRect place = TGColSelector::CaptionPlace(
        *extendedGrid, CRect(col.GetLeft(), 0, col.GetRight(), extendedGrid->GetColHeaderHeight()));
    place.DeflateRect(&look.inset);
    return place;
}

unsigned TGGridExtension::GetSerial(const TGGridCol& col)
{
    return col.serial;
}

CWnd* TGGridExtension::GetColHeader() const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->colHeader->GetSafeHwnd() != nullptr ? extendedGrid->colHeader : nullptr;
}

bool TGGridExtension::FindCurrentCell(long& row, long& col) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->extensions->FindCurrentCell(row, col);
}

} // namespace QuorUiCtr
