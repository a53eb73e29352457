// A grid's model done the simple way, with vectors and one step at a time, for random tests to compare with.
#pragma once

#include <deque>
#include <string>
#include <vector>

namespace quor::test
{

struct ReferenceRow
{
    int id = 0;
    std::vector<std::string> cells;
    ReferenceRow* parent = nullptr;
    std::vector<ReferenceRow*> children;
    bool unfolded = false;
    long index = -1;
};

struct ReferenceCol
{
    std::string name;
    long left = 0;
    long right = 0;
};

class ReferenceGrid
{
public:
    ReferenceRow* NewRow(int id);

    void InsertRow(long i, ReferenceRow* row);
    void DelRow(long i);
    void DelRowEx(long i);
    void MoveRow(long from, long to);
    void SetRowNum(long n, int& nextId);
    void Clear();

    void InsertCol(long i, const std::string& name, long width);
    void DelCol(long i);
    void MoveCol(long from, long to);

    void SelectRow(long i, bool select);
    void SelectCol(long i, bool select);
    void SelectAll();
    void UnSelect();

    void InsertChild(ReferenceRow* parent, long k, ReferenceRow* child);
    void DelChild(ReferenceRow* parent, long k);
    void Fold(ReferenceRow* row);
    void UnFold(ReferenceRow* row);
    void FoldAll(ReferenceRow* row);
    void UnFoldAll(ReferenceRow* row);
    void ClearChild(ReferenceRow* row);
    // Sorts by the texts of the columns `keys`.
    void ArrangeChild(ReferenceRow* row, bool ascending, const std::vector<long>& keys);
    bool FindAndSel(const std::string& text, long col, bool tree);

    // "rows ... | cols ... | sel ... | cur r,c"
    std::string Describe() const;

    std::vector<ReferenceRow*> rows;
    std::vector<ReferenceCol> cols;
    std::vector<long> rowSel;
    std::vector<long> colSel;
    long curRow = -1;
    long curCol = -1;

private:
    void CurChanged();
    void Renumber();
    void RemoveSlot(long i);
    long Position(const ReferenceRow* row) const;
    bool IsShown(const ReferenceRow* row) const { return row->index != -1; }
    long RowNum(const ReferenceRow* row) const;
    template <class Change> static void ForTree(ReferenceRow* row, Change change);
    ReferenceRow* FindBelow(ReferenceRow* row, const std::string& text, std::size_t col);
    void SelectOnly(ReferenceRow* row);

    std::deque<ReferenceRow> made;
};

// A row with its unfold flag, its cells and, in brackets, its children: "5+[a b](6[c d])".
std::string DescribeRow(const ReferenceRow& row);

} // namespace quor::test
