// The tree grid's hooks: new rows, the drawing of groups and the repair of identifiers.
#include "grid/TGTreeGrid.h"

#include "grid/edit/CellWatch.h"
#include "grid/model/RowWatch.h"
#include "grid/tree/TGTreeIdentifiers.h"

#include <unordered_set>
#include <utility>

namespace QuorUiCtr
{

IMPLEMENT_DYNAMIC(TGTreeGrid, TGGrid)

BEGIN_MESSAGE_MAP(TGTreeGrid, TGGrid)
END_MESSAGE_MAP()

TGTreeGrid::TGTreeGrid(bool tree) : TGGrid(tree, 100) {}

TGTreeGrid::~TGTreeGrid() = default;

TGGridRow* TGTreeGrid::GetSelRow()
{
    return GetRowSelNum() == 1 ? &TGGrid::GetSelRow(0) : nullptr;
}

void TGTreeGrid::OnMenuCommand(UINT id)
{
    switch (id)
    {
    case 1:
        DoInsertRowAfter();
        break;
    case 2:
        DoDelete();
        break;
    case 3:
        DoAppendRow(true);
        break;
    case 4:
        SelectAll();
        break;
    default:
        break;
    }
}

// ---- Changes and editing

bool TGTreeGrid::OnModified(TGGridCell&, CString&)
{
    return true;
}

void TGTreeGrid::OnDataChanged()
{
    treeModified = true;
}

bool TGTreeGrid::OnBeforeEdit(TGGridCell& cell)
{
    TGGridRow& row = cell.GetRow();
    return !row.IsTreeRow() || !row.IsParentRow() || cell.GetColIndex() < 1;
}

void TGTreeGrid::New(const wchar_t*) {}
void TGTreeGrid::Open(const wchar_t*) {}
void TGTreeGrid::OnSave() {}
void TGTreeGrid::OnReload() {}

// ---- Drawing

// The hooks of a cell may delete the row or change its cells.
bool TGTreeGrid::OnRefresh(TGGridRow& row)
{
    if (!row.IsTreeRow() || !row.IsParentRow())
        return true;
    const RowWatch watch(*this, &row);
    if (TGGridCell* label = row.FindCell(0))
        label->Refresh();
    for (long col = 1; watch.IsAlive() && col < GetColNum(); ++col)
    {
        const CellWatch cell(*this, row.FindCell(col));
        if (cell.Cell() == nullptr)
            continue;
        CString text;
        std::swap(text, cell.Cell()->GetText());
        cell.Cell()->Refresh();
        if (cell.Cell() != nullptr)
            cell.Cell()->GetText() = text;
    }
    return false;
}

// ---- New rows

TGGridTreeRow* TGTreeGrid::SelectedItem()
{
    TGGridRow* row = GetSelRow();
    return row != nullptr && row->IsTreeRow() && !row->IsParentRow() ? static_cast<TGGridTreeRow*>(row)
                                                                     : nullptr;
}

bool TGTreeGrid::OnBeforeInsertRow(long, TGGridRow*& row)
{
    if (row != nullptr || GetRowSelNum() != 1)
        return true;
    row = new TGGridTreeRow(*this);
    if (TGGridTreeRow* item = SelectedItem())
        *row = *item;
    return true;
}

bool TGTreeGrid::OnBeforeInsertChild(TGGridTreeRow&, long, TGGridTreeRow*& child)
{
    if (child != nullptr || GetRowSelNum() != 1)
        return true;
    child = new TGGridTreeRow(*this);
    if (TGGridTreeRow* item = SelectedItem())
        *child = *item;
    return true;
}

void TGTreeGrid::OnInsertRow(TGGridRow&) {}

// ---- Identifiers of groups that become items

bool TGTreeGrid::OnBeforeDeleteRow()
{
    NoteParents();
    return true;
}

bool TGTreeGrid::OnBeforeClip()
{
    NoteParents();
    return true;
}

bool TGTreeGrid::OnMoveRow(long position)
{
    if (!OnMovingRow(position))
        return false;
    NoteParents();
    return true;
}

void TGTreeGrid::OnEndDeleteRow()
{
    RepairParents();
}

void TGTreeGrid::OnEndClip()
{
    RepairParents();
}

void TGTreeGrid::OnEndMoveRow()
{
    RepairParents();
}

void TGTreeGrid::NoteParents()
{
    std::unordered_set<TGGridRow*> known;
    size_t position = 0;
    for (TGGridRow* parent : touchedParents)
        if (parentWatches[position++]->IsAlive())
            known.insert(parent);
    const long selected = GetRowSelNum();
    for (long k = 0; k < selected; ++k)
        known.insert(&TGGrid::GetSelRow(k));
    for (long k = 0; k < selected; ++k)
    {
        TGGridRow& row = TGGrid::GetSelRow(k);
        if (!row.IsChildRow())
            continue;
        TGGridRow* parent = static_cast<TGGridTreeRow&>(row).Parent();
        if (!known.insert(parent).second)
            continue;
        // The two go together, also when memory is short.
        touchedParents.Reserve(touchedParents.GetNum() + 1);
        parentWatches.push_back(std::make_unique<RowWatch>(*this, parent));
        touchedParents.Append(parent);
    }
}

void TGTreeGrid::RepairParents()
{
    std::vector<TGGridRow*> items;
    size_t position = 0;
    for (TGGridRow* parent : touchedParents)
        if (parentWatches[position++]->IsAlive() && parent->IsTreeRow() && !parent->IsParentRow())
            items.push_back(parent);
    touchedParents.Clear();
    parentWatches.clear();
    RenumberItems(items);
}

void TGTreeGrid::OnEndPaste()
{
    Leaves pasted;
    for (long k = 0; k < GetRowSelNum(); ++k)
        pasted.Add(TGGrid::GetSelRow(k));
    std::vector<TGGridRow*> items;
    while (TGGridRow* item = pasted.Next())
        items.push_back(item);
    RenumberItems(items);
}

// One walk for all of them: the table follows the identifiers that they receive one after another.
void TGTreeGrid::RenumberItems(const std::vector<TGGridRow*>& items)
{
    if (items.empty())
        return;
    std::vector<int> asked;
    asked.reserve(items.size());
    for (TGGridRow* item : items)
        asked.push_back(Leaves::IdentifierOf(Leaves::IdentifierCell(*item)));
    Identifiers identifiers(*this, asked);
    for (TGGridRow* item : items)
        identifiers.Renumber(*item);
}

} // namespace QuorUiCtr
