// TGHeaderSort: rows are sorted by clicks on the column headers.
#pragma once

#include "grid/TGGridExtension.h"

#include <functional>
#include <map>
#include <memory>
#include <unordered_set>
#include <vector>

namespace QuorUiCtr
{

// How the texts of a column are compared when rows are sorted by it.
enum class TGSortBy
{
    // By their character codes, as TGGrid::Arrange does.
    Ordinal,
    // As the user's locale sorts words.
    Locale,
    // Digits count as numbers ("row 9" before "row 10"), letters without their case.
    Natural,
    // By the number that a text begins with: "-1234.5", "1,234.5 kg", "1e3". Texts without one stand last in
    // both directions.
    Number,
    // By date and time: "2024-03-05", "2024-03-05 13:05:09", and with the day or the month first as the
    // user's locale writes it, whatever stands between the three numbers. Texts without one stand last in
    // both directions.
    Date
};

// A column that rows are sorted by.
struct TGSortKey
{
    // Zero-based index of the column.
    long col = -1;
    // Small texts first.
    bool ascending = true;

    // The same column in the same direction.
    bool operator==(const TGSortKey& other) const = default;
};

// An extra that sorts the rows of a grid by clicks on its column headers. While it is attached
//
// - a click on a caption sorts by that column, ascending, then descending, then brings the original order
//   back; an arrow in the caption says which;
// - with Shift a click adds the column behind those that rows are sorted by already, turns its direction, and
//   takes it out again; the arrows get numbers;
// - columns are selected with Ctrl and a click, or as SetSelecting says; a press that moves drags the column,
//   or the edge that it began on, as ever.
//
//     QuorUiCtr::TGHeaderSort sorting(grid);
//     sorting.SetComparison(2, QuorUiCtr::TGSortBy::Number);
//
// Sorting is TGGrid::Arrange in another order: an edit ends, selected rows stay selected, the current row,
// the cell of a TGCellCursor and what is folded stay with their rows, in a tree the children of every row are
// sorted, and OnDataChanged is called. It is stable: rows that are equal in all keys keep the order in which
// they stood.
//
// The original order is the one from which the first click sorted. What changes while rows are sorted changes
// it, too: a row that comes in stands before the row that it was put in front of, at the end when there was
// none, and so does one that is moved. Rows that change or come in are not sorted in by themselves: Sort
// again does. When somebody else sorts the rows, by Arrange or by the grid's own command, the arrows go, and
// the order that this makes is the original one from then on. The same holds when this extra is detached.
class QUOR_EXT_CLASS TGHeaderSort : public TGGridExtension
{
public:
    // Says how two cells of a column compare: less than, equal to or greater than 0. Called while rows are
    // being sorted, when nothing may change rows and columns. Contradictions give some order of the same
    // rows.
    using Comparison = std::function<int(TGGridCell& first, TGGridCell& second)>;

    // What selects columns.
    enum class Selecting
    {
        // A click with Ctrl held, which adds a column to those selected or takes it out.
        ControlClick,
        // Every click, beside what it sorts; with Shift it selects up to the column, too.
        EveryClick,
        // No click; the context menu still does.
        None
    };

    TGHeaderSort();
    // Attaches.
    explicit TGHeaderSort(TGGrid& newGrid);
    ~TGHeaderSort() override;

    // ---- Options

    // How a column is compared from the next sorting on; TGSortBy::Ordinal before. A null function means
    // ordinal. Nothing for a column that there is not and while this is not attached. It goes along with its
    // column, and is forgotten when this leaves the grid.
    void SetComparison(long col, TGSortBy by);
    void SetComparison(long col, Comparison compare);
    // A click on the column does not sort when off. Default: on. Programs can.
    void SetSortable(long col, bool on);
    bool IsSortable(long col) const;
    // Default: Selecting::ControlClick.
    void SetSelecting(Selecting clicks) { selecting = clicks; }
    Selecting GetSelecting() const { return selecting; }

    // ---- Sorting

    // Sorts by columns, the first one being the main key; an empty list brings the original order back. Works
    // without a window. False, changing nothing: not attached, a column that there is not or that is named
    // twice, sorting already, or refused by OnBeforeSort.
    bool Sort(const std::vector<TGSortKey>& wanted);
    // What the rows are sorted by, the main key first; columns that are gone are left out.
    std::vector<TGSortKey> GetKeys() const;

protected:
    // Rows are about to be sorted by a click or by Sort; false refuses. Default: true.
    virtual bool OnBeforeSort(const std::vector<TGSortKey>& wanted);
    // Rows have been sorted. Default: nothing.
    virtual void OnSortChanged();

    void OnDetach(TGGrid& oldGrid) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnCaptionLook(TGGridCol& col, TGTextLook& look) override;
    void OnDrawCaption(TGGridCol& col, CDC& context, const CRect& box) override;
    bool OnSort(TGGridTreeRow* parent, std::span<TGGridRow*> rows, bool ascending) override;
    void OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> rows) override;
    void OnRowsRemoved(TGRemovedRows& rows) override;
    void OnRowMoved(long from, long to, long number) override;
    void OnRowsSorted(TGGridTreeRow* parent, std::span<const long> order) override;
    void OnColRemoving(TGGridCol& col) override;

private:
    struct Key
    {
        TGGridCol* col;
        bool ascending;
    };
    struct ColRule
    {
        TGSortBy by = TGSortBy::Ordinal;
        Comparison compare;
        bool isSortable = true;
    };
    // The original order of rows that stand side by side.
    struct Level
    {
        std::vector<TGGridRow*> rows;
        // Those of them that have left, or have another place now.
        std::unordered_set<const TGGridRow*> gone;
        // Rows have come in.
        bool changed = false;
    };

    // Rows and their original order.
    void SortRows(const std::vector<Key>& sortKeys, std::span<TGGridRow*> rows) const;
    static void Follow(Level& level, std::span<TGGridRow* const> rows);
    void NoteGone(TGGridTreeRow* parent, const TGGridRow* row);
    void ForgetLevels(TGGridRow& row);
    void ForgetOrder();

    // Mouse.
    bool AnswerHeader(CWnd& header, UINT message, WPARAM wParam, LPARAM lParam);
    bool Press(CWnd& header, CPoint point, WPARAM keys);
    bool Release(CWnd& header, CPoint point);
    bool BeginDrag(CWnd& header, CPoint point);
    long ColAt(const CWnd& header, CPoint point) const;
    bool IsOnEdge(const CWnd& header, CPoint point) const;
    void ClickCol(TGGridCol& col, bool add);
    std::vector<TGSortKey> KeysAfterClick(long col, bool add) const;

    // Painting.
    // The position of a column among the keys, -1 when it is none.
    long KeyOf(const TGGridCol& col) const;
    // Of the arrow and the number beside it, with room around.
    int ArrowWidth() const;
    void InvalidateHeader() const;

    Selecting selecting = Selecting::ControlClick;
    std::vector<Key> keys;
    std::map<const TGGridCol*, ColRule> rules;
    // By the parent, null for rows of the first level; empty while nothing is sorted.
    std::map<const TGGridTreeRow*, Level> levels;
    // Rows are being sorted by this object.
    bool arranging = false;

    // The column that the button was pressed on, null when it is up or a drag; where, and whether with Shift.
    TGGridCol* pressed = nullptr;
    CPoint pressPoint;
    bool pressAdds = false;
    // The header gets a press that this object has kept.
    bool passing = false;
    // Captions of right-aligned texts have their arrow at the left.
    bool arrowLeft = false;

    // Expires with the object: hooks may delete it.
    std::shared_ptr<int> life = std::make_shared<int>();
};

} // namespace QuorUiCtr
