// What a tree's watches are told.
#include "treedrag/TreeWatch.h"

namespace QuorUiCtr
{

bool TreeWatch::IsGone(HTREEITEM item) const
{
    return IsTreeGone() || item == nullptr || deleted.count(item) != 0;
}

void TreeWatch::NoteDeletedItem(TreeWatch* newest, HTREEITEM item)
{
    TellAll(newest, [item](TreeWatch& watch) { watch.deleted.insert(item); });
}

} // namespace QuorUiCtr
