// The cursor and the positional reads, which the singly and the doubly linked list answer alike.
#include "tests/collections/ListText.h"

#include "grid/collections/DualList.h"
#include "grid/collections/List.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace
{

template <class AnyList> class ListCursor : public testing::Test
{
protected:
    ListCursor() { Fill(list, {10, 20, 30, 40}); }
    AnyList list;
    AnyList empty;
};
using BothLists = testing::Types<List<long>, DualList<long>>;
TYPED_TEST_SUITE(ListCursor, BothLists);

TYPED_TEST(ListCursor, NewList_IsEmptyAndOut)
{
    EXPECT_EQ(Show(this->empty), "| cur -1");
    EXPECT_EQ(this->empty.GetNum(), 0);
    EXPECT_TRUE(this->empty.IsEmpty());
    EXPECT_TRUE(this->empty.IsOut());
}

TYPED_TEST(ListCursor, Append_MakesTheNewElementCurrentAndReturnsItsIndex)
{
    EXPECT_EQ(this->empty.Append(7), 0);
    EXPECT_EQ(this->empty.Append(8), 1);
    EXPECT_EQ(Show(this->empty), "7 8 | cur 1");
    EXPECT_EQ(this->empty.Cur(), 8);
    EXPECT_FALSE(this->empty.IsEmpty());
    EXPECT_FALSE(this->empty.IsOut());
}

TYPED_TEST(ListCursor, MoveTo_ReachesEveryElementFromEveryOther)
{
    for (long from = 0; from < 4; ++from)
    {
        for (long to = 0; to < 4; ++to)
        {
            EXPECT_TRUE(this->list.MoveTo(from));
            EXPECT_TRUE(this->list.MoveTo(to));
            EXPECT_EQ(this->list.GetCur(), to);
            EXPECT_EQ(this->list.Cur(), 10 * (to + 1));
        }
    }
}

TYPED_TEST(ListCursor, MoveTo_OutsideTheList_LeavesNoCurrentElement)
{
    for (long outside : {-1L, -5L, 4L, 100L})
    {
        this->list.MoveTo(2);
        EXPECT_FALSE(this->list.MoveTo(outside)) << outside;
        EXPECT_EQ(this->list.GetCur(), -1) << outside;
        EXPECT_TRUE(this->list.IsOut()) << outside;
    }
    EXPECT_FALSE(this->empty.MoveTo(0));
    EXPECT_TRUE(this->empty.IsOut());
}

TYPED_TEST(ListCursor, MoveToFirstAndLast_ReachTheEnds)
{
    this->list.MoveToFirst();
    EXPECT_EQ(this->list.GetCur(), 0);
    EXPECT_EQ(this->list.Cur(), 10);
    this->list.MoveToLast();
    EXPECT_EQ(this->list.GetCur(), 3);
    EXPECT_EQ(this->list.Cur(), 40);
}

TYPED_TEST(ListCursor, EveryMoveInAnEmptyList_StaysOut)
{
    this->empty.MoveToFirst();
    EXPECT_EQ(this->empty.GetCur(), -1);
    this->empty.MoveToLast();
    EXPECT_EQ(this->empty.GetCur(), -1);
    this->empty.MoveToNext();
    EXPECT_EQ(this->empty.GetCur(), -1);
    this->empty.MoveToPre();
    EXPECT_EQ(this->empty.GetCur(), -1);
}

TYPED_TEST(ListCursor, MoveToNext_IsCircularThroughOut)
{
    this->list.MoveTo(-1);
    for (long expected : {0L, 1L, 2L, 3L, -1L, 0L})
    {
        this->list.MoveToNext();
        EXPECT_EQ(this->list.GetCur(), expected);
        EXPECT_EQ(this->list.IsOut(), expected == -1);
    }
    EXPECT_EQ(this->list.Cur(), 10);
}

TYPED_TEST(ListCursor, MoveToPre_IsCircularThroughOut)
{
    this->list.MoveTo(-1);
    for (long expected : {3L, 2L, 1L, 0L, -1L, 3L})
    {
        this->list.MoveToPre();
        EXPECT_EQ(this->list.GetCur(), expected);
        EXPECT_EQ(this->list.Cur(), expected < 0 ? 0 : 10 * (expected + 1));
    }
}

TYPED_TEST(ListCursor, SetCur_ReplacesTheCurrentElementOnly)
{
    this->list.MoveTo(2);
    this->list.SetCur(99);
    EXPECT_EQ(Show(this->list), "10 20 99 40 | cur 2");
    this->list.Cur() = 98;
    EXPECT_EQ(Show(this->list), "10 20 98 40 | cur 2");
}

TYPED_TEST(ListCursor, SetCur_WithoutCurrentElement_ChangesNothing)
{
    this->list.MoveTo(-1);
    this->list.SetCur(99);
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur -1");
    EXPECT_EQ(this->list.Cur(), 0);
}

TYPED_TEST(ListCursor, Cur_WithoutCurrentElement_IsASpareElementThatForgetsWhatIsWritten)
{
    this->list.MoveTo(-1);
    EXPECT_EQ(this->list.Cur(), 0);
    this->list.Cur() = 77;
    EXPECT_EQ(this->list.Cur(), 0);
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur -1");
    EXPECT_EQ(this->empty.Cur(), 0);
    EXPECT_TRUE(this->empty.IsEmpty());
}

TYPED_TEST(ListCursor, ReadingAnIndex_MovesTheCursorThere)
{
    EXPECT_EQ(this->list[1], 20);
    EXPECT_EQ(this->list.GetCur(), 1);
    this->list[3] = 41;
    EXPECT_EQ(Show(this->list), "10 20 30 41 | cur 3");
}

TYPED_TEST(ListCursor, ReadingAtTheCount_AppendsADefaultElement)
{
    EXPECT_EQ(this->list[4], 0);
    EXPECT_EQ(Show(this->list), "10 20 30 40 0 | cur 4");
    EXPECT_EQ(this->empty[0], 0);
    EXPECT_EQ(Show(this->empty), "0 | cur 0");
}

TYPED_TEST(ListCursor, ReadingFarBeyondTheCount_GrowsTheListToThatIndex)
{
    this->list[7] = 80;
    EXPECT_EQ(Show(this->list), "10 20 30 40 0 0 0 80 | cur 7");
}

TYPED_TEST(ListCursor, ReadingANegativeIndex_IsAssertedAndOtherwiseHarmless)
{
#ifdef NDEBUG
    this->list.MoveTo(2);
    EXPECT_EQ(this->list[-1], 0);
    this->list[-3] = 5;
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur -1");
#else
    EXPECT_DEATH(this->list[-1], "ssertion");
#endif
}

TYPED_TEST(ListCursor, Find_GivesTheFirstEqualElementAndKeepsTheCursor)
{
    Fill(this->list, {20, 10});
    this->list.MoveTo(2);
    EXPECT_EQ(this->list.Find(20), 1);
    EXPECT_EQ(this->list.Find(10), 0);
    EXPECT_EQ(this->list.Find(11), -1);
    EXPECT_EQ(this->list.GetCur(), 2);
    EXPECT_EQ(this->empty.Find(0), -1);
}

TYPED_TEST(ListCursor, Find_DoesNotSeeTheSpareElement)
{
    this->list.MoveTo(-1);
    this->list.Cur() = 55;
    EXPECT_EQ(this->list.Find(55), -1);
}

TYPED_TEST(ListCursor, Iteration_LeavesTheCursorAlone)
{
    this->list.MoveTo(1);
    long sum = 0;
    for (long& element : this->list)
    {
        sum += element;
        ++element;
    }
    EXPECT_EQ(sum, 100);
    EXPECT_EQ(Show(this->list), "11 21 31 41 | cur 1");
    for (long element : this->empty)
        ADD_FAILURE() << element;
}

TYPED_TEST(ListCursor, IteratorAt_StartsInTheMiddleAndIsTheEndOutside)
{
    this->list.MoveTo(0);
    auto position = this->list.IteratorAt(2);
    EXPECT_EQ(*position++, 30);
    EXPECT_EQ(*position, 40);
    EXPECT_EQ(++position, this->list.end());
    EXPECT_EQ(this->list.IteratorAt(4), this->list.end());
    EXPECT_EQ(this->list.IteratorAt(-1), this->list.end());
    EXPECT_EQ(this->list.GetCur(), 0);
}

TYPED_TEST(ListCursor, CursorGuard_BringsTheCursorBackToItsElement)
{
    this->list.MoveTo(1);
    {
        CursorGuard guard(this->list);
        this->list.MoveToLast();
        this->list.SetCur(41);
    }
    EXPECT_EQ(Show(this->list), "10 20 30 41 | cur 1");
    EXPECT_EQ(this->list.Cur(), 20);
}

TYPED_TEST(ListCursor, CursorGuard_BringsBackAPlaceOutside)
{
    this->list.MoveTo(-1);
    {
        CursorGuard guard(this->list);
        this->list.MoveTo(2);
    }
    EXPECT_EQ(this->list.GetCur(), -1);
    this->list.MoveToNext();
    EXPECT_EQ(this->list.Cur(), 10);
}

TYPED_TEST(ListCursor, CursorGuard_AfterStructuralChange_BringsBackTheIndex)
{
    this->list.MoveTo(2);
    {
        CursorGuard guard(this->list);
        this->list.MoveTo(2);
        this->list.Del();
    }
    EXPECT_EQ(Show(this->list), "10 20 40 | cur 2");
    EXPECT_EQ(this->list.Cur(), 40);
    {
        CursorGuard guard(this->list);
        this->list.Clear();
    }
    EXPECT_EQ(Show(this->list), "| cur -1");
}

} // namespace
