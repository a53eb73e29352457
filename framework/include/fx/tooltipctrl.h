// CToolTipCtrl: small explaining windows for tools.
#pragma once

#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

// What GetToolInfo finds: a tool with room for its text.
class CToolInfo : public TOOLINFO
{
public:
    TCHAR szText[256];
};

// Wraps a tool-tip window. The object has no state of its own. A tool is a window (tool id 0) or a rectangle
// in client pixels of a window (tool id other than 0).
class QFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl() {}
    virtual ~CToolTipCtrl();

    // Creates the popup window, owned by the parent, with TTS_ styles. FALSE if that fails.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    // Tools. Text LPSTR_TEXTCALLBACK asks the tool's window with TTN_NEEDTEXT each time; a text identifier is
    // looked up in the modules' resources. With a window and no rectangle the whole window is the tool.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = NULL,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return quorfx::Send<int>(m_hWnd, TTM_GETTOOLCOUNT); }
    // Fills *lpToolInfo for the tool at the client point; FALSE if there is none.
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    // FALSE for an unknown tool. GetCurrentTool's structure has cbSize set by the caller.
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TTM_GETCURRENTTOOL, 0, lpToolInfo);
    }
    void SetToolInfo(LPTOOLINFO lpToolInfo) { quorfx::Send(m_hWnd, TTM_SETTOOLINFO, 0, lpToolInfo); }
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);

    // Text of a tool. GetText is empty for an unknown tool.
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);

    // Delays in milliseconds: one value for all, or one TTDT_ delay; -1 restores the default.
    void SetDelayTime(UINT nDelay) { quorfx::Send(m_hWnd, TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay); }
    void SetDelayTime(DWORD dwDuration, int iTime)
    {
        quorfx::Send(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    int GetDelayTime(DWORD dwDuration) const
    {
        return quorfx::Send<int>(m_hWnd, TTM_GETDELAYTIME, dwDuration);
    }

    // Look. A width of -1 keeps tips on one line.
    void SetMargin(LPRECT lprc) { quorfx::Send(m_hWnd, TTM_SETMARGIN, 0, lprc); }
    void GetMargin(LPRECT lprc) const { quorfx::Send(m_hWnd, TTM_GETMARGIN, 0, lprc); }
    int SetMaxTipWidth(int iWidth) { return quorfx::Send<int>(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth); }
    int GetMaxTipWidth() const { return quorfx::Send<int>(m_hWnd, TTM_GETMAXTIPWIDTH); }
    void SetTipBkColor(COLORREF clr) { quorfx::Send(m_hWnd, TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipBkColor() const { return quorfx::Send<COLORREF>(m_hWnd, TTM_GETTIPBKCOLOR); }
    void SetTipTextColor(COLORREF clr) { quorfx::Send(m_hWnd, TTM_SETTIPTEXTCOLOR, clr); }
    COLORREF GetTipTextColor() const { return quorfx::Send<COLORREF>(m_hWnd, TTM_GETTIPTEXTCOLOR); }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
    {
        return quorfx::Send<BOOL>(m_hWnd, TTM_SETTITLE, uIcon, lpstrTitle);
    }
    // The buffer of the structure is the caller's.
    void GetTitle(PTTGETTITLE pttgt) const { quorfx::Send(m_hWnd, TTM_GETTITLE, 0, pttgt); }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return quorfx::Send<HRESULT>(m_hWnd, TTM_SETWINDOWTHEME, 0, pszSubAppName);
    }
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE)
    {
        return quorfx::Send<BOOL>(m_hWnd, TTM_ADJUSTRECT, bLarger, lprc);
    }
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;

    // Showing. RelayEvent feeds the control with the mouse messages of its tools.
    void Activate(BOOL bActivate) { quorfx::Send(m_hWnd, TTM_ACTIVATE, bActivate); }
    void RelayEvent(LPMSG lpMsg) { quorfx::Send(m_hWnd, TTM_RELAYEVENT, 0, lpMsg); }
    void Pop() { quorfx::Send(m_hWnd, TTM_POP); }
    void Popup() { quorfx::Send(m_hWnd, TTM_POPUP); }
    void Update() { quorfx::Send(m_hWnd, TTM_UPDATE); }
};
