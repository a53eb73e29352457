// TGCellEdit: the plain text editor of a cell, and the base of the editors with a button or a spin.
#pragma once

#include "grid/TGCellCtrl.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// A borderless edit over the cell's text. It ends the edit session when it loses the focus, then sends the
// grid's parent WM_COMMAND with the grid's control id, EN_KILLFOCUS and the edit's window handle.
class QUOR_EXT_CLASS TGCellEdit : public CEdit, public TGCellCtrl
{
public:
    explicit TGCellEdit(TGGridCell& editedCell);
    ~TGCellEdit() override;

    CWnd* GetWnd() override { return this; }
    // Shows the edit over `rect` with the cell's text selected and takes the focus. On return `rect` holds
    // the edit's formatting rectangle in its own client coordinates.
    void Create(CRect& rect) override;
    bool IsModified() override { return GetModify() != FALSE; }
    void GetNewText(CString& text) override { GetWindowText(text); }
    // The selection ends at the beginning or at the end of the line.
    bool IsLeftEnd() override;
    bool IsRightEnd() override;
    // Up and Down always leave an edit.
    bool IsUpEnd() override { return true; }
    bool IsDownEnd() override { return true; }
    void SetModified(bool on) override { SetModify(on); }
    void SetNewText(const wchar_t* text) override { SetWindowText(text); }

protected:
    // The grid that shows the editor; null once its window is gone.
    TGGrid* GetGrid() const;
    void SelectAllText();
    // TGCellEdit::Create, then the formatting rectangle gives way to a square at the right end.
    bool CreateWithRoom(CRect& rect);
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnSetFocus(CWnd* oldFocus);
};

} // namespace QuorUiCtr
