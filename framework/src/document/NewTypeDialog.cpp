// The choice of a kind of document for ID_FILE_NEW.
#include "document/NewTypeDialog.h"

namespace
{

struct Kind
{
    CString name;
    CDocTemplate* docTemplate;
};

class NewTypeDialog : public CDialog
{
public:
    explicit NewTypeDialog(const std::vector<Kind>& kinds)
        : CDialog(AFX_IDD_NEWTYPEDLG), m_kinds(kinds), m_chosen(0)
    {
    }

    size_t Chosen() const { return m_chosen; }

protected:
    BOOL OnInitDialog() override
    {
        for (const Kind& kind : m_kinds)
            SendDlgItemMessage(AFX_IDC_LISTBOX, LB_ADDSTRING, 0,
                               reinterpret_cast<LPARAM>(kind.name.GetString()));
        SendDlgItemMessage(AFX_IDC_LISTBOX, LB_SETCURSEL, 0);
        return CDialog::OnInitDialog();
    }
    void OnOK() override
    {
        const LRESULT selected = SendDlgItemMessage(AFX_IDC_LISTBOX, LB_GETCURSEL);
        if (selected < 0)
            return;
        m_chosen = static_cast<size_t>(selected);
        CDialog::OnOK();
    }
    afx_msg void OnDoubleClick() { OnOK(); }

    DECLARE_MESSAGE_MAP()

private:
    const std::vector<Kind>& m_kinds;
    size_t m_chosen;
};

BEGIN_MESSAGE_MAP(NewTypeDialog, CDialog)
    ON_LBN_DBLCLK(AFX_IDC_LISTBOX, &NewTypeDialog::OnDoubleClick)
END_MESSAGE_MAP()

} // namespace

namespace quorfx
{

CDocTemplate* ChooseDocTemplate(const std::vector<CDocTemplate*>& docTemplates)
{
    std::vector<Kind> kinds;
    for (CDocTemplate* docTemplate : docTemplates)
    {
        CString name;
        if (docTemplate->GetDocString(name, CDocTemplate::fileNewName) && !name.IsEmpty())
            kinds.push_back({name, docTemplate});
    }
    if (kinds.empty())
        return nullptr;
    if (kinds.size() == 1)
        return kinds.front().docTemplate;
    NewTypeDialog dialog(kinds);
    return dialog.DoModal() == IDOK ? kinds[dialog.Chosen()].docTemplate : nullptr;
}

} // namespace quorfx
