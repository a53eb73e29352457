// Trees of rows are copied, with or without the host data.
//
// A step that runs hooks may delete the row itself: nothing of it is touched afterwards until its watch says
// that it still exists.
#include "grid/TGGridTreeRow.h"

#include "grid/model/RowWatch.h"

#include <memory>
#include <utility>

namespace QuorUiCtr
{

TGGridTreeRow& TGGridTreeRow::operator=(TGGridTreeRow& source)
{
    OwnedRows copies = CopyChildren(source);
    const RowWatch self(GetGrid(), this);
    AssignRow(source);
    if (self.IsAlive())
        InsertChildren(GetChildNum(), copies);
    return *this;
}

// The hooks may delete either row; the host data is in safety meanwhile, and goes back when memory is short.
TGGridTreeRow& TGGridTreeRow::operator<<(TGGridTreeRow& source)
{
    OwnedRows copies = CopyChildren(source);
    std::unique_ptr<TGRowData> data(&source != this ? source.ReleaseExtendData() : nullptr);
    MoveData(source, copies, false);
    const RowWatch self(GetGrid(), this);
    const RowWatch origin(GetGrid(), &source);
    try
    {
        AssignRow(source);
        if (self.IsAlive())
            InsertChildren(GetChildNum(), copies);
    }
    catch (...)
    {
        if (origin.IsAlive())
        {
            MoveData(source, copies, true);
            if (&source != this)
                source.extendData = data.release();
        }
        throw;
    }
    if (self.IsAlive() && &source != this)
        SetExtendData(data.release());
    return *this;
}

TGGridTreeRow::OwnedRows TGGridTreeRow::CopyChildren(const TGGridTreeRow& source)
{
    OwnedRows copies;
    for (TGGridTreeRow* original : source.children)
    {
        if (original == nullptr)
            continue;
        copies.push_back(std::make_unique<TGGridTreeRow>(GetGrid()));
        *copies.back() = *original;
    }
    return copies;
}

void TGGridTreeRow::MoveData(const TGGridTreeRow& source, const OwnedRows& copies, bool back)
{
    auto copy = copies.begin();
    for (TGGridTreeRow* original : source.children)
    {
        if (original == nullptr)
            continue;
        // Copies that have been taken over already are not here any more.
        if (copy == copies.end() || *copy == nullptr)
            return;
        back ? MoveData(**copy, *original) : MoveData(*original, **copy);
        ++copy;
    }
}

// Of two rows with the same offspring.
void TGGridTreeRow::MoveData(TGGridTreeRow& from, TGGridTreeRow& to)
{
    to.SetExtendData(from.ReleaseExtendData());
    auto child = to.children.begin();
    for (TGGridTreeRow* original : from.children)
    {
        while (child != to.children.end() && *child == nullptr)
            ++child;
        if (original == nullptr || child == to.children.end())
            continue;
        MoveData(*original, **child);
        ++child;
    }
}

// The style word carries the unfold flag, which must go on telling what the grid shows.
void TGGridTreeRow::AssignRow(TGGridTreeRow& source)
{
    const bool wasFold = IsFold();
    TGGridRow::operator=(source);
    if (IsFold() == wasFold || !IsVisible())
        return;
    if (IsFold())
    {
        Fold();
        return;
    }
    // Set when the children are shown, which there may be no memory for.
    SetUnFoldFlag(false);
    UnFold();
}

} // namespace QuorUiCtr
