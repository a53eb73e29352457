// Window classes made from a style, a cursor, a brush and an icon.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

WNDCLASS ClassNamed(const CString& name)
{
    WNDCLASS info = {};
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), name, &info)) << "not registered";
    return info;
}

TEST(WindowClass, NameTellsInstanceAndStyle)
{
    const CString name = AfxRegisterWndClass(CS_SAVEBITS);
    CString expected;
    expected.Format(L"Afx:%Ix:%x", reinterpret_cast<UINT_PTR>(AfxGetInstanceHandle()), CS_SAVEBITS);
    EXPECT_STREQ(name, expected);
}

TEST(WindowClass, NameAlsoTellsCursorBrushAndIcon)
{
    const HCURSOR cursor = ::LoadCursor(NULL, IDC_CROSS);
    const HBRUSH brush = ::GetSysColorBrush(COLOR_WINDOW);
    const CString name = AfxRegisterWndClass(CS_HREDRAW, cursor, brush);
    CString expected;
    expected.Format(L"Afx:%Ix:%x:%Ix:%Ix:%Ix", reinterpret_cast<UINT_PTR>(AfxGetInstanceHandle()), CS_HREDRAW,
                    reinterpret_cast<UINT_PTR>(cursor), reinterpret_cast<UINT_PTR>(brush), UINT_PTR{0});
    EXPECT_STREQ(name, expected);
    const WNDCLASS info = ClassNamed(name);
    EXPECT_EQ(info.style, static_cast<UINT>(CS_HREDRAW));
    EXPECT_EQ(info.hCursor, cursor);
    EXPECT_EQ(info.hbrBackground, brush);
}

TEST(WindowClass, TheSameArgumentsGiveTheSameClass)
{
    const CString first = AfxRegisterWndClass(CS_VREDRAW);
    const CString other = AfxRegisterWndClass(CS_VREDRAW | CS_HREDRAW);
    const CString second = AfxRegisterWndClass(CS_VREDRAW);
    EXPECT_STREQ(first, second);
    EXPECT_NE(first, other);
}

TEST(WindowClass, ZeroStandsForDoubleClicksTheArrowAndNoBrush)
{
    const WNDCLASS info = ClassNamed(AfxRegisterWndClass(0));
    EXPECT_EQ(info.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(info.hCursor, ::LoadCursor(NULL, IDC_ARROW));
    EXPECT_EQ(info.hbrBackground, nullptr);
    EXPECT_NE(info.hIcon, nullptr);
}

TEST(WindowClass, RegisteringAnExistingClassSucceeds)
{
    WNDCLASS info = {};
    info.lpfnWndProc = ::DefWindowProc;
    info.hInstance = AfxGetInstanceHandle();
    info.lpszClassName = L"QuorWindowClassTest";
    EXPECT_TRUE(AfxRegisterClass(&info));
    EXPECT_TRUE(AfxRegisterClass(&info));
    info.lpszClassName = L"";
    EXPECT_FALSE(AfxRegisterClass(&info));
}

} // namespace
} // namespace quor::test
