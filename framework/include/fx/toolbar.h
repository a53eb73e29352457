// CToolBar: a bar of buttons with images.
#pragma once

#include "fx/controlbar.h"
#include "fx/string.h"
#include "fx/toolbarctrl.h"

// Styles and states of buttons for SetButtonInfo and SetButtonStyle: the control's styles in the low word,
// the states in the high word.
#define MAKE_TBBS(style, state) (static_cast<UINT>(MAKELONG(style, state)))
#define TBBS_BUTTON MAKE_TBBS(TBSTYLE_BUTTON, 0)
#define TBBS_SEPARATOR MAKE_TBBS(TBSTYLE_SEP, 0)
#define TBBS_CHECKBOX MAKE_TBBS(TBSTYLE_CHECK, 0)
#define TBBS_GROUP MAKE_TBBS(TBSTYLE_GROUP, 0)
#define TBBS_CHECKGROUP (TBBS_GROUP | TBBS_CHECKBOX)
#define TBBS_DROPDOWN MAKE_TBBS(TBSTYLE_DROPDOWN, 0)
#define TBBS_AUTOSIZE MAKE_TBBS(TBSTYLE_AUTOSIZE, 0)
#define TBBS_NOPREFIX MAKE_TBBS(TBSTYLE_NOPREFIX, 0)
#define TBBS_CHECKED MAKE_TBBS(0, TBSTATE_CHECKED)
#define TBBS_PRESSED MAKE_TBBS(0, TBSTATE_PRESSED)
// Inverted, so that a style of 0 is an enabled button.
#define TBBS_DISABLED MAKE_TBBS(0, TBSTATE_ENABLED)
#define TBBS_INDETERMINATE MAKE_TBBS(0, TBSTATE_INDETERMINATE)
#define TBBS_HIDDEN MAKE_TBBS(0, TBSTATE_HIDDEN)
#define TBBS_WRAPPED MAKE_TBBS(0, TBSTATE_WRAP)

// A tool bar. Create it, then load a tool bar resource, or a bitmap with the images of all buttons beside
// each other and the commands of the buttons. The buttons' states follow the ON_UPDATE_COMMAND_UI handlers;
// the string resource of a command, "text of the message line\ntool tip", is shown for its button.
//
// A tool bar resource has the type 241 and the identifier of its bitmap. A resource compiler without a
// TOOLBAR statement takes it as raw words: version 1, width and height of an image, number of buttons, and
// the command of each button, 0 for a separator:
//   IDR_MAINFRAME 241 { 1, 16, 15, 3, ID_FILE_NEW, 0, ID_APP_ABOUT }
class QFX_API CToolBar : public CControlBar
{
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar();
    ~CToolBar() override;

    // Create the window; dwCtrlStyle are TBSTYLE_ values, dwStyle window styles and CBRS_ styles.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect rcBorders = CRect(0, 0, 0, 0), UINT nID = AFX_IDW_TOOLBAR);

    // Buttons, sizes and images from a tool bar resource and the bitmap of the same name.
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource);
    // The images only. Light grey becomes the colour of the bar.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    // Takes the bitmap over.
    BOOL SetBitmap(HBITMAP hbmImageWell);
    // One button per command, with the images in their order; ID_SEPARATOR leaves a gap and uses no image.
    // Without an array nIDCount empty buttons.
    BOOL SetButtons(const UINT* lpIDArray, int nIDCount);
    // sizeButton should be at least 7 x 6 pixels more than sizeImage.
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    // The height of the whole bar, with its borders; the buttons are centred in it.
    void SetHeight(int cyHeight);

    // The position of the first button with that command, -1 for none.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;
    void SetButtonStyle(int nIndex, UINT nStyle);
    // iImage is the width of the gap for a separator.
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString& rString) const;

    CToolBarCtrl& GetToolBarCtrl() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSysColorChange();

    DECLARE_MESSAGE_MAP()

private:
    TBBUTTON ButtonAt(int nIndex) const;
    void ChangeButton(int nIndex, const TBBUTTON& button);
    void FreeImages();
    BOOL MakeImages();
    CSize LayOut(int nWidth, BOOL bCommit);
    int WidthFor(int nLength, DWORD nMode);

    HIMAGELIST m_hImages;
    HBITMAP m_hbmImageWell;
    // Where the bitmap came from, to load it again in other colours.
    CString m_strImageWell;
    UINT m_nImageWell;
    CSize m_sizeImage;
    CSize m_sizeButton;
};
