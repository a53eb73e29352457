// TGTreeUndoHost: what a TGUndoStack tells the host of a drag tree beyond the messages of the tree.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

namespace QuorUiCtr
{

class CTreeCtrlDrag;

// A stack that watches a drag tree keeps what is deleted there, the item data with it. A host whose item data
// stands for objects of its own therefore does not delete them when an item goes (TVN_DELETEITEM,
// TDM_ITEM_DELETED), but when the stack lets go of them; the items that are in the tree at the end are the
// host's affair as ever.
//
// While a step is undone or redone, the owner of the tree gets the messages that it gets of a user's actions:
//
// TDM_ITEM_DELETED for every item that is about to go, children before their parents.
// TDM_ITEM_INSERTED, when the step is done, for every item that is there again, parents before their
// children, and for the top of a subtree that has moved: wParam the item, lParam its place. There is no
// original beside it any more, and a move down is told once.
// TDM_ITEM_RENAMED, when the step is done, for an item whose text is another.
//
// The first comes amid the step, which ends, and the history with it, when the owner changes there what the
// step is about; changes in all others are taken back before the next step is, as everywhere.
//
// TDM_DROP_QUERY is not asked again; TGUndoStack::OnUndoing is. Everything else is told here, from within
// TGUndoStack::Undo and Redo unless said otherwise. A host may do there what it may do in the messages.
class QUOR_EXT_CLASS TGTreeUndoHost
{
public:
    virtual ~TGTreeUndoHost();

    // An item that was deleted, or has moved, is there again, with a new handle. `before`, its old one, is
    // nobody's, or that of another item by now, or the same again. Told of every item of a subtree, before
    // TDM_ITEM_INSERTED. Default: nothing.
    virtual void OnItemRemade(CTreeCtrlDrag& tree, HTREEITEM before, HTREEITEM now);
    // Images, states, check mark or item data of an item are others. Default: nothing.
    virtual void OnItemChanged(CTreeCtrlDrag& tree, HTREEITEM item);
    // The children of an item, or the root items (TVI_ROOT), have another order. Default: nothing.
    virtual void OnItemsSorted(CTreeCtrlDrag& tree, HTREEITEM parent);
    // The stack has let go of an item that is not in the tree: no step brings it, and its item data, back.
    // Not told of item data 0, nor of items of which a move has made a copy. At any time that drops steps,
    // also when the stack, the watch or the window of the tree ends; steps may not be taken back from within.
    // Default: nothing.
    virtual void OnItemDataGone(CTreeCtrlDrag& tree, DWORD_PTR data);
};

} // namespace QuorUiCtr
