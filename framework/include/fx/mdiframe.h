// CMDIFrameWnd and CMDIChildWnd: a main window that holds many frames.
#pragma once

#include "fx/frame.h"

class CMDIChildWnd;

// The main window of a program with many documents. Its client area is an MDICLIENT window, which holds the
// child frames. Commands go to the active child frame, this frame, and the application. Without a child the
// frame shows its own menu, otherwise the active child's.
class QFX_API CMDIFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();
    virtual ~CMDIFrameWnd();

    // The child frames. Each function is the client window's message of the same name.
    void MDIActivate(CWnd* pWndActivate);
    // NULL when there is none; *pbMaximized tells whether it is maximized.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = NULL) const;
    void MDIIconArrange();
    void MDIMaximize(CWnd* pWnd);
    void MDINext();
    void MDIPrev();
    void MDIRestore(CWnd* pWnd);
    // Replaces the menu, and the popup to which the names of the children are added; NULL leaves as it is.
    // Returns a temporary object of the menu before.
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);
    // nType is a combination of MDITILE_ flags.
    void MDITile();
    void MDITile(int nType);
    void MDICascade();
    void MDICascade(int nType);

    // A new child frame of the class, for programs without document templates. The menu and the accelerators
    // stay the caller's; without them the resource's are loaded. NULL on failure.
    CMDIChildWnd* CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu = NULL,
                                 HACCEL hAccel = NULL);
    // Creates the client window; called from OnCreateClient.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    // The popup of a menu bar to which the names of the children are added. The base takes the one with
    // commands such as ID_WINDOW_CASCADE; NULL for none.
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);

    virtual CFrameWnd* GetActiveFrame();
    // The name of the active child's document behind that of the program; the system adds it in brackets when
    // the child is maximized.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);

    DECLARE_MESSAGE_MAP()

private:
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    afx_msg void OnWindowNew();
    // ID_WINDOW_NEW: another frame for the active document.
    afx_msg void OnUpdateWindowNew(CCmdUI* pCmdUI);
    afx_msg BOOL OnMDIWindowCmd(UINT nID);
    // ID_WINDOW_ARRANGE, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT.
    afx_msg void OnUpdateMDIWindowCmd(CCmdUI* pCmdUI);

    LRESULT Tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void ShowMenuOf(const CMDIChildWnd* child);

    HWND m_hWndMDIClient;
    HMENU m_hMenuDefault; // the frame's own; NULL when the frame is being destroyed

    friend class CMDIChildWnd;
};

// A child frame. Create it on the heap: it deletes itself with its window. Usually a CMultiDocTemplate makes
// it for a document.
class QFX_API CMDIChildWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();
    virtual ~CMDIChildWnd();

    // Without a parent the frame is created in the main window.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CMDIFrameWnd* pParentWnd = NULL,
                        CCreateContext* pContext = NULL);
    // Takes menu and accelerators from the context's template or the resource, unless SetHandles set them.
    // The window is hidden until ActivateFrame.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                           CCreateContext* pContext = NULL);
    // The menu and accelerators while the frame is active; they stay the caller's.
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    void MDIDestroy();
    void MDIActivate();
    void MDIMaximize();
    void MDIRestore();
    CMDIFrameWnd* GetMDIFrame();

    virtual BOOL DestroyWindow();
    virtual void ActivateFrame(int nCmdShow = -1);
    virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);

    DECLARE_MESSAGE_MAP()

private:
    friend class CDocument;

    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);

    void FindHandles(UINT resource, CCreateContext* context);

    HMENU m_hMenuShared;
    // What was loaded for this frame only.
    HMENU m_hOwnMenu;
    HACCEL m_hOwnAccel;

    friend class CMDIFrameWnd;
};
