// TGClipboardReport: what a command of TGClipboard has done, and what it has left, with reasons.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

#include <span>
#include <vector>

namespace QuorUiCtr
{

// What the user wanted.
enum class TGClipboardAction
{
    Copy,
    Cut,
    Paste,
    Fill,
    Empty
};

// Why a command has stopped; what it had done by then is in the counts.
enum class TGClipboardRefusal
{
    // It has not.
    None,
    // No cells are selected, or the extension has no grid.
    NothingSelected,
    // Ranges that do not form one table are copied, or take no multiple of what is pasted.
    DifferentShapes,
    // The clipboard belongs to another program all the time that is waited.
    ClipboardBusy,
    // The clipboard has nothing of the formats that can be read, or only an empty table.
    NothingToPaste,
    // More cells than SetMaxCells allows, or more than can be counted.
    TooLarge,
    // Memory ran out.
    NoMemory,
    // A hook refuses the command as a whole, or the rows that are to go.
    NotAllowed,
    // The first cells of a series are no numbers.
    NoNumbers,
    // Another command of the same extension has not ended yet: a hook has called this one.
    Running
};

// Why a cell was left as it is.
enum class TGCellLeft
{
    // The cell, its row, its column or the grid is read-only, or its row may not be deleted.
    ReadOnly,
    // An extension or OnBeforeEdit does not let it be edited.
    NotEditable,
    // OnModified rejects the text.
    Rejected,
    // There is no such column.
    BeyondLastCol,
    // There is no such row, and none may come in.
    BeyondLastRow,
    // OnBeforeInsertRow or OnBeforeInsertChild refuses the row that it would stand in.
    RowRefused,
    // Its row or column went, or the command ended, while hooks were asked.
    Gone
};

// The answer of every command: counts of cells, the first places that were left, and a text for the user.
class QUOR_EXT_CLASS TGClipboardReport
{
public:
    // A cell that was left, and why.
    struct Place
    {
        // Zero-based indices as they were meant; beyond the edge they are those that there are not. -1: a row
        // that is not shown.
        long row;
        long col;
        TGCellLeft reason;
    };
    // How many places are kept; the counts go on.
    static constexpr std::size_t MaxPlaces = 1000;

    // Empty, of a command that has just begun.
    explicit TGClipboardReport(TGClipboardAction reported) : action(reported) {}

    // What the user wanted.
    TGClipboardAction GetAction() const { return action; }
    // None when the command came to its end.
    TGClipboardRefusal GetRefusal() const { return refusal; }
    // All was done, and no cell was left.
    bool IsComplete() const { return refusal == TGClipboardRefusal::None && GetLeft() == 0; }

    // Cells that were copied, emptied, pasted or filled.
    long GetDone() const { return done; }
    // Rows that came in or were taken out, with their offspring.
    long GetRowsInserted() const { return rowsInserted; }
    long GetRowsRemoved() const { return rowsRemoved; }
    // Cells that were left: for one reason, and for any.
    long GetLeft(TGCellLeft reason) const { return left[static_cast<std::size_t>(reason)]; }
    long GetLeft() const;
    // The same in the words of a user: cells that may not be edited; texts and rows that were refused; cells
    // beyond the last row or column.
    long GetSkipped() const { return GetLeft(TGCellLeft::ReadOnly) + GetLeft(TGCellLeft::NotEditable); }
    long GetRejected() const { return GetLeft(TGCellLeft::Rejected) + GetLeft(TGCellLeft::RowRefused); }
    long GetBeyond() const { return GetLeft(TGCellLeft::BeyondLastCol) + GetLeft(TGCellLeft::BeyondLastRow); }
    // The first cells that were left, in the order in which they were come across; at most MaxPlaces.
    std::span<const Place> GetPlaces() const { return places; }

    // Lines for the user, in the language of QuorTexts: what was done, why it has stopped, and how many cells
    // were left for each reason.
    CString GetText() const;

private:
    friend class TGClipboard;

    void Refuse(TGClipboardRefusal reason) { refusal = reason; }
    // Cells from a place on in a row, which count together.
    void Leave(TGCellLeft reason, long row, long col, long number = 1);

    TGClipboardAction action;
    TGClipboardRefusal refusal = TGClipboardRefusal::None;
    long done = 0;
    long rowsInserted = 0;
    long rowsRemoved = 0;
    static constexpr std::size_t Reasons = static_cast<std::size_t>(TGCellLeft::Gone) + 1;
    long left[Reasons] = {};
    std::vector<Place> places;
};

} // namespace QuorUiCtr
