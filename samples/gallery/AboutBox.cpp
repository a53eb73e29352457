// The gallery's about box.
#include "AboutBox.h"

#include "Language.h"
#include "QuorVersion.h"
#include "resource.h"

namespace
{

constexpr wchar_t LibraryFile[] = L"QuorUiCtrl.dll";
constexpr wchar_t PlatformFile[] = L"kernel32.dll";

// The product version that a loaded module carries, which need not be the one of the headers.
CString ModuleVersion(const wchar_t* module)
{
    const HMODULE handle = ::GetModuleHandle(module);
    const HRSRC found =
        handle != nullptr ? ::FindResource(handle, MAKEINTRESOURCE(VS_VERSION_INFO), RT_VERSION) : nullptr;
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(handle, found) : nullptr;
    const auto* const bytes = loaded != nullptr ? static_cast<const BYTE*>(::LockResource(loaded)) : nullptr;
    if (bytes == nullptr)
        return L"?";
    // The block begins with its lengths and its name, padded to four bytes.
    constexpr size_t FixedPart = 40;
    const auto* const info = reinterpret_cast<const VS_FIXEDFILEINFO*>(bytes + FixedPart);
    CString version;
    version.Format(L"%d.%d.%d", HIWORD(info->dwProductVersionMS), LOWORD(info->dwProductVersionMS),
                   HIWORD(info->dwProductVersionLS));
    return version;
}

CString Compiler()
{
#ifdef __VERSION__
    return CString("GCC ") + __VERSION__;
#else
    CString version;
    version.Format(L"Visual C++ %d", _MSC_FULL_VER);
    return version;
#endif
}

} // namespace

AboutBox::AboutBox(CWnd& owner) : CDialog(IDD_ABOUT, &owner) {}

BOOL AboutBox::OnInitDialog()
{
    CDialog::OnInitDialog();
    TranslateControls(*this);
    CString versions;
    versions.Format(Tr(L"Gallery %s\nLibrary %s\nWindows %s\nBuilt with %s"),
                    CString(QUOR_VERSION).GetString(), ModuleVersion(LibraryFile).GetString(),
                    ModuleVersion(PlatformFile).GetString(), Compiler().GetString());
    SetDlgItemText(IDC_ABOUT_VERSIONS, versions);
    return TRUE;
}
