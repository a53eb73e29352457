// The rules of moving on nested vectors.
#include "tests/treedrag/ReferenceTree.h"

#include <algorithm>
#include <cctype>
#include <functional>

namespace quor::test
{

namespace
{

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return text;
}

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(" \t");
    const size_t last = text.find_last_not_of(" \t");
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

void Visit(ReferenceNode& parent, bool shownOnly, std::vector<ReferenceNode*>& found)
{
    for (const auto& child : parent.children)
    {
        found.push_back(child.get());
        if (!shownOnly || child->isExpanded)
            Visit(*child, shownOnly, found);
    }
}

bool IsSelfOrBelow(const ReferenceNode* node, const ReferenceNode& ancestor)
{
    while (node != nullptr && node != &ancestor)
        node = node->parent;
    return node != nullptr;
}

void DescribeBelow(const ReferenceNode& parent, int level, std::string& all)
{
    for (const auto& child : parent.children)
    {
        all += std::string(static_cast<size_t>(level), ' ') + child->name + (child->IsOpen() ? "+" : "") +
               " " + std::to_string(child->image) + "," + std::to_string(child->selectedImage) +
               (child->isChecked ? " checked " : " ") + std::to_string(child->data) + "\n";
        DescribeBelow(*child, level + 1, all);
    }
}

} // namespace

std::vector<ReferenceNode*> ReferenceTree::AllNodes()
{
    std::vector<ReferenceNode*> found;
    Visit(m_root, false, found);
    return found;
}

std::vector<ReferenceNode*> ReferenceTree::ShownNodes()
{
    std::vector<ReferenceNode*> found;
    Visit(m_root, true, found);
    return found;
}

ReferenceNode& ReferenceTree::Append(ReferenceNode& parent, const std::string& name, bool isFolder)
{
    parent.children.push_back(std::make_unique<ReferenceNode>());
    ReferenceNode& node = *parent.children.back();
    node.name = name;
    node.image = node.selectedImage = isFolder ? 0 : 1;
    node.parent = &parent;
    return node;
}

size_t ReferenceTree::IndexOf(const ReferenceNode& node)
{
    const auto& siblings = node.parent->children;
    return static_cast<size_t>(std::find_if(siblings.begin(), siblings.end(),
                                            [&](const auto& sibling) { return sibling.get() == &node; }) -
                               siblings.begin());
}

ReferenceNode* ReferenceTree::Sibling(const ReferenceNode& node, int distance)
{
    const size_t index = IndexOf(node) + static_cast<size_t>(distance);
    return index < node.parent->children.size() ? node.parent->children[index].get() : nullptr;
}

bool ReferenceTree::HasName(const ReferenceNode& parent, const std::string& name, const ReferenceNode* except)
{
    return std::any_of(parent.children.begin(), parent.children.end(), [&](const auto& child) {
        return child.get() != except && Lower(child->name) == Lower(name);
    });
}

void ReferenceTree::Show(ReferenceNode& node)
{
    for (ReferenceNode* above = node.parent; above != nullptr; above = above->parent)
        above->isExpanded = true;
}

void ReferenceTree::Place(ReferenceNode& node, ReferenceNode& newParent, ReferenceNode& target, bool above)
{
    auto& source = node.parent->children;
    const auto at = source.begin() + static_cast<std::ptrdiff_t>(IndexOf(node));
    std::unique_ptr<ReferenceNode> moved = std::move(*at);
    source.erase(at);
    moved->parent = &newParent;
    const size_t index = &newParent == &target ? 0 : IndexOf(target) + (above ? 0 : 1);
    newParent.children.insert(newParent.children.begin() + static_cast<std::ptrdiff_t>(index),
                              std::move(moved));
    Show(node);
}

void ReferenceTree::Drop(ReferenceNode& node, ReferenceNode& pointed, bool upperHalf)
{
    const bool isFirstChild = !upperHalf && pointed.IsOpen();
    ReferenceNode& target = isFirstChild ? *pointed.children.front() : pointed;
    const bool above = upperHalf || isFirstChild;
    const bool goesInto = !above && target.IsEmptyFolder();
    ReferenceNode& newParent = goesInto ? target : *target.parent;
    if (&target == &node || IsSelfOrBelow(&newParent, node))
        return;
    if (!goesInto && &target == Sibling(node, above ? 1 : -1))
        return;
    Place(node, newParent, target, above);
}

bool ReferenceTree::MoveTo(ReferenceNode& node, ReferenceNode* target, bool above, bool intoEmpty,
                           bool uniqueNames)
{
    if (target == nullptr || target == &m_root)
        return false;
    ReferenceNode& newParent = intoEmpty ? *target : *target->parent;
    if (uniqueNames && &newParent != node.parent && HasName(newParent, node.name, nullptr))
        return true;
    Place(node, newParent, *target, above);
    return false;
}

bool ReferenceTree::MoveUp(ReferenceNode& node, bool uniqueNames)
{
    ReferenceNode* const previous = Sibling(node, -1);
    if (previous == nullptr)
        return MoveTo(node, node.parent, true, false, uniqueNames);
    if (previous->IsOpen())
        return MoveTo(node, previous->children.back().get(), false, false, uniqueNames);
    const bool intoEmpty = previous->IsEmptyFolder();
    return MoveTo(node, previous, !intoEmpty, intoEmpty, uniqueNames);
}

bool ReferenceTree::MoveDown(ReferenceNode& node, bool uniqueNames)
{
    ReferenceNode* const next = Sibling(node, 1);
    if (next == nullptr)
        return MoveTo(node, node.parent, false, false, uniqueNames);
    if (next->IsOpen())
        return MoveTo(node, next->children.front().get(), true, false, uniqueNames);
    return MoveTo(node, next, false, next->IsEmptyFolder(), uniqueNames);
}

ReferenceNode& ReferenceTree::NewFolder(ReferenceNode* selected, bool uniqueNames)
{
    const bool isFirst = selected == nullptr || selected->image == 0;
    ReferenceNode& parent = selected == nullptr ? m_root : isFirst ? *selected : *selected->parent;
    std::string name = "New Folder";
    for (int number = 1; uniqueNames && HasName(parent, name, nullptr); ++number)
        name = "New Folder " + std::to_string(number);
    const size_t index = isFirst ? 0 : IndexOf(*selected) + 1;
    ReferenceNode& folder = Append(parent, name, true);
    std::rotate(parent.children.begin() + static_cast<std::ptrdiff_t>(index), parent.children.end() - 1,
                parent.children.end());
    Show(folder);
    return folder;
}

bool ReferenceTree::Rename(ReferenceNode& node, const std::string& text, bool uniqueNames)
{
    const std::string name = Trimmed(text);
    if (name.empty())
        return false;
    if (uniqueNames && HasName(*node.parent, name, &node))
        return true;
    node.name = name;
    return false;
}

void ReferenceTree::Delete(ReferenceNode& node)
{
    auto& siblings = node.parent->children;
    siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(IndexOf(node)));
}

std::string ReferenceTree::Describe() const
{
    std::string all;
    DescribeBelow(m_root, 0, all);
    return all;
}

} // namespace quor::test
