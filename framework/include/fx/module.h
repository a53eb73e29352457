// Modules: the state of the program, the chain of extension DLLs, and the resource look-up along that chain.
#pragma once

#include "fx/config.h"
#include "fx/cmdtarget.h"

class CWinApp;
class COleObjectFactory;

// The state that belongs to the program as a whole.
struct QFX_API AFX_MODULE_STATE
{
    CWinApp* m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    LPCTSTR m_lpszCurrentAppName;
};

QFX_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
// The state of the module that links the framework; there is one for the whole program.
QFX_API AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();

// Keeps a module state current until the end of the scope.
class QFX_API AFX_MAINTAIN_STATE2
{
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState);
    ~AFX_MAINTAIN_STATE2();

private:
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&);
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&);

    AFX_MODULE_STATE* m_pPrevModuleState;
};
#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);

// The instance handle of the program, also when an extension DLL asks.
QFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();
// The module whose resources are searched first; the program unless AfxSetResourceHandle chose another.
QFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
QFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
// The first module with this resource: the default module, then the extension DLLs from the newest to the
// oldest, then the framework. Never NULL: without the resource anywhere it is the default module.
QFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
// Copies the string resource, cut to nMaxBuf - 1 characters; returns the length, 0 when there is no such
// string.
QFX_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);

// A window class that depends only on the arguments: the same arguments give the same class. The name is in a
// static buffer of the calling thread: copy it before the next call. Style 0 with no cursor, brush and icon
// stands for CS_DBLCLKS, the arrow, no brush and the standard icon. Throws CResourceException on failure.
QFX_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = NULL,
                                           HBRUSH hbrBackground = NULL, HICON hIcon = NULL);
// Registers the class unless it exists already.
QFX_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);

// The record of an extension DLL, a zeroed global of that DLL.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; // the module with the resources
    CRuntimeClass* pFirstSharedClass;
    COleObjectFactory* pFirstSharedFactory;
};

// Links an extension DLL into the module chain; created with new on load and owned by the framework, which
// deletes it in AfxTermExtensionModule.
class QFX_API CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL; // the next older module
};

// To be called from DllMain on process attach; FALSE when the module cannot be initialised.
QFX_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// To be called on process detach: deletes the module's CDynLinkLibrary objects; with bAll those of all
// modules.
QFX_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);
