// Workload: repainting, compared with the list view and with the bare drawing primitives.
#include "Subjects.h"
#include "Workloads.h"

#include <memory>
#include <random>

namespace bench
{
namespace
{

constexpr int RepaintsPerRun = 40;

// A window that draws what the grid draws, with the same primitives and nothing else: the floor of painting.
class RawPaintWindow : public CWnd
{
public:
    RawPaintWindow(CWnd& parent, QuorUiCtr::TGGrid& modelGrid) : grid(modelGrid)
    {
        const CString windowClass = AfxRegisterWndClass(CS_SAVEBITS | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                                        LoadCursor(nullptr, IDC_ARROW), grid.GetBrush());
        CreateEx(0, windowClass, L"", WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL, 0, 0, ViewWidth,
                 ViewHeight, parent.m_hWnd, nullptr);
    }
    ~RawPaintWindow() override { DestroyWindow(); }

    void SetSelected(bool on) { selected = on; }
    void SetOrigin(int left, int top) { origin = CPoint(left, top); }
    void SetRows(int count) { rows = count; }

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint();

private:
    void DrawCell(CDC& context, int left, int top, const CString& text);

    QuorUiCtr::TGGrid& grid;
    CPen pen{PS_SOLID, 1, RGB(168, 168, 168)};
    CPoint origin;
    int rows = 0;
    bool selected = false;
};

BEGIN_MESSAGE_MAP(RawPaintWindow, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

void RawPaintWindow::DrawCell(CDC& context, int left, int top, const CString& text)
{
    const int height = static_cast<int>(grid.GetRowHeight());
    constexpr int Width = 80;
    context.SetBkColor(RGB(255, 255, 255));
    context.SetTextColor(RGB(0, 0, 0));
    context.SetBkMode(TRANSPARENT);
    context.Rectangle(left, top, left + Width + 1, top + height + 1);
    context.FillSolidRect(left + 1, top + 1, Width - 1, height - 1, RGB(255, 255, 255));
    CRect textRect(left + 3, top + 1 + static_cast<int>(grid.GetRowSpace()), left + Width, top + height);
    context.DrawText(text, textRect, DT_SINGLELINE | DT_EDITCONTROL);
}

void RawPaintWindow::OnPaint()
{
    CPaintDC context(this);
    context.SelectObject(grid.GetFont());
    context.SelectObject(&pen);
    context.SetViewportOrg(origin.x - 1, origin.y - 1);
    const int height = static_cast<int>(grid.GetRowHeight());
    const CString text = L"00012345";
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < ColumnCount; ++column)
            DrawCell(context, column * 80, row * height, text);
    for (int row = 0; selected && row < rows; ++row)
        context.InvertRect(CRect(0, row * height, ColumnCount * 80, (row + 1) * height));
}

// Scrolls to random rows and times the full repaints there, not the scrolling.
template <typename Subject> double TimeRepaints(Subject& subject, long n)
{
    std::mt19937 random(12345);
    std::uniform_int_distribution<long> anyRow(0, n - 50);
    double total = 0;
    for (int i = 0; i < RepaintsPerRun; ++i)
    {
        subject.ScrollToRow(anyRow(random));
        total += TimeMs([&] { subject.InvalidateAndPaint(); });
    }
    return total / RepaintsPerRun;
}

template <typename Work> double MedianOf(Work work, int runs = 7)
{
    std::vector<double> figures;
    for (int run = 0; run < runs; ++run)
        figures.push_back(work());
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

double TimeRawRepaints(Host& host, QuorUiCtr::TGGrid& grid, bool selected)
{
    RawPaintWindow raw(host, grid);
    CRect client;
    ::GetClientRect(grid.m_hWnd, client);
    const int headerHeight = static_cast<int>(grid.GetColHeaderHeight());
    const int rowHeight = static_cast<int>(grid.GetRowHeight());
    raw.SetOrigin(rowHeight, headerHeight);
    // As many rows as the grid has to draw on average: a view that begins inside a row shows one more.
    raw.SetRows((client.Height() - headerHeight) / rowHeight + 1);
    raw.SetSelected(selected);
    return MedianOf([&] {
        double total = 0;
        for (int i = 0; i < RepaintsPerRun; ++i)
            total += TimeMs([&] {
                ::InvalidateRect(raw.m_hWnd, nullptr, TRUE);
                ::UpdateWindow(raw.m_hWnd);
            });
        return total / RepaintsPerRun;
    });
}

void RepaintAgainstFloor(Report& report, Host& host, long n, bool selected)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    if (selected)
        grid.Grid().SelectAll();
    grid.Grid().UpdateWindow();
    const double ours = MedianOf([&] { return TimeRepaints(grid, n); });
    grid.Grid().ShowWindow(SW_HIDE);
    const double floor = TimeRawRepaints(host, grid.Grid(), selected);
    report.Add({selected ? "repaint all rows selected" : "repaint at random positions", n, ours,
                selected ? "bare primitives + bands" : "bare primitives", floor});
}

void RepaintAgainstListView(Report& report, Host& host, long n)
{
    double ours = 0;
    {
        GridSubject grid(&host);
        grid.AppendRowsAsOne(n);
        ours = MedianOf([&] { return TimeRepaints(grid, n); });
    }
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    const double peer = MedianOf([&] { return TimeRepaints(list, n); });
    report.Add({"repaint at random positions", n, ours, "list view", peer});
}

// Compares our own figures at two sizes: the peer is the grid with 1000 rows.
void RepaintAgainstSmallGrid(Report& report, Host& host, bool selected)
{
    const auto repaint = [&](GridSubject& grid, long n) {
        return MedianOf([&] { return TimeRepaints(grid, n); });
    };
    double figures[2];
    int at = 0;
    for (long n : {1000L, 100000L})
    {
        GridSubject grid(&host);
        grid.AppendRowsAsOne(n);
        if (selected)
            grid.Grid().SelectAll();
        grid.Grid().UpdateWindow();
        figures[at++] = repaint(grid, n);
    }
    report.Add({selected ? "repaint all rows selected" : "repaint at random positions", 100000, figures[1],
                "grid with 1000 rows", figures[0]});
}

} // namespace

void RunRepaint(Report& report)
{
    Host host;
    for (long n : {1000L, 100000L})
        RepaintAgainstFloor(report, host, n, false);
    for (long n : {1000L, 100000L})
        RepaintAgainstFloor(report, host, n, true);
    RepaintAgainstSmallGrid(report, host, false);
    RepaintAgainstSmallGrid(report, host, true);
    for (long n : {1000L, 100000L})
        RepaintAgainstListView(report, host, n);
}

} // namespace bench
