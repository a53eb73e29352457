// GalleryGrid: the grid of the gallery's pages, which edits real data and logs what its hooks are told.
#pragma once

#include "HookLog.h"

#include "grid/extras/TGWheelScroll.h"
#include "samples/recording/HookRecorder.h"

// Takes the data of its editors from the cells, and what they are from the columns.
class GalleryGrid : public samples::HookRecorder<QuorUiCtr::TGGrid>
{
public:
    // `log` outlives the grid.
    GalleryGrid(bool tree, LogPane& log);

    void LogPainting(bool on) { log.LogPainting(on); }

protected:
    bool Note(const samples::HookCall& call) const override;

    // Editing.
    QuorUiCtr::TGCellCtrl* OnGetCellEdit(Cell& cell) override;
    // Offers the texts that the column holds.
    void OnCellComboString(Cell& cell, CComboBox& combo) override;
    // Edits the text in a dialog.
    bool OnCellButtonDown(Cell& cell, CString& text) override;
    void OnCellSpinInit(Cell& cell, CSpinButtonCtrl& spin) override;
    // Refuses a number outside the range of its column.
    bool OnModified(Cell& cell, CString& text) override;
    void OnCmbSelchange(Cell& cell, CComboBox* combo) override;
    void OnCmbEditchange(Cell& cell, CComboBox* combo) override;

    // Tips.
    bool OnCellTip(long row, long col, CString& text) const override;
    bool OnRowTip(long row, CString& text) const override;
    bool OnColTip(long col, CString& text) const override;
    bool OnCellButtonTip(long row, long col, CString& text) const override;
    bool OnActiveQuadTip(CString& text) const override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();

private:
    QuorUiCtr::TGWheelScroll wheel{*this};
    // Tips are asked for by constant operations.
    mutable HookLog log;
};
