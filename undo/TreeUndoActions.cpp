// What the tree says of the user's actions, and the moves that it carries out.
#include "undo/TreeUndo.h"

#include "undo/UndoHistory.h"

namespace QuorUiCtr
{

namespace
{

UndoName NameOfAction(TreeAction action)
{
    switch (action)
    {
    case TreeAction::NewFolder:
        return {QuorText::UndoTreeNewFolder, QuorText::UndoTreeNewFolder};
    case TreeAction::Rename:
        return {QuorText::UndoTreeRename, QuorText::UndoTreeRename};
    case TreeAction::Delete:
        return {QuorText::UndoTreeDelete, QuorText::UndoTreeDeleteMany};
    default:
        return {QuorText::UndoTreeMove, QuorText::UndoTreeMove};
    }
}

} // namespace

// ---- Actions

// The name that the user gives to a new folder belongs to its creation.
void TreeUndo::OnActionBegin(TreeAction action)
{
    const bool continues = action == TreeAction::Rename && actions.empty() && naming != 0 &&
                           history.ContinueStep(std::exchange(naming, 0));
    actions.push_back(action);
    if (!continues)
        history.BeginStep(this, NameOfAction(action));
}

void TreeUndo::OnActionEnd()
{
    if (actions.empty())
        return;
    const TreeAction action = actions.back();
    actions.pop_back();
    const auto self = shared_from_this();
    history.EndStep();
    if (action == TreeAction::NewFolder && actions.empty() && tree != nullptr)
        naming = tree->GetEditControl() != nullptr ? history.Position() : 0;
}

void TreeUndo::OnLabelEditEnd()
{
    naming = 0;
}

bool TreeUndo::OnKey(const MSG& message)
{
    return history.GetListener().RunKey(message);
}

// ---- Moves
// A move is a copy and a deletion. When nothing else happened in between, they are recorded as a move, and
// the numbers of the items go over to their copies; else as what they are.

void TreeUndo::OnMoveBegin(HTREEITEM original)
{
    moves.push_back({original});
}

void TreeUndo::OnMoveEnd()
{
    if (moves.empty())
        return;
    if (moves.back().insertion != nullptr)
        moves.back().insertion->isPending = false;
    moves.pop_back();
}

void TreeUndo::OnCopyBegin(HTREEITEM, HTREEITEM parent)
{
    copyParent = ids.IdOf(parent);
    copyLooks = LooksOf(copyParent);
    copied.clear();
    lost.clear();
    if (structural > 0)
        interfered = true;
    own = true;
}

void TreeUndo::OnCopied(HTREEITEM source, HTREEITEM copy)
{
    if (moves.empty())
        return;
    constexpr UINT parts = TVIF_TEXT | TreeLookParts;
    auto original = std::make_unique<TreeItemReader>(*this);
    TreeItemReader its(*this);
    const bool isRead = original->Read(source, parts) && its.Read(copy, parts);
    const UINT unlike = isRead ? PartsUnlike(*original, its, parts) : 0;
    if (unlike != 0)
        ids.IdOf(source);
    if (ids.FindId(source) != NoTreeId)
        copied.emplace_back(source, copy);
    if (unlike != 0)
        lost.push_back({copy, unlike, std::move(original)});
}

void TreeUndo::OnCopyEnd(HTREEITEM copy)
{
    own = false;
    // Amid another message it is that one's affair.
    if (structural == 0 && TakeInterference())
        EndUnclear();
    if (copy == nullptr || tree == nullptr)
        return;
    auto insertion = std::make_unique<TreePlacing>(*this, TreePlacing::Kind::Inserted);
    insertion->tops = {ids.IdOf(copy)};
    insertion->parent = copyParent;
    insertion->parentLooks = copyLooks;
    insertion->isShared = true;
    insertion->Mark(copyParent, TreeAspect::Children);
    // Within a move there may be other copies, which a derived class makes.
    const bool isMoves = !moves.empty() && moves.back().copy == nullptr;
    if (isMoves)
    {
        Move& move = moves.back();
        move.copy = copy;
        move.copied = std::exchange(copied, {});
        move.lost = std::exchange(lost, {});
        if (IsRecording())
            move.insertion = insertion.get();
        insertion->isPending = IsRecording();
    }
    Record(std::move(insertion));
    if (isMoves)
        moves.back().recordedThen = recorded;
}

void TreeUndo::OnMoved(HTREEITEM original, HTREEITEM copy)
{
    if (moves.empty() || moves.back().copy != copy)
        return;
    Move& move = moves.back();
    TreePlacing* const insertion = move.insertion;
    const bool isAlone =
        IsRecording() ? insertion != nullptr && move.recordedThen == recorded : move.recordedThen == recorded;
    if (!isAlone)
        return;
    const TreeId item = ids.IdOf(original);
    const TreePlace from = PlaceOf(original, copy);
    if (insertion != nullptr)
    {
        insertion->otherLooks = LooksOf(from.parent);
        insertion->BecomeMove(item, from);
        insertion->Mark(from.parent, TreeAspect::Children);
    }
    else
        ids.Touch(from.parent, TreeAspect::Children);
    ids.Bind(item, copy);
    for (const auto& [source, its] : move.copied)
        if (const TreeId id = ids.FindId(source); id != NoTreeId)
            ids.Bind(id, its);
    for (const Lost& part : move.lost)
        RecordChange(part.copy, part.parts, *part.original);
    replaced = original;
}

void TreeUndo::ForgetInsertion(const TreePlacing* insertion)
{
    for (Move& move : moves)
        if (move.insertion == insertion)
            move.insertion = nullptr;
}

} // namespace QuorUiCtr
