// Sizes of rows and columns of a splitter, as pure functions.
#pragma once

#include "afxext.h"

namespace quorfx
{

// The parts between panes: the border of a pane, the bar, and a box beside a scroll bar.
constexpr int splitBorderWidth = 2;
constexpr int splitBarWidth = 5;
constexpr int splitGap = 2 * splitBorderWidth + splitBarWidth;
constexpr int splitBoxWidth = 7;

// Gives the first count lines their ideal sizes as far as the room allows, and the last one the rest. room
// includes the gaps and the borders at both ends.
void FitLines(std::vector<SplitLine>& lines, int count, int room);
// Where a line begins.
int LineBegin(const std::vector<SplitLine>& lines, int index);
// The line behind whose end the position is in a gap; -1 for none.
int GapAt(const std::vector<SplitLine>& lines, int count, int position);

} // namespace quorfx
