// Reads a popup menu while it is open, and chooses from it as a user does.
#pragma once

#include "tests/support/ThreadHook.h"

#include <windows.h>

#include <string>
#include <vector>

namespace quor::test
{

// One line of a menu.
struct MenuItem
{
    UINT id = 0; // 0 for a separator and for an item that opens a submenu
    std::wstring caption;
    bool enabled = true;
    bool checked = false;
    bool separator = false;
    std::vector<MenuItem> submenu;
};

// The items of a menu; works for menus that are not shown, too.
std::vector<MenuItem> ReadMenu(HMENU menu);

// Items as one line: "1 Cut, 2 Copy (grey), -, More {3 Paste (checked)}".
std::wstring Describe(const std::vector<MenuItem>& items);

// Waits, for as long as it lives, for popup menus of this thread. When one opens it reads the items; then it
// moves the mouse to the wanted item and clicks, through submenus where needed, or closes the menu when no
// item is wanted, or the wanted one is not there or grey. One probe at a time.
class MenuProbe
{
public:
    // No id: only read the menu, then close it.
    explicit MenuProbe(UINT wantedId = 0);
    ~MenuProbe();

    // Whether a menu was opened, and what was in it when it opened (the top level with all submenus).
    bool Opened() const { return m_opened; }
    const std::vector<MenuItem>& Items() const { return m_items; }
    std::wstring Description() const { return Describe(m_items); }

    // Whether the wanted item was there, enabled, and clicked.
    bool Chosen() const { return m_chosen; }

private:
    static LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnMessageFilter(int code, WPARAM wParam, LPARAM lParam);

    void OnMenuMessage();
    void OnMenuShown(HWND popup);

    UINT m_wantedId;
    std::vector<HWND> m_popups; // created and not looked at yet
    std::vector<MenuItem> m_items;
    bool m_opened = false;
    bool m_chosen = false;
    ThreadHook m_trainingHook;
    ThreadHook m_filterHook;
};

} // namespace quor::test
