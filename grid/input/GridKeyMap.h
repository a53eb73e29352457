// GridKeyMap: what each key does in the grid.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// The key map as a table of keys and handlers. Letters act without Ctrl, which only chooses the tree variant
// of a command where there is one.
class GridKeyMap
{
public:
    explicit GridKeyMap(TGGrid& mappedGrid) : grid(mappedGrid) {}

    // Does what `key` (a virtual key code) stands for; keys outside the map do nothing.
    void Run(UINT key);

private:
    struct Entry
    {
        UINT key;
        void (GridKeyMap::*handler)(bool control);
    };
    static const Entry Entries[];

    void MoveEditSideways(long step);
    void MoveColSelection(long step, UINT scrollCode);
    void MoveRowSelection(long step, UINT scrollCode);
    void GoOnBelowNewRow(long col);
    void OnTabKey(bool control);
    void OnReturnKey(bool control);
    void OnEscapeKey(bool control);
    void OnPageUpKey(bool control);
    void OnPageDownKey(bool control);
    void OnHomeKey(bool control);
    void OnLeftKey(bool control);
    void OnRightKey(bool control);
    void OnUpKey(bool control);
    void OnDownKey(bool control);
    void OnInsertKey(bool control);
    void OnDeleteKey(bool control);
    void OnSelectAllKey(bool control);
    void OnCopyKey(bool control);
    void OnNewKey(bool control);
    void OnSortUpKey(bool control);
    void OnChildKey(bool control);
    void OnSortDownKey(bool control);
    void OnPasteKey(bool control);
    void OnCutKey(bool control);

    TGGrid& grid;
};

} // namespace QuorUiCtr
