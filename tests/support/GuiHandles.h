// Counts the GDI and USER objects of this process, to find those that are never given back.
#pragma once

#include <string>

namespace quor::test
{

// How many objects of each kind are alive.
struct GuiHandles
{
    int deviceContexts = 0;
    int regions = 0;
    int bitmaps = 0;
    int palettes = 0;
    int fonts = 0;
    int brushes = 0;
    int pens = 0;
    int otherGdi = 0;
    int windows = 0;
    int menus = 0;
    int icons = 0; // and cursors
    int accelerators = 0;

    int AllGdi() const;
    int AllUser() const;
};

// Takes the count. Works where GetGuiResources only returns 0, as under Wine, by looking at the handle
// tables; on Windows itself the USER objects cannot be told apart and are all counted as windows. Takes about
// a tenth of a second. The first use of a device context creates objects that stay, so compare counts of a
// second run with those of a first.
GuiHandles CountGuiHandles();

// What grew from before to after, such as "pens +10, windows +1"; empty when nothing did.
std::string Growth(const GuiHandles& before, const GuiHandles& after);

} // namespace quor::test
