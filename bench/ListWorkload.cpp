// Workload: the report list: the current cell moved by keys, compared with the platform's list.
#include "Subjects.h"
#include "Workloads.h"

#include "controls/CGridListCtrl.h"

namespace bench
{
namespace
{

constexpr int KeyPresses = 100;

template <class List> class ListSubject
{
public:
    ListSubject(CWnd& parent, long rows)
    {
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, ViewWidth, ViewHeight), &parent, 3);
        if constexpr (requires { list.PrepareControl(0); })
            list.PrepareControl(0);
        else
            list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP);
        for (int column = 0; column < ColumnCount; ++column)
            list.InsertColumn(column, L"Column", LVCFMT_LEFT, 80);
        list.SetRedraw(FALSE);
        for (int row = 0; row < static_cast<int>(rows); ++row)
        {
            list.InsertItem(row, CellText(row));
            for (int column = 1; column < ColumnCount; ++column)
                list.SetItemText(row, column, CellText(row));
        }
        list.SetRedraw(TRUE);
        const int middle = static_cast<int>(rows / 2);
        list.SetItemState(middle, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
        list.EnsureVisible(middle, FALSE);
        list.SetFocus();
        list.UpdateWindow();
    }
    ~ListSubject() { list.DestroyWindow(); }

    // As the message loop does: first the list is asked.
    void Press(UINT key)
    {
        MSG message = {list.m_hWnd, WM_KEYDOWN, key, 1, 0, {}};
        if (!list.PreTranslateMessage(&message))
            ::SendMessage(list.m_hWnd, WM_KEYDOWN, key, 1);
        list.UpdateWindow();
    }

    // A key press and its paint, in milliseconds: down and up, right and left.
    double PressMs(UINT forth, UINT back)
    {
        return ShortestMs([&] {
                   for (int i = 0; i < KeyPresses; ++i)
                       Press(forth);
                   for (int i = 0; i < KeyPresses; ++i)
                       Press(back);
               }) /
               (2 * KeyPresses);
    }

private:
    List list;
};

} // namespace

void RunList(Report& report)
{
    constexpr long Rows = 100000;
    Host host;
    ListSubject<CGridListCtrl> ours(host, Rows);
    const double byRow = ours.PressMs(VK_DOWN, VK_UP);
    ListSubject<CListCtrl> plain(host, Rows);
    report.Add({"list: a key to another row", Rows, byRow, "list view", plain.PressMs(VK_DOWN, VK_UP)});
}

void RunListGrowth(Report& report)
{
    Host host;
    AddGrowth(report, "list: a key to another row", 1000, 20000, Growth::Constant,
              [&](long rows) { return ListSubject<CGridListCtrl>(host, rows).PressMs(VK_DOWN, VK_UP); });
    AddGrowth(report, "list: a key to another column", 1000, 20000, Growth::Constant,
              [&](long rows) { return ListSubject<CGridListCtrl>(host, rows).PressMs(VK_RIGHT, VK_LEFT); });
}

} // namespace bench
