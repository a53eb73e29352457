// Steps around a fault of the platform's edit control.
#pragma once

#include <windows.h>

namespace quor::fuzz
{

// To be called when an edit is about to be created, before its first message. One line that does not scroll
// refuses what does not fit; here the platform's edit takes characters away in front of its own text then, as
// soon as the rest of the text does not fit either, and writes there. So each line scrolls.
void KeepTextInside(HWND edit);

} // namespace quor::fuzz
