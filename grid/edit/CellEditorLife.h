// CellEditorLife: when a cell editor may be destroyed and deleted, whatever code of it is running.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

class TGCellCtrl;
class TGGridCell;

// The life of an editor: made and shown at the beginning of a session; hidden and disabled at its end,
// because that may come from a message of the editor itself; its window destroyed when the next session
// begins, or with the grid's; its object deleted when the window is gone.
//
// Hooks that an editor's handlers call may do each of these in the middle: end the session, start another one
// or destroy the grid's window. An editor whose code is on the stack then must stay in memory until it has
// returned. The editor's windows are watched for that: destruction and deletion wait until no message of
// theirs is being handled.
namespace CellEditorLife
{

struct Record;

// Covers the making of an editor: keeps it in memory during Create and watches its windows afterwards. The
// editor is the one in `slot`. When the editor's window is destroyed while it is there, by whomever, `slot`
// and `cellSlot`, the cell under edit, become null; both must exist until then.
class Creation
{
public:
    Creation(TGCellCtrl*& slot, TGGridCell*& cellSlot);
    ~Creation();
    Creation(const Creation&) = delete;
    Creation& operator=(const Creation&) = delete;

private:
    Record* record;
};

// Keeps an editor in memory while a handler of it runs that the message of another window has called.
class Use
{
public:
    explicit Use(TGCellCtrl* editor);
    ~Use();
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

private:
    Record* record;
};

// Destroys the window of the editor of a finished session, at once or as soon as none of its code is running;
// null is ignored.
void DestroyWhenIdle(TGCellCtrl* editor);

// Deletes an editor whose window is gone, at once or as soon as none of its code is running. For
// PostNcDestroy.
void DeleteWhenIdle(TGCellCtrl* editor);

// The editor is being deleted, by whomever. For the destructor.
void NoteDeletion(const TGCellCtrl* editor);

} // namespace CellEditorLife

} // namespace QuorUiCtr
