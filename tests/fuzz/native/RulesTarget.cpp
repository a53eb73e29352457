// The pure rules: what each promises of its result, for any arguments in the range of real pixels and texts.
#include "tests/fuzz/native/Bytes.h"

#include "propertyrules/EditMask.h"
#include "propertyrules/NumberText.h"
#include "propertyrules/PropertyGridGeometry.h"
#include "rules/ComboSpecification.h"
#include "rules/GridGeometry.h"
#include "rules/ListGeometry.h"
#include "rules/SelectedIndices.h"
#include "rules/TipText.h"
#include "rules/TreeDragRules.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace QuorUiCtr;
using namespace quor::fuzz;

namespace
{

// Any number of pixels that a window or its content may have, mostly few.
int Pixels(Bytes& bytes)
{
    constexpr std::uint32_t most = 1u << 28;
    return bytes.Byte() % 4 == 0 ? static_cast<int>(bytes.Word() % most) : static_cast<int>(bytes.Byte());
}

int SignedPixels(Bytes& bytes)
{
    return bytes.Byte() % 2 == 0 ? Pixels(bytes) : -Pixels(bytes);
}

std::wstring AnyText(Bytes& bytes, std::size_t longest)
{
    constexpr wchar_t usual[] = L"%%<>[],,aB1 0\n.-+#*dsxlnc";
    std::wstring text;
    for (std::size_t length = bytes.Byte() % (longest + 1); length > 0; --length)
    {
        const unsigned byte = bytes.Byte();
        text += byte < 200 ? usual[byte % (std::size(usual) - 1)]
                           : static_cast<wchar_t>(bytes.Word() % 0xFFFF + 1);
    }
    return text;
}

void CheckScrolling(Bytes& bytes)
{
    const int maximum = Pixels(bytes);
    const int position = (std::min)(Pixels(bytes), maximum);
    const int moved = position + ClampScroll(position, SignedPixels(bytes), maximum);
    Require(moved >= 0 && moved <= maximum, "a bar is scrolled out of its range");

    const ScrollRequest request{position, 0, maximum, Pixels(bytes), Pixels(bytes), SignedPixels(bytes)};
    const auto code = static_cast<ScrollCode>(bytes.Byte() % 10);
    const int target = VerticalScrollTarget(code, request);
    Require(target >= 0 && target <= maximum, "a scroll code names a position outside of the range");
    Require(code == ScrollCode::First || HorizontalScrollTarget(code, request) == target, "the bars differ");
    WheelPosition(position, Pixels(bytes) % 1000, SignedPixels(bytes) % 32768);
}

void CheckLeastScroll(Bytes& bytes)
{
    const int first = Pixels(bytes);
    const int last = first + Pixels(bytes) % 100000;
    const int viewFirst = Pixels(bytes);
    const int viewLast = viewFirst + Pixels(bytes) % 100000;
    const int distance = LeastScroll(first, last, viewFirst, viewLast, viewFirst);
    const bool inside = first >= viewFirst && last <= viewLast;
    Require(!inside || distance == 0, "what is in view is scrolled");
}

void CheckBars(Bytes& bytes)
{
    const Extent content(Pixels(bytes), Pixels(bytes));
    const Extent area(Pixels(bytes), Pixels(bytes));
    const int barWidth = bytes.Byte();
    const int barHeight = bytes.Byte();
    const ScrollBarPlan plan = PlanScrollBars(content, area, barWidth, barHeight);
    Require(plan.area.width == area.width - (plan.vertical ? barWidth : 0), "the area has another width");
    Require(plan.area.height == area.height - (plan.horizontal ? barHeight : 0),
            "the area has another height");
    Require(plan.horizontal == (content.width > plan.area.width),
            "the horizontal bar is there for nothing or not there");
    Require(plan.vertical == (content.height > plan.area.height),
            "the vertical bar is there for nothing or not there");
}

void CheckCaption(Bytes& bytes)
{
    const std::wstring caption = AnyText(bytes, 200);
    const int lines = CaptionLineCount(caption);
    const auto breaks = std::count(caption.begin(), caption.end(), L'\n');
    Require(lines >= 1 && lines <= breaks + 1, "a caption has more lines than breaks");
    Require(breaks == 0 || caption.front() == L'\n' || lines > 1, "the first break does not count");
}

void CheckEditors(Bytes& bytes)
{
    const Box list(0, 0, Pixels(bytes), Pixels(bytes));
    const int left = SignedPixels(bytes);
    const int top = SignedPixels(bytes);
    const Box current(left, top, left + Pixels(bytes), top + Pixels(bytes));
    const Extent needed(Pixels(bytes), Pixels(bytes));
    const GrownEditor grown = GrowEditor(current, needed, list);
    Require(grown.rectangle.left == current.left && grown.rectangle.top == current.top,
            "an editor moves as it grows");
    const bool large = current.Width() >= needed.width && current.Height() >= needed.height;
    Require(!large || grown.rectangle == current, "an editor that is large enough changes");
    const HorizontalSpan span = EditorSpan(left, Pixels(bytes), list.right);
    Require(span.right <= list.right, "an editor leaves the list");
}

void CheckOrder(Bytes& bytes)
{
    std::vector<int> order;
    for (int i = bytes.Byte() % 20; i > 0; --i)
        order.push_back(bytes.Byte() % 30);
    const int index = static_cast<int>(bytes.Small());
    const auto found = std::find(order.begin(), order.end(), index);
    const auto expected = found == order.end() ? -1 : found - order.begin();
    Require(PositionInOrder(order, index) == expected, "a column stands elsewhere");
}

void CheckTree(Bytes& bytes)
{
    const int top = SignedPixels(bytes);
    const Box row(SignedPixels(bytes), top, 0, top + Pixels(bytes));
    const int y = SignedPixels(bytes);
    const bool isOpenFolder = bytes.Byte() % 2 == 0;
    const DropPlace place = DropPlaceAt(row, y, isOpenFolder);
    Require(place == DropPlace::BeforeItem || y >= row.top, "a place above the item is not before it");
    Require(place != DropPlace::BeforeItem || y < row.bottom, "a place below the item is before it");
    Require(place == DropPlace::BeforeItem || (place == DropPlace::BeforeFirstChild) == isOpenFolder,
            "the lower half leads into what is no open folder, or not into one");
    InsertionLine(row, Pixels(bytes), bytes.Byte() % 2 == 0);
    const int low = Pixels(bytes);
    const int high = low + Pixels(bytes);
    const int limit = Pixels(bytes);
    const int position = Pixels(bytes);
    const ScrollStep step = ScrollStepFor(y, low, high, bytes.Byte() % 10, position, limit);
    Require(step != ScrollStep::Back || (y < low && position >= 1), "a drag scrolls back for nothing");
    Require(step != ScrollStep::Forward || (y >= high && position != limit),
            "a drag scrolls forward for nothing");
}

void CheckFolderNames(Bytes& bytes)
{
    std::set<std::wstring> taken;
    const int number = bytes.Byte() % 40;
    for (int i = 0; i < number; ++i)
        taken.insert(i == 0 ? L"folder" : L"folder " + std::to_wstring(bytes.Byte() % 40));
    const std::wstring name =
        FreeFolderName(L"folder", [&taken](const std::wstring& wanted) { return !taken.contains(wanted); });
    Require(!taken.contains(name), "the name of a new folder is taken");
}

// Each piece begins with a conversion and is short; what it becomes is up to the platform.
std::wstring FormatPiece(const std::wstring& piece)
{
    Require(!piece.empty() && piece.front() == L'%', "a piece without a conversion is formatted");
    Require(piece.length() <= LongestTipPiece, "a piece is too long to be formatted");
    return piece == L"%%" ? L"%"
                          : piece.substr(1) + (piece.length() % 5 == 0 ? std::wstring(2, L'\0') : L"0");
}

void CheckTips(Bytes& bytes)
{
    const std::wstring tip = AnyText(bytes, 120);
    const std::wstring text = MakeTipText(tip.c_str(), FormatPiece);
    Require(text.length() < TipBufferLength, "a tip is longer than its buffer");
    Require(text.find(L'\0') == std::wstring::npos, "a tip goes on behind its end");
    if (tip.find(L'%') == std::wstring::npos && tip.length() < TipBufferLength)
        Require(text == tip, "a short plain tip is changed");
}

void CheckCombo(Bytes& bytes)
{
    const std::wstring text = AnyText(bytes, 60);
    const auto parts = ParseComboSpecification(text);
    if (!parts)
        return;
    Require(!parts->options.empty(), "there is no option");
    Require(text.compare(0, parts->value.length(), parts->value) == 0, "the value is not the beginning");
    Require(parts->value.find(L',') == std::wstring::npos, "the value goes on behind the comma");
    for (const std::wstring& option : parts->options)
        Require(text.find(option) != std::wstring::npos, "an option is not in the text");
}

// Rows go: first out of the selection, then those behind them move up.
void CloseGap(DualList<long>& entries, std::set<long>& model, long first, long number)
{
    std::set<long> moved;
    for (const long entry : model)
        if (entry >= first && entry < first + number)
            SelectedIndices::Remove(entries, entry);
        else
            moved.insert(entry < first ? entry : entry - number);
    model = std::move(moved);
    SelectedIndices::CloseGap(entries, first, number);
}

void CheckSelection(Bytes& bytes)
{
    DualList<long> entries;
    std::set<long> model;
    while (!bytes.IsEmpty())
    {
        const long index = bytes.Byte();
        switch (bytes.Byte() % 5)
        {
        case 0:
        case 1:
            Require(SelectedIndices::Add(entries, index) == model.insert(index).second,
                    "Add tells wrongly what was there");
            break;
        case 2:
            Require(SelectedIndices::Remove(entries, index) == (model.erase(index) == 1),
                    "Remove tells wrongly what was there");
            break;
        case 3:
            SelectedIndices::Assign(entries, {model.begin(), model.end()});
            break;
        default:
            CloseGap(entries, model, index, bytes.Byte() % 4 + 1);
        }
        Require(std::equal(entries.begin(), entries.end(), model.begin(), model.end()), "the indices differ");
        Require(SelectedIndices::Contains(entries, index) == model.contains(index), "Contains tells wrongly");
        const auto bound = model.lower_bound(index);
        Require(SelectedIndices::LowerBound(entries, index) == std::distance(model.begin(), bound),
                "the lower bound lies elsewhere");
    }
}

void CheckMask(Bytes& bytes)
{
    const std::size_t length = bytes.Byte() % 12;
    constexpr wchar_t kinds[] = L"dDcCSAa+* -";
    std::wstring mask;
    std::wstring editTemplate;
    for (std::size_t i = 0; i < length; ++i)
    {
        mask += kinds[bytes.Byte() % (std::size(kinds) - 1)];
        editTemplate += bytes.Byte() % 2 == 0 ? L'_' : L'(';
    }
    if (bytes.Byte() % 8 == 0)
        mask += L'd';
    const quorfx::EditMask rules(mask, editTemplate, AnyText(bytes, 8));
    std::wstring text = rules.Complete(AnyText(bytes, 16));
    Require(!rules.HasMask() || text.length() == mask.length(), "a complete text is not as long as the mask");
    int caret = 0;
    while (rules.HasMask() && !bytes.IsEmpty())
    {
        const int end = static_cast<int>(text.length());
        if (bytes.Byte() % 3 == 0)
            rules.Erase(text, static_cast<int>(bytes.Byte() % (end + 1)), end);
        else
            rules.Type(text, caret, static_cast<wchar_t>(bytes.Byte() % 96 + 32));
        Require(static_cast<int>(text.length()) == end && caret >= 0 && caret <= end,
                "typing changes the length");
        Require(rules.FreeBefore(caret) < (std::max)(caret, 1) && rules.FreeFrom(caret) >= caret,
                "the caret goes the wrong way");
    }
}

void CheckNumbers(Bytes& bytes)
{
    const std::wstring text = AnyText(bytes, 30);
    if (const auto number = quorfx::ReadInteger(text, -1000, 1000))
        Require(*number >= -1000 && *number <= 1000, "a number lies outside its range");
    if (const auto number = quorfx::ReadReal(text))
        Require(*number - *number == 0, "a number is not finite");
}

void CheckPropertyAreas(Bytes& bytes)
{
    const int width = bytes.Byte() * 8;
    const int height = bytes.Byte() * 8;
    const quorfx::PropertyGridMetrics metrics{bytes.Byte() % 60, bytes.Byte() % 60, bytes.Byte() % 12,
                                              bytes.Byte() % 60};
    const int rows = Pixels(bytes);
    const quorfx::PropertyGridAreas areas = quorfx::ComputeAreas(width, height, metrics, rows);
    Require(areas.header.top == 0 && areas.header.bottom == areas.list.top &&
                areas.list.bottom == areas.description.top && areas.description.bottom == height,
            "the areas leave a gap or cover each other");
    Require(areas.list.Height() >= 0 && areas.list.Width() >= 0 && areas.description.Height() >= 0,
            "an area is less than empty");
    Require(areas.scrollBar.IsEmpty() || areas.scrollBar.left == areas.list.right,
            "the bar is not beside the list");
    Require(quorfx::DescriptionRowsAt(SignedPixels(bytes), height, metrics) >= 1,
            "a dragged description has no line");
}

void CheckPropertyRows(Bytes& bytes)
{
    const int rowHeight = bytes.Byte() % 60 + 1;
    const quorfx::Box list(0, bytes.Byte(), 100, 256 + bytes.Byte() * 8);
    const int rows = bytes.Byte() * 64;
    const int fullRows = quorfx::FullRows(list, rowHeight);
    const int firstRow = quorfx::ClampFirstRow(SignedPixels(bytes), rows, fullRows);
    Require(firstRow >= 0 && firstRow <= (std::max)(0, rows - fullRows), "the list is scrolled too far");
    const int y = bytes.Byte() * 8;
    const int row = quorfx::RowAt(list, rowHeight, firstRow, rows, y);
    const quorfx::Box box = quorfx::RowRectangle(list, rowHeight, firstRow, row);
    Require(row == -1 || (row < rows && y >= box.top && y < box.bottom), "another row lies there");
    const int wanted = rows == 0 ? 0 : static_cast<int>(bytes.Word() % static_cast<unsigned>(rows));
    const int shown = quorfx::FirstRowShowing(wanted, firstRow, fullRows);
    Require(shown <= wanted && wanted < shown + fullRows, "a row is not scrolled into view");
    const auto key = static_cast<quorfx::NavigationKey>(0x20 + bytes.Byte() % 10);
    const int reached = quorfx::RowAfterKey(key, bytes.Small() < 0 ? -1 : wanted, rows, fullRows);
    Require(reached >= -1 && reached < (std::max)(rows, 1), "a key leads out of the rows");
}

void CheckPropertyCells(Bytes& bytes)
{
    const int top = SignedPixels(bytes) / 4;
    const quorfx::Box row(0, top, Pixels(bytes) / 4, top + bytes.Byte() + 1);
    const int gutter = bytes.Byte();
    const int indent = bytes.Byte() % 40;
    const int column = quorfx::ClampColumn(SignedPixels(bytes), row.right, gutter);
    Require(column >= 0 && column <= (std::max)(row.right, 0), "the names leave the row");
    const quorfx::Box name = quorfx::NameRectangle(row, gutter, indent, column);
    const quorfx::Box value = quorfx::ValueRectangle(row, column);
    Require(name.left <= name.right && name.right <= value.left && value.left <= value.right,
            "name and value cover each other");
    const quorfx::Box button = quorfx::ButtonRectangle(value);
    Require(button.left >= value.left && button.right == value.right, "the button leaves its value");
    quorfx::FoldBoxRectangle(row, gutter, indent, column);
    Require(quorfx::EditorRectangle(value, bytes.Byte()).top >= value.top, "the editor leaves its value");
    Require(quorfx::ScaleColumn(column, row.right, row.right) == column || row.right == 0,
            "a column changes with nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr void (*checks[])(Bytes&) = {
        CheckScrolling, CheckLeastScroll,   CheckBars,         CheckCaption,      CheckEditors,   CheckOrder,
        CheckTree,      CheckFolderNames,   CheckTips,         CheckCombo,        CheckSelection, CheckMask,
        CheckNumbers,   CheckPropertyAreas, CheckPropertyRows, CheckPropertyCells};
    Bytes bytes(data, size);
    checks[bytes.Byte() % std::size(checks)](bytes);
    return 0;
}
