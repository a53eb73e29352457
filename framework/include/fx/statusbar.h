// CStatusBar: the line of panes at the bottom of a frame.
#pragma once

#include "fx/controlbar.h"
#include "fx/statusbarctrl.h"
#include "fx/string.h"
#include <vector>

// Styles of panes.
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000 // shows no text
#define SBPS_STRETCH 0x08000000  // takes the room that is left; one pane at most

// A status bar. The pane with the id 0 is the message line. The panes of the indicators are shown while their
// ON_UPDATE_COMMAND_UI handler enables them.
class QFX_API CStatusBar : public CControlBar
{
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    // Create the window; dwCtrlStyle are SBARS_ values, dwStyle window styles and CBRS_ styles.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);
    // One pane per id. The first one stretches and has no borders; the others get the text of the string
    // resource of their id and are as wide as it. Without an array nIDCount panes with the id 0.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    // The position of the pane with that id, -1 for none.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    // cxWidth is the width inside the borders; the least one for the pane that stretches.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    void GetPaneText(int nIndex, CString& rString) const;
    CString GetPaneText(int nIndex) const;
    // bUpdate FALSE shows the text with the next change of the panes.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);

    CStatusBarCtrl& GetStatusBarCtrl() const;

    // Called to draw a pane with SBPS_OWNERDRAW. The base asserts: whoever uses the style overrides it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void CalcInsideRect(CRect& rect, BOOL bHorz) const override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    struct Pane
    {
        UINT id = 0;
        UINT style = SBPS_NORMAL;
        int width = 0;
        CString text;
        bool isDirty = false; // the text is to be shown with the next change
    };

    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetMinHeight(WPARAM wParam, LPARAM lParam);
    void PlacePanes();
    void ShowPane(int nIndex);
    void MeasureText(Pane& pane) const;

    std::vector<Pane> m_panes;
    int m_nMinHeight;
};
