// Property values as text and back; typing into a mask.
#include "propertygrid/EditMask.h"
#include "propertygrid/PropertyValueText.h"

#include <afxcontrolbars.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

const quorfx::FlagLabels Labels = {L"Yes", L"No"};

std::wstring Format(const _variant_t& value)
{
    return quorfx::FormatValue(value, Labels).GetString();
}

_variant_t OfType(VARTYPE type)
{
    _variant_t value(0L);
    value.vt = type;
    return value;
}

TEST(PropertyValueText, EachTypeHasItsFormat)
{
    EXPECT_EQ(Format(_variant_t(L"plain, with 100%")), L"plain, with 100%");
    EXPECT_EQ(Format(_variant_t(static_cast<short>(-3))), L"-3");
    EXPECT_EQ(Format(_variant_t(-70000L)), L"-70000");
    EXPECT_EQ(Format(_variant_t(-7)), L"-7");
    EXPECT_EQ(Format(_variant_t(static_cast<unsigned short>(65535))), L"65535");
    EXPECT_EQ(Format(_variant_t(4000000000UL)), L"4000000000");
    EXPECT_EQ(Format(_variant_t(4000000000U)), L"4000000000");
    EXPECT_EQ(Format(_variant_t(1.5f)), L"1.500000");
    EXPECT_EQ(Format(_variant_t(-0.25)), L"-0.250000");
    EXPECT_EQ(Format(_variant_t(static_cast<BYTE>('x'))), L"x");
    EXPECT_EQ(Format(_variant_t(static_cast<BYTE>(0))), L"");
    EXPECT_EQ(Format(_variant_t(true)), L"Yes");
    EXPECT_EQ(Format(_variant_t(false)), L"No");
    EXPECT_EQ(Format(_variant_t()), L"");
    EXPECT_EQ(Format(_variant_t(12345678901LL)), L"12345678901") << "other types as the system writes them";
}

TEST(PropertyValueText, AnUnusualTypeHasNoTextAndIsNotEdited)
{
    _variant_t array;
    array.vt = VT_ARRAY | VT_UI1;
    array.parray = ::SafeArrayCreateVector(VT_UI1, 0, 4);
    EXPECT_EQ(Format(array), L"");
    EXPECT_FALSE(quorfx::IsEditableType(array.vt));
    EXPECT_FALSE(quorfx::IsEditableType(VT_I8));
    EXPECT_FALSE(quorfx::ParseValue(L"1", Labels, array));
}

struct Reading
{
    VARTYPE type;
    const wchar_t* text;
    const wchar_t* result; // NULL for no such value
};

constexpr Reading Readings[] = {
    {VT_I4, L"12", L"12"},
    {VT_I4, L"  -12 ", L"-12"},
    {VT_I4, L"12 mm", L"12"},
    {VT_I4, L"abc", NULL},
    {VT_I4, L"", NULL},
    {VT_I4, L"2147483647", L"2147483647"},
    {VT_I4, L"2147483648", NULL},
    {VT_INT, L"-2147483648", L"-2147483648"},
    {VT_INT, L"-2147483649", NULL},
    {VT_I2, L"32767", L"32767"},
    {VT_I2, L"32768", NULL},
    {VT_UI2, L"65535", L"65535"},
    {VT_UI2, L"-1", NULL},
    {VT_UI4, L"4294967295", L"4294967295"},
    {VT_UI4, L"4294967296", NULL},
    {VT_UINT, L"-1", NULL},
    {VT_UINT, L"99999999999999999999", NULL},
    {VT_R8, L"2.5e3", L"2500.000000"},
    {VT_R8, L"1e999", NULL},
    {VT_R8, L"nan", NULL},
    {VT_R8, L"x", NULL},
    {VT_R4, L"0.5", L"0.500000"},
    {VT_R4, L"1e300", NULL},
    {VT_UI1, L"q", L"q"},
    {VT_UI1, L"qq", NULL},
    {VT_UI1, L"\x4E2D", NULL},
    {VT_BOOL, L"yes", L"Yes"},
    {VT_BOOL, L"NO", L"No"},
    {VT_BOOL, L"true", NULL},
};

TEST(PropertyValueText, TextIsReadByTheType)
{
    for (const Reading& reading : Readings)
    {
        SCOPED_TRACE(testing::Message()
                     << reading.type << " \"" << CStringA(reading.text).GetString() << '"');
        _variant_t value = OfType(reading.type);
        const std::wstring before = Format(value);
        const bool read = quorfx::ParseValue(reading.text, Labels, value);
        EXPECT_EQ(read, reading.result != NULL);
        EXPECT_EQ(Format(value), reading.result != NULL ? reading.result : before);
        EXPECT_EQ(value.vt, reading.type);
    }
}

TEST(PropertyValueText, ATextReplacesATextAndFreesIt)
{
    _variant_t value(L"old");
    EXPECT_TRUE(quorfx::ParseValue(L"", Labels, value));
    EXPECT_EQ(Format(value), L"");
    EXPECT_TRUE(quorfx::ParseValue(L"new", Labels, value));
    EXPECT_EQ(Format(value), L"new");
}

// ---- Masks.

const quorfx::EditMask Phone(L" ddd  ddd", L"(___) ___", L"");

std::wstring Typed(const quorfx::EditMask& mask, const wchar_t* start, const wchar_t* characters)
{
    CString text = mask.Complete(start);
    int caret = 0;
    for (; *characters != 0; ++characters)
        mask.Type(text, caret, *characters);
    return text.GetString();
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
        {L'D', L"09", L" a-"}, {L'd', L"0 ", L"a+"}, {L'+', L"5 +-", L"a."}, {L'C', L"aZ", L"1 "},
        {L'c', L"a ", L"1"},   {L'A', L"a1", L" -"}, {L'a', L"a1 ", L"-"},   {L'*', L"a1 -~", L"\t"},
    };
    for (const auto& kind : kinds)
    {
        const quorfx::EditMask mask(CString(kind.kind), L"_", L"");
        for (const wchar_t* c = kind.fits; *c != 0; ++c)
            EXPECT_EQ(Typed(mask, L"", CString(*c)), std::wstring(1, *c))
                << static_cast<int>(kind.kind) << " " << static_cast<int>(*c);
        for (const wchar_t* c = kind.doesNot; *c != 0; ++c)
            EXPECT_EQ(Typed(mask, L"", CString(*c)), L"_")
                << static_cast<int>(kind.kind) << " " << static_cast<int>(*c);
    }
}

TEST(EditMask, ValidCharactersNarrowTheMaskAndWorkAlone)
{
    EXPECT_EQ(Typed(quorfx::EditMask(L"DD", L"__", L"01"), L"", L"201"), L"01");
    const quorfx::EditMask alone(L"", L"", L"abc");
    EXPECT_FALSE(alone.HasMask());
    EXPECT_TRUE(alone.IsValid(L'b'));
    EXPECT_FALSE(alone.IsValid(L'd'));
}

TEST(EditMask, ErasesToTheTemplateAndFindsFreePositions)
{
    CString text = L"(123) 456";
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

TEST(EditMask, AMaskOfAnotherLengthThanItsTemplateIsNone)
{
    EXPECT_FALSE(quorfx::EditMask(L"DD", L"___", L"").HasMask());
}

} // namespace
