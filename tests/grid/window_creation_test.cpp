// Creating and destroying the grid's window: both forms, fonts, header windows.
#include "tests/grid/WindowGrid.h"

#include "tests/support/GuiHandles.h"
#include "tests/support/Rounds.h"

#include <memory>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

class GridWindow : public GridWindowTest
{
protected:
    // Which header windows a grid has: quad, column header, row header.
    static std::string Headers(CWnd& grid)
    {
        std::string present;
        for (int id : {102, 103, 104})
        {
            if (grid.GetDlgItem(id) != nullptr)
                present += (present.empty() ? "" : " ") + std::to_string(id);
        }
        return present;
    }

    static LOGFONT FontOf(WindowGrid& grid)
    {
        LOGFONT description = {};
        grid.GetFont()->GetLogFont(&description);
        return description;
    }
};

TEST_F(GridWindow, Create_MakesAChildWithTheGivenStyleAndPlace)
{
    WindowGrid grid;
    ASSERT_TRUE(grid.Create(CRect(5, 6, 205, 106), WS_CHILD | WS_VISIBLE | WS_BORDER, &host));
    EXPECT_EQ("5,6-205,106", Text(PlaceOf(grid)));
    EXPECT_EQ(0, grid.GetDlgCtrlID());
    EXPECT_EQ(host.m_hWnd, ::GetParent(grid.m_hWnd));
    const DWORD style = grid.CWnd::GetStyle();
    EXPECT_EQ(DWORD(WS_CHILD | WS_VISIBLE | WS_BORDER), style & ~DWORD(WS_CLIPSIBLINGS));
    EXPECT_EQ(0u, grid.GetExStyle());
    EXPECT_EQ(0, grid.GetWindowTextLength());
}

TEST_F(GridWindow, Create_RegistersItsClass)
{
    WindowGrid grid;
    Create(grid);
    EXPECT_EQ(0x80Bu, ::GetClassLongPtr(grid, GCL_STYLE));
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(static_cast<HBRUSH>(grid.GetBrush())),
              ::GetClassLongPtr(grid, GCLP_HBRBACKGROUND));
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(::LoadCursor(nullptr, IDC_ARROW)),
              ::GetClassLongPtr(grid, GCLP_HCURSOR));
}

TEST_F(GridWindow, CreateOverAPlaceholder_TakesItsPlaceAndId)
{
    CStatic placeholder;
    ASSERT_TRUE(placeholder.Create(L"", WS_CHILD | WS_VISIBLE, CRect(30, 40, 330, 240), &host, 77));
    const HWND old = placeholder.m_hWnd;
    WindowGrid grid;
    ASSERT_TRUE(grid.Create(&host, 77, WS_CHILD | WS_VISIBLE));
    EXPECT_FALSE(::IsWindow(old));
    EXPECT_EQ("30,40-330,240", Text(PlaceOf(grid)));
    EXPECT_EQ(77, grid.GetDlgCtrlID());
    EXPECT_EQ(grid.m_hWnd, ::GetDlgItem(host, 77));
}

TEST_F(GridWindow, CreateOverAPlaceholder_TakesItsPlaceInTheTabOrder)
{
    constexpr UINT FirstId = 77;
    for (int replaced = 0; replaced < 3; ++replaced)
    {
        CButton controls[3];
        for (int i = 0; i < 3; ++i)
            ASSERT_TRUE(controls[i].Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                           CRect(30 * i, 0, 30 * i + 30, 20), &host,
                                           FirstId + static_cast<UINT>(i)));
        WindowGrid grid;
        ASSERT_TRUE(
            grid.Create(&host, FirstId + static_cast<UINT>(replaced), WS_CHILD | WS_VISIBLE | WS_TABSTOP));
        std::string order;
        for (HWND child = ::GetWindow(host, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            order += std::to_string(::GetDlgCtrlID(child) - static_cast<int>(FirstId));
        EXPECT_EQ("012", order) << "replaced " << replaced;
        HWND stop = nullptr;
        std::string tabs;
        for (int i = 0; i < 3; ++i)
        {
            stop = ::GetNextDlgTabItem(host, stop, FALSE);
            tabs += std::to_string(::GetDlgCtrlID(stop) - static_cast<int>(FirstId));
        }
        EXPECT_EQ("012", tabs) << "replaced " << replaced;
    }
}

TEST_F(GridWindow, CreateOverAMissingPlaceholder_CreatesNothing)
{
    WindowGrid grid;
    EXPECT_EQ(0, grid.Create(&host, 78, WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(nullptr, grid.m_hWnd);
    EXPECT_EQ(nullptr, ::GetWindow(host, GW_CHILD));
}

TEST_F(GridWindow, Headers_DependOnTheEnabledSelections)
{
    const char* expected[] = {"102 103 104", "103", "104", ""};
    for (int variant = 0; variant < 4; ++variant)
    {
        WindowGrid grid;
        grid.SetRowSel((variant & 1) == 0);
        grid.SetColSel((variant & 2) == 0);
        Create(grid);
        EXPECT_EQ(expected[variant], Headers(grid)) << variant;
    }
}

TEST_F(GridWindow, Headers_StandAtTheEdges)
{
    WindowGrid grid;
    Create(grid);
    EXPECT_EQ("0,0-20,20", Text(PlaceOf(*grid.GetDlgItem(102))));
    EXPECT_EQ("20,0-10000,20", Text(PlaceOf(*grid.GetDlgItem(103))));
    EXPECT_EQ("0,20-20,10000", Text(PlaceOf(*grid.GetDlgItem(104))));
    for (int id : {102, 103, 104})
        EXPECT_EQ(DWORD(WS_CHILD | WS_VISIBLE), grid.GetDlgItem(id)->GetStyle() & ~DWORD(WS_CLIPSIBLINGS));
}

TEST_F(GridWindow, SingleHeader_ReachesTheCorner)
{
    WindowGrid withColumns;
    withColumns.SetRowSel(false);
    Create(withColumns);
    EXPECT_EQ("0,0-10000,20", Text(PlaceOf(*withColumns.GetDlgItem(103))));
    WindowGrid withRows;
    withRows.SetColSel(false);
    Create(withRows);
    EXPECT_EQ("0,0-20,10000", Text(PlaceOf(*withRows.GetDlgItem(104))));
}

TEST_F(GridWindow, SwitchingASelectionLater_MakesAndDestroysNoHeader)
{
    WindowGrid grid;
    grid.SetColSel(false);
    Create(grid);
    grid.SetColSel(true);
    EXPECT_EQ("104", Headers(grid));
    EXPECT_EQ(20, grid.Area().top);
    grid.SetRowSel(false);
    EXPECT_EQ("104", Headers(grid));
    EXPECT_EQ(0, grid.Area().left);
}

TEST_F(GridWindow, Headers_FollowFontAndCaptions)
{
    WindowGrid grid;
    Create(grid);
    grid.AppendCol(L"Two\nlines", 80);
    EXPECT_EQ("0,0-20,40", Text(PlaceOf(*grid.GetDlgItem(102))));
    EXPECT_EQ("20,0-10000,40", Text(PlaceOf(*grid.GetDlgItem(103))));
    EXPECT_EQ("0,40-20,10000", Text(PlaceOf(*grid.GetDlgItem(104))));
    grid.SetRowSpace(9);
    EXPECT_EQ("0,0-26,52", Text(PlaceOf(*grid.GetDlgItem(102))));
    EXPECT_EQ("26,0-10000,52", Text(PlaceOf(*grid.GetDlgItem(103))));
    EXPECT_EQ("0,52-26,10000", Text(PlaceOf(*grid.GetDlgItem(104))));
}

TEST_F(GridWindow, HeaderClasses_HaveAFaceBrush)
{
    WindowGrid grid;
    Create(grid);
    for (int id : {103, 104})
    {
        const HWND header = ::GetDlgItem(grid, id);
        EXPECT_EQ(0x80Bu, ::GetClassLongPtr(header, GCL_STYLE));
        LOGBRUSH brush = {};
        ::GetObject(reinterpret_cast<HBRUSH>(::GetClassLongPtr(header, GCLP_HBRBACKGROUND)), sizeof brush,
                    &brush);
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), brush.lbColor);
    }
}

class FontHost : public HostWindow
{
public:
    CFont font;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_GETFONT)
            return reinterpret_cast<LRESULT>(font.GetSafeHandle());
        return HostWindow::WindowProc(message, wParam, lParam);
    }
};

TEST_F(GridWindow, Creation_TakesTheParentsFont)
{
    FontHost parent;
    LOGFONT description = {};
    description.lfHeight = -13;
    description.lfWidth = 9;
    description.lfWeight = FW_BOLD;
    description.lfQuality = ANTIALIASED_QUALITY;
    wcscpy(description.lfFaceName, L"Tahoma");
    ASSERT_TRUE(parent.font.CreateFontIndirect(&description));
    WindowGrid grid;
    ASSERT_TRUE(grid.Create(CRect(0, 0, 100, 100), WS_CHILD | WS_VISIBLE, &parent));
    const LOGFONT font = FontOf(grid);
    EXPECT_EQ(-13, font.lfHeight);
    EXPECT_EQ(0, font.lfWidth);
    EXPECT_EQ(FW_BOLD, font.lfWeight);
    EXPECT_EQ(DEFAULT_QUALITY, font.lfQuality);
    EXPECT_STREQ(L"Tahoma", font.lfFaceName);
    EXPECT_EQ(13 + 1 + 3, grid.GetRowHeight());
}

TEST_F(GridWindow, CreationUnderAParentWithoutFont_TakesTheSystemFont)
{
    WindowGrid grid;
    ASSERT_TRUE(grid.Create(CRect(0, 0, 100, 100), WS_CHILD | WS_VISIBLE, &host));
    LOGFONT system = {};
    ::GetObject(::GetStockObject(SYSTEM_FONT), sizeof system, &system);
    EXPECT_EQ(system.lfHeight, FontOf(grid).lfHeight);
    EXPECT_EQ(std::abs(system.lfHeight) + 1 + 3, grid.GetRowHeight());
}

TEST_F(GridWindow, SetFont_ReplacesTheFontAndLaysOut)
{
    WindowGrid grid;
    Create(grid, 400, 300);
    Fill(grid, 10, 2);
    LOGFONT description = {};
    description.lfHeight = 30;
    description.lfWidth = 5;
    wcscpy(description.lfFaceName, L"Tahoma");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    EXPECT_EQ("", grid.Bars());
    EXPECT_EQ(0, grid.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.m_hObject), TRUE));
    EXPECT_EQ(30, FontOf(grid).lfHeight);
    EXPECT_EQ(0, FontOf(grid).lfWidth);
    EXPECT_EQ(PROOF_QUALITY, FontOf(grid).lfQuality);
    EXPECT_EQ(34, grid.GetRowHeight());
    EXPECT_NE("", grid.Bars());
    EXPECT_NE(font.m_hObject, grid.GetFont()->m_hObject);
}

TEST_F(GridWindow, SetText_LaysOut)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 0, 1);
    grid.GetCol(0).SetName(L"a\nb");
    const CRect before = PlaceOf(*grid.GetDlgItem(103));
    EXPECT_EQ(0, grid.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Title")));
    EXPECT_EQ(before.Height() * 2, PlaceOf(*grid.GetDlgItem(103)).Height());
    CString title;
    grid.GetWindowText(title);
    EXPECT_STREQ(L"Title", title);
}

TEST_F(GridWindow, Destruction_LeavesAModelThatCanBeCreatedAgain)
{
    WindowGrid grid;
    Create(grid, 200, 100);
    Fill(grid, 50, 3);
    EXPECT_NE("", grid.Bars());
    EXPECT_NE(nullptr, grid.GetDC());
    ASSERT_TRUE(grid.DestroyWindow());
    EXPECT_EQ(nullptr, grid.GetDC());
    grid.AppendRow(nullptr);
    grid.RecalcLayout(1);
    grid.Invalidate(1);
    grid.MoveView(0, 10);
    grid.Refresh();
    EXPECT_FALSE(grid.FitLastCol());
    EXPECT_EQ(51, grid.GetRowNum());
    ASSERT_TRUE(grid.Create(CRect(0, 0, 400, 2000), WS_CHILD | WS_VISIBLE, &host));
    EXPECT_EQ("102 103 104", Headers(grid));
    EXPECT_EQ("", grid.Bars());
}

TEST_F(GridWindow, DestructionWithTheParent_GivesTheContextBack)
{
    WindowGrid grid;
    auto parent = std::make_unique<HostWindow>();
    ASSERT_TRUE(grid.Create(CRect(0, 0, 400, 200), WS_CHILD | WS_VISIBLE, parent.get()));
    parent.reset();
    EXPECT_EQ(nullptr, grid.m_hWnd);
    EXPECT_EQ(nullptr, grid.GetDC());
}

TEST_F(GridWindow, DestructionWhileUpdating_IsHarmless)
{
    WindowGrid grid;
    Create(grid);
    grid.BeginUpdate();
    Fill(grid, 5, 2);
    ASSERT_TRUE(grid.DestroyWindow());
    Fill(grid, 5, 2);
    grid.EndUpdate();
    EXPECT_EQ(10, grid.GetRowNum());
}

TEST_F(GridWindow, CreationWhileUpdating_LaysOutAtTheEnd)
{
    WindowGrid grid;
    {
        TGGridUpdate update(grid);
        Create(grid, 200, 100);
        Fill(grid, 50, 1, 90);
        EXPECT_EQ("", grid.Bars());
    }
    EXPECT_EQ("V 940@0", grid.Bars());
}

TEST_F(GridWindow, ThousandsOfGrids_LeaveNothingBehind)
{
    const auto cycle = [this](int number) {
        WindowGrid grid(number % 2 == 1);
        Create(grid, 300, 200);
        Fill(grid, 3, 2);
        grid.UpdateWindow();
        if (number % 3 == 0)
            grid.DestroyWindow();
    };
    for (int number = 0; number < 10; ++number)
        cycle(number);
    const GuiHandles before = CountGuiHandles();
    for (int number = 0; number < Rounds(1000); ++number)
        cycle(number);
    EXPECT_EQ("", Growth(before, CountGuiHandles()));
}

TEST_F(GridWindow, ClassesOfGoneGrids_AreUnregistered)
{
    wchar_t name[256] = L"";
    {
        WindowGrid grid;
        Create(grid);
        ASSERT_NE(0, ::GetClassName(grid, name, 256));
    }
    WNDCLASS found = {};
    EXPECT_FALSE(::GetClassInfo(AfxGetInstanceHandle(), name, &found));
}

} // namespace
