// The edit control over the value of a property.
#include "propertygrid/PropertyInPlaceEdit.h"

BEGIN_MESSAGE_MAP(PropertyInPlaceEdit, CEdit)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(WM_PASTE, &PropertyInPlaceEdit::OnPaste)
    ON_MESSAGE(WM_CUT, &PropertyInPlaceEdit::OnCut)
    ON_MESSAGE(WM_CLEAR, &PropertyInPlaceEdit::OnClear)
    ON_MESSAGE(WM_SETTEXT, &PropertyInPlaceEdit::OnSetText)
END_MESSAGE_MAP()

PropertyInPlaceEdit::PropertyInPlaceEdit(const quorfx::EditMask& mask) : m_mask(mask) {}

CMFCPropertyGridCtrl& PropertyInPlaceEdit::Grid() const
{
    return *static_cast<CMFCPropertyGridCtrl*>(GetParent());
}

void PropertyInPlaceEdit::OnKillFocus(CWnd* pNewWnd)
{
    CEdit::OnKillFocus(pNewWnd);
    // Closes the editor, which deletes this object.
    Grid().EditorLostFocus(pNewWnd->GetSafeHwnd());
}

void PropertyInPlaceEdit::OpenedByClick()
{
    m_isAfterClick = true;
    m_clickTime = ::GetMessageTime();
}

void PropertyInPlaceEdit::OnLButtonDown(UINT nFlags, CPoint point)
{
    const DWORD passed = static_cast<DWORD>(::GetMessageTime()) - static_cast<DWORD>(m_clickTime);
    const bool isSecond = m_isAfterClick && passed <= ::GetDoubleClickTime();
    m_isAfterClick = false;
    CEdit::OnLButtonDown(nFlags, point);
    if (isSecond && (GetStyle() & ES_READONLY) != 0)
        OnLButtonDblClk(nFlags, point);
}

void PropertyInPlaceEdit::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if ((GetStyle() & ES_READONLY) == 0)
    {
        CEdit::OnLButtonDblClk(nFlags, point);
        return;
    }
    CMFCPropertyGridProperty* const selected = Grid().GetCurSel();
    MapWindowPoints(&Grid(), &point, 1);
    if (selected != nullptr)
        selected->OnDblClk(point);
}

void PropertyInPlaceEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const wchar_t character = static_cast<wchar_t>(nChar);
    const bool isReadOnly = (GetStyle() & ES_READONLY) != 0;
    if (isReadOnly && nChar > VK_SPACE)
    {
        Grid().PostMessage(WM_CHAR, nChar, 1);
        return;
    }
    const bool isPrintable = nChar >= VK_SPACE && nChar != 0x7F;
    if (isPrintable && m_mask.HasMask())
        TypeMasked(character);
    else if (nChar == VK_BACK && m_mask.HasMask())
        EraseSelection();
    else if (!isPrintable || m_mask.IsValid(character))
        CEdit::OnChar(nChar, nRepCnt, nFlags);
    else
        ::MessageBeep(MB_OK);
}

void PropertyInPlaceEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar != VK_DELETE || !m_mask.HasMask())
    {
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    int first = 0;
    int last = 0;
    GetSel(first, last);
    EraseMasked(first, (std::max)(last, first + 1));
}

void PropertyInPlaceEdit::TypeMasked(wchar_t character)
{
    int first = 0;
    int last = 0;
    GetSel(first, last);
    std::wstring text = Text();
    m_mask.Erase(text, first, last);
    int caret = first;
    if (m_mask.Type(text, caret, character))
        ShowMasked(text, caret);
    else
        ::MessageBeep(MB_OK);
}

// Backspace: takes the selection away, or the free position before the caret.
void PropertyInPlaceEdit::EraseSelection()
{
    int first = 0;
    int last = 0;
    GetSel(first, last);
    if (first != last)
    {
        EraseMasked(first, last);
        return;
    }
    const int before = m_mask.FreeBefore(first);
    if (before >= 0)
        EraseMasked(before, before + 1);
}

void PropertyInPlaceEdit::EraseMasked(int first, int last)
{
    std::wstring text = Text();
    m_mask.Erase(text, first, last);
    ShowMasked(text, first);
}

std::wstring PropertyInPlaceEdit::Text() const
{
    CString text;
    GetWindowText(text);
    return text.GetString();
}

void PropertyInPlaceEdit::ShowMasked(const std::wstring& text, int caret)
{
    SetWindowText(text.c_str());
    SetSel(caret, caret);
}

CString PropertyInPlaceEdit::ClipboardText()
{
    CString text;
    if (!OpenClipboard())
        return text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT))
    {
        if (const void* const characters = ::GlobalLock(data))
            text = static_cast<LPCWSTR>(characters);
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

// The pasted characters go the way of typed ones; those that do not fit are left out.
LRESULT PropertyInPlaceEdit::OnPaste(WPARAM, LPARAM)
{
    if ((GetStyle() & ES_READONLY) != 0)
        return 0;
    const CString pasted = ClipboardText();
    if (!m_mask.HasMask())
    {
        CString allowed;
        for (int i = 0; i < pasted.GetLength(); ++i)
            if (m_mask.IsValid(pasted[i]))
                allowed += pasted[i];
        if (!allowed.IsEmpty())
            ReplaceSel(allowed, TRUE);
        return 0;
    }
    int first = 0;
    int last = 0;
    GetSel(first, last);
    std::wstring text = Text();
    m_mask.Erase(text, first, last);
    for (int i = 0; i < pasted.GetLength(); ++i)
        m_mask.Type(text, first, pasted[i]);
    ShowMasked(text, first);
    return 0;
}

LRESULT PropertyInPlaceEdit::OnCut(WPARAM, LPARAM)
{
    if (!m_mask.HasMask())
        return Default();
    Copy();
    return OnClear(0, 0);
}

LRESULT PropertyInPlaceEdit::OnClear(WPARAM, LPARAM)
{
    if (!m_mask.HasMask())
        return Default();
    int first = 0;
    int last = 0;
    GetSel(first, last);
    EraseMasked(first, last);
    return 0;
}

LRESULT PropertyInPlaceEdit::OnSetText(WPARAM wParam, LPARAM lParam)
{
    if (!m_mask.HasMask())
        return Default();
    // The text may be null.
    const CString text(reinterpret_cast<LPCWSTR>(lParam));
    const std::wstring complete = m_mask.Complete(text.GetString());
    return DefWindowProc(WM_SETTEXT, wParam, reinterpret_cast<LPARAM>(complete.c_str()));
}
