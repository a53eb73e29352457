// The window that shows source text.
#include "SourceBox.h"

#include "TextBytes.h"
#include "resource.h"

#include <string>

namespace
{

// The text of a resource, with the line ends that edit controls want.
CString ReadSource(UINT id)
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC found = ::FindResource(module, MAKEINTRESOURCE(id), RT_RCDATA);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    const auto* const bytes = loaded != nullptr ? static_cast<const char*>(::LockResource(loaded)) : nullptr;
    std::wstring text;
    if (bytes != nullptr)
        gallery::DecodeText({bytes, ::SizeofResource(module, found)}, text);
    CString lines(text.c_str());
    lines.Replace(L"\r\n", L"\n");
    lines.Replace(L"\n", L"\r\n");
    return lines;
}

} // namespace

BEGIN_MESSAGE_MAP(SourceBox, CDialog)
    ON_WM_SIZE()
END_MESSAGE_MAP()

SourceBox::SourceBox(CWnd& owner, UINT id, const CString& boxTitle)
    : CDialog(IDD_SOURCE, &owner), sourceId(id), title(boxTitle)
{
}

void SourceBox::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SOURCE_TEXT, text);
}

BOOL SourceBox::OnInitDialog()
{
    CDialog::OnInitDialog();
    constexpr int TenthsOfPoints = 90;
    font.CreatePointFont(TenthsOfPoints, L"Courier New");
    text.SetFont(&font);
    constexpr UINT TabInDialogUnits = 16;
    text.SetTabStops(TabInDialogUnits);
    text.SetWindowText(ReadSource(sourceId));
    SetWindowText(title);
    text.SetFocus();
    text.SetSel(0, 0);
    return FALSE;
}

void SourceBox::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    if (text.GetSafeHwnd() != nullptr)
        text.MoveWindow(0, 0, width, height);
}
