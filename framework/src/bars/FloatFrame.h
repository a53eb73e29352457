// FloatFrame: the small frame around a floating bar.
#pragma once

#include "bars/DockBar.h"

namespace quorfx
{

// Is as large as its bar, hides it when it is closed, and goes when the bar has gone elsewhere.
class FloatFrame : public CMiniFrameWnd
{
public:
    explicit FloatFrame(CFrameWnd& site) : m_site(site) {}

    // screenPoint: the top left corner of the bar. align: CBRS_ALIGN_TOP for a lying bar, CBRS_ALIGN_LEFT for
    // a standing one.
    BOOL Create(CPoint screenPoint, DWORD align);
    DockBar& Dock() { return m_dock; }
    CControlBar* Bar() const;
    // Moves the bar's top left corner to the point.
    void MoveTo(CPoint screenPoint);
    CPoint Place() const;
    // Shows or hides the window with its bar.
    void ShowAsNeeded();

    void RecalcLayout(BOOL bNotify = TRUE) override;

protected:
    void PostNcDestroy() override;
    afx_msg void OnClose();

    DECLARE_MESSAGE_MAP()

private:
    CFrameWnd& m_site;
    DockBar m_dock;
    bool m_isFitting = false;
};

} // namespace quorfx
