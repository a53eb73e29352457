// TGGrid: the editable grid control: model, window, hooks.
#pragma once

#include "grid/window/BrushWindowClass.h"
#include "grid/TGGridCol.h"
#include "grid/TGGridRow.h"
#include "grid/TGGridStyle.h"
#include "grid/TGGridTreeRow.h"
#include "grid/TGGridUpdate.h"
#include "grid/collections/DualList.h"
#include "grid/collections/List.h"
#include "grid/collections/PDList.h"
#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

#include <climits>

namespace QuorUiCtr
{

class CellWatch;
class GridExtensions;
enum class TGGridPlace;
class HeaderBand;
class HeaderDrag;
class TGActiveQuad;
class TGCellCtrl;
class TGColSelector;
class TGRowSelector;
class RowWatch;

// A custom-drawn grid of editable text cells with an optional tree of rows.
//
//     class PartsGrid : public TGGrid
//     {
//         void OnCellComboString(TGGridCell& cell, CComboBox& combo) override;
//         bool OnBeforeDeleteRow() override;
//     };
//
//     grid.Create(this, IDC_PARTS, WS_CHILD | WS_VISIBLE | WS_TABSTOP);   // in place of a static control
//     grid.AppendCol(L"Part", 150);
//     grid.AppendCol(L"Unit", 60);
//     grid.SetRowNum(100);
//     grid.GetCell(0, 0).SetText(L"Bearing 6204");
//
// There are two doors to what a grid holds. Programs come in by the operations on rows, columns, cells and
// the selection, from construction on, whether there is a window or not: these ask nobody for leave, tell the
// parent nothing and bring the window up to date themselves. The user comes in by the commands (Do...), the
// edits and the headers, which stand for what is done with keys, mouse and menus: these respect the style
// word, ask the hooks before and tell them after, and end with OnDataChanged(), whose default sends the
// parent EN_CHANGE. A derived grid overrides hooks to refuse, to supply rows and editors of its own, or to be
// told. A program that wants to be treated like the user calls the commands.
//
// Row and column indices are zero-based; -1 means none. The index that equals the row count names the new-row
// line below the last row. Indices are the caller's responsibility unless an operation says otherwise; the
// checked build asserts them. Logical coordinates are pixels before scrolling: row r spans r x h to (r + 1) x
// h with h = GetRowHeight(), and columns carry their own edges. Colours are COLORREF values.
//
// The grid owns its columns, rows, tree rows, paste buffer, header windows, font and editors. What hosts hold
// is good as long as the thing itself stands in the grid. All calls belong to the thread that created the
// window. A hook may do anything with the grid, also destroy its window, but not delete the grid object.
class QUOR_EXT_CLASS TGGrid : public CWnd, public TGGridStyle
{
    DECLARE_DYNCREATE(TGGrid)

public:
    // With `tree` set, rows that the grid creates itself are tree rows. `columnWidth` is the width in pixels
    // of columns that are added with width 0. Creates no window. The tree flag cannot be changed later.
    TGGrid(bool tree = false, long columnWidth = 100);
    // Destroys the window, drops an open edit and deletes all that the grid owns; calls no hook of a derived
    // grid.
    ~TGGrid() override;
    TGGrid(const TGGrid&) = delete;
    TGGrid& operator=(const TGGrid&) = delete;

    // ---- Window

    // Creates the window in `rect` (client coordinates of `parent`) with the window style `windowStyle` and
    // control id 0. Returns FALSE on failure. WS_CHILD and WS_VISIBLE are the caller's to give; scroll bars
    // come by themselves. The header windows are made along with it, as the style word then says, and the
    // font is the parent's. The model filled before stays.
    BOOL Create(const RECT& rect, DWORD windowStyle, CWnd* parent);
    // Replaces the child `id` of `parent`: takes its place, its place in the tab order and its id, and
    // destroys it. Returns 0 and creates nothing when there is no such child.
    BOOL Create(CWnd* parent, UINT id, DWORD windowStyle);

    // Lays out scroll bars, drawing context and new-row line and ends an open cell edit; repaints everything
    // when `redraw` is nonzero. Postponed between BeginUpdate and EndUpdate; does nothing without a window
    // and when called while any grid is being laid out. Operations of the grid call it themselves; hosts do
    // after changing captions.
    void RecalcLayout(int redraw);
    // Invalidates the data area (erasing when `erase` is nonzero) and, erasing, the header windows. Enough
    // after colours and texts were changed directly.
    void Invalidate(int erase);
    // Makes the last column so wide that the columns fill the data area. Returns false and changes nothing
    // when they do already, when the column would get narrower than one row height, without a window and
    // without columns. It is not done again by itself when the window is resized.
    bool FitLastCol();
    // Scrolls by a distance in pixels, as far as the shown scroll bars allow; ends an open cell edit when
    // anything moves. Any distance will do; in a direction without a bar at most 2^24 pixels count.
    void MoveView(int dx, int dy);
    // Scrolls vertically so that the new-row line is visible.
    void ShowAppendRow();
    // Draws the visible rows, the new-row line and the selection on the prepared drawing context. Calls the
    // refresh hooks. For hosts Invalidate() is the way: it paints at the next WM_PAINT.
    void Refresh();

    // Many changes as one: between the first BeginUpdate and the last EndUpdate layout and repaint are
    // postponed; the last EndUpdate does them once. Calls nest. See TGGridUpdate for the scoped form.
    // Inside, nothing is painted, and rows or columns that get selected are scrolled into view by the last
    // EndUpdate (the last one wins). While a layout is postponed, scroll bars and new-row line keep the state
    // of the last one. Operations that need the layout at once (MoveView, FitLastCol, opening an editor, a
    // click) do it first.
    void BeginUpdate();
    // An EndUpdate() without a BeginUpdate() does nothing.
    void EndUpdate();
    // Between the two.
    bool IsUpdating() const { return updateDepth > 0; }

    // Row height in pixels: text height plus row space.
    long GetRowHeight() const { return textHeight + rowSpace; }
    // Extra pixels above the text of a row; the setter lays out anew. A negative space makes rows lower than
    // their text; one that would leave a row less than one pixel high is refused, which changes nothing. At
    // most 16384. A smaller font takes back as much of a negative space as rows need for their one pixel.
    long GetRowSpace() const { return rowSpace; }
    void SetRowSpace(int pixels);
    // Width of columns added with width 0 and step of horizontal line scrolling: 0 to 65535 pixels, as for
    // the columns.
    long GetDefaultWidth() const { return defaultWidth; }
    void SetDefaultWidth(long pixels);
    // Row height times the largest caption line count.
    long GetColHeaderHeight();
    // Content height and width in pixels: below the last row (the new-row line included when it is shown) and
    // right of the last column.
    long GetBottom();
    long GetRight();
    // The point in client coordinates at which the logical origin lies.
    void GetUpCorner(CPoint& corner);
    // The font of cells, captions and editors, and the brush of the area beside the cells; the grid's.
    // WM_SETFONT makes it a copy of another font, which stays the sender's.
    CFont* GetFont() { return &font; }
    CBrush& GetBrush() { return backBrush; }

    // ---- Style word, see TGGridStyle

    // The style word, not the window's style, which is CWnd::GetStyle().
    using TGGridStyle::GetStyle;
    // The row header is enabled. The header window is made when the grid's window is; lays out anew.
    void SetRowSel(bool on);
    // The column header is enabled; likewise.
    void SetColSel(bool on);
    // Tree rows are joined by lines; repaints grid and headers.
    void SetTreeLine(bool on);

    // ---- Counts and access

    // The rows that stand in the grid, without the children of folded rows and the new-row line; the columns.
    long GetRowNum() const { return rows.GetNum(); }
    long GetColNum() const { return cols.GetNum(); }
    // There are no rows.
    bool IsEmpty() const { return rows.IsEmpty(); }
    bool IsColEmpty() const { return cols.IsEmpty(); }
    // There is such a row or column; the new-row line is none.
    bool IsValidRow(long i) const { return i >= 0 && i < GetRowNum(); }
    bool IsValidCol(long i) const { return i >= 0 && i < GetColNum(); }
    // `i` names the new-row line.
    bool IsNewRow(long i) const { return i == GetRowNum(); }
    // Where there is no such row (asserted), the row of the new-row line. Moves the row cursor there. The
    // second form is grid[i][col].
    TGGridRow& GetRow(long i);
    TGGridRow& operator[](long i) { return GetRow(i); }
    // The same row seen as a tree row; only for rows that are.
    TGGridTreeRow& GetTreeRow(long i);
    // The column, and the cell; the index must be valid (asserted). Not for the new-row line.
    TGGridCol& GetCol(long i);
    TGGridCell& GetCell(long row, long col);
    // While a cell is edited, stores its indices and returns true; otherwise returns false and stores
    // nothing.
    bool GetCurCell(long& row, long& col) const;
    // The row and the column of the edited cell, else of the one selected row or column; -1 otherwise. The
    // default OnCurChanged() keeps them.
    long GetCurRowIndex() const { return curRowIndex; }
    long GetCurColIndex() const { return curColIndex; }
    // Stores the index and tells the row header to move its marker.
    void SetCurRowIndex(long i);
    // Set by the default OnDataChanged(), so by every change made through the user interface; cleared by the
    // host only. A derived grid whose OnDataChanged() does not call this class's leaves it alone: TGTreeGrid
    // has a flag of its own.
    bool IsModified() const { return modified; }
    void SetModify(bool on) { modified = on; }
    // The rows that were copied or cut last; owned by the grid. Hosts may fill or clear it; each grid has its
    // own. Its rows have the grid's columns and follow them.
    PDList<TGGridRow>& GetRowPaste() { return rowPaste; }

    // ---- Row cursor
    // The cursor of the row list. Structure operations and GetSel move it.

    // A host's loop over the rows:
    //     for (grid.MoveToFirst(); !grid.IsOut(); grid.MoveToNext())
    //         Use(grid.CurRow());
    // Beyond the last row, and before the first one, the cursor stands on no row; from there it comes in
    // again at the other end. MoveTo() outside the rows moves it out.
    void MoveToFirst() { rows.MoveToFirst(); }
    void MoveToNext() { rows.MoveToNext(); }
    void MoveToPre() { rows.MoveToPre(); }
    void MoveTo(long i) { rows.MoveTo(i); }
    // The cursor stands on no row.
    bool IsOut() const;
    // The cursor's index, -1 when it stands on no row.
    long GetCur() const { return rows.GetCur(); }
    // The row under the cursor. Asserted that there is one. The second form is for rows that are tree rows.
    TGGridRow& CurRow();
    TGGridTreeRow& CurTreeRow();

    // ---- Sort keys

    // Adds a column index behind the keys present; the first key is the main key. Without keys the selected
    // columns take their place. Keys are column indices, which do not follow columns that come, go or move.
    void AppendKey(long col) { keys.Append(col); }
    // Removes all keys; the rows stay as they are.
    void ClearKey() { keys.Clear(); }
    // The main key, -1 when there is none.
    long GetMainKey();

    // ---- Structure
    // But for the moves, these end an open cell edit, and all show the outcome at once; they call no
    // confirmation hook and notify nobody. A null row or column makes the grid create a plain one. The grid
    // owns what it is given, and deletes it when there is no memory to take it in; then the grid is as it was
    // and the exception goes on to the caller. A row that was made before the columns changed gets cells for
    // the columns of now. Rows leave one by one: each is deselected, which calls OnCurChanged(), and then
    // goes; the current row follows its row.

    // Inserts before the row at `i`; selected rows at `i` and below move on by one. GetRowNum() appends. In a
    // tree the new row is a root row, which belongs between two trees.
    void InsertRow(long i, TGGridRow* row);
    // Behind the last row.
    void AppendRow(TGGridRow* row);
    // Deletes the row at `i`; selected rows below move back by one. Deletes the row object with its cells and
    // its host data, and the offspring of a row in a tree.
    void DelRow(long i);
    // Deletes a row of a tree with its offspring: a child through its parent, a parent folded first.
    void DelRowEx(long i);
    // Places the row at `from` before the row that stands at `to`. `to` counts the rows as they stand before
    // the move, the moving one included: MoveRow(2, 5) puts row 2 between the former rows 4 and 5, at the
    // index 4, and a `to` of GetRowNum() puts it last. Nothing when `to` is `from` or `from` + 1, where the
    // row stands already, and when there is no such row or place (asserted).
    //
    // The selection keeps its numbers: afterwards the rows are selected that stand at the selected indices
    // now. A drag in the row header and Arrange() take the selection along.
    //
    // A row of a tree takes its shown offspring along and changes its place in the tree, too: it moves among
    // its siblings, to a `to` in front of one of them or behind the last one's offspring. Any other place
    // would give it another parent and is refused, which changes nothing; a row that is not in a tree moves
    // among the root rows.
    void MoveRow(long from, long to);
    // Inserts before the column at `i`; width 0 means the default width. Widths are 0 to 65535 pixels
    // (asserted; others are brought into the range). The columns behind move to the right. Every row, those
    // of the paste buffer included, gets an empty cell. The selection of columns keeps its numbers, the sort
    // keys theirs. A null `name` counts as empty.
    void InsertCol(long i, TGGridCol* col, long width);
    void InsertCol(long i, const wchar_t* name, long width);
    // The same behind the last column.
    void AppendCol(TGGridCol* col, long width);
    void AppendCol(const wchar_t* name, long width);
    // Deletes the column object and its cells in all rows; the column is deselected first, other selected
    // columns keep their numbers.
    void DelCol(long i);
    // As MoveRow, with `to` counted in the same way; the cells move along, the selection and the sort keys
    // keep their numbers, and columns keep their widths.
    void MoveCol(long from, long to);
    // Deletes rows or columns from the end, or appends empty ones, until there are `n`.
    void SetRowNum(long n);
    // Columns that are appended have no caption and the default width.
    void SetColNum(long n);
    // Deletes all rows and empties the selection; columns, keys and paste buffer stay.
    void Clear();

    // ---- Selection
    // Rows or columns are selected, never both: selecting one kind unselects the other.

    // Adds a row to the selection (scrolling it into view) or takes it out; ends with OnCurChanged(). An
    // index outside the rows is ignored. Selecting commits an open edit first, unselecting does not.
    // Selecting a row that is selected, or the other way round, changes nothing but still calls
    // OnCurChanged().
    void SelectRow(long row, bool select);
    // The same for columns.
    void SelectCol(long col, bool select);
    // Selects every row and repaints; commits an open edit first, calls OnCurChanged() before the repaint.
    void SelectAll();
    // Selects nothing; ends with OnCurChanged(). Commits no edit and repaints what was selected.
    void UnSelect();
    // Any is selected; the row or column with that index is.
    bool IsRowSelected() const { return !rowSel.IsEmpty(); }
    bool IsColSelected() const { return !colSel.IsEmpty(); }
    bool IsRowSelected(long i);
    bool IsColSelected(long i);
    // How many are selected.
    long GetRowSelNum() const { return rowSel.GetNum(); }
    long GetColSelNum() const { return colSel.GetNum(); }
    // The row or column that the selection entry `k` names; entries are in ascending order.
    TGGridRow& GetSelRow(long k);
    TGGridCol& GetSelCol(long k);
    // Appends the selected rows or columns to `out`, in ascending order. The first form leaves the row cursor
    // on the last selected row. The list must not own: a DualList<TGGridRow*> does.
    void GetSel(Table<TGGridRow*>& out);
    void GetSel(Table<TGGridCol*>& out);
    // The selected rows (or columns) form one contiguous run; false when nothing is selected.
    bool IsSelConnect();
    // No selected row is an unfolded parent row; true in a grid without tree rows.
    bool IsSelFold();
    // Selects the first row, shown or folded, whose cell in column `col` equals `text` exactly, and only it;
    // returns false and changes nothing when there is none.
    bool FindAndSel(const wchar_t* text, long col);
    // Shows the grid as focused or not in its corner. The grid and its editors call it; nothing without a
    // corner.
    void ShowActive(bool active);
    // `wnd` is the grid or one of its descendants.
    bool IsMyFocus(const CWnd* wnd) const;

    // ---- Cell editing

    // A cell editor is open. An editor whose window somebody else destroys takes the session with it: what it
    // has not committed by then, as an edit does that loses the focus, is dropped.
    bool IsEditing() const { return editCell != nullptr; }
    // A cell waits for its editor to be opened by the timer.
    bool IsCellLocking() const { return cellLock != nullptr; }
    // Opens an editor over a cell; `row` may be the new-row line. Unselects everything and commits an open
    // edit first. Refused silently for a read-only cell, by OnBeforeEdit and without a window.
    void BeginEditCell(long row, long col);
    // Commits an open edit and closes its editor: a modified text goes through OnModified, on the new-row
    // line also through OnBeforeInsertRow, before it is stored. An editor that one of these hooks opens is
    // closed, too; a hook that wants another cell edited next calls AutoEditCell.
    void EndEditCell();
    // Closes an open editor and drops its text; calls no hook. An edit that has the focus still sends
    // EN_KILLFOCUS to the parent when it is hidden.
    void CancelEditCell();
    // Opens an editor on `cell`, or anew on the cell under edit when `cell` is null, as soon as the pending
    // messages are handled; what is open then is dropped. Ignored while a cell waits already and without a
    // window.
    void AutoEditCell(TGGridCell* cell);
    // Commits and closes after `ms` milliseconds; ignored without a window. For editors that show a choice
    // and need no more input. A second call starts the time anew.
    void AutoCloseCell(int ms);

    // ---- Commands
    // What the user does: these check the style word and the selection, ask the OnBefore... hooks and report
    // the change. They return false, changing nothing, when refused. A row that a tree command hands to a
    // hook prepared stays the grid's also when the hook replaces it, and a row, child or column that a hook
    // has put into its reference argument is the grid's from then on: the grid deletes it when the hook
    // refuses or the command cannot go on.

    // At the one selected column: before it, behind it; at the end. The new column is selected.
    bool DoInsertCol();
    bool DoInsertColAfter();
    bool DoAppendCol();
    // At the one selected row: before it, behind it. Beside a child row the new row becomes its sibling. The
    // tree forms insert a row with one empty child. The new row is selected.
    bool DoInsertRow();
    bool DoInsertRowAfter();
    bool DoInsertTree();
    bool DoInsertTreeAfter();
    // At the end: unselects everything, then selects the new row or scrolls to the new-row line.
    bool DoAppendRow(bool select);
    bool DoAppendTree();
    // As the last child of the one selected row, added to the selection.
    bool DoAppendChild();
    // Deletes the selected rows that may be deleted, or the selected columns.
    bool DoDelete();
    // Copies the selected rows to the row buffer, also in a read-only grid.
    bool DoCopy();
    // Moves the selected rows to the row buffer, from the last to the first; OnCurChanged() sees the rows and
    // the buffer of each moment. Without memory a cut may stop between two rows: none is lost.
    bool DoClip();
    // Moves the row buffer in front of the one selected row, or to the end in reverse order.
    bool DoPaste();
    // Moves the row buffer below the last child of the one selected row.
    bool DoPasteChild();
    // Sorts the rows, and the children of every row, by the row order; selected rows stay selected, and the
    // current row stays the current one.
    void Arrange(bool ascending);

    // Keys that leave or steer an open editor, Tab, Enter and Esc in forms, and the commands of the context
    // menus.
    BOOL PreTranslateMessage(MSG* message) override;
    // Asks OnCellTip and the extensions; -1 beside the cells and without a tip.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // ---- Hooks, in their fixed order
    // The order is part of the binary interface: a derived grid fills the same places of the table through
    // which the compiled library calls, and so do hosts that were built against earlier versions. Hooks are
    // therefore neither inserted nor moved, whatever belongs together; TGTreeGrid's follow the last.
    //
    // OnBefore... and the other hooks that return bool go ahead with true and veto with false; the exceptions
    // say so. Points of right clicks are in screen coordinates.

    // A row header box was double-clicked. Default: nothing.
    virtual void OnDblClick(TGGridRow& row);
    // The right button was released over a cell, a row header box, a column header box or the corner. The
    // defaults of the last three show the context menus. Over a header box whose row or column was not
    // selected, that is the only one selected by then. The hooks may delete what they are told of.
    virtual void OnRClickCell(TGGridCell& cell, CPoint point);
    virtual void OnRClickRow(TGGridRow& row, CPoint point);
    virtual void OnRClickCol(TGGridCol& col, CPoint point);
    virtual void OnRClickQuad(CPoint point);
    // A cell is about to be edited. On the new-row line, returning false with `commitNewRow` set to true adds
    // the new row at once without opening an editor. Default: true. Read-only cells are not asked about.
    virtual bool OnBeforeEdit(TGGridCell& cell, bool& commitNewRow);
    // Makes the editor of a cell on the heap; null keeps the cell closed. The default follows the column's
    // style: combo boxes, button, spin, plain edit. The session owns the editor from then on; see TGCellCtrl
    // for editors of the host's own.
    virtual TGCellCtrl* OnGetCellEdit(TGGridCell& cell);
    // Fills the list of a combo editor. Called for each session, when the combo box exists and is empty.
    // Default: nothing.
    virtual void OnCellComboString(TGGridCell& cell, CComboBox& combo);
    // The button of an editor was pressed; true takes over `text` as the editor's new text. Default: false.
    // `text` comes in as the editor's present text. A dialog may be shown.
    virtual bool OnCellButtonDown(TGGridCell& cell, CString& text);
    // Sets range and step of a spin editor, 0 to 100000 before; not called when the cell is too narrow for
    // the spin.
    virtual void OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin);
    // A modified text is about to be stored; the hook may change it, false rejects it. Also called whenever
    // the text of a combo box of the host's own changes that does not handle its notifications itself; the
    // answer is not used then.
    virtual bool OnModified(TGGridCell& cell, CString& text);
    // Data or structure was changed through the user interface. Default: sets the modified flag and sends
    // WM_COMMAND with EN_CHANGE to the parent. A parent handles EN_CHANGE as that of an edit:
    // ON_EN_CHANGE(IDC_PARTS, ...). It says that something changed, not how often: one inserted row sends it
    // twice, for the default OnInsertRow() reports the row, and the command that inserted it reports itself.
    // The same holds for a column, and for a row that begins in the new-row line, which is reported before
    // the text typed there. Rows that are deleted, cut, pasted, moved or sorted together are one report; a
    // committed text is one; a combo box reports each item chosen and then the commit; copying and resizing
    // report nothing. A host that counts insertions overrides OnInsertRow() and OnInsertCol() instead, whose
    // bodies may be empty.
    virtual void OnDataChanged();
    // The selection changed or an editor opened. Default: recomputes the current row and column. Called more
    // often than something changes, and amid changes, whose counts and indices may be those of a moment in
    // between. An override calls this class's, or nobody knows the current row.
    virtual void OnCurChanged();
    // An item of a combo editor was chosen. Default: stores its text in the cell, past OnModified; the end of
    // the edit commits the text again. OnDataChanged() follows.
    virtual void OnCmbSelchange(TGGridCell& cell, CComboBox* combo);
    // The text of a combo editor was changed. Default: nothing.
    virtual void OnCmbEditchange(TGGridCell& cell, CComboBox* combo);
    // Sets the colours of the drawing context for a cell. Default: the column's colours; nothing without a
    // context. An override changes the context of GetDC(): text colour, background colour, font; what it
    // selects stays selected for the next cell.
    virtual void OnBeforeRefresh(TGGridCell& cell);
    // Draw this cell; draw the cells of this row. False leaves the place to the hook, which has drawn it
    // itself on GetDC() or wants it to stay as it is. Default: true.
    virtual bool OnRefresh(TGGridCell& cell);
    virtual bool OnRefresh(TGGridRow& row);
    // A column is about to be inserted at `position`; the hook may supply the column object, which is the
    // grid's from then on, also when the hook returns false.
    virtual bool OnBeforeInsertCol(long position, TGGridCol*& col);
    // The column is in place. Default: OnDataChanged().
    virtual void OnInsertCol(TGGridCol& col);
    // Around the deletion of the selected columns: before it, with the selection still there, and after it.
    virtual bool OnBeforeDeleteCol();
    virtual void OnEndDeleteCol();
    // A drag of the selected columns starts, passes over a position, is dropped there, has moved them.
    virtual bool OnBeginMoveCol();
    virtual bool OnMovingCol(long position);
    // Default: the answer of OnMovingCol.
    virtual bool OnMoveCol(long position);
    virtual void OnEndMoveCol();
    // A row is about to be inserted at `position`; the hook may supply the row object, which is the grid's
    // from then on, also when the hook returns false. The columns may change before it comes in.
    virtual bool OnBeforeInsertRow(long position, TGGridRow*& row);
    // A child is about to be inserted under `parent`; the hook may supply the row object, likewise.
    virtual bool OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child);
    // The row is in place. Default: OnDataChanged(), but for rows that an extension inserts, which reports
    // all at once. `row` is the row object that came in, at its index, selected if the command selects it.
    virtual void OnInsertRow(TGGridRow& row);
    // Around the deletion of the selected rows: before it, with the selection still there but for rows that
    // may not be deleted, and after it. After a veto the selection stays without those.
    virtual bool OnBeforeDeleteRow();
    virtual void OnEndDeleteRow();
    // Around cut, copy and paste; `position` is the target row.
    virtual bool OnBeforeClip();
    virtual void OnEndClip();
    virtual bool OnBeforeCopy();
    virtual void OnEndCopy();
    virtual bool OnBeforePaste(long position);
    virtual bool OnBeforePasteChild(TGGridTreeRow& parent);
    virtual void OnEndPaste();
    // A drag of the selected rows, as for columns.
    virtual bool OnBeginMoveRow();
    virtual bool OnMovingRow(long position);
    virtual bool OnMoveRow(long position);
    virtual void OnEndMoveRow();
    // Fill the tip text of a cell, a row header box, a column header box, a cell button, the corner and
    // return true to show it. Defaults: false.
    virtual bool OnCellTip(long row, long col, CString& text) const;
    virtual bool OnRowTip(long row, CString& text) const;
    virtual bool OnColTip(long col, CString& text) const;
    virtual bool OnCellButtonTip(long row, long col, CString& text) const;
    virtual bool OnActiveQuadTip(CString& text) const;

protected:
    friend class CellWatch;
    friend class GridExtensions;
    friend class GridKeyMap;
    friend class HeaderBand;
    friend class HeaderDrag;
    friend class RowWatch;
    friend class TGActiveQuad;
    friend class TGCellButton;
    friend class TGCellCombo;
    friend class TGCellEdit;
    friend class TGCellSpinEdit;
    friend class TGColSelector;
    friend class TGGridCell;
    friend class TGGridCol;
    friend class TGGridExtension;
    friend class TGGridRow;
    friend class TGGridTreeRow;
    friend class TGRowSelector;
    friend class TGUserAction;

    // Sends WM_COMMAND with the grid's control id and `code` to the parent window, if there is one.
    void SendParentNotify(unsigned short code) const;

    // Takes the rows that may not be deleted out of the selection and repaints.
    void FilterDelUnable();
    // A selected row may not be deleted.
    bool IsSelDelUnable();
    // The cut and the paste without flags and hooks: moves the selected rows to the row buffer, the row
    // buffer in front of `row`.
    void ClipSelect();
    void Paste(long row);

    // Empties both selections without repainting and without OnCurChanged().
    void ClearSel();
    // The row and column under a point in client coordinates. The row is the logical y divided by the row
    // height, so it may lie outside the rows; the column is the column count when none contains the point.
    void PtToCell(CPoint point, long& row, long& col) const;
    // Scrolls as little as possible so that `rect` (logical coordinates) becomes visible. When anything
    // moves, an open cell edit ends, which may run hooks.
    void ShowRect(CRect rect);
    // The data area in client coordinates: the client rectangle without the headers.
    void GetClientRect(RECT* rect);
    // The new-row line is shown.
    bool IsAppendRowShown() const { return !IsNoAppendButton(); }
    // Converts a point from client to logical coordinates; unchanged without a drawing context.
    CPoint ClientToLogical(CPoint point) const;
    // The first column whose left <= `logicalX` < right, the column count when there is none.
    long ColAtX(long logicalX) const;
    // Does a layout that is postponed between BeginUpdate and EndUpdate now; the repaint stays postponed. The
    // layout ends an open cell edit, which may run hooks.
    void FlushLayout();

    // The prepared drawing context: null makes and keeps a client context when there is none, another context
    // becomes the prepared one. Its origin is the logical origin, its font and pen are the grid's.
    void PrepareDC(CDC* context);
    // Forgets the prepared drawing context, and deletes it when it is the grid's own.
    void ClearDC();
    // The prepared drawing context, where hooks draw; null without a window and for a moment while it is made
    // anew. Not CWnd::GetDC(): nothing is to be released.
    CDC* GetDC() { return dc; }

    // Extensions see a message first.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // The window is gone: forgets what belonged to it. The object and its model stay, for another Create().
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    // A new layout without erasing.
    afx_msg void OnSize(UINT type, int cx, int cy);
    // Copies the font, whose height becomes the text height, and lays out anew.
    afx_msg LRESULT OnSetFont(WPARAM newFont, LPARAM redraw);
    // With redraw off, the window forgets what is to be painted.
    afx_msg LRESULT OnSetRedraw(WPARAM on, LPARAM unused);
    // A grid shows no window text; lays out anew.
    afx_msg LRESULT OnSetText(WPARAM unused, LPARAM text);
    // Releases the mouse.
    afx_msg void OnCancelMode();
    // Wants all keys, Tab included.
    afx_msg UINT OnGetDlgCode();
    // Refresh() on the paint's context; between BeginUpdate and EndUpdate nothing.
    afx_msg void OnPaint();
    // Scroll by a row or the default column width, by the height or width of the view, or to the thumb; take
    // the focus. The track position is read from the bar, not from `position`.
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    // Scrolls vertically, when there is a bar.
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    // Font, layout, drawing context, header windows.
    afx_msg int OnCreate(LPCREATESTRUCT create);
    // Gives an editor the colours of its column.
    afx_msg HBRUSH OnCtlColor(CDC* context, CWnd* wnd, UINT kind);
    // A second click, like the first.
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    // Takes the focus, ends an edit, and edits, folds or deselects, depending on what is under the point.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // Does what the key stands for, letters without Ctrl.
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    // The default; a place for derived grids.
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    // Erases, unless the cells cover everything or painting is postponed.
    afx_msg BOOL OnEraseBkgnd(CDC* context);
    // The corner shows whether the focus is in the grid or in a window of it.
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnSetFocus(CWnd* oldFocus);
    // Takes the focus and calls OnRClickCell over a cell.
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    // The timers 0 and 1 of AutoEditCell and AutoCloseCell; derived grids number theirs from 2 on.
    afx_msg void OnTimer(UINT_PTR id);
    // Notifications of a combo box over a cell; call OnCmbSelchange, OnCmbEditchange and OnDataChanged.
    afx_msg void OnCbnSelchange();
    afx_msg void OnCbnEditChange();

private:
    // The fields down to `modified` keep this order: derived classes of hosts were compiled with the size and
    // the places that it gives. The columns, owned.
    PDList<TGGridCol> cols;
    // The rows shown, in order; owned, except for child rows, which their parents own.
    PDList<TGGridRow> rows;
    // What was copied or cut last, owned.
    PDList<TGGridRow> rowPaste;
    // Column indices to sort by, the main key first.
    List<long> keys;
    // The indices selected, ascending; one of the two is empty.
    DualList<long> rowSel;
    DualList<long> colSel;
    // The cell under edit; null between sessions.
    TGGridCell* editCell = nullptr;
    // The cell that waits for the timer to open its editor.
    TGGridCell* cellLock = nullptr;
    // The width in pixels of columns added with width 0.
    long defaultWidth;
    // The height of the font and one pixel; 1 until there is a font.
    long textHeight = 1;
    // Pixels above the text.
    long rowSpace = 3;
    // Of the texts; beside the cells; of the grid lines.
    CFont font;
    CBrush backBrush;
    CPen gridPen;
    // The prepared drawing context; null without a window.
    CDC* dc = nullptr;
    // The header windows, owned; null while they are disabled or not made yet.
    TGActiveQuad* quad = nullptr;
    TGRowSelector* rowHeader = nullptr;
    TGColSelector* colHeader = nullptr;
    // The editor of the session; after its end hidden and disabled, until the next session begins.
    TGCellCtrl* cellCtrl = nullptr;
    // Which scroll bars the last layout found necessary.
    bool vScrollShown = false;
    bool hScrollShown = false;
    // The row of the new-row line, owned; not in `rows` and null without a window.
    TGGridRow* newRow = nullptr;
    // As the accessors say.
    long curRowIndex = -1;
    long curColIndex = -1;
    // As IsModified() says.
    bool modified = false;

    // `dc` is a client context of the grid's own, not the context of a running paint.
    bool ownsDC = false;
    // Row height and column header height that the header windows were last placed for.
    CSize headerMeasure;

    // The steps of operations, each kind with the grid at hand.
    class Commands;
    class EditSession;
    class Keyboard;
    class LateNumbers;
    class Layout;
    class Painting;
    class Pointer;
    class RowBuffer;
    class Selecting;
    class SortingScope;
    class Structure;

    // Move the selected rows in front of the row `to`, the selected columns, which form the run from `first`
    // to `last`, in front of the column `to`; they stay selected.
    void MoveSelectedRows(long to);
    void MoveSelectedCols(long first, long last, long to);
    // Does what an entry of the context menus says; false for other numbers.
    bool RunMenuCommand(UINT id);

    // The window class with the background of backBrush.
    BrushWindowClass windowClass;

    // Refresh() is drawing the rows; the selection follows.
    bool refreshing = false;
    // Cells outside this part of the logical space are not visible on the prepared drawing context; while it
    // is not drawn on by Refresh(), no such part is known.
    static constexpr RECT Everywhere = {LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX};
    CRect visiblePart = Everywhere;

    // Postponed work between BeginUpdate and EndUpdate.
    int updateDepth = 0;
    bool layoutPending = false;
    bool redrawPending = false;
    bool showPending = false;
    CRect pendingShowRect;

    // When the picture of a scroll bar was drawn last, in ticks, and whether it waits to be drawn again; by
    // the bar's number.
    struct BarPicture
    {
        DWORD drawn = 0;
        bool waits = false;
    };
    BarPicture barPictures[2];

    // The last layout has had all repainted and nothing has been painted since; the window was in sight then.
    // Until then rows that come and go cost no layout.
    bool repaintAwaited = false;
    bool awaitedInSight = false;
    // The values of the vertical bar have changed since, its picture not.
    bool barStale = false;
    // What the last layout found: the height of the view and how far it can be scrolled.
    int viewHeight = 0;
    long scrollHeight = 0;
    // The new-row line is to be made anew before anybody sees it.
    bool newRowStale = false;

    // The largest number of caption lines; 0: to be counted anew.
    long captionLines = 0;

    // Editing (EditSession.cpp).
    // What a click and an edit begin with, and go on with after a hook: ends an edit that is open and does a
    // layout that is postponed. Runs the hooks of these, none when there is nothing to do.
    void Settle();

    // The row or column in a slot; null outside and for an empty slot.
    TGGridRow* RowAtIndex(long i);
    TGGridCol* ColAtIndex(long i);

    // An extension has a tip for a place.
    bool HasExtensionTip(TGGridPlace place, long row, long col, CString& tip) const;
    // Extensions add their entries.
    void ExtendMenu(TGGridPlace place, CMenu& menu);
    // Tells extensions that the selection has changed.
    void TellSelected();

    // RecalcLayout(1) after rows have come or gone.
    void RecalcRows();
    // Stores the indices that `numberedRows` excepts.
    void NumberLateRows();
    // The row of the new-row line as the last layout wants it; null when there is none.
    TGGridRow* FreshNewRow();

    // Makes a shown row the only one selected.
    void SelectOnly(TGGridRow& row);
    // Inverts a rectangle in logical coordinates on the drawing context; nothing without one.
    void InvertBand(const CRect& band);

    // The cell or row is being deleted: nothing refers to it from now on.
    void ForgetCell(const TGGridCell* cell);
    void ForgetRow(const TGGridRow* row);
    // Rows of the grid are an extension's now, with their offspring: for what is on the stack they are as
    // good as deleted.
    void ForgetTaken(std::span<TGGridRow* const> taken);

    // The serial number of the column that was made last.
    unsigned lastColSerial = 0;

    // Rows whose stored index is below this one have it rightly; those that others were inserted before one
    // by one get theirs when somebody asks.
    long numberedRows = LONG_MAX;

    // Knows the indices of the rows, owned; null when they are those stored.
    LateNumbers* lateNumbers = nullptr;

    // The cells and rows that operations on the stack are working on.
    CellWatch* cellWatches = nullptr;
    RowWatch* rowWatches = nullptr;

    // What hosts have attached, see TGGridExtension; null without any.
    GridExtensions* extensions = nullptr;

    // The open editor has gone along with its cell, and where it stands from the cell's corner.
    bool editorMoved = false;
    CSize editorInset;

    // OnInsertRow is told of one of many rows, after which OnDataChanged is called once.
    bool tellsChangesLater = false;
};

} // namespace QuorUiCtr
