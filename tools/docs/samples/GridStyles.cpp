// The style flags of the grid and of its columns.
#include "StylePictures.h"

#include "grid/TGGrid.h"

using namespace QuorUiCtr;

namespace
{

// Tells when a context menu is open, and closes it then.
class SampleGrid : public TGGrid
{
public:
    using TGGrid::TGGrid;

protected:
    void OnCellComboString(TGGridCell&, CComboBox& combo) override
    {
        for (const wchar_t* text : {L"Bearing", L"Seal", L"Shaft"})
            combo.AddString(text);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE && wParam == MSGF_MENU)
        {
            GetParent()->SendMessage(WM_COMMAND, MenuIsOpen);
            ::EndMenu();
            return 0;
        }
        return TGGrid::WindowProc(message, wParam, lParam);
    }
};

void SetRow(TGGridRow& row, const wchar_t* part, const wchar_t* stock)
{
    row[0].SetText(part);
    row[1].SetText(stock);
}

// Flat boxes look the same everywhere, so that all pictures but their own have them.
std::unique_ptr<SampleGrid> MakeGrid(bool isTree, bool isFlat)
{
    auto grid = std::make_unique<SampleGrid>(isTree);
    grid->SetFlatButton(isFlat);
    grid->SetDefaultWidth(40);
    grid->AppendCol(L"Part", 100);
    grid->AppendCol(L"Stock", 60);
    grid->SetRowNum(3);
    SetRow(grid->GetRow(0), L"Shaft", L"7");
    SetRow(grid->GetRow(1), L"Bearing", L"12");
    SetRow(grid->GetRow(2), L"Seal", L"40");
    return grid;
}

using Setter = std::function<void(TGGrid&)>;

Style GridStyle(const wchar_t* name, Setter set, std::function<void(TGGrid&)> act = nullptr, int height = 110)
{
    Style style;
    style.name = name;
    style.height = height;
    const bool isFlat = style.name != L"SetFlatButton";
    style.make = [set, isFlat](CWnd& parent, const CRect& place, bool on) -> std::unique_ptr<CWnd> {
        auto grid = MakeGrid(false, isFlat);
        if (on)
            set(*grid);
        grid->Create(place, WS_CHILD | WS_VISIBLE | WS_BORDER, &parent);
        return grid;
    };
    if (act)
        style.act = [act](CWnd& control) { act(static_cast<TGGrid&>(control)); };
    return style;
}

Style TreeStyle(const wchar_t* name, Setter set)
{
    Style style = GridStyle(name, set);
    style.make = [set](CWnd& parent, const CRect& place, bool on) -> std::unique_ptr<CWnd> {
        auto grid = MakeGrid(true, true);
        TGGridTreeRow& root = grid->GetTreeRow(1);
        root.AppendChild(nullptr);
        SetRow(root.GetLastChild(), L"6204", L"5");
        root.UnFold();
        if (on)
            set(*grid);
        grid->Create(place, WS_CHILD | WS_VISIBLE | WS_BORDER, &parent);
        return grid;
    };
    return style;
}

// With the mouse, in client coordinates of the grid; the windows of the headers are its children.
void Drag(TGGrid& grid, CPoint from, CPoint to)
{
    const HWND window = ::ChildWindowFromPoint(grid.m_hWnd, from);
    const auto send = [&](UINT message, CPoint point, WPARAM keys) {
        ::MapWindowPoints(grid.m_hWnd, window, &point, 1);
        ::SendMessage(window, message, keys, MAKELPARAM(point.x, point.y));
    };
    send(WM_MOUSEMOVE, from, 0);
    send(WM_LBUTTONDOWN, from, MK_LBUTTON);
    send(WM_MOUSEMOVE, CPoint((from.x + to.x) / 2, (from.y + to.y) / 2), MK_LBUTTON);
    send(WM_MOUSEMOVE, to, MK_LBUTTON);
    send(WM_LBUTTONUP, to, 0);
}

// Where the cells begin, and the height of a row: the headers are as wide and high as that.
constexpr int Header = 20;

void RightClickRow(TGGrid& grid)
{
    const HWND window = ::ChildWindowFromPoint(grid.m_hWnd, CPoint(5, 50));
    ::SendMessage(window, WM_RBUTTONUP, 0, MAKELPARAM(5, 10));
}

void EditFirst(TGGrid& grid)
{
    grid.SetFocus();
    grid.BeginEditCell(0, 0);
}

void EditFirstAndDrop(TGGrid& grid)
{
    EditFirst(grid);
    CWnd* const editor = CWnd::GetFocus();
    ::SendMessage(::GetParent(editor->m_hWnd), CB_SHOWDROPDOWN, TRUE, 0);
    editor->SendMessage(CB_SHOWDROPDOWN, TRUE);
}

// A setter of the first column.
Setter OfColumn(void (TGGridCol::*set)(bool))
{
    return [set](TGGrid& grid) { (grid.GetCol(0).*set)(true); };
}

void SelectAndCopy(TGGrid& grid)
{
    grid.SelectRow(0, true);
    grid.DoCopy();
    grid.DoPaste();
}

} // namespace

std::vector<Style> GridStyles()
{
    using G = TGGrid;
    return {
        GridStyle(
            L"SetReadOnly", [](G& grid) { grid.SetReadOnly(true); }, EditFirst),
        GridStyle(
            L"SetRowFixLength", [](G& grid) { grid.SetRowFixLength(true); },
            [](G& grid) {
                grid.SelectRow(1, true);
                grid.DoInsertRow();
            }),
        GridStyle(
            L"SetColFixLength", [](G& grid) { grid.SetColFixLength(true); },
            [](G& grid) {
                grid.SelectCol(1, true);
                grid.DoInsertCol();
            }),
        GridStyle(L"SetRowSel", [](G& grid) { grid.SetRowSel(false); }),
        GridStyle(L"SetColSel", [](G& grid) { grid.SetColSel(false); }),
        GridStyle(
            L"SetSortEnable", [](G& grid) { grid.SetSortEnable(false); },
            [](G& grid) {
                grid.AppendKey(0);
                grid.SendMessage(WM_KEYDOWN, 'R');
            }),
        GridStyle(
            L"SetColFixWidth", [](G& grid) { grid.SetColFixWidth(true); },
            [](G& grid) { Drag(grid, CPoint(Header + 98, 8), CPoint(Header + 60, 8)); }),
        GridStyle(
            L"SetColPosFix", [](G& grid) { grid.SetColPosFix(true); },
            [](G& grid) {
                grid.SelectCol(0, true);
                Drag(grid, CPoint(Header + 30, 8), CPoint(Header + 170, 8));
            }),
        GridStyle(
            L"SetRowPosFix", [](G& grid) { grid.SetRowPosFix(true); },
            [](G& grid) {
                grid.SelectRow(0, true);
                Drag(grid, CPoint(5, Header + 8), CPoint(5, Header + 50));
            }),
        TreeStyle(L"SetTreeLine", [](G& grid) { grid.SetTreeLine(false); }),
        GridStyle(
            L"SetSingleSelRow", [](G& grid) { grid.SetSingleSelRow(true); },
            [](G& grid) { grid.SendMessage(WM_KEYDOWN, 'A'); }),
        GridStyle(
            L"SetNoPaste", [](G& grid) { grid.SetNoPaste(true); }, SelectAndCopy),
        GridStyle(L"SetFlatButton", [](G& grid) { grid.SetFlatButton(true); }),
        GridStyle(L"SetNoAppendButton", [](G& grid) { grid.SetNoAppendButton(true); }),
        GridStyle(
            L"SetNoDefaultMenu", [](G& grid) { grid.SetNoDefaultMenu(true); }, RightClickRow, 220),
        GridStyle(L"column-SetReadOnly", OfColumn(&TGGridCol::SetReadOnly), EditFirst),
        GridStyle(L"column-SetComboEdit", OfColumn(&TGGridCol::SetComboEdit), EditFirst),
        GridStyle(L"column-SetComboSel", OfColumn(&TGGridCol::SetComboSel), EditFirstAndDrop, 140),
        GridStyle(L"column-SetRightButton", OfColumn(&TGGridCol::SetRightButton), EditFirst),
        GridStyle(L"column-SetRightSpin", OfColumn(&TGGridCol::SetRightSpin), EditFirst),
        GridStyle(L"column-SetCenterAlign", OfColumn(&TGGridCol::SetCenterAlign)),
    };
}
