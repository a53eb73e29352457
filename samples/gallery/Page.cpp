// The base of the gallery's pages: creation and the log of notifications.
#include "Page.h"

#include "Language.h"
#include "LogPane.h"
#include "resource.h"

namespace
{

struct CodeName
{
    UINT code;
    const wchar_t* name;
};

// Names of the WM_COMMAND codes that the shown controls send.
constexpr CodeName CommandCodes[] = {
    {EN_CHANGE, L"EN_CHANGE"},       {EN_KILLFOCUS, L"EN_KILLFOCUS"}, {EN_SETFOCUS, L"EN_SETFOCUS"},
    {EN_UPDATE, L"EN_UPDATE"},       {BN_CLICKED, L"BN_CLICKED"},     {BN_SETFOCUS, L"BN_SETFOCUS"},
    {BN_KILLFOCUS, L"BN_KILLFOCUS"}, {CBN_SELENDOK, L"CBN_SELENDOK"},
};

CString NameOfCommandCode(UINT code)
{
    for (const CodeName& entry : CommandCodes)
        if (entry.code == code)
            return entry.name;
    CString number;
    number.Format(L"0x%04X", code);
    return number;
}

} // namespace

BEGIN_MESSAGE_MAP(Page, CDialog)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

Page::Page(UINT pageTemplateId, LogPane& logPane)
    : CDialog(pageTemplateId), templateId(pageTemplateId), log(logPane)
{
}

bool Page::ShowPictureView(size_t view, CString&)
{
    return view == 0;
}

CString Page::OpenFile(const CString&)
{
    return CString();
}

CString Page::SaveFile(const CString&)
{
    return CString();
}

BOOL Page::OnInitDialog()
{
    CDialog::OnInitDialog();
    TranslateControls(*this);
    return TRUE;
}

bool Page::CreateIn(CWnd& parent)
{
    return Create(templateId, &parent) != FALSE;
}

BOOL Page::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam)
    {
        CString line;
        line.Format(L"WM_COMMAND  %s  id %u", static_cast<LPCTSTR>(NameOfCommandCode(HIWORD(wParam))),
                    static_cast<UINT>(LOWORD(wParam)));
        log.Add(line);
    }
    return CDialog::OnCommand(wParam, lParam);
}

BOOL Page::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const NMHDR* header = reinterpret_cast<const NMHDR*>(lParam);
    // Themed buttons ask before each painting.
    if (header->code != NM_CUSTOMDRAW)
    {
        CString line;
        line.Format(L"WM_NOTIFY  code %d  id %u", static_cast<int>(header->code),
                    static_cast<UINT>(header->idFrom));
        log.Add(line);
    }
    return CDialog::OnNotify(wParam, lParam, result);
}

// A grid that is left with Tab gives the focus to its parent; it goes on from there to the next control.
void Page::OnSetFocus(CWnd* loser)
{
    CWnd* const next = loser != nullptr && loser->GetSafeHwnd() == MainControl().GetSafeHwnd()
                           ? GetParent()->GetNextDlgTabItem(loser, GetKeyState(VK_SHIFT) < 0)
                           : nullptr;
    if (next != nullptr)
        next->SetFocus();
    else
        CDialog::OnSetFocus(loser);
}

void Page::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    LayOut(width, height);
}
