// CMFCPropertyGridCtrlEx: a property grid whose properties are reached by their titles.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcontrolbars.h>
#include <afxtempl.h>

class CPropertyGridComboProperty;

// A property grid for hosts that keep no pointers to properties: values are read and written by title, and
// drop-down (combo) properties are made from a list of options or from one compact text.
//
// A title is found only among the direct sub-items of the grid's first level (the groups), group by group;
// the first property with exactly that name, case included, is the one. Groups themselves and deeper
// properties have no title. Before the window exists nothing is found. Results are 1 when the property was
// found and 0 otherwise; nothing is reported to a user. Writing does not convert: a value whose type is not
// that of the property changes nothing, although the property counts as found. Writing does not notify the
// owner.
//
//     grid.AddProperty(group);                                   // groups and plain properties as ever
//     grid.AddComboSubItem(group, L"Unit", L"mm,<mm,inch>[Unit of lengths]");
//     grid.SetItemValue(L"Width", 12.5);
//     double width = 0;
//     grid.GetItemValue(L"Width", width);
//
// The grid owns its properties, as the base class does. A look-up walks the groups each time, so nothing has
// to be told when properties come and go. Titles and texts are passed by value: callers may pass the text of
// the property that is about to change.
class QUOR_EXT_CLASS CMFCPropertyGridCtrlEx : public CMFCPropertyGridCtrl
{
    DECLARE_DYNAMIC(CMFCPropertyGridCtrlEx)

public:
    // Without a window and without properties.
    CMFCPropertyGridCtrlEx();
    // Parts from a combo property that may outlive it, for that is deleted by the base class or by a host.
    ~CMFCPropertyGridCtrlEx() override;

    // The property with that title, which the grid owns; NULL when there is none. `property` is set in either
    // case.
    int GetItemByTitle(CMFCPropertyGridProperty*& property, CString title);

    // The value as it is; `value` stays as it is when the title is not found.
    int GetItemValue(CString title, COleVariant& value);
    // The value as a number: of its text, up to the first blank unless that is the first character, what
    // reads as a number. 0 when the title is not found. "12.5 kg" gives 12.5.
    int GetItemValue(CString title, double& value);
    // The value as a text; empty when the title is not found or the value is no text.
    int GetItemValue(CString title, CString& value);

    // Write the value as it is, as VT_INT, as VT_BOOL, as VT_BSTR and as VT_R8. A text literal is taken for a
    // flag: write CString(L"...").
    int SetItemValue(CString title, COleVariant value);
    int SetItemValue(CString title, int value);
    int SetItemValue(CString title, bool value);
    int SetItemValue(CString title, CString value);
    int SetItemValue(CString title, double value);

    // Adds a text property with a drop-down list to `parent`, which owns it from then on; equal options
    // appear once. `value` need not be one of them. `description` is what the grid shows at its lower edge.
    // Without a parent nothing is added.
    void AddComboStringSubItem(CMFCPropertyGridProperty* parent, CString name, CString value,
                               CArray<CString, const CString&>& options, CString description);
    // The same from "value,<option,option,...>[description]". A text that lacks the first comma, a bracket
    // or their order adds nothing. Blanks count.
    void AddComboSubItem(CMFCPropertyGridProperty* parent, CString name, CString specification);

    // The index of the option that the value equals, case included; -1 when there is none or no such title.
    int GetOptionItemCurSel(CString title);
    // Writes the option with that index as the value; an index out of range changes nothing.
    void SetOptionItemCurSel(CString title, int index);

protected:
    // What AddComboStringSubItem made last, for derived classes to set up further; NULL when it is deleted.
    CMFCPropertyGridProperty* lastComboProperty;

private:
    // Keeps lastComboProperty right when the property is deleted.
    friend class CPropertyGridComboProperty;
};
