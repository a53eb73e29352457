// The window over long work.
#include "ProgressBox.h"

#include "Language.h"
#include "resource.h"

namespace
{

constexpr ULONGLONG PatienceInMilliseconds = 300;
constexpr int WholeBar = 1000;

void PumpWaitingMessages()
{
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
    {
        // The loop of the program is to see that it ends.
        if (message.message == WM_QUIT || !AfxGetThread()->PumpMessage())
            return;
    }
}

} // namespace

ProgressBox::ProgressBox(CWnd& boxOwner, const CString& whatIsDone)
    : CDialog(IDD_PROGRESS, &boxOwner), owner(boxOwner), text(whatIsDone), begun(::GetTickCount64())
{
}

ProgressBox::~ProgressBox()
{
    if (m_hWnd == nullptr)
        return;
    // First, so that no other program's window comes to the front.
    owner.EnableWindow(TRUE);
    DestroyWindow();
    // The program's loop takes the last message pumped here for its own, and one that changes nothing brings
    // no idle time, in which the status line is written.
    owner.PostMessage(WM_NULL);
}

void ProgressBox::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_PROGRESS_BAR, bar);
}

BOOL ProgressBox::OnInitDialog()
{
    CDialog::OnInitDialog();
    TranslateControls(*this);
    SetDlgItemText(IDC_PROGRESS_TEXT, text);
    bar.SetRange32(0, WholeBar);
    return TRUE;
}

void ProgressBox::Appear()
{
    if (!Create(IDD_PROGRESS, &owner))
        return;
    owner.EnableWindow(FALSE);
    CenterWindow(&owner);
    ShowWindow(SW_SHOW);
}

bool ProgressBox::Report(double done)
{
    if (m_hWnd == nullptr && ::GetTickCount64() - begun > PatienceInMilliseconds)
        Appear();
    if (m_hWnd != nullptr)
    {
        bar.SetPos(static_cast<int>(done * WholeBar));
        PumpWaitingMessages();
    }
    return !cancelled;
}
