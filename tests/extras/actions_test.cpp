// Extensions are told when a user's action begins and ends, and that once for all that belongs to it.
#include "grid/TGGridExtension.h"
#include "grid/TGUserAction.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Writes down actions, and the changes of rows and texts within.
class ActionLog : public TGGridExtension
{
public:
    std::string log;
    bool leaves = false;

protected:
    void OnActionBegin(TGActionKind kind) override
    {
        log += "(" + std::to_string(static_cast<int>(kind));
        if (leaves)
            Detach();
    }
    void OnActionEnd(TGActionKind kind) override { log += std::to_string(static_cast<int>(kind)) + ")"; }
    void OnTextChanged(TGGridCell&, const CString&) override { log += " t "; }
    void OnRowsInserted(TGGridTreeRow*, long, std::span<TGGridRow* const>) override { log += " + "; }
    void OnRowsRemoved(TGRemovedRows&) override { log += " - "; }
};

class Actions : public testing::Test
{
protected:
    Actions()
    {
        AddCols(grid, 2);
        AddRows(grid, "abcd");
        extension.AttachTo(grid);
    }

    static std::string In(TGActionKind kind, const std::string& changes)
    {
        const std::string number = std::to_string(static_cast<int>(kind));
        return "(" + number + changes + number + ")";
    }

    ModelGrid grid;
    ActionLog extension;
};

TEST_F(Actions, OfTheCommands_HoldTheirChanges)
{
    grid.SelectRow(1, true);
    grid.SelectRow(2, true);
    grid.DoDelete();
    EXPECT_EQ(extension.log, In(TGActionKind::DeleteRows, " -  - "));
    extension.log.clear();
    grid.DoAppendRow(true);
    EXPECT_EQ(extension.log, In(TGActionKind::InsertRows, " + "));
    extension.log.clear();
    grid.DoClip();
    grid.DoPaste();
    EXPECT_EQ(extension.log, In(TGActionKind::CutRows, " - ") + In(TGActionKind::PasteRows, " + "));
}

TEST_F(Actions, WithinAnAction_AreNotToldOf)
{
    {
        const TGUserAction whole(grid, TGActionKind::Fill);
        grid.SelectRow(0, true);
        grid.DoDelete();
        grid.GetCell(0, 0).SetText(L"x");
    }
    EXPECT_EQ(extension.log, In(TGActionKind::Fill, " -  t "));
}

TEST_F(Actions, OfAProgramThatCallsOperations_AreNone)
{
    grid.DelRow(0);
    EXPECT_EQ(extension.log, " - ");
}

TEST_F(Actions, ThatExtensionsLeaveOrJoin_EndForThoseThatAreThere)
{
    extension.leaves = true;
    {
        const TGUserAction action(grid, TGActionKind::Fill);
        ActionLog late;
        late.AttachTo(grid);
        {
            const TGUserAction inner(grid, TGActionKind::Empty);
        }
        EXPECT_EQ(late.log, In(TGActionKind::Empty, ""));
    }
    const TGUserAction alone(grid, TGActionKind::Fill);
    EXPECT_EQ(extension.log, "(" + std::to_string(static_cast<int>(TGActionKind::Fill)));
}

} // namespace
} // namespace quor::test
