// Where a table goes that is pasted, and that every cell goes the way of typing.
#include "grid/TGUserAction.h"
#include "tests/clipboard/ClipboardTest.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class Pasting : public ClipboardTest
{
protected:
    std::string Paste(std::wstring_view text)
    {
        PutText(text);
        return Text(clipboard.Paste());
    }
};

// ---- Where it goes

TEST_F(Pasting, AtTheCurrentCell_WritesTheBlock_AndSelectsIt)
{
    Make();
    cursor.MoveTo(1, 1);
    EXPECT_EQ(Paste(L"a\tb\r\nc\td\r\n"), "done 4");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|a|b / 2,0|c|d");
    EXPECT_EQ(Selected(), "1,1-2,2");
    EXPECT_EQ(cursor.GetRow(), 1) << "the current cell stays where it was";
    EXPECT_EQ(cursor.GetCol(), 1);
}

TEST_F(Pasting, OneValue_FillsTheRange)
{
    Make();
    Select(0, 1, 2, 2);
    EXPECT_EQ(Paste(L"x"), "done 6");
    EXPECT_EQ(AllTexts(grid), "0,0|x|x / 1,0|x|x / 2,0|x|x");
    EXPECT_EQ(Selected(), "0,1-2,2");
}

TEST_F(Pasting, ABlock_IsRepeated_WhereTheRangeIsAMultiple)
{
    Make(4);
    Select(0, 0, 3, 1);
    EXPECT_EQ(Paste(L"a\nb"), "done 8");
    EXPECT_EQ(AllTexts(grid), "a|a|0,2 / b|b|1,2 / a|a|2,2 / b|b|3,2");
    Select(0, 0, 2, 0);
    EXPECT_EQ(Paste(L"c\nd"), "done 2");
    EXPECT_EQ(AllTexts(grid), "c|a|0,2 / d|b|1,2 / a|a|2,2 / b|b|3,2");
}

TEST_F(Pasting, SeveralRanges_AreFilled_OrNone)
{
    Make();
    Select(0, 0, 0, 0);
    cursor.SelectRange({2, 1, 2, 2}, true);
    EXPECT_EQ(Paste(L"x"), "done 3");
    EXPECT_EQ(AllTexts(grid), "x|0,1|0,2 / 1,0|1,1|1,2 / 2,0|x|x");
    EXPECT_EQ(Paste(L"a\tb"), "refused: different shapes, done 0");
    EXPECT_EQ(AllTexts(grid), "x|0,1|0,2 / 1,0|1,1|1,2 / 2,0|x|x");
}

TEST_F(Pasting, SelectedColumns_AreFilled)
{
    Make();
    grid.SelectCol(1, true);
    EXPECT_EQ(Paste(L"x"), "done 3");
    EXPECT_EQ(AllTexts(grid), "0,0|x|0,2 / 1,0|x|1,2 / 2,0|x|2,2");
    EXPECT_TRUE(grid.IsColSelected(1));
}

TEST_F(Pasting, ALineThatIsShorter_LeavesTheCellsBehindItsEnd)
{
    Make();
    EXPECT_EQ(Paste(L"a\tb\nc\n\nd\te\t\n"), "done 7 +1 rows");
    EXPECT_EQ(AllTexts(grid), "a|b|0,2 / c|1,1|1,2 / |2,1|2,2 / d|e|");
}

TEST_F(Pasting, BeyondTheLastColumn_Stops)
{
    Make();
    cursor.MoveTo(0, 2);
    EXPECT_EQ(Paste(L"a\tb\tc\nd\te"),
              "done 2 left 3: 0,3 BeyondLastCol 0,4 BeyondLastCol 1,3 BeyondLastCol");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|a / 1,0|1,1|d / 2,0|2,1|2,2");
    EXPECT_EQ(Selected(), "0,2-1,2");
}

// ---- Rows that are added

TEST_F(Pasting, BeyondTheLastRow_AddsRows_ByTheirHooks)
{
    Make(2);
    cursor.MoveTo(1, 0);
    grid.recording = true;
    grid.TakeLog();
    host.TakeLog();
    EXPECT_EQ(Paste(L"a\nb\nc"), "done 3 +2 rows");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / a|1,1|1,2 / b|| / c||");
    EXPECT_EQ(
        grid.TakeEditText(),
        "OnBeforeInsertRow 2 | OnBeforeInsertRow 3 | OnInsertRow 2 | OnInsertRow 3 | OnBeforeEdit 1,0 | "
        "OnModified 1,0 a | OnBeforeEdit 2,0 | OnModified 2,0 b | OnBeforeEdit 3,0 | OnModified 3,0 c | "
        "OnDataChanged");
    EXPECT_EQ(Changes(), 1);
}

TEST_F(Pasting, ARowThatIsRefused_EndsTheRows)
{
    Make(1);
    grid.beforeInsertRow = [](long position, TGGridRow*&) { return position < 2; };
    EXPECT_EQ(Paste(L"a\nb\nc\td\ne"), "done 2 +1 rows left 3: 2,0 RowRefused 2,1 RowRefused 3,0 RowRefused");
    EXPECT_EQ(grid.GetRowNum(), 2);
}

TEST_F(Pasting, AFixedNumberOfRows_AnOptionAndAReadOnlyGrid_AddNone)
{
    Make(1);
    grid.SetRowFixLength(true);
    EXPECT_EQ(Paste(L"a\nb"), "done 1 left 1: 1,0 BeyondLastRow");
    grid.SetRowFixLength(false);
    clipboard.SetAddingRows(false);
    EXPECT_EQ(Paste(L"a\nb"), "done 1 left 1: 1,0 BeyondLastRow");
    clipboard.SetAddingRows(true);
    grid.SetReadOnly(true);
    EXPECT_EQ(Paste(L"a\nb"), "done 0 left 2: 0,0 ReadOnly 1,0 BeyondLastRow");
    EXPECT_EQ(grid.GetRowNum(), 1);
}

TEST_F(Pasting, IntoAnEmptyGrid_MakesItsRows)
{
    Make(0);
    EXPECT_EQ(Paste(L"a\tb\nc\td"), "done 4 +2 rows");
    EXPECT_EQ(AllTexts(grid), "a|b| / c|d|");
}

TEST_F(Pasting, WithoutASelectedCell_GoesBehindTheLastRow)
{
    Make(1);
    cursor.Detach();
    EXPECT_EQ(Paste(L"a"), "done 1 +1 rows");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / a||");
}

TEST_F(Pasting, WithoutColumns_AddsNoRows)
{
    Make(0, 0);
    EXPECT_EQ(Paste(L"a\nb"), "done 0 left 2: 0,0 BeyondLastCol 1,0 BeyondLastCol");
    EXPECT_TRUE(grid.IsEmpty());
}

// ---- Cells that are left

TEST_F(Pasting, ReadOnlyCellsAndVetoes_AreLeft_WithTheirReasons)
{
    Make();
    grid.GetCell(0, 0).SetReadOnly(true);
    grid.beforeEdit = [](TGGridCell& cell, bool&) { return cell.GetColIndex() != 1; };
    grid.modifiedText = [](TGGridCell&, CString& text) {
        text.MakeUpper();
        return text != L"NO";
    };
    const std::string said = Paste(L"a\tb\tc\nd\te\tno");
    EXPECT_EQ(said, "done 2 left 4: 0,0 ReadOnly 0,1 NotEditable 1,1 NotEditable 1,2 Rejected");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|C / D|1,1|1,2 / 2,0|2,1|2,2");
    const TGClipboardReport report = clipboard.Paste();
    EXPECT_EQ(report.GetSkipped(), 3);
    EXPECT_EQ(report.GetRejected(), 1);
    EXPECT_EQ(report.GetBeyond(), 0);
    EXPECT_FALSE(report.IsComplete());
}

TEST_F(Pasting, TellsOfTheChange_OnceOrNotAtAll)
{
    Make();
    host.TakeLog();
    Paste(L"a\tb\nc\td");
    EXPECT_EQ(Changes(), 1);
    grid.SetReadOnly(true);
    Paste(L"a\tb\nc\td");
    EXPECT_EQ(Changes(), 0);
}

// Counts what extensions are told of.
struct CountingExtension : TGGridExtension
{
    int layouts = 0;
    int insertions = 0;
    int actions = 0;

protected:
    void OnLaidOut() override { ++layouts; }
    void OnRowsInserted(TGGridTreeRow*, long, std::span<TGGridRow* const>) override { ++insertions; }
    void OnActionBegin(TGActionKind kind) override { actions += kind == TGActionKind::Paste ? 1 : 0; }
};

TEST_F(Pasting, IsOneAction_WithOneLayout_AndOneWordOfTheRows)
{
    Make();
    CountingExtension counting;
    counting.AttachTo(grid);
    cursor.MoveTo(2, 0);
    counting.layouts = 0;
    EXPECT_EQ(Paste(L"a\nb\nc\nd\ne\nf\ng"), "done 7 +6 rows");
    EXPECT_EQ(counting.layouts, 1);
    EXPECT_EQ(counting.insertions, 1);
    EXPECT_EQ(counting.actions, 1);
}

TEST_F(Pasting, PaintsNothingMeanwhile)
{
    Make();
    grid.recording = true;
    grid.UpdateWindow();
    grid.TakeLog();
    grid.modifiedText = [this](TGGridCell&, CString&) {
        grid.UpdateWindow();
        return true;
    };
    Paste(L"a\tb\nc\td");
    EXPECT_EQ(grid.TakeText().find("OnRefresh"), std::string::npos);
    grid.UpdateWindow();
    EXPECT_NE(grid.TakeText().find("OnRefresh"), std::string::npos);
}

TEST_F(Pasting, PlacesAreBounded_CountsAreNot)
{
    Make(1);
    grid.SetReadOnly(true);
    std::wstring lines;
    for (int i = 0; i < 1500; ++i)
        lines += L"a\n";
    PutText(lines);
    const TGClipboardReport report = clipboard.Paste();
    EXPECT_EQ(report.GetLeft(), 1500);
    EXPECT_EQ(report.GetPlaces().size(), std::size_t{TGClipboardReport::MaxPlaces});
}

// ---- What other programs write

TEST_F(Pasting, TextsOfOtherPrograms)
{
    Make(4);
    EXPECT_EQ(Paste(L"\"two\r\nlines\"\t\"say \"\"a\"\"\"\r\n b \tc"), "done 4");
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"two\r\nlines");
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"say \"a\"");
    EXPECT_EQ(grid.GetCell(1, 0).GetText(), L" b ");
    cursor.MoveTo(0, 0);
    EXPECT_EQ(Paste(L"5\" pipe\t\"open"), "done 2");
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"5\" pipe");
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"\"open");
}

TEST_F(Pasting, CsvAlone_InUtf8OrTheSystemsCodePage)
{
    Make(2);
    PutBytes(CsvFormat(), "a;\"b;c\"\r\nd;\xC3\xBC\r\n");
    EXPECT_EQ(Text(clipboard.Paste()), "done 4");
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"b;c");
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"\xFC");
    PutBytes(CsvFormat(), std::string("x,\xFC", 3) + std::string("\0rest", 5));
    clipboard.Paste();
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"x");
    EXPECT_EQ(grid.GetCell(0, 1).GetText().GetLength(), 1);
}

TEST_F(Pasting, HtmlAlone)
{
    Make(2);
    PutBytes(HtmlFormat(),
             "<html><body><table><tr><td>a</td><td>b<br>c</td></tr><tr><td>d</td></tr></table>");
    EXPECT_EQ(Text(clipboard.Paste()), "done 3");
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"a");
    EXPECT_EQ(grid.GetCell(1, 0).GetText(), L"d");
}

TEST_F(Pasting, ATextOfTheHost)
{
    Make(1);
    EXPECT_EQ(Text(clipboard.PasteText(L"a\tb")), "done 2");
    EXPECT_EQ(AllTexts(grid), "a|b|0,2");
}

TEST_F(Pasting, AnOpenEdit_IsCommittedBefore)
{
    Make();
    grid.BeginEditCell(0, 0);
    grid.Enter(L"typed");
    cursor.MoveTo(1, 0);
    grid.BeginEditCell(0, 0);
    grid.Enter(L"typed");
    EXPECT_EQ(Paste(L"a"), "done 1");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"typed");
    EXPECT_EQ(grid.GetCell(1, 0).GetText(), L"a");
}

TEST_F(Pasting, FromItself_RoundTrip_KeepsEveryText)
{
    Make(2, 2);
    const wchar_t* const texts[] = {L"\"", L"a\tb\r\n", L"  ", L""};
    for (long i = 0; i < 4; ++i)
        grid.GetCell(i / 2, i % 2).SetText(texts[i]);
    clipboard.CopyAll();
    cursor.MoveTo(2, 0);
    cursor.MoveTo(1, 0);
    EXPECT_EQ(Text(clipboard.Paste()), "done 4 +1 rows");
    for (long i = 0; i < 4; ++i)
        EXPECT_EQ(grid.GetCell(1 + i / 2, i % 2).GetText(), texts[i]) << i;
}

} // namespace
} // namespace quor::test
