// The changes of a grid that the undo stack keeps.
#pragma once

#include "undo/GridUndo.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

class GridChange : public UndoChange
{
public:
    explicit GridChange(GridUndo& changedBy) : UndoChange(changedBy) {}

    GridUndo& Undo() const { return static_cast<GridUndo&>(GetRecorder()); }
    long GetNumber() const final { return Count(Undo().GetKind()); }
    // For how many of its kind it counts in a step that is called after `kind`.
    virtual long Count(TGActionKind kind) const;
    // Breaks when it needs one of the rows, which are gone.
    virtual void Forget(const std::unordered_set<const TGGridRow*>& gone) = 0;
    // Gives up what it owns of the rows, which another change needs; they are not wanted any more then.
    virtual void Lend(std::unordered_set<const TGGridRow*>& wanted, GridUndo::LentRows& found);
    // Takes a row over that it needs and that nobody else will own. False when it does not need it.
    virtual bool Keep(std::unique_ptr<TGGridRow>& row);
};

// Texts of cells, in the order in which they were changed. Keeps the old ones; the new ones are known by a
// number that is made from them.
class GridTextChange : public GridChange
{
public:
    using GridChange::GridChange;

    void Add(TGGridCell& cell, const CString& oldText);
    // All texts are those of one cell, the one of this row and the column with this number.
    bool IsOnly(const TGGridRow& row, unsigned serial) const;

    bool Fits() const override { return true; }
    bool Revert() override;
    std::size_t GetBytes() const override;
    bool Merge(UndoChange& next) override;
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;

private:
    struct Col
    {
        long index;
        unsigned serial;
    };
    struct Entry
    {
        TGGridRow* row;
        // The number made from the new text.
        std::uint64_t expected;
        // Of `cols`.
        unsigned col;
        // Where the old text begins; it ends where the next one begins.
        unsigned text;
    };
    bool RevertText(const Entry& entry);
    unsigned ColOf(const TGGridCol& col);

    std::vector<Col> cols;
    std::vector<Entry> entries;
    std::vector<wchar_t> texts;
};

// Rows have come in side by side.
class GridRowsIn : public GridChange
{
public:
    GridRowsIn(GridUndo& changedBy, TGGridTreeRow* parentRow, long first, std::span<TGGridRow* const> added);

    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override;
    bool Merge(UndoChange& next) override;
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;

private:
    TGGridTreeRow* parent;
    long position;
    std::vector<TGGridRow*> rows;
};

// Rows have left, and are here or in the row buffer.
class GridRowsOut : public GridChange
{
public:
    GridRowsOut(GridUndo& changedBy, TGGridTreeRow* parentRow, long first);
    ~GridRowsOut() override;

    // The next row; not `owned`: somebody else has it until it is needed.
    void Add(TGGridRow& row, bool owned);
    // The rows of a notice that belongs to the last one: false when they have not stood beside its rows.
    bool Add(TGRemovedRows& removed);

    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override;
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;
    void Lend(std::unordered_set<const TGGridRow*>& wanted, GridUndo::LentRows& found) override;
    bool Keep(std::unique_ptr<TGGridRow>& row) override;

private:
    // Rows that leave one by one do so at the same place, or each before the one that left last.
    enum class Order
    {
        Unknown,
        Forward,
        Backward
    };
    // Where they go back.
    long Place() const;
    void TakeAll(TGRemovedRows& removed);
    void NoteNeighbours();

    TGGridTreeRow* parent;
    bool parentFolded = true;
    long position;
    // What stands before and behind their place now: siblings.
    TGGridRow* before = nullptr;
    TGGridRow* behind = nullptr;
    std::vector<TGGridRow*> rows;
    std::unordered_set<const TGGridRow*> notOwned;
    Order order = Order::Unknown;
};

// The host data of a tree is with another one.
class GridDataMove : public GridChange
{
public:
    GridDataMove(GridUndo& changedBy, TGGridRow& movedFrom, TGGridRow& movedTo);
    ~GridDataMove() override;

    bool Fits() const override { return true; }
    bool Revert() override;
    std::size_t GetBytes() const override { return sizeof(*this); }
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;
    void Lend(std::unordered_set<const TGGridRow*>& wanted, GridUndo::LentRows& found) override;
    bool Keep(std::unique_ptr<TGGridRow>& row) override;

private:
    TGGridRow* from;
    TGGridRow* to;
    // Of the two.
    std::vector<std::unique_ptr<TGGridRow>> kept;
};

// A row was moved.
class GridRowMove : public GridChange
{
public:
    GridRowMove(GridUndo& changedBy, long from, long to, long number);

    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override { return sizeof(*this); }
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;

private:
    TGGridRow* row;
    TGGridTreeRow* parent = nullptr;
    // The sibling that it stood before; null: it was the last one.
    TGGridRow* next = nullptr;
};

// Levels of rows have another order.
class GridOrder : public GridChange
{
public:
    using GridChange::GridChange;

    // False when the level has another order since the last time already.
    bool Add(TGGridTreeRow* parent, std::span<const long> order);

    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override;
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;

private:
    struct Level
    {
        TGGridTreeRow* parent;
        // Where each row stood.
        std::vector<long> order;
        // A number made from the rows as they stand.
        std::uint64_t expected;
    };
    std::uint64_t NumberOf(std::span<TGGridRow* const> rows) const;

    std::vector<Level> levels;
    std::unordered_set<const TGGridTreeRow*> parents;
};

// Rows were folded or unfolded.
class GridFold : public GridChange
{
public:
    GridFold(GridUndo& changedBy, std::span<TGGridTreeRow* const> changed);

    // The same row may be there several times.
    bool Fits() const override { return true; }
    bool Revert() override;
    std::size_t GetBytes() const override;
    bool Merge(UndoChange& next) override;
    bool IsView() const override { return true; }
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;

private:
    struct Row
    {
        TGGridTreeRow* row;
        bool folded;
    };
    std::vector<Row> rows;
};

// A column has come in.
class GridColIn : public GridChange
{
public:
    GridColIn(GridUndo& changedBy, const TGGridCol& col);

    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override { return sizeof(*this); }
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>&) override {}

private:
    long position;
    unsigned serial;
};

// A column has left and is here, with its texts.
class GridColOut : public GridChange
{
public:
    // Before it goes.
    GridColOut(GridUndo& changedBy, const TGGridCol& col);

    void Take(std::unique_ptr<TGGridCol> gone) { col = std::move(gone); }
    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override;
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>& gone) override;

private:
    // What a cell had, where it was not empty.
    struct Entry
    {
        std::size_t row;
        // Where the text ends; it begins where the one before ends.
        std::size_t textEnd;
        int style;
    };
    struct Beside
    {
        TGGridRow* row;
        CString text;
        int style;
    };
    // Calls `use` for every row of the grid, shown or not, in the order of the tree.
    template <class Use> void ForRows(Use use) const;
    void ReadCell(TGGridRow& row);
    static TGGridCell* FindCell(TGGridRow& row, const TGGridCol& col);
    void ReadBeside(const TGGridCol& going);

    std::unique_ptr<TGGridCol> col;
    long position;
    long width;
    unsigned before;
    unsigned behind;
    std::size_t number = 0;
    std::vector<Entry> entries;
    std::vector<wchar_t> texts;
    // Of rows that are or were in the row buffer, and may come back without the column meanwhile.
    std::vector<Beside> beside;
};

// A column was moved.
class GridColMove : public GridChange
{
public:
    GridColMove(GridUndo& changedBy, long movedFrom, long movedTo);

    bool Fits() const override { return Undo().SerialAt(Place()) == serial; }
    bool Revert() override;
    std::size_t GetBytes() const override { return sizeof(*this); }
    long Count(TGActionKind kind) const override;
    void Forget(const std::unordered_set<const TGGridRow*>&) override {}

private:
    long Place() const { return to > from ? to - 1 : to; }

    long from;
    long to;
    unsigned serial;
};

// A column has another width.
class GridColWidth : public GridChange
{
public:
    GridColWidth(GridUndo& changedBy, const TGGridCol& col, long widthBefore, bool byUser);

    bool Fits() const override;
    bool Revert() override;
    std::size_t GetBytes() const override { return sizeof(*this); }
    bool Merge(UndoChange& next) override;
    // A program that fits columns to its window does not ask for a step.
    bool IsView() const override { return !isUsers; }
    void Forget(const std::unordered_set<const TGGridRow*>&) override {}

private:
    long index;
    unsigned serial;
    long oldWidth;
    long newWidth;
    bool isUsers;
};

} // namespace QuorUiCtr
