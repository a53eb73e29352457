// Random operations on lists, compared with a vector and an index after each step.
#include "grid/collections/DualList.h"
#include "grid/collections/List.h"
#include "tests/collections/ReferenceList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

using namespace QuorUiCtr;

namespace
{

#ifdef _DEBUG
constexpr int stepsPerRun = 20000;
#else
constexpr int stepsPerRun = 500000;
#endif

using Model = quor::test::ReferenceList<long>;

// One list and its model under the same random operations. Lists stay around `usualNum` elements long.
template <class AnyList> class ModelRun
{
public:
    ModelRun(unsigned seed, long number) : random(seed), usualNum(number)
    {
        for (long i = 0; i < number; ++i)
            Append();
    }

    void Step()
    {
        switch (random() % 16)
        {
        case 0:
        case 1:
            return Read();
        case 2:
        case 3:
            return MoveTo(SomeIndex());
        case 4:
            list.MoveToNext();
            return model.MoveToNext();
        case 5:
            list.MoveToPre();
            return model.MoveToPre();
        case 6:
        case 7:
            return list.GetNum() < usualNum ? Append() : Del();
        case 8:
        case 9:
            return list.GetNum() < usualNum + 20 ? Insert() : Del();
        case 10:
            return InsertAfter();
        case 11:
        case 12:
            return Del();
        case 13:
            return Move();
        case 14:
            return SetCur();
        default:
            return Rare();
        }
    }

    // Count, cursor and current element.
    bool Agrees()
    {
        return list.GetNum() == model.GetNum() && list.GetCur() == model.cursor &&
               list.IsOut() == (model.cursor < 0) && list.IsEmpty() == model.elements.empty() &&
               list.Cur() == (model.cursor < 0 ? 0 : model.elements[static_cast<std::size_t>(model.cursor)]);
    }

    // Every element, forward and backward; the cursor ends outside.
    bool AgreesThroughout()
    {
        bool agrees = std::equal(list.begin(), list.end(), model.elements.begin(), model.elements.end());
        if constexpr (std::is_base_of_v<DualList<long>, AnyList>)
        {
            list.MoveToLast();
            for (auto element = model.elements.rbegin(); element != model.elements.rend(); ++element)
            {
                agrees = agrees && list.Cur() == *element;
                list.MoveToPre();
            }
        }
        MoveTo(-1);
        return agrees && Agrees();
    }

private:
    // Inside the list as a rule, a little outside now and then.
    long SomeIndex()
    {
        return static_cast<long>(random() % static_cast<unsigned long>(list.GetNum() + 3)) - 1;
    }
    long NewElement() { return static_cast<long>(random() % 100000); }

    void Read()
    {
        const long i = (std::max)(SomeIndex(), 0L);
        model.Grow(i + 1);
        model.MoveTo(i);
        list[i] += 1;
        model.elements[static_cast<std::size_t>(i)] += 1;
    }
    void MoveTo(long i)
    {
        list.MoveTo(i);
        model.MoveTo(i);
    }
    void Append()
    {
        const long element = NewElement();
        list.Append(element);
        model.InsertAt(model.GetNum(), element);
    }
    void Insert()
    {
        const long element = NewElement();
        if (random() % 2)
        {
            const long i = SomeIndex();
            model.MoveTo(i);
            list.Insert(i, element);
        }
        else
        {
            list.Insert(element);
        }
        model.Insert(element);
    }
    void InsertAfter()
    {
        const long element = NewElement();
        if (random() % 2)
        {
            const long i = SomeIndex();
            model.MoveTo(i);
            list.InsertAfter(i, element);
        }
        else
        {
            list.InsertAfter(element);
        }
        model.InsertAfter(element);
    }
    void Del()
    {
        list.Del();
        model.Del();
    }
    void Move()
    {
        const long from = SomeIndex();
        const long to = SomeIndex();
        EXPECT_EQ(list.Move(from, to), model.Move(from, to));
    }
    void SetCur()
    {
        const long element = NewElement();
        list.SetCur(element);
        if (model.cursor >= 0)
            model.elements[static_cast<std::size_t>(model.cursor)] = element;
    }

    void Rare()
    {
        switch (random() % 64)
        {
        case 0:
            EXPECT_TRUE(AgreesThroughout());
            return;
        case 1:
            list.Sort(random() % 2 == 0);
            model.elements.assign(list.begin(), list.end());
            return MoveTo(SomeIndex());
        case 2:
            return Find();
        case 3:
            return Guard();
        case 4:
            if (random() % 8 == 0)
                Clear();
            return;
        default:
            if constexpr (std::is_base_of_v<DualList<long>, AnyList>)
                Bulk();
        }
    }
    void Find()
    {
        const long element = NewElement();
        const auto found = std::find(model.elements.begin(), model.elements.end(), element);
        EXPECT_EQ(list.Find(element),
                  found == model.elements.end() ? -1 : static_cast<long>(found - model.elements.begin()));
    }
    void Guard()
    {
        const long before = model.cursor;
        {
            CursorGuard guard(list);
            MoveTo(SomeIndex());
            if (random() % 2)
                Del();
        }
        model.MoveTo(before);
    }
    void Clear()
    {
        list.Clear();
        model = Model();
        list.Reserve(usualNum / 2);
        while (list.GetNum() < usualNum)
            Append();
    }
    void Bulk()
    {
        if (list.GetNum() < usualNum)
        {
            std::vector<long> added(random() % 40);
            std::generate(added.begin(), added.end(), [this] { return NewElement(); });
            const long at = SomeIndex();
            list.SpliceInsert(at, added);
            model.Splice(at, added);
        }
        else
        {
            const long first = SomeIndex();
            const long number = static_cast<long>(random() % 40);
            EXPECT_EQ(list.RemoveRange(first, number), model.RemoveRange(first, number));
        }
    }

    std::mt19937 random;
    long usualNum;
    AnyList list;
    Model model;
};

template <class AnyList> void RunAgainstModel(long number, int steps)
{
    const unsigned seed = 20 + static_cast<unsigned>(number);
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    ModelRun<AnyList> run(seed, number);
    for (int step = 0; step < steps; ++step)
    {
        run.Step();
        ASSERT_TRUE(run.Agrees()) << "step " << step;
    }
    EXPECT_TRUE(run.AgreesThroughout());
}

TEST(ListModel, ShortSingleList)
{
    RunAgainstModel<List<long>>(8, stepsPerRun);
}
TEST(ListModel, ShortDualList)
{
    RunAgainstModel<DualList<long>>(8, stepsPerRun);
}
TEST(ListModel, MiddlingDualList)
{
    RunAgainstModel<DualList<long>>(200, stepsPerRun);
}
// Long enough for remembered places.
TEST(ListModel, LongSingleList)
{
    RunAgainstModel<List<long>>(3000, stepsPerRun / 10);
}
TEST(ListModel, LongDualList)
{
    RunAgainstModel<DualList<long>>(3000, stepsPerRun / 10);
}

} // namespace
