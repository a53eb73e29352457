// Answers the dialog that asks for a file: waits for it, reads it, and does what the test says.
#include "tests/support/FilePromptProbe.h"
#include "tests/support/Pump.h"

// The names of the controls are in here.
#include <dlgs.h>

#include <gtest/gtest.h>

#include <utility>

namespace quor::test
{

namespace
{

FilePromptProbe* current = nullptr;

// The accelerator tables of this process. Under Wine a handle without its upper word stands for the object,
// too.
std::set<HACCEL> AcceleratorTables()
{
    std::set<HACCEL> tables;
    for (UINT_PTR slot = 0x20; slot < 0xfff0; slot += 2)
    {
        const HACCEL table = reinterpret_cast<HACCEL>(slot);
        if (::CopyAcceleratorTable(table, nullptr, 0) != 0)
            tables.insert(table);
    }
    return tables;
}

std::wstring TextOf(HWND window)
{
    wchar_t text[MAX_PATH] = L"";
    ::GetWindowTextW(window, text, MAX_PATH);
    return text;
}

} // namespace

FilePromptProbe::FilePromptProbe(std::function<void(HWND)> answer)
    : m_answer(std::move(answer)),
      m_tablesBefore(AcceleratorTables()),
      m_hook(WH_CBT, &FilePromptProbe::OnComputerBasedTraining)
{
    current = this;
}

FilePromptProbe::~FilePromptProbe()
{
    current = nullptr;
    if (m_timer != 0)
        ::KillTimer(nullptr, m_timer);
    // The list of files leaves the table of its keys behind.
    for (const HACCEL table : AcceleratorTables())
    {
        if (m_tablesBefore.count(table) == 0)
            ::DestroyAcceleratorTable(table);
    }
}

LRESULT CALLBACK FilePromptProbe::OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam)
{
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && current != nullptr && current->m_dialog == nullptr &&
        ::GetDlgItem(window, cmb1) != nullptr)
    {
        current->m_dialog = window;
        current->m_timer = ::SetTimer(nullptr, 0, 1, &FilePromptProbe::OnTimer);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void CALLBACK FilePromptProbe::OnTimer(HWND, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(nullptr, timer);
    if (current == nullptr)
        return;
    // A dialog that does not close by its answer must not wait for ever.
    if (std::exchange(current->m_isAnswered, true))
    {
        current->m_timer = 0;
        ADD_FAILURE() << "the dialog stays open";
        Cancel(current->m_dialog);
        return;
    }
    current->m_timer = ::SetTimer(nullptr, 0, DefaultDeadline, &FilePromptProbe::OnTimer);
    current->Read();
    current->m_answer(current->m_dialog);
}

void FilePromptProbe::Read()
{
    m_title = TextOf(m_dialog);
    m_name = TextOf(::GetDlgItem(m_dialog, cmb13));
    const HWND filters = ::GetDlgItem(m_dialog, cmb1);
    for (LRESULT i = 0; i < ::SendMessageW(filters, CB_GETCOUNT, 0, 0); ++i)
    {
        wchar_t text[100] = L"";
        ::SendMessageW(filters, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        m_filters += std::wstring(text) + L"|";
    }
}

void FilePromptProbe::Take(HWND dialog, const wchar_t* name)
{
    ::SetDlgItemTextW(dialog, cmb13, name);
    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void FilePromptProbe::Cancel(HWND dialog)
{
    ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

} // namespace quor::test
