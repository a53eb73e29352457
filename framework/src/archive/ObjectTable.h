// The numbers that objects and classes have in one archive.
#pragma once

#include "afx.h"

#include <unordered_map>
#include <vector>

// Loading: what a number stands for, an object or a class.
struct CArchive::ObjectEntry
{
    CObject* object;
    CRuntimeClass* classRecord;
    UINT schema;
};

// Objects and classes share one sequence of numbers in the order in which they first appear; 0 is NULL.
struct CArchive::ObjectTable
{
    ObjectTable() { entries.push_back({nullptr, nullptr, 0}); }

    // Storing: the number of an object or class, 0 if it has none yet.
    DWORD NumberOf(const void* address) const
    {
        const auto found = numbers.find(address);
        return found == numbers.end() ? 0 : found->second;
    }

    void AddStored(const void* address) { numbers.emplace(address, ++storedCount); }

    std::unordered_map<const void*, DWORD> numbers;
    DWORD storedCount = 0;
    std::vector<ObjectEntry> entries;
};
