// CDialogEx: colours and pictures as the background of a dialog.
#include "tests/framework/DialogTemplateBuilder.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Pump.h"
#include "tests/support/Snapshot.h"

#include <afxdialogex.h>
#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr int labelId = 5;
constexpr int editId = 6;

// A bitmap of one colour.
HBITMAP MakeBitmap(int width, int height, COLORREF colour)
{
    const HDC screen = ::GetDC(NULL);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HGDIOBJ before = ::SelectObject(memory, bitmap);
    const RECT all = {0, 0, width, height};
    const HBRUSH brush = ::CreateSolidBrush(colour);
    ::FillRect(memory, &all, brush);
    ::DeleteObject(brush);
    ::SelectObject(memory, before);
    ::DeleteDC(memory);
    ::ReleaseDC(NULL, screen);
    return bitmap;
}

class DialogBackground : public testing::Test
{
protected:
    void SetUp() override
    {
        DialogTemplateBuilder layout(WS_POPUP | WS_VISIBLE);
        layout.Add(L"Static", L"", 0, labelId).AddEdit(editId, ES_READONLY);
        ASSERT_TRUE(m_dialog.CreateIndirect(layout.Get(), &m_host));
        m_dialog.SetWindowPos(NULL, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
        // Where the corners are looked at there is no control.
        m_dialog.GetDlgItem(labelId)->MoveWindow(60, 60, 40, 20);
        m_dialog.GetDlgItem(editId)->MoveWindow(60, 100, 40, 20);
        PumpPending();
    }

    COLORREF At(int x, int y) const { return Snapshot(m_dialog.m_hWnd).At(x, y); }

    HostWindow m_host;
    CDialogEx m_dialog;
};

TEST_F(DialogBackground, IsTheUsualOneAtFirst)
{
    EXPECT_EQ(At(5, 5), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(DialogBackground, AColourFillsTheDialogAndShinesThroughLabels)
{
    m_dialog.SetBackgroundColor(red);
    EXPECT_EQ(At(5, 5), red);
    EXPECT_EQ(At(80, 70), red) << "inside the label";
    EXPECT_NE(At(80, 110), red) << "inside the edit";
    m_dialog.SetBackgroundColor(static_cast<COLORREF>(-1));
    EXPECT_EQ(At(5, 5), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(DialogBackground, WithoutRepaintItShowsLater)
{
    m_dialog.SetBackgroundColor(red, FALSE);
    EXPECT_NE(At(5, 5), red);
    m_dialog.Invalidate();
    EXPECT_EQ(At(5, 5), red);
}

TEST_F(DialogBackground, APictureIsTiled)
{
    m_dialog.SetBackgroundImage(MakeBitmap(16, 16, blue));
    EXPECT_EQ(At(5, 5), blue);
    EXPECT_EQ(At(299, 199), blue);
    EXPECT_EQ(At(80, 70), blue) << "through the label";
}

TEST_F(DialogBackground, APictureStandsInItsCorner)
{
    m_dialog.SetBackgroundColor(red);
    struct Corner
    {
        CDialogEx::BackgroundLocation location;
        int x, y;
    };
    const Corner corners[] = {{CDialogEx::BACKGR_TOPLEFT, 5, 5},
                              {CDialogEx::BACKGR_TOPRIGHT, 295, 5},
                              {CDialogEx::BACKGR_BOTTOMLEFT, 5, 195},
                              {CDialogEx::BACKGR_BOTTOMRIGHT, 295, 195}};
    for (const Corner& corner : corners)
    {
        m_dialog.SetBackgroundImage(MakeBitmap(16, 16, blue), corner.location);
        for (const Corner& other : corners)
            EXPECT_EQ(At(other.x, other.y), corner.location == other.location ? blue : red)
                << corner.location << " at " << other.location;
    }
}

TEST_F(DialogBackground, APictureInACornerMovesWithTheSize)
{
    m_dialog.SetBackgroundImage(MakeBitmap(16, 16, blue), CDialogEx::BACKGR_BOTTOMRIGHT);
    m_dialog.SetWindowPos(NULL, 0, 0, 250, 150, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(At(245, 145), blue);
}

TEST_F(DialogBackground, APictureIsDeletedUnlessItIsTheCallers)
{
    const HBITMAP given = MakeBitmap(8, 8, blue);
    const HBITMAP kept = MakeBitmap(8, 8, red);
    m_dialog.SetBackgroundImage(given);
    m_dialog.SetBackgroundImage(kept, CDialogEx::BACKGR_TILE, FALSE);
    EXPECT_EQ(::GetObjectType(given), 0u);
    m_dialog.SetBackgroundImage(static_cast<HBITMAP>(NULL));
    EXPECT_EQ(::GetObjectType(kept), static_cast<DWORD>(OBJ_BITMAP));
    ::DeleteObject(kept);
}

TEST_F(DialogBackground, ANumberWithoutPictureIsRefused)
{
    EXPECT_FALSE(m_dialog.SetBackgroundImage(4711u));
    EXPECT_TRUE(m_dialog.SetBackgroundImage(0u));
}

} // namespace
