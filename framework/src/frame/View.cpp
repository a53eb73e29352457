// CView: the link to document and frame, painting and activation.
#include "bars/FrameMessages.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(quorfx::initialUpdateMessage, &CView::HandleInitialUpdate)
    ON_COMMAND_EX(ID_NEXT_PANE, &CView::OnNextPaneCmd)
    ON_COMMAND_EX(ID_PREV_PANE, &CView::OnNextPaneCmd)
    ON_UPDATE_COMMAND_UI(ID_NEXT_PANE, &CView::OnUpdateNextPaneMenu)
    ON_UPDATE_COMMAND_UI(ID_PREV_PANE, &CView::OnUpdateNextPaneMenu)
    ON_COMMAND_EX(ID_WINDOW_SPLIT, &CView::OnSplitCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_SPLIT, &CView::OnUpdateSplitCmd)
END_MESSAGE_MAP()

CView::CView() : m_pDocument(nullptr) {}

CView::~CView()
{
    if (m_pDocument != nullptr)
        m_pDocument->RemoveView(this);
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = quorfx::RegisterFrameClass(nullptr);
    if (cs.style & WS_BORDER)
    {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~WS_BORDER;
    }
    return CWnd::PreCreateWindow(cs);
}

int CView::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    CCreateContext* context = static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (context != nullptr && context->m_pCurrentDoc != nullptr)
        context->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy()
{
    CFrameWnd* frame = GetParentFrame();
    if (frame != nullptr && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::PostNcDestroy()
{
    delete this;
}

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView*, LPARAM, CObject*)
{
    Invalidate(TRUE);
}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnPrepareDC(CDC*, CPrintInfo*) {}

BOOL CView::IsSelected(const CObject*) const
{
    return FALSE;
}

BOOL CView::OnScroll(UINT, UINT, BOOL)
{
    return FALSE;
}

BOOL CView::OnScrollBy(CSize, BOOL)
{
    return FALSE;
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return m_pDocument != nullptr && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message)
{
    const int answer = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    CFrameWnd* frame = GetParentFrame();
    if (answer == MA_NOACTIVATE || answer == MA_NOACTIVATEANDEAT || frame == nullptr)
        return answer;
    const HWND focus = ::GetFocus();
    const bool focusIsElsewhere = focus != m_hWnd && !::IsChild(m_hWnd, focus);
    if (frame->GetActiveView() != this)
        frame->SetActiveView(this);
    else if (focusIsElsewhere)
        OnActivateView(TRUE, this, this);
    return answer;
}

void CView::OnActivateView(BOOL bActivate, CView*, CView*)
{
    if (bActivate && IsTopParentActive())
        SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}
