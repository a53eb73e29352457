// Plain places and sizes, which the rules take and give. They are made of the platform's own and become such
// again, without knowing them.
#pragma once

namespace QuorUiCtr
{

struct Spot
{
    int x = 0;
    int y = 0;

    // As another type that is made of the two numbers, for example CPoint.
    template <class Point> Point As() const { return Point(x, y); }
    bool operator==(const Spot&) const = default;
};

struct Extent
{
    int width = 0;
    int height = 0;

    Extent() = default;
    Extent(int itsWidth, int itsHeight) : width(itsWidth), height(itsHeight) {}
    // From any type with such fields, for example CSize.
    template <class Size>
    requires requires(const Size& size) { size.cx + size.cy; }
    Extent(const Size& size) : Extent(static_cast<int>(size.cx), static_cast<int>(size.cy)) {}
    bool operator==(const Extent&) const = default;
};

// A rectangle; right and bottom are exclusive.
struct Box
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    Box() = default;
    Box(int itsLeft, int itsTop, int itsRight, int itsBottom)
        : left(itsLeft), top(itsTop), right(itsRight), bottom(itsBottom)
    {
    }
    // From any type with such fields, for example RECT and CRect.
    template <class Rectangle>
    requires requires(const Rectangle& r) { r.left + r.top + r.right + r.bottom; }
    Box(const Rectangle& r)
        : Box(static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right),
              static_cast<int>(r.bottom))
    {
    }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    // As another type that is made of the four numbers, for example CRect.
    template <class Rectangle> Rectangle As() const { return Rectangle(left, top, right, bottom); }
    bool operator==(const Box&) const = default;
};

} // namespace QuorUiCtr
