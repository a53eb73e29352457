// The menu "Edit" of the gallery's window: undo and clipboard of the page that is shown.
#include "MainDialog.h"
#include "resource.h"

#include "grid/extras/TGClipboard.h"
#include "undo/TGUndoStack.h"

using QuorUiCtr::TGClipboard;
using QuorUiCtr::TGUndoStack;

namespace
{

constexpr UINT ClipboardCommands[] = {ID_EDIT_CUT,       ID_EDIT_COPY,       ID_EDIT_PASTE, ID_EDIT_CLEAR,
                                      ID_EDIT_FILL_DOWN, ID_EDIT_FILL_RIGHT, ID_EDIT_SERIES};

// "Undo "Delete 3 rows"" and the key, or the bare entry, which is grey.
void NameStep(CMenu& popup, UINT id, const wchar_t* text, bool enabled, const CString& step)
{
    CString entry(text);
    if (!step.IsEmpty())
        entry.Insert(entry.Find(L'\t'), L" \"" + step + L"\"");
    popup.ModifyMenu(id, MF_BYCOMMAND | MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED), id, entry);
}

} // namespace

bool MainDialog::IsEditEnabled(UINT id) const
{
    TGClipboard* const clipboard = pages[shownPage]->FindClipboard();
    if (clipboard == nullptr)
        return false;
    const bool isFilling = id == ID_EDIT_FILL_DOWN || id == ID_EDIT_FILL_RIGHT || id == ID_EDIT_SERIES;
    return isFilling ? clipboard->CanCopy() : clipboard->IsCommandEnabled(id);
}

// Called for every menu that opens; only one has the entries.
void MainDialog::ShowEditEntries(CMenu& popup) const
{
    if (popup.GetMenuState(ID_EDIT_UNDO, MF_BYCOMMAND) == static_cast<UINT>(-1))
        return;
    for (const UINT id : ClipboardCommands)
        popup.EnableMenuItem(id, MF_BYCOMMAND | (IsEditEnabled(id) ? MF_ENABLED : MF_GRAYED));
    const TGUndoStack* const undo = pages[shownPage]->FindUndo();
    const bool canUndo = undo != nullptr && undo->CanUndo();
    const bool canRedo = undo != nullptr && undo->CanRedo();
    NameStep(popup, ID_EDIT_UNDO, Tr(L"&Undo\tCtrl+Z"), canUndo, canUndo ? undo->GetUndoName() : CString());
    NameStep(popup, ID_EDIT_REDO, Tr(L"&Redo\tCtrl+Y"), canRedo, canRedo ? undo->GetRedoName() : CString());
}

void MainDialog::OnEditCommand(UINT id)
{
    Page& page = *pages[shownPage];
    TGUndoStack* const undo = page.FindUndo();
    TGClipboard* const clipboard = page.FindClipboard();
    if (undo != nullptr && id == ID_EDIT_UNDO)
        undo->Undo();
    else if (undo != nullptr && id == ID_EDIT_REDO)
        undo->Redo();
    else if (clipboard != nullptr && id == ID_EDIT_FILL_DOWN)
        clipboard->FillDown();
    else if (clipboard != nullptr && id == ID_EDIT_FILL_RIGHT)
        clipboard->FillRight();
    else if (clipboard != nullptr && id == ID_EDIT_SERIES)
        clipboard->FillSeries(TGClipboard::Direction::Down);
    else if (clipboard != nullptr)
        clipboard->RunCommand(id);
}
