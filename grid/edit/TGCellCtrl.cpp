// The parts of the cell editors' interface that do not depend on the kind of editor.
#include "grid/TGCellCtrl.h"

#include "grid/edit/CellEditorLife.h"

namespace QuorUiCtr
{

TGCellCtrl::TGCellCtrl(TGGridCell& editedCell) : cell(editedCell) {}

TGCellCtrl::TGCellCtrl(const TGCellCtrl& other) = default;

TGCellCtrl::~TGCellCtrl()
{
    CellEditorLife::NoteDeletion(this);
}

void TGCellCtrl::SetModified(bool) {}

void TGCellCtrl::SetNewText(const wchar_t*) {}

bool TGCellCtrl::IsMyFocus(CWnd* wnd)
{
    const HWND editor = GetWnd()->GetSafeHwnd();
    const HWND asked = wnd->GetSafeHwnd();
    return asked == editor || ::IsChild(editor, asked);
}

void TGCellCtrl::Destroy()
{
    GetWnd()->DestroyWindow();
}

void TGCellCtrl::Hide()
{
    // Hiding moves the focus, and whoever hears of that may destroy the window.
    const CellEditorLife::Use use(this);
    CWnd* wnd = GetWnd();
    if (wnd->GetSafeHwnd() == nullptr)
        return;
    wnd->ShowWindow(SW_HIDE);
    if (wnd->GetSafeHwnd() != nullptr)
        wnd->EnableWindow(FALSE);
}

} // namespace QuorUiCtr
