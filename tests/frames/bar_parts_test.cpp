// Bars: bitmaps and colours of tool bars, indicators that pop out, floating windows, bars that are their own.
#include "tests/frames/BarFrame.h"

#include <afxadv.h>

namespace
{

using namespace quor::test;

class ToolBarParts : public BarFrameTest
{
protected:
    HIMAGELIST Images() const { return reinterpret_cast<HIMAGELIST>(bar.SendMessage(TB_GETIMAGELIST)); }

    CToolBar& bar = frame->toolBar;
};

TEST_F(ToolBarParts, Create_MakesABarWithoutAControlStyle)
{
    CToolBar other;
    ASSERT_TRUE(other.Create(frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 0xE830));
    EXPECT_EQ(other.GetDlgCtrlID(), 0xE830);
    EXPECT_EQ(other.GetBarStyle() & CBRS_ALIGN_ANY, static_cast<DWORD>(CBRS_BOTTOM & CBRS_ALIGN_ANY));
    EXPECT_FALSE(other.GetToolBarCtrl().GetStyle() & TBSTYLE_FLAT);
    EXPECT_EQ(other.GetOwner(), frame);
    EXPECT_FALSE(other.LoadToolBar(4711)) << "no such resource";
    EXPECT_FALSE(other.LoadBitmap(4711));
    EXPECT_FALSE(other.SetBitmap(nullptr));
    other.DestroyWindow();
}

TEST_F(ToolBarParts, LoadBitmap_ReplacesTheImages)
{
    ASSERT_TRUE(bar.LoadBitmap(static_cast<UINT>(IDR_FRAMES)));
    const HIMAGELIST before = Images();
    ASSERT_NE(before, nullptr);
    const int count = ::ImageList_GetImageCount(before);
    ASSERT_TRUE(bar.LoadBitmap(static_cast<UINT>(IDR_FRAMES)));
    EXPECT_EQ(::ImageList_GetImageCount(Images()), count);
}

TEST_F(ToolBarParts, NewColoursOfTheSystem_LoadTheBitmapAnew)
{
    ::ImageList_RemoveAll(Images());
    ASSERT_EQ(::ImageList_GetImageCount(Images()), 0);
    bar.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_GT(::ImageList_GetImageCount(Images()), 0);
}

TEST_F(ToolBarParts, NewColoursOfTheSystem_LeaveABitmapOfTheProgram)
{
    const HBITMAP own = ::CreateBitmap(64, 15, 1, 32, nullptr);
    ASSERT_TRUE(bar.SetBitmap(own));
    ::ImageList_RemoveAll(Images());
    bar.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(::ImageList_GetImageCount(Images()), 0) << "it is nowhere to be loaded from";
}

TEST_F(ToolBarParts, AButtonThatIsNotThereHasNoPlace)
{
    CRect rect(1, 2, 3, 4);
    bar.GetItemRect(99, &rect);
    EXPECT_TRUE(rect.IsRectNull());
}

TEST_F(ToolBarParts, ALengthGivesTheLeastWidthThatIsLowEnough)
{
    const int oneRow = bar.CalcDynamicLayout(1000, 0).cy;
    const CSize narrow = bar.CalcDynamicLayout(3 * oneRow, LM_LENGTHY);
    const CSize wide = bar.CalcDynamicLayout(oneRow, LM_LENGTHY);
    EXPECT_LE(narrow.cy, 3 * oneRow);
    EXPECT_GT(narrow.cy, oneRow);
    EXPECT_LT(narrow.cx, wide.cx);
    EXPECT_EQ(wide.cy, oneRow);
}

// A bar with an update handler of its own.
class OwnBar : public CToolBar
{
public:
    BOOL isOn = TRUE;

protected:
    afx_msg void OnUpdateRed(CCmdUI* ui)
    {
        ui->SetRadio(isOn);
        ui->SetText(L"buttons show no texts");
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(OwnBar, CToolBar)
    ON_UPDATE_COMMAND_UI(ID_RED, &OwnBar::OnUpdateRed)
END_MESSAGE_MAP()

TEST_F(ToolBarParts, ABarWithAHandlerOfItsOwnAsksIt)
{
    OwnBar own;
    ASSERT_TRUE(
        own.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 0, 0), 0xE831));
    const UINT commands[] = {ID_RED};
    ASSERT_TRUE(own.SetButtons(commands, 1));
    own.OnUpdateCmdUI(frame, FALSE);
    EXPECT_TRUE(own.GetToolBarCtrl().IsButtonChecked(ID_RED));
    own.isOn = FALSE;
    own.OnUpdateCmdUI(frame, FALSE);
    EXPECT_FALSE(own.GetToolBarCtrl().IsButtonChecked(ID_RED));
    own.DestroyWindow();
}

class OwnStatusBar : public CStatusBar
{
public:
    int check = 1;
    std::vector<UINT> drawn;
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemID); }

protected:
    afx_msg void OnUpdateNum(CCmdUI* ui) { ui->SetRadio(check); }
    afx_msg void OnUpdateCaps(CCmdUI* ui) { ui->SetCheck(check); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(OwnStatusBar, CStatusBar)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &OwnStatusBar::OnUpdateNum)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &OwnStatusBar::OnUpdateCaps)
END_MESSAGE_MAP()

class StatusBarParts : public BarFrameTest
{
protected:
    void SetUp() override
    {
        BarFrameTest::SetUp();
        static const UINT indicators[] = {ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
        ASSERT_TRUE(bar.Create(frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 0xE832));
        ASSERT_TRUE(bar.SetIndicators(indicators, 2));
        frame->RecalcLayout();
    }
    void TearDown() override
    {
        bar.DestroyWindow();
        BarFrameTest::TearDown();
    }

    OwnStatusBar bar;
};

TEST_F(StatusBarParts, ACheckedIndicatorPopsOut)
{
    bar.OnUpdateCmdUI(frame, FALSE);
    EXPECT_TRUE(bar.GetPaneStyle(0) & SBPS_POPOUT);
    EXPECT_TRUE(bar.GetPaneStyle(1) & SBPS_POPOUT);
    bar.check = 0;
    bar.OnUpdateCmdUI(frame, FALSE);
    EXPECT_FALSE(bar.GetPaneStyle(0) & SBPS_POPOUT);
    EXPECT_FALSE(bar.GetPaneStyle(1) & SBPS_POPOUT);
}

TEST_F(StatusBarParts, WithoutAMessageLineTheWindowHasNoText)
{
    bar.SetWindowText(L"nowhere");
    CString text(L"before");
    bar.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(bar.GetWindowTextLength(), 0);
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 0, 0), 0);
    CString pane;
    bar.GetPaneText(1, pane);
    EXPECT_EQ(pane, bar.GetPaneText(1));
    EXPECT_FALSE(pane.IsEmpty());
}

TEST_F(StatusBarParts, APaneThatIsNotThereHasNoPlace)
{
    CRect rect(1, 2, 3, 4);
    bar.GetItemRect(99, &rect);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_FALSE(bar.SetPaneText(-1, L""));
}

TEST_F(StatusBarParts, AnOwnerDrawnPaneIsDrawnByTheBar)
{
    bar.SetPaneStyle(1, SBT_OWNERDRAW);
    bar.drawn.clear();
    bar.Invalidate();
    bar.UpdateWindow();
    EXPECT_EQ(bar.drawn, std::vector<UINT>{1u});
}

TEST_F(StatusBarParts, PanesWithoutIdsHaveAWidthAndNoText)
{
    ASSERT_TRUE(bar.SetIndicators(nullptr, 3));
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_TRUE(bar.GetPaneText(2).IsEmpty());
    EXPECT_EQ(bar.GetPaneStyle(0), 0u);
    UINT id = 9, style = 9;
    int width = 0;
    bar.GetPaneInfo(1, id, style, width);
    EXPECT_EQ(id, 0u);
    EXPECT_EQ(width, ::GetSystemMetrics(SM_CXSCREEN) / 4);
}

// A plain bar, as programs derive them.
class PlainBar : public CControlBar
{
public:
    static int live;
    PlainBar() { ++live; }
    ~PlainBar() override { --live; }
    using CControlBar::CalcFixedLayout;

    BOOL Create(CWnd* parent, DWORD style)
    {
        return CWnd::Create(nullptr, L"", style, CRect(0, 0, 0, 0), parent, 0xE833);
    }

protected:
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
};

int PlainBar::live = 0;

TEST_F(ToolBarParts, APlainBarStretchesAlongItsEdge)
{
    PlainBar plain;
    EXPECT_EQ(plain.CalcFixedLayout(TRUE, TRUE), CSize(32767, 0));
    EXPECT_EQ(plain.CalcFixedLayout(TRUE, FALSE), CSize(0, 32767));
    EXPECT_EQ(plain.CalcFixedLayout(FALSE, TRUE), CSize(0, 0));
    EXPECT_EQ(plain.CalcDynamicLayout(-1, LM_STRETCH | LM_HORZ), CSize(32767, 0));
    EXPECT_EQ(plain.CalcDynamicLayout(-1, LM_STRETCH), CSize(0, 32767));
}

TEST_F(ToolBarParts, ABarThatDeletesItselfGoesWithItsWindow)
{
    PlainBar* const plain = new PlainBar;
    plain->m_bAutoDelete = TRUE;
    ASSERT_TRUE(plain->Create(frame, WS_CHILD));
    EXPECT_EQ(PlainBar::live, 1);
    plain->DestroyWindow();
    EXPECT_EQ(PlainBar::live, 0);
}

TEST_F(ToolBarParts, ABarInAnotherWindowFindsItsFrameWhenItMayDock)
{
    CWnd inner;
    ASSERT_TRUE(inner.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 100, 100), frame, 79));
    PlainBar plain;
    ASSERT_TRUE(plain.Create(&inner, WS_CHILD));
    EXPECT_EQ(plain.GetDockingFrame(), frame);
    plain.EnableDocking(CBRS_ALIGN_TOP);
    EXPECT_EQ(plain.GetDockingFrame(), frame);
    plain.DestroyWindow();
    inner.DestroyWindow();
}

TEST_F(ToolBarParts, AFrameShowsAndHidesTheWindowsItOwns)
{
    CMiniFrameWnd* const mini = new CMiniFrameWnd;
    ASSERT_TRUE(
        mini->Create(nullptr, L"Owned", WS_POPUP | WS_CAPTION | WS_VISIBLE, CRect(10, 10, 100, 80), frame));
    frame->ShowOwnedWindows(FALSE);
    EXPECT_FALSE(mini->IsWindowVisible());
    EXPECT_TRUE(frame->IsWindowVisible());
    frame->ShowOwnedWindows(TRUE);
    EXPECT_TRUE(mini->IsWindowVisible());
    mini->DestroyWindow();
}

// A small frame with the styles under test, and what reached the frame behind it.
class MiniFrameStyles : public BarFrameTest
{
protected:
    class Mini : public CMiniFrameWnd
    {
    public:
        int defaults = 0;
        bool notes = false;

    protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (notes && (message == WM_SYSCOMMAND || message == WM_NCRBUTTONUP))
            {
                ++defaults;
                return 0;
            }
            return CMiniFrameWnd::DefWindowProc(message, wParam, lParam);
        }
    };

    Mini* Make(DWORD style)
    {
        Mini* const mini = new Mini;
        EXPECT_TRUE(mini->Create(nullptr, L"Mini", WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | style,
                                 CRect(100, 100, 300, 250), frame));
        mini->notes = true;
        return mini;
    }
    static LRESULT HitAt(CWnd& window, CPoint screenPoint)
    {
        return window.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screenPoint.x, screenPoint.y));
    }
};

TEST_F(MiniFrameStyles, ABlockedSystemMenuCannotBeOpened)
{
    Mini* const mini = Make(MFS_BLOCKSYSMENU);
    mini->SendMessage(WM_SYSCOMMAND, SC_MOUSEMENU);
    mini->SendMessage(WM_SYSCOMMAND, SC_KEYMENU);
    mini->SendMessage(WM_NCRBUTTONUP, HTCAPTION, MAKELPARAM(150, 105));
    EXPECT_EQ(mini->defaults, 0);
    mini->SendMessage(WM_SYSCOMMAND, SC_MINIMIZE);
    EXPECT_EQ(mini->defaults, 1) << "other commands still work";
    mini->DestroyWindow();
}

TEST_F(MiniFrameStyles, AnUnblockedSystemMenuOpens)
{
    Mini* const mini = Make(0);
    mini->SendMessage(WM_SYSCOMMAND, SC_KEYMENU);
    mini->SendMessage(WM_NCRBUTTONUP, HTCAPTION, MAKELPARAM(150, 105));
    EXPECT_EQ(mini->defaults, 2);
    mini->DestroyWindow();
}

TEST_F(MiniFrameStyles, AnEdgeMovesTheFrameOrIsNoneAtAll)
{
    Mini* const sized = Make(WS_THICKFRAME);
    CRect rect;
    sized->GetWindowRect(&rect);
    const CPoint edge(rect.right - 1, rect.CenterPoint().y);
    EXPECT_EQ(HitAt(*sized, edge), HTRIGHT);
    sized->DestroyWindow();
    Mini* const moved = Make(WS_THICKFRAME | MFS_MOVEFRAME);
    EXPECT_EQ(HitAt(*moved, edge), HTCAPTION);
    moved->DestroyWindow();
    Mini* const fixed = Make(WS_THICKFRAME | MFS_4THICKFRAME);
    EXPECT_EQ(HitAt(*fixed, edge), HTBORDER);
    EXPECT_EQ(HitAt(*fixed, rect.CenterPoint()), HTCLIENT);
    fixed->DestroyWindow();
}

TEST_F(MiniFrameStyles, ADockStateHasAVersion)
{
    CDockState state;
    EXPECT_EQ(state.GetVersion(), 1u);
    EXPECT_TRUE(state.IsKindOf(RUNTIME_CLASS(CDockState)));
    state.LoadState(L"NoSuchState");
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
    frame->GetDockState(state);
    EXPECT_GT(state.m_arrBarInfo.GetSize(), 0);
    state.LoadState(L"NoSuchState");
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0) << "what it held is gone";
}

} // namespace
