// A host window for property grids that writes down what the user changed.
#pragma once

#include "tests/support/HostWindow.h"

#include <afxcontrolbars.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quor::test
{

// Text as the tests compare it.
inline std::wstring Wide(const CString& text)
{
    return std::wstring(text.GetString());
}

// Records "7 Name=value" for each AFX_WM_PROPERTY_CHANGED of the grid with control id 7, then does what the
// test wants.
class PropertyHost : public HostWindow
{
public:
    PropertyHost() : HostWindow(500, 400) {}

    std::vector<std::wstring> TakeChanges() { return std::exchange(m_changes, {}); }

    std::function<void(CMFCPropertyGridProperty*)> onChange;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == AFX_WM_PROPERTY_CHANGED)
        {
            auto* const property = reinterpret_cast<CMFCPropertyGridProperty*>(lParam);
            m_changes.push_back(std::to_wstring(wParam) + L" " + property->GetName() + L"=" +
                                Wide(property->FormatProperty()));
            if (onChange)
                onChange(property);
        }
        return HostWindow::WindowProc(message, wParam, lParam);
    }

private:
    std::vector<std::wstring> m_changes;
};

using Changes = std::vector<std::wstring>;

} // namespace quor::test
