// GridKeyMap: what each key does in the grid.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// The key map as a table of keys and what they do. Letters act without Ctrl, which only chooses the tree
// variant of a command where there is one.
class GridKeyMap
{
public:
    explicit GridKeyMap(TGGrid& mappedGrid) : grid(mappedGrid) {}

    // Does what `key` (a virtual key code) stands for; keys outside the map do nothing.
    void Run(UINT key);

private:
    using Action = void (GridKeyMap::*)();
    struct Entry
    {
        UINT key;
        Action plain;
        Action withControl;
    };
    static const Entry Entries[];

    void EditNextCell();
    void EditOrGoDown();
    void Cancel();
    void GoLeft();
    void GoRight();
    void GoUp();
    void GoDown();
    void MoveEditSideways(long step);
    void MoveColSelection(long step, UINT scrollCode);
    void MoveRowSelection(long step, UINT scrollCode);
    void GoOnBelowNewRow(long col);
    void ScrollPageUp();
    void ScrollPageDown();
    void ScrollHome();
    void Insert();
    void InsertTree();
    void New();
    void NewTree();
    void AppendChild();
    void Delete();
    void SelectAll();
    void Copy();
    void Cut();
    void Paste();
    void PasteChild();
    void SortUp();
    void SortDown();

    TGGrid& grid;
};

} // namespace QuorUiCtr
