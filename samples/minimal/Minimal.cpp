// The smallest host: a dialog whose placeholder becomes an editable grid.
#include <afxwin.h>

#include "grid/TGGrid.h"
#include "resource.h"

class MinimalDialog : public CDialog
{
public:
    MinimalDialog() : CDialog(IDD_MINIMAL) {}

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        grid.Create(this, IDC_GRID, WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP);
        grid.SetFlatButton(true);
        grid.AppendCol(L"Planet", 150);
        grid.AppendCol(L"Moons", 100);
        AppendPlanet(L"Earth", L"1");
        AppendPlanet(L"Mars", L"2");
        return TRUE;
    }

private:
    void AppendPlanet(const wchar_t* name, const wchar_t* moons)
    {
        grid.AppendRow(nullptr);
        const long row = grid.GetRowNum() - 1;
        grid.GetCell(row, 0).SetText(name);
        grid.GetCell(row, 1).SetText(moons);
    }

    QuorUiCtr::TGGrid grid;
};

class MinimalApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        MinimalDialog().DoModal();
        return FALSE;
    }
} theApp;
