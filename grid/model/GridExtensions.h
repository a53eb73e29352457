// GridExtensions: the extensions of one grid, and the ways to ask and tell them.
#pragma once

#include "grid/TGGridExtension.h"

#include <optional>
#include <utility>

namespace QuorUiCtr
{

// Exists while its grid has extensions, so that a grid without any pays a null test for each seam. Who is
// called may detach itself and others, delete itself, and attach others: slots are emptied, and closed up,
// when no call is running any more. Then the list goes, too, if it is empty: after a call it is not touched.
class GridExtensions
{
public:
    // False for a grid that goes.
    static bool Attach(TGGrid& grid, TGGridExtension& extension);
    static void Detach(TGGridExtension& extension);
    // The grid goes: all are told and leave.
    static void DetachAll(TGGrid& grid);

    bool PreTranslate(MSG& message);
    // True also when the window is gone afterwards.
    bool Answer(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    bool DrawContent(TGGridCell& cell, CDC& context, const CRect& place, const TGTextLook& look);
    void DrawOverlay(const CRect& area);
    bool AskTip(TGGridPlace place, long row, long col, CString& text);
    // Whether an extension refuses an edit or has done it itself.
    bool AskEdit(TGGridCell& cell, TGEditWay way);
    bool FindCurrentCell(long& row, long& col);
    bool FindSelectedCells(std::vector<TGCellRange>& ranges);
    bool SelectCells(const TGCellRange& range);
    bool RestoreCells(std::span<const TGCellRange> ranges, long row, long col);
    // Puts rows into the order that an extension wants and returns where each has stood; nothing when none
    // wants one.
    std::optional<std::vector<long>> AskOrder(TGGridTreeRow* parent, std::vector<TGGridRow*>& rows,
                                              bool ascending);

    // From one to the other, selections are not told; the second returns whether one is to be told now.
    void BeginSorting() { ++sortings; }
    bool EndSorting()
    {
        sortings -= sortings > 0 ? 1 : 0;
        return sortings == 0 && std::exchange(selectionWaits, false);
    }
    // Whether a selection waits for the end of a sorting.
    bool HoldsSelection()
    {
        selectionWaits = selectionWaits || sortings > 0;
        return sortings > 0;
    }
    // The row that is being folded or unfolded without being told of; null for none.
    void SetUntold(const TGGridTreeRow* row) { untold = row; }
    bool IsUntold(std::span<TGGridTreeRow* const> changed) const
    {
        return untold != nullptr && changed.size() == 1 && changed.front() == untold;
    }

    // An action begins and ends; the outermost one is told.
    void BeginAction(TGActionKind kind);
    void EndAction(TGActionKind kind);

    // Whether a row or the tree that it belongs to stands in the grid.
    bool IsInGrid(TGGridRow& row) const;
    // For cells of rows in the grid.
    void TellText(TGGridCell& cell, const CString& oldText);
    // Delete what nobody takes over.
    void TellRemoved(TGGridTreeRow* parent, long position, std::vector<TGGridRow*> rows, bool buffered);
    void TellBufferDropped(std::vector<TGGridRow*> rows);
    // From now on a row of the grid stands in for another one, which is in the row buffer already: what is
    // told of it is told of that one. Null for none.
    TGGridRow* Meant(TGGridRow* row) const { return row != nullptr && row == standIn ? replaced : row; }
    void SetStandIn(TGGridRow* row, TGGridRow* standsFor)
    {
        standIn = row;
        replaced = standsFor;
    }

    // Calls a member function of every extension.
    template <class... Parameters, class... Arguments>
    void Tell(void (TGGridExtension::*notice)(Parameters...), Arguments&&... arguments)
    {
        Each([&](TGGridExtension& extension) {
            (extension.*notice)(arguments...);
            return false;
        });
    }

    // The notices, which only this class may name.
    static constexpr auto CellLook = &TGGridExtension::OnCellLook;
    static constexpr auto CaptionLook = &TGGridExtension::OnCaptionLook;
    static constexpr auto CaptionDrawing = &TGGridExtension::OnDrawCaption;
    static constexpr auto Menu = &TGGridExtension::OnMenu;
    static constexpr auto RowsInserted = &TGGridExtension::OnRowsInserted;
    static constexpr auto RowMoved = &TGGridExtension::OnRowMoved;
    static constexpr auto RowsSorted = &TGGridExtension::OnRowsSorted;
    static constexpr auto RowsFolded = &TGGridExtension::OnRowsFolded;
    static constexpr auto ColInserted = &TGGridExtension::OnColInserted;
    static constexpr auto ColRemoving = &TGGridExtension::OnColRemoving;
    static constexpr auto ColRemoved = &TGGridExtension::OnColRemoved;
    static constexpr auto ColMoved = &TGGridExtension::OnColMoved;
    static constexpr auto ColResized = &TGGridExtension::OnColResized;
    static constexpr auto Selected = &TGGridExtension::OnSelected;
    static constexpr auto LaidOut = &TGGridExtension::OnLaidOut;
    static constexpr auto Scrolled = &TGGridExtension::OnScrolled;
    static constexpr auto RowDeleted = &TGGridExtension::OnRowDeleted;
    static constexpr auto DataMoved = &TGGridExtension::OnDataMoved;

private:
    explicit GridExtensions(TGGrid& servedGrid) : grid(servedGrid) {}

    // Asks one after the other until an answer is true. Those that come meanwhile are not asked.
    template <class Ask> bool Each(Ask ask)
    {
        const Call call(*this);
        for (std::size_t i = 0, number = attached.size(); i < number; ++i)
            if (attached[i] != nullptr && ask(*attached[i]))
                return true;
        return false;
    }

    // A call under way; its end closes the empty slots.
    class Call
    {
    public:
        explicit Call(GridExtensions& called) : extensions(called) { ++extensions.calls; }
        ~Call()
        {
            --extensions.calls;
            extensions.CloseUp();
        }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

    private:
        GridExtensions& extensions;
    };
    void CloseUp();

    TGGrid& grid;
    // Null for those that have left while a call was running. Those that are called first come first, but
    // not before the calls have ended that run while they come.
    std::vector<TGGridExtension*> attached;
    int calls = 0;
    // Somebody has come who is to be called before others.
    bool reordering = false;
    int sortings = 0;
    int actions = 0;
    bool selectionWaits = false;
    const TGGridTreeRow* untold = nullptr;
    bool closing = false;
    TGGridRow* standIn = nullptr;
    TGGridRow* replaced = nullptr;
};

} // namespace QuorUiCtr
