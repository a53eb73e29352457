// Reading tables from HTML. What is open is kept on a stack of tables, each with a row and a cell, which is
// all of the structure of a page that counts here.
#include "rules/CellHtml.h"

#include "rules/ClipboardFragment.h"
#include "rules/HtmlFlow.h"
#include "rules/HtmlTokens.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace QuorUiCtr
{
namespace
{

// Tables in tables beyond this are text of the cell that they stand in.
constexpr std::size_t DeepestTable = 32;
// As browsers limit them.
constexpr std::size_t WidestSpan = 1000;
constexpr std::size_t HighestSpan = 65534;

std::size_t SpanOf(std::string_view attributes, std::string_view name, std::size_t most, std::size_t ofZero)
{
    const std::string_view value = AttributeOf(attributes, name);
    std::size_t at = (std::min)(value.find_first_not_of(" \t\r\n"), value.size());
    const std::size_t first = at;
    std::size_t number = 0;
    for (; at < value.size() && value[at] >= '0' && value[at] <= '9'; ++at)
        number = (std::min)(number * 10 + static_cast<std::size_t>(value[at] - '0'), most);
    return at == first ? 1 : number == 0 ? ofZero : number;
}

// Columns that cells of rows above cover in the rows that follow.
struct CoveredCols
{
    std::size_t first;
    std::size_t end;
    std::size_t rows;
};

// Cells that others cover are as many as their numbers say, which cost nothing to write: they get a share of
// what is read, and when that is used up there are none any more.
class CoveredBudget
{
public:
    explicit CoveredBudget(std::size_t bytes) : left(bytes / 4 + 100000) {}

    std::size_t Take(std::size_t number)
    {
        isUsedUp = isUsedUp || number > left;
        number = isUsedUp ? 0 : number;
        left -= number;
        return number;
    }
    bool IsUsedUp() const { return isUsedUp; }

private:
    std::size_t left;
    bool isUsedUp = false;
};

// The rows of a table while it is read.
class OpenTable
{
public:
    explicit OpenTable(CoveredBudget& itsBudget) : budget(&itsBudget) {}

    HtmlFlow& Flow() { return flow; }
    bool IsInCell() const { return inCell; }

    void BeginRow(std::string_view attributes)
    {
        EndRow();
        inRow = true;
        isHidden = HasProperty(AttributeOf(attributes, "style"), "display", "none");
        isAllHeaders = true;
        col = 0;
        nextCovered = 0;
        rows.BeginRow();
    }
    void BeginCell(const HtmlToken& token)
    {
        EndCell();
        if (!inRow)
            BeginRow({});
        inCell = true;
        isAllHeaders = isAllHeaders && token.tag == HtmlTag::HeaderCell;
        width = SpanOf(token.attributes, "colspan", WidestSpan, 1);
        height = SpanOf(token.attributes, "rowspan", HighestSpan, HighestSpan);
        flow.Begin(KeepsSpace(token.attributes));
        innerTable.reset();
    }
    void EndCell()
    {
        if (!inCell)
            return;
        inCell = false;
        if (isHidden)
            return;
        FillCovered(false);
        if (++cellNum == 1 && innerTable && flow.GetLength() == innerEnd)
            soleTable = std::move(innerTable);
        rows.Cell(flow.GetText());
        const std::size_t first = col++;
        AddCovered(width - 1);
        if (height > 1 && !budget->IsUsedUp())
            started.push_back({first, first + width, height - 1});
    }
    void EndRow()
    {
        EndCell();
        if (!std::exchange(inRow, false) || isHidden)
            return;
        FillCovered(true);
        firstIsHeaders = rows.GetRowNum() == 0 ? isAllHeaders && col > 0 : firstIsHeaders;
        rows.EndRow();
        PassRow();
    }
    // Spans end with the part of the table that they begin in.
    void EndGroup()
    {
        EndRow();
        covered.clear();
    }
    // A table within the current cell has ended.
    void TakeInner(CellTable table)
    {
        const bool isFirst = flow.IsEmpty() && cellNum == 0;
        flow.BeginLine();
        if (table.HasCaptions())
            AddLine(table.GetCaptionNum(), [&](std::size_t at) { return table.GetCaption(at); });
        for (std::size_t row = 0; row < table.GetRowNum(); ++row)
            AddLine(table.GetCellNum(row), [&](std::size_t at) { return table.GetText(row, at); });
        innerEnd = flow.GetLength();
        innerTable.reset();
        if (isFirst)
            innerTable = std::move(table);
    }
    CellTable TakeTable()
    {
        EndRow();
        if (soleTable && cellNum == 1 && rows.GetRowNum() == 1)
            return std::move(*soleTable);
        if (firstIsHeaders && rows.GetRowNum() > 1)
            rows.MakeFirstRowCaptions();
        return std::move(rows);
    }

private:
    void AddCovered(std::size_t number)
    {
        number = budget->Take(number);
        for (std::size_t i = 0; i < number; ++i)
            rows.Cell({});
        col += number;
    }
    // Empty cells where rows above reach down to: those in front of the next cell, or all that are left.
    void FillCovered(bool all)
    {
        for (; nextCovered < covered.size() && (all || covered[nextCovered].first <= col); ++nextCovered)
            if (covered[nextCovered].end > col)
                AddCovered(covered[nextCovered].end - col);
    }
    void PassRow()
    {
        for (CoveredCols& cols : covered)
            --cols.rows;
        std::erase_if(covered, [](const CoveredCols& cols) { return cols.rows == 0; });
        if (!started.empty())
        {
            const auto middle = static_cast<std::ptrdiff_t>(covered.size());
            covered.insert(covered.end(), started.begin(), started.end());
            std::inplace_merge(
                covered.begin(), covered.begin() + middle, covered.end(),
                [](const CoveredCols& one, const CoveredCols& other) { return one.first < other.first; });
            started.clear();
        }
        if (budget->IsUsedUp())
            covered.clear();
    }
    template <class TextOf> void AddLine(std::size_t cells, TextOf textOf)
    {
        for (std::size_t at = 0; at < cells; ++at)
        {
            flow.AddKept(at == 0 ? L"" : L"\t");
            flow.AddKept(textOf(at));
        }
        flow.EndLine();
    }

    CoveredBudget* budget;
    CellTable rows;
    HtmlFlow flow;
    std::vector<CoveredCols> covered;
    std::vector<CoveredCols> started;
    std::size_t nextCovered = 0;
    std::size_t col = 0;
    std::size_t cellNum = 0;
    std::size_t width = 1;
    std::size_t height = 1;
    bool inRow = false;
    bool inCell = false;
    bool isHidden = false;
    bool isAllHeaders = false;
    bool firstIsHeaders = false;
    // A table that the first cell begins with, and where its text ends; the same once it is all that the cell
    // has.
    std::optional<CellTable> innerTable;
    std::size_t innerEnd = 0;
    std::optional<CellTable> soleTable;
};

class HtmlReader
{
public:
    explicit HtmlReader(const ClipboardFragment& fragment)
        : tokens(fragment.html), budget(fragment.html.size()), hasWrongOffsets(fragment.hasWrongOffsets)
    {
    }

    CellTable Read()
    {
        for (HtmlToken token = tokens.Next(); token.kind != HtmlToken::Kind::End; token = tokens.Next())
            if (token.kind == HtmlToken::Kind::Text)
                Flow().Add(token.text, wrongBytes);
            else if (token.kind == HtmlToken::Kind::Open)
                Open(token);
            else
                Close(token);
        while (!tables.empty())
            EndTable();
        AddLines();
        return std::move(result);
    }
    CellHtmlNotes GetNotes() const
    {
        return {tableNum, hasWrongOffsets, tokens.IsCut(), wrongBytes, budget.IsUsedUp()};
    }

private:
    // Where text goes: into the cell, or to what stands around the table.
    HtmlFlow& Flow()
    {
        const std::size_t depth = tables.size();
        if (depth > 0 && tables.back().IsInCell())
            return tables.back().Flow();
        return depth > 1 ? tables[depth - 2].Flow() : page;
    }
    void Open(const HtmlToken& token)
    {
        switch (token.tag)
        {
        case HtmlTag::Table:
            return BeginTable();
        case HtmlTag::Row:
        case HtmlTag::DataCell:
        case HtmlTag::HeaderCell:
            return BeginPart(token);
        case HtmlTag::RowGroup:
            return EndPart(token.tag);
        case HtmlTag::Break:
            return Flow().AddBreak();
        case HtmlTag::Block:
        case HtmlTag::Preformatted:
            Flow().BeginLine();
            break;
        default:
            break;
        }
        Flow().Open(token);
    }
    void Close(const HtmlToken& token)
    {
        switch (token.tag)
        {
        case HtmlTag::Table:
            return CloseTable();
        case HtmlTag::Row:
        case HtmlTag::DataCell:
        case HtmlTag::HeaderCell:
        case HtmlTag::RowGroup:
            return EndPart(token.tag);
        case HtmlTag::Break:
            return Flow().AddBreak();
        case HtmlTag::Block:
        case HtmlTag::Preformatted:
            Flow().BeginLine();
            break;
        default:
            break;
        }
        Flow().Close(token);
    }
    void BeginTable()
    {
        // As browsers do, which allow tables in cells only.
        if (!tables.empty() && !tables.back().IsInCell())
            EndTable();
        if (tables.size() < DeepestTable)
            tables.emplace_back(budget);
        else
        {
            ++passedTables;
            Flow().BeginLine();
        }
    }
    void CloseTable()
    {
        if (passedTables > 0)
            --passedTables;
        else if (!tables.empty())
            EndTable();
    }
    void EndTable()
    {
        CellTable table = tables.back().TakeTable();
        tables.pop_back();
        if (table.IsEmpty())
            return;
        if (!tables.empty())
            return tables.back().TakeInner(std::move(table));
        AddLines();
        ++tableNum;
        if (result.IsEmpty())
            result = std::move(table);
        else
            result.Append(table);
    }
    // A row or a cell; without a table, one of which the fragment has only the inside.
    void BeginPart(const HtmlToken& token)
    {
        if (passedTables > 0)
        {
            if (token.tag == HtmlTag::Row)
                Flow().BeginLine();
            else
                Flow().AddKept(L"\t");
            return;
        }
        if (tables.empty())
            tables.emplace_back(budget);
        if (token.tag == HtmlTag::Row)
            tables.back().BeginRow(token.attributes);
        else
            tables.back().BeginCell(token);
    }
    void EndPart(HtmlTag tag)
    {
        if (passedTables > 0 || tables.empty())
            return;
        if (tag == HtmlTag::Row)
            tables.back().EndRow();
        else if (tag == HtmlTag::RowGroup)
            tables.back().EndGroup();
        else
            tables.back().EndCell();
    }
    // The lines around tables, without empty ones at the ends.
    void AddLines()
    {
        std::wstring_view lines = page.GetText();
        const auto isBlank = [](std::wstring_view line) {
            return line.find_first_not_of(L' ') == std::wstring_view::npos;
        };
        const std::size_t last = lines.find_last_not_of(L" \n");
        lines = lines.substr(0, last + 1);
        bool hasBegun = false;
        while (!lines.empty())
        {
            const std::size_t end = (std::min)(lines.find(L'\n'), lines.size());
            const std::wstring_view line = lines.substr(0, end);
            lines.remove_prefix((std::min)(end + 1, lines.size()));
            hasBegun = hasBegun || !isBlank(line);
            if (!hasBegun)
                continue;
            result.BeginRow();
            result.Cell(line);
            result.EndRow();
        }
        page.Begin(false);
    }

    HtmlTokens tokens;
    CoveredBudget budget;
    std::vector<OpenTable> tables;
    // Tables that are open and too deep in others.
    std::size_t passedTables = 0;
    HtmlFlow page;
    CellTable result;
    std::size_t tableNum = 0;
    std::size_t wrongBytes = 0;
    bool hasWrongOffsets;
};

} // namespace

CellTable ReadCellHtml(std::string_view html, CellHtmlNotes* notes)
{
    HtmlReader reader(FragmentOf(html));
    CellTable table = reader.Read();
    if (notes != nullptr)
        *notes = reader.GetNotes();
    return table;
}

} // namespace QuorUiCtr
