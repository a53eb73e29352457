// CCommandLineInfo: what the command line of a program asks for.
#pragma once

#include "fx/object.h"
#include "fx/string.h"

// Filled by CWinApp::ParseCommandLine, carried out by CWinApp::ProcessShellCommand.
class QFX_API CCommandLineInfo : public CObject
{
public:
    CCommandLineInfo();
    virtual ~CCommandLineInfo();

    // Takes one parameter: a flag, given without its "-" or "/", or a name. The base knows the file to open,
    // p, pt, dde, Register, RegServer, Unregister, UnregServer, RegisterPerUser, UnregisterPerUser,
    // Automation and Embedding, in any case of letters; it evaluates the meaning of a name after the last
    // parameter.
    virtual void ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast);
    // The same for ANSI text; what the framework passes is wide.
    virtual void ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast);

    BOOL m_bShowSplash;
    BOOL m_bRunEmbedded;
    BOOL m_bRunAutomated;
    enum
    {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        RestartByRestartManager,
        FileNothing = -1
    } m_nShellCommand;

    // Valid for FileOpen, FilePrint and FilePrintTo.
    CString m_strFileName;

    // Valid for FilePrintTo.
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;

    // Valid for RestartByRestartManager.
    CString m_strRestartIdentifier;

private:
    void TakeFlag(const CString& flag);
    void TakeName(LPCTSTR name);
    void Finish();
};
