// A simple model of a tree grid and its user commands, which random tests compare the tree grid with.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace quor::test
{

struct ReferenceNode;
using ReferenceNodes = std::vector<std::unique_ptr<ReferenceNode>>;

// A group or an item. The label and the identifier are numbers; 0 stands for an empty text.
struct ReferenceNode
{
    // The number of the host data, 0 for none.
    long data = 0;
    long label = 0;
    long id = 0;
    bool unfolded = false;
    bool selected = false;
    ReferenceNode* parent = nullptr;
    ReferenceNodes children;

    bool IsGroup() const { return !children.empty(); }
};

// The text of a number: "" for 0.
std::wstring NumberText(long number);

// Everything is written in the plainest way: rows are found by walking, identifiers by counting.
//
// The host numbers what has no host data, when rows are inserted and after a paste: it gives it the next
// number as host data and label. With `repairs` it also gives inserted items a valid identifier.
class ReferenceTree
{
public:
    explicit ReferenceTree(bool hostRepairs) : repairs(hostRepairs) {}

    ReferenceNodes roots;
    ReferenceNodes buffer;
    // The row buffer was filled by a cut, so that it shares no identifier with the grid.
    bool bufferIsCut = false;

    // The rows in grid order.
    std::vector<ReferenceNode*> Shown() const;
    std::vector<ReferenceNode*> Selected() const;
    // All nodes of the grid, hidden ones included.
    std::vector<ReferenceNode*> All() const;
    // All leaves of the grid; with `withBuffer` also those of the row buffer.
    std::vector<ReferenceNode*> Leaves(bool withBuffer) const;

    // The services.
    long AutoId(long id) const;
    bool IsRightLabel(long id) const;

    // The commands; false where the grid refuses.
    bool InsertRow(bool after, bool asTree);
    bool AppendRow(bool select);
    bool AppendTree();
    bool AppendChild();
    bool Delete();
    bool Copy();
    bool Cut();
    bool Paste();
    bool PasteChild();
    // Drops the selected rows before the row at `to`.
    void Move(long to);
    void Arrange(bool ascending, long col);
    bool FindAndSel(long number, long col);

    void Fold(ReferenceNode& node);
    void UnFold(ReferenceNode& node) { node.unfolded = true; }
    void FoldAll(ReferenceNode& node);
    void UnFoldAll(ReferenceNode& node);

    void UnSelect();
    void Clear();

private:
    using Node = ReferenceNode;
    using Nodes = ReferenceNodes;

    Node* OnlySelected() const;
    std::unique_ptr<Node> NewRow() const;
    Nodes& SiblingsOf(const Node& node) { return node.parent != nullptr ? node.parent->children : roots; }
    long RankOf(const Node& node);
    std::unique_ptr<Node> TakeOut(Node& node);
    void PutIn(Node* parent, long rank, std::unique_ptr<Node> node);
    // Numbers what is new and gives items identifiers.
    void Number(Node& node, bool inserted);

    std::vector<Node*> TouchedParents() const;
    void Repair(const std::vector<Node*>& parents);
    void CutSelected();
    // Places the row buffer before the row at `at` and selects it.
    void PlaceBuffer(long at);
    void EndPaste();

    bool repairs;
    long lastData = 0;
};

} // namespace quor::test
