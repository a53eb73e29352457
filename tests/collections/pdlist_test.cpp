// Ownership: which operations of the owning list delete objects, and what destructors see meanwhile.
#include "tests/collections/ListText.h"

#include "grid/collections/PDList.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace QuorUiCtr;

namespace
{

// Logs its deletion, and runs an action in its destructor.
struct Object
{
    static inline std::string deleted;
    static inline int living = 0;

    explicit Object(long n) : number(n) { ++living; }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object()
    {
        --living;
        deleted += std::to_string(number) + ' ';
        if (onDelete)
            onDelete();
    }

    long number;
    std::function<void()> onDelete;
};

struct DerivedObject : Object
{
    using Object::Object;
    ~DerivedObject() override { deleted += "derived "; }
};

class OwningList : public testing::Test
{
protected:
    OwningList()
    {
        Object::deleted.clear();
        Object::living = 0;
        for (long number : {1L, 2L, 3L, 4L})
            list.Append(new Object(number));
    }

    PDList<Object> list;
};

TEST_F(OwningList, Del_DeletesTheObjectAndMovesTheCursorBack)
{
    list.MoveTo(1);
    list.Del();
    EXPECT_EQ(Object::deleted, "2 ");
    EXPECT_EQ(ShowObjects(list), "1 3 4 | cur 0");
    list.Del();
    EXPECT_EQ(Object::deleted, "2 1 ");
    EXPECT_EQ(ShowObjects(list), "3 4 | cur -1");
    list.Del();
    EXPECT_EQ(Object::deleted, "2 1 ");
}

TEST_F(OwningList, Clear_DeletesEveryObjectFromFirstToLast)
{
    list.Clear();
    EXPECT_EQ(Object::deleted, "1 2 3 4 ");
    EXPECT_EQ(ShowObjects(list), "| cur -1");
}

TEST_F(OwningList, Destructor_DeletesEveryObjectThroughItsVirtualDestructor)
{
    {
        PDList<Object> local;
        local.Append(new DerivedObject(7));
        local.Append(nullptr);
        local.Append(new Object(8));
    }
    EXPECT_EQ(Object::deleted, "derived 7 8 ");
    {
        // Also through the base of all lists.
        Table<Object*>* table = new PDList<Object>;
        table->Append(new Object(9));
        delete table;
    }
    EXPECT_EQ(Object::deleted, "derived 7 8 9 ");
}

TEST_F(OwningList, SlotSetToNull_IsRemovedWithoutItsObject)
{
    Object* kept = list[2];
    list.SetCur(nullptr);
    EXPECT_EQ(ShowObjects(list), "1 2 - 4 | cur 2");
    list.Del();
    EXPECT_EQ(ShowObjects(list), "1 2 4 | cur 1");
    EXPECT_EQ(Object::deleted, "");
    delete kept;
}

TEST_F(OwningList, ReplacingAPointer_DeletesNothing)
{
    Object* first = list[0];
    list.SetCur(new Object(5));
    EXPECT_EQ(Object::deleted, "");
    EXPECT_EQ(ShowObjects(list), "5 2 3 4 | cur 0");
    delete first;
}

TEST_F(OwningList, Move_KeepsTheObjectAlive)
{
    Object* moved = list[3];
    EXPECT_TRUE(list.Move(3, 0));
    EXPECT_EQ(ShowObjects(list), "4 1 2 3 | cur 0");
    EXPECT_EQ(list.Cur(), moved);
    EXPECT_TRUE(list.Move(0, 4));
    EXPECT_FALSE(list.Move(2, 3));
    EXPECT_EQ(ShowObjects(list), "1 2 3 4 | cur 3");
    EXPECT_EQ(Object::deleted, "");
}

TEST_F(OwningList, ReadingBeyondTheEnd_AppendsNullSlots)
{
    EXPECT_EQ(list[4], nullptr);
    EXPECT_EQ(ShowObjects(list), "1 2 3 4 - | cur 4");
    list.Grow(7);
    list.Del();
    list.Clear();
    EXPECT_EQ(Object::deleted, "1 2 3 4 ");
}

TEST_F(OwningList, CurWithoutCurrentElement_IsNull)
{
    list.MoveTo(-1);
    EXPECT_EQ(list.Cur(), nullptr);
}

TEST_F(OwningList, Detach_HandsTheObjectOver)
{
    list.MoveTo(3);
    Object* detached = list.Detach(1);
    EXPECT_EQ(detached->number, 2);
    EXPECT_EQ(ShowObjects(list), "1 3 4 | cur 2");
    EXPECT_EQ(list.Detach(3), nullptr);
    EXPECT_EQ(list.Detach(-1), nullptr);
    EXPECT_EQ(ShowObjects(list), "1 3 4 | cur 2");
    EXPECT_EQ(Object::deleted, "");
    delete detached;
}

TEST_F(OwningList, DetachFromEitherEnd_EmptiesTheListInThatOrder)
{
    PDList<Object> target;
    while (!list.IsEmpty())
        target.Append(list.Detach(list.GetNum() - 1));
    EXPECT_EQ(ShowObjects(target), "4 3 2 1 | cur 3");
    while (!target.IsEmpty())
        list.Append(target.Detach(0));
    EXPECT_EQ(ShowObjects(list), "4 3 2 1 | cur 3");
    EXPECT_EQ(Object::deleted, "");
}

TEST_F(OwningList, RemoveRange_DeletesTheObjectsOfTheRange)
{
    EXPECT_EQ(list.RemoveRange(1, 2), 2);
    EXPECT_EQ(Object::deleted, "2 3 ");
    EXPECT_EQ(ShowObjects(list), "1 4 | cur 1");
    EXPECT_EQ(list.RemoveRange(2, 1), 0);
    EXPECT_EQ(list.RemoveRange(-1, 1), 0);
    EXPECT_EQ(list.RemoveRange(0, 50), 2);
    EXPECT_EQ(Object::deleted, "2 3 1 4 ");
}

TEST_F(OwningList, Release_RemovesTheSlotsAndKeepsTheObjects)
{
    const std::vector<Object*> released{list[1], list[2]};
    EXPECT_EQ(list.Release(1, 2), 2);
    EXPECT_EQ(Object::deleted, "");
    EXPECT_EQ(ShowObjects(list), "1 4 | cur 0");
    list.SpliceInsert(0, released);
    EXPECT_EQ(ShowObjects(list), "2 3 1 4 | cur 2");
}

TEST_F(OwningList, Copy_BorrowsAndDeletesNothing)
{
    {
        PDList<Object> copy(list);
        EXPECT_FALSE(copy.IsOwning());
        EXPECT_EQ(ShowObjects(copy), "1 2 3 4 | cur -1");
        copy.MoveTo(1);
        copy.Del();
        copy.RemoveRange(0, 1);
        PDList<Object> copyOfCopy(copy);
    }
    EXPECT_EQ(Object::deleted, "");
    EXPECT_TRUE(list.IsOwning());
    list.Clear();
    EXPECT_EQ(Object::deleted, "1 2 3 4 ");
}

TEST_F(OwningList, Assignment_DeletesTheFormerObjectsAndBorrowsTheNewOnes)
{
    {
        PDList<Object> target;
        target.Append(new Object(9));
        target = list;
        EXPECT_EQ(Object::deleted, "9 ");
        EXPECT_EQ(ShowObjects(target), "1 2 3 4 | cur -1");
        PDList<Object>& self = list;
        list = self;
        EXPECT_TRUE(list.IsOwning());
    }
    EXPECT_EQ(Object::deleted, "9 ");
    EXPECT_EQ(ShowObjects(list), "1 2 3 4 | cur 3");
}

TEST_F(OwningList, ClearedCopy_OwnsWhatItGetsFromThenOn)
{
    PDList<Object> copy(list);
    copy.Clear();
    EXPECT_EQ(Object::deleted, "");
    EXPECT_TRUE(copy.IsOwning());
    copy.Append(new Object(6));
    copy.Clear();
    EXPECT_EQ(Object::deleted, "6 ");
}

TEST_F(OwningList, CopyAsPlainDualList_DeletesNothing)
{
    {
        DualList<Object*> copy(list);
        copy.Clear();
    }
    EXPECT_EQ(Object::deleted, "");
    EXPECT_EQ(Object::living, 4);
}

TEST_F(OwningList, DestructorDuringDel_SeesTheListWithoutTheObject)
{
    std::string seen;
    list[2]->onDelete = [&] { seen = ShowObjects(list); };
    list.Del();
    EXPECT_EQ(seen, "1 2 4 | cur 1");
}

TEST_F(OwningList, DestructorDuringClear_SeesAnEmptyListAndMayAddToIt)
{
    std::string seen;
    list[0]->onDelete = [&] {
        seen = ShowObjects(list);
        list.Append(new Object(5));
    };
    list.Clear();
    EXPECT_EQ(seen, "| cur -1");
    EXPECT_EQ(Object::deleted, "1 2 3 4 ");
    EXPECT_EQ(ShowObjects(list), "5 | cur 0");
}

TEST_F(OwningList, DestructorDuringRemoveRange_SeesTheListWithoutTheWholeRangeAndMayRemoveMore)
{
    std::string seen;
    list[1]->onDelete = [&] {
        seen = ShowObjects(list);
        list.Clear();
    };
    EXPECT_EQ(list.RemoveRange(1, 2), 2);
    EXPECT_EQ(seen, "1 4 | cur 0");
    EXPECT_EQ(Object::deleted, "2 1 4 3 ");
    EXPECT_EQ(Object::living, 0);
}

TEST_F(OwningList, ObjectsAddedWhileTheListIsDestroyed_AreDeletedToo)
{
    {
        PDList<Object> local;
        local.Append(new Object(7));
        local.Cur()->onDelete = [&local] { local.Append(new Object(8)); };
    }
    EXPECT_EQ(Object::deleted, "7 8 ");
}

TEST_F(OwningList, ObjectsThatOwnListsOfTheirKind_AreDeletedDeep)
{
    struct Node : Object
    {
        using Object::Object;
        PDList<Node> children;
    };
    {
        PDList<Node> roots;
        roots.Append(new Node(20));
        roots.Cur()->children.Append(new Node(21));
        roots.Cur()->children.Cur()->children.Append(new Node(22));
    }
    EXPECT_EQ(Object::living, 4);
}

} // namespace
