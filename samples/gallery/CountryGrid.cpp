// The tree grid of countries.
#include "CountryGrid.h"

#include "Language.h"

#include <utility>

namespace
{

// The columns of the table.
enum SourceColumn : size_t
{
    Continent,
    Region,
    Country,
    Label,
    Letters,
    Number,
    SourceColumnCount
};

constexpr long GroupColumn = 0;
constexpr long NumberColumn = 1;

struct GridColumn
{
    SourceColumn source;
    long width;
};

constexpr GridColumn GridColumns[] = {{Label, 250}, {Number, 80}, {Country, 260}, {Letters, 100}};

// Numbers are kept without leading zeros, as the grid writes those that it makes.
CString NumberText(const std::wstring& text)
{
    CString number;
    number.Format(L"%d", _wtoi(text.c_str()));
    return number;
}

} // namespace

CountryGrid::CountryGrid(LogPane& logPane, std::function<void()> whenChanged)
    : HookRecorder(true), log(logPane), changed(std::move(whenChanged))
{
}

// ---- Rows

bool CountryGrid::Fill(const gallery::CsvTable& table)
{
    if (table.header.size() != SourceColumnCount)
        return false;
    const QuorUiCtr::TGGridUpdate update(*this);
    for (const GridColumn& column : GridColumns)
        AppendCol(table.header[column.source].c_str(), column.width);
    GetCol(NumberColumn).SetCenterAlign(true);
    std::wstring continent;
    std::wstring region;
    for (const gallery::CsvRow& texts : table.rows)
    {
        if (std::exchange(continent, texts[Continent]) != texts[Continent])
        {
            AppendRow(nullptr);
            GetCell(GetRowNum() - 1, GroupColumn).SetText(continent.c_str());
            region.clear();
        }
        TGGridTreeRow& root = GetTreeRow(GetRowNum() - 1);
        if (std::exchange(region, texts[Region]) != texts[Region])
        {
            root.AppendChild(nullptr);
            root.GetLastChild()[GroupColumn].SetText(region.c_str());
        }
        TGGridTreeRow& group = root.GetLastChild();
        group.AppendChild(nullptr);
        TGGridTreeRow& item = group.GetLastChild();
        for (long col = 0; col < GetColNum(); ++col)
            item[col].SetText(texts[GridColumns[col].source].c_str());
        item[NumberColumn].SetText(NumberText(texts[Number]));
    }
    return true;
}

std::vector<CountryGrid::TGGridTreeRow*> CountryGrid::Roots()
{
    std::vector<TGGridTreeRow*> roots;
    for (MoveToFirst(); !IsOut(); MoveToNext())
        if (!CurRow().IsChildRow())
            roots.push_back(&CurTreeRow());
    return roots;
}

// ---- Editing

bool CountryGrid::Note(const samples::HookCall& call) const
{
    if (call.Is("OnDataChanged"))
        log.Add(Tr(L"OnDataChanged  only sets IsModified(), the parent is not told"));
    else
        log.Add(call);
    return true;
}

// The rule is the tree grid's; applying it is the host's choice.
bool CountryGrid::OnBeforeEdit(Cell& cell, bool& commitNewRow)
{
    const bool goesOn = HookRecorder::OnBeforeEdit(cell, commitNewRow);
    if (OnBeforeEdit(cell))
        return goesOn;
    log.Add(Tr(L"OnBeforeEdit  refused: only the name of a group can be changed"));
    return false;
}

bool CountryGrid::OnModified(Cell& cell, CString& text)
{
    HookRecorder::OnModified(cell, text);
    if (cell.GetColIndex() != NumberColumn || text == cell.GetText() || IsRightLabel(text))
        return true;
    CString line;
    line.Format(Tr(L"OnModified  refused: \"%s\" is empty, 0 or in use"), text.GetString());
    log.Add(line);
    return false;
}

void CountryGrid::OnDataChanged()
{
    HookRecorder::OnDataChanged();
    changed();
}

// ---- Numbers

void CountryGrid::AddNumbers(Row& row, Numbers& numbers)
{
    if (!row.IsParentRow())
    {
        numbers[&row] = row[NumberColumn].GetText();
        return;
    }
    auto& group = static_cast<TGGridTreeRow&>(row);
    for (group.MoveToFirst(); !group.IsOut(); group.MoveToNext())
        AddNumbers(group.CurChild(), numbers);
}

CountryGrid::Numbers CountryGrid::ReadNumbers()
{
    Numbers numbers;
    for (TGGridTreeRow* root : Roots())
        AddNumbers(*root, numbers);
    return numbers;
}

template <class Repair> void CountryGrid::NoteRepairs(const wchar_t* hook, Repair repair)
{
    const Numbers before = ReadNumbers();
    repair();
    for (const auto& [row, number] : ReadNumbers())
    {
        const auto known = before.find(row);
        if (known == before.end() || known->second == number)
            continue;
        CString line;
        line.Format(Tr(L"%s  number repaired: %s \"%s\" → \"%s\""), hook,
                    (*row)[GroupColumn].GetText().GetString(), known->second.GetString(), number.GetString());
        log.Add(line);
    }
}

// A row that starts as a copy of an item has its number too.
void CountryGrid::OnInsertRow(Row& row)
{
    HookRecorder::OnInsertRow(row);
    NoteRepairs(L"OnInsertRow", [&] { NumberNewItems(row); });
}

void CountryGrid::NumberNewItems(Row& row)
{
    Numbers items;
    AddNumbers(row, items);
    for (const auto& [item, number] : items)
        (*item)[NumberColumn].GetText().Format(L"%d", GetAutoId(_wtoi(number)));
}

void CountryGrid::OnEndDeleteRow()
{
    NoteRepairs(L"OnEndDeleteRow", [&] { HookRecorder::OnEndDeleteRow(); });
}

void CountryGrid::OnEndClip()
{
    NoteRepairs(L"OnEndClip", [&] { HookRecorder::OnEndClip(); });
}

void CountryGrid::OnEndPaste()
{
    NoteRepairs(L"OnEndPaste", [&] { HookRecorder::OnEndPaste(); });
}

void CountryGrid::OnEndMoveRow()
{
    NoteRepairs(L"OnEndMoveRow", [&] { HookRecorder::OnEndMoveRow(); });
}
