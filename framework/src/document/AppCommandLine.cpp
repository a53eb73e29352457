// CWinApp: the command line of the program.
#include "document/DocumentSupport.h"

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo)
{
    int count = 0;
    LPWSTR* const parameters = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i)
    {
        const LPCWSTR parameter = parameters[i];
        const bool isFlag = parameter[0] == L'-' || parameter[0] == L'/';
        rCmdInfo.ParseParam(isFlag ? parameter + 1 : parameter, isFlag, i == count - 1);
    }
    ::LocalFree(parameters);
}

BOOL CWinApp::ProcessShellCommand(CCommandLineInfo& rCmdInfo)
{
    switch (rCmdInfo.m_nShellCommand)
    {
    case CCommandLineInfo::FileNew:
        // The program's own handler comes first.
        if (!OnCmdMsg(ID_FILE_NEW, CN_COMMAND, nullptr, nullptr))
            OnFileNew();
        return m_pMainWnd != nullptr;
    case CCommandLineInfo::FileOpen:
        return OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr;
    case CCommandLineInfo::FilePrint:
    case CCommandLineInfo::FilePrintTo:
        PrintAndClose(rCmdInfo);
        return FALSE;
    case CCommandLineInfo::FileDDE:
        // Whoever started the program says by messages what to do, and then it is shown.
        m_nCmdShow = SW_HIDE;
        return TRUE;
    case CCommandLineInfo::AppRegister:
        Register();
        return FALSE;
    case CCommandLineInfo::AppUnregister:
        UnregisterShellFileTypes();
        Unregister();
        return FALSE;
    default:
        return TRUE;
    }
}

void CWinApp::PrintAndClose(const CCommandLineInfo& commandLine)
{
    m_nCmdShow = SW_HIDE;
    if (OpenDocumentFile(commandLine.m_strFileName, FALSE) == nullptr || m_pMainWnd == nullptr)
        return;
    m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
    m_pMainWnd->SendMessage(WM_CLOSE);
}

BOOL CWinApp::Register()
{
    return TRUE;
}

BOOL CWinApp::Unregister()
{
    return TRUE;
}
