// The formats that hosts set, and the texts and looks that follow from them.
#include "grid/extras/TGColumnFormats.h"

#include "grid/TGGrid.h"
#include "grid/extras/LocaleTexts.h"
#include "grid/extras/TextRuler.h"
#include "rules/Shortening.h"
#include "rules/ValueTexts.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

namespace QuorUiCtr
{
namespace
{

const wchar_t* const NoRoom = L"####";

// What a text at the right leaves free, so that it does not touch the line.
constexpr long RightMargin = 3;

constexpr UINT Alignments = DT_LEFT | DT_CENTER | DT_RIGHT;

CString Joined(const std::wstring& text)
{
    return CString(text.c_str());
}

void MakeBold(LOGFONT& description)
{
    description.lfWidth = 0;
    description.lfWeight = FW_BOLD;
}

} // namespace

TGColumnFormats::TGColumnFormats()
    : locale(std::make_unique<LocaleTexts>(L"")), ruler(std::make_unique<TextRuler>())
{
}

TGColumnFormats::TGColumnFormats(TGGrid& newGrid) : TGColumnFormats()
{
    AttachTo(newGrid);
}

TGColumnFormats::~TGColumnFormats()
{
    Detach();
}

void TGColumnFormats::OnAttach()
{
    FitLines();
    ShowAll();
}

void TGColumnFormats::OnDetach(TGGrid& oldGrid)
{
    columns.clear();
    cells.clear();
    pressedRow = -1;
    LeaveLines(oldGrid);
    oldGrid.Invalidate(0);
}

bool TGColumnFormats::IsCalledFirst() const
{
    return true;
}

void TGColumnFormats::ShowAll() const
{
    if (GetGrid() != nullptr)
        GetGrid()->Invalidate(0);
}

// ---- Columns and cells

const TGColumnFormat* TGColumnFormats::FindFormat(const TGGridCol& col) const
{
    const auto found = columns.find(GetSerial(col));
    return found != columns.end() ? &found->second : nullptr;
}

bool TGColumnFormats::SetFormat(long col, const TGColumnFormat& format)
{
    if (GetGrid() == nullptr || !GetGrid()->IsValidCol(col))
        return false;
    columns[GetSerial(GetGrid()->GetCol(col))] = format;
    ShowAll();
    return true;
}

TGColumnFormat TGColumnFormats::GetFormat(long col) const
{
    const bool exists = GetGrid() != nullptr && GetGrid()->IsValidCol(col);
    const TGColumnFormat* const found = exists ? FindFormat(GetGrid()->GetCol(col)) : nullptr;
    return found != nullptr ? *found : TGColumnFormat();
}

bool TGColumnFormats::ClearFormat(long col)
{
    if (GetGrid() == nullptr || !GetGrid()->IsValidCol(col) ||
        columns.erase(GetSerial(GetGrid()->GetCol(col))) == 0)
        return false;
    ShowAll();
    return true;
}

bool TGColumnFormats::HasRow(const TGGridCell& cell) const
{
    return cell.GetRowIndex() != GetGrid()->GetRowNum();
}

bool TGColumnFormats::SetCellFormat(long row, long col, const TGCellFormat& format)
{
    TGGridCell* const cell = GetGrid() != nullptr ? FindCell(row, col) : nullptr;
    if (cell == nullptr || !HasRow(*cell))
        return false;
    cells[&cell->GetRow()][GetSerial(cell->GetCol())] = format;
    InvalidateLogical(GetCellRect(row, col));
    return true;
}

const TGCellFormat* TGColumnFormats::FindCellFormat(const TGGridCell& cell) const
{
    const auto row = cells.find(&cell.GetRow());
    if (row == cells.end())
        return nullptr;
    const auto found = row->second.find(GetSerial(cell.GetCol()));
    return found != row->second.end() ? &found->second : nullptr;
}

TGCellFormat TGColumnFormats::GetCellFormat(long row, long col) const
{
    const TGGridCell* const cell = GetGrid() != nullptr ? FindCell(row, col) : nullptr;
    const TGCellFormat* const found = cell != nullptr ? FindCellFormat(*cell) : nullptr;
    return found != nullptr ? *found : TGCellFormat();
}

void TGColumnFormats::ClearCellFormats()
{
    cells.clear();
    ShowAll();
}

void TGColumnFormats::SetRule(std::function<void(const TGGridCell&, TGCellFormat&)> newRule)
{
    rule = std::move(newRule);
    ShowAll();
}

void TGColumnFormats::OnRowDeleted(const TGGridRow* row)
{
    if (!cells.empty())
        cells.erase(row);
}

// The column's, the cell's own, and what the rule makes of them.
TGCellFormat TGColumnFormats::FullCellFormat(TGGridCell& cell) const
{
    TGCellFormat full;
    if (const TGColumnFormat* const format = FindFormat(cell.GetCol()))
        full = {format->textColor, format->backColor, format->bold, format->readOnly};
    if (const TGCellFormat* const own = cells.empty() ? nullptr : FindCellFormat(cell))
    {
        full.textColor = own->textColor != CLR_INVALID ? own->textColor : full.textColor;
        full.backColor = own->backColor != CLR_INVALID ? own->backColor : full.backColor;
        full.bold = full.bold || own->bold;
        full.readOnly = full.readOnly || own->readOnly;
    }
    if (rule && HasRow(cell))
    {
        // A copy, because the rule may replace itself.
        const auto called = rule;
        called(cell, full);
    }
    return full;
}

bool TGColumnFormats::OnEdit(TGGridCell& cell, TGEditWay way)
{
    return FullCellFormat(cell).readOnly || (way == TGEditWay::Editor && GetGrid() != nullptr && IsBox(cell));
}

// ---- Texts

bool TGColumnFormats::SetLocale(const wchar_t* name)
{
    const std::wstring wanted = name != nullptr ? name : L"";
    if (!wanted.empty() && !::IsValidLocaleName(wanted.c_str()))
        return false;
    locale = std::make_unique<LocaleTexts>(wanted.c_str());
    ShowAll();
    return true;
}

// Nothing for a text that is no value of the kind.
std::optional<CString> TGColumnFormats::Shape(const CString& text, const TGColumnFormat& format) const
{
    if (format.kind == TGValueKind::Number || format.kind == TGValueKind::Percent)
    {
        const NumberStyle style{format.decimals, format.grouping, format.kind == TGValueKind::Percent};
        const auto shaped = ShapeNumber(text.GetString(), style, locale->Marks());
        return shaped ? std::optional(Joined(*shaped)) : std::nullopt;
    }
    if (format.kind == TGValueKind::Date || format.kind == TGValueKind::DateTime)
    {
        const auto date = ReadDate(text.GetString());
        return date ? locale->Date(*date, format.datePicture, format.kind == TGValueKind::DateTime)
                    : std::nullopt;
    }
    const auto value = format.kind == TGValueKind::Truth ? ReadTruth(text.GetString()) : std::nullopt;
    if (!value)
        return std::nullopt;
    const CString& word = *value ? format.trueText : format.falseText;
    return word.IsEmpty() ? locale->Truth(*value) : word;
}

CString TGColumnFormats::GetShownText(long row, long col) const
{
    const TGGridCell* const cell = GetGrid() != nullptr ? FindCell(row, col) : nullptr;
    if (cell == nullptr || IsBox(*cell))
        return CString();
    const TGColumnFormat* const format = FindFormat(cell->GetCol());
    return format != nullptr ? Shape(cell->GetText(), *format).value_or(cell->GetText()) : cell->GetText();
}

// Each line for itself.
void TGColumnFormats::Shorten(TGTextLook& look, TGEllipsis ellipsis, long width)
{
    CFont* const font = look.font != nullptr ? look.font : GetGrid()->GetFont();
    const auto widthOf = [&](const std::wstring& part) {
        return ruler->Measure(CString(part.c_str()), look.format, font).cx;
    };
    const std::wstring whole = look.text.GetString();
    if (ellipsis == TGEllipsis::None || widthOf(whole) <= width)
        return;
    std::wstring shortened;
    for (std::size_t from = 0; from <= whole.size();)
    {
        const std::size_t end = (std::min)(whole.find(L'\n', from), whole.size());
        shortened +=
            Shortened(whole.substr(from, end - from), ellipsis == TGEllipsis::Middle, width, widthOf);
        if (end < whole.size())
            shortened += L'\n';
        from = end + 1;
    }
    look.wholeText = look.text;
    look.text = Joined(shortened);
}

void TGColumnFormats::Align(TGTextLook& look, TGAlign align) const
{
    if (align == TGAlign::Default)
        return;
    const UINT wanted = align == TGAlign::Left ? DT_LEFT : align == TGAlign::Center ? DT_CENTER : DT_RIGHT;
    look.format = (look.format & ~Alignments) | wanted;
    if (align == TGAlign::Right)
        look.inset.right += RightMargin;
}

namespace
{

TGAlign CellAlign(const TGColumnFormat& format)
{
    const bool isNumber = format.kind == TGValueKind::Number || format.kind == TGValueKind::Percent;
    return format.align == TGAlign::Default && isNumber ? TGAlign::Right : format.align;
}

} // namespace

void TGColumnFormats::ShapeText(TGGridCell& cell, const TGColumnFormat& format, TGTextLook& look)
{
    Align(look, CellAlign(format));
    if (IsBox(cell))
    {
        look.text.Empty();
        return;
    }
    const std::optional<CString> shaped = Shape(look.text, format);
    if (shaped)
        look.text = *shaped;
    const bool mustFit = shaped && format.kind != TGValueKind::Truth;
    if (look.text.IsEmpty() || (!mustFit && format.ellipsis == TGEllipsis::None))
        return;
    const long width = GetTextPlace(cell, look).Width();
    if (!mustFit)
        Shorten(look, format.ellipsis, width);
    else if (CFont* const font = look.font != nullptr ? look.font : GetGrid()->GetFont();
             ruler->Measure(look.text, look.format, font).cx > width)
        look.wholeText = std::exchange(look.text, NoRoom);
}

void TGColumnFormats::OnCellLook(TGGridCell& cell, TGTextLook& look)
{
    look.inset.top -= raise;
    const TGCellFormat own = FullCellFormat(cell);
    if (GetGrid() == nullptr)
        return;
    look.textColor = own.textColor != CLR_INVALID ? own.textColor : look.textColor;
    look.backColor = own.backColor != CLR_INVALID ? own.backColor : look.backColor;
    if (own.bold)
        look.font = BoldFont();
    if (const TGColumnFormat* const format = FindFormat(cell.GetCol()))
        ShapeText(cell, *format, look);
}

void TGColumnFormats::OnCaptionLook(TGGridCol& col, TGTextLook& look)
{
    look.inset.top -= raise;
    const TGColumnFormat* const format = FindFormat(col);
    if (format == nullptr)
        return;
    Align(look, format->captionAlign != TGAlign::Default ? format->captionAlign : CellAlign(*format));
    Shorten(look, format->captionEllipsis, GetTextPlace(col, look).Width());
}

// Made anew when the grid has another font.
CFont* TGColumnFormats::BoldFont()
{
    LOGFONT description = {};
    if (GetGrid()->GetFont()->GetLogFont(&description) == 0)
        return nullptr;
    if (boldFont.GetSafeHandle() == nullptr || std::memcmp(&description, &plainFont, sizeof(LOGFONT)) != 0)
    {
        plainFont = description;
        MakeBold(description);
        boldFont.DeleteObject();
        boldFont.CreateFontIndirect(&description);
    }
    return boldFont.GetSafeHandle() != nullptr ? &boldFont : nullptr;
}

// ---- Full lines

void TGColumnFormats::SetFullLines(bool on)
{
    fullLines = on;
    if (GetGrid() == nullptr)
        return;
    if (on)
        FitLines();
    else
        LeaveLines(*GetGrid());
}

void TGColumnFormats::OnLaidOut()
{
    FitLines();
}

// What the host sets as row space is the space above the full line. Lays out anew, which comes here again and
// finds all in order.
void TGColumnFormats::FitLines()
{
    TGGrid& grid = *GetGrid();
    if (!fullLines || grid.GetFont()->GetSafeHandle() == nullptr)
        return;
    const long letters = grid.GetRowHeight() - grid.GetRowSpace() - 1;
    const long missing = (std::max)(ruler->LineHeight(grid.GetFont()) - letters, 0L);
    if (raised && grid.GetRowSpace() == plainSpace + raise && missing == raise)
        return;
    if (!raised || grid.GetRowSpace() != plainSpace + raise)
        plainSpace = grid.GetRowSpace();
    raised = true;
    raise = missing;
    if (grid.GetRowSpace() != plainSpace + raise)
        grid.SetRowSpace(static_cast<int>(plainSpace + raise));
}

void TGColumnFormats::LeaveLines(TGGrid& grid)
{
    const bool isOwn = std::exchange(raised, false) && grid.GetRowSpace() == plainSpace + raise;
    const bool isHigher = std::exchange(raise, 0) != 0;
    if (isOwn && isHigher)
        grid.SetRowSpace(static_cast<int>(plainSpace));
}

} // namespace QuorUiCtr
