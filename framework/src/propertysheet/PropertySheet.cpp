// CPropertySheet: construction, pages, and what is set on the sheet.
#include "propertysheet/SheetPages.h"

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

namespace
{

CString LoadCaption(UINT id)
{
    CString caption;
    if (id != 0)
        caption.LoadString(id);
    return caption;
}

} // namespace

CPropertySheet::CPropertySheet()
    : m_psh(),
      m_pParentWnd(nullptr),
      m_pPages(new Pages),
      m_bStacked(true),
      m_bModeless(false),
      m_dwModelessStyle(0),
      m_dwModelessExStyle(0)
{
    m_psh.dwSize = sizeof(m_psh);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) : CPropertySheet()
{
    Prepare(LoadCaption(nIDCaption), pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) : CPropertySheet()
{
    Prepare(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
    PreparePictures(hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
    PreparePictures(hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::~CPropertySheet()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
    delete m_pPages;
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    Prepare(LoadCaption(nIDCaption), pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    Prepare(pszCaption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Prepare(LoadCaption(nIDCaption), pParentWnd, iSelectPage);
    PreparePictures(hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Prepare(pszCaption, pParentWnd, iSelectPage);
    PreparePictures(hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Prepare(const CString& caption, CWnd* pParentWnd, UINT iSelectPage)
{
    m_strCaption = caption;
    m_pParentWnd = pParentWnd;
    m_psh.nStartPage = iSelectPage;
}

void CPropertySheet::PreparePictures(HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    if (hbmWatermark != nullptr)
    {
        m_psh.hbmWatermark = hbmWatermark;
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    }
    if (hpalWatermark != nullptr)
    {
        m_psh.hplWatermark = hpalWatermark;
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    }
    if (hbmHeader != nullptr)
    {
        m_psh.hbmHeader = hbmHeader;
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    }
}

void CPropertySheet::AddPage(CPropertyPage* pPage)
{
    ENSURE_ARG(pPage != nullptr);
    m_pPages->list.push_back(pPage);
    if (m_hWnd == nullptr)
        return;
    const HPROPSHEETPAGE handle = pPage->MakeHandle();
    if (handle == nullptr)
        AfxThrowMemoryException();
    if (!::SendMessage(m_hWnd, PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle)))
    {
        ::DestroyPropertySheetPage(handle);
        AfxThrowMemoryException();
    }
}

void CPropertySheet::RemovePage(CPropertyPage* pPage)
{
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage)
{
    ENSURE_ARG(nPage >= 0 && nPage < GetPageCount());
    if (m_hWnd != nullptr)
        ::SendMessage(m_hWnd, PSM_REMOVEPAGE, static_cast<WPARAM>(nPage), 0);
    m_pPages->list.erase(m_pPages->list.begin() + nPage);
}

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(m_pPages->list.size());
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const
{
    ENSURE_ARG(nPage >= 0 && nPage < GetPageCount());
    return m_pPages->list[static_cast<size_t>(nPage)];
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage)
{
    const auto found = std::find(m_pPages->list.begin(), m_pPages->list.end(), pPage);
    return found == m_pPages->list.end() ? -1 : static_cast<int>(found - m_pPages->list.begin());
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == nullptr)
        return static_cast<int>(m_psh.nStartPage);
    // A wizard has no tabs to ask.
    const HWND current = reinterpret_cast<HWND>(::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0));
    for (int i = 0; i < GetPageCount(); ++i)
    {
        if (current != nullptr && GetPage(i)->m_hWnd == current)
            return i;
    }
    return -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    const int active = GetActiveIndex();
    return active >= 0 && active < GetPageCount() ? GetPage(active) : nullptr;
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (nPage < 0 || nPage >= GetPageCount())
        return FALSE;
    if (m_hWnd == nullptr)
    {
        m_psh.nStartPage = static_cast<UINT>(nPage);
        return TRUE;
    }
    return ::SendMessage(m_hWnd, PSM_SETCURSEL, static_cast<WPARAM>(nPage), 0) != 0;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage)
{
    return SetActivePage(GetPageIndex(pPage));
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle)
{
    ASSERT((nStyle & ~PSH_PROPTITLE) == 0);
    if (m_hWnd != nullptr)
    {
        ::SendMessage(m_hWnd, PSM_SETTITLE, nStyle, reinterpret_cast<LPARAM>(lpszText));
        return;
    }
    m_strCaption = lpszText;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
}

void CPropertySheet::EnableStackedTabs(BOOL bStacked)
{
    m_bStacked = bStacked != FALSE;
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    ASSERT(m_hWnd != nullptr);
    const HWND tabs = reinterpret_cast<HWND>(::SendMessage(m_hWnd, PSM_GETTABCONTROL, 0, 0));
    return static_cast<CTabCtrl*>(CWnd::FromHandle(tabs));
}

BOOL CPropertySheet::IsWizard() const
{
    return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0;
}

void CPropertySheet::SetWizardMode()
{
    m_psh.dwFlags |= PSH_WIZARD;
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags)
{
    ASSERT(m_hWnd != nullptr);
    // Not at once: while a page gets active the sheet sets the buttons itself.
    ::PostMessage(m_hWnd, PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags));
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText)
{
    ASSERT(m_hWnd != nullptr);
    ::SendMessage(m_hWnd, PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CPropertySheet::MapDialogRect(LPRECT lpRect) const
{
    ASSERT(m_hWnd != nullptr);
    ::MapDialogRect(m_hWnd, lpRect);
}
