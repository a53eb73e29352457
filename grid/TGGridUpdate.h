// TGGridUpdate: many changes of a grid as one.
#pragma once

#include "module/QuorExport.h"

namespace QuorUiCtr
{

class TGGrid;

// BeginUpdate and EndUpdate of a grid for the length of a scope:
//
//     {
//         const TGGridUpdate update(grid);
//         for (const Part& part : parts)
//             grid.AppendRow(MakeRow(part));
//     }                                       // one layout, one repaint
class QUOR_EXT_CLASS TGGridUpdate
{
public:
    // The grid must outlive the scope; its window need not.
    explicit TGGridUpdate(TGGrid& updatedGrid);
    // Throws nothing: a layout that gets no memory is made up for by the next one.
    ~TGGridUpdate();
    TGGridUpdate(const TGGridUpdate&) = delete;
    TGGridUpdate& operator=(const TGGridUpdate&) = delete;

private:
    TGGrid& grid;
};

} // namespace QuorUiCtr
