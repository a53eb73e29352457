// Where the columns of a report list and the editor of a cell go.
#include "rules/ListGeometry.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

constexpr int EditorIndent = 4;
constexpr int EditorShortening = 3;
constexpr int FreeEdge = 2;

} // namespace

int PositionInOrder(const std::vector<int>& order, int index)
{
    const auto found = std::find(order.begin(), order.end(), index);
    return found == order.end() ? -1 : static_cast<int>(found - order.begin());
}

bool IsColumnInside(int left, int width, int clientRight)
{
    return left >= 0 && left + width <= clientRight;
}

HorizontalSpan EditorSpan(int left, int width, int clientRight)
{
    const int editorLeft = left + EditorIndent;
    return {editorLeft, (std::min)(editorLeft + width - EditorShortening, clientRight)};
}

GrownEditor GrowEditor(const Box& current, Extent needed, const Box& list)
{
    GrownEditor grown{current, false, false};
    if (needed.width > current.Width())
    {
        grown.needsRoom = true;
        grown.rectangle.right = (std::min)(current.left + needed.width, list.right - FreeEdge);
    }
    if (needed.height > current.Height())
    {
        grown.needsRoom = true;
        grown.rectangle.bottom = current.top + needed.height;
        grown.needsScrollBar = grown.rectangle.bottom >= list.bottom - FreeEdge;
        if (grown.needsScrollBar)
            grown.rectangle.bottom = list.bottom - FreeEdge;
    }
    return grown;
}

} // namespace QuorUiCtr
