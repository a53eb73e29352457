// Looks over the shoulder of cell editors while they are made.
#include "tests/grid/EditorProbe.h"

#include "tests/grid/ModelGrid.h"

#include <cstdio>

namespace quor::test
{
namespace
{

CreationProbe* running = nullptr;

} // namespace

CreationProbe::CreationProbe() : hook(WH_CBT, OnTraining)
{
    running = this;
}

CreationProbe::~CreationProbe()
{
    running = nullptr;
}

LRESULT CALLBACK CreationProbe::OnTraining(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND && running)
        running->Note(reinterpret_cast<HWND>(wParam), *reinterpret_cast<CBT_CREATEWND*>(lParam)->lpcs);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void CreationProbe::Note(HWND window, const CREATESTRUCT& create)
{
    const UINT_PTR id = reinterpret_cast<UINT_PTR>(create.hMenu);
    if (id != 101 && id != 105)
        return;
    wchar_t name[64] = L"";
    GetClassName(window, name, 64);
    char line[160];
    std::snprintf(line, sizeof line, "%s %u %08lX %d,%d %dx%d", Narrow(name).c_str(),
                  static_cast<unsigned>(id), static_cast<unsigned long>(create.style), create.x, create.y,
                  create.cx, create.cy);
    created.push_back(line);
    parents.push_back(create.hwndParent);
    captions.push_back(create.lpszName ? create.lpszName : L"(null)");
}

} // namespace quor::test
