// What the drags in the row header and in the column header have in common.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// How far the view moves in pixels at each step of a drag beyond its edge.
constexpr int AutoScrollStep = 5;

// Whether the key is down, as of the message that is being handled.
inline bool IsKeyHeld(int key)
{
    return (::GetKeyState(key) & 0x8000) != 0;
}

} // namespace QuorUiCtr
