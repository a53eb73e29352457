// TGColumnWidths: columns as wide as what stands in them, and edges that are easy to catch.
#pragma once

#include "grid/TGGridExtension.h"

#include <memory>

namespace QuorUiCtr
{

class TextRuler;

// An extra for the widths of columns. While it is attached
//
// - an edge in the column header can be caught up to 5 pixels beside it, on both sides, and follows the mouse
//   from where it was caught;
// - a double click on an edge fits the column on its left to its texts;
// - Esc cancels a drag in the headers: the width stays what it was.
//
//     QuorUiCtr::TGColumnWidths widths(grid);
//     widths.FitCols(QuorUiCtr::TGColumnWidths::Cells::All);
//
// The user can do none of it in a grid with TGGridStyle::SetColFixWidth; programs can. It is called before
// extensions that came before it, so that an edge is an edge for all of them.
class QUOR_EXT_CLASS TGColumnWidths : public TGGridExtension
{
public:
    // What counts for a width, beside the caption.
    enum class Cells
    {
        // The rows in view, each of which is measured.
        Visible,
        // All rows that are shown, also outside the view. All texts are looked at, and those are measured
        // that can be the widest: of each length the four that seem so. A cell that is shown in a larger font
        // than others, or as another text than others of its length, may be wider than what was found.
        All
    };

    TGColumnWidths();
    // Attaches.
    explicit TGColumnWidths(TGGrid& newGrid);
    ~TGColumnWidths() override;

    // What a double click fits to. Default: Visible.
    void SetDoubleClickCells(Cells what) { doubleClickCells = what; }
    Cells GetDoubleClickCells() const { return doubleClickCells; }

    // The width at which nothing in a column is cut, and a little is free, in pixels; at least the row
    // height. -1 for a column that there is not.
    long GetFitWidth(long col, Cells what = Cells::Visible) const;
    // Gives a column this width; see TGGridCol::SetWidth. False, changing nothing, for a column that there is
    // not.
    bool FitCol(long col, Cells what = Cells::Visible);
    // The same for all columns, with one layout.
    void FitCols(Cells what = Cells::Visible);

protected:
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    bool IsCalledFirst() const override;

private:
    // How far beside an edge it can be caught.
    static constexpr long Reach = 5;

    // Measuring.
    long WidthOfText(const TGTextLook& look, const CRect& place, const TGGridCol& col) const;
    long WidthOfCell(long row, long col) const;
    long WidthOfCaption(TGGridCol& col) const;
    long WidestVisible(long col) const;
    long WidestOfAll(long col) const;

    // Mouse.
    long LogicalX(CWnd& header, CPoint point) const;
    long EdgeUnder(CWnd& header, CPoint point) const;
    long RightOf(long col) const;
    bool Catch(CWnd& header, WPARAM keys, CPoint point, LRESULT& result);
    bool PassOn(CWnd& header, UINT message, WPARAM keys, CPoint point, LRESULT& result);
    bool ShowEdgeCursor(CWnd& header, LRESULT& result) const;
    bool PressTwice(CWnd& header, CPoint point);
    bool CancelDrag();

    std::unique_ptr<TextRuler> ruler;
    Cells doubleClickCells = Cells::Visible;
    // How far right of the edge it was caught, while it is dragged.
    long caughtAt = 0;
    // The message that comes next is the one that this object sends to the header.
    bool passing = false;
};

} // namespace QuorUiCtr
