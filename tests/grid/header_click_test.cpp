// What a click on a header box does, for every state of the box and the keys.
#include "grid/headers/HeaderClick.h"

#include <gtest/gtest.h>

#include <vector>

using namespace QuorUiCtr;

namespace
{

std::vector<long> Extended(long first, long last, long to)
{
    std::vector<long> selected;
    ExtendRun(first, last, to, [&selected](long i) { selected.push_back(i); });
    return selected;
}

TEST(HeaderClick, OnASelectedBox_DragsOrWithControlTakesOut)
{
    EXPECT_EQ(HeaderClickOn(true, false, false), HeaderClick::Drag);
    EXPECT_EQ(HeaderClickOn(true, false, true), HeaderClick::Drag);
    EXPECT_EQ(HeaderClickOn(true, true, false), HeaderClick::TakeOut);
    EXPECT_EQ(HeaderClickOn(true, true, true), HeaderClick::TakeOut);
}

TEST(HeaderClick, OnAnotherBox_SelectsItOnly_AddsIt_OrExtends)
{
    EXPECT_EQ(HeaderClickOn(false, false, false), HeaderClick::SelectOnly);
    EXPECT_EQ(HeaderClickOn(false, true, false), HeaderClick::Add);
    EXPECT_EQ(HeaderClickOn(false, false, true), HeaderClick::Extend);
    EXPECT_EQ(HeaderClickOn(false, true, true), HeaderClick::Extend);
}

TEST(ExtendRun, GoesFromTheRunOutwards)
{
    EXPECT_EQ(Extended(2, 4, 7), (std::vector<long>{5, 6, 7}));
    EXPECT_EQ(Extended(2, 4, 0), (std::vector<long>{1, 0}));
}

} // namespace
