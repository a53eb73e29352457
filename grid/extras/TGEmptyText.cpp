// The text of a grid without rows: when it shows, and where.
#include "grid/extras/TGEmptyText.h"

#include "grid/TGGrid.h"

#include <algorithm>

namespace QuorUiCtr
{

TGEmptyText::TGEmptyText() = default;

TGEmptyText::TGEmptyText(TGGrid& newGrid, const wchar_t* emptyText) : text(emptyText)
{
    AttachTo(newGrid);
}

TGEmptyText::~TGEmptyText()
{
    Detach();
}

void TGEmptyText::SetText(const wchar_t* newText)
{
    text = newText;
    RepaintIfEmpty();
}

void TGEmptyText::SetColor(COLORREF newColor)
{
    color = newColor;
    RepaintIfEmpty();
}

void TGEmptyText::OnAttach()
{
    wasEmpty = GetGrid()->IsEmpty();
    RepaintIfEmpty();
}

void TGEmptyText::OnDetach(TGGrid& oldGrid)
{
    if (oldGrid.GetSafeHwnd() != nullptr && oldGrid.IsEmpty())
        oldGrid.Invalidate(TRUE);
}

// ---- When it shows

void TGEmptyText::Repaint() const
{
    if (GetGrid() != nullptr && GetGrid()->GetSafeHwnd() != nullptr)
        GetGrid()->Invalidate(TRUE);
}

void TGEmptyText::RepaintIfEmpty() const
{
    if (GetGrid() != nullptr && GetGrid()->IsEmpty())
        Repaint();
}

void TGEmptyText::FollowRows()
{
    if (GetGrid()->IsEmpty() == wasEmpty)
        return;
    wasEmpty = !wasEmpty;
    Repaint();
}

void TGEmptyText::OnRowsInserted(TGGridTreeRow*, long, std::span<TGGridRow* const>)
{
    FollowRows();
}

void TGEmptyText::OnRowsRemoved(TGRemovedRows&)
{
    FollowRows();
}

// The middle is another one.
void TGEmptyText::OnLaidOut()
{
    RepaintIfEmpty();
}

void TGEmptyText::OnScrolled()
{
    RepaintIfEmpty();
}

// ---- Where it stands

CRect TGEmptyText::Place() const
{
    constexpr int Margin = 8;
    CRect place = GetView();
    if (HasNewRowLine())
        place.top = (std::max)(place.top, static_cast<LONG>(GetGrid()->GetRowHeight()) + 1);
    place.DeflateRect(Margin, Margin);
    return place;
}

// On a background of its own, because letters drawn over themselves get fatter.
void TGEmptyText::OnDrawOverlay(CDC& context, const CRect&)
{
    const CRect place = Place();
    if (!GetGrid()->IsEmpty() || text.IsEmpty() || place.Width() <= 0 || place.Height() <= 0)
        return;
    constexpr UINT Format = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
    CRect lines(place.left, place.top, place.right, place.top);
    context.DrawText(text, &lines, Format | DT_CALCRECT);
    const int height = (std::min)(lines.Height(), place.Height());
    const int top = place.top + (place.Height() - height) / 2;
    const CRect drawn(place.left, top, place.right, top + height);
    context.FillRect(&drawn, &GetGrid()->GetBrush());
    context.SetTextColor(color);
    context.SetBkMode(TRANSPARENT);
    CRect target = drawn;
    context.DrawText(text, &target, Format);
}

} // namespace QuorUiCtr
