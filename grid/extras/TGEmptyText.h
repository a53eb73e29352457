// TGEmptyText: what a grid says while it has no rows.
#pragma once

#include "grid/TGGridExtension.h"

namespace QuorUiCtr
{

// An extra that writes a text into the empty area of a grid, "no rows yet" for example: in the middle of what
// is in view, below the new-row line when that is shown, broken into lines that fit. It goes with the first
// row and comes back when the last one has left.
//
//     QuorUiCtr::TGEmptyText empty(grid, L"No orders yet.\nPress N to enter one.");
class QUOR_EXT_CLASS TGEmptyText : public TGGridExtension
{
public:
    TGEmptyText();
    // Attaches. A null text counts as empty.
    TGEmptyText(TGGrid& newGrid, const wchar_t* emptyText);
    ~TGEmptyText() override;

    // Shown from the next paint on, which it asks for. "\n" begins a line; null counts as empty, and nothing
    // is drawn.
    void SetText(const wchar_t* newText);
    const CString& GetText() const { return text; }
    // The colour of the text. Default: the system's grey of texts that are disabled.
    void SetColor(COLORREF newColor);
    COLORREF GetColor() const { return color; }

protected:
    void OnAttach() override;
    void OnDetach(TGGrid& oldGrid) override;
    void OnDrawOverlay(CDC& context, const CRect& area) override;
    void OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> rows) override;
    void OnRowsRemoved(TGRemovedRows& rows) override;
    void OnLaidOut() override;
    void OnScrolled() override;

private:
    // Where the text may stand, in logical coordinates.
    CRect Place() const;
    void Repaint() const;
    void RepaintIfEmpty() const;
    void FollowRows();

    CString text;
    COLORREF color = ::GetSysColor(COLOR_GRAYTEXT);
    // There was no row when rows came or went last.
    bool wasEmpty = false;
};

} // namespace QuorUiCtr
