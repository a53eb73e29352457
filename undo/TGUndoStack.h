// TGUndoStack: one undo for all that users change in grids and trees.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

#include <cstddef>
#include <memory>

namespace QuorUiCtr
{

class CTreeCtrlDrag;
class TGGrid;
class TGTreeUndoHost;
class UndoHistory;

// Watches any number of controls, keeps what changes in them, and takes it back, in one order of steps over
// all of them.
//
//     QuorUiCtr::TGUndoStack undo;        // beside the controls of a dialog or a view
//     undo.Watch(parts);                  // when they are filled
//     undo.Watch(orders);
//
// What a user does in one go is one step with a name ("Delete 3 rows"): a command, an edit, a drag, what an
// extension wraps in a TGUserAction. A call of the program is a step of its own, called "Change", unless it
// belongs to one: the hooks that a command calls write within its step, a TGUndoTransaction groups calls, and
// a TGUndoPause leaves them out.
//
// With every step selection and scroll position come back. What is folded is not a step; it comes back with
// the step before.
//
// A step is taken back only when the control is still as the step has left it: a text that was written past
// the stack (through the reference that TGGridCell::GetText() gives, or within a TGUndoPause), a row that
// does not exist any more end the history there. OnHistoryEnded says so, and nothing has changed.
//
// While a step is undone or redone, hooks that ask (OnBefore..., OnModified) are not asked: the host agreed
// when the change was made, and OnUndoing is asked instead. The host is told of the change by OnCurChanged
// and OnDataChanged of each grid concerned, once each, so that its parent gets EN_CHANGE, and then by
// OnUndone. What hooks change then is not a step: it is taken back before the next step is.
//
// The stack is the command target of ID_EDIT_UNDO and ID_EDIT_REDO, see OnCmdMsg; Ctrl+Z, Ctrl+Y and
// Ctrl+Shift+Z in a watched control come here by themselves. An open editor is served first: its typing is
// undone, and made again, before a step is.
//
// The controls may go before the stack or after it; with a control goes what was recorded of it, and the rows
// and columns that were kept for it. All calls belong to the thread of the controls. Hooks may do anything
// but delete the stack.
class QUOR_EXT_CLASS TGUndoStack : public CCmdTarget
{
public:
    TGUndoStack();
    ~TGUndoStack() override;
    TGUndoStack(const TGUndoStack&) = delete;
    TGUndoStack& operator=(const TGUndoStack&) = delete;

    // ---- Controls

    // Records what changes in a grid from now on, with or without a window; false when it is watched already.
    bool Watch(TGGrid& grid);
    // Watches a drag tree, as it is now, until it or its window goes. `treeHost`, if any, is told what the
    // messages of the tree do not say; it must exist as long as the watch. False: the tree has no window, or
    // is watched already.
    bool Watch(CTreeCtrlDrag& tree, TGTreeUndoHost* treeHost = nullptr);
    // Forgets a control with all that was recorded of it; false when it is not watched.
    bool Unwatch(CWnd& control);
    bool IsWatching(const CWnd& control) const;

    // ---- Undoing

    // There is a step, and none is being recorded, undone or redone.
    bool CanUndo() const;
    bool CanRedo() const;
    // Commit an open editor and take back the last step, or make it again. False, changing nothing: there is
    // none, the step does not fit any more, OnUndoing or OnRedoing refuses, or this is called from within a
    // step.
    bool Undo();
    bool Redo();
    // How many steps there are, and their names: 0 is the one that Undo or Redo would take. Empty for others.
    long GetUndoNum() const;
    long GetRedoNum() const;
    CString GetUndoName(long i = 0) const;
    CString GetRedoName(long i = 0) const;
    // Forgets all steps. The controls stay as they are.
    void Clear();

    // ---- Limits

    // How many steps are kept, and how much memory they may take; 0: any. The oldest go first; but when what
    // is undone takes more by itself, its last ones. Default: 1000 steps and 256 MB. Rows that were deleted
    // count without their texts.
    void SetLimits(long steps, std::size_t bytes);
    // What all steps take.
    std::size_t GetBytes() const;

    // ---- The saved point

    // The controls are as they have been saved: clears the modified flag of each (TGGrid::SetModify,
    // TGTreeGrid::SetModified). Undoing and redoing back to here clears the flags again, going away sets
    // those of the controls concerned.
    void SetSaved();
    // The history stands where SetSaved was called, or where it began. A control that comes modified ends
    // that: nothing is saved until SetSaved is called again.
    bool IsSaved() const;

    // ---- For commands

    // Whether a key message is one of those above, which is done then.
    bool RunKey(const MSG& message);

protected:
    friend class TGUndoPause;
    friend class TGUndoTransaction;

    // A step is about to be taken back or made again; false refuses. Default: true.
    virtual bool OnUndoing(const CString& name);
    virtual bool OnRedoing(const CString& name);
    // It is done, and the flags are set. What is changed here is no step, as what hooks change. Default:
    // nothing.
    virtual void OnUndone(const CString& name);
    virtual void OnRedone(const CString& name);
    // Steps were dropped because a control has been changed past them. Default: nothing.
    virtual void OnHistoryEnded();
    // What can be undone and redone, or its names, may have changed. Default: nothing.
    virtual void OnHistoryChanged();

    // A host offers its commands by OnCmdMsg, as to any command target: `undo.OnCmdMsg(id, code, extra,
    // info)` in its own OnCmdMsg. Update-UI enables the entries and names the step: "Undo Delete 3 rows".
    afx_msg void OnEditUndo();
    afx_msg void OnEditRedo();
    afx_msg void OnUpdateEditUndo(CCmdUI* ui);
    afx_msg void OnUpdateEditRedo(CCmdUI* ui);
    DECLARE_MESSAGE_MAP()

private:
    class Listener;
    // The edit in a watched control that has the focus and typing to undo, or to make again; null without.
    HWND EditorWith(bool undo) const;

    std::unique_ptr<Listener> listener;
    std::unique_ptr<UndoHistory> history;
    // Where typing was undone, and the text since.
    HWND undoneEditor = nullptr;
    CString undoneText;
};

// Groups all changes of a scope to one step.
//
//     {
//         const QuorUiCtr::TGUndoTransaction step(undo, L"Import");
//         ...
//     }
class QUOR_EXT_CLASS TGUndoTransaction
{
public:
    // The name as users see it. Within another step, of a user or a transaction, it belongs to that one. The
    // stack must outlive the scope.
    TGUndoTransaction(TGUndoStack& groupedStack, const wchar_t* name);
    ~TGUndoTransaction();
    TGUndoTransaction(const TGUndoTransaction&) = delete;
    TGUndoTransaction& operator=(const TGUndoTransaction&) = delete;

private:
    TGUndoStack& stack;
};

// Leaves all changes of a scope out. Those that touch what steps hold end the history when it gets there.
class QUOR_EXT_CLASS TGUndoPause
{
public:
    // The stack must outlive the scope; pauses nest.
    explicit TGUndoPause(TGUndoStack& pausedStack);
    ~TGUndoPause();
    TGUndoPause(const TGUndoPause&) = delete;
    TGUndoPause& operator=(const TGUndoPause&) = delete;

private:
    TGUndoStack& stack;
};

} // namespace QuorUiCtr
