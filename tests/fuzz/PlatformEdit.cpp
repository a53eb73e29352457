// The edit control reads the styles that concern it from what it is created with.
#include "tests/fuzz/PlatformEdit.h"

#include <commctrl.h>

namespace quor::fuzz
{

namespace
{

LRESULT CALLBACK LetLineScroll(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR)
{
    if (message == WM_NCCREATE)
    {
        RemoveWindowSubclass(edit, LetLineScroll, id);
        auto& creation = *reinterpret_cast<CREATESTRUCTW*>(lParam);
        if ((creation.style & ES_MULTILINE) == 0)
            creation.style |= ES_AUTOHSCROLL;
    }
    return DefSubclassProc(edit, message, wParam, lParam);
}

} // namespace

void KeepTextInside(HWND edit)
{
    SetWindowSubclass(edit, LetLineScroll, 1, 0);
}

} // namespace quor::fuzz
