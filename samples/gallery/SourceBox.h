// SourceBox: a window that shows source text.
#pragma once

#include <afxwin.h>

// Shows the source of a page's host code, which is in the program as a resource.
class SourceBox : public CDialog
{
public:
    SourceBox(CWnd& owner, UINT sourceId, const CString& title);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnSize(UINT type, int width, int height);

private:
    UINT sourceId;
    CString title;
    CEdit text;
    CFont font;
};
