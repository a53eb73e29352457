// List and DualList against a vector: every operation, the cursor after each, the order of sorting.
#include "tests/fuzz/native/Bytes.h"
#include "tests/collections/ReferenceList.h"

#include "grid/collections/DualList.h"
#include "grid/collections/List.h"

#include <type_traits>

using namespace QuorUiCtr;
using namespace quor::fuzz;

namespace
{

constexpr long MostElements = 3000;

// Equal for sorting when the keys are; the numbers tell equal ones apart.
struct Item
{
    int key = 0;
    int number = 0;
    bool operator==(const Item& other) const = default;
    bool operator<(const Item& other) const { return key < other.key; }
    bool operator>(const Item& other) const { return key > other.key; }
};

int CompareKeys(const Item& first, const Item& second)
{
    return first.key - second.key;
}

int CompareInContext(const Item& first, const Item& second, void* sign)
{
    return *static_cast<int*>(sign) * (first.key - second.key);
}

template <class AnyList> class Run
{
public:
    explicit Run(Bytes& input) : bytes(input) {}

    void Do()
    {
        while (!bytes.IsEmpty())
        {
            Step();
            Compare();
        }
        CompareAll();
    }

private:
    static constexpr bool IsDual = std::is_base_of_v<DualList<Item>, AnyList>;

    Item NewItem() { return {bytes.Byte() % 16, next++}; }
    long AnyIndex() { return bytes.Byte() % 8 == 0 ? bytes.Small() : bytes.Below(model.GetNum() + 2) - 1; }

    void Step()
    {
        switch (bytes.Byte() % 24)
        {
        case 0:
            return MoveTo(AnyIndex());
        case 1:
            list.MoveToFirst();
            return model.MoveTo(0);
        case 2:
            list.MoveToLast();
            return model.MoveTo(model.GetNum() - 1);
        case 3:
        case 4:
            list.MoveToNext();
            return model.MoveToNext();
        case 5:
        case 6:
            list.MoveToPre();
            return model.MoveToPre();
        case 7:
            return Index(bytes.Below(model.GetNum() + 3));
        case 8:
            return Change(&AnyList::Insert, [this](const Item& item) { model.Insert(item); });
        case 9:
            return InsertAt();
        case 10:
            return Change(&AnyList::InsertAfter, [this](const Item& item) { model.InsertAfter(item); });
        case 11:
            return InsertAfterAt();
        case 12:
            return Append();
        case 13:
            list.Del();
            return model.Del();
        case 14:
            return Move();
        case 15:
            return SetCur();
        case 16:
            return Sort();
        case 17:
            return Grow();
        case 18:
            return Find();
        case 19:
            return Partition();
        case 20:
            return Copy();
        case 21:
            return Splice();
        case 22:
            return Remove();
        default:
            return Rare();
        }
    }

    void MoveTo(long i)
    {
        Require(list.MoveTo(i) == model.Has(i), "MoveTo tells wrongly whether there is an element");
        model.MoveTo(i);
    }

    void Index(long i)
    {
        const bool grows = i >= model.GetNum();
        if (grows && model.GetNum() > MostElements)
            return;
        const Item found = list[i];
        model.Grow(i + 1);
        model.MoveTo(i);
        Require(found == model.Cur(), "another element stands at an index");
    }

    template <class Operation> void Change(void (AnyList::*change)(const Item&), Operation same)
    {
        if (model.GetNum() > MostElements)
            return;
        const Item item = NewItem();
        (list.*change)(item);
        same(item);
    }

    void InsertAt()
    {
        const long i = AnyIndex();
        const Item item = NewItem();
        list.Insert(i, item);
        model.MoveTo(i);
        model.Insert(item);
    }

    void InsertAfterAt()
    {
        const long i = AnyIndex();
        const Item item = NewItem();
        list.InsertAfter(i, item);
        model.MoveTo(i);
        model.InsertAfter(item);
    }

    void Append()
    {
        const Item item = NewItem();
        Require(list.Append(item) == model.GetNum(), "Append returns another position");
        model.Append(item);
    }

    void Move()
    {
        const long from = AnyIndex();
        const long to = AnyIndex();
        const bool moved = list.Move(from, to);
        Require(moved == model.Move(from, to), "Move tells wrongly whether it moved");
    }

    void SetCur()
    {
        const Item item = NewItem();
        list.SetCur(item);
        if (model.cursor >= 0)
            model.Cur() = item;
    }

    void Sort()
    {
        const int kind = bytes.Byte() % 4;
        int sign = bytes.Byte() % 2 == 0 ? 1 : -1;
        const bool ascending = kind == 2 || (kind == 3 && sign > 0) || kind == 0;
        if (kind == 2)
            list.Sort(true);
        else if (kind == 1)
            list.Sort(false);
        else if (kind == 0)
            list.Sort(CompareKeys);
        else if constexpr (IsDual)
            list.Sort(CompareInContext, &sign);
        else
            return;
        model.Sort(
            [ascending](const Item& a, const Item& b) { return ascending ? a.key < b.key : b.key < a.key; });
    }

    void Grow()
    {
        const long number = bytes.Byte() % 4 == 0 ? 700 : bytes.Below(40);
        if (number > MostElements)
            return;
        bytes.Byte() % 2 == 0 ? list.Reserve(number) : GrowTo(number);
    }

    void GrowTo(long number)
    {
        list.Grow(number);
        model.Grow(number);
    }

    void Find()
    {
        const Item wanted = model.GetNum() > 0 && bytes.Byte() % 2 == 0
                                ? model.elements[static_cast<std::size_t>(bytes.Below(model.GetNum()))]
                                : Item{bytes.Byte(), -1};
        const auto found = std::find(model.elements.begin(), model.elements.end(), wanted);
        const long expected =
            found == model.elements.end() ? -1 : static_cast<long>(found - model.elements.begin());
        Require(list.Find(wanted) == expected, "Find finds another element");
    }

    // Only a sorted list is parted.
    void Partition()
    {
        list.Sort(true);
        model.Sort([](const Item& a, const Item& b) { return a.key < b.key; });
        const int key = bytes.Byte() % 18;
        const auto precedes = [key](const Item& item) { return item.key < key; };
        const auto place = std::partition_point(model.elements.begin(), model.elements.end(), precedes);
        const auto iterator = list.FindPartition(precedes);
        Require((iterator == list.end()) == (place == model.elements.end()), "a partition ends elsewhere");
        Require(iterator == list.end() || *iterator == *place, "a partition begins elsewhere");
        list.MoveToPartition(precedes);
        model.MoveTo(place == model.elements.end() ? -1 : static_cast<long>(place - model.elements.begin()));
    }

    void Copy()
    {
        AnyList copy(list);
        Require(copy.GetNum() == model.GetNum() && copy.IsOut(), "a copy differs");
        if (bytes.Byte() % 2 == 0)
        {
            list = copy;
            model.cursor = -1;
        }
        const CursorGuard<Item> guard(list);
        list.MoveTo(bytes.Below(model.GetNum() + 1));
    }

    void Splice()
    {
        if constexpr (IsDual)
        {
            std::vector<Item> added(bytes.Byte() % 5 == 0 ? 300 : static_cast<std::size_t>(bytes.Byte() % 6));
            if (model.GetNum() + static_cast<long>(added.size()) > MostElements)
                return;
            for (Item& item : added)
                item = {bytes.Byte() % 16, next++};
            const long at = AnyIndex();
            list.SpliceInsert(at, added);
            model.Splice(at, added);
        }
    }

    void Remove()
    {
        if constexpr (IsDual)
        {
            const long first = AnyIndex();
            const long number = bytes.Byte() % 6 == 0 ? bytes.Below(600) : bytes.Small() % 6;
            const long removed =
                bytes.Byte() % 2 == 0 ? list.RemoveRange(first, number) : list.Release(first, number);
            Require(removed == model.RemoveRange(first, number), "another number of elements is removed");
        }
    }

    void Rare()
    {
        if (bytes.Byte() % 8 == 0)
        {
            list.Clear();
            return model.Clear();
        }
        CompareAll();
    }

    void Compare()
    {
        Require(list.GetNum() == model.GetNum(), "the number of elements differs");
        Require(list.GetCur() == model.cursor, "the cursor stands elsewhere");
        Require(list.IsOut() == (model.cursor < 0), "IsOut contradicts the cursor");
        Require(list.IsEmpty() == model.elements.empty(), "IsEmpty contradicts the number");
        Require(list.Cur() == (model.cursor < 0 ? Item{} : model.Cur()), "another element is current");
    }

    void CompareAll()
    {
        Require(std::equal(list.begin(), list.end(), model.elements.begin(), model.elements.end()),
                "the elements differ");
        if constexpr (IsDual)
        {
            list.MoveToLast();
            for (auto item = model.elements.rbegin(); item != model.elements.rend(); ++item)
            {
                Require(list.Cur() == *item, "the elements differ on the way back");
                list.MoveToPre();
            }
            Require(list.IsOut(), "the way back does not end");
        }
        MoveTo(-1);
    }

    Bytes& bytes;
    AnyList list;
    quor::test::ReferenceList<Item> model;
    int next = 1;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    if (bytes.Byte() % 3 == 0)
        Run<List<Item>>(bytes).Do();
    else
        Run<DualList<Item>>(bytes).Do();
    return 0;
}
