// The pixels of a window, for tests that look at what was painted.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace quor::test
{

// A copy of a window's client area as it is on the screen, children included. Points and rectangles are
// client coordinates; what lies outside the client area is not there and throws std::out_of_range.
class Snapshot
{
public:
    // Paints what is due before it copies. The window must be visible.
    explicit Snapshot(HWND window);

    int Width() const { return m_width; }
    int Height() const { return m_height; }

    COLORREF At(int x, int y) const;

    // How many pixels of the rectangle have the colour.
    int CountColour(const RECT& rectangle, COLORREF colour) const;

    // Whether all pixels of the rectangle have one colour.
    bool IsUniform(const RECT& rectangle) const;

    // Whether all pixels of the rectangle have that colour.
    bool IsAll(const RECT& rectangle, COLORREF colour) const;

    // Writes the picture for a person to look at; returns whether that worked.
    bool SaveBmp(const std::wstring& path) const;

private:
    int m_width;
    int m_height;
    std::vector<DWORD> m_pixels; // 0x00RRGGBB, from the top left
};

} // namespace quor::test
