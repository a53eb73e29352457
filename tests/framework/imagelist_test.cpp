// CImageList: ownership, images and drawing.
#include <afxwin.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

// A bitmap of two images beside each other, four pixels wide each: a red one and a blue one.
void MakeTwoImages(CBitmap& bitmap)
{
    CClientDC screen(nullptr);
    bitmap.CreateCompatibleBitmap(&screen, 8, 4);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* const previous = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 4, 4, kRed);
    dc.FillSolidRect(4, 0, 4, 4, kBlue);
    dc.SelectObject(previous);
}

} // namespace

TEST(ImageList, ImagesAreAddedDrawnAndRemoved)
{
    CBitmap images;
    MakeTwoImages(images);
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR24 | ILC_MASK, 2, 2));
    EXPECT_EQ(0, list.Add(&images, RGB(1, 2, 3)));
    EXPECT_EQ(2, list.GetImageCount());
    IMAGEINFO info = {};
    EXPECT_TRUE(list.GetImageInfo(1, &info));
    EXPECT_EQ(4, info.rcImage.right - info.rcImage.left);

    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap canvas;
    canvas.CreateCompatibleBitmap(&screen, 10, 10);
    CBitmap* const previous = dc.SelectObject(&canvas);
    EXPECT_TRUE(list.Draw(&dc, 1, CPoint(2, 3), ILD_NORMAL));
    EXPECT_EQ(kBlue, dc.GetPixel(3, 4));
    dc.SelectObject(previous);

    EXPECT_TRUE(list.Remove(0));
    EXPECT_EQ(1, list.GetImageCount());
}

TEST(ImageList, Copies_AreIndependent)
{
    CBitmap images;
    MakeTwoImages(images);
    CImageList list;
    list.Create(4, 4, ILC_COLOR24, 2, 2);
    list.Add(&images, static_cast<CBitmap*>(nullptr));
    CImageList copy;
    ASSERT_TRUE(copy.Create(&list));
    list.DeleteImageList();
    EXPECT_EQ(nullptr, list.GetSafeHandle());
    EXPECT_EQ(2, copy.GetImageCount());
    CImageList merged;
    EXPECT_TRUE(merged.Create(copy, 0, copy, 1, 2, 0));
    EXPECT_EQ(1, merged.GetImageCount());
}

TEST(ImageList, Icons_AreAddedAndExtracted)
{
    CImageList list;
    list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1);
    EXPECT_EQ(0, list.Add(::LoadIcon(nullptr, IDI_APPLICATION)));
    const HICON icon = list.ExtractIcon(0);
    EXPECT_NE(nullptr, icon);
    ::DestroyIcon(icon);
}

TEST(ImageList, TemporaryWrappers_LeaveTheList)
{
    CImageList list;
    list.Create(4, 4, ILC_COLOR24, 1, 1);
    EXPECT_EQ(&list, CImageList::FromHandle(list));
    EXPECT_EQ(&list, CImageList::FromHandlePermanent(list));
    const HIMAGELIST handle = list.Detach();
    CImageList* const temporary = CImageList::FromHandle(handle);
    EXPECT_NE(&list, temporary);
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(handle));
    CImageList::DeleteTempMap();
    EXPECT_EQ(0, ::ImageList_GetImageCount(handle));
    EXPECT_TRUE(::ImageList_Destroy(handle));
}

TEST(ImageList, Drag_HasOneImageAtATime)
{
    CBitmap images;
    MakeTwoImages(images);
    CImageList list;
    list.Create(4, 4, ILC_COLOR24 | ILC_MASK, 2, 2);
    list.Add(&images, RGB(1, 2, 3));
    ASSERT_TRUE(list.BeginDrag(1, CPoint(2, 3)));
    EXPECT_TRUE(CImageList::DragEnter(nullptr, CPoint(50, 60)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(70, 80)));
    POINT position = {};
    POINT hotSpot = {};
    CImageList* const image = CImageList::GetDragImage(&position, &hotSpot);
    ASSERT_NE(nullptr, image);
    EXPECT_EQ(70, position.x);
    EXPECT_EQ(3, hotSpot.y);
    EXPECT_TRUE(CImageList::DragShowNolock(FALSE));
    EXPECT_TRUE(CImageList::DragLeave(nullptr));
    CImageList::EndDrag();
    EXPECT_EQ(nullptr, CImageList::GetDragImage(nullptr, nullptr));
}
