// The gallery's window.
#include "MainDialog.h"

#include "GridPage.h"
#include "ListPage.h"
#include "PictureWriter.h"
#include "PropertiesPage.h"
#include "QuorVersion.h"
#include "TreeGridPage.h"
#include "TreePage.h"
#include "TreeRowsPage.h"
#include "resource.h"

#include <algorithm>

#include <shlwapi.h>

namespace
{

constexpr int Margin = 6;
constexpr int PageListWidth = 140;
constexpr int LogHeight = 130;
const CSize MinimumSize(640, 420);
const CSize FirstSize(1100, 760);

void DrainMessages()
{
    while (CWinThread* thread = AfxGetThread())
    {
        MSG message;
        if (!PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) || !thread->PumpMessage())
            return;
    }
}

// Moves without the old picture: where a neighbour has grown over it already, that is what would be copied.
void Place(CWnd& window, int left, int top, int width, int height)
{
    window.SetWindowPos(nullptr, left, top, (std::max)(0, width), (std::max)(0, height),
                        SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    window.Invalidate();
}

bool IsControlDown()
{
    return GetKeyState(VK_CONTROL) < 0;
}

} // namespace

BEGIN_MESSAGE_MAP(MainDialog, CDialog)
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_LBN_SELCHANGE(IDC_PAGES, &MainDialog::OnPageChosen)
    ON_COMMAND(ID_FILE_OPEN_TABLE, &MainDialog::OnOpenTable)
    ON_COMMAND(ID_FILE_QUIT, &MainDialog::OnQuit)
    ON_COMMAND(ID_VIEW_CLEAR_LOG, &MainDialog::OnClearLog)
    ON_COMMAND_RANGE(ID_VIEW_ENGLISH, ID_VIEW_CHINESE, &MainDialog::OnLanguage)
    ON_COMMAND(ID_HELP_ABOUT_GALLERY, &MainDialog::OnAbout)
END_MESSAGE_MAP()

MainDialog::MainDialog() : CDialog(IDD_MAIN) {}

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
    SetWindowPos(nullptr, 0, 0, FirstSize.cx, FirstSize.cy, SWP_NOMOVE | SWP_NOZORDER);
    CenterWindow();
    MakePages();
    ShowPage(0);
    return TRUE;
}

// ---- Pages and texts.

void MainDialog::MakePages()
{
    const CWaitCursor wait;
    AddPage(std::make_unique<GridPage>(log));
    AddPage(std::make_unique<TreeRowsPage>(log));
    AddPage(std::make_unique<TreeGridPage>(log));
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
    pageList.SetCurSel(static_cast<int>(index));
    pages[shownPage]->ShowWindow(SW_HIDE);
    shownPage = index;
    CRect client;
    GetClientRect(client);
    LayOut(client.Width(), client.Height());
    pages[shownPage]->ShowWindow(SW_SHOW);
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
    const bool changed = std::any_of(pages.begin(), pages.end(),
                                     [](const std::unique_ptr<Page>& page) { return page->IsChanged(); });
    constexpr const wchar_t* Question =
        L"The pages start anew in the other language, and what was changed in them is lost. Go on?";
    if (!changed || AfxMessageBox(Tr(Question), MB_YESNO | MB_ICONQUESTION) == IDYES)
        ChangeLanguage(chosen);
}

// ---- Place and focus.

void MainDialog::LayOut(int width, int height)
{
    if (!pageList.GetSafeHwnd() || pages.empty())
        return;
    const int logTop = height - LogHeight;
    const int captionHeight = 16;
    const int pageHeight = logTop - captionHeight - 2 * Margin;
    const int pageLeft = PageListWidth + 2 * Margin;
    Place(pageList, Margin, Margin, PageListWidth, pageHeight);
    Place(*pages[shownPage], pageLeft, Margin, width - pageLeft - Margin, pageHeight);
    Place(*GetDlgItem(IDC_LOG_CAPTION), Margin, logTop - captionHeight, width - 2 * Margin, captionHeight);
    Place(log, Margin, logTop, width - 2 * Margin, LogHeight - Margin);
}

void MainDialog::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    if (type != SIZE_MINIMIZED)
        LayOut(width, height);
}

void MainDialog::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CDialog::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = CPoint(MinimumSize.cx, MinimumSize.cy);
}

void MainDialog::FocusNextPane(bool backwards)
{
    CWnd* const panes[] = {&pageList, &pages[shownPage]->MainControl(), &log};
    constexpr size_t Count = std::size(panes);
    const CWnd* const focus = GetFocus();
    size_t current = 1;
    if (focus == &pageList)
        current = 0;
    else if (focus == &log)
        current = 2;
    panes[(current + (backwards ? Count - 1 : 1)) % Count]->SetFocus();
}

bool MainDialog::RunKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN || GetSafeHwnd() == nullptr || !::IsChild(m_hWnd, message.hwnd))
        return false;
    if (message.wParam == 'O' && IsControlDown())
        OnOpenTable();
    else if (message.wParam == VK_F6)
        FocusNextPane(GetKeyState(VK_SHIFT) < 0);
    else
        return false;
    return true;
}

// ---- Commands.

void MainDialog::OnClose()
{
    DestroyWindow();
}

void MainDialog::OnQuit()
{
    DestroyWindow();
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
    CString sentence;
    if (!problem.IsEmpty())
        sentence.Format(Tr(L"%s cannot be shown:\n%s"), PathFindFileName(path), problem.GetString());
    return sentence;
}

void MainDialog::OnOpenTable()
{
    wchar_t path[MAX_PATH] = L"";
    CString filter;
    filter.Format(L"%s|*.csv|%s|*.*|", Tr(L"CSV files (*.csv)"), Tr(L"All files (*.*)"));
    filter.Replace(L'|', L'\0');
    OPENFILENAME dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = m_hWnd;
    dialog.lpstrFilter = filter;
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
    if (!GetOpenFileName(&dialog))
        return;
    const CString problem = OpenTable(path);
    if (!problem.IsEmpty())
        AfxMessageBox(problem, MB_OK | MB_ICONWARNING);
}

void MainDialog::OnClearLog()
{
    log.RemoveAll();
}

void MainDialog::OnAbout()
{
    AfxMessageBox(CString(Tr(L"QuorUiCtrl gallery")) + L" " + QUOR_VERSION, MB_OK | MB_ICONINFORMATION);
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
            const CString name = pages[index]->GetPictureName() + suffix + L".bmp";
            written = WriteWindowPicture(*this, folder + L"\\" + name) && written;
        }
    }
    return written;
}
