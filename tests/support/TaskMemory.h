// Counts the blocks of the task allocator, which the texts of automation (BSTR) come from.
#pragma once

namespace quor::test
{

// How many blocks were taken and not given back since the first call, which begins to count. From then on
// texts that are given back are freed at once, and not kept for the next one of their size.
int CountTaskBlocks();

} // namespace quor::test
