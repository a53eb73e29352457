// Random texts, in a few buffers that are used in turn.
#include "tests/fuzz/Texts.h"
#include "tests/fuzz/Step.h"

namespace quor::fuzz
{

namespace
{

constexpr long LongestText = 2000;

constexpr wchar_t OddCharacters[] = {L'\t',   L'\n',  L'\r',  L'&',   L'%',   L'\x01',
                                     L'\x7f', 0x0301, 0x200F, 0x3042, 0x4E2D, 0xFFFD};

} // namespace

wchar_t AnyCharacter()
{
    if (Dice().OneIn(6))
        return Dice().Pick(OddCharacters);
    return static_cast<wchar_t>(Dice().OneIn(2) ? Dice().Between('0', '9') : Dice().Between(' ', '~'));
}

const wchar_t* AnyText(long longest)
{
    static wchar_t buffers[4][LongestText + 1];
    static int next = 0;
    wchar_t* const text = buffers[next++ % 4];
    const long length = Dice().OneIn(200) ? Dice().Below(LongestText) : Dice().Below(longest + 1);
    for (long i = 0; i < length; ++i)
        text[i] = AnyCharacter();
    text[length] = L'\0';
    return text;
}

} // namespace quor::fuzz
