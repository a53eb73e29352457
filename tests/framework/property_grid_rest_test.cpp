// Property grids: number types, keys of open editors and lists, masks, scroll codes, colours and broken-off
// drags.
#include "tests/support/PropertySheet.h"

#include "tests/support/Pump.h"
#include "tests/support/Snapshot.h"

#include <array>

using namespace quor::test;

namespace
{

class PropertyGridRest : public PropertySheetTest
{
protected:
    // A key as the message loop sees it.
    void Press(HWND window, WPARAM key, UINT message = WM_KEYDOWN)
    {
        MSG pressed = {window, message, key, 1, 0, {}};
        if (!grid.PreTranslateMessage(&pressed))
            ::SendMessage(window, message, key, 1);
    }
    CSpinButtonCtrl* Spin() const
    {
        for (CWnd* child = grid.GetWindow(GW_CHILD); child != NULL; child = child->GetWindow(GW_HWNDNEXT))
            if (ClassOf(*child) == UPDOWN_CLASS)
                return static_cast<CSpinButtonCtrl*>(child);
        return NULL;
    }
    Property* AddNumber(VARTYPE type, LPCTSTR name)
    {
        VARIANT number = {};
        number.vt = type;
        number.lVal = 7;
        auto* const property = new Property(name, _variant_t(number));
        property->EnableSpinControl(TRUE);
        return Add(numbers, property);
    }
    std::array<int, 2> SpinRange(Property* property)
    {
        EXPECT_TRUE(grid.EditItem(property));
        int low = 0;
        int high = 0;
        if (CSpinButtonCtrl* const spin = Spin())
            spin->GetRange32(low, high);
        grid.EndEditItem(FALSE);
        return {low, high};
    }
    int FirstRow() const
    {
        int row = -1;
        for (Property* property : {texts, title, code, fixed, off, numbers, count, level})
        {
            ++row;
            if (property->GetRect().top >= grid.GetListRect().top && !property->GetRect().IsRectEmpty())
                return row;
        }
        return -1;
    }
    CScrollBar* Bar() const { return grid.GetScrollBarCtrl(SB_VERT); }
    void Scroll(UINT scrollCode)
    {
        grid.SendMessage(WM_VSCROLL, scrollCode, reinterpret_cast<LPARAM>(Bar()->m_hWnd));
    }
};

TEST_F(PropertyGridRest, ASpinButtonHasTheRangeOfItsType)
{
    EXPECT_EQ(SpinRange(AddNumber(VT_I2, L"i2")), (std::array<int, 2>{SHRT_MIN, SHRT_MAX}));
    EXPECT_EQ(SpinRange(AddNumber(VT_UI2, L"ui2")), (std::array<int, 2>{0, USHRT_MAX}));
    EXPECT_EQ(SpinRange(AddNumber(VT_I4, L"i4")), (std::array<int, 2>{INT_MIN, INT_MAX}));
    EXPECT_EQ(SpinRange(AddNumber(VT_UI4, L"ui4")), (std::array<int, 2>{0, INT_MAX}));
    EXPECT_EQ(SpinRange(AddNumber(VT_UINT, L"uint")), (std::array<int, 2>{0, INT_MAX}));
}

TEST_F(PropertyGridRest, TypedNumbersOfEveryTypeAreTaken)
{
    for (const VARTYPE type : {VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT, VT_UINT})
    {
        Property* const property = AddNumber(type, L"number");
        ASSERT_TRUE(grid.EditItem(property)) << type;
        EXPECT_EQ(EditorText(), L"7") << type;
        Editor()->SetWindowText(L"123");
        EXPECT_TRUE(grid.EndEditItem());
        EXPECT_EQ(property->GetValue().vt, type);
        EXPECT_EQ(Text(property), L"123") << type;
    }
}

TEST_F(PropertyGridRest, RangesOfSpinButtonsHoldForEveryType)
{
    for (const VARTYPE type : {VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT, VT_UINT})
    {
        Property* const property = AddNumber(type, L"number");
        property->EnableSpinControl(TRUE, 5, 50);
        ASSERT_TRUE(grid.EditItem(property));
        Editor()->SetWindowText(L"99");
        grid.EndEditItem();
        EXPECT_EQ(Text(property), L"50") << type;
        ASSERT_TRUE(grid.EditItem(property));
        Editor()->SetWindowText(L"1");
        grid.EndEditItem();
        EXPECT_EQ(Text(property), L"5") << type;
    }
}

TEST_F(PropertyGridRest, WhatIsNoCharacterOrRealNumberIsNotTaken)
{
    VARIANT letter = {};
    letter.vt = VT_UI1;
    letter.bVal = 'a';
    Property* const character = Add(texts, new Property(L"Letter", _variant_t(letter)));
    Property* const single = Add(numbers, new Property(L"Single", _variant_t(0.5f)));
    const auto enter = [&](Property* property, LPCTSTR text) {
        ASSERT_TRUE(grid.EditItem(property));
        Editor()->SetWindowText(text);
        grid.EndEditItem();
    };
    enter(character, L"bc");
    EXPECT_EQ(Text(character), L"a");
    enter(character, L"\x4e2d");
    EXPECT_EQ(Text(character), L"a");
    enter(character, L"z");
    EXPECT_EQ(Text(character), L"z");
    enter(single, L"1e300");
    EXPECT_FLOAT_EQ(single->GetValue().fltVal, 0.5f);
    enter(single, L"x");
    EXPECT_FLOAT_EQ(single->GetValue().fltVal, 0.5f);
    enter(single, L"0.25");
    EXPECT_FLOAT_EQ(single->GetValue().fltVal, 0.25f);
    letter.bVal = 0;
    character->SetValue(_variant_t(letter));
    EXPECT_EQ(Text(character), L"");
}

TEST_F(PropertyGridRest, F4AndAltDownOpenTheListOfAnEditor)
{
    ASSERT_TRUE(grid.EditItem(unit));
    Press(Editor()->m_hWnd, VK_F4);
    ASSERT_NE(Combo(), nullptr);
    Press(Combo()->m_hWnd, VK_ESCAPE);
    grid.EndEditItem(FALSE);
    ASSERT_TRUE(grid.EditItem(unit));
    Press(Editor()->m_hWnd, VK_LEFT, WM_SYSKEYDOWN);
    EXPECT_EQ(Combo(), nullptr) << "another key";
    Press(Editor()->m_hWnd, VK_DOWN, WM_SYSKEYDOWN);
    EXPECT_NE(Combo(), nullptr);
}

TEST_F(PropertyGridRest, TabClosesTheOpenList)
{
    ASSERT_TRUE(grid.EditItem(unit));
    Press(Editor()->m_hWnd, VK_F4);
    ASSERT_NE(Combo(), nullptr);
    EXPECT_TRUE(static_cast<CComboBox*>(Combo())->GetDroppedState());
    Press(Combo()->m_hWnd, VK_TAB);
    CWnd* const combo = Combo();
    EXPECT_TRUE(combo == nullptr || !static_cast<CComboBox*>(combo)->GetDroppedState());
}

TEST_F(PropertyGridRest, AltDownOnTheSelectedRowOpensItsList)
{
    grid.SetCurSel(unit);
    grid.SendMessage(WM_SYSKEYDOWN, VK_LEFT, 1 << 29);
    EXPECT_EQ(Combo(), nullptr);
    grid.SendMessage(WM_SYSKEYDOWN, VK_DOWN, 1 << 29);
    EXPECT_NE(Combo(), nullptr);
}

TEST_F(PropertyGridRest, WithoutASelectionThereIsNothingToOpenOrFold)
{
    grid.SetCurSel(NULL);
    for (const WPARAM key : {VK_F4, VK_LEFT, VK_RIGHT, VK_RETURN, VK_F2})
        grid.SendMessage(WM_KEYDOWN, key);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Combo(), nullptr);
    grid.SendMessage(WM_CHAR, 'n');
    EXPECT_EQ(Selected(), L"Numbers") << "letters look for names";
    grid.SendMessage(WM_CHAR, VK_ESCAPE);
    EXPECT_EQ(Selected(), L"Numbers");
}

TEST_F(PropertyGridRest, DeleteAndBackspaceEmptyPositionsOfAMask)
{
    ASSERT_TRUE(grid.EditItem(code));
    const HWND editor = Editor()->m_hWnd;
    ASSERT_EQ(EditorText(), L"AB-12");
    ::SendMessage(editor, EM_SETSEL, 0, 0);
    ::SendMessage(editor, WM_KEYDOWN, VK_DELETE, 0);
    EXPECT_EQ(EditorText(), L"_B-12") << "the one behind the caret";
    ::SendMessage(editor, EM_SETSEL, 3, 5);
    ::SendMessage(editor, WM_CHAR, VK_BACK, 1);
    EXPECT_EQ(EditorText(), L"_B-__") << "what is selected";
    ::SendMessage(editor, EM_SETSEL, 3, 3);
    ::SendMessage(editor, WM_CHAR, VK_BACK, 1);
    EXPECT_EQ(EditorText(), L"__-__") << "over the fixed character";
    ::SendMessage(editor, WM_CHAR, '9', 1);
    EXPECT_EQ(EditorText()[0], L'_') << "a digit is no letter";
    grid.EndEditItem(FALSE);
}

TEST_F(PropertyGridRest, ADoubleClickInATextEditorSelectsAWord)
{
    title->SetValue(_variant_t(L"two words"));
    ASSERT_TRUE(grid.EditItem(title));
    const CWnd* const editor = Editor();
    ::SendMessage(editor->m_hWnd, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(6, 6));
    DWORD first = 0, last = 0;
    ::SendMessage(editor->m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                  reinterpret_cast<LPARAM>(&last));
    EXPECT_GE(last - first, 3u);
    EXPECT_LT(last - first, 9u) << "not all of it";
}

TEST_F(PropertyGridRest, ScrollCodesMoveByPagesAndToThePositionOfTheThumb)
{
    grid.SetWindowPos(NULL, 0, 0, 400, 120, SWP_NOMOVE | SWP_NOZORDER);
    grid.UpdateWindow();
    ASSERT_NE(Bar(), nullptr);
    EXPECT_EQ(FirstRow(), 0);
    Scroll(SB_BOTTOM);
    const int bottom = Bar()->GetScrollPos();
    EXPECT_GT(bottom, 2);
    Scroll(SB_PAGEUP);
    EXPECT_LT(Bar()->GetScrollPos(), bottom);
    Scroll(SB_TOP);
    EXPECT_EQ(Bar()->GetScrollPos(), 0);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = 2;
    Bar()->SetScrollInfo(&info, FALSE);
    Scroll(SB_THUMBPOSITION);
    EXPECT_EQ(FirstRow(), 2);
    Scroll(SB_ENDSCROLL);
    EXPECT_EQ(FirstRow(), 2);
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_EQ(FirstRow(), 2) << "a bar that is not the grid's";
}

TEST_F(PropertyGridRest, ADragThatIsBrokenOffLeavesTheColumns)
{
    const int before = grid.GetLeftColumnWidth();
    const CRect list = grid.GetListRect();
    const CPoint divider(list.left + before, list.top + 10);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(divider.x, divider.y));
    ASSERT_EQ(::GetCapture(), grid.m_hWnd);
    grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(divider.x + 40, divider.y));
    grid.SendMessage(WM_CANCELMODE);
    EXPECT_NE(::GetCapture(), grid.m_hWnd);
    EXPECT_EQ(grid.GetLeftColumnWidth(), before);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(divider.x, divider.y));
    grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(divider.x + 40, divider.y));
    grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(divider.x + 40, divider.y));
    EXPECT_EQ(grid.GetLeftColumnWidth(), before + 40) << "one that ends moves them";
}

TEST_F(PropertyGridRest, ColoursAreReadAsTheyWereSet)
{
    grid.SetCustomColors(RGB(1, 0, 0), RGB(2, 0, 0), RGB(3, 0, 0), RGB(4, 0, 0), RGB(5, 0, 0), RGB(6, 0, 0),
                         RGB(7, 0, 0));
    std::array<COLORREF, 7> colours = {};
    grid.GetCustomColors(colours[0], colours[1], colours[2], colours[3], colours[4], colours[5], colours[6]);
    for (size_t i = 0; i < colours.size(); ++i)
        EXPECT_EQ(colours[i], RGB(i + 1, 0, 0));
    // A new scheme of the system leaves them, too.
    grid.SendMessage(WM_SYSCOLORCHANGE);
    const Snapshot picture(grid);
    const CRect list = grid.GetListRect();
    EXPECT_EQ(picture.At(list.right - 3, list.bottom - 3), RGB(1, 0, 0));
}

// A white picture in memory to draw into.
class Paper : public CDC
{
public:
    Paper() : m_screen(NULL)
    {
        CreateCompatibleDC(NULL);
        m_picture.CreateCompatibleBitmap(&m_screen, Width, Height);
        m_before = SelectObject(&m_picture);
        FillSolidRect(0, 0, Width, Height, RGB(255, 255, 255));
    }
    ~Paper() override { SelectObject(m_before); }

    static constexpr int Width = 150;
    static constexpr int Height = 40;

    bool operator==(const Paper& other) const
    {
        for (int x = 0; x < Width; ++x)
            for (int y = 0; y < Height; ++y)
                if (GetPixel(x, y) != other.GetPixel(x, y))
                    return false;
        return true;
    }

private:
    CClientDC m_screen;
    CBitmap m_picture;
    CBitmap* m_before;
};

TEST_F(PropertyGridRest, ADescriptionBeginsWithTheNameInBold)
{
    Property* const property = Add(texts, new Property(L"A name", _variant_t(1L)));
    const CRect whole(0, 0, Paper::Width, Paper::Height);
    Paper drawn, bold, plain;
    property->OnDrawDescription(&drawn, whole);
    CFont* const before = bold.SelectObject(&grid.GetBoldFont());
    bold.DrawText(L"A name", CRect(whole), DT_SINGLELINE);
    bold.SelectObject(before);
    plain.DrawText(L"A name", CRect(whole), DT_SINGLELINE);
    EXPECT_TRUE(drawn == bold);
    EXPECT_FALSE(drawn == plain);
}

TEST_F(PropertyGridRest, ABoxHasAMinusAndWhenFoldedAPlus)
{
    Property group(L"Group");
    const COLORREF ink = ::GetSysColor(COLOR_WINDOWTEXT);
    const COLORREF back = ::GetSysColor(COLOR_WINDOW);
    for (const BOOL expanded : {TRUE, FALSE})
    {
        group.Expand(expanded);
        Paper paper;
        group.OnDrawExpandBox(&paper, CRect(0, 0, 9, 9));
        for (int along = 1; along < 8; ++along)
        {
            const bool isArm = along >= 2 && along <= 6;
            EXPECT_EQ(paper.GetPixel(along, 4), isArm ? ink : back) << along;
            EXPECT_EQ(paper.GetPixel(4, along), (isArm && !expanded) || along == 4 ? ink : back) << along;
        }
    }
}

TEST_F(PropertyGridRest, TheLineOfADragIsSeenAtOnce)
{
    const CPoint divider(grid.GetListRect().left + grid.GetLeftColumnWidth(), grid.GetListRect().top + 10);
    grid.UpdateWindow();
    ASSERT_FALSE(grid.GetUpdateRect(NULL));
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(divider.x, divider.y));
    CRect due;
    EXPECT_TRUE(grid.GetUpdateRect(&due));
    EXPECT_TRUE(due.PtInRect(divider));
    grid.SendMessage(WM_CANCELMODE);
}

TEST_F(PropertyGridRest, GroupsMayHaveTheWholeWidthForTheirNames)
{
    CMFCPropertyGridProperty* const group =
        new Property(L"A name that is far longer than its half of the row, and more");
    grid.AddProperty(group);
    grid.EnsureVisible(group);
    // Dark pixels to the right of the line between name and value.
    const auto darkPixels = [&] {
        const Snapshot picture(grid);
        const CRect row = group->GetRect();
        const int background = static_cast<int>(picture.At(row.right - 3, row.CenterPoint().y));
        int others = 0;
        for (int x = row.left + grid.GetLeftColumnWidth() + 4; x < row.right - 4; ++x)
            for (int y = row.top + 2; y < row.bottom - 2; ++y)
                others += static_cast<int>(picture.At(x, y)) != background;
        return others;
    };
    grid.SetGroupNameFullWidth(FALSE);
    const int cut = darkPixels();
    grid.SetGroupNameFullWidth(TRUE);
    EXPECT_TRUE(grid.IsGroupNameFullWidth());
    EXPECT_GT(darkPixels(), cut);
    grid.SetGroupNameFullWidth(FALSE, FALSE);
    EXPECT_FALSE(grid.IsGroupNameFullWidth());
}

TEST_F(PropertyGridRest, ADisabledGridIsPaintedAnew)
{
    grid.UpdateWindow();
    ASSERT_FALSE(grid.GetUpdateRect(NULL));
    grid.EnableWindow(FALSE);
    EXPECT_TRUE(grid.GetUpdateRect(NULL));
    grid.UpdateWindow();
    grid.EnableWindow(TRUE);
    EXPECT_TRUE(grid.GetUpdateRect(NULL));
}

TEST_F(PropertyGridRest, APropertyKnowsWhichPartOfItIsHit)
{
    CMFCPropertyGridProperty::ClickArea area = CMFCPropertyGridProperty::ClickDescription;
    EXPECT_EQ(title->HitTest(NamePoint(title), &area), title);
    EXPECT_EQ(area, CMFCPropertyGridProperty::ClickName);
    EXPECT_EQ(title->HitTest(ValuePoint(title), &area), title);
    EXPECT_EQ(area, CMFCPropertyGridProperty::ClickValue);
    EXPECT_EQ(texts->HitTest(BoxPoint(texts), &area), texts);
    EXPECT_EQ(area, CMFCPropertyGridProperty::ClickExpandBox);
    EXPECT_EQ(title->HitTest(NamePoint(code), &area), nullptr) << "another row";
    EXPECT_EQ(title->HitTest(NamePoint(title), NULL), title);
    Property stranger(L"Stranger", _variant_t(1L));
    EXPECT_EQ(stranger.HitTest(CPoint(1, 1), &area), nullptr);
}

TEST_F(PropertyGridRest, OneThatIsNotThereHitsNothing)
{
    CMFCPropertyGridCtrl other;
    EXPECT_EQ(other.HitTest(CPoint(5, 5)), nullptr);
}

TEST_F(PropertyGridRest, ADoubleClickWithoutOptionsChangesNothing)
{
    EXPECT_FALSE(title->OnDblClk(ValuePoint(title)));
    EXPECT_FALSE(off->OnDblClk(ValuePoint(off)));
    EXPECT_TRUE(shape->OnDblClk(ValuePoint(shape)));
    EXPECT_EQ(Text(shape), L"Square");
    EXPECT_TRUE(visible->OnDblClk(ValuePoint(visible)));
    EXPECT_EQ(Text(visible), L"False");
    EXPECT_EQ(host.TakeChanges(), (Changes{L"7 Shape=Square", L"7 Visible=False"}));
}

TEST_F(PropertyGridRest, CharactersChooseAmongOptions)
{
    EXPECT_TRUE(shape->PushChar('s'));
    EXPECT_EQ(Text(shape), L"Square");
    EXPECT_TRUE(shape->PushChar('S'));
    EXPECT_EQ(Text(shape), L"Star");
    EXPECT_TRUE(shape->PushChar('s')) << "round the end";
    EXPECT_EQ(Text(shape), L"Square");
    EXPECT_FALSE(shape->PushChar('x'));
    EXPECT_FALSE(off->PushChar('x'));
    EXPECT_TRUE(title->PushChar('x'));
    EXPECT_EQ(EditorText(), L"x");
    Property stranger(L"Stranger", _variant_t(1L));
    EXPECT_FALSE(stranger.PushChar('x'));
}

} // namespace
