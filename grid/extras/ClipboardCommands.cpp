// The clipboard's keys, and the standard commands of menus and toolbars.
#include "grid/extras/TGClipboard.h"

#include "grid/TGGrid.h"

#include <afxext.h>
#include <afxres.h>

#include <algorithm>
#include <iterator>

namespace QuorUiCtr
{
namespace
{

bool IsEditCommand(UINT id)
{
    switch (id)
    {
    case ID_EDIT_COPY:
    case ID_EDIT_CUT:
    case ID_EDIT_PASTE:
    case ID_EDIT_CLEAR:
    case ID_EDIT_SELECT_ALL:
        return true;
    default:
        return false;
    }
}

} // namespace

// ---- Keys

// A virtual key with Ctrl alone.
struct TGClipboard::Key
{
    UINT code;
    // Without a current cell the key is the grid's.
    bool needsCell;
    const wchar_t* name;
    const wchar_t* action;
    void (*run)(TGClipboard& clipboard);

    static const Key Table[];
};

const TGClipboard::Key TGClipboard::Key::Table[] = {
    {'C', false, L"Ctrl+C", L"copy the selected cells", [](TGClipboard& clipboard) { clipboard.Copy(); }},
    {'X', false, L"Ctrl+X", L"copy the selected cells and empty them; delete selected rows",
     [](TGClipboard& clipboard) { clipboard.Cut(); }},
    {'V', false, L"Ctrl+V", L"paste at the current cell, or fill the range",
     [](TGClipboard& clipboard) { clipboard.Paste(); }},
    {'D', true, L"Ctrl+D", L"fill down from the first row of the range, or from the row above",
     [](TGClipboard& clipboard) { clipboard.FillDown(); }},
    {'R', true, L"Ctrl+R", L"fill right from the first column of the range, or from the column to the left",
     [](TGClipboard& clipboard) { clipboard.FillRight(); }},
};

std::vector<TGKeyDescription> TGClipboard::GetKeys()
{
    std::vector<TGKeyDescription> described;
    for (const Key& key : Key::Table)
        described.push_back({key.name, key.action});
    return described;
}

bool TGClipboard::RunKey(UINT key)
{
    const bool isControl =
        ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_MENU) >= 0;
    if (!keys || !isControl || GetGrid()->IsEditing())
        return false;
    const auto found = std::find_if(std::begin(Key::Table), std::end(Key::Table),
                                    [key](const Key& entry) { return entry.code == key; });
    long row = -1;
    long col = -1;
    if (found == std::end(Key::Table) || (found->needsCell && !FindCurrentCell(row, col)))
        return false;
    found->run(*this);
    return true;
}

bool TGClipboard::OnPreTranslate(MSG& message)
{
    return message.message == WM_KEYDOWN && message.hwnd == GetGrid()->m_hWnd &&
           RunKey(static_cast<UINT>(message.wParam));
}

// Keys that no pre-translation has seen, and commands that are sent to the grid.
bool TGClipboard::OnMessage(CWnd& target, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    if (target.m_hWnd != GetGrid()->m_hWnd)
        return false;
    result = 0;
    if (message == WM_KEYDOWN)
        return RunKey(static_cast<UINT>(wParam));
    return message == WM_COMMAND && lParam == 0 && RunCommand(LOWORD(wParam));
}

// ---- Commands

// The edit that has the focus may be a part of the editor, as that of a combo box.
bool TGClipboard::RunInEditor(UINT id) const
{
    const CWnd* const editor = GetGrid()->IsEditing() ? GetEditorWindow() : nullptr;
    if (editor->GetSafeHwnd() == nullptr)
        return false;
    const HWND focus = ::GetFocus();
    const HWND edit = ::IsChild(editor->m_hWnd, focus) ? focus : editor->m_hWnd;
    switch (id)
    {
    case ID_EDIT_COPY:
        ::SendMessage(edit, WM_COPY, 0, 0);
        break;
    case ID_EDIT_CUT:
        ::SendMessage(edit, WM_CUT, 0, 0);
        break;
    case ID_EDIT_PASTE:
        ::SendMessage(edit, WM_PASTE, 0, 0);
        break;
    case ID_EDIT_CLEAR:
        ::SendMessage(edit, WM_CLEAR, 0, 0);
        break;
    default:
        ::SendMessage(edit, EM_SETSEL, 0, -1);
        break;
    }
    return true;
}

bool TGClipboard::RunCommand(UINT id)
{
    if (GetGrid() == nullptr || !IsEditCommand(id))
        return false;
    if (RunInEditor(id))
        return true;
    TGGrid& grid = *GetGrid();
    switch (id)
    {
    case ID_EDIT_COPY:
        Copy();
        break;
    case ID_EDIT_CUT:
        Cut();
        break;
    case ID_EDIT_PASTE:
        Paste();
        break;
    case ID_EDIT_CLEAR:
        Empty();
        break;
    default:
        if (grid.IsEmpty() || !SelectCells({0, 0, grid.GetRowNum() - 1, grid.GetColNum() - 1}))
            grid.SelectAll();
        break;
    }
    return true;
}

bool TGClipboard::IsCommandEnabled(UINT id) const
{
    if (GetGrid() == nullptr)
        return false;
    const TGGrid& grid = *GetGrid();
    switch (id)
    {
    case ID_EDIT_COPY:
        return grid.IsEditing() || CanCopy();
    case ID_EDIT_CUT:
    case ID_EDIT_CLEAR:
        return grid.IsEditing() || (CanCopy() && !grid.IsReadOnly());
    case ID_EDIT_PASTE:
        return grid.IsEditing() ? ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE : CanPaste();
    case ID_EDIT_SELECT_ALL:
        return grid.IsEditing() || !grid.IsEmpty();
    default:
        return false;
    }
}

BOOL TGClipboard::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (GetGrid() == nullptr || !IsEditCommand(id) || info != nullptr)
        return FALSE;
    if (code == CN_COMMAND)
        return RunCommand(id) ? TRUE : FALSE;
    if (code != static_cast<int>(CN_UPDATE_COMMAND_UI) || extra == nullptr)
        return FALSE;
    static_cast<CCmdUI*>(extra)->Enable(IsCommandEnabled(id) ? TRUE : FALSE);
    return TRUE;
}

} // namespace QuorUiCtr
