// TGClipboard::Copied: the cells of a copy as they were, read when somebody wants them.
#pragma once

#include "grid/extras/TGClipboard.h"
#include "rules/CellBlocks.h"
#include "rules/CellTable.h"

#include <unordered_map>
#include <unordered_set>

namespace QuorUiCtr
{

// Notes where the cells are, because reading a million texts takes longer than a key press may; the texts are
// taken at once when they are few, when they are wanted, and before rows or columns go. The old texts of
// cells that change are kept aside.
class TGClipboard::Copied
{
public:
    // With `whole`, the cells are those of rows as a whole, and folded tree rows bring their offspring.
    explicit Copied(bool whole) : hasWholeRows(whole) {}

    // Adds the cells of rows and columns that there are.
    void AddPart(const TGClipboard& clipboard, const CellPart& part);
    // Called when all are there.
    void Close();
    std::size_t GetCellNum() const { return cellNum; }

    // Takes all texts.
    void Freeze();
    void NoteText(const TGGridCell& cell, const CString& oldText);
    void NoteDeleted(const TGGridRow* row);

    // Hands the cells over as they were copied. Rows of a tree that were copied as a whole have marks.
    void WriteTo(CellSink& sink, bool withCaptions) const;

private:
    struct Part
    {
        std::size_t firstRow;
        std::vector<TGGridCol*> cols;
    };

    void AddTrees(std::size_t first);
    void AddTree(TGGridRow& row, int level);
    // Calls `take` with the text of each cell, and the other two around each row, whose place `begin` gets.
    template <class Begin, class Take, class End> void Walk(Begin begin, Take take, End end) const;
    const CString& CopiedText(TGGridRow* row, long col) const;

    bool hasWholeRows;
    std::vector<CString> captions;
    std::vector<Part> parts;
    // Null for a row that went without a word.
    std::vector<TGGridRow*> rows;
    // Of each row when they are tree rows as a whole, else none.
    std::vector<RowMark> marks;
    std::size_t cellNum = 0;
    // The texts that cells had when they changed, by cell.
    std::unordered_map<const TGGridCell*, CString> oldTexts;
    // The rows, as soon as one is looked for.
    std::unordered_set<const TGGridRow*> known;
    bool isFrozen = false;
    // In the order of rows and columns.
    std::vector<CString> texts;
};

} // namespace QuorUiCtr
