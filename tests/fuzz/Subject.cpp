// The list of modes, and which window gets a message.
#include "tests/fuzz/Subject.h"
#include "tests/fuzz/Modes.h"
#include "tests/fuzz/Step.h"

namespace quor::fuzz
{

namespace
{

struct Windows
{
    HWND found[32];
    long number = 0;
};

BOOL CALLBACK AddWindow(HWND window, LPARAM data)
{
    auto& all = *reinterpret_cast<Windows*>(data);
    if (all.number < static_cast<long>(std::size(all.found)))
        all.found[all.number++] = window;
    return TRUE;
}

} // namespace

HWND Subject::Target()
{
    const HWND control = Window();
    if (!Dice().OneIn(3))
        return control;
    Windows below;
    EnumChildWindows(control, AddWindow, reinterpret_cast<LPARAM>(&below));
    return below.number == 0 ? control : below.found[Dice().Below(below.number)];
}

const std::vector<Mode>& AllModes()
{
    static const std::vector<Mode> modes = {
        {"grid", MakeGridMode},           {"tree-rows", MakeTreeRowsMode}, {"tree-grid", MakeTreeGridMode},
        {"headers", MakeHeadersMode},     {"editors", MakeEditorsMode},    {"drag-tree", MakeDragTreeMode},
        {"properties", MakePropertyMode}, {"list", MakeListMode},          {"select-all", MakeSelectAllMode},
    };
    return modes;
}

} // namespace quor::fuzz
