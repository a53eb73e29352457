// SheetPage: the page with a grid that has the library's extras: the chemical elements, or a million rows.
#pragma once

#include "TableFile.h"
#include "TablePage.h"
#include "UndoPanel.h"

#include "grid/extras/TGBusyOverlay.h"
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGColumnWidths.h"
#include "grid/extras/TGEmptyText.h"
#include "grid/extras/TGHeaderSort.h"
#include "grid/extras/TGTextTips.h"
#include "grid/extras/TGWheelScroll.h"

class SheetPage : public TablePage
{
public:
    explicit SheetPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"sheet"; }
    UINT GetSourceId() const override;
    // The page, a range of cells, and then what was pasted and filled, with the steps to take it back.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;
    // The current cell.
    Status GetStatus() override;
    QuorUiCtr::TGUndoStack* FindUndo() override { return &undo.GetStack(); }
    QuorUiCtr::TGClipboard* FindClipboard() override { return &clipboard; }

protected:
    int WidthForGrid(int width, int height) override { return undo.PlaceAtRight(width, height); }
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnElements();
    afx_msg void OnMillionRows();
    afx_msg void OnFitColumns();

private:
    void AddKnownColumn();
    void FormatElements();
    void MakeMillionRows();
    void BeginAnew(const CString& summary);
    void ShowReport(const QuorUiCtr::TGClipboardReport& report);
    void ShowPastedCells();

    // The extras go before the grid.
    QuorUiCtr::TGGrid grid;
    QuorUiCtr::TGCellCursor cursor{grid};
    QuorUiCtr::TGClipboard clipboard{grid};
    QuorUiCtr::TGColumnFormats formats{grid};
    QuorUiCtr::TGColumnWidths widths{grid};
    QuorUiCtr::TGTextTips tips{grid};
    QuorUiCtr::TGWheelScroll wheel{grid};
    QuorUiCtr::TGHeaderSort sort{grid};
    QuorUiCtr::TGEmptyText empty{grid, nullptr};
    QuorUiCtr::TGBusyOverlay busy{grid};
    UndoPanel undo;
};
