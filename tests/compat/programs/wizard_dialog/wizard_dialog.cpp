
// wizard_dialog.cpp : Defines the class behaviors for the application.
//

#include "stdafx.h"
#include "wizard_dialog.h"
#include "wizard_dialogDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif


// Cwizard_dialogApp

BEGIN_MESSAGE_MAP(Cwizard_dialogApp, CWinApp)
	ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()


// Cwizard_dialogApp construction

Cwizard_dialogApp::Cwizard_dialogApp()
{
	// Add construction code here,
	// Place all significant initialization in InitInstance
}


// The one and only Cwizard_dialogApp object

Cwizard_dialogApp theApp;


// Cwizard_dialogApp initialization

BOOL Cwizard_dialogApp::InitInstance()
{
	// InitCommonControlsEx() is required on Windows XP if an application
	// manifest specifies use of ComCtl32.dll version 6 or later to enable
	// visual styles.  Otherwise, any window creation will fail.
	INITCOMMONCONTROLSEX InitCtrls;
	InitCtrls.dwSize = sizeof(InitCtrls);
	// Set this to include all the common control classes you want to use
	// in your application.
	InitCtrls.dwICC = ICC_WIN95_CLASSES;
	InitCommonControlsEx(&InitCtrls);

	CWinApp::InitInstance();


	AfxEnableControlContainer();

	// Standard initialization
	// If you are not using these features and wish to reduce the size
	// of your final executable, you should remove from the following
	// the specific initialization routines you do not need
	// Change the registry key under which our settings are stored
	// You should modify this string to be something appropriate
	// such as the name of your company or organization
	SetRegistryKey(_T("Local AppWizard-Generated Applications"));

	Cwizard_dialogDlg dlg;
	m_pMainWnd = &dlg;
	INT_PTR nResponse = dlg.DoModal();
	if (nResponse == IDOK)
	{
		// Place code here to handle when the dialog is
		//  dismissed with OK
	}
	else if (nResponse == IDCANCEL)
	{
		// Place code here to handle when the dialog is
		//  dismissed with Cancel
	}
	else if (nResponse == -1)
	{
		TRACE("Warning: dialog creation failed, so application is terminating unexpectedly.\n");
	}

	// Since the dialog has been closed, return FALSE so that we exit the
	//  application, rather than start the application's message pump.
	return FALSE;
}

