// Order entry: a grid that checks what is typed, looks up prices and computes a column.
#include <afxwin.h>
#include <afxext.h>

#include "FrameApp.h"
#include "grid/TGGrid.h"

#include <cwchar>
#include <iterator>
#include <utility>

using namespace QuorUiCtr;

constexpr long Article = 0, Quantity = 1, Price = 2, Total = 3;

constexpr std::pair<const wchar_t*, const wchar_t*> Catalogue[] = {
    {L"Bearing 6204", L"4.80"}, {L"Shaft 20 mm", L"17.50"}, {L"Seal", L"0.95"}};

class OrderGrid : public TGGrid
{
public:
    double GetSum()
    {
        double sum = 0;
        for (long row = 0; row < GetRowNum(); ++row)
            sum += static_cast<double>(GetCell(row, Total));
        return sum;
    }

protected:
    void OnCellComboString(TGGridCell&, CComboBox& combo) override
    {
        for (const auto& [article, price] : Catalogue)
            combo.AddString(article);
    }

    bool OnModified(TGGridCell& cell, CString& text) override
    {
        const long column = cell.GetColIndex();
        if (column == Article)
        {
            for (const auto& [article, price] : Catalogue)
                if (text == article)
                    cell.GetRow()[Price].SetText(price);
            return true;
        }
        text.Trim();
        wchar_t* end = nullptr;
        const double number = std::wcstod(text, &end);
        if (text.IsEmpty() || *end != L'\0' || number < 0)
        {
            AfxMessageBox(L"Please enter a number that is not negative.");
            return false;
        }
        if (column == Price)
            text.Format(L"%.2f", number);
        return true;
    }

    // Comes after every change by the user: computes the last column, then tells the parent.
    void OnDataChanged() override
    {
        for (long row = 0; row < GetRowNum(); ++row)
        {
            CString total;
            total.Format(L"%.2f", static_cast<double>(GetCell(row, Quantity)) *
                                      static_cast<double>(GetCell(row, Price)));
            GetCell(row, Total).SetText(total);
        }
        Invalidate(0);
        TGGrid::OnDataChanged();
    }
};

class OrderFrame : public CFrameWnd
{
public:
    OrderFrame()
    {
        Create(nullptr, L"Order entry", WS_OVERLAPPEDWINDOW, CRect(40, 40, 580, 340));
        constexpr UINT Panes[] = {ID_SEPARATOR};
        status.Create(this);
        status.SetIndicators(Panes, static_cast<int>(std::size(Panes)));
        grid.Create(CRect(), WS_CHILD | WS_VISIBLE, this);
        grid.SetDlgCtrlID(AFX_IDW_PANE_FIRST); // the frame lays it out
        grid.SetFlatButton(true);
        grid.AppendCol(L"Article", 180);
        grid.AppendCol(L"Quantity", 90);
        grid.AppendCol(L"Price", 90);
        grid.AppendCol(L"Total", 100);
        grid.GetCol(Article).SetComboSel(true);
        grid.GetCol(Quantity).SetRightSpin(true);
        grid.GetCol(Total).SetReadOnly(true);
        grid.GetCol(Total).SetBackColor(RGB(240, 240, 240));
        RecalcLayout();
    }

protected:
    afx_msg void OnGridChanged()
    {
        CString text;
        text.Format(L"Sum: %.2f", grid.GetSum());
        status.SetPaneText(0, text);
    }
    afx_msg void OnSetFocus(CWnd*) { grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    CStatusBar status;
    OrderGrid grid;
};

BEGIN_MESSAGE_MAP(OrderFrame, CFrameWnd)
    ON_EN_CHANGE(AFX_IDW_PANE_FIRST, &OrderFrame::OnGridChanged)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<OrderFrame> theApp;
