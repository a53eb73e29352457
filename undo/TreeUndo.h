// TreeUndo: records the changes of a drag tree for an undo stack.
#pragma once

#include "treedrag/TreeActions.h"
#include "undo/TreeChanges.h"
#include "undo/TreeIds.h"
#include "undo/UndoChange.h"

#include <memory>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

class TGTreeUndoHost;
class UndoHistory;

// Sees every message of the tree's window before and after the tree does, so that it knows what changes, by
// whomever; the tree itself says which changes belong together. A change that happens inside of another one
// in a way that leaves their order unclear ends the history.
class TreeUndo : public UndoRecorder, public TreeActionWatcher, public std::enable_shared_from_this<TreeUndo>
{
public:
    // Null when the tree has no window, or has a watcher already.
    static std::shared_ptr<TreeUndo> Watch(UndoHistory& history, CTreeCtrlDrag& tree, TGTreeUndoHost* host);
    ~TreeUndo() override;

    // ---- For the changes

    UndoHistory& History() const { return history; }
    TreeIds& Ids() { return ids; }
    // Null when the watch has ended.
    CTreeCtrlDrag* Tree() const { return tree; }
    // The tree of the watch, also when it has ended.
    CTreeCtrlDrag& Watched() const { return watched; }
    TGTreeUndoHost* Host() const { return host; }
    bool HasCheckBoxes() const;
    // Sends the tree a message that is not to be recorded; 0 without a tree.
    LRESULT AskTree(UINT message, WPARAM wParam, LPARAM lParam);
    HTREEITEM Next(HTREEITEM item, UINT code);
    // TVI_ROOT for root items.
    HTREEITEM ParentOf(HTREEITEM item);
    std::vector<HTREEITEM> ChildrenOf(HTREEITEM parent);
    // Where an item stands; `skipped` counts as not there.
    TreePlace PlaceOf(HTREEITEM item, HTREEITEM skipped = nullptr);
    // The handles of a place; false when there is no such place any more.
    bool FindPlace(const TreePlace& place, HTREEITEM& parent, HTREEITEM& after);
    TreeParentLooks LooksOf(TreeId parent);
    // Brings back what the platform made of a parent as its first child came or its last one went.
    void RestoreLooks(TreeId parent, const TreeParentLooks& looks);
    void SetOpen(HTREEITEM item, bool isOpen);
    bool IsOpen(HTREEITEM item);
    // Deletes an item of which everything needed is kept. False when others interfered.
    bool Delete(HTREEITEM item);
    // Something unclear happened since the last call.
    bool TakeInterference() { return std::exchange(interfered, false); }

    // Tells the owner that the items, and what is below them, are about to go. Runs code of the owner; false:
    // it has changed what matters.
    bool TellGoing(const std::vector<HTREEITEM>& tops);
    // What is told when the step is done.
    enum class Word
    {
        Remade,
        Inserted,
        Renamed,
        Changed,
        Sorted
    };
    void TellLater(Word word, TreeId id, HTREEITEM before = nullptr) { words.push_back({word, id, before}); }

    // The parts of the item being read for which the owner was asked.
    UINT askedParts = 0;
    // The insertion of a move that is still going on.
    void ForgetInsertion(const TreePlacing* insertion);

    // ---- As a recorder

    CWnd* GetControl() const override { return tree; }
    void EndEdit() override;
    std::shared_ptr<UndoView> KeepView() override;
    void BeginRevert() override;
    void EndRevert(const UndoView* view) override;
    void TellChanged() override;
    bool IsModified() const override { return false; }
    void MarkModified(bool) override {}
    void Leave() override;

private:
    // Parts of an item that its copy does not have.
    struct Lost
    {
        HTREEITEM copy;
        UINT parts;
        std::unique_ptr<TreeItemReader> original;
    };
    // A move that is going on.
    struct Move
    {
        HTREEITEM original;
        HTREEITEM copy = nullptr;
        // The insertion of the copy, as long as it is kept, and how much was recorded with it.
        TreePlacing* insertion = nullptr;
        unsigned recordedThen = 0;
        // The items of the original that have numbers, with their copies.
        std::vector<std::pair<HTREEITEM, HTREEITEM>> copied = {};
        std::vector<Lost> lost = {};
    };
    struct Told
    {
        Word word;
        TreeId id;
        HTREEITEM before;
    };

    TreeUndo(UndoHistory& keptIn, CTreeCtrlDrag& watchedTree, TGTreeUndoHost* toldHost);

    // ---- As a watcher

    void OnActionBegin(TreeAction action) override;
    void OnActionEnd() override;
    void OnLabelEditEnd() override;
    void OnMoveBegin(HTREEITEM original) override;
    void OnMoveEnd() override;
    void OnCopyBegin(HTREEITEM original, HTREEITEM parent) override;
    void OnCopied(HTREEITEM source, HTREEITEM copy) override;
    void OnCopyEnd(HTREEITEM copy) override;
    void OnMoved(HTREEITEM original, HTREEITEM copy) override;
    bool OnKey(const MSG& message) override;
    void OnItemGone(HTREEITEM item) override;
    void OnNotify(const NMHDR& header) override;

    // ---- Messages

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnOthersMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // On to the tree; as one of those that insert, delete or sort; as one that is not recorded.
    LRESULT Pass(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT PassStructural(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT PassOwn(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnInsert(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnDelete(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT RemoveAll(const std::vector<HTREEITEM>& items, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnSet(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnSort(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnExpand(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnShow(HTREEITEM item, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnInput(UINT message, WPARAM wParam, LPARAM lParam);
    HTREEITEM CheckedBy(UINT message, WPARAM wParam, LPARAM lParam);

    // Records a change, or, where changes are left out, only that the aspects have changed.
    bool IsRecording() const;
    void Record(std::unique_ptr<TreeChange> change);
    void RecordChange(HTREEITEM item, UINT parts, const TreeItemReader& before);
    void RecordExpansion(HTREEITEM item, bool wasOpen);
    // Those of the parts that are not the same.
    static UINT PartsUnlike(const TreeItemReader& before, const TreeItemReader& after, UINT parts);
    bool IsShared(HTREEITEM item);
    bool IsInside(HTREEITEM item, HTREEITEM ancestor);
    void EndUnclear();
    void TellWords();
    void Tell(const Told& told);

    UndoHistory& history;
    CTreeCtrlDrag& watched;
    CTreeCtrlDrag* tree;
    HWND window;
    TGTreeUndoHost* host;
    TreeIds ids;
    std::vector<Told> words;

    // The messages that arrive are the watch's own, or those of a copy.
    bool own = false;
    // How many messages are being carried out that insert, delete or sort.
    int structural = 0;
    bool interfered = false;
    // The platform tells of expansions that are recorded already.
    bool expanding = false;
    // What becomes of the numbers of items that are deleted now.
    enum class Going
    {
        Unexpected,
        Kept,
        LeftOut
    };
    Going going = Going::Unexpected;

    std::vector<Move> moves;
    // The place where a copy is being made.
    TreeId copyParent = RootTreeId;
    TreeParentLooks copyLooks;
    std::vector<std::pair<HTREEITEM, HTREEITEM>> copied;
    std::vector<Lost> lost;
    // The original of a move, which the copy replaces.
    HTREEITEM replaced = nullptr;
    // Changes of data recorded so far.
    unsigned recorded = 0;

    std::vector<TreeAction> actions;
    // The position behind a new folder that is being named; 0: none is.
    unsigned naming = 0;
    TreeId named = NoTreeId;
};

} // namespace QuorUiCtr
