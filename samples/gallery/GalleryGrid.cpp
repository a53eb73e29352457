// The logging grid of the gallery's pages.
#include "GalleryGrid.h"

#include "LogPane.h"

GalleryGrid::GalleryGrid(bool tree, LogPane& logPane) : TGGrid(tree), log(logPane)
{
}

void GalleryGrid::OnDataChanged()
{
    log.Add(L"OnDataChanged");
    TGGrid::OnDataChanged();
}

void GalleryGrid::OnCurChanged()
{
    TGGrid::OnCurChanged();
    if (loggedRow == GetCurRowIndex() && loggedCol == GetCurColIndex())
        return;
    loggedRow = GetCurRowIndex();
    loggedCol = GetCurColIndex();
    CString line;
    line.Format(L"OnCurChanged  row %ld, column %ld", loggedRow, loggedCol);
    log.Add(line);
}

bool GalleryGrid::OnCellTip(long row, long col, CString& text) const
{
    text.Format(L"第 %ld 行 第 %ld 列", row + 1, col + 1);
    return true;
}

bool GalleryGrid::OnRowTip(long row, CString& text) const
{
    text.Format(L"第 %ld 行", row + 1);
    return true;
}

bool GalleryGrid::OnColTip(long col, CString& text) const
{
    text.Format(L"第 %ld 列", col + 1);
    return true;
}

bool GalleryGrid::OnActiveQuadTip(CString& text) const
{
    text = L"双击全选";
    return true;
}
