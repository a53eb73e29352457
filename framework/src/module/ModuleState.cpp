// The state of the program, and the handles that depend on it.
#include "afxwin.h"
#include "threadstate/ThreadState.h"

namespace
{

AFX_MODULE_STATE& ProgramState()
{
    static AFX_MODULE_STATE state = {};
    return state;
}

HINSTANCE ProgramInstance()
{
    return ::GetModuleHandle(nullptr);
}

} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    return &ProgramState();
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    AFX_MODULE_STATE* const current = CurrentThreadState().moduleState;
    return current != nullptr ? current : &ProgramState();
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState)
    : m_pPrevModuleState(CurrentThreadState().moduleState)
{
    CurrentThreadState().moduleState = pModuleState;
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2()
{
    CurrentThreadState().moduleState = m_pPrevModuleState;
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    const HINSTANCE instance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return instance != nullptr ? instance : ProgramInstance();
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    const HINSTANCE resources = AfxGetModuleState()->m_hCurrentResourceHandle;
    return resources != nullptr ? resources : AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

CWinApp* AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    // A program may replace the name that its object has.
    const CWinApp* const app = AfxGetApp();
    const LPCTSTR name = app != nullptr ? app->m_pszAppName : AfxGetModuleState()->m_lpszCurrentAppName;
    return name != nullptr ? name : _T("");
}
