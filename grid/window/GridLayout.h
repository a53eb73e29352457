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

    // Creation (WindowCreation.cpp).
    void CreateFont();
    void AdoptFont(HFONT source, BYTE quality);
    void CreateHeaders();

    // Layout (GridLayout.cpp).
    void PerformLayout(int redraw);
    void MapDC();

    // Scrolling (Scrolling.cpp).
    // What of the content is in view, in logical coordinates.
    CRect ViewRect();
    // MoveView with the layout up to date; may run hooks.
    void ScrollView(int dx, int dy);
    // The position of a bar, 0 while it is not shown; setting it leaves the contents where they are.
    int BarPosition(int bar) const;
    void SetBarPosition(int bar, int position);
    void ScrollContents(int dx, int dy);
    ScrollRequest ReadScrollRequest(int bar, UINT trackMask);

private:
    void RepaintBar(int bar);
    void PlaceHeaders();
    void LayOutScrollBars();
    void LayOutBar(int bar, bool needed, int position, int maximum);
    bool IsBarShown(int bar) const;
    void RenewNewRow();

    TGGrid& grid;
};

} // namespace QuorUiCtr
