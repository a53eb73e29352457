// CMFCPropertyGridCtrlEx: look-up, reading and writing by title.
#include "propgrid/CMFCPropertyGridCtrlEx.h"

#include "tests/support/PropertyHost.h"

#include <gtest/gtest.h>

using namespace quor::test;

namespace
{

using Property = CMFCPropertyGridProperty;

class ByTitle : public testing::Test
{
protected:
    void SetUp() override { Create(); }

    void Create() { ASSERT_TRUE(grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 300), &host, 7)); }

    Property* AddGroup(const wchar_t* name)
    {
        auto* const group = new Property(name);
        grid.AddProperty(group);
        return group;
    }
    static Property* AddTo(Property* group, const wchar_t* name, const _variant_t& value)
    {
        auto* const item = new Property(name, value);
        group->AddSubItem(item);
        return item;
    }
    Property* Find(const wchar_t* title)
    {
        Property* found = NULL;
        const int result = grid.GetItemByTitle(found, title);
        EXPECT_EQ(result, found != NULL ? 1 : 0);
        return found;
    }
    std::wstring Text(const wchar_t* title)
    {
        CString text = L"not assigned";
        EXPECT_EQ(grid.GetItemValue(title, text), 1);
        return Wide(text);
    }
    double Number(const wchar_t* title)
    {
        double number = -99;
        EXPECT_EQ(grid.GetItemValue(title, number), 1);
        return number;
    }

    PropertyHost host;
    CMFCPropertyGridCtrlEx grid;
};

// ---- Look-up.

TEST_F(ByTitle, TheEarlierGroupsPropertyIsFound)
{
    Property* const first = AddGroup(L"First");
    Property* const second = AddGroup(L"Second");
    AddTo(second, L"Same", _variant_t(L"second"));
    AddTo(first, L"Other", _variant_t(L"other"));
    Property* const earlier = AddTo(first, L"Same", _variant_t(L"first"));
    AddTo(first, L"Same", _variant_t(L"later in the first"));
    EXPECT_EQ(Find(L"Same"), earlier);
    EXPECT_EQ(grid.SetItemValue(L"Same", CString(L"changed")), 1);
    EXPECT_EQ(CString(first->GetSubItem(1)->GetValue()), L"changed");
    EXPECT_EQ(CString(second->GetSubItem(0)->GetValue()), L"second");
}

TEST_F(ByTitle, AGroupsOwnNameIsNoTitle)
{
    AddTo(AddGroup(L"Group"), L"Item", _variant_t(1L));
    grid.AddProperty(new Property(L"Alone", _variant_t(1L)));
    EXPECT_EQ(Find(L"Group"), nullptr);
    EXPECT_EQ(Find(L"Alone"), nullptr) << "a property of the first level is none either";
    EXPECT_NE(Find(L"Item"), nullptr);
}

TEST_F(ByTitle, DeeperPropertiesHaveNoTitle)
{
    auto* const inner = new Property(L"Inner");
    AddGroup(L"Group")->AddSubItem(inner);
    AddTo(inner, L"Deep", _variant_t(1L));
    EXPECT_EQ(Find(L"Inner"), inner);
    EXPECT_EQ(Find(L"Deep"), nullptr);
}

TEST_F(ByTitle, TitlesAreComparedExactly)
{
    Property* const group = AddGroup(L"Group");
    AddTo(group, L"Width", _variant_t(1L));
    Property* const lower = AddTo(group, L"width", _variant_t(2L));
    EXPECT_EQ(Find(L"width"), lower);
    EXPECT_EQ(Find(L"WIDTH"), nullptr);
    EXPECT_EQ(Find(L"width "), nullptr);
    EXPECT_EQ(Find(L"wid"), nullptr);
    EXPECT_EQ(Find(L""), nullptr);
    Property* const unnamed = AddTo(group, L"", _variant_t(3L));
    EXPECT_EQ(Find(L""), unnamed);
}

TEST_F(ByTitle, HiddenAndFoldedPropertiesAreFound)
{
    Property* const group = AddGroup(L"Group");
    Property* const item = AddTo(group, L"Item", _variant_t(1L));
    group->Expand(FALSE);
    item->Show(FALSE);
    EXPECT_EQ(Find(L"Item"), item);
}

TEST_F(ByTitle, AValueThatNoTextCanBeMadeOf_IsAnEmptyText)
{
    _variant_t failure;
    failure.vt = VT_ERROR;
    failure.scode = E_FAIL;
    Property* const item = AddTo(AddGroup(L"Group"), L"Item", failure);
    EXPECT_EQ(Text(L"Item"), L"");
    EXPECT_EQ(Number(L"Item"), 0);
    item->AddOption(L"0");
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), -1);
}

TEST_F(ByTitle, AnOptionOfAPropertyThatThereIsNot_ChangesNothing)
{
    AddTo(AddGroup(L"Group"), L"Item", _variant_t(L"one"));
    grid.SetOptionItemCurSel(L"None", 0);
    grid.SetOptionItemCurSel(L"Item", 0);
    grid.SetOptionItemCurSel(L"Item", -1);
    EXPECT_EQ(Text(L"Item"), L"one");
    EXPECT_EQ(grid.GetOptionItemCurSel(L"None"), -1);
}

TEST(ByTitleWithoutWindow, NothingIsFoundBeforeTheWindowExists)
{
    PropertyHost host;
    CMFCPropertyGridCtrlEx grid;
    auto* const group = new Property(L"Group");
    grid.AddProperty(group);
    group->AddSubItem(new Property(L"Item", _variant_t(L"7")));
    Property* found = group;
    EXPECT_EQ(grid.GetItemByTitle(found, L"Item"), 0);
    EXPECT_EQ(found, nullptr);
    CString text = L"before";
    double number = 3;
    COleVariant value(5L);
    EXPECT_EQ(grid.GetItemValue(L"Item", text), 0);
    EXPECT_EQ(grid.GetItemValue(L"Item", number), 0);
    EXPECT_EQ(grid.GetItemValue(L"Item", value), 0);
    EXPECT_EQ(grid.SetItemValue(L"Item", CString(L"x")), 0);
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), -1);
    grid.SetOptionItemCurSel(L"Item", 0);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(number, 0.0);

    ASSERT_TRUE(grid.Create(WS_CHILD, CRect(0, 0, 100, 100), &host, 7));
    EXPECT_EQ(grid.GetItemByTitle(found, L"Item"), 1);
    grid.DestroyWindow();
    EXPECT_EQ(grid.GetItemByTitle(found, L"Item"), 0) << "and after it is gone";
}

TEST(ByTitleWithoutWindow, NothingIsFoundThroughANullPointer)
{
    CMFCPropertyGridCtrlEx* volatile nothing = NULL;
    Property* found = NULL;
    EXPECT_EQ(nothing->GetItemByTitle(found, L"Item"), 0);
}

// ---- Reading.

TEST_F(ByTitle, TheVariantIsReadAsItIs)
{
    AddTo(AddGroup(L"Group"), L"Item", _variant_t(2.5));
    COleVariant value(L"old");
    EXPECT_EQ(grid.GetItemValue(L"Item", value), 1);
    EXPECT_EQ(value.vt, VT_R8);
    EXPECT_EQ(value.dblVal, 2.5);
    EXPECT_EQ(grid.GetItemValue(L"Missing", value), 0);
    EXPECT_EQ(value.dblVal, 2.5) << "not assigned";
}

TEST_F(ByTitle, EveryValueIsReadAsText)
{
    Property* const group = AddGroup(L"Group");
    AddTo(group, L"text", _variant_t(L" as it is "));
    AddTo(group, L"long", _variant_t(-5L));
    AddTo(group, L"double", _variant_t(2.5));
    AddTo(group, L"flag", _variant_t(true));
    AddTo(group, L"nothing", _variant_t());
    EXPECT_EQ(Text(L"text"), L" as it is ");
    EXPECT_EQ(Text(L"long"), L"-5");
    EXPECT_EQ(Text(L"double"), L"2.5") << "the variant's text, not the grid's format";
    EXPECT_EQ(Text(L"flag"), L"-1");
    EXPECT_EQ(Text(L"nothing"), L"");
    CString text = L"before";
    EXPECT_EQ(grid.GetItemValue(L"Missing", text), 0);
    EXPECT_EQ(text, L"");
}

TEST_F(ByTitle, AValueThatNoTextCanBeMadeOfReadsAsEmpty)
{
    // Bytes would be a text for some versions of the platform.
    _variant_t array;
    array.vt = VT_ARRAY | VT_I4;
    array.parray = ::SafeArrayCreateVector(VT_I4, 0, 4);
    AddTo(AddGroup(L"Group"), L"Item", array);
    EXPECT_EQ(Text(L"Item"), L"");
    EXPECT_EQ(Number(L"Item"), 0.0);
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), -1);
}

TEST_F(ByTitle, NumbersAreReadUpToTheFirstBlank)
{
    const struct
    {
        const wchar_t* text;
        double number;
    } readings[] = {
        {L"12.5 kg", 12.5},
        {L"12.5", 12.5},
        {L"1 000", 1},
        {L" 12.5 kg", 12.5}, // a blank in front does not
                             // cut
        {L"  7", 7},
        {L"3kg", 3},
        {L"kg 3", 0},
        {L"-2e3 m", -2000},
        {L"1\t2", 1},
        {L"", 0},
        {L" ", 0},
    };
    Property* const item = AddTo(AddGroup(L"Group"), L"Item", _variant_t(L""));
    for (const auto& reading : readings)
    {
        item->SetValue(_variant_t(reading.text));
        EXPECT_DOUBLE_EQ(Number(L"Item"), reading.number) << CStringA(reading.text).GetString();
    }
    item->SetValue(_variant_t(L"unchanged"));
    double number = 4;
    EXPECT_EQ(grid.GetItemValue(L"Missing", number), 0);
    EXPECT_EQ(number, 0.0);
}

TEST_F(ByTitle, NumbersAreReadFromEveryType)
{
    Property* const group = AddGroup(L"Group");
    AddTo(group, L"long", _variant_t(-5L));
    AddTo(group, L"double", _variant_t(0.125));
    AddTo(group, L"flag", _variant_t(true));
    EXPECT_EQ(Number(L"long"), -5.0);
    EXPECT_EQ(Number(L"double"), 0.125);
    EXPECT_EQ(Number(L"flag"), -1.0);
}

// ---- Writing.

TEST_F(ByTitle, EachOverloadWritesItsType)
{
    Property* const group = AddGroup(L"Group");
    Property* const number = AddTo(group, L"int", _variant_t(1));
    Property* const flag = AddTo(group, L"bool", _variant_t(false));
    Property* const text = AddTo(group, L"text", _variant_t(L"a"));
    Property* const real = AddTo(group, L"double", _variant_t(1.0));
    Property* const byte = AddTo(group, L"byte", _variant_t(static_cast<BYTE>(1)));
    EXPECT_EQ(grid.SetItemValue(L"int", 42), 1);
    EXPECT_EQ(number->GetValue().vt, VT_INT);
    EXPECT_EQ(number->GetValue().intVal, 42);
    EXPECT_EQ(grid.SetItemValue(L"bool", true), 1);
    EXPECT_EQ(flag->GetValue().vt, VT_BOOL);
    EXPECT_EQ(flag->GetValue().boolVal, VARIANT_TRUE);
    EXPECT_EQ(grid.SetItemValue(L"bool", false), 1);
    EXPECT_EQ(flag->GetValue().boolVal, 0);
    EXPECT_EQ(grid.SetItemValue(L"text", CString(L"b")), 1);
    EXPECT_EQ(CString(text->GetValue()), L"b");
    EXPECT_EQ(grid.SetItemValue(L"double", 2.5), 1);
    EXPECT_EQ(real->GetValue().dblVal, 2.5);
    EXPECT_EQ(grid.SetItemValue(L"byte", COleVariant(static_cast<BYTE>(200))), 1);
    EXPECT_EQ(byte->GetValue().bVal, 200);
    EXPECT_EQ(grid.SetItemValue(L"missing", 1), 0);
    EXPECT_EQ(grid.SetItemValue(L"missing", CString(L"x")), 0);
    EXPECT_EQ(grid.SetItemValue(L"missing", COleVariant(1L)), 0);
    EXPECT_EQ(grid.SetItemValue(L"missing", true), 0);
    EXPECT_EQ(grid.SetItemValue(L"missing", 1.0), 0);
    EXPECT_TRUE(host.TakeChanges().empty()) << "the program's own changes are not told";
}

TEST_F(ByTitle, AValueOfAnotherTypeChangesNothing)
{
    Property* const number = AddTo(AddGroup(L"Group"), L"long", _variant_t(1L));
    EXPECT_EQ(grid.SetItemValue(L"long", 5), 1) << "found, although VT_INT is not VT_I4";
    EXPECT_EQ(grid.SetItemValue(L"long", CString(L"5")), 1);
    EXPECT_EQ(grid.SetItemValue(L"long", 5.0), 1);
    EXPECT_EQ(grid.SetItemValue(L"long", COleVariant()), 1);
    EXPECT_EQ(number->GetValue().vt, VT_I4);
    EXPECT_EQ(number->GetValue().lVal, 1);
    EXPECT_EQ(grid.SetItemValue(L"long", COleVariant(5L)), 1);
    EXPECT_EQ(number->GetValue().lVal, 5);
}

TEST_F(ByTitle, APropertyWithoutAValueTakesAnyType)
{
    Property* const group = AddGroup(L"Group");
    Property* const text = AddTo(group, L"text", _variant_t());
    Property* const number = AddTo(group, L"number", _variant_t());
    EXPECT_EQ(grid.SetItemValue(L"text", CString(L"now")), 1);
    EXPECT_EQ(text->GetValue().vt, VT_BSTR);
    EXPECT_EQ(CString(text->GetValue()), L"now");
    EXPECT_EQ(grid.SetItemValue(L"number", 2.5), 1);
    EXPECT_EQ(number->GetValue().vt, VT_R8);
    EXPECT_EQ(grid.SetItemValue(L"number", 7), 1);
    EXPECT_EQ(number->GetValue().vt, VT_R8) << "it has a type from now on";
}

TEST_F(ByTitle, ClassesKnowTheirRunTimeType)
{
    EXPECT_TRUE(grid.IsKindOf(RUNTIME_CLASS(CMFCPropertyGridCtrl)));
    EXPECT_STREQ(grid.GetRuntimeClass()->m_lpszClassName, "CMFCPropertyGridCtrlEx");
}

} // namespace
