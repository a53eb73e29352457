// Puts its own functions into the import tables of the modules, which the loader has filled with those of the
// C++ runtime.
#include "tests/support/FailingNew.h"

#include <windows.h>

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <new>

namespace quor::test
{
namespace
{

long failAt;
bool failed;
long liveBlocks;

bool FailsNow()
{
    if (failAt == 0 || --failAt > 0)
        return false;
    failed = true;
    return true;
}

void* Counted(void* block)
{
    liveBlocks += block != nullptr ? 1 : 0;
    return block;
}

// Which functions of the runtime these are is known by their names in its export table.
template <class Function> Function Original(const char* name)
{
    const HMODULE runtime = ::GetModuleHandleW(L"libstdc++-6.dll");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(runtime, name)));
}

using New = void* (*)(std::size_t);
using NewNothrow = void* (*)(std::size_t, const std::nothrow_t&) noexcept;
using Delete = void (*)(void*) noexcept;
using DeleteSized = void (*)(void*, std::size_t) noexcept;

void* FailingNewOf(std::size_t size)
{
    static const auto original = Original<New>("_Znwy");
    if (FailsNow())
        throw std::bad_alloc();
    return Counted(original(size));
}

void* FailingNewNothrow(std::size_t size, const std::nothrow_t& tag) noexcept
{
    static const auto original = Original<NewNothrow>("_ZnwyRKSt9nothrow_t");
    return FailsNow() ? nullptr : Counted(original(size, tag));
}

void* FailingNewArray(std::size_t size)
{
    static const auto original = Original<New>("_Znay");
    if (FailsNow())
        throw std::bad_alloc();
    return Counted(original(size));
}

void CountingDelete(void* block) noexcept
{
    static const auto original = Original<Delete>("_ZdlPv");
    liveBlocks -= block != nullptr ? 1 : 0;
    original(block);
}

void CountingDeleteSized(void* block, std::size_t size) noexcept
{
    static const auto original = Original<DeleteSized>("_ZdlPvy");
    liveBlocks -= block != nullptr ? 1 : 0;
    original(block, size);
}

void CountingDeleteNothrow(void* block, const std::nothrow_t&) noexcept
{
    CountingDelete(block);
}

void CountingDeleteArray(void* block) noexcept
{
    static const auto original = Original<Delete>("_ZdaPv");
    liveBlocks -= block != nullptr ? 1 : 0;
    original(block);
}

struct Replacement
{
    const char* name;
    void* function;
};

const Replacement replacements[] = {
    {"_Znwy", reinterpret_cast<void*>(&FailingNewOf)},
    {"_ZnwyRKSt9nothrow_t", reinterpret_cast<void*>(&FailingNewNothrow)},
    {"_Znay", reinterpret_cast<void*>(&FailingNewArray)},
    {"_ZdlPv", reinterpret_cast<void*>(&CountingDelete)},
    {"_ZdlPvRKSt9nothrow_t", reinterpret_cast<void*>(&CountingDeleteNothrow)},
    {"_ZdlPvy", reinterpret_cast<void*>(&CountingDeleteSized)},
    {"_ZdaPv", reinterpret_cast<void*>(&CountingDeleteArray)},
};

template <class Type> Type* At(HMODULE module, DWORD offset)
{
    return reinterpret_cast<Type*>(reinterpret_cast<std::byte*>(module) + offset);
}

void Replace(void** slot, const char* name)
{
    for (const Replacement& replacement : replacements)
        if (std::strcmp(replacement.name, name) == 0)
        {
            DWORD before = 0;
            ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
            *slot = replacement.function;
            ::VirtualProtect(slot, sizeof *slot, before, &before);
        }
}

void ReplaceImports(HMODULE module)
{
    if (module == nullptr)
        return;
    const auto* dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* from = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports.VirtualAddress); from->Name != 0; ++from)
    {
        auto* name = At<IMAGE_THUNK_DATA>(module, from->OriginalFirstThunk);
        auto* slot = At<void*>(module, from->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot)
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                Replace(
                    slot,
                    reinterpret_cast<const char*>(
                        At<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(name->u1.AddressOfData))->Name));
    }
}

void Install()
{
    static bool installed;
    if (installed)
        return;
    installed = true;
    for (const wchar_t* name : {L"QuorUiCtrl.dll", L"QuorFx.dll"})
        ReplaceImports(::GetModuleHandleW(name));
    ReplaceImports(::GetModuleHandleW(nullptr));
}

} // namespace

void FailingNew::FailAt(long n)
{
    Install();
    failed = false;
    failAt = n;
}

bool FailingNew::HasFailed()
{
    return failed;
}

long FailingNew::LiveBlocks()
{
    Install();
    return liveBlocks;
}

} // namespace quor::test
