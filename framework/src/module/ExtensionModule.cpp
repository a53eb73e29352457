// The chain of extension DLLs and the resource look-up along it.
#include "afxwin.h"
#include "module/ModuleChain.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace
{

// The newest module; each knows the next older one. Modules come and go under the loader's lock.
CDynLinkLibrary*& NewestModule()
{
    static CDynLinkLibrary* newest = nullptr;
    return newest;
}

HINSTANCE FrameworkModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        reinterpret_cast<LPCTSTR>(&FrameworkModule), &module);
    return module;
}

} // namespace

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource)
{
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE), m_pNextDLL(NewestModule())
{
    NewestModule() = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    CDynLinkLibrary** link = &NewestModule();
    while (*link != nullptr && *link != this)
        link = &(*link)->m_pNextDLL;
    if (*link == this)
        *link = m_pNextDLL;
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    state.pFirstSharedClass = nullptr;
    state.pFirstSharedFactory = nullptr;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    if (!state.bInitialized)
        return;
    state.bInitialized = FALSE;
    CDynLinkLibrary* module = NewestModule();
    while (module != nullptr)
    {
        CDynLinkLibrary* const older = module->m_pNextDLL;
        if (bAll || module->m_hModule == state.hModule)
            delete module;
        module = older;
    }
}

std::vector<HINSTANCE> ResourceModules()
{
    std::vector<HINSTANCE> modules = {AfxGetResourceHandle()};
    for (const bool system : {false, true})
    {
        for (const CDynLinkLibrary* module = NewestModule(); module != nullptr; module = module->m_pNextDLL)
        {
            if ((module->m_bSystem != FALSE) == system && module->m_hResource != nullptr)
                modules.push_back(module->m_hResource);
        }
    }
    modules.push_back(FrameworkModule());
    return modules;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    for (const HINSTANCE module : ResourceModules())
    {
        if (::FindResource(module, lpszName, lpszType) != nullptr)
            return module;
    }
    return AfxGetResourceHandle();
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf)
{
    if (lpszBuf == nullptr || nMaxBuf == 0)
        return 0;
    // Sixteen strings share one resource, so its presence in a module does not say that the string is there.
    for (const HINSTANCE module : ResourceModules())
    {
        const int length = ::LoadString(module, nIDS, lpszBuf, static_cast<int>(nMaxBuf));
        if (length > 0)
            return length;
    }
    lpszBuf[0] = 0;
    return 0;
}
