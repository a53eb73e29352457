// Parts of the screen as BMP files.
#include "StylePictures.h"

#include <filesystem>
#include <fstream>

namespace
{

BITMAPINFO Describe(CSize size)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

} // namespace

bool WritePicture(const CRect& screenArea, const CString& path)
{
    const CSize size = screenArea.Size();
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap image;
    memory.CreateCompatibleDC(&screen);
    image.CreateCompatibleBitmap(&screen, size.cx, size.cy);
    CBitmap* previous = memory.SelectObject(&image);
    memory.BitBlt(0, 0, size.cx, size.cy, &screen, screenArea.left, screenArea.top, SRCCOPY);
    memory.SelectObject(previous);
    BITMAPINFO info = Describe(size);
    std::vector<char> bits(static_cast<size_t>((size.cx * 3 + 3) / 4 * 4) * static_cast<size_t>(size.cy));
    ::GetDIBits(memory, image, 0, static_cast<UINT>(size.cy), bits.data(), &info, DIB_RGB_COLORS);

    BITMAPFILEHEADER header = {};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof(header) + sizeof(info.bmiHeader);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(bits.size());
    std::ofstream file(std::filesystem::path(path.GetString()), std::ios::binary);
    file.write(reinterpret_cast<const char*>(&header), sizeof(header));
    file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof(info.bmiHeader));
    file.write(bits.data(), static_cast<std::streamsize>(bits.size()));
    file.close();
    return file.good();
}
