// Operations of the grid for tests that let their allocations fail.
#pragma once

#include "grid/TGGrid.h"

#include <span>
#include <string>

namespace quor::test
{

struct Operation
{
    const char* name;
    void (*run)(QuorUiCtr::TGGrid& grid);
};

// Change nothing when they throw; those of trees need a tree grid.
extern const std::span<const Operation> StructureOperations;
extern const std::span<const Operation> TreeOperations;
// Run hooks between their steps, or assign texts first, and may stop between two of them; nothing is lost.
extern const std::span<const Operation> Commands;

// Three columns; rows a b c d, or a(b(c) d) with a unfolded, e(f), g, h; a row in the buffer; row 1 is
// selected.
void FillModel(QuorUiCtr::TGGrid& grid);
// Everything that a host can see of the model.
std::string Describe(QuorUiCtr::TGGrid& grid);

// Runs an operation with the n-th allocation failing; false when it has no n-th one.
bool RunFailing(const Operation& operation, QuorUiCtr::TGGrid& grid, long n, bool& thrown);
// Rows and columns can be looked at, taken out and added.
void ExpectUsable(QuorUiCtr::TGGrid& grid);

} // namespace quor::test
