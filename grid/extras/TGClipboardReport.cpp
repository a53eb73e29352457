// The report of a clipboard command: counting, and its text.
#include "grid/extras/TGClipboardReport.h"

#include "module/QuorTexts.h"

#include <numeric>

namespace QuorUiCtr
{
namespace
{

// In the order of TGClipboardAction.
constexpr QuorText ActionTexts[] = {QuorText::ClipboardCopied, QuorText::ClipboardCut,
                                    QuorText::ClipboardPasted, QuorText::ClipboardFilled,
                                    QuorText::ClipboardEmptied};
// In the order of TGClipboardRefusal, behind None.
constexpr QuorText RefusalTexts[] = {
    QuorText::ClipboardNothingSelected, QuorText::ClipboardDifferentShapes, QuorText::ClipboardBusy,
    QuorText::ClipboardNothingToPaste,  QuorText::ClipboardTooLarge,        QuorText::ClipboardNoMemory,
    QuorText::ClipboardNotAllowed,      QuorText::ClipboardNoNumbers,       QuorText::ClipboardRunning};
// In the order of TGCellLeft.
constexpr QuorText LeftTexts[] = {QuorText::ClipboardLeftReadOnly,  QuorText::ClipboardLeftNotEditable,
                                  QuorText::ClipboardLeftRejected,  QuorText::ClipboardLeftBeyondCol,
                                  QuorText::ClipboardLeftBeyondRow, QuorText::ClipboardLeftRowRefused,
                                  QuorText::ClipboardLeftGone};

void AddLine(CString& text, CString line)
{
    if (!text.IsEmpty())
        text += L"\n";
    text += line;
}

// The number in the place of "%1".
void AddCount(CString& text, QuorText words, long number)
{
    CString digits;
    digits.Format(L"%ld", number);
    CString line = QuorTexts::Get(words);
    line.Replace(L"%1", digits);
    AddLine(text, line);
}

} // namespace

long TGClipboardReport::GetLeft() const
{
    return std::accumulate(std::begin(left), std::end(left), 0L);
}

void TGClipboardReport::Leave(TGCellLeft reason, long row, long col, long number)
{
    left[static_cast<std::size_t>(reason)] += number;
    for (long i = 0; i < number && places.size() < MaxPlaces; ++i)
        places.push_back({row, col + i, reason});
}

CString TGClipboardReport::GetText() const
{
    CString text;
    if (refusal != TGClipboardRefusal::None)
        AddLine(text, QuorTexts::Get(RefusalTexts[static_cast<std::size_t>(refusal) - 1]));
    if (done > 0 || (refusal == TGClipboardRefusal::None && rowsRemoved == 0))
        AddCount(text, ActionTexts[static_cast<std::size_t>(action)], done);
    if (rowsInserted > 0)
        AddCount(text, QuorText::ClipboardRowsInserted, rowsInserted);
    if (rowsRemoved > 0)
        AddCount(text, QuorText::ClipboardRowsRemoved, rowsRemoved);
    for (std::size_t i = 0; i < Reasons; ++i)
        if (left[i] > 0)
            AddCount(text, LeftTexts[i], left[i]);
    return text;
}

} // namespace QuorUiCtr
