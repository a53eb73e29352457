// GridStylePanel: switches for every style flag of a grid, and the list of its keys.
#pragma once

#include "LogPane.h"

#include "grid/TGGrid.h"

#include <afxwin.h>

// A child dialog that stands at the right edge of a grid page. Each check box sets one flag of the grid at
// once.
class GridStylePanel : public CDialog
{
public:
    // Both outlive the panel.
    GridStylePanel(QuorUiCtr::TGGrid& grid, LogPane& log);

    // Creates the panel with the grid's present flags as a child of `page`, which it hides nothing of until
    // it is placed.
    bool CreateIn(CWnd& page);
    // Moves the panel to the right edge of an area of that size in pixels and returns the width that is left.
    int PlaceAtRight(int width, int height);

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // Enter and Esc leave the panel alone.
    void OnOK() override {}
    void OnCancel() override {}

private:
    QuorUiCtr::TGGrid& grid;
    LogPane& log;
};
