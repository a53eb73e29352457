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

} // namespace

BEGIN_MESSAGE_MAP(MainDialog, CDialog)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_LBN_SELCHANGE(IDC_PAGES, &MainDialog::OnPageChosen)
    ON_COMMAND(ID_FILE_OPEN_TABLE, &MainDialog::OnOpenTable)
    ON_COMMAND(ID_FILE_QUIT, &MainDialog::OnQuit)
    ON_COMMAND(ID_VIEW_CLEAR_LOG, &MainDialog::OnClearLog)
    ON_COMMAND(ID_HELP_ABOUT_GALLERY, &MainDialog::OnAbout)
END_MESSAGE_MAP()

MainDialog::MainDialog(const CString& path) : CDialog(IDD_MAIN), tablePath(path) {}

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
    AddPage(std::make_unique<GridPage>(log));
    AddPage(std::make_unique<TreeRowsPage>(log));
    AddPage(std::make_unique<TreeGridPage>(log));
    AddPage(std::make_unique<PropertiesPage>(log));
    AddPage(std::make_unique<TreePage>(log));
    AddPage(std::make_unique<ListPage>(log));
    SetWindowPos(nullptr, 0, 0, FirstSize.cx, FirstSize.cy, SWP_NOMOVE | SWP_NOZORDER);
    CenterWindow();
    ShowPage(0);
    if (!tablePath.IsEmpty())
        pages[0]->OpenFile(tablePath);
    return TRUE;
}

void MainDialog::AddPage(std::unique_ptr<Page> page)
{
    if (!page->CreateIn(*this))
        return;
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

void MainDialog::LayOut(int width, int height)
{
    if (!pageList.GetSafeHwnd() || pages.empty())
        return;
    const int logTop = height - LogHeight;
    const int captionHeight = 16;
    const int pageHeight = (std::max)(0, logTop - captionHeight - 2 * Margin);
    const int pageLeft = PageListWidth + 2 * Margin;
    pageList.MoveWindow(Margin, Margin, PageListWidth, pageHeight);
    pages[shownPage]->MoveWindow(pageLeft, Margin, (std::max)(0, width - pageLeft - Margin), pageHeight);
    GetDlgItem(IDC_LOG_CAPTION)
        ->MoveWindow(Margin, logTop - captionHeight, width - 2 * Margin, captionHeight);
    log.MoveWindow(Margin, logTop, width - 2 * Margin, LogHeight - Margin);
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

void MainDialog::OnPageChosen()
{
    const int chosen = pageList.GetCurSel();
    if (chosen != LB_ERR)
        ShowPage(static_cast<size_t>(chosen));
}

BOOL MainDialog::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->wParam == 'O' && GetKeyState(VK_CONTROL) < 0)
    {
        OnOpenTable();
        return TRUE;
    }
    return CDialog::PreTranslateMessage(message);
}

void MainDialog::OnOpenTable()
{
    wchar_t path[MAX_PATH] = L"";
    OPENFILENAME dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = m_hWnd;
    dialog.lpstrFilter = L"CSV (*.csv)\0*.csv\0所有文件 (*.*)\0*.*\0";
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
    if (!GetOpenFileName(&dialog))
        return;
    if (!pages[shownPage]->OpenFile(path))
    {
        ShowPage(0);
        pages[0]->OpenFile(path);
    }
}

void MainDialog::OnQuit()
{
    DestroyWindow();
}

void MainDialog::OnClearLog()
{
    log.RemoveAll();
}

void MainDialog::OnAbout()
{
    AfxMessageBox(L"QuorUiCtrl " QUOR_VERSION L" 控件展示", MB_OK | MB_ICONINFORMATION);
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
