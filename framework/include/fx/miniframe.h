// CMiniFrameWnd: a frame with a low caption, as floating bars have it.
#pragma once

#include "fx/frame.h"

// Styles of mini frames, beside the window styles.
#define MFS_SYNCACTIVE 0x00000100L   // looks active together with its owner
#define MFS_4THICKFRAME 0x00000200L  // a thick frame that does not resize the window
#define MFS_THICKFRAME 0x00000400L   // a thick frame
#define MFS_MOVEFRAME 0x00000800L    // any edge moves the window
#define MFS_BLOCKSYSMENU 0x00001000L // no system menu

// A small frame without menu and without a place in the task bar, owned by its parent. Create it on the heap:
// it deletes itself with its window.
class QFX_API CMiniFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd();
    ~CMiniFrameWnd() override;

    // Create the window; rect is in screen coordinates. A NULL class stands for the framework's own.
    virtual BOOL Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd = NULL, UINT nID = 0);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd = NULL, UINT nID = 0);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);

    DECLARE_MESSAGE_MAP()
};
