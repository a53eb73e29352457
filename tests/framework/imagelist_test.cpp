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

namespace
{

COLORREF CentreOf(CImageList& images, int image)
{
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    CClientDC screen(NULL);
    CBitmap surface;
    surface.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* const before = dc.SelectObject(&surface);
    images.Draw(&dc, image, CPoint(0, 0), ILD_NORMAL);
    const COLORREF color = dc.GetPixel(8, 8);
    dc.SelectObject(before);
    return color;
}

void AddFilled(CImageList& images, COLORREF color)
{
    CClientDC screen(NULL);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* const before = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 16, 16, color);
    dc.SelectObject(before);
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
}

} // namespace

TEST(ImageList, Pictures_ComeBackFromAnArchive)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 0, 4));
    AddFilled(images, RGB(255, 0, 0));
    AddFilled(images, RGB(0, 0, 255));
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        ASSERT_TRUE(images.Write(&archive));
        archive << 4711;
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    CImageList read;
    ASSERT_TRUE(read.Read(&archive));
    ASSERT_EQ(2, read.GetImageCount());
    EXPECT_EQ(RGB(255, 0, 0), CentreOf(read, 0));
    EXPECT_EQ(RGB(0, 0, 255), CentreOf(read, 1));
    int after = 0;
    archive >> after;
    EXPECT_EQ(4711, after) << "nothing more was read";
}

TEST(ImageList, Copy_BetweenPlacesOfAList)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 0, 4));
    AddFilled(images, RGB(255, 0, 0));
    AddFilled(images, RGB(0, 0, 255));
    EXPECT_TRUE(images.Copy(0, &images, 1));
    EXPECT_EQ(RGB(0, 0, 255), CentreOf(images, 0));
    EXPECT_EQ(RGB(0, 0, 255), CentreOf(images, 1));
}
