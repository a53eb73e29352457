// What is painted anew in the middle of a drag, and that it is painted at once, by pixels.
#include "tests/treedrag_input/DragInput.h"

#include <string>
#include <vector>

namespace
{

using namespace quor::test;

constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Red = RGB(255, 0, 0);

class DragPainting : public DragInputTest
{
protected:
    ~DragPainting() override
    {
        if (tree->IsDragging())
            tree->CompleteDrag(FALSE);
    }

    // Fifty items, one of them wider than the window.
    void FillWideAndHigh()
    {
        std::string items;
        for (int i = 0; i < 50; ++i)
            items += " i" + std::to_string(i);
        Fill(items);
        tree->SetItemText(At("i5"), CString(L'm', 100));
    }
    CRect Client() const
    {
        CRect client;
        tree->GetClientRect(client);
        return client;
    }
    CRect Row(const std::string& name) const
    {
        CRect row;
        tree->GetItemRect(At(name), row, FALSE);
        return row;
    }
    // One step of the automatic scroll, without waiting for its timer.
    void Tick() { tree->SendMessage(WM_TIMER, 1); }

    // The screen as it is, without painting what is due.
    COLORREF PixelNow(int x, int y) const
    {
        CClientDC screen(tree.get());
        return screen.GetPixel(x, y);
    }
    std::vector<COLORREF> PixelsNow(int y) const
    {
        std::vector<COLORREF> pixels;
        CClientDC screen(tree.get());
        for (int x = 0; x < Client().right; ++x)
            pixels.push_back(screen.GetPixel(x, y));
        return pixels;
    }

    // A spot that is there until the window paints over it, at the right, where neither labels nor the drag
    // image reach.
    CPoint Spot(const std::string& name) const
    {
        return CPoint(Client().right - 40, Row(name).CenterPoint().y);
    }
    void PutSpot(const std::string& name)
    {
        tree->UpdateWindow();
        CClientDC screen(tree.get());
        const CPoint spot = Spot(name);
        screen.SetPixelV(spot.x, spot.y, Red);
        ASSERT_EQ(screen.GetPixel(spot.x, spot.y), Red);
    }
    bool HasSpot(const std::string& name) const { return PixelNow(Spot(name).x, Spot(name).y) == Red; }
};

TEST_F(DragPainting, MovingWithinATarget_PaintsNothingOfATreeThatIsNotScrolledSideways)
{
    FillWideAndHigh();
    StartDrag("i3");
    MoveMouse(*tree, CPoint(40, Row("i8").top + 2));
    PutSpot("i1");
    MoveMouse(*tree, CPoint(44, Row("i8").top + 2));
    PumpPending();
    EXPECT_TRUE(HasSpot("i1"));
}

TEST_F(DragPainting, MovingWithinATarget_PaintsAllOfATreeThatIsScrolledSideways)
{
    FillWideAndHigh();
    StartDrag("i3");
    tree->SendMessage(WM_HSCROLL, SB_LINERIGHT);
    ASSERT_GT(tree->GetScrollPos(SB_HORZ), 0);
    MoveMouse(*tree, CPoint(40, Row("i8").top + 2));
    const HTREEITEM target = tree->dropTarget;
    PumpPending();
    PutSpot("i1");
    MoveMouse(*tree, CPoint(44, Row("i8").top + 2));
    PumpPending();
    EXPECT_EQ(tree->dropTarget, target);
    EXPECT_FALSE(HasSpot("i1"));
}

TEST_F(DragPainting, FolderThatOpensUnderTheMouse_IsOnTheScreenAtOnce)
{
    Fill("a f[x] b");
    StartDrag("b");
    MoveOver("f", Half::Lower);
    PutSpot("a");
    tree->SendMessage(WM_TIMER, tree->hoverTimerId);
    ASSERT_EQ(Outline(), "a f+[x] b");
    EXPECT_FALSE(tree->GetUpdateRect(nullptr));
    EXPECT_FALSE(HasSpot("a")) << "all is painted";
    EXPECT_EQ(PixelNow(Client().right - 20, Row("x").top), Black) << "the line of the new target";
}

TEST_F(DragPainting, LineThatScrollsIntoView_IsOnTheScreenAtOnce)
{
    FillWideAndHigh();
    StartDrag("i3");
    const int position = tree->GetScrollPos(SB_VERT);
    // The cursor itself, so that no message of the mouse paints.
    CPoint below(60, Client().bottom + 20);
    tree->ClientToScreen(&below);
    ::SetCursorPos(below.x, below.y);
    tree->UpdateWindow();
    Tick();
    ASSERT_EQ(tree->GetScrollPos(SB_VERT), position + 1);
    EXPECT_FALSE(tree->GetUpdateRect(nullptr));
    const int line = Row(NameOf(tree->dropTarget)).bottom;
    ASSERT_LT(line, Client().bottom);
    EXPECT_EQ(PixelNow(Client().right - 20, line), Black);
}

TEST_F(DragPainting, ScrollSideways_IsOnTheScreenAtOnce)
{
    FillWideAndHigh();
    StartDrag("i3");
    const int inLetters = Row(NameOf(tree->GetNextItem(At("i4")))).CenterPoint().y;
    CPoint beside(Client().right + 1, inLetters);
    tree->ClientToScreen(&beside);
    ::SetCursorPos(beside.x, beside.y);
    tree->UpdateWindow();
    const std::vector<COLORREF> before = PixelsNow(inLetters);
    Tick();
    ASSERT_GT(tree->GetScrollPos(SB_HORZ), 0);
    EXPECT_FALSE(tree->GetUpdateRect(nullptr));
    const std::vector<COLORREF> scrolled = PixelsNow(inLetters);
    EXPECT_NE(scrolled, before);
    tree->RedrawWindow();
    EXPECT_EQ(scrolled, PixelsNow(inLetters));
}

} // namespace
