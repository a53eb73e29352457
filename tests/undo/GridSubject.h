// A grid that a random user changes, with hooks that veto and change something themselves.
#pragma once

#include "grid/TGTreeGrid.h"
#include "grid/TGUserAction.h"
#include "tests/undo/UndoWorld.h"

namespace quor::test
{

// Numbered, so that it is seen whether it is the same.
struct NumberedData : QuorUiCtr::TGRowData
{
    NumberedData() : number(++last) { ++alive; }
    NumberedData(const NumberedData&) = delete;
    ~NumberedData() override { --alive; }

    int number;
    inline static int last = 0;
    inline static int alive = 0;
};

// All that undoing brings back of a grid.
std::string SnapshotOf(QuorUiCtr::TGGrid& grid);

// The hooks of a random grid of either class.
template <class Grid> class RandomGrid : public Grid
{
public:
    explicit RandomGrid(bool tree) : Grid(tree) {}

    using Grid::ClipSelect;
    using Grid::Paste;

    fuzz::Random* vetoing = nullptr;
    fuzz::Random* mutating = nullptr;

protected:
    bool Agrees() { return vetoing == nullptr || !vetoing->OneIn(12); }
    void Mutate();

    bool OnModified(QuorUiCtr::TGGridCell& cell, CString& text) override
    {
        return Grid::OnModified(cell, text) && Agrees();
    }
    void OnDataChanged() override
    {
        Grid::OnDataChanged();
        Mutate();
    }
    void OnCurChanged() override
    {
        Grid::OnCurChanged();
        Mutate();
    }
    bool OnBeforeInsertCol(long, QuorUiCtr::TGGridCol*&) override { return Agrees(); }
    bool OnBeforeDeleteCol() override { return Agrees(); }
    bool OnBeforeInsertRow(long position, QuorUiCtr::TGGridRow*& row) override
    {
        return Grid::OnBeforeInsertRow(position, row) && Agrees();
    }
    void OnInsertRow(QuorUiCtr::TGGridRow& row) override
    {
        if (row.GetExtendData() == nullptr)
            row.SetExtendData(new NumberedData);
        Grid::OnInsertRow(row);
    }
    bool OnBeforeDeleteRow() override { return Grid::OnBeforeDeleteRow() && Agrees(); }
    bool OnBeforeClip() override { return Grid::OnBeforeClip() && Agrees(); }
    bool OnBeforePaste(long) override { return Agrees(); }
};

} // namespace quor::test
