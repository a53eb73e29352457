// What the cell cursor does with messages: keys and characters, clicks and drags, the dialog's questions; and
// the editor.
#include "grid/extras/TGCellCursor.h"

#include "grid/extras/MousePoint.h"
#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{
namespace
{

constexpr int CornerId = 102;
// Milliseconds from one step to the next while a drag waits outside of the view.
constexpr UINT ScrollTime = 50;

bool IsKeyDown(UINT message)
{
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

} // namespace

// ---- Messages

bool TGCellCursor::OnPreTranslate(MSG& message)
{
    TGGrid& grid = *GetGrid();
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)
        return false;
    if (message.hwnd == grid.m_hWnd)
        return RunKey(static_cast<UINT>(message.wParam));
    const CWnd* const editor = GetEditorWindow();
    const bool inEditor = editor != nullptr && (message.hwnd == editor->GetSafeHwnd() ||
                                                ::IsChild(editor->GetSafeHwnd(), message.hwnd));
    return inEditor && message.message == WM_KEYDOWN && RunEditorKey(message);
}

bool TGCellCursor::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    TGGrid& grid = *GetGrid();
    if (window.m_hWnd != grid.m_hWnd)
    {
        // One click on the corner selects all.
        if (message == WM_LBUTTONDOWN && window.m_hWnd != nullptr && window.GetDlgCtrlID() == CornerId)
            grid.SelectAll();
        return false;
    }
    result = 0;
    if (IsKeyDown(message))
        return TakeKey(static_cast<UINT>(wParam));
    switch (message)
    {
    case WM_CHAR:
        if (std::exchange(dropCharacter, false))
            return true;
        return RunCharacter(static_cast<wchar_t>(wParam));
    case WM_GETDLGCODE:
        result = DialogCode(reinterpret_cast<const MSG*>(lParam));
        return true;
    case WM_LBUTTONDOWN:
        return PressAt(MousePoint(lParam), (wParam & MK_SHIFT) != 0, (wParam & MK_CONTROL) != 0);
    case WM_LBUTTONDBLCLK:
        return PressTwiceAt(MousePoint(lParam));
    case WM_MOUSEMOVE:
        if (dragging)
            DragTo(MousePoint(lParam));
        return false;
    case WM_TIMER:
        return wParam == DragTimer() && DragOn();
    case WM_LBUTTONUP:
        if (std::exchange(dragging, false))
            ::ReleaseCapture();
        return false;
    case WM_CAPTURECHANGED:
        dragging = false;
        return false;
    case WM_RBUTTONDOWN:
        PressRightAt(MousePoint(lParam));
        return false;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        InvalidateRanges();
        return false;
    default:
        return false;
    }
}

// For message loops without pre-translation. The grid's own keys are letters that need Ctrl here.
bool TGCellCursor::TakeKey(UINT key)
{
    const Watch watch(*this);
    const bool isRun = RunKey(key);
    if (watch.IsDeleted())
        return true;
    dropCharacter = isRun;
    const bool isLetter = key >= 'A' && key <= 'Z';
    // With both, keys of some keyboards write characters.
    const bool isCommand = ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0;
    return dropCharacter || (isLetter && !isCommand);
}

// What the dialog's own keys are for, when the cursor leaves them.
UINT TGCellCursor::DialogCode(const MSG* message) const
{
    const bool asked = message != nullptr && message->message == WM_KEYDOWN && !GetGrid()->IsEditing();
    const bool defaultButton = asked && message->wParam == VK_RETURN && enterStep == Step::None;
    const bool cancelButton = asked && message->wParam == VK_ESCAPE;
    return defaultButton || cancelButton ? DLGC_WANTARROWS | DLGC_WANTCHARS : DLGC_WANTALLKEYS;
}

// ---- Mouse

bool TGCellCursor::IsOnFoldBox(CPoint point, long row, long col) const
{
    TGGridRow* const found = col == 0 ? FindRow(row) : nullptr;
    if (found == nullptr || !found->IsParentRow())
        return false;
    CPoint logical = ToLogical(point);
    return static_cast<TGGridTreeRow*>(found)->IsPtInTreeQuad(logical);
}

// Clicks beside the cells and on the box of a tree row are the grid's.
bool TGCellCursor::PressAt(CPoint point, bool shift, bool control)
{
    TGGrid& grid = *GetGrid();
    const Watch watch(*this);
    grid.SetFocus();
    if (watch.IsAttached())
        grid.EndEditCell();
    if (!watch.HasWindow())
        return true;
    long row = -1;
    long col = -1;
    PointToCell(point, row, col);
    if (row < 0 || row > LastRow(true) || !grid.IsValidCol(col) || IsOnFoldBox(point, row, col))
        return false;
    dragging = true;
    grid.SetCapture();
    if (control && !shift)
        SelectRange({row, col, row, col}, true);
    else
        MoveTo(row, col, shift);
    return true;
}

bool TGCellCursor::PressTwiceAt(CPoint point)
{
    long row = -1;
    long col = -1;
    PointToCell(point, row, col);
    if (IsOnFoldBox(point, row, col))
        return false;
    const Watch watch(*this);
    if (!MoveTo(row, col))
        return false;
    if (watch.IsAttached() && doubleClickEditing)
        Edit(false);
    return true;
}

// A menu of the cell is about what is under the mouse.
void TGCellCursor::PressRightAt(CPoint point)
{
    long row = -1;
    long col = -1;
    PointToCell(point, row, col);
    if (!IsInRanges(row, col))
        MoveTo(row, col);
}

UINT_PTR TGCellCursor::DragTimer() const
{
    return reinterpret_cast<UINT_PTR>(&dragging);
}

// Beside the cells the nearest one counts, so that the view follows a drag that leaves it, and goes on while
// the mouse stays there.
void TGCellCursor::DragTo(CPoint point)
{
    const CPoint logical = ToLogical(point);
    dragPoint = point;
    if (!GetView().PtInRect(logical))
        ::SetTimer(GetGrid()->m_hWnd, DragTimer(), ScrollTime, nullptr);
    long row = -1;
    long col = -1;
    PointToCell(point, row, col);
    row = std::clamp(logical.y < 0 ? 0L : row, 0L, (std::max)(LastRow(true), 0L));
    col = logical.x < 0 ? 0L : (std::min)(col, LastCol());
    if (row != GetRow() || col != GetCol())
        MoveTo(row, col, true);
}

// The timer of a drag that is over, or that has come back, stops itself.
bool TGCellCursor::DragOn()
{
    ::KillTimer(GetGrid()->m_hWnd, DragTimer());
    if (dragging)
        DragTo(dragPoint);
    return true;
}

// ---- Editing

bool TGCellCursor::Edit(bool caretAtEnd)
{
    if (GetGrid() == nullptr || GetGrid()->GetSafeHwnd() == nullptr || !EnsureCell())
        return false;
    TGGrid& grid = *GetGrid();
    const Watch watch(*this);
    typing = false;
    {
        const OwnSelecting own(*this);
        grid.BeginEditCell(GetRow(), GetCol());
    }
    CWnd* const editor = watch.IsAttached() ? GetEditorWindow() : nullptr;
    if (editor == nullptr)
        return false;
    if (!caretAtEnd)
        return true;
    const int length = editor->GetWindowTextLength();
    if (editor->IsKindOf(RUNTIME_CLASS(CComboBox)))
        static_cast<CComboBox*>(editor)->SetEditSel(length, length);
    else
        editor->SendMessage(EM_SETSEL, static_cast<WPARAM>(length), length);
    return true;
}

// Hooks may change rows and columns: what is not there any more is left out.
long TGCellCursor::EmptyRanges()
{
    if (GetGrid() == nullptr)
        return 0;
    const TGUserAction action(*GetGrid(), TGActionKind::Empty);
    const Watch watch(*this);
    long emptied = 0;
    {
        const TGGridUpdate update(*GetGrid());
        for (const TGCellRange& range : GetRanges())
            for (long row = range.top; row <= (std::min)(range.bottom, LastRow(false)); ++row)
                for (long col = range.left; col <= range.right; ++col)
                {
                    TGGridCell* const cell = FindCell(row, col);
                    if (cell != nullptr && !cell->GetText().IsEmpty() && TypeInto(*cell, L""))
                        ++emptied;
                    if (!watch.IsAttached())
                        return emptied;
                }
    }
    if (emptied > 0 && watch.IsAttached())
        TellDataChanged();
    return emptied;
}

} // namespace QuorUiCtr
