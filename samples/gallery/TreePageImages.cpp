// A folder and a sheet, drawn.
#include "TreePageImages.h"

namespace
{

constexpr int Size = 16;
constexpr COLORREF Transparent = RGB(255, 0, 255);

void DrawFolder(CDC& context)
{
    context.FillSolidRect(1, 3, 6, 2, RGB(176, 128, 32));
    context.FillSolidRect(1, 4, 14, 10, RGB(176, 128, 32));
    context.FillSolidRect(2, 5, 12, 8, RGB(255, 208, 96));
    context.FillSolidRect(2, 5, 12, 1, RGB(255, 232, 168));
}

void DrawSheet(CDC& context)
{
    context.FillSolidRect(3, 1, 10, 14, RGB(96, 112, 136));
    context.FillSolidRect(4, 2, 8, 12, RGB(255, 255, 255));
    for (int y = 4; y < 12; y += 2)
        context.FillSolidRect(5, y, 6, 1, RGB(112, 160, 216));
}

void AddImage(CImageList& images, void (*draw)(CDC&))
{
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, Size, Size);
    CBitmap* previous = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, Size, Size, Transparent);
    draw(memory);
    memory.SelectObject(previous);
    images.Add(&bitmap, Transparent);
}

} // namespace

void CreateTreePageImages(CImageList& images)
{
    images.Create(Size, Size, ILC_COLOR24 | ILC_MASK, 2, 1);
    AddImage(images, DrawFolder);
    AddImage(images, DrawSheet);
}
