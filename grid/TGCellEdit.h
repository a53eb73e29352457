// TGCellEdit: the plain text editor of a cell, and the base of the editors with a button or a spin.
#pragma once

#include "grid/TGCellCtrl.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// A borderless edit over the cell's text, in the grid's font and the cell's alignment. The window takes
// several lines, but Enter is the grid's: it moves on to another cell. It ends the edit session when it loses
// the focus, then sends the grid's parent WM_COMMAND with the grid's control id, EN_KILLFOCUS and the edit's
// window handle; losing it to a part of its own, such as a button, does neither. A host limits or filters the
// typing in a derived class that its OnGetCellEdit returns.
class QUOR_EXT_CLASS TGCellEdit : public CEdit, public TGCellCtrl
{
public:
    // Without a window, which Create makes.
    explicit TGCellEdit(TGGridCell& editedCell);
    ~TGCellEdit() override;

    CWnd* GetWnd() override { return this; }
    // Shows the edit over `rect` with the cell's text selected and takes the focus. On return `rect` holds
    // the edit's formatting rectangle in its own client coordinates.
    void Create(CRect& rect) override;
    // The platform's own flag, which typing sets.
    bool IsModified() override { return GetModify() != FALSE; }
    // The text of the window as it stands, blanks included.
    void GetNewText(CString& text) override { GetWindowText(text); }
    // The selection ends at the beginning or at the end of the line; with all selected, as at first, the end.
    bool IsLeftEnd() override;
    bool IsRightEnd() override;
    // Up and Down always leave an edit.
    bool IsUpEnd() override { return true; }
    bool IsDownEnd() override { return true; }
    // For programs; the platform clears the flag whenever SetNewText is called.
    void SetModified(bool on) override { SetModify(on); }
    // Replaces the whole text; the selection is lost.
    void SetNewText(const wchar_t* text) override { SetWindowText(text); }

protected:
    // The grid that shows the editor; null once its window is gone.
    TGGrid* GetGrid() const;
    // Selects all and shows the caret, which stands at the end.
    void SelectAllText();
    // TGCellEdit::Create, then the formatting rectangle gives way to a square at the right end, unless the
    // cell is no wider than high. False when taking the focus cost the editor its window or its cell.
    bool CreateWithRoom(CRect& rect);
    // Deletes the object as soon as none of its code is running.
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    // Ends the session and notifies the grid's parent; the corner shows the grid without the focus, unless
    // the focus stays in it.
    afx_msg void OnKillFocus(CWnd* newFocus);
    // The corner shows the grid with the focus.
    afx_msg void OnSetFocus(CWnd* oldFocus);
};

} // namespace QuorUiCtr
