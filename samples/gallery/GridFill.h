// What the grid pages share: filling a grid with a table's columns and rows.
#pragma once

#include "TableFile.h"

#include "grid/TGGrid.h"

// Makes one column per column of `table`, as wide as its longest texts need (within limits); columns of
// numbers are centred.
void MakeColumns(QuorUiCtr::TGGrid& grid, const gallery::CsvTable& table);

// Stores the texts of `texts` in the cells of `row`.
void FillRow(QuorUiCtr::TGGridRow& row, const std::vector<std::wstring>& texts);
