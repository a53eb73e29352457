// Copies hold what was there when they were made, whoever asks for it, and whatever has become of the grid.
#include "tests/clipboard/ClipboardTest.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// More cells than are read at once.
constexpr long Rows = 2001;
constexpr long Cols = 10;

class LateRendering : public ClipboardTest
{
protected:
    // Two texts in each row, because the checked variant takes its time for each.
    void MakeLarge()
    {
        Make(0, Cols);
        grid.SetRowNum(Rows);
        expected.clear();
        for (long row = 0; row < Rows; ++row)
        {
            const std::wstring number = std::to_wstring(row);
            grid.GetCell(row, 0).SetText((number + L",0").c_str());
            grid.GetCell(row, 1).SetText((number + L",1").c_str());
            expected += number + L",0\t" + number + L",1" + std::wstring(Cols - 2, L'\t') + L"\r\n";
        }
        ASSERT_EQ(Text(clipboard.CopyAll()), "done 20010");
    }
    std::wstring expected;
};

TEST_F(LateRendering, AnotherThread_GetsTheCells)
{
    MakeLarge();
    std::wstring text;
    InAnotherThread([&](HWND window) {
        if (!::OpenClipboard(window))
            return;
        const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT);
        if (memory != nullptr)
        {
            text = static_cast<const wchar_t*>(::GlobalLock(memory));
            ::GlobalUnlock(memory);
        }
        ::CloseClipboard();
    });
    EXPECT_TRUE(text == expected);
}

TEST_F(LateRendering, ChangedTexts_AreTheOldOnes)
{
    MakeLarge();
    grid.GetCell(5, 5).SetText(L"new");
    grid.GetCell(5, 5).SetText(L"newer");
    grid.GetCell(Rows - 1, 0) = grid.GetCell(0, 0);
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, MoreChangesThanAreKept_AreTheOldTexts)
{
    MakeLarge();
    for (long row = 0; row < Rows; ++row)
        for (long col = 0; col < 3; ++col)
            grid.GetCell(row, col).SetText(L"new");
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, RowsThatMoveComeAndGo_DoNotMatter)
{
    MakeLarge();
    grid.MoveRow(0, 10);
    grid.InsertRow(3, nullptr);
    EXPECT_TRUE(BytesOnClipboard(CsvFormat()).find("\"0,0\",\"0,1\"") == 0);
    grid.DelRow(20);
    grid.Clear();
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, AnOrderThatChanges_DoesNotMatter)
{
    MakeLarge();
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, ColumnsThatMoveComeAndGo_DoNotMatter)
{
    MakeLarge();
    grid.MoveCol(0, 4);
    grid.InsertCol(1, L"new", 50);
    EXPECT_TRUE(BytesOnClipboard(CsvFormat()).find("\"0,0\",\"0,1\"") == 0);
    grid.DelCol(2);
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, RowsInTheRowBuffer_AreStillWhatTheyWere)
{
    MakeLarge();
    grid.SelectRow(7, true);
    grid.DoClip();
    (*grid.GetRowPaste().begin())->operator[](0).SetText(L"changed in the buffer");
    grid.GetRowPaste().Clear();
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, WithoutTheGridsWindow_GoesOn)
{
    MakeLarge();
    grid.DestroyWindow();
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, ADetachedExtension_StillRenders)
{
    MakeLarge();
    clipboard.Detach();
    grid.Clear();
    EXPECT_TRUE(TextOnClipboard() == expected);
}

TEST_F(LateRendering, AGridThatGoes_LeavesItsCells)
{
    EmptyClipboardContent();
    {
        TGGrid other;
        AddCols(other, Cols);
        other.SetRowNum(Rows);
        other.GetCell(Rows - 1, 1).SetText(L"last");
        clipboard.AttachTo(other);
        clipboard.CopyAll();
    }
    EXPECT_EQ(clipboard.GetGrid(), nullptr);
    const std::wstring text = TextOnClipboard();
    EXPECT_NE(text.find(L"\tlast\t"), std::wstring::npos);
}

// The window that owns the clipboard goes with the extension: the platform asks it for everything before.
TEST_F(LateRendering, AnExtensionThatGoes_RendersAllFormatsBefore)
{
    MakeLarge();
    {
        TGClipboard other(grid);
        other.CopyAll();
    }
    grid.Clear();
    EXPECT_EQ(TextOnClipboard().substr(0, 8), L"0,0\t0,1\t");
    EXPECT_EQ(BytesOnClipboard(OwnFormat()).substr(0, 8), "QCELPACK");
    EXPECT_EQ(BytesOnClipboard(CsvFormat()).substr(0, 6), "\"0,0\",");
}

TEST_F(LateRendering, EveryFormat_IsRenderedWhenItIsAskedFor)
{
    MakeLarge();
    grid.GetCell(0, 0).SetText(L"new");
    EXPECT_EQ(BytesOnClipboard(CsvFormat()).substr(0, 6), "\"0,0\",");
    EXPECT_TRUE(TextOnClipboard() == expected);
    EXPECT_NE(BytesOnClipboard(HtmlFormat()).find("0,0"), std::string::npos);
    EXPECT_EQ(BytesOnClipboard(OwnFormat()).substr(0, 8), "QCELPACK");
    EXPECT_TRUE(TextOnClipboard() == expected) << "once more";
}

TEST_F(LateRendering, WhatAnotherProgramCopies_EndsTheOffer)
{
    MakeLarge();
    PutText(L"other");
    grid.GetCell(0, 0).SetText(L"new");
    EXPECT_EQ(TextOnClipboard(), L"other");
    EXPECT_FALSE(HasFormat(OwnFormat()));
}

TEST_F(LateRendering, ASecondCopy_TakesTheFirstOnesPlace)
{
    MakeLarge();
    Select(0, 0, 0, 0);
    clipboard.Copy();
    EXPECT_EQ(TextOnClipboard(), L"0,0\r\n");
    clipboard.CopyAll();
    grid.GetCell(0, 0).SetText(L"new");
    EXPECT_TRUE(TextOnClipboard() == expected);
}

} // namespace
} // namespace quor::test
