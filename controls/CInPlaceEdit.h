// CInPlaceEdit: the editor of one cell of a CGridListCtrl.
#pragma once

#include <afxcmn.h>

// An edit that the owner of a list creates as a child of the list, over the cell to be edited. It takes the
// list's font and the focus, selects its text, and grows while the user types. Enter, Esc, a click elsewhere
// and scrolling end the edit: the editor loses the focus and sends LVN_ENDLABELEDIT to the list's parent.
//
// The notification is a NMLVDISPINFO with the list's window and the editor's own control id in its header
// (the message itself carries the list's control id), the mask LVIF_TEXT, the row in iItem and the column
// index in iSubItem. pszText is the text and cchTextMax its length, or null and 0 after Esc. The result is
// ignored.
//
// The owner also destroys the editor: after the notification has returned, for it comes from inside a message
// of the editor. Destroying the window of an editor that still has the focus sends the notification once
// more.
class AFX_EXT_CLASS CInPlaceEdit : public CEdit
{
public:
    // Edits the cell of row `item` and column index `subItem`; `initText` becomes the text of the window.
    CInPlaceEdit(int item, int subItem, CString initText);
    ~CInPlaceEdit() override;

    // Makes the window large enough for its text: to the right with a single line, also downwards with
    // ES_MULTILINE, up to two pixels before the edges of the list's client area. Shows the vertical scroll
    // bar when the height does not suffice. Never makes room smaller.
    void CalculateSize();

    // Lets Enter, Esc and Delete, and every key while Ctrl is held or toggled, reach the editor before a
    // dialog sees them. In a multi-line editor Esc is swallowed.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    // Esc cancels, Enter finishes; both by giving the focus to the list.
    afx_msg void OnChar(UINT character, UINT repeatCount, UINT flags);
    // Sends LVN_ENDLABELEDIT.
    afx_msg void OnKillFocus(CWnd* newFocus);

    DECLARE_MESSAGE_MAP()

    // The row and the column index of the edited cell.
    int item;
    int subItem;
    // What the window shows at first.
    CString initText;
    // Whether the user pressed Esc.
    BOOL escPressed;

private:
    bool IsMultiLine() const;
    CSize MeasureText(const CRect& editor, const CRect& list);
    // The character that made the text too long has scrolled it; shows as much of its start as there is room
    // for beside the caret.
    void ScrollBack();
    void SendEndOfEdit();
};
