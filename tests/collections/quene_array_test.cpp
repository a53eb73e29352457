// The queue and the plain array.
#include "grid/collections/Array.h"
#include "grid/collections/ListQuene.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace QuorUiCtr;

namespace
{

TEST(ListQuene, Elements_ComeOutInTheOrderTheyWentIn)
{
    ListQuene<long> queue;
    for (long i = 1; i <= 4; ++i)
        queue.Push(i);
    EXPECT_EQ(queue.GetNum(), 4);
    EXPECT_EQ(queue.Front(), 1);
    EXPECT_EQ(queue.Back(), 4);
    EXPECT_EQ(queue.Pop(), 1);
    queue.Push(5);
    for (long expected : {2L, 3L, 4L, 5L})
        EXPECT_EQ(queue.Pop(), expected);
    EXPECT_TRUE(queue.IsEmpty());
}

TEST(ListQuene, EmptyQueue_GivesDefaultElements)
{
    ListQuene<long> queue;
    EXPECT_TRUE(queue.IsEmpty());
    EXPECT_EQ(queue.GetNum(), 0);
    EXPECT_EQ(queue.Pop(), 0);
    queue.Front() = 5;
    EXPECT_EQ(queue.Front(), 0);
    EXPECT_EQ(queue.Back(), 0);
    EXPECT_EQ(queue.GetNum(), 0);
}

TEST(ListQuene, FrontAndBack_CanBeWritten)
{
    ListQuene<long> queue;
    queue.Push(1);
    queue.Push(2);
    queue.Front() = 10;
    queue.Back() = 20;
    queue.Push(3);
    EXPECT_EQ(queue.Pop(), 10);
    EXPECT_EQ(queue.Pop(), 20);
    EXPECT_EQ(queue.Pop(), 3);
}

TEST(ListQuene, Clear_EmptiesAndTheQueueGoesOnWorking)
{
    ListQuene<std::string> queue;
    queue.Push("one");
    queue.Push("two");
    queue.Clear();
    EXPECT_TRUE(queue.IsEmpty());
    queue.Push("three");
    EXPECT_EQ(queue.Pop(), "three");
}

TEST(ListQuene, UsedThroughItsInterface_IsDestroyedWhole)
{
    std::unique_ptr<Quene<std::string>> queue = std::make_unique<ListQuene<std::string>>();
    queue->Push(std::string(100, 'a'));
    queue->Push(std::string(100, 'b'));
    EXPECT_EQ(queue->Pop()[0], 'a');
    EXPECT_EQ(queue->GetNum(), 1);
}

TEST(ListQuene, BreadthFirstWalk_GrowsWhileItIsEmptied)
{
    ListQuene<long> queue;
    queue.Push(1);
    long visited = 0;
    for (; !queue.IsEmpty(); ++visited)
    {
        const long number = queue.Pop();
        EXPECT_EQ(number, visited + 1);
        for (long child = 2 * number; child <= 2 * number + 1; ++child)
            if (child < 5000)
                queue.Push(child);
    }
    EXPECT_EQ(visited, 4999);
}

TEST(Array, NewArray_IsEmpty)
{
    Array<long> numbers;
    EXPECT_EQ(numbers.GetNum(), 0);
    EXPECT_TRUE(numbers.IsEmpty());
}

TEST(Array, Append_ReturnsThePosition)
{
    Array<long> numbers;
    for (long i = 0; i < 100; ++i)
        EXPECT_EQ(numbers.Append(i * i), i);
    const Array<long>& read = numbers;
    EXPECT_EQ(read[9], 81);
    numbers[9] = 5;
    EXPECT_EQ(read[9], 5);
    EXPECT_EQ(numbers.GetNum(), 100);
}

TEST(Array, SetNum_CutsOrAddsDefaults)
{
    Array<long> numbers(3);
    numbers[2] = 7;
    numbers.SetNum(5);
    EXPECT_EQ(numbers[2], 7);
    EXPECT_EQ(numbers[4], 0);
    numbers.SetNum(1);
    EXPECT_EQ(numbers.GetNum(), 1);
    numbers.SetNum(3);
    EXPECT_EQ(numbers[2], 0);
    numbers.SetNum(-1);
    EXPECT_TRUE(numbers.IsEmpty());
}

TEST(Array, ClearAndCopy)
{
    Array<long> numbers;
    numbers.Append(4);
    Array<long> copy(numbers);
    numbers.Clear();
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(copy[0], 4);
}

} // namespace
