// CToolBarCtrl and CStatusBarCtrl: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CToolBarCtrl::~CToolBarCtrl()
{
    DestroyWindow();
}

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    if (!CWnd::CreateEx(dwExStyle, TOOLBARCLASSNAME, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID))
        return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

CImageList* CToolBarCtrl::ListOf(UINT message) const
{
    return CImageList::FromHandle(quorfx::Send<HIMAGELIST>(m_hWnd, message));
}

CImageList* CToolBarCtrl::ExchangeList(UINT message, int id, CImageList* list)
{
    return CImageList::FromHandle(quorfx::Send<HIMAGELIST>(m_hWnd, message, id, list->GetSafeHandle()));
}

CImageList* CToolBarCtrl::GetPressedImageList()
{
    return ListOf(TB_GETPRESSEDIMAGELIST);
}

CImageList* CToolBarCtrl::SetPressedImageList(int iImageID, CImageList* pImageList)
{
    return ExchangeList(TB_SETPRESSEDIMAGELIST, iImageID, pImageList);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID)
{
    TBADDBITMAP bitmap = {AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return quorfx::Send<int>(m_hWnd, TB_ADDBITMAP, nNumButtons, &bitmap);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap)
{
    TBADDBITMAP bitmap = {nullptr, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return quorfx::Send<int>(m_hWnd, TB_ADDBITMAP, nNumButtons, &bitmap);
}

int CToolBarCtrl::AddString(UINT nStringID)
{
    // Strings are stored in blocks of sixteen.
    const LPCTSTR block = MAKEINTRESOURCE((nStringID >> 4) + 1);
    return quorfx::Send<int>(m_hWnd, TB_ADDSTRING, AfxFindResourceHandle(block, RT_STRING), nStringID);
}

int CToolBarCtrl::GetString(int nString, CString& str) const
{
    str.Empty();
    const int length = GetString(nString, nullptr, 0);
    if (length < 0)
        return length;
    // The room is told in bytes.
    const int bytes = (length + 1) * static_cast<int>(sizeof(TCHAR));
    const int copied = GetString(nString, str.GetBuffer(length), bytes);
    str.ReleaseBuffer(copied >= 0 ? length : 0);
    return copied;
}

CString CToolBarCtrl::GetButtonText(int idButton) const
{
    CString text;
    const int length = Ask(TB_GETBUTTONTEXT, idButton);
    if (length <= 0)
        return text;
    quorfx::Send(m_hWnd, TB_GETBUTTONTEXT, idButton, text.GetBuffer(length));
    text.ReleaseBuffer();
    return text;
}

BOOL CToolBarCtrl::GetPadding(int* pnHorzPadding, int* pnVertPadding) const
{
    const DWORD padding = quorfx::Send<DWORD>(m_hWnd, TB_GETPADDING);
    *pnHorzPadding = static_cast<short>(LOWORD(padding));
    *pnVertPadding = static_cast<short>(HIWORD(padding));
    return TRUE;
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const
{
    return reinterpret_cast<CToolTipCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TB_GETTOOLTIPS)));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip)
{
    quorfx::Send(m_hWnd, TB_SETTOOLTIPS, reinterpret_cast<CWnd*>(pTip)->GetSafeHwnd());
}

void CToolBarCtrl::SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    TBSAVEPARAMS place = {hKeyRoot, lpszSubKey, lpszValueName};
    quorfx::Send(m_hWnd, TB_SAVERESTORE, TRUE, &place);
}

void CToolBarCtrl::RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    TBSAVEPARAMS place = {hKeyRoot, lpszSubKey, lpszValueName};
    quorfx::Send(m_hWnd, TB_SAVERESTORE, FALSE, &place);
}

HRESULT CToolBarCtrl::GetDropTarget(IDropTarget** ppDropTarget) const
{
    // IID_IDropTarget, without drawing in the headers of drag and drop.
    static const GUID dropTarget = {0x00000122, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
    return quorfx::Send<HRESULT>(m_hWnd, TB_GETOBJECT, &dropTarget, ppDropTarget);
}

CStatusBarCtrl::~CStatusBarCtrl()
{
    DestroyWindow();
}

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, STATUSCLASSNAME, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

namespace
{

// The control answers with the length in the low word and the type in the high one.
int LengthAndType(LRESULT answer, int* type)
{
    if (type != nullptr)
        *type = HIWORD(answer);
    return LOWORD(answer);
}

} // namespace

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const
{
    return LengthAndType(quorfx::Send<LRESULT>(m_hWnd, SB_GETTEXTLENGTH, nPane), pType);
}

int CStatusBarCtrl::GetText(LPCTSTR lpszText, int nPane, int* pType) const
{
    return LengthAndType(quorfx::Send<LRESULT>(m_hWnd, SB_GETTEXT, nPane, lpszText), pType);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const
{
    CString text;
    const int length = GetTextLength(nPane, pType);
    GetText(text.GetBuffer(length), nPane, nullptr);
    text.ReleaseBuffer();
    return text;
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const
{
    int borders[3] = {};
    const BOOL known = GetBorders(borders);
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return known;
}

CString CStatusBarCtrl::GetTipText(int nPane) const
{
    return quorfx::ReadText([this, nPane](LPTSTR buffer, int size) {
        quorfx::Send(m_hWnd, SB_GETTIPTEXT, MAKEWPARAM(nPane, size), buffer);
        return buffer;
    });
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE);
}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) ||
           quorfx::DrawOwnItem(this, message, lParam);
}
