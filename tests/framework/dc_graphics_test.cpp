// Device contexts: curves, paths, transformations, measures of text, units of paper, and printing.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

// A memory device context of 100 x 100 white pixels, with a red brush and no pen.
class Canvas : public CDC
{
public:
    Canvas()
    {
        CreateCompatibleDC(nullptr);
        const HDC screen = ::GetDC(nullptr);
        m_bitmap.Attach(::CreateCompatibleBitmap(screen, 100, 100));
        ::ReleaseDC(nullptr, screen);
        m_previous = ::SelectObject(m_hDC, m_bitmap);
        PatBlt(0, 0, 100, 100, WHITENESS);
        SelectObject(&m_brush);
        SelectStockObject(NULL_PEN);
    }
    ~Canvas() override
    {
        SelectStockObject(NULL_BRUSH);
        ::SelectObject(m_hDC, m_previous);
    }
    bool IsRed(int x, int y) const { return GetPixel(x, y) == red; }

private:
    CBitmap m_bitmap;
    CBrush m_brush{red};
    HGDIOBJ m_previous = nullptr;
};

constexpr RECT whole = {0, 0, 100, 100};
const POINT east = {100, 50};
const POINT north = {50, 0};

TEST(DCGraphics, APieIsTheQuarterBetweenTwoPoints)
{
    Canvas dc;
    EXPECT_TRUE(dc.Pie(&whole, east, north));
    EXPECT_TRUE(dc.IsRed(60, 40));
    EXPECT_FALSE(dc.IsRed(40, 40));
    EXPECT_FALSE(dc.IsRed(60, 60));
}

TEST(DCGraphics, AChordLeavesOutTheCentre)
{
    Canvas dc;
    EXPECT_TRUE(dc.Chord(&whole, east, north));
    EXPECT_TRUE(dc.IsRed(82, 18));
    EXPECT_FALSE(dc.IsRed(60, 45));
}

TEST(DCGraphics, AnArcToBeginsWithALineAndMovesThePosition)
{
    Canvas dc;
    CPen pen(PS_SOLID, 1, red);
    CPen* const before = dc.SelectObject(&pen);
    dc.MoveTo(50, 50);
    EXPECT_TRUE(dc.ArcTo(&whole, east, north));
    EXPECT_TRUE(dc.IsRed(70, 50)) << "the line to the arc";
    EXPECT_FALSE(dc.IsRed(50, 30)) << "no line back";
    EXPECT_NEAR(dc.GetCurrentPosition().x, 50, 1);
    EXPECT_NEAR(dc.GetCurrentPosition().y, 0, 1);
    EXPECT_TRUE(dc.Arc(&whole, north, CPoint(0, 50)));
    dc.SelectObject(before);
}

TEST(DCGraphics, ArcsTurnTheWayThatIsSet)
{
    Canvas dc;
    EXPECT_EQ(dc.GetArcDirection(), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    dc.Pie(&whole, east, north);
    EXPECT_TRUE(dc.IsRed(60, 60)) << "the other three quarters";
    EXPECT_FALSE(dc.IsRed(70, 30));
}

TEST(DCGraphics, APathIsFilled)
{
    Canvas dc;
    EXPECT_TRUE(dc.BeginPath());
    dc.MoveTo(10, 10);
    const POINT corners[] = {{90, 10}, {90, 90}};
    EXPECT_TRUE(dc.PolylineTo(corners, 2));
    EXPECT_TRUE(dc.CloseFigure());
    EXPECT_TRUE(dc.EndPath());
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), 3);
    EXPECT_TRUE(dc.FillPath());
    EXPECT_TRUE(dc.IsRed(80, 40));
    EXPECT_FALSE(dc.IsRed(40, 80));
}

TEST(DCGraphics, APathClips)
{
    Canvas dc;
    dc.BeginPath();
    dc.Rectangle(20, 20, 60, 60);
    dc.EndPath();
    EXPECT_TRUE(dc.SelectClipPath(RGN_COPY));
    dc.PatBlt(0, 0, 100, 100, PATCOPY);
    EXPECT_TRUE(dc.IsRed(40, 40));
    dc.SelectClipRgn(nullptr);
    EXPECT_EQ(dc.GetPixel(80, 80), white);
}

TEST(DCGraphics, AnAbortedPathIsGone)
{
    Canvas dc;
    dc.BeginPath();
    dc.Rectangle(20, 20, 60, 60);
    EXPECT_TRUE(dc.AbortPath());
    EXPECT_FALSE(dc.FillPath());
}

TEST(DCGraphics, PolygonsTogether)
{
    Canvas dc;
    POINT points[] = {{10, 10}, {30, 10}, {10, 30}, {90, 90}, {70, 90}, {90, 70}};
    int counts[] = {3, 3};
    EXPECT_TRUE(dc.PolyPolygon(points, counts, 2));
    EXPECT_TRUE(dc.IsRed(15, 15));
    EXPECT_TRUE(dc.IsRed(85, 85));
    EXPECT_FALSE(dc.IsRed(50, 50));
}

TEST(DCGraphics, AWorldTransformMovesWhatIsDrawn)
{
    Canvas dc;
    EXPECT_EQ(dc.SetGraphicsMode(GM_ADVANCED), GM_COMPATIBLE);
    EXPECT_EQ(dc.GetGraphicsMode(), GM_ADVANCED);
    XFORM move = {1, 0, 0, 1, 50, 0};
    EXPECT_TRUE(dc.SetWorldTransform(move));
    dc.PatBlt(0, 0, 10, 10, PATCOPY);
    EXPECT_TRUE(dc.ModifyWorldTransform(move, MWT_LEFTMULTIPLY));
    XFORM now = {};
    EXPECT_TRUE(dc.GetWorldTransform(now));
    EXPECT_EQ(now.eDx, 100);
    dc.ModifyWorldTransform(move, MWT_IDENTITY);
    EXPECT_TRUE(dc.IsRed(55, 5));
    EXPECT_FALSE(dc.IsRed(5, 5));
}

TEST(DCGraphics, FloodFillStopsAtTheBorder)
{
    Canvas dc;
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CPen* const before = dc.SelectObject(&pen);
    dc.SelectStockObject(NULL_BRUSH);
    dc.Rectangle(20, 20, 60, 60);
    CBrush brush(red);
    dc.SelectObject(&brush);
    EXPECT_TRUE(dc.FloodFill(40, 40, RGB(0, 0, 0)));
    EXPECT_TRUE(dc.IsRed(30, 30));
    EXPECT_FALSE(dc.IsRed(70, 70));
    dc.SelectStockObject(NULL_BRUSH);
    dc.SelectObject(before);
}

TEST(DCGraphics, TheStockBrushHasTheColourOfTheContext)
{
    Canvas dc;
    dc.SelectStockObject(DC_BRUSH);
    dc.SetDCBrushColor(RGB(0, 0, 255));
    EXPECT_EQ(dc.GetDCBrushColor(), RGB(0, 0, 255));
    EXPECT_EQ(dc.SetDCPenColor(red), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetDCPenColor(), red);
    dc.PatBlt(0, 0, 10, 10, PATCOPY);
    EXPECT_EQ(dc.GetPixel(5, 5), RGB(0, 0, 255));
}

TEST(DCGraphics, TabsWidenAText)
{
    Canvas dc;
    int stop = 60;
    const CString text(L"a\tb");
    const CSize extent = dc.GetTabbedTextExtent(text, 1, &stop);
    EXPECT_EQ(extent.cx, 60 + dc.GetTextExtent(L"b", 1).cx);
    EXPECT_EQ(dc.GetOutputTabbedTextExtent(text, text.GetLength(), 1, &stop), extent);
    EXPECT_EQ(dc.TabbedTextOut(0, 0, text, 1, &stop, 0), extent);
}

TEST(DCGraphics, MeasuresOfCharacters)
{
    Canvas dc;
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    dc.SelectObject(&font);
    ABC abc = {};
    ASSERT_TRUE(dc.GetCharABCWidths(L'm', L'm', &abc));
    int width = 0;
    ASSERT_TRUE(dc.GetOutputCharWidth(L'm', L'm', &width));
    EXPECT_EQ(abc.abcA + static_cast<int>(abc.abcB) + abc.abcC, width);
    TEXTMETRIC metrics = {}, output = {};
    dc.GetTextMetrics(&metrics);
    EXPECT_TRUE(dc.GetOutputTextMetrics(&output));
    EXPECT_EQ(metrics.tmHeight, output.tmHeight);
    OUTLINETEXTMETRIC outline = {};
    EXPECT_GT(dc.GetOutlineTextMetrics(sizeof outline, &outline), 0u);
    EXPECT_EQ(outline.otmTextMetrics.tmHeight, metrics.tmHeight);
    dc.SelectStockObject(SYSTEM_FONT);
}

TEST(DCGraphics, UnitsOfPaper)
{
    Canvas dc;
    const int dpi = dc.GetDeviceCaps(LOGPIXELSX);
    CSize size(dpi, 2 * dc.GetDeviceCaps(LOGPIXELSY));
    dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 5080));
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size.cx, dpi);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(1, 1);
    dc.SetViewportExt(dpi, dpi);
    CSize logical(1, 1);
    dc.LPtoHIMETRIC(&logical);
    EXPECT_EQ(logical.cx, 2540) << "a unit is an inch";
    dc.HIMETRICtoLP(&logical);
    EXPECT_EQ(logical.cx, 1);
    dc.SetMapMode(MM_HIMETRIC);
    CSize same(1000, 1000);
    dc.LPtoHIMETRIC(&same);
    EXPECT_NEAR(same.cx, 1000, 30);
}

TEST(DCGraphics, ADraggedRectangleIsTakenBack)
{
    Canvas dc;
    const CRect first(10, 10, 60, 60), second(20, 20, 70, 70);
    CBrush* const brush = CDC::GetHalftoneBrush();
    const auto pixels = [&dc] {
        std::vector<COLORREF> all;
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 80; ++x)
                all.push_back(dc.GetPixel(x, y));
        return all;
    };
    const auto empty = pixels();
    dc.DrawDragRect(first, CSize(3, 3), NULL, CSize(0, 0), brush);
    const auto drawn = pixels();
    EXPECT_NE(drawn, empty);
    EXPECT_EQ(dc.GetPixel(35, 35), white) << "only the outline";
    dc.DrawDragRect(second, CSize(3, 3), first, CSize(3, 3), brush, brush);
    EXPECT_NE(pixels(), drawn);
    dc.DrawDragRect(first, CSize(3, 3), second, CSize(3, 3), brush, brush);
    EXPECT_EQ(pixels(), drawn);
    dc.DrawDragRect(first, CSize(3, 3), NULL, CSize(0, 0), brush);
    EXPECT_EQ(pixels(), empty);
}

TEST(DCGraphics, ADocumentNeedsAPrinter)
{
    Canvas dc;
    EXPECT_LE(dc.StartDoc(L"Document"), 0) << "this is memory";
    EXPECT_LE(dc.EndDoc(), 0);
}

TEST(DCGraphics, AMetafilePlaysBackWhatWasDrawn)
{
    CDC record;
    record.Attach(::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr));
    CBrush brush(red);
    CBrush* const before = record.SelectObject(&brush);
    record.Rectangle(0, 0, 50, 50);
    const BYTE comment[] = {1, 2, 3, 4};
    EXPECT_TRUE(record.AddMetaFileComment(4, comment));
    record.SelectObject(before);
    const HENHMETAFILE file = ::CloseEnhMetaFile(record.Detach());
    Canvas dc;
    EXPECT_TRUE(dc.PlayMetaFile(file, &whole));
    EXPECT_TRUE(dc.IsRed(50, 50));
    ::DeleteEnhMetaFile(file);
}

} // namespace
