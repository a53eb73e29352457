// Walks stacks by the unwind tables of the modules, also from the processor state of a fault.
#include "GuardStack.h"

#include <cstdarg>
#include <cstdio>

namespace quor::guard
{

namespace
{

// Moves the state to the caller's frame. What has no unwind data is a leaf function, or a call through a bad
// pointer.
void StepOut(CONTEXT& context)
{
    DWORD64 image = 0;
    PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(context.Rip, &image, nullptr);
    if (function == nullptr)
    {
        context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp);
        context.Rsp += sizeof(DWORD64);
        return;
    }
    void* handlerData = nullptr;
    DWORD64 frame = 0;
    RtlVirtualUnwind(UNW_FLAG_NHANDLER, image, context.Rip, function, &context, &handlerData, &frame,
                     nullptr);
}

void Walk(CONTEXT context, StackTrace& trace, std::size_t depth, std::size_t skip)
{
    const auto* thread = reinterpret_cast<const NT_TIB*>(NtCurrentTeb());
    const auto low = reinterpret_cast<DWORD64>(thread->StackLimit);
    const auto high = reinterpret_cast<DWORD64>(thread->StackBase);
    std::size_t count = 0;
    while (count < depth && context.Rip != 0 && context.Rsp >= low && context.Rsp + sizeof(DWORD64) <= high)
    {
        if (skip > 0)
            --skip;
        else
            trace.frames[count++] = reinterpret_cast<void*>(context.Rip);
        StepOut(context);
    }
    if (count < MaxFrames)
        trace.frames[count] = nullptr;
}

void PrintFrame(std::size_t index, void* address)
{
    HMODULE module = nullptr;
    char path[MAX_PATH] = "?";
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (GetModuleHandleExA(flags, static_cast<LPCSTR>(address), &module))
        GetModuleFileNameA(module, path, sizeof path);
    // A return address is one past its call, which may belong to the next line.
    const std::size_t back = index > 0 ? 1 : 0;
    const auto offset = reinterpret_cast<std::size_t>(address) - reinterpret_cast<std::size_t>(module) - back;
    Say("    #%zu %s+0x%zx\n", index, path, offset);
}

} // namespace

__attribute__((noinline)) void CaptureHere(StackTrace& trace, std::size_t depth, std::size_t skip)
{
    trace.frames[0] = nullptr;
    if (depth == 0)
        return;
    CONTEXT context;
    RtlCaptureContext(&context);
    Walk(context, trace, depth, skip + 1);
}

void CaptureFrom(StackTrace& trace, const CONTEXT& context)
{
    Walk(context, trace, MaxFrames, 0);
}

void Print(const char* title, const StackTrace& trace)
{
    Say("  %s\n", title);
    for (std::size_t i = 0; i < MaxFrames && trace.frames[i] != nullptr; ++i)
        PrintFrame(i, trace.frames[i]);
}

void Say(const char* format, ...)
{
    char text[600];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (length <= 0)
        return;
    const DWORD size =
        static_cast<DWORD>(length) < sizeof text ? static_cast<DWORD>(length) : sizeof text - 1;
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text, size, &written, nullptr);
}

} // namespace quor::guard
