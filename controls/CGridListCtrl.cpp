// The report list's columns, mouse, keys and requests to edit; painting is in ListPainting.cpp.
#include "controls/CGridListCtrl.h"

#include "controls/WindowLife.h"
#include "rules/ListGeometry.h"

using namespace QuorUiCtr;

namespace
{

constexpr DWORD PreparedExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP;

// Without a header, as in other views, there are no columns.
std::vector<int> ReadColumnOrder(const CWnd* header)
{
    if (header == nullptr)
        return {};
    std::vector<int> order(static_cast<size_t>(::SendMessage(header->m_hWnd, HDM_GETITEMCOUNT, 0, 0)));
    if (!order.empty())
        ::SendMessage(header->m_hWnd, HDM_GETORDERARRAY, order.size(),
                      reinterpret_cast<LPARAM>(order.data()));
    return order;
}

} // namespace

BEGIN_MESSAGE_MAP(CGridListCtrl, CListCtrl)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

CGridListCtrl::CGridListCtrl() : curColumn(-1), editFlags(0) {}

CGridListCtrl::~CGridListCtrl() {}

int CGridListCtrl::PrepareControl(WORD flags)
{
    editFlags = flags;
    ModifyStyle(LVS_TYPEMASK | LVS_EDITLABELS, LVS_REPORT);
    SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, PreparedExtendedStyle, PreparedExtendedStyle);
    return 1;
}

int CGridListCtrl::PositionControl(CWnd* ctrl, int item, int column)
{
    const HWND window = m_hWnd;
    const HWND control = ctrl->GetSafeHwnd();
    // Scrolling tells the owner, who may then destroy both.
    const auto areThere = [&] { return IsStillWindow(this, window) && ::IsWindow(control); };
    if (control == nullptr || !EnsureVisible(item, TRUE) || !areThere())
        return 0;
    if (column < 0 || column >= CountColumns() || GetColumnWidth(OrderToIndex(column)) < MinEditableWidth)
        return 0;
    const int offset = ColumnOffset(column);
    const int width = GetColumnWidth(column);
    CRect row;
    GetItemRect(item, row, LVIR_BOUNDS);
    CRect client;
    GetClientRect(client);
    int left = row.left + offset;
    if (!IsColumnInside(left, width, client.right))
    {
        Scroll(CSize(left, 0));
        left = 0;
        if (!areThere())
            return 0;
    }
    const HorizontalSpan span = EditorSpan(left, width, client.right);
    ::MoveWindow(control, span.left, row.top, span.right - span.left, row.Height(), TRUE);
    return 1;
}

void CGridListCtrl::MakeColumnVisible(int column)
{
    CRect firstRow;
    if (column < 0 || !GetItemRect(0, firstRow, LVIR_BOUNDS))
        return;
    CRect client;
    GetClientRect(client);
    const int left = firstRow.left + ColumnOffset(column);
    if (!IsColumnInside(left, GetColumnWidth(column), client.right))
        Scroll(CSize(left, 0));
}

int CGridListCtrl::IndexToOrder(int index)
{
    return PositionInOrder(ReadColumnOrder(GetDlgItem(0)), index);
}

int CGridListCtrl::OrderToIndex(int order)
{
    CWnd* header = GetDlgItem(0);
    if (header == nullptr || order < 0)
        return -1;
    return static_cast<int>(header->SendMessage(HDM_ORDERTOINDEX, static_cast<WPARAM>(order)));
}

int CGridListCtrl::CountColumns()
{
    CWnd* header = GetDlgItem(0);
    return header != nullptr ? static_cast<int>(header->SendMessage(HDM_GETITEMCOUNT)) : 0;
}

int CGridListCtrl::ColumnOffset(int column)
{
    int offset = 0;
    for (const int index : ReadColumnOrder(GetDlgItem(0)))
    {
        if (index == column)
            break;
        offset += GetColumnWidth(index);
    }
    return offset;
}

int CGridListCtrl::FocusedRow()
{
    return GetNextItem(-1, LVNI_FOCUSED);
}

// Both buttons take the focus first. The platform's list takes it amid its work, and goes on with that when
// an edit has ended whose owner has destroyed the list.
void CGridListCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    const HWND window = m_hWnd;
    LVHITTESTINFO hit = {};
    hit.pt = point;
    SubItemHitTest(&hit);
    const int oldColumn = curColumn;
    curColumn = IndexToOrder(hit.iSubItem);
    MakeColumnVisible(OrderToIndex(curColumn));
    if (!IsStillWindow(this, window))
        return;
    const bool wasFocused = (GetItemState(hit.iItem, LVIS_FOCUSED) & LVIS_FOCUSED) != 0;
    TakeFocus();
    if (!IsStillWindow(this, window))
        return;
    CListCtrl::OnLButtonDown(flags, point);
    if (!IsStillWindow(this, window) || !wasFocused || curColumn == -1 || curColumn != oldColumn)
        return;
    if (hit.iSubItem > 0 || IsOnLabel(hit))
        RequestEdit(hit.iItem, hit.iSubItem);
}

void CGridListCtrl::OnRButtonDown(UINT flags, CPoint point)
{
    const HWND window = m_hWnd;
    TakeFocus();
    if (IsStillWindow(this, window))
        CListCtrl::OnRButtonDown(flags, point);
}

// Where full rows can be selected, platforms differ in what they report besides the label of a hit on the
// label, on the icon or on the blank rest of the cell: nothing, or every part of the item. It differs with
// the place of the column, too, so that the rectangles decide.
bool CGridListCtrl::IsOnLabel(const LVHITTESTINFO& hit)
{
    constexpr int LabelPadding = 6;
    CRect label;
    CRect icon;
    if ((hit.flags & LVHT_ONITEMLABEL) == 0 || !GetItemRect(hit.iItem, label, LVIR_LABEL))
        return false;
    if (GetItemRect(hit.iItem, icon, LVIR_ICON) && icon.PtInRect(hit.pt))
        return false;
    return hit.pt.x >= label.left &&
           hit.pt.x < label.left + GetStringWidth(GetItemText(hit.iItem, 0)) + LabelPadding;
}

BOOL CGridListCtrl::PreTranslateMessage(MSG* message)
{
    if (message->message != WM_KEYDOWN || ::GetFocus() != m_hWnd)
        return CListCtrl::PreTranslateMessage(message);
    const HWND window = m_hWnd;
    switch (message->wParam)
    {
    case VK_LEFT:
        MoveCurrentColumn(-1);
        return TRUE;
    case VK_RIGHT:
        MoveCurrentColumn(1);
        return TRUE;
    case VK_F2:
        if (const int row = FocusedRow(); row != -1 && curColumn != -1)
            RequestEdit(row, OrderToIndex(curColumn));
        break;
    default:
        break;
    }
    return IsStillWindow(this, window) ? CListCtrl::PreTranslateMessage(message) : TRUE;
}

void CGridListCtrl::MoveCurrentColumn(int step)
{
    const HWND window = m_hWnd;
    const int lastColumn = CountColumns() - 1;
    const int wanted = curColumn + step;
    if (wanted < -1)
        return;
    if (step > 0 && wanted > lastColumn)
    {
        curColumn = lastColumn;
        return;
    }
    curColumn = wanted;
    MakeColumnVisible(OrderToIndex(curColumn));
    if (!IsStillWindow(this, window))
        return;
    CRect bounds;
    if (const int row = FocusedRow(); row != -1 && GetItemRect(row, bounds, LVIR_BOUNDS))
        InvalidateRect(bounds, TRUE);
}

void CGridListCtrl::OnHScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    const HWND window = m_hWnd;
    TakeFocus();
    if (IsStillWindow(this, window))
        CListCtrl::OnHScroll(code, position, scrollBar);
}

void CGridListCtrl::OnVScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    const HWND window = m_hWnd;
    TakeFocus();
    if (IsStillWindow(this, window))
        CListCtrl::OnVScroll(code, position, scrollBar);
}

void CGridListCtrl::TakeFocus()
{
    if (::GetFocus() != m_hWnd)
        SetFocus();
}

void CGridListCtrl::RequestEdit(int row, int column)
{
    const HWND window = m_hWnd;
    CString text = GetItemText(row, column);
    CWnd* parent = IsStillWindow(this, window) ? GetParent() : nullptr;
    if (parent == nullptr)
        return;
    NMLVDISPINFO record = {};
    record.hdr.hwndFrom = m_hWnd;
    record.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    record.hdr.code = LVN_BEGINLABELEDIT;
    record.item.mask = LVIF_TEXT;
    record.item.iItem = row;
    record.item.iSubItem = column;
    record.item.cchTextMax = text.GetLength();
    record.item.pszText = text.GetBuffer();
    parent->SendMessage(WM_NOTIFY, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
}
