// Reads the handle tables: GDI's is mapped into the process, USER's is probed slot by slot.
#include "tests/support/GuiHandles.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>

namespace quor::test
{

namespace
{

// An entry of the table that PEB.GdiSharedHandleTable points to.
struct GdiEntry
{
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique; // bits 16 to 31 of the handle; the low seven are the type
    std::uint8_t type;    // 0 for a free entry
    std::uint8_t flags;
    std::uint64_t user;
};

constexpr std::size_t MaxGdiHandles = 0x10000;
constexpr std::size_t OffsetOfTableInPeb = 0xF8;
constexpr UINT_PTR FirstUserHandle = 0x20;
constexpr UINT_PTR EndOfUserHandles = 0xfff0;

bool RunsUnderWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

const char* ProcessEnvironmentBlock()
{
    // From the thread block: offset 0x60 holds the address of the process block.
    const auto* thread = reinterpret_cast<const char*>(NtCurrentTeb());
    return *reinterpret_cast<char* const*>(thread + 0x60);
}

int& CountOfType(GuiHandles& count, unsigned type)
{
    switch (type)
    {
    case 0x01:
    case 0x21:
    case 0x41:
    case 0x61:
        return count.deviceContexts;
    case 0x04:
        return count.regions;
    case 0x05:
    case 0x09:
        return count.bitmaps;
    case 0x08:
        return count.palettes;
    case 0x0a:
        return count.fonts;
    case 0x10:
        return count.brushes;
    case 0x30:
    case 0x50:
        return count.pens;
    default:
        return count.otherGdi;
    }
}

void CountGdi(GuiHandles& count)
{
    const auto* table = *reinterpret_cast<GdiEntry* const*>(ProcessEnvironmentBlock() + OffsetOfTableInPeb);
    MEMORY_BASIC_INFORMATION memory{};
    VirtualQuery(table, &memory, sizeof memory);
    const std::size_t size = (std::min)(memory.RegionSize / sizeof(GdiEntry), MaxGdiHandles);
    for (std::size_t i = 0; i < size; ++i)
        if (table[i].type != 0)
            ++CountOfType(count, table[i].unique & 0x7fu);
}

bool IsIcon(HICON handle)
{
    ICONINFO info{};
    if (!GetIconInfo(handle, &info))
        return false;
    DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr)
        DeleteObject(info.hbmColor);
    return true;
}

void CountUserHandle(GuiHandles& count, UINT_PTR slot)
{
    DWORD process = 0;
    if (IsMenu(reinterpret_cast<HMENU>(slot)))
        ++count.menus;
    else if (GetWindowThreadProcessId(reinterpret_cast<HWND>(slot), &process) != 0)
        count.windows += process == GetCurrentProcessId() ? 1 : 0;
    else if (IsIcon(reinterpret_cast<HICON>(slot)))
        ++count.icons;
    else if (CopyAcceleratorTableW(reinterpret_cast<HACCEL>(slot), nullptr, 0) != 0)
        ++count.accelerators;
}

void AppendGrowth(std::string& text, const char* name, int before, int after)
{
    if (after > before)
        text += (text.empty() ? "" : ", ") + std::string(name) + " +" + std::to_string(after - before);
}

} // namespace

int GuiHandles::AllGdi() const
{
    return deviceContexts + regions + bitmaps + palettes + fonts + brushes + pens + otherGdi;
}

int GuiHandles::AllUser() const
{
    return windows + menus + icons + accelerators;
}

GuiHandles CountGuiHandles()
{
    GuiHandles count;
    if (!RunsUnderWine())
    {
        count.otherGdi = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
        count.windows = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
        return count;
    }
    CountGdi(count);
    // Wine accepts USER handles without their generation word.
    for (UINT_PTR slot = FirstUserHandle; slot < EndOfUserHandles; slot += 2)
        CountUserHandle(count, slot);
    return count;
}

std::string Growth(const GuiHandles& before, const GuiHandles& after)
{
    std::string text;
    AppendGrowth(text, "device contexts", before.deviceContexts, after.deviceContexts);
    AppendGrowth(text, "regions", before.regions, after.regions);
    AppendGrowth(text, "bitmaps", before.bitmaps, after.bitmaps);
    AppendGrowth(text, "palettes", before.palettes, after.palettes);
    AppendGrowth(text, "fonts", before.fonts, after.fonts);
    AppendGrowth(text, "brushes", before.brushes, after.brushes);
    AppendGrowth(text, "pens", before.pens, after.pens);
    AppendGrowth(text, "other GDI objects", before.otherGdi, after.otherGdi);
    AppendGrowth(text, "windows", before.windows, after.windows);
    AppendGrowth(text, "menus", before.menus, after.menus);
    AppendGrowth(text, "icons and cursors", before.icons, after.icons);
    AppendGrowth(text, "accelerator tables", before.accelerators, after.accelerators);
    return text;
}

} // namespace quor::test
