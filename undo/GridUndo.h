// GridUndo: records the changes of one grid for the undo stack, and shows what was shown.
#pragma once

#include "grid/TGGrid.h"
#include "grid/TGGridExtension.h"
#include "grid/TGUserAction.h"
#include "undo/UndoHistory.h"

#include <memory>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace QuorUiCtr
{

class GridChange;

// Called before other extensions, so that what they change in turn is recorded after what they are told of.
class GridUndo : public TGGridExtension, public UndoRecorder
{
public:
    using LentRows = std::unordered_map<const TGGridRow*, std::unique_ptr<TGGridRow>>;

    explicit GridUndo(UndoHistory& recordedIn);
    ~GridUndo() override;

    // ---- For the changes

    using TGGridExtension::CellOf;
    using TGGridExtension::FindSibling;
    using TGGridExtension::FitToCols;
    using TGGridExtension::FoldRow;
    using TGGridExtension::GetPosition;
    using TGGridExtension::GetSerial;
    using TGGridExtension::GetSiblings;
    using TGGridExtension::GetStyle;
    using TGGridExtension::HasRows;
    using TGGridExtension::IsInGrid;
    using TGGridExtension::Mark;
    using TGGridExtension::MoveHostData;
    using TGGridExtension::OrderRows;
    using TGGridExtension::PutRows;
    using TGGridExtension::SetStyle;
    using TGGridExtension::StoreText;
    using TGGridExtension::TakeCol;
    using TGGridExtension::TakeRows;

    // A step of a change is being reverted: what is told is what takes it back. Of texts only that of `cell`.
    class Reverting
    {
    public:
        explicit Reverting(GridUndo& revertingUndo, const TGGridCell* cell = nullptr);
        ~Reverting();
        Reverting(const Reverting&) = delete;
        Reverting& operator=(const Reverting&) = delete;
        // The change has been told.
        bool IsTold() const { return undo.told; }

    private:
        GridUndo& undo;
    };

    // The sibling that stands before a position.
    TGGridRow* FindBefore(TGGridTreeRow* parent, long position) const;
    // The index behind the last row of a level that is shown.
    long EndOf(TGGridTreeRow* parent) const;
    static TGGridTreeRow* ParentOf(TGGridRow& row);
    // The column at an index, when it is the one with the number; else null.
    TGGridCol* FindCol(long index, unsigned serial) const;
    // The serial number of the column at an index, 0 where there is none.
    unsigned SerialAt(long index) const;
    // Rows that are in the row buffer or with other changes, which give them up; those that are nowhere are
    // missing then.
    void Fetch(std::unordered_set<const TGGridRow*>& wanted, LentRows& found);
    // A row is or was in the row buffer: it is known to several changes, and asked for by its address.
    void NoteTraveller(TGGridRow& row);
    // The rows in the row buffer, and those that were there and that changes own now.
    std::vector<TGGridRow*> GetRowsBeside() const;
    // A change that owns a row goes: another one that needs the row keeps it, else it is deleted.
    void GiveUp(std::unique_ptr<TGGridRow> row);
    void RecordBack(std::unique_ptr<GridChange> change);
    // What is done in the step that is being recorded.
    TGActionKind GetKind() const { return kind; }

    // ---- UndoRecorder

    CWnd* GetControl() const override { return GetGrid(); }
    void EndEdit() override;
    std::shared_ptr<UndoView> KeepView() override;
    void BeginRevert() override;
    void EndRevert(const UndoView* view) override;
    void TellChanged() override;
    bool IsModified() const override;
    void MarkModified(bool modified) override;
    void Leave() override { Detach(); }
    void Settle() override;

protected:
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    void OnActionBegin(TGActionKind begun) override;
    void OnActionEnd(TGActionKind ended) override;
    void OnTextChanged(TGGridCell& cell, const CString& oldText) override;
    void OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> rows) override;
    void OnRowsRemoved(TGRemovedRows& rows) override;
    void OnRowMoved(long from, long to, long number) override;
    void OnRowsSorted(TGGridTreeRow* parent, std::span<const long> order) override;
    void OnRowsFolded(std::span<TGGridTreeRow* const> rows) override;
    void OnColInserted(TGGridCol& col) override;
    void OnColRemoving(TGGridCol& col) override;
    void OnColRemoved(long position, std::unique_ptr<TGGridCol>& col) override;
    void OnColMoved(long from, long to) override;
    void OnColResized(TGGridCol& col, long oldWidth) override;
    void OnRowDeleted(const TGGridRow* row) override;
    void OnDataMoved(TGGridRow& from, TGGridRow& to) override;
    void OnBufferDropped(TGRemovedRows& rows) override;
    bool IsCalledFirst() const override { return true; }

private:
    class View;

    bool IsRecording() const;
    // Notes a change by `note`, which gets no memory once: then nothing is known any more.
    template <class Note> void Noting(Note note);
    // The last change that was recorded, when it is one of this grid and this kind; else null.
    template <class Change> Change* Last(bool back) const;
    void Put(std::unique_ptr<GridChange> change);
    void FetchFromBuffer(std::unordered_set<const TGGridRow*>& wanted, LentRows& found);

    UndoHistory& history;
    // Of the action that is going on, or the last one.
    TGActionKind kind = TGActionKind::Type;
    bool inAction = false;
    // Between the two of a revert.
    bool reverting = false;
    bool told = false;
    const TGGridCell* revertedCell = nullptr;
    bool updating = false;
    bool leaving = false;
    std::shared_ptr<UndoView> viewBefore;
    // The column that is about to go, with its texts.
    std::unique_ptr<GridChange> goingCol;

    // The rows that have gone through the row buffer, which may be with another change than the one that
    // needs them.
    std::unordered_set<TGGridRow*> travellers;
    // Rows that are gone and were kept by their address: changes that need them are broken, of which nobody
    // has been told.
    std::unordered_set<const TGGridRow*> dead;
    // There was no memory to note one.
    bool lost = false;

    // The row and the column's number of the cell whose editor stayed open after a text of it was stored, and
    // the position of the history then.
    const TGGridRow* openRow = nullptr;
    unsigned openCol = 0;
    unsigned openPosition = 0;
};

template <class Note> void GridUndo::Noting(Note note)
{
    try
    {
        note();
    }
    catch (...)
    {
        history.End();
    }
}

template <class Change> Change* GridUndo::Last(bool back) const
{
    UndoChange* const last = history.GetLast(back);
    return last != nullptr && &last->GetRecorder() == this ? dynamic_cast<Change*>(last) : nullptr;
}

} // namespace QuorUiCtr
