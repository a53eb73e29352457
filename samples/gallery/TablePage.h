// TablePage: what the pages with a grid have in common: the grid below a line of tools and a banner.
#pragma once

#include "GalleryGrid.h"
#include "GridStylePanel.h"
#include "Page.h"

// Creates the grid with a roomy font at the control IDC_GRID of the page, and lets it fill what is below the
// tools.
class TablePage : public Page
{
public:
    CWnd& MainControl() override { return grid; }
    bool IsChanged() override { return grid.IsModified(); }
    bool EndEditing() override;
    Status GetStatus() override;

protected:
    // `grid` is a member of the derived page.
    TablePage(UINT templateId, LogPane& log, QuorUiCtr::TGGrid& grid);

    // The text above the grid.
    void SetBanner(const CString& text);
    // The width that is left for the grid in a page of that size in pixels.
    virtual int WidthForGrid(int width, int) { return width; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void LayOut(int width, int height) override;

private:
    QuorUiCtr::TGGrid& grid;
    CFont font;
    CStatic banner;
};

// A page with the gallery's grid, with a check box for the log of its painting and a panel of its styles.
class StyledTablePage : public TablePage
{
protected:
    StyledTablePage(UINT templateId, LogPane& log, bool tree);

    int WidthForGrid(int width, int height) override { return styles.PlaceAtRight(width, height); }
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnLogPainting();

    GalleryGrid grid;

private:
    GridStylePanel styles;
};
