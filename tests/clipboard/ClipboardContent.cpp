// The clipboard of the session, by the platform's own functions.
#include "tests/clipboard/ClipboardContent.h"

#include "tests/support/Pump.h"

#include <atomic>
#include <cstring>
#include <stdexcept>

namespace quor::test
{
namespace
{

// A window for the length of a scope, of this thread.
class MessageWindow
{
public:
    MessageWindow()
        : window(::CreateWindowEx(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr))
    {
    }
    ~MessageWindow() { ::DestroyWindow(window); }
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;

    HWND Handle() const { return window; }

private:
    HWND window;
};

// The clipboard, open for a window of its own.
class ScopedClipboard
{
public:
    ScopedClipboard()
    {
        if (!::OpenClipboard(window.Handle()))
            throw std::runtime_error("the clipboard is in use");
    }
    ~ScopedClipboard() { ::CloseClipboard(); }

private:
    MessageWindow window;
};

void Put(UINT format, const void* bytes, std::size_t number)
{
    const ScopedClipboard clipboard;
    ::EmptyClipboard();
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, number);
    std::memcpy(::GlobalLock(memory), bytes, number);
    ::GlobalUnlock(memory);
    ::SetClipboardData(format, memory);
}

} // namespace

UINT CsvFormat()
{
    return ::RegisterClipboardFormat(L"Csv");
}

UINT HtmlFormat()
{
    return ::RegisterClipboardFormat(L"HTML Format");
}

UINT OwnFormat()
{
    return ::RegisterClipboardFormat(L"QuorUiCtrl Cells");
}

void EmptyClipboardContent()
{
    const ScopedClipboard clipboard;
    ::EmptyClipboard();
}

void PutText(std::wstring_view text)
{
    const std::wstring ended(text);
    Put(CF_UNICODETEXT, ended.c_str(), (ended.size() + 1) * sizeof(wchar_t));
}

void PutBytes(UINT format, std::string_view bytes)
{
    Put(format, bytes.data(), bytes.size());
}

bool HasFormat(UINT format)
{
    return ::IsClipboardFormatAvailable(format) != FALSE;
}

std::string BytesOnClipboard(UINT format)
{
    const ScopedClipboard clipboard;
    const HANDLE memory = ::GetClipboardData(format);
    if (memory == nullptr)
        return "";
    std::string bytes(static_cast<const char*>(::GlobalLock(memory)), ::GlobalSize(memory));
    ::GlobalUnlock(memory);
    return bytes;
}

std::wstring TextOnClipboard()
{
    const std::string bytes = BytesOnClipboard(CF_UNICODETEXT);
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    return text.substr(0, text.find(L'\0'));
}

void InAnotherThread(const std::function<void(HWND window)>& work)
{
    std::atomic<bool> done = false;
    const DWORD waiting = ::GetCurrentThreadId();
    std::thread other([&] {
        const MessageWindow window;
        work(window.Handle());
        done = true;
        ::PostThreadMessage(waiting, WM_NULL, 0, 0);
    });
    PumpUntil([&] { return done.load(); });
    other.join();
}

// ---- Holding it

HeldClipboard::HeldClipboard()
    : opened(::CreateEvent(nullptr, TRUE, FALSE, nullptr)),
      released(::CreateEvent(nullptr, TRUE, FALSE, nullptr))
{
    holder = std::thread([this] {
        const MessageWindow window;
        ::OpenClipboard(window.Handle());
        ::SetEvent(opened);
        ::WaitForSingleObject(released, INFINITE);
        if (asked != nullptr)
            ::SendMessage(asked, WM_NULL, 0, 0);
        ::CloseClipboard();
    });
    ::WaitForSingleObject(opened, INFINITE);
}

void HeldClipboard::ReleaseWhenAnswered(HWND window)
{
    asked = window;
    ::SetEvent(released);
}

void HeldClipboard::Release()
{
    if (!holder.joinable())
        return;
    ::SetEvent(released);
    holder.join();
    ::CloseHandle(opened);
    ::CloseHandle(released);
}

} // namespace quor::test
