// A program that the application wizard would have made, with its main window and its bars.
#pragma once

#include "tests/compat/Program.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quor::test
{

// Commands as the menu sends them.
namespace command
{
constexpr WPARAM fileNew = 0xE100, fileClose = 0xE102, fileSave = 0xE103, filePrintSetup = 0xE106,
                 filePrint = 0xE107, editCopy = 0xE122, editCut = 0xE123, windowNew = 0xE130,
                 windowTile = 0xE133, appAbout = 0xE140, appExit = 0xE141, viewToolBar = 0xE800,
                 viewStatusBar = 0xE801;
}

class WizardProgram
{
public:
    // Waits for the main window, whose title begins so.
    WizardProgram(const std::wstring& name, const std::wstring& title, const std::wstring& arguments);

    HWND Frame() const { return m_frame; }
    HWND ToolBar() const { return Bar(command::viewToolBar); }
    HWND StatusBar() const { return Bar(command::viewStatusBar); }
    std::wstring Title() const { return TextOf(m_frame); }

    // Sends a message to a window of the program, and wakes its loop: idle time comes only after messages
    // that were posted.
    void SendTo(HWND window, UINT message, WPARAM wParam, LPARAM lParam = 0) const;
    void Send(WPARAM id) const { SendTo(m_frame, WM_COMMAND, id); }
    void Post(WPARAM id) const { ::PostMessageW(m_frame, WM_COMMAND, id, 0); }
    // Opens the popup of the menu bar with that key, and chooses an item by its key.
    void ChooseByKeys(wchar_t popup, wchar_t item) const;
    // Waits for a message box, reads it, and presses the button; the text of the box, empty without one.
    std::wstring AnswerBox(WPARAM button) const;
    HWND Window(const std::wstring& title) const { return m_program.Window(title); }
    bool WaitUntil(const std::function<bool()>& condition) const { return m_program.WaitUntil(condition); }
    DWORD ExitCode() const { return m_program.ExitCode(); }

    // Whether idle time brings this about: the title, a part of the status bar, the state of a button.
    bool TitleBecomes(const std::wstring& title) const;
    bool StatusBecomes(WPARAM part, const std::wstring& text) const;
    bool ButtonBecomes(WPARAM id, bool enabled) const;

private:
    HWND Bar(WPARAM id) const;
    // Only the program itself can be asked for the parts of its status bar.
    std::wstring StatusText(WPARAM part) const;

    Program m_program;
    HWND m_frame;
};

// Reads a message box and presses the button.
std::wstring Answer(const Program& program, HWND box, WPARAM button);

// Takes the recently used files of earlier runs out of the settings.
void ForgetRecentFiles(const std::wstring& application);

// A path in the folder for temporary files, of a file that is made anew with these bytes and goes with the
// object.
class DocumentFile
{
public:
    DocumentFile(const std::wstring& name, const std::string& bytes);
    ~DocumentFile();
    DocumentFile(const DocumentFile&) = delete;
    DocumentFile& operator=(const DocumentFile&) = delete;

    const std::wstring& Path() const { return m_path; }
    std::wstring Quoted() const { return L"\"" + m_path + L"\""; }
    // What the title of a program says of the file.
    std::wstring Title() const;
    std::string Bytes() const;

private:
    std::wstring m_path;
};

} // namespace quor::test
