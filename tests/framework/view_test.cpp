// Documents and scrolling views.
#include "tests/support/HostWindow.h"

#include <afxext.h>
#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace quor::test;

class PlainView : public CView
{
public:
    int updates = 0;
    LPARAM lastHint = 0;

    void OnUpdate(CView*, LPARAM hint, CObject*) override
    {
        ++updates;
        lastHint = hint;
    }
    void OnDraw(CDC*) override {}
};

class Document : public CDocument
{
public:
    static int live;
    int listChanges = 0;
    int emptied = 0;

    Document() { ++live; }
    ~Document() override { --live; }
    void OnChangedViewList() override
    {
        ++listChanges;
        CDocument::OnChangedViewList();
    }
    void DeleteContents() override { ++emptied; }
};
int Document::live = 0;

class Views : public testing::Test
{
protected:
    template <class View> View* Make(CDocument* document, CRect rect = CRect(0, 0, 100, 100))
    {
        CCreateContext context;
        context.m_pCurrentDoc = document;
        View* view = new View;
        EXPECT_TRUE(
            view->Create(NULL, NULL, WS_CHILD | WS_VISIBLE, rect, &m_host, AFX_IDW_PANE_FIRST, &context));
        return view;
    }

    HostWindow m_host;
};

TEST_F(Views, Document_WalksItsViewsInOrder)
{
    Document* document = new Document;
    PlainView* first = Make<PlainView>(document);
    PlainView* second = Make<PlainView>(document);
    EXPECT_EQ(document->listChanges, 2);
    POSITION position = document->GetFirstViewPosition();
    EXPECT_EQ(document->GetNextView(position), first);
    EXPECT_EQ(document->GetNextView(position), second);
    EXPECT_EQ(position, nullptr);
    first->DestroyWindow();
    second->DestroyWindow();
}

TEST_F(Views, UpdateAllViews_LeavesOutTheSender)
{
    Document* document = new Document;
    PlainView* first = Make<PlainView>(document);
    PlainView* second = Make<PlainView>(document);
    document->UpdateAllViews(first, 42);
    EXPECT_EQ(first->updates, 0);
    EXPECT_EQ(second->updates, 1);
    EXPECT_EQ(second->lastHint, 42);
    document->UpdateAllViews(NULL);
    EXPECT_EQ(first->updates, 1);
    first->DestroyWindow();
    second->DestroyWindow();
}

TEST_F(Views, Document_GoesWithItsLastView)
{
    Document* document = new Document;
    PlainView* view = Make<PlainView>(document);
    EXPECT_EQ(Document::live, 1);
    view->DestroyWindow();
    EXPECT_EQ(Document::live, 0);
}

TEST_F(Views, Document_ThatIsNotAutoDeleted_StaysAndForgetsItsViews)
{
    Document document;
    document.m_bAutoDelete = FALSE;
    PlainView* view = Make<PlainView>(&document);
    view->DestroyWindow();
    EXPECT_EQ(document.GetFirstViewPosition(), nullptr);
    EXPECT_EQ(Document::live, 1);
}

TEST_F(Views, Document_NewAndModified)
{
    Document document;
    document.m_bAutoDelete = FALSE;
    document.SetModifiedFlag();
    EXPECT_TRUE(document.IsModified());
    EXPECT_TRUE(document.OnNewDocument());
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(document.emptied, 1);
}

// A view of 1000 x 800 units.
class WideView : public CScrollView
{
public:
    CPoint lastOrigin;

    void OnDraw(CDC* dc) override { lastOrigin = dc->GetViewportOrg(); }
};

class ScrollViews : public Views
{
protected:
    ScrollViews()
    {
        m_view = Make<WideView>(NULL, CRect(0, 0, 300, 200));
        m_view->SetScrollSizes(MM_TEXT, CSize(1000, 800), CSize(100, 80), CSize(10, 8));
    }
    ~ScrollViews() override { m_view->DestroyWindow(); }

    CSize Room() const
    {
        CRect client;
        m_view->GetClientRect(&client);
        return client.Size();
    }

    WideView* m_view;
};

TEST_F(ScrollViews, Bars_CoverTheWhole)
{
    BOOL horizontal = FALSE, vertical = FALSE;
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal);
    EXPECT_TRUE(vertical);
    EXPECT_EQ(m_view->GetScrollLimit(SB_HORZ), 1000 - Room().cx);
    EXPECT_EQ(m_view->GetScrollLimit(SB_VERT), 800 - Room().cy);
    EXPECT_EQ(m_view->GetTotalSize(), CSize(1000, 800));
}

TEST_F(ScrollViews, Bars_VanishWhenEverythingFits)
{
    m_view->SetWindowPos(NULL, 0, 0, 1000, 800, SWP_NOMOVE | SWP_NOZORDER);
    BOOL horizontal = TRUE, vertical = TRUE;
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal);
    EXPECT_FALSE(vertical);
    EXPECT_EQ(Room(), CSize(1000, 800));
}

TEST_F(ScrollViews, Bars_OneBarCanMakeTheOtherNecessary)
{
    m_view->SetWindowPos(NULL, 0, 0, 999, 800, SWP_NOMOVE | SWP_NOZORDER);
    BOOL horizontal = FALSE, vertical = FALSE;
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal);
    EXPECT_TRUE(vertical);
}

TEST_F(ScrollViews, Bars_TheVerticalOneCanMakeTheOtherNecessary)
{
    m_view->SetWindowPos(NULL, 0, 0, 1000, 799, SWP_NOMOVE | SWP_NOZORDER);
    BOOL horizontal = FALSE, vertical = FALSE;
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal);
    EXPECT_TRUE(vertical);
}

TEST(ScrollViewInAFrame, ResizesTheFrameToItsContent)
{
    auto* const frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
    auto* const view = new WideView;
    ASSERT_TRUE(
        view->Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), frame, AFX_IDW_PANE_FIRST));
    const auto room = [view] {
        CRect client;
        view->GetClientRect(&client);
        return client.Size();
    };
    frame->RecalcLayout();
    const CSize before = room();
    view->SetScrollSizes(MM_TEXT, before + CSize(50, 40));
    view->ResizeParentToFit(TRUE);
    view->SetScrollSizes(MM_TEXT, before);
    EXPECT_EQ(room(), before) << "only made smaller";
    view->SetScrollSizes(MM_TEXT, before + CSize(50, 40));
    view->ResizeParentToFit(FALSE);
    EXPECT_EQ(room(), before + CSize(50, 40));
    view->SetScrollSizes(MM_TEXT, before - CSize(60, 30));
    view->ResizeParentToFit(TRUE);
    EXPECT_EQ(room(), before - CSize(60, 30));
    frame->DestroyWindow();
}

TEST_F(ScrollViews, ScrollToPosition_StopsAtTheEnds)
{
    m_view->ScrollToPosition(CPoint(120, 90));
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(120, 90));
    m_view->ScrollToPosition(CPoint(5000, 5000));
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(1000 - Room().cx, 800 - Room().cy));
    EXPECT_EQ(m_view->GetDeviceScrollPosition(), m_view->GetScrollPosition());
}

TEST_F(ScrollViews, Painting_IsShiftedByThePosition)
{
    m_view->ScrollToPosition(CPoint(50, 40));
    m_view->Invalidate();
    m_view->UpdateWindow();
    EXPECT_EQ(m_view->lastOrigin, CPoint(-50, -40));
}

TEST_F(ScrollViews, ScrollMessages_MoveByLineAndPage)
{
    m_view->SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(0, 8));
    m_view->SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(0, 88));
    m_view->SendMessage(WM_HSCROLL, SB_PAGERIGHT);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(100, 88));
    m_view->SendMessage(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(90, 88));
    m_view->SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(90, 0));
    m_view->SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(m_view->GetScrollPosition().y, 800 - Room().cy);
    m_view->SendMessage(WM_VSCROLL, SB_ENDSCROLL);
    EXPECT_EQ(m_view->GetScrollPosition().y, 800 - Room().cy);
}

TEST_F(ScrollViews, MouseWheel_ScrollsLines)
{
    UINT lines = 0;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(0, static_cast<int>(lines) * 8));
    m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(0, 0));
}

TEST_F(ScrollViews, LargerWindow_PullsThePositionBack)
{
    m_view->ScrollToPosition(CPoint(5000, 5000));
    m_view->SetWindowPos(NULL, 0, 0, 600, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(1000 - Room().cx, 800 - Room().cy));
}

TEST_F(ScrollViews, DefaultPageAndLine_AreTenths)
{
    m_view->SetScrollSizes(MM_TEXT, CSize(2000, 1000));
    int mode = 0;
    SIZE total, page, line;
    m_view->GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(mode, MM_TEXT);
    EXPECT_EQ(CSize(page), CSize(200, 100));
    EXPECT_EQ(CSize(line), CSize(20, 10));
}

TEST_F(ScrollViews, MappingModes_ConvertSizesAndPositions)
{
    m_view->SetScrollSizes(MM_LOENGLISH, CSize(2000, 1600));
    int mode = 0;
    SIZE total, page, line;
    m_view->GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(mode, MM_LOENGLISH);
    EXPECT_GT(total.cx, 1000);
    EXPECT_GT(total.cy, 800);
    m_view->ScrollToPosition(CPoint(100, -100));
    const CPoint device = m_view->GetDeviceScrollPosition();
    EXPECT_GT(device.y, 50);
    EXPECT_NEAR(m_view->GetScrollPosition().x, 100, 2);
    EXPECT_NEAR(m_view->GetScrollPosition().y, -100, 2);
}

TEST_F(ScrollViews, FillOutsideRect_FillsBesideAndBelow)
{
    m_view->SetScrollSizes(MM_TEXT, CSize(100, 80));
    CClientDC dc(m_view);
    dc.FillSolidRect(CRect(0, 0, 300, 200), RGB(255, 255, 255));
    CBrush brush(RGB(255, 0, 0));
    m_view->FillOutsideRect(&dc, &brush);
    EXPECT_EQ(dc.GetPixel(50, 40), RGB(255, 255, 255));
    EXPECT_EQ(dc.GetPixel(150, 40), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(50, 120), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(150, 120), RGB(255, 0, 0));
}

} // namespace
