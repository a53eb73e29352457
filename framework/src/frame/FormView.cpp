// CFormView: a view made from a dialog template.
#include "afxext.h"
#include "dialog/DialogTemplate.h"
#include "bars/FrameMessages.h"

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CFormView::CFormView(LPCTSTR lpszTemplateName)
    : m_lpszTemplateName(lpszTemplateName), m_pCreateContext(nullptr), m_hWndFocus(nullptr)
{
}

CFormView::CFormView(UINT nIDTemplate) : CFormView(MAKEINTRESOURCE(nIDTemplate)) {}

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD dwRequestedStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                       CCreateContext* pContext)
{
    const LPCDLGTEMPLATE dialogTemplate = quorfx::FindDialogTemplate(m_lpszTemplateName);
    if (dialogTemplate == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    m_pCreateContext = pContext;
    if (!quorfx::CreateFromTemplate(this, dialogTemplate, pParentWnd, &CFormView::FormProc))
        return FALSE;
    m_pCreateContext = nullptr;
    if (dwRequestedStyle & WS_BORDER)
        ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
    SetDlgCtrlID(static_cast<int>(nID));
    SetScrollSizes(MM_TEXT, quorfx::DialogTemplateSize(m_hWnd, dialogTemplate));
    const UINT show = dwRequestedStyle & WS_VISIBLE ? SWP_SHOWWINDOW : 0;
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | show);
    return TRUE;
}

INT_PTR CALLBACK CFormView::FormProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CFormView* view = DYNAMIC_DOWNCAST(CFormView, CWnd::FromHandlePermanent(hWnd));
    if (view != nullptr)
        view->ExecuteDlgInit(view->m_lpszTemplateName);
    // The frame decides where the focus goes.
    return FALSE;
}

// The dialog manager passes no context on: it is the one that Create was given.
int CFormView::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    lpCreateStruct->lpCreateParams = m_pCreateContext;
    return CScrollView::OnCreate(lpCreateStruct);
}

void CFormView::OnInitialUpdate()
{
    if (!UpdateData(FALSE))
        TRACE(_T("Form: the members could not be shown.\n"));
    CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC*) {}

BOOL CFormView::PreTranslateMessage(MSG* pMsg)
{
    if (CScrollView::PreTranslateMessage(pMsg))
        return TRUE;
    // Accelerators come first: IsDialogMessage would take their keys.
    for (CFrameWnd* frame = GetParentFrame(); frame != nullptr; frame = frame->GetParentFrame())
    {
        if (frame->PreTranslateMessage(pMsg))
            return TRUE;
    }
    return PreTranslateInput(pMsg);
}

// Remembers the control that has the focus; whether there is one.
BOOL CFormView::SaveFocusControl()
{
    const HWND focus = ::GetFocus();
    if (focus == nullptr || !::IsChild(m_hWnd, focus))
        return FALSE;
    m_hWndFocus = focus;
    return TRUE;
}

void CFormView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView)
{
    if (bActivate)
        OnActivateFrame(WA_INACTIVE, GetParentFrame());
    CScrollView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

void CFormView::OnActivateFrame(UINT nState, CFrameWnd*)
{
    if (nState == WA_INACTIVE)
        SaveFocusControl();
}

void CFormView::OnSetFocus(CWnd*)
{
    if (::IsWindow(m_hWndFocus) && ::IsChild(m_hWnd, m_hWndFocus))
    {
        ::SetFocus(m_hWndFocus);
        return;
    }
    m_hWndFocus = nullptr;
    // Lets the dialog manager choose the first control.
    Default();
}
