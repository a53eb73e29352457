// Exception handlers that recognise faults in guarded memory and describe all that nobody else handles.
#include "GuardReport.h"

#include <csignal>

namespace quor::guard
{

namespace
{

// The block that a fault at the address is about. With blocks behind their inaccessible page, the page in
// front of a block is that block's.
const Block* BlamedBlock(const char* address)
{
    const Block* block = FindBlock(address);
    if (block == nullptr)
        return BlockCount() > 0 ? &BlockAt(0) : nullptr;
    if (Options().underflow && address >= block->base + block->span)
        if (const Block* next = NextBlock(*block))
            return next;
    return block;
}

const char* NameOfFault(const Block* block, bool write)
{
    if (block != nullptr && !block->live)
        return write ? "use after delete, WRITE of" : "use after delete, READ of";
    return write ? "heap out of bounds, WRITE of" : "heap out of bounds, READ of";
}

// A fault inside the arena is always a bug; any other may have a handler and is left to it.
LONG CALLBACK OnFault(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    const auto* address = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    if (record.ExceptionCode != EXCEPTION_ACCESS_VIOLATION || !IsOurs(address))
        return EXCEPTION_CONTINUE_SEARCH;
    const Block* block = BlamedBlock(address);
    ReportAndEnd(NameOfFault(block, record.ExceptionInformation[0] != 0), address, block,
                 pointers->ContextRecord);
}

const char* NameOfException(DWORD code)
{
    switch (code)
    {
    case EXCEPTION_ACCESS_VIOLATION:
        return "access violation";
    case EXCEPTION_ILLEGAL_INSTRUCTION:
        return "undefined behaviour trapped, or stack overwritten";
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
        return "division by zero";
    case EXCEPTION_STACK_OVERFLOW:
        return "stack overflow";
    default:
        return "unhandled exception";
    }
}

LONG WINAPI OnUnhandled(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    Say("\nGUARD: exception %08lx, data address %p", record.ExceptionCode,
        reinterpret_cast<void*>(record.ExceptionInformation[1]));
    ReportAndEnd(NameOfException(record.ExceptionCode), record.ExceptionAddress, nullptr,
                 pointers->ContextRecord);
}

void OnAbort(int)
{
    ReportAndEnd("abort(): failed assertion or std::terminate", nullptr, nullptr);
}

} // namespace

void InstallFaultHandlers()
{
    AddVectoredExceptionHandler(1, OnFault);
    // The start-up code of the program installs its own filter later; it passes on what it does not handle.
    SetUnhandledExceptionFilter(OnUnhandled);
    std::signal(SIGABRT, OnAbort);
}

} // namespace quor::guard
