// CDialogBar: creation from a template, size, keys.
#include "bars/BarAccess.h"
#include "dialog/DialogTemplate.h"

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

CDialogBar::CDialogBar() : m_lpszTemplateName(nullptr)
{
    // The template leaves the room around the controls.
    SetBorders(0, 0, 0, 0);
}

CDialogBar::~CDialogBar()
{
    DestroyWindow();
}

BOOL CDialogBar::Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID)
{
    return Create(pParentWnd, MAKEINTRESOURCE(nIDTemplate), nStyle, nID);
}

BOOL CDialogBar::Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID)
{
    const LPCDLGTEMPLATE dialogTemplate = quorfx::FindDialogTemplate(lpszTemplateName);
    if (dialogTemplate == nullptr)
        return FALSE;
    m_dwBarStyle = nStyle & CBRS_ALL;
    m_lpszTemplateName = lpszTemplateName;
    if (!quorfx::CreateFromTemplate(this, dialogTemplate, pParentWnd, &CDialogBar::DialogProc))
        return FALSE;
    SetDlgCtrlID(static_cast<int>(nID));
    m_sizeDefault = quorfx::DialogTemplateSize(m_hWnd, dialogTemplate);
    const CSize size = CalcFixedLayout(FALSE, IsHorizontal());
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return TRUE;
}

INT_PTR CALLBACK CDialogBar::DialogProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CDialogBar* const bar = DYNAMIC_DOWNCAST(CDialogBar, CWnd::FromHandlePermanent(hWnd));
    if (bar != nullptr)
        bar->ExecuteDlgInit(bar->m_lpszTemplateName);
    // The focus stays where it is.
    return FALSE;
}

CSize CDialogBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    return AroundItems(m_sizeDefault, bStretch, bHorz);
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler)
{
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

BOOL CDialogBar::PreTranslateMessage(MSG* pMsg)
{
    if (CControlBar::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    if (!isKey)
        return FALSE;
    // Accelerators come first: IsDialogMessage would take their keys.
    for (CFrameWnd* frame = GetDockingFrame(); frame != nullptr; frame = frame->GetParentFrame())
    {
        if (frame->PreTranslateMessage(pMsg))
            return TRUE;
    }
    return PreTranslateInput(pMsg);
}
