// Device contexts: modes and origins that are set and read back, transfers, and contexts that write
// elsewhere.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace
{

// A memory device context of 40 x 40 white pixels.
class Sheet : public CDC
{
public:
    Sheet()
    {
        CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(40, 40, 1, 32, nullptr);
        m_previous = SelectObject(&m_bitmap);
        PatBlt(0, 0, 40, 40, WHITENESS);
    }
    ~Sheet() override { SelectObject(m_previous); }

private:
    CBitmap m_bitmap;
    CBitmap* m_previous = nullptr;
};

TEST(DCModes, ASetterReturnsWhatWasSetBefore)
{
    Sheet dc;
    dc.SetPolyFillMode(WINDING);
    EXPECT_EQ(dc.SetPolyFillMode(ALTERNATE), WINDING);
    EXPECT_EQ(dc.GetPolyFillMode(), ALTERNATE);
    dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_EQ(dc.SetStretchBltMode(HALFTONE), COLORONCOLOR);
    EXPECT_EQ(dc.GetStretchBltMode(), HALFTONE);
    dc.SetTextAlign(TA_RIGHT);
    EXPECT_EQ(dc.SetTextAlign(TA_CENTER), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.GetTextAlign(), static_cast<UINT>(TA_CENTER));
    dc.SetTextCharacterExtra(4);
    EXPECT_EQ(dc.SetTextCharacterExtra(0), 4);
    dc.SetBrushOrg(3, 5);
    EXPECT_EQ(dc.GetBrushOrg(), CPoint(3, 5));
    EXPECT_EQ(dc.SetBrushOrg(1, 2), CPoint(3, 5));
}

TEST(DCModes, OriginsAreMoved)
{
    Sheet dc;
    dc.SetViewportOrg(10, 20);
    EXPECT_EQ(dc.OffsetViewportOrg(1, 2), CPoint(10, 20));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(11, 22));
    dc.SetWindowOrg(3, 4);
    EXPECT_EQ(dc.OffsetWindowOrg(5, 6), CPoint(3, 4));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(8, 10));
}

TEST(DCModes, ExtentsAreScaled)
{
    Sheet dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 200);
    dc.SetViewportExt(10, 20);
    EXPECT_EQ(dc.ScaleViewportExt(3, 1, 1, 2), CSize(10, 20));
    EXPECT_EQ(dc.GetViewportExt(), CSize(30, 10));
    EXPECT_EQ(dc.ScaleWindowExt(1, 2, 3, 1), CSize(100, 200));
    EXPECT_EQ(dc.GetWindowExt(), CSize(50, 600));
}

TEST(DCModes, TheClipRegionIsMoved)
{
    Sheet dc;
    CRgn region;
    ASSERT_TRUE(region.CreateRectRgn(2, 3, 12, 13));
    dc.SelectClipRgn(&region);
    EXPECT_EQ(dc.OffsetClipRgn(5, 6), SIMPLEREGION);
    CRect box;
    EXPECT_EQ(dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(7, 9, 17, 19));
}

TEST(DCModes, AnOutputContextIsDrawnToAndTheOtherAsked)
{
    Sheet asked, drawn;
    asked.FillSolidRect(0, 0, 40, 40, RGB(1, 2, 3));
    const HDC own = asked.m_hDC;
    CDC both;
    both.SetAttribDC(own);
    const HDC output = drawn.Detach();
    both.SetOutputDC(output);
    EXPECT_EQ(CDC::FromHandle(output), &both);
    both.MoveTo(3, 4);
    EXPECT_EQ(both.GetCurrentPosition(), CPoint(3, 4));
    ::SetPixel(output, 5, 5, RGB(9, 9, 9));
    EXPECT_EQ(::GetPixel(output, 5, 5), RGB(9, 9, 9));
    both.ReleaseOutputDC();
    EXPECT_EQ(both.m_hDC, nullptr);
    both.ReleaseAttribDC();
    drawn.Attach(output);
}

TEST(DCModes, AScreenContextIsCreatedByName)
{
    CDC screen, information;
    ASSERT_TRUE(screen.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(screen.GetDeviceCaps(HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
    ASSERT_TRUE(information.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(information.GetDeviceCaps(VERTRES), ::GetSystemMetrics(SM_CYSCREEN));
}

TEST(DCModes, PixelsAreBlendedScrolledAndGraded)
{
    Sheet dc, source;
    source.FillSolidRect(0, 0, 40, 40, RGB(0, 0, 0));
    const BLENDFUNCTION half = {AC_SRC_OVER, 0, 128, 0};
    ASSERT_TRUE(dc.AlphaBlend(0, 0, 10, 10, &source, 0, 0, 10, 10, half));
    EXPECT_NEAR(GetRValue(dc.GetPixel(5, 5)), 127, 1);
    EXPECT_EQ(dc.GetPixel(20, 5), RGB(255, 255, 255));

    TRIVERTEX ends[] = {{0, 20, 0, 0, 0, 0}, {40, 40, 0xff00, 0, 0, 0}};
    GRADIENT_RECT area = {0, 1};
    ASSERT_TRUE(dc.GradientFill(ends, 2, &area, 1, GRADIENT_FILL_RECT_H));
    EXPECT_LT(GetRValue(dc.GetPixel(2, 30)), 32);
    EXPECT_GT(GetRValue(dc.GetPixel(37, 30)), 200);

    const CRect all(0, 0, 40, 40);
    dc.SetPixel(1, 15, RGB(1, 2, 3));
    ASSERT_TRUE(dc.ScrollDC(10, 0, &all, &all, nullptr, nullptr));
    EXPECT_EQ(dc.GetPixel(11, 15), RGB(1, 2, 3));
}

TEST(DCModes, TellsTheFaceAndTheExtentOfItsFont)
{
    Sheet dc;
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Tahoma"));
    CFont* const before = dc.SelectObject(&font);
    CString face;
    dc.GetTextFace(face);
    wchar_t known[LF_FACESIZE] = {};
    ::GetTextFace(dc, LF_FACESIZE, known);
    EXPECT_STREQ(face, known);
    EXPECT_EQ(dc.GetOutputTextExtent(L"wide", 4), dc.GetTextExtent(L"wide", 4));
    dc.SelectObject(before);
}

TEST(DCModes, APaletteIsSelectedAndGivenBack)
{
    Sheet dc;
    CPalette palette;
    ASSERT_TRUE(palette.CreateHalftonePalette(&dc));
    CPalette* const before = dc.SelectPalette(&palette, FALSE);
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(dc.SelectPalette(before, FALSE), &palette);
}

TEST(DCModes, PensAndBrushesOfDescriptionsDrawTheirColour)
{
    Sheet dc;
    const LOGBRUSH solid = {BS_SOLID, RGB(200, 0, 0), 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID, 3, &solid);
    CPen* const oldPen = dc.SelectObject(&pen);
    dc.MoveTo(0, 5);
    dc.LineTo(20, 5);
    EXPECT_EQ(dc.GetPixel(10, 5), RGB(200, 0, 0));
    dc.SelectObject(oldPen);

    CBitmap pattern;
    std::vector<DWORD> pixels(64, 0x0000c000);
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 32, pixels.data()));
    CBrush brush(&pattern);
    dc.FillRect(CRect(0, 20, 10, 30), &brush);
    EXPECT_EQ(dc.GetPixel(5, 25), RGB(0, 0xc0, 0));
}

TEST(DCModes, TheBitsOfABitmapAreWrittenAndRead)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, nullptr));
    const DWORD written[] = {1, 2, 3, 4};
    EXPECT_EQ(bitmap.SetBitmapBits(sizeof written, written), sizeof written);
    DWORD read[4] = {};
    EXPECT_EQ(bitmap.GetBitmapBits(sizeof read, read), sizeof read);
    EXPECT_TRUE(std::equal(std::begin(written), std::end(written), std::begin(read)));
}

} // namespace
