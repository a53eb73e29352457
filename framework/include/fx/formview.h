// CFormView: a view whose contents come from a dialog template.
#pragma once

#include "fx/dialog.h"
#include "fx/view.h"

// A scrolling view with controls from a template, which must have the styles WS_CHILD and no border or
// caption. The view is created through its run-time class with a CCreateContext, or with Create.
class QFX_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);

public:
    // Creates the window from the template; class name, window name and style are ignored except for
    // visibility and border. FALSE if there is no template.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL);
    // Shows the members in the controls: UpdateData(FALSE).
    virtual void OnInitialUpdate();
    virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
    virtual void OnDraw(CDC* pDC);
    // A form gives the focus back to the control that had it.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    virtual void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);

    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK FormProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    BOOL SaveFocusControl();

    LPCTSTR m_lpszTemplateName;
    CCreateContext* m_pCreateContext;
    HWND m_hWndFocus;
};
