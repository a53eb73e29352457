// A grid in a host window for tests of what is laid out, painted and hit.
#pragma once

#include "samples/recording/HookRecorder.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Pump.h"
#include "tests/support/Snapshot.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace quor::test
{

inline const COLORREF lineColour = RGB(168, 168, 168);
inline const COLORREF white = RGB(255, 255, 255);
inline const COLORREF black = RGB(0, 0, 0);

// Opens the grid's protected operations and writes down its hooks, one line per call: the name, then what it
// is about by its indices, the text, of a parent its first text: "OnRefresh row 3", "OnModified 1,2 text",
// "OnBeforeInsertChild p 0", "OnCurChanged 3,-1", "OnEndPaste". An action runs after its line was written.
// A hook of a vetoed name runs no default and answers false.
class WindowGrid : public samples::HookRecorder<QuorUiCtr::TGGrid>
{
public:
    explicit WindowGrid(bool tree = false, long columnWidth = 100) : HookRecorder(tree, columnWidth) {}

    std::set<std::string, std::less<>> vetoes;
    std::map<std::string, std::function<void()>, std::less<>> actions;
    // Writes the hooks of painting.
    bool recording = false;

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
    // The log as one text, lines joined by " | ", and empties it.
    std::string TakeText();

protected:
    bool Note(const samples::HookCall& call) const override;
    // The call is written into the log.
    virtual bool Records(const samples::HookCall& call) const;

private:
    mutable std::vector<std::string> log;
};

// The line only tells of painting.
bool IsPaintLine(const std::string& line);
// The first text of a row, as bytes.
std::string FirstText(QuorUiCtr::TGGridRow& row);

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
