// Sorting where there is nothing to sort or no column, of rows that come and go below other rows, and presses
// that end in other ways than by a release.
#include "grid/extras/TGHeaderSort.h"
#include "tests/grid/CommandGrid.h"
#include "tests/grid/HeaderFixture.h"
#include "tests/grid/ModelGrid.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class SortEdges : public HeaderFixture
{
protected:
    explicit SortEdges(bool tree = false) : grid(tree) {}

    void MakeSorted(const char* texts = "bca")
    {
        Make(grid, texts, 4);
        sorting.AttachTo(grid);
        ASSERT_TRUE(Activate(host));
    }
    CWnd& Header() { return ColHeader(grid); }
    std::string Keys()
    {
        std::string keys;
        for (const TGSortKey& key : sorting.GetKeys())
            keys += (keys.empty() ? "" : " ") + std::to_string(key.col) + (key.ascending ? "+" : "-");
        return keys;
    }
    void Press(CPoint point, WPARAM keys = MK_LBUTTON) { SendMouse(Header(), WM_LBUTTONDOWN, point, keys); }
    void Release(CPoint point) { SendMouse(Header(), WM_LBUTTONUP, point); }

    CommandGrid grid;
    TGHeaderSort sorting;
};

// ---- Options

TEST_F(SortEdges, OptionsOfColumnsThatThereAreNot_AreIgnored)
{
    sorting.SetSortable(0, false);
    sorting.SetComparison(0, TGSortBy::Number);
    sorting.SetComparison(0, [](const TGGridCell&, const TGGridCell&) { return 0; });
    EXPECT_FALSE(sorting.IsSortable(0));
    EXPECT_FALSE(sorting.Sort({}));
    MakeSorted();
    for (const long col : {-1L, 4L})
    {
        sorting.SetSortable(col, false);
        sorting.SetComparison(col, TGSortBy::Number);
        sorting.SetComparison(col, [](const TGGridCell&, const TGGridCell&) { return 0; });
        EXPECT_FALSE(sorting.IsSortable(col));
    }
    EXPECT_TRUE(sorting.IsSortable(0));
    sorting.SetSortable(0, false);
    EXPECT_FALSE(sorting.IsSortable(0));
    sorting.SetSortable(0, true);
    EXPECT_TRUE(sorting.IsSortable(0));
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_EQ(grid.Rows(), "a b c");
}

TEST_F(SortEdges, Numbers_EqualGreaterAndNone_InBothDirections)
{
    Make(grid, "abcdef", 4);
    sorting.AttachTo(grid);
    const wchar_t* const texts[] = {L"2", L"", L"10", L"2", L"none", L"-1"};
    for (long row = 0; row < 6; ++row)
        grid.GetCell(row, 1).SetText(texts[row]);
    sorting.SetComparison(1, TGSortBy::Number);
    EXPECT_TRUE(sorting.Sort({{1, true}}));
    EXPECT_EQ(grid.Rows(), "f a d c b e");
    EXPECT_TRUE(sorting.Sort({{1, false}}));
    EXPECT_EQ(grid.Rows(), "c a d f b e");
    // As a second key behind one that is equal everywhere.
    EXPECT_TRUE(sorting.Sort({{2, true}, {1, true}}));
    EXPECT_EQ(grid.Rows(), "f a d c b e");
    EXPECT_TRUE(sorting.Sort({{2, true}, {1, false}}));
    EXPECT_EQ(grid.Rows(), "c a d f b e");
}

TEST_F(SortEdges, EmptyTexts_ComeFirstInTheOrderOfTheLocale)
{
    MakeSorted();
    grid.GetCell(1, 1).SetText(L"x");
    for (const long row : {0L, 2L})
        grid.GetCell(row, 1).SetText(L"");
    sorting.SetComparison(1, TGSortBy::Locale);
    EXPECT_TRUE(sorting.Sort({{1, true}}));
    EXPECT_EQ(grid.Rows(), "b a c");
}

TEST_F(SortEdges, AGridWithoutRows_IsSortedWhenTheyCome)
{
    MakeSorted("");
    sorting.SetComparison(0, TGSortBy::Number);
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_EQ(Keys(), "0+");
    AddRows(grid, "31");
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_EQ(grid.Rows(), "1 3");
    EXPECT_TRUE(sorting.Sort({}));
    EXPECT_EQ(grid.Rows(), "3 1");
}

// A row of a host may follow new columns as it likes.
class ShortRow : public TGGridRow
{
public:
    using TGGridRow::TGGridRow;

protected:
    void AppendCol(TGGridCol&) override {}
};

TEST_F(SortEdges, RowsWithoutACellInTheColumn_CountAsEmpty)
{
    Create(grid, 500, 300);
    grid.AppendCol(L"A", colWidth);
    grid.AddRows("x");
    grid.InsertRow(1, new ShortRow(grid));
    grid.GetCell(1, 0).SetText(L"short");
    grid.AddRows("y");
    sorting.AttachTo(grid);
    grid.AppendCol(L"B", colWidth);
    grid.GetCell(0, 1).SetText(L"2");
    grid.GetCell(2, 1).SetText(L"1");
    for (const TGSortBy by : {TGSortBy::Ordinal, TGSortBy::Natural, TGSortBy::Locale})
    {
        sorting.SetComparison(1, by);
        EXPECT_TRUE(sorting.Sort({{1, true}}));
        EXPECT_EQ(grid.Rows(), "short y x") << static_cast<int>(by);
    }
    for (const TGSortBy by : {TGSortBy::Number, TGSortBy::Date})
    {
        sorting.SetComparison(1, by);
        EXPECT_TRUE(sorting.Sort({{1, true}}));
        EXPECT_EQ(grid.Rows().substr(grid.Rows().size() - 5), "short") << static_cast<int>(by);
    }
    sorting.SetComparison(1, [](const TGGridCell& first, const TGGridCell& second) {
        return first.GetText().Compare(second.GetText());
    });
    EXPECT_TRUE(sorting.Sort({{1, false}}));
    EXPECT_EQ(grid.Rows(), "x y short");
}

// ---- Hooks

class VetoingSort : public TGHeaderSort
{
public:
    std::function<bool()> asked;

protected:
    bool OnBeforeSort(const std::vector<TGSortKey>&) override { return !asked || asked(); }
};

TEST_F(SortEdges, AQuestionWhoseAnswerChangesTheColumns_SortsNothing)
{
    MakeSorted();
    sorting.Detach();
    VetoingSort asking;
    asking.AttachTo(grid);
    asking.asked = [this] {
        grid.MoveCol(0, 2);
        return true;
    };
    EXPECT_FALSE(asking.Sort({{0, true}}));
    asking.asked = [this] {
        grid.SetColNum(1);
        return true;
    };
    EXPECT_FALSE(asking.Sort({{3, true}}));
    asking.asked = [&asking] {
        asking.Detach();
        return true;
    };
    EXPECT_FALSE(asking.Sort({{0, true}}));
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(SortEdges, AQuestionWhoseAnswerDeletes_SortsNothing)
{
    MakeSorted();
    auto own = std::make_unique<VetoingSort>();
    own->AttachTo(grid);
    own->asked = [&own] {
        own.reset();
        return true;
    };
    EXPECT_FALSE(own->Sort({{0, true}}));
    EXPECT_EQ(grid.Rows(), "b c a");
}

// ---- Presses

TEST_F(SortEdges, APressThatIsReleasedElsewhere_DoesNotSort)
{
    MakeSorted();
    const CPoint first = ColBox(grid, 0);
    Press(first);
    Release(ColBox(grid, 1));
    EXPECT_EQ(Keys(), "");
    Press(first);
    Release(CPoint(first.x, first.y + 200));
    EXPECT_EQ(Keys(), "");
    EXPECT_EQ(::GetCapture(), nullptr);
    // A release without a press is nothing.
    Release(first);
    EXPECT_EQ(Keys(), "");
    // Behind the columns there is nothing to press.
    Press(CPoint(ColBox(grid, 3).x + 300, first.y));
    Release(CPoint(ColBox(grid, 3).x + 300, first.y));
    EXPECT_EQ(Keys(), "");
    Press(first);
    Release(first);
    EXPECT_EQ(Keys(), "0+");
}

TEST_F(SortEdges, AMoveWithoutTheButton_DragsNothing)
{
    MakeSorted();
    const CPoint first = ColBox(grid, 0);
    Press(first);
    SendMouse(Header(), WM_MOUSEMOVE, ColBox(grid, 2));
    Release(first);
    EXPECT_EQ(Keys(), "0+");
    EXPECT_EQ(grid.Rows(), "a b c");
}

TEST_F(SortEdges, OtherButtonsWhilePressed_ChangeNothing)
{
    MakeSorted();
    const CPoint first = ColBox(grid, 0);
    Press(first);
    SendMouse(Header(), WM_MBUTTONDOWN, first, MK_LBUTTON | MK_MBUTTON);
    SendMouse(Header(), WM_MBUTTONUP, first, MK_LBUTTON);
    Release(first);
    EXPECT_EQ(Keys(), "0+");
}

TEST_F(SortEdges, TheCaptureThatIsTaken_EndsThePress)
{
    MakeSorted();
    Press(ColBox(grid, 0));
    ::SetCapture(host);
    ::ReleaseCapture();
    Release(ColBox(grid, 0));
    EXPECT_EQ(Keys(), "");
}

TEST_F(SortEdges, ADragOfAFixedColumn_LetsTheMouseGo)
{
    MakeSorted();
    grid.SetColPosFix(true);
    const CPoint first = ColBox(grid, 0);
    Press(first);
    EXPECT_EQ(::GetCapture(), Header().m_hWnd);
    SendMouse(Header(), WM_MOUSEMOVE, ColBox(grid, 2), MK_LBUTTON);
    EXPECT_EQ(::GetCapture(), nullptr);
    Release(ColBox(grid, 2));
    EXPECT_EQ(Keys(), "");
}

TEST_F(SortEdges, WhereEveryClickSelects_ADragIsTheHeaders)
{
    MakeSorted();
    sorting.SetSelecting(TGHeaderSort::Selecting::EveryClick);
    DragPath(Header(), {ColBox(grid, 0), ColBox(grid, 1), ColBox(grid, 2)});
    EXPECT_EQ(Keys(), "");
    grid.SetColPosFix(true);
    DragPath(Header(), {ColBox(grid, 0), ColBox(grid, 1), ColBox(grid, 2)});
    EXPECT_EQ(Keys(), "");
}

TEST_F(SortEdges, APressBesideTheColumns_SelectsWhatTheHeaderDoes)
{
    MakeSorted();
    sorting.SetSortable(1, false);
    Press(ColBox(grid, 1));
    Release(ColBox(grid, 1));
    EXPECT_EQ(Keys(), "");
    EXPECT_TRUE(grid.IsColSelected(1));
}

TEST_F(SortEdges, Edges_AreNotClicked_UnlessTheyAreFixed)
{
    MakeSorted();
    const auto sortedFrom = [this](long col) {
        int sorted = 0;
        const CPoint middle = ColBox(grid, col);
        for (int x = middle.x; x < middle.x + colWidth; ++x)
        {
            sorting.Sort({});
            Press(CPoint(x, middle.y));
            Release(CPoint(x, middle.y));
            sorted += Keys().empty() ? 0 : 1;
        }
        return sorted;
    };
    EXPECT_LT(sortedFrom(0), colWidth);
    // Behind the last column there is nothing.
    const int last = sortedFrom(3);
    EXPECT_GT(last, colWidth / 2 - 4);
    EXPECT_LT(last, colWidth / 2 + 4);
    grid.SetColFixWidth(true);
    EXPECT_EQ(sortedFrom(0), colWidth);
}

// ---- Trees

class TreeSortEdges : public SortEdges
{
protected:
    TreeSortEdges() : SortEdges(true) {}

    // b with z, y, x; a.
    void MakeTree()
    {
        MakeSorted("");
        TGGridTreeRow& root = AddRoot(grid, L"b");
        for (const wchar_t* text : {L"z", L"y", L"x"})
            AddChild(root, text);
        AddRoot(grid, L"a");
        root.UnFoldAll();
    }
};

TEST_F(TreeSortEdges, ChildrenThatMoveComeAndGo_KeepTheirOriginalOrder)
{
    MakeTree();
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_EQ(Texts(grid), "a b x y z");
    // Leaves from between, comes in at the end.
    grid.DelRow(3);
    AddChild(grid.GetTreeRow(1), L"new");
    EXPECT_TRUE(sorting.Sort({{0, false}}));
    EXPECT_EQ(Texts(grid), "b z x new a");
    EXPECT_TRUE(sorting.Sort({}));
    EXPECT_EQ(Texts(grid), "b z x new a");
    grid.MoveRow(1, 3);
    EXPECT_EQ(Texts(grid), "b x z new a");
}

TEST_F(TreeSortEdges, AChildThatIsMovedWhileSorted_IsMovedInTheOriginalOrder)
{
    MakeTree();
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_EQ(Texts(grid), "a b x y z");
    grid.MoveRow(4, 2);
    EXPECT_EQ(Texts(grid), "a b z x y");
    EXPECT_TRUE(sorting.Sort({}));
    EXPECT_EQ(Texts(grid), "b y z x a");
    // Nothing is remembered any more.
    grid.MoveRow(1, 3);
    EXPECT_TRUE(sorting.Sort({}));
    EXPECT_EQ(grid.GetRowNum(), 5);
}

TEST_F(TreeSortEdges, RowsThatGoBeforeAnythingIsSorted)
{
    MakeTree();
    grid.DelRow(1);
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_EQ(Texts(grid), "a b x y");
    grid.DelRow(1);
    EXPECT_EQ(Texts(grid), "a");
    EXPECT_TRUE(sorting.Sort({}));
    EXPECT_EQ(Texts(grid), "a");
}

} // namespace
} // namespace quor::test
