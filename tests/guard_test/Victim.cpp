// A program that commits the mistake named by its argument, for the tests of the checked build. Without a
// mistake it returns 0.
#include "tests/guard_test/VictimLibrary.h"
#include "tests/guard/Guard.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

namespace
{

struct Base
{
    int first = 1;
};

struct Derived : Base
{
    int second = 2;
};

// What the optimiser must not see through.
volatile int three = 3;
volatile int zero = 0;
volatile int sink = 0;
void* volatile hidden = nullptr;

template <typename Type> Type* Hide(Type* pointer)
{
    hidden = pointer;
    return static_cast<Type*>(hidden);
}

void ReadPastEnd()
{
    const std::unique_ptr<int[]> array(Hide(new int[3]()));
    sink = ReadAt(array.get(), three);
}

void WritePastEnd()
{
    const std::unique_ptr<int[]> array(Hide(new int[3]()));
    WriteAt(array.get(), three, 1);
}

void WritePastEndByOneByte()
{
    const std::unique_ptr<char[]> text(Hide(new char[13]()));
    text[static_cast<std::size_t>(three + 10)] = 'x';
}

void WriteBeforeStart()
{
    const std::unique_ptr<int[]> array(Hide(new int[3]()));
    WriteAt(array.get(), three - 4, 1);
}

void ReadBeforeStart()
{
    const std::unique_ptr<int[]> array(Hide(new int[3]()));
    sink = ReadAt(array.get(), three - 4);
}

void ReadAfterDelete()
{
    int* array = Hide(new int[3]());
    delete[] array;
    sink = ReadAt(static_cast<int*>(hidden), 0);
}

void WriteAfterDelete()
{
    int* array = MakeArray(3);
    hidden = array;
    delete[] array;
    WriteAt(static_cast<int*>(hidden), 0, 1);
}

void DeleteTwice()
{
    int* array = Hide(new int[3]());
    delete[] array;
    DeleteArray(static_cast<int*>(hidden));
}

void DeleteMismatched()
{
    delete Hide(new int[3]());
}

void DeleteInside()
{
    DeleteArray(Hide(new int[3]()) + 1);
}

void DeleteWrongSize()
{
    Base* base = Hide(static_cast<Base*>(new Derived));
    delete base;
}

void LeakHere()
{
    hidden = new int[3]();
    hidden = nullptr;
}

void LeakAligned()
{
    hidden = ::operator new (64, std::align_val_t{64});
    hidden = nullptr;
}

void IndexVector()
{
    const std::vector<int> numbers(3);
    sink = numbers[static_cast<std::size_t>(three)];
}

void DereferenceEnd()
{
    const std::vector<int> numbers(3);
    sink = *(numbers.begin() + three);
}

void OverflowSigned()
{
    sink = INT_MAX - 3 + three + 1;
}

void ShiftTooFar()
{
    sink = 1 << (three + 40);
}

void DivideByZero()
{
    sink = three / zero;
}

void OverwriteStack()
{
    volatile char text[8] = {};
    std::memset(const_cast<char*>(text), 'x', static_cast<std::size_t>(three) * 16);
    sink = text[0];
}

void CallNothing()
{
    reinterpret_cast<void (*)()>(hidden)();
}

void Throw()
{
    throw 1;
}

void FillRegistry()
{
    Registry().assign(3, "a text that is too long for the string itself");
}

void CrossBoundary()
{
    std::unique_ptr<int[]> made(MakeArray(3));
    DeleteArray(new int[3]());
    ::operator delete (::operator new (10, std::align_val_t{64}), std::align_val_t{64});
}

void FailAllocation()
{
    QuorGuardFailAt(1);
    try
    {
        hidden = new int;
    }
    catch (const std::bad_alloc&)
    {
        return;
    }
    std::puts("the allocation did not fail");
}

void CountLeaks()
{
    const std::size_t mark = QuorGuardMark();
    int* number = Hide(new int(1));
    if (QuorGuardLeaksSince(mark) != 1)
        std::puts("one live block was not counted");
    delete number;
    if (QuorGuardLeaksSince(mark) != 0)
        std::puts("a deleted block was counted");
    QuorGuardIgnoreLeaks(true);
    LeakHere();
    QuorGuardIgnoreLeaks(false);
    if (QuorGuardLeaksSince(mark) != 0)
        std::puts("an ignored block was counted");
}

// More blocks than may have pages of their own.
void ManyBlocks()
{
    std::vector<std::unique_ptr<int>> numbers;
    for (int i = 0; i < 100'000; ++i)
        numbers.push_back(std::make_unique<int>(i));
    for (int i = 0; i < 100'000; ++i)
        if (*numbers[static_cast<std::size_t>(i)] != i)
            std::puts("a block lost its contents");
}

void OverflowPackedBlock()
{
    std::vector<std::unique_ptr<int>> numbers;
    for (int i = 0; i < 100'000; ++i)
        numbers.push_back(std::make_unique<int>(i));
    WriteAt(numbers.back().get(), 1, 1);
}

const struct
{
    const char* name;
    void (*commit)();
} mistakes[] = {
    {"read-past-end", ReadPastEnd},
    {"write-past-end", WritePastEnd},
    {"write-past-end-by-one-byte", WritePastEndByOneByte},
    {"write-before-start", WriteBeforeStart},
    {"read-before-start", ReadBeforeStart},
    {"read-after-delete", ReadAfterDelete},
    {"write-after-delete", WriteAfterDelete},
    {"delete-twice", DeleteTwice},
    {"delete-mismatched", DeleteMismatched},
    {"delete-inside", DeleteInside},
    {"delete-wrong-size", DeleteWrongSize},
    {"leak", LeakHere},
    {"leak-aligned", LeakAligned},
    {"leak-in-dll", Leak},
    {"index-vector", IndexVector},
    {"dereference-end", DereferenceEnd},
    {"overflow-signed", OverflowSigned},
    {"shift-too-far", ShiftTooFar},
    {"divide-by-zero", DivideByZero},
    {"overwrite-stack", OverwriteStack},
    {"call-nothing", CallNothing},
    {"throw", Throw},
    {"overflow-packed-block", OverflowPackedBlock},
    {"none", [] {}},
    {"fill-registry", FillRegistry},
    {"cross-boundary", CrossBoundary},
    {"fail-allocation", FailAllocation},
    {"count-leaks", CountLeaks},
    {"many-blocks", ManyBlocks},
};

} // namespace

int main(int argumentCount, char** arguments)
{
    for (const auto& mistake : mistakes)
        if (argumentCount == 2 && std::strcmp(arguments[1], mistake.name) == 0)
        {
            mistake.commit();
            return 0;
        }
    std::fputs("unknown mistake\n", stderr);
    return 2;
}
