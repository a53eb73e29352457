// What a window lends and asks for: device contexts, update regions, carets, printing, colours, message
// boxes.
#include "tests/framework/WindowLog.h"
#include "tests/support/MessageBoxProbe.h"
#include "tests/support/Snapshot.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr COLORREF Red = RGB(255, 0, 0);

// Fills its client area red, wherever it is painted to.
class RedWindow : public CWnd
{
public:
    Log m_log;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_PRINTCLIENT || message == WM_PRINT)
            m_log.push_back((message == WM_PRINT ? "print " : "client ") + std::to_string(lParam));
        if (message == WM_PRINTCLIENT)
            Fill(*CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        return CWnd::WindowProc(message, wParam, lParam);
    }
    afx_msg void OnPaint()
    {
        PAINTSTRUCT paint = {};
        CDC* const dc = BeginPaint(&paint);
        ASSERT_NE(dc, nullptr);
        EXPECT_EQ(dc->m_hDC, paint.hdc);
        m_log.push_back("paint");
        Fill(*dc);
        EndPaint(&paint);
    }
    void Fill(CDC& dc)
    {
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, Red);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(RedWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class WindowDrawing : public testing::Test
{
protected:
    WindowDrawing()
    {
        CreateChild(m_window, m_parent, 1);
        m_window.UpdateWindow();
        m_window.m_log.clear();
    }

    ParentWindow m_parent;
    RedWindow m_window;
};

TEST_F(WindowDrawing, BeginPaintGivesTheContextToPaintInto)
{
    m_window.Invalidate();
    const Snapshot picture(m_window);
    EXPECT_TRUE(picture.IsAll(RECT{0, 0, picture.Width(), picture.Height()}, Red));
    EXPECT_EQ(m_window.m_log, Log{"paint"});
}

TEST_F(WindowDrawing, ContextsAreLentAndGivenBack)
{
    CDC* const client = m_window.GetDC();
    ASSERT_NE(client, nullptr);
    EXPECT_EQ(client->GetWindow(), &m_window);
    EXPECT_EQ(client->GetPixel(5, 5), Red);
    EXPECT_EQ(m_window.ReleaseDC(client), 1);
    CDC* const whole = m_parent.GetWindowDC();
    ASSERT_NE(whole, nullptr);
    CRect box;
    whole->GetClipBox(&box);
    CRect window;
    m_parent.GetWindowRect(&window);
    EXPECT_EQ(box.Height(), window.Height()) << "with the caption";
    m_parent.ReleaseDC(whole);
    CRgn* const noRegion = nullptr;
    CDC* const cached = m_window.GetDCEx(noRegion, DCX_CACHE);
    ASSERT_NE(cached, nullptr);
    cached->GetClipBox(&box);
    EXPECT_TRUE(box == CRect(0, 0, 100, 50));
    m_window.ReleaseDC(cached);
}

TEST_F(WindowDrawing, RegionsAreInvalidatedValidatedAndRead)
{
    CRgn region, update;
    region.CreateRectRgn(2, 3, 12, 13);
    update.CreateRectRgn(0, 0, 0, 0);
    m_window.InvalidateRgn(&region, FALSE);
    EXPECT_EQ(m_window.GetUpdateRgn(&update), SIMPLEREGION);
    EXPECT_TRUE(update.EqualRgn(&region));
    CRgn half;
    half.CreateRectRgn(2, 3, 12, 8);
    m_window.ValidateRgn(&half);
    CRect rest;
    m_window.GetUpdateRgn(&update);
    update.GetRgnBox(&rest);
    EXPECT_TRUE(rest == CRect(2, 8, 12, 13));
    m_window.ValidateRgn(nullptr);
    EXPECT_EQ(m_window.GetUpdateRgn(&update), NULLREGION);
    m_window.InvalidateRgn(nullptr);
    m_window.GetUpdateRgn(&update);
    update.GetRgnBox(&rest);
    EXPECT_TRUE(rest == CRect(0, 0, 100, 50));
}

TEST_F(WindowDrawing, PrintingIsAskedForByMessages)
{
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap pixels;
    pixels.CreateBitmap(20, 20, 1, 32, nullptr);
    CBitmap* const before = memory.SelectObject(&pixels);
    m_window.PrintClient(&memory, PRF_CLIENT);
    EXPECT_EQ(memory.GetPixel(10, 10), Red);
    m_window.Print(&memory, PRF_CHILDREN);
    EXPECT_EQ(m_window.m_log, (Log{"client 4", "print 16"}));
    memory.PatBlt(0, 0, 20, 20, WHITENESS);
    EXPECT_TRUE(m_window.PrintWindow(&memory, 0));
    EXPECT_EQ(memory.GetPixel(10, 10), Red);
    memory.SelectObject(before);
}

TEST_F(WindowDrawing, ALayeredWindowShowsTheGivenPixels)
{
    CWnd layered;
    ASSERT_TRUE(layered.CreateEx(WS_EX_LAYERED, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 10, 10),
                                 nullptr, 0));
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap pixels;
    pixels.CreateBitmap(30, 20, 1, 32, nullptr);
    CBitmap* const before = memory.SelectObject(&pixels);
    POINT place = {40, 50};
    SIZE size = {30, 20};
    POINT source = {0, 0};
    BLENDFUNCTION blend = {AC_SRC_OVER, 0, 200, 0};
    EXPECT_TRUE(layered.UpdateLayeredWindow(nullptr, &place, &size, &memory, &source, 0, &blend, ULW_ALPHA));
    CRect rect;
    layered.GetWindowRect(&rect);
    EXPECT_TRUE(rect == CRect(CPoint(place), CSize(size)));
    memory.SelectObject(before);
    layered.DestroyWindow();
}

TEST_F(WindowDrawing, ACaretCanBeABitmap)
{
    CBitmap shape;
    shape.CreateBitmap(4, 12, 1, 1, nullptr);
    m_window.SetFocus();
    m_window.CreateCaret(&shape);
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetGUIThreadInfo(::GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, m_window.m_hWnd);
    ::DestroyCaret();
    m_window.CreateCaret(nullptr);
    ASSERT_TRUE(::GetGUIThreadInfo(::GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, m_window.m_hWnd) << "one as the system's";
    ::DestroyCaret();
}

TEST_F(WindowDrawing, FilesMayBeDroppedOrNot)
{
    m_window.DragAcceptFiles();
    EXPECT_TRUE(m_window.GetExStyle() & WS_EX_ACCEPTFILES);
    m_window.DragAcceptFiles(FALSE);
    EXPECT_FALSE(m_window.GetExStyle() & WS_EX_ACCEPTFILES);
}

TEST_F(WindowDrawing, AMessageBoxIsCalledAsTheProgramUnlessItHasACaption)
{
    MessageBoxProbe boxes(IDNO);
    EXPECT_EQ(m_window.MessageBox(L"A question", nullptr, MB_YESNO), IDNO);
    EXPECT_EQ(m_window.MessageBox(L"Another", L"Caption"), IDOK);
    ASSERT_EQ(boxes.Shown().size(), 2u);
    EXPECT_EQ(boxes.Shown()[0].text, L"A question");
    EXPECT_EQ(boxes.Shown()[0].caption, std::wstring(AfxGetAppName()));
    EXPECT_EQ(boxes.Shown()[0].buttons, (std::vector<int>{IDYES, IDNO}));
    EXPECT_EQ(boxes.Shown()[1].caption, L"Caption");
}

TEST(ModalState, DisablesAndEnablesTheWindow)
{
    ParentWindow window;
    window.BeginModalState();
    EXPECT_FALSE(window.IsWindowEnabled());
    window.EndModalState();
    EXPECT_TRUE(window.IsWindowEnabled());
}

TEST(WaitCursors, NestAndEndWithTheLast)
{
    const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    const HCURSOR arrow = ::GetCursor();
    const HCURSOR hourglass = ::LoadCursor(nullptr, IDC_WAIT);
    CWinApp* const target = AfxGetApp();
    target->BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), hourglass);
    target->BeginWaitCursor();
    ::SetCursor(arrow);
    target->RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), hourglass) << "something else had changed it";
    target->EndWaitCursor();
    EXPECT_EQ(::GetCursor(), hourglass);
    target->EndWaitCursor();
    EXPECT_EQ(::GetCursor(), arrow);
    ::SetCursor(before);
}

TEST(Cursors, OfTheProgramAndOfTheSystem)
{
    EXPECT_EQ(AfxGetApp()->LoadStandardCursor(IDC_WAIT), ::LoadCursor(nullptr, IDC_WAIT));
    EXPECT_EQ(AfxGetApp()->LoadCursor(4711u), nullptr);
    EXPECT_EQ(AfxGetApp()->LoadCursor(L"NO SUCH CURSOR"), nullptr);
}

} // namespace
} // namespace quor::test
