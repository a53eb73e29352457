// What stands on the clipboard, put there and looked at as another program does.
#pragma once

#include <afxwin.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace quor::test
{

// The formats beside CF_UNICODETEXT.
UINT CsvFormat();
UINT HtmlFormat();
UINT OwnFormat();

// Empties the clipboard, and puts texts or bytes there. Bytes get no zero behind them.
void EmptyClipboardContent();
void PutText(std::wstring_view text);
void PutBytes(UINT format, std::string_view bytes);

bool HasFormat(UINT format);
// Up to the first zero; empty without the format.
std::wstring TextOnClipboard();
std::string BytesOnClipboard(UINT format);
// The number that changes with the content.
inline DWORD ContentNumber()
{
    return ::GetClipboardSequenceNumber();
}

// Does something with the clipboard in another thread, with a window of its own, while this one handles
// messages as a program does. Waits for the end.
void InAnotherThread(const std::function<void(HWND window)>& work);

// Keeps the clipboard open in another thread.
class HeldClipboard
{
public:
    HeldClipboard();
    ~HeldClipboard() { Release(); }
    HeldClipboard(const HeldClipboard&) = delete;
    HeldClipboard& operator=(const HeldClipboard&) = delete;

    // Closes it.
    void Release();
    // Closes it as soon as the window, of the thread of the test, has answered a message that the holder
    // sends: not before that thread waits and handles messages.
    void ReleaseWhenAnswered(HWND window);

private:
    HANDLE opened;
    HANDLE released;
    std::atomic<HWND> asked = nullptr;
    std::thread holder;
};

} // namespace quor::test
