// Typing into a mask.
#include "propertyrules/EditMask.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using quorfx::EditMask;

const EditMask Phone(L" ddd  ddd", L"(___) ___", L"");

std::wstring Typed(const EditMask& mask, const wchar_t* start, const wchar_t* characters)
{
    std::wstring text = mask.Complete(start);
    int caret = 0;
    for (; *characters != 0; ++characters)
        mask.Type(text, caret, *characters);
    return text;
}

TEST(EditMask, CompletesATextToItsTemplate)
{
    EXPECT_EQ(Phone.Complete(L""), L"(___) ___");
    EXPECT_EQ(Phone.Complete(L"(12x) 4"), L"(12_) 4__");
    EXPECT_EQ(Phone.Complete(L"(123) 456 and more"), L"(123) 456");
}

TEST(EditMask, TypesOverTheFixedCharacters)
{
    EXPECT_EQ(Typed(Phone, L"", L"123456"), L"(123) 456");
    EXPECT_EQ(Typed(Phone, L"", L"1a2b3"), L"(123) ___");
    EXPECT_EQ(Typed(Phone, L"(999) 999", L"1234567"), L"(123) 456");
}

TEST(EditMask, EachMaskCharacterHasItsKind)
{
    const struct
    {
        wchar_t kind;
        const wchar_t* fits;
        const wchar_t* doesNot;
    } kinds[] = {
        {L'D', L"09", L" a-"}, {L'd', L"0 ", L"a+"},    {L'+', L"5 +-", L"a."},
        {L'C', L"aZ", L"1 "},  {L'c', L"a ", L"1"},     {L'A', L"a1", L" -"},
        {L'a', L"a1 ", L"-"},  {L'*', L"a1 -~", L"\t"}, {L'?', L"", L"a1 ?"},
    };
    for (const auto& kind : kinds)
    {
        const EditMask mask(std::wstring(1, kind.kind), L"_", L"");
        for (const wchar_t* c = kind.fits; *c != 0; ++c)
            EXPECT_EQ(Typed(mask, L"", std::wstring(1, *c).c_str()), std::wstring(1, *c))
                << static_cast<int>(kind.kind) << " " << static_cast<int>(*c);
        for (const wchar_t* c = kind.doesNot; *c != 0; ++c)
            EXPECT_EQ(Typed(mask, L"", std::wstring(1, *c).c_str()), L"_")
                << static_cast<int>(kind.kind) << " " << static_cast<int>(*c);
    }
}

TEST(EditMask, ValidCharactersNarrowTheMaskAndWorkAlone)
{
    EXPECT_EQ(Typed(EditMask(L"DD", L"__", L"01"), L"", L"201"), L"01");
    const EditMask alone(L"", L"", L"abc");
    EXPECT_FALSE(alone.HasMask());
    EXPECT_TRUE(alone.IsValid(L'b'));
    EXPECT_FALSE(alone.IsValid(L'd'));
}

TEST(EditMask, ErasesToTheTemplateAndFindsFreePositions)
{
    std::wstring text = L"(123) 456";
    Phone.Erase(text, 2, 7);
    EXPECT_EQ(text, L"(1__) _56");
    Phone.Erase(text, -5, 100);
    EXPECT_EQ(text, L"(___) ___");
    EXPECT_EQ(Phone.FreeFrom(0), 1);
    EXPECT_EQ(Phone.FreeFrom(4), 6);
    EXPECT_EQ(Phone.FreeFrom(50), 9);
    EXPECT_EQ(Phone.FreeBefore(6), 3);
    EXPECT_EQ(Phone.FreeBefore(1), -1);
}

// A program may put any text into the edit control.
TEST(EditMask, ATextThatIsTooShortStays)
{
    std::wstring text = L"(12";
    int caret = 3;
    EXPECT_FALSE(Phone.Type(text, caret, L'3'));
    EXPECT_EQ(caret, 3);
    Phone.Erase(text, 0, 9);
    EXPECT_EQ(text, L"(__");
}

TEST(EditMask, AMaskOfAnotherLengthThanItsTemplateIsNone)
{
    EXPECT_FALSE(EditMask(L"DD", L"___", L"").HasMask());
}

} // namespace
