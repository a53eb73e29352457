// Reports as readable lines.
#include "tests/clipboard/ClipboardTest.h"

using namespace QuorUiCtr;

namespace quor::test
{

std::string Text(const TGClipboardReport& report)
{
    static constexpr const char* refusals[] = {
        "",          "nothing selected", "different shapes", "busy",       "nothing to paste",
        "too large", "memory",           "not allowed",      "no numbers", "running"};
    static constexpr const char* reasons[] = {"ReadOnly",      "NotEditable", "Rejected", "BeyondLastCol",
                                              "BeyondLastRow", "RowRefused",  "Gone"};
    std::string text = "done " + std::to_string(report.GetDone());
    if (report.GetRefusal() != TGClipboardRefusal::None)
        text = std::string("refused: ") + refusals[static_cast<int>(report.GetRefusal())] + ", " + text;
    if (report.GetRowsInserted() > 0)
        text += " +" + std::to_string(report.GetRowsInserted()) + " rows";
    if (report.GetRowsRemoved() > 0)
        text += " -" + std::to_string(report.GetRowsRemoved()) + " rows";
    if (report.GetLeft() == 0)
        return text;
    text += " left " + std::to_string(report.GetLeft()) + ":";
    for (const TGClipboardReport::Place& place : report.GetPlaces())
        text += " " + std::to_string(place.row) + "," + std::to_string(place.col) + " " +
                reasons[static_cast<int>(place.reason)];
    return text;
}

} // namespace quor::test
