// The pure rules of the grid's geometry.
#include "rules/GridGeometry.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

using namespace QuorUiCtr;

namespace
{

std::string Text(const Box& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "-" + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

std::string Text(const ScrollBarPlan& plan)
{
    return std::string(plan.horizontal ? "H" : "-") + (plan.vertical ? "V" : "-") + " " +
           std::to_string(plan.area.width) + "x" + std::to_string(plan.area.height);
}

struct CaptionCase
{
    const wchar_t* caption;
    int lines;
};

class CaptionLines : public testing::TestWithParam<CaptionCase>
{
};

TEST_P(CaptionLines, AreCounted)
{
    EXPECT_EQ(GetParam().lines, CaptionLineCount(GetParam().caption));
}

INSTANTIATE_TEST_SUITE_P(GridGeometry, CaptionLines,
                         testing::Values(CaptionCase{L"", 1}, CaptionCase{L"Name", 1},
                                         CaptionCase{L"a\nb", 2}, CaptionCase{L"Name\nof it", 2},
                                         // A break at the beginning stops the count.
                                         CaptionCase{L"\nb", 1}, CaptionCase{L"\n", 1},
                                         CaptionCase{L"\na\nb", 1},
                                         // A break at the very end counts.
                                         CaptionCase{L"a\n", 2},
                                         // The second break lies at index 1 of the remainder, before index 2.
                                         CaptionCase{L"a\nb\nc", 2},
                                         // Here it lies at index 2 and is counted, and the third one is
                                         // searched from index 3 of what follows the position 3.
                                         CaptionCase{L"a\nbb\nc", 3}, CaptionCase{L"a\nbb\ncccc\nd", 4},
                                         CaptionCase{L"a\n12345\n7", 3}, CaptionCase{L"abc\nd\ne", 2},
                                         CaptionCase{L"a\r\nb", 2}));

TEST(GridGeometry, CaptionOfBreaksOnly_EndsTheCount)
{
    EXPECT_EQ(1, CaptionLineCount(std::wstring(100, L'\n')));
}

struct BarCase
{
    Extent content;
    Extent area;
    const char* plan;
};

class ScrollBars : public testing::TestWithParam<BarCase>
{
};

TEST_P(ScrollBars, ArePlanned)
{
    EXPECT_EQ(GetParam().plan, Text(PlanScrollBars(GetParam().content, GetParam().area, 16, 17)));
}

INSTANTIATE_TEST_SUITE_P(
    GridGeometry, ScrollBars,
    testing::Values(BarCase{{0, 0}, {100, 80}, "-- 100x80"},
                    // Exactly as large as the area.
                    BarCase{{100, 80}, {100, 80}, "-- 100x80"},
                    // One pixel more on one side, with room for the bar on the other.
                    BarCase{{101, 63}, {100, 80}, "H- 100x63"}, BarCase{{84, 81}, {100, 80}, "-V 84x80"},
                    // One pixel more on one side, and its bar takes the place that the other side needs.
                    BarCase{{101, 64}, {100, 80}, "HV 84x63"}, BarCase{{85, 81}, {100, 80}, "HV 84x63"},
                    BarCase{{101, 80}, {100, 80}, "HV 84x63"}, BarCase{{100, 81}, {100, 80}, "HV 84x63"},
                    // Both from the beginning.
                    BarCase{{101, 81}, {100, 80}, "HV 84x63"}, BarCase{{5000, 7000}, {100, 80}, "HV 84x63"},
                    // An area without room, as in a window that is hardly there.
                    BarCase{{10, 10}, {0, 0}, "HV -16x-17"}, BarCase{{0, 0}, {0, 0}, "-- 0x0"}));

TEST(GridGeometry, ClampScroll_StaysInsideTheRange)
{
    EXPECT_EQ(5, ClampScroll(10, 5, 100));
    EXPECT_EQ(-5, ClampScroll(10, -5, 100));
    EXPECT_EQ(-10, ClampScroll(10, -11, 100));
    EXPECT_EQ(90, ClampScroll(10, 91, 100));
    EXPECT_EQ(90, ClampScroll(10, 90, 100));
    EXPECT_EQ(0, ClampScroll(0, 0, 0));
}

TEST(GridGeometry, ClampScroll_OfTheLargestNumbers_DoesNotOverflow)
{
    EXPECT_EQ(90, ClampScroll(10, INT_MAX, 100));
    EXPECT_EQ(-10, ClampScroll(10, INT_MIN, 100));
}

// The view of an unscrolled area 100 high begins at logical 1.
TEST(GridGeometry, LeastScroll_OfAVisibleRange_IsNothing)
{
    EXPECT_EQ(0, LeastScroll(20, 40, 1, 101, 0));
    EXPECT_EQ(0, LeastScroll(81, 101, 1, 101, 0));
    EXPECT_EQ(0, LeastScroll(1, 101, 1, 101, 0));
}

TEST(GridGeometry, LeastScroll_OfTheFirstRow_IsNothing)
{
    EXPECT_EQ(0, LeastScroll(0, 20, 1, 101, 0));
}

TEST(GridGeometry, LeastScroll_BelowTheView_BringsTheEndIn)
{
    EXPECT_EQ(20, LeastScroll(100, 120, 1, 101, 0));
    EXPECT_EQ(2, LeastScroll(82, 102, 1, 101, 0));
    EXPECT_EQ(900, LeastScroll(980, 1000, 1, 101, 0));
}

TEST(GridGeometry, LeastScroll_AboveTheView_BringsTheBeginningIn)
{
    EXPECT_EQ(-20, LeastScroll(80, 100, 101, 201, 100));
    EXPECT_EQ(-100, LeastScroll(0, 20, 101, 201, 100));
}

TEST(GridGeometry, LeastScroll_OfALargerRange_BringsTheBeginningIn)
{
    EXPECT_EQ(50, LeastScroll(50, 251, 1, 101, 0));
    EXPECT_EQ(200, LeastScroll(300, 500, 101, 201, 100));
}

TEST(GridGeometry, LeastScroll_OfAnEmptyRangeInside_IsNothing)
{
    EXPECT_EQ(0, LeastScroll(51, 51, 1, 101, 0));
    EXPECT_EQ(0, LeastScroll(101, 101, 1, 101, 0));
}

struct ScrollCase
{
    ScrollCode code;
    int vertical;
    int horizontal;
};

class ScrollTarget : public testing::TestWithParam<ScrollCase>
{
};

TEST_P(ScrollTarget, FollowsTheCode)
{
    const ScrollRequest request{100, 10, 400, 20, 150, 333};
    EXPECT_EQ(GetParam().vertical, VerticalScrollTarget(GetParam().code, request));
    EXPECT_EQ(GetParam().horizontal, HorizontalScrollTarget(GetParam().code, request));
}

INSTANTIATE_TEST_SUITE_P(
    GridGeometry, ScrollTarget,
    testing::Values(ScrollCase{ScrollCode::LineBack, 80, 80}, ScrollCase{ScrollCode::LineForward, 120, 120},
                    ScrollCase{ScrollCode::PageBack, 10, 10}, ScrollCase{ScrollCode::PageForward, 250, 250},
                    ScrollCase{ScrollCode::Track, 333, 333}, ScrollCase{ScrollCode::First, 10, 10},
                    ScrollCase{ScrollCode::Last, 400, 400},
                    // The end of tracking and of scrolling, and a number that means nothing.
                    ScrollCase{ScrollCode{4}, 100, 100}, ScrollCase{ScrollCode{8}, 100, 100},
                    ScrollCase{ScrollCode{99}, 100, 100}));

TEST(GridGeometry, ScrollTargets_StayInsideTheRange)
{
    const ScrollRequest nearEnd{390, 0, 400, 20, 150, 4000};
    EXPECT_EQ(400, VerticalScrollTarget(ScrollCode::LineForward, nearEnd));
    EXPECT_EQ(400, HorizontalScrollTarget(ScrollCode::PageForward, nearEnd));
    EXPECT_EQ(400, VerticalScrollTarget(ScrollCode::Track, nearEnd));
    const ScrollRequest nearBegin{10, 0, 400, 20, 150, -7};
    EXPECT_EQ(0, VerticalScrollTarget(ScrollCode::LineBack, nearBegin));
    EXPECT_EQ(0, HorizontalScrollTarget(ScrollCode::Track, nearBegin));
}

TEST(GridGeometry, HorizontalTop_IsTheSmallerEndOfTheRange)
{
    const ScrollRequest turned{0, 50, 20, 1, 1, 0};
    EXPECT_EQ(20, HorizontalScrollTarget(ScrollCode::First, turned));
    EXPECT_EQ(50, VerticalScrollTarget(ScrollCode::First, turned));
}

TEST(GridGeometry, WheelPosition_OfANotch_IsOneRow)
{
    EXPECT_EQ(120, WheelPosition(100, 20, -120));
    EXPECT_EQ(80, WheelPosition(100, 20, 120));
    EXPECT_EQ(160, WheelPosition(100, 20, -360));
}

TEST(GridGeometry, WheelPosition_OfLessThanANotch_TruncatesTowardZero)
{
    EXPECT_EQ(100, WheelPosition(100, 20, 5));
    EXPECT_EQ(100, WheelPosition(100, 20, -5));
    EXPECT_EQ(109, WheelPosition(100, 19, -60));
    EXPECT_EQ(91, WheelPosition(100, 19, 60));
}

TEST(GridGeometry, CellRectangles_ShareTheBorderWithTheNeighbours)
{
    const Box cell(100, 40, 180, 60);
    EXPECT_EQ("100,40-181,61", Text(CellOutlineRect(cell)));
    EXPECT_EQ("101,41-180,60", Text(CellInsideRect(cell)));
    EXPECT_EQ("103,44-180,60", Text(CellTextRect(cell, 3)));
}

TEST(GridGeometry, FoldBox_OfARootRow)
{
    EXPECT_EQ("2,62-19,79", Text(FoldBoxRect(0, 3, 0, 20)));
}

TEST(GridGeometry, FoldBox_OfAChild_StartsOneBoxFurtherRight)
{
    EXPECT_EQ("19,82-36,99", Text(FoldBoxRect(0, 4, 1, 20)));
    EXPECT_EQ("66,22-83,39", Text(FoldBoxRect(30, 1, 2, 20)));
}

} // namespace
