// GDI objects and menus: how they are made of others, and which class wraps which handle.
#include "tests/framework/ControlsResource.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace
{

constexpr COLORREF Red = RGB(255, 0, 0);

TEST(GdiCreation, APenOfABrushHasItsOwnDashes)
{
    LOGBRUSH brush = {BS_SOLID, Red, 0};
    const DWORD dashes[] = {3, 5};
    CPen pen(PS_GEOMETRIC | PS_USERSTYLE, 4, &brush, 2, dashes);
    const int size = pen.GetObject(0, nullptr);
    // Aligned as the structure is.
    std::vector<EXTLOGPEN> room(static_cast<size_t>(size) / sizeof(EXTLOGPEN) + 1);
    EXTLOGPEN* const described = room.data();
    ASSERT_GT(pen.GetObject(size, described), 0);
    EXPECT_EQ(described->elpPenStyle, static_cast<DWORD>(PS_GEOMETRIC | PS_USERSTYLE));
    EXPECT_EQ(described->elpWidth, 4u);
    EXPECT_EQ(described->elpColor, Red);
    EXPECT_EQ(described->elpNumEntries, 2u);
    // The field is declared with one entry and has as many as there are.
    DWORD second = 0;
    std::memcpy(&second,
                reinterpret_cast<const BYTE*>(described) + offsetof(EXTLOGPEN, elpStyleEntry) + sizeof(DWORD),
                sizeof(DWORD));
    EXPECT_EQ(second, 5u);
    EXPECT_EQ(::GetObjectType(pen), static_cast<DWORD>(OBJ_EXTPEN));
}

TEST(GdiCreation, WhatCannotBeMadeThrows)
{
    // A dashed pen without its dashes, and a pattern without its bitmap.
    LOGBRUSH brush = {BS_SOLID, Red, 0};
    CBitmap none;
    int thrown = 0;
    try
    {
        const CPen pen(PS_GEOMETRIC | PS_USERSTYLE, 4, &brush, 0, nullptr);
    }
    catch (CResourceException* exception)
    {
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CResourceException)));
        exception->Delete();
        ++thrown;
    }
    try
    {
        const CBrush pattern(&none);
    }
    catch (CResourceException* exception)
    {
        exception->Delete();
        ++thrown;
    }
    EXPECT_EQ(thrown, 2);
}

TEST(GdiCreation, APatternBrushRepeatsItsBitmap)
{
    // Black and white pixels in turn.
    const WORD rows[] = {0x5555, 0xaaaa, 0x5555, 0xaaaa, 0x5555, 0xaaaa, 0x5555, 0xaaaa};
    CBitmap pattern;
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 1, rows));
    CBrush brush(&pattern);
    LOGBRUSH described = {};
    brush.GetLogBrush(&described);
    EXPECT_EQ(described.lbStyle, static_cast<UINT>(BS_PATTERN));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap pixels;
    pixels.CreateBitmap(16, 16, 1, 32, nullptr);
    CBitmap* const before = dc.SelectObject(&pixels);
    dc.FillRect(CRect(0, 0, 16, 16), &brush);
    EXPECT_NE(dc.GetPixel(0, 0), dc.GetPixel(1, 0));
    EXPECT_EQ(dc.GetPixel(0, 0), dc.GetPixel(8, 8));
    dc.SelectObject(before);
}

TEST(GdiCreation, BitsAreWrittenAndRead)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, nullptr));
    const DWORD written[] = {0x00112233, 0x00445566, 0x00778899, 0x00aabbcc};
    EXPECT_EQ(bitmap.SetBitmapBits(sizeof(written), written), sizeof(written));
    DWORD read[4] = {};
    EXPECT_EQ(bitmap.GetBitmapBits(sizeof(read), read), sizeof(read));
    EXPECT_EQ(std::vector<DWORD>(read, read + 4), std::vector<DWORD>(written, written + 4));
}

TEST(GdiCreation, AMappedBitmapHasOtherColours)
{
    CBitmap plain, mapped;
    ASSERT_TRUE(plain.LoadBitmap(IDB_NUMBERED));
    BITMAP size = {};
    plain.GetBitmap(&size);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* const before = dc.SelectObject(&plain);
    COLORMAP colours[] = {{dc.GetPixel(0, 0), RGB(1, 2, 3)}};
    dc.SelectObject(before);
    // Only bitmaps with a palette can be mapped; others are loaded as they are, or not at all.
    if (mapped.LoadMappedBitmap(IDB_NUMBERED, 0, colours, 1))
    {
        BITMAP mappedSize = {};
        mapped.GetBitmap(&mappedSize);
        EXPECT_EQ(mappedSize.bmWidth, size.bmWidth);
        EXPECT_EQ(mappedSize.bmHeight, size.bmHeight);
    }
    CBitmap missing;
    EXPECT_FALSE(missing.LoadMappedBitmap(4711));
    EXPECT_EQ(missing.GetSafeHandle(), nullptr);
}

TEST(GdiCreation, TemporaryObjectsHaveTheClassOfTheirHandle)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    struct Wrapped
    {
        HGDIOBJ handle;
        CRuntimeClass* expected;
    };
    LOGBRUSH brush = {BS_SOLID, Red, 0};
    const Wrapped all[] = {
        {::CreatePen(PS_SOLID, 1, Red), RUNTIME_CLASS(CPen)},
        {::ExtCreatePen(PS_GEOMETRIC, 2, &brush, 0, nullptr), RUNTIME_CLASS(CPen)},
        {::CreateSolidBrush(Red), RUNTIME_CLASS(CBrush)},
        {::CreateFontW(9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"), RUNTIME_CLASS(CFont)},
        {::CreateBitmap(1, 1, 1, 1, nullptr), RUNTIME_CLASS(CBitmap)},
        {::CreateHalftonePalette(dc), RUNTIME_CLASS(CPalette)},
        {::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)},
    };
    for (const Wrapped& one : all)
    {
        const CGdiObject* const object = CGdiObject::FromHandle(one.handle);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object->m_hObject, one.handle);
        EXPECT_STREQ(object->GetRuntimeClass()->m_lpszClassName, one.expected->m_lpszClassName);
    }
    CGdiObject::DeleteTempMap();
    for (const Wrapped& one : all)
        EXPECT_TRUE(::DeleteObject(one.handle));
}

class MenuPictures : public testing::Test
{
protected:
    MenuPictures()
    {
        m_menu.CreatePopupMenu();
        m_picture.CreateBitmap(4, 4, 1, 1, nullptr);
    }

    MENUITEMINFO ItemAt(UINT position)
    {
        MENUITEMINFO info = {};
        info.fMask = MIIM_BITMAP | MIIM_ID | MIIM_CHECKMARKS | MIIM_FTYPE;
        EXPECT_TRUE(m_menu.GetMenuItemInfo(position, &info, TRUE));
        return info;
    }

    CMenu m_menu;
    CBitmap m_picture;
};

TEST_F(MenuPictures, AreAppendedAndInserted)
{
    EXPECT_TRUE(m_menu.IsKindOf(RUNTIME_CLASS(CMenu)));
    EXPECT_TRUE(m_menu.AppendMenu(0, 7, &m_picture));
    EXPECT_TRUE(m_menu.InsertMenu(0, MF_BYPOSITION, 8, &m_picture));
    EXPECT_EQ(m_menu.GetMenuItemCount(), 2);
    EXPECT_EQ(ItemAt(0).wID, 8u);
    EXPECT_EQ(ItemAt(0).hbmpItem, static_cast<HBITMAP>(m_picture));
    EXPECT_EQ(ItemAt(1).wID, 7u);
    EXPECT_EQ(ItemAt(1).hbmpItem, static_cast<HBITMAP>(m_picture));
}

TEST_F(MenuPictures, StandForTheTwoStatesOfACheckMark)
{
    CBitmap checked;
    checked.CreateBitmap(4, 4, 1, 1, nullptr);
    m_menu.AppendMenu(MF_STRING, 7, L"Item");
    EXPECT_TRUE(m_menu.SetMenuItemBitmaps(7, MF_BYCOMMAND, &m_picture, &checked));
    EXPECT_EQ(ItemAt(0).hbmpUnchecked, static_cast<HBITMAP>(m_picture));
    EXPECT_EQ(ItemAt(0).hbmpChecked, static_cast<HBITMAP>(checked));
    EXPECT_TRUE(m_menu.SetMenuItemBitmaps(7, MF_BYCOMMAND, nullptr, nullptr));
    EXPECT_EQ(ItemAt(0).hbmpChecked, nullptr);
}

TEST_F(MenuPictures, AMenuMadeByRuntimeClassIsEmpty)
{
    std::unique_ptr<CObject> made(RUNTIME_CLASS(CMenu)->CreateObject());
    EXPECT_EQ(static_cast<CMenu&>(*made).GetSafeHmenu(), nullptr);
    EXPECT_FALSE(static_cast<CMenu&>(*made).DestroyMenu());
}

} // namespace
