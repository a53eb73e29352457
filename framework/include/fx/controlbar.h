// CControlBar: what tool bars, status bars and dialog bars have in common: the place along an edge of a
// frame.
#pragma once

#include "fx/barstyles.h"
#include "fx/wnd.h"
#include "afxres.h"
#include "atltypes.h"

class CCmdUI;
class CFrameWnd;

namespace quorfx
{
struct BarAccess;
}

// What CalcDynamicLayout is asked for.
#define LM_STRETCH 0x01  // fill the edge
#define LM_HORZ 0x02     // the bar lies, else it stands
#define LM_MRUWIDTH 0x04 // the width that was used last
#define LM_HORZDOCK 0x08 // docked at the top or the bottom
#define LM_VERTDOCK 0x10 // docked at the left or the right
#define LM_LENGTHY 0x20  // nLength is a height, else a width
#define LM_COMMIT 0x40   // take this layout

// A bar along an edge of its parent. Usually a member of the frame's object, created in the frame's OnCreate;
// the frame gives it its place by WM_SIZEPARENT and asks it at idle times to update what it shows. Commands
// and notifications of the controls inside go to the owner, which is the parent it was created with.
class QFX_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

protected:
    CControlBar();

public:
    ~CControlBar() override;

    // The number of items, such as buttons or panes.
    int GetCount() const { return m_nCount; }
    // The space around the items in pixels.
    void SetBorders(LPCRECT lpRect);
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    CRect GetBorders() const { return m_rectBorders; }
    // CBRS_ styles.
    DWORD GetBarStyle() { return m_dwBarStyle; }
    void SetBarStyle(DWORD dwStyle);
    // Allows docking at the edges that the CBRS_ALIGN_ bits name; 0 forbids it.
    void EnableDocking(DWORD dwDockStyle);
    BOOL IsFloating() const;
    // The frame that the bar is docked at, or belongs to while it floats.
    CFrameWnd* GetDockingFrame() const;
    // Whether the bar is shown, or is about to be.
    virtual BOOL IsVisible() const;
    void SetInPlaceOwner(CWnd* pWnd);

    // The size of the bar. bStretch fills the edge, bHorz: the bar lies along the top or the bottom.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    // The size in a mode of LM_ bits; nLength is a width or height, -1 for none.
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    // Takes the borders and the gripper away from the rectangle.
    virtual void CalcInsideRect(CRect& rect, BOOL bHorz) const;
    // Called at idle times to update the items from the handlers of pTarget.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

    // Paints borders and gripper.
    virtual void DoPaint(CDC* pDC);
    // Both paint into the whole window's rectangle; DrawBorders takes the lines away from it.
    virtual void DrawBorders(CDC* pDC, CRect& rect);
    virtual void DrawGripper(CDC* pDC, const CRect& rect);

    // TRUE: the object was created with new and goes with its window.
    BOOL m_bAutoDelete;
    // The in-place owner of the bar.
    CWnd* m_pInPlaceOwner;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);

    DECLARE_MESSAGE_MAP()

private:
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);
    // Creates the window of a derived class, with the bar styles taken out of the window style.
    BOOL CreateBar(LPCTSTR lpszClassName, DWORD dwControlStyle, DWORD dwStyle, CWnd* pParentWnd, UINT nID);
    void ShowToolText(const MSG& message);
    // The same for bars that have their borders outside of the client area.
    void InsetClient(NCCALCSIZE_PARAMS* lpncsp) const;
    void PaintOutsideClient();
    BOOL HasGripper() const;
    CFrameWnd* TargetFrame() const;
    BOOL IsHorizontal() const { return (m_dwBarStyle & CBRS_ORIENT_HORZ) != 0; }
    // The size of the bar around items of that size.
    CSize AroundItems(CSize size, BOOL bStretch, BOOL bHorz) const;

    DWORD m_dwBarStyle;
    DWORD m_dwDockStyle;
    int m_nCount;
    CRect m_rectBorders;
    CFrameWnd* m_pDockSite;
    INT_PTR m_nShownTool; // the tool whose text is in the message line, -1 for none
    UINT m_nDelayedShow;  // what the next idle time is to do: one of the BarAccess values
    int m_nMruWidth;      // the width a floating bar had last

    friend struct quorfx::BarAccess;
    friend class CToolBar;
    friend class CStatusBar;
    friend class CDialogBar;
    friend class CReBar;
};
