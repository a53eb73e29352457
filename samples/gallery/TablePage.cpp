// What the pages with a grid have in common.
#include "TablePage.h"

#include "Language.h"
#include "resource.h"

#include <algorithm>

namespace
{

CRect PlaceIn(const CWnd& page, const CWnd& control)
{
    CRect place;
    control.GetWindowRect(place);
    page.ScreenToClient(place);
    return place;
}

// Gives the grid its own font in a size that counts the whole line of text, not just the letters: rows are
// then high enough for accents and descenders. `font` keeps the font and outlives the grid's window.
void SetRoomyFont(QuorUiCtr::TGGrid& grid, CFont& font)
{
    CClientDC context(&grid);
    CFont* previous = context.SelectObject(grid.GetFont());
    TEXTMETRIC metrics = {};
    context.GetTextMetrics(&metrics);
    context.SelectObject(previous);
    LOGFONT description = {};
    grid.GetFont()->GetLogFont(&description);
    description.lfHeight = metrics.tmHeight;
    font.CreateFontIndirect(&description);
    grid.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), TRUE);
}

} // namespace

TablePage::TablePage(UINT pageTemplateId, LogPane& logPane, QuorUiCtr::TGGrid& shownGrid)
    : Page(pageTemplateId, logPane), grid(shownGrid)
{
}

void TablePage::DoDataExchange(CDataExchange* exchange)
{
    Page::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BANNER, banner);
}

BOOL TablePage::OnInitDialog()
{
    Page::OnInitDialog();
    grid.SetFlatButton(true);
    grid.Create(this, IDC_GRID, WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | WS_CLIPCHILDREN);
    SetRoomyFont(grid, font);
    return TRUE;
}

bool TablePage::EndEditing()
{
    grid.EndEditCell();
    return !grid.IsEditing();
}

Page::Status TablePage::GetStatus()
{
    Status status;
    if (grid.GetCurRowIndex() >= 0 && grid.GetCurColIndex() >= 0)
        status.position.Format(Tr(L"Row %ld, column %ld"), grid.GetCurRowIndex() + 1,
                               grid.GetCurColIndex() + 1);
    else if (grid.GetCurRowIndex() >= 0)
        status.position.Format(Tr(L"Row %ld"), grid.GetCurRowIndex() + 1);
    if (grid.IsRowSelected())
        status.selection.Format(Tr(L"Rows selected: %ld"), grid.GetRowSelNum());
    else if (grid.IsColSelected())
        status.selection.Format(Tr(L"Columns selected: %ld"), grid.GetColSelNum());
    status.count.Format(Tr(L"%ld rows, %ld columns"), grid.GetRowNum(), grid.GetColNum());
    return status;
}

void TablePage::SetBanner(const CString& text)
{
    // When the page is closed, it goes before the grid, which may still report a change.
    if (banner.m_hWnd != nullptr)
        banner.SetWindowText(text);
}

void TablePage::LayOut(int width, int height)
{
    const int gridWidth = WidthForGrid(width, height);
    if (grid.m_hWnd == nullptr)
        return;
    const CRect gridPlace = PlaceIn(*this, grid);
    grid.MoveWindow(0, gridPlace.top, gridWidth, (std::max)(0, height - static_cast<int>(gridPlace.top)));
    const CRect bannerPlace = PlaceIn(*this, banner);
    banner.MoveWindow(bannerPlace.left, bannerPlace.top,
                      (std::max)(0, gridWidth - static_cast<int>(bannerPlace.left)), bannerPlace.Height());
}

BEGIN_MESSAGE_MAP(StyledTablePage, TablePage)
    ON_BN_CLICKED(IDC_LOG_PAINTING, &StyledTablePage::OnLogPainting)
END_MESSAGE_MAP()

StyledTablePage::StyledTablePage(UINT pageTemplateId, LogPane& logPane, bool tree)
    : TablePage(pageTemplateId, logPane, grid), grid(tree, logPane), styles(grid, logPane)
{
}

BOOL StyledTablePage::OnInitDialog()
{
    TablePage::OnInitDialog();
    styles.CreateIn(*this);
    return TRUE;
}

void StyledTablePage::OnLogPainting()
{
    grid.LogPainting(IsDlgButtonChecked(IDC_LOG_PAINTING) != 0);
}
