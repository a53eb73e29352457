// The drawing of one cell: frame, background, tree decoration and text.
#include "grid/TGGridCell.h"

#include "grid/edit/CellWatch.h"
#include "grid/model/GridExtensions.h"
#include "grid/window/GridPainting.h"
#include "rules/GridGeometry.h"

namespace QuorUiCtr
{

namespace
{

void DrawLine(CDC& context, long x1, long y1, long x2, long y2)
{
    context.MoveTo(x1, y1);
    context.LineTo(x2, y2);
}

long Middle(long first, long last)
{
    return (first + last) / 2;
}

// The box in front of a parent row: a frame with a minus, or a plus when the row is folded.
void DrawFoldBox(CDC& context, const CRect& box, bool folded)
{
    context.Rectangle(&box);
    const long x = Middle(box.left, box.right);
    const long y = Middle(box.top, box.bottom);
    DrawLine(context, box.left + 2, y, box.right - 2, y);
    if (folded)
        DrawLine(context, x, box.top + 2, x, box.bottom - 2);
}

} // namespace

void TGGridCell::Refresh()
{
    if (grid == nullptr || grid->GetSafeHwnd() == nullptr)
        return;
    TGGrid& owner = *grid;
    if (owner.IsUpdating())
    {
        owner.Invalidate(1);
        return;
    }
    // Hooks may delete the cell, and ask for a layout, which makes a new context.
    const CellWatch self(owner, this);
    if (!owner.OnRefresh(*this) || owner.GetDC() == nullptr || self.Cell() == nullptr)
        return;
    owner.OnBeforeRefresh(*this);
    if (owner.GetDC() == nullptr || self.Cell() == nullptr)
        return;
    CRect cell;
    GetRect(cell);
    const CRect outline = CellOutlineRect(cell).As<CRect>();
    CDC& context = *owner.GetDC();
    if (IsPainted(context, outline))
        owner.extensions != nullptr ? DrawExtended(context) : DrawCellText(context, DrawBox(context, cell));
    TGGrid::Painting(owner).InvertSelectionIn(outline);
}

// Most cells of a view that scrolls need not be drawn, and the context takes its time to say so.
bool TGGridCell::IsPainted(CDC& context, const CRect& outline) const
{
    CRect part;
    return part.IntersectRect(&outline, &grid->visiblePart) && context.RectVisible(&outline);
}

// Extensions may close the window, which ends the drawing. What they choose counts for this cell alone.
void TGGridCell::DrawExtended(CDC& context)
{
    TGGrid& owner = *grid;
    TGTextLook look{text, context.GetTextColor(), context.GetBkColor(), TextFormat()};
    owner.extensions->Tell(GridExtensions::CellLook, *this, look);
    if (owner.GetDC() != &context)
        return;
    const COLORREF textColor = context.SetTextColor(look.textColor);
    const COLORREF backColor = context.SetBkColor(look.backColor);
    CRect cell;
    GetRect(cell);
    CRect textPlace = DrawBox(context, cell);
    textPlace.DeflateRect(&look.inset);
    const bool done =
        owner.extensions != nullptr && owner.extensions->DrawContent(*this, context, textPlace, look);
    if (owner.GetDC() != &context)
        return;
    if (!done && !look.text.IsEmpty())
    {
        CFont* const font = look.font != nullptr ? context.SelectObject(look.font) : nullptr;
        context.DrawText(look.text, &textPlace, look.format);
        if (font != nullptr)
            context.SelectObject(font);
    }
    context.SetTextColor(textColor);
    context.SetBkColor(backColor);
}

CRect TGGridCell::DrawBox(CDC& context, const CRect& cell) const
{
    const CRect outline = CellOutlineRect(cell).As<CRect>();
    context.Rectangle(&outline);
    const CRect inside = CellInsideRect(cell).As<CRect>();
    context.FillSolidRect(&inside, context.GetBkColor());
    CRect textRect = CellTextRect(cell, grid->GetRowSpace()).As<CRect>();
    if (col->GetIndex() == 0 && row->IsTreeRow())
        textRect.left += DrawTreeDecoration(context, cell) - inside.left;
    return textRect;
}

UINT TGGridCell::TextFormat() const
{
    const UINT alignment = col->IsCenterAlign() ? DT_CENTER : DT_LEFT;
    return DT_SINGLELINE | DT_EDITCONTROL | alignment;
}

void TGGridCell::DrawCellText(CDC& context, CRect textRect) const
{
    if (text.IsEmpty())
        return;
    context.DrawText(text, &textRect, TextFormat());
}

// Beside the tree, as DrawTreeDecoration() leaves it.
CRect TGGridCell::TextPlace() const
{
    CRect cell;
    GetRect(cell);
    CRect textRect = CellTextRect(cell, grid->GetRowSpace()).As<CRect>();
    if (col->GetIndex() != 0 || !row->IsTreeRow())
        return textRect;
    TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(*row);
    CRect box;
    if (treeRow.IsParentRow())
    {
        treeRow.GetTreeQuad(box);
        textRect.left += box.right - CellInsideRect(cell).left;
    }
    else if (treeRow.IsChildRow())
    {
        treeRow.GetParent().GetTreeQuad(box);
        textRect.left += 2 * box.right - box.left - CellInsideRect(cell).left;
    }
    return textRect;
}

long TGGridCell::DrawTreeDecoration(CDC& context, const CRect& cell) const
{
    TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(*row);
    const bool lines = grid->IsNeedTreeLine();
    long textLeft = CellInsideRect(cell).left;
    if (treeRow.IsParentRow())
    {
        CRect box;
        treeRow.GetTreeQuad(box);
        textLeft = box.right;
        DrawFoldBox(context, box, treeRow.IsFold());
        if (lines && !treeRow.IsFold())
            DrawLine(context, Middle(box.left, box.right), box.bottom, Middle(box.left, box.right),
                     cell.bottom);
    }
    if (treeRow.IsChildRow())
    {
        CRect parentBox;
        treeRow.GetParent().GetTreeQuad(parentBox);
        if (!treeRow.IsParentRow())
            textLeft = 2 * parentBox.right - parentBox.left;
        if (lines)
            DrawChildLines(context, cell, parentBox);
    }
    return textLeft;
}

void TGGridCell::DrawChildLines(CDC& context, const CRect& cell, const CRect& parentBox) const
{
    TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(*row);
    const long x = Middle(parentBox.left, parentBox.right);
    const long y = Middle(cell.top, cell.bottom);
    const long end = treeRow.IsParentRow() ? parentBox.right : parentBox.right + parentBox.Width() / 2;
    DrawLine(context, x, cell.top, x, y);
    DrawLine(context, x, y, end, y);
    if (!treeRow.IsLastChild())
        DrawLine(context, x, y, x, cell.bottom);
    for (TGGridTreeRow* ancestor = treeRow.Parent(); ancestor->IsChildRow(); ancestor = ancestor->Parent())
    {
        if (ancestor->IsLastChild())
            continue;
        CRect box;
        ancestor->GetParent().GetTreeQuad(box);
        DrawLine(context, Middle(box.left, box.right), cell.top, Middle(box.left, box.right), cell.bottom);
    }
}

} // namespace QuorUiCtr
