// GDI objects: ownership, handle maps and descriptions.
#include <afxwin.h>

#include "tests/support/GuiHandles.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace
{

bool Alive(HGDIOBJ handle)
{
    return ::GetObjectType(handle) != 0;
}

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

} // namespace

TEST(GdiObject, Destructor_DeletesWhatItOwns)
{
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, kRed);
        handle = pen;
        EXPECT_TRUE(Alive(handle));
    }
    EXPECT_FALSE(Alive(handle));
}

TEST(GdiObject, FontsMadeByPoints_BorrowTheScreenOnly)
{
    LOGFONT description = {};
    description.lfHeight = 100;
    const auto makeFonts = [&] {
        for (int i = 0; i < 20; ++i)
        {
            CFont font;
            EXPECT_TRUE(font.CreatePointFontIndirect(&description));
            CFont named;
            EXPECT_TRUE(named.CreatePointFont(90, L"Tahoma"));
        }
        return quor::test::CountGuiHandles();
    };
    const quor::test::GuiHandles first = makeFonts();
    EXPECT_EQ("", quor::test::Growth(first, makeFonts()));
}

TEST(GdiObject, Detach_LeavesTheObjectToTheCaller)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(kRed);
        handle = brush.Detach();
        EXPECT_EQ(nullptr, brush.GetSafeHandle());
    }
    EXPECT_TRUE(Alive(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, StockObjects_Survive)
{
    {
        CFont font;
        EXPECT_TRUE(font.CreateStockObject(DEFAULT_GUI_FONT));
    }
    EXPECT_TRUE(Alive(::GetStockObject(DEFAULT_GUI_FONT)));
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_WINDOW));
    }
    EXPECT_TRUE(Alive(::GetSysColorBrush(COLOR_WINDOW)));
}

TEST(GdiObject, TemporaryObjects_DoNotDeleteTheirHandle)
{
    const HPEN handle = ::CreatePen(PS_SOLID, 1, kRed);
    CPen* const pen = CPen::FromHandle(handle);
    EXPECT_EQ(handle, static_cast<HPEN>(*pen));
    EXPECT_TRUE(pen->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(pen, CPen::FromHandle(handle));
    CGdiObject::DeleteTempMap();
    EXPECT_TRUE(Alive(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, FromHandle_FindsTheOwner)
{
    CBrush brush(kRed);
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
    EXPECT_EQ(nullptr, CBrush::FromHandle(nullptr));
    const HGDIOBJ handle = brush.Detach();
    EXPECT_NE(&brush, CGdiObject::FromHandle(handle));
    ::DeleteObject(handle);
    CGdiObject::DeleteTempMap();
}

TEST(GdiObject, Attach_MakesTheObjectPermanent)
{
    const HBRUSH handle = ::CreateSolidBrush(kRed);
    CBrush* const temporary = CBrush::FromHandle(handle);
    CBrush brush;
    EXPECT_TRUE(brush.Attach(handle));
    EXPECT_NE(temporary, &brush);
    EXPECT_EQ(&brush, CBrush::FromHandle(handle));
    EXPECT_FALSE(CBrush().Attach(nullptr));
}

TEST(GdiObject, HandleMaps_BelongToTheirThread)
{
    CBrush brush(kRed);
    CGdiObject* elsewhere = nullptr;
    std::thread([&] { elsewhere = CGdiObject::FromHandle(brush); }).join();
    EXPECT_NE(static_cast<CGdiObject*>(&brush), elsewhere);
    EXPECT_TRUE(Alive(brush));
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
}

TEST(GdiObject, OneStockHandle_CanHaveTwoOwners)
{
    CFont first;
    first.CreateStockObject(SYSTEM_FONT);
    {
        CFont second;
        second.CreateStockObject(SYSTEM_FONT);
        EXPECT_EQ(&second, CFont::FromHandle(second));
    }
    EXPECT_TRUE(Alive(first));
    first.Detach();
}

TEST(GdiObject, NullPointers_HaveNoHandle)
{
    CPen* const pen = nullptr;
    CDC* const dc = nullptr;
    CMenu* const menu = nullptr;
    EXPECT_EQ(nullptr, pen->GetSafeHandle());
    EXPECT_EQ(nullptr, dc->GetSafeHdc());
    EXPECT_EQ(nullptr, menu->GetSafeHmenu());
}

TEST(GdiObject, Descriptions_CanBeReadBack)
{
    LOGPEN logPen = {};
    EXPECT_NE(0, CPen(PS_DOT, 1, kGreen).GetLogPen(&logPen));
    EXPECT_EQ(kGreen, logPen.lopnColor);
    EXPECT_EQ(static_cast<UINT>(PS_DOT), logPen.lopnStyle);
    LOGBRUSH logBrush = {};
    EXPECT_NE(0, CBrush(HS_CROSS, kRed).GetLogBrush(&logBrush));
    EXPECT_EQ(static_cast<UINT>(BS_HATCHED), logBrush.lbStyle);
    EXPECT_EQ(static_cast<ULONG_PTR>(HS_CROSS), logBrush.lbHatch);

    CFont font;
    LOGFONT logFont = {};
    EXPECT_TRUE(font.CreatePointFont(120, L"Tahoma"));
    EXPECT_NE(0, font.GetLogFont(&logFont));
    const HDC screen = ::GetDC(nullptr);
    EXPECT_EQ(-::MulDiv(12, ::GetDeviceCaps(screen, LOGPIXELSY), 72), logFont.lfHeight);
    ::ReleaseDC(nullptr, screen);
    EXPECT_STREQ(L"Tahoma", logFont.lfFaceName);

    // Where the coordinates begin does not change heights.
    CDC moved;
    moved.CreateCompatibleDC(nullptr);
    moved.SetViewportOrg(10, 37);
    CFont other;
    LOGFONT otherFont = {};
    EXPECT_TRUE(other.CreatePointFont(120, L"Tahoma", &moved));
    EXPECT_NE(0, other.GetLogFont(&otherFont));
    EXPECT_EQ(logFont.lfHeight, otherFont.lfHeight);

    CBitmap bitmap;
    BITMAP data = {};
    EXPECT_TRUE(bitmap.CreateBitmap(5, 7, 1, 1, nullptr));
    EXPECT_NE(0, bitmap.GetBitmap(&data));
    EXPECT_EQ(5, data.bmWidth);
    EXPECT_EQ(7, data.bmHeight);
}

TEST(GdiObject, FailedCreation_LeavesTheWrapperEmpty)
{
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(L"NoSuchBitmap"));
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    EXPECT_FALSE(bitmap.DeleteObject());
}

TEST(Region, Combinations)
{
    CRgn left;
    CRgn right;
    CRgn result;
    left.CreateRectRgn(0, 0, 10, 10);
    right.CreateRectRgn(5, 0, 20, 10);
    result.CreateRectRgn(0, 0, 0, 0);
    CRect box;
    EXPECT_EQ(SIMPLEREGION, result.CombineRgn(&left, &right, RGN_AND));
    result.GetRgnBox(&box);
    EXPECT_TRUE(box == CRect(5, 0, 10, 10));
    EXPECT_EQ(SIMPLEREGION, result.CopyRgn(&right));
    EXPECT_TRUE(result.EqualRgn(&right));
    result.OffsetRgn(CPoint(1, 1));
    EXPECT_FALSE(result.PtInRegion(5, 0));
    EXPECT_TRUE(result.PtInRegion(CPoint(6, 1)));
}

TEST(Region, FromPathsPolygonsAndData)
{
    CClientDC screen(NULL);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    ::BeginPath(dc);
    dc.Rectangle(0, 0, 11, 21);
    ::EndPath(dc);
    CRgn fromPath;
    ASSERT_TRUE(fromPath.CreateFromPath(&dc));
    EXPECT_TRUE(fromPath.PtInRegion(5, 15));
    EXPECT_FALSE(fromPath.PtInRegion(15, 5));

    POINT corners[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {20, 0}, {30, 0}, {30, 10}, {20, 10}};
    int counts[] = {4, 4};
    CRgn twoSquares;
    ASSERT_TRUE(twoSquares.CreatePolyPolygonRgn(corners, counts, 2, ALTERNATE));
    EXPECT_TRUE(twoSquares.PtInRegion(25, 5));
    EXPECT_FALSE(twoSquares.PtInRegion(15, 5));

    std::vector<char> data(static_cast<size_t>(twoSquares.GetRegionData(NULL, 0)));
    ASSERT_FALSE(data.empty());
    auto* const header = reinterpret_cast<RGNDATA*>(data.data());
    ASSERT_NE(0, twoSquares.GetRegionData(header, static_cast<int>(data.size())));
    CRgn again;
    ASSERT_TRUE(again.CreateFromData(NULL, static_cast<int>(data.size()), header));
    EXPECT_TRUE(again.EqualRgn(&twoSquares));
}

TEST(Palette, EntriesChange)
{
    struct
    {
        WORD version = 0x300;
        WORD count = 2;
        PALETTEENTRY entries[2] = {{255, 0, 0, 0}, {0, 0, 255, 0}};
    } description;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LPLOGPALETTE>(&description)));
    EXPECT_EQ(1u, palette.GetNearestPaletteIndex(RGB(10, 10, 200)));
    PALETTEENTRY green = {0, 255, 0, 0};
    EXPECT_EQ(1u, palette.SetPaletteEntries(1, 1, &green));
    PALETTEENTRY read = {};
    palette.GetPaletteEntries(1, 1, &read);
    EXPECT_EQ(255, read.peGreen);
    EXPECT_TRUE(palette.ResizePalette(5));
    EXPECT_EQ(5, palette.GetEntryCount());
}
