// A grid that is busy: what it does with messages of all kinds, with the focus, and when all of it goes.
#include "grid/extras/TGBusyOverlay.h"
#include "tests/extras/ExtraGrid.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class BusyEdges : public ExtraTest<TGBusyOverlay>
{
protected:
    void Make()
    {
        ExtraTest::Make(100);
        Focus();
    }
    CWnd* Panel() { return extra.IsShown() ? grid.GetWindow(GW_CHILD) : nullptr; }
    CWnd* CancelButton() { return Panel()->GetDlgItem(IDCANCEL); }
};

TEST_F(BusyEdges, ByDefault_CancellingIsGranted_OnlyWhileItIsShown)
{
    Make();
    extra.Cancel();
    EXPECT_FALSE(extra.IsCancelled());
    extra.Show(L"Reading...", 10);
    extra.Cancel();
    EXPECT_TRUE(extra.IsCancelled());
}

TEST_F(BusyEdges, WithoutAGrid_NothingIsShown)
{
    EXPECT_FALSE(extra.Show(L"Reading...", 10));
    extra.Hide();
    extra.SetText(L"text");
    extra.SetDone(5);
    EXPECT_TRUE(extra.Step(5));
    EXPECT_FALSE(extra.IsShown());
}

TEST_F(BusyEdges, ACommitThatClosesTheWindow_OrShowsIt_LeavesNothingToShow)
{
    Make();
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        EXPECT_TRUE(extra.Show(L"inner", 10));
    };
    EXPECT_FALSE(extra.Show(L"outer", 10));
    EXPECT_TRUE(extra.IsShown());
    extra.Hide();
    grid.BeginEditCell(1, 1);
    grid.Enter(L"again");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        grid.DestroyWindow();
    };
    EXPECT_FALSE(extra.Show(L"Reading...", 10));
    EXPECT_FALSE(extra.IsShown());
}

TEST_F(BusyEdges, ACommitThatDetaches_OrDeletes)
{
    Make();
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        extra.Detach();
    };
    EXPECT_FALSE(extra.Show(L"Reading...", 10));
    auto own = std::make_unique<TGBusyOverlay>(grid);
    grid.BeginEditCell(1, 1);
    grid.Enter(L"again");
    grid.dataChanged = [&] {
        grid.dataChanged = nullptr;
        own.reset();
    };
    EXPECT_FALSE(own->Show(L"Reading...", 10));
    EXPECT_EQ(own, nullptr);
}

TEST_F(BusyEdges, TheFocusOfAnotherWindow_StaysThere)
{
    Make();
    CWnd other;
    other.CreateEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(500, 400, 600, 420), &host, 7);
    // Of another top-level window.
    HostWindow elsewhere;
    ASSERT_TRUE(Activate(elsewhere));
    elsewhere.SetFocus();
    extra.Show(L"Reading...", 10);
    EXPECT_EQ(::GetFocus(), elsewhere.m_hWnd);
    extra.Hide();
    EXPECT_EQ(::GetFocus(), elsewhere.m_hWnd);
    // Of the same one: it gets the focus back.
    ASSERT_TRUE(Activate(host));
    other.SetFocus();
    extra.Show(L"Reading...", 10);
    EXPECT_EQ(::GetFocus(), CancelButton()->m_hWnd);
    extra.Hide();
    EXPECT_EQ(::GetFocus(), other.m_hWnd);
    // When that has gone, the grid does.
    extra.Show(L"Reading...", 10);
    other.DestroyWindow();
    extra.Hide();
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    // And nobody, when somebody else has taken it.
    extra.Show(L"Reading...", 10);
    host.SetFocus();
    extra.Hide();
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(BusyEdges, CommandsOfUsers_AreDropped_ThoseOfControlsAreNot)
{
    Make();
    extra.Show(L"Reading...", 10);
    grid.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(grid.m_hWnd), MAKELPARAM(20, 20));
    grid.SendMessage(WM_COMMAND, MAKEWPARAM(4, 0));
    EXPECT_EQ(grid.HScroll(), 0);
    EXPECT_EQ(grid.GetRowNum(), 100);
    EXPECT_FALSE(extra.IsCancelled());
    // A notice of a window is for the grid.
    grid.SendMessage(WM_COMMAND, MAKEWPARAM(4, 0), reinterpret_cast<LPARAM>(grid.m_hWnd));
    EXPECT_TRUE(extra.IsShown());
    Panel()->SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED));
    Panel()->SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_SETFOCUS));
    EXPECT_FALSE(extra.IsCancelled());
    EXPECT_EQ(Panel()->SendMessage(WM_CONTEXTMENU, 0, 0), 0);
    Panel()->SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED));
    EXPECT_TRUE(extra.IsCancelled());
}

TEST_F(BusyEdges, EnterOfAnotherWindow_CancelsNothing)
{
    Make();
    extra.Show(L"Reading...", 10);
    grid.SetFocus();
    PostKey(grid, VK_RETURN);
    PumpPending();
    EXPECT_FALSE(extra.IsCancelled());
    PostKey(*CancelButton(), VK_RETURN);
    PumpPending();
    EXPECT_TRUE(extra.IsCancelled());
}

TEST_F(BusyEdges, CancelledWithTheFocusElsewhere_LeavesItThere)
{
    Make();
    extra.Show(L"Reading...", 10);
    host.SetFocus();
    extra.Cancel();
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
    EXPECT_FALSE(CancelButton()->IsWindowEnabled());
}

TEST_F(BusyEdges, CancellingWithinCancelling_AsksOnce)
{
    class Nested : public TGBusyOverlay
    {
    public:
        int asked = 0;

    protected:
        bool OnCancel() override
        {
            ++asked;
            Cancel();
            return true;
        }
    };
    Make();
    extra.Detach();
    Nested nested;
    nested.AttachTo(grid);
    nested.Show(L"Reading...", 10);
    nested.Cancel();
    EXPECT_EQ(nested.asked, 1);
    EXPECT_TRUE(nested.IsCancelled());
}

TEST_F(BusyEdges, TheSameAmount_IsNotDrawnAgain)
{
    Make();
    extra.Show(L"Reading...", 100);
    extra.SetDone(50);
    Panel()->UpdateWindow();
    extra.SetDone(50);
    EXPECT_FALSE(Panel()->GetUpdateRect(nullptr));
    extra.SetDone(51);
    EXPECT_TRUE(Panel()->GetUpdateRect(nullptr));
}

TEST_F(BusyEdges, TheLastStep_IsDrawnAtOnce_OthersInTheirTime)
{
    Make();
    extra.Show(L"Reading...", 1000);
    EXPECT_TRUE(extra.Step(1));
    host.Invalidate();
    // Shows by what a step paints whether it has looked at the queue.
    EXPECT_TRUE(extra.Step(1000));
    EXPECT_FALSE(host.GetUpdateRect(nullptr));
    extra.Hide();
    // Nobody knows which step is the last one.
    extra.Show(L"Reading...", 0);
    int painted = 0;
    for (int step = 0; step < 1000; ++step)
    {
        host.Invalidate();
        EXPECT_TRUE(extra.Step(step));
        painted += host.GetUpdateRect(nullptr) ? 0 : 1;
    }
    EXPECT_GT(painted, 0);
    EXPECT_LT(painted, 1000);
}

TEST_F(BusyEdges, OfAGridWithoutAnyArea_IsShownAndGoes)
{
    Make();
    grid.MoveWindow(0, 0, 0, 0);
    EXPECT_TRUE(extra.Show(L"Reading...", 10));
    extra.SetDone(5);
    EXPECT_TRUE(extra.Step(10));
    grid.MoveWindow(0, 0, 300, 200);
    Panel()->UpdateWindow();
    const auto client = [this] {
        CRect area;
        grid.CWnd::GetClientRect(&area);
        return area;
    };
    EXPECT_EQ(Text(PlaceOf(*Panel())), Text(client()));
    grid.MoveWindow(0, 0, 300, 100);
    EXPECT_EQ(Text(PlaceOf(*Panel())), Text(client()));
    grid.MoveWindow(0, 0, 200, 100);
    EXPECT_EQ(Text(PlaceOf(*Panel())), Text(client()));
    extra.Hide();
    EXPECT_FALSE(extra.IsShown());
}

TEST_F(BusyEdges, ThePanelThatIsDestroyedAlone_EndsTheWork)
{
    Make();
    extra.Show(L"Reading...", 10);
    Panel()->DestroyWindow();
    EXPECT_FALSE(extra.IsShown());
    EXPECT_FALSE(extra.Step(5));
    EXPECT_TRUE(extra.Show(L"Again", 10));
    EXPECT_TRUE(extra.Step(5));
}

TEST_F(BusyEdges, AHeaderThatGoesWhileItIsShown)
{
    Make();
    extra.Show(L"Reading...", 10);
    Header().DestroyWindow();
    extra.Hide();
    EXPECT_FALSE(extra.IsShown());
}

} // namespace
} // namespace quor::test
