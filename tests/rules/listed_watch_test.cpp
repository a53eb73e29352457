// Watches hear what goes, whatever the order in which they end.
#include "rules/ListedWatch.h"

#include <gtest/gtest.h>

#include <memory>

using namespace QuorUiCtr;

namespace
{

class TestWatch : public ListedWatch<TestWatch>
{
public:
    explicit TestWatch(TestWatch*& newestOfOwner) : ListedWatch(newestOfOwner) {}

    using ListedWatch::IsOwnerGone;
    using ListedWatch::NoteOwnerGone;
    using ListedWatch::TellAll;

    int told = 0;
};

void TellOnce(TestWatch* newest)
{
    TestWatch::TellAll(newest, [](TestWatch& watch) { ++watch.told; });
}

TEST(ListedWatch, EndingInAnyOrder_LeavesTheOthersInTheList)
{
    TestWatch* newest = nullptr;
    auto first = std::make_unique<TestWatch>(newest);
    auto second = std::make_unique<TestWatch>(newest);
    auto third = std::make_unique<TestWatch>(newest);
    second.reset();
    TellOnce(newest);
    EXPECT_EQ(first->told, 1);
    EXPECT_EQ(third->told, 1);
    first.reset();
    TellOnce(newest);
    EXPECT_EQ(third->told, 2);
    third.reset();
    EXPECT_EQ(newest, nullptr);
}

TEST(ListedWatch, AWatchThatBeginsLater_IsTold)
{
    TestWatch* newest = nullptr;
    TestWatch first(newest);
    {
        TestWatch passing(newest);
    }
    TestWatch later(newest);
    TellOnce(newest);
    EXPECT_EQ(first.told, 1);
    EXPECT_EQ(later.told, 1);
}

TEST(ListedWatch, ThatOutlivesItsOwner_KnowsAndTouchesNothing)
{
    auto newest = std::make_unique<TestWatch*>(nullptr);
    TestWatch first(*newest);
    TestWatch second(*newest);
    EXPECT_FALSE(first.IsOwnerGone());
    TestWatch::NoteOwnerGone(*newest);
    newest.reset();
    EXPECT_TRUE(first.IsOwnerGone());
    EXPECT_TRUE(second.IsOwnerGone());
}

} // namespace
