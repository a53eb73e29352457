// Reading and comparing the cells of a column by the kind of its texts.
#include "grid/extras/HeaderSortOrder.h"

#include "grid/collections/MergeSort.h"
#include "grid/extras/ViewOf.h"
#include "grid/TGGridCell.h"
#include "rules/SortKeys.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <utility>

namespace QuorUiCtr
{
namespace
{

// Texts are shared, not copied: a function of the host may change what stands in the cells.
class TextSortColumn : public SortColumn
{
public:
    using Compared = int (*)(const CString& first, const CString& second);

    TextSortColumn(std::span<TGGridCell* const> cells, Compared comparison) : compared(comparison)
    {
        texts.reserve(cells.size());
        for (const TGGridCell* cell : cells)
            texts.push_back(cell != nullptr ? cell->GetText() : CString());
    }
    int Compare(std::size_t first, std::size_t second) const override
    {
        return compared(texts[first], texts[second]);
    }

private:
    std::vector<CString> texts;
    Compared compared;
};

// Numbers, and dates as numbers; those that a text does not have are not numbers.
class NumberSortColumn : public SortColumn
{
public:
    template <class Read> NumberSortColumn(std::span<TGGridCell* const> cells, Read read)
    {
        // A step from a cell to its text waits for memory; made for all cells first, these waits overlap.
        std::vector<const wchar_t*> texts;
        texts.reserve(cells.size());
        for (const TGGridCell* cell : cells)
            texts.push_back(cell != nullptr ? cell->GetText().GetString() : L"");
        numbers.reserve(cells.size());
        for (const wchar_t* text : texts)
        {
            const auto number = read(std::wstring_view(text));
            numbers.push_back(number ? static_cast<double>(*number)
                                     : std::numeric_limits<double>::quiet_NaN());
        }
    }
    bool IsLast(std::size_t cell) const override { return std::isnan(numbers[cell]); }
    int Compare(std::size_t first, std::size_t second) const override
    {
        const double one = numbers[first];
        const double other = numbers[second];
        return one < other ? -1 : one > other ? 1 : 0;
    }
    std::span<const double> Numbers() const override { return numbers; }

private:
    std::vector<double> numbers;
};

// The system's sort keys, one behind the other, each with a zero at its end.
class LocaleSortColumn : public SortColumn
{
public:
    explicit LocaleSortColumn(std::span<TGGridCell* const> cells)
    {
        places.reserve(cells.size());
        for (const TGGridCell* cell : cells)
        {
            places.push_back(bytes.size());
            if (cell != nullptr)
                Append(cell->GetText());
            bytes.push_back('\0');
        }
    }
    int Compare(std::size_t first, std::size_t second) const override
    {
        return std::strcmp(&bytes[places[first]], &bytes[places[second]]);
    }

private:
    void Append(const CString& text)
    {
        if (text.IsEmpty())
            return;
        const auto map = [&](wchar_t* target, int room) {
            return ::LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_SORTKEY, text, text.GetLength(), target,
                                   room, nullptr, nullptr, 0);
        };
        const int length = map(nullptr, 0);
        const std::size_t place = bytes.size();
        bytes.resize(place + static_cast<std::size_t>(length));
        map(reinterpret_cast<wchar_t*>(&bytes[place]), length);
        // The key brings its own zero.
        if (bytes.size() > place && bytes.back() == '\0')
            bytes.pop_back();
    }

    std::vector<char> bytes;
    std::vector<std::size_t> places;
};

class HostSortColumn : public SortColumn
{
public:
    HostSortColumn(std::span<TGGridCell* const> sortedCells, TGHeaderSort::Comparison comparison)
        : cells(sortedCells.begin(), sortedCells.end()), compare(std::move(comparison))
    {
    }
    bool IsLast(std::size_t cell) const override { return cells[cell] == nullptr; }
    int Compare(std::size_t first, std::size_t second) const override
    {
        return cells[first] != nullptr && cells[second] != nullptr ? compare(*cells[first], *cells[second])
                                                                   : 0;
    }

private:
    std::vector<TGGridCell*> cells;
    TGHeaderSort::Comparison compare;
};

int CompareOrdinal(const CString& first, const CString& second)
{
    return first.Compare(second);
}

int CompareAsPeopleDo(const CString& first, const CString& second)
{
    return CompareNatural(ViewOf(first), ViewOf(second));
}

DateOrder DateOrderOfUser()
{
    constexpr DateOrder Orders[] = {DateOrder::MonthDayYear, DateOrder::DayMonthYear,
                                    DateOrder::YearMonthDay};
    DWORD order = 0;
    ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IDATE | LOCALE_RETURN_NUMBER,
                      reinterpret_cast<wchar_t*>(&order), sizeof(order) / sizeof(wchar_t));
    return Orders[order <= 2 ? order : 0];
}

bool SortsAfter(std::span<const SortStep> steps, std::size_t first, std::size_t second)
{
    for (const SortStep& step : steps)
    {
        const bool firstIsLast = step.column->IsLast(first);
        if (firstIsLast != step.column->IsLast(second))
            return firstIsLast;
        const int difference = firstIsLast ? 0 : step.column->Compare(first, second);
        if (difference != 0)
            return step.ascending ? difference > 0 : difference < 0;
    }
    return false;
}

// A row with its main key, which lies where the sorting looks for it.
struct NumberedRow
{
    double number;
    std::size_t row;
};

std::vector<std::size_t> OrderByNumbers(std::span<const SortStep> steps)
{
    const std::span<const double> numbers = steps.front().column->Numbers();
    const double sign = steps.front().ascending ? 1 : -1;
    std::vector<NumberedRow> rows;
    rows.reserve(numbers.size());
    for (const double number : numbers)
        rows.push_back({sign * number, rows.size()});
    Detail::StableMergeSort(std::span(rows), [steps](const NumberedRow& first, const NumberedRow& second) {
        if (first.number < second.number)
            return false;
        if (first.number > second.number)
            return true;
        return SortsAfter(steps, first.row, second.row);
    });
    std::vector<std::size_t> order;
    order.reserve(rows.size());
    for (const NumberedRow& row : rows)
        order.push_back(row.row);
    return order;
}

} // namespace

std::unique_ptr<SortColumn> SortColumn::Make(TGSortBy by, const TGHeaderSort::Comparison& compare,
                                             std::span<TGGridCell* const> cells)
{
    if (compare)
        return std::make_unique<HostSortColumn>(cells, compare);
    switch (by)
    {
    case TGSortBy::Locale:
        return std::make_unique<LocaleSortColumn>(cells);
    case TGSortBy::Natural:
        return std::make_unique<TextSortColumn>(cells, CompareAsPeopleDo);
    case TGSortBy::Number:
        return std::make_unique<NumberSortColumn>(cells,
                                                  [](std::wstring_view text) { return ReadNumber(text); });
    case TGSortBy::Date:
        return std::make_unique<NumberSortColumn>(
            cells, [order = DateOrderOfUser()](std::wstring_view text) { return ReadMoment(text, order); });
    case TGSortBy::Ordinal:
        break;
    }
    return std::make_unique<TextSortColumn>(cells, CompareOrdinal);
}

std::vector<std::size_t> SortedOrder(std::span<const SortStep> steps, std::size_t number)
{
    if (!steps.empty() && !steps.front().column->Numbers().empty())
        return OrderByNumbers(steps);
    std::vector<std::size_t> order(number);
    std::iota(order.begin(), order.end(), std::size_t{0});
    Detail::StableMergeSort(std::span(order), [steps](std::size_t first, std::size_t second) {
        return SortsAfter(steps, first, second);
    });
    return order;
}

} // namespace QuorUiCtr
