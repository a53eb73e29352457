// CDialogEx: the background.
#include "afxdialogex.h"

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_SIZE()
END_MESSAGE_MAP()

CDialogEx::CDialogEx() : CDialogEx(static_cast<LPCTSTR>(nullptr), nullptr) {}

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd* pParent) : CDialogEx(MAKEINTRESOURCE(nIDTemplate), pParent) {}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : CDialog(lpszTemplateName, pParentWnd), m_image(nullptr), m_ownsImage(FALSE), m_location(BACKGR_TILE)
{
}

CDialogEx::~CDialogEx()
{
    DropImage();
}

void CDialogEx::Repaint(BOOL bRepaint)
{
    if (bRepaint && m_hWnd != nullptr)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint)
{
    m_colorBrush.DeleteObject();
    if (color != static_cast<COLORREF>(-1))
        m_colorBrush.CreateSolidBrush(color);
    Repaint(bRepaint);
}

void CDialogEx::DropImage()
{
    if (m_ownsImage && m_image != nullptr)
        ::DeleteObject(m_image);
    m_image = nullptr;
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy,
                                   BOOL bRepaint)
{
    if (hBitmap != m_image)
        DropImage();
    m_image = hBitmap;
    m_ownsImage = bAutoDestroy;
    m_location = location;
    Repaint(bRepaint);
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint)
{
    HBITMAP bitmap = nullptr;
    if (uiBmpResId != 0)
    {
        const LPCTSTR name = MAKEINTRESOURCE(uiBmpResId);
        bitmap = ::LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name);
        if (bitmap == nullptr)
            return FALSE;
    }
    SetBackgroundImage(bitmap, location, TRUE, bRepaint);
    return TRUE;
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC)
{
    if (m_image == nullptr && m_colorBrush.GetSafeHandle() == nullptr)
        return CDialog::OnEraseBkgnd(pDC);
    CRect client;
    GetClientRect(&client);
    if (m_colorBrush.GetSafeHandle() != nullptr)
        pDC->FillRect(client, &m_colorBrush);
    else
        CDialog::OnEraseBkgnd(pDC);
    if (m_image != nullptr)
        DrawImage(pDC, client);
    return TRUE;
}

void CDialogEx::DrawImage(CDC* pDC, const CRect& rectClient) const
{
    BITMAP info = {};
    ::GetObject(m_image, sizeof info, &info);
    const CSize size(info.bmWidth, info.bmHeight);
    if (size.cx <= 0 || size.cy <= 0)
        return;
    CDC memory;
    memory.CreateCompatibleDC(pDC);
    const HGDIOBJ before = ::SelectObject(memory, m_image);
    const bool isRight = m_location == BACKGR_TOPRIGHT || m_location == BACKGR_BOTTOMRIGHT;
    const bool isLow = m_location == BACKGR_BOTTOMLEFT || m_location == BACKGR_BOTTOMRIGHT;
    const CPoint first(isRight ? rectClient.right - size.cx : 0, isLow ? rectClient.bottom - size.cy : 0);
    const bool isTiled = m_location == BACKGR_TILE;
    const int right = isTiled ? rectClient.right : first.x + 1;
    const int bottom = isTiled ? rectClient.bottom : first.y + 1;
    for (int y = first.y; y < bottom; y += size.cy)
    {
        for (int x = first.x; x < right; x += size.cx)
            pDC->BitBlt(x, y, size.cx, size.cy, &memory, 0, 0, SRCCOPY);
    }
    ::SelectObject(memory, before);
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const bool hasBackground = m_image != nullptr || m_colorBrush.GetSafeHandle() != nullptr;
    if (!hasBackground || nCtlColor != CTLCOLOR_STATIC)
        return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    // An edit that is read-only asks as a label does; it keeps its own background.
    TCHAR className[16] = {};
    ::GetClassName(pWnd->GetSafeHwnd(), className, 16);
    if (::lstrcmpi(className, WC_EDIT) == 0)
        return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetBkMode(TRANSPARENT);
    return m_image != nullptr ? static_cast<HBRUSH>(::GetStockObject(HOLLOW_BRUSH))
                              : static_cast<HBRUSH>(m_colorBrush.GetSafeHandle());
}

// A picture that does not stand at the top left moves with the size.
void CDialogEx::OnSize(UINT nType, int cx, int cy)
{
    CDialog::OnSize(nType, cx, cy);
    if (m_image != nullptr && m_location != BACKGR_TILE && m_location != BACKGR_TOPLEFT)
        Invalidate();
}
