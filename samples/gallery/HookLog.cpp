// What the gallery's grids write about their hooks.
#include "HookLog.h"

#include "LogPane.h"

#include <utility>

namespace
{

using samples::HookCall;
using samples::HookGroup;

template <class... Values> CString Formatted(const wchar_t* format, Values... values)
{
    CString text;
    text.Format(format, values...);
    return text;
}

// The value of an argument of a call.
struct ValueText
{
    CString operator()(long number) const { return Formatted(L"%ld", number); }
    CString operator()(bool flag) const { return Formatted(L"%d", static_cast<int>(flag)); }
    CString operator()(samples::Supplied supplied) const { return supplied.object ? L"supplied" : L"null"; }
    CString operator()(CPoint point) const { return Formatted(L"%ld,%ld", point.x, point.y); }
    CString operator()(const CString* text) const { return L"\"" + *text + L"\""; }
    CString operator()(const QuorUiCtr::TGGridRow* row) const { return (*this)(row->GetIndex()); }
    CString operator()(const QuorUiCtr::TGGridTreeRow* row) const { return (*this)(row->GetIndex()); }
    CString operator()(const QuorUiCtr::TGGridCol* col) const { return (*this)(col->GetIndex()); }
    CString operator()(const QuorUiCtr::TGGridCell* cell) const
    {
        const CString place = Formatted(L"%ld,%ld", cell->GetRowIndex(), cell->GetColIndex());
        return group == HookGroup::Edit ? place + L" \"" + cell->GetText() + L"\"" : place;
    }

    HookGroup group;
};

} // namespace

void HookLog::Add(const HookCall& call)
{
    if (call.group == HookGroup::Paint)
        return Count(call);
    CString line(call.hook);
    const wchar_t* separator = L"  ";
    for (const samples::HookArgument& argument : call.arguments)
    {
        line += separator + CString(argument.name) + L" " + std::visit(ValueText{call.group}, argument.value);
        separator = L", ";
    }
    Add(line + std::exchange(remark, CString()));
}

void HookLog::Add(const CString& line)
{
    EndPainting();
    pane.Add(line);
}

void HookLog::Count(const HookCall& call)
{
    if (!logPainting)
        return;
    painted.rows += call.Is("OnRefresh row");
    painted.cells += call.Is("OnRefresh cell");
    painted.colours += call.Is("OnBeforeRefresh");
}

void HookLog::EndPainting()
{
    const PaintCount count = std::exchange(painted, {});
    if (count.rows + count.cells != 0)
        pane.Add(Formatted(L"OnRefresh  %ld rows, %ld cells; OnBeforeRefresh  %ld cells", count.rows,
                           count.cells, count.colours));
}
