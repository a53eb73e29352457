// Frames: creation, layout, the active view, the command route, menus, accelerators and titles.
#include "tests/framework/ControlsResource.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <afxext.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using namespace quor::test;

std::vector<std::string> trace;

// A view that writes down what it is told.
class TracingView : public CView
{
    DECLARE_DYNCREATE(TracingView)

public:
    bool handlesFrameCommand = false;
    int updates = 0;
    int draws = 0;
    using CView::OnUpdate;

protected:
    void OnDraw(CDC* dc) override
    {
        ++draws;
        dc->TextOut(0, 0, CString(L"text"));
    }
    void OnInitialUpdate() override
    {
        trace.push_back("initial update");
        CView::OnInitialUpdate();
    }
    void OnUpdate(CView* sender, LPARAM hint, CObject* hintObject) override
    {
        ++updates;
        CView::OnUpdate(sender, hint, hintObject);
    }
    void OnActivateView(BOOL bActivate, CView* activate, CView* deactivate) override
    {
        trace.push_back(bActivate ? "activate view" : "deactivate view");
        CView::OnActivateView(bActivate, activate, deactivate);
    }
    void PostNcDestroy() override
    {
        trace.push_back("view gone");
        CView::PostNcDestroy();
    }
    afx_msg void OnViewCommand() { trace.push_back("view command"); }
    afx_msg BOOL OnFrameCommand(UINT)
    {
        trace.push_back("view sees frame command");
        return handlesFrameCommand;
    }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(TracingView, CView)

BEGIN_MESSAGE_MAP(TracingView, CView)
    ON_COMMAND(ID_TEST_VIEW, &TracingView::OnViewCommand)
    ON_COMMAND_EX(ID_TEST_FRAME, &TracingView::OnFrameCommand)
END_MESSAGE_MAP()

class TracingFrame : public CFrameWnd
{
public:
    bool enablesUpdated = true;

protected:
    void PostNcDestroy() override
    {
        trace.push_back("frame gone");
        CFrameWnd::PostNcDestroy();
    }
    afx_msg void OnFrameCommand() { trace.push_back("frame command"); }
    afx_msg void OnUpdated() { trace.push_back("updated command"); }
    afx_msg void OnUpdateUpdated(CCmdUI* ui)
    {
        ui->Enable(enablesUpdated);
        ui->SetCheck(!enablesUpdated);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TracingFrame, CFrameWnd)
    ON_COMMAND(ID_TEST_FRAME, &TracingFrame::OnFrameCommand)
    ON_COMMAND(ID_TEST_UPDATED, &TracingFrame::OnUpdated)
    ON_UPDATE_COMMAND_UI(ID_TEST_UPDATED, &TracingFrame::OnUpdateUpdated)
END_MESSAGE_MAP()

class TestDocument : public CDocument
{
public:
    TestDocument() { m_bAutoDelete = FALSE; }
};

class Frame : public testing::Test
{
protected:
    Frame()
    {
        trace.clear();
        m_frame = new TracingFrame;
        m_context.m_pNewViewClass = RUNTIME_CLASS(TracingView);
        m_context.m_pCurrentDoc = &m_document;
        m_frame->LoadFrame(IDR_FRAME, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, NULL, &m_context);
        m_frame->InitialUpdateFrame(&m_document, TRUE);
        m_view = static_cast<TracingView*>(m_frame->GetActiveView());
        Activate(m_frame->m_hWnd);
        trace.clear();
    }

    ~Frame() override
    {
        if (m_frame != NULL)
            m_frame->DestroyWindow();
    }

    TestDocument m_document;
    CCreateContext m_context;
    TracingFrame* m_frame;
    TracingView* m_view;
};

std::string Title(CWnd* window)
{
    CString text;
    window->GetWindowText(text);
    return std::string(CStringA(text));
}

TEST_F(Frame, LoadFrame_TakesMenuAcceleratorsAndTitle)
{
    EXPECT_EQ(Title(m_frame), "Frame title");
    EXPECT_STREQ(m_frame->GetTitle(), L"Frame title");
    ASSERT_NE(m_frame->GetMenu(), nullptr);
    EXPECT_EQ(m_frame->GetMenu()->GetMenuItemCount(), 1U);
    EXPECT_TRUE(m_frame->IsWindowVisible());
}

TEST_F(Frame, LoadFrame_FailsWithoutAMenu)
{
    TracingFrame* frame = new TracingFrame;
    EXPECT_FALSE(frame->LoadFrame(31998));
    EXPECT_EQ(trace, (std::vector<std::string>{"frame gone"}));
}

TEST_F(Frame, View_IsCreatedUpdatedAndMadeActive)
{
    ASSERT_NE(m_view, nullptr);
    EXPECT_EQ(m_view->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_EQ(m_view->GetDocument(), &m_document);
    EXPECT_EQ(m_frame->GetActiveDocument(), &m_document);
    EXPECT_EQ(m_view->GetParentFrame(), m_frame);
    EXPECT_EQ(m_view->updates, 1);
    EXPECT_TRUE(m_view->GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(::GetFocus(), m_view->m_hWnd);
}

TEST_F(Frame, View_FillsTheClientArea)
{
    CRect client, view;
    for (int width : {400, 555})
    {
        m_frame->SetWindowPos(NULL, 0, 0, width, 300, SWP_NOMOVE | SWP_NOZORDER);
        m_frame->GetClientRect(&client);
        m_view->GetWindowRect(&view);
        m_frame->ScreenToClient(&view);
        EXPECT_EQ(view, client);
    }
}

TEST_F(Frame, Paint_CallsOnDraw)
{
    const int before = m_view->draws;
    m_view->Invalidate();
    m_view->UpdateWindow();
    EXPECT_EQ(m_view->draws, before + 1);
}

TEST_F(Frame, Commands_GoToTheViewFirst)
{
    m_frame->SendMessage(WM_COMMAND, ID_TEST_VIEW);
    EXPECT_EQ(trace, (std::vector<std::string>{"view command"}));
    trace.clear();
    m_frame->SendMessage(WM_COMMAND, ID_TEST_FRAME);
    EXPECT_EQ(trace, (std::vector<std::string>{"view sees frame command", "frame command"}));
    trace.clear();
    m_view->handlesFrameCommand = true;
    m_frame->SendMessage(WM_COMMAND, ID_TEST_FRAME);
    EXPECT_EQ(trace, (std::vector<std::string>{"view sees frame command"}));
}

TEST_F(Frame, Commands_ReachTheApplicationLast)
{
    EXPECT_TRUE(m_frame->OnCmdMsg(ID_APP_EXIT, CN_COMMAND, NULL, NULL) ||
                !AfxGetApp()->OnCmdMsg(ID_APP_EXIT, CN_COMMAND, NULL, NULL));
    EXPECT_FALSE(m_frame->OnCmdMsg(ID_TEST_NOBODY, CN_COMMAND, NULL, NULL));
}

UINT StateOf(CMenu* menu, UINT id)
{
    return menu->GetMenuState(id, MF_BYCOMMAND);
}

void OpenMenu(CFrameWnd* frame, CMenu* popup)
{
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 0);
}

TEST_F(Frame, OpeningAMenu_GreysWhatNobodyHandles)
{
    CMenu* popup = m_frame->GetMenu()->GetSubMenu(0);
    OpenMenu(m_frame, popup);
    EXPECT_FALSE(StateOf(popup, ID_TEST_VIEW) & MF_GRAYED);
    EXPECT_FALSE(StateOf(popup, ID_TEST_FRAME) & MF_GRAYED);
    EXPECT_TRUE(StateOf(popup, ID_TEST_NOBODY) & MF_GRAYED);
    EXPECT_FALSE(StateOf(popup, ID_TEST_UPDATED) & (MF_GRAYED | MF_CHECKED));
    m_frame->enablesUpdated = false;
    OpenMenu(m_frame, popup);
    EXPECT_TRUE(StateOf(popup, ID_TEST_UPDATED) & MF_GRAYED);
    EXPECT_TRUE(StateOf(popup, ID_TEST_UPDATED) & MF_CHECKED);
}

TEST_F(Frame, OpeningAMenu_WithoutAutoEnable_LeavesItemsAlone)
{
    m_frame->m_bAutoMenuEnable = FALSE;
    CMenu* popup = m_frame->GetMenu()->GetSubMenu(0);
    OpenMenu(m_frame, popup);
    EXPECT_FALSE(StateOf(popup, ID_TEST_NOBODY) & MF_GRAYED);
}

TEST_F(Frame, OpeningAMenu_DoesNotGreyASubmenu)
{
    CMenu* popup = m_frame->GetMenu()->GetSubMenu(0);
    OpenMenu(m_frame, popup);
    EXPECT_FALSE(popup->GetMenuState(6, MF_BYPOSITION) & MF_GRAYED);
    OpenMenu(m_frame, popup->GetSubMenu(6));
    EXPECT_TRUE(StateOf(popup->GetSubMenu(6), ID_TEST_NOBODY) & MF_GRAYED);
}

TEST_F(Frame, OpeningTheSystemMenu_LeavesItAlone)
{
    CMenu* menu = m_frame->GetSystemMenu(FALSE);
    m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu), MAKELPARAM(0, TRUE));
    EXPECT_FALSE(StateOf(menu, SC_CLOSE) & MF_GRAYED);
}

TEST_F(Frame, CreatedPopup_IsGreyedWhenTheFrameTracksIt)
{
    CMenu popup;
    popup.CreatePopupMenu();
    popup.AppendMenu(MF_STRING, ID_TEST_FRAME, L"Frame");
    popup.AppendMenu(MF_STRING, ID_TEST_NOBODY, L"Nobody");
    OpenMenu(m_frame, &popup);
    EXPECT_FALSE(StateOf(&popup, ID_TEST_FRAME) & MF_GRAYED);
    EXPECT_TRUE(StateOf(&popup, ID_TEST_NOBODY) & MF_GRAYED);
}

TEST_F(Frame, AcceleratorKey_BecomesACommand)
{
    m_view->handlesFrameCommand = true;
    PostKey(m_view->m_hWnd, VK_F6);
    EXPECT_TRUE(PumpUntil([] { return !trace.empty(); }));
    EXPECT_EQ(trace, (std::vector<std::string>{"view sees frame command"}));
}

TEST_F(Frame, SetActiveView_TellsBothViews)
{
    TracingView* other = static_cast<TracingView*>(m_frame->CreateView(&m_context, AFX_IDW_PANE_FIRST + 1));
    ASSERT_NE(other, nullptr);
    m_frame->SetActiveView(other);
    EXPECT_EQ(trace, (std::vector<std::string>{"deactivate view", "activate view"}));
    EXPECT_EQ(::GetFocus(), other->m_hWnd);
    trace.clear();
    m_frame->SetActiveView(m_view, FALSE);
    EXPECT_EQ(trace, (std::vector<std::string>{"deactivate view"}));
    EXPECT_EQ(m_frame->GetActiveView(), m_view);
}

TEST_F(Frame, MouseActivation_MakesTheViewActive)
{
    CView* other = static_cast<CView*>(m_frame->CreateView(&m_context, AFX_IDW_PANE_FIRST + 1));
    other->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(m_frame->m_hWnd),
                       MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(m_frame->GetActiveView(), other);
}

TEST_F(Frame, FocusOfTheFrame_GoesToTheActiveView)
{
    ::SetFocus(NULL);
    m_frame->SetFocus();
    EXPECT_EQ(::GetFocus(), m_view->m_hWnd);
}

TEST_F(Frame, DestroyedView_IsNoLongerActive)
{
    m_view->DestroyWindow();
    EXPECT_EQ(m_frame->GetActiveView(), nullptr);
    EXPECT_EQ(m_document.GetFirstViewPosition(), nullptr);
}

TEST_F(Frame, Close_DestroysFrameAndView)
{
    m_frame->SendMessage(WM_CLOSE);
    m_frame = NULL;
    EXPECT_EQ(trace, (std::vector<std::string>{"deactivate view", "view gone", "frame gone"}));
}

TEST_F(Frame, Title_NamesTheDocumentFirst)
{
    m_document.SetTitle(L"Letter");
    EXPECT_EQ(Title(m_frame), "Letter - Frame title");
    m_frame->ModifyStyle(FWS_PREFIXTITLE, 0);
    m_document.SetTitle(L"Letter");
    EXPECT_EQ(Title(m_frame), "Frame title - Letter");
}

TEST_F(Frame, ToolTip_IsTheSecondPartOfTheCommandsString)
{
    NMTTDISPINFO tip = {};
    tip.hdr.code = TTN_GETDISPINFO;
    tip.hdr.hwndFrom = m_view->m_hWnd;
    tip.hdr.idFrom = ID_TEST_FRAME;
    m_frame->SendMessage(WM_NOTIFY, tip.hdr.idFrom, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(tip.szText, L"The frame's tip");
}

TEST(FrameClass, Create_WithoutResources)
{
    trace.clear();
    TracingFrame* frame = new TracingFrame;
    ASSERT_TRUE(frame->Create(NULL, L"Plain", WS_OVERLAPPEDWINDOW, CRect(20, 30, 320, 230)));
    CRect rect;
    frame->GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(20, 30, 320, 230));
    EXPECT_EQ(Title(frame), "Plain");
    EXPECT_EQ(frame->GetMenu(), nullptr);
    EXPECT_EQ(frame->GetActiveView(), nullptr);
    EXPECT_EQ(::GetClassLongPtr(frame->m_hWnd, GCLP_HBRBACKGROUND), COLOR_WINDOW + 1);
    frame->DestroyWindow();
    EXPECT_EQ(trace, (std::vector<std::string>{"frame gone"}));
}

TEST(FrameClass, OnCreateClientThatFails_FailsTheCreation)
{
    class Refusing : public CFrameWnd
    {
    public:
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { return FALSE; }
    };
    Refusing* frame = new Refusing;
    EXPECT_FALSE(frame->Create(NULL, L"Never"));
}

TEST(FrameIcon, AFrameWithoutAnIconOfItsOwnHasTheProgramsFrameIcon)
{
    const HICON programs = AfxGetApp()->LoadIcon(AFX_IDI_STD_FRAME);
    ASSERT_NE(programs, HICON(NULL));
    CFrameWnd* const plain = new CFrameWnd;
    ASSERT_TRUE(plain->Create(NULL, L"Plain"));
    EXPECT_EQ(::GetClassLongPtr(plain->m_hWnd, GCLP_HICON), reinterpret_cast<LONG_PTR>(programs));
    plain->DestroyWindow();
    CFrameWnd* const loaded = new CFrameWnd;
    ASSERT_TRUE(loaded->LoadFrame(IDR_FRAME)) << "there is a menu of that number, but no icon";
    EXPECT_EQ(::GetClassLongPtr(loaded->m_hWnd, GCLP_HICON), reinterpret_cast<LONG_PTR>(programs));
    loaded->DestroyWindow();
}

TEST(FrameIcon, AnMdiFrameHasTheProgramsIconForMdiFrames)
{
    const HICON programs = AfxGetApp()->LoadIcon(AFX_IDI_STD_MDIFRAME);
    ASSERT_NE(programs, HICON(NULL));
    CMDIFrameWnd* const frame = new CMDIFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, L"Frame"));
    EXPECT_EQ(::GetClassLongPtr(frame->m_hWnd, GCLP_HICON), reinterpret_cast<LONG_PTR>(programs));
    frame->DestroyWindow();
}

} // namespace
