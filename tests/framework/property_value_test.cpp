// Property values as text and back.
#include "tests/support/PropertySheet.h"

#include <string>

using namespace quor::test;

namespace
{

_variant_t OfType(VARTYPE type)
{
    _variant_t value(0L);
    value.vt = type;
    return value;
}

class PropertyValueText : public PropertySheetTest
{
protected:
    void SetUp() override
    {
        PropertySheetTest::SetUp();
        grid.SetBoolLabels(L"Yes", L"No");
    }

    // A property in the grid.
    Property* Added(const _variant_t& value, const wchar_t* name = L"Value")
    {
        return Add(texts, new Property(name, value));
    }
    std::wstring Format(const _variant_t& value) { return Text(Added(value)); }
    // Gives the text to a property through the editor of a list that it is the only part of, because not
    // every type has an editor of its own for any text.
    void EnterIntoListOf(Property* part, const wchar_t* text)
    {
        auto* const list = new Property(L"List", 0, TRUE);
        list->AddSubItem(part);
        grid.AddProperty(list);
        ASSERT_TRUE(grid.EditItem(list));
        ASSERT_NE(Editor(), nullptr);
        Editor()->SetWindowText(text);
        grid.EndEditItem();
    }
};

TEST_F(PropertyValueText, EachTypeHasItsFormat)
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

TEST_F(PropertyValueText, OfAnUnusualType_HasNoTextAndIsNotEdited)
{
    _variant_t array;
    array.vt = VT_ARRAY | VT_UI1;
    array.parray = ::SafeArrayCreateVector(VT_UI1, 0, 4);
    Property* const property = Added(array);
    EXPECT_EQ(Text(property), L"");
    EXPECT_FALSE(grid.EditItem(property));
    EXPECT_FALSE(grid.EditItem(Added(_variant_t(12LL))));
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

TEST_F(PropertyValueText, IsReadByItsType)
{
    for (const Reading& reading : Readings)
    {
        SCOPED_TRACE(testing::Message()
                     << reading.type << " \"" << CStringA(reading.text).GetString() << '"');
        auto* const part = new Property(L"Part", OfType(reading.type));
        const std::wstring before = Text(part);
        EnterIntoListOf(part, reading.text);
        const bool isFlag = reading.type == VT_BOOL;
        EXPECT_EQ(Text(part), reading.result != NULL ? reading.result : isFlag ? L"No" : before);
        EXPECT_EQ(part->GetValue().vt, reading.type);
    }
}

TEST_F(PropertyValueText, ATextReplacesATextAndFreesIt)
{
    ASSERT_TRUE(grid.EditItem(title));
    Editor()->SetWindowText(L"");
    grid.EndEditItem();
    EXPECT_EQ(Text(title), L"");
    ASSERT_TRUE(grid.EditItem(title));
    Editor()->SetWindowText(L"new");
    grid.EndEditItem();
    EXPECT_EQ(Text(title), L"new");
}

} // namespace
