// A grid that is busy: what it shows, what of the input it holds back, and how it is cancelled.
#include "grid/extras/TGBusyOverlay.h"
#include "grid/extras/TGWheelScroll.h"
#include "module/QuorTexts.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class AskingOverlay : public TGBusyOverlay
{
public:
    std::function<bool()> asked;

protected:
    bool OnCancel() override { return !asked || asked(); }
};

class BusyOverlay : public EditTest
{
protected:
    void Make(long rows = 100)
    {
        EditTest::Make(grid, rows, 3);
        busy.AttachTo(grid);
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
    }
    // The panel is the child that is on top.
    CWnd* Panel() { return busy.IsShown() ? grid.GetWindow(GW_CHILD) : nullptr; }
    CWnd* CancelButton() { return Panel()->GetDlgItem(IDCANCEL); }
    CPoint ButtonPoint()
    {
        CRect place;
        CancelButton()->GetClientRect(&place);
        return place.CenterPoint();
    }
    // A step of work: over as soon as input arrives.
    static void AwaitInput() { ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 2, QS_ALLINPUT); }
    // Works until it is to stop or `steps` are done.
    long long Work(long long steps)
    {
        for (long long done = 0; done < steps; ++done)
        {
            if (!busy.Step(done))
                return done;
            AwaitInput();
        }
        return steps;
    }
    static void Send(DWORD mouseFlags)
    {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = mouseFlags;
        ::SendInput(1, &input, sizeof input);
    }
    static void SendKey(WORD key)
    {
        INPUT inputs[2] = {};
        for (INPUT& input : inputs)
        {
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = key;
        }
        inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
        ::SendInput(2, inputs, sizeof(INPUT));
    }

    EditGrid grid;
    AskingOverlay busy;
};

// ---- Showing

TEST_F(BusyOverlay, CoversTheGrid_AndGoes)
{
    Make();
    const Snapshot before(grid);
    ASSERT_TRUE(busy.Show(L"Reading...", 10));
    EXPECT_TRUE(busy.IsShown());
    CRect client;
    grid.CWnd::GetClientRect(&client);
    EXPECT_EQ(Text(PlaceOf(*Panel())), Text(client));
    EXPECT_EQ(::GetFocus(), CancelButton()->m_hWnd);
    EXPECT_FALSE(busy.Show(L"again", 1));
    busy.Hide();
    EXPECT_FALSE(busy.IsShown());
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(grid.CWnd::GetStyle() & WS_CLIPCHILDREN, 0U);
    const Snapshot after(grid);
    for (int y = 0; y < before.Height(); ++y)
        for (int x = 0; x < before.Width(); ++x)
            ASSERT_EQ(before.At(x, y), after.At(x, y)) << x << "," << y;
}

// The bar, green from the left as far as the work is.
TEST_F(BusyOverlay, ShowsHowMuchIsDone)
{
    Make();
    busy.Show(L"Reading...", 100);
    const auto green = [&] {
        const Snapshot picture(*Panel());
        return picture.CountColour(CRect(0, 0, picture.Width(), picture.Height()), RGB(60, 130, 60));
    };
    EXPECT_EQ(green(), 0);
    busy.SetDone(25);
    const int quarter = green();
    busy.SetDone(50);
    EXPECT_GT(quarter, 100);
    EXPECT_NEAR(green(), 2 * quarter, quarter / 10);
    // Painted by the step itself.
    EXPECT_TRUE(busy.Step(100));
    EXPECT_NEAR(green(), 4 * quarter, quarter / 10);
    busy.SetText(L"Other\nwords");
    EXPECT_GT(green(), 0);
}

TEST_F(BusyOverlay, WithoutATotal_ThereIsNoBar)
{
    Make();
    busy.Show(L"Reading...", 0);
    busy.SetDone(50);
    EXPECT_TRUE(busy.Step(60));
    const Snapshot picture(*Panel());
    EXPECT_EQ(picture.CountColour(CRect(0, 0, picture.Width(), picture.Height()), RGB(60, 130, 60)), 0);
}

TEST_F(BusyOverlay, StaysOnTop_WhenTheGridIsChangedAndPainted)
{
    Make();
    busy.Show(L"Reading...", 10);
    const Snapshot before(grid);
    grid.GetCell(0, 0).SetText(L"changed");
    grid.GetCell(0, 0).Refresh();
    grid.SetRowNum(50);
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    grid.Refresh();
    const Snapshot after(grid);
    for (int y = 0; y < (std::min)(before.Height(), after.Height()); ++y)
        for (int x = 0; x < (std::min)(before.Width(), after.Width()); ++x)
            ASSERT_EQ(before.At(x, y), after.At(x, y)) << x << "," << y;
}

TEST_F(BusyOverlay, FollowsTheSizeOfTheGrid)
{
    Make();
    busy.Show(L"Reading...", 10);
    grid.MoveWindow(10, 10, 500, 350);
    CRect client;
    grid.CWnd::GetClientRect(&client);
    EXPECT_EQ(Text(PlaceOf(*Panel())), Text(client));
    const CRect button = PlaceOf(*CancelButton());
    EXPECT_NEAR(button.CenterPoint().x, client.CenterPoint().x, 2);
}

TEST_F(BusyOverlay, AnOpenEdit_IsCommittedFirst)
{
    Make();
    grid.BeginEditCell(1, 1);
    TypeText(L"typed");
    EXPECT_TRUE(busy.Show(L"", 0));
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 1, 1), L"typed");
}

TEST_F(BusyOverlay, TheButton_SpeaksTheLanguageOfTheLibrary)
{
    Make();
    QuorTexts::Replace(QuorText::BusyCancel, L"Stop it");
    busy.Show(L"Reading...", 10);
    QuorTexts::Replace(QuorText::BusyCancel, nullptr);
    CString caption;
    CancelButton()->GetWindowText(caption);
    EXPECT_EQ(caption, L"Stop it");
}

// ---- Cancelling, in the loop of the work and in the program's

TEST_F(BusyOverlay, TheButton_CancelsTheWork)
{
    Make();
    busy.Show(L"Reading...", 100000);
    MoveMouse(*CancelButton(), ButtonPoint());
    Send(MOUSEEVENTF_LEFTDOWN);
    Send(MOUSEEVENTF_LEFTUP);
    EXPECT_LT(Work(2000), 2000);
    EXPECT_TRUE(busy.IsCancelled());
    EXPECT_FALSE(busy.Step(5));
    busy.Hide();
    EXPECT_TRUE(busy.IsCancelled());
    EXPECT_FALSE(busy.Step(5));
    busy.Show(L"Again", 10);
    EXPECT_FALSE(busy.IsCancelled());
}

TEST_F(BusyOverlay, EscapeAndTheKeysOfTheButton_CancelTheWork)
{
    Make();
    for (const int key : {VK_ESCAPE, VK_RETURN, VK_SPACE})
    {
        busy.Show(L"Reading...", 100000);
        SendKey(static_cast<WORD>(key));
        EXPECT_LT(Work(2000), 2000) << key;
        EXPECT_TRUE(busy.IsCancelled()) << key;
        busy.Hide();
        EXPECT_EQ(::GetFocus(), grid.m_hWnd) << key;
    }
}

TEST_F(BusyOverlay, InTheMessageLoopOfTheProgram)
{
    Make();
    busy.Show(L"Reading...", 10);
    KeyPress(VK_ESCAPE);
    EXPECT_TRUE(busy.IsCancelled());
    busy.Hide();
    busy.Show(L"Reading...", 10);
    quor::test::Click(*CancelButton(), ButtonPoint());
    EXPECT_TRUE(busy.IsCancelled());
    EXPECT_FALSE(CancelButton()->IsWindowEnabled());
}

TEST_F(BusyOverlay, AVeto_GoesOn)
{
    Make();
    int asked = 0;
    busy.asked = [&asked] { return ++asked > 1; };
    busy.Show(L"Reading...", 10);
    busy.Cancel();
    EXPECT_FALSE(busy.IsCancelled());
    EXPECT_TRUE(busy.Step(10));
    busy.Cancel();
    EXPECT_TRUE(busy.IsCancelled());
    busy.Cancel();
    EXPECT_EQ(asked, 2);
}

// ---- Input

TEST_F(BusyOverlay, InputToTheGrid_IsDropped)
{
    Make();
    TGWheelScroll wheel(grid);
    busy.Detach();
    busy.AttachTo(grid);
    busy.Show(L"Reading...", 100000);
    const CPoint cell = grid.InsideOf(1, 1).CenterPoint();
    MoveMouse(grid, cell);
    Send(MOUSEEVENTF_LEFTDOWN);
    Send(MOUSEEVENTF_LEFTUP);
    SendKey('N');
    SendKey(VK_DOWN);
    // All of it is taken out of the queue by the work.
    Work(60);
    EXPECT_TRUE(busy.IsShown());
    quor::test::Click(grid, cell);
    TurnWheelBy(grid, cell, -WHEEL_DELTA);
    KeyPress('N');
    busy.Hide();
    PumpPending();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 100);
    EXPECT_EQ(grid.VScroll(), 0);
    EXPECT_FALSE(busy.IsCancelled());
}

TEST_F(BusyOverlay, MessagesToGridHeadersAndBars_AreDropped)
{
    TGWheelScroll wheel(grid);
    Make();
    busy.Show(L"Reading...", 10);
    SendMouse(grid, WM_LBUTTONDOWN, grid.InsideOf(1, 1).CenterPoint(), MK_LBUTTON);
    SendMouse(*grid.GetDlgItem(104), WM_LBUTTONDOWN, CPoint(5, 25), MK_LBUTTON);
    SendMouse(*grid.GetDlgItem(104), WM_LBUTTONUP, CPoint(5, 25));
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    grid.SendMessage(WM_KEYDOWN, VK_DELETE);
    grid.SendMessage(WM_COMMAND, 4);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.IsRowSelected());
    EXPECT_EQ(grid.VScroll(), 0);
    grid.SendMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_TRUE(busy.IsCancelled());
}

// Only what paints and what belongs to the grid.
TEST_F(BusyOverlay, AStep_LeavesOtherMessagesInTheQueue)
{
    Make();
    busy.Show(L"Reading...", 10);
    host.TakeLog();
    host.PostMessage(WM_USER + 3, 1, 2);
    EXPECT_TRUE(busy.Step(10));
    EXPECT_TRUE(host.TakeLog().empty());
    PumpPending();
    EXPECT_EQ(host.TakeLog(), std::vector<std::string>{"user+3 w=1 l=2"});
}

TEST_F(BusyOverlay, AStep_PaintsTheWindows)
{
    Make();
    busy.Show(L"Reading...", 10);
    host.Invalidate();
    EXPECT_TRUE(busy.Step(10));
    EXPECT_FALSE(host.GetUpdateRect(nullptr));
}

TEST_F(BusyOverlay, TheEndOfTheProgram_EndsTheWork)
{
    Make();
    busy.Show(L"Reading...", 10);
    ::PostQuitMessage(7);
    EXPECT_FALSE(busy.Step(10));
    MSG message = {};
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

// Steps are cheap: most of them do not look at the queue.
TEST_F(BusyOverlay, AMillionSteps)
{
    Make();
    busy.Show(L"Reading...", 1'000'000);
    const ULONGLONG start = ::GetTickCount64();
    EXPECT_EQ(
        [&] {
            long long done = 0;
            while (done < 1'000'000 && busy.Step(done))
                ++done;
            return done;
        }(),
        1'000'000);
    EXPECT_LT(::GetTickCount64() - start, 5000U);
}

// ---- Bad input and hostile hosts

TEST_F(BusyOverlay, CancellingThatHides_ClosesTheWindow_OrDeletes)
{
    Make();
    busy.asked = [&] {
        busy.Hide();
        return true;
    };
    busy.Show(L"Reading...", 10);
    quor::test::Click(*CancelButton(), ButtonPoint());
    EXPECT_FALSE(busy.IsShown());
    EXPECT_TRUE(busy.IsCancelled());

    busy.Detach();
    auto own = std::make_unique<AskingOverlay>();
    own->AttachTo(grid);
    own->asked = [&] {
        own.reset();
        return true;
    };
    own->Show(L"Reading...", 10);
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(own, nullptr);

    own = std::make_unique<AskingOverlay>();
    own->AttachTo(grid);
    own->Show(L"Reading...", 10);
    own->asked = [&] {
        grid.DestroyWindow();
        return true;
    };
    SendKey(VK_SPACE);
    long long done = 0;
    while (done < 1000 && own->Step(++done))
        AwaitInput();
    EXPECT_LT(done, 1000);
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_FALSE(own->IsShown());
}

TEST_F(BusyOverlay, TheWindowGoesWhileItIsShown)
{
    Make();
    busy.Show(L"Reading...", 10);
    grid.DestroyWindow();
    EXPECT_FALSE(busy.IsShown());
    EXPECT_FALSE(busy.Step(5));
    EXPECT_FALSE(busy.IsCancelled());
    EXPECT_FALSE(busy.Show(L"again", 10));
    busy.Hide();
}

TEST_F(BusyOverlay, TheGridGoesWhileItIsShown)
{
    TGBusyOverlay other;
    {
        EditGrid going;
        Create(going);
        other.AttachTo(going);
        ASSERT_TRUE(other.Show(L"Reading...", 10));
    }
    EXPECT_FALSE(other.IsShown());
    EXPECT_EQ(other.GetGrid(), nullptr);
}

TEST(BusyOverlayAttaching, TwiceOrToTwoGrids_AndWithoutAWindow)
{
    ModelGrid grid;
    ModelGrid second;
    TGBusyOverlay busy(grid);
    EXPECT_FALSE(busy.AttachTo(grid));
    EXPECT_FALSE(busy.AttachTo(second));
    EXPECT_FALSE(busy.Show(L"text", 10));
    EXPECT_TRUE(busy.Step(1));
    busy.SetText(L"x");
    busy.SetDone(3);
    busy.Cancel();
    busy.Hide();
    EXPECT_FALSE(busy.IsCancelled());
}

} // namespace
} // namespace quor::test
