// Formats of columns and cells: what is shown of a text, and where.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGColumnFormats.h"
#include "tests/extras/ExtraGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 128, 0);

class ColumnFormats : public ExtraTest<TGColumnFormats>
{
protected:
    std::string Shown(const wchar_t* text, const TGColumnFormat& format, const wchar_t* locale = L"en-US")
    {
        EXPECT_TRUE(extra.SetLocale(locale));
        EXPECT_TRUE(extra.SetFormat(0, format));
        grid.GetCell(0, 0).SetText(text);
        EXPECT_EQ(TextOf(grid, 0, 0), text);
        return Narrow(extra.GetShownText(0, 0));
    }
};

// ---- Values

TEST_F(ColumnFormats, Numbers_InTheLocale)
{
    Make();
    const TGColumnFormat format{.kind = TGValueKind::Number, .decimals = 2};
    EXPECT_EQ(Shown(L"1234.5", format), "1,234.50");
    EXPECT_EQ(Shown(L"1234.5", format, L"de-DE"), "1.234,50");
    EXPECT_EQ(Shown(L"-1234567.891", format), "-1,234,567.89");
    EXPECT_EQ(Shown(L"1234.5", {.kind = TGValueKind::Number, .grouping = false}), "1234.5");
    EXPECT_EQ(Shown(L"12 kg", format), "12 kg");
    EXPECT_EQ(Shown(L"", format), "");
}

TEST_F(ColumnFormats, Percents)
{
    Make();
    EXPECT_EQ(Shown(L"0.125", {.kind = TGValueKind::Percent, .decimals = 1}), "12.5%");
    EXPECT_EQ(Shown(L"half", {.kind = TGValueKind::Percent}), "half");
}

TEST_F(ColumnFormats, Dates)
{
    Make();
    EXPECT_EQ(Shown(L"2026-02-28", {.kind = TGValueKind::Date}), "2/28/2026");
    EXPECT_EQ(Shown(L"2026-02-28 13:05", {.kind = TGValueKind::Date}, L"en-GB"), "28/02/2026");
    EXPECT_EQ(Shown(L"2026-02-28 13:05", {.kind = TGValueKind::DateTime}, L"en-GB"), "28/02/2026 13:05");
    EXPECT_EQ(Shown(L"2026-02-28", {.kind = TGValueKind::Date, .datePicture = L"yyyy/MM"}), "2026/02");
    EXPECT_EQ(Shown(L"2026-02-30", {.kind = TGValueKind::Date}), "2026-02-30");
    EXPECT_EQ(Shown(L"2026-02-28", {.kind = TGValueKind::Date, .datePicture = L"''"}), "") << "of no words";
}

TEST_F(ColumnFormats, TruthValues)
{
    Make();
    EXPECT_EQ(Shown(L"1", {.kind = TGValueKind::Truth}), "True");
    EXPECT_EQ(Shown(L"no", {.kind = TGValueKind::Truth}), "False");
    EXPECT_EQ(Shown(L"no", {.kind = TGValueKind::Truth, .trueText = L"ja", .falseText = L"nein"}), "nein");
    EXPECT_EQ(Shown(L"maybe", {.kind = TGValueKind::Truth}), "maybe");
}

TEST_F(ColumnFormats, ALocaleThatThereIsNot_IsRefused)
{
    Make();
    EXPECT_FALSE(extra.SetLocale(L"no-such-locale!"));
    EXPECT_TRUE(extra.SetLocale(nullptr));
}

TEST_F(ColumnFormats, TheEditorHasTheTextOfTheCell)
{
    Make();
    extra.SetFormat(0, {.kind = TGValueKind::Number, .decimals = 2});
    grid.GetCell(0, 0).SetText(L"1234.5");
    grid.BeginEditCell(0, 0);
    ASSERT_NE(grid.EditorWindow(), nullptr);
    CString text;
    grid.EditorWindow()->GetWindowText(text);
    EXPECT_EQ(text, L"1234.5");
}

// ---- Places

TEST_F(ColumnFormats, Alignment)
{
    Make();
    const CRect inside = grid.InsideOf(1, 1);
    const long left = Ink(1, 1).left - inside.left;
    EXPECT_LE(left, 6);
    extra.SetFormat(1, {.align = TGAlign::Right});
    EXPECT_LE(inside.right - Ink(1, 1).right, 6);
    EXPECT_GT(Ink(1, 1).left, inside.CenterPoint().x);
    extra.SetFormat(1, {.align = TGAlign::Center});
    EXPECT_NEAR(Ink(1, 1).CenterPoint().x, inside.CenterPoint().x, 3);
    extra.SetFormat(1, {.kind = TGValueKind::Number});
    EXPECT_GT(Ink(1, 1).left, inside.CenterPoint().x) << "numbers stand at the right";
    EXPECT_EQ(extra.GetFormat(1).kind, TGValueKind::Number);
    EXPECT_TRUE(extra.ClearFormat(1));
    EXPECT_EQ(Ink(1, 1).left - inside.left, left);
    EXPECT_FALSE(extra.ClearFormat(1));
}

TEST_F(ColumnFormats, CaptionsStandAsTheirCells_OrAsTheyShall)
{
    Make();
    grid.GetCol(1).SetName(L"cap");
    const auto ink = [&] { return InkIn(Picture(), CaptionOf(1)); };
    const CPoint middle = CaptionOf(1).CenterPoint();
    EXPECT_LT(ink().right, middle.x);
    extra.SetFormat(1, {.align = TGAlign::Right});
    EXPECT_GT(ink().left, middle.x);
    extra.SetFormat(1, {.align = TGAlign::Right, .captionAlign = TGAlign::Left});
    EXPECT_LT(ink().right, middle.x);
}

TEST_F(ColumnFormats, ANumberThatDoesNotFit_IsHidden)
{
    Make();
    grid.GetCell(1, 1).SetText(L"####");
    extra.SetFormat(1, {.align = TGAlign::Right});
    const CRect marks = Ink(1, 1);
    grid.GetCell(1, 1).SetText(L"123456789012345678901234567890");
    extra.SetFormat(1, {.kind = TGValueKind::Number});
    EXPECT_EQ(Text(Ink(1, 1)), Text(marks));
    EXPECT_EQ(Narrow(extra.GetShownText(1, 1)), "123,456,789,012,345,678,901,234,567,890");
    grid.GetCol(0).SetWidth(20);
    grid.GetCol(1).SetWidth(340);
    EXPECT_GT(Ink(1, 1).Width(), 150);
    // A text that is no number is cut as ever.
    grid.GetCol(1).SetWidth(100);
    grid.GetCell(1, 1).SetText(L"a text that is no number and not short");
    EXPECT_GT(Ink(1, 1).Width(), 80);
}

// The last pixels of what stands in an area.
CRect TailIn(const Snapshot& picture, const CRect& area)
{
    const CRect ink = InkIn(picture, area);
    return InkIn(picture, CRect((std::max)(ink.right - 7, area.left), area.top, ink.right, area.bottom));
}

TEST_F(ColumnFormats, Ellipsis)
{
    Make();
    grid.GetCell(1, 1).SetText(L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWH");
    const CRect inside = grid.InsideOf(1, 1);
    EXPECT_GT(TailIn(Picture(), inside).Height(), 4) << "cut";
    extra.SetFormat(1, {.ellipsis = TGEllipsis::End});
    const Snapshot end = Picture();
    EXPECT_LT(TailIn(end, inside).Height(), 4) << "dots at the end";
    EXPECT_GT(inside.right - InkIn(end, inside).right, 0);
    extra.SetFormat(1, {.ellipsis = TGEllipsis::Middle});
    EXPECT_GT(TailIn(Picture(), inside).Height(), 4) << "the end is there";
    grid.GetCell(1, 1).SetText(L"WWi");
    extra.SetFormat(1, {});
    const CRect plain = Ink(1, 1);
    extra.SetFormat(1, {.ellipsis = TGEllipsis::End});
    EXPECT_EQ(Text(Ink(1, 1)), Text(plain)) << "a text that fits stays";
}

// Without full lines the platform leaves out the second line, of which it would show a part.
TEST_F(ColumnFormats, CaptionsOfSeveralLines_HaveDotsInEach)
{
    Make();
    extra.SetFullLines(true);
    grid.GetCol(1).SetName(L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW\nWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
    grid.RecalcLayout(1);
    CRect first = CaptionOf(1);
    CRect second = first;
    first.bottom = second.top = first.CenterPoint().y;
    EXPECT_GT(TailIn(Picture(), first).Height(), 4);
    EXPECT_GT(TailIn(Picture(), second).Height(), 4);
    extra.SetFormat(1, {.captionEllipsis = TGEllipsis::End});
    for (const CRect& line : {first, second})
    {
        const CRect tail = TailIn(Picture(), line);
        EXPECT_LT(tail.Height(), 4);
        EXPECT_GT(tail.Height(), 0);
    }
}

// ---- Full lines

TEST_F(ColumnFormats, FullLines_ShowWhatLettersHaveBelow)
{
    Make();
    CFont tall;
    tall.CreatePointFont(240, L"Tahoma");
    grid.SetFont(&tall);
    const long height = grid.GetRowHeight();
    grid.GetCell(1, 1).SetText(L"x");
    const CRect letters = Ink(1, 1);
    grid.GetCell(1, 1).SetText(L"xg");
    const long cutBelow = Ink(1, 1).bottom - letters.bottom;
    extra.SetFullLines(true);
    EXPECT_GT(grid.GetRowHeight(), height);
    grid.GetCell(1, 1).SetText(L"x");
    const CRect fullLetters = Ink(1, 1);
    grid.GetCell(1, 1).SetText(L"xg");
    EXPECT_GT(Ink(1, 1).bottom - fullLetters.bottom, cutBelow);
    EXPECT_LE(Ink(1, 1).bottom, grid.InsideOf(1, 1).bottom);
    extra.SetFullLines(false);
    EXPECT_EQ(grid.GetRowHeight(), height);
}

TEST_F(ColumnFormats, FullLines_FollowTheFontAndTheRowSpace_AndGoWithTheExtension)
{
    Make();
    EXPECT_EQ(grid.GetRowSpace(), 3);
    extra.SetFullLines(true);
    const long added = grid.GetRowSpace() - 3;
    CFont tall;
    tall.CreatePointFont(240, L"Tahoma");
    grid.SetFont(&tall);
    EXPECT_GT(grid.GetRowSpace() - 3, added);
    const long tallAdded = grid.GetRowSpace() - 3;
    grid.SetRowSpace(10);
    EXPECT_EQ(grid.GetRowSpace(), 10 + tallAdded);
    extra.Detach();
    EXPECT_EQ(grid.GetRowSpace(), 10);
}

// ---- Cells

TEST_F(ColumnFormats, ColoursAndBold_OfColumnsAndCells)
{
    Make();
    extra.SetFormat(1, {.textColor = red, .backColor = RGB(250, 250, 200)});
    EXPECT_TRUE(extra.SetCellFormat(2, 1, {.backColor = green}));
    const Snapshot picture = Picture();
    EXPECT_GT(picture.CountColour(grid.InsideOf(0, 1), red), 0);
    EXPECT_GT(picture.CountColour(grid.InsideOf(0, 1), RGB(250, 250, 200)), 0);
    EXPECT_GT(picture.CountColour(grid.InsideOf(2, 1), green), 0);
    EXPECT_EQ(picture.CountColour(grid.InsideOf(2, 1), RGB(250, 250, 200)), 0);
    EXPECT_EQ(picture.CountColour(grid.InsideOf(0, 0), red), 0);
    const CRect plain = Ink(3, 2);
    extra.SetCellFormat(3, 2, {.bold = true});
    EXPECT_GT(Ink(3, 2).Width(), plain.Width());
    EXPECT_TRUE(extra.GetCellFormat(3, 2).bold);
    extra.ClearCellFormats();
    EXPECT_EQ(Text(Ink(3, 2)), Text(plain));
}

TEST_F(ColumnFormats, ACellsFormat_GoesWithItsRowAndItsColumn)
{
    Make();
    extra.SetCellFormat(2, 1, {.bold = true});
    grid.MoveRow(2, 0);
    EXPECT_TRUE(extra.GetCellFormat(0, 1).bold);
    grid.MoveCol(1, 3);
    EXPECT_TRUE(extra.GetCellFormat(0, 2).bold);
    grid.InsertRow(0, nullptr);
    grid.InsertCol(0, L"new", 50);
    EXPECT_TRUE(extra.GetCellFormat(1, 3).bold);
    grid.DelRow(1);
    for (long row = 0; row < grid.GetRowNum(); ++row)
        EXPECT_FALSE(extra.GetCellFormat(row, 3).bold);
}

TEST_F(ColumnFormats, ARowThatIsCutAndPasted_KeepsItsFormats)
{
    Make();
    extra.SetCellFormat(1, 1, {.bold = true});
    grid.SelectRow(1, true);
    EXPECT_TRUE(grid.DoClip());
    EXPECT_TRUE(grid.DoPaste());
    EXPECT_TRUE(extra.GetCellFormat(grid.GetRowNum() - 1, 1).bold);
}

// The memory of a row that went may be the next row's.
TEST_F(ColumnFormats, ANewRow_HasNoFormatOfOneThatWent)
{
    Make();
    for (int i = 0; i < 50; ++i)
    {
        extra.SetCellFormat(0, 0, {.bold = true});
        grid.DelRow(0);
        grid.InsertRow(0, nullptr);
        ASSERT_FALSE(extra.GetCellFormat(0, 0).bold);
    }
}

TEST_F(ColumnFormats, AColumnsFormat_GoesWithTheColumn)
{
    Make();
    extra.SetFormat(1, {.bold = true});
    grid.MoveCol(1, 0);
    EXPECT_TRUE(extra.GetFormat(0).bold);
    grid.DelCol(0);
    grid.InsertCol(0, L"new", 50);
    for (long col = 0; col < grid.GetColNum(); ++col)
        EXPECT_FALSE(extra.GetFormat(col).bold);
}

TEST_F(ColumnFormats, ReadOnlyCells_AreNotEdited)
{
    Make();
    extra.SetCellFormat(0, 0, {.readOnly = true});
    extra.SetFormat(1, {.readOnly = true});
    TGCellCursor cursor(grid);
    grid.TakeLog();
    for (const long col : {0L, 1L})
    {
        grid.BeginEditCell(0, col);
        EXPECT_FALSE(grid.IsEditing());
        cursor.MoveTo(0, col);
        EXPECT_EQ(cursor.EmptyRanges(), 0);
    }
    EXPECT_EQ(grid.TakeEditText().find("OnBeforeEdit"), std::string::npos);
    grid.BeginEditCell(1, 0);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(ColumnFormats, ARule_MakesFormatsOfTexts)
{
    Make();
    extra.SetRule([](const TGGridCell& cell, TGCellFormat& format) {
        if (cell.GetText() != L"2,1")
            return;
        format.backColor = red;
        format.readOnly = true;
    });
    const Snapshot picture = Picture();
    EXPECT_GT(picture.CountColour(grid.InsideOf(2, 1), red), 0);
    EXPECT_EQ(picture.CountColour(grid.InsideOf(1, 1), red), 0);
    grid.BeginEditCell(2, 1);
    EXPECT_FALSE(grid.IsEditing());
    extra.SetRule(nullptr);
    grid.BeginEditCell(2, 1);
    EXPECT_TRUE(grid.IsEditing());
}

// ---- Bad input

TEST_F(ColumnFormats, PlacesThatThereAreNot_AreRefused)
{
    EXPECT_FALSE(extra.SetFormat(0, {}));
    EXPECT_FALSE(extra.SetCellFormat(0, 0, {}));
    EXPECT_FALSE(extra.Toggle(0, 0));
    EXPECT_EQ(extra.GetShownText(0, 0), L"");
    Make();
    for (const long index : {-1L, 3L, 100L})
    {
        EXPECT_FALSE(extra.SetFormat(index, {.bold = true}));
        EXPECT_FALSE(extra.SetCellFormat(0, index, {.bold = true}));
        EXPECT_FALSE(extra.GetFormat(index).bold);
        EXPECT_FALSE(extra.ClearFormat(index));
    }
    EXPECT_FALSE(extra.SetCellFormat(grid.GetRowNum(), 0, {.bold = true})) << "the new-row line";
    EXPECT_FALSE(extra.SetCellFormat(-1, 0, {.bold = true}));
    EXPECT_FALSE(extra.Toggle(0, 0)) << "no check box";
}

TEST_F(ColumnFormats, TwiceAndToAnotherGrid_AreRefused_AndItOutlivesTheWindow)
{
    Make();
    ModelGrid other;
    EXPECT_FALSE(extra.AttachTo(grid));
    EXPECT_FALSE(extra.AttachTo(other));
    grid.DestroyWindow();
    EXPECT_TRUE(extra.SetFormat(0, {.kind = TGValueKind::Number, .decimals = 1}));
    grid.GetCell(0, 0).SetText(L"5");
    extra.SetLocale(L"en-US");
    EXPECT_EQ(extra.GetShownText(0, 0), L"5.0");
    extra.SetFullLines(true);
    extra.Detach();
    EXPECT_TRUE(extra.AttachTo(other));
}

TEST_F(ColumnFormats, IsCalledBeforeExtensionsThatCameBefore)
{
    EditTest::Make(grid);
    TGCellCursor cursor(grid);
    extra.AttachTo(grid);
    extra.SetFormat(1, {.checkBox = true});
    grid.GetCell(0, 1).SetText(L"0");
    Focus();
    Click(grid, grid.InsideOf(0, 1).CenterPoint());
    EXPECT_EQ(TextOf(grid, 0, 1), L"1");
    EXPECT_EQ(cursor.GetCol(), 1) << "the click sets the cursor as well";
}

} // namespace
} // namespace quor::test
