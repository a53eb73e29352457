// The rules of dragging items in a tree.
#include "rules/TreeDragRules.h"

namespace QuorUiCtr
{

DropPlace DropPlaceAt(const Box& row, int y, bool isOpenFolder)
{
    if (y < (row.top + row.bottom) / 2)
        return DropPlace::BeforeItem;
    return isOpenFolder ? DropPlace::BeforeFirstChild : DropPlace::AfterItem;
}

std::array<LineStroke, 6> InsertionLine(const Box& item, int clientRight, bool above)
{
    const int middle = above ? item.top : item.bottom;
    const int left = item.left;
    const int right = clientRight - 2;
    const int top = middle - 3;
    const int bottom = middle + 3;
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

std::wstring FreeFolderName(const std::wstring& base, const std::function<bool(const std::wstring&)>& isFree)
{
    std::wstring name = base;
    for (int number = 1; !isFree(name); ++number)
        name = base + L' ' + std::to_wstring(number);
    return name;
}

} // namespace QuorUiCtr
