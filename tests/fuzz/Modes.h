// Makes the subject of each mode. With `bare` set, the platform's own control stands in for that of the
// library, where there is one.
#pragma once

#include "tests/fuzz/Subject.h"

#include <memory>

namespace quor::fuzz
{

std::unique_ptr<Subject> MakeGridMode(bool bare);
std::unique_ptr<Subject> MakeTreeRowsMode(bool bare);
std::unique_ptr<Subject> MakeTreeGridMode(bool bare);
std::unique_ptr<Subject> MakeHeadersMode(bool bare);
std::unique_ptr<Subject> MakeEditorsMode(bool bare);
std::unique_ptr<Subject> MakeDragTreeMode(bool bare);
std::unique_ptr<Subject> MakePropertyMode(bool bare);
std::unique_ptr<Subject> MakeListMode(bool bare);
std::unique_ptr<Subject> MakeSelectAllMode(bool bare);

} // namespace quor::fuzz
