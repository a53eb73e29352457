// CEdit: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::~CEdit()
{
    DestroyWindow();
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return quorfx::Send<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    const WORD room = static_cast<WORD>(nMaxLength);
    std::memcpy(lpszBuffer, &room, sizeof room);
    return GetLine(nIndex, lpszBuffer);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    quorfx::Send(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        quorfx::Send(m_hWnd, EM_SCROLLCARET);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    quorfx::Send(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    const DWORD packed = quorfx::Send<DWORD>(m_hWnd, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return quorfx::Send<int>(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {sizeof tip, lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

BOOL CEdit::GetHighlight(int* pichStart, int* pichEnd) const
{
    const DWORD answer = quorfx::Send<DWORD>(m_hWnd, EM_GETHILITE);
    *pichStart = LOWORD(answer);
    *pichEnd = HIWORD(answer);
    return answer != static_cast<DWORD>(-1);
}
