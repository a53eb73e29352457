// The grid in a host window that window tests share.
#include "tests/grid/WindowGrid.h"

#include "tests/grid/ModelGrid.h"

#include <utility>

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

// An argument in the line of its call; flags and points are left out.
struct ArgumentText
{
    std::string operator()(long index) const { return std::to_string(index); }
    std::string operator()(bool) const { return ""; }
    std::string operator()(samples::Supplied) const { return ""; }
    std::string operator()(CPoint) const { return ""; }
    std::string operator()(const CString* text) const { return Narrow(*text); }
    std::string operator()(const TGGridRow* row) const { return std::to_string(row->GetIndex()); }
    std::string operator()(TGGridTreeRow* parent) const { return FirstText(*parent); }
    std::string operator()(const TGGridCol* col) const { return std::to_string(col->GetIndex()); }
    std::string operator()(const TGGridCell* cell) const
    {
        return std::to_string(cell->GetRowIndex()) + "," + std::to_string(cell->GetColIndex());
    }
};

std::string LineOf(const samples::HookCall& call)
{
    std::string line = call.hook;
    bool afterIndex = false;
    for (const samples::HookArgument& argument : call.arguments)
    {
        const std::string text = std::visit(ArgumentText(), argument.value);
        const bool isIndex = std::holds_alternative<long>(argument.value);
        if (!text.empty())
            line += (afterIndex && isIndex ? "," : " ") + text;
        afterIndex = isIndex;
    }
    return line;
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

std::string WindowGrid::TakeText()
{
    std::string text;
    for (const std::string& line : TakeLog())
        text += (text.empty() ? "" : " | ") + line;
    return text;
}

bool WindowGrid::Note(const samples::HookCall& call) const
{
    if (Records(call))
        log.push_back(LineOf(call));
    // A copy, because the action may replace itself.
    if (const auto found = actions.find(call.hook); found != actions.end())
    {
        const auto act = found->second;
        act();
    }
    return vetoes.count(call.hook) == 0;
}

bool WindowGrid::Records(const samples::HookCall& call) const
{
    return recording && call.group == samples::HookGroup::Paint;
}

bool IsPaintLine(const std::string& line)
{
    return line.starts_with("OnRefresh ") || line.starts_with("OnBeforeRefresh ");
}

std::string FirstText(TGGridRow& row)
{
    return CStringA(row[0].GetText()).GetString();
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
