// TGUserAction: what a user does to a grid in one go, as extensions are told of it.
#pragma once

#include "module/QuorExport.h"

namespace QuorUiCtr
{

class TGGrid;

// What is done.
enum class TGActionKind
{
    // Texts of cells, one edit or one choice at a time.
    Type,
    InsertRows,
    DeleteRows,
    // Through the grid's row buffer.
    CutRows,
    PasteRows,
    MoveRows,
    InsertCols,
    DeleteCols,
    MoveCols,
    ResizeCols,
    Sort,
    // Folding and unfolding.
    Fold,
    // Many cells at once: emptied, cut, pasted, filled.
    Empty,
    Cut,
    Paste,
    Fill
};

// The length of such an action, for extensions that take it as one: TGGridExtension::OnActionBegin when it
// begins, OnActionEnd when it ends. The grid's own commands, edits and drags and the library's extensions
// have it; a program or an extension that stands in for the user writes it around what it does:
//
//     {
//         const QuorUiCtr::TGUserAction action(grid, QuorUiCtr::TGActionKind::Fill);
//         for (long row = 0; row < grid.GetRowNum(); ++row)
//             grid.GetCell(row, 2).SetText(L"0");
//     }
//
// Actions nest: the outermost counts, and only that is told. It changes nothing by itself, and in a grid
// without extensions it does nothing.
class QUOR_EXT_CLASS TGUserAction
{
public:
    // The grid must outlive the scope; its window need not.
    TGUserAction(TGGrid& changedGrid, TGActionKind actionKind);
    ~TGUserAction();
    TGUserAction(const TGUserAction&) = delete;
    TGUserAction& operator=(const TGUserAction&) = delete;

private:
    TGGrid& grid;
    TGActionKind kind;
    // There were extensions to be told when it began.
    bool told;
};

} // namespace QuorUiCtr
