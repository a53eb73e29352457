// The commands of the gallery's window: its keys, its menu, its end.
#include "AboutBox.h"
#include "MainDialog.h"
#include "SourceBox.h"
#include "WindowPlace.h"
#include "resource.h"

#include <afxdlgs.h>

#include <shlwapi.h>

namespace
{

// Keys of the whole window and their commands; Ctrl and a digit shows a page.
struct WindowKey
{
    UINT key;
    bool withControl;
    UINT command;
};

constexpr WindowKey WindowKeys[] = {
    {'O', true, ID_FILE_OPEN_TABLE},
    {'S', true, ID_FILE_SAVE_TABLE},
    {'U', true, ID_VIEW_SOURCE},
    {VK_F1, false, ID_HELP_ABOUT_GALLERY},
};

CString FileFilter()
{
    CString filter;
    filter.Format(L"%s|*.csv|%s|*.*||", Tr(L"CSV files (*.csv)"), Tr(L"All files (*.*)"));
    return filter;
}

CString Sentence(const wchar_t* format, const CString& path, const CString& problem)
{
    CString sentence;
    sentence.Format(format, PathFindFileName(path), problem.GetString());
    return sentence;
}

} // namespace

bool MainDialog::RunKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN || GetSafeHwnd() == nullptr || !::IsChild(m_hWnd, message.hwnd))
        return false;
    const bool control = GetKeyState(VK_CONTROL) < 0;
    const size_t page = static_cast<size_t>(message.wParam) - '1';
    for (const WindowKey& entry : WindowKeys)
    {
        if (entry.key == message.wParam && entry.withControl == control)
        {
            SendMessage(WM_COMMAND, entry.command);
            return true;
        }
    }
    if (message.wParam == VK_F6)
        FocusNextPane(GetKeyState(VK_SHIFT) < 0);
    else if (control && page < pages.size())
        ShowPage(page);
    else
        return false;
    return true;
}

void MainDialog::OnInitMenuPopup(CMenu* popup, UINT index, BOOL isSystemMenu)
{
    CDialog::OnInitMenuPopup(popup, index, isSystemMenu);
    const bool canSave = pages[shownPage]->CanOpenFiles();
    popup->EnableMenuItem(ID_FILE_SAVE_TABLE, MF_BYCOMMAND | (canSave ? MF_ENABLED : MF_GRAYED));
    ShowEditEntries(*popup);
}

void MainDialog::OnPageChosen()
{
    const int chosen = pageList.GetCurSel();
    if (chosen != LB_ERR)
        ShowPage(static_cast<size_t>(chosen));
}

CString MainDialog::OpenTable(const CString& path)
{
    const CWaitCursor wait;
    if (!pages[shownPage]->CanOpenFiles())
        ShowPage(0);
    const CString problem = pages[shownPage]->OpenFile(path);
    return problem.IsEmpty() ? CString() : Sentence(Tr(L"%s cannot be shown:\n%s"), path, problem);
}

void MainDialog::OnOpenTable()
{
    pages[shownPage]->EndEditing();
    CFileDialog dialog(TRUE, L"csv", nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, FileFilter(), this);
    if (dialog.DoModal() != IDOK)
        return;
    const CString problem = OpenTable(dialog.GetPathName());
    if (!problem.IsEmpty())
        AfxMessageBox(problem, MB_OK | MB_ICONWARNING);
}

void MainDialog::OnSaveTable()
{
    Page& page = *pages[shownPage];
    if (!page.CanOpenFiles() || !page.EndEditing())
        return;
    CFileDialog dialog(FALSE, L"csv", nullptr, OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, FileFilter(), this);
    if (dialog.DoModal() != IDOK)
        return;
    const CWaitCursor wait;
    const CString problem = page.SaveFile(dialog.GetPathName());
    if (!problem.IsEmpty())
        AfxMessageBox(Sentence(Tr(L"%s is not saved:\n%s"), dialog.GetPathName(), problem),
                      MB_OK | MB_ICONWARNING);
}

void MainDialog::OnClearLog()
{
    log.RemoveAll();
}

void MainDialog::OnShowSource()
{
    const Page& page = *pages[shownPage];
    SourceBox(*this, page.GetSourceId(), page.GetTitle()).DoModal();
}

void MainDialog::OnAbout()
{
    AboutBox(*this).DoModal();
}

// ---- The end.

CString MainDialog::ChangedPages() const
{
    CString titles;
    for (const std::unique_ptr<Page>& page : pages)
        if (page->IsChanged())
            titles += L"\n    " + page->GetTitle();
    return titles;
}

bool MainDialog::MayClose()
{
    const bool ended = pages[shownPage]->EndEditing();
    const CString titles = ChangedPages();
    if (ended && titles.IsEmpty())
        return true;
    const CString question = titles.IsEmpty()
                                 ? CString(Tr(L"The cell that is being edited keeps its old text."))
                                 : Tr(L"These pages have changes that are not saved:") + titles;
    return AfxMessageBox(question + L"\n\n" + Tr(L"Close the gallery?"), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void MainDialog::OnClose()
{
    if (!MayClose())
        return;
    SaveWindowPlace(*this);
    RememberPage(shownPage);
    DestroyWindow();
}

BOOL MainDialog::OnQueryEndSession()
{
    return CDialog::OnQueryEndSession() && MayClose();
}

void MainDialog::OnQuit()
{
    SendMessage(WM_CLOSE);
}
