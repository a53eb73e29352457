// CMDIChildWnd: creation, activation, title and keys of a child frame.
#include "bars/FrameMessages.h"
#include "window/CreationScope.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() : m_hMenuShared(nullptr), m_hOwnMenu(nullptr), m_hOwnAccel(nullptr) {}

CMDIChildWnd::~CMDIChildWnd()
{
    DestroyWindow();
    if (m_hOwnMenu != nullptr)
        ::DestroyMenu(m_hOwnMenu);
    if (m_hOwnAccel != nullptr)
        ::DestroyAcceleratorTable(m_hOwnAccel);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= WS_CHILD;
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CMDIFrameWnd* pParentWnd, CCreateContext* pContext)
{
    CMDIFrameWnd* parent = pParentWnd;
    if (parent == nullptr)
        parent = DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    if (parent == nullptr || parent->m_hWndMDIClient == nullptr)
    {
        TRACE(_T("Frame: there is no window for the child.\n"));
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = lpszWindowName;
    const bool isDefault = rect.left == CW_USEDEFAULT;
    CREATESTRUCT cs = {};
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = isDefault ? CW_USEDEFAULT : rect.right - rect.left;
    cs.cy = isDefault ? CW_USEDEFAULT : rect.bottom - rect.top;
    cs.hwndParent = parent->m_hWndMDIClient;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = pContext;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    CreationScope scope(*this);
    // The system wraps the context into an MDICREATESTRUCT.
    const HWND created = ::CreateWindowEx(cs.dwExStyle | WS_EX_MDICHILD, cs.lpszClass, cs.lpszName,
                                          static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                                          cs.hwndParent, nullptr, cs.hInstance, cs.lpCreateParams);
    return scope.Finish(created);
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    const MDICREATESTRUCT* const parameters =
        static_cast<const MDICREATESTRUCT*>(lpCreateStruct->lpCreateParams);
    return CreateContents(lpCreateStruct, reinterpret_cast<CCreateContext*>(parameters->lParam));
}

void CMDIChildWnd::FindHandles(UINT resource, CCreateContext* context)
{
    if (m_hMenuShared != nullptr || m_hAccelTable != nullptr)
        return;
    CDocTemplate* const docTemplate = context != nullptr ? context->m_pNewDocTemplate : nullptr;
    if (CMultiDocTemplate* const kind = DYNAMIC_DOWNCAST(CMultiDocTemplate, docTemplate))
    {
        SetHandles(kind->m_hMenuShared, kind->m_hAccelTable);
        return;
    }
    const LPCTSTR name = MAKEINTRESOURCE(resource);
    m_hOwnMenu = ::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name);
    m_hOwnAccel = ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
    SetHandles(m_hOwnMenu, m_hOwnAccel);
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                             CCreateContext* pContext)
{
    FindHandles(nIDResource, pContext);
    CString text, title;
    if (text.LoadString(nIDResource))
        AfxExtractSubString(title, text, CDocTemplate::docName);
    const LPCTSTR resource = MAKEINTRESOURCE(nIDResource);
    const HICON icon = ::LoadIcon(AfxFindResourceHandle(resource, RT_GROUP_ICON), resource);
    const CString className = quorfx::RegisterFrameClass(icon);
    CMDIFrameWnd* const parent = DYNAMIC_DOWNCAST(CMDIFrameWnd, pParentWnd);
    return Create(className, title, dwDefaultStyle, rectDefault, parent, pContext);
}

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel)
{
    m_hMenuShared = hMenu;
    m_hAccelTable = hAccel;
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame()
{
    const HWND client = ::GetParent(m_hWnd);
    return static_cast<CMDIFrameWnd*>(CWnd::FromHandle(::GetParent(client)));
}

void CMDIChildWnd::MDIDestroy()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIActivate()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIMaximize()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIRestore()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIRESTORE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

BOOL CMDIChildWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    // Only the client window destroys a child so that another one becomes active.
    const HWND window = m_hWnd;
    MDIDestroy();
    return !::IsWindow(window);
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

void CMDIChildWnd::ActivateFrame(int nCmdShow)
{
    const bool isHidden = (GetStyle() & WS_VISIBLE) == 0;
    if (nCmdShow == -1 && isHidden)
    {
        // A new child is as large as the active one.
        BOOL isMaximized = FALSE;
        const CMDIChildWnd* const active = GetMDIFrame()->MDIGetActive(&isMaximized);
        nCmdShow = active != nullptr && isMaximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    }
    else if (nCmdShow == -1 && IsIconic())
    {
        nCmdShow = SW_RESTORE;
    }
    if (nCmdShow != -1)
        ShowWindow(nCmdShow);
    BringWindowToTop();
    MDIActivate();
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    GetMDIFrame()->OnUpdateFrameTitle(bAddToTitle);
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    const CString document = bAddToTitle ? DocumentTitle() : CString();
    SetWindowText(document.IsEmpty() ? m_strTitle : document);
}

void CMDIChildWnd::OnSize(UINT nType, int cx, int cy)
{
    CFrameWnd::OnSize(nType, cx, cy);
    // The title of the main window tells whether its active child is maximized.
    GetMDIFrame()->OnUpdateFrameTitle(TRUE);
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd)
{
    CFrameWnd::OnMDIActivate(bActivate, pActivateWnd, pDeactivateWnd);
    CView* const view = GetActiveView();
    CFrameWnd* const next = DYNAMIC_DOWNCAST(CFrameWnd, pActivateWnd);
    if (!bActivate && view != nullptr)
        view->OnActivateView(FALSE, next != nullptr ? next->GetActiveView() : nullptr, view);
    CMDIFrameWnd* const frame = GetMDIFrame();
    if (bActivate)
        frame->ShowMenuOf(this);
    else if (next == nullptr)
        frame->ShowMenuOf(nullptr);
    if (bActivate && view != nullptr && !frame->IsIconic())
        view->OnActivateView(TRUE, view, view);
    frame->OnUpdateFrameTitle(TRUE);
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    // The command goes through the main window, whose menu knows what is enabled.
    const HACCEL accelerators = GetDefaultAccelerator();
    return accelerators != nullptr && ::TranslateAccelerator(GetMDIFrame()->m_hWnd, accelerators, pMsg);
}
