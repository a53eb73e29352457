// The workloads, one function a family; each adds its lines to the report.
#pragma once

#include "Harness.h"

namespace bench
{

// Filling and emptying against the bare data, with limits.
void RunBuild(Report& report);
// Sorting random rows, and rows that are in order.
void RunSort(Report& report);
// Many columns.
void RunColumns(Report& report);
// Filling N x 10 cells: without a window, with one as one change, and row by row.
void RunPopulate(Report& report);
// Full repaints at random positions, compared with the list view and with the bare drawing primitives.
void RunRepaint(Report& report);
// Scrolling by lines, pages and jumps with a paint after each step.
void RunScroll(Report& report);
// Selecting rows one by one in several orders, all at once, and repainting them.
void RunSelection(Report& report);
// Beginning and committing cell edits, with the windows and the memory that they leave.
void RunEdit(Report& report);
// Deleting, pasting and moving rows, and repainting the row header.
void RunCommands(Report& report);
// Moving a folder of a drag tree, with all its items collapsed and expanded.
void RunTreeMove(Report& report);
// Copying, pasting and filling cells.
void RunClipboard(Report& report);
// Undoing and redoing pasted cells and deleted rows.
void RunUndo(Report& report);
// Deleting such a folder with an undo stack, and taking it back.
void RunTreeUndo(Report& report);
// Memory per cell.
void RunMemory(Report& report);
// Trees of groups and items, compared with the tree view.
void RunTreeGrid(Report& report);
// The property grid: filling, look-up by title, paints with few and with many properties.
void RunPropGrid(Report& report);

// The report list: keys that move the current cell.
void RunList(Report& report);

// Growth of what is done with rows: filling, clearing, sorting.
void RunRowGrowth(Report& report);
// Growth of folding and unfolding.
void RunTreeGrowth(Report& report);
// Growth of steps that are to take the same time whatever there is.
void RunScrollGrowth(Report& report);
void RunListGrowth(Report& report);
// Growth of filling a property grid, and of a key press in it.
void RunPropGridGrowth(Report& report);

} // namespace bench
