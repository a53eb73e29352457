// Commands on the selected item, names and the editing of labels.
#include "treedrag/CTreeCtrlDrag.h"

#include "module/QuorTexts.h"
#include "treedrag/TreeActions.h"
#include "treedrag/TreeWatch.h"
#include "rules/TreeDragRules.h"

#include <string>
#include <vector>

namespace QuorUiCtr
{

namespace
{

// A function key's code stands beside the letter's: both cut.
constexpr WPARAM CutKeys[] = {0x58, 0x78};

bool IsCutKey(WPARAM key)
{
    return (key == CutKeys[0] || key == CutKeys[1]) && ::GetKeyState(VK_CONTROL) < 0;
}

// Passes a key to the edit control of a label; returns whether it is one of the control's.
bool PassKeyToEdit(const MSG& message, CWnd& edit)
{
    if (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE)
        edit.SendMessage(message.message, message.wParam, message.lParam);
    else if (IsCutKey(message.wParam))
        edit.SendMessage(WM_CUT);
    else
        return false;
    return true;
}

} // namespace

BOOL CTreeCtrlDrag::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN)
    {
        if (actionWatcher != nullptr && actionWatcher->OnKey(*message))
            return TRUE;
        CEdit* edit = GetEditControl();
        if (edit != nullptr && PassKeyToEdit(*message, *edit))
            return TRUE;
        if (edit == nullptr && message->wParam == VK_F2 && (GetStyle() & TVS_EDITLABELS) != 0)
            RenameSelected();
    }
    return CTreeCtrl::PreTranslateMessage(message);
}

BOOL CTreeCtrlDrag::IsUniqueNameOnThisLevel(const CString& name, HTREEITEM exclude, HTREEITEM parent)
{
    const bool isRootLevel = parent == nullptr || parent == TVI_ROOT;
    HTREEITEM sibling = isRootLevel ? GetRootItem() : GetChildItem(parent);
    for (; sibling != nullptr; sibling = GetNextSiblingItem(sibling))
        if (sibling != exclude && GetItemText(sibling).CompareNoCase(name) == 0)
            return FALSE;
    return TRUE;
}

BOOL CTreeCtrlDrag::IsSelectedItemAFolder()
{
    const HTREEITEM selected = GetSelectedItem();
    const HTREEITEM item = selected != nullptr ? selected : GetRootItem();
    return item != nullptr && IsFolder(item);
}

BOOL CTreeCtrlDrag::ShouldUpBtnBeEnabled()
{
    const HTREEITEM selected = GetSelectedItem();
    if (selected != nullptr)
        return selected != GetRootItem();
    SelectItem(GetRootItem());
    return FALSE;
}

BOOL CTreeCtrlDrag::ShouldDownBtnBeEnabled()
{
    const HTREEITEM selected = GetSelectedItem();
    if (selected != nullptr)
        return GetNextSiblingItem(selected) != nullptr || GetParentItem(selected) != nullptr;
    SelectItem(GetRootItem());
    return GetCount() > 1;
}

HTREEITEM CTreeCtrlDrag::CreateNewFolder()
{
    if (!FinishLabelEdit())
        return nullptr;
    TreeWatch watch(newestWatch);
    const TreeActionScope action(newestWatch, actionWatcher, TreeAction::NewFolder);
    const HTREEITEM folder = InsertFolder();
    SelectItem(folder);
    if (!watch.IsGone(folder))
        EnsureVisible(folder);
    if (!watch.IsGone(folder))
        OpenLabelEdit(folder);
    return watch.IsGone(folder) ? nullptr : folder;
}

HTREEITEM CTreeCtrlDrag::InsertFolder()
{
    const HTREEITEM selected = GetSelectedItem();
    HTREEITEM parent = TVI_ROOT;
    HTREEITEM after = TVI_FIRST;
    if (selected != nullptr && IsSelectedItemAFolder())
        parent = selected;
    else if (selected != nullptr)
    {
        parent = ParentOrRoot(selected);
        after = selected;
    }
    const CString newFolder = QuorTexts::Get(QuorText::TreeNewFolder);
    const std::wstring name = FreeFolderName(newFolder.GetString(), [&](const std::wstring& candidate) {
        return !noDuplicates || IsUniqueNameOnThisLevel(candidate.c_str(), nullptr, parent);
    });
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, name.c_str(), 0, 0, 0, 0, 0, parent,
                      after);
}

void CTreeCtrlDrag::RenameSelected()
{
    if (const HTREEITEM selected = GetSelectedItem())
        EditLabel(selected);
}

void CTreeCtrlDrag::DeleteSelected()
{
    if (!FinishLabelEdit())
        return;
    const HTREEITEM selected = GetSelectedItem();
    if (selected == nullptr)
        return;
    TreeWatch watch(newestWatch);
    if (ItemHasChildren(selected) &&
        AfxMessageBox(QuorTexts::Get(QuorText::TreeDeleteQuestion), MB_YESNO) != IDYES)
        return;
    if (watch.IsGone(selected))
        return;
    const TreeActionScope action(newestWatch, actionWatcher, TreeAction::Delete);
    ReportDeletion(selected);
    if (!watch.IsGone(selected))
        DeleteItem(selected);
}

void CTreeCtrlDrag::ReportDeletion(HTREEITEM top)
{
    std::vector<HTREEITEM> items;
    HTREEITEM item = DeepestFirstChild(top);
    while (item != top)
    {
        items.push_back(item);
        const HTREEITEM sibling = GetNextSiblingItem(item);
        item = sibling != nullptr ? DeepestFirstChild(sibling) : GetParentItem(item);
    }
    items.push_back(top);
    TreeWatch watch(newestWatch);
    for (const HTREEITEM deleted : items)
        if (!watch.IsGone(deleted))
            TellParent(TDM_ITEM_DELETED, deleted);
}

void CTreeCtrlDrag::OnBeginLabelEdit(NMHDR* header, LRESULT* result)
{
    endedEdit = nullptr;
    const HTREEITEM item = reinterpret_cast<const NMTVDISPINFO*>(header)->item.hItem;
    TreeWatch watch(newestWatch);
    if (CWnd* parent = GetParent())
        parent->SendMessage(TDM_BEGIN_LABEL_EDIT, reinterpret_cast<WPARAM>(header),
                            reinterpret_cast<LPARAM>(result));
    if (watch.IsGone(item))
        *result = TRUE;
}

void CTreeCtrlDrag::OnEndLabelEdit(NMHDR* header, LRESULT* result)
{
    *result = 0;
    if (IsEndedAlready())
        return;
    const TVITEM& edited = reinterpret_cast<const NMTVDISPINFO*>(header)->item;
    const HTREEITEM item = edited.hItem;
    CString text(edited.pszText);
    text.Trim();
    TreeWatch watch(newestWatch);
    const bool isRefused =
        !text.IsEmpty() && noDuplicates && !IsUniqueNameOnThisLevel(text, item, GetParentItem(item));
    if (isRefused)
        RefuseLabel(item);
    else if (!text.IsEmpty())
        AcceptLabel(item, text);
    if (watch.IsTreeGone())
        return;
    SwitchTemporaryEditOff();
    if (actionWatcher != nullptr && !isRefused)
        actionWatcher->OnLabelEditEnd();
}

// An edit that is ending loses the focus, to a message box or as its window goes; not every version of the
// platform's tree knows then that it is ending, and says so again.
bool CTreeCtrlDrag::IsEndedAlready()
{
    const HWND edit = GetEditControl()->GetSafeHwnd();
    const bool isEnded = edit != nullptr && edit == endedEdit;
    endedEdit = edit;
    return isEnded;
}

void CTreeCtrlDrag::AcceptLabel(HTREEITEM item, const CString& text)
{
    const TreeActionScope action(newestWatch, actionWatcher, TreeAction::Rename);
    SetItemText(item, text);
    TellParent(TDM_ITEM_RENAMED, item);
}

void CTreeCtrlDrag::RefuseLabel(HTREEITEM item)
{
    const bool isEditEnding = endedEdit != nullptr;
    TreeWatch watch(newestWatch);
    AfxMessageBox(QuorTexts::Get(QuorText::TreeInvalidName), MB_ICONEXCLAMATION);
    if (watch.IsGone(item))
        return;
    if (isEditEnding)
    {
        // The next edit can only be opened when this one is closed.
        itemToReopen = item;
        PostMessage(ReopenLabelEditMessage);
    }
    else
        EditLabel(item);
}

LRESULT CTreeCtrlDrag::OnReopenLabelEdit(WPARAM, LPARAM)
{
    const HTREEITEM item = itemToReopen;
    itemToReopen = nullptr;
    if (item != nullptr && GetEditControl() == nullptr)
        OpenLabelEdit(item);
    return 0;
}

void CTreeCtrlDrag::OpenLabelEdit(HTREEITEM item)
{
    labelEditTemporary = (GetStyle() & TVS_EDITLABELS) == 0;
    if (labelEditTemporary)
        ModifyStyle(0, TVS_EDITLABELS);
    TreeWatch watch(newestWatch);
    EditLabel(item);
    // Where no edit begins, none will end and take the style away.
    if (!watch.IsTreeGone() && GetEditControl() == nullptr)
        SwitchTemporaryEditOff();
}

// An edit that is to go on because its text was refused counts as open.
bool CTreeCtrlDrag::FinishLabelEdit()
{
    TreeWatch watch(newestWatch);
    if (GetEditControl() != nullptr)
        SendMessage(TVM_ENDEDITLABELNOW, FALSE);
    return !watch.IsTreeGone() && GetEditControl() == nullptr && itemToReopen == nullptr;
}

void CTreeCtrlDrag::SwitchTemporaryEditOff()
{
    if (labelEditTemporary)
        ModifyStyle(TVS_EDITLABELS, 0);
}

} // namespace QuorUiCtr
