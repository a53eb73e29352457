// The scope of a user's action.
#include "grid/TGUserAction.h"

#include "grid/model/GridExtensions.h"
#include "grid/TGGrid.h"

namespace QuorUiCtr
{

TGUserAction::TGUserAction(TGGrid& changedGrid, TGActionKind actionKind)
    : grid(changedGrid), kind(actionKind), told(changedGrid.extensions != nullptr)
{
    if (told)
        grid.extensions->BeginAction(kind);
}

TGUserAction::~TGUserAction()
{
    if (told && grid.extensions != nullptr)
        grid.extensions->EndAction(kind);
}

} // namespace QuorUiCtr
