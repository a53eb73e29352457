// A plain rectangle, which the rules take and give.
#pragma once

namespace quorfx
{

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

    bool IsEmpty() const { return right <= left || bottom <= top; }
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    // As another type that is made of the four numbers, for example CRect.
    template <class Rectangle> Rectangle As() const { return Rectangle(left, top, right, bottom); }
    bool operator==(const Box&) const = default;
};

} // namespace quorfx
