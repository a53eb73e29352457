// The commands of the frame.
#include "tests/frames/BarFrame.h"

namespace quor::test
{

BEGIN_MESSAGE_MAP(BarFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(ID_RED, ID_YELLOW, &BarFrame::OnColour)
    ON_UPDATE_COMMAND_UI(ID_GREEN, &BarFrame::OnUpdateGreen)
    ON_UPDATE_COMMAND_UI(ID_BLUE, &BarFrame::OnUpdateBlue)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_PLACE, &BarFrame::OnUpdatePlace)
END_MESSAGE_MAP()

} // namespace quor::test
