// The context menus of the grid and the commands that they stand for.
#include "grid/model/RowWatch.h"
#include "grid/TGGrid.h"

namespace QuorUiCtr
{
namespace
{

enum CommandId : UINT
{
    InsertRowCommand = 1,
    DeleteRowsCommand = 2,
    AppendRowCommand = 3,
    SelectAllCommand = 4,
    CopyCommand = 5,
    CutCommand = 6,
    PasteCommand = 7,
    InsertColCommand = 8,
    DeleteColsCommand = 9,
    AppendColCommand = 10
};

struct MenuEntry
{
    CommandId id;
    const wchar_t* caption;
};

constexpr MenuEntry InsertRowEntry{InsertRowCommand, L"插入行(Ins)"};
constexpr MenuEntry DeleteRowsEntry{DeleteRowsCommand, L"删除(Del)"};
constexpr MenuEntry DeleteRowEntry{DeleteRowsCommand, L"删除行(Del)"};
constexpr MenuEntry AppendRowEntry{AppendRowCommand, L"新建行(N)"};
constexpr MenuEntry SelectAllEntry{SelectAllCommand, L"全选(A)"};
constexpr MenuEntry CopyEntry{CopyCommand, L"复制(C)"};
constexpr MenuEntry CutEntry{CutCommand, L"剪切(X)"};
constexpr MenuEntry PasteEntry{PasteCommand, L"粘贴(V)"};
constexpr MenuEntry InsertColEntry{InsertColCommand, L"插入列(Ins)"};
constexpr MenuEntry DeleteColsEntry{DeleteColsCommand, L"删除(Del)"};
constexpr MenuEntry DeleteColEntry{DeleteColsCommand, L"删除列(Del)"};
constexpr MenuEntry AppendColEntry{AppendColCommand, L"新建列(N)"};

// A popup menu that is filled, shown once and destroyed.
class ContextMenu
{
public:
    ContextMenu() { menu.CreatePopupMenu(); }

    void Add(const MenuEntry& entry) { menu.AppendMenu(MF_STRING, entry.id, entry.caption); }
    void AddBufferEntries(bool canPaste)
    {
        Add(CopyEntry);
        Add(CutEntry);
        if (canPaste)
            Add(PasteEntry);
    }
    // Shows the menu at a point in screen coordinates; the choice is posted to `owner` as WM_COMMAND. Nothing
    // is shown when a hook has closed the owner's window.
    void Track(CPoint point, CWnd& owner)
    {
        if (owner.GetSafeHwnd() != nullptr)
            menu.TrackPopupMenu(TPM_RIGHTBUTTON, point.x, point.y, &owner);
    }

private:
    CMenu menu;
};

} // namespace

void TGGrid::OnRClickRow(TGGridRow& row, CPoint point)
{
    if (IsNoDefaultMenu() || IsRowFixLength())
        return;
    ContextMenu menu;
    if (GetRowSelNum() > 1 && IsRowSelected(row.GetIndex()))
    {
        menu.Add(DeleteRowsEntry);
        menu.Add(AppendRowEntry);
        if (!IsNoPaste())
            menu.AddBufferEntries(false);
    }
    else
    {
        // Selecting runs hooks, which may delete the row.
        const RowWatch watch(*this, &row);
        SelectOnly(row);
        if (!watch.IsAlive())
            return;
        menu.Add(InsertRowEntry);
        if (!row.IsDelUnable())
            menu.Add(DeleteRowEntry);
        menu.Add(AppendRowEntry);
        if (!IsNoPaste())
            menu.AddBufferEntries(GetRowSelNum() == 1 && !rowPaste.IsEmpty());
    }
    menu.Track(point, *this);
}

void TGGrid::OnRClickCol(TGGridCol& col, CPoint point)
{
    if (IsNoDefaultMenu() || IsColFixLength())
        return;
    ContextMenu menu;
    const long index = col.GetIndex();
    if (GetColSelNum() > 1 && IsColSelected(index))
        menu.Add(DeleteColsEntry);
    else
    {
        UnSelect();
        SelectCol(index, true);
        menu.Add(InsertColEntry);
        menu.Add(DeleteColEntry);
    }
    menu.Add(AppendColEntry);
    menu.Track(point, *this);
}

void TGGrid::OnRClickQuad(CPoint point)
{
    if (IsNoDefaultMenu() || IsRowFixLength())
        return;
    ContextMenu menu;
    const bool anySelected = IsRowSelected();
    if (anySelected)
    {
        // Copy and cut are offered here whatever IsNoPaste says.
        for (const MenuEntry& entry : {DeleteRowsEntry, AppendRowEntry, CopyEntry, CutEntry})
            menu.Add(entry);
    }
    else
    {
        UnSelect();
        menu.Add(AppendRowEntry);
    }
    if ((!anySelected || GetRowSelNum() == 1) && !rowPaste.IsEmpty())
        menu.Add(PasteEntry);
    if (!IsEmpty())
        menu.Add(SelectAllEntry);
    menu.Track(point, *this);
}

bool TGGrid::RunMenuCommand(UINT id)
{
    switch (id)
    {
    case InsertRowCommand:
        DoInsertRow();
        return true;
    case DeleteRowsCommand:
    case DeleteColsCommand:
        DoDelete();
        return true;
    case AppendRowCommand:
        DoAppendRow(true);
        return true;
    case SelectAllCommand:
        SelectAll();
        return true;
    case CopyCommand:
        DoCopy();
        return true;
    case CutCommand:
        DoClip();
        return true;
    case PasteCommand:
        DoPaste();
        return true;
    case InsertColCommand:
        DoInsertCol();
        return true;
    case AppendColCommand:
        DoAppendCol();
        return true;
    default:
        return false;
    }
}

} // namespace QuorUiCtr
