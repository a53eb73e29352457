// TreeActions: tells one watcher what the user does with a drag tree, from begin to end.
#pragma once

#include "treedrag/CTreeCtrlDrag.h"
#include "treedrag/TreeWatch.h"

namespace QuorUiCtr
{

enum class TreeAction
{
    // A move by the mouse, or by SuccessfulDrag.
    Drop,
    // MoveItemUp, MoveItemDown.
    Move,
    NewFolder,
    Rename,
    Delete
};

// What a watcher of a tree is told: the messages of its window, and what these do not say, which of them
// belong together. Not for hosts. It may do anything but destroy the tree.
class TreeActionWatcher
{
public:
    TreeActionWatcher(const TreeActionWatcher&) = delete;
    TreeActionWatcher& operator=(const TreeActionWatcher&) = delete;

    // An action begins and ends. Actions inside of it, which the owner causes, belong to it. It need not
    // change anything.
    virtual void OnActionBegin(TreeAction action) = 0;
    virtual void OnActionEnd() = 0;
    // A label edit has ended, with a new text or without; not told of one that goes on because its text was
    // refused.
    virtual void OnLabelEditEnd() = 0;

    // A move begins with the next copy, and is over, also when it came to nothing. Moves nest.
    virtual void OnMoveBegin(HTREEITEM original) = 0;
    virtual void OnMoveEnd() = 0;
    // A subtree is about to be copied to under `parent`. What the tree inserts and sets until the end is the
    // copy.
    virtual void OnCopyBegin(HTREEITEM original, HTREEITEM parent) = 0;
    // One item of it is complete.
    virtual void OnCopied(HTREEITEM source, HTREEITEM copy) = 0;
    // The copy is complete. Null: it failed, and nothing of it is left.
    virtual void OnCopyEnd(HTREEITEM copy) = 0;
    // The next item that is deleted is the original: the copy takes its place.
    virtual void OnMoved(HTREEITEM original, HTREEITEM copy) = 0;

    // A key has been pressed in the tree or in its label edit. True: it is done.
    virtual bool OnKey(const MSG& message) = 0;
    // An item is being deleted, by whomever.
    virtual void OnItemGone(HTREEITEM item) = 0;
    // A message has arrived at the window. The watcher passes it on, and returns the result.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    // A notification of the platform's tree, before the tree or its owner sees it.
    virtual void OnNotify(const NMHDR& header) = 0;

protected:
    TreeActionWatcher() = default;
    ~TreeActionWatcher() = default;

    // A tree has one watcher; null ends the watch.
    static TreeActionWatcher* WatcherOf(const CTreeCtrlDrag& tree) { return tree.actionWatcher; }
    static void SetWatcher(CTreeCtrlDrag& tree, TreeActionWatcher* watcher) { tree.actionWatcher = watcher; }
    // Where the tree keeps its newest TreeWatch.
    static TreeWatch*& WatchesOf(CTreeCtrlDrag& tree) { return tree.newestWatch; }
    // Passes a message on to the tree itself, which may be gone afterwards.
    static LRESULT PassOn(CTreeCtrlDrag& tree, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return tree.CTreeCtrl::WindowProc(message, wParam, lParam);
    }
    // Sends a message to the owner.
    static void Tell(CTreeCtrlDrag& tree, UINT message, HTREEITEM item, HTREEITEM place)
    {
        tree.TellParent(message, item, place);
    }
};

// An action, for as long as it lives. The tree may go meanwhile, and the watcher leave.
class TreeActionScope
{
public:
    TreeActionScope(TreeWatch*& newestOfTree, TreeActionWatcher*& watcherOfTree, TreeAction action)
        : watch(newestOfTree), current(watcherOfTree), watcher(watcherOfTree)
    {
        if (watcher != nullptr)
            watcher->OnActionBegin(action);
    }
    ~TreeActionScope()
    {
        if (watcher != nullptr && !watch.IsTreeGone() && current == watcher)
            watcher->OnActionEnd();
    }
    TreeActionScope(const TreeActionScope&) = delete;
    TreeActionScope& operator=(const TreeActionScope&) = delete;

private:
    TreeWatch watch;
    TreeActionWatcher*& current;
    TreeActionWatcher* watcher;
};

} // namespace QuorUiCtr
