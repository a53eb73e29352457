// CMFCPropertyGridCtrlEx: combo properties, their compact text and their current option.
#include "propgrid/CMFCPropertyGridCtrlEx.h"

#include "tests/support/PropertyHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <new>

using namespace quor::test;

namespace
{

using Property = CMFCPropertyGridProperty;
using Options = CArray<CString, const CString&>;

// Shows what a derived class can see.
class OpenGrid : public CMFCPropertyGridCtrlEx
{
public:
    Property* Last() const { return lastComboProperty; }
};

// A combo property as one line: "Name=value <a|b|c> description".
std::wstring Describe(Property* property)
{
    std::wstring line = property->GetName() + std::wstring(L"=") + Wide(property->FormatProperty()) + L" <";
    for (int i = 0; i < property->GetOptionCount(); ++i)
        line += (i == 0 ? L"" : L"|") + std::wstring(property->GetOption(i));
    return line + L"> " + Wide(property->GetDescription());
}

class Combos : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 300), &host, 7));
        group = new Property(L"Group");
        grid.AddProperty(group);
    }

    // What the compact text adds; empty for nothing.
    std::wstring Add(const wchar_t* specification)
    {
        const int before = group->GetSubItemsCount();
        grid.AddComboSubItem(group, L"Item", specification);
        if (group->GetSubItemsCount() == before)
            return L"";
        EXPECT_EQ(group->GetSubItemsCount(), before + 1);
        return Describe(group->GetSubItem(before));
    }

    PropertyHost host;
    OpenGrid grid;
    Property* group = nullptr;
};

TEST_F(Combos, AListMakesATextPropertyWithOptions)
{
    Options options;
    for (const wchar_t* option : {L"red", L"green", L"red", L"blue"})
        options.Add(option);
    grid.AddComboStringSubItem(group, L"Colour", L"green", options, L"of the line");
    ASSERT_EQ(group->GetSubItemsCount(), 1);
    Property* const combo = group->GetSubItem(0);
    EXPECT_EQ(Describe(combo), L"Colour=green <red|green|blue> of the line") << "equal options appear once";
    EXPECT_EQ(combo->GetValue().vt, VT_BSTR);
    EXPECT_EQ(combo->GetData(), 0u);
    EXPECT_TRUE(combo->IsAllowEdit()) << "the value may also be typed";
    EXPECT_EQ(grid.Last(), combo);
    EXPECT_TRUE(combo->IsKindOf(RUNTIME_CLASS(CMFCPropertyGridProperty)));
}

TEST_F(Combos, TheCompactTextHasValueOptionsAndDescription)
{
    EXPECT_EQ(Add(L"mm,<mm,cm,inch>[the unit]"), L"Item=mm <mm|cm|inch> the unit");
    EXPECT_EQ(Add(L" mm , noise <mm, cm >noise[ the unit ]noise"), L"Item= mm  <mm| cm >  the unit ");
    EXPECT_EQ(Add(L",<>[]"), L"Item= <> ");
    EXPECT_EQ(Add(L"a,<b>[c,<d>]"), L"Item=a <b> c,<d>");
    EXPECT_EQ(Add(L"a,b,<c>[d]"), L"Item=a <c> d") << "the first comma ends the value";
    EXPECT_EQ(Add(L"a,<b,>[d]"), L"Item=a <b|> d") << "what follows the last comma is an option";
    EXPECT_EQ(Add(L"[x],<b>[d]"), L"Item=[x] <b> d");
    EXPECT_EQ(Add(L"a,[x]<b>[d][e]"), L"Item=a <b> d") << "the description follows the options";
}

TEST_F(Combos, AnEmptyOptionListGivesOneEmptyOption)
{
    Add(L"v,<>[d]");
    ASSERT_EQ(group->GetSubItem(0)->GetOptionCount(), 1);
    EXPECT_STREQ(group->GetSubItem(0)->GetOption(0), L"");
}

TEST_F(Combos, AMalformedTextAddsNothing)
{
    for (const wchar_t* text : {L"", L"a", L"a<b>[c]", L"a,b", L"a,<b[c]", L"a,b>[c]", L"a,<b>", L"a,<b>[c",
                                L"a,<b>c]", L"a,[c]<b>", L"a,>b<[c]", L"a,<b>]c[", L"<a>,b[c]"})
        EXPECT_EQ(Add(text), L"") << CStringA(text).GetString();
    EXPECT_EQ(grid.Last(), nullptr);
}

TEST_F(Combos, WithoutAParentNothingIsAdded)
{
    Options options;
    grid.AddComboStringSubItem(NULL, L"Colour", L"red", options, L"");
    grid.AddComboSubItem(NULL, L"Colour", L"a,<b>[c]");
    EXPECT_EQ(grid.Last(), nullptr);
}

// ---- The remembered property.

TEST_F(Combos, TheLastComboPropertyIsForgottenWhenItIsDeleted)
{
    Add(L"a,<b>[c]");
    Add(L"d,<e>[f]");
    EXPECT_EQ(grid.Last(), group->GetSubItem(1));
    Property* first = group->GetSubItem(0);
    grid.DeleteProperty(first);
    EXPECT_NE(grid.Last(), nullptr) << "another one";
    Property* second = grid.Last();
    grid.DeleteProperty(second);
    EXPECT_EQ(grid.Last(), nullptr);
    Add(L"a,<b>[c]");
    grid.RemoveAll();
    EXPECT_EQ(grid.Last(), nullptr);
}

TEST(ComboLifetime, APropertyOutlivesTheGridThatMadeIt)
{
    Property group(L"elsewhere");
    {
        OpenGrid grid;
        grid.AddComboSubItem(&group, L"Item", L"a,<b>[c]");
        EXPECT_EQ(grid.Last(), group.GetSubItem(0));
    }
    EXPECT_EQ(Describe(group.GetSubItem(0)), L"Item=a <b> c");
}

TEST(ComboLifetime, TwoGridsRememberTheirOwn)
{
    auto group = std::make_unique<Property>(L"shared");
    OpenGrid first;
    OpenGrid second;
    first.AddComboSubItem(group.get(), L"One", L"a,<b>[c]");
    second.AddComboSubItem(group.get(), L"Two", L"a,<b>[c]");
    EXPECT_STREQ(first.Last()->GetName(), L"One");
    EXPECT_STREQ(second.Last()->GetName(), L"Two");
    group.reset();
    EXPECT_EQ(first.Last(), nullptr);
    EXPECT_EQ(second.Last(), nullptr);
}

// ---- The current option.

TEST_F(Combos, TheCurrentOptionIsTheOneThatEqualsTheValue)
{
    Add(L"cm,<mm,cm,inch>[unit]");
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), 1);
    grid.SetItemValue(L"Item", CString(L"CM"));
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), -1) << "case counts";
    grid.SetItemValue(L"Item", CString(L"mm"));
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), 0);
    grid.SetItemValue(L"Item", CString(L"inch"));
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), 2);
    grid.SetItemValue(L"Item", CString(L"mile"));
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Item"), -1);
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Missing"), -1);
}

TEST_F(Combos, TheCurrentOptionIsSetByIndex)
{
    Add(L"cm,<mm,cm,inch>[unit]");
    const auto value = [this] { return Wide(group->GetSubItem(0)->FormatProperty()); };
    grid.SetOptionItemCurSel(L"Item", 0);
    EXPECT_EQ(value(), L"mm");
    grid.SetOptionItemCurSel(L"Item", 2);
    EXPECT_EQ(value(), L"inch");
    for (int index : {-1, 3, INT_MAX, INT_MIN})
        grid.SetOptionItemCurSel(L"Item", index);
    EXPECT_EQ(value(), L"inch");
    grid.SetOptionItemCurSel(L"Missing", 0);
    EXPECT_EQ(value(), L"inch");
    EXPECT_TRUE(host.TakeChanges().empty());
}

TEST_F(Combos, AnOptionOfANumberMatchesItsText)
{
    auto* const number = new Property(L"Number", _variant_t(10L));
    group->AddSubItem(number);
    for (const wchar_t* option : {L"5", L"10"})
        number->AddOption(option);
    EXPECT_EQ(grid.GetOptionItemCurSel(L"Number"), 1);
    grid.SetOptionItemCurSel(L"Number", 0);
    EXPECT_EQ(number->GetValue().lVal, 10) << "a text is no number";
}

// The host owns the group until it is added: the memory of the grid may be anything by then.
TEST(ComboOutlivingItsGrid, LeavesItsMemoryAlone)
{
    alignas(CMFCPropertyGridCtrlEx) unsigned char memory[sizeof(CMFCPropertyGridCtrlEx)];
    auto group = std::make_unique<CMFCPropertyGridProperty>(L"group");
    auto* grid = new (memory) CMFCPropertyGridCtrlEx;
    CArray<CString, const CString&> options;
    options.Add(L"a");
    grid->AddComboStringSubItem(group.get(), L"choice", L"a", options, L"");
    ASSERT_EQ(group->GetSubItemsCount(), 1);
    grid->~CMFCPropertyGridCtrlEx();
    std::memset(memory, 0xA5, sizeof(memory));
    group.reset();
    EXPECT_TRUE(
        std::all_of(std::begin(memory), std::end(memory), [](unsigned char byte) { return byte == 0xA5; }));
}

} // namespace
