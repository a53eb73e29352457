// The numbers of a tree's items.
#include "undo/TreeIds.h"

namespace QuorUiCtr
{

TreeId TreeIds::IdOf(HTREEITEM item)
{
    const TreeId known = FindId(item);
    if (known != NoTreeId)
        return known;
    Bind(++newestId, item);
    return newestId;
}

TreeId TreeIds::FindId(HTREEITEM item) const
{
    if (item == nullptr || item == TVI_ROOT)
        return RootTreeId;
    const auto found = ids.find(item);
    return found == ids.end() ? NoTreeId : found->second;
}

HTREEITEM TreeIds::ItemOf(TreeId id) const
{
    if (id == RootTreeId)
        return TVI_ROOT;
    const auto found = items.find(id);
    return found == items.end() ? nullptr : found->second;
}

void TreeIds::Bind(TreeId id, HTREEITEM item)
{
    const auto oldItem = items.find(id);
    if (oldItem != items.end())
        ids.erase(oldItem->second);
    const auto oldId = ids.find(item);
    if (oldId != ids.end() && oldId->second != id)
        Lose(oldId->second);
    ids[item] = id;
    items[id] = item;
}

void TreeIds::Unbind(HTREEITEM item)
{
    const auto found = ids.find(item);
    if (found == ids.end())
        return;
    const TreeId id = found->second;
    ids.erase(found);
    Lose(id);
}

void TreeIds::Lose(TreeId id)
{
    items.erase(id);
    for (unsigned aspect = 0; aspect < TreeAspectCount; ++aspect)
        DropUnused(id, static_cast<TreeAspect>(aspect));
}

TreeMark TreeIds::GetMark(TreeId id, TreeAspect aspect) const
{
    const auto found = marks.find(KeyOf(id, aspect));
    return found == marks.end() ? usualMark : found->second.mark;
}

void TreeIds::SetMark(TreeId id, TreeAspect aspect, TreeMark mark)
{
    const auto found = marks.find(KeyOf(id, aspect));
    if (found != marks.end())
        found->second.mark = mark;
    else if (IsThere(id))
        marks.insert({KeyOf(id, aspect), {mark, 0}});
}

void TreeIds::UseMark(TreeId id, TreeAspect aspect)
{
    ++marks.insert({KeyOf(id, aspect), {usualMark, 0}}).first->second.users;
}

void TreeIds::ReleaseMark(TreeId id, TreeAspect aspect)
{
    const auto found = marks.find(KeyOf(id, aspect));
    if (found == marks.end())
        return;
    --found->second.users;
    if (!IsThere(id))
        DropUnused(id, aspect);
}

void TreeIds::DropUnused(TreeId id, TreeAspect aspect)
{
    const auto found = marks.find(KeyOf(id, aspect));
    if (found != marks.end() && found->second.users <= 0)
        marks.erase(found);
}

void TreeIds::TouchAll(TreeId id)
{
    for (unsigned aspect = 0; aspect < TreeAspectCount; ++aspect)
        Touch(id, static_cast<TreeAspect>(aspect));
}

void TreeIds::Clear()
{
    ids.clear();
    items.clear();
    marks.clear();
    usualMark = NewMark();
}

} // namespace QuorUiCtr
