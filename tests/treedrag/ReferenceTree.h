// A simple tree of named nodes that follows the rules of moving, to compare the control with.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace quor::test
{

struct ReferenceNode
{
    std::string name;
    int image = 1;
    int selectedImage = 1;
    bool isChecked = false;
    unsigned long long data = 0;
    bool isExpanded = false;
    ReferenceNode* parent = nullptr;
    std::vector<std::unique_ptr<ReferenceNode>> children;

    bool IsOpen() const { return isExpanded && !children.empty(); }
    bool IsEmptyFolder() const { return image == 0 && children.empty(); }
};

class ReferenceTree
{
public:
    ReferenceTree() = default;

    // The invisible node above the root items.
    ReferenceNode& Root() { return m_root; }
    // All nodes from the top, or those that no closed folder hides.
    std::vector<ReferenceNode*> AllNodes();
    std::vector<ReferenceNode*> ShownNodes();

    // Appends an ordinary node, or a folder, to a parent.
    ReferenceNode& Append(ReferenceNode& parent, const std::string& name, bool isFolder);

    void Drop(ReferenceNode& node, ReferenceNode& target, bool upperHalf);
    // Return whether the name is refused where names must be unique.
    bool MoveUp(ReferenceNode& node, bool uniqueNames);
    bool MoveDown(ReferenceNode& node, bool uniqueNames);
    // Inserts a folder next to, or into, the selected node.
    ReferenceNode& NewFolder(ReferenceNode* selected, bool uniqueNames);
    bool Rename(ReferenceNode& node, const std::string& text, bool uniqueNames);
    void Delete(ReferenceNode& node);

    // Everything there is to compare, as a line for each node.
    std::string Describe() const;

private:
    static size_t IndexOf(const ReferenceNode& node);
    static ReferenceNode* Sibling(const ReferenceNode& node, int distance);
    static bool HasName(const ReferenceNode& parent, const std::string& name, const ReferenceNode* except);
    static void Show(ReferenceNode& node);
    // Puts the node before or after the target, or into it.
    void Place(ReferenceNode& node, ReferenceNode& newParent, ReferenceNode& target, bool above);
    bool MoveTo(ReferenceNode& node, ReferenceNode* target, bool above, bool intoEmpty, bool uniqueNames);

    ReferenceNode m_root;
};

} // namespace quor::test
