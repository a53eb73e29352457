// CellTextDialog: the dialog behind the button of a cell, for texts longer than the cell.
#pragma once

#include <afxwin.h>

class CellTextDialog : public CDialog
{
public:
    // `title` names what is edited.
    CellTextDialog(const CString& title, const CString& text, CWnd* parent);

    const CString& GetText() const { return text; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

private:
    CString title;
    CString text;
};
