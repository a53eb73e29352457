// The list in a host window that the tests of lists and editors share.
#include "tests/controls/OwnedList.h"

#include "tests/support/Input.h"

namespace quor::test
{

namespace
{

std::string Narrow(const wchar_t* text)
{
    return std::string(CStringA(text));
}

std::string CellName(const NMLVDISPINFO& record)
{
    return std::to_string(record.item.iItem) + "," + std::to_string(record.item.iSubItem);
}

} // namespace

BEGIN_MESSAGE_MAP(TestList, CGridListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &TestList::OnDraw)
END_MESSAGE_MAP()

void TestList::OnDraw(NMHDR* header, LRESULT* result)
{
    const NMCUSTOMDRAW& draw = *reinterpret_cast<const NMCUSTOMDRAW*>(header);
    if (draw.dwDrawStage == CDDS_ITEMPREPAINT)
        paintedRows.push_back(static_cast<int>(draw.dwItemSpec));
    OnCustomDraw(header, result);
}

LRESULT TestList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool scrolls = message == LVM_SCROLL || message == LVM_ENSUREVISIBLE;
    const bool destroysItself = destroysItselfWhenScrolled && scrolls;
    const LRESULT result = CGridListCtrl::WindowProc(message, wParam, lParam);
    if (scrolls && onScrolled)
        onScrolled(message);
    if (destroysItself)
        DestroyWindow();
    return result;
}

CRect TestList::Bounds(int row)
{
    CRect bounds;
    EXPECT_TRUE(GetItemRect(row, bounds, LVIR_BOUNDS));
    return bounds;
}

CRect TestList::Cell(int row, int column)
{
    CRect cell;
    GetHeaderCtrl()->GetItemRect(column, cell);
    GetHeaderCtrl()->MapWindowPoints(this, cell);
    const CRect bounds = Bounds(row);
    return CRect(cell.left, bounds.top, cell.right, bounds.bottom);
}

void TestList::Order(std::vector<int> order)
{
    EXPECT_TRUE(SetColumnOrderArray(static_cast<int>(order.size()), order.data()));
}

std::wstring TestEditor::Text()
{
    CString text;
    GetWindowText(text);
    return text.GetString();
}

CRect TestEditor::Place()
{
    CRect place;
    GetWindowRect(place);
    GetParent()->ScreenToClient(place);
    return place;
}

std::string TestEditor::Selection()
{
    int first = 0;
    int last = 0;
    GetSel(first, last);
    return std::to_string(first) + "-" + std::to_string(last);
}

ListOwner::ListOwner() : HostWindow(500, 300), list(std::make_unique<TestList>())
{
    list->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | LVS_SHOWSELALWAYS | LVS_EDITLABELS |
                     LVS_LIST,
                 CRect(10, 10, 330, 210), this, ListId);
    list->PrepareControl(7);
}

ListOwner::~ListOwner()
{
    onBegin = nullptr;
    onEnd = nullptr;
    onNotification = nullptr;
    DestroyWindow();
}

LRESULT ListOwner::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NOTIFY)
    {
        if (onNotification)
            onNotification(*reinterpret_cast<const NMHDR*>(lParam));
        const NMLVDISPINFO& record = *reinterpret_cast<const NMLVDISPINFO*>(lParam);
        if (record.hdr.code == LVN_BEGINLABELEDIT || record.hdr.code == LVN_ENDLABELEDIT)
        {
            lastRecord = record;
            lastWParam = wParam;
            record.hdr.code == LVN_BEGINLABELEDIT ? OnBegin(record) : OnEnd(record);
            return 0;
        }
    }
    if (message == DestroyMessage)
        finished.reset();
    return HostWindow::WindowProc(message, wParam, lParam);
}

void ListOwner::OnBegin(const NMLVDISPINFO& record)
{
    EXPECT_EQ(record.item.cchTextMax, static_cast<int>(wcslen(record.item.pszText)));
    edits.push_back("begin " + CellName(record) + " [" + Narrow(record.item.pszText) + "]");
    if (onBegin)
        onBegin(record);
    else if (createsEditors)
        Edit(record.item.iItem, record.item.iSubItem, record.item.pszText);
}

bool ListOwner::Edit(int row, int column, const CString& text)
{
    editor = std::make_unique<TestEditor>(row, column, text);
    return editor->Create(WS_CHILD | WS_VISIBLE | editorStyle, CRect(0, 0, 0, 0), list.get(), EditorId) &&
           list->PositionControl(editor.get(), row, column) != 0;
}

void ListOwner::OnEnd(const NMLVDISPINFO& record)
{
    const bool cancelled = !record.item.pszText;
    EXPECT_EQ(record.item.cchTextMax, cancelled ? 0 : static_cast<int>(wcslen(record.item.pszText)));
    edits.push_back("end " + CellName(record) +
                    (cancelled ? " cancelled" : " [" + Narrow(record.item.pszText) + "]"));
    if (onEnd)
    {
        onEnd(record);
        return;
    }
    if (!cancelled && list)
        list->SetItemText(record.item.iItem, record.item.iSubItem, record.item.pszText);
    finished = std::move(editor);
    if (finished)
        PostMessage(DestroyMessage);
}

void ListOwner::CloseEditor()
{
    if (IsEditing())
        list->SetFocus();
    PumpPending();
}

ListTest::ListTest() : list(*owner.list) {}

void ListTest::MakeColumns(int count, int width)
{
    for (int column = 0; column < count; ++column)
        list.InsertColumn(column, CString(static_cast<wchar_t>(L'A' + column)), LVCFMT_LEFT, width, column);
}

void ListTest::MakeRows(int count)
{
    const int columns = list.GetHeaderCtrl()->GetItemCount();
    list.SetItemCount(count);
    list.SetRedraw(FALSE);
    for (int row = 0; row < count; ++row)
        for (int column = 0; column < columns; ++column)
        {
            CString text;
            text.Format(L"r%dc%d", row, column);
            if (column == 0)
                list.InsertItem(row, text);
            else
                list.SetItemText(row, column, text);
        }
    list.SetRedraw(TRUE);
    list.Invalidate();
    list.UpdateWindow();
    PumpPending();
}

void ListTest::SetCurrent(int row, int position)
{
    list.SetFocus();
    list.SetItemState(row, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    list.curColumn = position;
    PumpPending();
}

void ListTest::Key(WORD key)
{
    PostKey(::GetFocus(), key);
    PumpPending();
}

std::string ListTest::Current()
{
    return std::to_string(list.FocusedRow()) + "," + std::to_string(list.curColumn);
}

} // namespace quor::test
