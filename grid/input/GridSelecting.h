// TGGrid::Selecting: the steps of selecting and of showing what is selected.
#pragma once

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

// A band is the inverted rectangle of a selected row or column. No step runs hooks but those of scrolling.
class TGGrid::Selecting
{
public:
    explicit Selecting(TGGrid& servedGrid) : grid(servedGrid) {}

    // Empty one selection and take its bands off the screen.
    void UnselectCols();
    void UnselectRows();
    // A row or column has been entered or taken out: inverts its band, or has it painted.
    void ChangeRowBand(long row, bool select);
    void ChangeColBand(TGGridCol& col, bool select);
    // Scroll a band into view, now or when the postponed layout is done. May run the hooks of an edit's end.
    void ShowRowBand(long row);
    void ShowColBand(const TGGridCol& col);

private:
    bool CanInvertNow() const;
    void ShowBand(const CRect& band);

    TGGrid& grid;
};

} // namespace QuorUiCtr
