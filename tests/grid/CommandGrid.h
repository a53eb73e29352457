// A grid for tests of what the user does: writes down the hooks of commands and drags and lets a test veto
// them or act inside them.
#pragma once

#include "tests/grid/WindowGrid.h"

#include <functional>
#include <initializer_list>
#include <string>

namespace quor::test
{

// Writes the hooks of commands and drags and the mouse. Leaves out the defaults of OnInsertRow and
// OnInsertCol: OnDataChanged, which the command calls, too.
class CommandGrid : public WindowGrid
{
public:
    explicit CommandGrid(bool tree = false, long columnWidth = 100) : WindowGrid(tree, columnWidth) {}

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
    bool Note(const samples::HookCall& call) const override;
    bool Records(const samples::HookCall& call) const override;
    bool OnBeforeInsertCol(long position, Col*& col) override;
    bool OnBeforeInsertRow(long position, Row*& row) override;
    bool OnBeforeInsertChild(TreeRow& parent, long position, TreeRow*& child) override;
};

} // namespace quor::test
