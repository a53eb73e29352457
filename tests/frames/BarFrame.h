// A frame with a menu, a tool bar and a status bar, as programs have them.
#pragma once

#include "tests/frames/FramesResource.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <afxcmn.h>
#include <afxext.h>
#include <afxpriv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace quor::test
{

// Text as the tests compare it.
inline std::string Narrow(const CString& text)
{
    return std::string(CStringA(text));
}

// Where a window is inside another one.
inline CRect RectIn(const CWnd& window, const CWnd& outer)
{
    CRect rect;
    window.GetWindowRect(&rect);
    outer.ScreenToClient(&rect);
    return rect;
}

// Records the commands that reach it.
class BarFrame : public CFrameWnd
{
public:
    CToolBar toolBar;
    CStatusBar statusBar;
    std::vector<UINT> commands;
    std::vector<std::string> messages; // what the message line showed
    bool enablesGreen = true;
    int checksBlue = 0;
    CString place = L"Ln 1, Col 1";
    std::function<BOOL(BarFrame&)> createClient;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override
    {
        return createClient ? createClient(*this) : CFrameWnd::OnCreateClient(lpcs, pContext);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CFrameWnd::WindowProc(message, wParam, lParam);
        if (message == WM_SETMESSAGESTRING)
            messages.push_back(Narrow(statusBar.GetPaneText(0)));
        return result;
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        static const UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_PLACE, ID_INDICATOR_CAPS,
                                          ID_INDICATOR_NUM};
        if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
            return -1;
        const DWORD style =
            WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC;
        if (!toolBar.CreateEx(this, TBSTYLE_FLAT, style) || !toolBar.LoadToolBar(IDR_FRAMES))
            return -1;
        if (!statusBar.Create(this) || !statusBar.SetIndicators(indicators, 4))
            return -1;
        return 0;
    }
    afx_msg void OnColour(UINT id) { commands.push_back(id); }
    afx_msg void OnUpdateGreen(CCmdUI* ui) { ui->Enable(enablesGreen); }
    afx_msg void OnUpdateBlue(CCmdUI* ui) { ui->SetCheck(checksBlue); }
    afx_msg void OnUpdatePlace(CCmdUI* ui)
    {
        ui->Enable(!place.IsEmpty());
        ui->SetText(place);
    }

    DECLARE_MESSAGE_MAP()
};

// Shows the frame as the main window of the program, because idle work is done for the main window.
class BarFrameTest : public testing::Test
{
protected:
    BarFrameTest() : frame(new BarFrame) {}

    void SetUp() override { Show(); }

    void TearDown() override
    {
        AfxGetThread()->m_pMainWnd = NULL;
        if (frame != NULL)
            frame->DestroyWindow();
    }

    void Show()
    {
        ASSERT_TRUE(frame->LoadFrame(IDR_FRAMES));
        AfxGetThread()->m_pMainWnd = frame;
        frame->SetWindowPos(NULL, 40, 40, 500, 320, SWP_NOZORDER);
        frame->ShowWindow(SW_SHOW);
        ASSERT_TRUE(Activate(frame->m_hWnd));
        PumpPending();
    }

    // Idle work, as after a message.
    void Idle() { AfxGetThread()->OnIdle(0); }

    std::string MessageLine() const { return Narrow(frame->statusBar.GetPaneText(0)); }

    // The middle of a button in client coordinates of the tool bar.
    CPoint ButtonPoint(UINT command) const
    {
        CRect rect;
        frame->toolBar.GetItemRect(frame->toolBar.CommandToIndex(command), &rect);
        return rect.CenterPoint();
    }

    BarFrame* frame; // NULL when a test has destroyed it
};

} // namespace quor::test
