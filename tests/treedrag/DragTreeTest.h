// A drag tree with an owner that writes down and answers its messages, and the outline of a tree as text.
#pragma once

#include "treedrag/CTreeCtrlDrag.h"

#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quor::test
{

// The tree with what it keeps for derived classes.
class DragTree : public QuorUiCtr::CTreeCtrlDrag
{
public:
    using CTreeCtrlDrag::CopyItem;
    using CTreeCtrlDrag::CopySubtree;
    using CTreeCtrlDrag::GetDragTarget;
    using CTreeCtrlDrag::GetNextNonChildItem;
    using CTreeCtrlDrag::GetParentToChildIndent;
    using CTreeCtrlDrag::GetPrevVisibleItemToMoveTo;
    using CTreeCtrlDrag::InsertItemAndSubtree;
    using CTreeCtrlDrag::IsItemEmptyFolder;
    using CTreeCtrlDrag::IsUniqueNameOnThisLevel;
    using CTreeCtrlDrag::PreTranslateMessage;
    using CTreeCtrlDrag::ReportDragBackToParent;
    using CTreeCtrlDrag::ResetVisibleItems;
    using CTreeCtrlDrag::SaveFirstAndLastVisibleItems;

    using CTreeCtrlDrag::dragImage;
    using CTreeCtrlDrag::dragItem;
    using CTreeCtrlDrag::dropAbove;
    using CTreeCtrlDrag::dropTarget;
    using CTreeCtrlDrag::firstVisibleItem;
    using CTreeCtrlDrag::hoverTimerId;
    using CTreeCtrlDrag::labelEditTemporary;
    using CTreeCtrlDrag::lastVisibleItem;
    using CTreeCtrlDrag::scrollTimerId;

    // From now on the insertion after the next `count` ones fails, and those after it.
    void FailInsertionsAfter(int count) { m_insertionsLeft = count; }
    // Deletes an item without a message to the window, as only a derived class can.
    void DeletePastTheMessages(HTREEITEM item)
    {
        CTreeCtrlDrag::DefWindowProc(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
    }

    // The vertical scroll position after each message of a timer.
    std::vector<int> positions;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    int m_insertionsLeft = -1; // -1: any number
};

struct OwnerMessage
{
    UINT message;
    HTREEITEM item;
    HTREEITEM place;
};

// The parent of a drag tree. Writes the messages of the tree down, as lines such as "inserted b after a",
// where the texts are those that the items have then; "gone" stands for an item without text, "root" for
// TVI_ROOT.
class TreeOwner : public HostWindow
{
public:
    explicit TreeOwner(CSize client) : HostWindow(client.cx, client.cy) {}

    // What is done on a message, after it was written down; returns the answer.
    using Answer = std::function<LRESULT(const OwnerMessage&)>;
    std::map<UINT, Answer> answers;

    // The lines since the last call, joined with ", ".
    std::string TakeMessages();
    const std::vector<OwnerMessage>& Received() const { return m_received; }

    CTreeCtrl* tree = nullptr;

    // Runs when the platform says that an item is being deleted.
    std::function<void()> onDeletedItem;
    // Run when the platform's tree sends the notification of that code, before it is answered.
    std::map<UINT, std::function<void()>> onNotification;
    // The text, the selected image and the button of items that ask for them.
    std::wstring asked;
    int askedSelectedImage = 1;
    int askedButton = 0;

    // The codes of the notifications for which the parent's message map was asked.
    std::set<UINT> routedNotifications;

protected:
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Note(const OwnerMessage& message);
    void AnswerTree(NMHDR& header);
    std::string NameOf(HTREEITEM item) const;

    std::vector<std::string> m_lines;
    std::vector<OwnerMessage> m_received;
};

enum class Half
{
    Upper,
    Lower
};

// Trees are given as text: "a b[c d] e+[f] g[]" has four root items, of which b, e and g are folders and e is
// expanded.
class DragTreeTest : public testing::Test
{
protected:
    static constexpr DWORD UsualStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES |
                                        TVS_LINESATROOT | TVS_EDITLABELS | TVS_SHOWSELALWAYS;
    static constexpr UINT TreeId = 5;

    explicit DragTreeTest(DWORD style = UsualStyle, CSize size = CSize(260, 300));

    void Fill(const std::string& outline);
    std::string Outline() const;
    // The item with that text.
    HTREEITEM At(const std::string& name) const;
    std::string NameOf(HTREEITEM item) const;
    std::string Selected() const { return NameOf(tree->GetSelectedItem()); }

    // A point in the row of an item, on its label.
    CPoint PointIn(HTREEITEM item, Half half) const;

    // A drag by messages, as the platform's tree begins it.
    void BeginDrag(const std::string& name);
    void MoveTo(const std::string& name, Half half);
    void Drop();
    void DragTo(const std::string& name, const std::string& target, Half half);

    CImageList images;
    TreeOwner owner;
    std::unique_ptr<DragTree> tree;
};

} // namespace quor::test
