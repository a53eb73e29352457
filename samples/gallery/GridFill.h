// What the grid pages share: filling a grid with a table's columns and rows.
#pragma once

#include "TableFile.h"

#include "grid/TGGrid.h"

// Makes one column per column of `table`, as wide as its longest texts need (within limits); columns of
// numbers are centred.
void MakeColumns(QuorUiCtr::TGGrid& grid, const gallery::CsvTable& table);

// Gives the grid its own font in a size that counts the whole line of text, not just the letters: rows are
// then high enough for accents and descenders. `font` keeps the font and outlives the grid's window.
void SetRoomyFont(QuorUiCtr::TGGrid& grid, CFont& font);

// Stores the texts of `texts` in the cells of `row`.
void FillRow(QuorUiCtr::TGGridRow& row, const std::vector<std::wstring>& texts);

// Scrolls three rows for each notch of the mouse wheel. For hosts that want the wheel to scroll: the grid
// itself answers it with a track of its scroll bar, which stays where the user has left it.
void ScrollByWheel(QuorUiCtr::TGGrid& grid, short delta);

// Places the control that fills a page below its tool line; sizes in pixels.
void PlaceBelowToolLine(CWnd& page, CWnd& control, CWnd& banner, int width, int height);
