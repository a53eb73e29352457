// Tests that input reaches windows as the messages of a real mouse and keyboard.
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quor::test
{
namespace
{

using Lines = std::vector<std::string>;

// Writes down mouse and key messages, in short.
class InputWindow : public HostWindow
{
public:
    Lines input;

private:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const std::string at =
            std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
        switch (message)
        {
        case WM_LBUTTONDOWN:
            input.push_back("left down " + at + ((wParam & MK_CONTROL) != 0 ? " control" : ""));
            break;
        case WM_LBUTTONUP:
            input.push_back("left up " + at);
            break;
        case WM_LBUTTONDBLCLK:
            input.push_back("double " + at);
            break;
        case WM_RBUTTONDOWN:
            input.push_back("right down " + at);
            break;
        case WM_CONTEXTMENU:
            input.push_back("context menu");
            break;
        case WM_MOUSEMOVE:
            if ((wParam & MK_LBUTTON) != 0 && input.back() != "drag " + at)
                input.push_back("drag " + at);
            break;
        case WM_MOUSEWHEEL:
            input.push_back("wheel " + std::to_string(GET_WHEEL_DELTA_WPARAM(wParam)));
            break;
        case WM_KEYDOWN:
            input.push_back("key " + std::to_string(wParam) + (GetKeyState(VK_SHIFT) < 0 ? " shift" : "") +
                            ((HIWORD(lParam) & KF_EXTENDED) != 0 ? " extended" : ""));
            break;
        case WM_CHAR:
            input.push_back("char " + std::to_string(wParam));
            break;
        default:
            break;
        }
        return HostWindow::WindowProc(message, wParam, lParam);
    }
};

TEST(Input, MoveMouse_PutsTheCursorOnTheClientPoint)
{
    InputWindow host;
    MoveMouse(host, {40, 50});
    POINT cursor{};
    GetCursorPos(&cursor);
    ScreenToClient(host, &cursor);
    EXPECT_EQ(cursor.x, 40);
    EXPECT_EQ(cursor.y, 50);
}

TEST(Input, Click_ArrivesAsPressAndRelease)
{
    InputWindow host;
    Click(host, {40, 50});
    EXPECT_EQ(host.input, (Lines{"left down 40,50", "left up 40,50"}));
}

TEST(Input, Click_WithControl_HasTheFlag)
{
    InputWindow host;
    Click(host, {10, 12}, Modifiers::Control);
    EXPECT_NE(std::find(host.input.begin(), host.input.end(), "left down 10,12 control"), host.input.end());
    EXPECT_GE(GetKeyState(VK_CONTROL), 0);
}

TEST(Input, DoubleClick_ArrivesAsOne)
{
    InputWindow host;
    DoubleClick(host, {140, 150});
    EXPECT_EQ(host.input,
              (Lines{"left down 140,150", "left up 140,150", "double 140,150", "left up 140,150"}));
}

TEST(Input, RightClick_AsksForTheContextMenu)
{
    InputWindow host;
    RightClick(host, {40, 50});
    EXPECT_EQ(host.input, (Lines{"right down 40,50", "context menu"}));
}

TEST(Input, DragPath_MovesThroughAllPoints)
{
    InputWindow host;
    DragPath(host, {{10, 10}, {20, 30}, {60, 70}});
    EXPECT_EQ(host.input,
              (Lines{"left down 10,10", "drag 10,10", "drag 20,30", "drag 60,70", "left up 60,70"}));
}

TEST(Input, TurnWheel_ArrivesInNotches)
{
    InputWindow host;
    TurnWheel(host, {40, 50}, -2);
    EXPECT_EQ(host.input, Lines{"wheel -240"});
}

TEST(Input, KeyPress_ReachesTheFocusWithModifiers)
{
    InputWindow host;
    host.SetFocus();
    KeyPress(VK_DOWN, Modifiers::Shift);
    EXPECT_EQ(host.input, (Lines{"key 16 shift", "key 40 shift extended"}));
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST(Input, TypeText_ReachesAnEditControl)
{
    HostWindow host;
    CWnd edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &host, 12));
    edit.SetFocus();
    TypeText(L"Zeile \u4e2d");
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, L"Zeile \u4e2d");
}

TEST(Input, PostKey_ReachesAWindowWithoutFocus)
{
    InputWindow host;
    HostWindow other;
    PostKey(host, VK_RETURN);
    EXPECT_EQ(host.input, (Lines{"key 13", "char 13"}));
}

TEST(Input, SendMouse_IsHandledAtOnce)
{
    InputWindow host;
    SendMouse(host, WM_LBUTTONDOWN, {3, 4}, MK_LBUTTON);
    EXPECT_EQ(host.input, Lines{"left down 3,4"});
}

TEST(Input, Activate_BringsTheTopLevelWindowToTheFront)
{
    HostWindow first;
    CWnd child;
    ASSERT_TRUE(child.Create(L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &first, 12));
    HostWindow second;
    ASSERT_EQ(GetForegroundWindow(), second.m_hWnd);
    EXPECT_TRUE(Activate(child));
    EXPECT_EQ(GetForegroundWindow(), first.m_hWnd);
}

} // namespace
} // namespace quor::test
