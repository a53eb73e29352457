// Master and details: the lower grid shows, and changes, what belongs to the current row of the upper one.
#include <afxwin.h>

#include "FrameApp.h"
#include "grid/TGGrid.h"

#include <utility>
#include <vector>

using namespace QuorUiCtr;

constexpr UINT DetailsId = 101;
constexpr UINT ShowDetailsMessage = WM_APP + 1;

// What hangs on a row of the master; the row owns it.
class OrderData : public TGRowData
{
public:
    std::vector<std::pair<CString, CString>> lines;
};

// Asks its parent to follow the current row. The hook comes amid changes, so it only posts.
class MasterGrid : public TGGrid
{
protected:
    void OnCurChanged() override
    {
        TGGrid::OnCurChanged();
        if (GetSafeHwnd() != nullptr)
            GetParent()->PostMessage(ShowDetailsMessage);
    }
};

class OrdersFrame : public CFrameWnd
{
public:
    OrdersFrame()
    {
        Create(nullptr, L"Master and details", WS_OVERLAPPEDWINDOW, CRect(40, 40, 500, 420));
        master.Create(CRect(), WS_CHILD | WS_VISIBLE | WS_BORDER, this);
        master.SetFlatButton(true);
        master.SetRowFixLength(true);
        master.AppendCol(L"Order", 100);
        master.AppendCol(L"Customer", 240);
        AddOrder(L"1001", L"Miller", {{L"Bearing 6204", L"4"}, {L"Seal", L"8"}});
        AddOrder(L"1002", L"Smith", {{L"Shaft 20 mm", L"1"}});
        details.Create(CRect(), WS_CHILD | WS_VISIBLE | WS_BORDER, this);
        details.SetDlgCtrlID(DetailsId);
        details.SetFlatButton(true);
        details.AppendCol(L"Article", 240);
        details.AppendCol(L"Quantity", 100);
        master.SelectRow(0, true);
    }

protected:
    // An edit of the details ends before they are replaced: its text belongs to the order that is still
    // shown.
    afx_msg LRESULT OnShowDetails(WPARAM, LPARAM)
    {
        const long row = master.GetCurRowIndex();
        OrderData* data = row >= 0 ? static_cast<OrderData*>(master.GetRow(row).GetExtendData()) : nullptr;
        if (data == nullptr || data == shown)
            return 0;
        details.EndEditCell();
        shown = data;
        const TGGridUpdate update(details);
        details.Clear();
        details.SetRowNum(static_cast<long>(shown->lines.size()));
        long line = 0;
        for (const auto& [article, quantity] : shown->lines)
        {
            details.GetCell(line, 0).SetText(article);
            details.GetCell(line++, 1).SetText(quantity);
        }
        return 0;
    }
    afx_msg void OnDetailsChanged()
    {
        shown->lines.clear();
        for (long line = 0; line < details.GetRowNum(); ++line)
            shown->lines.emplace_back(details.GetCell(line, 0).GetText(), details.GetCell(line, 1).GetText());
    }
    afx_msg void OnSize(UINT type, int width, int height)
    {
        CFrameWnd::OnSize(type, width, height);
        if (details.GetSafeHwnd() == nullptr)
            return;
        master.MoveWindow(0, 0, width, height / 2);
        details.MoveWindow(0, height / 2, width, height - height / 2);
    }
    afx_msg void OnSetFocus(CWnd*) { master.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    void AddOrder(const wchar_t* number, const wchar_t* customer,
                  std::vector<std::pair<CString, CString>> lines)
    {
        auto* data = new OrderData;
        data->lines = std::move(lines);
        auto* row = new TGGridRow(master);
        (*row)[0].SetText(number);
        (*row)[1].SetText(customer);
        row->SetExtendData(data);
        master.AppendRow(row);
    }

    MasterGrid master;
    TGGrid details;
    OrderData* shown = nullptr; // the row's; rows stay, for the master has a fixed length
};

BEGIN_MESSAGE_MAP(OrdersFrame, CFrameWnd)
    ON_MESSAGE(ShowDetailsMessage, &OrdersFrame::OnShowDetails)
    ON_EN_CHANGE(DetailsId, &OrdersFrame::OnDetailsChanged)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<OrdersFrame> theApp;
