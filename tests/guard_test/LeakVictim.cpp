// Tests that pass and leave something behind with every run: the frame of windowed test programs is to fail.
#include <gtest/gtest.h>

#include <afxwin.h>

#include <commctrl.h>
#include <oleauto.h>

namespace
{

TEST(Leak, Nothing)
{
    ::SysFreeString(::SysAllocString(L"given back"));
    EXPECT_TRUE(::DestroyMenu(::CreateMenu()));
}

TEST(Leak, Pen)
{
    EXPECT_NE(::CreatePen(PS_SOLID, 1, RGB(1, 2, 3)), nullptr);
}

TEST(Leak, DeviceContext)
{
    EXPECT_NE(::CreateCompatibleDC(nullptr), nullptr);
}

TEST(Leak, Menu)
{
    EXPECT_NE(::CreatePopupMenu(), nullptr);
}

TEST(Leak, Window)
{
    EXPECT_NE(::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                              ::GetModuleHandleW(nullptr), nullptr),
              nullptr);
}

TEST(Leak, ImageList)
{
    EXPECT_NE(::ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1), nullptr);
}

TEST(Leak, AutomationText)
{
    EXPECT_NE(::SysAllocString(L"kept"), nullptr);
}

} // namespace
