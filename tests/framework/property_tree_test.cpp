// The tree of properties: ownership, states, values, options. Without a window.
#include <afxcontrolbars.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

using Property = CMFCPropertyGridProperty;

// Counts how many of it are alive.
class Counted : public Property
{
public:
    explicit Counted(const wchar_t* name) : Property(name, _variant_t(1L)) { ++alive; }
    ~Counted() override { --alive; }

    static inline int alive = 0;
};

std::wstring Text(Property& property)
{
    return property.FormatProperty().GetString();
}

TEST(PropertyTree, TheGridDeletesItsPropertiesAndTheySubItems)
{
    {
        CMFCPropertyGridCtrl grid;
        auto* const group = new Property(L"Group");
        group->AddSubItem(new Counted(L"a"));
        grid.AddProperty(group);
        group->AddSubItem(new Counted(L"b"));
        grid.AddProperty(new Counted(L"c"));
        EXPECT_EQ(Counted::alive, 3);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(PropertyTree, RemoveAllDeletesAndTheGridCanBeFilledAgain)
{
    CMFCPropertyGridCtrl grid;
    grid.AddProperty(new Counted(L"a"));
    grid.AddProperty(new Counted(L"b"));
    grid.RemoveAll();
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_EQ(grid.GetPropertyCount(), 0);
    EXPECT_EQ(grid.AddProperty(new Counted(L"c")), 0);
}

TEST(PropertyTree, APropertyHasOneOwner)
{
    CMFCPropertyGridCtrl grid;
    CMFCPropertyGridCtrl other;
    auto* const group = new Property(L"Group");
    auto* const item = new Counted(L"a");
    EXPECT_EQ(grid.AddProperty(group), 0);
    EXPECT_EQ(grid.AddProperty(group), -1);
    EXPECT_EQ(other.AddProperty(group), -1);
    EXPECT_EQ(grid.AddProperty(NULL), -1);
    EXPECT_TRUE(group->AddSubItem(item));
    EXPECT_FALSE(group->AddSubItem(item));
    EXPECT_FALSE(group->AddSubItem(NULL));
    EXPECT_FALSE(group->AddSubItem(group));
    EXPECT_EQ(grid.AddProperty(item), -1);
    EXPECT_FALSE(item->AddSubItem(group)) << "a property cannot contain what contains it";
    EXPECT_EQ(group->GetSubItemsCount(), 1);
    EXPECT_EQ(grid.GetPropertyCount(), 1);
}

TEST(PropertyTree, DeletePropertyFindsItAtAnyDepth)
{
    CMFCPropertyGridCtrl grid;
    CMFCPropertyGridCtrl other;
    Property* group = new Property(L"Group");
    Property* item = new Counted(L"a");
    group->AddSubItem(item);
    grid.AddProperty(group);
    EXPECT_FALSE(other.DeleteProperty(item));
    EXPECT_TRUE(grid.DeleteProperty(item));
    EXPECT_EQ(item, nullptr);
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_EQ(group->GetSubItemsCount(), 0);
    EXPECT_TRUE(grid.DeleteProperty(group));
    EXPECT_FALSE(grid.DeleteProperty(group)) << "NULL is no property";
    EXPECT_EQ(grid.GetPropertyCount(), 0);
}

TEST(PropertyTree, APropertyDeletedByHandLeavesItsOwner)
{
    CMFCPropertyGridCtrl grid;
    auto* const group = new Property(L"Group");
    auto* const item = new Counted(L"a");
    group->AddSubItem(item);
    grid.AddProperty(group);
    delete item;
    EXPECT_EQ(group->GetSubItemsCount(), 0);
    delete group;
    EXPECT_EQ(grid.GetPropertyCount(), 0);
}

TEST(PropertyTree, RemoveSubItemGivesAPropertyBackOrDeletesIt)
{
    CMFCPropertyGridCtrl grid;
    auto* const group = new Property(L"Group");
    grid.AddProperty(group);
    Property* item = new Counted(L"a");
    group->AddSubItem(item);
    EXPECT_TRUE(group->RemoveSubItem(item, FALSE));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->GetParent(), nullptr);
    EXPECT_FALSE(group->RemoveSubItem(item));
    EXPECT_EQ(grid.AddProperty(item), 1) << "it can be owned again";
    Property* second = new Counted(L"b");
    group->AddSubItem(second);
    EXPECT_TRUE(group->RemoveSubItem(second));
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Counted::alive, 1);
}

TEST(PropertyTree, IndicesOutOfRangeGiveNull)
{
    CMFCPropertyGridCtrl grid;
    auto* const group = new Property(L"Group");
    grid.AddProperty(group);
    EXPECT_EQ(grid.GetProperty(0), group);
    EXPECT_EQ(grid.GetProperty(-1), nullptr);
    EXPECT_EQ(grid.GetProperty(1), nullptr);
    EXPECT_EQ(group->GetSubItem(0), nullptr);
    EXPECT_EQ(group->GetSubItem(-1), nullptr);
    EXPECT_EQ(group->GetOption(0), nullptr);
}

TEST(PropertyTree, LevelsFoldingAndVisibilityFollowTheParents)
{
    Property root(L"Root");
    auto* const inner = new Property(L"Inner");
    auto* const leaf = new Counted(L"leaf");
    root.AddSubItem(inner);
    inner->AddSubItem(leaf);
    root.AddSubItem(new Counted(L"second"));
    EXPECT_EQ(root.GetHierarchyLevel(), 0);
    EXPECT_EQ(leaf->GetHierarchyLevel(), 2);
    EXPECT_TRUE(leaf->IsParentExpanded());
    EXPECT_EQ(root.GetExpandedSubItems(), 3);
    inner->Expand(FALSE);
    EXPECT_FALSE(leaf->IsParentExpanded());
    EXPECT_EQ(root.GetExpandedSubItems(), 2);
    inner->Expand();
    leaf->Show(FALSE);
    EXPECT_EQ(root.GetExpandedSubItems(TRUE), 3);
    EXPECT_EQ(root.GetExpandedSubItems(FALSE), 2);
    leaf->Show();
    root.Show(FALSE);
    EXPECT_FALSE(leaf->IsVisible());
}

TEST(PropertyTree, GroupsBeginUnfoldedAndValueListsFolded)
{
    Property group(L"Group");
    Property list(L"List", 0, TRUE);
    Property value(L"Value", _variant_t(1L));
    EXPECT_TRUE(group.IsGroup());
    EXPECT_TRUE(group.IsExpanded());
    EXPECT_TRUE(list.IsGroup());
    EXPECT_FALSE(list.IsExpanded());
    EXPECT_FALSE(value.IsGroup());
}

TEST(PropertyTree, FindItemByDataLooksGroupByGroup)
{
    CMFCPropertyGridCtrl grid;
    auto* const group = new Property(L"Group", 1);
    auto* const item = new Property(L"a", _variant_t(1L), NULL, 5);
    auto* const later = new Property(L"b", _variant_t(1L), NULL, 5);
    group->AddSubItem(item);
    grid.AddProperty(group);
    grid.AddProperty(later);
    EXPECT_EQ(grid.FindItemByData(5), item);
    EXPECT_EQ(grid.FindItemByData(5, FALSE), later);
    EXPECT_EQ(grid.FindItemByData(6), nullptr);
    item->SetData(6);
    EXPECT_EQ(grid.FindItemByData(6), item);
}

// ---- Values.

TEST(PropertyValue, AValueOfAnotherTypeIsRefused)
{
    Property number(L"Number", _variant_t(7L));
    number.SetValue(_variant_t(L"text"));
    EXPECT_EQ(number.GetValue().vt, VT_I4);
    EXPECT_EQ(number.GetValue().lVal, 7);
    number.SetValue(_variant_t(8));
    EXPECT_EQ(number.GetValue().lVal, 7) << "VT_INT is not VT_I4";
    number.SetValue(_variant_t());
    EXPECT_EQ(Text(number), L"7");
    number.SetValue(_variant_t(8L));
    EXPECT_EQ(Text(number), L"8");
    Property text(L"Text", _variant_t(L"abc"));
    text.SetValue(_variant_t(3.5));
    EXPECT_EQ(Text(text), L"abc");
}

TEST(PropertyValue, AValueIsModifiedWhenItDiffersFromTheOriginal)
{
    Property text(L"Text", _variant_t(L"abc"));
    EXPECT_FALSE(text.IsModified());
    text.SetValue(_variant_t(L"abd"));
    EXPECT_TRUE(text.IsModified());
    text.SetValue(_variant_t(L"abc"));
    EXPECT_FALSE(text.IsModified());
    text.SetOriginalValue(COleVariant(L"xyz"));
    EXPECT_TRUE(text.IsModified());
    text.ResetOriginalValue();
    EXPECT_EQ(Text(text), L"xyz");
    EXPECT_FALSE(text.IsModified());
    EXPECT_EQ(CString(text.GetOriginalValue()), L"xyz");
}

TEST(PropertyValue, AValueListShowsItsPartsAndIsModifiedWithThem)
{
    CMFCPropertyGridCtrl grid;
    auto* const list = new Property(L"Place", 0, TRUE);
    auto* const x = new Property(L"x", _variant_t(1L));
    auto* const inner = new Property(L"Range", 0, TRUE);
    list->AddSubItem(x);
    list->AddSubItem(inner);
    inner->AddSubItem(new Property(L"from", _variant_t(2L)));
    inner->AddSubItem(new Property(L"to", _variant_t(L"end")));
    grid.AddProperty(list);
    EXPECT_EQ(Text(*list), L"1, 2, end");
    grid.SetListDelimiter(L';');
    EXPECT_EQ(Text(*list), L"1; 2; end");
    EXPECT_FALSE(list->IsModified());
    x->SetValue(_variant_t(9L));
    EXPECT_TRUE(list->IsModified());
    grid.ResetOriginalValues();
    EXPECT_EQ(Text(*list), L"1; 2; end");
    EXPECT_FALSE(list->IsModified());
}

TEST(PropertyValue, FlagsUseTheLabelsOfTheGrid)
{
    CMFCPropertyGridCtrl grid;
    auto* const flag = new Property(L"Flag", _variant_t(true));
    EXPECT_EQ(Text(*flag), L"True");
    grid.AddProperty(flag);
    grid.SetBoolLabels(L"on", L"off");
    EXPECT_EQ(Text(*flag), L"on");
    flag->SetValue(_variant_t(false));
    EXPECT_EQ(Text(*flag), L"off");
}

TEST(PropertyValue, NumbersUseTheFormatsOfTheClass)
{
    const CString before = Property::m_strFormatDouble;
    Property::m_strFormatDouble = L"%.1f m/s";
    Property speed(L"Speed", _variant_t(2.25));
    EXPECT_EQ(Text(speed), L"2.3 m/s");
    Property::m_strFormatDouble = before;
    EXPECT_EQ(Text(speed), L"2.250000");
}

// ---- Options.

TEST(PropertyOptions, EqualTextsAreRefusedOnDemand)
{
    Property choice(L"Choice", _variant_t(L"a"));
    EXPECT_TRUE(choice.AddOption(L"a"));
    EXPECT_FALSE(choice.AddOption(L"a"));
    EXPECT_TRUE(choice.AddOption(L"A")) << "case makes a difference";
    EXPECT_TRUE(choice.AddOption(L"a", FALSE));
    EXPECT_FALSE(choice.AddOption(NULL));
    ASSERT_EQ(choice.GetOptionCount(), 3);
    EXPECT_STREQ(choice.GetOption(2), L"a");
    choice.RemoveAllOptions();
    EXPECT_EQ(choice.GetOptionCount(), 0);
}

} // namespace
