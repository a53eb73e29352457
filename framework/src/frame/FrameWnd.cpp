// CFrameWnd: creation, layout and activation.
#include "afxpriv.h"
#include "bars/BarDrag.h"
#include "bars/FrameBars.h"
#include "bars/FrameMessages.h"
#include "thread/HelpContext.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_INITMENUPOPUP()
    ON_MESSAGE(WM_COMMANDHELP, &CFrameWnd::OnCommandHelp)
    ON_WM_MENUSELECT()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXT, 0, 0xffff, &CFrameWnd::OnToolTipText)
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_REBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_REBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_KANA, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

namespace quorfx
{

HICON FrameIcon(UINT id)
{
    const LPCTSTR name = MAKEINTRESOURCE(id);
    return id != 0 ? ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name) : nullptr;
}

LPCTSTR RegisterFrameClass(HICON icon)
{
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                               reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1)), icon);
}

} // namespace quorfx

CFrameWnd::CFrameWnd()
    : m_bAutoMenuEnable(TRUE),
      m_hAccelTable(nullptr),
      m_pViewActive(nullptr),
      m_bInRecalcLayout(FALSE),
      m_nIDHelp(0),
      m_hLoadedAccelTable(nullptr),
      m_bLayoutIsDue(FALSE),
      m_rectBorder(0, 0, 0, 0),
      m_pBars(nullptr),
      m_nWindow(0)
{
}

CFrameWnd::~CFrameWnd()
{
    // The window must die while this is still a frame: its views ask the frame for the active one.
    DestroyWindow();
    if (m_hLoadedAccelTable != nullptr)
        ::DestroyAcceleratorTable(m_hLoadedAccelTable);
    delete m_pBars;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext)
{
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr)
    {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr)
        {
            TRACE(_T("Frame: the menu is missing.\n"));
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    const int width = rect.left == CW_USEDEFAULT ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = rect.left == CW_USEDEFAULT ? CW_USEDEFAULT : rect.bottom - rect.top;
    const BOOL created = CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                                  width, height, pParentWnd->GetSafeHwnd(), menu, pContext);
    if (!created && menu != nullptr)
        ::DestroyMenu(menu);
    return created;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext)
{
    CString text, title;
    if (text.LoadString(nIDResource))
        AfxExtractSubString(title, text, 0);
    const LPCTSTR resource = MAKEINTRESOURCE(nIDResource);
    m_nIDHelp = nIDResource;
    // Without an icon of that number the frame gets the one of its kind.
    const HICON icon = quorfx::FrameIcon(nIDResource);
    const CString className = icon != nullptr ? quorfx::RegisterFrameClass(icon) : _T("");
    if (!Create(className.IsEmpty() ? nullptr : static_cast<LPCTSTR>(className), title, dwDefaultStyle,
                rectDefault, pParentWnd, resource, 0, pContext))
        return FALSE;
    LoadAccelTable(resource);
    // With a context a document template sends the update after the document has been opened.
    if (pContext == nullptr)
        SendMessageToDescendants(quorfx::initialUpdateMessage, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName)
{
    ASSERT(m_hAccelTable == nullptr);
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR);
    m_hLoadedAccelTable = ::LoadAccelerators(module, lpszResourceName);
    m_hAccelTable = m_hLoadedAccelTable;
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = quorfx::RegisterFrameClass(quorfx::FrameIcon(AFX_IDI_STD_FRAME));
    if (cs.style & FWS_ADDTOTITLE)
        cs.style |= FWS_PREFIXTITLE;
    return CWnd::PreCreateWindow(cs);
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    return CreateContents(lpCreateStruct, static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams));
}

int CFrameWnd::CreateContents(LPCREATESTRUCT lpCreateStruct, CCreateContext* pContext)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!OnCreateClient(lpCreateStruct, pContext))
    {
        TRACE(_T("Frame: the client area could not be created.\n"));
        return -1;
    }
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext)
{
    const bool wantsView = pContext != nullptr && pContext->m_pNewViewClass != nullptr;
    return !wantsView || CreateView(pContext, AFX_IDW_PANE_FIRST) != nullptr;
}

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID)
{
    CObject* object = pContext->m_pNewViewClass->CreateObject();
    CWnd* view = DYNAMIC_DOWNCAST(CWnd, object);
    if (view == nullptr)
    {
        delete object;
        return nullptr;
    }
    // A view that cannot be created deletes itself.
    if (!view->Create(nullptr, nullptr, quorfx::defaultViewStyle, CRect(0, 0, 0, 0), this, nID, pContext))
        return nullptr;
    return view;
}

void CFrameWnd::OnDestroy()
{
    SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_bInRecalcLayout)
        return;
    m_bInRecalcLayout = TRUE;
    m_bLayoutIsDue = FALSE;
    CRect border(m_rectBorder);
    RepositionBars(0, 0xffff, AFX_IDW_PANE_FIRST, reposExtra, &border);
    if (m_pBars != nullptr)
        m_pBars->LayOutFloats();
    m_bInRecalcLayout = FALSE;
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd)
{
    if (m_pViewActive != nullptr)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (m_pBars != nullptr)
        m_pBars->ShowFloatsActive(nState != WA_INACTIVE);
    CView* view = m_pViewActive;
    if (view == nullptr)
        return;
    if (nState != WA_INACTIVE && !bMinimized)
        view->OnActivateView(TRUE, view, view);
    view->OnActivateFrame(nState, this);
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify)
{
    CView* before = m_pViewActive;
    if (pViewNew == before)
        return;
    m_pViewActive = nullptr;
    if (before != nullptr)
        before->OnActivateView(FALSE, pViewNew, before);
    // The old view may have made another one active.
    if (m_pViewActive != nullptr)
        return;
    m_pViewActive = pViewNew;
    if (pViewNew != nullptr && bNotify)
        pViewNew->OnActivateView(TRUE, pViewNew, before);
}

CDocument* CFrameWnd::GetActiveDocument()
{
    return m_pViewActive != nullptr ? m_pViewActive->GetDocument() : nullptr;
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    return this;
}

// How the main window is shown first is what whoever started the program wants.
int CFrameWnd::TakeShowCommand() const
{
    CWinApp* const application = AfxGetApp();
    if (application == nullptr || !IsMainWindow())
        return -1;
    const int command = application->m_nCmdShow;
    application->m_nCmdShow = -1;
    return command;
}

void CFrameWnd::InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible)
{
    if (m_pViewActive == nullptr)
    {
        CWnd* pane = GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE);
        SetActiveView(DYNAMIC_DOWNCAST(CView, pane), FALSE);
    }
    if (bMakeVisible)
    {
        SendMessageToDescendants(quorfx::initialUpdateMessage, 0, 0, TRUE, TRUE);
        CView* view = m_pViewActive;
        if (view != nullptr)
            view->OnActivateFrame(WA_INACTIVE, this);
        ActivateFrame(TakeShowCommand());
        if (view != nullptr)
            view->OnActivateView(TRUE, view, view);
    }
    if (pDoc != nullptr)
        pDoc->NumberFrames();
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    if (nCmdShow == -1 && !IsWindowVisible())
        nCmdShow = SW_SHOWNORMAL;
    else if (nCmdShow == -1 && IsIconic())
        nCmdShow = SW_RESTORE;
    if (nCmdShow != -1)
        ShowWindow(nCmdShow);
    BringWindowToTop();
}

LRESULT CFrameWnd::OnCommandHelp(WPARAM, LPARAM lParam)
{
    if (lParam == 0 && m_nIDHelp != 0)
        lParam = HID_BASE_RESOURCE + static_cast<LPARAM>(m_nIDHelp);
    return ShowHelpContext(static_cast<DWORD_PTR>(lParam));
}
