// The chain of a tree's watches.
#include "treedrag/TreeWatch.h"

namespace QuorUiCtr
{

TreeWatch::TreeWatch(TreeWatch*& newest) : newestOfTree(&newest), older(newest)
{
    newest = this;
}

TreeWatch::~TreeWatch()
{
    if (newestOfTree != nullptr)
        *newestOfTree = older;
}

bool TreeWatch::IsGone(HTREEITEM item) const
{
    return IsTreeGone() || item == nullptr || deleted.count(item) != 0;
}

void TreeWatch::NoteDeletedItem(TreeWatch* newest, HTREEITEM item)
{
    for (TreeWatch* watch = newest; watch != nullptr; watch = watch->older)
        watch->deleted.insert(item);
}

void TreeWatch::NoteTreeGone(TreeWatch*& newest)
{
    for (TreeWatch* watch = newest; watch != nullptr; watch = watch->older)
        watch->newestOfTree = nullptr;
    newest = nullptr;
}

} // namespace QuorUiCtr
