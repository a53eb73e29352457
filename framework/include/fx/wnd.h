// CWnd, the base of all windows. Members that only pass a call on to Windows are defined in fx/wnd_inline*.h.
#pragma once

#include "fx/config.h"
#include "fx/cmdtarget.h"
#include "fx/string.h"
#include "atltypes.h"

class CBitmap;
class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CListBox;
class CMenu;
class CRgn;
class CScrollBar;
struct CCreateContext;
struct AFX_SIZEPARENTPARAMS;

// Flags of CWnd::RunModalLoop.
#define MLF_NOIDLEMSG 0x0001  // do not send WM_ENTERIDLE to the parent
#define MLF_NOKICKIDLE 0x0002 // do not send WM_KICKIDLE to the window
#define MLF_SHOWONIDLE 0x0004 // show the window when the queue gets empty for the first time

// Flags in TOOLINFO.uFlags for OnToolHitTest; they are taken out before the tool tip control sees them.
#define TTF_NOTBUTTON 0x80000000L // the area is not a button: the tip also shows while a mouse button is held
#define TTF_ALWAYSTIP 0x40000000L // the tip also shows while the window is inactive

// A C++ object for a window. The object and the window have separate lives: the window is created by
// Create/CreateEx or adopted by SubclassWindow/Attach, and m_hWnd is NULL before and after. While attached,
// messages reach the object through WindowProc. Coordinates are client coordinates in pixels unless a comment
// says otherwise. An object that FromHandle made is temporary: it is deleted at the next idle time and has no
// message handlers of its own.
class QFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    ~CWnd() override;

    HWND m_hWnd; // NULL when there is no window; first member after the base

    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    // ---- Handles and objects. One map per thread: the same live window gives the same object.
    operator HWND() const;
    BOOL operator==(const CWnd& wnd) const;
    BOOL operator!=(const CWnd& wnd) const;
    // Also works on a NULL pointer.
    HWND GetSafeHwnd() const { return this == NULL ? NULL : m_hWnd; }
    // The attached object or a temporary one; NULL for NULL.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    // The attached object or NULL.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    // Deletes all temporary objects of this thread.
    static void PASCAL DeleteTempMap();
    // Makes this the object of the window; messages are not routed to it. FALSE for NULL or a window that has
    // an object.
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    // Attach, PreSubclassWindow, then messages are routed to this object.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    // Restores the window's own procedure and detaches.
    HWND UnsubclassWindow();

    // ---- Creation and destruction.
    // Creates a child window (no WS_POPUP). FALSE on failure; PostNcDestroy has been called then.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                          LPVOID lpParam = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = NULL);
    virtual BOOL DestroyWindow();
    // May change the parameters; FALSE stops the creation. The base supplies a window class when there is
    // none.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    // Called when the object is attached, before the first message; the place for set-up that subclassing
    // needs too.
    virtual void PreSubclassWindow();
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);

    // ---- Window state.
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    // The window that gets this window's notifications: the one set, else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);

    // ---- Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // Sends to all descendants (bDeep) or children; with bOnlyPerm only to windows that have an attached
    // object.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL IsDialogMessage(LPMSG lpMsg);
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = NULL);

    // ---- Text and font.
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;

    // ---- Menus.
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL bRevert) const;

    // ---- Position and size; screen coordinates for top-level windows, else the parent's client coordinates.
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void BringWindowToTop();
    void GetWindowRect(LPRECT lpRect) const; // screen coordinates
    void GetClientRect(LPRECT lpRect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    int GetWindowRgn(HRGN hRgn) const;
    // Centres over pAlternateOwner, else the owner or the screen, and keeps the window on the work area.
    void CenterWindow(CWnd* pAlternateOwner = NULL);
    enum RepositionFlags
    {
        reposDefault = 0,
        reposQuery = 1,
        reposExtra = 2
    };
    // Lets the children with ids nIDFirst to nIDLast take their place along the edges (WM_SIZEPARENT) and
    // gives the rest to nIDLeftOver. reposQuery stores the rest in lpRectParam; reposExtra first shrinks it
    // by lpRectParam.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = NULL, LPCRECT lpRectClient = NULL, BOOL bStretch = TRUE);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;

    // ---- Painting.
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    BOOL RedrawWindow(LPCRECT lpRectUpdate = NULL, CRgn* prgnUpdate = NULL,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    void ShowOwnedPopups(BOOL bShow = TRUE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();

    // ---- Timers. A NULL procedure means WM_TIMER; the elapse time is in milliseconds.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent);

    // ---- Input.
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    static CWnd* PASCAL GetActiveWindow();
    CWnd* SetActiveWindow();
    static CWnd* PASCAL GetForegroundWindow();
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetCapture();
    CWnd* SetCapture();
    static CWnd* PASCAL GetFocus();
    CWnd* SetFocus();
    static CWnd* PASCAL GetDesktopWindow();
    BOOL FlashWindow(BOOL bInvert);
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = NULL, UINT nType = MB_OK);
    void DragAcceptFiles(BOOL bAccept = TRUE);
    BOOL OpenClipboard();
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight);
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();

    // ---- Dialog items; nID is the control id.
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    void CheckDlgButton(int nIDButton, UINT nCheck);
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton);
    UINT IsDlgButtonChecked(int nIDButton) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = NULL, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    // Transfers data between the controls and members through DoDataExchange; FALSE when validation failed.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    // Lets pTarget's ON_UPDATE_COMMAND_UI handlers set the state of the child controls.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    // Applies the DLGINIT resource (list entries of combo and list boxes).
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);

    // ---- Scrolling. nBar is SB_HORZ or SB_VERT; a control that GetScrollBarCtrl returns takes the bar's
    // place.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    // The highest position that can be reached, which the page size lowers.
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    // Scrolls the client area; without a rectangle also moves the children, and while the window is hidden
    // only them.
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = NULL, LPCRECT lpClipRect = NULL);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);

    // ---- Relations.
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetAncestor(UINT gaFlags) const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* PASCAL WindowFromPoint(POINT point); // screen coordinates
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* PASCAL FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                                     LPCTSTR lpszWindow);
    // Searches the whole tree below this window for the control id; children first.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const;
    // The enabled window that should own a new popup; *pWndTop gets the top-level window that is to be
    // disabled.
    static CWnd* PASCAL GetSafeOwner(CWnd* pParent = NULL, HWND* pWndTop = NULL);

    // ---- Help: shows it through the application.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();
    DWORD GetWindowContextHelpId() const;
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);

#include "fx/wnd_system.h"

    // ---- Tool tips.
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    // Describes the tool at a client point: fills *pTI and returns a number that differs from tool to tool,
    // or -1 for none. pTI->lpszText is LPSTR_TEXTCALLBACK or a block from malloc, which the framework frees.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
    void FilterToolTipMessage(MSG* pMsg);
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE);

    // ---- Modal loop.
    // Runs until ContinueModal returns FALSE; the result is the value given to EndModalLoop, -1 when the
    // window died.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    virtual void BeginModalState();
    virtual void EndModalState();

    // ---- Handlers; every one passes the message with its original parameters to DefWindowProc unless noted.
protected:
#include "fx/wnd_handlers.h"

    // ---- Dispatch.
protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Finds and calls the handler; FALSE when there is none.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // The procedure that the window had before, else ::DefWindowProc.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Gets a message that the parent reflects; FALSE gives it back to the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void DoDataExchange(CDataExchange* pDX);
    // The message that is being handled on this thread.
    static const MSG* PASCAL GetCurrentMessage();
    // Passes the current message, with its original parameters, to DefWindowProc.
    LRESULT Default();
    // Sends the message that is being handled to the attached object of hWndChild as a reflected one. TRUE
    // when it was handled; pResult may be NULL.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = NULL);
    // The last call for a window; m_hWnd is NULL. Objects that own themselves delete themselves here.
    virtual void PostNcDestroy();

    DECLARE_MESSAGE_MAP()

private:
    friend struct FrameworkAccess;
    friend class CCmdUI;
    friend class CDataExchange;
    friend class CDialog;
    friend class CDialogBar;
    friend class CFormView;
    friend class CFrameWnd;
    friend class CPropertySheet;
    friend class CreationScope;
    friend class CView;

    explicit CWnd(HWND hWnd);
    // Where the procedure that SubclassWindow replaced is kept.
    virtual WNDPROC* GetSuperWndProcAddr();
    virtual BOOL IsFrameWnd() const;
    BOOL PreTranslateInput(LPMSG lpMsg); // IsDialogMessage for input messages
    // Calls PreTranslateMessage of the attached objects from the message's window up to hWndStop.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    static BOOL PASCAL GrayCtlColor(HDC hDC, HWND hWnd, UINT nCtlColor, HBRUSH hbrGray, COLORREF clrText);
    static HWND PASCAL GetSafeOwner_(HWND hWnd, HWND* pWndTop);
    BOOL IsTopParentActive() const;
    void ActivateTopParent();

    HWND m_hWndOwner; // set by SetOwner
    UINT m_nFlags;    // WF_ bits
    WNDPROC m_pfnSuper;
    int m_nModalResult;
};

// Bits of CWnd::m_nFlags.
#define WF_TOOLTIPS 0x0001
#define WF_MODALLOOP 0x0010
#define WF_CONTINUEMODAL 0x0020

// The window procedure of all attached windows; passes messages of windows without an object to
// ::DefWindowProc.
QFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
QFX_API WNDPROC AFXAPI AfxGetAfxWndProc();
// Makes the message current, calls pWnd->WindowProc and lets no exception out.
QFX_API LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0, LPARAM lParam = 0);

#include "fx/wnd_inline.h"
#include "fx/wnd_inline_items.h"
#include "fx/wnd_inline_system.h"
