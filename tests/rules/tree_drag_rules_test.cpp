// The rules of dragging items in a tree.
#include "rules/TreeDragRules.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <utility>

namespace
{

using namespace QuorUiCtr;

const QuorUiCtr::Box Row(0, 40, 200, 57);

TEST(DropPlaceAt, TheUpperHalfMeansBeforeTheItem)
{
    EXPECT_EQ(DropPlaceAt(Row, 40, false), DropPlace::BeforeItem);
    EXPECT_EQ(DropPlaceAt(Row, 47, false), DropPlace::BeforeItem);
    EXPECT_EQ(DropPlaceAt(Row, 47, true), DropPlace::BeforeItem);
}

TEST(DropPlaceAt, TheExactMiddleBelongsToTheLowerHalf)
{
    EXPECT_EQ(DropPlaceAt(Row, 48, false), DropPlace::AfterItem);
    EXPECT_EQ(DropPlaceAt(Row, 56, false), DropPlace::AfterItem);
}

TEST(DropPlaceAt, TheLowerHalfOfAnOpenFolderMeansItsFirstChild)
{
    EXPECT_EQ(DropPlaceAt(Row, 48, true), DropPlace::BeforeFirstChild);
}

std::set<std::pair<int, int>> PixelsOf(const std::array<LineStroke, 6>& strokes)
{
    std::set<std::pair<int, int>> pixels;
    const auto sign = [](int value) { return value > 0 ? 1 : value < 0 ? -1 : 0; };
    for (const LineStroke& stroke : strokes)
        for (Spot at = stroke.from; at.x != stroke.to.x || at.y != stroke.to.y;
             at.x += sign(stroke.to.x - at.x), at.y += sign(stroke.to.y - at.y))
            pixels.insert({at.x, at.y});
    return pixels;
}

// Pictures have a row of text for each row of pixels around the line, from y - 3 on.
std::string PictureOf(const std::array<LineStroke, 6>& strokes, int left, int right, int y)
{
    const auto pixels = PixelsOf(strokes);
    std::string picture;
    for (int row = y - 3; row <= y + 3; ++row)
    {
        for (int x = left; x < right; ++x)
            picture += pixels.count({x, row}) ? '#' : '.';
        picture += '\n';
    }
    return picture;
}

TEST(InsertionLine, IsABarOfTwoPixelsBetweenEndCaps)
{
    const QuorUiCtr::Box item(10, 40, 15, 57);
    const std::string expected = ".............\n"
                                 "#..........#.\n"
                                 "##........##.\n"
                                 "############.\n"
                                 "############.\n"
                                 "##........##.\n"
                                 "#..........#.\n";
    EXPECT_EQ(PictureOf(InsertionLine(item, 23, true), 10, 23, 40), expected);
    EXPECT_EQ(PictureOf(InsertionLine(item, 23, false), 10, 23, 57), expected);
}

TEST(InsertionLine, StaysBetweenTheItemAndTheClientEdge)
{
    for (const auto& [x, y] : PixelsOf(InsertionLine({30, 40, 90, 57}, 200, true)))
    {
        EXPECT_GE(x, 30);
        EXPECT_LE(x, 198);
        EXPECT_GE(y, 37);
        EXPECT_LE(y, 43);
    }
}

TEST(ScrollStepFor, NeedsMoreThanTheMargin)
{
    EXPECT_EQ(ScrollStepFor(-5, 0, 100, 5, 3, 9), ScrollStep::None);
    EXPECT_EQ(ScrollStepFor(-6, 0, 100, 5, 3, 9), ScrollStep::Back);
    EXPECT_EQ(ScrollStepFor(105, 0, 100, 5, 3, 9), ScrollStep::None);
    EXPECT_EQ(ScrollStepFor(106, 0, 100, 5, 3, 9), ScrollStep::Forward);
    EXPECT_EQ(ScrollStepFor(-1, 0, 100, 0, 3, 9), ScrollStep::Back);
    EXPECT_EQ(ScrollStepFor(100, 0, 100, 0, 3, 9), ScrollStep::None);
    EXPECT_EQ(ScrollStepFor(101, 0, 100, 0, 3, 9), ScrollStep::Forward);
}

TEST(ScrollStepFor, StopsAtBothEnds)
{
    EXPECT_EQ(ScrollStepFor(-60, 0, 100, 5, 0, 9), ScrollStep::None);
    EXPECT_EQ(ScrollStepFor(-60, 0, 100, 5, 1, 9), ScrollStep::Back);
    EXPECT_EQ(ScrollStepFor(160, 0, 100, 5, 9, 9), ScrollStep::None);
    EXPECT_EQ(ScrollStepFor(160, 0, 100, 5, 8, 9), ScrollStep::Forward);
}

TEST(FreeFolderName, CountsFromOne)
{
    const auto freeExcept = [](std::set<std::wstring> taken) {
        return [taken](const std::wstring& name) { return taken.count(name) == 0; };
    };
    EXPECT_EQ(FreeFolderName(L"Box", freeExcept({})), L"Box");
    EXPECT_EQ(FreeFolderName(L"Box", freeExcept({L"Box"})), L"Box 1");
    EXPECT_EQ(FreeFolderName(L"Box", freeExcept({L"Box", L"Box 1", L"Box 2"})), L"Box 3");
    EXPECT_EQ(FreeFolderName(L"Box", freeExcept({L"Box", L"Box 2"})), L"Box 1");
}

} // namespace
