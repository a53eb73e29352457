// CCtrlView and CEditView: views that are a control.
#pragma once

#include "fx/edit.h"
#include "fx/view.h"

// A view whose window is of a control's class. The control paints itself; OnDraw is not called for the
// screen.
class QFX_API CCtrlView : public CView
{
    DECLARE_DYNAMIC(CCtrlView)

public:
    // The class and the style that the window gets in addition to what it is created with.
    CCtrlView(LPCTSTR lpszClass, DWORD dwStyle);
    virtual ~CCtrlView();

protected:
    CString m_strClass;
    DWORD m_dwDefaultStyle;

    virtual void OnDraw(CDC* pDC);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    afx_msg void OnPaint();

    DECLARE_MESSAGE_MAP()
};

// A view that is a multiline edit, with the commands of the Edit menu. A change marks the document as
// modified.
class QFX_API CEditView : public CCtrlView
{
    DECLARE_DYNCREATE(CEditView)

public:
    // Bars in both directions, no wrapping.
    static AFX_DATA const DWORD dwStyleDefault;

    CEditView();
    virtual ~CEditView();

    CEdit& GetEditCtrl() const;
    // The length of the text in characters.
    UINT GetBufferLength() const;
    // The first line of what is selected.
    void GetSelectedText(CString& strResult) const;
    // The text, which must not change until UnlockBuffer.
    LPCTSTR LockBuffer() const;
    void UnlockBuffer() const;
    // In units of a quarter of a character's average width.
    void SetTabStops(int nTabStops);

    // Selects the next place of the text behind the selection, or the last one before it; FALSE if there is
    // none.
    BOOL FindText(LPCTSTR lpszFind, BOOL bNext = TRUE, BOOL bCase = TRUE);

protected:
    // Called for the searches of the user. The base selects the place, or calls OnTextNotFound, which beeps.
    virtual void OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase);
    virtual void OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace);
    virtual void OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase);
    virtual void OnTextNotFound(LPCTSTR lpszFind);

    DECLARE_MESSAGE_MAP()

private:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnEditChange();
    afx_msg void OnEditCommand(UINT nID);
    afx_msg void OnUpdateNeedsSelection(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedsClipboard(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedsText(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedsUndo(CCmdUI* pCmdUI);
    BOOL IsSelected(LPCTSTR lpszText, BOOL bCase) const;

    mutable CString m_lockedText;
    int m_nTabStops;
};
