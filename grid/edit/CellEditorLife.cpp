// Deferred destruction of cell editors.
#include "grid/edit/CellEditorLife.h"

#include "grid/TGCellCtrl.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace QuorUiCtr
{
namespace CellEditorLife
{

struct Record
{
    TGCellCtrl* editor; // null when the object is deleted while the record is still in use
    TGCellCtrl** slot;
    TGGridCell** cellSlot;
    HWND window = nullptr;
    // Messages of the editor's windows being handled, its creation, its uses and its destruction.
    int running = 0;
    bool destroyWanted = false;
    bool windowGone = false;
    bool deleteWanted = false;
};

namespace
{

// The editors alive: a handful at most, all on the user-interface thread.
std::vector<Record*>& Records()
{
    static std::vector<Record*> records;
    return records;
}

Record* FindRecord(const TGCellCtrl* editor)
{
    const auto found = std::find_if(Records().begin(), Records().end(),
                                    [editor](const Record* record) { return record->editor == editor; });
    return found == Records().end() ? nullptr : *found;
}

void DropRecord(Record* record)
{
    Records().erase(std::find(Records().begin(), Records().end(), record));
    delete record;
}

// The window is gone, and the object with it soon: nobody finds the editor in its slot any more, and a
// session that was open with it is over.
void EmptySlot(Record* record)
{
    TGCellCtrl** slot = std::exchange(record->slot, nullptr);
    if (slot == nullptr || *slot != record->editor)
        return;
    *slot = nullptr;
    *record->cellSlot = nullptr;
}

// Destroys the editor's window, or has the object deleted when it never got one.
void DestroyNow(Record* record)
{
    if (record->window == nullptr)
    {
        record->deleteWanted = true;
        record->windowGone = true;
        return;
    }
    ++record->running;
    ::DestroyWindow(record->window);
    --record->running;
}

void Settle(Record* record)
{
    if (record->running > 0)
        return;
    if (record->destroyWanted && !record->windowGone)
        DestroyNow(record);
    if (!record->windowGone)
        return;
    TGCellCtrl* finished = record->deleteWanted ? record->editor : nullptr;
    DropRecord(record);
    delete finished;
}

LRESULT CALLBACK WatchProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR data)
{
    Record* record = reinterpret_cast<Record*>(data);
    ++record->running;
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_NCDESTROY)
    {
        RemoveWindowSubclass(window, WatchProc, id);
        if (window == record->window)
        {
            record->windowGone = true;
            EmptySlot(record);
        }
    }
    --record->running;
    Settle(record);
    return result;
}

void Watch(Record* record, HWND window)
{
    if (window != nullptr)
        SetWindowSubclass(window, WatchProc, reinterpret_cast<UINT_PTR>(record),
                          reinterpret_cast<DWORD_PTR>(record));
}

BOOL CALLBACK WatchChild(HWND window, LPARAM data)
{
    Watch(reinterpret_cast<Record*>(data), window);
    return TRUE;
}

// The drop-down list of a combo box is no child of it.
HWND DropDownList(HWND window)
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    return GetComboBoxInfo(window, &info) ? info.hwndList : nullptr;
}

void WatchWindows(Record* record)
{
    record->window = record->editor->GetWnd()->GetSafeHwnd();
    if (record->window == nullptr)
        return;
    Watch(record, record->window);
    EnumChildWindows(record->window, WatchChild, reinterpret_cast<LPARAM>(record));
    const HWND list = DropDownList(record->window);
    if (!::IsChild(record->window, list))
        Watch(record, list);
}

} // namespace

Creation::Creation(TGCellCtrl*& slot, TGGridCell*& cellSlot) : record(new Record{slot, &slot, &cellSlot})
{
    Records().push_back(record);
    ++record->running;
}

Creation::~Creation()
{
    // An editor that was deleted meanwhile asked for it through DeleteWhenIdle.
    if (record->deleteWanted)
    {
        record->windowGone = true;
        EmptySlot(record);
    }
    else if (record->editor != nullptr)
        WatchWindows(record);
    --record->running;
    Settle(record);
}

Use::Use(TGCellCtrl* editor) : record(FindRecord(editor))
{
    if (record != nullptr)
        ++record->running;
}

Use::~Use()
{
    if (record == nullptr)
        return;
    --record->running;
    Settle(record);
}

void DestroyWhenIdle(TGCellCtrl* editor)
{
    if (editor == nullptr)
        return;
    if (Record* record = FindRecord(editor))
    {
        record->slot = nullptr;
        record->destroyWanted = true;
        Settle(record);
    }
}

void NoteDeletion(const TGCellCtrl* editor)
{
    Record* record = FindRecord(editor);
    if (record == nullptr)
        return;
    EmptySlot(record);
    record->editor = nullptr;
    record->deleteWanted = false;
    record->windowGone = true;
    Settle(record);
}

void DeleteWhenIdle(TGCellCtrl* editor)
{
    Record* record = FindRecord(editor);
    if (record == nullptr)
    {
        delete editor;
        return;
    }
    record->deleteWanted = true;
    if (record->running == 0)
    {
        record->windowGone = true;
        Settle(record);
    }
}

} // namespace CellEditorLife
} // namespace QuorUiCtr
