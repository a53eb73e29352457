// Tests that objects which are not given back are counted.
#include "tests/support/GuiHandles.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

TEST(GuiHandles, GdiObjects_AreCountedByKind)
{
    const GuiHandles before = CountGuiHandles();
    HPEN pens[3];
    for (HPEN& pen : pens)
        pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HRGN region = CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(Growth(before, CountGuiHandles()), "regions +1, brushes +1, pens +3");
    for (const HPEN pen : pens)
        DeleteObject(pen);
    DeleteObject(brush);
    DeleteObject(region);
    EXPECT_EQ(Growth(before, CountGuiHandles()), "");
}

TEST(GuiHandles, UserObjects_AreCountedByKind)
{
    // The first window of a thread brings a hidden one for input methods.
    const HostWindow host;
    const GuiHandles before = CountGuiHandles();
    const HMENU menu = CreatePopupMenu();
    const HWND window =
        CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ACCEL entry{};
    const HACCEL accelerators = CreateAcceleratorTableW(&entry, 1);
    EXPECT_EQ(Growth(before, CountGuiHandles()), "windows +1, menus +1, accelerator tables +1");
    DestroyAcceleratorTable(accelerators);
    DestroyWindow(window);
    DestroyMenu(menu);
    EXPECT_EQ(Growth(before, CountGuiHandles()), "");
}

TEST(GuiHandles, Sums_AddAllKinds)
{
    GuiHandles count;
    count.pens = 2;
    count.fonts = 3;
    count.windows = 4;
    count.icons = 5;
    EXPECT_EQ(count.AllGdi(), 5);
    EXPECT_EQ(count.AllUser(), 9);
}

} // namespace
} // namespace quor::test
