// What must hold for a grid after every step.
#pragma once

#include "grid/TGGrid.h"

namespace quor::fuzz
{

// Fails with a sentence when something contradicts itself.
void CheckGrid(QuorUiCtr::TGGrid& grid);

// A number that sums up rows, columns, selection and edit.
unsigned long DigestOfGrid(QuorUiCtr::TGGrid& grid);

} // namespace quor::fuzz
