// What extensions do to a grid with a window: messages, overlay, looks, tips, menus, order; and that a grid
// without any is what it was.
#include "tests/extras/RecordingExtension.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"
#include "tests/support/MenuProbe.h"

#include <algorithm>
#include <cstdlib>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 128, 0);

// Answers what a test wants.
class AnsweringExtension : public RecordingExtension
{
public:
    std::function<bool(MSG&)> pretranslate;
    std::function<bool(CWnd&, UINT, WPARAM, LRESULT&)> message;
    std::function<void(Cell&, TGTextLook&)> cellLook;
    std::function<bool(Cell&, CDC&, const CRect&)> content;
    std::function<void(CDC&, const CRect&)> overlay;
    std::function<void(Col&, TGTextLook&)> captionLook;
    std::function<void(CDC&, const CRect&)> caption;
    std::function<bool(TGGridPlace, long, long, CString&)> tip;
    std::function<void(TGGridPlace, CMenu&)> menu;
    std::function<bool(TreeRow*, std::span<Row*>, bool)> sort;

protected:
    bool OnPreTranslate(MSG& msg) override { return pretranslate && pretranslate(msg); }
    bool OnMessage(CWnd& window, UINT code, WPARAM wParam, LPARAM, LRESULT& result) override
    {
        return message && message(window, code, wParam, result);
    }
    void OnCellLook(Cell& cell, TGTextLook& look) override
    {
        if (cellLook)
            cellLook(cell, look);
    }
    bool OnDrawContent(Cell& cell, CDC& context, const CRect& place, const TGTextLook&) override
    {
        return content && content(cell, context, place);
    }
    void OnDrawOverlay(CDC& context, const CRect& area) override
    {
        if (overlay)
            overlay(context, area);
    }
    void OnCaptionLook(Col& col, TGTextLook& look) override
    {
        if (captionLook)
            captionLook(col, look);
    }
    void OnDrawCaption(Col&, CDC& context, const CRect& box) override
    {
        if (caption)
            caption(context, box);
    }
    bool OnTip(TGGridPlace place, long row, long col, CString& text) override
    {
        return tip && tip(place, row, col, text);
    }
    void OnMenu(TGGridPlace place, CMenu& shown) override
    {
        if (menu)
            menu(place, shown);
    }
    bool OnSort(TreeRow* parent, std::span<Row*> rows, bool ascending) override
    {
        return sort && sort(parent, rows, ascending);
    }
};

class Seams : public EditTest
{
protected:
    void Make(long rows = 3)
    {
        EditTest::Make(grid, rows, 3);
        extension.AttachTo(grid);
        extension.Take();
    }
    Snapshot Picture()
    {
        grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return Snapshot(grid);
    }

    EditGrid grid;
    AnsweringExtension extension;
};

// ---- Messages

TEST_F(Seams, AMessageThatAnExtensionAnswers_DoesNotReachTheGrid)
{
    Make();
    extension.message = [](CWnd&, UINT code, WPARAM, LRESULT& result) {
        result = 7;
        return code == WM_LBUTTONDOWN;
    };
    EXPECT_EQ(SendMouse(grid, WM_LBUTTONDOWN, grid.InsideOf(1, 1).CenterPoint()), 7);
    EXPECT_FALSE(grid.IsEditing());
    extension.message = nullptr;
    SendMouse(grid, WM_LBUTTONDOWN, grid.InsideOf(1, 1).CenterPoint());
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(Seams, MessagesOfHeaderWindows_ComeByAsWell)
{
    Make();
    std::vector<int> seen;
    extension.message = [&](CWnd& window, UINT code, WPARAM, LRESULT&) {
        if (code == WM_USER)
            seen.push_back(window.GetDlgCtrlID());
        return false;
    };
    for (const int id : {102, 103, 104})
        grid.GetDlgItem(id)->SendMessage(WM_USER);
    EXPECT_EQ(seen, (std::vector{102, 103, 104}));
}

TEST_F(Seams, AKeyInTheEditor_IsOfferedBeforeTheGrid)
{
    Make();
    grid.BeginEditCell(0, 0);
    extension.pretranslate = [&](MSG& message) {
        return message.message == WM_KEYDOWN && message.wParam == VK_TAB &&
               message.hwnd == grid.EditorWindow()->GetSafeHwnd();
    };
    PostKey(*grid.EditorWindow(), VK_TAB);
    PumpPending();
    EXPECT_EQ(grid.GetCurColIndex(), 0);
    extension.pretranslate = nullptr;
    PostKey(*grid.EditorWindow(), VK_TAB);
    PumpPending();
    EXPECT_EQ(grid.GetCurColIndex(), 1);
}

// ---- Looks

TEST_F(Seams, TheLookOfACell_ChangesColoursTextAndPlace)
{
    Make();
    extension.cellLook = [](TGGridCell& cell, TGTextLook& look) {
        if (cell.GetRowIndex() != 1 || cell.GetColIndex() != 1)
            return;
        EXPECT_EQ(look.text, cell.GetText());
        look.backColor = green;
        look.textColor = red;
        look.text = L"MM";
        look.format = (look.format & ~static_cast<UINT>(DT_CENTER)) | DT_RIGHT;
    };
    const Snapshot picture = Picture();
    CRect inside = grid.InsideOf(1, 1);
    EXPECT_GT(picture.CountColour(inside, green), 0);
    inside.left = inside.CenterPoint().x;
    EXPECT_GT(picture.CountColour(inside, red), 0);
    inside.OffsetRect(-inside.Width(), 0);
    EXPECT_EQ(picture.CountColour(inside, red), 0);
    EXPECT_EQ(picture.CountColour(grid.InsideOf(1, 2), green), 0);
    EXPECT_EQ(picture.CountColour(grid.InsideOf(0, 1), red), 0);
}

TEST_F(Seams, ContentThatAnExtensionDraws_StandsInPlaceOfTheText)
{
    Make();
    extension.content = [](TGGridCell& cell, CDC&, const CRect&) { return cell.GetColIndex() == 1; };
    const Snapshot picture = Picture();
    EXPECT_TRUE(picture.IsAll(grid.InsideOf(1, 1), white));
    EXPECT_FALSE(picture.IsAll(grid.InsideOf(1, 0), white));
}

TEST_F(Seams, TheOverlay_LiesOverCellsAndSelection_WhereverItIsScrolledTo)
{
    Make(40);
    extension.overlay = [](CDC& context, const CRect&) {
        context.FillSolidRect(CRect(0, 30 * 20, 50, 31 * 20), red);
    };
    grid.SelectRow(30, true);
    Snapshot picture = Picture();
    const CPoint place = grid.ToClient(10, 30 * 20 + 10);
    EXPECT_EQ(picture.At(place.x, place.y), red);
    grid.MoveView(0, 40);
    picture = Picture();
    EXPECT_EQ(picture.At(place.x, place.y - 40), red);
}

TEST_F(Seams, ACellDrawnByItself_KeepsTheOverlayOnIt)
{
    Make();
    extension.overlay = [](CDC& context, const CRect&) { context.FillSolidRect(CRect(0, 0, 300, 60), red); };
    Picture();
    int drawn = 0;
    extension.overlay = [&](CDC& context, const CRect& area) {
        ++drawn;
        EXPECT_LE(area.Width(), 101);
        context.FillSolidRect(CRect(0, 0, 300, 60), green);
    };
    grid.GetCell(1, 1).Refresh();
    EXPECT_EQ(drawn, 1);
    extension.overlay = [](CDC&, const CRect&) {};
    const Snapshot picture(grid);
    EXPECT_TRUE(picture.IsAll(grid.InsideOf(1, 1), green));
    EXPECT_TRUE(picture.IsAll(grid.InsideOf(1, 2), red));
}

TEST_F(Seams, Selecting_DoesNotInvertTheOverlay)
{
    Make();
    extension.overlay = [](CDC& context, const CRect&) { context.FillSolidRect(CRect(0, 20, 50, 40), red); };
    Picture();
    grid.SelectRow(1, true);
    const Snapshot picture(grid);
    const CPoint place = grid.ToClient(10, 30);
    EXPECT_EQ(picture.At(place.x, place.y), red);
    EXPECT_EQ(picture.At(place.x + 60, place.y), black);
}

TEST_F(Seams, Captions)
{
    Make();
    grid.GetCol(1).SetName(L"caption");
    extension.captionLook = [](TGGridCol& col, TGTextLook& look) {
        if (col.GetIndex() == 1)
            look.textColor = red;
    };
    extension.caption = [](CDC& context, const CRect& box) {
        context.FillSolidRect(CRect(box.right - 8, 4, box.right - 4, 8), green);
    };
    const Snapshot picture = Picture();
    const CRect cell = grid.InsideOf(0, 1);
    const CRect caption(cell.left, 0, cell.right, 20);
    EXPECT_GT(picture.CountColour(caption, red), 0);
    EXPECT_GT(picture.CountColour(caption, green), 0);
}

TEST_F(Seams, WhatACaptionIsDrawnWith_IsNoMatterOfTheNext)
{
    Make();
    grid.GetCol(1).SetName(L"caption");
    extension.caption = [](CDC& context, const CRect&) { context.SetTextColor(red); };
    const Snapshot picture = Picture();
    const CRect cell = grid.InsideOf(0, 1);
    EXPECT_EQ(picture.CountColour(CRect(cell.left, 0, cell.right, 20), red), 0);
}

TEST_F(Seams, TheFontOfACell_IsNoMatterOfTheNext)
{
    Make();
    const CRect next = grid.InsideOf(0, 2);
    const Snapshot before = Picture();
    CFont large;
    large.CreatePointFont(180, L"Tahoma");
    extension.cellLook = [&large](TGGridCell& cell, TGTextLook& look) {
        if (cell.GetColIndex() == 1)
            look.font = &large;
    };
    const Snapshot after = Picture();
    for (int y = next.top; y < next.bottom; ++y)
        for (int x = next.left; x < next.right; ++x)
            ASSERT_EQ(after.At(x, y), before.At(x, y)) << x << "," << y;
}

// ---- Tips, menus, order

std::string TipAt(TGGrid& grid, CPoint point)
{
    TOOLINFO info = {};
    info.cbSize = sizeof(info);
    if (grid.OnToolHitTest(point, &info) == -1)
        return "-";
    const std::string tip = Narrow(info.lpszText);
    std::free(info.lpszText);
    return tip;
}

TEST_F(Seams, ATip_IsAskedForWhereTheHookHasNone)
{
    Make();
    const CPoint point = grid.InsideOf(1, 2).CenterPoint();
    EXPECT_EQ(TipAt(grid, point), "-");
    extension.tip = [](TGGridPlace place, long row, long col, CString& text) {
        text.Format(L"%d %ld,%ld", static_cast<int>(place), row, col);
        return true;
    };
    EXPECT_EQ(TipAt(grid, point), "0 1,2");
}

TEST_F(Seams, MenuEntries_AreShownAndChosen)
{
    Make();
    extension.menu = [&](TGGridPlace place, CMenu& menu) {
        EXPECT_EQ(place, TGGridPlace::RowHeader);
        menu.AppendMenu(MF_STRING, RecordingExtension::FirstMenuId, L"Mine");
    };
    int chosen = 0;
    extension.message = [&](CWnd&, UINT code, WPARAM id, LRESULT&) {
        chosen += code == WM_COMMAND && id == RecordingExtension::FirstMenuId ? 1 : 0;
        return false;
    };
    ASSERT_TRUE(Activate(host));
    const MenuProbe probe(RecordingExtension::FirstMenuId);
    RightClick(*grid.GetDlgItem(104), CPoint(5, 30));
    EXPECT_TRUE(probe.Chosen());
    EXPECT_EQ(chosen, 1);
}

TEST_F(Seams, AnOrder_IsTakenFromTheExtension)
{
    Make(4);
    extension.sort = [](TGGridTreeRow* parent, std::span<TGGridRow*> rows, bool ascending) {
        EXPECT_EQ(parent, nullptr);
        EXPECT_TRUE(ascending);
        std::reverse(rows.begin(), rows.end());
        return true;
    };
    grid.Arrange(true);
    EXPECT_EQ(Texts(grid), "3,0 2,0 1,0 0,0");
    std::erase(extension.log, "selected");
    EXPECT_EQ(extension.Take(), "sorted -: 3 2 1 0");
}

TEST_F(Seams, AnOrderThatIsNone_IsIgnored)
{
    Make(3);
    grid.AppendKey(0);
    extension.sort = [](TGGridTreeRow*, std::span<TGGridRow*> rows, bool) {
        rows[0] = rows[1];
        return true;
    };
    grid.Arrange(false);
    EXPECT_EQ(Texts(grid), "2,0 1,0 0,0");
}

// ---- Services

TEST_F(Seams, TypeInto_AsksAsAnEditDoes)
{
    Make();
    grid.TakeText();
    EXPECT_TRUE(extension.TypeInto(grid.GetCell(0, 0), L"x"));
    EXPECT_EQ(grid.TakeEditText(), "OnBeforeEdit 0,0 | OnModified 0,0 x");
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    EXPECT_FALSE(extension.TypeInto(grid.GetCell(0, 0), L"y"));
    grid.modifiedText = [](TGGridCell&, CString& text) {
        text += L"!";
        return true;
    };
    EXPECT_TRUE(extension.TypeInto(grid.GetCell(0, 0), L"z"));
    EXPECT_EQ(TextOf(grid, 0, 0), L"z!");
    grid.beforeEdit = [](TGGridCell&, bool&) { return false; };
    EXPECT_FALSE(extension.TypeInto(grid.GetCell(0, 0), L"v"));
    grid.beforeEdit = nullptr;
    grid.GetCell(0, 0).SetReadOnly(true);
    EXPECT_FALSE(extension.TypeInto(grid.GetCell(0, 0), L"w"));
}

TEST_F(Seams, Places)
{
    Make();
    EXPECT_EQ(extension.GetCellRect(1, 2), CRect(200, 20, 300, 40));
    EXPECT_EQ(extension.GetBlockRect(0, 0, 3, 1), CRect(0, 0, 200, 80));
    EXPECT_EQ(extension.GetCellRect(4, 0), CRect(0, 0, 0, 0));
    EXPECT_EQ(extension.GetCellRect(0, 3), CRect(0, 0, 0, 0));
    long row = -1;
    long col = -1;
    extension.PointToCell(grid.InsideOf(2, 1).CenterPoint(), row, col);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(col, 1);
}

// ---- Nothing attached

// Counts all messages of the grid's window, beside the hooks.
class CountedGrid : public EditGrid
{
public:
    std::vector<UINT> messages;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        messages.push_back(message);
        return EditGrid::WindowProc(message, wParam, lParam);
    }
};

class Untouched : public EditTest
{
protected:
    // What a user and a program do; returns the hooks, and leaves the messages in the grid.
    std::string Work(CountedGrid& grid)
    {
        Make(grid, 30, 3);
        grid.messages.clear();
        grid.UpdateWindow();
        SendMouse(grid, WM_LBUTTONDOWN, grid.InsideOf(1, 1).CenterPoint());
        grid.Enter(L"typed");
        grid.SendMessage(WM_KEYDOWN, VK_TAB);
        SendMouse(*grid.GetDlgItem(104), WM_LBUTTONDOWN, CPoint(5, 30));
        SendMouse(*grid.GetDlgItem(104), WM_LBUTTONUP, CPoint(5, 30));
        grid.SendMessage(WM_KEYDOWN, VK_INSERT);
        grid.SendMessage(WM_KEYDOWN, VK_DOWN);
        grid.SendMessage(WM_KEYDOWN, 'X');
        grid.SendMessage(WM_KEYDOWN, 'V');
        grid.SendMessage(WM_KEYDOWN, 'R');
        grid.SendMessage(WM_KEYDOWN, VK_DELETE);
        grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
        grid.UpdateWindow();
        grid.DestroyWindow();
        return grid.TakeText();
    }
};

TEST_F(Untouched, AGridThatHasHadAnExtension_HasTheSameHooksAndMessages)
{
    CountedGrid bare;
    const std::string expected = Work(bare);
    EXPECT_NE(expected.find("OnModified 1,1 typed"), std::string::npos);
    CountedGrid left;
    {
        RecordingExtension extension;
        extension.AttachTo(left);
    }
    EXPECT_EQ(Work(left), expected);
    EXPECT_EQ(left.messages, bare.messages);
}

std::string WithoutPainting(const std::string& text)
{
    std::string rest;
    std::size_t begin = 0;
    while (begin < text.size())
    {
        const std::size_t end = (std::min)(text.find(" | ", begin), text.size());
        const std::string line = text.substr(begin, end - begin);
        if (!IsPaintLine(line))
            rest += line + "\n";
        begin = end + 3;
    }
    return rest;
}

TEST_F(Untouched, AnExtensionThatOnlyListens_LeavesTheHooksAsTheyAre)
{
    CountedGrid bare;
    const std::string expected = WithoutPainting(Work(bare));
    CountedGrid watched;
    RecordingExtension extension;
    extension.AttachTo(watched);
    EXPECT_EQ(WithoutPainting(Work(watched)), expected);
}

} // namespace
} // namespace quor::test
