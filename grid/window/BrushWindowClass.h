// The window class of a window that has a background brush of its own.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// Registers a window class for one brush and unregisters it at the end of its life. A class is named after
// its brush: without unregistering, every window made would leave a class behind until the process has used
// up its class names. Declare it behind the brush and destroy the window before.
class BrushWindowClass
{
public:
    BrushWindowClass() = default;
    ~BrushWindowClass();
    BrushWindowClass(const BrushWindowClass&) = delete;
    BrushWindowClass& operator=(const BrushWindowClass&) = delete;

    // Registers the class (arrow cursor, double clicks, redrawn when resized) once and returns its name.
    const CString& Register(CBrush& background);

private:
    CString name;
};

} // namespace QuorUiCtr
