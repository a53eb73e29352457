// TGGridExtension: what an extra of a grid derives from, and what it is asked and told.
#pragma once

#include "grid/TGCellRange.h"
#include "module/QuorExport.h"

#include <afxwin.h>

#include <memory>
#include <span>
#include <vector>

namespace QuorUiCtr
{

class GridExtensions;
class TGGrid;
class TGGridCell;
class TGGridCol;
class TGGridRow;
class TGGridTreeRow;
enum class TGActionKind;

// How a text is drawn, of a cell or a caption. Comes in as the grid would draw it; what an extension changes
// counts for this one drawing and is seen by the extensions that follow.
struct TGTextLook
{
    // What is drawn, which need not be what the cell holds.
    CString text;
    COLORREF textColor;
    // Not used for captions, whose boxes have the system's colours.
    COLORREF backColor;
    // The flags of CDC::DrawText.
    UINT format;
    // Null: the font that the context has.
    CFont* font = nullptr;
    // What would be drawn if there were more room; empty when `text` is all.
    CString wholeText = {};
    // By how many pixels the place of the text is smaller than the grid's at each side; less than 0: larger.
    RECT inset = {};
};

// Where a tip or a menu belongs to.
enum class TGGridPlace
{
    Cell,
    RowHeader,
    ColHeader,
    Corner
};

// How the user is about to change a cell.
enum class TGEditWay
{
    // An editor is to be opened.
    Editor,
    // An extension stores a text, see TGGridExtension::TypeInto.
    Text
};

// What became of a text that an extension has stored as if it had been typed.
enum class TGTyped
{
    Stored,
    // The cell, its row, its column or the grid is.
    ReadOnly,
    // An extension or OnBeforeEdit does not let the user edit the cell.
    NotEditable,
    // OnModified rejects the text.
    Rejected,
    // The cell went while the hooks were asked.
    Gone
};

// Rows that have left a grid, each with its cells, its host data and its offspring.
class QUOR_EXT_CLASS TGRemovedRows
{
public:
    ~TGRemovedRows();
    TGRemovedRows(const TGRemovedRows&) = delete;
    TGRemovedRows& operator=(const TGRemovedRows&) = delete;

    // The row below which they stood, null for rows of the first level.
    TGGridTreeRow* GetParent() const { return parent; }
    // Where the first of them stood: the row index, or the position among the children of the parent.
    long GetPosition() const { return position; }
    // The rows, in their order. A row that was taken over stays readable here until the notice ends.
    std::span<TGGridRow* const> GetRows() const { return rows; }
    // The rows live on in the grid's row buffer, which owns them: there is nothing to take over.
    bool IsBuffered() const { return buffered; }
    // Makes the caller the owner of the row `i` of GetRows(), who hands it to InsertRow, AppendRow or
    // InsertChild again or deletes it before the grid goes. Null when the row is buffered or was taken over
    // before.
    std::unique_ptr<TGGridRow> Take(std::size_t i);

private:
    friend class TGGrid;
    friend class GridExtensions;

    TGRemovedRows(TGGridTreeRow* parentRow, long firstPosition, std::vector<TGGridRow*> removed,
                  bool inBuffer);

    TGGridTreeRow* parent;
    long position;
    std::vector<TGGridRow*> rows;
    // As the rows; null for those that others own.
    std::vector<std::unique_ptr<TGGridRow>> owned;
    bool buffered;
};

// The order of rows that stand side by side: those of the first level (null) or the children of a row.
struct TGRowOrder
{
    // Null for the first level.
    TGGridTreeRow* parent;
    // All of its rows, as they are to stand; those of a grid, which owns them.
    std::vector<TGGridRow*> rows;
};

// An extra that is attached to a grid: it sees messages before the grid does, draws over the cells, changes
// how texts look, adds tips and menu entries, orders rows when they are sorted, and is told of every change.
// docs/EXTENDING.md builds one step by step.
//
//     class RowCounter : public TGGridExtension
//     {
//     protected:
//         void OnRowsInserted(TGGridTreeRow*, long, std::span<TGGridRow* const> rows) override;
//     };
//
//     RowCounter counter;
//     counter.AttachTo(grid);
//
// An extension belongs to one grid at a time, and its owner is the host. It may go before the grid, which it
// leaves then, or after it. Attaching and detaching is allowed at any time, also while the grid calls this or
// another extension: who leaves is not called any more, who comes is called from the next call on. Several
// extensions are called in the order in which they came.
//
// The hooks of a derived grid come first: where a hook answers, extensions are not asked, and they are told
// of a change when it is done. Hooks and messages are the same with and without extensions, but for those of
// painting: with one attached a selected band is painted anew instead of inverted in place.
//
// What an operation may do: in OnPreTranslate, OnMessage, OnEdit and OnAttach anything that a host may do,
// also close the window of the grid. While the grid draws, asks for an order or tells of a change, anything
// but to change its rows and columns; texts may be changed, and the window may be closed. The grid object
// must not be deleted from within.
class QUOR_EXT_CLASS TGGridExtension
{
public:
    TGGridExtension() = default;
    // Leaves the grid; OnDetach is not called any more for what a derived class was.
    virtual ~TGGridExtension();
    TGGridExtension(const TGGridExtension&) = delete;
    TGGridExtension& operator=(const TGGridExtension&) = delete;

    // Attaches to `newGrid`, with or without a window. False, changing nothing, when this extension is
    // attached already, to this grid or to another one, and when the grid is being deleted.
    bool AttachTo(TGGrid& newGrid);
    // Leaves the grid, and calls OnDetach; nothing when it is not attached.
    void Detach();
    // The grid; null when there is none or it is gone.
    TGGrid* GetGrid() const { return extendedGrid; }

protected:
    friend class GridExtensions;

    // ---- Coming and going

    // Attached just now.
    virtual void OnAttach();
    // Has left `oldGrid`, or that is about to be deleted: then it is no derived grid any more. Rows and
    // columns that were taken over go now. The extension may delete itself, or attach to another grid.
    virtual void OnDetach(TGGrid& oldGrid);

    // ---- Messages

    // A message of the grid or of any window in it, editors included, before it is dispatched: from the
    // grid's PreTranslateMessage. True: it is done.
    virtual bool OnPreTranslate(MSG& message);
    // A message that has arrived at `window`, the grid or one of its header windows, before their own
    // handling. True: it is done, and `result` is what the sender gets. Chosen menu entries arrive here, as
    // WM_COMMAND of the grid.
    virtual bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

    // ---- Looks

    // A cell of the rows or of the new-row line is about to be drawn, after OnBeforeRefresh.
    virtual void OnCellLook(TGGridCell& cell, TGTextLook& look);
    // Frame and background of a cell are drawn, the text is not: true leaves it out. `place` is where the
    // text would stand, in logical coordinates, right of what belongs to the tree.
    virtual bool OnDrawContent(TGGridCell& cell, CDC& context, const CRect& place, const TGTextLook& look);
    // Cells and selection are drawn. Draws in logical coordinates; `area` is what is drawn anew, which may be
    // one cell. What is drawn elsewhere is cut off. Brush, pen, font and modes are put back afterwards.
    virtual void OnDrawOverlay(CDC& context, const CRect& area);
    // The same for a column's caption, and for its box when it is drawn.
    virtual void OnCaptionLook(TGGridCol& col, TGTextLook& look);
    virtual void OnDrawCaption(TGGridCol& col, CDC& context, const CRect& box);

    // ---- Tips, menus, order

    // The tip of a place for which the hook has none; -1 for a row or column that the place does not have.
    // True: `text` is the tip. The grid shows its beginning.
    virtual bool OnTip(TGGridPlace place, long row, long col, CString& text);
    // A context menu of the grid has its entries and is about to be shown. Entries of extensions have
    // numbers from FirstMenuId on.
    virtual void OnMenu(TGGridPlace place, CMenu& menu);
    // Rows that stand side by side are about to be sorted: those of the first level (null) or the children
    // of `parent`. True: `rows` has them in the order wanted, which need not be the one of their texts.
    // Anything else than the same rows in another order is ignored.
    virtual bool OnSort(TGGridTreeRow* parent, std::span<TGGridRow*> rows, bool ascending);

    // ---- Changes
    // Told after the change, whoever made it. With what is given here, and a copy of what was told before,
    // each can be taken back. Rows of the row buffer, of the new-row line and of trees that stand in no grid
    // are not told of.

    // By SetText, an assignment or an edit; not when a host writes through the reference of GetText().
    virtual void OnTextChanged(TGGridCell& cell, const CString& oldText);
    // Rows have come in side by side, with their offspring, `parent` and `position` as in TGRemovedRows.
    virtual void OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> rows);
    virtual void OnRowsRemoved(TGRemovedRows& rows);
    // MoveRow(from, to) has moved a row, with `number` - 1 rows of its offspring behind it. Rows that the
    // user drags leave and come in again.
    virtual void OnRowMoved(long from, long to, long number);
    // The rows of the first level (null) or the children of `parent` have another order: the one that is at i
    // now was at order[i].
    virtual void OnRowsSorted(TGGridTreeRow* parent, std::span<const long> order);
    // Rows have been folded or unfolded, as their IsFold() says.
    virtual void OnRowsFolded(std::span<TGGridTreeRow* const> rows);
    // A column has come in.
    virtual void OnColInserted(TGGridCol& col);
    // A column is about to go: its cells are there still.
    virtual void OnColRemoving(TGGridCol& col);
    // The column that stood at `position` is gone, with its cells. Moving it out of `col` keeps it.
    virtual void OnColRemoved(long position, std::unique_ptr<TGGridCol>& col);
    // MoveCol(from, to) has moved a column.
    virtual void OnColMoved(long from, long to);
    virtual void OnColResized(TGGridCol& col, long oldWidth);
    // Other rows or columns are selected than before, or the same ones again.
    virtual void OnSelected();
    // Bars, headers and the new-row line have been laid out; the view has moved.
    virtual void OnLaidOut();
    virtual void OnScrolled();

    // ---- Order and editing

    // This extension is called before those that do not say so, whenever it came: for extras that are about
    // what cells are, below what others make of them. Constant.
    virtual bool IsCalledFirst() const;
    // A cell that is not read-only is about to be changed by the user, or an editor to be opened by whomever;
    // before OnBeforeEdit. True: it is not, and no hook is asked.
    virtual bool OnEdit(TGGridCell& cell, TGEditWay way);
    // The cell that keys are for. True: this extension has one and says which.
    virtual bool OnCurrentCell(long& row, long& col) const;
    // The cells that commands are for, in ranges of which the last has the current cell; a grid whose rows or
    // columns are selected is not asked for. True: this extension keeps ranges and has appended them.
    virtual bool OnSelectedCells(std::vector<TGCellRange>& ranges) const;
    // A command has ended, and this block, which exists, is what it has changed. True: it is what is selected
    // now.
    virtual bool OnSelectCells(const TGCellRange& range);
    // A row object of the grid is being deleted, wherever it was: what was kept under its address is
    // nobody's. It cannot be asked for anything any more, and nothing may be done with the grid.
    virtual void OnRowDeleted(const TGGridRow* row);

    // ---- Actions
    // What a user does in one go has begun, and is done: the changes between the two belong together. Of
    // actions within an action nothing is told; a change may come without any, from a program. Who is
    // attached meanwhile may be told of the end alone. Neither changes anything in the grid, nor throws.
    virtual void OnActionBegin(TGActionKind kind);
    virtual void OnActionEnd(TGActionKind kind);

    // ---- Rows beside the grid
    // The host data of a row and of its offspring is with another row and its offspring now, which has the
    // same texts: rows of a tree that are cut are copied, and plain rows that are pasted into one.
    virtual void OnDataMoved(TGGridRow& from, TGGridRow& to);
    // The row buffer is about to be filled anew, and these rows of it deleted. They can be taken over.
    virtual void OnBufferDropped(TGRemovedRows& rows);

    // ---- The selection of before
    // Ranges as OnSelectedCells has told them, of which some may end beyond what there is now, and the
    // current cell, in a corner of the last one, as OnCurrentCell has told it (-1 where nobody has), are to
    // be selected again. True: they are. Default: OnSelectCells with the last range.
    virtual bool OnRestoreCells(std::span<const TGCellRange> ranges, long row, long col);

    // ---- What extensions need of the grid

    // Numbers of menu entries below are the grid's.
    static constexpr UINT FirstMenuId = 0x100;

    // The row and column under a point in client coordinates of the grid, of which either may be none.
    void PointToCell(CPoint point, long& row, long& col) const;
    // From client to logical coordinates.
    CPoint ToLogical(CPoint point) const;
    // The cell at an index, also on the new-row line, without moving the row cursor; null where there is
    // none.
    TGGridCell* FindCell(long row, long col) const;
    // The cell of a row, shown or not, in a column; null where there is none.
    static TGGridCell* CellOf(TGGridRow& row, long col);
    // The row at an index; null for the new-row line.
    TGGridRow* FindRow(long row) const;
    // Appends the rows from one index to another, both included, as far as there are any.
    void FindRows(long first, long last, std::vector<TGGridRow*>& found) const;
    // The rectangle of a cell, also on the new-row line, and of a block of cells, in logical coordinates;
    // empty for indices that there are not.
    CRect GetCellRect(long row, long col) const;
    CRect GetBlockRect(long top, long left, long bottom, long right) const;
    // Paints a part of the data area anew, given in logical coordinates.
    void InvalidateLogical(const CRect& rect) const;
    // Scrolls as little as needed to show a rectangle. Ends an open edit when anything moves.
    void ShowLogical(const CRect& rect) const;
    // MoveView(dx, dy), which ends an open edit; or, with `keepEditor`, one that leaves the editor open, with
    // what was typed into it: it goes along with its cell and shows what of it lies in view.
    void ScrollBy(int dx, int dy, bool keepEditor) const;
    // The part of the content that is in view, in logical coordinates.
    CRect GetView() const;
    // The new-row line is shown below the rows.
    bool HasNewRowLine() const;
    // How the text of a cell or a caption would be drawn now, as extensions want it. What OnBeforeRefresh
    // does to the drawing context is not in it. Not to be asked for in OnCellLook and OnCaptionLook.
    TGTextLook GetLook(TGGridCell& cell) const;
    TGTextLook GetLook(TGGridCol& col) const;
    // Where a text with the look stands: of a cell in logical coordinates, right of what belongs to the tree;
    // of a caption with the logical x and with y in the column header.
    CRect GetTextPlace(const TGGridCell& cell, const TGTextLook& look) const;
    CRect GetTextPlace(const TGGridCol& col, const TGTextLook& look) const;
    // A number that the column has alone among all that the grid has had.
    static unsigned GetSerial(const TGGridCol& col);
    // The header window of the columns; null without one.
    CWnd* GetColHeader() const;
    // The current cell of the extension that has one. False without one.
    bool FindCurrentCell(long& row, long& col) const;
    // What is selected: the runs of rows or columns that are selected in the grid, else the ranges of the
    // extension that has some, else the current cell. Empty without any; a column without rows ends before it
    // begins. Rows and columns are those of now, but for the new-row line, on which a range may stand.
    std::vector<TGCellRange> GetSelectedCells() const;
    // The first part of that: the runs of selected rows or columns.
    std::vector<TGCellRange> GetSelectedBands() const;
    // Makes a block the selection of the extension that has one. False without one.
    bool SelectCells(const TGCellRange& range) const;
    // Makes ranges the selection of the extension that has one, with the current cell: asks OnRestoreCells.
    // Indices beyond what there is are allowed. False without such an extension.
    bool RestoreCells(std::span<const TGCellRange> ranges, long row, long col) const;
    // The window of the open editor, null when there is none.
    CWnd* GetEditorWindow() const;
    // Stores a text as if it had been typed: nothing for a read-only cell; asks OnEdit, OnBeforeEdit and
    // OnModified, which may change it. The caller tells OnDataChanged, once for all cells. False when it was
    // refused.
    bool TypeInto(TGGridCell& cell, const wchar_t* text) const;
    // The same, with the reason; the text may have any characters.
    TGTyped TryTypeInto(TGGridCell& cell, CString text) const;
    // The steps in which rows come in as by the user's commands: asks OnBeforeInsertRow for a row, which may
    // supply it, null when it refuses and when the number of rows is fixed; inserts rows at an index, which
    // must be one between two trees, all at once; and tells OnInsertRow of each, whose default leaves
    // OnDataChanged to the caller here. Hooks may delete rows that they were not told of yet.
    std::unique_ptr<TGGridRow> AskForRow(long position) const;
    void InsertRows(long position, std::vector<std::unique_ptr<TGGridRow>> rows) const;
    void TellInserted(TGGridRow& row) const;
    // The same for one row, or for one child, at a position that is brought into the range, by
    // OnBeforeInsertChild. Null when it is refused, and when the row has gone again.
    TGGridRow* InsertRowAsUser(long position) const;
    TGGridTreeRow* InsertChildAsUser(TGGridTreeRow& parent, long position) const;
    // OnBeforePaste or OnBeforePasteChild, and OnEndPaste, for extensions that paste rows; the second is told
    // with the pasted rows selected.
    bool AskPaste(long position) const;
    bool AskPasteChild(TGGridTreeRow& parent) const;
    void TellPasted() const;
    void TellDataChanged() const;

    // ---- Taking changes back
    // For extensions that keep what they are told of. None of these runs a hook but where it says so, and all
    // tell extensions as ever. No cell is edited and nothing selected.

    // Puts rows with their offspring back, as children or, with null, before the row at an index, which lies
    // between two trees. The grid owns them then. A parent that had no children is drawn anew at last, which
    // runs OnRefresh.
    void PutRows(TGGridTreeRow* parent, long position, std::vector<std::unique_ptr<TGGridRow>> rows) const;
    // Takes rows out that stand side by side, with their offspring, which keeps its folding. False, changing
    // nothing, when they do not stand so.
    bool TakeRows(TGGridTreeRow* parent, std::span<TGGridRow* const> rows) const;
    bool HasRows(TGGridTreeRow* parent, std::span<TGGridRow* const> rows) const;
    // Where a row stands in its level, and what stands there: by its row index at the first level. Null for
    // no row.
    long GetPosition(TGGridTreeRow* parent, TGGridRow& row) const;
    TGGridRow* FindSibling(TGGridTreeRow* parent, long position) const;
    // All rows of a level, those of the first level without offspring.
    std::vector<TGGridRow*> GetSiblings(TGGridTreeRow* parent) const;
    // Gives rows another order. False, changing nothing, when a level has other rows.
    bool OrderRows(std::span<const TGRowOrder> levels) const;
    // Folds or unfolds a row.
    void FoldRow(TGGridTreeRow& row, bool folded) const;
    // The row stands in the grid, shown or not.
    bool IsInGrid(TGGridRow& row) const;
    // Takes a column out, told as by DelCol.
    void TakeCol(long position) const;
    // Selects nothing, without OnCurChanged; selects these, of which one is empty, with it.
    void DropSelection() const;
    void SelectExactly(const std::vector<long>& rows, const std::vector<long>& cols) const;
    // An extension that keeps the address of a row marks the row, and need not look for the others that
    // OnRowDeleted tells of, where the mark can be asked for. The mark stays.
    static void Mark(TGGridRow& row);
    static bool IsMarked(const TGGridRow& row);
    // The cell's own style word.
    static int GetStyle(const TGGridCell& cell);
    static void SetStyle(TGGridCell& cell, int style);
    // Stores a text that may have any characters. No hook is asked; extensions hear of it by OnTextChanged.
    // Nothing is repainted.
    static void StoreText(TGGridCell& cell, CString text);
    // Moves the host data of one row to another.
    static void MoveHostData(TGGridRow& from, TGGridRow& to);
    // Gives a row that stands in no grid the cells for the columns of now.
    static void FitToCols(TGGridRow& row);

private:
    TGGrid* extendedGrid = nullptr;
};

} // namespace QuorUiCtr
