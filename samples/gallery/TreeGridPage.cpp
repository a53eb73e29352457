// The page with a tree grid.
#include "TreeGridPage.h"

#include "GridFill.h"
#include "Language.h"
#include "LogPane.h"
#include "TableFile.h"
#include "resource.h"

using QuorUiCtr::TGGrid;
using QuorUiCtr::TGGridTreeRow;

namespace
{

// What the buttons of the first line run.
struct GridCommand
{
    UINT id;
    const wchar_t* name;
    bool (TGGrid::*run)();
};

// Addresses of imported functions are not constant expressions.
const GridCommand GridCommands[] = {
    {IDC_TREE_INSERT, L"DoInsertRow", &TGGrid::DoInsertRow},
    {IDC_TREE_INSERT_TREE, L"DoInsertTree", &TGGrid::DoInsertTree},
    {IDC_TREE_APPEND_CHILD, L"DoAppendChild", &TGGrid::DoAppendChild},
    {IDC_TREE_DELETE, L"DoDelete", &TGGrid::DoDelete},
    {IDC_TREE_COPY, L"DoCopy", &TGGrid::DoCopy},
    {IDC_TREE_CUT, L"DoClip", &TGGrid::DoClip},
    {IDC_TREE_PASTE, L"DoPaste", &TGGrid::DoPaste},
    {IDC_TREE_PASTE_CHILD, L"DoPasteChild", &TGGrid::DoPasteChild},
};

// The keys of the page, pressed with Ctrl; those of the commands are the grid's own.
struct PageKey
{
    UINT key;
    UINT id;
};

constexpr PageKey PageKeys[] = {
    {VK_SUBTRACT, IDC_FOLD_ALL},   {VK_OEM_MINUS, IDC_FOLD_ALL}, {VK_ADD, IDC_UNFOLD_ALL},
    {VK_OEM_PLUS, IDC_UNFOLD_ALL}, {'F', IDC_TREE_FIND_TEXT},
};

} // namespace

BEGIN_MESSAGE_MAP(TreeGridPage, TablePage)
    ON_COMMAND_RANGE(IDC_TREE_INSERT, IDC_TREE_PASTE_CHILD, &TreeGridPage::OnGridCommand)
    ON_BN_CLICKED(IDC_FOLD_ALL, &TreeGridPage::OnFoldAll)
    ON_BN_CLICKED(IDC_UNFOLD_ALL, &TreeGridPage::OnUnfoldAll)
    ON_BN_CLICKED(IDC_TREE_SORT_UP, &TreeGridPage::OnSortAscending)
    ON_BN_CLICKED(IDC_TREE_SORT_DOWN, &TreeGridPage::OnSortDescending)
    ON_BN_CLICKED(IDC_TREE_FIND, &TreeGridPage::OnFind)
    ON_EN_CHANGE(IDC_TREE_QUERY_NUMBER, &TreeGridPage::OnQuery)
    ON_EN_CHANGE(IDC_TREE_QUERY_LABEL, &TreeGridPage::OnQuery)
END_MESSAGE_MAP()

TreeGridPage::TreeGridPage(LogPane& logPane)
    : TablePage(IDD_TREE_GRID_PAGE, logPane, grid), grid(logPane, [this] { OnQuery(); })
{
}

CString TreeGridPage::GetTitle() const
{
    return Tr(L"Tree grid");
}

UINT TreeGridPage::GetSourceId() const
{
    return IDR_SOURCE_TREE_GRID;
}

BOOL TreeGridPage::OnInitDialog()
{
    TablePage::OnInitDialog();
    const gallery::CsvTable table = gallery::ReadCsvFile(ShippedTablePath(L"countries").GetString());
    for (const std::wstring& problem : table.errors)
        Log().Add(problem.c_str());
    if (!grid.Fill(table))
        Log().Add(Tr(L"countries.csv: unexpected columns"));
    SetDlgItemText(IDC_TREE_FIND_TEXT, Tr(L"Japan"));
    SetDlgItemText(IDC_TREE_QUERY_NUMBER, L"156");
    SetDlgItemText(IDC_TREE_QUERY_LABEL, L"157");
    OnQuery();
    undo.CreateIn(*this);
    undo.GetStack().Watch(grid);
    return TRUE;
}

// The buttons need the whole width.
int TreeGridPage::WidthForGrid(int width, int height)
{
    if (grid.GetSafeHwnd() == nullptr)
        return width;
    CRect place;
    grid.GetWindowRect(place);
    ScreenToClient(place);
    return undo.PlaceAtRight(width, height, place.top);
}

bool TreeGridPage::ShowPictureView(size_t view, CString& nameSuffix)
{
    grid.CancelEditCell();
    if (view == 0)
    {
        OnUnfoldAll();
    }
    else if (view == 1)
    {
        nameSuffix = L"-folded";
        OnFoldAll();
    }
    else if (view == 2)
    {
        nameSuffix = L"-pasted";
        OnFind();
        OnGridCommand(IDC_TREE_COPY);
        OnGridCommand(IDC_TREE_PASTE);
    }
    return view < 3;
}

// ---- Commands

void TreeGridPage::OnGridCommand(UINT id)
{
    for (const GridCommand& command : GridCommands)
        if (command.id == id)
            Log().Add(CString(command.name) + ((grid.*command.run)() ? L"  true" : L"  false"));
}

void TreeGridPage::Sort(bool ascending)
{
    grid.ClearKey();
    if (!grid.IsColSelected())
        grid.AppendKey(0);
    grid.Arrange(ascending);
}

void TreeGridPage::ForEachRoot(void (TGGridTreeRow::*operation)())
{
    const QuorUiCtr::TGGridUpdate update(grid);
    for (TGGridTreeRow* root : grid.Roots())
        (root->*operation)();
}

CString TreeGridPage::TextOf(int id) const
{
    CString text;
    GetDlgItemText(id, text);
    return text;
}

void TreeGridPage::OnFind()
{
    const CString text = TextOf(IDC_TREE_FIND_TEXT);
    bool found = false;
    for (long col = 0; col < grid.GetColNum() && !found; ++col)
        found = grid.FindAndSel(text, col);
    Log().Add(L"FindAndSel(\"" + text + (found ? L"\")  true" : L"\")  false"));
}

void TreeGridPage::OnQuery()
{
    if (grid.m_hWnd == nullptr)
        return;
    const int number = _wtoi(TextOf(IDC_TREE_QUERY_NUMBER));
    const CString label = TextOf(IDC_TREE_QUERY_LABEL);
    CString answer;
    answer.Format(L"GetAutoId(%d) = %d; IsRightLabel(\"%s\") = %s", number, grid.GetAutoId(number),
                  label.GetString(), grid.IsRightLabel(label) ? L"true" : L"false");
    SetBanner(answer);
}

// ---- Keys

BOOL TreeGridPage::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && RunKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    return TablePage::PreTranslateMessage(message);
}

// Enter in the search text searches.
bool TreeGridPage::RunKey(UINT key)
{
    const CWnd* findText = GetDlgItem(IDC_TREE_FIND_TEXT);
    if (key == VK_RETURN && GetFocus() == findText)
    {
        OnFind();
        return true;
    }
    if (GetKeyState(VK_CONTROL) >= 0)
        return false;
    for (const PageKey& entry : PageKeys)
    {
        if (entry.key != key)
            continue;
        CWnd* control = GetDlgItem(static_cast<int>(entry.id));
        if (control == findText)
            control->SetFocus();
        else
            SendMessage(WM_COMMAND, MAKEWPARAM(entry.id, BN_CLICKED),
                        reinterpret_cast<LPARAM>(control->GetSafeHwnd()));
        return true;
    }
    return false;
}
