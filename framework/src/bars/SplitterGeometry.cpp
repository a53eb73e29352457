// Sizes of rows and columns of a splitter.
#include "bars/SplitterGeometry.h"

namespace quorfx
{

void FitLines(std::vector<SplitLine>& lines, int count, int room)
{
    int rest = (std::max)(0, room - 2 * splitBorderWidth - (count - 1) * splitGap);
    for (int index = 0; index < count; ++index)
    {
        SplitLine& line = lines[static_cast<size_t>(index)];
        const bool isLast = index == count - 1;
        // What would be too small to see is not shown at all.
        const int wanted = line.ideal < line.least ? 0 : line.ideal;
        line.current = isLast ? rest : (std::min)(wanted, rest);
        rest -= line.current;
    }
}

int LineBegin(const std::vector<SplitLine>& lines, int index)
{
    int position = splitBorderWidth;
    for (int before = 0; before < index; ++before)
        position += lines[static_cast<size_t>(before)].current + splitGap;
    return position;
}

int GapAt(const std::vector<SplitLine>& lines, int count, int position)
{
    for (int index = 0; index < count - 1; ++index)
    {
        const int end = LineBegin(lines, index) + lines[static_cast<size_t>(index)].current;
        if (position >= end && position < end + splitGap)
            return index;
    }
    return -1;
}

} // namespace quorfx
