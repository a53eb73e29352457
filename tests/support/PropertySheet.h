// A property grid with one property of each kind, in a host window.
#pragma once

#include "tests/support/PropertyHost.h"

#include <gtest/gtest.h>

namespace quor::test
{

// A grid whose editing tests may begin and end.
class EditableGrid : public CMFCPropertyGridCtrl
{
public:
    using CMFCPropertyGridCtrl::EditItem;
    using CMFCPropertyGridCtrl::EndEditItem;
};

// The grid has the control id 7 and is 400 x 300 pixels. Its rows:
//   0 Texts:   1 Title "Draft"  2 Code (mask)  3 Fixed (read-only)  4 Off (disabled)
//   5 Numbers: 6 Count 5  7 Level 3 (spin, 0 to 9)  8 Ratio 0.5
//   9 Choices: 10 Visible True  11 Shape Circle (choose only)  12 Unit mm (choose or type)
//   13 Size "10, 20" (value list, folded)
class PropertySheetTest : public testing::Test
{
protected:
    static constexpr UINT GridId = 7;

    void SetUp() override
    {
        ASSERT_TRUE(grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 400, 300), &host, GridId));
        Fill();
        grid.UpdateWindow();
    }

    using Property = CMFCPropertyGridProperty;

    static Property* Add(Property* parent, Property* child)
    {
        parent->AddSubItem(child);
        return child;
    }

    void Fill()
    {
        texts = new Property(L"Texts");
        title = Add(texts, new Property(L"Title", _variant_t(L"Draft"), L"What the sheet is called"));
        code = Add(texts, new Property(L"Code", _variant_t(L"AB-12"), L"Two letters and two digits", 0,
                                       L"CC DD", L"__-__"));
        fixed = Add(texts, new Property(L"Fixed", _variant_t(L"cannot be typed")));
        fixed->AllowEdit(FALSE);
        off = Add(texts, new Property(L"Off", _variant_t(L"grey")));
        off->Enable(FALSE);
        numbers = new Property(L"Numbers");
        count = Add(numbers, new Property(L"Count", _variant_t(5L)));
        level = Add(numbers, new Property(L"Level", _variant_t(3)));
        level->EnableSpinControl(TRUE, 0, 9);
        ratio = Add(numbers, new Property(L"Ratio", _variant_t(0.5)));
        choices = new Property(L"Choices");
        visible = Add(choices, new Property(L"Visible", _variant_t(true)));
        shape = Add(choices, new Property(L"Shape", _variant_t(L"Circle")));
        for (const wchar_t* option : {L"Circle", L"Square", L"Star"})
            shape->AddOption(option);
        shape->AllowEdit(FALSE);
        unit = Add(choices, new Property(L"Unit", _variant_t(L"mm")));
        for (const wchar_t* option : {L"mm", L"cm", L"inch"})
            unit->AddOption(option);
        size = new Property(L"Size", 0, TRUE);
        width = Add(size, new Property(L"Width", _variant_t(10)));
        height = Add(size, new Property(L"Height", _variant_t(20)));
        for (Property* group : {texts, numbers, choices, size})
            grid.AddProperty(group);
    }

    // A point on the name, the value or the button of a property's row.
    CPoint NamePoint(const Property* property) const
    {
        const CRect row = property->GetRect();
        return CPoint(row.left + grid.GetLeftColumnWidth() - 20, row.CenterPoint().y);
    }
    CPoint ValuePoint(const Property* property) const
    {
        const CRect row = property->GetRect();
        return CPoint(row.left + grid.GetLeftColumnWidth() + 20, row.CenterPoint().y);
    }
    CPoint ButtonPoint(const Property* property) const
    {
        const CRect row = property->GetRect();
        return CPoint(row.right - grid.GetRowHeight() / 2, row.CenterPoint().y);
    }
    CPoint BoxPoint(const Property* property) const
    {
        const CRect row = property->GetRect();
        return CPoint(row.left + grid.GetRowHeight() / 2, row.CenterPoint().y);
    }

    // The open editor, NULL for none.
    CWnd* Editor() const
    {
        const Property* const selected = grid.GetCurSel();
        if (selected == NULL || !selected->IsInPlaceEditing())
            return NULL;
        for (CWnd* child = grid.GetWindow(GW_CHILD); child != NULL; child = child->GetWindow(GW_HWNDNEXT))
            if (child->GetDlgCtrlID() == AFX_PROPLIST_ID_INPLACE && ClassOf(*child) == L"Edit")
                return child;
        return NULL;
    }
    CWnd* Combo() const
    {
        for (CWnd* child = grid.GetWindow(GW_CHILD); child != NULL; child = child->GetWindow(GW_HWNDNEXT))
            if (ClassOf(*child) == L"ComboBox")
                return child;
        return NULL;
    }
    std::wstring EditorText() const
    {
        CString text;
        if (const CWnd* const editor = Editor())
            editor->GetWindowText(text);
        return Wide(text);
    }
    static std::wstring ClassOf(const CWnd& window)
    {
        wchar_t name[32] = L"";
        ::GetClassName(window.m_hWnd, name, 32);
        return name;
    }
    std::wstring Selected() const { return grid.GetCurSel() == NULL ? L"" : grid.GetCurSel()->GetName(); }
    static std::wstring Text(Property* property) { return Wide(property->FormatProperty()); }

    PropertyHost host;
    EditableGrid grid;
    Property* texts = nullptr;
    Property* title = nullptr;
    Property* code = nullptr;
    Property* fixed = nullptr;
    Property* off = nullptr;
    Property* numbers = nullptr;
    Property* count = nullptr;
    Property* level = nullptr;
    Property* ratio = nullptr;
    Property* choices = nullptr;
    Property* visible = nullptr;
    Property* shape = nullptr;
    Property* unit = nullptr;
    Property* size = nullptr;
    Property* width = nullptr;
    Property* height = nullptr;
};

} // namespace quor::test
