// TGClipboard: copy, cut, paste and fill of cells, in exchange with spreadsheets and other programs.
#pragma once

#include "grid/extras/TGClipboardReport.h"
#include "grid/extras/TGKeyDescription.h"
#include "grid/TGGridExtension.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace QuorUiCtr
{

class CellTable;
class ClipboardWindow;
struct CellArea;
struct CellPart;
struct DecimalNumber;
class TextSeries;

// An extra that copies the selected cells of a grid to the clipboard and pastes what it finds there. What is
// selected are the rows or columns that are selected in the grid, else the ranges of an extension that has
// some, such as TGCellCursor.
//
//     QuorUiCtr::TGCellCursor cursor(grid);
//     QuorUiCtr::TGClipboard clipboard(grid);
//     clipboard.SetOnReport([&](const QuorUiCtr::TGClipboardReport& report) {
//         if (!report.IsComplete())
//             AfxMessageBox(report.GetText());
//     });
//
// Copies are offered as Unicode text with tabs, as "Csv", as "HTML Format" and in a format of the library's
// own, which keeps captions and the structure of a tree. All of them hold what the cells had when they were
// copied, whatever becomes of the grid; but texts that a program writes through the reference of
// TGGridCell::GetText() are not noticed, and may be found in copies of more than 20,000 cells.
//
// What is pasted, cut, filled or emptied goes into each cell as if it were typed: read-only cells are left as
// they are, the extensions' OnEdit, OnBeforeEdit and OnModified are asked, and OnDataChanged is called once,
// at the end. Every command answers with a report, and gives it to OnReport. Hooks may do anything: cells,
// rows and columns that go meanwhile are left out and counted. Commands are refused while another one of the
// same extension runs.
//
// The row buffer of the grid is another thing, and stays as it is; but Ctrl+C, Ctrl+X and Ctrl+V are this
// extension's while it is attached.
class QUOR_EXT_CLASS TGClipboard : public TGGridExtension
{
public:
    // What is done with a table that is pasted.
    enum class PasteWay
    {
        // Rows of a tree that were copied as a whole, in a grid of tree rows whose number is not fixed, come
        // in as rows; all else as cells.
        Auto,
        // Texts go into the cells from the current one on, or fill the selected ranges.
        Cells,
        // New rows in front of the current row, beside it in the tree, or at the end; with their offspring.
        Rows,
        // New rows behind the last child of the current row.
        ChildRows
    };
    // Where a series goes from its first cells.
    enum class Direction
    {
        Down,
        Right
    };

    TGClipboard();
    // Attaches.
    explicit TGClipboard(TGGrid& newGrid);
    // Renders what was copied last and is still offered.
    ~TGClipboard() override;

    // ---- Options

    // Text, CSV and HTML begin with a line of the captions. Default: false.
    void SetCaptions(bool on) { captions = on; }
    bool HasCaptions() const { return captions; }
    // What is pasted beyond the last row appends rows, unless the grid's number of rows is fixed or it is
    // read-only. Default: true. OnBeforeInsertRow is asked for each.
    void SetAddingRows(bool on) { addingRows = on; }
    bool IsAddingRows() const { return addingRows; }
    // The keys of GetKeys(). Default: true.
    void SetKeys(bool on) { keys = on; }
    bool HasKeys() const { return keys; }
    // The most cells that are copied, pasted or filled at once; more are refused as a whole. Default:
    // 5,000,000. Less than 1 counts as 1.
    void SetMaxCells(long number) { maxCells = number > 1 ? number : 1; }
    long GetMaxCells() const { return maxCells; }
    // For how many milliseconds a clipboard that another program has open is tried. Default: 1000.
    void SetPatience(DWORD milliseconds) { patience = milliseconds; }
    DWORD GetPatience() const { return patience; }
    // Gets the report of each command when that has ended; empty for none. The function may do what a host
    // may do.
    void SetOnReport(std::function<void(const TGClipboardReport&)> newOnReport);

    // ---- Commands
    // Work with and without a window. All but copying commit an open edit first.

    // Copies the selected cells. Several ranges go together when they have the same columns or the same rows,
    // and ranges of the same size, which then stand below each other. Selected rows, and rows copied by
    // CopyAll, take the offspring of folded tree rows along.
    TGClipboardReport Copy();
    // All cells.
    TGClipboardReport CopyAll();
    // Copies, and then empties the cells; rows that are selected as a whole are deleted, as
    // TGGrid::DoDelete() does, but for those that may not be deleted, unless the number of rows is fixed.
    // Nothing is changed when the clipboard cannot be had.
    TGClipboardReport Cut();
    // Pastes what is on the clipboard: the library's format, else Unicode text, CSV or HTML, whichever there
    // is first. A selected range is filled when it is a multiple of the table. A line that is shorter than
    // others leaves cells as they are. What was pasted is selected then.
    //
    // As rows: asks OnBeforePaste or OnBeforePasteChild, OnBeforeInsertRow or OnBeforeInsertChild for each
    // row, and tells OnInsertRow and at last OnEndPaste with the new rows selected, so that a TGTreeGrid
    // gives them identifiers of their own. Rows without a place beneath a tree row come in beside each other.
    // Refused where the number of rows is fixed, and by IsNoPaste().
    TGClipboardReport Paste(PasteWay way = PasteWay::Auto);
    // The same with a text as it stands on the clipboard, which is not looked at. U+0000 is a character like
    // any other here.
    TGClipboardReport PasteText(const CString& text);
    // Copies the first row of each selected range to the others, or its first column; a range of one row gets
    // the row above, one of one column the column to the left.
    TGClipboardReport FillDown();
    TGClipboardReport FillRight();
    // Puts a text into all selected cells; null counts as empty.
    TGClipboardReport FillWith(const wchar_t* text);
    // Goes on with the number in the first cell of each column or row of the ranges, by `step`, else by the
    // distance to the number in the second cell, else by one: "1.50", "2.00"; also "Item 9", "Item 10".
    // Numbers have a point in front of their decimals, or a comma that nothing else can be, and at most 15
    // digits; they are written as the first one is.
    TGClipboardReport FillSeries(Direction direction, std::optional<double> step = std::nullopt);
    // Empties the selected cells that are not empty.
    TGClipboardReport Empty();

    // There is something that the command could be done with. Reads no data from the clipboard.
    bool CanCopy() const;
    bool CanPaste() const;

    // ---- Menus and keys

    // Runs ID_EDIT_COPY, ID_EDIT_CUT, ID_EDIT_PASTE, ID_EDIT_CLEAR or ID_EDIT_SELECT_ALL, for the open editor
    // while there is one; false for other commands. The grid does it, too, when it gets such a command as
    // WM_COMMAND.
    bool RunCommand(UINT id);
    // Whether such a command can be run now; false for other commands.
    bool IsCommandEnabled(UINT id) const;
    // For the OnCmdMsg of a view or frame: runs the commands, and enables or disables what shows them.
    //
    //     BOOL PartsView::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
    //     {
    //         return clipboard.OnCmdMsg(id, code, extra, info) || CView::OnCmdMsg(id, code, extra, info);
    //     }
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
    // The table of keys, in the order of the documents.
    static std::vector<TGKeyDescription> GetKeys();

protected:
    // A command has ended. Default: calls the function of SetOnReport.
    virtual void OnReport(const TGClipboardReport& report);

    bool IsCalledFirst() const override;
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnTextChanged(TGGridCell& cell, const CString& oldText) override;
    void OnRowsRemoved(TGRemovedRows& rows) override;
    void OnColRemoving(TGGridCol& col) override;
    void OnRowDeleted(const TGGridRow* row) override;

private:
    // What was copied, until it is rendered.
    class Copied;
    // A command on the stack, with its report.
    class Operation;
    // Types texts into cells.
    class Writer;
    class TreeWriter;
    struct Key;

    template <class Work> TGClipboardReport Perform(TGClipboardAction action, Work work);

    // Copying: whether it is on the clipboard then.
    bool CopySelected(Operation& operation, bool all);
    bool Offer(Operation& operation, const std::shared_ptr<Copied>& cells);
    void Drop(const Copied* cells);

    // Pasting.
    void PasteTable(Operation& operation, const CellTable& table, PasteWay way);
    void PasteCells(Operation& operation, const CellTable& table);
    void PasteRows(Operation& operation, const CellTable& table, bool asChildren);

    // Filling.
    template <class Work> void ForSelected(Operation& operation, Work work);
    template <class TextAt> void FillBlock(Operation& operation, const CellArea& block, TextAt textAt);
    TGClipboardReport FillFrom(Direction direction);
    static std::optional<TextSeries> SeriesOf(const Operation& operation, const CellArea& block,
                                              Direction direction, long place,
                                              const std::optional<DecimalNumber>& step);
    void EmptySelected(Operation& operation);
    void DeleteSelected(Operation& operation);

    // Keys and commands.
    bool RunKey(UINT key);
    bool RunInEditor(UINT id) const;

    bool captions = false;
    bool addingRows = true;
    bool keys = true;
    long maxCells = 5'000'000;
    DWORD patience = 1000;
    std::function<void(const TGClipboardReport&)> onReport;

    // What is still to be rendered: the last copy, and while another one waits for the clipboard, that, too.
    std::vector<std::shared_ptr<Copied>> copies;
    Operation* running = nullptr;
    std::unique_ptr<ClipboardWindow> window;
};

} // namespace QuorUiCtr
