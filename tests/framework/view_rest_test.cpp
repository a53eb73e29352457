// Views: printing, scrolling by codes and wheels, edit views with their commands, and views that are
// controls.
#include "tests/support/HostWindow.h"
#include "tests/support/Snapshot.h"

#include <afxcview.h>
#include <afxext.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quor::test
{
namespace
{

using Log = std::vector<std::string>;

// Writes down what printing asks of it.
class PrintingView : public CView
{
public:
    Log m_log;

    using CView::DoPreparePrinting;
    using CView::OnBeginPrinting;
    using CView::OnEndPrinting;
    using CView::OnEndPrintPreview;
    using CView::OnPreparePrinting;
    using CView::OnPrint;
    using CView::OnScroll;
    using CView::OnScrollBy;

    BOOL OnPreparePrinting(CPrintInfo* info) override
    {
        m_log.push_back(info->m_bPreview ? "prepare preview" : "prepare");
        return CView::OnPreparePrinting(info);
    }
    void OnEndPrinting(CDC* dc, CPrintInfo* info) override
    {
        m_log.push_back("end");
        CView::OnEndPrinting(dc, info);
    }

protected:
    void OnDraw(CDC*) override { m_log.push_back("draw"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PrintingView, CView)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

class ViewsOfTheRest : public testing::Test
{
protected:
    template <class View> View* Make(DWORD style = 0)
    {
        View* const view = new View;
        EXPECT_TRUE(view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 200, 100),
                                 &m_host, AFX_IDW_PANE_FIRST));
        return view;
    }

    HostWindow m_host;
};

TEST_F(ViewsOfTheRest, PrintingAsksTheViewAndEndsWithoutAPrinter)
{
    PrintingView* const view = Make<PrintingView>();
    view->m_log.clear();
    view->SendMessage(WM_COMMAND, ID_FILE_PRINT);
    view->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
    EXPECT_EQ(view->m_log, (Log{"prepare", "prepare preview"}));
    view->DestroyWindow();
}

TEST_F(ViewsOfTheRest, PrintingDefaults)
{
    PrintingView* const view = Make<PrintingView>();
    CPrintInfo info;
    EXPECT_EQ(info.m_nCurPage, 1u);
    EXPECT_EQ(info.GetMinPage(), 1u);
    EXPECT_EQ(info.GetMaxPage(), 0xffffu);
    EXPECT_TRUE(info.m_bContinuePrinting);
    EXPECT_FALSE(info.m_bPreview);
    EXPECT_EQ(info.m_pPD, nullptr);
    EXPECT_FALSE(view->DoPreparePrinting(&info)) << "there is no printer";
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    view->m_log.clear();
    view->OnBeginPrinting(&dc, &info);
    view->OnPrint(&dc, &info);
    view->OnEndPrintPreview(&dc, &info, CPoint(0, 0), nullptr);
    EXPECT_EQ(view->m_log, (Log{"draw", "end"})) << "a page is drawn as on the screen";
    EXPECT_FALSE(view->IsSelected(view));
    EXPECT_FALSE(view->OnScroll(MAKEWORD(SB_LINEDOWN, SB_LINEDOWN), 0));
    EXPECT_FALSE(view->OnScrollBy(CSize(1, 1)));
    view->DestroyWindow();
}

// 1000 pixels high and wide.
class WideView : public CScrollView
{
public:
    using CScrollView::OnScroll;

protected:
    void OnDraw(CDC*) override {}
};

class ScrollCodes : public ViewsOfTheRest
{
protected:
    ScrollCodes() : m_view(Make<WideView>())
    {
        m_view->SetScrollSizes(MM_TEXT, CSize(1000, 1000), CSize(100, 90), CSize(10, 9));
    }
    ~ScrollCodes() override { m_view->DestroyWindow(); }

    CPoint After(UINT code)
    {
        m_view->OnScroll(code, 0);
        return m_view->GetScrollPosition();
    }
    CPoint Wheel(short delta, UINT keys = 0)
    {
        m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(keys, delta));
        return m_view->GetScrollPosition();
    }

    WideView* m_view;
};

TEST_F(ScrollCodes, MoveBothDirectionsAtOnce)
{
    EXPECT_EQ(After(MAKEWORD(SB_PAGEDOWN, SB_LINEDOWN)), CPoint(100, 9));
    EXPECT_EQ(After(MAKEWORD(SB_LINEDOWN, SB_PAGEDOWN)), CPoint(110, 99));
    EXPECT_EQ(After(MAKEWORD(SB_PAGEUP, SB_LINEUP)), CPoint(10, 90));
    EXPECT_EQ(After(MAKEWORD(SB_LINEUP, SB_PAGEUP)), CPoint(0, 0));
    const CPoint end = After(MAKEWORD(SB_BOTTOM, SB_BOTTOM));
    EXPECT_EQ(end, CPoint(m_view->GetScrollLimit(SB_HORZ), m_view->GetScrollLimit(SB_VERT)));
    EXPECT_EQ(After(MAKEWORD(SB_ENDSCROLL, SB_ENDSCROLL)), end);
    EXPECT_EQ(After(MAKEWORD(SB_TOP, SB_TOP)), CPoint(0, 0));
}

TEST_F(ScrollCodes, TheThumbGivesItsPosition)
{
    // Outside of a drag the position of the thumb is that of the bar.
    After(MAKEWORD(SB_PAGEDOWN, SB_PAGEDOWN));
    m_view->SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 0));
    m_view->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 0));
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(100, 90));
}

TEST_F(ScrollCodes, BarsOfControlsAreNotTheViews)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 20, 50), m_view, 9));
    m_view->SendMessage(WM_VSCROLL, SB_PAGEDOWN, reinterpret_cast<LPARAM>(bar.m_hWnd));
    m_view->SendMessage(WM_HSCROLL, SB_PAGEDOWN, reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(m_view->GetScrollPosition(), CPoint(0, 0));
}

TEST_F(ScrollCodes, TheWheelWithAKeyIsNotForScrolling)
{
    EXPECT_EQ(Wheel(-120), CPoint(0, 27));
    EXPECT_EQ(Wheel(-120, MK_CONTROL), CPoint(0, 27));
    EXPECT_EQ(Wheel(-120, MK_SHIFT), CPoint(0, 27));
    EXPECT_EQ(Wheel(120), CPoint(0, 0));
}

TEST_F(ScrollCodes, AViewOutsideOfAFrameFitsNothing)
{
    CRect before, after;
    m_host.GetWindowRect(&before);
    m_view->ResizeParentToFit(FALSE);
    m_host.GetWindowRect(&after);
    EXPECT_EQ(before, after);
}

class EditViews : public ViewsOfTheRest
{
protected:
    EditViews() : m_view(Make<CEditView>()) {}
    ~EditViews() override { m_view->DestroyWindow(); }

    CString Text() const
    {
        CString text;
        m_view->GetWindowText(text);
        return text;
    }
    bool Command(UINT id) { return m_view->OnCmdMsg(id, CN_COMMAND, nullptr, nullptr) != FALSE; }

    CEditView* m_view;
};

TEST_F(EditViews, ClearTakesTheSelectionAwayAndUndoGivesItBack)
{
    EXPECT_TRUE(m_view->IsKindOf(RUNTIME_CLASS(CEditView)));
    m_view->SetWindowText(L"one two");
    m_view->GetEditCtrl().SetSel(0, 4);
    EXPECT_TRUE(Command(ID_EDIT_CLEAR));
    EXPECT_STREQ(Text(), L"two");
    EXPECT_TRUE(Command(ID_EDIT_UNDO));
    EXPECT_STREQ(Text(), L"one two");
}

TEST_F(EditViews, MadeByRuntimeClass)
{
    CObject* const made = RUNTIME_CLASS(CEditView)->CreateObject();
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CCtrlView)));
    delete made;
}

// Counts what its items are drawn with.
class DrawnListView : public CListView
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

TEST_F(ViewsOfTheRest, AListViewDrawsItsOwnItems)
{
    DrawnListView* const view = Make<DrawnListView>(LVS_REPORT | LVS_OWNERDRAWFIXED);
    view->GetListCtrl().InsertColumn(0, L"a", LVCFMT_LEFT, 60);
    view->GetListCtrl().InsertItem(0, L"x");
    view->drawn = 0;
    view->Invalidate();
    view->UpdateWindow();
    EXPECT_GT(view->drawn, 0);
    view->DestroyWindow();
}

TEST_F(ViewsOfTheRest, AListViewThatDrawsNothingIsEmpty)
{
    CListView* const view = Make<CListView>(LVS_REPORT | LVS_OWNERDRAWFIXED | LVS_NOCOLUMNHEADER);
    view->GetListCtrl().InsertColumn(0, L"a", LVCFMT_LEFT, 60);
    view->GetListCtrl().InsertItem(0, L"x");
    const Snapshot picture(view->m_hWnd);
    EXPECT_TRUE(picture.IsUniform(RECT{0, 0, picture.Width(), picture.Height()}));
    view->DestroyWindow();
}

} // namespace
} // namespace quor::test
