// Follows popup menus by hooks: one tells that a menu window is made, the other runs in the menu's own
// message loop.
#include "tests/support/MenuProbe.h"

#include <algorithm>
#include <stdexcept>

namespace quor::test
{

namespace
{

constexpr UINT GetMenuHandle = 0x01E1; // MN_GETHMENU: a popup window's menu

MenuProbe* activeProbe;

bool IsMenuWindow(HWND window)
{
    wchar_t name[16] = L"";
    return GetClassNameW(window, name, 16) > 0 && std::wstring(name) == L"#32768";
}

std::wstring CaptionOf(HMENU menu, UINT position)
{
    std::wstring caption(static_cast<std::size_t>(GetMenuStringW(menu, position, nullptr, 0, MF_BYPOSITION)),
                         L'\0');
    if (!caption.empty())
        GetMenuStringW(menu, position, caption.data(), static_cast<int>(caption.size()) + 1, MF_BYPOSITION);
    return caption;
}

MenuItem ReadItem(HMENU menu, UINT position)
{
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU;
    GetMenuItemInfoW(menu, position, TRUE, &info);
    MenuItem item;
    item.separator = (info.fType & MFT_SEPARATOR) != 0;
    item.enabled = (info.fState & MFS_GRAYED) == 0;
    item.checked = (info.fState & MFS_CHECKED) != 0;
    if (item.separator)
        return item;
    item.caption = CaptionOf(menu, position);
    if (info.hSubMenu != nullptr)
        item.submenu = ReadMenu(info.hSubMenu);
    else
        item.id = info.wID;
    return item;
}

bool Contains(const MenuItem& item, UINT id)
{
    if (!item.enabled)
        return false;
    if (item.submenu.empty())
        return item.id == id && !item.separator;
    return std::any_of(item.submenu.begin(), item.submenu.end(),
                       [id](const MenuItem& below) { return Contains(below, id); });
}

void SendMouseInput(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void ClickItem(HMENU menu, UINT position)
{
    RECT item{};
    GetMenuItemRect(nullptr, menu, position, &item);
    SetCursorPos((item.left + item.right) / 2, (item.top + item.bottom) / 2);
    SendMouseInput(MOUSEEVENTF_MOVE);
    SendMouseInput(MOUSEEVENTF_LEFTDOWN);
    SendMouseInput(MOUSEEVENTF_LEFTUP);
}

std::wstring DescribeItem(const MenuItem& item)
{
    if (item.separator)
        return L"-";
    std::wstring text = item.submenu.empty() ? std::to_wstring(item.id) + L" " + item.caption
                                             : item.caption + L" {" + Describe(item.submenu) + L"}";
    if (!item.enabled)
        text += L" (grey)";
    if (item.checked)
        text += L" (checked)";
    return text;
}

} // namespace

std::vector<MenuItem> ReadMenu(HMENU menu)
{
    std::vector<MenuItem> items;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i)
        items.push_back(ReadItem(menu, static_cast<UINT>(i)));
    return items;
}

std::wstring Describe(const std::vector<MenuItem>& items)
{
    std::wstring text;
    for (const MenuItem& item : items)
        text += (text.empty() ? L"" : L", ") + DescribeItem(item);
    return text;
}

MenuProbe::MenuProbe(UINT wantedId)
    : m_wantedId(wantedId),
      m_trainingHook(WH_CBT, OnComputerBasedTraining),
      m_filterHook(WH_MSGFILTER, OnMessageFilter)
{
    if (activeProbe != nullptr)
        throw std::logic_error("there is a menu probe already");
    activeProbe = this;
}

MenuProbe::~MenuProbe()
{
    activeProbe = nullptr;
}

LRESULT CALLBACK MenuProbe::OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && IsMenuWindow(window))
    {
        activeProbe->m_popups.push_back(window);
        // The menu's loop passes every message through the filter hook; make sure that there is one.
        PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK MenuProbe::OnMessageFilter(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == MSGF_MENU)
        activeProbe->OnMenuMessage();
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void MenuProbe::OnMenuMessage()
{
    if (m_popups.empty() || !IsWindowVisible(m_popups.back()))
        return;
    const HWND popup = m_popups.back();
    m_popups.clear();
    OnMenuShown(popup);
}

void MenuProbe::OnMenuShown(HWND popup)
{
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(popup, GetMenuHandle, 0, 0));
    const std::vector<MenuItem> items = ReadMenu(menu);
    if (!m_opened)
        m_items = items;
    m_opened = true;
    const auto wanted = std::find_if(items.begin(), items.end(),
                                     [this](const MenuItem& item) { return Contains(item, m_wantedId); });
    if (m_wantedId == 0 || wanted == items.end())
    {
        EndMenu();
        return;
    }
    ClickItem(menu, static_cast<UINT>(wanted - items.begin()));
    m_chosen = wanted->submenu.empty();
}

} // namespace quor::test
