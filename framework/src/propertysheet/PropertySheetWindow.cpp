// CPropertySheet: creation, the modal loop, and how the sheet ends.
#include "dialog/CommandRoute.h"
#include "dialog/DisabledWindows.h"
#include "propertysheet/SheetPages.h"
#include "window/CreationScope.h"

#include "afxpriv.h"

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_WM_CLOSE()
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::HandlePressButton)
END_MESSAGE_MAP()

namespace
{

// Buttons that end a sheet, and the result for each.
int ResultOfButton(int button)
{
    switch (button)
    {
    case PSBTN_OK:
        return IDOK;
    case PSBTN_FINISH:
        return ID_WIZFINISH;
    default:
        return IDCANCEL;
    }
}

// The style that the next sheet of Create gets; the system gives it a template, but no object.
struct TemplateStyle
{
    DWORD style;
    DWORD exStyle;
};
thread_local const TemplateStyle* t_templateStyle = nullptr;

} // namespace

int CALLBACK CPropertySheet::SheetCallback(HWND, UINT message, LPARAM lParam)
{
    if (message != PSCB_PRECREATE || t_templateStyle == nullptr)
        return 0;
    // An extended template has its extended style and style further back.
    DWORD* const words = reinterpret_cast<DWORD*>(lParam);
    const bool isExtended = HIWORD(words[0]) == 0xffff;
    words[isExtended ? 3 : 0] = t_templateStyle->style;
    words[isExtended ? 2 : 1] = t_templateStyle->exStyle;
    return 0;
}

namespace
{

// Whether all pages are there. Frees them when not.
bool CheckPages(const std::vector<HPROPSHEETPAGE>& handles)
{
    const HPROPSHEETPAGE missing = nullptr;
    if (!handles.empty() && std::find(handles.begin(), handles.end(), missing) == handles.end())
        return true;
    for (const HPROPSHEETPAGE handle : handles)
    {
        if (handle != nullptr)
            ::DestroyPropertySheetPage(handle);
    }
    return false;
}

} // namespace

BOOL CPropertySheet::CreateSheet(CWnd* pOwner)
{
    ASSERT(m_hWnd == nullptr);
    std::vector<HPROPSHEETPAGE> handles;
    for (CPropertyPage* page : m_pPages->list)
        handles.push_back(page->MakeHandle());
    if (!CheckPages(handles))
        return FALSE;
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS | PSH_USECALLBACK;
    header.dwFlags &= ~static_cast<DWORD>(PSH_PROPSHEETPAGE);
    header.hwndParent = pOwner->GetSafeHwnd();
    header.hInstance = AfxGetInstanceHandle();
    header.pszCaption = m_strCaption;
    header.nPages = static_cast<UINT>(handles.size());
    header.phpage = handles.data();
    header.pfnCallback = &CPropertySheet::SheetCallback;
    CreationScope scope(*this);
    const INT_PTR created = ::PropertySheet(&header);
    return scope.Finish(created == -1 ? nullptr : reinterpret_cast<HWND>(created));
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle)
{
    if (dwStyle == static_cast<DWORD>(-1))
    {
        dwStyle = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE;
        dwExStyle |= WS_EX_DLGMODALFRAME;
    }
    m_bModeless = true;
    const TemplateStyle style = {dwStyle | DS_3DLOOK | DS_SETFONT, dwExStyle};
    t_templateStyle = &style;
    const BOOL created = CreateSheet(pParentWnd != nullptr ? pParentWnd : m_pParentWnd);
    t_templateStyle = nullptr;
    return created;
}

INT_PTR CPropertySheet::DoModal()
{
    m_bModeless = false;
    m_nModalResult = -1;
    RunModal();
    return m_nModalResult;
}

void CPropertySheet::RunModal()
{
    HWND topLevel = nullptr;
    CWnd* const owner = CWnd::GetSafeOwner(m_pParentWnd, &topLevel);
    const HWND ownerHandle = owner->GetSafeHwnd();
    ::ReleaseCapture();
    quorfx::DisabledWindows blocked(ownerHandle, topLevel);
    // The sheet may end while it is still being created.
    m_nFlags |= WF_CONTINUEMODAL;
    if (CreateSheet(owner) && ContinueModal())
        RunModalLoop(MLF_SHOWONIDLE);
    m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
    if (m_hWnd != nullptr)
        ::ShowWindow(m_hWnd, SW_HIDE);
    // The owner must be enabled before the sheet dies, or another program's window would become active.
    blocked.Enable();
    if (m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(ownerHandle);
    DestroyWindow();
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog()
{
    // Makes the tabs, the buttons and the first page.
    const BOOL result = static_cast<BOOL>(Default());
    if (!m_bStacked && !IsWizard())
        ShowTabsInOneRow();
    if (m_bModeless && !IsWizard())
        HideButtons();
    return result;
}

void CPropertySheet::ShowTabsInOneRow()
{
    GetTabControl()->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
}

// A modeless sheet works without them: they go, and the sheet ends below the pages.
void CPropertySheet::HideButtons()
{
    int top = INT_MAX;
    CRect window;
    GetWindowRect(&window);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
    {
        const HWND button = ::GetDlgItem(m_hWnd, id);
        if (button == nullptr)
            continue;
        CRect rect;
        ::GetWindowRect(button, &rect);
        top = (std::min)(top, static_cast<int>(rect.top));
        ::ShowWindow(button, SW_HIDE);
        ::EnableWindow(button, FALSE);
    }
    if (top < window.bottom)
        SetWindowPos(nullptr, 0, 0, window.Width(), top - window.top,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) ||
           ::SendMessage(m_hWnd, PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg)) != 0;
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           quorfx::RouteCommandOut(*this, nID, nCode, pExtra, pHandlerInfo);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    Default();
    FinishIfEnded(LOWORD(wParam));
    return TRUE;
}

void CPropertySheet::OnClose()
{
    Default();
    FinishIfEnded(IDCANCEL);
}

LRESULT CPropertySheet::HandlePressButton(WPARAM wParam, LPARAM)
{
    const LRESULT result = Default();
    FinishIfEnded(ResultOfButton(static_cast<int>(wParam)));
    return result;
}

void CPropertySheet::PressButton(int nButton)
{
    ASSERT(m_hWnd != nullptr);
    ::SendMessage(m_hWnd, PSM_PRESSBUTTON, static_cast<WPARAM>(nButton), 0);
}

// A sheet without a loop of the system's says that it is to be destroyed by having no current page.
void CPropertySheet::FinishIfEnded(int nEndID)
{
    if (m_hWnd != nullptr && ::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) == 0)
        EndDialog(nEndID);
}

void CPropertySheet::EndDialog(int nEndID)
{
    if (m_bModeless)
        DestroyWindow();
    else
        EndModalLoop(nEndID);
}
