// The page with a property grid.
#include "PropertiesPage.h"

#include "Language.h"
#include "LogPane.h"
#include "PropertiesPageSheet.h"
#include "resource.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

BEGIN_MESSAGE_MAP(PropertiesPage, Page)
    ON_REGISTERED_MESSAGE(AFX_WM_PROPERTY_CHANGED, &PropertiesPage::OnPropertyChanged)
    ON_BN_CLICKED(IDC_PROPERTY_READ, &PropertiesPage::OnRead)
    ON_BN_CLICKED(IDC_PROPERTY_WRITE_TEXT, &PropertiesPage::OnWriteText)
    ON_BN_CLICKED(IDC_PROPERTY_WRITE_INTEGER, &PropertiesPage::OnWriteInteger)
    ON_BN_CLICKED(IDC_PROPERTY_WRITE_REAL, &PropertiesPage::OnWriteReal)
    ON_BN_CLICKED(IDC_PROPERTY_WRITE_FLAG, &PropertiesPage::OnWriteFlag)
    ON_BN_CLICKED(IDC_PROPERTY_SET_OPTION, &PropertiesPage::OnSetOption)
    ON_BN_CLICKED(IDC_ALPHABETIC, &PropertiesPage::OnAlphabetic)
    ON_BN_CLICKED(IDC_DESCRIPTION, &PropertiesPage::OnDescription)
    ON_BN_CLICKED(IDC_MARK_MODIFIED, &PropertiesPage::OnMarkModified)
    ON_BN_CLICKED(IDC_FOLD_ALL, &PropertiesPage::OnFoldAll)
    ON_BN_CLICKED(IDC_UNFOLD_ALL, &PropertiesPage::OnUnfoldAll)
END_MESSAGE_MAP()

PropertiesPage::PropertiesPage(LogPane& logPane) : Page(IDD_PROPERTIES_PAGE, logPane) {}

CString PropertiesPage::GetTitle() const
{
    return Tr(L"Properties");
}

UINT PropertiesPage::GetSourceId() const
{
    return IDR_SOURCE_PROPERTIES;
}

bool PropertiesPage::EndEditing()
{
    return grid.EndEditItem(TRUE) != FALSE;
}

Page::Status PropertiesPage::GetStatus()
{
    Status status;
    const CMFCPropertyGridProperty* const selected = grid.GetCurSel();
    if (selected != nullptr)
        status.position = selected->GetName();
    status.count.Format(Tr(L"%d groups"), grid.GetPropertyCount());
    return status;
}

BOOL PropertiesPage::OnInitDialog()
{
    Page::OnInitDialog();
    CRect place;
    GetDlgItem(IDC_PROPERTY_PLACE)->GetWindowRect(place);
    ScreenToClient(place);
    GetDlgItem(IDC_PROPERTY_PLACE)->DestroyWindow();
    grid.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP, place, this, IDC_GRID);
    LOGFONT description = {};
    GetFont()->GetLogFont(&description);
    font.CreateFontIndirect(&description);
    grid.SetFont(&font);
    grid.EnableHeaderCtrl(TRUE, Tr(L"Property"), Tr(L"Value"));
    grid.SetBoolLabels(Tr(L"Yes"), Tr(L"No"));
    grid.EnableDescriptionArea();
    grid.SetVSDotNetLook();
    grid.MarkModifiedProperties();
    FillSettingsSheet(grid);
    CheckDlgButton(IDC_DESCRIPTION, BST_CHECKED);
    CheckDlgButton(IDC_MARK_MODIFIED, BST_CHECKED);
    SetDlgItemText(IDC_PROPERTY_TITLE, Tr(L"Range"));
    SetDlgItemText(IDC_PROPERTY_OPTION, L"1");
    return TRUE;
}

void PropertiesPage::LayOut(int width, int height)
{
    if (!grid.GetSafeHwnd())
        return;
    CRect place;
    grid.GetWindowRect(place);
    ScreenToClient(place);
    grid.MoveWindow(place.left, 0, (std::max)(0, width - static_cast<int>(place.left)), height);
}

LRESULT PropertiesPage::OnPropertyChanged(WPARAM id, LPARAM property)
{
    CMFCPropertyGridProperty* changed = reinterpret_cast<CMFCPropertyGridProperty*>(property);
    CString line;
    line.Format(L"AFX_WM_PROPERTY_CHANGED  id %u  %s = %s", static_cast<UINT>(id), changed->GetName(),
                static_cast<LPCTSTR>(changed->FormatProperty()));
    Log().Add(line);
    MarkChanged();
    return 0;
}

// ---- The panel.

CString PropertiesPage::TextOf(int controlId) const
{
    CString text;
    GetDlgItemText(controlId, text);
    return text;
}

void PropertiesPage::ShowResult(const CString& call, int result)
{
    const CString title = TextOf(IDC_PROPERTY_TITLE);
    CString text;
    double number = 0;
    grid.GetItemValue(title, text);
    grid.GetItemValue(title, number);
    CString shown;
    shown.Format(Tr(L"%s = %d\r\ntext \"%s\"\r\nnumber %g\r\noption %d"), static_cast<LPCTSTR>(call), result,
                 static_cast<LPCTSTR>(text), number, grid.GetOptionItemCurSel(title));
    SetDlgItemText(IDC_PROPERTY_RESULT, shown);
}

void PropertiesPage::OnRead()
{
    CString text;
    const int found = grid.GetItemValue(TextOf(IDC_PROPERTY_TITLE), text);
    SetDlgItemText(IDC_PROPERTY_VALUE, text);
    ShowResult(L"GetItemValue", found);
}

void PropertiesPage::OnWriteText()
{
    ShowResult(L"SetItemValue(CString)",
               grid.SetItemValue(TextOf(IDC_PROPERTY_TITLE), TextOf(IDC_PROPERTY_VALUE)));
}

void PropertiesPage::OnWriteInteger()
{
    const int value = _wtoi(TextOf(IDC_PROPERTY_VALUE));
    ShowResult(L"SetItemValue(int)", grid.SetItemValue(TextOf(IDC_PROPERTY_TITLE), value));
}

void PropertiesPage::OnWriteReal()
{
    const double value = _wtof(TextOf(IDC_PROPERTY_VALUE));
    ShowResult(L"SetItemValue(double)", grid.SetItemValue(TextOf(IDC_PROPERTY_TITLE), value));
}

void PropertiesPage::OnWriteFlag()
{
    const bool value = _wtoi(TextOf(IDC_PROPERTY_VALUE)) != 0;
    ShowResult(L"SetItemValue(bool)", grid.SetItemValue(TextOf(IDC_PROPERTY_TITLE), value));
}

void PropertiesPage::OnSetOption()
{
    const CString title = TextOf(IDC_PROPERTY_TITLE);
    const int index = _wtoi(TextOf(IDC_PROPERTY_OPTION));
    grid.SetOptionItemCurSel(title, index);
    ShowResult(L"SetOptionItemCurSel", grid.GetOptionItemCurSel(title) == index);
}

void PropertiesPage::OnAlphabetic()
{
    grid.SetAlphabeticMode(IsDlgButtonChecked(IDC_ALPHABETIC) != 0);
}

void PropertiesPage::OnDescription()
{
    grid.EnableDescriptionArea(IsDlgButtonChecked(IDC_DESCRIPTION) != 0);
}

void PropertiesPage::OnMarkModified()
{
    grid.MarkModifiedProperties(IsDlgButtonChecked(IDC_MARK_MODIFIED) != 0);
}

void PropertiesPage::OnFoldAll()
{
    grid.ExpandAll(FALSE);
}

void PropertiesPage::OnUnfoldAll()
{
    grid.ExpandAll(TRUE);
}

bool PropertiesPage::ShowPictureView(size_t view, CString& nameSuffix)
{
    constexpr const wchar_t* Suffixes[] = {L"-unfolded", L"-folded", L"-list", L"-alphabetic"};
    if (view >= std::size(Suffixes))
        return false;
    nameSuffix = Suffixes[view];
    grid.EndEditItem(FALSE);
    grid.SetFocus();
    grid.ExpandAll(view != 1);
    grid.SetAlphabeticMode(view == 3);
    CMFCPropertyGridProperty* shown = nullptr;
    grid.GetItemByTitle(shown, Tr(view == 2 ? L"Language" : L"Range"));
    grid.SetCurSel(view == 1 ? grid.GetProperty(1) : shown);
    grid.EnsureVisible(shown);
    if (view == 2)
        grid.SendMessage(WM_KEYDOWN, VK_F4);
    else if (view == 0)
        OnRead();
    return true;
}
