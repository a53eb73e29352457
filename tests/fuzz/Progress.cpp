// The memory stays mapped until the process ends.
#include "tests/fuzz/Progress.h"

namespace quor::fuzz
{

Progress* OpenProgress(const wchar_t* name)
{
    const HANDLE mapping =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Progress), name);
    if (mapping == nullptr)
        return nullptr;
    return static_cast<Progress*>(MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Progress)));
}

} // namespace quor::fuzz
