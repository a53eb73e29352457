// The owner's notes and the outlines of trees.
#include "tests/treedrag/DragTreeTest.h"

#include <stdexcept>

namespace quor::test
{

namespace
{

using namespace QuorUiCtr;

std::string Narrow(const CString& text)
{
    std::string narrow;
    for (int i = 0; i < text.GetLength(); ++i)
        narrow += static_cast<char>(text[i]);
    return narrow;
}

// An item that lost its last child may stay marked as expanded.
bool IsOpen(const CTreeCtrl& tree, HTREEITEM item)
{
    return tree.GetChildItem(item) != nullptr &&
           (tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}

class OutlineReader
{
public:
    OutlineReader(CTreeCtrl& tree, const std::string& outline) : m_tree(tree), m_rest(outline) {}

    void ReadLevel(HTREEITEM parent)
    {
        while (m_at < m_rest.size() && m_rest[m_at] != ']')
        {
            if (m_rest[m_at] == ' ')
                ++m_at;
            else
                ReadItem(parent);
        }
    }

private:
    void ReadItem(HTREEITEM parent)
    {
        const size_t end = (std::min)(m_rest.find_first_of(" +[]", m_at), m_rest.size());
        const CString name(m_rest.substr(m_at, end - m_at).c_str());
        m_at = end;
        const bool isExpanded = Skip('+');
        const bool isFolder = Skip('[');
        const int image = isFolder ? 0 : 1;
        const HTREEITEM item = m_tree.InsertItem(name, image, image, parent);
        if (!isFolder)
            return;
        ReadLevel(item);
        Skip(']');
        if (isExpanded)
            m_tree.Expand(item, TVE_EXPAND);
    }

    bool Skip(char character)
    {
        if (m_at >= m_rest.size() || m_rest[m_at] != character)
            return false;
        ++m_at;
        return true;
    }

    CTreeCtrl& m_tree;
    std::string m_rest;
    size_t m_at = 0;
};

std::string OutlineOf(const CTreeCtrl& tree, HTREEITEM first)
{
    std::string outline;
    for (HTREEITEM item = first; item != nullptr; item = tree.GetNextSiblingItem(item))
    {
        int image = -1;
        int selectedImage = -1;
        tree.GetItemImage(item, image, selectedImage);
        outline +=
            (outline.empty() ? "" : " ") + Narrow(tree.GetItemText(item)) + (IsOpen(tree, item) ? "+" : "");
        if (image == 0 || tree.GetChildItem(item) != nullptr)
            outline += "[" + OutlineOf(tree, tree.GetChildItem(item)) + "]";
    }
    return outline;
}

HTREEITEM FindBelow(const CTreeCtrl& tree, HTREEITEM first, const CString& name)
{
    for (HTREEITEM item = first; item != nullptr; item = tree.GetNextSiblingItem(item))
    {
        if (tree.GetItemText(item) == name)
            return item;
        if (const HTREEITEM below = FindBelow(tree, tree.GetChildItem(item), name))
            return below;
    }
    return nullptr;
}

} // namespace

LRESULT DragTree::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == TVM_INSERTITEM && m_insertionsLeft == 0)
        return 0;
    if (message == TVM_INSERTITEM && m_insertionsLeft > 0)
        --m_insertionsLeft;
    if (message == WM_TIMER)
        positions.push_back(GetScrollPos(SB_VERT));
    return CTreeCtrlDrag::DefWindowProc(message, wParam, lParam);
}

std::string TreeOwner::TakeMessages()
{
    std::string all;
    for (const std::string& line : m_lines)
        all += (all.empty() ? "" : ", ") + line;
    m_lines.clear();
    m_received.clear();
    return all;
}

BOOL TreeOwner::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (HIWORD(code) == WM_NOTIFY)
        if (const auto* notify = static_cast<const AFX_NOTIFY*>(extra))
            routedNotifications.insert(notify->pNMHDR->code);
    return HostWindow::OnCmdMsg(id, code, extra, info);
}

LRESULT TreeOwner::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NOTIFY)
        AnswerTree(*reinterpret_cast<NMHDR*>(lParam));
    if (message < TDM_ITEM_INSERTED || message > TDM_DROP_QUERY || tree == nullptr)
        return HostWindow::WindowProc(message, wParam, lParam);
    const OwnerMessage received{message, reinterpret_cast<HTREEITEM>(wParam),
                                reinterpret_cast<HTREEITEM>(lParam)};
    Note(received);
    const auto found = answers.find(message);
    // A copy, because it may put another one in its place.
    const Answer answer = found != answers.end() ? found->second : nullptr;
    return answer != nullptr ? answer(received) : 0;
}

void TreeOwner::AnswerTree(NMHDR& header)
{
    // A copy, because it may put another one in its place.
    const std::function<void()> onDeleted = header.code == TVN_DELETEITEMW ? onDeletedItem : nullptr;
    if (onDeleted != nullptr)
        onDeleted();
    if (const auto found = onNotification.find(header.code); found != onNotification.end())
    {
        const std::function<void()> act = found->second;
        act();
    }
    if (header.code != TVN_GETDISPINFOW)
        return;
    TVITEMW& item = reinterpret_cast<NMTVDISPINFOW&>(header).item;
    if ((item.mask & TVIF_TEXT) != 0)
        ::lstrcpynW(item.pszText, asked.c_str(), item.cchTextMax);
    if ((item.mask & TVIF_IMAGE) != 0)
        item.iImage = 1;
    if ((item.mask & TVIF_SELECTEDIMAGE) != 0)
        item.iSelectedImage = askedSelectedImage;
    if ((item.mask & TVIF_CHILDREN) != 0)
        item.cChildren = askedButton;
}

void TreeOwner::Note(const OwnerMessage& message)
{
    m_received.push_back(message);
    switch (message.message)
    {
    case TDM_ITEM_INSERTED:
        m_lines.push_back("inserted " + NameOf(message.item) + " at " + NameOf(message.place));
        break;
    case TDM_ITEM_DELETED:
        m_lines.push_back("deleted " + NameOf(message.item) +
                          (message.place == nullptr ? "" : " with a place"));
        break;
    case TDM_BEGIN_LABEL_EDIT: {
        const auto* notification = reinterpret_cast<const NMTVDISPINFO*>(message.item);
        m_lines.push_back("edits " + NameOf(notification->item.hItem));
        break;
    }
    case TDM_ITEM_RENAMED:
        m_lines.push_back("renamed " + NameOf(message.item) +
                          (message.place == nullptr ? "" : " with a place"));
        break;
    case TDM_DROP_QUERY:
        m_lines.push_back("asked " + NameOf(message.item) + " at " + NameOf(message.place));
        break;
    }
}

std::string TreeOwner::NameOf(HTREEITEM item) const
{
    if (item == TVI_ROOT)
        return "root";
    const std::string name = Narrow(tree->GetItemText(item));
    return name.empty() ? "gone" : name;
}

DragTreeTest::DragTreeTest(DWORD style, CSize size)
    : owner(size + CSize(60, 60)), tree(std::make_unique<DragTree>())
{
    images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 3, 1);
    for (int i = 0; i < 3; ++i)
        images.Add(::LoadIcon(nullptr, IDI_APPLICATION));
    tree->Create(style, CRect(CPoint(20, 20), size), &owner, TreeId);
    tree->SetImageList(&images, TVSIL_NORMAL);
    owner.tree = tree.get();
}

void DragTreeTest::Fill(const std::string& outline)
{
    OutlineReader(*tree, outline).ReadLevel(TVI_ROOT);
    owner.TakeMessages();
}

std::string DragTreeTest::Outline() const
{
    return OutlineOf(*tree, tree->GetRootItem());
}

HTREEITEM DragTreeTest::At(const std::string& name) const
{
    const HTREEITEM item = FindBelow(*tree, tree->GetRootItem(), CString(name.c_str()));
    if (item == nullptr)
        throw std::invalid_argument("there is no item " + name);
    return item;
}

std::string DragTreeTest::NameOf(HTREEITEM item) const
{
    return item == nullptr ? "none" : item == TVI_ROOT ? "root" : Narrow(tree->GetItemText(item));
}

CPoint DragTreeTest::PointIn(HTREEITEM item, Half half) const
{
    CRect row;
    CRect label;
    tree->GetItemRect(item, row, FALSE);
    tree->GetItemRect(item, label, TRUE);
    return CPoint(label.left + 4, half == Half::Upper ? row.top + 2 : row.bottom - 2);
}

void DragTreeTest::BeginDrag(const std::string& name)
{
    NMTREEVIEW begin = {};
    begin.hdr.hwndFrom = *tree;
    begin.hdr.idFrom = TreeId;
    begin.hdr.code = TVN_BEGINDRAGW;
    begin.itemNew.hItem = At(name);
    begin.ptDrag = PointIn(At(name), Half::Upper);
    owner.SendMessage(WM_NOTIFY, TreeId, reinterpret_cast<LPARAM>(&begin));
}

void DragTreeTest::MoveTo(const std::string& name, Half half)
{
    SendMouse(*tree, WM_MOUSEMOVE, PointIn(At(name), half), MK_LBUTTON);
}

void DragTreeTest::Drop()
{
    SendMouse(*tree, WM_LBUTTONUP, CPoint(1, 1));
}

void DragTreeTest::DragTo(const std::string& name, const std::string& target, Half half)
{
    BeginDrag(name);
    MoveTo(target, half);
    Drop();
}

} // namespace quor::test
