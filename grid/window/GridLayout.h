// TGGrid::Layout: the steps of creating, laying out and scrolling the grid's window.
#pragma once

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

struct ScrollRequest;

// Works on the grid's existing window, fonts and header windows.
class TGGrid::Layout
{
public:
    explicit Layout(TGGrid& servedGrid) : grid(servedGrid) {}

    // Creation (TGGridWindow.cpp).
    void CreateFont();
    void AdoptFont(HFONT source, BYTE quality);
    void CreateHeaders();

    // Layout (TGGridLayout.cpp).
    void PerformLayout(int redraw);
    void MapDC();
    void RepaintBar(int bar);

    // Scrolling (TGGridScroll.cpp).
    void ScrollContents(int dx, int dy);
    ScrollRequest ReadScrollRequest(int bar, UINT trackMask);

private:
    void PlaceHeaders();
    void LayOutScrollBars();
    void LayOutBar(int bar, bool needed, int position, int maximum);
    bool IsBarShown(int bar) const;
    void RenewNewRow();

    TGGrid& grid;
};

} // namespace QuorUiCtr
