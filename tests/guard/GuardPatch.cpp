// Redirects the allocation functions of libstdc++-6.dll. All modules of the process import new and delete
// from there, so a block may be made in one module and deleted in another.
#include "GuardReport.h"

#include <malloc.h>

#include <cstdlib>
#include <cstring>
#include <new>

namespace quor::guard
{

namespace
{

constexpr std::size_t UnknownSize = ~std::size_t{0};

// As the standard asks: the new-handler may make room, or throw.
void* AllocateOrThrow(std::size_t size, std::size_t alignment, Form form)
{
    for (;;)
    {
        if (void* user = Allocate(size, alignment, form))
            return user;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr)
            throw std::bad_alloc();
        handler();
    }
}

void CheckBeforeDelete(const Block* block, const void* user, Form form, std::size_t size)
{
    if (block == nullptr || block->user != user)
        ReportAndEnd("delete of a pointer that new never returned:", user, block);
    if (!block->live)
        ReportAndEnd("double delete of", user, block);
    if (block->form != form)
        ReportAndEnd("new and delete[], or new[] and delete, mismatched on", user, block);
    if (size != UnknownSize && size != block->size)
        ReportAndEnd("delete with the wrong size (no virtual destructor?) of", user, block);
    if (!block->IntactBefore())
        ReportAndEnd("bytes BEFORE the block were overwritten:", user, block);
    if (!block->IntactAfter())
        ReportAndEnd("bytes AFTER the block were overwritten:", user, block);
}

void Delete(void* user, Form form, std::size_t size)
{
    Block* block = FindBlock(user);
    CheckBeforeDelete(block, user, form, size);
    if (!Release(*block))
        ReportAndEnd("double delete of", user, block);
}

// Blocks that the runtime made before it was patched come from malloc.
template <Form form> void DeletePlain(void* user)
{
    if (IsOurs(user))
        Delete(user, form, UnknownSize);
    else
        std::free(user);
}

template <Form form> void DeleteSized(void* user, std::size_t size)
{
    if (IsOurs(user))
        Delete(user, form, size);
    else
        std::free(user);
}

template <Form form> void DeleteAligned(void* user, std::size_t)
{
    if (IsOurs(user))
        Delete(user, form, UnknownSize);
    else
        _aligned_free(user);
}

template <Form form> void DeleteSizedAligned(void* user, std::size_t size, std::size_t)
{
    if (IsOurs(user))
        Delete(user, form, size);
    else
        _aligned_free(user);
}

template <Form form> void* New(std::size_t size)
{
    return AllocateOrThrow(size, 1, form);
}

template <Form form> void* NewAligned(std::size_t size, std::size_t alignment)
{
    return AllocateOrThrow(size, alignment, form);
}

// Overwrites the function with a jump: jmp [rip+0], then the address.
void Redirect(HMODULE module, const char* name, void* target)
{
    constexpr std::size_t Size = 14;
    auto* function = reinterpret_cast<unsigned char*>(GetProcAddress(module, name));
    DWORD protection = 0;
    if (function == nullptr || !VirtualProtect(function, Size, PAGE_EXECUTE_READWRITE, &protection))
    {
        Say("GUARD: cannot redirect %s\n", name);
        EndProcess();
    }
    constexpr unsigned char Jump[6] = {0xFF, 0x25, 0, 0, 0, 0};
    std::memcpy(function, Jump, sizeof Jump);
    std::memcpy(function + sizeof Jump, &target, sizeof target);
    VirtualProtect(function, Size, protection, &protection);
}

template <typename Function> void* Address(Function* function)
{
    return reinterpret_cast<void*>(function);
}

} // namespace

// The other forms in libstdc++ (nothrow) forward to these.
void PatchRuntime()
{
    const struct
    {
        const char* name;
        void* target;
    } redirections[] = {
        {"_Znwy", Address(New<Form::Scalar>)},
        {"_Znay", Address(New<Form::Array>)},
        {"_ZnwySt11align_val_t", Address(NewAligned<Form::Scalar>)},
        {"_ZnaySt11align_val_t", Address(NewAligned<Form::Array>)},
        {"_ZdlPv", Address(DeletePlain<Form::Scalar>)},
        {"_ZdaPv", Address(DeletePlain<Form::Array>)},
        {"_ZdlPvy", Address(DeleteSized<Form::Scalar>)},
        {"_ZdaPvy", Address(DeleteSized<Form::Array>)},
        {"_ZdlPvSt11align_val_t", Address(DeleteAligned<Form::Scalar>)},
        {"_ZdaPvSt11align_val_t", Address(DeleteAligned<Form::Array>)},
        {"_ZdlPvySt11align_val_t", Address(DeleteSizedAligned<Form::Scalar>)},
        {"_ZdaPvySt11align_val_t", Address(DeleteSizedAligned<Form::Array>)},
    };
    const HMODULE runtime = GetModuleHandleA("libstdc++-6.dll");
    for (const auto& redirection : redirections)
        Redirect(runtime, redirection.name, redirection.target);
}

} // namespace quor::guard
