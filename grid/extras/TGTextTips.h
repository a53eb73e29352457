// TGTextTips: the whole text of cells and captions that are cut, in a tip over them.
#pragma once

#include "grid/TGGridExtension.h"

#include <memory>

namespace QuorUiCtr
{

class TextRuler;
class TipWindow;

// An extra for grids whose columns are narrower than their texts: while the mouse rests on a cell or a
// caption whose text is cut, by the cell or by the edge of the view, a tip shows all of it, with each
// character over the one below. Where the text fits, there is none. Up to 1023 characters are shown; longer
// ones than the screen is wide in several lines.
//
//     QuorUiCtr::TGTextTips tips(grid);
//
// Tips of the hooks OnCellTip and OnColTip and of other extensions come first: where there is one, this one
// is not shown. It is not the tip that these have, which is shown beside the mouse and in short.
class QUOR_EXT_CLASS TGTextTips : public TGGridExtension
{
public:
    TGTextTips();
    // Attaches.
    explicit TGTextTips(TGGrid& newGrid);
    ~TGTextTips() override;

    // How long the mouse rests before a tip is shown, in milliseconds; 0: at once. -1: as long as the system
    // waits for a double click, which is the default and what other tips wait.
    void SetDelay(int milliseconds);
    int GetDelay() const { return delay; }

    // The text of the tip that is shown; empty while none is.
    CString GetShownText() const;
    // The text that a tip over a place would show: of a cell, or with row -1 of a caption. Empty when the
    // text is seen as a whole, and for a place that there is not.
    CString GetTipText(long row, long col) const;
    // Takes the tip off the screen until the mouse comes to another place.
    void Hide();

protected:
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnTextChanged(TGGridCell& cell, const CString& oldText) override;
    void OnColResized(TGGridCol& col, long oldWidth) override;
    void OnLaidOut() override;
    void OnScrolled() override;

private:
    // A place whose text is cut: all of it, and where it begins, in client coordinates of the grid.
    struct CutText
    {
        CString text;
        CRect place;
        CFont* font = nullptr;
        // How CDC::DrawText draws it.
        UINT format = 0;
    };
    bool FindCutText(long row, long col, CutText& cut) const;
    bool IsCut(const TGTextLook& look, const CRect& place, const CRect& view, CutText& cut) const;

    void MoveOver(CWnd& window, CPoint point);
    bool HasOtherTip() const;
    bool IsEdited() const;
    void ShowAfterDelay();
    void Show();
    void Forget();
    static void CALLBACK OnTime(HWND window, UINT message, UINT_PTR timer, DWORD time);

    std::unique_ptr<TextRuler> ruler;
    std::unique_ptr<TipWindow> tip;
    int delay = -1;
    // The window that the mouse is over, where, and the cell or caption there; null and -2 while it is
    // nowhere.
    CWnd* under = nullptr;
    CPoint mouse;
    long overRow = -2;
    long overCol = -2;
    CString shown;
    // Goes with this object, which hooks may delete.
    std::shared_ptr<const int> life = std::make_shared<const int>(0);
};

} // namespace QuorUiCtr
