// CPropertyPage: the window of a page, and the sheet's notifications as virtual functions.
#include "afxdlgs.h"
#include "controls/CommonControls.h"
#include "window/CreationScope.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

// The page's window is created between two calls of the system: the announcement and WM_INITDIALOG.
class CPropertyPage::Creation
{
public:
    explicit Creation(CPropertyPage& page) : m_scope(page) {}

private:
    CreationScope m_scope;
};

CPropertyPage::CPropertyPage() : m_psp(), m_pCreation(nullptr), m_bShownBefore(false)
{
    m_psp.dwSize = sizeof(m_psp);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(nIDTemplate, nIDCaption, 0, 0, dwSize)
{
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(lpszTemplateName, nIDCaption, 0, 0, dwSize)
{
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize)
{
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                             UINT nIDHeaderSubTitle, DWORD dwSize)
    : CPropertyPage()
{
    ASSERT(dwSize <= sizeof(m_psp));
    m_psp.dwSize = dwSize;
    Prepare(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

CPropertyPage::~CPropertyPage()
{
    delete m_pCreation;
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption)
{
    Prepare(MAKEINTRESOURCE(nIDTemplate), nIDCaption, 0, 0);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption)
{
    Prepare(lpszTemplateName, nIDCaption, 0, 0);
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle)
{
    Prepare(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                              UINT nIDHeaderSubTitle)
{
    Prepare(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::Prepare(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                            UINT nIDHeaderSubTitle)
{
    m_lpszTemplateName = lpszTemplateName;
    m_psp.pszTemplate = lpszTemplateName;
    if (nIDCaption != 0 && m_strCaption.LoadString(nIDCaption))
    {
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
    if (nIDHeaderTitle != 0 && m_strHeaderTitle.LoadString(nIDHeaderTitle))
    {
        m_psp.pszHeaderTitle = m_strHeaderTitle;
        m_psp.dwFlags |= PSP_USEHEADERTITLE;
    }
    if (nIDHeaderSubTitle != 0 && m_strHeaderSubTitle.LoadString(nIDHeaderSubTitle))
    {
        m_psp.pszHeaderSubTitle = m_strHeaderSubTitle;
        m_psp.dwFlags |= PSP_USEHEADERSUBTITLE;
    }
}

// The system's page, which it frees with the sheet. NULL when there is no template: the system would not
// notice before it shows the page.
HPROPSHEETPAGE CPropertyPage::MakeHandle()
{
    quorfx::EnsureCommonControls();
    m_bShownBefore = false;
    PROPSHEETPAGE page = {};
    std::memcpy(&page, &m_psp, (std::min)(static_cast<size_t>(m_psp.dwSize), sizeof(page)));
    page.dwFlags |= PSP_USECALLBACK;
    page.pfnCallback = &CPropertyPage::PageCallback;
    page.pfnDlgProc = &CPropertyPage::PageProc;
    page.lParam = reinterpret_cast<LPARAM>(this);
    if ((page.dwFlags & PSP_DLGINDIRECT) == 0)
    {
        page.hInstance = AfxFindResourceHandle(page.pszTemplate, RT_DIALOG);
        if (::FindResource(page.hInstance, page.pszTemplate, RT_DIALOG) == nullptr)
            return nullptr;
    }
    return ::CreatePropertySheetPage(&page);
}

UINT CALLBACK CPropertyPage::PageCallback(HWND, UINT message, LPPROPSHEETPAGE pPage)
{
    CPropertyPage* const page = reinterpret_cast<CPropertyPage*>(pPage->lParam);
    // Released pages may be gone already.
    if (message == PSPCB_CREATE)
    {
        delete page->m_pCreation;
        page->m_pCreation = nullptr;
        page->m_pCreation = new Creation(*page);
    }
    return 1;
}

INT_PTR CALLBACK CPropertyPage::PageProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    CPropertyPage* const page = DYNAMIC_DOWNCAST(CPropertyPage, CWnd::FromHandlePermanent(hWnd));
    if (message != WM_INITDIALOG || page == nullptr)
        return FALSE;
    delete page->m_pCreation;
    page->m_pCreation = nullptr;
    return page->InitDialog();
}

void CPropertyPage::CancelToClose()
{
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

void CPropertyPage::SetModified(BOOL bChanged)
{
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED,
                      reinterpret_cast<WPARAM>(m_hWnd), 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    ASSERT(m_hWnd != nullptr);
    return ::SendMessage(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam);
}

BOOL CPropertyPage::OnSetActive()
{
    // OnInitDialog has shown the members right before the first time.
    if (m_bShownBefore)
        UpdateData(FALSE);
    m_bShownBefore = true;
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return TRUE;
}

// Whether the code is one of the sheet's, and the answer to it.
BOOL CPropertyPage::AnswerSheet(UINT code, LRESULT& result)
{
    switch (code)
    {
    case PSN_SETACTIVE:
        result = OnSetActive() ? 0 : -1;
        return TRUE;
    case PSN_KILLACTIVE:
        result = !OnKillActive();
        return TRUE;
    case PSN_APPLY:
        result = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return TRUE;
    case PSN_RESET:
        OnReset();
        return TRUE;
    case PSN_QUERYCANCEL:
        result = !OnQueryCancel();
        return TRUE;
    case PSN_WIZBACK:
        result = OnWizardBack();
        return TRUE;
    case PSN_WIZNEXT:
        result = OnWizardNext();
        return TRUE;
    case PSN_WIZFINISH:
        result = !OnWizardFinish();
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const NMHDR* const header = reinterpret_cast<const NMHDR*>(lParam);
    if (header->hwndFrom != ::GetParent(m_hWnd))
        return CDialog::OnNotify(wParam, lParam, pResult);
    LRESULT result = 0;
    if (!AnswerSheet(header->code, result))
        return CDialog::OnNotify(wParam, lParam, pResult);
    // The sheet reads the answer of a dialog there.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, result);
    if (pResult != nullptr)
        *pResult = result;
    return TRUE;
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg)
{
    // Dialog keys belong to the sheet: Tab leaves the page, Enter presses OK.
    return CWnd::PreTranslateMessage(pMsg);
}
