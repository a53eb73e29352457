// Draws header boxes, flat or as frame controls.
#include "grid/headers/HeaderBox.h"

namespace QuorUiCtr
{

namespace
{

constexpr COLORREF FlatLight = RGB(240, 240, 240);
constexpr COLORREF FlatDark = RGB(80, 80, 80);

// Passed on as they are, although the type is none of the platform's named frame controls.
constexpr UINT FrameControlType = 8;
constexpr UINT FrameControlState = 0;

} // namespace

void DrawHeaderBox(CDC& context, const CRect& box, bool flat)
{
    CRect frame = box;
    if (flat)
        context.Draw3dRect(&frame, FlatLight, FlatDark);
    else
        ::DrawFrameControl(context.GetSafeHdc(), &frame, FrameControlType, FrameControlState);
}

} // namespace QuorUiCtr
