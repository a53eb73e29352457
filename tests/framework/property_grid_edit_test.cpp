// Editing in a property grid without real input: opening, closing, telling the owner, and hosts that
// interfere.
#include "tests/support/PropertySheet.h"

#include "tests/support/GuiHandles.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"
#include "tests/support/Snapshot.h"

#include <memory>

using namespace quor::test;

namespace
{

class PropertyGridEdit : public PropertySheetTest
{
protected:
    // Opens a property, replaces the text and takes it.
    BOOL Enter(Property* property, const wchar_t* text)
    {
        EXPECT_TRUE(grid.EditItem(property));
        if (Editor() == NULL)
            return FALSE;
        Editor()->SetWindowText(text);
        return grid.EndEditItem();
    }
};

TEST_F(PropertyGridEdit, AChangeByTheUserIsToldOnceAndSetValueIsNot)
{
    title->SetValue(_variant_t(L"by program"));
    EXPECT_EQ(host.TakeChanges(), Changes{});
    EXPECT_TRUE(Enter(title, L"by user"));
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=by user"});
    EXPECT_TRUE(Enter(title, L"by user"));
    EXPECT_EQ(host.TakeChanges(), Changes{}) << "nothing changed";
}

TEST_F(PropertyGridEdit, TheOwnerIsToldNotTheParent)
{
    PropertyHost owner;
    grid.SetOwner(&owner);
    Enter(title, L"owned");
    EXPECT_EQ(host.TakeChanges(), Changes{});
    EXPECT_EQ(owner.TakeChanges(), Changes{L"7 Title=owned"});
}

TEST_F(PropertyGridEdit, ATextThatIsNoNumberLeavesTheValue)
{
    EXPECT_TRUE(Enter(count, L"many"));
    EXPECT_EQ(count->GetValue().lVal, 5);
    EXPECT_TRUE(Enter(count, L"99999999999"));
    EXPECT_EQ(count->GetValue().lVal, 5);
    EXPECT_EQ(host.TakeChanges(), Changes{});
    EXPECT_TRUE(Enter(count, L"5 ")) << "the same number, written in another way";
    EXPECT_EQ(host.TakeChanges(), Changes{});
}

TEST_F(PropertyGridEdit, ASpinRangeHoldsForTypedNumbersToo)
{
    Enter(level, L"50");
    EXPECT_EQ(Text(level), L"9");
    Enter(level, L"-50");
    EXPECT_EQ(Text(level), L"0");
    EXPECT_EQ(host.TakeChanges(), (Changes{L"7 Level=9", L"7 Level=0"}));
}

TEST_F(PropertyGridEdit, APartOfAValueListTellsItself)
{
    size->Expand();
    Enter(width, L"15");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Width=15"});
    EXPECT_EQ(Text(size), L"15, 20");
}

TEST_F(PropertyGridEdit, PartsOfAValueListThatAreNoValuesStay)
{
    Enter(size, L"x, 21, 99");
    EXPECT_EQ(Text(size), L"10, 21");
    height->Enable(FALSE);
    Enter(size, L"11, 22");
    EXPECT_EQ(Text(size), L"11, 21");
    Enter(size, L"12");
    EXPECT_EQ(Text(size), L"12, 21");
    Enter(size, L"");
    EXPECT_EQ(host.TakeChanges(), (Changes{L"7 Size=10, 21", L"7 Size=11, 21", L"7 Size=12, 21"}));
}

TEST_F(PropertyGridEdit, WhatCannotBeEditedDoesNotOpen)
{
    EXPECT_FALSE(grid.EditItem(texts));
    EXPECT_FALSE(grid.EditItem(fixed));
    EXPECT_FALSE(grid.EditItem(off));
    Property stranger(L"Stranger", _variant_t(1L));
    EXPECT_FALSE(grid.EditItem(&stranger));
    grid.SetCurSel(&stranger);
    EXPECT_EQ(grid.GetCurSel(), nullptr);
    auto* const date = new Property(L"Big", _variant_t(12LL));
    texts->AddSubItem(date);
    EXPECT_FALSE(grid.EditItem(date)) << "a type that has no editor";
    numbers->Expand(FALSE);
    EXPECT_FALSE(grid.EditItem(count)) << "no row";
}

TEST_F(PropertyGridEdit, EditingAPropertySelectsAndShowsIt)
{
    grid.SetWindowPos(NULL, 0, 0, 400, 120, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(grid.EditItem(unit));
    EXPECT_EQ(Selected(), L"Unit");
    CRect editor;
    Editor()->GetWindowRect(editor);
    grid.ScreenToClient(editor);
    const CRect row = unit->GetRect();
    EXPECT_GE(editor.top, row.top);
    EXPECT_LE(editor.bottom, row.bottom);
    EXPECT_GT(editor.left, grid.GetLeftColumnWidth());
    EXPECT_LE(editor.right, ButtonPoint(unit).x) << "beside the button";
    EXPECT_LE(row.bottom, grid.GetListRect().bottom);
}

TEST_F(PropertyGridEdit, ChooseOnlyEditorsAreReadOnly)
{
    grid.EditItem(shape);
    EXPECT_TRUE(Editor()->GetStyle() & ES_READONLY);
    grid.EditItem(unit);
    EXPECT_FALSE(Editor()->GetStyle() & ES_READONLY);
    grid.EditItem(visible);
    EXPECT_TRUE(Editor()->GetStyle() & ES_READONLY);
}

TEST_F(PropertyGridEdit, SetValueShowsInAnOpenEditor)
{
    grid.EditItem(title);
    title->SetValue(_variant_t(L"from outside"));
    EXPECT_EQ(EditorText(), L"from outside");
    EXPECT_TRUE(grid.EndEditItem());
    EXPECT_EQ(host.TakeChanges(), Changes{});
    grid.EditItem(title);
    title->ResetOriginalValue();
    EXPECT_EQ(EditorText(), L"Draft");
}

TEST_F(PropertyGridEdit, DisablingClosesTheEditorWithoutEffect)
{
    grid.EditItem(title);
    Editor()->SetWindowText(L"lost");
    title->Enable(FALSE);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Text(title), L"Draft");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(PropertyGridEdit, TheEditorMovesWithItsRow)
{
    grid.EditItem(unit);
    const auto editorTop = [&] {
        CRect rect;
        Editor()->GetWindowRect(rect);
        grid.ScreenToClient(rect);
        return rect.top;
    };
    const int before = editorTop() - unit->GetRect().top;
    numbers->Expand(FALSE);
    grid.UpdateWindow();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(editorTop() - unit->GetRect().top, before);
    grid.SetWindowPos(NULL, 0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER);
    grid.UpdateWindow();
    CRect rect;
    Editor()->GetWindowRect(rect);
    grid.ScreenToClient(rect);
    EXPECT_GT(rect.left, 150);
    EXPECT_LT(rect.right, 300);
}

TEST_F(PropertyGridEdit, ANewFontReachesTheOpenEditor)
{
    CFont large;
    large.CreatePointFont(180, L"Tahoma");
    grid.EditItem(title);
    Editor()->SetWindowText(L"typed");
    grid.SetFont(&large);
    grid.UpdateWindow();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(EditorText(), L"typed");
    EXPECT_EQ(Editor()->GetFont()->m_hObject, large.m_hObject);
    CRect rect;
    Editor()->GetWindowRect(rect);
    EXPECT_GT(rect.Height(), grid.GetRowHeight() - 6);
    EXPECT_TRUE(grid.EndEditItem());
    EXPECT_EQ(Text(title), L"typed");
    grid.SetFont(NULL);
}

// ---- Derived grids and properties.

class StrictGrid : public EditableGrid
{
public:
    bool accepts = true;
    std::vector<std::wstring> selections;

protected:
    BOOL ValidateItemData(CMFCPropertyGridProperty*) override { return accepts; }
    void OnChangeSelection(CMFCPropertyGridProperty* now, CMFCPropertyGridProperty* before) override
    {
        selections.push_back(std::wstring(before == NULL ? L"-" : before->GetName()) + L">" +
                             (now == NULL ? L"-" : now->GetName()));
    }
};

TEST(PropertyGridDerived, ARefusedValueKeepsEditorAndSelection)
{
    PropertyHost host;
    StrictGrid grid;
    grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host, 7);
    auto* const first = new CMFCPropertyGridProperty(L"First", _variant_t(1L));
    auto* const second = new CMFCPropertyGridProperty(L"Second", _variant_t(2L));
    grid.AddProperty(first);
    grid.AddProperty(second);
    grid.EditItem(first);
    grid.accepts = false;
    EXPECT_FALSE(grid.EndEditItem());
    grid.SetCurSel(second);
    EXPECT_EQ(grid.GetCurSel(), first);
    EXPECT_FALSE(grid.EditItem(second));
    EXPECT_TRUE(first->IsInPlaceEditing());
    EXPECT_TRUE(grid.EndEditItem(FALSE)) << "giving up needs no consent";
    grid.accepts = true;
    grid.SetCurSel(second);
    grid.SetCurSel(NULL);
    EXPECT_EQ(grid.selections, (std::vector<std::wstring>{L"->First", L"First>Second", L"Second>-"}));
}

// Its editor is a plain edit control.
class PlainEditorProperty : public CMFCPropertyGridProperty
{
public:
    PlainEditorProperty() : CMFCPropertyGridProperty(L"Plain", _variant_t(L"start")) {}

protected:
    CWnd* CreateInPlaceEdit(CRect rect, BOOL& defaultFormat) override
    {
        auto* const edit = new CEdit;
        edit->Create(WS_CHILD | WS_VISIBLE | ES_PASSWORD, rect, m_pWndList, AFX_PROPLIST_ID_INPLACE);
        defaultFormat = TRUE;
        return edit;
    }
};

TEST_F(PropertyGridEdit, AnEditorOfTheProgramsOwnTakesPartInTheFocus)
{
    auto* const plain = new PlainEditorProperty;
    texts->AddSubItem(plain);
    ASSERT_TRUE(grid.EditItem(plain));
    EXPECT_EQ(EditorText(), L"start");
    Editor()->SetWindowText(L"secret");
    host.SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return Editor() == NULL; }));
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Plain=secret"});
}

// Keeps its editor open while the focus is elsewhere, tells of changes that it makes itself, and decides what
// a change is.
class OwnWillProperty : public CMFCPropertyGridProperty
{
public:
    OwnWillProperty() : CMFCPropertyGridProperty(L"Own", _variant_t(L"start")) {}

    bool stays = true;
    bool changed = false;
    HWND newFocus = NULL;

    void ChangeTo(LPCTSTR text)
    {
        m_varValue = text;
        m_pWndList->OnPropertyChanged(this);
    }
    using CMFCPropertyGridProperty::IsSubItem;

protected:
    BOOL OnKillFocus(CWnd* pNewWnd) override
    {
        newFocus = pNewWnd->GetSafeHwnd();
        return !stays;
    }
    BOOL IsValueChanged() const override { return changed; }
};

TEST_F(PropertyGridEdit, APropertyMayKeepItsEditorWithoutTheFocus)
{
    auto* const own = new OwnWillProperty;
    texts->AddSubItem(own);
    ASSERT_TRUE(grid.EditItem(own));
    host.SetFocus();
    EXPECT_TRUE(own->IsInPlaceEditing());
    EXPECT_EQ(own->newFocus, host.m_hWnd);
    Editor()->SetFocus();
    own->stays = false;
    host.SetFocus();
    EXPECT_FALSE(own->IsInPlaceEditing());
}

TEST_F(PropertyGridEdit, APropertyMayTellOfItsOwnChangesAndDecideWhatIsOne)
{
    auto* const own = new OwnWillProperty;
    texts->AddSubItem(own);
    own->ChangeTo(L"by itself");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Own=by itself"});
    EXPECT_FALSE(own->IsModified());
    own->changed = true;
    EXPECT_TRUE(own->IsModified());
}

TEST_F(PropertyGridEdit, SubItemsAreFoundAtAnyDepth)
{
    auto* const own = new OwnWillProperty;
    auto* const child = new CMFCPropertyGridProperty(L"Child", _variant_t(1L));
    auto* const grandChild = new CMFCPropertyGridProperty(L"Grandchild", _variant_t(1L));
    texts->AddSubItem(own);
    own->AddSubItem(child);
    child->AddSubItem(grandChild);
    EXPECT_TRUE(own->IsSubItem(child));
    EXPECT_TRUE(own->IsSubItem(grandChild));
    EXPECT_FALSE(own->IsSubItem(own));
    EXPECT_FALSE(own->IsSubItem(title));
    EXPECT_FALSE(own->IsSubItem(NULL));
}

TEST(PropertyGridDerived, InitRunsWhenTheWindowComes)
{
    class CountingGrid : public CMFCPropertyGridCtrl
    {
    public:
        int inits = 0;

    protected:
        void Init() override
        {
            EXPECT_NE(m_hWnd, nullptr);
            ++inits;
            CMFCPropertyGridCtrl::Init();
        }
    };
    PropertyHost host;
    CountingGrid created;
    ASSERT_TRUE(created.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host, 7));
    EXPECT_EQ(created.inits, 1);
    CStatic place;
    ASSERT_TRUE(place.Create(L"", WS_CHILD, CRect(0, 0, 300, 200), &host, 8));
    const HWND window = place.Detach();
    CountingGrid subclassed;
    ASSERT_TRUE(subclassed.SubclassWindow(window));
    EXPECT_EQ(subclassed.inits, 1);
}

// ---- Hosts that interfere while they are told of a change.

TEST_F(PropertyGridEdit, TheHostMayDeleteTheProperty)
{
    host.onChange = [this](Property* changed) { grid.DeleteProperty(changed); };
    EXPECT_TRUE(Enter(title, L"gone"));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(grid.GetCurSel(), nullptr);
    EXPECT_EQ(texts->GetSubItemsCount(), 3);
    // The grid goes on working.
    host.onChange = nullptr;
    EXPECT_TRUE(Enter(count, L"6"));
    EXPECT_EQ(Text(count), L"6");
}

TEST_F(PropertyGridEdit, TheHostMayDeleteTheGroupWhenTheFocusIsLost)
{
    CEdit other;
    other.Create(WS_CHILD | WS_VISIBLE, CRect(410, 10, 490, 40), &host, 8);
    host.onChange = [this](Property*) {
        Property* group = texts;
        grid.DeleteProperty(group);
    };
    grid.EditItem(title);
    Editor()->SetWindowText(L"gone");
    other.SetFocus();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(grid.GetPropertyCount(), 3);
    EXPECT_EQ(::GetFocus(), other.m_hWnd);
}

TEST_F(PropertyGridEdit, TheHostMayRemoveEverythingWhileChoosing)
{
    host.onChange = [this](Property*) { grid.RemoveAll(); };
    grid.SetFocus();
    grid.SetCurSel(shape);
    grid.SendMessage(WM_CHAR, 's', 0);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Shape=Square"});
    EXPECT_EQ(grid.GetPropertyCount(), 0);
}

TEST_F(PropertyGridEdit, TheHostMayDestroyTheWindow)
{
    host.onChange = [this](Property*) { grid.DestroyWindow(); };
    grid.EditItem(title);
    Editor()->SetWindowText(L"last");
    PostKey(Editor()->m_hWnd, VK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return grid.m_hWnd == NULL; }));
    PumpPending();
    EXPECT_EQ(Text(title), L"last");
}

TEST(PropertyGridRobustness, TheHostMayDeleteTheGrid)
{
    for (const UINT way : {VK_RETURN, VK_TAB, VK_NEXT, 0})
    {
        PropertyHost host;
        auto grid = std::make_unique<EditableGrid>();
        grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host, 7);
        auto* const property = new CMFCPropertyGridProperty(L"Only", _variant_t(1L));
        grid->AddProperty(property);
        grid->AddProperty(new CMFCPropertyGridProperty(L"Next", _variant_t(1L)));
        grid->EditItem(property);
        CWnd* const editor = grid->GetDlgItem(AFX_PROPLIST_ID_INPLACE);
        editor->SetWindowText(L"2");
        host.onChange = [&](CMFCPropertyGridProperty*) { grid.reset(); };
        if (way != 0)
            PostKey(editor->m_hWnd, static_cast<WORD>(way));
        else
            host.SetFocus();
        EXPECT_TRUE(PumpUntil([&] { return grid == nullptr; }));
        PumpPending();
        EXPECT_EQ(host.TakeChanges(), Changes{L"7 Only=2"});
    }
}

TEST(PropertyGridRobustness, TheHostMayDeleteTheGridWhileTheListIsOpen)
{
    PropertyHost host;
    auto grid = std::make_unique<EditableGrid>();
    grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host, 7);
    auto* const flag = new CMFCPropertyGridProperty(L"Flag", _variant_t(true));
    grid->AddProperty(flag);
    grid->SetFocus();
    grid->SetCurSel(flag);
    host.onChange = [&](CMFCPropertyGridProperty*) { grid.reset(); };
    grid->SendMessage(WM_KEYDOWN, VK_F4, 0);
    const HWND combo = ::GetFocus();
    PostKey(combo, VK_DOWN);
    PostKey(combo, VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return grid == nullptr; }));
    PumpPending();
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Flag=False"});
}

TEST_F(PropertyGridEdit, TheHostMaySelectAndEditElsewhere)
{
    host.onChange = [this](Property*) {
        host.onChange = nullptr;
        grid.EditItem(count);
    };
    EXPECT_TRUE(Enter(title, L"moved"));
    EXPECT_EQ(Selected(), L"Count");
    EXPECT_FALSE(title->IsInPlaceEditing());
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(::GetFocus(), Editor()->m_hWnd);
    EXPECT_TRUE(Enter(count, L"9"));
    EXPECT_EQ(Text(count), L"9");
}

TEST_F(PropertyGridEdit, AHostThatTakesTheFocusIsToldOnce)
{
    host.onChange = [this](Property*) { host.SetFocus(); };
    EXPECT_TRUE(Enter(title, L"once"));
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=once"});
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(PropertyGridEdit, EditingLeavesNoObjectsBehind)
{
    const auto useAll = [this] {
        for (Property* property : {title, code, count, level, ratio, visible, shape, unit, size})
        {
            grid.EditItem(property);
            grid.SendMessage(WM_KEYDOWN, VK_F4, 0);
            PumpPending();
            grid.EndEditItem(FALSE);
            grid.Invalidate();
            grid.UpdateWindow();
        }
    };
    useAll();
    PumpPending();
    const GuiHandles before = CountGuiHandles();
    useAll();
    PumpPending();
    EXPECT_EQ(Growth(before, CountGuiHandles()), "");
}

// A property with a button that is wider than usual.
class WideButtonProperty : public CMFCPropertyGridProperty
{
public:
    using CMFCPropertyGridProperty::CMFCPropertyGridProperty;
    static constexpr int ButtonWidth = 55;

    void AdjustButtonRect() override
    {
        CMFCPropertyGridProperty::AdjustButtonRect();
        m_rectButton.left = m_rectButton.right - ButtonWidth;
    }
    int ButtonLeft() const { return m_rectButton.left; }
};

TEST_F(PropertyGridEdit, TheEditorEndsWhereAWiderButtonBegins)
{
    auto* const wide = new WideButtonProperty(L"Wide", _variant_t(L"a"));
    wide->AddOption(L"a");
    wide->AddOption(L"b");
    grid.AddProperty(wide);
    ASSERT_TRUE(grid.EditItem(wide));
    CRect editor;
    Editor()->GetWindowRect(&editor);
    grid.ScreenToClient(&editor);
    EXPECT_LE(editor.right, wide->ButtonLeft());
    EXPECT_GT(editor.right, wide->ButtonLeft() - 8) << "and not far before";
}

// A property whose editor is to stay out of sight.
class HiddenEditorProperty : public CMFCPropertyGridProperty
{
public:
    using CMFCPropertyGridProperty::CMFCPropertyGridProperty;

    CWnd* CreateInPlaceEdit(CRect rectEdit, BOOL& bDefaultFormat) override
    {
        CWnd* const editor = CMFCPropertyGridProperty::CreateInPlaceEdit(rectEdit, bDefaultFormat);
        editor->ShowWindow(SW_HIDE);
        return editor;
    }
};

TEST_F(PropertyGridEdit, AnEditorThatAPropertyHidesStaysHidden)
{
    auto* const hidden = new HiddenEditorProperty(L"Hidden", _variant_t(L"a"));
    grid.AddProperty(hidden);
    ASSERT_TRUE(grid.EditItem(hidden));
    EXPECT_FALSE(Editor()->IsWindowVisible());
    ASSERT_TRUE(grid.EditItem(title));
    EXPECT_TRUE(Editor()->IsWindowVisible());
}

TEST_F(PropertyGridEdit, TheSpinButtonIsThereAsSoonAsTheEditor)
{
    ASSERT_TRUE(grid.EditItem(level));
    PumpPending();
    CWnd* spin = grid.GetWindow(GW_CHILD);
    while (spin != NULL && ClassOf(*spin) != L"msctls_updown32")
        spin = spin->GetWindow(GW_HWNDNEXT);
    ASSERT_NE(spin, nullptr);
    CRect area;
    spin->GetWindowRect(&area);
    grid.ScreenToClient(&area);
    EXPECT_FALSE(Snapshot(grid.m_hWnd).IsUniform(area)) << "it has arrows";
}

} // namespace
