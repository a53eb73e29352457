// CSize, CPoint and CRect: SIZE, POINT and RECT with arithmetic. Units are those of the value they hold.
#pragma once

#include "fx/config.h"

class CPoint;
class CRect;

// A width and a height.
class CSize : public tagSIZE
{
public:
    CSize() throw() { cx = cy = 0; }
    CSize(int initCX, int initCY) throw()
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) throw() : tagSIZE(initSize) {}
    CSize(POINT initPt) throw() : CSize(initPt.x, initPt.y) {}
    // Width in the low word, height in the high word, both signed.
    explicit CSize(DWORD dwSize) throw()
        : CSize(static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize)))
    {
    }

    BOOL operator==(SIZE size) const throw() { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const throw() { return cx != size.cx || cy != size.cy; }
    void operator+=(SIZE size) throw()
    {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size) throw()
    {
        cx -= size.cx;
        cy -= size.cy;
    }
    CSize operator+(SIZE size) const throw() { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const throw() { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const throw() { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const throw();
    CPoint operator-(POINT point) const throw();
    // The rectangle moved by this size, or by its negative.
    CRect operator+(const RECT* lpRect) const throw();
    CRect operator-(const RECT* lpRect) const throw();
};

// A position.
class CPoint : public tagPOINT
{
public:
    CPoint() throw() { x = y = 0; }
    CPoint(int initX, int initY) throw()
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) throw() : tagPOINT(initPt) {}
    CPoint(SIZE initSize) throw() : CPoint(initSize.cx, initSize.cy) {}
    // x in the low word, y in the high word, both signed: the lParam of a mouse message.
    explicit CPoint(LPARAM dwPoint) throw()
        : CPoint(static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint)))
    {
    }

    void Offset(int xOffset, int yOffset) throw()
    {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) throw() { Offset(point.x, point.y); }
    void Offset(SIZE size) throw() { Offset(size.cx, size.cy); }

    BOOL operator==(POINT point) const throw() { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const throw() { return x != point.x || y != point.y; }
    void operator+=(SIZE size) throw() { Offset(size); }
    void operator-=(SIZE size) throw() { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) throw() { Offset(point); }
    void operator-=(POINT point) throw() { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const throw() { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const throw() { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const throw() { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const throw() { return CPoint(x + point.x, y + point.y); }
    // The distance between two positions is a size.
    CSize operator-(POINT point) const throw() { return CSize(x - point.x, y - point.y); }
    // The rectangle moved by this position, or by its negative.
    CRect operator+(const RECT* lpRect) const throw();
    CRect operator-(const RECT* lpRect) const throw();
};

// A rectangle; left and top belong to it, right and bottom do not. Many functions need a normalised
// rectangle, whose right is not below its left and whose bottom is not below its top.
class CRect : public tagRECT
{
public:
    CRect() throw() { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) throw()
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    CRect(const RECT& srcRect) throw() : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) throw() : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) throw() : CRect(point.x, point.y, point.x + size.cx, point.y + size.cy) {}
    CRect(POINT topLeft, POINT bottomRight) throw()
        : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y)
    {
    }

    int Width() const throw() { return right - left; }
    int Height() const throw() { return bottom - top; }
    CSize Size() const throw() { return CSize(Width(), Height()); }
    // The corners, as references into the rectangle.
    CPoint& TopLeft() throw() { return *static_cast<CPoint*>(reinterpret_cast<POINT*>(&left)); }
    CPoint& BottomRight() throw() { return *static_cast<CPoint*>(reinterpret_cast<POINT*>(&right)); }
    const CPoint& TopLeft() const throw()
    {
        return *static_cast<const CPoint*>(reinterpret_cast<const POINT*>(&left));
    }
    const CPoint& BottomRight() const throw()
    {
        return *static_cast<const CPoint*>(reinterpret_cast<const POINT*>(&right));
    }
    CPoint CenterPoint() const throw() { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() throw() { return this; }
    operator LPCRECT() const throw() { return this; }

    // Empty: no width or no height. Null: all four values are 0.
    BOOL IsRectEmpty() const throw() { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const throw() { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const throw() { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT lpRect) const throw() { return ::EqualRect(this, lpRect); }

    void SetRect(int x1, int y1, int x2, int y2) throw() { *this = CRect(x1, y1, x2, y2); }
    void SetRectEmpty() throw() { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) throw() { *this = CRect(lpSrcRect); }
    // Exchanges sides so that width and height are not negative.
    void NormalizeRect() throw()
    {
        if (left > right)
            std::swap(left, right);
        if (top > bottom)
            std::swap(top, bottom);
    }

    // Inflate moves the sides outwards, deflate inwards.
    void InflateRect(int x, int y) throw() { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) throw() { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) throw()
    {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) throw()
    {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    void DeflateRect(int x, int y) throw() { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) throw() { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT lpRect) throw()
    {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) throw() { InflateRect(-l, -t, -r, -b); }

    // Move the rectangle by a distance, or to a place.
    void OffsetRect(int x, int y) throw() { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(SIZE size) throw() { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) throw() { OffsetRect(point.x, point.y); }
    void MoveToX(int x) throw() { OffsetRect(x - left, 0); }
    void MoveToY(int y) throw() { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) throw() { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) throw() { MoveToXY(point.x, point.y); }

    // Become the intersection, union or difference of two rectangles; FALSE when the result is empty.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) throw()
    {
        return ::IntersectRect(this, lpRect1, lpRect2);
    }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) throw() { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) throw()
    {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(const RECT& srcRect) throw() { tagRECT::operator=(srcRect); }
    BOOL operator==(const RECT& rect) const throw() { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const throw() { return !::EqualRect(this, &rect); }
    void operator+=(POINT point) throw() { OffsetRect(point); }
    void operator+=(SIZE size) throw() { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) throw() { InflateRect(lpRect); }
    void operator-=(POINT point) throw() { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) throw() { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) throw() { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) throw() { IntersectRect(CRect(*this), &rect); }
    void operator|=(const RECT& rect) throw() { UnionRect(CRect(*this), &rect); }

    // Moved by a distance, or inflated and deflated by a rectangle's values.
    CRect operator+(POINT point) const throw() { return Moved(point.x, point.y); }
    CRect operator-(POINT point) const throw() { return Moved(-point.x, -point.y); }
    CRect operator+(SIZE size) const throw() { return Moved(size.cx, size.cy); }
    CRect operator-(SIZE size) const throw() { return Moved(-size.cx, -size.cy); }
    CRect operator+(LPCRECT lpRect) const throw()
    {
        CRect rect(*this);
        rect.InflateRect(lpRect);
        return rect;
    }
    CRect operator-(LPCRECT lpRect) const throw()
    {
        CRect rect(*this);
        rect.DeflateRect(lpRect);
        return rect;
    }
    // Intersection and union.
    CRect operator&(const RECT& rect2) const throw()
    {
        CRect rect;
        rect.IntersectRect(this, &rect2);
        return rect;
    }
    CRect operator|(const RECT& rect2) const throw()
    {
        CRect rect;
        rect.UnionRect(this, &rect2);
        return rect;
    }
    // Each value times nMultiplier / nDivisor, rounded.

private:
    CRect Moved(int x, int y) const throw() { return CRect(left + x, top + y, right + x, bottom + y); }
};

inline CPoint CSize::operator+(POINT point) const throw()
{
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const throw()
{
    return CPoint(cx - point.x, cy - point.y);
}
inline CRect CSize::operator+(const RECT* lpRect) const throw()
{
    return CRect(lpRect) + *this;
}
inline CRect CSize::operator-(const RECT* lpRect) const throw()
{
    return CRect(lpRect) - *this;
}
inline CRect CPoint::operator+(const RECT* lpRect) const throw()
{
    return CRect(lpRect) + *this;
}
inline CRect CPoint::operator-(const RECT* lpRect) const throw()
{
    return CRect(lpRect) - *this;
}
