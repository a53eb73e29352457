// A property grid used with the real keyboard only.
#include "tests/support/PropertySheet.h"

#include "tests/support/Input.h"
#include "tests/support/Pump.h"

using namespace quor::test;

namespace
{

class PropertyKeyboard : public PropertySheetTest
{
protected:
    void SetUp() override
    {
        PropertySheetTest::SetUp();
        grid.SetFocus();
    }

    void Select(Property* property)
    {
        grid.SetFocus();
        grid.SetCurSel(property);
    }
};

TEST_F(PropertyKeyboard, ArrowsSelectRowAfterRow)
{
    KeyPress(VK_DOWN);
    EXPECT_EQ(Selected(), L"Texts");
    KeyPress(VK_DOWN);
    KeyPress(VK_DOWN);
    EXPECT_EQ(Selected(), L"Code");
    KeyPress(VK_UP);
    EXPECT_EQ(Selected(), L"Title");
    KeyPress(VK_END);
    EXPECT_EQ(Selected(), L"Size");
    KeyPress(VK_DOWN);
    EXPECT_EQ(Selected(), L"Size");
    KeyPress(VK_HOME);
    EXPECT_EQ(Selected(), L"Texts");
    KeyPress(VK_UP);
    EXPECT_EQ(Selected(), L"Texts");
}

TEST_F(PropertyKeyboard, PageKeysMoveByWhatFits)
{
    grid.SetWindowPos(NULL, 0, 0, 400, grid.GetHeaderHeight() + 4 * grid.GetRowHeight(),
                      SWP_NOMOVE | SWP_NOZORDER);
    KeyPress(VK_HOME);
    KeyPress(VK_NEXT);
    EXPECT_EQ(Selected(), L"Off");
    EXPECT_EQ(off->GetRect().bottom, grid.GetListRect().bottom) << "the least scroll that shows it";
    KeyPress(VK_PRIOR);
    EXPECT_EQ(Selected(), L"Texts");
    EXPECT_EQ(texts->GetRect().top, grid.GetListRect().top);
}

TEST_F(PropertyKeyboard, LeftAndRightFoldAndUnfold)
{
    Select(numbers);
    KeyPress(VK_LEFT);
    EXPECT_FALSE(numbers->IsExpanded());
    KeyPress(VK_RIGHT);
    EXPECT_TRUE(numbers->IsExpanded());
    Select(ratio);
    KeyPress(VK_LEFT);
    EXPECT_EQ(Selected(), L"Numbers");
}

TEST_F(PropertyKeyboard, PlusAndMinusFoldAndUnfold)
{
    Select(numbers);
    TypeText(L"-");
    EXPECT_FALSE(numbers->IsExpanded());
    TypeText(L"+");
    EXPECT_TRUE(numbers->IsExpanded());
    KeyPress(VK_SUBTRACT);
    EXPECT_FALSE(numbers->IsExpanded());
    KeyPress(VK_ADD);
    EXPECT_TRUE(numbers->IsExpanded());
    KeyPress(VK_RETURN);
    EXPECT_FALSE(numbers->IsExpanded());
}

TEST_F(PropertyKeyboard, MinusBeginsANumber)
{
    Select(count);
    TypeText(L"-8");
    KeyPress(VK_RETURN);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Count=-8"});
}

TEST_F(PropertyKeyboard, EnterOpensAndTakesAndEscDoesNotTake)
{
    Select(title);
    KeyPress(VK_RETURN);
    ASSERT_NE(Editor(), nullptr);
    TypeText(L"Typed");
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Text(title), L"Draft");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    KeyPress(VK_F2);
    ASSERT_NE(Editor(), nullptr);
    TypeText(L"Typed");
    KeyPress(VK_RETURN);
    EXPECT_EQ(Text(title), L"Typed");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=Typed"});
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(PropertyKeyboard, TypingOpensTheEditorWithTheCharacter)
{
    Select(title);
    TypeText(L"Neu");
    EXPECT_EQ(EditorText(), L"Neu");
    KeyPress(VK_RETURN);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=Neu"});
}

TEST_F(PropertyKeyboard, TabTakesTheValueAndGoesOn)
{
    Select(count);
    KeyPress(VK_F2);
    TypeText(L"77");
    KeyPress(VK_TAB);
    EXPECT_EQ(Selected(), L"Level");
    EXPECT_EQ(Editor(), nullptr);
    KeyPress(VK_F2);
    KeyPress(VK_TAB, Modifiers::Shift);
    EXPECT_EQ(Selected(), L"Count");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Count=77"});
}

TEST_F(PropertyKeyboard, ArrowsLeaveTheEditorAndStepASpinButton)
{
    Select(count);
    TypeText(L"6");
    KeyPress(VK_DOWN);
    EXPECT_EQ(Selected(), L"Level");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Count=6"});
    KeyPress(VK_F2);
    KeyPress(VK_UP);
    KeyPress(VK_UP);
    EXPECT_EQ(EditorText(), L"5");
    KeyPress(VK_RETURN);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Level=5"});
}

TEST_F(PropertyKeyboard, AltDownOpensTheListAndEnterChooses)
{
    Select(shape);
    KeyPress(VK_DOWN, Modifiers::Alt);
    ASSERT_TRUE(PumpUntil([&] { return Combo() != NULL && Combo()->SendMessage(CB_GETDROPPEDSTATE); }));
    KeyPress(VK_DOWN);
    KeyPress(VK_RETURN);
    ASSERT_TRUE(PumpUntil([&] { return Combo() == NULL; }));
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Shape=Square"});
    EXPECT_NE(Editor(), nullptr);
}

TEST_F(PropertyKeyboard, EscClosesTheListFirstAndThenTheEditor)
{
    Select(shape);
    KeyPress(VK_F4);
    ASSERT_TRUE(PumpUntil([&] { return Combo() != NULL && Combo()->SendMessage(CB_GETDROPPEDSTATE); }));
    KeyPress(VK_DOWN);
    KeyPress(VK_ESCAPE);
    ASSERT_TRUE(PumpUntil([&] { return Combo() == NULL; }));
    EXPECT_NE(Editor(), nullptr);
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(host.TakeChanges(), Changes{});
}

TEST_F(PropertyKeyboard, ALetterChoosesTheNextOptionThatBeginsWithIt)
{
    Select(shape);
    TypeText(L"s");
    EXPECT_EQ(Text(shape), L"Square");
    TypeText(L"s");
    EXPECT_EQ(Text(shape), L"Star");
    TypeText(L"s");
    EXPECT_EQ(Text(shape), L"Square");
    EXPECT_EQ(host.TakeChanges().size(), 3u);
    Select(visible);
    TypeText(L"f");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Visible=False"});
}

TEST_F(PropertyKeyboard, ALetterInAnOpenChooseOnlyEditorChoosesToo)
{
    Select(shape);
    KeyPress(VK_F2);
    ASSERT_NE(Editor(), nullptr);
    TypeText(L"s");
    EXPECT_TRUE(PumpUntil([&] { return Text(shape) == L"Square"; }));
    EXPECT_EQ(EditorText(), L"Square");
}

TEST_F(PropertyKeyboard, ALetterThatMeansNothingHereGoesToTheNextNameWithIt)
{
    Select(texts);
    TypeText(L"s");
    EXPECT_EQ(Selected(), L"Shape");
    Select(fixed);
    TypeText(L"c");
    EXPECT_EQ(Selected(), L"Count");
}

TEST_F(PropertyKeyboard, ALetterGoesOnFromANameThatBeginsWithIt)
{
    Select(choices);
    ASSERT_EQ(Selected(), L"Choices");
    TypeText(L"c");
    EXPECT_EQ(Selected(), L"Code") << "from the last such name to the first";
}

TEST_F(PropertyKeyboard, AMaskTakesOnlyWhatFits)
{
    Select(code);
    KeyPress(VK_F2);
    KeyPress(VK_HOME);
    TypeText(L"xy9z87");
    EXPECT_EQ(EditorText(), L"xy-98");
    KeyPress(VK_BACK);
    KeyPress(VK_BACK);
    KeyPress(VK_BACK);
    EXPECT_EQ(EditorText(), L"x_-__");
    TypeText(L"k42");
    KeyPress(VK_RETURN);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Code=xk-42"});
}

TEST_F(PropertyKeyboard, AValueListIsEditedAsOneText)
{
    Select(size);
    KeyPress(VK_F2);
    EXPECT_EQ(EditorText(), L"10, 20");
    TypeText(L"30,40");
    KeyPress(VK_RETURN);
    EXPECT_EQ(Text(width), L"30");
    EXPECT_EQ(Text(height), L"40");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Size=30, 40"});
}

// A dialog with the grid between two fields and buttons for Enter and Esc.
class SheetDialog : public CDialog
{
public:
    explicit SheetDialog(CMFCPropertyGridCtrl& shown) : grid(shown) {}

    bool CreateModeless(CWnd* owner)
    {
        std::vector<WORD> bits((sizeof(DLGTEMPLATE) + 3 * sizeof(WORD)) / sizeof(WORD) + 2, 0);
        auto* const description = reinterpret_cast<DLGTEMPLATE*>(bits.data());
        description->style = WS_POPUP | WS_CAPTION | WS_VISIBLE;
        description->cx = 250;
        description->cy = 200;
        if (!CreateIndirect(description, owner))
            return false;
        first.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 5, 100, 25), this, 8);
        grid.SetParent(this);
        grid.SetWindowPos(&first, 5, 30, 300, 250, 0);
        last.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 285, 100, 305), this, 9);
        last.SetWindowPos(&grid, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        return true;
    }

    int oks = 0;
    int cancels = 0;
    CEdit first;
    CEdit last;

protected:
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }

private:
    CMFCPropertyGridCtrl& grid;
};

TEST_F(PropertyKeyboard, InADialogTheEditorKeepsItsKeysAndTheRestIsTheDialogs)
{
    SheetDialog dialog(grid);
    ASSERT_TRUE(dialog.CreateModeless(&host));
    dialog.first.SetFocus();
    KeyPress(VK_TAB);
    ASSERT_EQ(::GetFocus(), grid.m_hWnd);
    Select(title);
    KeyPress(VK_RETURN);
    ASSERT_NE(Editor(), nullptr);
    TypeText(L"x");
    KeyPress(VK_RETURN);
    KeyPress(VK_RETURN);
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    KeyPress(VK_F2);
    KeyPress(VK_TAB);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(Selected(), L"Code");
    Select(shape);
    KeyPress(VK_F4);
    ASSERT_TRUE(PumpUntil([&] { return Combo() != NULL && Combo()->SendMessage(CB_GETDROPPEDSTATE); }));
    KeyPress(VK_DOWN);
    KeyPress(VK_RETURN);
    ASSERT_TRUE(PumpUntil([&] { return Combo() == NULL; }));
    EXPECT_EQ(Text(shape), L"Square");
    EXPECT_EQ(dialog.oks, 0);
    EXPECT_EQ(dialog.cancels, 0);

    grid.EndEditItem();
    KeyPress(VK_TAB);
    EXPECT_EQ(::GetFocus(), dialog.last.m_hWnd);
    Select(fixed);
    KeyPress(VK_RETURN);
    EXPECT_EQ(dialog.oks, 1) << "a read-only property has no use for Enter";
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(dialog.cancels, 1);
    grid.SetParent(&host);
    dialog.DestroyWindow();
}

} // namespace
