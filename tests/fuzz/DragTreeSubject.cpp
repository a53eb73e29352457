// The mode of the drag tree. Its owner vetoes, changes the tree, begins other operations, and destroys it.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Modes.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

#include "treedrag/CTreeCtrlDrag.h"

#include <memory>
#include <set>
#include <vector>

namespace quor::fuzz
{

using QuorUiCtr::CTreeCtrlDrag;

namespace
{

constexpr UINT TreeId = 5;
constexpr DWORD UsualStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT |
                             TVS_EDITLABELS | TVS_SHOWSELALWAYS;
constexpr UINT MostItems = 30;

class DragTreeSubject : public Subject
{
public:
    explicit DragTreeSubject(bool bare) : isBare(bare) {}
    ~DragTreeSubject() override { Destroy(); }

    void Create(CWnd& parent) override;
    void Destroy() override;
    HWND Window() override { return tree ? tree->GetSafeHwnd() : nullptr; }
    void Call() override;
    void Check() override;
    unsigned long Digest() override
    {
        return Window() != nullptr ? tree->GetCount() * 2u + (IsDragging() ? 1u : 0u) : 0;
    }
    bool OnHostMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

private:
    using Operation = void (DragTreeSubject::*)();

    bool IsDragging() const { return drag != nullptr && drag->IsDragging(); }
    HTREEITEM NextOf(HTREEITEM item) const;
    std::vector<HTREEITEM> AllItems() const;
    // Null in an empty tree.
    HTREEITEM AnyItem() const;

    void Insert();
    void Delete();
    void Select();
    void Expand();
    void Show();
    void Edit();
    void Name();
    void BeginDrag();
    void EndDrag();
    void Ask();
    void RunCommand();
    void DoMischief(bool mayDestroy);

    bool isBare;
    std::unique_ptr<CTreeCtrl> tree;
    CTreeCtrlDrag* drag = nullptr; // the tree, unless it is bare
    CImageList images;
    long nextData = 1;
};

void DragTreeSubject::Create(CWnd& parent)
{
    // Check boxes are left out: the platform's tree never gives the images of its boxes back.
    tree = isBare ? std::make_unique<CTreeCtrl>() : std::make_unique<CTreeCtrlDrag>();
    drag = isBare ? nullptr : static_cast<CTreeCtrlDrag*>(tree.get());
    tree->Create(UsualStyle, CRect(10, 10, 270, 310), &parent, TreeId);
    images.Create(16, 16, ILC_COLOR32, 3, 1);
    images.SetImageCount(3);
    tree->SetImageList(&images, TVSIL_NORMAL);
    for (long i = Dice().Between(1, 15); i > 0; --i)
        Insert();
    if (drag != nullptr)
        drag->SetNoDuplicates(Dice().OneIn(3));
}

void DragTreeSubject::Destroy()
{
    drag = nullptr;
    tree.reset();
    images.DeleteImageList();
}

HTREEITEM DragTreeSubject::NextOf(HTREEITEM item) const
{
    if (const HTREEITEM child = tree->GetChildItem(item))
        return child;
    for (; item != nullptr; item = tree->GetParentItem(item))
        if (const HTREEITEM sibling = tree->GetNextSiblingItem(item))
            return sibling;
    return nullptr;
}

std::vector<HTREEITEM> DragTreeSubject::AllItems() const
{
    std::vector<HTREEITEM> items;
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = NextOf(item))
        items.push_back(item);
    return items;
}

HTREEITEM DragTreeSubject::AnyItem() const
{
    const std::vector<HTREEITEM> items = AllItems();
    return items.empty() ? nullptr : Dice().Pick(items);
}

void DragTreeSubject::Insert()
{
    if (tree->GetCount() >= MostItems)
        return;
    const HTREEITEM neighbour = AnyItem();
    const int image = static_cast<int>(Dice().Below(3));
    HTREEITEM item = nullptr;
    if (neighbour == nullptr || Dice().OneIn(3))
        item = tree->InsertItem(AnyText(6), image, image, TVI_ROOT, Dice().OneIn(2) ? TVI_FIRST : TVI_LAST);
    else
        item = tree->InsertItem(AnyText(6), image, image, neighbour, Dice().OneIn(2) ? TVI_FIRST : TVI_LAST);
    tree->SetItemData(item, static_cast<DWORD_PTR>(nextData++));
}

void DragTreeSubject::Delete()
{
    const HTREEITEM item = AnyItem();
    if (item != nullptr && (Dice().OneIn(2) || tree->GetChildItem(item) == nullptr))
        tree->DeleteItem(item);
    else if (Dice().OneIn(10))
        tree->DeleteAllItems();
}

void DragTreeSubject::Select()
{
    tree->SelectItem(Dice().OneIn(6) ? nullptr : AnyItem());
}

void DragTreeSubject::Expand()
{
    constexpr UINT codes[] = {TVE_EXPAND, TVE_EXPAND, TVE_COLLAPSE, TVE_TOGGLE};
    if (const HTREEITEM item = AnyItem())
        tree->Expand(item, Dice().Pick(codes));
}

void DragTreeSubject::Show()
{
    if (const HTREEITEM item = AnyItem())
        Dice().OneIn(2) ? tree->EnsureVisible(item) : tree->SelectSetFirstVisible(item);
}

void DragTreeSubject::Edit()
{
    if (const HTREEITEM item = AnyItem())
    {
        // The owner hears of the focus, and may destroy the tree.
        tree->SetFocus();
        if (Window() != nullptr)
            tree->EditLabel(item);
    }
}

void DragTreeSubject::Name()
{
    if (const HTREEITEM item = AnyItem())
        Dice().OneIn(2) ? tree->SetItemText(item, AnyText(4))
                        : tree->SetItemImage(item, static_cast<int>(Dice().Below(3)), 1);
}

// As the platform's tree tells of the beginning of a drag.
void DragTreeSubject::BeginDrag()
{
    const HTREEITEM item = AnyItem();
    if (item == nullptr || IsDragging())
        return;
    NMTREEVIEW record = {};
    record.hdr.hwndFrom = *tree;
    record.hdr.idFrom = TreeId;
    record.hdr.code = static_cast<UINT>(TVN_BEGINDRAG);
    record.itemNew.hItem = item;
    record.itemNew.mask = TVIF_HANDLE;
    record.ptDrag = AnyPoint(*tree);
    ::SendMessage(::GetParent(*tree), WM_NOTIFY, TreeId, reinterpret_cast<LPARAM>(&record));
}

void DragTreeSubject::EndDrag()
{
    if (drag != nullptr)
        drag->CompleteDrag(Dice().OneIn(2));
}

void DragTreeSubject::Ask()
{
    if (drag == nullptr)
        return;
    drag->ShouldUpBtnBeEnabled();
    drag->ShouldDownBtnBeEnabled();
    drag->IsSelectedItemAFolder();
    drag->GetDragItemData();
    const HTREEITEM item = AnyItem();
    const HTREEITEM next = drag->GetNextItem(item);
    if (next != nullptr && drag->GetPrevItem(next) != item)
        Fail("the item before the next one is another");
}

void DragTreeSubject::RunCommand()
{
    if (drag == nullptr)
        return;
    switch (Dice().Below(6))
    {
    case 0:
        if (tree->GetCount() < MostItems)
            drag->CreateNewFolder();
        return;
    case 1:
        return drag->DeleteSelected();
    case 2:
        return drag->RenameSelected();
    case 3:
        return drag->MoveItemUp();
    case 4:
        return drag->MoveItemDown();
    default:
        return drag->SetNoDuplicates(Dice().OneIn(3));
    }
}

void DragTreeSubject::Call()
{
    struct Named
    {
        const char* name;
        Operation operation;
    };
    constexpr Named calls[] = {
        {"insert", &DragTreeSubject::Insert},
        {"delete", &DragTreeSubject::Delete},
        {"select", &DragTreeSubject::Select},
        {"select", &DragTreeSubject::Select},
        {"expand", &DragTreeSubject::Expand},
        {"expand", &DragTreeSubject::Expand},
        {"show", &DragTreeSubject::Show},
        {"edit a label", &DragTreeSubject::Edit},
        {"name", &DragTreeSubject::Name},
        {"begin a drag", &DragTreeSubject::BeginDrag},
        {"begin a drag", &DragTreeSubject::BeginDrag},
        {"end a drag", &DragTreeSubject::EndDrag},
        {"ask", &DragTreeSubject::Ask},
        {"a command", &DragTreeSubject::RunCommand},
        {"a command", &DragTreeSubject::RunCommand},
        {"a command", &DragTreeSubject::RunCommand},
        {"a command", &DragTreeSubject::RunCommand},
    };
    const Named& call = Dice().Pick(calls);
    Say("%s", call.name);
    (this->*call.operation)();
}

void DragTreeSubject::DoMischief(bool mayDestroy)
{
    const Mischief mischief("a message to the owner");
    if (mayDestroy && Dice().OneIn(12))
    {
        Say("DestroyWindow");
        tree->DestroyWindow();
        return;
    }
    Call();
}

bool DragTreeSubject::OnHostMessage(UINT message, WPARAM, LPARAM lParam, LRESULT& result)
{
    using namespace QuorUiCtr;
    if (message < TDM_ITEM_INSERTED || message > TDM_DROP_QUERY || Window() == nullptr)
        return false;
    const bool inLabelEdit = message == TDM_BEGIN_LABEL_EDIT || message == TDM_ITEM_RENAMED;
    if (WantsMischief(4))
        DoMischief(!inLabelEdit);
    if (message == TDM_BEGIN_LABEL_EDIT)
        *reinterpret_cast<LRESULT*>(lParam) = Dice().OneIn(5);
    result = message == TDM_DROP_QUERY && Dice().OneIn(5);
    return true;
}

void DragTreeSubject::Check()
{
    const std::vector<HTREEITEM> items = AllItems();
    if (items.size() != tree->GetCount())
        Fail("%zu items can be reached, and %u are there", items.size(), tree->GetCount());
    std::set<DWORD_PTR> known;
    for (const HTREEITEM item : items)
        if (const DWORD_PTR data = tree->GetItemData(item); data != 0 && !known.insert(data).second)
            Fail("an item is there twice");
    if (IsDragging() && ::GetCapture() != tree->m_hWnd)
        Fail("a drag goes on without the mouse");
}

} // namespace

std::unique_ptr<Subject> MakeDragTreeMode(bool bare)
{
    return std::make_unique<DragTreeSubject>(bare);
}

} // namespace quor::fuzz
