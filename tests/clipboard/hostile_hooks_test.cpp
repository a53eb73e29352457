// Hooks that change the grid while cells are pasted, filled and cut.
#include "tests/clipboard/ClipboardTest.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class HostileHooks : public ClipboardTest
{
protected:
    // Pastes four cells; `act` runs when the text of the second one is asked for.
    std::string PasteWhile(const std::function<void()>& act)
    {
        int asked = 0;
        grid.modifiedText = [&asked, act](TGGridCell&, CString&) {
            if (++asked == 2)
                act();
            return true;
        };
        PutText(L"a\tb\nc\td");
        const std::string said = Text(clipboard.Paste());
        grid.modifiedText = nullptr;
        return said;
    }
};

TEST_F(HostileHooks, ARowThatGoes_IsLeftOut)
{
    Make();
    EXPECT_EQ(PasteWhile([this] { grid.DelRow(1); }), "done 2 left 2: 1,0 Gone 1,1 Gone");
    EXPECT_EQ(AllTexts(grid), "a|b|0,2 / 2,0|2,1|2,2");
}

TEST_F(HostileHooks, TheRowOfTheCell_Too)
{
    Make();
    EXPECT_EQ(PasteWhile([this] { grid.DelRow(0); }), "done 3 left 1: 0,1 Gone");
    EXPECT_EQ(AllTexts(grid), "c|d|1,2 / 2,0|2,1|2,2");
}

TEST_F(HostileHooks, RowsThatMoveOrComeIn_DoNotShiftTheTexts)
{
    Make();
    EXPECT_EQ(PasteWhile([this] {
                  grid.InsertRow(0, nullptr);
                  grid.MoveRow(2, 4);
              }),
              "done 4");
    EXPECT_EQ(AllTexts(grid), "|| / a|b|0,2 / 2,0|2,1|2,2 / c|d|1,2");
}

TEST_F(HostileHooks, AColumnThatGoesOrComesIn)
{
    Make();
    EXPECT_EQ(PasteWhile([this] { grid.InsertCol(0, L"", 50); }), "done 4");
    EXPECT_EQ(AllTexts(grid), "|a|b|0,2 / |c|d|1,2 / |2,0|2,1|2,2");
    EXPECT_EQ(PasteWhile([this] { grid.DelCol(1); }), "done 2 left 2: 0,1 Gone 1,1 Gone");
    EXPECT_EQ(AllTexts(grid), "a|b|0,2 / c|d|1,2 / |2,1|2,2");
}

// Takes over what leaves, so that it lives on elsewhere.
struct TakingExtension : TGGridExtension
{
    ~TakingExtension() override { Detach(); }
    std::unique_ptr<TGGridRow> row;
    std::unique_ptr<TGGridCol> col;

protected:
    void OnRowsRemoved(TGRemovedRows& rows) override { row = rows.Take(0); }
    void OnColRemoved(long, std::unique_ptr<TGGridCol>& removed) override { col = std::move(removed); }
    void OnDetach(TGGrid&) override
    {
        row.reset();
        col.reset();
    }
};

TEST_F(HostileHooks, WhatAnotherExtensionTakesOver_IsLeftOut)
{
    Make();
    TakingExtension taking;
    taking.AttachTo(grid);
    EXPECT_EQ(PasteWhile([this] { grid.DelRow(1); }), "done 2 left 2: 1,0 Gone 1,1 Gone");
    ASSERT_NE(taking.row, nullptr);
    EXPECT_EQ((*taking.row)[0].GetText(), L"1,0");
    EXPECT_EQ(PasteWhile([this] { grid.DelCol(0); }), "done 3 left 1: 1,0 Gone");
    EXPECT_EQ(AllTexts(grid), "b|0,2 / d|2,2");
}

TEST_F(HostileHooks, AllRowsThatGo)
{
    Make();
    EXPECT_EQ(PasteWhile([this] { grid.Clear(); }), "done 1 left 3: 0,1 Gone 1,0 Gone 1,1 Gone");
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(HostileHooks, AWindowThatGoes_LeavesAModel)
{
    Make();
    EXPECT_EQ(PasteWhile([this] { grid.DestroyWindow(); }), "done 4");
    EXPECT_EQ(AllTexts(grid), "a|b|0,2 / c|d|1,2 / 2,0|2,1|2,2");
}

TEST_F(HostileHooks, AnExtensionThatLeaves_Ends)
{
    Make();
    EXPECT_EQ(PasteWhile([this] { clipboard.Detach(); }), "done 2 left 2: 1,0 Gone 1,1 Gone");
    EXPECT_EQ(reports, 1);
}

TEST_F(HostileHooks, AnExtensionThatIsDeleted_Ends)
{
    Make();
    clipboard.Detach();
    auto other = std::make_unique<TGClipboard>(grid);
    grid.modifiedText = [&](TGGridCell&, CString&) {
        other.reset();
        return true;
    };
    PutText(L"a\tb\nc\td");
    EXPECT_EQ(Text(other->Paste()), "done 1 left 3: 0,1 Gone 1,0 Gone 1,1 Gone");
    grid.modifiedText = nullptr;
}

TEST_F(HostileHooks, AnotherCommand_IsRefusedMeanwhile)
{
    Make();
    std::string inner;
    const std::string outer = PasteWhile([&] { inner = Text(clipboard.Paste()); });
    EXPECT_EQ(inner, "refused: running, done 0");
    EXPECT_EQ(outer, "done 4");
}

TEST_F(HostileHooks, RowsThatComeIn_MayGoAtOnce)
{
    Make(1);
    grid.insertedRow = [this](TGGridRow& row) { grid.DelRow(row.GetIndex()); };
    PutText(L"a\nb\nc");
    EXPECT_EQ(Text(clipboard.Paste()), "done 1 +2 rows left 2: 1,0 Gone 2,0 Gone");
    EXPECT_EQ(grid.GetRowNum(), 1);
}

TEST_F(HostileHooks, AHookThatThrows_EndsTheCommand_AndTheNextOneRuns)
{
    Make();
    grid.modifiedText = [](TGGridCell&, CString&) -> bool { throw std::runtime_error("no"); };
    PutText(L"a");
    EXPECT_THROW(clipboard.Paste(), std::runtime_error);
    EXPECT_FALSE(grid.IsUpdating());
    grid.modifiedText = nullptr;
    EXPECT_EQ(Text(clipboard.Paste()), "done 1");
}

TEST_F(HostileHooks, MemoryThatRunsOut_IsReported_WithWhatWasDone)
{
    Make();
    int asked = 0;
    grid.modifiedText = [&](TGGridCell&, CString&) {
        if (++asked == 3)
            throw std::bad_alloc();
        return true;
    };
    PutText(L"a\tb\nc\td");
    host.TakeLog();
    EXPECT_EQ(Text(clipboard.Paste()), "refused: memory, done 2");
    EXPECT_EQ(Changes(), 1) << "the host learns of what has changed";
}

TEST_F(HostileHooks, WhileFilling)
{
    Make();
    Select(0, 0, 2, 0);
    grid.modifiedText = [this](TGGridCell& cell, CString&) {
        if (cell.GetRowIndex() == 1)
            grid.DelRow(2);
        return true;
    };
    EXPECT_EQ(Text(clipboard.FillWith(L"x")), "done 2 left 1: 2,0 Gone");
    Select(0, 0, 1, 2);
    grid.modifiedText = [this](TGGridCell&, CString&) {
        grid.Clear();
        return true;
    };
    EXPECT_EQ(Text(clipboard.FillDown()), "done 0 left 3: 1,0 Gone 1,1 Gone 1,2 Gone");
}

TEST_F(HostileHooks, BeforeTheSecondRange_RowsMayGo)
{
    Make();
    Select(0, 0, 0, 0);
    cursor.SelectRange({2, 0, 2, 1}, true);
    grid.modifiedText = [this](TGGridCell&, CString&) {
        if (grid.GetRowNum() == 3)
            grid.DelRow(2);
        return true;
    };
    EXPECT_EQ(Text(clipboard.FillWith(L"x")), "done 1 left 2: 2,0 Gone 2,1 Gone");
}

} // namespace
} // namespace quor::test
