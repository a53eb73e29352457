// Inserting, removing, moving and growing, which the singly and the doubly linked list do alike.
#include "tests/collections/ListText.h"

#include "grid/collections/DualList.h"
#include "grid/collections/List.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace QuorUiCtr;

namespace
{

template <class AnyList> class ListStructure : public testing::Test
{
protected:
    ListStructure() { Fill(list, {10, 20, 30, 40}); }
    AnyList list;
    AnyList empty;
};
using BothLists = testing::Types<List<long>, DualList<long>>;
TYPED_TEST_SUITE(ListStructure, BothLists);

TYPED_TEST(ListStructure, Insert_PutsTheElementBeforeTheCursorAtItsIndex)
{
    this->list.MoveTo(2);
    this->list.Insert(25);
    EXPECT_EQ(Show(this->list), "10 20 25 30 40 | cur 2");
    EXPECT_EQ(this->list.Cur(), 25);
}

TYPED_TEST(ListStructure, Insert_AtTheFirstElement_MakesANewFirst)
{
    this->list.MoveToFirst();
    this->list.Insert(5);
    EXPECT_EQ(Show(this->list), "5 10 20 30 40 | cur 0");
}

TYPED_TEST(ListStructure, Insert_WithoutCurrentElement_Appends)
{
    this->list.MoveTo(-1);
    this->list.Insert(50);
    EXPECT_EQ(Show(this->list), "10 20 30 40 50 | cur 4");
    this->empty.Insert(1);
    EXPECT_EQ(Show(this->empty), "1 | cur 0");
}

TYPED_TEST(ListStructure, InsertAtIndex_PutsTheElementThere)
{
    this->list.Insert(0, 5);
    EXPECT_EQ(Show(this->list), "5 10 20 30 40 | cur 0");
    this->list.Insert(3, 25);
    EXPECT_EQ(Show(this->list), "5 10 20 25 30 40 | cur 3");
    this->list.Insert(6, 50);
    EXPECT_EQ(Show(this->list), "5 10 20 25 30 40 50 | cur 6");
}

TYPED_TEST(ListStructure, InsertAtIndexOutside_Appends)
{
    this->list.Insert(9, 50);
    EXPECT_EQ(Show(this->list), "10 20 30 40 50 | cur 4");
    this->list.Insert(-3, 60);
    EXPECT_EQ(Show(this->list), "10 20 30 40 50 60 | cur 5");
    this->empty.Insert(0, 1);
    EXPECT_EQ(Show(this->empty), "1 | cur 0");
}

TYPED_TEST(ListStructure, InsertAfter_PutsTheElementBehindTheCursor)
{
    this->list.MoveTo(1);
    this->list.InsertAfter(25);
    EXPECT_EQ(Show(this->list), "10 20 25 30 40 | cur 2");
    this->list.MoveToLast();
    this->list.InsertAfter(50);
    EXPECT_EQ(Show(this->list), "10 20 25 30 40 50 | cur 5");
    EXPECT_EQ(this->list.Append(60), 6);
}

TYPED_TEST(ListStructure, InsertAfter_WithoutCurrentElement_InsertsAtTheFront)
{
    this->list.MoveTo(-1);
    this->list.InsertAfter(5);
    EXPECT_EQ(Show(this->list), "5 10 20 30 40 | cur 0");
}

TYPED_TEST(ListStructure, InsertAfterIndex_PutsTheElementBehindThatPosition)
{
    this->list.InsertAfter(0, 15);
    EXPECT_EQ(Show(this->list), "10 15 20 30 40 | cur 1");
    this->list.InsertAfter(4, 50);
    EXPECT_EQ(Show(this->list), "10 15 20 30 40 50 | cur 5");
    this->list.InsertAfter(99, 5);
    EXPECT_EQ(Show(this->list), "5 10 15 20 30 40 50 | cur 0");
}

TYPED_TEST(ListStructure, InsertOfAnElementOfTheListItself_Works)
{
    this->list.Append(this->list[0]);
    this->list.Insert(1, this->list[3]);
    EXPECT_EQ(Show(this->list), "10 40 20 30 40 10 | cur 1");
}

TYPED_TEST(ListStructure, Del_LeavesTheCursorOnTheElementBefore)
{
    this->list.MoveTo(2);
    this->list.Del();
    EXPECT_EQ(Show(this->list), "10 20 40 | cur 1");
    EXPECT_EQ(this->list.Cur(), 20);
    this->list.MoveToNext();
    EXPECT_EQ(this->list.Cur(), 40);
}

TYPED_TEST(ListStructure, DelOfTheFirstElement_LeavesNoCurrentElement)
{
    this->list.MoveToFirst();
    this->list.Del();
    EXPECT_EQ(Show(this->list), "20 30 40 | cur -1");
    this->list.MoveToNext();
    EXPECT_EQ(this->list.Cur(), 20);
}

TYPED_TEST(ListStructure, DelOfTheLastElement_MakesTheOneBeforeTheLast)
{
    this->list.MoveToLast();
    this->list.Del();
    EXPECT_EQ(Show(this->list), "10 20 30 | cur 2");
    EXPECT_EQ(this->list.Append(50), 3);
    EXPECT_EQ(Show(this->list), "10 20 30 50 | cur 3");
}

TYPED_TEST(ListStructure, DelWithoutCurrentElement_DoesNothing)
{
    this->list.MoveTo(-1);
    this->list.Del();
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur -1");
    this->empty.Del();
    EXPECT_EQ(Show(this->empty), "| cur -1");
}

TYPED_TEST(ListStructure, DelOfTheOnlyElement_LeavesAUsableEmptyList)
{
    this->empty.Append(1);
    this->empty.Del();
    EXPECT_EQ(Show(this->empty), "| cur -1");
    EXPECT_TRUE(this->empty.IsEmpty());
    this->empty.Append(2);
    EXPECT_EQ(Show(this->empty), "2 | cur 0");
}

TYPED_TEST(ListStructure, Clear_RemovesAllAndTheListGoesOnWorking)
{
    this->list.Clear();
    EXPECT_EQ(Show(this->list), "| cur -1");
    this->list.Clear();
    Fill(this->list, {1, 2});
    this->list.MoveToFirst();
    this->list.MoveToPre();
    this->list.MoveToPre();
    EXPECT_EQ(Show(this->list), "1 2 | cur 1");
}

TYPED_TEST(ListStructure, Grow_AppendsDefaultsKeepsTheCursorAndNeverShrinks)
{
    this->list.MoveTo(1);
    this->list.Grow(6);
    EXPECT_EQ(Show(this->list), "10 20 30 40 0 0 | cur 1");
    EXPECT_EQ(this->list.Cur(), 20);
    this->list.Grow(2);
    this->list.Grow(6);
    this->list.Grow(-1);
    EXPECT_EQ(Show(this->list), "10 20 30 40 0 0 | cur 1");
    this->empty.Grow(2);
    EXPECT_EQ(Show(this->empty), "0 0 | cur -1");
}

TYPED_TEST(ListStructure, Reserve_ChangesNothingThatCanBeSeen)
{
    this->list.MoveTo(2);
    for (long n : {100L, 2L, 0L, -1L})
    {
        this->list.Reserve(n);
        EXPECT_EQ(Show(this->list), "10 20 30 40 | cur 2");
    }
    this->empty.Reserve(50);
    EXPECT_EQ(Show(this->empty), "| cur -1");
    for (long i = 0; i < 200; ++i)
        this->empty.Append(i);
    EXPECT_EQ(this->empty[199], 199);
}

TYPED_TEST(ListStructure, Move_ToTheOwnOrTheNextPosition_DoesNothingAndReturnsFalse)
{
    this->list.MoveTo(1);
    EXPECT_FALSE(this->list.Move(3, 4));
    EXPECT_FALSE(this->list.Move(2, 2));
    EXPECT_FALSE(this->list.Move(0, 1));
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur 1");
}

TYPED_TEST(ListStructure, Move_OutsideTheList_DoesNothingAndReturnsFalse)
{
    this->list.MoveTo(1);
    EXPECT_FALSE(this->list.Move(4, 0));
    EXPECT_FALSE(this->list.Move(-1, 2));
    EXPECT_FALSE(this->list.Move(0, 5));
    EXPECT_FALSE(this->list.Move(0, -1));
    EXPECT_FALSE(this->empty.Move(0, 0));
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur 1");
}

TYPED_TEST(ListStructure, Move_BetweenAllPairsOfPositions_MovesBeforeTheTarget)
{
    for (long from = 0; from < 4; ++from)
    {
        for (long to = 0; to <= 4; ++to)
        {
            if (to == from || to == from + 1)
                continue;
            TypeParam moved;
            Fill(moved, {10, 20, 30, 40});
            std::vector<long> expected{10, 20, 30, 40};
            if (from < to)
                std::rotate(expected.begin() + from, expected.begin() + from + 1, expected.begin() + to);
            else
                std::rotate(expected.begin() + to, expected.begin() + from, expected.begin() + from + 1);
            TypeParam wanted;
            Fill(wanted, expected);
            wanted.MoveTo(wanted.Find(10 * (from + 1)));
            EXPECT_TRUE(moved.Move(from, to));
            EXPECT_EQ(Show(moved), Show(wanted)) << from << " to " << to;
            EXPECT_EQ(moved.Cur(), 10 * (from + 1));
            moved.MoveToPre();
            wanted.MoveToPre();
            EXPECT_EQ(moved.Cur(), wanted.Cur());
            moved.MoveToLast();
            EXPECT_EQ(moved.Cur(), expected.back());
        }
    }
}

TYPED_TEST(ListStructure, Copies_HaveTheElementsAndNoCurrentElement)
{
    this->list.MoveTo(1);
    TypeParam copy(this->list);
    EXPECT_EQ(Show(copy), "10 20 30 40 | cur -1");
    copy[0] = 11;
    EXPECT_EQ(Show(this->list), "10 20 30 40 | cur 1");
    this->empty.Append(1);
    this->empty = this->list;
    EXPECT_EQ(Show(this->empty), "10 20 30 40 | cur -1");
    TypeParam& self = this->empty;
    self.MoveTo(2);
    self = this->empty;
    EXPECT_EQ(Show(self), "10 20 30 40 | cur 2");
}

TEST(ListOfStrings, ElementsWithDestructors_AreCopiedAndDestroyed)
{
    const std::string longText(100, 'x');
    DualList<std::string> texts;
    for (int i = 0; i < 20; ++i)
        texts.Append(longText);
    texts.MoveTo(5);
    texts.Del();
    texts[30] = "end";
    EXPECT_EQ(texts.GetNum(), 31);
    EXPECT_EQ(texts.Find("end"), 30);
    texts.MoveTo(-1);
    EXPECT_EQ(texts.Cur(), "");
    List<std::string> copy(texts);
    texts.Clear();
    EXPECT_EQ(copy[0], longText);
}

// Counts living copies; the copy whose turn it is fails.
struct Fragile
{
    static inline int living = 0;
    static inline int copiesUntilFailure = -1;
    Fragile() { ++living; }
    Fragile(const Fragile&)
    {
        if (copiesUntilFailure-- == 0)
            throw std::string("copy failed");
        ++living;
    }
    Fragile& operator=(const Fragile&) = default;
    ~Fragile() { --living; }
    bool operator==(const Fragile&) const = default;
};

TEST(ListOfFragile, FailedCopy_LeavesTheListAsItWas)
{
    const int before = Fragile::living;
    {
        DualList<Fragile> list;
        Fragile element;
        list.Append(element);
        list.Append(element);
        Fragile::copiesUntilFailure = 0;
        EXPECT_THROW(list.Append(element), std::string);
        EXPECT_EQ(list.GetNum(), 2);
        EXPECT_EQ(list.GetCur(), 1);
        Fragile::copiesUntilFailure = -1;
        list.Append(element);
        EXPECT_EQ(list.GetNum(), 3);
    }
    EXPECT_EQ(Fragile::living, before);
}

} // namespace
