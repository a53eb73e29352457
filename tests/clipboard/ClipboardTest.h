// A grid with a cell cursor and a clipboard, in a window.
#pragma once

#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "tests/clipboard/ClipboardContent.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

namespace quor::test
{

// The texts of all cells, "a|b / c|d".
inline std::string AllTexts(QuorUiCtr::TGGrid& grid)
{
    std::string text;
    for (long row = 0; row < grid.GetRowNum(); ++row)
        text += (row > 0 ? " / " : "") + Cells(grid, grid.GetRow(row));
    return text;
}

// "done 4 left 2: 1,0 ReadOnly 1,1 Gone": what a report says.
std::string Text(const QuorUiCtr::TGClipboardReport& report);

class ClipboardTest : public EditTest
{
protected:
    explicit ClipboardTest(bool tree = false) : grid(tree) {}

    // Cells that read "row,col", without a log.
    void Make(long rows = 3, long cols = 3)
    {
        EditTest::Make(grid, rows, cols);
        grid.recording = false;
        Attach();
    }
    void Attach()
    {
        EmptyClipboardContent();
        cursor.AttachTo(grid);
        clipboard.AttachTo(grid);
        clipboard.SetOnReport([this](const QuorUiCtr::TGClipboardReport& report) {
            ++reports;
            reportText = report.GetText();
        });
    }
    void Focus()
    {
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
    }
    void Select(long top, long left, long bottom, long right)
    {
        cursor.SelectRange({top, left, bottom, right});
    }
    // How often EN_CHANGE has come since the last call.
    int Changes()
    {
        int changes = 0;
        for (const std::string& line : host.TakeLog())
            changes += line.find("code " + std::to_string(EN_CHANGE)) != std::string::npos ? 1 : 0;
        return changes;
    }
    // "0,1-2,2": what is selected by the cursor.
    std::string Selected()
    {
        std::string text;
        for (const QuorUiCtr::TGCellRange& range : cursor.GetRanges())
            text += (text.empty() ? "" : " ") + std::to_string(range.top) + "," + std::to_string(range.left) +
                    "-" + std::to_string(range.bottom) + "," + std::to_string(range.right);
        return text;
    }

    EditGrid grid;
    QuorUiCtr::TGCellCursor cursor;
    QuorUiCtr::TGClipboard clipboard;
    int reports = 0;
    CString reportText;
};

} // namespace quor::test
