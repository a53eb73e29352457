// The plain text editor of a cell.
#include "grid/TGCellEdit.h"

#include "grid/edit/CellEditorLife.h"
#include "grid/edit/CellWatch.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGCellEdit, CEdit)
    ON_WM_KILLFOCUS()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

TGCellEdit::TGCellEdit(TGGridCell& editedCell) : TGCellCtrl(editedCell) {}

TGCellEdit::~TGCellEdit() = default;

void TGCellEdit::Create(CRect& rect)
{
    constexpr int TextInset = 2;
    TGGrid& grid = GetCell().GetGrid();
    const DWORD alignment = GetCell().GetCol().IsCenterAlign() ? ES_CENTER : 0;
    CEdit::Create(WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | ES_MULTILINE | ES_AUTOHSCROLL |
                      alignment,
                  CRect(0, 0, 0, 0), &grid, CellEditorId);
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(grid.GetFont()->GetSafeHandle()), TRUE);

    // Edits take margins from their font; the text would begin further right than in the cell.
    SetMargins(0, 0);

    rect.left += TextInset;
    SetWindowPos(&wndTop, rect.left, rect.top, rect.Width(), rect.Height(), SWP_SHOWWINDOW);
    GetClientRect(rect);
    rect.top += grid.GetRowSpace();
    SetRect(rect);

    SetWindowText(GetCell().GetText());
    SelectAllText();
    SetFocus();
}

bool TGCellEdit::CreateWithRoom(CRect& rect)
{
    CellWatch watch(GetCell().GetGrid(), &GetCell());
    const int cellHeight = rect.Height();
    TGCellEdit::Create(rect);
    // Taking the focus ends the edit of another grid, whose hooks may do anything to this one.
    if (m_hWnd == nullptr || watch.Cell() == nullptr)
        return false;
    if (rect.Width() > cellHeight)
    {
        rect.right -= cellHeight;
        SetRect(rect);
    }
    return true;
}

void TGCellEdit::SelectAllText()
{
    SendMessage(EM_SETSEL, 0, -1);
    SendMessage(EM_SCROLLCARET);
}

bool TGCellEdit::IsLeftEnd()
{
    int first = 0;
    int last = 0;
    GetSel(first, last);
    return last == 0;
}

bool TGCellEdit::IsRightEnd()
{
    int first = 0;
    int last = 0;
    GetSel(first, last);
    return last == LineLength(-1);
}

TGGrid* TGCellEdit::GetGrid() const
{
    return m_hWnd != nullptr ? DYNAMIC_DOWNCAST(TGGrid, GetParent()) : nullptr;
}

void TGCellEdit::PostNcDestroy()
{
    CEdit::PostNcDestroy();
    CellEditorLife::DeleteWhenIdle(this);
}

void TGCellEdit::OnSetFocus(CWnd* oldFocus)
{
    CEdit::OnSetFocus(oldFocus);
    if (TGGrid* grid = GetGrid())
        grid->ShowActive(true);
}

void TGCellEdit::OnKillFocus(CWnd* newFocus)
{
    if (newFocus != nullptr && IsMyFocus(newFocus))
        return;
    CEdit::OnKillFocus(newFocus);
    TGGrid* grid = GetGrid();
    if (grid == nullptr)
        return;
    // Ending the session runs hooks, which may destroy the grid's window: what the notification needs is
    // taken before.
    const HWND edit = m_hWnd;
    const HWND gridParent = ::GetParent(grid->m_hWnd);
    const int gridId = grid->GetDlgCtrlID();
    if (!grid->IsMyFocus(newFocus))
        grid->ShowActive(false);
    grid->EndEditCell();
    if (::IsWindow(gridParent))
        ::SendMessage(gridParent, WM_COMMAND, MAKEWPARAM(gridId, EN_KILLFOCUS),
                      reinterpret_cast<LPARAM>(edit));
}

} // namespace QuorUiCtr
