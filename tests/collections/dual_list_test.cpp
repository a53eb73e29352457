// What the doubly linked list adds: copying, bulk insertion and removal.
#include "tests/collections/ListText.h"

#include "grid/collections/DualList.h"
#include "grid/collections/PDList.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <vector>

using namespace QuorUiCtr;

namespace
{

class DualListBulk : public testing::Test
{
protected:
    DualListBulk() { Fill(list, {10, 20, 30, 40, 50}); }
    DualList<long> list;
};

// The elements from last to first, read over the backward links.
std::vector<long> ReadBackward(DualList<long>& list)
{
    std::vector<long> elements;
    for (list.MoveToLast(); !list.IsOut(); list.MoveToPre())
        elements.push_back(list.Cur());
    return elements;
}

TEST_F(DualListBulk, SpliceInsert_KeepsTheOrderAndTheCurrentElement)
{
    list.MoveTo(1);
    list.SpliceInsert(3, std::vector<long>{31, 32, 33});
    EXPECT_EQ(Show(list), "10 20 30 31 32 33 40 50 | cur 1");
    list.SpliceInsert(1, std::vector<long>{11, 12});
    EXPECT_EQ(Show(list), "10 11 12 20 30 31 32 33 40 50 | cur 3");
    EXPECT_EQ(list.Cur(), 20);
    EXPECT_EQ(ReadBackward(list), (std::vector<long>{50, 40, 33, 32, 31, 30, 20, 12, 11, 10}));
}

TEST_F(DualListBulk, SpliceInsert_AtTheEndsAndOutside)
{
    list.SpliceInsert(0, std::vector<long>{1, 2});
    list.SpliceInsert(7, std::vector<long>{60});
    list.SpliceInsert(99, std::vector<long>{70});
    list.SpliceInsert(-1, std::vector<long>{80});
    EXPECT_EQ(Show(list), "1 2 10 20 30 40 50 60 70 80 | cur 6");
    EXPECT_EQ(list.Append(90), 10);
}

TEST_F(DualListBulk, SpliceInsert_OfNothing_ChangesNothing)
{
    list.SpliceInsert(2, {});
    EXPECT_EQ(Show(list), "10 20 30 40 50 | cur 4");
}

TEST_F(DualListBulk, SpliceInsert_IntoAnEmptyList_LeavesNoCurrentElement)
{
    DualList<long> empty;
    empty.SpliceInsert(0, std::vector<long>{1, 2});
    EXPECT_EQ(Show(empty), "1 2 | cur -1");
}

TEST_F(DualListBulk, RemoveRange_BehindTheCursor_KeepsTheCursor)
{
    list.MoveTo(1);
    EXPECT_EQ(list.RemoveRange(2, 2), 2);
    EXPECT_EQ(Show(list), "10 20 50 | cur 1");
    EXPECT_EQ(ReadBackward(list), (std::vector<long>{50, 20, 10}));
}

TEST_F(DualListBulk, RemoveRange_BeforeTheCursor_KeepsTheCurrentElement)
{
    list.MoveTo(3);
    EXPECT_EQ(list.RemoveRange(0, 2), 2);
    EXPECT_EQ(Show(list), "30 40 50 | cur 1");
    EXPECT_EQ(list.Cur(), 40);
}

TEST_F(DualListBulk, RemoveRange_OverTheCursor_MovesItToTheElementBefore)
{
    list.MoveTo(3);
    EXPECT_EQ(list.RemoveRange(2, 2), 2);
    EXPECT_EQ(Show(list), "10 20 50 | cur 1");
    EXPECT_EQ(list.Cur(), 20);
    EXPECT_EQ(list.RemoveRange(0, 2), 2);
    EXPECT_EQ(Show(list), "50 | cur -1");
}

TEST_F(DualListBulk, RemoveRange_IsCutToTheElementsPresent)
{
    EXPECT_EQ(list.RemoveRange(5, 1), 0);
    EXPECT_EQ(list.RemoveRange(-1, 3), 0);
    EXPECT_EQ(list.RemoveRange(2, 0), 0);
    EXPECT_EQ(list.RemoveRange(2, -4), 0);
    EXPECT_EQ(Show(list), "10 20 30 40 50 | cur 4");
    EXPECT_EQ(list.RemoveRange(3, 100), 2);
    EXPECT_EQ(Show(list), "10 20 30 | cur 2");
    EXPECT_EQ(list.Append(60), 3);
    EXPECT_EQ(list.RemoveRange(0, 4), 4);
    EXPECT_EQ(Show(list), "| cur -1");
    EXPECT_EQ(list.Append(1), 0);
}

TEST_F(DualListBulk, Release_OfPlainElements_IsRemoval)
{
    EXPECT_EQ(list.Release(1, 3), 3);
    EXPECT_EQ(Show(list), "10 50 | cur 1");
}

TEST_F(DualListBulk, CopyFrom_ReplacesTheElements)
{
    List<long> source;
    Fill(source, {1, 2});
    source.MoveToFirst();
    list.CopyFrom(source);
    EXPECT_EQ(Show(list), "1 2 | cur -1");
    EXPECT_EQ(Show(source), "1 2 | cur 0");
    EXPECT_EQ(ReadBackward(list), (std::vector<long>{2, 1}));
    list.MoveTo(1);
    list.CopyFrom(list);
    EXPECT_EQ(Show(list), "1 2 | cur 1");
}

TEST_F(DualListBulk, CopyOfADualListAsList_HasTheSameElements)
{
    List<long> copy(list);
    copy.MoveToLast();
    copy.Del();
    EXPECT_EQ(Show(copy), "10 20 30 40 | cur 3");
    EXPECT_EQ(Show(list), "10 20 30 40 50 | cur 4");
}

// The operations numbered in Table.h and DualList.h, by their slot in the virtual table. The destructor has
// two slots in this ABI, and a pointer to a virtual member function holds 1 plus the offset of its slot.
#ifdef __GXX_ABI_VERSION
template <class Member> long SlotOf(Member member)
{
    std::ptrdiff_t offset = 0;
    static_assert(sizeof(member) >= sizeof(offset));
    std::memcpy(&offset, &member, sizeof(offset));
    return static_cast<long>((offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)));
}

TEST(VirtualOrder, IsTheDocumentedOne)
{
    using T = Table<long>;
    using D = DualList<long>;
    const std::vector<long> slots{
        SlotOf(&T::Grow),
        SlotOf(&T::Reserve),
        SlotOf(&T::Cur),
        SlotOf(&T::SetCur),
        SlotOf(&T::MoveTo),
        SlotOf(&T::MoveToFirst),
        SlotOf(&T::MoveToLast),
        SlotOf(&T::MoveToNext),
        SlotOf(&T::MoveToPre),
        SlotOf(&T::operator[]),
        SlotOf(&T::GetNum),
        SlotOf(&T::GetCur),
        SlotOf(&T::IsOut),
        SlotOf(&T::IsEmpty),
        SlotOf(&T::Find),
        SlotOf(static_cast<void (T::*)(const long&)>(&T::Insert)),
        SlotOf(static_cast<void (T::*)(long, const long&)>(&T::Insert)),
        SlotOf(static_cast<void (T::*)(long, const long&)>(&T::InsertAfter)),
        SlotOf(&T::Append),
        SlotOf(&T::Del),
        SlotOf(&T::Clear),
        SlotOf(&T::Move),
        SlotOf(static_cast<void (T::*)(int (*)(const long&, const long&))>(&T::Sort)),
        SlotOf(static_cast<void (T::*)(bool)>(&T::Sort)),
        SlotOf(static_cast<void (T::*)(const long&)>(&T::InsertAfter)),
        SlotOf(&D::CopyFrom),
        SlotOf(static_cast<void (D::*)(int (*)(const long&, const long&, void*), void*)>(&D::Sort)),
        SlotOf(&D::SpliceInsert),
        SlotOf(&D::RemoveRange),
        SlotOf(&D::Release)};
    std::vector<long> expected{0};
    for (long slot = 3; slot <= 31; ++slot)
        expected.push_back(slot);
    EXPECT_EQ(slots, expected);
}
#endif

} // namespace
