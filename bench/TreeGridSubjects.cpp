// The tree grid and the tree view that the workloads of trees run on.
#include "TreeGridSubjects.h"

using QuorUiCtr::TGGridTreeRow;
using QuorUiCtr::TGGridUpdate;

namespace bench
{
namespace
{

// Spreads the labels, so that sorting has something to do.
long Scattered(long i)
{
    return (i * 7919L + 12345) % 1000003;
}

} // namespace

// ---- The tree grid

TreeGridSubject::TreeGridSubject(CWnd& parent) : grid(true)
{
    grid.Create(CRect(0, 0, ViewWidth, ViewHeight), WS_CHILD | WS_VISIBLE, &parent);
    grid.AppendCol(L"Label", 300);
    grid.AppendCol(L"Identifier", 100);
    grid.AppendKey(0);
    grid.UpdateWindow();
}

TreeGridSubject::~TreeGridSubject()
{
    grid.DestroyWindow();
}

void TreeGridSubject::Fill(long groupCount, long itemsPerGroup)
{
    const TGGridUpdate update(grid);
    CString id;
    for (long g = 0; g < groupCount; ++g)
    {
        TGGridTreeRow* group = new TGGridTreeRow(grid);
        (*group)[0].SetText(CellText(g));
        grid.AppendRow(group);
        groups.push_back(group);
        for (long i = 0; i < itemsPerGroup; ++i)
        {
            const long number = g * itemsPerGroup + i + 1;
            TGGridTreeRow* item = new TGGridTreeRow(grid);
            (*item)[0].SetText(CellText(Scattered(number)));
            id.Format(L"%ld", number);
            (*item)[1].SetText(id);
            group->AppendChild(item);
        }
    }
}

void TreeGridSubject::Empty()
{
    grid.Clear();
    groups.clear();
    grid.UpdateWindow();
}

void TreeGridSubject::UnfoldAll()
{
    const TGGridUpdate update(grid);
    for (TGGridTreeRow* group : groups)
        group->UnFold();
}

void TreeGridSubject::FoldAll()
{
    const TGGridUpdate update(grid);
    for (TGGridTreeRow* group : groups)
        group->Fold();
}

// ---- The tree view

TreeViewSubject::TreeViewSubject(CWnd& parent)
    : view(::CreateWindowEx(0, WC_TREEVIEW, L"",
                            WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT, 0, 0,
                            ViewWidth, ViewHeight, parent.m_hWnd, nullptr, nullptr, nullptr))
{
    ::UpdateWindow(view);
}

TreeViewSubject::~TreeViewSubject()
{
    ::DestroyWindow(view);
}

HTREEITEM TreeViewSubject::Insert(HTREEITEM parent, const wchar_t* text, HTREEITEM after)
{
    TVINSERTSTRUCT insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(text);
    return TreeView_InsertItem(view, &insert);
}

void TreeViewSubject::Fill(long groupCount, long itemsPerGroup)
{
    SetRedraw(false);
    for (long g = 0; g < groupCount; ++g)
    {
        const HTREEITEM group = Insert(TVI_ROOT, CellText(g));
        groups.push_back(group);
        for (long i = 0; i < itemsPerGroup; ++i)
            Insert(group, CellText(Scattered(g * itemsPerGroup + i + 1)));
    }
    SetRedraw(true);
}

void TreeViewSubject::Empty()
{
    SetRedraw(false);
    TreeView_DeleteAllItems(view);
    SetRedraw(true);
    groups.clear();
    ::UpdateWindow(view);
}

void TreeViewSubject::ExpandAll(UINT how)
{
    SetRedraw(false);
    for (const HTREEITEM group : groups)
        Expand(group, how);
    SetRedraw(true);
}

void TreeViewSubject::InsertItems(long group, long count)
{
    SetRedraw(false);
    for (long i = 0; i < count; ++i)
        Insert(Group(group), CellText(i), TVI_FIRST);
    SetRedraw(true);
}

} // namespace bench
