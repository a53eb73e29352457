// The tree grid and its peer, the platform's tree view, filled with the same groups and items.
#pragma once

#include "Subjects.h"

#include "grid/TGTreeGrid.h"

#include <commctrl.h>

namespace bench
{

// A tree grid in a window, with a column for labels and one for identifiers.
class TreeGridSubject
{
public:
    explicit TreeGridSubject(CWnd& parent);
    ~TreeGridSubject();

    QuorUiCtr::TGTreeGrid& Grid() { return grid; }
    QuorUiCtr::TGGridTreeRow& Group(long i) { return *groups[static_cast<size_t>(i)]; }
    // Empties the grid and fills it with folded groups of items.
    void Fill(long groupCount, long itemsPerGroup);
    void Empty();
    void UnfoldAll();
    void FoldAll();
    void Paint() { grid.UpdateWindow(); }

private:
    QuorUiCtr::TGTreeGrid grid;
    std::vector<QuorUiCtr::TGGridTreeRow*> groups;
};

// The tree view with the labels only; it has one text per item.
class TreeViewSubject
{
public:
    explicit TreeViewSubject(CWnd& parent);
    ~TreeViewSubject();

    HTREEITEM Group(long i) { return groups[static_cast<size_t>(i)]; }
    void Fill(long groupCount, long itemsPerGroup);
    void Empty();
    // With redraw switched off.
    void UnfoldAll() { ExpandAll(TVE_EXPAND); }
    void FoldAll() { ExpandAll(TVE_COLLAPSE); }
    void Expand(HTREEITEM item, UINT how) { TreeView_Expand(view, item, how); }
    void SortGroup(long i) { TreeView_SortChildren(view, Group(i), FALSE); }
    // Inserts items at the front of a group, with redraw switched off.
    void InsertItems(long group, long count);
    void Paint() { ::UpdateWindow(view); }

private:
    HTREEITEM Insert(HTREEITEM parent, const wchar_t* text, HTREEITEM after = TVI_LAST);
    void ExpandAll(UINT how);
    void SetRedraw(bool on) { ::SendMessage(view, WM_SETREDRAW, on, 0); }

    HWND view;
    std::vector<HTREEITEM> groups;
};

} // namespace bench
