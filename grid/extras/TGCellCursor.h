// TGCellCursor: a current cell, ranges of cells, and the keys that people know from spreadsheets.
#pragma once

#include "grid/extras/TGKeyDescription.h"
#include "grid/TGGridExtension.h"

namespace QuorUiCtr
{

// An extra for grids whose users expect a cell cursor: a current cell without an editor, drawn as a focus
// frame, and rectangular ranges. While it is attached
//
// - keys move the current cell, and with Shift span a range; typing opens the editor with what is typed, F2
//   with the caret at the end; docs/KEYS.md has the table;
// - a click sets the current cell and edits nothing; dragging and Shift span a range, Ctrl adds one; a drag
//   that waits outside of the cells in view scrolls on;
// - the row header, the column header and the corner select rows, columns and all, as ever: then these are
//   the range;
// - the letter commands of the grid need Ctrl.
//
//     QuorUiCtr::TGCellCursor cursor(grid);
//     cursor.SetEnterStep(QuorUiCtr::TGCellCursor::Step::Right);
//
// The current cell goes along with its row and its column when these move, are sorted or get others before
// them. When they leave, the cell that takes their place is the current one; when they are folded away, the
// cell of the parent.
class QUOR_EXT_CLASS TGCellCursor : public TGGridExtension
{
public:
    // Where the current cell goes with Enter and Tab; with Shift to the other side.
    enum class Step
    {
        // Enter: the key is the dialog's, as its default button. Tab: leaves the grid.
        None,
        Down,
        Right
    };

    TGCellCursor();
    // Attaches.
    explicit TGCellCursor(TGGrid& newGrid);
    ~TGCellCursor() override;

    // ---- Options

    // Enter goes down, Tab to the right. A commit by one of them goes the same way.
    void SetEnterStep(Step step) { enterStep = step; }
    Step GetEnterStep() const { return enterStep; }
    void SetTabStep(Step step) { tabStep = step; }
    Step GetTabStep() const { return tabStep; }
    // A step beyond the end of a row or column goes on in the next one. Default: true.
    void SetWrapping(bool on) { wrapping = on; }
    bool IsWrapping() const { return wrapping; }
    // Tab leaves the grid from the last cell, Shift+Tab from the first. Default: true. Else it begins anew.
    void SetLeaving(bool on) { leaving = on; }
    bool IsLeaving() const { return leaving; }
    // A double click opens the editor. Default: true.
    void SetDoubleClickEditing(bool on) { doubleClickEditing = on; }
    bool IsDoubleClickEditing() const { return doubleClickEditing; }

    // ---- The current cell and the ranges

    // -1 while there is no cell.
    long GetRow() const;
    long GetCol() const;
    // Makes a cell the current one, which drops all ranges, or with `extend` moves one corner of the last
    // range; scrolls it into view. False, changing nothing, for a cell that there is not. The row may be the
    // new-row line.
    bool MoveTo(long row, long col, bool extend = false);
    // Selects a range, from the corner `row`, `col` to the current cell at the other one; with `add` beside
    // those there are. Indices outside are brought inside; false without cells.
    bool SelectRange(const TGCellRange& range, bool add = false);
    // All cells.
    bool SelectAllCells();
    // What is selected: the rows or columns that are selected in the grid, else the ranges, of which the last
    // one has the current cell in a corner. One cell is a range, too.
    std::vector<TGCellRange> GetRanges() const;
    bool IsInRanges(long row, long col) const;

    // ---- What the keys do

    // Opens the editor of the current cell; with `caretAtEnd` nothing is selected in it. False when it stays
    // closed.
    bool Edit(bool caretAtEnd);
    // Empties the cells of the ranges as if typed, and tells OnDataChanged once. Returns how many.
    long EmptyRanges();
    // The table of keys, in the order of the documents.
    static std::vector<TGKeyDescription> GetKeys();

protected:
    // The current cell or the ranges have changed. Default: nothing.
    virtual void OnMoved();

    void OnAttach() override;
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnDrawOverlay(CDC& context, const CRect& area) override;
    void OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> rows) override;
    void OnRowsRemoved(TGRemovedRows& rows) override;
    void OnRowMoved(long from, long to, long number) override;
    void OnRowsSorted(TGGridTreeRow* parent, std::span<const long> order) override;
    void OnRowsFolded(std::span<TGGridTreeRow* const> rows) override;
    void OnColInserted(TGGridCol& col) override;
    void OnColRemoved(long position, std::unique_ptr<TGGridCol>& col) override;
    void OnColMoved(long from, long to) override;
    void OnSelected() override;
    void OnLaidOut() override;
    bool OnCurrentCell(long& row, long& col) const override;
    bool OnSelectedCells(std::vector<TGCellRange>& found) const override;
    bool OnSelectCells(const TGCellRange& range) override;
    bool OnRestoreCells(std::span<const TGCellRange> restored, long row, long col) override;

private:
    // A cell that goes along with its row and column. Without a row it stands on the new-row line or nowhere.
    struct Corner
    {
        TGGridRow* row = nullptr;
        TGGridCol* col = nullptr;
        // Where it stood last.
        long lastRow = -1;
        long lastCol = -1;
    };
    struct Range
    {
        Corner anchor;
        Corner cursor;
    };
    struct Key;
    class Keys;
    friend class Keys;
    // Hooks may delete this object, or take it off its grid.
    class Watch
    {
    public:
        explicit Watch(const TGCellCursor& watchedCursor) : cursor(watchedCursor), life(watchedCursor.life) {}
        bool IsDeleted() const { return life.expired(); }
        bool IsAttached() const { return !IsDeleted() && cursor.GetGrid() != nullptr; }
        bool HasWindow() const;

    private:
        const TGCellCursor& cursor;
        std::weak_ptr<const int> life;
    };
    // While it lives, changes of the selection are the cursor's own.
    class OwnSelecting
    {
    public:
        explicit OwnSelecting(TGCellCursor& selectingCursor);
        ~OwnSelecting();
        OwnSelecting(const OwnSelecting&) = delete;
        OwnSelecting& operator=(const OwnSelecting&) = delete;

    private:
        TGCellCursor& cursor;
        Watch watch;
        bool before;
    };

    // Corners and their cells.
    Corner CornerAt(long row, long col) const;
    long RowOf(const Corner& corner) const;
    long ColOf(const Corner& corner) const;
    TGCellRange RangeOf(const Range& range) const;
    template <class Change> void ForCorners(Change change);
    void Settle(Corner& corner) const;
    void SettleAll();
    bool EnsureCell();
    // From the corner that stays to the current cell.
    void AddRange(const TGCellRange& range);
    long LastRow(bool withNewRow) const;
    long LastCol() const;

    // What is on the screen.
    void InvalidateRanges() const;
    void ShowCursor();
    void Moved();
    bool HasFocus() const;

    // Keys.
    bool RunKey(UINT key);
    bool RunCharacter(wchar_t character);
    bool RunTreeCharacter(wchar_t character);
    bool RunEditorKey(MSG& message);
    bool TakeKey(UINT key);
    UINT DialogCode(const MSG* message) const;
    bool LeavesEditor(UINT key) const;
    void CommitEdit();
    bool StepOn(Step step, bool back, bool mayLeave);
    void LeaveGrid(bool back);

    // Mouse.
    bool PressAt(CPoint point, bool shift, bool control);
    bool PressTwiceAt(CPoint point);
    void PressRightAt(CPoint point);
    bool IsOnFoldBox(CPoint point, long row, long col) const;
    void DragTo(CPoint point);
    bool DragOn();
    UINT_PTR DragTimer() const;

    Step enterStep = Step::Down;
    Step tabStep = Step::Right;
    bool wrapping = true;
    bool leaving = true;
    bool doubleClickEditing = true;

    std::vector<Range> ranges;
    // The cells between two corners of the grid's own selection count as the range.
    bool dragging = false;
    // Where the mouse was last, in client coordinates.
    CPoint dragPoint;
    // The editor was opened by typing: arrows commit.
    bool typing = false;
    // The character of a key that was handled follows.
    bool dropCharacter = false;
    // A change of the selection that this object makes.
    bool selecting = false;
    // Whoever runs hooks sees by it whether this object is there still.
    std::shared_ptr<const int> life = std::make_shared<const int>(0);
};

} // namespace QuorUiCtr
