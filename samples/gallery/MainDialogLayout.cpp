// Places of the panes of the gallery's window, and the way of the focus through them.
#include "MainDialog.h"

#include "resource.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr int Margin = 6;
constexpr int PageListWidth = 140;
constexpr int LogHeight = 130;
constexpr int CaptionHeight = 16;
const CSize SmallestWindow(400, 300);

// Moves without the old picture: where a neighbour has grown over it already, that is what would be copied.
void Place(CWnd& window, const CRect& place)
{
    window.SetWindowPos(nullptr, place.left, place.top, (std::max)(0, place.Width()),
                        (std::max)(0, place.Height()), SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    window.Invalidate();
}

} // namespace

void MainDialog::LayOut()
{
    if (statusBar.GetSafeHwnd() == nullptr || pages.empty())
        return;
    CRect contents = area.Place(*this);
    CRect bar;
    statusBar.SendMessage(WM_SIZE);
    statusBar.GetWindowRect(bar);
    int parts[] = {bar.Width() / 3, bar.Width() * 2 / 3, -1};
    statusBar.SetParts(static_cast<int>(std::size(parts)), parts);
    contents.bottom -= bar.Height();
    contents.DeflateRect(Margin, Margin);
    CRect logPlace = contents;
    logPlace.top = logPlace.bottom - LogHeight;
    CRect captionPlace = contents;
    captionPlace.bottom = logPlace.top;
    captionPlace.top = captionPlace.bottom - CaptionHeight;
    CRect listPlace = contents;
    listPlace.right = listPlace.left + PageListWidth;
    listPlace.bottom = captionPlace.top - Margin;
    CRect pagePlace = contents;
    pagePlace.left = listPlace.right + Margin;
    pagePlace.bottom = listPlace.bottom;
    Place(pageList, listPlace);
    Place(*pages[shownPage], pagePlace);
    Place(*GetDlgItem(IDC_LOG_CAPTION), captionPlace);
    Place(log, logPlace);
}

void MainDialog::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    if (type != SIZE_MINIMIZED)
        LayOut();
}

void MainDialog::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CDialog::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = CPoint(SmallestWindow.cx, SmallestWindow.cy);
}

void MainDialog::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar == nullptr && area.Scroll(*this, SB_HORZ, code))
        LayOut();
    CDialog::OnHScroll(code, position, bar);
}

void MainDialog::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar == nullptr && area.Scroll(*this, SB_VERT, code))
        LayOut();
    CDialog::OnVScroll(code, position, bar);
}

// A control that gets the focus out of sight is scrolled into it.
void MainDialog::ShowFocus()
{
    const HWND focus = ::GetFocus();
    if (focus == lastFocus)
        return;
    lastFocus = focus;
    if (focus == nullptr || !::IsChild(m_hWnd, focus))
        return;
    CRect place;
    ::GetWindowRect(focus, place);
    ScreenToClient(place);
    if (area.Show(*this, place))
        LayOut();
}

void MainDialog::FocusNextPane(bool backwards)
{
    CWnd* const panes[] = {&pageList, &pages[shownPage]->MainControl(), &log};
    constexpr size_t Count = std::size(panes);
    const CWnd* const focus = GetFocus();
    size_t current = 1;
    if (focus == &pageList)
        current = 0;
    else if (focus == &log)
        current = 2;
    panes[(current + (backwards ? Count - 1 : 1)) % Count]->SetFocus();
}
