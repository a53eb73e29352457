// CEdit: a field for text.
#pragma once

#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

// Wraps an EDIT window. The object has no state of its own: a pointer to any CWnd of an edit may be cast to
// it. Character positions and lines are zero-based; rectangles are in client coordinates of the control.
class QFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit() {}
    virtual ~CEdit();

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Contents and limits.
    BOOL CanUndo() const { return quorfx::Send<BOOL>(m_hWnd, EM_CANUNDO); }
    int GetLineCount() const { return quorfx::Send<int>(m_hWnd, EM_GETLINECOUNT); }
    BOOL GetModify() const { return quorfx::Send<BOOL>(m_hWnd, EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) { quorfx::Send(m_hWnd, EM_SETMODIFY, bModified); }
    // What the user may type, in characters; 0 means the control's own maximum.
    void LimitText(int nChars = 0) { quorfx::Send(m_hWnd, EM_LIMITTEXT, nChars); }
    void SetLimitText(UINT nMax) { quorfx::Send(m_hWnd, EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return quorfx::Send<UINT>(m_hWnd, EM_GETLIMITTEXT); }
    HLOCAL GetHandle() const { return quorfx::Send<HLOCAL>(m_hWnd, EM_GETHANDLE); }
    void SetHandle(HLOCAL hBuffer) { quorfx::Send(m_hWnd, EM_SETHANDLE, hBuffer); }
    BOOL FmtLines(BOOL bAddEOL) { return quorfx::Send<BOOL>(m_hWnd, EM_FMTLINES, bAddEOL); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return quorfx::Send<BOOL>(m_hWnd, EM_SETREADONLY, bReadOnly); }
    void SetPasswordChar(TCHAR ch) { quorfx::Send(m_hWnd, EM_SETPASSWORDCHAR, ch); }
    TCHAR GetPasswordChar() const { return quorfx::Send<TCHAR>(m_hWnd, EM_GETPASSWORDCHAR); }

    // Copies a line without a terminating zero and returns the number of characters copied. The first form
    // reads the room from the buffer's first word, the second sets it there: the buffer needs at least the
    // size of a WORD.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;

    // The selection: first position, and the position after the last selected character.
    DWORD GetSel() const { return quorfx::Send<DWORD>(m_hWnd, EM_GETSEL); }
    void GetSel(int& nStartChar, int& nEndChar) const
    {
        quorfx::Send(m_hWnd, EM_GETSEL, &nStartChar, &nEndChar);
    }
    // Selects, and scrolls the caret into view unless bNoScroll. 0 to -1 selects everything, -1 as the start
    // removes the selection.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        quorfx::Send(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
    }

    // Geometry. The formatting rectangle is where text is drawn.
    void GetRect(LPRECT lpRect) const { quorfx::Send(m_hWnd, EM_GETRECT, 0, lpRect); }
    void SetRect(LPCRECT lpRect) { quorfx::Send(m_hWnd, EM_SETRECT, 0, lpRect); }
    // As SetRect, without a repaint.
    void SetRectNP(LPCRECT lpRect) { quorfx::Send(m_hWnd, EM_SETRECTNP, 0, lpRect); }
    void SetMargins(UINT nLeft, UINT nRight);
    // Left margin in the low word, right margin in the high word.
    DWORD GetMargins() const { return quorfx::Send<DWORD>(m_hWnd, EM_GETMARGINS); }
    // (-1, -1) for a position beyond the text.
    CPoint PosFromChar(UINT nChar) const;
    // Character position in the low word, line in the high word.
    int CharFromPos(CPoint pt) const;
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    {
        return quorfx::Send<BOOL>(m_hWnd, EM_SETTABSTOPS, nTabStops, rgTabStops);
    }
    BOOL SetTabStops(const int& cxEachStop)
    {
        return quorfx::Send<BOOL>(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop);
    }
    void SetTabStops() { quorfx::Send(m_hWnd, EM_SETTABSTOPS); }

    // Lines; -1 stands for the line of the caret, or for the selection in LineLength.
    int LineFromChar(int nIndex = -1) const { return quorfx::Send<int>(m_hWnd, EM_LINEFROMCHAR, nIndex); }
    int LineIndex(int nLine = -1) const { return quorfx::Send<int>(m_hWnd, EM_LINEINDEX, nLine); }
    int LineLength(int nLine = -1) const { return quorfx::Send<int>(m_hWnd, EM_LINELENGTH, nLine); }
    void LineScroll(int nLines, int nChars = 0) { quorfx::Send(m_hWnd, EM_LINESCROLL, nChars, nLines); }
    int GetFirstVisibleLine() const { return quorfx::Send<int>(m_hWnd, EM_GETFIRSTVISIBLELINE); }

    // The characters that are highlighted without being selected.
    BOOL GetHighlight(int* pichStart, int* pichEnd) const;
    void SetHighlight(int ichStart, int ichEnd) { quorfx::Send(m_hWnd, EM_SETHILITE, ichStart, ichEnd); }

    // The grey text of an empty field, and the balloon beside it.
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused = FALSE)
    {
        return quorfx::Send<BOOL>(m_hWnd, EM_SETCUEBANNER, fDrawIfFocused, lpszText);
    }
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const
    {
        return quorfx::Send<BOOL>(m_hWnd, EM_GETCUEBANNER, lpszText, cchText);
    }
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
    {
        return quorfx::Send<BOOL>(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip() { return quorfx::Send<BOOL>(m_hWnd, EM_HIDEBALLOONTIP); }

    // Editing commands; they act on the selection and the clipboard.
    BOOL Undo() { return quorfx::Send<BOOL>(m_hWnd, EM_UNDO); }
    void EmptyUndoBuffer() { quorfx::Send(m_hWnd, EM_EMPTYUNDOBUFFER); }
    void Clear() { quorfx::Send(m_hWnd, WM_CLEAR); }
    void Copy() { quorfx::Send(m_hWnd, WM_COPY); }
    void Cut() { quorfx::Send(m_hWnd, WM_CUT); }
    void Paste() { quorfx::Send(m_hWnd, WM_PASTE); }
};
