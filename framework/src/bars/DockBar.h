// DockBar: the bar at an edge of a frame, or in a floating frame, that holds docked bars in rows.
#pragma once

#include "bars/BarAccess.h"
#include "bars/DockRows.h"

namespace quorfx
{

class DockBar : public CControlBar
{
    DECLARE_DYNAMIC(DockBar)

public:
    ~DockBar() override;

    // align is the edge, with CBRS_FLOATING in a floating frame.
    BOOL Create(CFrameWnd& frame, UINT id, DWORD align);

    // Takes a bar of the site in. Without a rectangle (in screen coordinates) it gets a new last row.
    void Insert(CControlBar* bar, LPCRECT screenRect);
    // Takes a bar in at a row, behind the bars that begin before it; a row that does not exist is added.
    void InsertAt(CControlBar* bar, size_t row, int wanted);
    // Where a bar is, and taking it in there again: into its row, or a new one if it was alone.
    DockPlace PlaceOf(const CControlBar* bar) const;
    void PutBack(CControlBar* bar, const DockPlace& place);
    // Lets a bar go; its window stays a child until it is given another parent.
    void Forget(CControlBar* bar);
    bool Holds(const CControlBar* bar) const;
    bool IsEmpty() const { return m_rows.empty(); }
    const std::vector<DockRow>& Rows() const { return m_rows; }

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
    void DoPaint(CDC*) override {}

    // Puts the bars where they belong in a length.
    void PlaceBars(int length);

protected:
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    // The bars that are shown, with their sizes now.
    std::vector<DockRow> VisibleRows(bool commits);
    void Adopt(CControlBar* bar);

    std::vector<DockRow> m_rows;
};

// The dock bar that holds the bar; NULL for none.
DockBar* DockBarOf(const CControlBar& bar);

} // namespace quorfx
