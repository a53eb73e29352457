// The mistakes that a DLL makes, and the helpers for blocks that cross its boundary.
#pragma once

#ifdef guard_victim_dll_EXPORTS
#define VICTIM_API __declspec(dllexport)
#else
#define VICTIM_API __declspec(dllimport)
#endif

#include <string>
#include <vector>

// Makes an array in the DLL, for the program to delete.
VICTIM_API int* MakeArray(int count);

// Deletes in the DLL what the program made.
VICTIM_API void DeleteArray(int* array);

// Reads and writes through pointers that the compiler cannot follow.
VICTIM_API int ReadAt(const int* array, int index);
VICTIM_API void WriteAt(int* array, int index, int value);

// A container that lives as long as the DLL: not a leak.
VICTIM_API std::vector<std::string>& Registry();

// A block that nobody deletes.
VICTIM_API void Leak();
