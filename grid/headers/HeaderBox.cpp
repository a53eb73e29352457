// Draws header boxes, flat or as frame controls.
#include "grid/headers/HeaderBox.h"

namespace QuorUiCtr
{

namespace
{

const COLORREF flatLight = RGB(240, 240, 240);
const COLORREF flatDark = RGB(80, 80, 80);

// Passed on as they are, although the type is none of the platform's named frame controls.
const UINT frameControlType = 8;
const UINT frameControlState = 0;

} // namespace

void DrawHeaderBox(CDC& context, const CRect& box, bool flat)
{
    CRect frame = box;
    if (flat)
        context.Draw3dRect(&frame, flatLight, flatDark);
    else
        ::DrawFrameControl(context.GetSafeHdc(), &frame, frameControlType, frameControlState);
}

} // namespace QuorUiCtr
