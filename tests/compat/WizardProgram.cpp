// A program that the application wizard would have made.
#include "tests/compat/WizardProgram.h"

#include <commctrl.h>
#include <commdlg.h>

namespace quor::test
{

WizardProgram::WizardProgram(const std::wstring& name, const std::wstring& title,
                             const std::wstring& arguments)
    : m_program(name, arguments), m_frame(m_program.Window(title))
{
}

std::wstring Answer(const Program& program, HWND box, WPARAM button)
{
    constexpr int messageText = 0xffff;
    const std::wstring text = TextOf(::GetDlgItem(box, messageText));
    ::PostMessageW(box, WM_COMMAND, button, 0);
    program.WaitUntil([&] { return !::IsWindow(box); });
    return text;
}

std::wstring WizardProgram::AnswerBox(WPARAM button) const
{
    HWND box = NULL;
    const auto findBox = [&] {
        box = ::GetLastActivePopup(m_frame);
        wchar_t name[16] = L"";
        ::GetClassNameW(box, name, 16);
        return std::wstring(name) == L"#32770" && ::IsWindowVisible(box);
    };
    return WaitUntil(findBox) ? Answer(m_program, box, button) : L"";
}

std::wstring WizardProgram::StatusText(WPARAM part) const
{
    wchar_t text[128] = L"";
    DWORD process = 0;
    ::GetWindowThreadProcessId(m_frame, &process);
    const DWORD access = PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE;
    const HANDLE program = ::OpenProcess(access, FALSE, process);
    void* const there = ::VirtualAllocEx(program, NULL, sizeof text, MEM_COMMIT, PAGE_READWRITE);
    ::SendMessageW(StatusBar(), SB_GETTEXTW, part, reinterpret_cast<LPARAM>(there));
    ::ReadProcessMemory(program, there, text, sizeof text - sizeof text[0], NULL);
    ::VirtualFreeEx(program, there, 0, MEM_RELEASE);
    ::CloseHandle(program);
    return text;
}

namespace
{

struct BarSearch
{
    int id;
    HWND found;
};

} // namespace

// A docked bar is a child of the bar that holds it.
HWND WizardProgram::Bar(WPARAM id) const
{
    BarSearch search = {static_cast<int>(id), NULL};
    ::EnumChildWindows(
        m_frame,
        [](HWND window, LPARAM parameter) -> BOOL {
            BarSearch& wanted = *reinterpret_cast<BarSearch*>(parameter);
            if (::GetDlgCtrlID(window) == wanted.id)
                wanted.found = window;
            return wanted.found == NULL;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void WizardProgram::ChooseByKeys(wchar_t popup, wchar_t item) const
{
    ::PostMessageW(m_frame, WM_SYSCOMMAND, SC_KEYMENU, popup);
    // Before the popup is open, the key would be one for the menu bar.
    WaitUntil([] {
        const HWND menu = ::FindWindowW(L"#32768", NULL);
        return menu != NULL && ::IsWindowVisible(menu);
    });
    ::PostMessageW(m_frame, WM_CHAR, item, 0);
}

void WizardProgram::SendTo(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const
{
    ::SendMessageW(window, message, wParam, lParam);
    ::PostMessageW(m_frame, WM_NULL, 0, 0);
}

bool WizardProgram::TitleBecomes(const std::wstring& title) const
{
    return WaitUntil([&] { return Title() == title; });
}

bool WizardProgram::StatusBecomes(WPARAM part, const std::wstring& text) const
{
    return WaitUntil([&] { return StatusText(part) == text; });
}

bool WizardProgram::ButtonBecomes(WPARAM id, bool enabled) const
{
    return WaitUntil([&] { return (::SendMessageW(ToolBar(), TB_ISBUTTONENABLED, id, 0) != 0) == enabled; });
}

void ForgetRecentFiles(const std::wstring& application)
{
    const std::wstring key =
        L"Software\\Local AppWizard-Generated Applications\\" + application + L"\\Recent File List";
    ::RegDeleteKeyW(HKEY_CURRENT_USER, key.c_str());
}

DocumentFile::DocumentFile(const std::wstring& name, const std::string& bytes)
{
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, folder);
    m_path = folder + name;
    const HANDLE file = ::CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, NULL);
    ::CloseHandle(file);
}

DocumentFile::~DocumentFile()
{
    ::DeleteFileW(m_path.c_str());
}

std::wstring DocumentFile::Title() const
{
    wchar_t title[MAX_PATH] = L"";
    ::GetFileTitleW(m_path.c_str(), title, MAX_PATH);
    return title;
}

std::string DocumentFile::Bytes() const
{
    const HANDLE file =
        ::CreateFileW(m_path.c_str(), GENERIC_READ, FILE_SHARE_READ, NULL, OPEN_EXISTING, 0, NULL);
    std::string bytes(file == INVALID_HANDLE_VALUE ? 0 : ::GetFileSize(file, NULL), '\0');
    DWORD read = 0;
    ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, NULL);
    ::CloseHandle(file);
    return bytes;
}

} // namespace quor::test
