// The simple model of a tree grid.
#include "tests/grid/ReferenceTree.h"

#include <algorithm>
#include <deque>

namespace quor::test
{
namespace
{

using Node = ReferenceNode;
using Nodes = ReferenceNodes;

void Collect(const Nodes& nodes, bool shownOnly, std::vector<Node*>& found)
{
    for (const auto& node : nodes)
    {
        found.push_back(node.get());
        if (!shownOnly || node->unfolded)
            Collect(node->children, shownOnly, found);
    }
}

void CollectLeaves(const Nodes& nodes, std::vector<Node*>& leaves)
{
    for (const auto& node : nodes)
    {
        if (!node->IsGroup())
            leaves.push_back(node.get());
        CollectLeaves(node->children, leaves);
    }
}

// A row assignment: fold state and texts, no host data.
std::unique_ptr<Node> RowCopy(const Node& source)
{
    auto copy = std::make_unique<Node>();
    copy->label = source.label;
    copy->id = source.id;
    copy->unfolded = source.unfolded;
    return copy;
}

std::unique_ptr<Node> TreeCopy(const Node& source)
{
    auto copy = RowCopy(source);
    for (const auto& child : source.children)
    {
        copy->children.push_back(TreeCopy(*child));
        copy->children.back()->parent = copy.get();
    }
    return copy;
}

void DeselectBelow(Node& node)
{
    for (const auto& child : node.children)
    {
        child->selected = false;
        DeselectBelow(*child);
    }
}

void ArrangeNodes(Nodes& nodes, bool ascending, long col)
{
    const auto text = [col](const std::unique_ptr<Node>& node) {
        return NumberText(col == 0 ? node->label : node->id);
    };
    std::stable_sort(nodes.begin(), nodes.end(), [&](const auto& first, const auto& second) {
        return ascending ? text(first) < text(second) : text(first) > text(second);
    });
    for (const auto& node : nodes)
        ArrangeNodes(node->children, ascending, col);
}

} // namespace

std::wstring NumberText(long number)
{
    return number == 0 ? std::wstring() : std::to_wstring(number);
}

// ---- Rows

std::vector<Node*> ReferenceTree::Shown() const
{
    std::vector<Node*> shown;
    Collect(roots, true, shown);
    return shown;
}

std::vector<Node*> ReferenceTree::Selected() const
{
    std::vector<Node*> selected = Shown();
    std::erase_if(selected, [](const Node* node) { return !node->selected; });
    return selected;
}

std::vector<Node*> ReferenceTree::All() const
{
    std::vector<Node*> all;
    Collect(roots, false, all);
    return all;
}

std::vector<Node*> ReferenceTree::Leaves(bool withBuffer) const
{
    std::vector<Node*> leaves;
    CollectLeaves(roots, leaves);
    if (withBuffer)
        CollectLeaves(buffer, leaves);
    return leaves;
}

Node* ReferenceTree::OnlySelected() const
{
    const std::vector<Node*> selected = Selected();
    return selected.size() == 1 ? selected[0] : nullptr;
}

void ReferenceTree::UnSelect()
{
    for (Node* node : Selected())
        node->selected = false;
}

void ReferenceTree::Clear()
{
    roots.clear();
}

long ReferenceTree::RankOf(const Node& node)
{
    long rank = 0;
    for (const auto& sibling : SiblingsOf(node))
    {
        if (sibling.get() == &node)
            break;
        ++rank;
    }
    return rank;
}

std::unique_ptr<Node> ReferenceTree::TakeOut(Node& node)
{
    Nodes& siblings = SiblingsOf(node);
    const auto place = siblings.begin() + RankOf(node);
    std::unique_ptr<Node> taken = std::move(*place);
    siblings.erase(place);
    taken->parent = nullptr;
    taken->selected = false;
    return taken;
}

void ReferenceTree::PutIn(Node* parent, long rank, std::unique_ptr<Node> node)
{
    node->parent = parent;
    Nodes& siblings = SiblingsOf(*node);
    siblings.insert(siblings.begin() + rank, std::move(node));
}

void ReferenceTree::Number(Node& node, bool inserted)
{
    if (node.data == 0)
    {
        node.data = node.label = ++lastData;
        if (inserted && repairs && !node.IsGroup())
            node.id = AutoId(node.id);
    }
    for (const auto& child : node.children)
        Number(*child, inserted);
}

// ---- Identifiers

long ReferenceTree::AutoId(long id) const
{
    long maximum = 0;
    long holders = 0;
    for (const Node* leaf : Leaves(true))
    {
        maximum = (std::max)(maximum, leaf->id);
        holders += leaf->id == id ? 1 : 0;
    }
    return holders >= 2 || id == 0 ? maximum + 1 : id;
}

bool ReferenceTree::IsRightLabel(long id) const
{
    const std::vector<Node*> leaves = Leaves(true);
    return id != 0 &&
           std::none_of(leaves.begin(), leaves.end(), [id](const Node* leaf) { return leaf->id == id; });
}

std::vector<Node*> ReferenceTree::TouchedParents() const
{
    std::vector<Node*> touched;
    for (Node* node : Selected())
        if (Node* parent = node->parent; parent != nullptr && !parent->selected &&
                                         std::find(touched.begin(), touched.end(), parent) == touched.end())
            touched.push_back(parent);
    return touched;
}

void ReferenceTree::Repair(const std::vector<Node*>& parents)
{
    const std::vector<Node*> present = All();
    for (Node* parent : parents)
        if (std::find(present.begin(), present.end(), parent) != present.end() && !parent->IsGroup())
            parent->id = AutoId(parent->id);
}

// ---- New rows

std::unique_ptr<Node> ReferenceTree::NewRow() const
{
    const Node* beside = OnlySelected();
    return beside != nullptr && !beside->IsGroup() ? RowCopy(*beside) : std::make_unique<Node>();
}

bool ReferenceTree::InsertRow(bool after, bool asTree)
{
    Node* beside = OnlySelected();
    if (beside == nullptr)
        return false;
    auto made = asTree ? std::make_unique<Node>() : NewRow();
    Node& row = *made;
    if (after)
        Fold(*beside);
    beside->selected = false;
    PutIn(beside->parent, RankOf(*beside) + (after ? 1 : 0), std::move(made));
    if (asTree)
        PutIn(&row, 0, std::make_unique<Node>());
    row.selected = true;
    Number(row, true);
    return true;
}

bool ReferenceTree::AppendRow(bool select)
{
    auto made = NewRow();
    UnSelect();
    made->selected = select;
    roots.push_back(std::move(made));
    Number(*roots.back(), true);
    return true;
}

bool ReferenceTree::AppendTree()
{
    roots.push_back(std::make_unique<Node>());
    PutIn(roots.back().get(), 0, std::make_unique<Node>());
    Number(*roots.back(), true);
    return true;
}

bool ReferenceTree::AppendChild()
{
    Node* parent = OnlySelected();
    if (parent == nullptr)
        return false;
    auto made = NewRow();
    made->selected = parent->unfolded;
    PutIn(parent, static_cast<long>(parent->children.size()), std::move(made));
    Number(*parent->children.back(), true);
    return true;
}

// ---- Delete, copy, cut, paste, move

bool ReferenceTree::Delete()
{
    const std::vector<Node*> selected = Selected();
    if (selected.empty())
        return false;
    const std::vector<Node*> touched = TouchedParents();
    for (auto node = selected.rbegin(); node != selected.rend(); ++node)
        TakeOut(**node);
    Repair(touched);
    return true;
}

bool ReferenceTree::Copy()
{
    buffer.clear();
    bufferIsCut = false;
    for (const Node* node : Selected())
        buffer.push_back(node->unfolded ? RowCopy(*node) : TreeCopy(*node));
    return true;
}

bool ReferenceTree::Cut()
{
    const std::vector<Node*> touched = TouchedParents();
    buffer.clear();
    CutSelected();
    bufferIsCut = true;
    Repair(touched);
    return true;
}

void ReferenceTree::CutSelected()
{
    for (Node* node : Selected())
        if (node->selected && node->IsGroup())
            Fold(*node);
    for (Node* node : Selected())
        buffer.push_back(TakeOut(*node));
}

bool ReferenceTree::Paste()
{
    const std::vector<Node*> selected = Selected();
    if (selected.size() > 1 || buffer.empty())
        return false;
    const std::vector<Node*> shown = Shown();
    const auto target = selected.empty() ? shown.end() : std::find(shown.begin(), shown.end(), selected[0]);
    PlaceBuffer(static_cast<long>(target - shown.begin()));
    EndPaste();
    return true;
}

void ReferenceTree::PlaceBuffer(long at)
{
    UnSelect();
    const std::vector<Node*> shown = Shown();
    const bool atEnd = at >= static_cast<long>(shown.size());
    Node* follower = atEnd ? nullptr : shown[static_cast<std::size_t>(at)];
    for (auto& node : buffer)
    {
        node->selected = true;
        if (follower != nullptr)
            PutIn(follower->parent, RankOf(*follower), std::move(node));
    }
    if (follower == nullptr)
        for (auto node = buffer.rbegin(); node != buffer.rend(); ++node)
            roots.push_back(std::move(*node));
    buffer.clear();
}

bool ReferenceTree::PasteChild()
{
    Node* parent = OnlySelected();
    if (parent == nullptr || buffer.empty())
        return false;
    UnSelect();
    UnFold(*parent);
    for (auto& node : buffer)
    {
        node->selected = true;
        PutIn(parent, static_cast<long>(parent->children.size()), std::move(node));
    }
    buffer.clear();
    EndPaste();
    return true;
}

void ReferenceTree::EndPaste()
{
    const std::vector<Node*> pasted = Selected();
    std::deque<Node*> waiting(pasted.begin(), pasted.end());
    for (; !waiting.empty(); waiting.pop_front())
    {
        Node* node = waiting.front();
        for (const auto& child : node->children)
            waiting.push_back(child.get());
        if (!node->IsGroup())
            node->id = AutoId(node->id);
    }
    for (Node* node : pasted)
        Number(*node, false);
}

void ReferenceTree::Move(long to)
{
    const std::vector<Node*> touched = TouchedParents();
    const std::vector<Node*> shown = Shown();
    const auto above =
        std::count_if(shown.begin(), shown.begin() + to, [](const Node* node) { return node->selected; });
    Nodes aside = std::move(buffer);
    buffer.clear();
    CutSelected();
    PlaceBuffer((std::min)(to - static_cast<long>(above), static_cast<long>(Shown().size())));
    buffer = std::move(aside);
    Repair(touched);
}

// ---- Order, search, folding

void ReferenceTree::Arrange(bool ascending, long col)
{
    ArrangeNodes(roots, ascending, col);
}

bool ReferenceTree::FindAndSel(long number, long col)
{
    for (Node* node : All())
    {
        if ((col == 0 ? node->label : node->id) != number)
            continue;
        for (Node* above = node->parent; above != nullptr; above = above->parent)
            UnFold(*above);
        UnSelect();
        node->selected = true;
        return true;
    }
    return false;
}

void ReferenceTree::Fold(Node& node)
{
    node.unfolded = false;
    DeselectBelow(node);
}

void ReferenceTree::FoldAll(Node& node)
{
    Fold(node);
    for (const auto& child : node.children)
        FoldAll(*child);
}

void ReferenceTree::UnFoldAll(Node& node)
{
    UnFold(node);
    for (const auto& child : node.children)
        UnFoldAll(*child);
}

} // namespace quor::test
