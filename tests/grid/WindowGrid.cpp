// The grid in a host window that window tests share.
#include "tests/grid/WindowGrid.h"

namespace quor::test
{

using namespace QuorUiCtr;

namespace
{

std::string DescribeBar(const CWnd& window, int bar, const char* name)
{
    const LONG_PTR flag = bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
    if ((::GetWindowLongPtr(window.GetSafeHwnd(), GWL_STYLE) & flag) == 0)
        return "";
    int minimum = 0;
    int maximum = 0;
    ::GetScrollRange(window.GetSafeHwnd(), bar, &minimum, &maximum);
    const int position = ::GetScrollPos(window.GetSafeHwnd(), bar);
    const std::string lowest = minimum == 0 ? "" : std::to_string(minimum) + "..";
    return std::string(name) + " " + lowest + std::to_string(maximum) + "@" + std::to_string(position);
}

} // namespace

CRect WindowGrid::Area()
{
    CRect area;
    GetClientRect(&area);
    return area;
}

CPoint WindowGrid::UpCorner()
{
    CPoint corner;
    GetUpCorner(corner);
    return corner;
}

CPoint WindowGrid::ToClient(long logicalX, long logicalY)
{
    const CPoint corner = UpCorner();
    return CPoint(corner.x - 1 + logicalX, corner.y - 1 + logicalY);
}

CRect WindowGrid::InsideOf(long row, long col)
{
    CRect cell;
    GetCell(row, col).GetRect(cell);
    const CPoint corner = ToClient(cell.left, cell.top);
    return CRect(corner.x + 1, corner.y + 1, corner.x + cell.Width(), corner.y + cell.Height());
}

std::string WindowGrid::Bars()
{
    const std::string horizontal = DescribeBar(*this, SB_HORZ, "H");
    const std::string vertical = DescribeBar(*this, SB_VERT, "V");
    return horizontal + (horizontal.empty() || vertical.empty() ? "" : " ") + vertical;
}

std::vector<std::string> WindowGrid::TakeLog()
{
    return std::exchange(log, {});
}

void WindowGrid::OnBeforeRefresh(TGGridCell& cell)
{
    Write("colours", cell);
    TGGrid::OnBeforeRefresh(cell);
}

bool WindowGrid::OnRefresh(TGGridCell& cell)
{
    Write("cell", cell);
    return TGGrid::OnRefresh(cell);
}

bool WindowGrid::OnRefresh(TGGridRow& row)
{
    if (recording)
        log.push_back("row " + std::to_string(row.GetIndex()));
    return TGGrid::OnRefresh(row);
}

void WindowGrid::Write(const char* what, const TGGridCell& cell)
{
    if (recording)
        log.push_back(std::string(what) + " " + std::to_string(cell.GetRowIndex()) + "," +
                      std::to_string(cell.GetColIndex()));
}

void GridWindowTest::Create(WindowGrid& grid, int width, int height, DWORD style)
{
    ASSERT_TRUE(grid.Create(CRect(10, 10, 10 + width, 10 + height), style, &host));
    CFont font;
    ASSERT_TRUE(font.CreateFont(-16, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                                L"Tahoma"));
    grid.SetFont(&font);
    ASSERT_EQ(rowHeight, grid.GetRowHeight());
}

void GridWindowTest::Fill(WindowGrid& grid, long rows, long cols, long width)
{
    for (long col = 0; col < cols; ++col)
    {
        CString name;
        name.Format(L"Column %d", static_cast<int>(col));
        grid.AppendCol(name, width);
    }
    for (long row = 0; row < rows; ++row)
    {
        grid.AppendRow(nullptr);
        for (long col = 0; col < cols; ++col)
        {
            CString text;
            text.Format(L"%d,%d", static_cast<int>(row), static_cast<int>(col));
            grid.GetCell(row, col).SetText(text);
        }
    }
}

std::string Text(const CRect& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "-" + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

std::string Text(const CPoint& point)
{
    return std::to_string(point.x) + "," + std::to_string(point.y);
}

CRect PlaceOf(const CWnd& child)
{
    CRect place;
    child.GetWindowRect(&place);
    ::MapWindowPoints(nullptr, ::GetParent(child.GetSafeHwnd()), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

} // namespace quor::test
