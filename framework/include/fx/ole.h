// What programs call at their start so that OLE works.
#pragma once

#include "fx/config.h"

class COccManager;

// Makes OLE usable on the calling thread until the program ends: drag and drop, the clipboard, COM objects.
// FALSE when the system refuses. Programs call it in InitInstance.
QFX_API BOOL AFXAPI AfxOleInit();

// Programs call it in InitInstance when their dialogs hold ActiveX controls. Dialogs here cannot hold any, so
// there is nothing to enable; the call does no harm.
QFX_API void AFXAPI AfxEnableControlContainer(COccManager* pOccManager = NULL);
