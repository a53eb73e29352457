// Windows on the screen: painting, colours of controls, cursors, and data exchange with silenced controls.
#include "tests/framework/WindowLog.h"
#include "tests/support/Snapshot.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

class PaintingWindow : public CWnd
{
public:
    Log m_log;
    CBrush m_brush{Blue};

protected:
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, Red);
    }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd* window, UINT kind)
    {
        m_log.push_back(std::to_string(window->GetDlgCtrlID()) + " kind " + std::to_string(kind));
        return m_brush;
    }
    afx_msg BOOL OnSetCursor(CWnd* window, UINT, UINT)
    {
        m_log.push_back("cursor over " + std::to_string(window->GetDlgCtrlID()));
        return TRUE;
    }
    afx_msg void OnEditChange() { m_log.push_back("EN_CHANGE"); }
    void DoDataExchange(CDataExchange* exchange) override
    {
        if (!exchange->m_bSaveAndValidate)
            SetDlgItemText(4, L"exchanged");
        else if (m_fails)
            exchange->Fail();
    }
    DECLARE_MESSAGE_MAP()

public:
    bool m_fails = false;
};

BEGIN_MESSAGE_MAP(PaintingWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_CTLCOLOR()
    ON_WM_SETCURSOR()
    ON_EN_CHANGE(4, &PaintingWindow::OnEditChange)
END_MESSAGE_MAP()

class WindowPaint : public testing::Test
{
protected:
    WindowPaint() { CreateChild(m_window, m_parent, 1); }

    ParentWindow m_parent;
    PaintingWindow m_window;
};

TEST_F(WindowPaint, FillsItsClientArea)
{
    const Snapshot picture(m_window);
    EXPECT_TRUE(picture.IsAll(RECT{0, 0, picture.Width(), picture.Height()}, Red));
}

TEST_F(WindowPaint, GivesItsControlsTheirColours)
{
    CWnd label;
    CWnd edit;
    ASSERT_TRUE(label.Create(L"STATIC", L"", WS_VISIBLE, CRect(0, 0, 30, 20), &m_window, 3));
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(30, 0, 60, 20), &m_window, 4));
    m_window.m_log.clear();
    const Snapshot picture(m_window);
    EXPECT_EQ(picture.At(10, 10), Blue);
    EXPECT_EQ(picture.At(50, 15), Blue);
    EXPECT_EQ(picture.At(80, 10), Red);
    const Log& log = m_window.m_log;
    EXPECT_NE(std::find(log.begin(), log.end(), "3 kind " + std::to_string(CTLCOLOR_STATIC)), log.end());
    EXPECT_NE(std::find(log.begin(), log.end(), "4 kind " + std::to_string(CTLCOLOR_EDIT)), log.end());
}

TEST_F(WindowPaint, TheCursorIsTheParentsChoiceFirst)
{
    CWnd child;
    ASSERT_TRUE(CreateChild(child, m_window, 9));
    m_window.m_log.clear();
    const WPARAM window = reinterpret_cast<WPARAM>(child.m_hWnd);
    EXPECT_EQ(child.SendMessage(WM_SETCURSOR, window, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), TRUE);
    EXPECT_EQ(m_window.m_log, Log{"cursor over 9"});
}

TEST_F(WindowPaint, UpdateDataSilencesTheControls)
{
    CWnd edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(30, 0, 60, 20), &m_window, 4));
    m_window.m_log.clear();
    EXPECT_TRUE(m_window.UpdateData(FALSE));
    CString text;
    EXPECT_EQ(m_window.GetDlgItemText(4, text), 9);
    EXPECT_STREQ(text, L"exchanged");
    EXPECT_EQ(std::count(m_window.m_log.begin(), m_window.m_log.end(), "EN_CHANGE"), 0);
    m_window.SetDlgItemText(4, L"typed");
    EXPECT_EQ(std::count(m_window.m_log.begin(), m_window.m_log.end(), "EN_CHANGE"), 1);
}

TEST_F(WindowPaint, UpdateDataTellsWhetherTheExchangeSucceeded)
{
    EXPECT_TRUE(m_window.UpdateData());
    m_window.m_fails = true;
    EXPECT_FALSE(m_window.UpdateData());
    EXPECT_TRUE(m_window.UpdateData(FALSE));
}

} // namespace
} // namespace quor::test
