// Steps of a mouse wheel and their remainders.
#include "rules/WheelTurns.h"

#include <algorithm>

namespace QuorUiCtr
{

int WheelStep(unsigned setting, int unit, int page)
{
    const int most = (std::max)(page, 0);
    if (setting == WheelPages)
        return most;
    const long long wanted = static_cast<long long>(setting) * (std::max)(unit, 0);
    return static_cast<int>((std::min)(wanted, static_cast<long long>(most)));
}

// The rest counts parts of a pixel, as many to the pixel as a notch has.
int TakeWheelTurn(int delta, int step, int& rest)
{
    constexpr int PartsOfANotch = 120;
    constexpr long long MostPixels = 1 << 24;
    if ((delta < 0 && rest > 0) || (delta > 0 && rest < 0))
        rest = 0;
    const long long turned = static_cast<long long>(delta) * step + rest;
    rest = static_cast<int>(turned % PartsOfANotch);
    return static_cast<int>(std::clamp(turned / PartsOfANotch, -MostPixels, MostPixels));
}

} // namespace QuorUiCtr
