// Descriptions of trees, and the fixture.
#include "tests/undo/WatchedTree.h"

#include "module/QuorTexts.h"

namespace quor::test
{

namespace
{

constexpr UINT DataStates = TVIS_CUT | TVIS_BOLD | TVIS_OVERLAYMASK | TVIS_STATEIMAGEMASK;

void DescribeItem(const CTreeCtrl& tree, HTREEITEM item, int level, Shown shown, std::string& all)
{
    TVITEMEXW record = {};
    record.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_EXPANDEDIMAGE | TVIF_STATE |
                  TVIF_CHILDREN | TVIF_PARAM | TVIF_INTEGRAL;
    record.hItem = item;
    record.stateMask = 0xFFFF;
    ::SendMessageW(tree.m_hWnd, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&record));
    all.append(static_cast<size_t>(level), ' ');
    all += std::string(CStringA(tree.GetItemText(item))) + " " + std::to_string(record.iImage) + "," +
           std::to_string(record.iSelectedImage) + "," + std::to_string(record.iExpandedImage) + " state " +
           std::to_string(record.state & DataStates) + " button " + std::to_string(record.cChildren) +
           " height " + std::to_string(record.iIntegral) + " data " + std::to_string(record.lParam);
    if (shown == Shown::Included)
    {
        all += (record.state & TVIS_EXPANDED) != 0 ? " open" : "";
        all += tree.GetSelectedItem() == item ? " selected" : "";
        all += tree.GetFirstVisibleItem() == item ? " first" : "";
    }
    all += "\n";
}

} // namespace

std::string DescribeTree(const CTreeCtrl& tree, Shown shown)
{
    std::string all;
    int level = 0;
    HTREEITEM item = tree.GetRootItem();
    while (item != nullptr)
    {
        DescribeItem(tree, item, level, shown, all);
        HTREEITEM next = tree.GetChildItem(item);
        if (next != nullptr)
            ++level;
        for (; next == nullptr && item != nullptr; item = tree.GetParentItem(item))
        {
            next = tree.GetNextSiblingItem(item);
            if (next != nullptr)
                break;
            --level;
        }
        item = next;
    }
    return all;
}

WatchedTreeTest::WatchedTreeTest(CSize size) : DragInputTest(size)
{
    QuorUiCtr::QuorTexts::SetLanguage(QuorUiCtr::QuorLanguage::English);
}

WatchedTreeTest::~WatchedTreeTest()
{
    QuorUiCtr::QuorTexts::SetLanguage(QuorUiCtr::QuorLanguage::Default);
    stack.Clear();
}

void WatchedTreeTest::Begin(const std::string& outline)
{
    Fill(outline);
    int number = 0;
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
    {
        ++number;
        tree->SetItemData(item, static_cast<DWORD_PTR>(number));
        tree->SetItemState(item, number % 2 != 0 ? TVIS_BOLD : TVIS_CUT, TVIS_BOLD | TVIS_CUT);
        tree->SetItemState(item, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(number % 3)), TVIS_STATEIMAGEMASK);
    }
    ASSERT_TRUE(stack.Watch(*tree, &host));
    owner.TakeMessages();
}

void WatchedTreeTest::EndLabel(const wchar_t* text)
{
    ASSERT_NE(tree->GetEditControl(), nullptr);
    tree->GetEditControl()->SetWindowText(text);
    tree->EndEditLabelNow(FALSE);
}

void WatchedTreeTest::SetButton(HTREEITEM item, int children)
{
    TVITEM button = {};
    button.mask = TVIF_HANDLE | TVIF_CHILDREN;
    button.hItem = item;
    button.cChildren = children;
    tree->SetItem(&button);
}

void WatchedTreeTest::Rename(const std::string& name, const wchar_t* text)
{
    Select(name);
    tree->SetFocus();
    tree->RenameSelected();
    EndLabel(text);
}

void WatchedTreeTest::ExpectRoundTrip(const std::string& before)
{
    const std::string after = All();
    ASSERT_NE(after, before);
    for (int i = 0; i < 2; ++i)
    {
        Undo();
        EXPECT_EQ(All(), before);
        Redo();
        EXPECT_EQ(All(), after);
    }
}

} // namespace quor::test
