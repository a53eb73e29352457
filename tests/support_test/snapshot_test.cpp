// Tests that snapshots show what was painted.
#include "tests/support/HostWindow.h"
#include "tests/support/Snapshot.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>

namespace quor::test
{
namespace
{

constexpr COLORREF Orange = RGB(255, 128, 0);
constexpr COLORREF Blue = RGB(0, 0, 200);

// Orange all over, with a blue square from 10,20 to 15,25.
class PaintedWindow : public HostWindow
{
public:
    PaintedWindow() : HostWindow(120, 80) { Invalidate(); }

private:
    static void Fill(HDC dc, const RECT& rectangle, COLORREF colour)
    {
        const HBRUSH brush = CreateSolidBrush(colour);
        FillRect(dc, &rectangle, brush);
        DeleteObject(brush);
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_PAINT)
            return HostWindow::WindowProc(message, wParam, lParam);
        PAINTSTRUCT paint{};
        const HDC dc = ::BeginPaint(m_hWnd, &paint);
        Fill(dc, {0, 0, 1000, 1000}, Orange);
        Fill(dc, {10, 20, 15, 25}, Blue);
        ::EndPaint(m_hWnd, &paint);
        return 0;
    }
};

TEST(Snapshot, Pixels_AreWhatWasPainted)
{
    PaintedWindow host;
    const Snapshot snapshot(host);
    EXPECT_EQ(snapshot.Width(), 120);
    EXPECT_EQ(snapshot.Height(), 80);
    EXPECT_EQ(snapshot.At(0, 0), Orange);
    EXPECT_EQ(snapshot.At(119, 79), Orange);
    EXPECT_EQ(snapshot.At(10, 20), Blue);
    EXPECT_EQ(snapshot.At(14, 24), Blue);
    EXPECT_EQ(snapshot.At(15, 25), Orange);
}

TEST(Snapshot, Rectangles_AreCountedAndCompared)
{
    PaintedWindow host;
    const Snapshot snapshot(host);
    EXPECT_EQ(snapshot.CountColour({0, 0, 120, 80}, Blue), 25);
    EXPECT_TRUE(snapshot.IsUniform({0, 0, 120, 20}));
    EXPECT_FALSE(snapshot.IsUniform({0, 0, 120, 21}));
    EXPECT_TRUE(snapshot.IsAll({10, 20, 15, 25}, Blue));
    EXPECT_FALSE(snapshot.IsAll({10, 20, 16, 25}, Blue));
}

TEST(Snapshot, Child_IsInThePicture)
{
    PaintedWindow host;
    CWnd child;
    ASSERT_TRUE(
        child.Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_BLACKRECT, CRect(30, 30, 40, 40), &host, 1));
    EXPECT_TRUE(Snapshot(host).IsUniform({30, 30, 40, 40}));
    EXPECT_NE(Snapshot(host).At(30, 30), Orange);
}

TEST(Snapshot, OutsideTheClientArea_Throws)
{
    PaintedWindow host;
    const Snapshot snapshot(host);
    EXPECT_THROW(snapshot.At(120, 0), std::out_of_range);
    EXPECT_THROW(snapshot.At(0, -1), std::out_of_range);
}

TEST(Snapshot, SaveBmp_WritesThePicture)
{
    PaintedWindow host;
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"snapshot.bmp";
    ASSERT_TRUE(Snapshot(host).SaveBmp(path));

    const auto bitmap =
        static_cast<HBITMAP>(LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(dc, bitmap);
    EXPECT_EQ(GetPixel(dc, 10, 20), Blue);
    EXPECT_EQ(GetPixel(dc, 0, 0), Orange);
    SelectObject(dc, previous);
    DeleteDC(dc);
    DeleteObject(bitmap);
    DeleteFileW(path.c_str());
}

} // namespace
} // namespace quor::test
