// What extensions have to do with edits, with each other, and with where texts stand.
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGColumnWidths.h"
#include "grid/extras/TGTextTips.h"
#include "tests/extras/ExtraGrid.h"
#include "tests/extras/RecordingExtension.h"

#include <set>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Says what a test wants, and writes its name into a list when a menu is extended.
class SayingExtension : public RecordingExtension
{
public:
    std::function<bool(Cell&, TGEditWay)> edit;
    std::function<void(TGTextLook&)> look;
    std::function<void()> caption;
    std::function<void(Cell&, const CRect&)> content;
    std::function<void()> sorted;
    std::set<const Row*> deleted;
    CPoint currentCell{-1, -1};
    bool first = false;

protected:
    bool OnEdit(Cell& cell, TGEditWay way) override { return edit && edit(cell, way); }
    void OnCellLook(Cell&, TGTextLook& changed) override
    {
        if (look)
            look(changed);
    }
    void OnCaptionLook(Col&, TGTextLook&) override
    {
        if (caption)
            caption();
    }
    bool OnDrawContent(Cell& cell, CDC&, const CRect& place, const TGTextLook&) override
    {
        if (content)
            content(cell, place);
        return false;
    }
    void OnTextChanged(Cell&, const CString&) override
    {
        if (sorted)
            sorted();
    }
    bool OnCurrentCell(long& row, long& col) const override
    {
        row = currentCell.y;
        col = currentCell.x;
        return row >= 0;
    }
    void OnRowDeleted(const Row* row) override { deleted.insert(row); }
    bool IsCalledFirst() const override { return first; }
};

class EditingSeams : public ExtraTest<SayingExtension>
{
};

TEST_F(EditingSeams, AnEditThatAnExtensionRefuses_AsksNoHook)
{
    Make();
    std::vector<TGEditWay> ways;
    extra.edit = [&](TGGridCell& cell, TGEditWay way) {
        ways.push_back(way);
        return cell.GetColIndex() == 1;
    };
    grid.TakeLog();
    grid.BeginEditCell(0, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(extra.TypeInto(grid.GetCell(0, 1), L"typed"));
    EXPECT_EQ(grid.TakeEditText().find("OnBeforeEdit"), std::string::npos);
    EXPECT_EQ(ways, (std::vector{TGEditWay::Editor, TGEditWay::Text}));
    EXPECT_EQ(TextOf(grid, 0, 1), L"0,1");
    EXPECT_TRUE(extra.TypeInto(grid.GetCell(0, 2), L"typed"));
    grid.BeginEditCell(0, 2);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(EditingSeams, ReadOnlyCells_AreNotAskedFor)
{
    Make();
    int asked = 0;
    extra.edit = [&](TGGridCell&, TGEditWay) { return ++asked > 0; };
    grid.GetCell(0, 1).SetReadOnly(true);
    grid.BeginEditCell(0, 1);
    extra.TypeInto(grid.GetCell(0, 1), L"typed");
    EXPECT_EQ(asked, 0);
}

TEST_F(EditingSeams, ACellThatGoesWhileItIsAskedFor_IsNotEdited)
{
    Make();
    extra.edit = [&](TGGridCell&, TGEditWay) {
        grid.DelRow(0);
        return false;
    };
    grid.BeginEditCell(0, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(extra.TypeInto(grid.GetCell(0, 1), L"typed"));
    EXPECT_EQ(grid.GetRowNum(), 2);
}

TEST_F(EditingSeams, TheCurrentCell_IsTheFirstOnesThatHasOne)
{
    Make();
    SayingExtension second;
    second.AttachTo(grid);
    long row = -1;
    long col = -1;
    EXPECT_FALSE(extra.FindCurrentCell(row, col));
    second.currentCell = CPoint(2, 3);
    EXPECT_TRUE(extra.FindCurrentCell(row, col));
    EXPECT_EQ(row, 3);
    EXPECT_EQ(col, 2);
}

TEST_F(EditingSeams, WhoIsCalledFirst_IsSo_WheneverItCame)
{
    Make();
    std::string order;
    SayingExtension second;
    SayingExtension late;
    second.first = late.first = true;
    extra.sorted = [&] {
        order += "a";
        late.AttachTo(grid);
    };
    second.sorted = [&] { order += "b"; };
    late.sorted = [&] { order += "c"; };
    grid.GetCell(0, 0).SetText(L"x");
    EXPECT_EQ(order, "a") << "who comes in a call is called from the next one on";
    second.AttachTo(grid);
    order.clear();
    grid.GetCell(0, 0).SetText(L"y");
    EXPECT_EQ(order, "cba");
}

TEST_F(EditingSeams, TheEndOfARow_IsTold_WhereverItStood)
{
    Make();
    const TGGridRow* const deleted = &grid.GetRow(0);
    grid.DelRow(0);
    EXPECT_EQ(extra.deleted.count(deleted), 1U);
    const TGGridRow* const buffered = &grid.GetRow(0);
    grid.SelectRow(0, true);
    ASSERT_TRUE(grid.DoClip());
    EXPECT_EQ(extra.deleted.count(buffered), 0U);
    grid.GetRowPaste().Clear();
    EXPECT_EQ(extra.deleted.count(buffered), 1U);
}

TEST_F(EditingSeams, AnInset_MovesTheText)
{
    Make();
    const CRect plain = Ink(1, 1);
    extra.look = [](TGTextLook& look) { look.inset = {10, -2, 0, 0}; };
    EXPECT_EQ(Ink(1, 1).left, plain.left + 10);
    EXPECT_EQ(Ink(1, 1).top, plain.top - 2);
}

// Who is asked how a text looks may detach who asks.
TEST_F(EditingSeams, ExtrasThatLoseTheirGridWhileTheyAsk_GiveUp)
{
    Make();
    TGColumnWidths widths;
    TGTextTips tips;
    TGColumnFormats formats;
    const auto detachAll = [&] {
        widths.Detach();
        tips.Detach();
        formats.Detach();
    };
    extra.look = [&](TGTextLook&) { detachAll(); };
    extra.caption = detachAll;
    for (const auto cells : {TGColumnWidths::Cells::Visible, TGColumnWidths::Cells::All})
    {
        widths.AttachTo(grid);
        EXPECT_FALSE(widths.FitCol(0, cells));
        EXPECT_EQ(grid.GetCol(0).GetWidth(), 100);
    }
    extra.caption = nullptr;
    widths.AttachTo(grid);
    EXPECT_FALSE(widths.FitCol(0));
    for (const long row : {-1L, 0L})
    {
        tips.AttachTo(grid);
        extra.caption = detachAll;
        EXPECT_EQ(tips.GetTipText(row, 0), L"");
        EXPECT_EQ(tips.GetGrid(), nullptr);
    }
    formats.AttachTo(grid);
    formats.SetFormat(0, {.checkBox = true});
    grid.GetCell(0, 0).SetText(L"1");
    SendMouse(grid, WM_LBUTTONDOWN, grid.InsideOf(0, 0).CenterPoint(), MK_LBUTTON);
    EXPECT_EQ(formats.GetGrid(), nullptr);
}

// What extensions are told of places is where texts are drawn.
TEST_F(EditingSeams, PlacesOfTexts_AreWhereTheyAreDrawn)
{
    EditGrid tree(true);
    EditTest::Create(tree);
    AddCols(tree, 2);
    TGGridTreeRow& root = AddRoot(tree, L"root");
    TGGridTreeRow& child = AddChild(root, L"child");
    AddChild(child, L"leaf");
    AddRoot(tree, L"single");
    root.UnFold();
    child.UnFold();
    extra.AttachTo(tree);
    extra.look = [](TGTextLook& look) { look.inset.left = 1; };
    int compared = 0;
    std::set<long> lefts;
    extra.content = [&](TGGridCell& cell, const CRect& place) {
        ++compared;
        lefts.insert(place.left);
        EXPECT_EQ(Text(extra.GetTextPlace(cell, extra.GetLook(cell))), Text(place));
    };
    tree.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_GE(compared, 8);
    EXPECT_GE(lefts.size(), 4U) << "levels of the tree, and the second column";
    extra.Detach();
}

} // namespace
} // namespace quor::test
