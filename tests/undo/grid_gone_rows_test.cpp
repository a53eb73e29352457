// Steps with rows that are gone for good: they are not even offered to the program.
#include "tests/undo/GridSteps.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

// Refuses every step, and counts for how many it was asked.
class AskedStack : public TGUndoStack
{
public:
    int asked = 0;
    int ended = 0;

protected:
    bool OnUndoing(const CString&) override
    {
        ++asked;
        return false;
    }
    void OnHistoryEnded() override { ++ended; }
};

class GoneRows : public GridSteps
{
protected:
    GoneRows()
    {
        stack.Unwatch(grid);
        noted.Watch(grid);
    }
    ~GoneRows() override { noted.Unwatch(grid); }

    void DeleteForGood(long row)
    {
        const TGUndoPause pause(noted);
        grid.DelRow(row);
    }
    void ExpectTheEndUnasked()
    {
        EXPECT_FALSE(noted.Undo());
        EXPECT_EQ(noted.asked, 0);
        EXPECT_EQ(noted.ended, 1);
        EXPECT_FALSE(noted.CanUndo());
    }

    AskedStack noted;
};

TEST_F(GoneRows, StepsWithoutThem_AreAskedFor)
{
    grid.MoveRow(0, 3);
    EXPECT_FALSE(noted.Undo());
    EXPECT_EQ(noted.asked, 1);
    EXPECT_EQ(noted.ended, 0);
}

TEST_F(GoneRows, MoveOfARowThatIsGone_EndsTheHistory)
{
    grid.MoveRow(0, 3);
    DeleteForGood(2);
    ExpectTheEndUnasked();
}

TEST_F(GoneRows, MoveFromBeforeARowThatIsGone_EndsTheHistory)
{
    grid.MoveRow(0, 3);
    DeleteForGood(0);
    ExpectTheEndUnasked();
}

TEST_F(GoneRows, TextOfARowThatIsGone_EndsTheHistory)
{
    Type(1, 0, L"1");
    DeleteForGood(1);
    ExpectTheEndUnasked();
}

TEST_F(GoneRows, RowThatCameInAndIsGone_EndsTheHistory)
{
    grid.InsertRow(1, new TGGridRow(grid));
    DeleteForGood(1);
    ExpectTheEndUnasked();
}

} // namespace
