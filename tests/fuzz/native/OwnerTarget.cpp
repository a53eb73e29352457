// PDList: who deletes which object, in lists and their copies; and the queue and the array.
#include "tests/fuzz/native/Bytes.h"
#include "tests/collections/ReferenceList.h"

#include "grid/collections/Array.h"
#include "grid/collections/ListQuene.h"
#include "grid/collections/PDList.h"

#include <deque>
#include <memory>
#include <set>

using namespace QuorUiCtr;
using namespace quor::fuzz;

namespace
{

constexpr long MostElements = 1500;

// Knows which of its kind are alive.
struct Counted
{
    explicit Counted(int k) : key(k) { Alive().insert(this); }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { Require(Alive().erase(this) == 1, "an object is deleted twice"); }
    bool operator<(const Counted& other) const { return key < other.key; }
    bool operator>(const Counted& other) const { return key > other.key; }

    static std::set<Counted*>& Alive()
    {
        static std::set<Counted*> alive;
        return alive;
    }

    int key;
};

class Run
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
    }

private:
    // Sometimes an empty slot.
    Counted* New() { return bytes.Byte() % 9 == 0 ? nullptr : new Counted(bytes.Byte() % 16); }
    long AnyIndex() { return bytes.Below(model.GetNum() + 2) - 1; }

    void Step()
    {
        switch (bytes.Byte() % 14)
        {
        case 0:
        case 1:
        case 2:
            return Add();
        case 3:
            list.MoveTo(last = AnyIndex());
            return model.MoveTo(last);
        case 4:
            list.Del();
            return model.Del();
        case 5:
            return Remove(bytes.Byte() % 2 == 0);
        case 6:
            return Detach();
        case 7:
            return Sort();
        case 8:
            return Move();
        case 9:
            return Borrow();
        case 10:
            return Splice();
        case 11:
            return Replace();
        case 12:
            list.MoveToPre();
            return model.MoveToPre();
        default:
            if (bytes.Byte() % 8 != 0)
                return;
            list.Clear();
            return model.Clear();
        }
    }

    void Add()
    {
        if (model.GetNum() > MostElements)
            return;
        Counted* const object = New();
        const long i = AnyIndex();
        list.Insert(i, object);
        model.MoveTo(i);
        model.Insert(object);
    }

    void Remove(bool deletes)
    {
        const long first = AnyIndex();
        const long number = bytes.Below(8);
        std::vector<Counted*> released;
        for (long i = 0; i < number && model.Has(first + i) && first >= 0; ++i)
            released.push_back(model.elements[static_cast<std::size_t>(first + i)]);
        const long removed = deletes ? list.RemoveRange(first, number) : list.Release(first, number);
        Require(removed == model.RemoveRange(first, number), "another number of slots is removed");
        if (!deletes)
            for (Counted* object : released)
                delete object;
    }

    void Detach()
    {
        const long i = AnyIndex();
        Counted* const expected = model.Has(i) ? model.elements[static_cast<std::size_t>(i)] : nullptr;
        Require(list.Detach(i) == expected, "another object is detached");
        model.RemoveRange(i, 1);
        delete expected;
    }

    // Null slots end up last.
    void Sort()
    {
        const bool ascending = bytes.Byte() % 2 == 0;
        list.Sort(ascending);
        model.Sort([ascending](const Counted* a, const Counted* b) {
            if (a == nullptr || b == nullptr)
                return b == nullptr && a != nullptr;
            return ascending ? a->key < b->key : b->key < a->key;
        });
    }

    void Move()
    {
        const long from = AnyIndex();
        const long to = AnyIndex();
        Require(list.Move(from, to) == model.Move(from, to), "Move tells wrongly whether it moved");
    }

    void Borrow()
    {
        const PDList<Counted> copy(list);
        Require(!copy.IsOwning() && copy.GetNum() == model.GetNum(), "a copy differs");
        PDList<Counted> assigned;
        assigned.Append(new Counted(1));
        assigned = list;
        Require(!assigned.IsOwning() && assigned.GetNum() == model.GetNum(), "an assigned copy differs");
        assigned.RemoveRange(0, bytes.Below(4));
        assigned.Clear();
        Require(assigned.IsOwning(), "an emptied copy does not own");
        assigned.Append(new Counted(2));
    }

    void Splice()
    {
        std::vector<Counted*> added(static_cast<std::size_t>(bytes.Byte() % 5 == 0 ? 200 : bytes.Byte() % 5));
        if (model.GetNum() > MostElements)
            return;
        for (Counted*& object : added)
            object = New();
        const long at = AnyIndex();
        list.SpliceInsert(at, added);
        model.Splice(at, added);
    }

    // SetCur deletes nothing.
    void Replace()
    {
        if (model.cursor < 0)
            return;
        delete model.Cur();
        model.Cur() = New();
        list.SetCur(model.Cur());
    }

    void Compare()
    {
        Require(list.GetNum() == model.GetNum() && list.GetCur() == model.cursor, "number or cursor differs");
        Require(std::equal(list.begin(), list.end(), model.elements.begin(), model.elements.end()),
                "the slots differ");
        std::size_t objects = 0;
        for (const Counted* object : model.elements)
            objects += object != nullptr ? 1 : 0;
        Require(Counted::Alive().size() == objects, "objects are lost or deleted too soon");
    }

    Bytes& bytes;
    PDList<Counted> list;
    quor::test::ReferenceList<Counted*> model;
    long last = -1;
};

void RunQueue(Bytes& bytes)
{
    ListQuene<int> queue;
    std::deque<int> model;
    while (!bytes.IsEmpty())
    {
        const int value = bytes.Byte();
        if (value % 16 == 0)
            queue.Clear(), model.clear();
        else if (value % 3 != 0)
            queue.Push(value), model.push_back(value);
        else
        {
            Require(queue.Pop() == (model.empty() ? 0 : model.front()), "another element is taken out");
            if (!model.empty())
                model.pop_front();
        }
        Require(queue.GetNum() == static_cast<long>(model.size()) && queue.IsEmpty() == model.empty(),
                "the number differs");
        Require(queue.Front() == (model.empty() ? 0 : model.front()), "another element is first");
        Require(queue.Back() == (model.empty() ? 0 : model.back()), "another element is last");
    }
}

void RunArray(Bytes& bytes)
{
    Array<int> array(bytes.Small());
    std::vector<int> model(static_cast<std::size_t>(array.GetNum()));
    while (!bytes.IsEmpty())
    {
        const int value = bytes.Byte();
        if (value % 16 == 0)
            array.Clear(), model.clear();
        else if (value % 5 == 0)
        {
            const long number = bytes.Small();
            array.SetNum(number);
            model.resize(static_cast<std::size_t>(number > 0 ? number : 0));
        }
        else
        {
            Require(array.Append(value) == static_cast<long>(model.size()),
                    "Append returns another position");
            model.push_back(value);
        }
        Require(array.GetNum() == static_cast<long>(model.size()) && array.IsEmpty() == model.empty(),
                "the number differs");
        if (!model.empty())
        {
            const long i = bytes.Below(array.GetNum());
            Require(array[i] == model[static_cast<std::size_t>(i)], "another element stands at an index");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    switch (bytes.Byte() % 8)
    {
    case 0:
        RunQueue(bytes);
        break;
    case 1:
        RunArray(bytes);
        break;
    default:
        Run(bytes).Do();
    }
    Require(Counted::Alive().empty(), "objects outlive their list");
    return 0;
}
