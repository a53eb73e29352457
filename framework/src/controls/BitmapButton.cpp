// CBitmapButton: loading and drawing of its pictures.
#include "afxext.h"

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton() {}

CBitmapButton::~CBitmapButton()
{
    DestroyWindow();
}

namespace
{

// Replaces the picture; a name of NULL leaves none, which is no failure.
bool Load(CBitmap& bitmap, LPCTSTR name)
{
    bitmap.DeleteObject();
    return name == nullptr || bitmap.LoadBitmap(name);
}

CSize SizeOf(CBitmap& bitmap)
{
    BITMAP info = {};
    bitmap.GetBitmap(&info);
    return CSize(info.bmWidth, info.bmHeight);
}

} // namespace

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled)
{
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus), MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled)
{
    if (!Load(m_normal, lpszBitmapResource))
        return FALSE;
    // All are tried: a button without one of its lesser pictures still works.
    const bool hasPressed = Load(m_pressed, lpszBitmapResourceSel);
    const bool hasFocused = Load(m_focused, lpszBitmapResourceFocus);
    const bool hasDisabled = Load(m_disabled, lpszBitmapResourceDisabled);
    return hasPressed && hasFocused && hasDisabled;
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent)
{
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    CString name;
    GetWindowText(name);
    LoadBitmaps(name + _T("U"), name + _T("D"), name + _T("F"), name + _T("X"));
    if (m_normal.GetSafeHandle() == nullptr)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent()
{
    ASSERT(m_normal.GetSafeHandle() != nullptr);
    const CSize size = SizeOf(m_normal);
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

CBitmap& CBitmapButton::BitmapFor(UINT nState)
{
    CBitmap* wanted = &m_normal;
    if ((nState & ODS_SELECTED) != 0)
        wanted = &m_pressed;
    else if ((nState & ODS_DISABLED) != 0)
        wanted = &m_disabled;
    else if ((nState & ODS_FOCUS) != 0)
        wanted = &m_focused;
    return wanted->GetSafeHandle() != nullptr ? *wanted : m_normal;
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CBitmap& bitmap = BitmapFor(lpDrawItemStruct->itemState);
    if (bitmap.GetSafeHandle() == nullptr)
        return;
    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    CDC memory;
    memory.CreateCompatibleDC(dc);
    CBitmap* const before = memory.SelectObject(&bitmap);
    const CRect rect(lpDrawItemStruct->rcItem);
    dc->BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(before);
}
