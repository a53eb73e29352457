// Many changes of a grid as one, whatever ends the scope.
#include "grid/TGGridUpdate.h"

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

TGGridUpdate::TGGridUpdate(TGGrid& updatedGrid) : grid(updatedGrid)
{
    grid.BeginUpdate();
}

TGGridUpdate::~TGGridUpdate()
{
    try
    {
        grid.EndUpdate();
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (...)
    {
    }
}

} // namespace QuorUiCtr
