// The hooks that the gallery's grid only logs, the log itself, and the wheel.
#include "GalleryGrid.h"

#include "GridFill.h"
#include "LogPane.h"

BEGIN_MESSAGE_MAP(GalleryGrid, QuorUiCtr::TGGrid)
    ON_WM_PAINT()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

GalleryGrid::GalleryGrid(bool tree, LogPane& logPane) : TGGrid(tree), log(logPane) {}

void GalleryGrid::AddLine(const CString& line) const
{
    NotePainting();
    log.Add(line);
}

// ---- Mouse
// ----------------------------------------------------------------------------------------------------

void GalleryGrid::OnDblClick(TGGridRow& row)
{
    Note(L"OnDblClick  row %ld", row.GetIndex());
    TGGrid::OnDblClick(row);
}

void GalleryGrid::OnRClickCell(TGGridCell& cell, CPoint point)
{
    Note(L"OnRClickCell  cell %ld,%ld, point %ld,%ld", cell.GetRowIndex(), cell.GetColIndex(), point.x,
         point.y);
    TGGrid::OnRClickCell(cell, point);
}

void GalleryGrid::OnRClickRow(TGGridRow& row, CPoint point)
{
    Note(L"OnRClickRow  row %ld, point %ld,%ld", row.GetIndex(), point.x, point.y);
    TGGrid::OnRClickRow(row, point);
}

void GalleryGrid::OnRClickCol(TGGridCol& col, CPoint point)
{
    Note(L"OnRClickCol  column %ld, point %ld,%ld", col.GetIndex(), point.x, point.y);
    TGGrid::OnRClickCol(col, point);
}

void GalleryGrid::OnRClickQuad(CPoint point)
{
    Note(L"OnRClickQuad  point %ld,%ld", point.x, point.y);
    TGGrid::OnRClickQuad(point);
}

// ---- Painting
// -------------------------------------------------------------------------------------------------

void GalleryGrid::OnBeforeRefresh(TGGridCell& cell)
{
    painted.colours += logPainting;
    TGGrid::OnBeforeRefresh(cell);
}

bool GalleryGrid::OnRefresh(TGGridCell& cell)
{
    painted.cells += logPainting;
    return TGGrid::OnRefresh(cell);
}

bool GalleryGrid::OnRefresh(TGGridRow& row)
{
    painted.rows += logPainting;
    return TGGrid::OnRefresh(row);
}

void GalleryGrid::OnPaint()
{
    TGGrid::OnPaint();
    NotePainting();
}

BOOL GalleryGrid::OnMouseWheel(UINT, short delta, CPoint)
{
    ScrollByWheel(*this, delta);
    return TRUE;
}

void GalleryGrid::NotePainting() const
{
    const PaintCount count = std::exchange(painted, {});
    if (count.rows + count.cells == 0)
        return;
    CString line;
    line.Format(L"OnRefresh  %ld rows, %ld cells; OnBeforeRefresh  %ld cells", count.rows, count.cells,
                count.colours);
    log.Add(line);
}

// ---- Columns
// --------------------------------------------------------------------------------------------------

bool GalleryGrid::OnBeforeInsertCol(long position, TGGridCol*& col)
{
    Note(L"OnBeforeInsertCol  position %ld, column %s", position, col ? L"supplied" : L"null");
    return TGGrid::OnBeforeInsertCol(position, col);
}

void GalleryGrid::OnInsertCol(TGGridCol& col)
{
    Note(L"OnInsertCol  column %ld", col.GetIndex());
    TGGrid::OnInsertCol(col);
}

bool GalleryGrid::OnBeforeDeleteCol()
{
    AddLine(L"OnBeforeDeleteCol");
    return TGGrid::OnBeforeDeleteCol();
}

void GalleryGrid::OnEndDeleteCol()
{
    AddLine(L"OnEndDeleteCol");
    TGGrid::OnEndDeleteCol();
}

bool GalleryGrid::OnBeginMoveCol()
{
    AddLine(L"OnBeginMoveCol");
    return TGGrid::OnBeginMoveCol();
}

bool GalleryGrid::OnMovingCol(long position)
{
    Note(L"OnMovingCol  position %ld", position);
    return TGGrid::OnMovingCol(position);
}

bool GalleryGrid::OnMoveCol(long position)
{
    Note(L"OnMoveCol  position %ld", position);
    return TGGrid::OnMoveCol(position);
}

void GalleryGrid::OnEndMoveCol()
{
    AddLine(L"OnEndMoveCol");
    TGGrid::OnEndMoveCol();
}

// ---- Rows
// -----------------------------------------------------------------------------------------------------

bool GalleryGrid::OnBeforeInsertRow(long position, TGGridRow*& row)
{
    Note(L"OnBeforeInsertRow  position %ld, row %s", position, row ? L"supplied" : L"null");
    return TGGrid::OnBeforeInsertRow(position, row);
}

bool GalleryGrid::OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child)
{
    Note(L"OnBeforeInsertChild  parent %ld, position %ld, child %s", parent.GetIndex(), position,
         child ? L"supplied" : L"null");
    return TGGrid::OnBeforeInsertChild(parent, position, child);
}

void GalleryGrid::OnInsertRow(TGGridRow& row)
{
    Note(L"OnInsertRow  row %ld", row.GetIndex());
    TGGrid::OnInsertRow(row);
}

bool GalleryGrid::OnBeforeDeleteRow()
{
    AddLine(L"OnBeforeDeleteRow");
    return TGGrid::OnBeforeDeleteRow();
}

void GalleryGrid::OnEndDeleteRow()
{
    AddLine(L"OnEndDeleteRow");
    TGGrid::OnEndDeleteRow();
}

bool GalleryGrid::OnBeginMoveRow()
{
    AddLine(L"OnBeginMoveRow");
    return TGGrid::OnBeginMoveRow();
}

bool GalleryGrid::OnMovingRow(long position)
{
    Note(L"OnMovingRow  position %ld", position);
    return TGGrid::OnMovingRow(position);
}

bool GalleryGrid::OnMoveRow(long position)
{
    Note(L"OnMoveRow  position %ld", position);
    return TGGrid::OnMoveRow(position);
}

void GalleryGrid::OnEndMoveRow()
{
    AddLine(L"OnEndMoveRow");
    TGGrid::OnEndMoveRow();
}

// ---- Cut, copy and paste
// --------------------------------------------------------------------------------------

bool GalleryGrid::OnBeforeClip()
{
    AddLine(L"OnBeforeClip");
    return TGGrid::OnBeforeClip();
}

void GalleryGrid::OnEndClip()
{
    AddLine(L"OnEndClip");
    TGGrid::OnEndClip();
}

bool GalleryGrid::OnBeforeCopy()
{
    AddLine(L"OnBeforeCopy");
    return TGGrid::OnBeforeCopy();
}

void GalleryGrid::OnEndCopy()
{
    AddLine(L"OnEndCopy");
    TGGrid::OnEndCopy();
}

bool GalleryGrid::OnBeforePaste(long position)
{
    Note(L"OnBeforePaste  position %ld", position);
    return TGGrid::OnBeforePaste(position);
}

bool GalleryGrid::OnBeforePasteChild(TGGridTreeRow& parent)
{
    Note(L"OnBeforePasteChild  parent %ld", parent.GetIndex());
    return TGGrid::OnBeforePasteChild(parent);
}

void GalleryGrid::OnEndPaste()
{
    AddLine(L"OnEndPaste");
    TGGrid::OnEndPaste();
}
