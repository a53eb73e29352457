// TGCellCtrl: the interface between the grid and the editor of a cell.
#pragma once

#include "grid/TGGridCell.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// An in-place editor over one cell, as the grid sees it. The object is made on the heap with new, lives until
// its window is destroyed and then deletes itself; it refers to the cell and never owns it.
//
// The library's editors are TGCellEdit, TGCellButtonEdit, TGCellSpinEdit and TGCellCombo. A host that wants
// another derives from a window class and from this one, and returns it from TGGrid::OnGetCellEdit:
//
//     class DateEditor : public CDateTimeCtrl, public TGCellCtrl
//     {
//         CWnd* GetWnd() override { return this; }
//         void PostNcDestroy() override { delete this; }
//         ...
//     };
//
// Such an editor calls EndEditCell() of the cell's grid when it loses the focus to a window that is none of
// its own. The grid keeps it for one session: it hides the editor when the session ends and destroys its
// window before the next one begins, but not while a message to it is being handled.
class QUOR_EXT_CLASS TGCellCtrl
{
public:
    // `editedCell` must exist as long as the session. A finished session may have left it behind deleted, so
    // an editor asks for it only while it is shown.
    explicit TGCellCtrl(TGGridCell& editedCell);
    // Another editor of the same cell.
    TGCellCtrl(const TGCellCtrl& other);
    TGCellCtrl& operator=(const TGCellCtrl&) = delete;

    // The virtual operations keep this order, and new ones would follow the last: compiled hosts bring
    // editors of their own, which the grid calls by place.

    // The grid forgets an editor that is deleted, by whomever.
    virtual ~TGCellCtrl();
    // The editor's own window. Asked for also when that does not exist yet or any more.
    virtual CWnd* GetWnd() = 0;
    // Creates the window over `rect` (client coordinates of the grid, the cell without its frame; in a tree's
    // first column without the fold box), fills it with the cell's text, shows it and gives it the focus.
    // `rect` is the callee's to change; the grid does not look at it again.
    virtual void Create(CRect& rect) = 0;
    // The user changed the text. Only then does the end of the session ask for it and store it.
    virtual bool IsModified() = 0;
    // The text as it would be stored now; the former content of `text` is lost.
    virtual void GetNewText(CString& text) = 0;
    // The caret stands at that end, so that an arrow key leaves the editor for the neighbouring cell instead
    // of moving the caret.
    virtual bool IsLeftEnd() = 0;
    virtual bool IsRightEnd() = 0;
    virtual bool IsUpEnd() = 0;
    virtual bool IsDownEnd() = 0;
    // Both do nothing by default; an editor with a button needs them to take over what OnCellButtonDown
    // returns. Setting a text alone does not count as the user's change.
    virtual void SetModified(bool on);
    virtual void SetNewText(const wchar_t* text);

    // The cell under edit, of the grid's row or of the new-row line.
    TGGridCell& GetCell() { return cell; }
    // `wnd` is the editor's window or a child of it; null counts as no window.
    bool IsMyFocus(CWnd* wnd);
    // Destroys the editor's window, and with it the object.
    void Destroy();
    // Hides and disables the editor's window, which loses the focus by that.
    void Hide();

private:
    TGGridCell& cell;
};

} // namespace QuorUiCtr
