// Copies a window's pixels through a bitmap whose memory can be read.
#include "tests/support/Snapshot.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <filesystem>
#include <stdexcept>

namespace quor::test
{

namespace
{

// A negative height stands for "top row first".
BITMAPINFOHEADER HeaderFor(int width, int height)
{
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biCompression = BI_RGB;
    return header;
}

std::vector<DWORD> CopyPixels(HDC source, int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader = HeaderFor(width, -height);
    void* bits = nullptr;
    const HDC memory = CreateCompatibleDC(source);
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    GdiFlush();
    std::vector<DWORD> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    if (bits != nullptr && !pixels.empty())
        std::memcpy(pixels.data(), bits, pixels.size() * sizeof(DWORD));
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    return pixels;
}

template <typename Structure> void Write(std::ofstream& file, const Structure& structure)
{
    file.write(reinterpret_cast<const char*>(&structure), sizeof structure);
}

} // namespace

Snapshot::Snapshot(HWND window)
{
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT client{};
    GetClientRect(window, &client);
    m_width = client.right;
    m_height = client.bottom;
    const HDC dc = GetDC(window);
    m_pixels = CopyPixels(dc, m_width, m_height);
    ReleaseDC(window, dc);
}

COLORREF Snapshot::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        throw std::out_of_range("no pixel at " + std::to_string(x) + "," + std::to_string(y));
    const auto index =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    const DWORD pixel = m_pixels[index];
    return RGB((pixel >> 16) & 0xff, (pixel >> 8) & 0xff, pixel & 0xff);
}

int Snapshot::CountColour(const RECT& rectangle, COLORREF colour) const
{
    int count = 0;
    for (int y = rectangle.top; y < rectangle.bottom; ++y)
        for (int x = rectangle.left; x < rectangle.right; ++x)
            count += At(x, y) == colour ? 1 : 0;
    return count;
}

bool Snapshot::IsAll(const RECT& rectangle, COLORREF colour) const
{
    const int width = rectangle.right - rectangle.left;
    const int height = rectangle.bottom - rectangle.top;
    return CountColour(rectangle, colour) == width * height;
}

bool Snapshot::IsUniform(const RECT& rectangle) const
{
    return IsAll(rectangle, At(rectangle.left, rectangle.top));
}

bool Snapshot::SaveBmp(const std::wstring& path) const
{
    const auto size = static_cast<DWORD>(m_pixels.size() * sizeof(DWORD));
    BITMAPFILEHEADER header{};
    header.bfType = 0x4d42;
    header.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    header.bfSize = header.bfOffBits + size;
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    Write(file, header);
    Write(file, HeaderFor(m_width, m_height));
    const auto width = static_cast<std::size_t>(m_width);
    for (auto row = static_cast<std::size_t>(m_height); row-- > 0;)
    {
        const auto* pixels = reinterpret_cast<const char*>(&m_pixels[row * width]);
        file.write(pixels, static_cast<std::streamsize>(width * sizeof(DWORD)));
    }
    return file.good();
}

} // namespace quor::test
