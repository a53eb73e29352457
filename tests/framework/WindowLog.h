// What the tests of windows share: a log of lines, and windows to put things into.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <string>
#include <vector>

namespace quor::test
{

using Log = std::vector<std::string>;

// A plain top-level window that is visible and active; the tests put their windows into it.
class ParentWindow : public CWnd
{
public:
    ParentWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 400, 300,
                 NULL, NULL);
    }
    ~ParentWindow() override { DestroyWindow(); }
};

// A child of the parent in the window class of the framework.
inline BOOL CreateChild(CWnd& child, CWnd& parent, UINT id, LPCTSTR windowClass = nullptr, DWORD style = 0)
{
    return child.Create(windowClass, L"", WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 110, 60), &parent, id);
}

} // namespace quor::test
