// The page with a report list whose cells are edited in place, and with select-all edits.
#include "ListPage.h"

#include "Language.h"
#include "ListPageRecord.h"
#include "LogPane.h"
#include "resource.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace
{

constexpr UINT DestroyEditorMessage = WM_APP + 1;
constexpr int ColumnWidth = 110;
constexpr int LongColumnWidth = 320;
// The Chinese name comes first on the screen; a column too narrow to edit follows the symbol.
constexpr int FirstColumn = 2;
constexpr int NarrowColumn = 6;
constexpr int NarrowWidth = 4;
constexpr UINT BottomControls[] = {IDC_LIST_EDITS_CAPTION, IDC_LIST_EDIT_1,        IDC_LIST_EDIT_2,
                                   IDC_LIST_EDIT_3,        IDC_LIST_PLAIN_CAPTION, IDC_LIST_PLAIN_EDIT};

CRect PlaceOf(const CWnd& control, const CWnd& page)
{
    CRect place;
    control.GetWindowRect(place);
    page.ScreenToClient(place);
    return place;
}

} // namespace

BEGIN_MESSAGE_MAP(GalleryList, CGridListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &GalleryList::OnCustomDraw)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(ListPage, Page)
    ON_NOTIFY(LVN_BEGINLABELEDIT, IDC_LIST, &ListPage::OnBeginEdit)
    ON_NOTIFY(LVN_ENDLABELEDIT, IDC_LIST, &ListPage::OnEndEdit)
    ON_MESSAGE(DestroyEditorMessage, &ListPage::OnDestroyEditor)
END_MESSAGE_MAP()

ListPage::ListPage(LogPane& logPane) : Page(IDD_LIST_PAGE, logPane) {}

CString ListPage::GetTitle() const
{
    return Tr(L"Report list");
}

UINT ListPage::GetSourceId() const
{
    return IDR_SOURCE_LIST;
}

void ListPage::DoDataExchange(CDataExchange* exchange)
{
    Page::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BANNER, banner);
    DDX_Control(exchange, IDC_LIST, list);
    DDX_Control(exchange, IDC_LIST_EDIT_1, selectAllEdits[0]);
    DDX_Control(exchange, IDC_LIST_EDIT_2, selectAllEdits[1]);
    DDX_Control(exchange, IDC_LIST_EDIT_3, selectAllEdits[2]);
    DDX_Control(exchange, IDC_LIST_PLAIN_EDIT, plainEdit);
}

// An editor that loses the focus reports its end.
bool ListPage::EndEditing()
{
    if (editor)
        list.SetFocus();
    return !editor;
}

Page::Status ListPage::GetStatus()
{
    Status status;
    const int row = list.GetNextItem(-1, LVNI_SELECTED);
    if (row >= 0)
        status.position.Format(Tr(L"Row %ld"), static_cast<long>(row) + 1);
    status.count.Format(Tr(L"%ld rows, %ld columns"), static_cast<long>(list.GetItemCount()),
                        static_cast<long>(list.GetHeaderCtrl()->GetItemCount()));
    return status;
}

BOOL ListPage::OnInitDialog()
{
    Page::OnInitDialog();
    list.PrepareControl(0);
    const gallery::CsvTable table = gallery::ReadCsvFile(ShippedTablePath(L"elements").GetString());
    if (table.IsRefused())
        banner.SetWindowText(table.errors.front().c_str());
    else
        ShowTable(table);
    selectAllEdits[0].SetWindowText(L"1.008");
    selectAllEdits[1].SetWindowText(L"氢");
    selectAllEdits[2].SetWindowText(L"Hydrogen");
    plainEdit.SetWindowText(L"Hydrogen");
    return TRUE;
}

void ListPage::ShowTable(const gallery::CsvTable& table)
{
    for (size_t column = 0; column < table.header.size(); ++column)
    {
        const bool isLast = column + 1 == table.header.size();
        list.InsertColumn(static_cast<int>(column), table.header[column].c_str(), LVCFMT_LEFT,
                          isLast ? LongColumnWidth : ColumnWidth, static_cast<int>(column));
    }
    for (size_t row = 0; row < table.rows.size(); ++row)
    {
        const gallery::CsvRow& texts = table.rows[row];
        const int item = list.InsertItem(static_cast<int>(row), texts.front().c_str());
        for (size_t column = 1; column < texts.size(); ++column)
            list.SetItemText(item, static_cast<int>(column), texts[column].c_str());
    }
    ArrangeColumns();
    banner.SetWindowText(
        Tr(L"Click the current cell again or press F2 to edit; ← and → move; Enter keeps, Esc drops"));
}

void ListPage::ArrangeColumns()
{
    std::vector<int> order(static_cast<size_t>(list.GetHeaderCtrl()->GetItemCount()));
    if (order.size() <= NarrowColumn)
        return;
    std::iota(order.begin(), order.end(), 0);
    std::rotate(order.begin(), order.begin() + FirstColumn, order.begin() + FirstColumn + 1);
    std::rotate(order.begin() + 3, order.begin() + NarrowColumn, order.begin() + NarrowColumn + 1);
    list.SetColumnOrderArray(static_cast<int>(order.size()), order.data());
    list.SetColumnWidth(NarrowColumn, NarrowWidth);
}

// The log is for the requests to edit and their results.
BOOL ListPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.hwndFrom != list.GetSafeHwnd())
        return CDialog::OnNotify(wParam, lParam, result);
    if (header.code == LVN_BEGINLABELEDIT || header.code == LVN_ENDLABELEDIT)
        Log().Add(DescribeEditRecord(list, *reinterpret_cast<const NMLVDISPINFO*>(lParam)));
    return CDialog::OnNotify(wParam, lParam, result);
}

void ListPage::OnBeginEdit(NMHDR* header, LRESULT* result)
{
    const LVITEM& item = reinterpret_cast<const NMLVDISPINFO*>(header)->item;
    *result = 0;
    const DWORD style =
        IsDlgButtonChecked(IDC_LIST_MULTI_LINE) ? ES_MULTILINE | ES_AUTOVSCROLL : ES_AUTOHSCROLL;
    editor = std::make_unique<CInPlaceEdit>(item.iItem, item.iSubItem, item.pszText);
    if (!editor->Create(WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 0, 0), &list, IDC_LIST_EDITOR))
    {
        editor.reset();
        return;
    }
    if (list.PositionControl(editor.get(), item.iItem, item.iSubItem))
    {
        editor->CalculateSize();
        return;
    }
    Log().Add(Tr(L"PositionControl: the column is too narrow to edit"));
    list.SetFocus();
}

// The editor reports from inside its own message, so it is destroyed by a message that comes later.
void ListPage::OnEndEdit(NMHDR* header, LRESULT* result)
{
    const LVITEM& item = reinterpret_cast<const NMLVDISPINFO*>(header)->item;
    *result = 0;
    if (!editor)
        return;
    if (item.pszText)
    {
        list.SetItemText(item.iItem, item.iSubItem, item.pszText);
        MarkChanged();
    }
    editor->ShowWindow(SW_HIDE);
    endedEditor = std::move(editor);
    PostMessage(DestroyEditorMessage);
}

LRESULT ListPage::OnDestroyEditor(WPARAM, LPARAM)
{
    endedEditor.reset();
    return 0;
}

void ListPage::LayOut(int width, int height)
{
    if (!plainEdit.GetSafeHwnd())
        return;
    constexpr int Gap = 6;
    const int editHeight = PlaceOf(plainEdit, *this).Height();
    const int editTop = (std::max)(0, height - editHeight);
    const CRect listPlace = PlaceOf(list, *this);
    list.MoveWindow(0, listPlace.top, width, (std::max)(0, editTop - Gap - static_cast<int>(listPlace.top)));
    for (const UINT id : BottomControls)
    {
        CWnd& control = *GetDlgItem(static_cast<int>(id));
        const CRect place = PlaceOf(control, *this);
        control.MoveWindow(place.left, editTop + (editHeight - place.Height()) / 2, place.Width(),
                           place.Height());
    }
    const CRect bannerPlace = PlaceOf(banner, *this);
    banner.MoveWindow(bannerPlace.left, bannerPlace.top,
                      (std::max)(0, width - static_cast<int>(bannerPlace.left)), bannerPlace.Height());
}

void ListPage::PressKey(UINT key)
{
    MSG message = {};
    message.hwnd = list.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = key;
    list.PreTranslateMessage(&message);
}

void ListPage::ShowGrownEditor(bool multiLine)
{
    CheckDlgButton(IDC_LIST_MULTI_LINE, multiLine ? BST_CHECKED : BST_UNCHECKED);
    PressKey(VK_F2);
    if (!editor)
        return;
    editor->SetWindowText(Tr(multiLine ? L"First line\r\nSecond line\r\nThird line"
                                       : L"A text that is longer than its cell: the editor grows with it"));
    editor->CalculateSize();
}

bool ListPage::ShowPictureView(size_t view, CString& nameSuffix)
{
    constexpr const wchar_t* Suffixes[] = {L"", L"-edit", L"-lines"};
    constexpr int PictureRow = 4;
    list.SetFocus();
    if (view >= std::size(Suffixes))
        return false;
    nameSuffix = Suffixes[view];
    list.SetItemState(PictureRow + static_cast<int>(view), LVIS_FOCUSED | LVIS_SELECTED,
                      LVIS_FOCUSED | LVIS_SELECTED);
    if (view > 0)
    {
        ShowGrownEditor(view == 2);
        return true;
    }
    PressKey(VK_RIGHT);
    PressKey(VK_RIGHT);
    return true;
}
