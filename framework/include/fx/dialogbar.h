// CDialogBar: a bar with the controls of a dialog template.
#pragma once

#include "fx/controlbar.h"

// A bar made from a template with the style WS_CHILD. It is as large as the template says. Commands of its
// controls go to the frame; Tab moves between the controls.
class QFX_API CDialogBar : public CControlBar
{
    DECLARE_DYNAMIC(CDialogBar)

public:
    CDialogBar();
    ~CDialogBar() override;

    // Create the window from the template; nStyle are CBRS_ styles for the edge it stands at. FALSE if there
    // is no template.
    virtual BOOL Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID);
    virtual BOOL Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    // Enables and disables the controls.
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

private:
    static INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    LPCTSTR m_lpszTemplateName;
    CSize m_sizeDefault; // the size of the template in pixels
};
