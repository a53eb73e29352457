// Device contexts: the screen's own, brushes and palettes, blended and scrolled pixels, outlines of a drag.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);

// A memory context of white pixels.
class Paper : public CDC
{
public:
    Paper(int width, int height)
    {
        CreateCompatibleDC(nullptr);
        const HDC screen = ::GetDC(nullptr);
        m_bitmap.Attach(::CreateCompatibleBitmap(screen, width, height));
        ::ReleaseDC(nullptr, screen);
        m_previous = ::SelectObject(m_hDC, m_bitmap);
        PatBlt(0, 0, width, height, WHITENESS);
    }
    ~Paper() override { ::SelectObject(m_hDC, m_previous); }

private:
    CBitmap m_bitmap;
    HGDIOBJ m_previous = nullptr;
};

TEST(DCEffects, TheDisplayHasContextsByName)
{
    CDC dc;
    EXPECT_TRUE(dc.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
    CDC information;
    EXPECT_TRUE(information.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(information.GetDeviceCaps(VERTRES), ::GetSystemMetrics(SM_CYSCREEN));
    CDC none;
    EXPECT_FALSE(none.CreateDC(L"NO SUCH DRIVER", nullptr, nullptr, nullptr));
    EXPECT_EQ(none.GetSafeHdc(), nullptr);
}

TEST(DCEffects, AContextKnowsItsWindow)
{
    ParentWindow window;
    CClientDC dc(&window);
    EXPECT_EQ(dc.GetWindow(), &window);
    EXPECT_TRUE(dc.IsKindOf(RUNTIME_CLASS(CClientDC)));
    const CWindowDC whole(&window);
    EXPECT_EQ(whole.GetWindow(), &window);
    EXPECT_STREQ(whole.GetRuntimeClass()->m_lpszClassName, "CWindowDC");
}

TEST(DCEffects, AContextOfAnotherWindowIsRefused)
{
    CWnd stranger;
    stranger.Attach(reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFFFFF0)));
    EXPECT_THROW(
        {
            try
            {
                const CClientDC dc(&stranger);
            }
            catch (CResourceException* exception)
            {
                exception->Delete();
                throw 1;
            }
        },
        int);
    stranger.Detach();
}

TEST(DCEffects, TheBrushOriginIsSetAndRead)
{
    Paper dc(4, 4);
    EXPECT_TRUE(dc.SetBrushOrg(2, 3) == CPoint(0, 0));
    EXPECT_TRUE(dc.GetBrushOrg() == CPoint(2, 3));
    EXPECT_TRUE(dc.SetBrushOrg(CPoint(0, 0)) == CPoint(2, 3));
}

TEST(DCEffects, SelectingAPaletteReturnsThePreviousOne)
{
    Paper dc(4, 4);
    CPalette palette;
    ASSERT_TRUE(palette.CreateHalftonePalette(&dc));
    EXPECT_GT(palette.GetEntryCount(), 0);
    CPalette* const before = dc.SelectPalette(&palette, TRUE);
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(before->m_hObject, ::GetStockObject(DEFAULT_PALETTE));
    EXPECT_TRUE(before->IsKindOf(RUNTIME_CLASS(CPalette)));
    EXPECT_EQ(dc.GetCurrentPalette(), &palette);
    EXPECT_EQ(dc.SelectPalette(before, TRUE), &palette);
}

TEST(DCEffects, BlendedPixelsAreHalfAndHalf)
{
    Paper source(2, 2);
    Paper target(4, 4);
    source.PatBlt(0, 0, 2, 2, BLACKNESS);
    EXPECT_TRUE(target.AlphaBlend(1, 1, 2, 2, &source, 0, 0, 2, 2, {AC_SRC_OVER, 0, 128, 0}));
    EXPECT_EQ(target.GetPixel(0, 0), White);
    EXPECT_NEAR(GetRValue(target.GetPixel(1, 1)), 127, 2);
    EXPECT_NEAR(GetRValue(target.GetPixel(2, 2)), 127, 2);
    EXPECT_EQ(target.GetPixel(3, 3), White);
}

TEST(DCEffects, AGradientRunsFromOneColourToTheOther)
{
    Paper dc(100, 4);
    TRIVERTEX ends[] = {{0, 0, 0, 0, 0, 0}, {100, 4, 0xff00, 0, 0, 0}};
    GRADIENT_RECT area = {0, 1};
    EXPECT_TRUE(dc.GradientFill(ends, 2, &area, 1, GRADIENT_FILL_RECT_H));
    EXPECT_LT(GetRValue(dc.GetPixel(5, 1)), 30);
    EXPECT_NEAR(GetRValue(dc.GetPixel(50, 1)), 127, 8);
    EXPECT_GT(GetRValue(dc.GetPixel(95, 1)), 225);
    EXPECT_EQ(GetGValue(dc.GetPixel(95, 1)), 0);
}

TEST(DCEffects, ScrollingMovesPixelsAndTellsWhatIsLeftToPaint)
{
    ParentWindow window;
    window.UpdateWindow();
    CClientDC dc(&window);
    const CRect area(10, 10, 50, 30);
    dc.FillSolidRect(area, White);
    dc.FillSolidRect(10, 10, 20, 20, Black);
    CRgn exposed;
    exposed.CreateRectRgn(0, 0, 0, 0);
    CRect update;
    EXPECT_TRUE(dc.ScrollDC(20, 0, area, area, &exposed, &update));
    EXPECT_EQ(dc.GetPixel(35, 20), Black);
    EXPECT_TRUE(update == CRect(10, 10, 30, 30));
    CRect box;
    exposed.GetRgnBox(box);
    EXPECT_TRUE(box == update);
}

TEST(DCEffects, WhatIsToBePaintedIsKeptFromDrawing)
{
    ParentWindow window;
    window.UpdateWindow();
    window.InvalidateRect(CRect(0, 0, 20, 20), FALSE);
    CClientDC dc(&window);
    EXPECT_EQ(dc.ExcludeUpdateRgn(&window), COMPLEXREGION);
    EXPECT_FALSE(dc.PtVisible(5, 5));
    EXPECT_TRUE(dc.PtVisible(25, 25));
    window.ValidateRect(nullptr);
}

TEST(DCEffects, TheFaceOfTheFontIsRead)
{
    Paper dc(4, 4);
    CFont font;
    font.CreatePointFont(90, L"Tahoma");
    CFont* const before = dc.SelectObject(&font);
    CString face;
    wchar_t told[LF_FACESIZE] = L"";
    ::GetTextFace(dc, LF_FACESIZE, told);
    EXPECT_GT(dc.GetTextFace(face), 0);
    EXPECT_STREQ(face, told);
    dc.SelectObject(before);
}

TEST(DCEffects, MetricModesConvertToHundredthsOfAMillimetre)
{
    Paper dc(4, 4);
    const int inch = dc.GetDeviceCaps(LOGPIXELSX);
    for (const int mode : {MM_TEXT, MM_LOMETRIC, MM_HIMETRIC, MM_LOENGLISH, MM_HIENGLISH})
    {
        dc.SetMapMode(mode);
        CSize size(inch, inch);
        dc.DPtoHIMETRIC(&size);
        // By the size that the platform believes the screen to have; the modes of paper may differ from the
        // rest.
        const int hundredths = size.cx;
        EXPECT_NEAR(hundredths, 2540, 400) << "mode " << mode;
        CSize back(hundredths, hundredths);
        dc.HIMETRICtoDP(&back);
        EXPECT_NEAR(back.cx, inch, 1) << "mode " << mode;
        EXPECT_EQ(dc.GetMapMode(), mode) << "the mode is as it was";
    }
}

// White paper: an outline of a white brush is black there.
class DragOutline : public testing::Test
{
protected:
    int CountDark(const CRect& area)
    {
        int dark = 0;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                dark += m_dc.GetPixel(x, y) != White;
        return dark;
    }

    Paper m_dc{40, 40};
    CBrush m_solid{RGB(255, 255, 255)};
    CBrush m_other{RGB(255, 0, 0)};
};

TEST_F(DragOutline, IsAFrameOfTheGivenThickness)
{
    m_dc.DrawDragRect(CRect(5, 5, 25, 25), CSize(2, 3), nullptr, CSize(0, 0), &m_solid);
    EXPECT_EQ(CountDark(CRect(0, 0, 40, 40)), 20 * 20 - 16 * 14);
    EXPECT_EQ(m_dc.GetPixel(6, 15), Black);
    EXPECT_EQ(m_dc.GetPixel(7, 15), White);
    EXPECT_EQ(m_dc.GetPixel(15, 7), Black);
    EXPECT_EQ(m_dc.GetPixel(15, 8), White);
}

TEST_F(DragOutline, MovesWithoutALeftover)
{
    const CRect first(5, 5, 25, 25);
    const CRect second(8, 9, 28, 29);
    m_dc.DrawDragRect(first, CSize(2, 2), nullptr, CSize(0, 0), &m_solid);
    m_dc.DrawDragRect(second, CSize(2, 2), first, CSize(2, 2), &m_solid);
    EXPECT_EQ(CountDark(CRect(0, 0, 40, 40)), 20 * 20 - 16 * 16);
    EXPECT_EQ(m_dc.GetPixel(5, 20), White);
    EXPECT_EQ(m_dc.GetPixel(9, 20), Black);
}

TEST_F(DragOutline, ErasesWithTheBrushItWasDrawnWith)
{
    const CRect first(5, 5, 25, 25);
    m_dc.DrawDragRect(first, CSize(2, 2), nullptr, CSize(0, 0), &m_other);
    EXPECT_EQ(m_dc.GetPixel(5, 20), RGB(0, 255, 255));
    const CRect second(8, 9, 28, 29);
    m_dc.DrawDragRect(second, CSize(2, 2), first, CSize(2, 2), &m_solid, &m_other);
    EXPECT_EQ(m_dc.GetPixel(5, 20), White);
    EXPECT_EQ(m_dc.GetPixel(9, 20), Black);
}

TEST_F(DragOutline, IsHalftoneWithoutABrush)
{
    m_dc.DrawDragRect(CRect(0, 0, 20, 20), CSize(4, 4), nullptr, CSize(0, 0));
    EXPECT_EQ(CountDark(CRect(0, 0, 20, 20)), (20 * 20 - 12 * 12) / 2);
}

TEST_F(DragOutline, LeavesTheBrushOfTheContext)
{
    CBrush mine(RGB(9, 9, 9));
    CBrush* const before = m_dc.SelectObject(&mine);
    m_dc.DrawDragRect(CRect(0, 0, 20, 20), CSize(4, 4), nullptr, CSize(0, 0));
    EXPECT_EQ(m_dc.GetCurrentBrush(), &mine);
    m_dc.SelectObject(before);
}

} // namespace
} // namespace quor::test
