// CFrameWnd: the texts of the message line and the indicators of keys.
#include "bars/FrameBars.h"

using quorfx::BarAccess;

namespace
{

// The help texts of the system menu's commands are numbered like them.
UINT HelpOfSystemCommand(UINT command)
{
    return AFX_IDS_SCSIZE + ((command - SC_SIZE) >> 4);
}

// The string that explains a menu item, 0 for an item without one.
UINT HelpOfItem(UINT item, UINT flags)
{
    if (item == 0 || (flags & (MF_SEPARATOR | MF_POPUP | MF_MENUBREAK | MF_MENUBARBREAK)))
        return 0;
    if (item >= SC_SIZE && item < SC_SIZE + 0x1f0)
        return HelpOfSystemCommand(item);
    if (item >= AFX_IDM_FIRST_MDICHILD)
        return AFX_IDS_MDICHILD;
    return item;
}

} // namespace

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU)
{
    // The line belongs to the outermost frame.
    CFrameWnd* const frame = GetTopLevelFrame();
    const bool isClosed = nFlags == 0xffff;
    const UINT text = isClosed ? AFX_IDS_IDLEMESSAGE : HelpOfItem(nItemID, nFlags);
    if (frame != nullptr && frame->GetMessageBar() != nullptr)
        frame->SendMessage(WM_SETMESSAGESTRING, text);
    Default();
}

CWnd* CFrameWnd::GetMessageBar()
{
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const
{
    // The part behind the line break is a tool tip.
    CString text;
    rMessage.Empty();
    if (text.LoadString(nID))
        AfxExtractSubString(rMessage, text, 0);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText)
{
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID)
{
    SendMessage(WM_SETMESSAGESTRING, nID);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam)
{
    quorfx::FrameBars& bars = BarAccess::Bars(*this);
    const UINT before = bars.shownMessage;
    bars.shownMessage = static_cast<UINT>(wParam);
    bars.hasMessage = true;
    CWnd* const line = GetMessageBar();
    if (line == nullptr)
        return before;
    CString text;
    if (lParam != 0)
        text = reinterpret_cast<LPCTSTR>(lParam);
    else if (wParam != 0)
        GetMessageString(static_cast<UINT>(wParam), text);
    line->SetWindowText(text);
    return before;
}

// Goes back to a message, usually the idle one.
LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam)
{
    return SendMessage(WM_SETMESSAGESTRING, wParam, lParam);
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI)
{
    int key = VK_CAPITAL;
    switch (pCmdUI->m_nID)
    {
    case ID_INDICATOR_CAPS:
        key = VK_CAPITAL;
        break;
    case ID_INDICATOR_NUM:
        key = VK_NUMLOCK;
        break;
    case ID_INDICATOR_SCRL:
        key = VK_SCROLL;
        break;
    case ID_INDICATOR_KANA:
        key = VK_KANA;
        break;
    default:
        pCmdUI->ContinueRouting();
        return;
    }
    pCmdUI->Enable(::GetKeyState(key) & 1);
}
