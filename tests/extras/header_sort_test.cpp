// Sorting rows as programs ask for it: keys, comparisons, the original order, and what goes along.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGHeaderSort.h"
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class HeaderSort : public GridWindowTest
{
protected:
    explicit HeaderSort(bool tree = false) : grid(tree) {}

    // One column for each list of texts.
    void Make(std::initializer_list<std::initializer_list<const wchar_t*>> cols)
    {
        Create(grid);
        long col = 0;
        for (const auto& texts : cols)
        {
            grid.AppendCol(CString(static_cast<wchar_t>(L'A' + col)), 50);
            grid.SetRowNum(static_cast<long>(texts.size()));
            long row = 0;
            for (const wchar_t* text : texts)
                grid.GetCell(row++, col).SetText(text);
            ++col;
        }
        sorting.AttachTo(grid);
    }
    // The texts of a column, "a b c".
    std::string Texts(long col = 0)
    {
        std::string texts;
        for (long row = 0; row < grid.GetRowNum(); ++row)
            texts += (row > 0 ? " " : "") + Narrow(grid.GetCell(row, col).GetText());
        return texts;
    }
    std::string Sorted(const std::vector<TGSortKey>& keys, long shownCol = 0)
    {
        EXPECT_TRUE(sorting.Sort(keys));
        return Texts(shownCol);
    }

    CommandGrid grid;
    TGHeaderSort sorting;
};

// ---- Comparisons

TEST_F(HeaderSort, Ordinal_IsByCharacterCodes)
{
    Make({{L"b", L"B", L"a10", L"a9", L""}});
    EXPECT_EQ(Sorted({{0, true}}), " B a10 a9 b");
    EXPECT_EQ(Sorted({{0, false}}), "b a9 a10 B ");
}

TEST_F(HeaderSort, Natural_CountsDigitsAsNumbers)
{
    Make({{L"row-10", L"row-9", L"Row-1"}});
    sorting.SetComparison(0, TGSortBy::Natural);
    EXPECT_EQ(Sorted({{0, true}}), "Row-1 row-9 row-10");
}

TEST_F(HeaderSort, Locale_SortsWordsWithoutRegardToCase)
{
    Make({{L"b", L"B", L"a", L"C", L"\x00e4"}});
    sorting.SetComparison(0, TGSortBy::Locale);
    sorting.Sort({{0, true}});
    CString order;
    for (long row = 0; row < 5; ++row)
        order += grid.GetCell(row, 0).GetText();
    EXPECT_EQ(order, L"a\x00e4"
                     L"bBC");
}

TEST_F(HeaderSort, Number_PutsTextsWithoutOneLastInBothDirections)
{
    Make({{L"10", L"x", L"9", L"-1.5", L"", L"1,000"}});
    sorting.SetComparison(0, TGSortBy::Number);
    EXPECT_EQ(Sorted({{0, true}}), "-1.5 9 10 1,000 x ");
    EXPECT_EQ(Sorted({{0, false}}), "1,000 10 9 -1.5 x ");
}

TEST_F(HeaderSort, Date)
{
    Make({{L"2024-03-05", L"soon", L"1999-12-31", L"2024-03-04T10:00", L"2024-03-04"}});
    sorting.SetComparison(0, TGSortBy::Date);
    EXPECT_EQ(Sorted({{0, true}}), "1999-12-31 2024-03-04 2024-03-04T10:00 2024-03-05 soon");
}

TEST_F(HeaderSort, FunctionOfTheHost)
{
    Make({{L"ccc", L"a", L"bb"}});
    sorting.SetComparison(0, [](TGGridCell& first, TGGridCell& second) {
        return first.GetText().GetLength() - second.GetText().GetLength();
    });
    EXPECT_EQ(Sorted({{0, true}}), "a bb ccc");
    EXPECT_EQ(Sorted({{0, false}}), "ccc bb a");
    sorting.SetComparison(0, TGHeaderSort::Comparison());
    EXPECT_EQ(Sorted({{0, true}}), "a bb ccc");
}

TEST_F(HeaderSort, AFunctionThatContradictsItself_GivesTheSameRows)
{
    Make({{L"a", L"b", L"c", L"d", L"e"}});
    int calls = 0;
    sorting.SetComparison(0, [&calls](TGGridCell&, TGGridCell&) { return ++calls % 3 - 1; });
    std::string texts = Sorted({{0, true}});
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(texts, "    abcde");
}

TEST_F(HeaderSort, EqualRows_KeepTheirOrder)
{
    Make({{L"1", L"1", L"0", L"1"}, {L"a", L"b", L"c", L"d"}});
    EXPECT_EQ(Sorted({{0, true}}, 1), "c a b d");
    EXPECT_EQ(Sorted({{0, false}}, 1), "a b d c");
}

TEST_F(HeaderSort, FurtherKeys_DecideAmongEqualRows)
{
    Make({{L"1", L"1", L"0", L"0"}, {L"a", L"b", L"c", L"d"}});
    EXPECT_EQ(Sorted({{0, true}, {1, false}}, 1), "d c b a");
    EXPECT_EQ(sorting.GetKeys(), (std::vector<TGSortKey>{{0, true}, {1, false}}));
    EXPECT_EQ(Sorted({{0, false}, {1, true}}, 1), "a b c d");
}

TEST_F(HeaderSort, ColumnsThatThereAreNot_AndTwiceTheSame_AreRefused)
{
    Make({{L"b", L"a"}});
    EXPECT_FALSE(sorting.Sort({{1, true}}));
    EXPECT_FALSE(sorting.Sort({{-1, true}}));
    EXPECT_FALSE(sorting.Sort({{0, true}, {0, false}}));
    EXPECT_EQ(Texts(), "b a");
    sorting.SetComparison(5, TGSortBy::Number);
    EXPECT_FALSE(sorting.IsSortable(5));
    sorting.Detach();
    EXPECT_FALSE(sorting.Sort({{0, true}}));
    sorting.SetComparison(0, TGSortBy::Number);
}

// ---- The original order

TEST_F(HeaderSort, NoKeys_BringTheOriginalOrderBack)
{
    Make({{L"c", L"a", L"b"}, {L"1", L"3", L"2"}});
    Sorted({{0, true}});
    EXPECT_EQ(Sorted({{1, false}}), "a b c");
    EXPECT_EQ(Sorted({}), "c a b");
    EXPECT_TRUE(sorting.GetKeys().empty());
}

TEST_F(HeaderSort, RowsThatComeInWhileSorted_StandBeforeTheRowTheyWerePutInFrontOf)
{
    Make({{L"c", L"a", L"b"}});
    EXPECT_EQ(Sorted({{0, true}}), "a b c");
    grid.InsertRow(1, nullptr);
    grid.GetCell(1, 0).SetText(L"x");
    grid.InsertRow(2, nullptr);
    grid.GetCell(2, 0).SetText(L"y");
    grid.AppendRow(nullptr);
    grid.GetCell(5, 0).SetText(L"z");
    EXPECT_EQ(Texts(), "a x y b c z");
    EXPECT_EQ(Sorted({{0, false}}), "z y x c b a");
    EXPECT_EQ(Sorted({}), "c a x y b z");
}

TEST_F(HeaderSort, RowsThatLeaveWhileSorted_AreMissing_AlsoWhenOthersTakeTheirMemory)
{
    Make({{L"d", L"c", L"a", L"b"}});
    Sorted({{0, true}});
    for (int i = 0; i < 20; ++i)
    {
        grid.DelRow(0);
        grid.AppendRow(nullptr);
        grid.GetCell(grid.GetRowNum() - 1, 0).SetText(CString(static_cast<wchar_t>(L'A' + i)));
    }
    EXPECT_EQ(Sorted({}), "Q R S T");
}

TEST_F(HeaderSort, ClearedWhileSorted_BeginsAnew)
{
    Make({{L"b", L"a"}});
    Sorted({{0, true}});
    grid.Clear();
    for (const wchar_t* text : {L"z", L"y"})
    {
        grid.AppendRow(nullptr);
        grid.GetCell(grid.GetRowNum() - 1, 0).SetText(text);
    }
    EXPECT_EQ(Sorted({{0, true}}), "y z");
    EXPECT_EQ(Sorted({}), "z y");
}

TEST_F(HeaderSort, ARowThatIsMovedWhileSorted_IsMovedInTheOriginalOrder)
{
    Make({{L"c", L"a", L"b", L"d"}});
    EXPECT_EQ(Sorted({{0, true}}), "a b c d");
    grid.MoveRow(3, 1);
    EXPECT_EQ(Texts(), "a d b c");
    EXPECT_EQ(Sorted({}), "c a d b");
}

TEST_F(HeaderSort, SortingBySomebodyElse_MakesTheOriginalOrder)
{
    Make({{L"c", L"a", L"b"}});
    Sorted({{0, true}});
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_TRUE(sorting.GetKeys().empty());
    EXPECT_EQ(Texts(), "c b a");
    EXPECT_EQ(Sorted({}), "c b a");
}

// ---- What goes along

TEST_F(HeaderSort, SelectionAndCurrentRow_StayWithTheirRows)
{
    Make({{L"c", L"a", L"b"}});
    TGCellCursor cursor(grid);
    cursor.MoveTo(0, 0);
    Sorted({{0, true}});
    EXPECT_EQ(cursor.GetRow(), 2);
    grid.SelectRow(1, true);
    grid.SelectRow(2, true);
    EXPECT_EQ(Sorted({{0, false}}), "c b a");
    EXPECT_TRUE(grid.IsRowSelected(0));
    EXPECT_TRUE(grid.IsRowSelected(1));
    EXPECT_FALSE(grid.IsRowSelected(2));
    Sorted({});
    EXPECT_TRUE(grid.IsRowSelected(0));
    EXPECT_TRUE(grid.IsRowSelected(2));
}

TEST_F(HeaderSort, AnOpenEdit_IsCommittedFirst)
{
    Make({{L"b", L"a"}});
    grid.BeginEditCell(0, 0);
    ASSERT_TRUE(grid.IsEditing());
    Sorted({{0, true}});
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(HeaderSort, InAnUpdate_AndWithoutAWindow)
{
    Make({{L"b", L"a"}});
    {
        const TGGridUpdate update(grid);
        EXPECT_EQ(Sorted({{0, true}}), "a b");
    }
    ModelGrid model;
    AddCols(model, 1);
    model.SetRowNum(2);
    model.GetCell(0, 0).SetText(L"b");
    TGHeaderSort other(model);
    EXPECT_TRUE(other.Sort({{0, true}}));
    EXPECT_EQ(model.GetCell(1, 0).GetText(), L"b");
}

TEST_F(HeaderSort, ColumnsThatMoveAndLeave)
{
    Make({{L"c", L"a", L"b"}, {L"1", L"3", L"2"}, {L"x", L"x", L"x"}});
    sorting.SetComparison(1, TGSortBy::Number);
    Sorted({{2, true}, {1, false}});
    grid.MoveCol(1, 0);
    EXPECT_EQ(sorting.GetKeys(), (std::vector<TGSortKey>{{2, true}, {0, false}}));
    grid.DelCol(0);
    EXPECT_EQ(sorting.GetKeys(), (std::vector<TGSortKey>{{1, true}}));
    grid.DelCol(1);
    EXPECT_TRUE(sorting.GetKeys().empty());
    EXPECT_EQ(Texts(), "a b c");
    EXPECT_EQ(Sorted({}), "a b c");
    // A column of the same address has no rule.
    grid.AppendCol(L"new", 50);
    EXPECT_TRUE(sorting.IsSortable(1));
}

// ---- Trees

class TreeHeaderSort : public HeaderSort
{
protected:
    TreeHeaderSort() : HeaderSort(true) {}

    void MakeTree()
    {
        Create(grid);
        grid.AppendCol(L"A", 100);
        grid.AddRows("bac");
        AddChildren(grid.GetTreeRow(0), "yxz");
        AddChildren(grid.GetTreeRow(1), "qp");
        AddChildren(grid.GetTreeRow(0).GetChild(0), "21");
        sorting.AttachTo(grid);
    }
    void AddChildren(TGGridTreeRow& parent, const char* texts)
    {
        for (; *texts != '\0'; ++texts)
            grid.AddChild(parent, *texts);
    }
};

TEST_F(TreeHeaderSort, SortsTheChildrenOfEveryRow_AndBringsThemBack)
{
    MakeTree();
    const std::string before = grid.Rows();
    EXPECT_EQ(before, "b(y(2 1) x z) a(q p) c");
    sorting.Sort({{0, true}});
    EXPECT_EQ(grid.Rows(), "a(p q) b(x y(1 2) z) c");
    sorting.Sort({{0, false}});
    EXPECT_EQ(grid.Rows(), "c b(z y(2 1) x) a(q p)");
    grid.AddChild(grid.GetTreeRow(1), 'w');
    sorting.Sort({});
    EXPECT_EQ(grid.Rows(), "b(y(2 1) x z w) a(q p) c");
}

TEST_F(TreeHeaderSort, FoldingSelectionAndCursor_StayWithTheirRows)
{
    MakeTree();
    grid.GetTreeRow(0).UnFold();
    grid.GetTreeRow(1).UnFold();
    TGCellCursor cursor(grid);
    // b y 2 1 x z a c
    cursor.MoveTo(2, 0);
    EXPECT_EQ(Texts(), "b y 2 1 x z a c");
    sorting.Sort({{0, false}});
    EXPECT_EQ(Texts(), "c b z y 2 1 x a");
    EXPECT_EQ(cursor.GetRow(), 4);
    grid.SelectRow(6, true);
    sorting.Sort({{0, true}});
    EXPECT_EQ(Texts(), "a b x y 1 2 z c");
    EXPECT_TRUE(grid.IsRowSelected(2));
    EXPECT_EQ(grid.GetRowSelNum(), 1);
    EXPECT_EQ(cursor.GetRow(), 2);
    sorting.Sort({});
    EXPECT_EQ(Texts(), "b y 2 1 x z a c");
    EXPECT_EQ(cursor.GetRow(), 4);
}

TEST_F(TreeHeaderSort, ParentsThatLeave_AreForgottenWithAllBelowThem)
{
    MakeTree();
    sorting.Sort({{0, true}});
    grid.DelRowEx(1);
    EXPECT_EQ(grid.Rows(), "a(p q) c");
    grid.AppendRow(nullptr);
    AddChildren(grid.GetTreeRow(2), "sr");
    grid.GetCell(2, 0).SetText(L"b");
    sorting.Sort({{0, true}});
    EXPECT_EQ(grid.Rows(), "a(p q) b(r s) c");
    sorting.Sort({});
    EXPECT_EQ(grid.Rows(), "a(q p) c b(s r)");
}

// ---- Hooks

class AskingSort : public TGHeaderSort
{
public:
    bool answer = true;
    int told = 0;
    std::function<void()> asked;

protected:
    bool OnBeforeSort(const std::vector<TGSortKey>&) override
    {
        if (asked)
            asked();
        return answer;
    }
    void OnSortChanged() override { ++told; }
};

TEST_F(HeaderSort, AVetoLeavesTheOrder)
{
    Make({{L"b", L"a"}});
    sorting.Detach();
    AskingSort asking;
    asking.AttachTo(grid);
    asking.answer = false;
    EXPECT_FALSE(asking.Sort({{0, true}}));
    EXPECT_EQ(Texts(), "b a");
    EXPECT_EQ(asking.told, 0);
    asking.answer = true;
    EXPECT_TRUE(asking.Sort({{0, true}}));
    EXPECT_EQ(Texts(), "a b");
    EXPECT_EQ(asking.told, 1);
    asking.asked = [this] { grid.DelCol(0); };
    EXPECT_FALSE(asking.Sort({{0, false}}));
    asking.asked = [&asking] { asking.Detach(); };
    EXPECT_FALSE(asking.Sort({}));
}

// The host may show the new arrows at once, also while rows are not laid out.
TEST_F(HeaderSort, WhoIsTold_FindsTheHeaderDueForRepainting)
{
    class LookingSort : public TGHeaderSort
    {
    public:
        int due = 0;

    protected:
        void OnSortChanged() override
        {
            CWnd* const header = GetGrid()->GetDlgItem(103);
            due += header->GetUpdateRect(nullptr) ? 1 : 0;
        }
    };
    Make({{L"b", L"a"}});
    sorting.Detach();
    LookingSort looking;
    looking.AttachTo(grid);
    grid.UpdateWindow();
    grid.GetDlgItem(103)->UpdateWindow();
    const TGGridUpdate update(grid);
    EXPECT_TRUE(looking.Sort({{0, true}}));
    EXPECT_EQ(looking.due, 1);
}

TEST_F(HeaderSort, AComparisonThatClosesTheWindow_AndDeletesTheExtension)
{
    Make({{L"b", L"a", L"c"}});
    sorting.Detach();
    auto own = std::make_unique<TGHeaderSort>(grid);
    own->SetComparison(0, [&](TGGridCell& first, TGGridCell& second) {
        if (own != nullptr)
        {
            grid.DestroyWindow();
            own.reset();
        }
        return first.GetText().Compare(second.GetText());
    });
    EXPECT_TRUE(own->Sort({{0, true}}));
    EXPECT_EQ(own, nullptr);
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_EQ(Texts(), "a b c");
}

TEST_F(HeaderSort, AComparisonThatChangesTexts)
{
    Make({{L"b", L"a", L"c"}, {L"1", L"1", L"1"}});
    sorting.SetComparison(1, [&](TGGridCell& first, TGGridCell& second) {
        for (TGGridCell* cell : {&first, &second})
            cell->GetRow()[0].SetText(L"changed");
        return 0;
    });
    EXPECT_EQ(Sorted({{1, true}, {0, true}}, 0), "changed changed changed");
}

TEST_F(HeaderSort, AComparisonThatThrows_LeavesTheRowsAndForgetsTheOrder)
{
    Make({{L"b", L"a", L"c"}});
    Sorted({{0, true}});
    sorting.SetComparison(0, [](TGGridCell&, TGGridCell&) -> int { throw 7; });
    EXPECT_THROW(sorting.Sort({{0, false}}), int);
    EXPECT_TRUE(sorting.GetKeys().empty());
    sorting.SetComparison(0, TGSortBy::Ordinal);
    EXPECT_EQ(Sorted({{0, false}}), "c b a");
    EXPECT_EQ(Sorted({}), "a b c");
}

TEST_F(HeaderSort, AHookThatRemovesTheColumnWhenRowsAreSorted)
{
    Make({{L"b", L"a"}, {L"1", L"2"}});
    grid.actions["OnDataChanged"] = [&] {
        grid.actions.clear();
        grid.DelCol(0);
    };
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_TRUE(sorting.GetKeys().empty());
    EXPECT_EQ(Texts(), "2 1");
}

TEST_F(HeaderSort, AHookThatSortsAgain_IsRefused)
{
    Make({{L"b", L"a"}});
    bool nested = true;
    grid.actions["OnDataChanged"] = [&] { nested = sorting.Sort({}); };
    EXPECT_EQ(Sorted({{0, true}}), "a b");
    EXPECT_FALSE(nested);
}

TEST(HeaderSortAttaching, TwiceOrToTwoGrids_AndAfterTheGrid)
{
    TGHeaderSort sorting;
    {
        ModelGrid grid;
        ModelGrid other;
        EXPECT_TRUE(sorting.AttachTo(grid));
        EXPECT_FALSE(sorting.AttachTo(grid));
        EXPECT_FALSE(sorting.AttachTo(other));
        AddCols(grid, 1);
        grid.SetRowNum(3);
        EXPECT_TRUE(sorting.Sort({{0, true}}));
    }
    EXPECT_EQ(sorting.GetGrid(), nullptr);
    EXPECT_TRUE(sorting.GetKeys().empty());
    EXPECT_FALSE(sorting.Sort({}));
}

} // namespace
} // namespace quor::test
