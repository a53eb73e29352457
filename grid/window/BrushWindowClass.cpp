// Registers and unregisters the window classes of the grid and its header bands.
#include "grid/window/BrushWindowClass.h"

namespace QuorUiCtr
{

namespace
{

constexpr UINT ClassStyle = CS_SAVEBITS | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;

} // namespace

BrushWindowClass::~BrushWindowClass()
{
    if (!name.IsEmpty())
        ::UnregisterClass(name, AfxGetInstanceHandle());
}

const CString& BrushWindowClass::Register(CBrush& background)
{
    if (name.IsEmpty())
        name = AfxRegisterWndClass(ClassStyle, ::LoadCursor(nullptr, IDC_ARROW), background, nullptr);
    return name;
}

} // namespace QuorUiCtr
