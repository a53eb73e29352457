// The gallery's window.
#include "MainDialog.h"

#include "GridPage.h"
#include "ListPage.h"
#include "PictureWriter.h"
#include "PropertiesPage.h"
#include "SheetPage.h"
#include "TreeGridPage.h"
#include "TreePage.h"
#include "TreeRowsPage.h"
#include "WindowPlace.h"
#include "resource.h"

#include <algorithm>
#include <iterator>

namespace
{

const CSize FirstSize(1100, 760);
// What is below this is reached by scrolling: a window of 800 by 600 pixels, without its frame.
const CSize SmallestContents(780, 520);

void DrainMessages()
{
    while (CWinThread* thread = AfxGetThread())
    {
        MSG message;
        if (!PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) || !thread->PumpMessage())
            return;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(MainDialog, CDialog)
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_INITMENUPOPUP()
    ON_LBN_SELCHANGE(IDC_PAGES, &MainDialog::OnPageChosen)
    ON_COMMAND(ID_FILE_OPEN_TABLE, &MainDialog::OnOpenTable)
    ON_COMMAND(ID_FILE_SAVE_TABLE, &MainDialog::OnSaveTable)
    ON_COMMAND(ID_FILE_QUIT, &MainDialog::OnQuit)
    ON_COMMAND_RANGE(ID_EDIT_CLEAR, ID_EDIT_REDO, &MainDialog::OnEditCommand)
    ON_COMMAND_RANGE(ID_EDIT_FILL_DOWN, ID_EDIT_SERIES, &MainDialog::OnEditCommand)
    ON_COMMAND(ID_VIEW_CLEAR_LOG, &MainDialog::OnClearLog)
    ON_COMMAND(ID_VIEW_SOURCE, &MainDialog::OnShowSource)
    ON_COMMAND_RANGE(ID_VIEW_ENGLISH, ID_VIEW_CHINESE, &MainDialog::OnLanguage)
    ON_COMMAND(ID_HELP_ABOUT_GALLERY, &MainDialog::OnAbout)
END_MESSAGE_MAP()

MainDialog::MainDialog() : CDialog(IDD_MAIN), area(SmallestContents) {}

MainDialog::~MainDialog() = default;

void MainDialog::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_PAGES, pageList);
    DDX_Control(exchange, IDC_LOG, log);
}

BOOL MainDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(AfxGetApp()->LoadIcon(1), TRUE);
    ShowTexts();
    statusBar.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM | SBARS_SIZEGRIP, CRect(), this, IDC_STATUS);
    SetWindowPos(nullptr, 0, 0, FirstSize.cx, FirstSize.cy, SWP_NOMOVE | SWP_NOZORDER);
    CenterWindow();
    MakePages();
    ShowPage(0);
    return TRUE;
}

void MainDialog::Restore()
{
    RestoreWindowPlace(*this);
    const size_t page = RememberedPage();
    if (page < pages.size() && page != shownPage)
        ShowPage(page);
}

// ---- Pages and texts.

void MainDialog::MakePages()
{
    const CWaitCursor wait;
    AddPage(std::make_unique<GridPage>(log));
    AddPage(std::make_unique<TreeRowsPage>(log));
    AddPage(std::make_unique<TreeGridPage>(log));
    AddPage(std::make_unique<SheetPage>(log));
    AddPage(std::make_unique<PropertiesPage>(log));
    AddPage(std::make_unique<TreePage>(log));
    AddPage(std::make_unique<ListPage>(log));
}

void MainDialog::AddPage(std::unique_ptr<Page> page)
{
    if (!page->CreateIn(*this))
        return;
    // Tab goes from the list of pages to the page, and from there to the log.
    page->SetWindowPos(&pageList, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    pageList.AddString(page->GetTitle());
    pages.push_back(std::move(page));
}

void MainDialog::ShowPage(size_t index)
{
    const CWnd* const focus = GetFocus();
    const bool hadFocus = focus != nullptr && pages[shownPage]->IsChild(focus);
    pageList.SetCurSel(static_cast<int>(index));
    pages[shownPage]->ShowWindow(SW_HIDE);
    shownPage = index;
    LayOut();
    pages[shownPage]->ShowWindow(SW_SHOW);
    if (hadFocus)
        pages[shownPage]->MainControl().SetFocus();
}

// Caption, menu and labels in the language in use.
void MainDialog::ShowTexts()
{
    SetWindowText(Tr(L"QuorUiCtrl gallery"));
    SetDlgItemText(IDC_LOG_CAPTION, Tr(L"Notifications"));
    CMenu fresh;
    fresh.LoadMenu(IDR_MAIN_MENU);
    TranslateMenu(fresh);
    fresh.CheckMenuRadioItem(ID_VIEW_ENGLISH, ID_VIEW_CHINESE,
                             CurrentLanguage() == Language::Chinese ? ID_VIEW_CHINESE : ID_VIEW_ENGLISH,
                             MF_BYCOMMAND);
    SetMenu(&fresh);
    menu.DestroyMenu();
    menu.Attach(fresh.Detach());
    DrawMenuBar();
}

void MainDialog::ChangeLanguage(Language language)
{
    SetLanguage(language);
    ShowTexts();
    const size_t index = shownPage;
    shownPage = 0;
    for (const std::unique_ptr<Page>& page : pages)
        page->DestroyWindow();
    pages.clear();
    pageList.ResetContent();
    log.RemoveAll();
    MakePages();
    ShowPage(index);
}

void MainDialog::OnLanguage(UINT command)
{
    const Language chosen = command == ID_VIEW_CHINESE ? Language::Chinese : Language::English;
    if (chosen == CurrentLanguage())
        return;
    constexpr const wchar_t* Question =
        L"The pages start anew in the other language, and what was changed in them is lost. Go on?";
    if (ChangedPages().IsEmpty() || AfxMessageBox(Tr(Question), MB_YESNO | MB_ICONQUESTION) == IDYES)
        ChangeLanguage(chosen);
}

void MainDialog::ShowStatus()
{
    if (m_hWnd == nullptr || pages.empty())
        return;
    ShowFocus();
    const Page::Status status = pages[shownPage]->GetStatus();
    const CString texts[] = {status.position, status.selection, status.count};
    CString all;
    for (const CString& text : texts)
        all += text + L'\n';
    if (all == shownStatus)
        return;
    shownStatus = all;
    for (int part = 0; part < static_cast<int>(std::size(texts)); ++part)
        statusBar.SetText(texts[part], part, 0);
}

bool MainDialog::WritePictures(const CString& folder)
{
    bool written = true;
    for (size_t index = 0; index < pages.size(); ++index)
    {
        ShowPage(index);
        CString suffix;
        for (size_t view = 0; pages[index]->ShowPictureView(view, suffix); ++view)
        {
            UpdateWindow();
            DrainMessages();
            // There is no idle time between pictures, and what is drawn reaches the screen with the next look
            // for messages.
            ShowStatus();
            statusBar.UpdateWindow();
            DrainMessages();
            const CString name = pages[index]->GetPictureName() + suffix + L".bmp";
            written = WriteWindowPicture(*this, folder + L"\\" + name) && written;
        }
    }
    return written;
}
