// The entry point of the extension DLL: enters the library into the framework's chain of modules and leaves
// it again.
#include <afxwin.h>
#include <afxdllx.h>

static AFX_EXTENSION_MODULE quorModule = {};

extern "C" int APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    switch (reason)
    {
    case DLL_PROCESS_ATTACH:
        if (!AfxInitExtensionModule(quorModule, instance))
            return 0;
        // The framework owns it and deletes it in AfxTermExtensionModule.
        new CDynLinkLibrary(quorModule);
        break;
    case DLL_PROCESS_DETACH:
        AfxTermExtensionModule(quorModule);
        break;
    default:
        break;
    }
    return 1;
}
