// The grid's style word: every flag's bit, reader and writer.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Writers and readers are called directly: those of a base class through pointers to members look misaligned
// to the checked variant.
struct FlagRow
{
    const char* name;
    int bit;
    void (*write)(TGGrid&, bool);
    bool (*read)(const TGGrid&);
    bool setWhen;      // the argument that sets the bit
    bool readsWhenSet; // what the reader says when the bit is set
    int otherBits;     // bits of other flags that make the reader say the same
};

const std::vector<FlagRow>& Flags()
{
    static const std::vector<FlagRow> flags = {
        {"ReadOnly", 0x0001, [](TGGrid& grid, bool on) { grid.SetReadOnly(on); },
         [](const TGGrid& grid) { return grid.IsReadOnly(); }, true, true, 0},
        {"RowFixLength", 0x0002, [](TGGrid& grid, bool on) { grid.SetRowFixLength(on); },
         [](const TGGrid& grid) { return grid.IsRowFixLength(); }, true, true, 0x0001},
        {"ColFixLength", 0x0004, [](TGGrid& grid, bool on) { grid.SetColFixLength(on); },
         [](const TGGrid& grid) { return grid.IsColFixLength(); }, true, true, 0x0001},
        {"RowSel", 0x0008, [](TGGrid& grid, bool on) { grid.SetRowSel(on); },
         [](const TGGrid& grid) { return grid.IsRowSel(); }, false, false, 0},
        {"ColSel", 0x0010, [](TGGrid& grid, bool on) { grid.SetColSel(on); },
         [](const TGGrid& grid) { return grid.IsColSel(); }, false, false, 0},
        {"SortEnable", 0x0020, [](TGGrid& grid, bool on) { grid.SetSortEnable(on); },
         [](const TGGrid& grid) { return grid.IsSortEnable(); }, false, false, 0x0101},
        {"ColFixWidth", 0x0040, [](TGGrid& grid, bool on) { grid.SetColFixWidth(on); },
         [](const TGGrid& grid) { return grid.IsColFixWidth(); }, true, true, 0},
        {"ColPosFix", 0x0080, [](TGGrid& grid, bool on) { grid.SetColPosFix(on); },
         [](const TGGrid& grid) { return grid.IsColPosFix(); }, true, true, 0x0001},
        {"RowPosFix", 0x0100, [](TGGrid& grid, bool on) { grid.SetRowPosFix(on); },
         [](const TGGrid& grid) { return grid.IsRowPosFix(); }, true, true, 0x0001},
        {"TreeLine", 0x0200, [](TGGrid& grid, bool on) { grid.SetTreeLine(on); },
         [](const TGGrid& grid) { return grid.IsNeedTreeLine(); }, false, false, 0},
        {"SingleSelRow", 0x0400, [](TGGrid& grid, bool on) { grid.SetSingleSelRow(on); },
         [](const TGGrid& grid) { return grid.IsSingleSelRow(); }, true, true, 0},
        {"NoPaste", 0x0800, [](TGGrid& grid, bool on) { grid.SetNoPaste(on); },
         [](const TGGrid& grid) { return grid.IsNoPaste(); }, true, true, 0},
        {"LabelSort", 0x1000, [](TGGrid& grid, bool on) { grid.SetLabelSort(on); },
         [](const TGGrid& grid) { return grid.IsLabelSort(); }, true, true, 0},
        {"FlatButton", 0x2000, [](TGGrid& grid, bool on) { grid.SetFlatButton(on); },
         [](const TGGrid& grid) { return grid.IsFlatButton(); }, true, true, 0},
        {"NoAppendButton", 0x4000, [](TGGrid& grid, bool on) { grid.SetNoAppendButton(on); },
         [](const TGGrid& grid) { return grid.IsNoAppendButton(); }, true, true, 0x0003},
        {"NoDefaultMenu", 0x8000, [](TGGrid& grid, bool on) { grid.SetNoDefaultMenu(on); },
         [](const TGGrid& grid) { return grid.IsNoDefaultMenu(); }, true, true, 0},
    };
    return flags;
}

TEST(GridStyle, EveryWriterSetsAndClearsItsOwnBitOnly)
{
    for (const FlagRow& flag : Flags())
    {
        SCOPED_TRACE(flag.name);
        TGGrid grid;
        flag.write(grid, flag.setWhen);
        EXPECT_EQ(grid.GetStyle(), flag.bit);
        flag.write(grid, !flag.setWhen);
        EXPECT_EQ(grid.GetStyle(), 0);
        grid.SetStyle(0xFFFF);
        flag.write(grid, !flag.setWhen);
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
            EXPECT_EQ(flag.read(grid), implied ? flag.readsWhenSet : !flag.readsWhenSet);
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
