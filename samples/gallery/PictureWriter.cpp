// Pictures of a window as BMP files.
#include "PictureWriter.h"

#include <filesystem>
#include <fstream>
#include <vector>

namespace
{

struct Bitmap
{
    int width;
    int height;
    std::vector<BYTE> bits; // bottom-up rows of BGR triples, padded to 4 bytes
};

BITMAPINFO DescribeBitmap(int width, int height)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

Bitmap CopyFromScreen(const CRect& area)
{
    Bitmap bitmap{area.Width(), area.Height(), {}};
    bitmap.bits.resize(static_cast<size_t>((bitmap.width * 3 + 3) / 4 * 4) *
                       static_cast<size_t>(bitmap.height));
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap image;
    image.CreateCompatibleBitmap(&screen, bitmap.width, bitmap.height);
    CBitmap* previous = memory.SelectObject(&image);
    memory.BitBlt(0, 0, bitmap.width, bitmap.height, &screen, area.left, area.top, SRCCOPY);
    memory.SelectObject(previous);
    BITMAPINFO info = DescribeBitmap(bitmap.width, bitmap.height);
    GetDIBits(memory, image, 0, static_cast<UINT>(bitmap.height), bitmap.bits.data(), &info, DIB_RGB_COLORS);
    return bitmap;
}

bool WriteBmp(const Bitmap& bitmap, const CString& path)
{
    std::ofstream file(std::filesystem::path(path.GetString()), std::ios::binary);
    const BITMAPINFO info = DescribeBitmap(bitmap.width, bitmap.height);
    BITMAPFILEHEADER header = {};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof(header) + sizeof(info.bmiHeader);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(bitmap.bits.size());
    file.write(reinterpret_cast<const char*>(&header), sizeof(header));
    file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof(info.bmiHeader));
    file.write(reinterpret_cast<const char*>(bitmap.bits.data()),
               static_cast<std::streamsize>(bitmap.bits.size()));
    file.close();
    return file.good();
}

} // namespace

bool WriteWindowPicture(CWnd& window, const CString& path)
{
    CRect area;
    window.GetWindowRect(area);
    return WriteBmp(CopyFromScreen(area), path);
}
