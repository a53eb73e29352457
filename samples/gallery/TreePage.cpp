// The page with a tree whose items are dragged.
#include "TreePage.h"

#include "Language.h"
#include "LogPane.h"
#include "TreePageImages.h"
#include "resource.h"

#include <algorithm>
#include <iterator>

using namespace QuorUiCtr;

namespace
{

// The columns of the table of countries.
constexpr size_t ContinentColumn = 0;
constexpr size_t RegionColumn = 1;
constexpr size_t EnglishColumn = 2;
constexpr size_t ChineseColumn = 3;

constexpr const wchar_t* EmptyFolder = L"Favourites";

// Posted to the page itself when the buttons may have to change: an operation of the tree is over by then.
constexpr UINT UpdateButtonsMessage = WM_APP + 1;

HTREEITEM ItemIn(WPARAM wParam)
{
    return reinterpret_cast<HTREEITEM>(wParam);
}

HTREEITEM PlaceIn(LPARAM lParam)
{
    return reinterpret_cast<HTREEITEM>(lParam);
}

} // namespace

BEGIN_MESSAGE_MAP(TreePage, Page)
    ON_BN_CLICKED(IDC_TREE_NEW_FOLDER, &TreePage::OnNewFolder)
    ON_BN_CLICKED(IDC_TREE_DELETE_ITEM, &TreePage::OnDelete)
    ON_BN_CLICKED(IDC_TREE_RENAME, &TreePage::OnRename)
    ON_BN_CLICKED(IDC_TREE_UP, &TreePage::OnUp)
    ON_BN_CLICKED(IDC_TREE_DOWN, &TreePage::OnDown)
    ON_BN_CLICKED(IDC_TREE_UNIQUE_NAMES, &TreePage::OnUniqueNames)
    ON_NOTIFY(TVN_SELCHANGED, IDC_TREE, &TreePage::OnSelectionChanged)
    ON_MESSAGE(TDM_ITEM_INSERTED, &TreePage::OnItemInserted)
    ON_MESSAGE(TDM_ITEM_DELETED, &TreePage::OnItemDeleted)
    ON_MESSAGE(TDM_BEGIN_LABEL_EDIT, &TreePage::OnBeginLabelEdit)
    ON_MESSAGE(TDM_ITEM_RENAMED, &TreePage::OnItemRenamed)
    ON_MESSAGE(TDM_DROP_QUERY, &TreePage::OnDropQuery)
    ON_MESSAGE(UpdateButtonsMessage, &TreePage::OnUpdateButtons)
END_MESSAGE_MAP()

TreePage::TreePage(LogPane& logPane) : Page(IDD_TREE_PAGE, logPane) {}

CString TreePage::GetTitle() const
{
    return Tr(L"Drag tree");
}

UINT TreePage::GetSourceId() const
{
    return IDR_SOURCE_TREE;
}

void TreePage::DoDataExchange(CDataExchange* exchange)
{
    Page::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BANNER, banner);
    DDX_Control(exchange, IDC_TREE, tree);
}

bool TreePage::EndEditing()
{
    if (tree.GetEditControl() != nullptr)
        TreeView_EndEditLabelNow(tree.m_hWnd, FALSE);
    return tree.GetEditControl() == nullptr;
}

Page::Status TreePage::GetStatus()
{
    Status status;
    const HTREEITEM selected = tree.GetSelectedItem();
    if (selected != nullptr)
        status.position = tree.GetItemText(selected);
    status.count.Format(Tr(L"%d items"), static_cast<int>(tree.GetCount()));
    return status;
}

BOOL TreePage::OnInitDialog()
{
    Page::OnInitDialog();
    CreateTreePageImages(images);
    tree.SetImageList(&images, TVSIL_NORMAL);
    const gallery::CsvTable table = gallery::ReadCsvFile(ShippedTablePath(L"countries").GetString());
    if (table.IsRefused())
        banner.SetWindowText(table.errors.front().c_str());
    else
        ShowCountries(table);
    OnUpdateButtons(0, 0);
    undo.CreateIn(*this);
    undo.GetStack().Watch(tree);
    return TRUE;
}

void TreePage::ShowCountries(const gallery::CsvTable& table)
{
    for (const std::vector<std::wstring>& texts : table.rows)
    {
        const HTREEITEM continent = Folder(texts[ContinentColumn].c_str(), TVI_ROOT);
        const HTREEITEM region = Folder(texts[RegionColumn].c_str(), continent);
        const CString name = CString(texts[ChineseColumn].c_str()) + L" " + texts[EnglishColumn].c_str();
        const int image = static_cast<int>(TreePageImage::Item);
        tree.InsertItem(name, image, image, region);
    }
    Folder(Tr(EmptyFolder), TVI_ROOT);
    const HTREEITEM first = tree.GetRootItem();
    tree.Expand(first, TVE_EXPAND);
    tree.Expand(tree.GetChildItem(first), TVE_EXPAND);
    tree.SelectItem(first);
    CString summary;
    summary.Format(Tr(L"%d countries"), static_cast<int>(table.rows.size()));
    banner.SetWindowText(summary);
}

HTREEITEM TreePage::FindChild(const CString& name, HTREEITEM parent) const
{
    HTREEITEM child = parent == TVI_ROOT ? tree.GetRootItem() : tree.GetChildItem(parent);
    while (child != nullptr && tree.GetItemText(child) != name)
        child = tree.GetNextSiblingItem(child);
    return child;
}

HTREEITEM TreePage::Folder(const CString& name, HTREEITEM parent)
{
    const int image = static_cast<int>(TreePageImage::Folder);
    const HTREEITEM found = FindChild(name, parent);
    return found != nullptr ? found : tree.InsertItem(name, image, image, parent);
}

// The log is for what the tree tells as its own messages.
BOOL TreePage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (reinterpret_cast<const NMHDR*>(lParam)->hwndFrom == tree.GetSafeHwnd())
        return CDialog::OnNotify(wParam, lParam, result);
    return Page::OnNotify(wParam, lParam, result);
}

void TreePage::LayOut(int width, int height)
{
    if (!tree.GetSafeHwnd())
        return;
    CRect tool;
    GetDlgItem(IDC_TREE_NEW_FOLDER)->GetWindowRect(tool);
    ScreenToClient(tool);
    const int top = tool.bottom + 6;
    const int treeWidth = undo.PlaceAtRight(width, height, top);
    tree.MoveWindow(0, top, treeWidth, (std::max)(0, height - top));
}

void TreePage::OnNewFolder()
{
    tree.SetFocus();
    tree.CreateNewFolder();
}

void TreePage::OnDelete()
{
    tree.DeleteSelected();
}

void TreePage::OnRename()
{
    tree.SetFocus();
    tree.RenameSelected();
}

void TreePage::OnUp()
{
    tree.MoveItemUp();
}

void TreePage::OnDown()
{
    tree.MoveItemDown();
}

void TreePage::OnUniqueNames()
{
    tree.SetNoDuplicates(IsDlgButtonChecked(IDC_TREE_UNIQUE_NAMES) != 0);
}

void TreePage::OnSelectionChanged(NMHDR*, LRESULT* result)
{
    *result = 0;
    PostMessage(UpdateButtonsMessage);
}

CString TreePage::NameOf(HTREEITEM item) const
{
    if (item == nullptr)
        return L"";
    if (item == TVI_ROOT)
        return L"TVI_ROOT";
    const CString text = tree.GetItemText(item);
    return text.IsEmpty() ? CString(Tr(L"(a deleted item)")) : L"\"" + text + L"\"";
}

void TreePage::AddToLog(const CString& message, HTREEITEM item, HTREEITEM place)
{
    CString line = message + L"  " + NameOf(item);
    if (place != nullptr)
        line += Tr(L"  at ") + NameOf(place);
    Log().Add(line);
    PostMessage(UpdateButtonsMessage);
}

LRESULT TreePage::OnItemInserted(WPARAM wParam, LPARAM lParam)
{
    MarkChanged();
    AddToLog(L"TDM_ITEM_INSERTED", ItemIn(wParam), PlaceIn(lParam));
    return 0;
}

LRESULT TreePage::OnItemDeleted(WPARAM wParam, LPARAM)
{
    MarkChanged();
    AddToLog(L"TDM_ITEM_DELETED", ItemIn(wParam), nullptr);
    return 0;
}

LRESULT TreePage::OnBeginLabelEdit(WPARAM wParam, LPARAM)
{
    AddToLog(L"TDM_BEGIN_LABEL_EDIT", reinterpret_cast<const NMTVDISPINFO*>(wParam)->item.hItem, nullptr);
    return 0;
}

LRESULT TreePage::OnItemRenamed(WPARAM wParam, LPARAM)
{
    MarkChanged();
    AddToLog(L"TDM_ITEM_RENAMED", ItemIn(wParam), nullptr);
    return 0;
}

LRESULT TreePage::OnDropQuery(WPARAM wParam, LPARAM lParam)
{
    const bool isRefused = IsDlgButtonChecked(IDC_TREE_REFUSE_DROPS) != 0;
    CString message = L"TDM_DROP_QUERY";
    if (isRefused)
        message += Tr(L" (refused)");
    AddToLog(message, ItemIn(wParam), PlaceIn(lParam));
    return isRefused;
}

LRESULT TreePage::OnUpdateButtons(WPARAM, LPARAM)
{
    const BOOL hasSelection = tree.GetSelectedItem() != nullptr;
    GetDlgItem(IDC_TREE_DELETE_ITEM)->EnableWindow(hasSelection);
    GetDlgItem(IDC_TREE_RENAME)->EnableWindow(hasSelection);
    GetDlgItem(IDC_TREE_UP)->EnableWindow(tree.ShouldUpBtnBeEnabled());
    GetDlgItem(IDC_TREE_DOWN)->EnableWindow(tree.ShouldDownBtnBeEnabled());
    return 0;
}

bool TreePage::ShowPictureView(size_t view, CString& nameSuffix)
{
    constexpr const wchar_t* Suffixes[] = {L"", L"-drag-item", L"-drag-empty-folder", L"-undone"};
    tree.CompleteDrag(FALSE);
    if (view >= std::size(Suffixes))
        return false;
    nameSuffix = Suffixes[view];
    const HTREEITEM country = tree.GetChildItem(tree.GetChildItem(tree.GetRootItem()));
    const HTREEITEM dragged = tree.GetNextSiblingItem(tree.GetNextSiblingItem(country));
    if (view == 3)
        UndoMoves(dragged);
    else if (view > 0)
        BeginDragTo(dragged, view == 1 ? country : FindChild(Tr(EmptyFolder), TVI_ROOT));
    return true;
}

// The item moves down twice and is deleted, and then it is back.
void TreePage::UndoMoves(HTREEITEM item)
{
    tree.SelectItem(item);
    tree.MoveItemDown();
    tree.MoveItemDown();
    tree.DeleteSelected();
    undo.GetStack().Undo();
}

// Tells the tree what it is told when a user drags the item to the lower half of the target.
void TreePage::BeginDragTo(HTREEITEM item, HTREEITEM target)
{
    tree.EnsureVisible(target);
    CRect label;
    tree.GetItemRect(target, label, TRUE);
    const CPoint point(label.left + 30, label.bottom - 2);
    CPoint screenPoint = point;
    tree.ClientToScreen(&screenPoint);
    ::SetCursorPos(screenPoint.x, screenPoint.y);

    NMTREEVIEW begin = {};
    begin.hdr.hwndFrom = tree;
    begin.hdr.idFrom = IDC_TREE;
    begin.hdr.code = TVN_BEGINDRAG;
    begin.itemNew.hItem = item;
    begin.ptDrag = point;
    SendMessage(WM_NOTIFY, IDC_TREE, reinterpret_cast<LPARAM>(&begin));
    tree.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(point.x, point.y));
}
