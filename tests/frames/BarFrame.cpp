// The commands of the frame.
#include "tests/frames/BarFrame.h"

namespace quor::test
{

BEGIN_MESSAGE_MAP(BarFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(ID_RED, ID_YELLOW, OnColour)
    ON_UPDATE_COMMAND_UI(ID_GREEN, OnUpdateGreen)
    ON_UPDATE_COMMAND_UI(ID_BLUE, OnUpdateBlue)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_PLACE, OnUpdatePlace)
END_MESSAGE_MAP()

} // namespace quor::test
