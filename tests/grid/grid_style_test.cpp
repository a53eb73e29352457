// The grid's style word: every flag's bit, reader and writer.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

struct FlagRow
{
    const char* name;
    int bit;
    void (TGGrid::*write)(bool);
    bool (TGGrid::*read)() const;
    bool setWhen;      // the argument that sets the bit
    bool readsWhenSet; // what the reader says when the bit is set
    int otherBits;     // bits of other flags that make the reader say the same
};

const std::vector<FlagRow>& Flags()
{
    static const std::vector<FlagRow> flags = {
        {"ReadOnly", 0x0001, &TGGrid::SetReadOnly, &TGGrid::IsReadOnly, true, true, 0},
        {"RowFixLength", 0x0002, &TGGrid::SetRowFixLength, &TGGrid::IsRowFixLength, true, true, 0x0001},
        {"ColFixLength", 0x0004, &TGGrid::SetColFixLength, &TGGrid::IsColFixLength, true, true, 0x0001},
        {"RowSel", 0x0008, &TGGrid::SetRowSel, &TGGrid::IsRowSel, false, false, 0},
        {"ColSel", 0x0010, &TGGrid::SetColSel, &TGGrid::IsColSel, false, false, 0},
        {"SortEnable", 0x0020, &TGGrid::SetSortEnable, &TGGrid::IsSortEnable, false, false, 0x0101},
        {"ColFixWidth", 0x0040, &TGGrid::SetColFixWidth, &TGGrid::IsColFixWidth, true, true, 0},
        {"ColPosFix", 0x0080, &TGGrid::SetColPosFix, &TGGrid::IsColPosFix, true, true, 0x0001},
        {"RowPosFix", 0x0100, &TGGrid::SetRowPosFix, &TGGrid::IsRowPosFix, true, true, 0x0001},
        {"TreeLine", 0x0200, &TGGrid::SetTreeLine, &TGGrid::IsNeedTreeLine, false, false, 0},
        {"SingleSelRow", 0x0400, &TGGrid::SetSingleSelRow, &TGGrid::IsSingleSelRow, true, true, 0},
        {"NoPaste", 0x0800, &TGGrid::SetNoPaste, &TGGrid::IsNoPaste, true, true, 0},
        {"LabelSort", 0x1000, &TGGrid::SetLabelSort, &TGGrid::IsLabelSort, true, true, 0},
        {"FlatButton", 0x2000, &TGGrid::SetFlatButton, &TGGrid::IsFlatButton, true, true, 0},
        {"NoAppendButton", 0x4000, &TGGrid::SetNoAppendButton, &TGGrid::IsNoAppendButton, true, true, 0x0003},
        {"NoDefaultMenu", 0x8000, &TGGrid::SetNoDefaultMenu, &TGGrid::IsNoDefaultMenu, true, true, 0},
    };
    return flags;
}

TEST(GridStyle, EveryWriterSetsAndClearsItsOwnBitOnly)
{
    for (const FlagRow& flag : Flags())
    {
        SCOPED_TRACE(flag.name);
        TGGrid grid;
        (grid.*flag.write)(flag.setWhen);
        EXPECT_EQ(grid.GetStyle(), flag.bit);
        (grid.*flag.write)(!flag.setWhen);
        EXPECT_EQ(grid.GetStyle(), 0);
        grid.SetStyle(0xFFFF);
        (grid.*flag.write)(!flag.setWhen);
        EXPECT_EQ(grid.GetStyle(), 0xFFFF & ~flag.bit);
    }
}

TEST(GridStyle, EveryReaderFollowsItsBitAndTheBitsThatImplyIt)
{
    for (const FlagRow& flag : Flags())
        for (int bit = 1; bit <= 0x8000; bit <<= 1)
        {
            SCOPED_TRACE(std::string(flag.name) + " with bit " + std::to_string(bit));
            TGGrid grid;
            grid.SetStyle(bit);
            const bool implied = (bit & (flag.bit | flag.otherBits)) != 0;
            EXPECT_EQ((grid.*flag.read)(), implied ? flag.readsWhenSet : !flag.readsWhenSet);
        }
}

TEST(GridStyle, SetStyleOnlyAddsBits)
{
    TGGrid grid;
    grid.SetStyle(0x0008);
    EXPECT_FALSE(grid.IsRowSel());
    grid.SetStyle(0);
    EXPECT_EQ(grid.GetStyle(), 0x0008);
    grid.SetStyle(0x0400);
    EXPECT_EQ(grid.GetStyle(), 0x0408);
}

TEST(GridStyle, ANewGridSelectsSortsDrawsTreeLinesAndShowsTheNewRowLine)
{
    TGGrid grid;
    EXPECT_EQ(grid.GetStyle(), 0);
    EXPECT_TRUE(grid.IsRowSel());
    EXPECT_TRUE(grid.IsColSel());
    EXPECT_TRUE(grid.IsSortEnable());
    EXPECT_TRUE(grid.IsNeedTreeLine());
    EXPECT_FALSE(grid.IsNoAppendButton());
}

TEST(GridStyle, AReadOnlyGridFixesLengthsAndPositionsButNotWidths)
{
    TGGrid grid;
    grid.SetReadOnly(true);
    EXPECT_TRUE(grid.IsRowFixLength());
    EXPECT_TRUE(grid.IsColFixLength());
    EXPECT_TRUE(grid.IsRowPosFix());
    EXPECT_TRUE(grid.IsColPosFix());
    EXPECT_TRUE(grid.IsNoAppendButton());
    EXPECT_FALSE(grid.IsColFixWidth());
    EXPECT_FALSE(grid.IsSortEnable());
    EXPECT_EQ(grid.GetStyle(), 0x0001);
}

TEST(GridStyle, FixedRowPositionsSwitchSortingOff)
{
    TGGrid grid;
    grid.SetRowPosFix(true);
    EXPECT_FALSE(grid.IsSortEnable());
}

} // namespace
} // namespace quor::test
