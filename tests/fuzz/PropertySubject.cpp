// The mode of the property grid. Its owner changes properties, folds, selects, deletes, destroys.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Modes.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

#include "propgrid/CMFCPropertyGridCtrlEx.h"

#include <memory>
#include <vector>

namespace quor::fuzz
{

namespace
{

constexpr UINT GridId = 9;
constexpr int MostProperties = 25;

using Property = CMFCPropertyGridProperty;

class HostileProperties : public CMFCPropertyGridCtrlEx
{
public:
    bool refuses = false;

protected:
    BOOL ValidateItemData(Property*) override { return !refuses; }
};

class PropertySubject : public Subject
{
public:
    void Create(CWnd& parent) override;
    void Destroy() override { grid.reset(); }
    HWND Window() override { return grid ? grid->GetSafeHwnd() : nullptr; }
    void Call() override;
    void Check() override;
    unsigned long Digest() override;
    bool OnHostMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

private:
    std::vector<Property*> All() const;
    // Null when there is none.
    Property* Any() const;
    void Collect(Property* property, std::vector<Property*>& all) const;
    void CheckBelow(Property* property, Property* parent, bool& selectedIsThere) const;

    void Add();
    void Remove();
    void Change();
    void ChangeProperty(Property& property);
    void UseTitles();
    void ChangeLook();

    std::unique_ptr<HostileProperties> grid;
};

void PropertySubject::Create(CWnd& parent)
{
    grid = std::make_unique<HostileProperties>();
    grid->Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 410, 310), &parent, GridId);
    for (long i = Dice().Between(1, 10); i > 0; --i)
        Add();
}

void PropertySubject::Collect(Property* property, std::vector<Property*>& all) const
{
    all.push_back(property);
    for (int i = 0; i < property->GetSubItemsCount(); ++i)
        Collect(property->GetSubItem(i), all);
}

std::vector<Property*> PropertySubject::All() const
{
    std::vector<Property*> all;
    for (int i = 0; i < grid->GetPropertyCount(); ++i)
        Collect(grid->GetProperty(i), all);
    return all;
}

Property* PropertySubject::Any() const
{
    const std::vector<Property*> all = All();
    return all.empty() ? nullptr : Dice().Pick(all);
}

Property* MakeProperty()
{
    const CString name = AnyText(6);
    switch (Dice().Below(8))
    {
    case 0:
        return new Property(name);
    case 1:
        return new Property(name, 0, TRUE);
    case 2:
        return new Property(name, _variant_t(Dice().OneIn(2)), L"true or false");
    case 3: {
        auto* const property =
            new Property(name, _variant_t(static_cast<long>(Dice().Below(200)), VT_I4), L"a number");
        property->EnableSpinControl(Dice().OneIn(2), 0, static_cast<int>(Dice().Below(300)));
        return property;
    }
    case 4:
        return new Property(name, _variant_t(0.5 * static_cast<double>(Dice().Below(99))), L"a fraction");
    case 5:
        return new Property(name, _variant_t(L"(123)"), L"a mask", 0, L" ddd ", L"(___)", L"0123456789");
    default: {
        auto* const property = new Property(name, _variant_t(AnyText()), AnyText());
        for (long i = Dice().Below(4); i > 0; --i)
            property->AddOption(AnyText(5));
        property->AllowEdit(!Dice().OneIn(3));
        return property;
    }
    }
}

void PropertySubject::Add()
{
    if (All().size() >= MostProperties)
        return;
    Property* const parent = Any();
    if (parent != nullptr && parent->IsGroup() && Dice().OneIn(5))
        grid->AddComboStringSubItem(parent, L"combo", AnyText(3),
                                    *std::make_unique<CArray<CString, const CString&>>(), L"x");
    else if (parent != nullptr && parent->IsGroup() && Dice().OneIn(5))
        grid->AddComboSubItem(parent, AnyText(4), L"a,<a,b,c>[one of three]");
    else if (parent != nullptr && !Dice().OneIn(3))
        parent->AddSubItem(MakeProperty());
    else
        grid->AddProperty(MakeProperty());
}

void PropertySubject::Remove()
{
    Property* property = Any();
    if (property == nullptr)
        return;
    if (Dice().OneIn(15))
        grid->RemoveAll();
    else if (property->GetParent() != nullptr)
        property->GetParent()->RemoveSubItem(property);
    else
        grid->DeleteProperty(property);
}

void PropertySubject::Change()
{
    if (Property* const property = Any())
        ChangeProperty(*property);
}

void PropertySubject::ChangeProperty(Property& property)
{
    switch (Dice().Below(11))
    {
    case 0:
        return property.SetName(AnyText(8));
    case 1:
        return property.SetDescription(AnyText());
    case 2:
        return property.Expand(Dice().OneIn(2));
    case 3:
        return property.Show(!Dice().OneIn(3));
    case 4:
        return property.Enable(!Dice().OneIn(3));
    case 5:
        return property.AllowEdit(!Dice().OneIn(3));
    case 6:
        return property.SetValue(property.GetValue());
    case 7:
        return property.ResetOriginalValue();
    case 8:
        return property.RemoveAllOptions();
    case 9:
        property.AddOption(AnyText(5));
        return;
    default:
        return property.Redraw();
    }
}

void PropertySubject::UseTitles()
{
    Property* const property = Any();
    const CString title = property != nullptr ? CString(property->GetName()) : CString(AnyText(4));
    CString text;
    double number = 0;
    COleVariant value;
    Property* found = nullptr;
    grid->GetItemByTitle(found, title);
    grid->GetItemValue(title, text);
    grid->GetItemValue(title, number);
    grid->GetItemValue(title, value);
    grid->SetItemValue(title, CString(AnyText()));
    grid->SetItemValue(title, static_cast<int>(Dice().Below(100)));
    grid->SetOptionItemCurSel(title, static_cast<int>(Dice().Between(-1, 4)));
    grid->GetOptionItemCurSel(title);
}

void PropertySubject::ChangeLook()
{
    const BOOL on = Dice().OneIn(2);
    switch (Dice().Below(9))
    {
    case 0:
        return grid->SetAlphabeticMode(on);
    case 1:
        return grid->EnableHeaderCtrl(on);
    case 2:
        return grid->EnableDescriptionArea(on);
    case 3:
        return grid->SetDescriptionRows(static_cast<int>(Dice().Below(8)));
    case 4:
        return grid->SetVSDotNetLook(on);
    case 5:
        return grid->SetGroupNameFullWidth(on);
    case 6:
        return grid->MarkModifiedProperties(on);
    case 7:
        return grid->ExpandAll(on);
    default:
        grid->refuses = Dice().OneIn(4);
        return;
    }
}

void PropertySubject::Call()
{
    const long kind = Dice().Below(9);
    Say("properties, kind %ld", kind);
    switch (kind)
    {
    case 0:
        return Add();
    case 1:
        return Remove();
    case 2:
    case 3:
        return Change();
    case 4:
        return UseTitles();
    case 5:
        return ChangeLook();
    case 6:
        if (Property* const property = Any())
            grid->EnsureVisible(property, Dice().OneIn(2));
        return;
    default:
        return grid->SetCurSel(Dice().OneIn(5) ? nullptr : Any());
    }
}

bool PropertySubject::OnHostMessage(UINT message, WPARAM, LPARAM, LRESULT&)
{
    if (message != AFX_WM_PROPERTY_CHANGED || Window() == nullptr || !WantsMischief(3))
        return false;
    const Mischief mischief("a change of a property");
    if (Dice().OneIn(12))
    {
        Say("DestroyWindow");
        grid->DestroyWindow();
    }
    else if (Dice().OneIn(4))
        SendAnyMessage(::GetParent(*grid), *grid);
    else
        Call();
    return false;
}

void PropertySubject::CheckBelow(Property* property, Property* parent, bool& selectedIsThere) const
{
    if (property->GetParent() != parent)
        Fail("a property has another parent");
    selectedIsThere = selectedIsThere || property == grid->GetCurSel();
    if (property->IsInPlaceEditing() && property != grid->GetCurSel())
        Fail("a property that is not selected is edited");
    for (int i = 0; i < property->GetSubItemsCount(); ++i)
        CheckBelow(property->GetSubItem(i), property, selectedIsThere);
}

void PropertySubject::Check()
{
    bool selectedIsThere = grid->GetCurSel() == nullptr;
    for (int i = 0; i < grid->GetPropertyCount(); ++i)
        CheckBelow(grid->GetProperty(i), nullptr, selectedIsThere);
    if (!selectedIsThere)
        Fail("a property is selected that is not in the grid");
    if (grid->GetCurSel() == nullptr && ::GetDlgItem(*grid, AFX_PROPLIST_ID_INPLACE) != nullptr)
        Fail("an editor is there and no property selected");
}

unsigned long PropertySubject::Digest()
{
    if (Window() == nullptr)
        return 0;
    return static_cast<unsigned long>(All().size() * 4 + (grid->GetCurSel() != nullptr ? 1u : 0u) +
                                      (grid->IsAlphabeticMode() ? 2u : 0u));
}

} // namespace

std::unique_ptr<Subject> MakePropertyMode(bool)
{
    return std::make_unique<PropertySubject>();
}

} // namespace quor::fuzz
