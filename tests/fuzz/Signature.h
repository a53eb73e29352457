// What tells one failure from another.
#pragma once

#include <string>

namespace quor::fuzz
{

// From what a process wrote before it ended with that code: the first line that names a fault, and the place
// in the code when there is one, without numbers that differ from run to run.
std::string SignatureOf(const std::string& output, unsigned long exitCode);

} // namespace quor::fuzz
