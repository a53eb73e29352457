// The dialog behind the button of a cell.
#include "CellTextDialog.h"

#include "Language.h"
#include "resource.h"

CellTextDialog::CellTextDialog(const CString& dialogTitle, const CString& cellText, CWnd* parent)
    : CDialog(IDD_CELL_TEXT, parent), title(dialogTitle), text(cellText)
{
}

BOOL CellTextDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    TranslateControls(*this);
    SetWindowText(title);
    return TRUE;
}

void CellTextDialog::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_CELL_TEXT, text);
}
