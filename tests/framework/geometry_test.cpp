// CPoint, CSize and CRect.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{

std::string Text(const RECT& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

std::string Text(POINT point)
{
    return std::to_string(point.x) + "," + std::to_string(point.y);
}
std::string Text(SIZE size)
{
    return std::to_string(size.cx) + "x" + std::to_string(size.cy);
}

} // namespace

TEST(Point, Arithmetic)
{
    CPoint point(10, 20);
    EXPECT_EQ("13,24", Text(point + CSize(3, 4)));
    EXPECT_EQ("7,16", Text(point - CSize(3, 4)));
    EXPECT_EQ("9x18", Text(point - CPoint(1, 2)));
    EXPECT_EQ("11,22", Text(point + CPoint(1, 2)));
    EXPECT_EQ("-10,-20", Text(-point));
    point += CSize(1, 1);
    point -= CPoint(2, 2);
    point.Offset(5, 0);
    EXPECT_EQ("14,19", Text(point));
    EXPECT_TRUE(point == CPoint(14, 19));
    EXPECT_TRUE(point != CPoint(14, 18));
    EXPECT_EQ("0,0", Text(CPoint()));
}

TEST(Point, OfAMouseMessage_IsSigned)
{
    const CPoint point(static_cast<LPARAM>(MAKELPARAM(-5, -7)));
    EXPECT_EQ("-5,-7", Text(point));
}

TEST(Point, DifferenceOfPoints_IsASize)
{
    const CSize distance = CPoint(5, 9) - CPoint(2, 3);
    EXPECT_EQ("3x6", Text(distance));
}

TEST(Size, Arithmetic)
{
    CSize size(3, 4);
    EXPECT_EQ("4x6", Text(size + CSize(1, 2)));
    EXPECT_EQ("2x2", Text(size - CSize(1, 2)));
    EXPECT_EQ("-3x-4", Text(-size));
    EXPECT_EQ("13,24", Text(size + CPoint(10, 20)));
    size += CSize(1, 1);
    size -= CSize(2, 0);
    EXPECT_EQ("2x5", Text(size));
    EXPECT_TRUE(size == CSize(2, 5) && size != CSize(5, 2));
}

TEST(Rect, Constructors)
{
    EXPECT_EQ("0,0,0,0", Text(CRect()));
    EXPECT_EQ("1,2,3,4", Text(CRect(1, 2, 3, 4)));
    EXPECT_EQ("1,2,4,6", Text(CRect(CPoint(1, 2), CSize(3, 4))));
    EXPECT_EQ("1,2,3,4", Text(CRect(CPoint(1, 2), CPoint(3, 4))));
    const RECT plain = {1, 2, 3, 4};
    EXPECT_EQ("1,2,3,4", Text(CRect(plain)));
    EXPECT_EQ("1,2,3,4", Text(CRect(&plain)));
}

TEST(Rect, PlatformFunctions_TakeItEitherWay)
{
    CRect rect;
    ::SetRect(rect, 1, 2, 3, 4);
    EXPECT_EQ("1,2,3,4", Text(rect));
    ::SetRect(&rect, 5, 6, 7, 8);
    EXPECT_EQ("5,6,7,8", Text(rect));
}

TEST(Rect, Measures)
{
    CRect rect(10, 20, 40, 60);
    EXPECT_EQ(30, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_EQ("30x40", Text(rect.Size()));
    EXPECT_EQ("10,20", Text(rect.TopLeft()));
    EXPECT_EQ("40,60", Text(rect.BottomRight()));
    EXPECT_EQ("25,40", Text(rect.CenterPoint()));
    rect.TopLeft() = CPoint(0, 0);
    rect.BottomRight().Offset(10, 10);
    EXPECT_EQ("0,0,50,70", Text(rect));
}

TEST(Rect, Contains_LeftAndTopButNotRightAndBottom)
{
    const CRect rect(10, 20, 40, 60);
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_TRUE(rect.PtInRect(CPoint(39, 59)));
    EXPECT_FALSE(rect.PtInRect(CPoint(40, 59)));
    EXPECT_FALSE(rect.PtInRect(CPoint(39, 60)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 20)));
}

TEST(Rect, EmptyAndNull)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    EXPECT_FALSE(CRect(5, 5, 6, 9).IsRectEmpty());
    CRect rect(1, 2, 3, 4);
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, ChangesOfSides)
{
    CRect rect(10, 20, 40, 60);
    rect.InflateRect(1, 2);
    EXPECT_EQ("9,18,41,62", Text(rect));
    rect.DeflateRect(CSize(1, 2));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ("9,18,43,64", Text(rect));
    rect.DeflateRect(1, 2, 3, 4);
    rect.DeflateRect(CRect(1, 1, 1, 1));
    EXPECT_EQ("11,21,39,59", Text(rect));
    rect.NormalizeRect();
    EXPECT_EQ("11,21,39,59", Text(rect));
    rect = CRect(5, 8, 1, 2);
    rect.NormalizeRect();
    EXPECT_EQ("1,2,5,8", Text(rect));
}

TEST(Rect, Moves)
{
    CRect rect(10, 20, 40, 60);
    rect.OffsetRect(1, -1);
    EXPECT_EQ("11,19,41,59", Text(rect));
    rect.MoveToX(0);
    rect.MoveToY(5);
    EXPECT_EQ("0,5,30,45", Text(rect));
    rect.MoveToXY(CPoint(2, 3));
    EXPECT_EQ("2,3,32,43", Text(rect));
    EXPECT_EQ("3,4,33,44", Text(rect + CPoint(1, 1)));
    EXPECT_EQ("1,2,31,42", Text(rect - CSize(1, 1)));
    EXPECT_EQ("3,4,33,44", Text(CSize(1, 1) + &rect));
    rect += CSize(1, 1);
    rect -= CPoint(3, 4);
    EXPECT_EQ("0,0,30,40", Text(rect));
}

TEST(Rect, Combinations)
{
    const CRect first(0, 0, 10, 10);
    const CRect second(5, 6, 20, 20);
    EXPECT_EQ("5,6,10,10", Text(first & second));
    EXPECT_EQ("0,0,20,20", Text(first | second));
    CRect rect;
    EXPECT_TRUE(rect.IntersectRect(first, second));
    EXPECT_FALSE(rect.IntersectRect(first, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(rect.UnionRect(first, second));
    EXPECT_EQ("0,0,20,20", Text(rect));
    EXPECT_TRUE(rect.SubtractRect(first, CRect(0, 0, 10, 4)));
    EXPECT_EQ("0,4,10,10", Text(rect));
    rect = first;
    rect &= second;
    EXPECT_EQ("5,6,10,10", Text(rect));
    rect |= first;
    EXPECT_TRUE(rect == first && rect.EqualRect(first));
    EXPECT_TRUE(rect != second);
    EXPECT_EQ("-1,-2,13,14", Text(first + CRect(1, 2, 3, 4)));
    EXPECT_EQ("1,2,7,6", Text(first - CRect(1, 2, 3, 4)));
}
