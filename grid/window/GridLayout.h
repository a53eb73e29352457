// TGGrid::Layout: the steps of creating, laying out and scrolling the grid's window.
#pragma once

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

struct ScrollRequest;

// Works on the grid's existing window, fonts and header windows.
class TGGrid::Layout
{
public:
    explicit Layout(TGGrid& servedGrid) : grid(servedGrid) {}

    // Creation (WindowCreation.cpp).
    void CreateFont();
    void AdoptFont(HFONT source, BYTE quality);
    void CreateHeaders();

    // Layout (GridLayout.cpp).
    void PerformLayout(int redraw);
    // Does what rows that have come or gone ask for without a layout; false when there has to be one.
    bool FollowRows();
    bool IsOfNewRow(const TGGridCell* cell) const;
    void MakeNewRow();
    void MapDC();

    // Scrolling (Scrolling.cpp).
    // What of the content is in view, in logical coordinates.
    CRect ViewRect();
    // What becomes of an open editor.
    enum class OpenEditor
    {
        Commit,
        Keep
    };
    // MoveView with the layout up to date; may run hooks.
    void ScrollView(int dx, int dy, OpenEditor outcome = OpenEditor::Commit);
    // The position of a bar, 0 while it is not shown. Setting it leaves contents and picture as they are and
    // returns whether it was another one.
    int BarPosition(int bar) const;
    bool SetBarPosition(int bar, int position);
    void ScrollContents(int dx, int dy);
    ScrollRequest ReadScrollRequest(int bar, UINT trackMask);

    // The pictures of the bars (BarPictures.cpp).
    // Has a bar drawn with the next paint.
    void RepaintBar(int bar);
    // The same for a bar that may move again at once: not more often than a frame has time for.
    void RepaintBarSoon(int bar);
    // Has the bars drawn that wait for it.
    void FinishBars();

private:
    CPoint EditedCellOrigin() const;
    void NoteEditorPlace();
    void MoveEditor();
    static void CALLBACK OnFrame(HWND window, UINT message, UINT_PTR timer, DWORD time);
    UINT_PTR FrameTimer() const;
    void PlaceHeaders();
    void LayOutScrollBars();
    void LayOutBar(int bar, bool needed, int position, int maximum);
    // Returns whether they were others.
    bool SetBarValues(int bar, int position, int maximum);
    bool IsBarShown(int bar) const;
    void AwaitRepaint();
    bool IsNewRowInUse() const;
    void RenewNewRow();

    TGGrid& grid;
};

} // namespace QuorUiCtr
