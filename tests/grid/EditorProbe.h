// Looks over the shoulder of cell editors while they are made.
#pragma once

#include "tests/support/ThreadHook.h"

#include <afxwin.h>

#include <string>
#include <vector>

namespace quor::test
{

// Writes down, for as long as it lives, what the windows of editors (101) and of their buttons and spins
// (105) are created with: "Edit 101 56000084 0,0 0x0", the class, the id, the style and the place in the
// parent. The system classes change some styles afterwards. One probe at a time.
class CreationProbe
{
public:
    CreationProbe();
    ~CreationProbe();

    const std::vector<std::string>& Created() const { return created; }
    // The parents of the windows, in the same order.
    const std::vector<HWND>& Parents() const { return parents; }
    // The captions of the windows, in the same order.
    const std::vector<std::wstring>& Captions() const { return captions; }

private:
    static LRESULT CALLBACK OnTraining(int code, WPARAM wParam, LPARAM lParam);
    void Note(HWND window, const CREATESTRUCT& create);

    std::vector<std::string> created;
    std::vector<HWND> parents;
    std::vector<std::wstring> captions;
    ThreadHook hook;
};

} // namespace quor::test
