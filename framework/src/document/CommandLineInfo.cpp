// CCommandLineInfo: the meaning of a program's parameters.
#include "fx/commandlineinfo.h"

CCommandLineInfo::CCommandLineInfo()
    : m_bShowSplash(TRUE), m_bRunEmbedded(FALSE), m_bRunAutomated(FALSE), m_nShellCommand(FileNew)
{
}

CCommandLineInfo::~CCommandLineInfo() {}

void CCommandLineInfo::ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast)
{
    if (bFlag)
        TakeFlag(CString(pszParam));
    else
        TakeName(pszParam);
    if (bLast)
        Finish();
}

void CCommandLineInfo::ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast)
{
    ParseParam(static_cast<LPCTSTR>(CString(pszParam)), bFlag, bLast);
}

void CCommandLineInfo::TakeFlag(const CString& flag)
{
    const auto is = [&flag](LPCTSTR name) { return flag.CompareNoCase(name) == 0; };
    if (is(_T("p")))
    {
        m_nShellCommand = FilePrint;
    }
    else if (is(_T("pt")))
    {
        m_nShellCommand = FilePrintTo;
    }
    else if (is(_T("dde")))
    {
        m_nShellCommand = FileDDE;
    }
    else if (is(_T("Register")) || is(_T("RegServer")) || is(_T("RegisterPerUser")))
    {
        m_nShellCommand = AppRegister;
    }
    else if (is(_T("Unregister")) || is(_T("UnregServer")) || is(_T("UnregisterPerUser")))
    {
        m_nShellCommand = AppUnregister;
    }
    else if (is(_T("Embedding")))
    {
        m_bRunEmbedded = TRUE;
        m_bShowSplash = FALSE;
    }
    else if (is(_T("Automation")))
    {
        m_bRunAutomated = TRUE;
        m_bShowSplash = FALSE;
    }
}

// The first name is the file; those after it are printer, driver and port.
void CCommandLineInfo::TakeName(LPCTSTR name)
{
    if (m_strFileName.IsEmpty())
        m_strFileName = name;
    else if (m_nShellCommand == FilePrintTo && m_strPrinterName.IsEmpty())
        m_strPrinterName = name;
    else if (m_nShellCommand == FilePrintTo && m_strDriverName.IsEmpty())
        m_strDriverName = name;
    else if (m_nShellCommand == FilePrintTo && m_strPortName.IsEmpty())
        m_strPortName = name;
}

void CCommandLineInfo::Finish()
{
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
        m_nShellCommand = FileOpen;
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}
