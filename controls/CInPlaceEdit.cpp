// The editor of one cell: creation, keys, growth and the report to the owner.
#include "controls/CInPlaceEdit.h"

#include "controls/WindowLife.h"
#include "rules/ListGeometry.h"

using namespace QuorUiCtr;

namespace
{

constexpr int TextMargin = 5;

CSize MeasureLine(CDC& context, const CString& text)
{
    const CSize extent = context.GetTextExtent(text);
    return CSize(extent.cx + TextMargin, extent.cy);
}

// The text is broken within the editor and within all the room to its right; the lower result counts.
CSize MeasureLines(CDC& context, const CString& text, const CRect& place, const CRect& listClient)
{
    constexpr UINT Format = DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX;
    CRect narrow(place);
    context.DrawText(text, narrow, Format);
    CRect wide(place);
    wide.right = listClient.right;
    context.DrawText(text, wide, Format);
    const CRect& better = narrow.Height() < wide.Height() ? narrow : wide;
    return CSize(better.Width() + TextMargin, better.Height() + TextMargin);
}

} // namespace

BEGIN_MESSAGE_MAP(CInPlaceEdit, CEdit)
    ON_WM_KILLFOCUS()
    ON_WM_CHAR()
    ON_WM_CREATE()
END_MESSAGE_MAP()

CInPlaceEdit::CInPlaceEdit(int itemIndex, int subItemIndex, CString text)
    : item(itemIndex), subItem(subItemIndex), initText(text), escPressed(FALSE)
{
}

CInPlaceEdit::~CInPlaceEdit() {}

int CInPlaceEdit::OnCreate(LPCREATESTRUCT create)
{
    if (CEdit::OnCreate(create) == -1)
        return -1;
    const HWND window = m_hWnd;
    if (CWnd* list = GetParent())
        SendMessage(WM_SETFONT, static_cast<WPARAM>(list->SendMessage(WM_GETFONT)), TRUE);
    // The list hears of the text, the owner of another editor of the lost focus; either may close everything.
    SetWindowText(initText);
    if (IsStillWindow(this, window))
        SetFocus();
    if (IsStillWindow(this, window))
        CalculateSize();
    if (!IsStillWindow(this, window))
        return -1;
    SetSel(0, -1);
    return 0;
}

void CInPlaceEdit::OnChar(UINT character, UINT repeatCount, UINT flags)
{
    if (character == VK_ESCAPE || character == VK_RETURN)
    {
        if (character == VK_ESCAPE)
            escPressed = TRUE;
        if (CWnd* list = GetParent())
            list->SetFocus();
        return;
    }
    const HWND window = m_hWnd;
    CEdit::OnChar(character, repeatCount, flags);
    if (IsStillWindow(this, window))
        CalculateSize();
}

void CInPlaceEdit::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CEdit::OnKillFocus(newFocus);
    if (IsStillWindow(this, window))
        SendEndOfEdit();
}

void CInPlaceEdit::SendEndOfEdit()
{
    CWnd* list = GetParent();
    CWnd* owner = list != nullptr ? list->GetParent() : nullptr;
    if (owner == nullptr)
        return;
    CString text;
    GetWindowText(text);
    NMLVDISPINFO record = {};
    record.hdr.hwndFrom = list->m_hWnd;
    record.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    record.hdr.code = LVN_ENDLABELEDIT;
    record.item.mask = LVIF_TEXT;
    record.item.iItem = item;
    record.item.iSubItem = subItem;
    record.item.cchTextMax = escPressed ? 0 : text.GetLength();
    record.item.pszText = escPressed ? nullptr : text.GetBuffer();
    owner->SendMessage(WM_NOTIFY, static_cast<WPARAM>(list->GetDlgCtrlID()),
                       reinterpret_cast<LPARAM>(&record));
}

BOOL CInPlaceEdit::PreTranslateMessage(MSG* message)
{
    if (message->message != WM_KEYDOWN)
        return CEdit::PreTranslateMessage(message);
    const WPARAM key = message->wParam;
    const bool isOwnKey = key == VK_RETURN || key == VK_ESCAPE || key == VK_DELETE;
    if (!isOwnKey && ::GetKeyState(VK_CONTROL) == 0)
        return CEdit::PreTranslateMessage(message);
    // A multi-line edit in a dialog would answer Esc by closing its parent.
    if (key == VK_ESCAPE && IsMultiLine())
        return TRUE;
    ::TranslateMessage(message);
    ::DispatchMessage(message);
    return TRUE;
}

bool CInPlaceEdit::IsMultiLine() const
{
    return (GetStyle() & ES_MULTILINE) != 0;
}

CSize CInPlaceEdit::MeasureText(const CRect& place, const CRect& listClient)
{
    CString text;
    GetWindowText(text);
    CWindowDC context(this);
    CFont* previous = context.SelectObject(GetParent()->GetFont());
    const CSize needed =
        IsMultiLine() ? MeasureLines(context, text, place, listClient) : MeasureLine(context, text);
    context.SelectObject(previous);
    return needed;
}

void CInPlaceEdit::CalculateSize()
{
    CWnd* parent = GetParent();
    if (parent == nullptr)
        return;
    const HWND window = m_hWnd;
    CRect place;
    GetClientRect(place);
    MapWindowPoints(parent, place);
    CRect listClient;
    parent->GetClientRect(listClient);
    const GrownEditor grown = GrowEditor(place, MeasureText(place, listClient), listClient);
    if (grown.needsScrollBar)
        ShowScrollBar(SB_VERT, TRUE);
    if (!grown.needsRoom)
        return;
    MoveWindow(grown.rectangle.As<CRect>(), TRUE);
    if (grown.rectangle.right > place.right && !IsMultiLine() && IsStillWindow(this, window))
        ScrollBack();
}

void CInPlaceEdit::ScrollBack()
{
    int first = 0;
    int last = 0;
    GetSel(first, last);
    SetSel(0, 0);
    SetSel(first, last);
}
