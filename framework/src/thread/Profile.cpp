// CWinApp: settings in the registry or in an .INI file.
#include "afxwin.h"
#include "controls/CommonControls.h"

#include <vector>

namespace
{

class RegistryKey
{
public:
    RegistryKey() = default;
    ~RegistryKey()
    {
        if (m_key != nullptr)
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
        return ::RegCreateKeyEx(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &m_key,
                                nullptr) == ERROR_SUCCESS;
    }
    HKEY Get() const { return m_key; }
    // Gives the key to the caller.
    HKEY Release() { return std::exchange(m_key, static_cast<HKEY>(nullptr)); }

private:
    HKEY m_key = nullptr;
};

CString KeyPath(const CWinApp& app, LPCTSTR section)
{
    CString path(_T("Software\\"));
    path += app.m_pszRegistryKey;
    path += _T('\\');
    path += app.m_pszProfileName;
    if (section != nullptr)
    {
        path += _T('\\');
        path += section;
    }
    return path;
}

// One value of a section. Reading and writing bytes of the wrong type or size fails.
bool ReadValue(const CWinApp& app, LPCTSTR section, LPCTSTR entry, DWORD wantedType, std::vector<BYTE>& value)
{
    RegistryKey key;
    DWORD type = 0;
    DWORD size = 0;
    if (!key.Open(KeyPath(app, section), KEY_READ) ||
        ::RegQueryValueEx(key.Get(), entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != wantedType)
        return false;
    value.resize(size);
    return ::RegQueryValueEx(key.Get(), entry, nullptr, &type, value.data(), &size) == ERROR_SUCCESS;
}

BOOL WriteValue(const CWinApp& app, LPCTSTR section, LPCTSTR entry, DWORD type, const void* bytes,
                size_t size)
{
    RegistryKey key;
    return key.Create(KeyPath(app, section)) &&
           ::RegSetValueEx(key.Get(), entry, 0, type, static_cast<const BYTE*>(bytes),
                           static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

BOOL DeleteSectionOrEntry(CWinApp& app, LPCTSTR section, LPCTSTR entry)
{
    const CString path = KeyPath(app, section);
    if (entry == nullptr)
        return app.DelRegTree(HKEY_CURRENT_USER, path) == ERROR_SUCCESS;
    RegistryKey key;
    return key.Create(path) && ::RegDeleteValue(key.Get(), entry) == ERROR_SUCCESS;
}

// Replaces one of the application's texts, which are blocks of malloc.
void Replace(LPCTSTR& text, LPCTSTR replacement)
{
    std::free(const_cast<LPTSTR>(text));
    text = _tcsdup(replacement);
}

// Bytes in an .INI file: two letters each, the low half first.
CString LettersOf(const BYTE* bytes, UINT count)
{
    CString letters;
    for (UINT i = 0; i < count; ++i)
    {
        letters += static_cast<TCHAR>(_T('A') + (bytes[i] & 0xf));
        letters += static_cast<TCHAR>(_T('A') + (bytes[i] >> 4));
    }
    return letters;
}

std::vector<BYTE> BytesOf(const CString& letters)
{
    std::vector<BYTE> bytes;
    for (int i = 0; i + 1 < letters.GetLength(); i += 2)
        bytes.push_back(
            static_cast<BYTE>((letters[i] - _T('A')) | static_cast<BYTE>((letters[i + 1] - _T('A')) << 4)));
    return bytes;
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    ASSERT(lpszRegistryKey != nullptr);
    Replace(m_pszRegistryKey, lpszRegistryKey);
    Replace(m_pszProfileName, m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString key;
    if (!key.LoadString(nIDRegistryKey))
        AfxThrowResourceException();
    SetRegistryKey(key);
}

HKEY CWinApp::GetAppRegistryKey(CAtlTransactionManager* pTM)
{
    return GetSectionKey(nullptr, pTM);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection, CAtlTransactionManager*)
{
    RegistryKey key;
    return m_pszRegistryKey != nullptr && key.Create(KeyPath(*this, lpszSection)) ? key.Release() : nullptr;
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName, CAtlTransactionManager*)
{
    return static_cast<LONG>(::RegDeleteTree(hParentKey, strKeyName));
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    std::vector<BYTE> bytes;
    UINT value = static_cast<UINT>(nDefault);
    if (ReadValue(*this, lpszSection, lpszEntry, REG_DWORD, bytes) && bytes.size() == sizeof value)
        std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (m_pszRegistryKey != nullptr)
        return WriteValue(*this, lpszSection, lpszEntry, REG_DWORD, &nValue, sizeof nValue);
    CString text;
    text.Format(_T("%d"), nValue);
    return ::WritePrivateProfileString(lpszSection, lpszEntry, text, m_pszProfileName);
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    if (m_pszRegistryKey == nullptr)
        return quorfx::ReadText([&](LPTSTR buffer, int size) -> LPCTSTR {
            const LPCTSTR otherwise = lpszDefault != nullptr ? lpszDefault : _T("");
            ::GetPrivateProfileString(lpszSection, lpszEntry, otherwise, buffer, static_cast<DWORD>(size),
                                      m_pszProfileName);
            return buffer;
        });
    std::vector<BYTE> bytes;
    if (!ReadValue(*this, lpszSection, lpszEntry, REG_SZ, bytes))
        return CString(lpszDefault);
    // What another program has written need not end with a zero.
    bytes.resize(bytes.size() + sizeof(TCHAR));
    return CString(reinterpret_cast<LPCTSTR>(bytes.data()));
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (lpszEntry == nullptr || lpszValue == nullptr)
        return DeleteSectionOrEntry(*this, lpszSection, lpszEntry);
    return WriteValue(*this, lpszSection, lpszEntry, REG_SZ, lpszValue,
                      (_tcslen(lpszValue) + 1) * sizeof(TCHAR));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> bytes;
    if (m_pszRegistryKey == nullptr)
        bytes = BytesOf(GetProfileString(lpszSection, lpszEntry));
    else if (!ReadValue(*this, lpszSection, lpszEntry, REG_BINARY, bytes))
        return FALSE;
    if (m_pszRegistryKey == nullptr && bytes.empty())
        return FALSE;
    *ppData = new BYTE[bytes.size()];
    *pBytes = static_cast<UINT>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), *ppData);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (m_pszRegistryKey == nullptr)
        return WriteProfileString(lpszSection, lpszEntry, LettersOf(pData, nBytes));
    return WriteValue(*this, lpszSection, lpszEntry, REG_BINARY, pData, nBytes);
}
