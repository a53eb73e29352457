// Takes two pictures for each style flag: "StylePictures FOLDER". The first is of a control without the flag,
// the second of the same with it, after the same was done to both. Without FOLDER the window stays, with the
// first flag.
#include "StylePictures.h"

#include "FrameApp.h"

#include <cstdlib>

constexpr int Width = 250;

class PictureFrame : public CFrameWnd
{
public:
    PictureFrame()
    {
        Create(nullptr, L"Style flags", WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, Width, 100));
        PostMessage(TakeMessage);
    }

protected:
    afx_msg LRESULT OnTake(WPARAM, LPARAM)
    {
        std::vector<Style> styles = GridStyles();
        for (Style& style : OtherStyles())
            styles.push_back(std::move(style));
        for (const Style& style : styles)
            for (const bool on : {false, true})
            {
                Show(style, on);
                if (__argc < 2)
                    return 0;
                control.reset();
            }
        DestroyWindow();
        return 0;
    }
    afx_msg void OnMenuOpen() { Take(); }
    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT TakeMessage = WM_APP + 1;

    // A menu is open only while the control acts, so that its picture is taken from within.
    void Show(const Style& style, bool on)
    {
        SetWindowPos(nullptr, 0, 0, Width, style.height, SWP_NOZORDER);
        control = style.make(*this, CRect(0, 0, Width, style.height), on);
        name = style.name + (on ? L"-with" : L"-without");
        isTaken = false;
        if (style.act)
            style.act(*control);
        if (!isTaken)
            Take();
    }
    void Take()
    {
        UpdateWindow();
        control->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        // Lists that have dropped down are windows of their own.
        for (MSG message; ::PeekMessage(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE) != FALSE;)
            ::DispatchMessage(&message);
        CRect area;
        GetWindowRect(area);
        if (__argc > 1 && !WritePicture(area, CString(__wargv[1]) + L"\\" + name + L".bmp"))
            std::exit(EXIT_FAILURE);
        isTaken = true;
    }

    std::unique_ptr<CWnd> control;
    CString name;
    bool isTaken = false;
};

BEGIN_MESSAGE_MAP(PictureFrame, CFrameWnd)
    ON_MESSAGE(TakeMessage, &PictureFrame::OnTake)
    ON_COMMAND(MenuIsOpen, &PictureFrame::OnMenuOpen)
END_MESSAGE_MAP()

FrameApp<PictureFrame> theApp;
