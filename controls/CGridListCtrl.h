// CGridListCtrl: a report list with a current column, whose cells its owner lets the user edit in place.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

// A list in report view that keeps a current column beside the focused row; both together are the current
// cell. The user chooses it with the mouse and with Left and Right, and asks to edit it by a second click or
// with F2.
//
// The list creates no editor. It sends its parent the notification LVN_BEGINLABELEDIT as a NMLVDISPINFO with
// the list's window and control id, the mask LVIF_TEXT, the row in iItem, the column index in iSubItem, and
// the cell's text with its length in pszText and cchTextMax; the result is ignored. The parent then
//   1. creates a CInPlaceEdit as a child of the list, which takes the focus,
//   2. places it with PositionControl, which gives it the size of the cell, and calls CalculateSize for a
//   text that is longer; when PositionControl returns 0, it gives the focus back to the list, which ends the
//   edit,
//   3. stores the text on LVN_ENDLABELEDIT, which the editor sends when it loses the focus, and
//   4. destroys the editor after that notification has returned: it is sent from inside a message of the
//   editor.
// The parent may destroy the list or the editor in any of these notifications.
//
// To show the current cell as a sunken button face, a derived class connects OnCustomDraw:
//   ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &MyList::OnCustomDraw)
//
// A column index names a column as it was inserted; a display position counts the columns from the left as
// the user has arranged them. Both are zero-based, and -1 means none.
class QUOR_EXT_CLASS CGridListCtrl : public CListCtrl
{
public:
    // No current column yet.
    CGridListCtrl();
    ~CGridListCtrl() override;

    // Makes the window a report view without the platform's own label editing, with selection of whole rows
    // and columns that can be dragged; other styles stay. `flags` is only stored. Returns 1. Call it once,
    // after the window exists.
    int PrepareControl(WORD flags);

    // Moves `ctrl`, a child of the list, over a cell; scrolls the row and, if the cell is not wholly visible,
    // the column into view. Returns 1; or 0 and leaves the control alone when there is no such row or column,
    // or the column is narrower than 5 pixels. `column` is a column index, but the refusals take it as a
    // display position: after the user has moved columns they look at the column that is shown there.
    int PositionControl(CWnd* ctrl, int item, int column);

    // Scrolls a column that is not wholly visible to the left edge of the list. `column` is a column index; a
    // negative one does nothing, one behind the last column scrolls to the end. An empty list does not
    // scroll.
    void MakeColumnVisible(int column);

    // Takes Left, Right and F2 when the list itself has the focus. Left and Right move the current column and
    // are consumed; one step left of the first column is no current column, and Right stays on the last. F2
    // sends LVN_BEGINLABELEDIT for the current cell and is passed on.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    // Answers NM_CUSTOMDRAW, a NMLVCUSTOMDRAW, so that the current cell of the focused row is drawn as a
    // sunken button face with the text in the colour of button texts. Not connected by this class.
    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result);

    // Sets the current column; on a second click on the current cell sends LVN_BEGINLABELEDIT. In column 0,
    // wherever it is shown, that click must be on the text of the label, not on the icon or beside the text.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // A press of either button, and scrolling, take the focus first, which ends an open editor.
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar);

    DECLARE_MESSAGE_MAP()

    // The current column as a display position, -1 for none.
    int curColumn;
    // What PrepareControl was given.
    WORD editFlags;

private:
    int IndexToOrder(int index);
    int OrderToIndex(int order);
    int CountColumns();
    // The pixels from the left edge of the rows to the column.
    int ColumnOffset(int column);
    int FocusedRow();
    void MoveCurrentColumn(int step);
    void TakeFocus();
    bool IsOnLabel(const LVHITTESTINFO& hit);
    void RequestEdit(int row, int column);
    BOOL IsCurrentCell(const NMLVCUSTOMDRAW& draw);
    CRect CellRectangle(const NMLVCUSTOMDRAW& draw);
    void DrawCurrentCell(const NMLVCUSTOMDRAW& draw);
};
