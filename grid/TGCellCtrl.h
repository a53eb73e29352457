// TGCellCtrl: the interface between the grid and the editor of a cell.
#pragma once

#include "grid/TGGridCell.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// An in-place editor over one cell. The object is made on the heap with new, lives until its window is
// destroyed and then deletes itself; it refers to the cell and never owns it.
class QUOR_EXT_CLASS TGCellCtrl
{
public:
    explicit TGCellCtrl(TGGridCell& editedCell);
    // Another editor of the same cell.
    TGCellCtrl(const TGCellCtrl& other);
    TGCellCtrl& operator=(const TGCellCtrl&) = delete;

    // The virtual operations keep this order.
    virtual ~TGCellCtrl();
    // The editor's own window.
    virtual CWnd* GetWnd() = 0;
    // Creates and shows the editor over `rect` (client coordinates of the grid); `rect` may be changed.
    virtual void Create(CRect& rect) = 0;
    // The user changed the text.
    virtual bool IsModified() = 0;
    virtual void GetNewText(CString& text) = 0;
    // The caret stands at that end, so that an arrow key leaves the editor.
    virtual bool IsLeftEnd() = 0;
    virtual bool IsRightEnd() = 0;
    virtual bool IsUpEnd() = 0;
    virtual bool IsDownEnd() = 0;
    // Both do nothing by default.
    virtual void SetModified(bool on);
    virtual void SetNewText(const wchar_t* text);

    TGGridCell& GetCell() { return cell; }
    // `wnd` is the editor's window or a child of it; null counts as no window.
    bool IsMyFocus(CWnd* wnd);
    // Destroys the editor's window, and with it the object.
    void Destroy();
    // Hides and disables the editor's window.
    void Hide();

private:
    TGGridCell& cell;
};

} // namespace QuorUiCtr
