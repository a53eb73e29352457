// The keyboard: message pre-translation and the hand-over of keys to the key map.
#include "grid/TGGrid.h"

#include "grid/input/GridKeyMap.h"
#include "grid/model/GridExtensions.h"
#include "grid/TGCellCtrl.h"

#include <afxext.h>

namespace QuorUiCtr
{
namespace
{

// Enter and Esc belong to windows of these kinds when no editor is open.
bool IsFormWindow(CWnd* window)
{
    return window && (window->IsKindOf(RUNTIME_CLASS(CDialog)) || window->IsKindOf(RUNTIME_CLASS(CFormView)));
}

} // namespace

// Where a key goes before any window sees it.
class TGGrid::Keyboard
{
public:
    explicit Keyboard(TGGrid& servedGrid) : grid(servedGrid) {}

    bool RouteEditorKey(UINT key);
    bool RouteIdleKey(const MSG& message);

private:
    bool LeavesEditor(UINT key);

    TGGrid& grid;
};

UINT TGGrid::OnGetDlgCode()
{
    return DLGC_WANTALLKEYS;
}

BOOL TGGrid::PreTranslateMessage(MSG* message)
{
    if (extensions != nullptr && extensions->PreTranslate(*message))
        return TRUE;
    if (message->message == WM_KEYDOWN)
    {
        const UINT key = static_cast<UINT>(message->wParam);
        if (editCell != nullptr ? Keyboard(*this).RouteEditorKey(key)
                                : Keyboard(*this).RouteIdleKey(*message))
            return TRUE;
    }
    else if (message->message == WM_COMMAND && message->hwnd == m_hWnd && HIWORD(message->wParam) == 0 &&
             RunMenuCommand(LOWORD(message->wParam)))
        return TRUE;
    return CWnd::PreTranslateMessage(message);
}

// Keys that leave or steer the open editor go to the grid's key map; the editor gets the others.
bool TGGrid::Keyboard::RouteEditorKey(UINT key)
{
    if (grid.cellCtrl == nullptr || !LeavesEditor(key))
        return false;
    GridKeyMap(grid).Run(key);
    return true;
}

bool TGGrid::Keyboard::LeavesEditor(UINT key)
{
    switch (key)
    {
    case VK_TAB:
    case VK_RETURN:
    case VK_ESCAPE:
    case VK_PRIOR:
    case VK_NEXT:
        return true;
    case VK_LEFT:
        return grid.cellCtrl->IsLeftEnd();
    case VK_RIGHT:
        return grid.cellCtrl->IsRightEnd();
    case VK_UP:
        return grid.cellCtrl->IsUpEnd();
    case VK_DOWN:
        return grid.cellCtrl->IsDownEnd();
    default:
        return false;
    }
}

bool TGGrid::Keyboard::RouteIdleKey(const MSG& message)
{
    CWnd* parent = grid.GetParent();
    switch (message.wParam)
    {
    case VK_TAB:
        if (CWnd::GetFocus() != &grid || parent == nullptr)
            return false;
        parent->SetFocus();
        return true;
    case VK_RETURN:
    case VK_ESCAPE:
        if (!IsFormWindow(parent))
            return false;
        parent->PostMessage(WM_KEYDOWN, message.wParam, message.lParam);
        return true;
    default:
        return false;
    }
}

void TGGrid::OnKeyDown(UINT key, UINT, UINT)
{
    GridKeyMap(*this).Run(key);
    Default();
}

} // namespace QuorUiCtr
