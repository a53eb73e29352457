// What OnCurChanged sees while rows go: the rows, the current row and the row buffer of that moment.
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::string BufferTexts(TGGrid& grid)
{
    std::string texts;
    for (TGGridRow* row : grid.GetRowPaste())
        texts += Narrow((*row)[0].GetText());
    return texts;
}

class RemovalMoments : public testing::TestWithParam<bool>
{
protected:
    RemovalMoments() : grid(GetParam()) { AddCols(grid, 1); }

    // Writes "texts of the rows/current row/texts of the buffer" at each call from now on.
    void Watch()
    {
        grid.onCurChanged = [this] {
            seen += (seen.empty() ? "" : " | ") + Texts(grid) + "/" + std::to_string(grid.GetCurRowIndex()) +
                    "/" + BufferTexts(grid);
        };
    }

    ModelGrid grid;
    std::string seen;
};

class TreeRemovalMoments : public RemovalMoments
{
protected:
    // r(x y z) s, with r unfolded.
    TreeRemovalMoments()
    {
        root = &AddRoot(grid, L"r");
        for (const wchar_t* text : {L"x", L"y", L"z"})
            AddChild(*root, text);
        AddRoot(grid, L"s");
        root->UnFold();
    }

    TGGridTreeRow* root;
};

INSTANTIATE_TEST_SUITE_P(Grid, RemovalMoments, testing::Bool());
INSTANTIATE_TEST_SUITE_P(Grid, TreeRemovalMoments, testing::Values(true));

TEST_P(TreeRemovalMoments, FoldHidesOneChildAfterTheOther)
{
    grid.SelectRow(4, true);
    Watch();
    root->Fold();
    EXPECT_EQ(seen, "r x y z s/4/ | r y z s/3/ | r z s/2/");
    grid.onCurChanged = nullptr;
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
}

TEST_P(TreeRemovalMoments, FoldDeselectsEachChildBeforeItGoes)
{
    grid.SelectRow(2, true);
    grid.SelectRow(4, true);
    Watch();
    root->Fold();
    EXPECT_EQ(seen, "r x y z s/-1/ | r y z s/3/ | r z s/2/");
}

TEST_P(TreeRemovalMoments, DeletingAnUnfoldedParentTellsOfEachRow)
{
    grid.SelectRow(0, true);
    Watch();
    grid.DoDelete();
    EXPECT_EQ(seen, "r x y z s/-1/ | r y z s/-1/ | r z s/-1/ | r s/-1/");
    EXPECT_EQ(Texts(grid), "s");
}

TEST_P(TreeRemovalMoments, ARowsIndexIsTheOneOfTheMoment)
{
    const TGGridRow& last = grid.GetRow(4);
    std::string indices;
    grid.onCurChanged = [&] { indices += std::to_string(last.GetIndex()); };
    root->Fold();
    EXPECT_EQ(indices, "432");
    EXPECT_EQ(last.GetIndex(), 1);
}

TEST_P(TreeRemovalMoments, IndicesAreTrueBetweenTheFoldsOfOneUpdate)
{
    TGGridTreeRow& second = AddRoot(grid, L"t");
    AddChild(second, L"u");
    second.UnFold();
    TGGridTreeRow& last = AddRoot(grid, L"v");
    const TGGridUpdate update(grid);
    root->Fold();
    EXPECT_EQ(second.GetIndex(), 2);
    EXPECT_EQ(last.GetIndex(), 4);
    second.Fold();
    EXPECT_EQ(last.GetIndex(), 3);
    grid.DelRow(0);
    EXPECT_EQ(last.GetIndex(), 2);
    root = nullptr;
    grid.AppendRow(nullptr);
    EXPECT_EQ(second.GetIndex(), 1);
    EXPECT_EQ(last.GetIndex(), 2);
    EXPECT_EQ(grid.GetRow(3).GetIndex(), 3);
}

TEST_P(TreeRemovalMoments, AHookMayInsertRowsWhileOthersGo)
{
    int calls = 0;
    grid.onCurChanged = [&] {
        if (++calls == 2)
            grid.InsertRow(0, nullptr);
        Texts(grid);
    };
    root->Fold();
    EXPECT_EQ(Texts(grid), " r s");
}

TEST_P(TreeRemovalMoments, CuttingTreeRowsLetsTheBufferGrow)
{
    grid.SelectRow(0, true);
    grid.SelectRow(4, true);
    Watch();
    grid.DoClip();
    EXPECT_EQ(seen, "r x y z s/-1/ | r y z s/-1/ | r z s/-1/ | r s/-1/s | r/-1/rs");
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_P(RemovalMoments, DeletingShowsTheRowsOfEachMoment)
{
    AddRows(grid, "abcde");
    grid.SelectRow(1, true);
    grid.SelectRow(3, true);
    Watch();
    grid.DoDelete();
    EXPECT_EQ(seen, "a b c d e/-1/ | a b c e/-1/");
    EXPECT_EQ(Texts(grid), "a c e");
}

TEST(RemovalMomentsPlain, CuttingTellsTwiceOfEachRowWithTheBufferOfTheMoment)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "abcde");
    grid.SelectRow(1, true);
    grid.SelectRow(3, true);
    std::string seen;
    grid.onCurChanged = [&] { seen += Texts(grid) + "/" + BufferTexts(grid) + " "; };
    grid.DoClip();
    EXPECT_EQ(seen, "a b c d e/d a b c d e/d a b c e/bd a b c e/bd ");
    EXPECT_EQ(Texts(grid), "a c e");
}

TEST(RemovalMomentsPlain, AHookMayTakeEverythingAwayWhileARowIsCut)
{
    for (const int fatal : {1, 2, 3})
        for (const bool buffer : {false, true})
        {
            ModelGrid grid;
            AddCols(grid, 1);
            AddRows(grid, "abc");
            grid.SelectAll();
            int calls = 0;
            grid.onCurChanged = [&] {
                if (++calls != fatal)
                    return;
                if (buffer)
                    grid.GetRowPaste().Clear();
                else
                    grid.Clear();
            };
            grid.DoClip();
            EXPECT_TRUE(grid.IsEmpty());
        }
}

TEST(RemovalMomentsPlain, AHookMayPasteTheRowThatIsBeingCut)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "abc");
    grid.SelectRow(1, true);
    grid.onCurChanged = [&] {
        grid.onCurChanged = nullptr;
        grid.DoPaste();
    };
    grid.DoClip();
    EXPECT_EQ(Texts(grid), "a c b");
    EXPECT_TRUE(grid.GetRowPaste().IsEmpty());
}

// ---- The current row

TEST_P(RemovalMoments, TheCurrentRowFollowsItsRowWhenOthersComeAndGo)
{
    AddRows(grid, "abcd");
    grid.SelectRow(2, true);
    grid.DelRow(0);
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    grid.DelRow(2);
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    grid.InsertRow(0, nullptr);
    EXPECT_EQ(Selection(grid), "rows 2 | cur 2,-1");
    grid.DelRow(2);
    EXPECT_EQ(Selection(grid), "none | cur -1,-1");
}

TEST_P(TreeRemovalMoments, TheCurrentRowFollowsItsRowWhenChildrenAreShownAndDeleted)
{
    grid.SelectRow(4, true);
    root->DelChild(1);
    EXPECT_EQ(Selection(grid), "rows 3 | cur 3,-1");
    root->Fold();
    root->UnFold();
    EXPECT_EQ(Selection(grid), "rows 3 | cur 3,-1");
}

// ---- Many rows

double Milliseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// A quarter of the rows takes a quarter of the time, and not a sixteenth as where each row that goes costs as
// much as there are rows. Times as in slow builds: below, nothing is said.
void ExpectLinear(const char* what, const std::function<std::function<void()>(long)>& prepare)
{
#ifdef _DEBUG
    const long many = 1000;
#else
    const long many = 100000;
#endif
    const auto timeOf = [&prepare](long rows) {
        const auto work = prepare(rows);
        return Milliseconds(work);
    };
    const double few = timeOf(many / 4);
    const double all = timeOf(many);
    testing::Test::RecordProperty(what, std::to_string(all));
    std::printf("%s: %ld rows %.0f ms, %ld rows %.0f ms\n", what, many / 4, few, many, all);
    EXPECT_TRUE(all < 9 * few || all < 1000) << what;
}

struct ManyRows
{
    explicit ManyRows(bool tree) : grid(tree) { AddCols(grid, 1); }

    ModelGrid grid;
};

std::function<void()> OnRows(long rows, bool everySecond, const std::function<void(TGGrid&)>& act)
{
    auto many = std::make_shared<ManyRows>(false);
    many->grid.SetRowNum(rows);
    if (everySecond)
        for (long i = 0; i < rows; i += 2)
            many->grid.SelectRow(i, true);
    else
        many->grid.SelectAll();
    return [many, act] { act(many->grid); };
}

std::function<void()> OnChildren(long rows, const std::function<void(TGGrid&)>& act)
{
    auto many = std::make_shared<ManyRows>(true);
    TGGridTreeRow& root = AddRoot(many->grid, L"r");
    for (long i = 0; i < rows; ++i)
        root.AppendChild(nullptr);
    root.UnFold();
    for (long i = 0; i < rows; ++i)
        many->grid.AppendRow(nullptr);
    many->grid.SelectAll();
    return [many, act] { act(many->grid); };
}

TEST(RemovalOfManyRows, TakesTimeInProportion)
{
    ExpectLinear("delete all",
                 [](long rows) { return OnRows(rows, false, [](TGGrid& grid) { grid.DoDelete(); }); });
    ExpectLinear("delete every second",
                 [](long rows) { return OnRows(rows, true, [](TGGrid& grid) { grid.DoDelete(); }); });
    ExpectLinear("cut every second",
                 [](long rows) { return OnRows(rows, true, [](TGGrid& grid) { grid.DoClip(); }); });
    ExpectLinear("fold with all selected",
                 [](long rows) { return OnChildren(rows, [](TGGrid& grid) { grid.GetTreeRow(0).Fold(); }); });
    ExpectLinear("delete all children", [](long rows) {
        return OnChildren(rows, [](TGGrid& grid) {
            grid.SelectRow(0, false);
            grid.DoDelete();
        });
    });
}

// ---- Pasting at the end

class PasteWhileEditing : public EditTest
{
};

TEST_F(PasteWhileEditing, RowsGoBehindTheRowThatIsBeingTypedInReverseOrder)
{
    EditGrid grid;
    Make(grid, 2, 1);
    grid.GetCell(0, 0).SetText(L"r0");
    grid.GetCell(1, 0).SetText(L"r1");
    grid.SelectRow(0, true);
    grid.SelectRow(1, true);
    grid.DoCopy();
    grid.BeginEditCell(2, 0);
    grid.Enter(L"n");
    grid.DoPaste();
    EXPECT_EQ(Texts(grid), "r0 r1 n r1 r0");
    EXPECT_EQ(Selection(grid), "rows 3 4 | cur -1,-1");
}

} // namespace
} // namespace quor::test
