// The wheel as a user turns it: real input over a grid with TGWheelScroll, with and without an open editor.
#include "grid/extras/TGWheelScroll.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

#include <algorithm>
#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A setting of the system, put back afterwards.
class SystemSetting
{
public:
    SystemSetting(UINT read, UINT write, UINT value) : writing(write)
    {
        ::SystemParametersInfo(read, 0, &before, 0);
        ::SystemParametersInfo(writing, value, nullptr, 0);
    }
    ~SystemSetting() { ::SystemParametersInfo(writing, before, nullptr, 0); }
    SystemSetting(const SystemSetting&) = delete;
    SystemSetting& operator=(const SystemSetting&) = delete;

private:
    UINT writing;
    UINT before = 0;
};

// Rows of 20 pixels; more rows and columns than the view of 400 x 300 shows.
class WheelScroll : public EditTest
{
protected:
    void Make(long rows = 100, long cols = 20)
    {
        EditTest::Make(grid, rows, cols);
        wheel.AttachTo(grid);
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
    }
    void Turn(int amount, Wheel axis = Wheel::Vertical, Modifiers modifiers = Modifiers::None)
    {
        TurnWheelBy(grid, grid.Area().CenterPoint(), amount, axis, modifiers);
    }
    // "x,y" of the view.
    std::string View() { return std::to_string(grid.HScroll()) + "," + std::to_string(grid.VScroll()); }

    SystemSetting lines{SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, 3};
    SystemSetting characters{SPI_GETWHEELSCROLLCHARS, SPI_SETWHEELSCROLLCHARS, 3};
    EditGrid grid;
    TGWheelScroll wheel;
};

// ---- Distances

TEST_F(WheelScroll, ScrollsTheRowsOfTheSystemsSetting)
{
    Make();
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(View(), "0,60");
    Turn(-2 * WHEEL_DELTA);
    EXPECT_EQ(View(), "0,180");
    Turn(WHEEL_DELTA);
    EXPECT_EQ(View(), "0,120");
    const SystemSetting one(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, 1);
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(View(), "0,140");
    Turn(100 * WHEEL_DELTA);
    EXPECT_EQ(View(), "0,0");
}

TEST_F(WheelScroll, AnyNumberOfNotches_StopsAtTheEnd)
{
    Make();
    Turn(-200 * WHEEL_DELTA);
    EXPECT_EQ(grid.VScroll(), grid.GetBottom() - grid.Area().Height());
}

TEST_F(WheelScroll, SettingOfAPage_ScrollsAPage)
{
    Make();
    const int page = grid.Area().Height();
    const SystemSetting pages(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, WHEEL_PAGESCROLL);
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(grid.VScroll(), page);
}

TEST_F(WheelScroll, SettingOfNone_ScrollsNothing)
{
    Make();
    const SystemSetting noLines(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, 0);
    const SystemSetting noCharacters(SPI_GETWHEELSCROLLCHARS, SPI_SETWHEELSCROLLCHARS, 0);
    Turn(-WHEEL_DELTA);
    Turn(WHEEL_DELTA, Wheel::Horizontal);
    EXPECT_EQ(View(), "0,0");
}

TEST_F(WheelScroll, HorizontalWheelAndShift_ScrollTheColumns)
{
    Make();
    Turn(WHEEL_DELTA, Wheel::Horizontal);
    EXPECT_EQ(View(), "60,0");
    Turn(-WHEEL_DELTA, Wheel::Vertical, Modifiers::Shift);
    EXPECT_EQ(View(), "120,0");
    Turn(WHEEL_DELTA, Wheel::Vertical, Modifiers::Shift);
    Turn(-WHEEL_DELTA, Wheel::Horizontal);
    EXPECT_EQ(View(), "0,0");
    const SystemSetting one(SPI_GETWHEELSCROLLCHARS, SPI_SETWHEELSCROLLCHARS, 1);
    wheel.SetCharWidth(7);
    Turn(WHEEL_DELTA, Wheel::Horizontal);
    EXPECT_EQ(View(), "7,0");
    wheel.SetCharWidth(-1);
    EXPECT_EQ(wheel.GetCharWidth(), 0);
}

TEST_F(WheelScroll, FineTurns_AddUp_AndAChangeOfDirectionDropsTheRest)
{
    Make();
    for (int i = 0; i < 120; ++i)
        SendMessage(grid, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-1)), 0);
    EXPECT_EQ(View(), "0,60");
    Turn(-1);
    EXPECT_EQ(View(), "0,60");
    // Half a pixel down is left; half a pixel up would make none of it.
    Turn(1);
    Turn(-1);
    EXPECT_EQ(View(), "0,60");
    Turn(-1);
    EXPECT_EQ(View(), "0,61");
}

TEST_F(WheelScroll, EachDirection_HasARestOfItsOwn)
{
    Make();
    Turn(-1);
    Turn(1, Wheel::Horizontal);
    EXPECT_EQ(View(), "0,0");
    Turn(-1);
    Turn(1, Wheel::Horizontal);
    EXPECT_EQ(View(), "1,1");
}

TEST_F(WheelScroll, OverAHeader_ScrollsTheGrid)
{
    Make();
    for (const int id : {102, 103, 104})
        grid.GetDlgItem(id)->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_EQ(View(), "0,180");
}

// ---- What is not the grid's

class WheelParent : public CWnd
{
public:
    int wheels = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL)
        {
            ++wheels;
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(WheelOfTheParent, WhatTheGridCannotUse)
{
    HostWindow host;
    WheelParent parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 500, 500), &host, 1);
    WindowGrid grid;
    TGWheelScroll wheel(grid);
    ASSERT_TRUE(grid.Create(CRect(0, 0, 400, 300), WS_CHILD | WS_VISIBLE, &parent));
    AddCols(grid, 2);
    grid.SetRowNum(3);
    const auto turn = [&](UINT message, WORD keys) {
        grid.SendMessage(message, MAKEWPARAM(keys, static_cast<WORD>(-WHEEL_DELTA)), 0);
    };
    turn(WM_MOUSEWHEEL, 0);
    turn(WM_MOUSEHWHEEL, 0);
    turn(WM_MOUSEWHEEL, MK_SHIFT);
    EXPECT_EQ(parent.wheels, 3);
    grid.SetRowNum(100);
    turn(WM_MOUSEWHEEL, 0);
    EXPECT_EQ(parent.wheels, 3);
    turn(WM_MOUSEWHEEL, MK_CONTROL);
    EXPECT_EQ(parent.wheels, 4);
    EXPECT_EQ(grid.VScroll(), 3 * grid.GetRowHeight());
}

TEST_F(WheelScroll, Detached_TheGridAnswersAsEver)
{
    Make();
    wheel.Detach();
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(View(), "0,0");
}

// ---- Editors

class WheelEditor : public WheelScroll
{
protected:
    void Edit(long row, long col)
    {
        Make();
        grid.BeginEditCell(row, col);
        ASSERT_TRUE(grid.IsEditing());
        place = PlaceOf(*grid.EditorWindow());
        PumpPending();
    }
    CRect place;
};

TEST_F(WheelEditor, GoesAlongWithItsCell_AndKeepsWhatIsTyped)
{
    Edit(5, 1);
    KeyPress(VK_END);
    TypeText(L"!");
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(View(), "0,60");
    ASSERT_TRUE(grid.IsEditing());
    EXPECT_EQ(Text(PlaceOf(*grid.EditorWindow())), Text(place - CPoint(0, 60)));
    Turn(WHEEL_DELTA, Wheel::Horizontal);
    EXPECT_EQ(Text(PlaceOf(*grid.EditorWindow())), Text(place - CPoint(60, 60)));
    TypeText(L"?");
    EXPECT_EQ(TextOf(grid, 5, 1), L"5,1");
    KeyPress(VK_RETURN);
    EXPECT_EQ(TextOf(grid, 5, 1), L"5,1!?");
}

TEST_F(WheelEditor, OutOfTheView_IsNotSeenAndComesBack)
{
    Edit(1, 1);
    TypeText(L"new");
    Turn(-20 * WHEEL_DELTA);
    EXPECT_EQ(View(), "0,1200");
    ASSERT_TRUE(grid.IsEditing());
    // Its place is far above; what is in view is all cells.
    const Snapshot picture(grid);
    const CRect header = PlaceOf(*grid.GetDlgItem(103));
    EXPECT_GT(header.bottom, 0);
    EXPECT_EQ(::ChildWindowFromPointEx(grid, grid.Area().CenterPoint(), CWP_SKIPINVISIBLE), grid.m_hWnd);
    Turn(20 * WHEEL_DELTA);
    EXPECT_EQ(Text(PlaceOf(*grid.EditorWindow())), Text(place));
    KeyPress(VK_RETURN);
    EXPECT_EQ(TextOf(grid, 1, 1), L"new");
}

// Places of windows have 16 bits.
TEST_F(WheelEditor, FarOutOfTheView_ComesBack)
{
    Edit(1, 1);
    grid.SetRowNum(10000);
    grid.BeginEditCell(1, 1);
    Turn(-2500 * WHEEL_DELTA / 10);
    const SystemSetting pages(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, WHEEL_PAGESCROLL);
    Turn(-200 * WHEEL_DELTA);
    Turn(-200 * WHEEL_DELTA);
    EXPECT_GT(grid.VScroll(), 70000);
    ASSERT_TRUE(grid.IsEditing());
    for (int i = 0; i < 5; ++i)
        Turn(200 * WHEEL_DELTA);
    EXPECT_EQ(View(), "0,0");
    EXPECT_EQ(Text(PlaceOf(*grid.EditorWindow())), Text(place));
}

TEST_F(WheelEditor, HalfUnderAHeader_IsCutOff)
{
    Edit(1, 1);
    grid.EditorWindow()->SetWindowText(L"");
    const SystemSetting one(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, 1);
    const Snapshot before(grid);
    const CRect header = PlaceOf(*grid.GetDlgItem(103));
    Turn(-3 * WHEEL_DELTA / 2);
    EXPECT_EQ(View(), "0,30");
    ASSERT_TRUE(grid.IsEditing());
    ASSERT_LT(PlaceOf(*grid.EditorWindow()).top, header.bottom);
    // What it draws last does not show there either.
    grid.EditorWindow()->RedrawWindow();
    const Snapshot after(grid);
    for (int x = header.left; x < (std::min)(static_cast<int>(header.right), after.Width()); ++x)
        for (int y = header.top; y < header.bottom; ++y)
            ASSERT_EQ(before.At(x, y), after.At(x, y)) << x << "," << y;
}

TEST_F(WheelEditor, ScrollingLeavesNoTrace)
{
    Edit(4, 1);
    Turn(-WHEEL_DELTA);
    Turn(WHEEL_DELTA / 3);
    const Snapshot scrolled(grid);
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const Snapshot fresh(grid);
    const CRect area = grid.Area();
    int different = 0;
    for (int x = area.left; x < area.right; ++x)
        for (int y = area.top; y < area.bottom; ++y)
            different += scrolled.At(x, y) != fresh.At(x, y) ? 1 : 0;
    // The caret blinks.
    EXPECT_LE(different, 2 * rowHeight);
}

TEST_F(WheelEditor, Commit_StoresTheTextAndCloses)
{
    Edit(5, 1);
    wheel.SetOpenEditor(TGWheelScroll::OpenEditor::Commit);
    EXPECT_EQ(wheel.GetOpenEditor(), TGWheelScroll::OpenEditor::Commit);
    TypeText(L"typed");
    Turn(-WHEEL_DELTA);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 5, 1), L"typed");
    EXPECT_EQ(View(), "0,60");
}

TEST_F(WheelEditor, AVetoedCommit_DropsTheTextAndScrolls)
{
    Edit(5, 1);
    wheel.SetOpenEditor(TGWheelScroll::OpenEditor::Commit);
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    TypeText(L"typed");
    Turn(-WHEEL_DELTA);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 5, 1), L"5,1");
    EXPECT_EQ(View(), "0,60");
}

TEST_F(WheelEditor, OpenList_KeepsTheWheel)
{
    Make();
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) {
        for (const wchar_t* item : {L"a", L"b", L"c"})
            combo.AddString(item);
    };
    grid.BeginEditCell(2, 1);
    auto& combo = static_cast<CComboBox&>(*grid.EditorWindow());
    combo.ShowDropDown(TRUE);
    Turn(-WHEEL_DELTA);
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_EQ(View(), "0,0");
    EXPECT_TRUE(combo.GetDroppedState());
    combo.ShowDropDown(FALSE);
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(View(), "0,60");
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

// ---- Hostile hosts

TEST_F(WheelEditor, CommitThatClosesTheWindow)
{
    Edit(5, 1);
    wheel.SetOpenEditor(TGWheelScroll::OpenEditor::Commit);
    grid.modifiedText = [&](TGGridCell&, CString&) {
        grid.DestroyWindow();
        return true;
    };
    TypeText(L"typed");
    Turn(-WHEEL_DELTA);
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_EQ(wheel.GetGrid(), &grid);
    MSG message = {nullptr, WM_MOUSEWHEEL, 0, 0, 0, {}};
    EXPECT_FALSE(grid.PreTranslateMessage(&message));
}

TEST_F(WheelScroll, CommitThatDeletesTheExtension)
{
    EditTest::Make(grid, 100, 20);
    auto own = std::make_unique<TGWheelScroll>(grid);
    own->SetOpenEditor(TGWheelScroll::OpenEditor::Commit);
    grid.BeginEditCell(5, 1);
    grid.Enter(L"typed");
    grid.modifiedText = [&](TGGridCell&, CString&) {
        own.reset();
        return true;
    };
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_EQ(own, nullptr);
    EXPECT_EQ(TextOf(grid, 5, 1), L"typed");
    EXPECT_EQ(View(), "0,60");
}

TEST(WheelScrollAttaching, TwiceOrToTwoGrids_IsRefused)
{
    ModelGrid grid;
    ModelGrid other;
    TGWheelScroll wheel(grid);
    EXPECT_FALSE(wheel.AttachTo(grid));
    EXPECT_FALSE(wheel.AttachTo(other));
    EXPECT_EQ(wheel.GetGrid(), &grid);
}

} // namespace
} // namespace quor::test
