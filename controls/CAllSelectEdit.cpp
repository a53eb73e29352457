// The edit whose text is selected by the first click into it.
#include "controls/CAllSelectEdit.h"

#include "controls/WindowLife.h"

namespace QuorUiCtr
{

IMPLEMENT_DYNAMIC(CAllSelectEdit, CEdit)

BEGIN_MESSAGE_MAP(CAllSelectEdit, CEdit)
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CAllSelectEdit::CAllSelectEdit() : selectAllDone(FALSE) {}

CAllSelectEdit::~CAllSelectEdit() {}

void CAllSelectEdit::OnLButtonDown(UINT flags, CPoint point)
{
    if (selectAllDone)
    {
        CEdit::OnLButtonDown(flags, point);
        return;
    }
    const HWND window = m_hWnd;
    SetSel(0, -1);
    SetFocus();
    if (IsStillWindow(this, window))
        selectAllDone = TRUE;
}

void CAllSelectEdit::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CEdit::OnKillFocus(newFocus);
    if (IsStillWindow(this, window))
        selectAllDone = FALSE;
}

} // namespace QuorUiCtr
