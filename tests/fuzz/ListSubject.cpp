// The mode of the list and its editor. The owner makes the editor, refuses to, changes the list, destroys
// either.
#include "tests/fuzz/Modes.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

#include "controls/CGridListCtrl.h"
#include "controls/CInPlaceEdit.h"

#include <memory>
#include <utility>

namespace quor::fuzz
{

namespace
{

constexpr UINT ListId = 21;
constexpr UINT EditorId = 22;
constexpr UINT FinishedMessage = WM_APP + 1;
constexpr int MostRows = 40;
constexpr int MostCols = 6;

// Draws its current cell, and shows what is current.
class DrawingList : public CGridListCtrl
{
public:
    using CGridListCtrl::curColumn;
    using CGridListCtrl::OnCustomDraw;

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DrawingList, CGridListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &DrawingList::OnCustomDraw)
END_MESSAGE_MAP()

class ListSubject : public Subject
{
public:
    explicit ListSubject(bool bare) : isBare(bare) {}
    ~ListSubject() override { Destroy(); }

    void Create(CWnd& parent) override;
    void Destroy() override;
    HWND Window() override { return list ? list->GetSafeHwnd() : nullptr; }
    void Prepare() override;
    HWND Target() override;
    void Call() override;
    void Check() override;
    unsigned long Digest() override;
    bool OnHostMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

private:
    int Columns() const { return list->GetHeaderCtrl()->GetItemCount(); }
    bool IsEditing() const { return editor && editor->GetSafeHwnd() != nullptr; }
    int AnyRow() { return static_cast<int>(Dice().Between(-1, list->GetItemCount())); }
    int AnyColumn() { return static_cast<int>(Dice().Between(-1, Columns())); }

    void InsertRow();
    void InsertColumn();
    void DeleteColumn();
    void OpenEditor(int row, int column, const CString& text);
    void EndEdit(const NMLVDISPINFO& record);
    void MoveEditor();
    void CallList();
    void DoMischief();

    bool isBare;
    std::unique_ptr<CListCtrl> list;
    DrawingList* grid = nullptr; // the list, unless it is bare
    std::unique_ptr<CInPlaceEdit> editor;
    std::unique_ptr<CInPlaceEdit> finished;
};

void ListSubject::Create(CWnd& parent)
{
    list = isBare ? std::make_unique<CListCtrl>() : std::make_unique<DrawingList>();
    grid = isBare ? nullptr : static_cast<DrawingList*>(list.get());
    list->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | LVS_SHOWSELALWAYS |
                     (isBare ? LVS_REPORT : LVS_LIST),
                 CRect(10, 10, 330, 210), &parent, ListId);
    if (grid != nullptr)
        grid->PrepareControl(7);
    for (long i = Dice().Between(1, 5); i > 0; --i)
        InsertColumn();
    for (long i = Dice().Below(20); i > 0; --i)
        InsertRow();
}

void ListSubject::Destroy()
{
    editor.reset();
    finished.reset();
    grid = nullptr;
    list.reset();
}

// Every third step there is an editor.
void ListSubject::Prepare()
{
    if (grid == nullptr || IsEditing() || !Dice().OneIn(3) || list->GetItemCount() == 0)
        return;
    Say("opens an editor");
    OpenEditor(static_cast<int>(Dice().Below(list->GetItemCount())),
               static_cast<int>(Dice().Below(Columns())), AnyText());
}

HWND ListSubject::Target()
{
    return IsEditing() && Dice().OneIn(2) ? editor->m_hWnd : Subject::Target();
}

void ListSubject::InsertRow()
{
    if (list->GetItemCount() >= MostRows)
        return;
    const int row = list->InsertItem(static_cast<int>(Dice().Below(list->GetItemCount() + 1)), AnyText(10));
    for (int column = 1; column < Columns(); ++column)
        list->SetItemText(row, column, AnyText(10));
}

void ListSubject::InsertColumn()
{
    if (Columns() < MostCols)
        list->InsertColumn(static_cast<int>(Dice().Below(Columns() + 1)), AnyText(8), LVCFMT_LEFT,
                           static_cast<int>(Dice().Below(150)));
}

// The platform's header draws a column that is being dragged also when it is gone: the drag ends first.
void ListSubject::DeleteColumn()
{
    list->GetHeaderCtrl()->SendMessage(WM_LBUTTONUP, 0, 0);
    if (Window() != nullptr && Columns() > 1)
        list->DeleteColumn(static_cast<int>(Dice().Below(Columns())));
}

void ListSubject::OpenEditor(int row, int column, const CString& text)
{
    constexpr DWORD styles[] = {ES_AUTOHSCROLL, 0, ES_MULTILINE, ES_MULTILINE | ES_AUTOVSCROLL | WS_BORDER};
    editor = std::make_unique<CInPlaceEdit>(row, column, text);
    // Creating it tells the owner of lost focus, which may end it at once.
    CInPlaceEdit* const made = editor.get();
    if (!made->Create(WS_CHILD | WS_VISIBLE | Dice().Pick(styles), CRect(0, 0, 0, 0), list.get(), EditorId))
        return;
    if (editor.get() != made || Window() == nullptr)
        return;
    if (grid->PositionControl(made, row, column) == 0)
        list->SetFocus();
    else if (editor.get() == made && IsEditing())
        made->CalculateSize();
}

void ListSubject::EndEdit(const NMLVDISPINFO& record)
{
    if (record.item.pszText != nullptr && Window() != nullptr)
        list->SetItemText(record.item.iItem, record.item.iSubItem, record.item.pszText);
    if (!editor)
        return;
    finished = std::move(editor);
    if (list)
        ::PostMessage(::GetParent(*list), FinishedMessage, 0, 0);
}

void ListSubject::MoveEditor()
{
    if (grid == nullptr || !IsEditing())
        return;
    grid->PositionControl(editor.get(), AnyRow(), AnyColumn());
    if (IsEditing())
        editor->CalculateSize();
}

void ListSubject::CallList()
{
    switch (Dice().Below(7))
    {
    case 0:
        return InsertRow();
    case 1:
        return InsertColumn();
    case 2:
        list->DeleteItem(AnyRow());
        return;
    case 3:
        return DeleteColumn();
    case 4:
        list->SetItemState(AnyRow(), LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
        return;
    case 5:
        list->SetColumnWidth(static_cast<int>(Dice().Below(Columns())), static_cast<int>(Dice().Below(300)));
        return;
    default:
        list->SetFocus();
    }
}

void ListSubject::Call()
{
    const long kind = Dice().Below(8);
    Say("list, kind %ld", kind);
    if (kind == 0 && grid != nullptr)
        grid->MakeColumnVisible(AnyColumn());
    else if (kind == 1)
        MoveEditor();
    else if (kind == 2 && IsEditing() && Dice().OneIn(3))
        editor->DestroyWindow();
    else
        CallList();
}

// Deleting rows from inside of the list's own notifications is left to those that its editor sends: the
// platform's list goes on with the row.
void ListSubject::DoMischief()
{
    const Mischief mischief("a notification");
    switch (Dice().Below(8))
    {
    case 0:
        Say("deletes the list");
        Destroy();
        return;
    case 1:
        Say("deletes the editor");
        editor.reset();
        return;
    default:
        Call();
    }
}

bool ListSubject::OnHostMessage(UINT message, WPARAM, LPARAM lParam, LRESULT& result)
{
    if (message == FinishedMessage)
        finished.reset();
    if (message != WM_NOTIFY || Window() == nullptr)
        return false;
    const auto& record = *reinterpret_cast<const NMLVDISPINFO*>(lParam);
    if (record.hdr.code != LVN_BEGINLABELEDIT && record.hdr.code != LVN_ENDLABELEDIT)
        return false;
    result = 0;
    Say("the owner hears of %s",
        record.hdr.code == LVN_BEGINLABELEDIT ? "a wish to edit" : "the end of an edit");
    if (WantsMischief(5))
        DoMischief();
    if (Window() == nullptr)
        return true;
    if (record.hdr.code == LVN_ENDLABELEDIT)
        EndEdit(record);
    else if (!IsEditing() && grid != nullptr && !Dice().OneIn(5))
        OpenEditor(record.item.iItem, record.item.iSubItem, record.item.pszText);
    return true;
}

void ListSubject::Check()
{
    if (grid == nullptr)
        return;
    if (grid->curColumn < -1 || grid->curColumn >= MostCols)
        Fail("column %d is current", grid->curColumn);
    int editors = 0;
    for (HWND child = ::GetWindow(*list, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        editors += ::GetDlgCtrlID(child) == static_cast<int>(EditorId) ? 1 : 0;
    // A finished one goes with the next messages.
    const bool hasFinished = finished && finished->GetSafeHwnd() != nullptr;
    if (editors > (IsEditing() ? 1 : 0) + (hasFinished ? 1 : 0))
        Fail("%d editors are there", editors);
}

unsigned long ListSubject::Digest()
{
    if (Window() == nullptr)
        return 0;
    return static_cast<unsigned long>(list->GetItemCount() * 64 + Columns() * 2 + (IsEditing() ? 1 : 0));
}

} // namespace

std::unique_ptr<Subject> MakeListMode(bool bare)
{
    return std::make_unique<ListSubject>(bare);
}

} // namespace quor::fuzz
