// CFrameWnd: a main window with a title, a menu, accelerators and a view.
#pragma once

#include "fx/barstyles.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "afxres.h"
#include "atltypes.h"

class CCmdUI;
class CControlBar;
class CDockState;
class CDocument;
class CView;
struct CCreateContext;

namespace quorfx
{
class FrameBars;
struct BarAccess;
} // namespace quorfx

// Styles of frames: build the title from document and program, the document first.
#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L
#define FWS_SNAPTOBARS 0x00002000L

// A top-level frame. Create it on the heap: it deletes itself with its window. Commands go to the active
// view, the frame, and the application.
class QFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    // For Create: the system chooses place and size.
    static AFX_DATA const CRect rectDefault;

    CFrameWnd();
    virtual ~CFrameWnd();

    // Creates the window. A NULL class stands for the framework's own; the menu is looked up by name in the
    // modules.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = NULL, LPCTSTR lpszMenuName = NULL,
                        DWORD dwExStyle = 0, CCreateContext* pContext = NULL);
    // Creates the window with menu, accelerators, icon and title of one identifier. FALSE on failure.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);
    // Loads the accelerators; only once per frame.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    // Creates the view that the context names as a child; NULL on failure.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);

    // TRUE (the default): menu items without a handler are grey when a menu opens.
    BOOL m_bAutoMenuEnable;

    // The view that commands go to. SetActiveView with bNotify calls OnActivateView of both views.
    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    virtual CDocument* GetActiveDocument();
    virtual CFrameWnd* GetActiveFrame();

    // The part of the title that names the program.
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }

    // Sends the views their initial update, makes the first one active, and shows the frame if bMakeVisible;
    // the main window is shown as CWinApp::m_nCmdShow says.
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);
    // Shows the frame with a SW_ code (-1: as it is) and brings it to the top.
    virtual void ActivateFrame(int nCmdShow = -1);
    // Gives the bars their places and AFX_IDW_PANE_FIRST the client area that they leave over.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    enum BorderCmd
    {
        borderGet = 1,
        borderRequest = 2,
        borderSet = 3
    };
    // Keeps a border free around the pane. borderGet: the rectangle that is left beside the bars;
    // borderRequest: whether lpRectBorder can be had; borderSet: sets it, TRUE if it changed anything.
    virtual BOOL NegotiateBorderSpace(UINT nBorderCmd, LPRECT lpRectBorder);

    // The bar with that id that belongs to this frame, docked or floating; NULL for none.
    CControlBar* GetControlBar(UINT nID);
    // Shows or hides a bar; with bDelay at the next idle time.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    // Lets bars dock at the edges that the CBRS_ALIGN_ bits name.
    void EnableDocking(DWORD dwDockStyle);
    // Docks a bar of this frame: at the dock bar AFX_IDW_DOCKBAR_TOP ..., 0 for the edge of its style, and
    // there at a rectangle in screen coordinates, NULL for a row of its own. CControlBar::EnableDocking comes
    // first.
    void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    // Takes a bar out into a window of its own with its corner at a screen point, lying or, with
    // CBRS_ALIGN_LEFT or _RIGHT, standing.
    void FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle = CBRS_ALIGN_TOP);
    // Where the bars are, for this run and, in the settings under a name, for the next one.
    void GetDockState(CDockState& state) const;
    void SetDockState(const CDockState& state);
    void SaveBarState(LPCTSTR lpszProfileName) const;
    void LoadBarState(LPCTSTR lpszProfileName);
    // Shows or hides the windows that the frame owns.
    void ShowOwnedWindows(BOOL bShow);
    // The command that shows or hides the bar whose id it has, and the check mark of its menu item.
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);

    // The window whose text is the message line: the status bar, NULL without one.
    virtual CWnd* GetMessageBar();
    // The text of a command for the message line. The base takes the string resource of that id, up to the
    // line break.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);

    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Routes commands: active view, frame, application.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    // Called from OnCreate to fill the client area. The base creates the context's view. FALSE gives up.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PostNcDestroy();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);

    DECLARE_MESSAGE_MAP()

private:
    friend class CMiniFrameWnd;
    friend class CView;
    friend class CDocTemplate;
    friend class CWinApp;

    // Shows the title, with the document's if bAddToTitle and FWS_ADDTOTITLE are set.
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    virtual HACCEL GetDefaultAccelerator() { return m_hAccelTable; }
    virtual BOOL IsFrameWnd() const;
    HACCEL m_hAccelTable;
    CString m_strTitle;
    CView* m_pViewActive;
    BOOL m_bInRecalcLayout;
    afx_msg BOOL OnToolTipText(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);

    int CreateContents(LPCREATESTRUCT lpCreateStruct, CCreateContext* pContext);
    bool IsMainWindow() const;
    CString DocumentTitle();
    int TakeShowCommand() const;

    UINT m_nIDHelp; // the number of the help on this frame; 0 for none
    // What LoadAccelTable loaded, to be given back with the frame.
    HACCEL m_hLoadedAccelTable;
    // Lays out at the next idle time.
    void DelayLayout();
    BOOL m_bLayoutIsDue;
    // What NegotiateBorderSpace keeps free, as widths.
    CRect m_rectBorder;
    // NULL until the frame gets a bar.
    quorfx::FrameBars* m_pBars;

    friend struct quorfx::BarAccess;
    // The number among the frames of one document; 0 for the only one.
    int m_nWindow;

    friend class CDocument;
    friend class CMDIChildWnd;
    friend class CMDIFrameWnd;
};
