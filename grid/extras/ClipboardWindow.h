// ClipboardWindow: the window that owns the clipboard for an extra, and renders what it offers when it is
// asked.
#pragma once

#include <afxwin.h>

#include <functional>
#include <span>
#include <vector>

namespace QuorUiCtr
{

// The clipboard, open for the length of a scope.
class OpenedClipboard
{
public:
    // Tries for so many milliseconds, while messages that other threads send are handled, which may do
    // anything. `window` may be null, for looking only.
    OpenedClipboard(HWND window, DWORD patience);
    ~OpenedClipboard();
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    bool IsOpen() const { return isOpen; }

private:
    bool isOpen;
};

// A window that nobody sees, because the clipboard asks the window that has filled it for the data, and the
// window of a grid may be gone by then.
class ClipboardWindow : public CWnd
{
public:
    ~ClipboardWindow() override;

    // Makes the memory of one format; null when it cannot be made.
    using Render = std::function<HGLOBAL(UINT format)>;

    // Empties the clipboard and offers the formats, for which `render` is asked until all are rendered or
    // somebody else has emptied the clipboard; then `ended` is called. False, changing nothing, when the
    // clipboard cannot be opened.
    bool Offer(std::span<const UINT> formats, Render render, std::function<void()> ended, DWORD patience);
    // What is offered is still to be rendered, in part at least.
    bool IsOffering() const { return !owed.empty(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool MakeWindow();
    void RenderOne(UINT format);
    void RenderAll();
    void End();

    // The formats that are offered and not rendered.
    std::vector<UINT> owed;
    Render renderFormat;
    std::function<void()> tellEnd;
};

} // namespace QuorUiCtr
