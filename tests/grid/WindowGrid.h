// A grid in a host window for tests of what is laid out, painted and hit.
#pragma once

#include "grid/TGGrid.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Pump.h"
#include "tests/support/Snapshot.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quor::test
{

inline const COLORREF lineColour = RGB(168, 168, 168);
inline const COLORREF white = RGB(255, 255, 255);
inline const COLORREF black = RGB(0, 0, 0);

// Opens the grid's protected operations and writes down the painting hooks: "row 3", "cell 3,1", "colours
// 3,1".
class WindowGrid : public QuorUiCtr::TGGrid
{
public:
    explicit WindowGrid(bool tree = false, long columnWidth = 100) : TGGrid(tree, columnWidth) {}

    using TGGrid::ClearDC;
    using TGGrid::GetClientRect;
    using TGGrid::GetDC;
    using TGGrid::PrepareDC;
    using TGGrid::PtToCell;
    using TGGrid::ShowRect;

    CRect Area();
    CPoint UpCorner();
    // Where a logical point stands in the client area.
    CPoint ToClient(long logicalX, long logicalY);
    // The inside of a cell, without its grid lines, in client coordinates.
    CRect InsideOf(long row, long col);
    // "H" and "V" for the bars that the window shows, with maximum and position, such as "H 120@20 V 340@0".
    std::string Bars();
    int VScroll() { return GetScrollPos(SB_VERT); }
    int HScroll() { return GetScrollPos(SB_HORZ); }

    std::vector<std::string> TakeLog();

    bool recording = false;

protected:
    void OnBeforeRefresh(QuorUiCtr::TGGridCell& cell) override;
    bool OnRefresh(QuorUiCtr::TGGridCell& cell) override;
    bool OnRefresh(QuorUiCtr::TGGridRow& row) override;

    std::vector<std::string> log;

private:
    void Write(const char* what, const QuorUiCtr::TGGridCell& cell);
};

// A host window and the grid that the test makes in it. With the font of Create, rows are 20 pixels high.
class GridWindowTest : public testing::Test
{
protected:
    static constexpr long rowHeight = 20;

    // Creates the grid with a client area of that size at (10, 10) in the host.
    void Create(WindowGrid& grid, int width = 400, int height = 300, DWORD style = WS_CHILD | WS_VISIBLE);
    // Appends columns of the given width and rows whose cells read "row,col".
    void Fill(WindowGrid& grid, long rows, long cols, long width = 100);

    HostWindow host;
};

std::string Text(const CRect& rect);
std::string Text(const CPoint& point);
// The place of a child in its parent's client coordinates.
CRect PlaceOf(const CWnd& child);

} // namespace quor::test
