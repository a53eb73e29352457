// Device contexts, regions and the caret of a window, and what a window prints of itself.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// Fills itself with one colour, however it is asked to.
class FilledWindow : public CWnd
{
public:
    static constexpr COLORREF Colour = RGB(10, 200, 30);
    std::vector<LPARAM> m_flags;

protected:
    void Fill(CDC* dc)
    {
        CRect area;
        GetClientRect(&area);
        dc->FillSolidRect(&area, Colour);
    }
    afx_msg void OnPaint()
    {
        PAINTSTRUCT paint;
        CDC* const dc = BeginPaint(&paint);
        Fill(dc);
        EndPaint(&paint);
    }
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags)
    {
        m_flags.push_back(flags);
        Fill(CDC::FromHandle(reinterpret_cast<HDC>(dc)));
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(FilledWindow, CWnd)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &FilledWindow::OnPrintClient)
END_MESSAGE_MAP()

class WindowDC : public testing::Test
{
protected:
    WindowDC()
    {
        CreateChild(m_window, m_parent, 1);
        m_window.UpdateWindow();
    }

    ParentWindow m_parent;
    FilledWindow m_window;
};

TEST_F(WindowDC, APaintedWindowShowsItsColourInEachOfItsContexts)
{
    CDC* dc = m_window.GetDC();
    EXPECT_EQ(dc->GetPixel(5, 5), FilledWindow::Colour);
    EXPECT_EQ(dc->GetWindow(), &m_window);
    EXPECT_EQ(m_window.ReleaseDC(dc), 1);
    dc = m_window.GetWindowDC();
    EXPECT_EQ(dc->GetPixel(5, 5), FilledWindow::Colour);
    EXPECT_EQ(m_window.ReleaseDC(dc), 1);
    dc = m_window.GetDCEx(nullptr, DCX_CACHE);
    EXPECT_EQ(dc->GetPixel(5, 5), FilledWindow::Colour);
    EXPECT_EQ(m_window.ReleaseDC(dc), 1);
}

TEST_F(WindowDC, PrintsItsClientAreaIntoAnotherContext)
{
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(20, 20, 1, 32, nullptr));
    CBitmap* const old = memory.SelectObject(&bitmap);
    m_window.PrintClient(&memory, PRF_CLIENT);
    EXPECT_EQ(memory.GetPixel(5, 5), FilledWindow::Colour);
    EXPECT_EQ(m_window.m_flags, std::vector<LPARAM>{PRF_CLIENT});
    memory.FillSolidRect(0, 0, 20, 20, RGB(0, 0, 0));
    m_window.Print(&memory, PRF_CLIENT);
    EXPECT_EQ(memory.GetPixel(5, 5), FilledWindow::Colour);
    memory.SelectObject(old);
}

TEST_F(WindowDC, RegionsAreInvalidatedAndValidated)
{
    CRgn wanted, found;
    ASSERT_TRUE(wanted.CreateRectRgn(2, 3, 12, 13));
    ASSERT_TRUE(found.CreateRectRgn(0, 0, 0, 0));
    m_window.InvalidateRgn(&wanted);
    EXPECT_EQ(m_window.GetUpdateRgn(&found), SIMPLEREGION);
    EXPECT_TRUE(found.EqualRgn(&wanted));
    m_window.ValidateRgn(&wanted);
    EXPECT_EQ(m_window.GetUpdateRgn(&found), NULLREGION);
    m_window.InvalidateRgn(nullptr);
    EXPECT_EQ(m_window.GetUpdateRgn(&found), SIMPLEREGION);
    CRect box, area;
    found.GetRgnBox(&box);
    m_window.GetClientRect(&area);
    EXPECT_EQ(box, area);
    m_window.ValidateRgn(nullptr);
    EXPECT_EQ(m_window.GetUpdateRgn(&found), NULLREGION);
}

TEST_F(WindowDC, TheCaretIsPutAndTakenAway)
{
    m_window.SetFocus();
    CBitmap shape;
    ASSERT_TRUE(shape.CreateBitmap(3, 9, 1, 1, nullptr));
    m_window.CreateCaret(&shape);
    CWnd::SetCaretPos(CPoint(7, 8));
    EXPECT_EQ(CWnd::GetCaretPos(), CPoint(7, 8));
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetGUIThreadInfo(::GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, m_window.m_hWnd);
    ::DestroyCaret();
}

TEST_F(WindowDC, AcceptsDroppedFilesAsLongAsItIsTold)
{
    m_window.DragAcceptFiles();
    EXPECT_NE(m_window.GetExStyle() & WS_EX_ACCEPTFILES, 0u);
    m_window.DragAcceptFiles(FALSE);
    EXPECT_EQ(m_window.GetExStyle() & WS_EX_ACCEPTFILES, 0u);
}

} // namespace
} // namespace quor::test
