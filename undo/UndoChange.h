// UndoChange and UndoRecorder: what the undo stack knows of changes and of the controls that they are made
// to.
#pragma once

#include "module/QuorTexts.h"

#include <afxwin.h>

#include <cstddef>
#include <memory>

namespace QuorUiCtr
{

class UndoRecorder;

// What a step is called.
struct UndoName
{
    // For one of a kind, and for several, where "%d" stands for their number.
    QuorText one = QuorText::UndoChange;
    QuorText many = QuorText::UndoChange;
    long number = 1;
    // A host's own words; they count when they are not empty.
    CString words = {};

    // In the language that is chosen now.
    CString Get() const;
};

// What a control shows beside its data: its selection, its scroll position. Kept before and after a step.
class UndoView
{
public:
    virtual ~UndoView() = default;
};

// One change of one control, which can be taken back. Changes are taken back one after the other, from the
// last to the first, so that a change finds the control as it has left it.
//
// A change that is taken back goes; what takes it back in turn is a new change, which its recorder hands to
// UndoHistory::RecordBack. So undoing and redoing are the same, and what a change owns (rows that were
// deleted) has one owner at any time: the change that would bring it back.
class UndoChange
{
public:
    explicit UndoChange(UndoRecorder& changedBy) : recorder(changedBy) {}
    virtual ~UndoChange() = default;
    UndoChange(const UndoChange&) = delete;
    UndoChange& operator=(const UndoChange&) = delete;

    UndoRecorder& GetRecorder() const { return recorder; }
    // The control stands as this change has left it, as far as it touches it: it can be taken back.
    virtual bool Fits() const = 0;
    // Takes the change back, which fits, and has it recorded in turn. False: it could not, and what it has
    // done nevertheless has been recorded.
    virtual bool Revert() = 0;
    // The memory that the change takes, objects that it owns included.
    virtual std::size_t GetBytes() const = 0;
    // Takes over what `next`, the change that follows it, has recorded. False: it stays a change of its own.
    virtual bool Merge(UndoChange& next);
    // Only how the control looks, not its data: no step of its own, but taken back with the step before.
    virtual bool IsView() const { return false; }
    // For how many of its kind it counts in the name of the step.
    virtual long GetNumber() const { return 0; }
    // Something that it needs is gone for ever.
    bool IsBroken() const { return broken; }
    void Break() { broken = true; }

private:
    UndoRecorder& recorder;
    bool broken = false;
};

// Records the changes of one control, and is asked around a step that is taken back. It has its control for
// as long as the history has it; only around a step, whose hooks may make it leave, it may have lost it.
class UndoRecorder
{
public:
    virtual ~UndoRecorder() = default;

    virtual CWnd* GetControl() const = 0;
    // An open editor is committed; runs hooks, and may record.
    virtual void EndEdit() = 0;
    virtual std::shared_ptr<UndoView> KeepView() = 0;
    // Around the changes of a step that are taken back: one repaint. The end shows a view, null: what there
    // is; runs hooks.
    virtual void BeginRevert() = 0;
    virtual void EndRevert(const UndoView* view) = 0;
    // Tells the host of changed data; runs hooks.
    virtual void TellChanged() = 0;
    // The control's own flag.
    virtual bool IsModified() const = 0;
    virtual void MarkModified(bool modified) = 0;
    // The stack does not watch the control any more.
    virtual void Leave() = 0;
    // Somebody asks for changes: those that cannot be taken back any more are broken by now.
    virtual void Settle() {}
};

} // namespace QuorUiCtr
