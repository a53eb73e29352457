// TGBusyOverlay: what lies over a grid while its host works: progress, and a way to stop it.
#pragma once

#include "grid/TGGridExtension.h"

#include <memory>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

class BusyPanel;

// An extra for long work of a host in the thread of the grid. While it is shown, the grid stands behind it as
// it was, and on it a text, how much is done, and a button that cancels, as Escape does. Input to the grid,
// its headers and its scroll bars is held back: it is dropped, and does not come later. What programs do with
// the grid goes on as ever; an update block around the work is a good idea.
//
//     QuorUiCtr::TGBusyOverlay busy(grid);
//     busy.Show(L"Reading the orders...", orders.size());
//     for (std::size_t i = 0; i < orders.size() && busy.Step(i); ++i)
//         ReadOrder(orders[i]);
//     busy.Hide();
//
// Step handles no other messages than input to the grid, the cancelling and the painting of windows: nothing
// of the program is called that does not paint, so that it finds its data as it left them. Work in another
// thread, or in steps from a timer, lets the message loop run instead: it tells SetDone from the thread of
// the window, and asks IsCancelled.
class QUOR_EXT_CLASS TGBusyOverlay : public TGGridExtension
{
public:
    TGBusyOverlay();
    // Attaches.
    explicit TGBusyOverlay(TGGrid& newGrid);
    // Hides.
    ~TGBusyOverlay() override;

    // Shows it, and takes the focus when that is in the same top-level window. An open edit is committed
    // first. `text` may have several lines; null counts as empty. `total` is how many steps there are; with 0
    // or less nobody knows, and no progress is shown. False, showing nothing: not attached, without a window,
    // shown already, or a hook of the commit has changed that.
    bool Show(const wchar_t* text, long long total);
    // Takes it away and gives the focus back; nothing when it is not shown.
    void Hide();
    bool IsShown() const { return panel != nullptr; }

    // Other words for what is being done, shown at once.
    void SetText(const wchar_t* text);
    // How many steps are done; shows what has changed with the next paint.
    void SetDone(long long done);
    // SetDone(done), and handles what waits in the message queue, if that is due: it is about thirty times a
    // second, so that a call costs next to nothing. False when the work is to stop: it was cancelled, the
    // program ends, or the window has gone. True when it was never shown, so that work without a window goes
    // on.
    bool Step(long long done);
    // The user, or Cancel, has cancelled since it was shown last; true also after Hide.
    bool IsCancelled() const { return cancelled; }
    // As the button does. Nothing when it is not shown or cancelled already.
    void Cancel();

protected:
    // The user wants to cancel; false goes on. May ask the user, hide this and close the window. Default:
    // true.
    virtual bool OnCancel();

    // Input is held back from other extensions, too.
    bool IsCalledFirst() const override;
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnLaidOut() override;

private:
    friend class BusyPanel;

    // Messages.
    bool Pump();
    bool TakeInput(MSG& message) const;
    void HandleInput(MSG& message);
    bool IsOwn(HWND window) const;
    bool IsCancelKey(const MSG& message) const;

    // The window.
    void ClipWindows(TGGrid& grid);
    void UnclipWindows(TGGrid& grid);
    void Close(TGGrid& grid);
    // It was destroyed with the grid's.
    void PanelGone();

    // Owned by its window; null while nothing is shown.
    BusyPanel* panel = nullptr;
    long long total = 0;
    bool cancelled = false;
    // The window has gone while it was shown, or the program is to end.
    bool lost = false;
    // OnCancel is running.
    bool asking = false;
    ULONGLONG lastPump = 0;
    // What had the focus; null when it was left alone.
    HWND focusBefore = nullptr;
    // Windows that draw around others only while this is shown, each with the style bit for it.
    std::vector<std::pair<HWND, LONG>> clipped;

    // Expires with the object: hooks may delete it.
    std::shared_ptr<int> life = std::make_shared<int>();
};

} // namespace QuorUiCtr
