// A property grid used with the real mouse.
#include "tests/support/PropertySheet.h"

#include "tests/support/Input.h"
#include "tests/support/Pump.h"

using namespace quor::test;

namespace
{

class PropertyMouse : public PropertySheetTest
{
protected:
    // Opens the list of a property that is selected and chooses a line with the mouse.
    void Choose(Property* property, int line)
    {
        Click(grid, ValuePoint(property));
        Click(grid, ButtonPoint(property));
        ASSERT_TRUE(PumpUntil([&] { return Combo() != NULL && Combo()->SendMessage(CB_GETDROPPEDSTATE); }));
        COMBOBOXINFO info = {};
        info.cbSize = sizeof(info);
        ::GetComboBoxInfo(Combo()->m_hWnd, &info);
        const int lineHeight = static_cast<int>(Combo()->SendMessage(CB_GETITEMHEIGHT));
        Click(info.hwndList, CPoint(10, lineHeight * line + lineHeight / 2));
        ASSERT_TRUE(PumpUntil([&] { return Combo() == NULL; }));
    }
};

TEST_F(PropertyMouse, AClickOnATextOpensItAndEnterTakesWhatIsTyped)
{
    Click(grid, ValuePoint(title));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(EditorText(), L"Draft");
    TypeText(L"Final");
    KeyPress(VK_RETURN);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Text(title), L"Final");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=Final"});
}

TEST_F(PropertyMouse, AClickOnAnotherRowTakesTheValue)
{
    Click(grid, ValuePoint(count));
    TypeText(L"12");
    Click(grid, NamePoint(ratio));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Count=12"});
    EXPECT_EQ(Selected(), L"Ratio");
}

TEST_F(PropertyMouse, TheSpinButtonStepsTheNumber)
{
    Click(grid, ValuePoint(level));
    Click(grid, CPoint(ButtonPoint(level).x, level->GetRect().top + 3));
    EXPECT_EQ(EditorText(), L"4");
    EXPECT_EQ(host.TakeChanges(), Changes{});
    KeyPress(VK_RETURN);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Level=4"});
}

TEST_F(PropertyMouse, AFlagIsChosenFromItsList)
{
    Choose(visible, 1);
    EXPECT_EQ(Text(visible), L"False");
    EXPECT_EQ(visible->GetValue().vt, VT_BOOL);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Visible=False"});
}

TEST_F(PropertyMouse, AnOptionIsChosenFromItsList)
{
    Choose(shape, 2);
    EXPECT_EQ(Text(shape), L"Star");
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Shape=Star"});
    EXPECT_EQ(EditorText(), L"Star") << "the editor stays open";
}

TEST_F(PropertyMouse, ChoosingThePresentOptionTellsNobody)
{
    Choose(shape, 0);
    EXPECT_EQ(host.TakeChanges(), Changes{});
}

TEST_F(PropertyMouse, AClickBesideTheOpenListClosesIt)
{
    Click(grid, ValuePoint(shape));
    Click(grid, ButtonPoint(shape));
    ASSERT_TRUE(PumpUntil([&] { return Combo() != NULL; }));
    Click(host, CPoint(450, 390));
    EXPECT_TRUE(PumpUntil([&] { return Combo() == NULL; }));
    EXPECT_EQ(Text(shape), L"Circle");
    EXPECT_EQ(host.TakeChanges(), Changes{});
}

TEST_F(PropertyMouse, ADoubleClickChoosesTheNextOption)
{
    DoubleClick(grid, NamePoint(shape));
    EXPECT_EQ(Text(shape), L"Square");
    DoubleClick(grid, ValuePoint(visible));
    EXPECT_EQ(Text(visible), L"False");
    EXPECT_EQ(host.TakeChanges(), (Changes{L"7 Shape=Square", L"7 Visible=False"}));
}

TEST_F(PropertyMouse, ABoxFoldsAndUnfolds)
{
    Click(grid, BoxPoint(texts));
    EXPECT_FALSE(texts->IsExpanded());
    EXPECT_EQ(numbers->GetRect().top, texts->GetRect().bottom);
    Click(grid, BoxPoint(texts));
    EXPECT_TRUE(texts->IsExpanded());
    DoubleClick(grid, NamePoint(texts));
    EXPECT_FALSE(texts->IsExpanded());
}

TEST_F(PropertyMouse, ReadOnlyAndDisabledPropertiesDoNotOpen)
{
    Click(grid, ValuePoint(fixed));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Selected(), L"Fixed");
    Click(grid, ValuePoint(off));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Selected(), L"Off");
}

TEST_F(PropertyMouse, TheColumnLineIsDragged)
{
    const int before = grid.GetLeftColumnWidth();
    const int y = count->GetRect().CenterPoint().y;
    DragPath(grid, {CPoint(before, y), CPoint(before + 20, y), CPoint(before + 50, y)});
    EXPECT_EQ(grid.GetLeftColumnWidth(), before + 50);
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(PropertyMouse, TheColumnLineIsGraspedUpToThreePixelsBesideIt)
{
    const int y = count->GetRect().CenterPoint().y;
    for (const int beside : {-4, -3, 3, 4})
    {
        const int before = grid.GetLeftColumnWidth();
        const int x = before + beside;
        SendMouse(grid, WM_LBUTTONDOWN, CPoint(x, y), MK_LBUTTON);
        SendMouse(grid, WM_MOUSEMOVE, CPoint(x + 30, y), MK_LBUTTON);
        SendMouse(grid, WM_LBUTTONUP, CPoint(x + 30, y));
        EXPECT_EQ(grid.GetLeftColumnWidth() != before, beside == 3 || beside == -3) << beside;
    }
}

TEST_F(PropertyMouse, EscDuringTheDragLeavesTheColumnsAlone)
{
    const int before = grid.GetLeftColumnWidth();
    const int y = count->GetRect().CenterPoint().y;
    grid.SetFocus();
    PressMouse(grid, CPoint(before, y));
    MoveMouse(grid, CPoint(before + 40, y));
    KeyPress(VK_ESCAPE);
    ReleaseMouse(grid, CPoint(before + 40, y));
    EXPECT_EQ(grid.GetLeftColumnWidth(), before);
}

TEST_F(PropertyMouse, TheHeaderResizesTheColumnsToo)
{
    const int before = grid.GetLeftColumnWidth();
    CMFCHeaderCtrl& header = grid.GetHeaderCtrl();
    DragPath(header, {CPoint(before, 5), CPoint(before - 20, 5), CPoint(before - 40, 5)});
    EXPECT_EQ(grid.GetLeftColumnWidth(), before - 40);
}

TEST_F(PropertyMouse, TheDescriptionIsMadeHigherByItsUpperEdge)
{
    grid.EnableDescriptionArea();
    const int top = grid.GetListRect().bottom + 1;
    const int up = 2 * grid.GetRowHeight();
    DragPath(grid, {CPoint(50, top), CPoint(50, top - up / 2), CPoint(50, top - up)});
    EXPECT_EQ(grid.GetDescriptionRows(), 5);
}

TEST_F(PropertyMouse, TheWheelScrollsAndClosesTheEditor)
{
    grid.SetWindowPos(NULL, 0, 0, 400, 120, SWP_NOMOVE | SWP_NOZORDER);
    Click(grid, ValuePoint(title));
    TypeText(L"Scrolled");
    TurnWheel(grid, CPoint(100, 60), -1);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=Scrolled"});
    EXPECT_EQ(texts->GetRect().top, grid.GetListRect().top - 3 * grid.GetRowHeight());
    TurnWheel(grid, CPoint(100, 60), 5);
    EXPECT_EQ(texts->GetRect().top, grid.GetListRect().top);
}

TEST_F(PropertyMouse, ARightClickReachesTheProperty)
{
    struct ClickedProperty : CMFCPropertyGridProperty
    {
        using CMFCPropertyGridProperty::CMFCPropertyGridProperty;
        void OnRClickName(CPoint) override { clicks += L"name "; }
        void OnRClickValue(CPoint, BOOL isSelected) override
        {
            clicks += isSelected ? L"selected " : L"value ";
        }
        std::wstring clicks;
    };
    auto* const clicked = new ClickedProperty(L"Clicked", _variant_t(L"x"));
    texts->AddSubItem(clicked);
    grid.UpdateWindow();
    SendMouse(grid, WM_RBUTTONUP, NamePoint(clicked));
    SendMouse(grid, WM_RBUTTONUP, ValuePoint(clicked));
    grid.SetCurSel(clicked);
    SendMouse(grid, WM_RBUTTONUP, ValuePoint(clicked));
    EXPECT_EQ(clicked->clicks, L"name value selected ");
}

TEST_F(PropertyMouse, SmallStepsOfTheWheelAddUp)
{
    grid.SetWindowPos(NULL, 0, 0, 400, 120, SWP_NOMOVE | SWP_NOZORDER);
    const auto turn = [this](int delta) {
        CPoint point(100, 60);
        grid.ClientToScreen(&point);
        grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(static_cast<short>(delta))),
                         MAKELPARAM(point.x, point.y));
        return (grid.GetListRect().top - texts->GetRect().top) / grid.GetRowHeight();
    };
    // Three rows for a notch of 120.
    EXPECT_EQ(turn(-50), 1);
    EXPECT_EQ(turn(-50), 2);
    EXPECT_EQ(turn(-20), 3);
    EXPECT_EQ(turn(50), 2);
    EXPECT_EQ(turn(50), 1);
    EXPECT_EQ(turn(20), 0);
}

TEST_F(PropertyMouse, ATipShowsACutText)
{
    title->SetValue(_variant_t(L"a text that is much too long for the column of values that it stands in"));
    grid.UpdateWindow();
    MoveMouse(grid, ValuePoint(title));
    MoveMouse(grid, ValuePoint(title) + CPoint(2, 0));
    const auto tipText = []() -> std::wstring {
        for (HWND tip = NULL; (tip = ::FindWindowEx(NULL, tip, TOOLTIPS_CLASS, NULL)) != NULL;)
        {
            wchar_t text[256] = L"";
            TOOLINFO tool = {};
            tool.cbSize = sizeof(tool);
            tool.lpszText = text;
            if (::IsWindowVisible(tip) &&
                ::SendMessage(tip, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)))
            {
                tool.lpszText = text;
                ::SendMessage(tip, TTM_GETTEXT, 256, reinterpret_cast<LPARAM>(&tool));
                return text;
            }
        }
        return L"";
    };
    EXPECT_TRUE(PumpUntil([&] { return tipText() == Text(title); }))
        << "shown: " << CStringA(tipText().c_str()).GetString();
}

TEST_F(PropertyMouse, LosingTheFocusTakesTheValue)
{
    CEdit other;
    other.Create(WS_CHILD | WS_VISIBLE, CRect(410, 10, 490, 40), &host, 8);
    Click(grid, ValuePoint(title));
    TypeText(L"Left");
    Click(other, CPoint(10, 10));
    EXPECT_EQ(host.TakeChanges(), Changes{L"7 Title=Left"});
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(::GetFocus(), other.m_hWnd);
}

} // namespace
