// Tests of QuorUiCtrl.dll as a module: it enters the chain of extension modules when it is loaded and leaves
// it when it is freed, and carries its icons, cursors and version record. This program must not import the
// DLL.
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <afxwin.h>

#include <gtest/gtest.h>

#include "QuorVersion.h"
#include "module/resource.h"

namespace
{
constexpr wchar_t moduleName[] = L"QuorUiCtrl.dll";

// Keeps the DLL loaded until the end of the scope.
class LoadedModule
{
public:
    LoadedModule() : handle(LoadLibraryW(moduleName)) {}
    ~LoadedModule()
    {
        if (handle != nullptr)
            FreeLibrary(handle);
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    const HMODULE handle;
};

bool IsModulePresent()
{
    return GetModuleHandleW(moduleName) != nullptr;
}

// The modules in the chain, read through a link of our own that stands in it for a moment.
std::vector<HMODULE> ChainedModules()
{
    const CDynLinkLibrary newest(GetModuleHandleW(nullptr), GetModuleHandleW(nullptr));
    std::vector<HMODULE> modules;
    for (const CDynLinkLibrary* link = newest.m_pNextDLL; link != nullptr; link = link->m_pNextDLL)
        modules.push_back(link->m_hModule);
    return modules;
}

struct ResourceCase
{
    int id;
    LPCWSTR type;
};

const ResourceCase ownResources[] = {
    {IDI_CURRENT_ROW, RT_GROUP_ICON},
    {IDI_NEW_ROW, RT_GROUP_ICON},
    {IDC_ROW_ARROW, RT_GROUP_CURSOR},
    {IDC_COLUMN_ARROW, RT_GROUP_CURSOR},
};

HINSTANCE FindModuleOf(const ResourceCase& resource)
{
    return AfxFindResourceHandle(MAKEINTRESOURCEW(resource.id), resource.type);
}

HICON LoadMarker(int id, int size)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id), RT_GROUP_ICON);
    return static_cast<HICON>(
        LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
}

// The widths of the images in an icon or cursor group, read from the group's directory.
std::set<int> ImageWidths(HMODULE module, const ResourceCase& resource)
{
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(resource.id), resource.type);
    const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(module, found)));
    std::set<int> widths;
    const int count = bytes[4];
    for (int i = 0; i < count; ++i)
        widths.insert(bytes[6 + 14 * i]);
    return widths;
}

// The icon drawn as the row header draws it, on a background of one colour.
class IconPicture
{
public:
    IconPicture(HICON icon, int size, COLORREF background) : side(size)
    {
        CDC screen;
        screen.Attach(GetDC(nullptr));
        surface.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, size, size);
        ReleaseDC(nullptr, screen.Detach());
        previous = surface.SelectObject(&bitmap);
        surface.FillSolidRect(0, 0, size, size, background);
        DrawIconEx(surface.m_hDC, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    }
    ~IconPicture() { surface.SelectObject(previous); }
    IconPicture(const IconPicture&) = delete;
    IconPicture& operator=(const IconPicture&) = delete;

    COLORREF At(int x, int y) const { return GetPixel(surface.m_hDC, x, y); }
    std::set<COLORREF> Colours() const
    {
        std::set<COLORREF> colours;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                colours.insert(At(x, y));
        return colours;
    }

private:
    const int side;
    CDC surface;
    CBitmap bitmap;
    CBitmap* previous = nullptr;
};

class VersionRecord
{
public:
    explicit VersionRecord(HMODULE module)
    {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(module, path, MAX_PATH);
        DWORD ignored = 0;
        bytes.resize(GetFileVersionInfoSizeW(path, &ignored));
        if (!bytes.empty() && !GetFileVersionInfoW(path, 0, static_cast<DWORD>(bytes.size()), bytes.data()))
            bytes.clear();
    }

    std::wstring String(const std::wstring& name) const
    {
        const auto* text = Query<wchar_t>(L"\\StringFileInfo\\040904B0\\" + name);
        return text == nullptr ? L"(none)" : text;
    }
    const VS_FIXEDFILEINFO* Fixed() const { return Query<VS_FIXEDFILEINFO>(L"\\"); }

private:
    template <class Value> const Value* Query(const std::wstring& path) const
    {
        void* value = nullptr;
        UINT length = 0;
        const bool isThere = !bytes.empty() && VerQueryValueW(bytes.data(), path.c_str(), &value, &length);
        return isThere && length > 0 ? static_cast<const Value*>(value) : nullptr;
    }

    std::vector<BYTE> bytes;
};
} // namespace

TEST(Module, ThisProgram_DoesNotImportIt)
{
    EXPECT_FALSE(IsModulePresent());
}

TEST(Module, LoadAndFree_CanBeRepeated)
{
    for (int round = 0; round < 5; ++round)
    {
        {
            const LoadedModule module;
            ASSERT_NE(module.handle, nullptr) << "round " << round << ", error " << GetLastError();
            EXPECT_TRUE(IsModulePresent());
        }
        EXPECT_FALSE(IsModulePresent()) << "round " << round;
    }
}

TEST(Module, Chain_HoldsItOnceWhileItIsLoaded)
{
    const std::vector<HMODULE> before = ChainedModules();
    for (int round = 0; round < 3; ++round)
    {
        {
            const LoadedModule module;
            std::vector<HMODULE> expected = before;
            expected.insert(expected.begin(), module.handle);
            EXPECT_EQ(ChainedModules(), expected) << "round " << round;
        }
        EXPECT_EQ(ChainedModules(), before) << "round " << round;
    }
}

TEST(Module, Resources_AreFoundThroughTheChainOnlyWhileItIsLoaded)
{
    for (int round = 0; round < 3; ++round)
    {
        {
            const LoadedModule module;
            ASSERT_NE(module.handle, nullptr);
            for (const ResourceCase& resource : ownResources)
                EXPECT_EQ(FindModuleOf(resource), module.handle) << resource.id;
        }
        for (const ResourceCase& resource : ownResources)
            EXPECT_EQ(FindModuleOf(resource), AfxGetResourceHandle()) << resource.id;
    }
}

TEST(Module, SecondLoad_DoesNotEnterTheChainAgain)
{
    {
        const LoadedModule first;
        {
            const LoadedModule second;
            EXPECT_EQ(first.handle, second.handle);
        }
        for (const ResourceCase& resource : ownResources)
            EXPECT_EQ(FindModuleOf(resource), first.handle) << resource.id;
    }
    EXPECT_FALSE(IsModulePresent());
    EXPECT_EQ(FindModuleOf(ownResources[0]), AfxGetResourceHandle());
}

TEST(Module, UnknownResource_IsNotClaimed)
{
    const LoadedModule module;
    EXPECT_EQ(FindModuleOf({999, RT_GROUP_ICON}), AfxGetResourceHandle());
    EXPECT_EQ(FindModuleOf({IDI_CURRENT_ROW, RT_GROUP_CURSOR}), AfxGetResourceHandle());
}

TEST(Module, ThreadsComingAndGoing_ChangeNothing)
{
    const LoadedModule module;
    for (int i = 0; i < 4; ++i)
        std::thread([] {}).join();
    EXPECT_EQ(FindModuleOf(ownResources[0]), module.handle);
}

TEST(Module, Identifiers_AreThePublishedNumbers)
{
    EXPECT_EQ(IDI_CURRENT_ROW, 1000);
    EXPECT_EQ(IDI_NEW_ROW, 1001);
    EXPECT_EQ(IDC_ROW_ARROW, 1002);
    EXPECT_EQ(IDC_COLUMN_ARROW, 1003);
}

TEST(ModuleIcons, LoadIcon_FindsThem)
{
    const LoadedModule module;
    for (const int id : {IDI_CURRENT_ROW, IDI_NEW_ROW})
        EXPECT_NE(LoadIconW(FindModuleOf({id, RT_GROUP_ICON}), MAKEINTRESOURCEW(id)), nullptr) << id;
}

TEST(ModuleIcons, EveryUsualRowHeight_HasItsOwnImage)
{
    const LoadedModule module;
    ASSERT_NE(module.handle, nullptr);
    for (const int id : {IDI_CURRENT_ROW, IDI_NEW_ROW})
    {
        const std::set<int> widths = ImageWidths(module.handle, {id, RT_GROUP_ICON});
        for (int height = 12; height <= 24; ++height)
            EXPECT_TRUE(widths.count(height)) << "icon " << id << ", height " << height;
        EXPECT_TRUE(widths.count(32) && widths.count(48)) << "icon " << id;
    }
}

TEST(ModuleIcons, CurrentRow_IsADarkTriangleThatPointsRight)
{
    const LoadedModule module;
    const HICON icon = LoadMarker(IDI_CURRENT_ROW, 16);
    ASSERT_NE(icon, nullptr);
    {
        const IconPicture picture(icon, 16, RGB(255, 255, 255));
        EXPECT_EQ(picture.Colours(), (std::set<COLORREF>{RGB(0x28, 0x28, 0x28), RGB(255, 255, 255)}));
        EXPECT_EQ(picture.At(8, 8), RGB(0x28, 0x28, 0x28));
        EXPECT_EQ(picture.At(6, 4), RGB(0x28, 0x28, 0x28)) << "the left side is high";
        EXPECT_EQ(picture.At(9, 4), RGB(255, 255, 255)) << "the right side is a point";
    }
    DestroyIcon(icon);
}

TEST(ModuleIcons, NewRow_IsADarkBlueStar)
{
    const LoadedModule module;
    const HICON icon = LoadMarker(IDI_NEW_ROW, 16);
    ASSERT_NE(icon, nullptr);
    {
        const IconPicture picture(icon, 16, RGB(255, 255, 255));
        EXPECT_EQ(picture.Colours(), (std::set<COLORREF>{RGB(0x00, 0x35, 0x9E), RGB(255, 255, 255)}));
        EXPECT_EQ(picture.At(7, 7), RGB(0x00, 0x35, 0x9E));
        EXPECT_EQ(picture.At(7, 3), RGB(0x00, 0x35, 0x9E)) << "an arm goes up";
        EXPECT_EQ(picture.At(9, 3), RGB(255, 255, 255)) << "and is narrow";
    }
    DestroyIcon(icon);
}

TEST(ModuleIcons, Background_ShowsThroughAroundTheShape)
{
    const LoadedModule module;
    for (const int id : {IDI_CURRENT_ROW, IDI_NEW_ROW})
    {
        for (const int size : {12, 15, 17, 22, 48})
        {
            const HICON icon = LoadMarker(id, size);
            ASSERT_NE(icon, nullptr);
            EXPECT_EQ(IconPicture(icon, size, RGB(10, 200, 30)).At(0, 0), RGB(10, 200, 30))
                << id << " " << size;
            DestroyIcon(icon);
        }
    }
}

TEST(ModuleCursors, HotSpots_AreTheTipsOfTheArrows)
{
    const LoadedModule module;
    const auto hotSpot = [](int id) {
        ICONINFO info = {};
        const HINSTANCE found = FindModuleOf({id, RT_GROUP_CURSOR});
        const HCURSOR cursor = static_cast<HCURSOR>(
            LoadImageW(found, MAKEINTRESOURCEW(id), IMAGE_CURSOR, 32, 32, LR_DEFAULTCOLOR));
        if (cursor == nullptr || !GetIconInfo(cursor, &info) || info.fIcon)
            return CPoint(-1, -1);
        DeleteObject(info.hbmColor);
        DeleteObject(info.hbmMask);
        DestroyCursor(cursor);
        return CPoint(static_cast<int>(info.xHotspot), static_cast<int>(info.yHotspot));
    };
    EXPECT_TRUE(hotSpot(IDC_ROW_ARROW) == CPoint(28, 16));
    EXPECT_TRUE(hotSpot(IDC_COLUMN_ARROW) == CPoint(16, 28));
}

TEST(ModuleCursors, LoadCursor_FindsThem)
{
    const LoadedModule module;
    for (const int id : {IDC_ROW_ARROW, IDC_COLUMN_ARROW})
        EXPECT_NE(LoadCursorW(FindModuleOf({id, RT_GROUP_CURSOR}), MAKEINTRESOURCEW(id)), nullptr) << id;
}

TEST(ModuleVersion, Strings_NameTheProduct)
{
    const LoadedModule module;
    const VersionRecord version(module.handle);
    EXPECT_EQ(version.String(L"ProductName"), L"QuorUiCtrl");
    EXPECT_EQ(version.String(L"InternalName"), L"QuorUiCtrl");
    EXPECT_EQ(version.String(L"OriginalFilename"), moduleName);
    EXPECT_EQ(version.String(L"ProductVersion"), L"" QUOR_VERSION);
    EXPECT_EQ(version.String(L"FileVersion"), L"" QUOR_VERSION);
}

TEST(ModuleVersion, Numbers_AgreeWithTheStrings)
{
    const LoadedModule module;
    const VersionRecord version(module.handle);
    const VS_FIXEDFILEINFO* fixed = version.Fixed();
    ASSERT_NE(fixed, nullptr);
    CString numbers;
    numbers.Format(L"%d.%d.%d", HIWORD(fixed->dwFileVersionMS), LOWORD(fixed->dwFileVersionMS),
                   HIWORD(fixed->dwFileVersionLS));
    EXPECT_EQ(version.String(L"FileVersion"), numbers.GetString());
    EXPECT_EQ(LOWORD(fixed->dwFileVersionLS), 0);
    EXPECT_EQ(fixed->dwProductVersionMS, fixed->dwFileVersionMS);
    EXPECT_EQ(fixed->dwProductVersionLS, fixed->dwFileVersionLS);
    EXPECT_EQ(fixed->dwFileType, static_cast<DWORD>(VFT_DLL));
}
