// The recorder of a grid: its rows while a step is taken back, the view around a step, and what users begin.
#include "undo/GridUndo.h"

#include "grid/TGTreeGrid.h"
#include "undo/GridChange.h"

#include <utility>

namespace QuorUiCtr
{
namespace
{

struct ActionName
{
    TGActionKind kind;
    QuorText one;
    QuorText many;
};

constexpr ActionName ActionNames[] = {
    {TGActionKind::Type, QuorText::UndoTyping, QuorText::UndoTyping},
    {TGActionKind::InsertRows, QuorText::UndoInsertRow, QuorText::UndoInsertRows},
    {TGActionKind::DeleteRows, QuorText::UndoDeleteRow, QuorText::UndoDeleteRows},
    {TGActionKind::CutRows, QuorText::UndoCutRow, QuorText::UndoCutRows},
    {TGActionKind::PasteRows, QuorText::UndoPasteRow, QuorText::UndoPasteRows},
    {TGActionKind::MoveRows, QuorText::UndoMoveRow, QuorText::UndoMoveRows},
    {TGActionKind::InsertCols, QuorText::UndoInsertCol, QuorText::UndoInsertCols},
    {TGActionKind::DeleteCols, QuorText::UndoDeleteCol, QuorText::UndoDeleteCols},
    {TGActionKind::MoveCols, QuorText::UndoMoveCol, QuorText::UndoMoveCols},
    {TGActionKind::ResizeCols, QuorText::UndoResizeCols, QuorText::UndoResizeCols},
    {TGActionKind::Sort, QuorText::UndoSort, QuorText::UndoSort},
    {TGActionKind::Fold, QuorText::UndoFold, QuorText::UndoFold},
    {TGActionKind::Empty, QuorText::UndoEmptyCell, QuorText::UndoEmptyCells},
    {TGActionKind::Cut, QuorText::UndoCut, QuorText::UndoCut},
    {TGActionKind::Paste, QuorText::UndoPaste, QuorText::UndoPaste},
    {TGActionKind::Fill, QuorText::UndoFill, QuorText::UndoFill},
};

UndoName NameOfAction(TGActionKind kind)
{
    UndoName name;
    for (const ActionName& known : ActionNames)
        if (known.kind == kind)
        {
            name.one = known.one;
            name.many = known.many;
        }
    return name;
}

} // namespace

GridUndo::GridUndo(UndoHistory& recordedIn) : history(recordedIn) {}

GridUndo::~GridUndo() = default;

// ---- Reverting

GridUndo::Reverting::Reverting(GridUndo& revertingUndo, const TGGridCell* cell) : undo(revertingUndo)
{
    undo.reverting = true;
    undo.told = false;
    undo.revertedCell = cell;
}

GridUndo::Reverting::~Reverting()
{
    undo.reverting = false;
    undo.revertedCell = nullptr;
}

TGGridTreeRow* GridUndo::ParentOf(TGGridRow& row)
{
    return row.IsTreeRow() ? static_cast<TGGridTreeRow&>(row).Parent() : nullptr;
}

TGGridRow* GridUndo::FindBefore(TGGridTreeRow* parent, long position) const
{
    TGGridRow* const row = FindSibling(parent, position - 1);
    return parent == nullptr && row != nullptr && row->IsTreeRow()
               ? &static_cast<TGGridTreeRow&>(*row).RootRow()
               : row;
}

long GridUndo::EndOf(TGGridTreeRow* parent) const
{
    if (parent == nullptr)
        return GetGrid()->GetRowNum();
    const long depth = parent->GetParentNum();
    long i = parent->GetIndex() + 1;
    while (i < GetGrid()->GetRowNum() && GetGrid()->GetRow(i).IsTreeRow() &&
           GetGrid()->GetTreeRow(i).GetParentNum() > depth)
        ++i;
    return i;
}

unsigned GridUndo::SerialAt(long index) const
{
    return GetGrid()->IsValidCol(index) ? GetSerial(GetGrid()->GetCol(index)) : 0;
}

TGGridCol* GridUndo::FindCol(long index, unsigned serial) const
{
    return SerialAt(index) == serial ? &GetGrid()->GetCol(index) : nullptr;
}

void GridUndo::RecordBack(std::unique_ptr<GridChange> change)
{
    told = true;
    history.RecordBack(std::move(change));
}

void GridUndo::Fetch(std::unordered_set<const TGGridRow*>& wanted, LentRows& found)
{
    FetchFromBuffer(wanted, found);
    history.ForChanges(*this, [&](UndoChange& change) {
        if (!wanted.empty())
            static_cast<GridChange&>(change).Lend(wanted, found);
    });
}

void GridUndo::NoteTraveller(TGGridRow& row)
{
    Mark(row);
    travellers.insert(&row);
}

std::vector<TGGridRow*> GridUndo::GetRowsBeside() const
{
    std::unordered_set<TGGridRow*> rows;
    for (TGGridRow* row : GetGrid()->GetRowPaste())
        if (row != nullptr)
            rows.insert(row);
    for (TGGridRow* row : travellers)
        if (!row->IsChildRow() && !IsInGrid(*row))
            rows.insert(row);
    return std::vector<TGGridRow*>(rows.begin(), rows.end());
}

// Only rows that have been in the row buffer are needed by more than one.
void GridUndo::GiveUp(std::unique_ptr<TGGridRow> row)
{
    if (leaving || travellers.count(row.get()) == 0)
        return;
    history.ForChanges(*this, [&](UndoChange& change) {
        if (row != nullptr)
            static_cast<GridChange&>(change).Keep(row);
    });
}

// Copies stay in the buffer, as if the rows had been copied and not cut.
void GridUndo::FetchFromBuffer(std::unordered_set<const TGGridRow*>& wanted, LentRows& found)
{
    TGGrid& grid = *GetGrid();
    for (TGGridRow*& slot : grid.GetRowPaste())
    {
        if (wanted.empty())
            return;
        if (slot == nullptr || slot->IsTreeRow() || wanted.erase(slot) == 0)
            continue;
        auto copy = std::make_unique<TGGridRow>(grid);
        *copy = *slot;
        TGGridRow* const fetched = std::exchange(slot, copy.release());
        found[fetched].reset(fetched);
    }
}

// ---- Views

class GridUndo::View : public UndoView
{
public:
    // Runs of selected rows or columns, or the ranges of a cell cursor.
    std::vector<TGCellRange> bands;
    bool isRows = false;
    std::vector<TGCellRange> cells;
    // The current cell, in the last one.
    long row = -1;
    long col = -1;
    CPoint corner;
    bool hasCorner = false;

    std::vector<long> Indices(bool rows, long number) const
    {
        std::vector<long> indices;
        if (isRows != rows)
            return indices;
        for (const TGCellRange& band : bands)
            for (long i = rows ? band.top : band.left; i <= (rows ? band.bottom : band.right); ++i)
                if (i < number)
                    indices.push_back(i);
        return indices;
    }
};

std::shared_ptr<UndoView> GridUndo::KeepView()
{
    auto view = std::make_shared<View>();
    view->bands = GetSelectedBands();
    view->isRows = GetGrid()->IsRowSelected();
    if (view->bands.empty())
        view->cells = GetSelectedCells();
    FindCurrentCell(view->row, view->col);
    view->hasCorner = GetGrid()->GetSafeHwnd() != nullptr && !GetGrid()->IsUpdating();
    if (view->hasCorner)
        view->corner = GetView().TopLeft();
    return view;
}

// The end of an edit that was begun since runs hooks, which may detach this object or others.
void GridUndo::BeginRevert()
{
    if (GetGrid() == nullptr)
        return;
    viewBefore = KeepView();
    GetGrid()->CancelEditCell();
    if (GetGrid() == nullptr)
        return;
    GetGrid()->BeginUpdate();
    updating = true;
    DropSelection();
}

// Hooks may detach this object, or close the window.
void GridUndo::EndRevert(const UndoView* shown)
{
    const std::shared_ptr<UndoView> kept = std::move(viewBefore);
    const auto* const view = static_cast<const View*>(shown != nullptr ? shown : kept.get());
    if (GetGrid() == nullptr)
        return;
    GetGrid()->Invalidate(0);
    SelectExactly(view->Indices(true, GetGrid()->GetRowNum()), view->Indices(false, GetGrid()->GetColNum()));
    if (GetGrid() != nullptr && view->bands.empty() && !view->cells.empty())
        RestoreCells(view->cells, view->row, view->col);
    if (GetGrid() == nullptr)
        return;
    updating = false;
    GetGrid()->EndUpdate();
    if (GetGrid() == nullptr || !view->hasCorner || GetGrid()->GetSafeHwnd() == nullptr)
        return;
    const CPoint corner = GetView().TopLeft();
    ScrollBy(view->corner.x - corner.x, view->corner.y - corner.y, false);
}

// ---- The control

// Where a drag would end is another place then.
void GridUndo::EndEdit()
{
    const HWND window = GetGrid()->GetSafeHwnd();
    if (const HWND captured = ::GetCapture();
        captured != nullptr && (captured == window || ::IsChild(window, captured)))
        ::ReleaseCapture();
    if (GetGrid() != nullptr)
        GetGrid()->EndEditCell();
}

void GridUndo::TellChanged()
{
    TellDataChanged();
}

bool GridUndo::IsModified() const
{
    if (const auto* tree = dynamic_cast<const TGTreeGrid*>(GetGrid()))
        return tree->IsModified();
    return GetGrid()->IsModified();
}

void GridUndo::MarkModified(bool modified)
{
    if (auto* tree = dynamic_cast<TGTreeGrid*>(GetGrid()))
        tree->SetModified(modified);
    else
        GetGrid()->SetModify(modified);
}

void GridUndo::OnDetach(TGGrid& oldGrid)
{
    goingCol.reset();
    leaving = true;
    const bool isUpdating = std::exchange(updating, false);
    const bool isStepOpen = std::exchange(inAction, false);
    UndoHistory& left = history;
    // May delete this object. What follows runs hooks, for which the grid is not watched any more.
    left.Remove(*this);
    if (isUpdating)
        oldGrid.EndUpdate();
    if (isStepOpen)
        left.EndStep();
}

bool GridUndo::OnPreTranslate(MSG& message)
{
    return history.GetListener().RunKey(message);
}

// ---- Actions

void GridUndo::OnActionBegin(TGActionKind begun)
{
    Noting([&] {
        kind = begun;
        history.BeginStep(this, NameOfAction(begun));
        inAction = true;
    });
}

// A combo box stores the chosen text, and its edit the same cell once more when it ends: typing in one cell
// is one step.
void GridUndo::OnActionEnd(TGActionKind ended)
{
    if (!std::exchange(inAction, false))
        return;
    Noting([&] {
        const bool isTyping = ended == TGActionKind::Type;
        const auto* const texts = isTyping ? Last<GridTextChange>(false) : nullptr;
        const bool joins = texts != nullptr && openRow != nullptr && texts->IsOnly(*openRow, openCol) &&
                           openPosition == history.Position();
        long row = -1;
        long col = -1;
        const bool isOpen = isTyping && GetGrid()->GetCurCell(row, col);
        openRow = isOpen ? FindRow(row) : nullptr;
        openCol = isOpen ? SerialAt(col) : 0;
        if (texts == nullptr || openRow == nullptr || !texts->IsOnly(*openRow, openCol))
            openRow = nullptr;
        history.EndStep(joins);
        openPosition = history.Position();
    });
}

} // namespace QuorUiCtr
