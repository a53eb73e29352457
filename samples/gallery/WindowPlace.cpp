// What the gallery remembers, in the program's profile.
#include "WindowPlace.h"

#include <memory>

namespace
{

constexpr const wchar_t* Section = L"Window";
constexpr const wchar_t* PlaceEntry = L"Place";
constexpr const wchar_t* PageEntry = L"Page";

bool ReadPlace(WINDOWPLACEMENT& place)
{
    BYTE* bytes = nullptr;
    UINT size = 0;
    if (!AfxGetApp()->GetProfileBinary(Section, PlaceEntry, &bytes, &size))
        return false;
    const std::unique_ptr<BYTE[]> owner(bytes);
    if (size != sizeof place)
        return false;
    memcpy(&place, bytes, size);
    return place.length == sizeof place;
}

} // namespace

bool RestoreWindowPlace(CWnd& window)
{
    WINDOWPLACEMENT place = {};
    if (!ReadPlace(place) || ::MonitorFromRect(&place.rcNormalPosition, MONITOR_DEFAULTTONULL) == nullptr)
        return false;
    // A window that was closed as a button of the task bar opens as a window.
    if (place.showCmd == SW_SHOWMINIMIZED || place.showCmd == SW_MINIMIZE)
        place.showCmd = SW_SHOWNORMAL;
    return window.SetWindowPlacement(&place) != FALSE;
}

void SaveWindowPlace(CWnd& window)
{
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    if (window.GetWindowPlacement(&place))
        AfxGetApp()->WriteProfileBinary(Section, PlaceEntry, reinterpret_cast<BYTE*>(&place), sizeof place);
}

size_t RememberedPage()
{
    return AfxGetApp()->GetProfileInt(Section, PageEntry, 0);
}

void RememberPage(size_t index)
{
    AfxGetApp()->WriteProfileInt(Section, PageEntry, static_cast<int>(index));
}
