// A cell's text, read-only rule and rectangles; its drawing is in CellPainting.cpp.
#include "grid/TGGridCell.h"

#include "grid/model/GridExtensions.h"
#include "grid/TGGrid.h"
#include "grid/model/CellBlock.h"

#include <utility>

namespace QuorUiCtr
{

TGGridCell::TGGridCell(TGGrid& owner, TGGridRow& ownRow, TGGridCol& ownCol)
    : row(&ownRow), col(&ownCol), grid(&owner)
{
}

TGGridCell::TGGridCell(const TGGridCell& other)
    : text(other.text), style(other.style), row(other.row), col(other.col), grid(other.grid)
{
}

TGGridCell::~TGGridCell()
{
    grid->ForgetCell(this);
}

void TGGridCell::GiveBack(void* memory, unsigned place)
{
    CellBlock::Of(memory, place)->GiveBack();
}

TGGridCell& TGGridCell::operator=(const TGGridCell& other)
{
    style = other.style;
    StoreText(other.text);
    return *this;
}

void TGGridCell::StoreText(CString newText)
{
    std::swap(text, newText);
    if (grid->extensions != nullptr)
        grid->extensions->TellText(*this, newText);
}

void TGGridCell::SetText(const wchar_t* newText)
{
    if (grid->extensions == nullptr)
    {
        text = newText;
        return;
    }
    // Without memory the old one stays.
    const CString oldText = std::exchange(text, CString(newText));
    grid->extensions->TellText(*this, oldText);
}

long TGGridCell::GetRowIndex() const
{
    return row->GetIndex();
}

long TGGridCell::GetColIndex() const
{
    return col->GetIndex();
}

bool TGGridCell::IsReadOnly() const
{
    return (style & ReadOnlyFlag) != 0 || col->IsReadOnly() || row->IsReadOnly() || grid->IsReadOnly();
}

void TGGridCell::GetRect(CRect& rect) const
{
    rect.SetRect(col->GetLeft(), row->GetTop(), col->GetRight(), row->GetBottom());
}

void TGGridCell::GetTextRect(CRect& rect) const
{
    GetRect(rect);
    rect.left += 1;
    rect.top += 1;
}

void TGGridCell::Select(bool)
{
    CRect rect;
    GetRect(rect);
    grid->InvertBand(rect);
}

} // namespace QuorUiCtr
