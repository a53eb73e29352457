// Rows of trees keep their structure, and get identifiers of their own.
#include "grid/TGTreeGrid.h"
#include "tests/clipboard/ClipboardTest.h"

#include <set>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// The first texts of a row and, in brackets, of its children; a star behind one that is folded.
std::string Tree(TGGridTreeRow& row)
{
    std::string text = Narrow(row[0].GetText());
    if (row.GetChildNum() == 0)
        return text;
    text += row.IsFold() ? "*(" : "(";
    for (long i = 0; i < row.GetChildNum(); ++i)
        text += (i > 0 ? " " : "") + Tree(row.GetChild(i));
    return text + ")";
}

std::string Trees(TGGrid& grid)
{
    std::string text;
    for (long i = 0; i < grid.GetRowNum(); ++i)
        if (!grid.GetRow(i).IsChildRow())
            text += (text.empty() ? "" : " ") + Tree(grid.GetTreeRow(i));
    return text;
}

class TreeRows : public ClipboardTest
{
protected:
    TreeRows() : ClipboardTest(true) {}

    // a(b(c d) e) f, where b is folded.
    void MakeTree()
    {
        Create(grid);
        AddCols(grid, 2);
        TGGridTreeRow& a = AddRoot(grid, L"a");
        TGGridTreeRow& b = AddChild(a, L"b");
        AddChild(b, L"c");
        AddChild(b, L"d");
        AddChild(a, L"e");
        AddRoot(grid, L"f");
        a.UnFold();
        Attach();
    }
};

TEST_F(TreeRows, WholeRows_BringWhatIsFolded)
{
    MakeTree();
    ASSERT_EQ(Trees(grid), "a(b*(c d) e) f");
    grid.SelectRow(1, true);
    EXPECT_EQ(Text(clipboard.Copy()), "done 6");
    EXPECT_EQ(TextOnClipboard(), L"b\t\r\nc\t\r\nd\t\r\n");
    grid.UnSelect();
    Select(1, 0, 1, 0);
    EXPECT_EQ(Text(clipboard.Copy()), "done 1");
    EXPECT_EQ(TextOnClipboard(), L"b\r\n") << "a cell is a cell";
}

TEST_F(TreeRows, ComeInBeforeTheCurrentRow_WithTheirStructure)
{
    MakeTree();
    for (const long row : {0L, 1L, 2L})
        grid.SelectRow(row, true);
    clipboard.Copy();
    cursor.MoveTo(3, 0);
    EXPECT_EQ(Text(clipboard.Paste()), "done 10 +5 rows");
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) a(b*(c d) e) f");
    EXPECT_EQ(Selection(grid).substr(0, 6), "rows 3") << "the new rows of the first level";
}

TEST_F(TreeRows, ComeInBesideAChild)
{
    MakeTree();
    grid.SelectRow(1, true);
    clipboard.Copy();
    cursor.MoveTo(2, 1);
    EXPECT_EQ(Text(clipboard.Paste()), "done 6 +3 rows");
    EXPECT_EQ(Trees(grid), "a(b*(c d) b*(c d) e) f");
}

TEST_F(TreeRows, ComeInAtTheEnd_OrAsChildren)
{
    MakeTree();
    grid.SelectRow(1, true);
    clipboard.Copy();
    grid.UnSelect();
    cursor.MoveTo(4, 0);
    EXPECT_EQ(Text(clipboard.Paste()), "done 6 +3 rows");
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) f b*(c d)");
    cursor.MoveTo(3, 0);
    EXPECT_EQ(Text(clipboard.Paste(TGClipboard::PasteWay::ChildRows)), "done 6 +3 rows");
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) f*(b*(c d)) b*(c d)");
}

TEST_F(TreeRows, AsCells_OrInAPlainGrid_AreFlat)
{
    MakeTree();
    grid.SelectRow(1, true);
    clipboard.Copy();
    cursor.MoveTo(1, 1);
    EXPECT_EQ(Text(clipboard.Paste(TGClipboard::PasteWay::Cells)).substr(0, 6), "done 3");
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"b");
    EXPECT_EQ(grid.GetCell(3, 1).GetText(), L"d");
    EditGrid plain;
    plain.AppendCol(L"", 50);
    TGClipboard other(plain);
    EXPECT_EQ(Text(other.Paste()).substr(0, 14), "done 3 +3 rows");
    EXPECT_EQ(Texts(plain), "b c d");
}

TEST_F(TreeRows, AFixedNumberOfRows_TakesThemAsCells)
{
    MakeTree();
    grid.SelectRow(1, true);
    clipboard.Copy();
    grid.SetRowFixLength(true);
    cursor.MoveTo(2, 0);
    EXPECT_EQ(Text(clipboard.Paste()).substr(0, 13), "done 4 left 2");
    EXPECT_EQ(Trees(grid), "a(b*(c d) b) c");
    EXPECT_EQ(Text(clipboard.Paste(TGClipboard::PasteWay::Rows)), "refused: not allowed, done 0");
}

TEST_F(TreeRows, AGridWhoseUsersPasteNoRows_RefusesThem)
{
    MakeTree();
    grid.SelectRow(1, true);
    clipboard.Copy();
    grid.UnSelect();
    grid.SetNoPaste(true);
    for (const TGClipboard::PasteWay way :
         {TGClipboard::PasteWay::Auto, TGClipboard::PasteWay::Rows, TGClipboard::PasteWay::ChildRows})
        EXPECT_EQ(Text(clipboard.Paste(way)), "refused: not allowed, done 0");
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) f");
    EXPECT_EQ(Text(clipboard.Paste(TGClipboard::PasteWay::Cells)).substr(0, 4), "done");
}

TEST_F(TreeRows, HooksMayRefuse_AllOrSome)
{
    MakeTree();
    grid.SelectRow(0, true);
    grid.SelectRow(1, true);
    clipboard.Copy();
    cursor.MoveTo(3, 0);
    grid.recording = true;
    grid.vetoes.insert("OnBeforePaste");
    EXPECT_EQ(Text(clipboard.Paste()), "refused: not allowed, done 0");
    grid.vetoes = {"OnBeforeInsertChild"};
    EXPECT_EQ(Text(clipboard.Paste()),
              "done 2 +1 rows left 6: -1,0 RowRefused -1,1 RowRefused -1,0 RowRefused -1,1 RowRefused "
              "-1,0 RowRefused -1,1 RowRefused");
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) a f");
    grid.vetoes = {};
    grid.TakeLog();
    cursor.MoveTo(0, 0);
    clipboard.Paste();
    const std::string log = grid.TakeEditText();
    EXPECT_LT(log.find("OnBeforePaste 0 |"), log.find("OnBeforeInsertRow")) << log;
    EXPECT_NE(log.find("OnBeforeInsertRow 0 | OnInsertRow 0 |"), std::string::npos) << log;
    EXPECT_NE(log.find("OnBeforeInsertChild a 0"), std::string::npos) << log;
    EXPECT_NE(log.find("OnEndPaste | OnDataChanged"), std::string::npos) << log;
}

TEST_F(TreeRows, HooksThatDeleteWhatHasComeIn)
{
    MakeTree();
    grid.SelectRow(0, true);
    grid.SelectRow(1, true);
    clipboard.Copy();
    cursor.MoveTo(3, 0);
    grid.modifiedText = [this](TGGridCell& cell, CString& text) {
        if (text == L"c")
            grid.DelRowEx(cell.GetRow().IsChildRow() ? 3 : 0);
        return true;
    };
    const TGClipboardReport report = clipboard.Paste();
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) f");
    EXPECT_EQ(report.GetDone() + report.GetLeft(), 8);
    EXPECT_GT(report.GetLeft(), 0);
    grid.modifiedText = [this](TGGridCell&, CString&) {
        grid.Clear();
        return true;
    };
    cursor.MoveTo(3, 0);
    EXPECT_GT(clipboard.Paste().GetLeft(), 0);
    grid.modifiedText = nullptr;
}

// The levels of a selection that begins with a child.
TEST_F(TreeRows, AChildAndARoot_StandBesideEachOther)
{
    MakeTree();
    grid.SelectRow(2, true);
    grid.SelectRow(3, true);
    clipboard.Copy();
    cursor.MoveTo(4, 0);
    EXPECT_EQ(Text(clipboard.Paste()), "done 4 +2 rows");
    EXPECT_EQ(Trees(grid), "a(b*(c d) e) f e f");
}

TEST_F(TreeRows, PlainRowsThatAHookSupplies_GetNoChildren)
{
    MakeTree();
    grid.SelectRow(1, true);
    clipboard.Copy();
    cursor.MoveTo(4, 0);
    grid.beforeInsertRow = [this](long, TGGridRow*& row) {
        row = new TGGridRow(grid);
        return true;
    };
    EXPECT_EQ(Text(clipboard.Paste()), "done 6 +3 rows");
    EXPECT_EQ(Texts(grid), "a b e f b c d");
}

TEST(TreeGridRows, GetIdentifiersOfTheirOwn)
{
    EmptyClipboardContent();
    TGTreeGrid tree(true);
    AddCols(tree, 2);
    TGGridTreeRow& group = AddRoot(tree, L"group");
    AddChild(group, L"one")[1].SetText(L"7");
    AddChild(group, L"two")[1].SetText(L"8");
    TGClipboard clipboard(tree);
    tree.SelectRow(0, true);
    clipboard.Copy();
    tree.UnSelect();
    EXPECT_EQ(Text(clipboard.Paste()), "done 6 +3 rows");
    ASSERT_EQ(Trees(tree), "group*(one two) group*(one two)");
    std::set<int> identifiers;
    for (long i = 0; i < 2; ++i)
        for (long k = 0; k < 2; ++k)
            identifiers.insert(static_cast<int>(tree.GetTreeRow(i).GetChild(k)[1]));
    EXPECT_EQ(identifiers, (std::set{7, 8, 9, 10}));
    EXPECT_TRUE(tree.IsModified());
}

TEST_F(TreeRows, Cutting_TakesTheRowsWithTheirOffspring)
{
    MakeTree();
    grid.SelectRow(1, true);
    EXPECT_EQ(Text(clipboard.Cut()), "done 0 -3 rows");
    EXPECT_EQ(Trees(grid), "a(e) f");
    cursor.MoveTo(2, 0);
    EXPECT_EQ(Text(clipboard.Paste()), "done 6 +3 rows");
    EXPECT_EQ(Trees(grid), "a(e) b*(c d) f");
}

} // namespace
} // namespace quor::test
