// The DLL of the guard's victim program.
#include "tests/guard_test/VictimLibrary.h"

int* MakeArray(int count)
{
    return new int[static_cast<std::size_t>(count)]();
}

void DeleteArray(int* array)
{
    delete[] array;
}

int ReadAt(const int* array, int index)
{
    return array[index];
}

void WriteAt(int* array, int index, int value)
{
    array[index] = value;
}

std::vector<std::string>& Registry()
{
    static std::vector<std::string> registry;
    return registry;
}

void Leak()
{
    static volatile int* forgotten;
    forgotten = new int(1);
    forgotten = nullptr;
}
