// CWinApp: settings in the registry.
#include "afxwin.h"

namespace
{

class RegistryKey
{
public:
    RegistryKey() = default;
    ~RegistryKey()
    {
        if (m_key != NULL)
            ::RegCloseKey(m_key);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    bool Open(const CString& path, REGSAM access)
    {
        return ::RegOpenKeyEx(HKEY_CURRENT_USER, path, 0, access, &m_key) == ERROR_SUCCESS;
    }
    bool Create(const CString& path)
    {
        return ::RegCreateKeyEx(HKEY_CURRENT_USER, path, 0, NULL, 0, KEY_READ | KEY_WRITE, NULL, &m_key,
                                NULL) == ERROR_SUCCESS;
    }
    HKEY Get() const { return m_key; }

private:
    HKEY m_key = NULL;
};

CString SectionPath(LPCTSTR company, LPCTSTR application, LPCTSTR section)
{
    CString path(_T("Software\\"));
    if (company != NULL)
    {
        path += company;
        path += _T('\\');
    }
    path += application;
    path += _T('\\');
    path += section;
    return path;
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    m_registryKey = lpszRegistryKey;
    m_pszRegistryKey = m_registryKey;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    RegistryKey key;
    DWORD value = 0;
    DWORD size = sizeof(value);
    DWORD type = 0;
    if (!key.Open(SectionPath(m_pszRegistryKey, m_pszProfileName, lpszSection), KEY_READ) ||
        ::RegQueryValueEx(key.Get(), lpszEntry, NULL, &type, reinterpret_cast<BYTE*>(&value), &size) !=
            ERROR_SUCCESS ||
        type != REG_DWORD)
        return static_cast<UINT>(nDefault);
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    RegistryKey key;
    return key.Create(SectionPath(m_pszRegistryKey, m_pszProfileName, lpszSection)) &&
           ::RegSetValueEx(key.Get(), lpszEntry, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&nValue),
                           sizeof(nValue)) == ERROR_SUCCESS;
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    RegistryKey key;
    DWORD size = 0;
    DWORD type = 0;
    if (!key.Open(SectionPath(m_pszRegistryKey, m_pszProfileName, lpszSection), KEY_READ) ||
        ::RegQueryValueEx(key.Get(), lpszEntry, NULL, &type, NULL, &size) != ERROR_SUCCESS || type != REG_SZ)
        return CString(lpszDefault);
    CString value;
    LPTSTR const buffer = value.GetBuffer(static_cast<int>(size / sizeof(TCHAR)));
    const LONG error =
        ::RegQueryValueEx(key.Get(), lpszEntry, NULL, &type, reinterpret_cast<BYTE*>(buffer), &size);
    value.ReleaseBuffer();
    return error == ERROR_SUCCESS ? value : CString(lpszDefault);
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    const CString path = SectionPath(m_pszRegistryKey, m_pszProfileName, lpszSection);
    if (lpszEntry == NULL)
        return ::RegDeleteKey(HKEY_CURRENT_USER, path) == ERROR_SUCCESS;
    RegistryKey key;
    if (!key.Create(path))
        return FALSE;
    if (lpszValue == NULL)
        return ::RegDeleteValue(key.Get(), lpszEntry) == ERROR_SUCCESS;
    const size_t bytes = (_tcslen(lpszValue) + 1) * sizeof(TCHAR);
    return ::RegSetValueEx(key.Get(), lpszEntry, 0, REG_SZ, reinterpret_cast<const BYTE*>(lpszValue),
                           static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
}
