// The keyboard: message pre-translation and the hand-over of keys to the key map.
#include "grid/TGGrid.h"

#include "grid/GridKeyMap.h"
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

UINT TGGrid::OnGetDlgCode()
{
    return DLGC_WANTALLKEYS;
}

BOOL TGGrid::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN)
    {
        const UINT key = static_cast<UINT>(message->wParam);
        if (editCell ? RouteEditorKey(key) : RouteIdleKey(*message))
            return TRUE;
    }
    else if (message->message == WM_COMMAND && message->hwnd == m_hWnd && HIWORD(message->wParam) == 0 &&
             RunMenuCommand(LOWORD(message->wParam)))
        return TRUE;
    return CWnd::PreTranslateMessage(message);
}

// Keys that leave or steer the open editor go to the grid's key map; the editor gets the others.
bool TGGrid::RouteEditorKey(UINT key)
{
    if (!cellCtrl || !LeavesEditor(key))
        return false;
    GridKeyMap(*this).Run(key);
    return true;
}

bool TGGrid::LeavesEditor(UINT key)
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
        return cellCtrl->IsLeftEnd();
    case VK_RIGHT:
        return cellCtrl->IsRightEnd();
    case VK_UP:
        return cellCtrl->IsUpEnd();
    case VK_DOWN:
        return cellCtrl->IsDownEnd();
    default:
        return false;
    }
}

bool TGGrid::RouteIdleKey(const MSG& message)
{
    CWnd* parent = GetParent();
    switch (message.wParam)
    {
    case VK_TAB:
        if (GetFocus() != this || !parent)
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
