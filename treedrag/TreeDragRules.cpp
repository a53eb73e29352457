// The rules of dragging items in a tree that need no window.
#include "treedrag/TreeDragRules.h"

namespace QuorUiCtr
{

DropPlace DropPlaceAt(const RECT& row, int y, bool isOpenFolder)
{
    if (y < (row.top + row.bottom) / 2)
        return DropPlace::BeforeItem;
    return isOpenFolder ? DropPlace::BeforeFirstChild : DropPlace::AfterItem;
}

std::array<LineStroke, 6> InsertionLine(const RECT& item, int clientRight, bool above)
{
    const LONG middle = above ? item.top : item.bottom;
    const LONG left = item.left;
    const LONG right = clientRight - 2;
    const LONG top = middle - 3;
    const LONG bottom = middle + 3;
    return {{
        {{left, bottom}, {left, top}},
        {{left + 1, bottom - 1}, {left + 1, top + 1}},
        {{left + 2, bottom - 2}, {right - 1, bottom - 2}},
        {{left + 2, bottom - 3}, {right - 1, bottom - 3}},
        {{right - 1, bottom - 1}, {right - 1, top + 1}},
        {{right, bottom}, {right, top}},
    }};
}

ScrollStep ScrollStepFor(int coordinate, int low, int high, int margin, int position, int limit)
{
    if (coordinate < low - margin && position >= 1)
        return ScrollStep::Back;
    if (coordinate > high + margin && position != limit)
        return ScrollStep::Forward;
    return ScrollStep::None;
}

bool IsSameName(const CString& left, const CString& right)
{
    return left.CompareNoCase(right) == 0;
}

CString FreeFolderName(const CString& base, const std::function<bool(const CString&)>& isFree)
{
    CString name = base;
    for (int number = 1; !isFree(name); ++number)
        name.Format(L"%s %d", static_cast<LPCTSTR>(base), number);
    return name;
}

} // namespace QuorUiCtr
