// PropertyInPlaceEdit: the edit control over the value of a property.
#pragma once

#include "afxpropertygridctrl.h"
#include "propertyrules/EditMask.h"

#include <string>

// A child of the grid, to which it gives its keys and the loss of the focus. Characters that the mask refuses
// are not taken. The property deletes it.
class PropertyInPlaceEdit : public CEdit
{
public:
    explicit PropertyInPlaceEdit(const quorfx::EditMask& mask);

    // The current message is the click that opened the editor: a second one soon after makes a double click,
    // although it goes to another window.
    void OpenedByClick();

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCut(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnClear(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);

private:
    CMFCPropertyGridCtrl& Grid() const;
    void TypeMasked(wchar_t character);
    void EraseMasked(int first, int last);
    void EraseSelection();
    std::wstring Text() const;
    void ShowMasked(const std::wstring& text, int caret);
    CString ClipboardText();

    quorfx::EditMask m_mask;
    bool m_isAfterClick = false;
    LONG m_clickTime = 0;
};
