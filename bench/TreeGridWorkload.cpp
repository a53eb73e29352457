// Workload: trees of groups and items: filling, folding, sorting, identifiers and paste.
#include "TreeGridSubjects.h"
#include "Workloads.h"

#include <cwchar>
#include <string>
#include <vector>

namespace bench
{
namespace
{

constexpr long Groups = 1000;
constexpr long ItemsPerGroup = 100;
constexpr long Items = Groups * ItemsPerGroup;
constexpr long PastedRows = 1000;

void FillAndFoldMany(Report& report, Host& host)
{
    TreeGridSubject grid(host);
    TreeViewSubject view(host);
    const double fill = MedianMs([&] { grid.Fill(Groups, ItemsPerGroup); }, [&] { grid.Empty(); });
    const double peerFill = MedianMs([&] { view.Fill(Groups, ItemsPerGroup); }, [&] { view.Empty(); });
    report.Add({"tree: fill 1000 groups of 100 items", Items, fill, "tree view redraw off", peerFill});

    // The tree view takes seconds; one run of it tells enough.
    const double unfold = MedianMs([&] { grid.UnfoldAll(), grid.Paint(); }, [&] { grid.FoldAll(); });
    const double peerUnfold = MedianMs([&] { view.UnfoldAll(), view.Paint(); }, {}, 1);
    report.Add(
        {"tree: unfold 1000 groups of 100 items", Items, unfold, "tree view redraw off", peerUnfold, 0.01});

    const double fold = MedianMs([&] { grid.FoldAll(), grid.Paint(); }, [&] { grid.UnfoldAll(); });
    const double peerFold = MedianMs([&] { view.FoldAll(), view.Paint(); }, {}, 1);
    report.Add({"tree: fold 1000 groups of 100 items", Items, fold, "tree view redraw off", peerFold, 0.01});
}

// `kind` tells of the group, which has been filled with the items.
void FoldOne(Report& report, TreeGridSubject& grid, TreeViewSubject& view, const std::string& kind)
{
    const auto fold = [&] { grid.Group(0).Fold(), grid.Paint(); };
    const auto unfold = [&] { grid.Group(0).UnFold(), grid.Paint(); };
    const auto peerFold = [&] { view.Expand(view.Group(0), TVE_COLLAPSE), view.Paint(); };
    const auto peerUnfold = [&] { view.Expand(view.Group(0), TVE_EXPAND), view.Paint(); };
    // What neither can do without: a mark in each row, the cells painted anew, and a bar with another range.
    RawTable table;
    FillRawTable(table, Items);
    int shownRange = 0;
    const auto bare = [&] {
        for (auto& row : table)
            row[0][0] = L'x';
        grid.Grid().SetScrollRange(SB_VERT, 0, 1000000 + ++shownRange % 2, TRUE);
        grid.Grid().Invalidate(1);
        grid.Paint();
    };
    const std::vector<double> shortest =
        ShortestInTurns({{unfold, fold}, {bare, {}}, {fold, {}}, {peerUnfold, peerFold}, {peerFold, {}}});
    const auto add = [&](const std::string& step, double ours, double peer, double limit) {
        const std::string workload = "tree: " + step + " one group of 100000 " + kind;
        report.Add({workload, Items, ours, "tree view", peer});
        report.Add({workload, Items, ours, "marks, repaint, a bar", shortest[1], limit});
    };
    add("unfold", shortest[0], shortest[3], 2);
    add("fold", shortest[2], shortest[4], 1.5);
}

// Each run sorts an unsorted group.
void SortOne(Report& report, TreeGridSubject& grid, TreeViewSubject& view)
{
    const auto refill = [](auto& subject) { subject.Empty(), subject.Fill(1, Items); };
    const double ours = MedianMs([&] { grid.Grid().Arrange(true); }, [&] { refill(grid); }, 3);
    const double peer = MedianMs([&] { view.SortGroup(0); }, [&] { refill(view); }, 3);
    report.Add({"tree: sort one folded group of 100000 items", Items, ours, "tree view", peer});
}

void FindIdentifier(Report& report, TreeGridSubject& grid)
{
    const double ours = MedianMs([&] { grid.Grid().GetAutoId(7); });
    RawTable table;
    FillRawTable(table, Items);
    volatile int maximum = 0;
    const double floor = MedianMs([&] {
        for (const auto& row : table)
            if (const int id = static_cast<int>(std::wcstol(row[0].c_str(), nullptr, 10)); id > maximum)
                maximum = id;
    });
    report.Add({"tree: GetAutoId among 100000 items", Items, ours, "largest in wstrings", floor});
}

void Paste(Report& report, TreeGridSubject& grid, TreeViewSubject& view)
{
    const auto copy = [&] {
        grid.Empty();
        grid.Fill(1, Items);
        grid.Group(0).UnFold();
        const QuorUiCtr::TGGridUpdate update(grid.Grid());
        for (long i = 1; i <= PastedRows; ++i)
            grid.Grid().SelectRow(i, true);
        grid.Grid().DoCopy();
        grid.Grid().UnSelect();
        grid.Grid().SelectRow(Items / 2, true);
    };
    const double ours = MedianMs([&] { grid.Grid().DoPaste(), grid.Paint(); }, copy, 3);
    const double peer = MedianMs([&] { view.InsertItems(0, PastedRows), view.Paint(); }, {}, 3);
    report.Add({"tree: paste 1000 items among 100000", PastedRows, ours, "tree view inserts", peer});
}

// Groups of a hundred items, folded or unfolded one by one in one update.
double FoldAllMs(Host& host, long items, bool unfold)
{
    TreeGridSubject grid(host);
    grid.Fill(items / ItemsPerGroup, ItemsPerGroup);
    if (!unfold)
        grid.UnfoldAll();
    grid.Paint();
    return TimeMs([&] { unfold ? grid.UnfoldAll() : grid.FoldAll(); });
}

} // namespace

void RunTreeGrowth(Report& report)
{
    Host host;
    AddGrowth(report, "tree: unfold groups of 100", 10000, 100000, Growth::Linear,
              [&](long items) { return FoldAllMs(host, items, true); });
    AddGrowth(report, "tree: fold groups of 100", 10000, 100000, Growth::Linear,
              [&](long items) { return FoldAllMs(host, items, false); });
}

void RunTreeGrid(Report& report)
{
    Host host;
    FillAndFoldMany(report, host);
    TreeGridSubject grid(host);
    TreeViewSubject view(host);
    grid.Fill(1, Items);
    view.Fill(1, Items);
    FoldOne(report, grid, view, "items");
    SortOne(report, grid, view);
    // Sorted rows lie scattered in memory.
    FoldOne(report, grid, view, "sorted items");
    FindIdentifier(report, grid);
    Paste(report, grid, view);
}

} // namespace bench
