// An extension that writes down what it is told, and does in it what a test wants.
#include "tests/extras/RecordingExtension.h"

#include "tests/grid/ModelGrid.h"

#include <utility>

namespace quor::test
{

using namespace QuorUiCtr;

namespace
{

std::string FirstTextOf(TGGridRow* row)
{
    if (row == nullptr)
        return "-";
    const std::string text = Narrow((*row)[0].GetText());
    return text.empty() ? "?" : text;
}

template <class Rows> std::string TextsOf(const Rows& rows)
{
    std::string texts;
    for (TGGridRow* row : rows)
        texts += " " + FirstTextOf(row);
    return texts;
}

} // namespace

std::string RecordingExtension::Take()
{
    std::string text;
    for (const std::string& line : std::exchange(log, {}))
        text += (text.empty() ? "" : " | ") + line;
    return text;
}

void RecordingExtension::Act(const std::string& name)
{
    const auto found = actions.find(name);
    if (found == actions.end())
        return;
    const std::function<void()> action = found->second;
    action();
}

void RecordingExtension::Write(const std::string& name, const std::string& rest)
{
    log.push_back(name + rest);
    Act(name);
}

void RecordingExtension::OnAttach()
{
    Write("attached", "");
}

void RecordingExtension::OnDetach(TGGrid&)
{
    keptRows.clear();
    keptCols.clear();
    Write("detached", "");
}

bool RecordingExtension::OnPreTranslate(MSG&)
{
    Act("pretranslate");
    return false;
}

bool RecordingExtension::OnMessage(CWnd&, UINT, WPARAM, LPARAM, LRESULT&)
{
    Act("message");
    return false;
}

void RecordingExtension::OnCellLook(Cell&, TGTextLook&)
{
    Act("look");
}

bool RecordingExtension::OnDrawContent(Cell&, CDC&, const CRect&, const TGTextLook&)
{
    Act("content");
    return false;
}

void RecordingExtension::OnDrawOverlay(CDC&, const CRect&)
{
    Act("overlay");
}

void RecordingExtension::OnCaptionLook(Col&, TGTextLook&)
{
    Act("caption look");
}

void RecordingExtension::OnDrawCaption(Col&, CDC&, const CRect&)
{
    Act("caption");
}

bool RecordingExtension::OnTip(TGGridPlace, long, long, CString&)
{
    Act("tip");
    return false;
}

void RecordingExtension::OnMenu(TGGridPlace, CMenu&)
{
    Act("menu");
}

bool RecordingExtension::OnEdit(Cell&, TGEditWay)
{
    Act("edit");
    return false;
}

bool RecordingExtension::OnSort(TreeRow*, std::span<Row*>, bool)
{
    Act("sort");
    return false;
}

void RecordingExtension::OnTextChanged(Cell& cell, const CString& oldText)
{
    Write("text", " " + std::to_string(cell.GetRowIndex()) + "," + std::to_string(cell.GetColIndex()) + ": " +
                      Narrow(oldText) + " -> " + Narrow(cell.GetText()));
}

void RecordingExtension::OnRowsInserted(TreeRow* parent, long position, std::span<Row* const> rows)
{
    Write("inserted", " " + FirstTextOf(parent) + " " + std::to_string(position) + ":" + TextsOf(rows));
}

void RecordingExtension::OnRowsRemoved(TGRemovedRows& rows)
{
    if (keeps)
        for (std::size_t i = 0; i < rows.GetRows().size(); ++i)
            if (std::unique_ptr<Row> row = rows.Take(i))
                keptRows.push_back(std::move(row));
    Write("removed", " " + FirstTextOf(rows.GetParent()) + " " + std::to_string(rows.GetPosition()) + ":" +
                         TextsOf(rows.GetRows()) + (rows.IsBuffered() ? " (buffered)" : ""));
}

void RecordingExtension::OnRowMoved(long from, long to, long number)
{
    Write("moved", " " + std::to_string(from) + " " + std::to_string(to) + " x" + std::to_string(number));
}

void RecordingExtension::OnRowsSorted(TreeRow* parent, std::span<const long> order)
{
    std::string text = " " + FirstTextOf(parent) + ":";
    for (const long place : order)
        text += " " + std::to_string(place);
    Write("sorted", text);
}

void RecordingExtension::OnRowsFolded(std::span<TreeRow* const> rows)
{
    std::string text;
    for (TreeRow* row : rows)
        text += " " + FirstTextOf(row) + (row->IsFold() ? "+" : "-");
    Write("folded", text);
}

void RecordingExtension::OnColInserted(Col& col)
{
    Write("column", " " + std::to_string(col.GetIndex()) + ": " + Narrow(col.GetName()));
}

void RecordingExtension::OnColRemoving(Col& col)
{
    Write("removing column", " " + std::to_string(col.GetIndex()) + ": " + Narrow(col.GetName()));
}

void RecordingExtension::OnColRemoved(long position, std::unique_ptr<Col>& col)
{
    const std::string name = Narrow(col != nullptr ? col->GetName() : CString(L"taken"));
    if (keeps && col != nullptr)
        keptCols.push_back(std::move(col));
    Write("removed column", " " + std::to_string(position) + ": " + name);
}

void RecordingExtension::OnColMoved(long from, long to)
{
    Write("moved column", " " + std::to_string(from) + " " + std::to_string(to));
}

void RecordingExtension::OnColResized(Col& col, long oldWidth)
{
    Write("resized", " " + std::to_string(col.GetIndex()) + ": " + std::to_string(oldWidth) + " -> " +
                         std::to_string(col.GetWidth()));
}

void RecordingExtension::OnSelected()
{
    Write("selected", "");
}

void RecordingExtension::OnLaidOut()
{
    if (writesViews)
        log.push_back("laid out");
    Act("laid out");
}

void RecordingExtension::OnScrolled()
{
    if (writesViews)
        log.push_back("scrolled");
    Act("scrolled");
}

} // namespace quor::test
