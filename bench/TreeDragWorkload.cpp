// Workloads: moving a folder of a drag tree with everything in it, and taking its deletion back.
#include "Subjects.h"
#include "Workloads.h"

#include "treedrag/CTreeCtrlDrag.h"
#include "undo/TGUndoStack.h"

namespace bench
{
namespace
{

constexpr DWORD TreeStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT;
constexpr long GroupSize = 100;

// A folder with groups of items below it, and an item after the folder.
HTREEITEM FillTree(CTreeCtrl& tree, long count, bool isExpanded)
{
    const HTREEITEM folder = tree.InsertItem(L"folder", 0, 0);
    HTREEITEM group = nullptr;
    for (long i = 0; i < count; ++i)
        if (i % GroupSize == 0)
            group = tree.InsertItem(CellText(i), 0, 0, folder);
        else
            tree.InsertItem(CellText(i), 1, 1, group);
    tree.InsertItem(L"other", 1, 1);
    if (isExpanded)
        for (HTREEITEM item = folder; item != nullptr; item = tree.GetNextVisibleItem(item))
            tree.Expand(item, TVE_EXPAND);
    tree.UpdateWindow();
    return folder;
}

// What no move by copies can do without: the platform's tree gets the items once and loses them once.
void InsertAndDelete(CTreeCtrl& tree, long count)
{
    tree.SetRedraw(FALSE);
    const HTREEITEM folder = tree.InsertItem(L"folder", 0, 0, TVI_ROOT, TVI_FIRST);
    HTREEITEM group = folder;
    for (long i = 0; i < count; ++i)
    {
        const HTREEITEM item = tree.InsertItem(CellText(i), 1, 1, i % GroupSize == 0 ? folder : group);
        group = i % GroupSize == 0 ? item : group;
    }
    tree.DeleteItem(folder);
    tree.SetRedraw(TRUE);
}

void MoveFolder(Report& report, Host& host, long count, bool isExpanded)
{
    double ours = 0;
    {
        QuorUiCtr::CTreeCtrlDrag tree;
        tree.Create(TreeStyle, CRect(0, 0, ViewWidth, ViewHeight), &host, 1);
        tree.SelectItem(FillTree(tree, count, isExpanded));
        ours = MedianMs([&] { tree.MoveItemDown(); }, [&] { tree.MoveItemUp(); });
    }
    CTreeCtrl plain;
    plain.Create(TreeStyle, CRect(0, 0, ViewWidth, ViewHeight), &host, 2);
    FillTree(plain, count, false);
    const double peer = MedianMs([&] { InsertAndDelete(plain, count); });
    const std::string name = isExpanded ? "move an expanded folder" : "move a collapsed folder";
    report.Add({name, count, ours, "insert and delete", peer});
    const double perItem = 1000.0 / static_cast<double>(count);
    report.Add({name + ", us per item", count, ours * perItem, "insert and delete", peer * perItem});
}

// Against what an undo made of items kept elsewhere would do: inserting them, and before that deleting them.
void UndoDeletion(Report& report, Host& host, long count, bool isExpanded)
{
    QuorUiCtr::CTreeCtrlDrag tree;
    tree.Create(TreeStyle, CRect(0, 0, ViewWidth, ViewHeight), &host, 1);
    FillTree(tree, count, isExpanded);
    QuorUiCtr::TGUndoStack stack;
    stack.Watch(tree);
    const auto remove = [&] { tree.DeleteItem(tree.GetRootItem()); };
    const auto undo = [&] { stack.Undo(); };
    CTreeCtrl plain;
    plain.Create(TreeStyle, CRect(0, 0, ViewWidth, ViewHeight), &host, 2);
    FillTree(plain, count, false);
    const std::vector<double> times =
        ShortestInTurns({{undo, remove}, {remove, {}}, {[&] { InsertAndDelete(plain, count); }, undo}});
    const std::string kind = isExpanded ? "an expanded folder" : "a collapsed folder";
    report.Add({"undo the deletion of " + kind, count, times[0], "insert and delete", times[2]});
    report.Add({"delete " + kind + " with undo", count, times[1], "insert and delete", times[2]});
}

} // namespace

void RunTreeUndo(Report& report)
{
    Host host;
    for (const bool isExpanded : {false, true})
        for (const long count : {1000L, 10000L})
            UndoDeletion(report, host, count, isExpanded);
}

void RunTreeMove(Report& report)
{
    Host host;
    for (const bool isExpanded : {false, true})
        for (const long count : {1000L, 10000L})
            MoveFolder(report, host, count, isExpanded);
}

} // namespace bench
