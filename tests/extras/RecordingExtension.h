// An extension that writes down what it is told, and does in it what a test wants.
#pragma once

#include "grid/TGGrid.h"
#include "grid/TGGridExtension.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quor::test
{

// One line for each change, such as "inserted p 2: a b" (below p, at position 2, two rows with these first
// texts; "-" for the first level), "text 1,2: old -> new", "sorted -: 2 0 1". Layouts and scrolling are
// written when `writesViews` is set. An action runs behind its line, under the first word of the line; of
// what draws and asks under "edit", "message", "pretranslate", "look", "content", "overlay", "caption look",
// "caption", "tip", "menu" and "sort".
class RecordingExtension : public QuorUiCtr::TGGridExtension
{
public:
    std::map<std::string, std::function<void()>, std::less<>> actions;
    bool writesViews = false;
    // Takes rows and columns over that leave.
    bool keeps = false;
    std::vector<std::unique_ptr<QuorUiCtr::TGGridRow>> keptRows;
    std::vector<std::unique_ptr<QuorUiCtr::TGGridCol>> keptCols;

    std::vector<std::string> log;
    // The log as one text, lines joined by " | ", and empties it.
    std::string Take();

    using TGGridExtension::FindCurrentCell;
    using TGGridExtension::FirstMenuId;
    using TGGridExtension::GetBlockRect;
    using TGGridExtension::GetCellRect;
    using TGGridExtension::GetEditorWindow;
    using TGGridExtension::GetLook;
    using TGGridExtension::GetSelectedCells;
    using TGGridExtension::GetTextPlace;
    using TGGridExtension::GetView;
    using TGGridExtension::HasNewRowLine;
    using TGGridExtension::InsertChildAsUser;
    using TGGridExtension::InsertRowAsUser;
    using TGGridExtension::InvalidateLogical;
    using TGGridExtension::PointToCell;
    using TGGridExtension::SelectCells;
    using TGGridExtension::ShowLogical;
    using TGGridExtension::TellDataChanged;
    using TGGridExtension::ToLogical;
    using TGGridExtension::TryTypeInto;
    using TGGridExtension::TypeInto;

protected:
    using Row = QuorUiCtr::TGGridRow;
    using TreeRow = QuorUiCtr::TGGridTreeRow;
    using Col = QuorUiCtr::TGGridCol;
    using Cell = QuorUiCtr::TGGridCell;

    // Runs the action of a name; a copy, because it may delete the extension.
    void Act(const std::string& name);
    void Write(const std::string& name, const std::string& rest);

    void OnAttach() override;
    void OnDetach(QuorUiCtr::TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnCellLook(Cell& cell, QuorUiCtr::TGTextLook& look) override;
    bool OnDrawContent(Cell& cell, CDC& context, const CRect& place,
                       const QuorUiCtr::TGTextLook& look) override;
    void OnDrawOverlay(CDC& context, const CRect& area) override;
    void OnCaptionLook(Col& col, QuorUiCtr::TGTextLook& look) override;
    void OnDrawCaption(Col& col, CDC& context, const CRect& box) override;
    bool OnTip(QuorUiCtr::TGGridPlace place, long row, long col, CString& text) override;
    void OnMenu(QuorUiCtr::TGGridPlace place, CMenu& menu) override;
    bool OnSort(TreeRow* parent, std::span<Row*> rows, bool ascending) override;
    void OnTextChanged(Cell& cell, const CString& oldText) override;
    void OnRowsInserted(TreeRow* parent, long position, std::span<Row* const> rows) override;
    void OnRowsRemoved(QuorUiCtr::TGRemovedRows& rows) override;
    void OnRowMoved(long from, long to, long number) override;
    void OnRowsSorted(TreeRow* parent, std::span<const long> order) override;
    void OnRowsFolded(std::span<TreeRow* const> rows) override;
    void OnColInserted(Col& col) override;
    void OnColRemoving(Col& col) override;
    void OnColRemoved(long position, std::unique_ptr<Col>& col) override;
    void OnColMoved(long from, long to) override;
    void OnColResized(Col& col, long oldWidth) override;
    void OnSelected() override;
    void OnLaidOut() override;
    void OnScrolled() override;
    bool OnEdit(Cell& cell, QuorUiCtr::TGEditWay way) override;
};

} // namespace quor::test
