// What tests of extras share: a grid in a window whose cells are looked at by their pixels.
#pragma once

#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

#include <algorithm>
#include <vector>

namespace quor::test
{

// Where a picture differs from the colour of its first pixel: an empty rectangle for a uniform one.
inline CRect InkIn(const Snapshot& picture, const CRect& area)
{
    const COLORREF ground = picture.At(area.left, area.top);
    CRect ink(area.right, area.bottom, area.left, area.top);
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            if (picture.At(x, y) != ground)
                ink = CRect((std::min)(ink.left, long(x)), (std::min)(ink.top, long(y)),
                            (std::max)(ink.right, long(x) + 1), (std::max)(ink.bottom, long(y) + 1));
    return ink.left < ink.right ? ink : CRect(0, 0, 0, 0);
}

// A grid with an extension of one kind.
template <class Extension> class ExtraTest : public EditTest
{
protected:
    void Make(long rows = 4, long cols = 3)
    {
        EditTest::Make(grid, rows, cols);
        extra.AttachTo(grid);
    }
    void Focus()
    {
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
    }
    Snapshot Picture()
    {
        grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return Snapshot(grid);
    }
    CRect Ink(long row, long col) { return InkIn(Picture(), grid.InsideOf(row, col)); }
    // The caption of a column, without the frame of its box.
    CRect CaptionOf(long col)
    {
        const CRect cell = grid.InsideOf(0, col);
        return CRect(cell.left + 1, 2, cell.right - 2, grid.Area().top - 2);
    }
    CWnd& Header() { return *grid.GetDlgItem(103); }
    // How often EN_CHANGE has come since the last call.
    int Changes()
    {
        int changes = 0;
        for (const std::string& line : host.TakeLog())
            changes += line.find("code " + std::to_string(EN_CHANGE)) != std::string::npos ? 1 : 0;
        return changes;
    }

    EditGrid grid;
    Extension extra;
};

} // namespace quor::test
