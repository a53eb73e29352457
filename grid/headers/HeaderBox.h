// The box that all header windows of the grid are made of.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// Draws the frame of a header box into `box` (logical coordinates of `context`): a raised line of one pixel
// when `flat`, else the platform's frame control. The inside of the box is left as it is.
void DrawHeaderBox(CDC& context, const CRect& box, bool flat);

} // namespace QuorUiCtr
