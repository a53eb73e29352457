// TipWindow: a text in a small window over others, drawn where it shall stand to the pixel.
#pragma once

#include "grid/window/BrushWindowClass.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// The control of the platform leaves around its text what it wants to, which is not the same everywhere. The
// window never has the focus, and the mouse goes through it.
class TipWindow : public CWnd
{
public:
    TipWindow();
    ~TipWindow() override;

    // Makes the window, hidden; nothing when it is there. False when there is none afterwards.
    bool MakeWindow(CWnd& owner);
    // Shows a text in `place` (screen coordinates), drawn by CDC::DrawText with `format` in a copy of `font`.
    // The window is larger by what it needs for its frame, and moved into `area` where it sticks out to the
    // sides.
    void Show(const CString& text, const CRect& place, UINT format, CFont& font, const CRect& area);
    void Hide();

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);

private:
    // The frame, and what is free between it and the text.
    static constexpr int Border = 3;

    CBrush background;
    BrushWindowClass windowClass;
    CString shownText;
    UINT drawFormat = 0;
    CFont textFont;
};

} // namespace QuorUiCtr
