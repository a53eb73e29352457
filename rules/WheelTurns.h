// What turns of a mouse wheel mean in pixels, and what fine turns add up to.
#pragma once

namespace QuorUiCtr
{

// What a setting of the system that counts lines or characters says for "a page".
constexpr unsigned WheelPages = 0xFFFFFFFFU;

// The pixels that one notch scrolls: `setting` lines or characters of `unit` pixels, and never more than a
// page, which is `page` pixels. 0 when the user wants none.
int WheelStep(unsigned setting, int unit, int page);

// The pixels for a turn by `delta`, 120 of which are a notch of `step` pixels. What is less than a pixel
// stays in `rest`, one for each direction of scrolling, for the turns that follow; a turn the other way drops
// it.
int TakeWheelTurn(int delta, int step, int& rest);

} // namespace QuorUiCtr
