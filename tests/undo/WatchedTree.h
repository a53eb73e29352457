// A drag tree that an undo stack watches: everything that there is to it as text, and what its host is told.
#pragma once

#include "tests/treedrag_input/DragInput.h"

#include "undo/TGTreeUndoHost.h"
#include "undo/TGUndoStack.h"

#include <map>
#include <string>
#include <vector>

namespace quor::test
{

// Says what a stack tells its host.
class NotedStack : public QuorUiCtr::TGUndoStack
{
public:
    bool refuses = false;
    int ended = 0;
    std::vector<std::wstring> done;

protected:
    bool OnUndoing(const CString&) override { return !refuses; }
    bool OnRedoing(const CString&) override { return !refuses; }
    void OnUndone(const CString& name) override { done.push_back(L"undone " + std::wstring(name)); }
    void OnRedone(const CString& name) override { done.push_back(L"redone " + std::wstring(name)); }
    void OnHistoryEnded() override { ++ended; }
};

class NotedTreeHost : public QuorUiCtr::TGTreeUndoHost
{
public:
    void OnItemRemade(QuorUiCtr::CTreeCtrlDrag&, HTREEITEM before, HTREEITEM now) override
    {
        remade.emplace_back(before, now);
    }
    void OnItemChanged(QuorUiCtr::CTreeCtrlDrag&, HTREEITEM item) override { changed.push_back(item); }
    void OnItemsSorted(QuorUiCtr::CTreeCtrlDrag&, HTREEITEM parent) override { sorted.push_back(parent); }
    void OnItemDataGone(QuorUiCtr::CTreeCtrlDrag&, DWORD_PTR data) override { gone.push_back(data); }

    std::vector<std::pair<HTREEITEM, HTREEITEM>> remade;
    std::vector<HTREEITEM> changed;
    std::vector<HTREEITEM> sorted;
    std::vector<DWORD_PTR> gone;
};

// Whether a description has what only is shown: expansion, selection, the first item in view.
enum class Shown
{
    Included,
    LeftOut
};

// All of a tree but its handles, a line for each item.
std::string DescribeTree(const CTreeCtrl& tree, Shown shown = Shown::Included);

class WatchedTreeTest : public DragInputTest
{
protected:
    explicit WatchedTreeTest(CSize size = CSize(260, 300));
    ~WatchedTreeTest() override;

    // Fills the tree, gives every item data and looks of its own, and begins the watch.
    void Begin(const std::string& outline);
    std::string All(Shown shown = Shown::Included) const { return DescribeTree(*tree, shown); }
    void Select(const std::string& name) { tree->SelectItem(At(name)); }
    // Types into the open label edit and ends it.
    void EndLabel(const wchar_t* text);
    void Rename(const std::string& name, const wchar_t* text);
    // Says, as a program may, whether an item has a button: 1 or 0.
    void SetButton(HTREEITEM item, int children);
    void Undo() { EXPECT_TRUE(stack.Undo()); }
    void Redo() { EXPECT_TRUE(stack.Redo()); }
    // Takes the last step back and makes it again; the states before it and after it come back exactly.
    void ExpectRoundTrip(const std::string& before);
    std::wstring UndoName() const { return std::wstring(stack.GetUndoName()); }

    NotedTreeHost host;
    NotedStack stack;
};

} // namespace quor::test
