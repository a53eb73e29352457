// A large log: a thread reads, the window shows, with progress, and the user may cancel.
#include <afxwin.h>
#include <afxcmn.h>

#include "FrameApp.h"
#include "grid/TGGrid.h"

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace QuorUiCtr;

constexpr int LineNumber = 200000;
constexpr UINT CancelId = 101;

// Runs in a thread of its own and touches no window: lines wait here until the window takes them, and the
// thread waits when they are many.
class LogReader
{
public:
    LogReader()
    {
        reader = std::jthread([this](const std::stop_token& stop) {
            for (int line = 1; line <= LineNumber && !stop.stop_requested(); ++line)
            {
                std::unique_lock lock(mutex);
                if (taken.wait(lock, stop, [this] { return waiting.size() < 2000; }))
                    waiting.push_back(L"Event " + std::to_wstring(line));
            }
        });
    }
    void Cancel() { reader.request_stop(); }
    std::vector<std::wstring> Take()
    {
        const std::lock_guard lock(mutex);
        taken.notify_one();
        return std::exchange(waiting, {});
    }

private:
    std::mutex mutex;
    std::condition_variable_any taken;
    std::vector<std::wstring> waiting;
    std::jthread reader; // the last: it uses the others to its end
};

class LogFrame : public CFrameWnd
{
public:
    LogFrame()
    {
        Create(nullptr, L"Large log", WS_OVERLAPPEDWINDOW, CRect(40, 40, 480, 400));
        grid.Create(CRect(), WS_CHILD | WS_VISIBLE, this);
        grid.SetFlatButton(true);
        grid.SetReadOnly(true);
        grid.AppendCol(L"Line", 80);
        grid.AppendCol(L"Text", 300);
        progress.Create(WS_CHILD | WS_VISIBLE, CRect(), this, 0);
        progress.SetRange32(0, LineNumber);
        cancel.Create(L"Cancel", WS_CHILD | WS_VISIBLE, CRect(), this, CancelId);
        SetTimer(1, 30, nullptr);
    }

protected:
    // Timers come when nothing else waits: painting and clicks go first. Many rows are one layout and one
    // repaint.
    afx_msg void OnTimer(UINT_PTR id)
    {
        const TGGridUpdate update(grid);
        for (const std::wstring& text : reader.Take())
        {
            grid.AppendRow(nullptr);
            const long row = grid.GetRowNum() - 1;
            grid.GetCell(row, 0).SetText(std::to_wstring(row + 1).c_str());
            grid.GetCell(row, 1).SetText(text.c_str());
        }
        progress.SetPos(static_cast<int>(grid.GetRowNum()));
        if (grid.GetRowNum() >= LineNumber)
            KillTimer(id);
    }
    afx_msg void OnCancel()
    {
        reader.Cancel();
        KillTimer(1);
    }
    afx_msg void OnSize(UINT type, int width, int height)
    {
        CFrameWnd::OnSize(type, width, height);
        if (cancel.GetSafeHwnd() == nullptr)
            return;
        const int top = height > 28 ? height - 28 : 0;
        grid.MoveWindow(0, 0, width, top);
        progress.MoveWindow(4, top + 4, width > 100 ? width - 100 : 0, 20);
        cancel.MoveWindow(width - 88, top + 2, 84, 24);
    }
    DECLARE_MESSAGE_MAP()

private:
    TGGrid grid;
    CProgressCtrl progress;
    CButton cancel;
    LogReader reader; // goes first: asks the thread to stop and waits for it
};

BEGIN_MESSAGE_MAP(LogFrame, CFrameWnd)
    ON_BN_CLICKED(CancelId, &LogFrame::OnCancel)
    ON_WM_TIMER()
    ON_WM_SIZE()
END_MESSAGE_MAP()

FrameApp<LogFrame> theApp;
