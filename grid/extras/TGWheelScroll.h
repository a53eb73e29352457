// TGWheelScroll: mouse wheel and touchpad scroll a grid as the user has set them.
#pragma once

#include "grid/TGGridExtension.h"

namespace QuorUiCtr
{

// An extra for grids that scroll with the wheel. While it is attached
//
// - the wheel scrolls by as many rows as the system is set to, by a page or not at all;
// - with Shift it scrolls the columns, as the horizontal wheel does, by the characters that are set;
// - turns finer than a notch, of touchpads for example, scroll at once, and what is less than a pixel adds up
//   until the direction changes;
// - an open editor stays open and goes along with its cell, or is committed, as the host chooses; while the
//   list of a combo box is open, the wheel is the list's, and nothing scrolls;
// - with Ctrl, and where there is nothing to scroll, the parent gets the message.
//
//     QuorUiCtr::TGWheelScroll wheel(grid);
//
// An editor gets the wheel before the grid does: the program's message loop has to offer messages to
// PreTranslateMessage, as MFC's loops do.
class QUOR_EXT_CLASS TGWheelScroll : public TGGridExtension
{
public:
    // What becomes of an open editor when the wheel moves the view.
    enum class OpenEditor
    {
        // It goes along with its cell, also out of the view, and its text stays as it was typed so far.
        Keep,
        // It is committed and closed, as by the scroll bars.
        Commit
    };

    TGWheelScroll();
    // Attaches.
    explicit TGWheelScroll(TGGrid& newGrid);
    ~TGWheelScroll() override;

    // Default: OpenEditor::Keep.
    void SetOpenEditor(OpenEditor outcome) { openEditor = outcome; }
    OpenEditor GetOpenEditor() const { return openEditor; }
    // The pixels that a character of the system's setting counts for, at least 1; 0, which is the default, is
    // the row height, so that the wheel is as quick in both directions. Negative ones count as 0.
    void SetCharWidth(int pixels) { charWidth = pixels > 0 ? pixels : 0; }
    int GetCharWidth() const { return charWidth; }

protected:
    void OnDetach(TGGrid& oldGrid) override;
    bool OnPreTranslate(MSG& message) override;
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

private:
    LRESULT Turn(UINT message, WPARAM wParam, LPARAM lParam);
    bool CanScroll(bool sideways) const;
    int StepOf(bool sideways) const;
    bool IsListOpen() const;

    OpenEditor openEditor = OpenEditor::Keep;
    int charWidth = 0;
    // What fine turns have left in each direction, in parts of a pixel.
    int rowRest = 0;
    int colRest = 0;
};

} // namespace QuorUiCtr
