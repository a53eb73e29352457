// The property grid that is used by title.
#include "propgrid/CMFCPropertyGridCtrlEx.h"

#include "propgrid/ComboProperty.h"
#include "rules/ComboSpecification.h"

#include <cstdlib>
#include <string>

IMPLEMENT_DYNAMIC(CMFCPropertyGridCtrlEx, CMFCPropertyGridCtrl)

namespace
{

// Empty for a value that no text can be made of.
CString TextOf(const VARIANT& value)
{
    try
    {
        return CString(value);
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    return CString();
}

// The number that a text begins with; a unit behind a blank does not count.
double NumberOf(const CString& text)
{
    const int blank = text.Find(L' ');
    return _wtof(blank > 0 ? text.Left(blank) : text);
}

} // namespace

CMFCPropertyGridCtrlEx::CMFCPropertyGridCtrlEx() : lastComboProperty(nullptr) {}

CMFCPropertyGridCtrlEx::~CMFCPropertyGridCtrlEx()
{
    CPropertyGridComboProperty::PartFromLast(*this);
}

int CMFCPropertyGridCtrlEx::GetItemByTitle(CMFCPropertyGridProperty*& property, CString title)
{
    property = nullptr;
    if (GetSafeHwnd() == nullptr)
        return 0;
    for (int group = 0; group < GetPropertyCount(); ++group)
    {
        CMFCPropertyGridProperty* owner = GetProperty(group);
        for (int i = 0; i < owner->GetSubItemsCount(); ++i)
        {
            if (title.Compare(owner->GetSubItem(i)->GetName()) == 0)
            {
                property = owner->GetSubItem(i);
                return 1;
            }
        }
    }
    return 0;
}

int CMFCPropertyGridCtrlEx::GetItemValue(CString title, COleVariant& value)
{
    CMFCPropertyGridProperty* property = nullptr;
    if (!GetItemByTitle(property, title))
        return 0;
    value = static_cast<const VARIANT&>(property->GetValue());
    return 1;
}

int CMFCPropertyGridCtrlEx::GetItemValue(CString title, double& value)
{
    CString text;
    const int found = GetItemValue(title, text);
    value = NumberOf(text);
    return found;
}

int CMFCPropertyGridCtrlEx::GetItemValue(CString title, CString& value)
{
    CMFCPropertyGridProperty* property = nullptr;
    const int found = GetItemByTitle(property, title);
    value = found ? TextOf(property->GetValue()) : CString();
    return found;
}

int CMFCPropertyGridCtrlEx::SetItemValue(CString title, COleVariant value)
{
    CMFCPropertyGridProperty* property = nullptr;
    if (!GetItemByTitle(property, title))
        return 0;
    // The framework only asserts that the type is right.
    const VARTYPE type = property->GetValue().vt;
    if (type == VT_EMPTY || type == value.vt)
        property->SetValue(static_cast<const VARIANT&>(value));
    return 1;
}

int CMFCPropertyGridCtrlEx::SetItemValue(CString title, int value)
{
    COleVariant variant;
    variant.vt = VT_INT;
    variant.intVal = value;
    return SetItemValue(title, variant);
}

int CMFCPropertyGridCtrlEx::SetItemValue(CString title, bool value)
{
    COleVariant variant;
    variant.vt = VT_BOOL;
    variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return SetItemValue(title, variant);
}

int CMFCPropertyGridCtrlEx::SetItemValue(CString title, CString value)
{
    return SetItemValue(title, COleVariant(value));
}

int CMFCPropertyGridCtrlEx::SetItemValue(CString title, double value)
{
    return SetItemValue(title, COleVariant(value));
}

void CMFCPropertyGridCtrlEx::AddComboStringSubItem(CMFCPropertyGridProperty* parent, CString name,
                                                   CString value, CArray<CString, const CString&>& options,
                                                   CString description)
{
    if (parent == nullptr)
        return;
    CMFCPropertyGridProperty* property = new CPropertyGridComboProperty(*this, name, value, description);
    for (INT_PTR i = 0; i < options.GetCount(); ++i)
        property->AddOption(options[i], TRUE);
    parent->AddSubItem(property);
}

void CMFCPropertyGridCtrlEx::AddComboSubItem(CMFCPropertyGridProperty* parent, CString name,
                                             CString specification)
{
    const auto parts = QuorUiCtr::ParseComboSpecification(specification.GetString());
    if (!parts)
        return;
    CArray<CString, const CString&> options;
    for (const std::wstring& option : parts->options)
        options.Add(option.c_str());
    AddComboStringSubItem(parent, name, parts->value.c_str(), options, parts->description.c_str());
}

int CMFCPropertyGridCtrlEx::GetOptionItemCurSel(CString title)
{
    CMFCPropertyGridProperty* property = nullptr;
    if (!GetItemByTitle(property, title))
        return -1;
    const CString value = TextOf(property->GetValue());
    for (int i = 0; i < property->GetOptionCount(); ++i)
        if (value.Compare(property->GetOption(i)) == 0)
            return i;
    return -1;
}

void CMFCPropertyGridCtrlEx::SetOptionItemCurSel(CString title, int index)
{
    CMFCPropertyGridProperty* property = nullptr;
    if (GetItemByTitle(property, title) && index >= 0 && index < property->GetOptionCount())
        SetItemValue(title, CString(property->GetOption(index)));
}
