// Whole drags with the real mouse: to every kind of place, hovering, scrolling, cancelling.
#include "tests/treedrag_input/DragInput.h"

#include "tests/support/Snapshot.h"

#include <chrono>
#include <functional>
#include <map>
#include <string>

namespace
{

using namespace quor::test;

class DragWithMouse : public DragInputTest
{
protected:
    std::string ManyItems(int count) const
    {
        std::string items;
        for (int i = 0; i < count; ++i)
            items += " i" + std::to_string(i);
        return items;
    }

    CRect Client() const
    {
        CRect client;
        tree->GetClientRect(client);
        return client;
    }
    // One step of the automatic scroll, without waiting for its timer.
    void Tick() { tree->SendMessage(WM_TIMER, 1); }
    int Position() const { return tree->GetScrollPos(SB_VERT); }
    // By how many lines the timers scrolled, those left out that did not.
    std::vector<int> Steps(int position) const
    {
        std::vector<int> steps;
        for (const int next : tree->positions)
        {
            if (next != position)
                steps.push_back(next - position);
            position = next;
        }
        return steps;
    }
};

TEST_F(DragWithMouse, Above)
{
    Fill("a b c d");
    DragByMouse("d", "b", Half::Upper);
    EXPECT_EQ(Outline(), "a d b c");
    EXPECT_EQ(owner.TakeMessages(), "asked d at a, inserted d at a");
    EXPECT_EQ(Selected(), "d");
}

TEST_F(DragWithMouse, Below)
{
    Fill("a b c d");
    DragByMouse("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "b c a d");
}

TEST_F(DragWithMouse, IntoAnEmptyFolder)
{
    Fill("a f[] b");
    DragByMouse("b", "f", Half::Lower);
    EXPECT_EQ(Outline(), "a f+[b]");
}

TEST_F(DragWithMouse, IntoAnOpenFolder)
{
    Fill("a f+[x y] b");
    DragByMouse("b", "f", Half::Lower);
    EXPECT_EQ(Outline(), "a f+[b x y]");
    DragByMouse("a", "y", Half::Upper);
    EXPECT_EQ(Outline(), "f+[b x a y]");
}

TEST_F(DragWithMouse, WholeFolder)
{
    Fill("full+[x g+[y]] a b");
    DragByMouse("full", "b", Half::Lower);
    EXPECT_EQ(Outline(), "a b full+[x g+[y]]");
}

TEST_F(DragWithMouse, OntoItself_ChangesNothing)
{
    Fill("a b");
    StartDrag("a");
    Release();
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DragWithMouse, ShowsTheDragImageAtTheMouse)
{
    Fill("aaaaaa b c d");
    StartDrag("aaaaaa");
    // Away from labels and line.
    const CPoint place(150, 200);
    const CRect around(place.x, place.y, place.x + 30, place.y + 14);
    const Snapshot before(*tree);
    EXPECT_TRUE(before.IsUniform(around));
    MoveMouse(*tree, place);
    EXPECT_FALSE(Snapshot(*tree).IsUniform(around));
    MoveMouse(*tree, CPoint(20, 250));
    EXPECT_TRUE(Snapshot(*tree).IsUniform(around)) << "it leaves no trace";
    Release();
}

TEST_F(DragWithMouse, RestingOverAClosedFolder_OpensItAfterASecond)
{
    Fill("a f[x] b");
    StartDrag("a");
    MoveOver("f", Half::Lower);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(PumpUntil([this] { return Outline() == "a f+[x] b"; }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(900));
    EXPECT_EQ(tree->dropTarget, At("x"));
    Release();
    EXPECT_EQ(Outline(), "f+[a x] b");
}

// Timers are handled in the order in which they are due, however late: one that is due before the tree's sees
// the folder closed, one that is due after it sees it open.
TEST_F(DragWithMouse, RestingOverAClosedFolder_TakesAboutASecond)
{
    constexpr UINT_PTR EarlyTimer = 51;
    constexpr UINT_PTR LateTimer = 52;
    static std::map<UINT_PTR, std::string> seen;
    static std::function<std::string()> outline;
    seen.clear();
    outline = [this] { return Outline(); };
    const TIMERPROC look = [](HWND window, UINT, UINT_PTR id, DWORD) {
        ::KillTimer(window, id);
        seen[id] = outline();
    };
    Fill("a f[x] b");
    StartDrag("a");
    MoveOver("f", Half::Lower);
    // The move anew, because it restarts the tree's timer: all three begin together.
    tree->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(MousePoint().x, MousePoint().y));
    ::SetTimer(owner, EarlyTimer, 800, look);
    ::SetTimer(owner, LateTimer, 1200, look);
    EXPECT_TRUE(PumpUntil([] { return seen.size() == 2; }));
    EXPECT_EQ(seen[EarlyTimer], "a f[x] b");
    EXPECT_EQ(seen[LateTimer], "a f+[x] b");
    tree->CompleteDrag(FALSE);
}

TEST_F(DragWithMouse, TargetUnderAMouseThatRests_ChangesWhenTheItemsScroll)
{
    Fill(ManyItems(50));
    StartDrag("i3");
    MoveOver("i5", Half::Upper);
    EXPECT_EQ(tree->dropTarget, At("i5"));
    tree->SendMessage(WM_VSCROLL, SB_LINEDOWN);
    tree->SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_TRUE(PumpUntil([this] { return tree->dropTarget == At("i7"); }));
    tree->CompleteDrag(FALSE);
}

TEST_F(DragWithMouse, RestingOverAnOpenFolder_ClosesIt)
{
    Fill("a f+[x] b");
    StartDrag("a");
    MoveOver("f", Half::Lower);
    EXPECT_TRUE(PumpUntil([this] { return Outline() == "a f[x] b"; }));
    Release();
    EXPECT_EQ(Outline(), "f[x] a b");
}

TEST_F(DragWithMouse, HoldingBelowTheTree_ScrollsLineByLineToTheEnd)
{
    Fill(ManyItems(50));
    StartDrag("i3");
    const int limit = tree->GetScrollLimit(SB_VERT);
    ASSERT_GT(limit, 10);
    tree->positions.clear();
    const auto start = std::chrono::steady_clock::now();
    MoveMouse(*tree, CPoint(60, Client().bottom + 20));
    EXPECT_TRUE(PumpUntil([&] { return Position() == limit; }));
    const auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(Steps(0), std::vector<int>(static_cast<size_t>(limit), 1));
    EXPECT_GE(elapsed, std::chrono::milliseconds(20 * (limit - 1)));
    MoveOver("i49", Half::Lower);
    Release();
    EXPECT_EQ(NameOf(tree->GetPrevItem(At("i3"))), "i49");
}

TEST_F(DragWithMouse, HoldingAboveTheTree_ScrollsBackToTheStart)
{
    Fill(ManyItems(50));
    tree->EnsureVisible(At("i49"));
    StartDrag("i45");
    const int first = Position();
    ASSERT_GT(first, 10);
    tree->positions.clear();
    MoveMouse(*tree, CPoint(60, -20));
    EXPECT_TRUE(PumpUntil([&] { return Position() == 0; }));
    EXPECT_EQ(Steps(first), std::vector<int>(static_cast<size_t>(first), -1));
    EXPECT_EQ(NameOf(tree->dropTarget), "i0");
    Release();
    EXPECT_EQ(NameOf(tree->GetRootItem()), "i45");
}

TEST_F(DragWithMouse, ScrollsOnlyBeyondAMarginOfFivePixels)
{
    Fill(ManyItems(50));
    tree->SelectSetFirstVisible(At("i10"));
    StartDrag("i12");
    const int position = Position();
    for (const int y : {-5, static_cast<int>(Client().bottom) + 5})
    {
        MoveMouse(*tree, CPoint(60, y));
        Tick();
        EXPECT_EQ(Position(), position) << y;
    }
    MoveMouse(*tree, CPoint(60, Client().bottom + 6));
    EXPECT_TRUE(PumpUntil([&] { return Position() > position; }));
    MoveMouse(*tree, CPoint(60, -6));
    EXPECT_TRUE(PumpUntil([&] { return Position() < position; }));
    tree->CompleteDrag(FALSE);
}

TEST_F(DragWithMouse, LeftAndRightOfTheTree_ScrollsWithoutAMargin)
{
    Fill("a b f+[x]");
    tree->SetItemText(At("x"), CString(L'm', 100));
    tree->SetItemText(At("f"), CString(L'n', 100));
    StartDrag("a");
    const int width = Client().right;
    MoveMouse(*tree, CPoint(width, 100));
    Tick();
    EXPECT_EQ(tree->GetScrollPos(SB_HORZ), 0);
    MoveMouse(*tree, CPoint(width + 1, 100));
    EXPECT_TRUE(PumpUntil([&] { return tree->GetScrollPos(SB_HORZ) > 20; }));
    MoveMouse(*tree, CPoint(-1, 100));
    EXPECT_TRUE(PumpUntil([&] { return tree->GetScrollPos(SB_HORZ) == 0; }));
    tree->CompleteDrag(FALSE);
}

TEST_F(DragWithMouse, ShortTree_DoesNotScroll)
{
    Fill("a b c");
    StartDrag("a");
    MoveMouse(*tree, CPoint(60, Client().bottom + 30));
    Tick();
    MoveMouse(*tree, CPoint(60, -30));
    Tick();
    EXPECT_EQ(Position(), 0);
    EXPECT_EQ(NameOf(tree->GetFirstVisibleItem()), "a");
    tree->CompleteDrag(FALSE);
}

TEST_F(DragWithMouse, RightButton_CancelsAndSelectsTheItemUnderTheMouse)
{
    Fill("a b c");
    StartDrag("a");
    MoveOver("c", Half::Lower);
    MoveOver("b", Half::Lower);
    // The tree's own handling waits for the button to come up.
    INPUT click[2] = {};
    click[0].type = click[1].type = INPUT_MOUSE;
    click[0].mi.dwFlags = MOUSEEVENTF_RIGHTDOWN;
    click[1].mi.dwFlags = MOUSEEVENTF_RIGHTUP;
    ::SendInput(2, click, sizeof click[0]);
    EXPECT_TRUE(PumpUntil([this] { return !tree->IsDragging(); }));
    PumpPending();
    EXPECT_EQ(Selected(), "b");
    ReleaseMouse(*tree, MousePoint());
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DragWithMouse, Owner_RefusesTheDrop)
{
    Fill("a b c");
    owner.answers[QuorUiCtr::TDM_DROP_QUERY] = [](const OwnerMessage&) { return 1; };
    DragByMouse("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(owner.TakeMessages(), "asked a at c");
}

TEST_F(DragWithMouse, Wheel_ScrollsDuringTheDrag)
{
    Fill(ManyItems(50));
    StartDrag("i3");
    MoveOver("i5", Half::Upper);
    TurnWheel(*tree, MousePoint(), -1);
    EXPECT_TRUE(PumpUntil([this] { return Position() > 0; }));
    EXPECT_TRUE(tree->IsDragging());
    tree->CompleteDrag(FALSE);
}

TEST_F(DragWithMouse, SecondDrag_WorksLikeTheFirst)
{
    Fill("a b c");
    for (int i = 0; i < 3; ++i)
    {
        DragByMouse("a", "c", Half::Lower);
        EXPECT_EQ(Outline(), "b c a");
        DragByMouse("a", "b", Half::Upper);
        EXPECT_EQ(Outline(), "a b c");
    }
}

TEST_F(DragWithMouse, KeysOfALabelEdit_GoToTheEdit)
{
    Fill("a b");
    tree->SelectItem(At("b"));
    KeyPress(VK_F2);
    ASSERT_TRUE(PumpUntil([this] { return tree->GetEditControl() != nullptr; }));
    TypeText(L"typed");
    KeyPress('A', Modifiers::Control);
    tree->GetEditControl()->SendMessage(EM_SETSEL, 0, 2);
    KeyPress('X', Modifiers::Control);
    KeyPress(VK_RETURN);
    EXPECT_EQ(tree->GetEditControl(), nullptr);
    EXPECT_EQ(Outline(), "a ped");
}

} // namespace
