// CTreeCtrlDrag: a tree control whose items the user rearranges by dragging, with folders.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

namespace QuorUiCtr
{

class TreeActionWatcher;
class TreeWatch;
struct TreeMove;

// The messages that a CTreeCtrlDrag sends to its parent window, which waits for the owner's answer. Items are
// HTREEITEM. Compiled owners know them by these numbers, which therefore stay; messages that the owner
// defines for itself begin above WM_USER + 10.
//
// A place is one item: the sibling in front of it, or, for a place before all siblings, the folder that holds
// them (TVI_ROOT at root level). Once the item is there, its GetParentItem tells the two apart.
//
// A move has made its copy and is about to delete the original. wParam: the copy; lParam: its place. The
// owner that keeps handles takes the new ones from here: item data has been copied already. Moving down sends
// it again after the original is gone, with wParam: the handle that the original had; lParam: the copy. While
// the original is still there, the owner may move other items, but not these two, what is below the original,
// a folder around one of them, nor anything into the original: such a move does nothing.
constexpr UINT TDM_ITEM_INSERTED = WM_USER + 6;
// An item is about to be deleted by DeleteSelected; children are told before their parents. wParam: the item.
constexpr UINT TDM_ITEM_DELETED = WM_USER + 7;
// A label edit is about to begin. wParam: the platform's NMTVDISPINFO*, which names the item; lParam:
// LRESULT*, where TRUE refuses the edit. The answer to the message itself does not count.
constexpr UINT TDM_BEGIN_LABEL_EDIT = WM_USER + 8;
// The user gave an item a new label, which it has by now, without blanks around it. wParam: the item.
constexpr UINT TDM_ITEM_RENAMED = WM_USER + 9;
// An item was dropped and is about to be moved. wParam: the item; lParam: the place where it would go. With
// a result other than 0 the tree leaves the item where it is: the owner does not want the move, or has done
// something of its own instead. A drop that would change nothing asks nobody.
constexpr UINT TDM_DROP_QUERY = WM_USER + 10;

// A tree whose items can be rearranged with the mouse or by commands, which a dialog usually binds to
// buttons.
//
// An item with the image index 0 is a folder, any other an ordinary item. A drag shows an insertion line
// before or after an item, scrolls the tree when the mouse leaves it, and opens or closes the folder on which
// the mouse rests for a second; the right mouse button cancels it, and so does losing the mouse capture. A
// move copies the item with everything below it (texts, images, states, check marks, item data, expansion) to
// the new place and deletes the original, so handles of moved items change; TDM_ITEM_INSERTED tells. An item
// that is dropped into its own subtree stays where it is.
//
// The tree sees its drag and label-edit notifications itself; the parent learns of them by the TDM_ messages
// above, which are sent. The owner may do anything while it handles one, also delete items, or destroy the
// tree: the operation then ends early and leaves what is there intact. Destroying the window from inside
// TDM_BEGIN_LABEL_EDIT or TDM_ITEM_RENAMED is the exception: the platform's control, which is amid its
// notification, does not allow it.
//
// Item handles are given and returned as they are: null means none. Points and rectangles are client pixels.
// Commands need the window; with an empty tree they do nothing but CreateNewFolder.
//
// A host binds it to the tree of a dialog template (DDX_Control, SubclassDlgItem) or creates it like any
// tree, gives it an image list whose image 0 is a folder, fills it with InsertItem, and connects its buttons
// to the commands. The style TVS_EDITLABELS lets the user rename items; TVS_DISABLEDRAGDROP switches drags
// off. What a drag and a move are made of is protected, not private, so that a derived tree can carry out
// moves of its own with it: set dragItem, dropTarget and dropAbove, then call SuccessfulDrag. The fields keep
// their order, which derived classes were compiled with.
class QUOR_EXT_CLASS CTreeCtrlDrag : public CTreeCtrl
{
public:
    // Without a window, not dragging, equal names allowed.
    CTreeCtrlDrag();
    // Ends what is going on and destroys the window.
    ~CTreeCtrlDrag() override;

    // Dragging.

    // Whether a drag with the mouse is in progress; the moves of the commands do not count.
    BOOL IsDragging() const { return isDragging; }
    // Ends the drag from outside. `success` carries the drop out when there is a drop target, as letting the
    // mouse button go does; FALSE cancels and shows the dragged item. For owners that have a key of their own
    // for it; they ask IsDragging first, for without a drag it works on what the last one left behind.
    void CompleteDrag(BOOL success);
    // The item data of the item that is, or was last, dragged or moved; 0 when there is none any more.
    DWORD_PTR GetDragItemData();

    // Commands on the selected item. An open label edit is ended first and its text kept; when that is
    // refused, the command does nothing. Moves cancel a drag.

    // Inserts a folder named "New Folder" as first child of the selected folder, else after the selected
    // item, or first in the tree when nothing is selected; selects it and begins to edit its label. Where
    // names must be unique and that one is not, a number from 1 is appended. Returns the folder.
    HTREEITEM CreateNewFolder();
    // Deletes the selected item with everything below it, after a question if there is something. Sends
    // TDM_ITEM_DELETED for each item, children first. Items that the owner deletes meanwhile are left out.
    void DeleteSelected();
    // Begins to edit the label; the tree needs the style TVS_EDITLABELS and the focus.
    void RenameSelected();
    // Moves the item one place up: to the end of the open folder or into the empty folder before it, before
    // its previous sibling, or out of its folder. Sends TDM_ITEM_INSERTED. Refused with a message when the
    // name must be unique and is not in the other folder.
    void MoveItemUp();
    // Moves the item one place down: first into the open folder or into the empty folder after it, after its
    // next sibling, or out of its folder. Sends TDM_ITEM_INSERTED twice. Refused like MoveItemUp.
    void MoveItemDown();

    // Whether MoveItemUp can move the selected item: it is not the first of the tree. With nothing selected,
    // selects the first item and returns 0.
    BOOL ShouldUpBtnBeEnabled();
    // Whether MoveItemDown can move the selected item: it is not the last root item. With nothing selected,
    // selects the first item and returns whether there are more items than one.
    BOOL ShouldDownBtnBeEnabled();
    // Whether the selected item, or the first one when nothing is selected, is a folder; 0 for an empty tree.
    BOOL IsSelectedItemAFolder();

    // Names.

    // Whether siblings must have different names, apart from case. Binds label edits, new folders and
    // MoveItemUp and MoveItemDown; drags and the owner's own insertions are not checked. Off at first.
    void SetNoDuplicates(BOOL unique) { noDuplicates = unique; }

    // Walking the whole tree, whether expanded or not.

    // The platform's walk, by TVGN_ codes, stays in reach beside the one below.
    using CTreeCtrl::GetNextItem;
    // The next item: the first child, else the next sibling, else that of the nearest ancestor that has one.
    // Null after the last item and for null.
    HTREEITEM GetNextItem(HTREEITEM item);
    // The item before: the opposite of GetNextItem.
    HTREEITEM GetPrevItem(HTREEITEM item);

protected:
    // The item and the side of it (`above`: before it) where a drop at `point` goes, when `item` is under it:
    // the upper half of a row means before the item; the lower half before the first child of an open folder,
    // and after any other item.
    HTREEITEM GetDragTarget(HTREEITEM item, POINT point, BOOL& above);
    // Draws the insertion line at the top or bottom edge of `rect`, as dropAbove says, up to the right client
    // edge.
    void DrawDropTargetLine(CRect rect, CDC* context);
    // Gives back timers, capture, cursor and drag image and removes the drop highlight. Keeps dragItem,
    // dropTarget and dropAbove.
    void TidyUpEndOfDrag();
    // Moves dragItem to dropTarget, unless it is there already or the parent answers TDM_DROP_QUERY with
    // non-zero.
    void SuccessfulDrag();

    // Copies dragItem with everything below it to dropTarget, under `parent`; null means the parent of
    // dropTarget. Sends TDM_ITEM_INSERTED. Returns the copy; null when there is nothing to copy, when the
    // place lies in the subtree of dragItem itself, when the insertion fails, and when the parent has deleted
    // the copy.
    HTREEITEM InsertItemAndSubtree(HTREEITEM parent);
    // Appends copies of what is below `source` to `destination`, which lies outside of it. False when an
    // insertion fails: then the copy is incomplete.
    bool CopySubtree(HTREEITEM destination, HTREEITEM source);
    // Copies images, states, item data, text, check mark and expansion.
    void CopyItem(HTREEITEM destination, HTREEITEM source);
    // Walks the subtrees of both items in step. Sends nothing.
    void ReportDragBackToParent(HTREEITEM source, HTREEITEM destination);

    // Whether the item is a folder without children.
    BOOL IsItemEmptyFolder(HTREEITEM item);
    // How far labels of children stand to the right of their parent's, as seen at the first expanded item; 19
    // when there is none.
    int GetParentToChildIndent();
    // Stores the first visible item and the last expanded one into firstVisibleItem and lastVisibleItem.
    void SaveFirstAndLastVisibleItems();
    // Scrolls back to where the stored items show, unless `oldItem` is one of them; shows `extra` when it is
    // not null; switches redrawing on and shows `newItem`.
    void ResetVisibleItems(HTREEITEM newItem, HTREEITEM oldItem, HTREEITEM extra);

    // Where an item goes when it moves one place down, and whether before (`above`) or after it. Null at the
    // end.
    HTREEITEM GetNextNonChildItem(HTREEITEM item, BOOL& above);
    // Where an item goes when it moves one place up, on which side of it, and under which parent. Null at the
    // start.
    HTREEITEM GetPrevVisibleItemToMoveTo(HTREEITEM item, BOOL& above, HTREEITEM& newParent);
    // Whether no child of `parent` (null: no root item) but `exclude` has that name, apart from case.
    BOOL IsUniqueNameOnThisLevel(const CString& name, HTREEITEM exclude, HTREEITEM parent);

    // While a label is edited, Enter, Esc and Ctrl+X go to the edit control; F2 begins to edit.
    BOOL PreTranslateMessage(MSG* message) override;
    // Lets a watcher see what happens to the window; goes on as usual without one.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Notes deleted items, then goes on as usual.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    DECLARE_MESSAGE_MAP()
    // Selects the item and begins the drag, if the platform can make an image of the item.
    afx_msg void OnBeginDrag(NMHDR* header, LRESULT* result);
    // Asks the owner with TDM_BEGIN_LABEL_EDIT.
    afx_msg void OnBeginLabelEdit(NMHDR* header, LRESULT* result);
    // Stores the text without blanks around it and sends TDM_ITEM_RENAMED. An empty text keeps the label; one
    // that must be unique and is not is refused with a message, and the edit begins anew.
    afx_msg void OnEndLabelEdit(NMHDR* header, LRESULT* result);
    // The two timers of a drag; all others are the platform's.
    afx_msg void OnTimer(UINT_PTR id);
    // Moves the drag image and the drop target; the hover timer starts again.
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    // Scrolls as the platform does, without smearing the drag image.
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    // Ends a drag with the drop.
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    // Leaves the background to OnPaint, which paints it in its buffer.
    afx_msg BOOL OnEraseBkgnd(CDC* context);
    // Copies the platform's picture, and during a drag the insertion line, to the screen in one go.
    afx_msg void OnPaint();
    // Cancels a drag; selects the item under the mouse, or nothing beside the items.
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    // Another window took the mouse: cancels the drag.
    afx_msg void OnCaptureChanged(CWnd* newOwner);
    // Gives back what a drag holds; no item is known from then on.
    afx_msg void OnDestroy();
    // Edits a refused label again, now that its first edit is closed.
    afx_msg LRESULT OnReopenLabelEdit(WPARAM wParam, LPARAM lParam);

    // The timer that scrolls during a drag, every 25 milliseconds; 0 while it is off.
    UINT scrollTimerId = 0;
    // The timer that opens or closes a folder when the mouse rests for a second; 0 while it is off.
    UINT hoverTimerId = 0;
    // Where the mouse was when that timer was started.
    CPoint hoverPoint;
    // From the first movement with the button held to the drop or its cancelling.
    BOOL isDragging = FALSE;
    // The picture under the mouse, owned; null without a drag.
    CImageList* dragImage = nullptr;
    // What is dragged or moved, and still known afterwards; null once it is deleted.
    HTREEITEM dragItem = nullptr;
    // The side of dropTarget: TRUE puts the item in front of it. FALSE puts it behind, unless that is a
    // folder with nothing in it, which then receives the item.
    BOOL dropAbove = FALSE;
    // The item beside which the drop goes; null as long as the mouse has touched none.
    HTREEITEM dropTarget = nullptr;
    // The tree lacks TVS_EDITLABELS and borrows it while a new folder gets its name.
    BOOL labelEditTemporary = FALSE;
    // As set by SetNoDuplicates.
    BOOL noDuplicates = FALSE;
    // What SaveFirstAndLastVisibleItems found; null once deleted, except for an item that was moved.
    HTREEITEM firstVisibleItem = nullptr;
    HTREEITEM lastVisibleItem = nullptr;

private:
    friend class TreeActionWatcher;

    // Sends a message to the parent window; 0 without one.
    LRESULT TellParent(UINT message, HTREEITEM item, HTREEITEM place = nullptr);

    bool IsFolder(HTREEITEM item) const;
    // The item has children and is expanded.
    bool IsOpen(HTREEITEM item) const;
    bool IsSelfOrBelow(HTREEITEM item, HTREEITEM ancestor) const;
    // The parent item, TVI_ROOT for root items and for null.
    HTREEITEM ParentOrRoot(HTREEITEM item) const;
    // The first item of the subtree when children come before their parents.
    HTREEITEM DeepestFirstChild(HTREEITEM item) const;
    // Null without children.
    HTREEITEM LastChild(HTREEITEM item) const;
    void ForgetItem(HTREEITEM item);

    void StartDragging(CPoint dragPoint);
    void CancelDrag();
    void TrackDrag(CPoint point);
    void StopTimer(UINT& id);
    void ToggleHoveredItem();
    void ScrollDuringDrag();
    void ScrollVertically(CPoint point);
    void ScrollHorizontally(CPoint point);
    HTREEITEM ItemBelowView() const;
    void ShowDropTarget(HTREEITEM item, CPoint point);
    // A place for a drop: an item, and whether the drop goes before it.
    struct DropSpot
    {
        HTREEITEM target;
        BOOL above;
    };
    // GetDragTarget as one value.
    DropSpot DropSpotAt(HTREEITEM item, CPoint point);
    void SetDropTarget(const DropSpot& spot);
    // Makes what is at a point of `item` the drop target and shows it.
    void AimAt(HTREEITEM item, CPoint point);
    void Repaint();

    bool IsDropWithoutEffect();
    bool IsDropLeftToUs();
    HTREEITEM DropParent();
    // The item to insert after for dropTarget and dropAbove, TVI_FIRST for the start of the parent's
    // children.
    HTREEITEM InsertAfterUnder(HTREEITEM parent) const;
    HTREEITEM InsertPlaceholder(const wchar_t* text, HTREEITEM parent, HTREEITEM after);
    HTREEITEM ReplaceDragItem(HTREEITEM newParent);
    // Whether moving the item to under `newParent` would break a move that is amid its report to the owner.
    bool IsHeldByMove(HTREEITEM item, HTREEITEM newParent) const;
    bool BeginCommandMove();
    void CarryOutCommandMove(HTREEITEM newParent, bool tellAgain);
    void MoveByCommand(HTREEITEM newParent, bool tellAgain);
    HTREEITEM CopyDragItem(HTREEITEM parent, HTREEITEM after);
    bool IsMoveAllowed(HTREEITEM newParent);
    void EndMove();

    void PaintTree(CDC& context, const CRect& client);
    void PaintDragLabels(CDC& context, const CRect& client);
    void PaintDragLabel(CDC& context, HTREEITEM item, int clientRight);

    HTREEITEM InsertFolder();
    void OpenLabelEdit(HTREEITEM item);
    bool FinishLabelEdit();
    void AcceptLabel(HTREEITEM item, const CString& text);
    void RefuseLabel(HTREEITEM item);
    bool IsEndedAlready();
    void SwitchTemporaryEditOff();
    void ReportDeletion(HTREEITEM item);

    // Posted to itself: a refused label is edited again.
    static const UINT ReopenLabelEditMessage;

    bool isEndingDrag = false;
    HWND endedEdit = nullptr;         // the label edit whose end was handled last
    HTREEITEM itemToReopen = nullptr; // its label was refused and is to be edited again
    TreeWatch* newestWatch = nullptr;
    TreeMove* innermostMove = nullptr;
    TreeActionWatcher* actionWatcher = nullptr;
};

} // namespace QuorUiCtr
