// Opening the clipboard, and rendering late.
#include "grid/extras/ClipboardWindow.h"

#include "grid/model/MakeOrNull.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{
namespace
{

// Milliseconds between two attempts to open the clipboard: Windows tells nobody that it is free again.
constexpr DWORD RetryTime = 10;

// Who has the clipboard open may be asking a window of this thread for data, and would wait for ever.
void HandleSentMessages(DWORD milliseconds)
{
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds, QS_SENDMESSAGE);
    MSG message;
    ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

bool OpenPatiently(HWND window, DWORD patience)
{
    const ULONGLONG start = ::GetTickCount64();
    while (!::OpenClipboard(window))
    {
        const ULONGLONG waited = ::GetTickCount64() - start;
        if (waited >= patience)
            return false;
        HandleSentMessages((std::min)(RetryTime, static_cast<DWORD>(patience - waited)));
    }
    return true;
}

} // namespace

OpenedClipboard::OpenedClipboard(HWND window, DWORD patience) : isOpen(OpenPatiently(window, patience)) {}

OpenedClipboard::~OpenedClipboard()
{
    if (isOpen)
        ::CloseClipboard();
}

// Renders what is offered still.
ClipboardWindow::~ClipboardWindow()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

bool ClipboardWindow::MakeWindow()
{
    return m_hWnd != nullptr ||
           CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr) != FALSE;
}

bool ClipboardWindow::Offer(std::span<const UINT> formats, Render render, std::function<void()> ended,
                            DWORD patience)
{
    if (!MakeWindow())
        return false;
    const HWND own = m_hWnd;
    const OpenedClipboard clipboard(own, patience);
    // Ends an earlier offer of this window, too, or tells another one, which may delete this one.
    if (!clipboard.IsOpen() || !::EmptyClipboard() || !::IsWindow(own))
        return false;
    owed.assign(formats.begin(), formats.end());
    renderFormat = std::move(render);
    tellEnd = std::move(ended);
    for (const UINT format : formats)
        ::SetClipboardData(format, nullptr);
    return true;
}

LRESULT ClipboardWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_RENDERFORMAT:
        RenderOne(static_cast<UINT>(wParam));
        return 0;
    case WM_RENDERALLFORMATS:
        RenderAll();
        return 0;
    case WM_DESTROYCLIPBOARD:
        End();
        return 0;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

// The clipboard is open: for who asks, or by RenderAll.
void ClipboardWindow::RenderOne(UINT format)
{
    if (std::erase(owed, format) == 0)
        return;
    const HGLOBAL memory = MakeOrNull([&] { return renderFormat(format); });
    if (memory != nullptr && ::SetClipboardData(format, memory) == nullptr)
        ::GlobalFree(memory);
    if (owed.empty())
        End();
}

void ClipboardWindow::RenderAll()
{
    constexpr DWORD Patience = 1000;
    const OpenedClipboard clipboard(m_hWnd, Patience);
    if (!clipboard.IsOpen() || ::GetClipboardOwner() != m_hWnd)
        return;
    for (const UINT format : std::vector<UINT>(owed))
        RenderOne(format);
}

void ClipboardWindow::End()
{
    owed.clear();
    renderFormat = nullptr;
    if (const auto told = std::exchange(tellEnd, nullptr))
        told();
}

} // namespace QuorUiCtr
