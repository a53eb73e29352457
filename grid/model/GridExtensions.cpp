// The extensions of a grid: attaching and detaching, and the questions whose answers need some care.
#include "grid/model/GridExtensions.h"

#include "grid/edit/CellWatch.h"
#include "grid/model/GridStructure.h"
#include "grid/model/RowPlaces.h"

#include <algorithm>

namespace QuorUiCtr
{

// ---- Coming and going

bool GridExtensions::Attach(TGGrid& grid, TGGridExtension& extension)
{
    if (grid.extensions == nullptr)
        grid.extensions = new GridExtensions(grid);
    GridExtensions& list = *grid.extensions;
    const Call call(list);
    if (list.closing)
        return false;
    list.attached.push_back(&extension);
    list.reordering = list.reordering || extension.IsCalledFirst();
    extension.extendedGrid = &grid;
    extension.OnAttach();
    return true;
}

void GridExtensions::Detach(TGGridExtension& extension)
{
    TGGrid& left = *extension.extendedGrid;
    const Call call(*left.extensions);
    std::replace(left.extensions->attached.begin(), left.extensions->attached.end(), &extension,
                 static_cast<TGGridExtension*>(nullptr));
    extension.extendedGrid = nullptr;
    // May delete the extension.
    extension.OnDetach(left);
}

void GridExtensions::DetachAll(TGGrid& grid)
{
    if (grid.extensions == nullptr)
        return;
    GridExtensions& list = *grid.extensions;
    const Call call(list);
    list.closing = true;
    for (std::size_t i = 0; i < list.attached.size(); ++i)
        if (list.attached[i] != nullptr)
            Detach(*list.attached[i]);
}

void GridExtensions::CloseUp()
{
    if (calls > 0)
        return;
    std::erase(attached, nullptr);
    if (std::exchange(reordering, false))
        std::stable_partition(attached.begin(), attached.end(),
                              [](const TGGridExtension* extension) { return extension->IsCalledFirst(); });
    if (!attached.empty())
        return;
    grid.extensions = nullptr;
    delete this;
}

// ---- Messages

bool GridExtensions::PreTranslate(MSG& message)
{
    return Each([&](TGGridExtension& extension) { return extension.OnPreTranslate(message); });
}

bool GridExtensions::Answer(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    return Each([&](TGGridExtension& extension) {
        return extension.OnMessage(window, message, wParam, lParam, result) || window.m_hWnd == nullptr;
    });
}

// ---- Looks

bool GridExtensions::DrawContent(TGGridCell& cell, CDC& context, const CRect& place, const TGTextLook& look)
{
    return Each([&](TGGridExtension& extension) {
        return extension.OnDrawContent(cell, context, place, look) || grid.dc != &context;
    });
}

// What extensions do to the context stays among them.
void GridExtensions::DrawOverlay(const CRect& area)
{
    Each([&](TGGridExtension& extension) {
        CDC* const context = grid.dc;
        if (context == nullptr)
            return true;
        const int saved = context->SaveDC();
        context->IntersectClipRect(&area);
        extension.OnDrawOverlay(*context, area);
        if (grid.dc != context)
            return true;
        context->RestoreDC(saved);
        return false;
    });
}

// ---- Edits

bool GridExtensions::AskEdit(TGGridCell& cell, TGEditWay way)
{
    const CellWatch watch(grid, &cell);
    return Each(
        [&](TGGridExtension& extension) { return extension.OnEdit(cell, way) || watch.Cell() == nullptr; });
}

bool GridExtensions::FindCurrentCell(long& row, long& col)
{
    return Each([&](const TGGridExtension& extension) { return extension.OnCurrentCell(row, col); });
}

bool GridExtensions::FindSelectedCells(std::vector<TGCellRange>& ranges)
{
    return Each([&](const TGGridExtension& extension) { return extension.OnSelectedCells(ranges); });
}

bool GridExtensions::SelectCells(const TGCellRange& range)
{
    return Each([&](TGGridExtension& extension) { return extension.OnSelectCells(range); });
}

bool GridExtensions::RestoreCells(std::span<const TGCellRange> ranges, long row, long col)
{
    return Each([&](TGGridExtension& extension) { return extension.OnRestoreCells(ranges, row, col); });
}

// ---- Tips and order

bool GridExtensions::AskTip(TGGridPlace place, long row, long col, CString& text)
{
    return Each([&](TGGridExtension& extension) { return extension.OnTip(place, row, col, text); });
}

std::optional<std::vector<long>> GridExtensions::AskOrder(TGGridTreeRow* parent,
                                                          std::vector<TGGridRow*>& rows, bool ascending)
{
    std::vector<TGGridRow*> wanted = rows;
    if (!Each([&](TGGridExtension& extension) { return extension.OnSort(parent, wanted, ascending); }))
        return std::nullopt;
    std::optional<std::vector<long>> order = RowPlaces(rows).OrderOf(wanted);
    if (order)
        rows = std::move(wanted);
    return order;
}

// ---- Actions

void GridExtensions::BeginAction(TGActionKind kind)
{
    if (actions++ == 0)
        Tell(&TGGridExtension::OnActionBegin, kind);
}

// An action may have begun before the extensions came that there are now.
void GridExtensions::EndAction(TGActionKind kind)
{
    if (actions > 0 && --actions == 0)
        Tell(&TGGridExtension::OnActionEnd, kind);
}

// ---- Changes

bool GridExtensions::IsInGrid(TGGridRow& row) const
{
    return TGGrid::Structure(grid).StandsInGrid(row);
}

void GridExtensions::TellText(TGGridCell& cell, const CString& oldText)
{
    if (&cell.GetRow() != standIn && IsInGrid(cell.GetRow()))
        Tell(&TGGridExtension::OnTextChanged, cell, oldText);
}

void GridExtensions::TellRemoved(TGGridTreeRow* parent, long position, std::vector<TGGridRow*> rows,
                                 bool buffered)
{
    const Call call(*this);
    const auto found =
        standIn != nullptr && !buffered ? std::find(rows.begin(), rows.end(), standIn) : rows.end();
    if (found != rows.end())
    {
        // From the last to the first, so that the positions are those of the moment.
        const long place = static_cast<long>(found - rows.begin());
        TellRemoved(parent, position + place + 1, std::vector<TGGridRow*>(found + 1, rows.end()), false);
        TGGridRow* const gone = std::exchange(standIn, nullptr);
        TellRemoved(parent, position + place, {replaced}, true);
        delete gone;
        rows.erase(found, rows.end());
    }
    if (rows.empty())
        return;
    TGRemovedRows removed(parent, position, std::move(rows), buffered);
    Tell(&TGGridExtension::OnRowsRemoved, removed);
    std::vector<TGGridRow*> taken;
    for (std::size_t i = 0; i < removed.owned.size(); ++i)
        if (removed.owned[i] == nullptr)
            taken.push_back(removed.rows[i]);
    if (!taken.empty())
        grid.ForgetTaken(taken);
}

void GridExtensions::TellBufferDropped(std::vector<TGGridRow*> rows)
{
    std::erase(rows, nullptr);
    TGRemovedRows dropped(nullptr, 0, std::move(rows), false);
    Tell(&TGGridExtension::OnBufferDropped, dropped);
}

TGRemovedRows::TGRemovedRows(TGGridTreeRow* parentRow, long firstPosition, std::vector<TGGridRow*> removed,
                             bool inBuffer)
    : parent(parentRow), position(firstPosition), rows(std::move(removed)), buffered(inBuffer)
{
    if (!buffered)
        for (TGGridRow* row : rows)
            owned.emplace_back(row);
}

TGRemovedRows::~TGRemovedRows() = default;

std::unique_ptr<TGGridRow> TGRemovedRows::Take(std::size_t i)
{
    return i < owned.size() ? std::move(owned[i]) : nullptr;
}

} // namespace QuorUiCtr
