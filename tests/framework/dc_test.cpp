// Device contexts: ownership, selection, mapping, clipping, drawing and text.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{

bool Alive(HGDIOBJ handle)
{
    return ::GetObjectType(handle) != 0;
}

// A memory device context with a bitmap of its own, white all over.
class Canvas : public CDC
{
public:
    Canvas(int width, int height)
    {
        CreateCompatibleDC(nullptr);
        const HDC screen = ::GetDC(nullptr);
        m_bitmap.Attach(::CreateCompatibleBitmap(screen, width, height));
        ::ReleaseDC(nullptr, screen);
        m_previous = static_cast<HBITMAP>(::SelectObject(m_hDC, m_bitmap));
        PatBlt(0, 0, width, height, WHITENESS);
    }
    ~Canvas() override { ::SelectObject(m_hDC, m_previous); }

private:
    CBitmap m_bitmap;
    HBITMAP m_previous = nullptr;
};

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

} // namespace

TEST(DC, SelectObject_ReturnsThePreviousObject)
{
    Canvas dc(4, 4);
    CPen first(PS_SOLID, 1, kRed);
    CPen second(PS_SOLID, 1, kGreen);
    CPen* const original = dc.SelectObject(&first);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), original->GetSafeHandle());
    EXPECT_EQ(&first, dc.SelectObject(&second));
    EXPECT_EQ(&second, dc.GetCurrentPen());
    EXPECT_EQ(&second, dc.SelectObject(original));
    CBrush brush(kRed);
    CBrush* const oldBrush = dc.SelectObject(&brush);
    EXPECT_EQ(&brush, dc.SelectStockObject(WHITE_BRUSH));
    EXPECT_TRUE(oldBrush->IsKindOf(RUNTIME_CLASS(CBrush)));
    CFont font;
    font.CreatePointFont(90, L"Tahoma");
    CFont* const oldFont = dc.SelectObject(&font);
    EXPECT_EQ(&font, dc.SelectObject(oldFont));
}

TEST(DC, FromHandle_GivesOneObjectPerHandle)
{
    Canvas dc(2, 2);
    EXPECT_EQ(&dc, CDC::FromHandle(dc));
    const HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* const temporary = CDC::FromHandle(handle);
    EXPECT_EQ(temporary, CDC::FromHandle(handle));
    EXPECT_EQ(handle, temporary->m_hAttribDC);
    CDC::DeleteTempMap();
    EXPECT_TRUE(Alive(handle));
    ::DeleteDC(handle);
}

TEST(DC, Destructor_DeletesTheDeviceContext)
{
    HDC handle = nullptr;
    {
        CDC dc;
        EXPECT_TRUE(dc.CreateCompatibleDC(nullptr));
        handle = dc;
    }
    EXPECT_FALSE(Alive(handle));
}

TEST(DC, FillSolidRect_LeavesTheBackgroundColourChanged)
{
    Canvas dc(10, 10);
    dc.SetBkColor(kWhite);
    dc.FillSolidRect(2, 2, 3, 3, kRed);
    EXPECT_EQ(kRed, dc.GetBkColor());
    EXPECT_EQ(kRed, dc.GetPixel(2, 2));
    EXPECT_EQ(kRed, dc.GetPixel(4, 4));
    EXPECT_EQ(kWhite, dc.GetPixel(5, 4));
    EXPECT_EQ(kWhite, dc.GetPixel(4, 5));
}

TEST(DC, Draw3dRect_DrawsTheFourSides)
{
    Canvas dc(10, 10);
    dc.Draw3dRect(CRect(1, 1, 8, 7), kRed, kGreen);
    EXPECT_EQ(kRed, dc.GetPixel(1, 1));
    EXPECT_EQ(kRed, dc.GetPixel(6, 1));
    EXPECT_EQ(kRed, dc.GetPixel(1, 5));
    EXPECT_EQ(kGreen, dc.GetPixel(7, 1));
    EXPECT_EQ(kGreen, dc.GetPixel(7, 6));
    EXPECT_EQ(kGreen, dc.GetPixel(1, 6));
    EXPECT_EQ(kWhite, dc.GetPixel(3, 3));
    EXPECT_EQ(kWhite, dc.GetPixel(8, 6));
    EXPECT_EQ(kWhite, dc.GetPixel(7, 7));
}

TEST(DC, LinesAndShapes)
{
    Canvas dc(20, 20);
    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush(kGreen);
    CPen* const oldPen = dc.SelectObject(&pen);
    CBrush* const oldBrush = dc.SelectObject(&brush);
    dc.MoveTo(1, 1);
    EXPECT_TRUE(dc.LineTo(5, 1));
    EXPECT_TRUE(dc.GetCurrentPosition() == CPoint(5, 1));
    EXPECT_TRUE(dc.MoveTo(0, 0) == CPoint(5, 1));
    EXPECT_TRUE(dc.Rectangle(CRect(5, 5, 10, 10)));
    dc.FillRect(CRect(12, 12, 14, 14), &brush);
    dc.InvertRect(CRect(0, 18, 2, 20));
    EXPECT_EQ(kRed, dc.GetPixel(1, 1));
    EXPECT_EQ(kWhite, dc.GetPixel(5, 1));
    EXPECT_EQ(kRed, dc.GetPixel(5, 5));
    EXPECT_EQ(kGreen, dc.GetPixel(6, 6));
    EXPECT_EQ(kRed, dc.GetPixel(9, 9));
    EXPECT_EQ(kGreen, dc.GetPixel(13, 13));
    EXPECT_EQ(RGB(0, 0, 0), dc.GetPixel(1, 19));
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);
}

TEST(DC, OriginsMoveTheCoordinates)
{
    Canvas dc(20, 20);
    EXPECT_TRUE(dc.SetViewportOrg(5, 6) == CPoint(0, 0));
    EXPECT_TRUE(dc.SetWindowOrg(CPoint(1, 2)) == CPoint(0, 0));
    CRect rect(1, 2, 3, 4);
    dc.LPtoDP(rect);
    EXPECT_TRUE(rect == CRect(5, 6, 7, 8));
    dc.DPtoLP(&rect);
    EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    dc.SetPixel(1, 2, kRed);
    EXPECT_TRUE(dc.SetViewportOrg(CPoint(0, 0)) == CPoint(5, 6));
    dc.SetWindowOrg(0, 0);
    EXPECT_EQ(kRed, dc.GetPixel(5, 6));
}

TEST(DC, Scales)
{
    Canvas dc(20, 20);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(10, 10);
    dc.SetViewportExt(CSize(30, 20));
    CSize size(2, 3);
    dc.LPtoDP(&size);
    EXPECT_TRUE(size == CSize(6, 6));
    dc.DPtoLP(&size);
    EXPECT_TRUE(size == CSize(2, 3));
    EXPECT_TRUE(dc.GetViewportExt() == CSize(30, 20));
}

TEST(DC, Clipping)
{
    Canvas dc(20, 20);
    EXPECT_EQ(SIMPLEREGION, dc.IntersectClipRect(CRect(2, 2, 10, 10)));
    CRect box;
    dc.GetClipBox(box);
    EXPECT_TRUE(box == CRect(2, 2, 10, 10));
    EXPECT_EQ(COMPLEXREGION, dc.ExcludeClipRect(4, 4, 6, 6));
    EXPECT_FALSE(dc.PtVisible(5, 5));
    EXPECT_TRUE(dc.RectVisible(CRect(0, 0, 3, 3)));
    dc.FillSolidRect(0, 0, 20, 20, kRed);
    dc.SelectClipRgn(nullptr);
    EXPECT_EQ(kWhite, dc.GetPixel(1, 1));
    EXPECT_EQ(kRed, dc.GetPixel(3, 3));
    EXPECT_EQ(kWhite, dc.GetPixel(5, 5));
    CRgn region;
    region.CreateRectRgn(0, 0, 4, 4);
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&region));
    EXPECT_FALSE(dc.PtVisible(CPoint(5, 5)));
}

TEST(DC, SavedState_IsRestored)
{
    Canvas dc(4, 4);
    const COLORREF before = dc.GetTextColor();
    const int saved = dc.SaveDC();
    EXPECT_EQ(before, dc.SetTextColor(kRed));
    dc.SetBkMode(TRANSPARENT);
    EXPECT_EQ(OPAQUE, dc.RestoreDC(saved) ? dc.GetBkMode() : -1);
    EXPECT_EQ(before, dc.GetTextColor());
    EXPECT_EQ(R2_COPYPEN, dc.SetROP2(R2_NOT));
    EXPECT_EQ(R2_NOT, dc.GetROP2());
}

TEST(DC, TextExtents_GrowWithTheText)
{
    Canvas dc(100, 40);
    const CString text(L"wide text");
    const CSize extent = dc.GetTextExtent(text);
    EXPECT_TRUE(extent == dc.GetTextExtent(text, text.GetLength()));
    EXPECT_LT(dc.GetTextExtent(text, 4).cx, extent.cx);
    TEXTMETRIC metrics = {};
    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(metrics.tmHeight, extent.cy);
    CRect rect(0, 0, 0, 0);
    dc.DrawText(text, rect, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(extent.cx, rect.Width());
}

TEST(DC, DrawText_DoesNotChangeTheString)
{
    Canvas dc(100, 40);
    const CString text(L"a text that does not fit at all");
    const CString copy(text);
    CRect rect(0, 0, 30, 20);
    dc.DrawText(text, rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_STREQ(L"a text that does not fit at all", text);
    EXPECT_EQ(copy.GetString(), text.GetString());
}

TEST(DC, Bits_AreCopiedBetweenContexts)
{
    Canvas source(4, 4);
    Canvas target(8, 8);
    source.FillSolidRect(0, 0, 4, 4, kRed);
    EXPECT_TRUE(target.BitBlt(1, 1, 2, 2, &source, 0, 0, SRCCOPY));
    EXPECT_EQ(kRed, target.GetPixel(CPoint(2, 2)));
    EXPECT_EQ(kWhite, target.GetPixel(3, 3));
    EXPECT_TRUE(target.StretchBlt(0, 0, 8, 8, &source, 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(kRed, target.GetPixel(7, 7));
    source.FillSolidRect(0, 0, 2, 4, kGreen);
    EXPECT_TRUE(target.TransparentBlt(0, 0, 4, 4, &source, 0, 0, 4, 4, kRed));
    EXPECT_EQ(kGreen, target.GetPixel(1, 1));
    EXPECT_EQ(kRed, target.GetPixel(3, 1));
}

TEST(DC, HalftoneBrush_IsEverySecondPixel)
{
    Canvas dc(4, 4);
    CBrush* const brush = CDC::GetHalftoneBrush();
    EXPECT_EQ(brush->GetSafeHandle(), CDC::GetHalftoneBrush()->GetSafeHandle());
    dc.SetTextColor(RGB(0, 0, 0));
    dc.SetBkColor(kWhite);
    dc.FillRect(CRect(0, 0, 4, 4), brush);
    EXPECT_NE(dc.GetPixel(0, 0), dc.GetPixel(1, 0));
    EXPECT_NE(dc.GetPixel(0, 0), dc.GetPixel(0, 1));
    EXPECT_EQ(dc.GetPixel(0, 0), dc.GetPixel(1, 1));
}

TEST(DC, SeparateContexts_ShareAttributesButNotOutput)
{
    Canvas output(4, 4);
    Canvas query(4, 4);
    const HDC original = output.m_hAttribDC;
    output.SetAttribDC(query.m_hDC);
    output.SetTextColor(kRed);
    EXPECT_EQ(kRed, query.GetTextColor());
    output.FillSolidRect(0, 0, 4, 4, kGreen);
    EXPECT_EQ(kWhite, query.GetPixel(1, 1));
    output.SetAttribDC(original);
    EXPECT_EQ(kRed, output.GetTextColor());
    EXPECT_EQ(kGreen, output.GetPixel(1, 1));
}

TEST(DC, ScreenContexts_AreGivenBack)
{
    HDC handle = nullptr;
    {
        CClientDC dc(nullptr);
        handle = dc;
        EXPECT_LT(0, dc.GetDeviceCaps(HORZRES));
    }
    CWindowDC whole(nullptr);
    EXPECT_NE(nullptr, whole.GetSafeHdc());
    EXPECT_NE(nullptr, handle);
}
