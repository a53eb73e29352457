// The context menus of the grid and the commands that they stand for.
#include "grid/model/GridExtensions.h"
#include "grid/model/RowWatch.h"
#include "grid/TGGrid.h"
#include "module/QuorTexts.h"

#include <algorithm>
#include <iterator>

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
    QuorText caption;
    void (*run)(TGGrid& grid);
};

constexpr MenuEntry InsertRowEntry{InsertRowCommand, QuorText::MenuInsertRow,
                                   [](TGGrid& grid) { grid.DoInsertRow(); }};
constexpr MenuEntry DeleteRowsEntry{DeleteRowsCommand, QuorText::MenuDelete,
                                    [](TGGrid& grid) { grid.DoDelete(); }};
constexpr MenuEntry DeleteRowEntry{DeleteRowsCommand, QuorText::MenuDeleteRow, DeleteRowsEntry.run};
constexpr MenuEntry AppendRowEntry{AppendRowCommand, QuorText::MenuAppendRow,
                                   [](TGGrid& grid) { grid.DoAppendRow(true); }};
constexpr MenuEntry SelectAllEntry{SelectAllCommand, QuorText::MenuSelectAll,
                                   [](TGGrid& grid) { grid.SelectAll(); }};
constexpr MenuEntry CopyEntry{CopyCommand, QuorText::MenuCopy, [](TGGrid& grid) { grid.DoCopy(); }};
constexpr MenuEntry CutEntry{CutCommand, QuorText::MenuCut, [](TGGrid& grid) { grid.DoClip(); }};
constexpr MenuEntry PasteEntry{PasteCommand, QuorText::MenuPaste, [](TGGrid& grid) { grid.DoPaste(); }};
constexpr MenuEntry InsertColEntry{InsertColCommand, QuorText::MenuInsertCol,
                                   [](TGGrid& grid) { grid.DoInsertCol(); }};
constexpr MenuEntry DeleteColsEntry{DeleteColsCommand, QuorText::MenuDelete, DeleteRowsEntry.run};
constexpr MenuEntry DeleteColEntry{DeleteColsCommand, QuorText::MenuDeleteCol, DeleteRowsEntry.run};
constexpr MenuEntry AppendColEntry{AppendColCommand, QuorText::MenuAppendCol,
                                   [](TGGrid& grid) { grid.DoAppendCol(); }};

// One entry for each command.
constexpr MenuEntry MenuCommands[] = {InsertRowEntry,  DeleteRowsEntry, AppendRowEntry, SelectAllEntry,
                                      CopyEntry,       CutEntry,        PasteEntry,     InsertColEntry,
                                      DeleteColsEntry, AppendColEntry};

// A popup menu that is filled, shown once and destroyed.
struct ContextMenu
{
    ContextMenu() { menu.CreatePopupMenu(); }

    void Add(const MenuEntry& entry) { menu.AppendMenu(MF_STRING, entry.id, QuorTexts::Get(entry.caption)); }
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
    ExtendMenu(TGGridPlace::RowHeader, menu.menu);
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
    ExtendMenu(TGGridPlace::ColHeader, menu.menu);
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
    ExtendMenu(TGGridPlace::Corner, menu.menu);
    menu.Track(point, *this);
}

void TGGrid::ExtendMenu(TGGridPlace place, CMenu& menu)
{
    if (extensions != nullptr)
        extensions->Tell(GridExtensions::Menu, place, menu);
}

bool TGGrid::RunMenuCommand(UINT id)
{
    const auto chosen = std::find_if(std::begin(MenuCommands), std::end(MenuCommands),
                                     [id](const MenuEntry& entry) { return entry.id == id; });
    if (chosen == std::end(MenuCommands))
        return false;
    chosen->run(*this);
    return true;
}

} // namespace QuorUiCtr
