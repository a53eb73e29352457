// A grid for tests of what the user does: writes down the hooks of commands and drags and lets a test veto
// them or act inside them.
#pragma once

#include "tests/grid/WindowGrid.h"

#include <functional>
#include <map>
#include <set>

namespace quor::test
{

// Lines of the log, with the hook's name first and its arguments behind:
//   "insert row? 3"   "inserted row 3"   "insert child? p 0" (p is the parent's first text)   "delete row?"
//   "deleted row"     "cut?" "cut"       "copy?" "copied"     "paste? 3"   "paste child? p"   "pasted"
//   "drag row?" "over row 3" "drop row 3" "moved row"   and the same for "col"
//   "double click 3"  "right click cell 1,2" / "row 3" / "col 3" / "corner"   "changed"   "cur 3,-1"
// Names that are vetoed answer false. An action runs after its line was written.
class CommandGrid : public WindowGrid
{
public:
    explicit CommandGrid(bool tree = false, long columnWidth = 100) : WindowGrid(tree, columnWidth) {}

    std::set<std::string> vetoes;
    std::map<std::string, std::function<void()>> actions;
    // What the inserting hooks supply.
    std::function<QuorUiCtr::TGGridRow*()> makeRow;
    std::function<QuorUiCtr::TGGridTreeRow*()> makeChild;
    std::function<QuorUiCtr::TGGridCol*()> makeCol;
    // Writes OnCurChanged, too.
    bool logsCurrent = false;
    // The right click hooks go on to their defaults, which show menus.
    bool showsMenus = false;

    using WindowGrid::FilterDelUnable;
    using WindowGrid::IsSelDelUnable;

    // The log as one text, lines joined by " | ", and empties it.
    std::string TakeText();
    // The first texts of all rows, children in brackets behind their parent: "a b(c d) e"; the selected rows
    // with a star behind their text.
    std::string Rows();
    // The names of the columns with a star behind the selected ones: "A B* C".
    std::string Cols();
    // The first texts of the rows in the row buffer, in the same form.
    std::string Buffer();
    // Appends rows with these characters as their first texts.
    void AddRows(const std::string& texts);
    // Appends a child with a first text and returns it.
    QuorUiCtr::TGGridTreeRow& AddChild(QuorUiCtr::TGGridTreeRow& parent, char text);
    // Makes these rows (columns) the selected ones and empties the log.
    void SelectRows(std::initializer_list<long> indices);
    void SelectCols(std::initializer_list<long> indices);

protected:
    void OnDblClick(QuorUiCtr::TGGridRow& row) override;
    void OnRClickCell(QuorUiCtr::TGGridCell& cell, CPoint point) override;
    void OnRClickRow(QuorUiCtr::TGGridRow& row, CPoint point) override;
    void OnRClickCol(QuorUiCtr::TGGridCol& col, CPoint point) override;
    void OnRClickQuad(CPoint point) override;
    void OnDataChanged() override;
    void OnCurChanged() override;
    bool OnBeforeInsertCol(long position, QuorUiCtr::TGGridCol*& col) override;
    void OnInsertCol(QuorUiCtr::TGGridCol& col) override;
    bool OnBeforeDeleteCol() override;
    void OnEndDeleteCol() override;
    bool OnBeginMoveCol() override;
    bool OnMovingCol(long position) override;
    bool OnMoveCol(long position) override;
    void OnEndMoveCol() override;
    bool OnBeforeInsertRow(long position, QuorUiCtr::TGGridRow*& row) override;
    bool OnBeforeInsertChild(QuorUiCtr::TGGridTreeRow& parent, long position,
                             QuorUiCtr::TGGridTreeRow*& child) override;
    void OnInsertRow(QuorUiCtr::TGGridRow& row) override;
    bool OnBeforeDeleteRow() override;
    void OnEndDeleteRow() override;
    bool OnBeforeClip() override;
    void OnEndClip() override;
    bool OnBeforeCopy() override;
    void OnEndCopy() override;
    bool OnBeforePaste(long position) override;
    bool OnBeforePasteChild(QuorUiCtr::TGGridTreeRow& parent) override;
    void OnEndPaste() override;
    bool OnBeginMoveRow() override;
    bool OnMovingRow(long position) override;
    bool OnMoveRow(long position) override;
    void OnEndMoveRow() override;

private:
    // Writes the line, runs the action of `name` and returns whether it is not vetoed.
    bool Note(const std::string& name, const std::string& arguments = "");
};

// The first text of a row, as bytes.
std::string FirstText(QuorUiCtr::TGGridRow& row);

} // namespace quor::test
