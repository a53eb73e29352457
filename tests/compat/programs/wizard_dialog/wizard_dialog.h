
// wizard_dialog.h : main header file for the PROJECT_NAME application
//

#pragma once

#ifndef __AFXWIN_H__
	#error "include 'stdafx.h' before including this file for PCH"
#endif

#include "Resource.h"		// main symbols


// Cwizard_dialogApp:
// See wizard_dialog.cpp for the implementation of this class
//

class Cwizard_dialogApp : public CWinApp
{
public:
	Cwizard_dialogApp();

// Overrides
public:
	virtual BOOL InitInstance();

// Implementation

	DECLARE_MESSAGE_MAP()
};

extern Cwizard_dialogApp theApp;
