// GalleryGrid: the grid of the gallery's pages, which logs what its hooks are told.
#pragma once

#include "grid/TGGrid.h"

class LogPane;

class GalleryGrid : public QuorUiCtr::TGGrid
{
public:
    // `log` outlives the grid.
    GalleryGrid(bool tree, LogPane& log);

protected:
    void OnDataChanged() override;
    void OnCurChanged() override;
    bool OnCellTip(long row, long col, CString& text) const override;
    bool OnRowTip(long row, CString& text) const override;
    bool OnColTip(long col, CString& text) const override;
    bool OnActiveQuadTip(CString& text) const override;

private:
    LogPane& log;
    long loggedRow = -1;
    long loggedCol = -1;
};
