// Workload: memory per cell, read from the growth of the process's private memory.
#include "Subjects.h"
#include "Workloads.h"

namespace bench
{
namespace
{

// Each subject is kept alive until both are measured, so that neither profits from the other's freed memory.
template <typename Fill> double BytesPerCell(long rows, Fill fill)
{
    const double before = WorkingSetBytes();
    fill();
    return (WorkingSetBytes() - before) / static_cast<double>(rows * ColumnCount);
}

} // namespace

void RunMemory(Report& report)
{
    constexpr long Rows = 100000;
    GridSubject grid(nullptr);
    RawTable table;
    const double ours = BytesPerCell(Rows, [&] { grid.AppendRows(Rows); });
    const double floor = BytesPerCell(Rows, [&] { FillRawTable(table, Rows); });
    // The cell itself has 48 bytes, the slot in the row's list 24 and the block of the text 32; the rest is
    // the share in the row.
    report.Add({"memory per cell of 8 characters (bytes)", Rows, ours, "vectors of wstring", floor, 1.2});
}

} // namespace bench
