// BusyPanel: the window that covers a grid while its host works.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

class TGBusyOverlay;
class TGGrid;

// Lives as long as its window, which deletes it.
class BusyPanel : public CWnd
{
public:
    explicit BusyPanel(TGBusyOverlay& shownOverlay) : overlay(&shownOverlay) {}

    // Takes a picture of the grid, and its place. Without `hasProgress` no bar is shown. False without a
    // window, and the object is to be deleted.
    bool Create(TGGrid& grid, const CString& shownText, bool hasProgress);
    // The overlay does not hear of the end of the window any more.
    void Leave() { overlay = nullptr; }
    // Covers the grid, whose size may be another one.
    void Place(TGGrid& grid);
    void ShowText(const CString& shownText);
    void ShowPercent(int shownPercent);
    // There is nothing to cancel any more.
    void DisableCancel();
    HWND GetCancelButton() const { return button; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

private:
    // Where things stand, in client coordinates.
    struct Places
    {
        CRect box;
        CRect text;
        CRect bar;
        CRect percent;
        CRect button;
    };
    Places Measure(CDC& context) const;
    void PlaceButton();
    void TakePicture(CWnd& window);
    void Paint();
    void PaintBox(CDC& context, const Places& places) const;

    TGBusyOverlay* overlay;
    HWND button = nullptr;
    CFont font;
    // The grid behind a veil.
    CBitmap picture;
    CSize pictureSize;
    CString text;
    bool progress = false;
    int percent = 0;
};

} // namespace QuorUiCtr
