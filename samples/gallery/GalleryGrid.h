// GalleryGrid: the grid of the gallery's pages, which edits real data and logs what its hooks are told.
#pragma once

#include "grid/TGGrid.h"

class LogPane;

// Writes one line per hook call with its arguments; rows and columns are named as the interface names them,
// from 0. The hooks that draw are counted and summed up in one line per painting, and only when asked for.
class GalleryGrid : public QuorUiCtr::TGGrid
{
public:
    // `log` outlives the grid.
    GalleryGrid(bool tree, LogPane& log);

    void LogPainting(bool on) { logPainting = on; }

protected:
    using TGCellCtrl = QuorUiCtr::TGCellCtrl;
    using TGGridCell = QuorUiCtr::TGGridCell;
    using TGGridCol = QuorUiCtr::TGGridCol;
    using TGGridRow = QuorUiCtr::TGGridRow;
    using TGGridTreeRow = QuorUiCtr::TGGridTreeRow;

    // Mouse.
    void OnDblClick(TGGridRow& row) override;
    void OnRClickCell(TGGridCell& cell, CPoint point) override;
    void OnRClickRow(TGGridRow& row, CPoint point) override;
    void OnRClickCol(TGGridCol& col, CPoint point) override;
    void OnRClickQuad(CPoint point) override;

    // Editing.
    bool OnBeforeEdit(TGGridCell& cell, bool& commitNewRow) override;
    TGCellCtrl* OnGetCellEdit(TGGridCell& cell) override;
    // Offers the texts that the column holds.
    void OnCellComboString(TGGridCell& cell, CComboBox& combo) override;
    // Edits the text in a dialog.
    bool OnCellButtonDown(TGGridCell& cell, CString& text) override;
    void OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin) override;
    // Refuses a number outside the range of its column.
    bool OnModified(TGGridCell& cell, CString& text) override;
    void OnDataChanged() override;
    void OnCurChanged() override;
    void OnCmbSelchange(TGGridCell& cell, CComboBox* combo) override;
    void OnCmbEditchange(TGGridCell& cell, CComboBox* combo) override;

    // Painting.
    void OnBeforeRefresh(TGGridCell& cell) override;
    bool OnRefresh(TGGridCell& cell) override;
    bool OnRefresh(TGGridRow& row) override;

    // Columns and rows.
    bool OnBeforeInsertCol(long position, TGGridCol*& col) override;
    void OnInsertCol(TGGridCol& col) override;
    bool OnBeforeDeleteCol() override;
    void OnEndDeleteCol() override;
    bool OnBeginMoveCol() override;
    bool OnMovingCol(long position) override;
    bool OnMoveCol(long position) override;
    void OnEndMoveCol() override;
    bool OnBeforeInsertRow(long position, TGGridRow*& row) override;
    bool OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child) override;
    void OnInsertRow(TGGridRow& row) override;
    bool OnBeforeDeleteRow() override;
    void OnEndDeleteRow() override;
    bool OnBeforeClip() override;
    void OnEndClip() override;
    bool OnBeforeCopy() override;
    void OnEndCopy() override;
    bool OnBeforePaste(long position) override;
    bool OnBeforePasteChild(TGGridTreeRow& parent) override;
    void OnEndPaste() override;
    bool OnBeginMoveRow() override;
    bool OnMovingRow(long position) override;
    bool OnMoveRow(long position) override;
    void OnEndMoveRow() override;

    // Tips.
    bool OnCellTip(long row, long col, CString& text) const override;
    bool OnRowTip(long row, CString& text) const override;
    bool OnColTip(long col, CString& text) const override;
    bool OnCellButtonTip(long row, long col, CString& text) const override;
    bool OnActiveQuadTip(CString& text) const override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);

private:
    // How often each drawing hook was called.
    struct PaintCount
    {
        long rows;
        long cells;
        long colours;
    };

    // Adds a line, made like CString::Format.
    template <class... Arguments> void Note(const wchar_t* format, const Arguments&... arguments) const
    {
        CString line;
        line.Format(format, arguments...);
        AddLine(line);
    }
    void AddLine(const CString& line) const;
    // Writes the line about the drawing hooks, if there were any.
    void NotePainting() const;

    LogPane& log;
    bool logPainting = false;
    mutable PaintCount painted = {};
};
