// TGColumnFormats: how the cells and captions of columns look: alignment, dots for what does not fit, numbers
// and dates of the user's locale, check boxes, colours and bold cells.
#pragma once

#include "grid/TGGridExtension.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

namespace QuorUiCtr
{

class LocaleTexts;
class TextRuler;

// Where a text stands in its cell or caption.
enum class TGAlign
{
    // Numbers and percentages at the right, what else as the column is set: TGGridCol::SetCenterAlign.
    Default,
    Left,
    Center,
    Right
};

// Where dots stand for what does not fit.
enum class TGEllipsis
{
    // The text is cut.
    None,
    End,
    Middle
};

// What the texts of a column's cells are, and how they are shown. Texts that are something else are shown as
// they are.
enum class TGValueKind
{
    // As it is.
    Text,
    // "-1234.5", "1e6": with the marks of the locale. "####" when it does not fit.
    Number,
    // The same, a hundredfold and with a percent sign.
    Percent,
    // "2026-02-28", also with a time behind it: the day. "####" when it does not fit.
    Date,
    // "2026-02-28 13:05", also with seconds: the day and the time. "####" when it does not fit.
    DateTime,
    // "1" and "0", "true" and "false", "yes" and "no", "on" and "off": the words of the locale.
    Truth
};

// The format of a column. What is not set is as without a format.
struct TGColumnFormat
{
    // What the texts of the cells are.
    TGValueKind kind = TGValueKind::Text;
    // Of numbers and percentages, at most 99; -1: as many as the text has.
    int decimals = -1;
    // Numbers and percentages have marks between groups of digits.
    bool grouping = true;
    // The platform's picture of a date, L"dd.MM.yyyy"; empty: the user's short date.
    CString datePicture = {};
    // What is shown for Truth; empty: the words of the locale.
    CString trueText = {};
    CString falseText = {};
    // Where the texts of the cells stand.
    TGAlign align = TGAlign::Default;
    // Default: as the cells.
    TGAlign captionAlign = TGAlign::Default;
    // For texts that are shown as they are.
    TGEllipsis ellipsis = TGEllipsis::None;
    TGEllipsis captionEllipsis = TGEllipsis::None;
    // Truth values, and empty cells, are check boxes, which a click and Space turn over. No editor opens over
    // one.
    bool checkBox = false;
    // What an empty check box becomes when it is checked. Others get the opposite of what they hold, of the
    // same pair.
    CString checkedText = L"1";
    // Of the cells; CLR_INVALID: the column's.
    COLORREF textColor = CLR_INVALID;
    COLORREF backColor = CLR_INVALID;
    // The cells are drawn bold.
    bool bold = false;
    // The user can change no cell of the column.
    bool readOnly = false;
};

// What is special about one cell, beside the format of its column.
struct TGCellFormat
{
    // CLR_INVALID: the column's.
    COLORREF textColor = CLR_INVALID;
    COLORREF backColor = CLR_INVALID;
    // Drawn bold.
    bool bold = false;
    // The user can change it neither in an editor nor by keys and clicks of extensions. Programs can.
    bool readOnly = false;
};

// An extra that shows the texts of cells in other forms; the cells keep their texts, which are what editors
// show, what is sorted and what is copied.
//
//     QuorUiCtr::TGColumnFormats formats(grid);
//     formats.SetFormat(2, {.kind = QuorUiCtr::TGValueKind::Number, .decimals = 2});
//     formats.SetFormat(3, {.checkBox = true});
//     formats.SetFullLines(true);
//
// A column's format goes with the column, a cell's with its row, wherever they move; also when an extension
// has taken them over and puts them back. Rows that are cut or dragged in a tree are copies, which have none.
//
// A check box is turned over as if the other text had been typed: OnBeforeEdit and OnModified are asked, and
// OnDataChanged is told, which sends EN_CHANGE. Space is for the current cell of a TGCellCursor, or without
// one for the first check box of each selected row, all to the same value.
//
// It is called before extensions that came before it: what these want to look otherwise does.
class QUOR_EXT_CLASS TGColumnFormats : public TGGridExtension
{
public:
    TGColumnFormats();
    // Attaches.
    explicit TGColumnFormats(TGGrid& newGrid);
    ~TGColumnFormats() override;

    // ---- Columns

    // Gives a column a format, in place of the one it had. False, changing nothing, for a column that there
    // is not, and without a grid.
    bool SetFormat(long col, const TGColumnFormat& format);
    // The format of a column; one that changes nothing where there is none.
    TGColumnFormat GetFormat(long col) const;
    // Takes the format away; false where there was none.
    bool ClearFormat(long col);

    // ---- Cells

    // Gives a cell a format of its own. False, changing nothing, for a cell that there is not; the new-row
    // line has none.
    bool SetCellFormat(long row, long col, const TGCellFormat& format);
    // The cell's own format; one that changes nothing where there is none.
    TGCellFormat GetCellFormat(long row, long col) const;
    // Takes the formats of all cells away.
    void ClearCellFormats();
    // Is called for each cell that is drawn or about to be edited, with the format that it has by the column
    // and by SetCellFormat, and may change it: for looks that follow from texts. An empty function: nothing.
    void SetRule(std::function<void(const TGGridCell& cell, TGCellFormat& format)> newRule);

    // ---- All

    // Rows are as high as a line of the font with all that letters have above and below, instead of the
    // letters' height alone: adds the difference to the row space, and puts the texts into it. Back to the
    // row space before when it is switched off or the extension leaves.
    void SetFullLines(bool on);
    bool IsFullLines() const { return fullLines; }
    // The locale of numbers, dates and words, L"de-DE"; null or empty: the user's. False, changing nothing,
    // for a name that the platform does not know.
    bool SetLocale(const wchar_t* name);

    // What the cell shows, if there is room; empty for a check box and for a cell that there is not.
    CString GetShownText(long row, long col) const;
    // The cell is a check box, checked when `checked` is set afterwards.
    bool IsCheckBox(long row, long col, bool* checked = nullptr) const;
    // Turns a check box over as the user does. False when it is none or the change was refused.
    bool Toggle(long row, long col);

protected:
    void OnAttach() override;
    void OnDetach(TGGrid& oldGrid) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnCellLook(TGGridCell& cell, TGTextLook& look) override;
    bool OnDrawContent(TGGridCell& cell, CDC& context, const CRect& place, const TGTextLook& look) override;
    void OnCaptionLook(TGGridCol& col, TGTextLook& look) override;
    void OnLaidOut() override;
    bool IsCalledFirst() const override;
    bool OnEdit(TGGridCell& cell, TGEditWay way) override;
    void OnRowDeleted(const TGGridRow* row) override;

private:
    // What the texts of a column are drawn by.
    const TGColumnFormat* FindFormat(const TGGridCol& col) const;
    const TGCellFormat* FindCellFormat(const TGGridCell& cell) const;
    TGCellFormat FullCellFormat(TGGridCell& cell) const;
    bool HasRow(const TGGridCell& cell) const;
    std::optional<CString> Shape(const CString& text, const TGColumnFormat& format) const;
    void ShapeText(TGGridCell& cell, const TGColumnFormat& format, TGTextLook& look);
    void Shorten(TGTextLook& look, TGEllipsis ellipsis, long width);
    void Align(TGTextLook& look, TGAlign align) const;
    CFont* BoldFont();
    void ShowAll() const;

    // Check boxes.
    bool IsBox(const TGGridCell& cell) const;
    bool IsChecked(const TGGridCell& cell) const;
    CRect BoxPlace(const CRect& place, TGAlign align) const;
    bool IsOnBox(CPoint point, long& row, long& col) const;
    void ReleaseAt(CPoint point);
    bool PressSpace();
    bool ToggleCell(TGGridCell& cell);
    bool ToggleSelected();

    // Full lines.
    void FitLines();
    void LeaveLines(TGGrid& grid);

    std::map<unsigned, TGColumnFormat> columns;
    std::unordered_map<const TGGridRow*, std::map<unsigned, TGCellFormat>> cells;
    std::function<void(const TGGridCell&, TGCellFormat&)> rule;
    std::unique_ptr<LocaleTexts> locale;
    std::unique_ptr<TextRuler> ruler;
    // Bold, and the font that it was made of.
    CFont boldFont;
    LOGFONT plainFont = {};
    bool fullLines = false;
    // The row space without and with what full lines need, and by how much texts stand higher.
    long plainSpace = 0;
    long raise = 0;
    bool raised = false;
    // Goes with this object, which hooks may delete.
    std::shared_ptr<const int> life = std::make_shared<const int>(0);
    // The check box under the button that is down; -1: none.
    long pressedRow = -1;
    long pressedCol = -1;
};

} // namespace QuorUiCtr
