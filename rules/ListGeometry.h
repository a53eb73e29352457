// Where the columns of a report list and the editor of a cell go: rules over plain values.
#pragma once

#include "rules/Shapes.h"

#include <vector>

namespace QuorUiCtr
{

// The smallest width in pixels of a column whose cells can be edited.
constexpr int MinEditableWidth = 5;

// A part of a line, in client pixels; right is exclusive.
struct HorizontalSpan
{
    int left;
    int right;
};

// The display position of the column `index` in `order`, which lists column indices from left to right; -1
// when it is not there.
int PositionInOrder(const std::vector<int>& order, int index);

// Whether a column from `left` on is wholly inside a client area of that width.
bool IsColumnInside(int left, int width, int clientRight);

// Where the editor of a cell lies that begins at `left`: from 4 pixels inside the cell to one pixel behind
// it, at most to the end of the client area.
HorizontalSpan EditorSpan(int left, int width, int clientRight);

// What an editor of the client rectangle `current` becomes.
struct GrownEditor
{
    Box rectangle;
    bool needsRoom;      // whether more room is needed, also when there is none left
    bool needsScrollBar; // the text does not fit between the editor's top and the end of the list
};

// Makes room for `needed` within `list`. All rectangles are in client pixels of the list. Two pixels are left
// free at the right and bottom edges of the list. A rectangle that is large enough stays.
GrownEditor GrowEditor(const Box& current, Extent needed, const Box& list);

} // namespace QuorUiCtr
