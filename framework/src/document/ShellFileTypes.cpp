// CWinApp: the program's kinds of files in the registry.
#include "document/DocumentSupport.h"
#include <shlobj.h>

namespace
{

// How a kind of files is described in the registry.
struct FileType
{
    CString id;
    CString name;
    CString extension;
};

bool Describe(const CDocTemplate& docTemplate, FileType& type)
{
    if (!docTemplate.GetDocString(type.id, CDocTemplate::regFileTypeId) || type.id.IsEmpty())
        return false;
    if (!docTemplate.GetDocString(type.name, CDocTemplate::regFileTypeName) || type.name.IsEmpty())
        type.name = type.id;
    docTemplate.GetDocString(type.extension, CDocTemplate::filterExt);
    return true;
}

void SetDefaultValue(const CString& key, const CString& value)
{
    const DWORD bytes = static_cast<DWORD>((static_cast<size_t>(value.GetLength()) + 1) * sizeof(TCHAR));
    ::RegSetValue(HKEY_CLASSES_ROOT, key, REG_SZ, value, bytes);
}

CString DefaultValue(const CString& key)
{
    TCHAR value[MAX_PATH] = {};
    LONG bytes = sizeof value;
    return ::RegQueryValue(HKEY_CLASSES_ROOT, key, value, &bytes) == ERROR_SUCCESS ? CString(value)
                                                                                   : CString();
}

CString ProgramPath()
{
    TCHAR path[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, path, MAX_PATH - 1);
    return CString(path);
}

void Register(const FileType& type, int icon)
{
    const CString program = ProgramPath();
    CString iconLocation;
    iconLocation.Format(_T("%s,%d"), static_cast<LPCTSTR>(program), icon);
    SetDefaultValue(type.id, type.name);
    SetDefaultValue(type.id + _T("\\DefaultIcon"), iconLocation);
    SetDefaultValue(type.id + _T("\\shell\\open\\command"), _T('"') + program + _T("\" \"%1\""));
    if (type.extension.IsEmpty())
        return;
    // An extension that belongs to another program stays there.
    const CString owner = DefaultValue(type.extension);
    if (owner.IsEmpty() || owner == type.id)
        SetDefaultValue(type.extension, type.id);
}

void Unregister(const FileType& type)
{
    ::RegDeleteTree(HKEY_CLASSES_ROOT, type.id);
    if (!type.extension.IsEmpty() && DefaultValue(type.extension) == type.id)
        ::RegDeleteTree(HKEY_CLASSES_ROOT, type.extension);
}

} // namespace

// The shell starts the program with the file on the command line; there is nothing to prepare for that.
void CWinApp::EnableShellOpen() {}

void CWinApp::RegisterShellFileTypes(BOOL)
{
    // The first icon of the program is its own; those of the kinds follow in the order of the templates.
    int icon = 1;
    for (const CDocTemplate* docTemplate : m_docTemplates)
    {
        FileType type;
        if (Describe(*docTemplate, type))
            ::Register(type, icon);
        ++icon;
    }
    ::SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

void CWinApp::UnregisterShellFileTypes()
{
    for (const CDocTemplate* docTemplate : m_docTemplates)
    {
        FileType type;
        if (Describe(*docTemplate, type))
            ::Unregister(type);
    }
    ::SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}
