// CWnd: the modal loop.
#include "afxpriv.h"
#include "handlemap/TemporaryLevel.h"
#include "threadstate/ThreadState.h"

namespace
{

// Registers a running loop with the thread, so that the window's end is noticed.
class ModalScope
{
public:
    explicit ModalScope(const CWnd* window)
        : m_state(CurrentThreadState()),
          m_frame{window, false, m_state.modalLoop},
          m_outerLoopMessage(m_state.loopMessage)
    {
        m_state.modalLoop = &m_frame;
        m_state.loopMessage = m_state.currentMessage;
        ++TemporaryLevel();
    }
    ~ModalScope()
    {
        --TemporaryLevel();
        m_state.loopMessage = m_outerLoopMessage;
        m_state.modalLoop = m_frame.outer;
    }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    bool WindowIsGone() const { return m_frame.windowIsGone; }

private:
    ThreadState& m_state;
    ModalFrame m_frame;
    MessageFrame* m_outerLoopMessage;
};

// What happens while the queue is empty.
class ModalIdle
{
public:
    ModalIdle(HWND window, DWORD flags)
        : m_window(window),
          m_parent(::GetParent(window)),
          m_flags(flags),
          m_mustShow((flags & MLF_SHOWONIDLE) && !::IsWindowVisible(window))
    {
    }

    void Restart()
    {
        m_count = 0;
        m_isDone = false;
    }
    bool IsDone() const { return m_isDone; }

    void Step()
    {
        Show();
        if (!(m_flags & MLF_NOIDLEMSG) && m_parent != nullptr && m_count == 0)
            ::SendMessage(m_parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_window));
        const bool kick = !(m_flags & MLF_NOKICKIDLE);
        const bool more = kick && ::SendMessage(m_window, WM_KICKIDLE, MSGF_DIALOGBOX, m_count) != 0;
        ++m_count;
        DeleteTemporaryObjects();
        if (!more)
            m_isDone = true;
    }

    // Shows the window that was to be shown when the queue gets empty; key input does not wait for that.
    void Show()
    {
        if (!m_mustShow)
            return;
        m_mustShow = false;
        ::ShowWindow(m_window, SW_SHOWNORMAL);
        ::UpdateWindow(m_window);
    }

private:
    HWND m_window;
    HWND m_parent;
    DWORD m_flags;
    bool m_mustShow;
    bool m_isDone = false;
    LONG m_count = 0;
};

bool QueueIsEmpty()
{
    MSG message;
    return !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE);
}

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    const ModalScope scope(this);
    ModalIdle idle(m_hWnd, dwFlags);
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    while (!scope.WindowIsGone() && ContinueModal())
    {
        while (!idle.IsDone() && !scope.WindowIsGone() && QueueIsEmpty())
            idle.Step();
        if (scope.WindowIsGone() || !ContinueModal())
            break;
        if (!AfxPumpMessage())
        {
            // The outer loops have to end as well.
            AfxPostQuitMessage(0);
            return -1;
        }
        MSG& pumped = CurrentThreadState().pumpedMessage;
        if (pumped.message == WM_SYSKEYDOWN)
            idle.Show();
        if (AfxIsIdleMessage(&pumped))
            idle.Restart();
    }
    if (scope.WindowIsGone())
        return -1;
    m_nFlags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (!(m_nFlags & WF_CONTINUEMODAL))
        return;
    m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
    // Wakes a loop that waits for a message.
    PostMessage(WM_NULL);
}

void CWnd::BeginModalState()
{
    ::EnableWindow(m_hWnd, FALSE);
}

void CWnd::EndModalState()
{
    ::EnableWindow(m_hWnd, TRUE);
}
