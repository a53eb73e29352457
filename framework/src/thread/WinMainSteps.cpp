// The start and the end of a program.
#include "afxwin.h"
#include "handlemap/TemporaryLevel.h"
#include "thread/OleState.h"
#include "threadstate/ThreadState.h"
#include "window/ToolTips.h"

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    AFX_MODULE_STATE& state = *AfxGetStaticModuleState();
    state.m_hCurrentInstanceHandle = hInstance;
    state.m_hCurrentResourceHandle = hInstance;
    if (CWinApp* const app = AfxGetApp())
    {
        app->m_hInstance = hInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
    }
    return TRUE;
}

void DestroyToolTipControl()
{
    ToolTipState& tips = CurrentThreadState().toolTip;
    if (tips.control != nullptr && ::IsWindow(tips.control))
        ::DestroyWindow(tips.control);
    tips = ToolTipState();
}

namespace
{

int RunThread(CWinThread& thread)
{
    if (thread.InitInstance())
        return thread.Run();
    // A program that is complete after its dialog returns FALSE; a window it has left open goes too.
    if (thread.m_pMainWnd != nullptr)
        thread.m_pMainWnd->DestroyWindow();
    return thread.ExitInstance();
}

} // namespace

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinThread* const thread = AfxGetThread();
    int exitCode = -1;
    const bool initialised = AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) != FALSE;
    if (thread != nullptr && initialised)
        exitCode = RunThread(*thread);
    DestroyToolTipControl();
    DeleteTemporaryObjects();
    LeaveOle();
    return exitCode;
}
