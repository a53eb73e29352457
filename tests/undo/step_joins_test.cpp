// Which choices of one open edit are one step, and whether a new folder and its name are.
#include "grid/TGGridExtension.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/undo/WatchedTree.h"

#include "module/QuorTexts.h"
#include "tests/undo/UndoWorld.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- Choices in a combo box

// An extension that does something, once, when it is told of a text.
class Reaction : public TGGridExtension
{
public:
    explicit Reaction(TGGrid& grid) { AttachTo(grid); }
    ~Reaction() override { Detach(); }
    std::function<void()> act;

protected:
    void OnTextChanged(TGGridCell&, const CString&) override
    {
        if (const auto once = std::exchange(act, nullptr))
            once();
    }
};

class JoinedChoices : public EditTest
{
protected:
    JoinedChoices()
    {
        EditTest::Make(grid, 3, 3);
        grid.recording = false;
        grid.GetCol(1).SetComboEdit(true);
        grid.comboStrings = [](TGGridCell&, CComboBox& combo) {
            combo.AddString(L"one");
            combo.AddString(L"two");
        };
        AddCols(other, 1);
        stack.Watch(grid);
        stack.Watch(other);
        grid.BeginEditCell(0, 1);
    }
    void Choose(int item)
    {
        auto* const combo = static_cast<CComboBox*>(grid.EditorWindow());
        combo->SetCurSel(item);
        grid.SendMessage(WM_COMMAND, MAKEWPARAM(combo->GetDlgCtrlID(), CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(combo->m_hWnd));
    }
    // Between two choices something happens, after which the second is a step of its own.
    void ExpectStepsAround(const std::function<void()>& between, long steps)
    {
        Choose(1);
        ASSERT_EQ(TextOf(grid, 0, 1), L"two");
        ASSERT_EQ(stack.GetUndoNum(), 1);
        between();
        Choose(0);
        ASSERT_EQ(TextOf(grid, 0, 1), L"one");
        EXPECT_EQ(stack.GetUndoNum(), steps);
        EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(TextOf(grid, 0, 1), L"two");
        EXPECT_EQ(stack.ended, 0);
    }

    EditGrid grid;
    ModelGrid other;
    CountingStack stack;
};

TEST_F(JoinedChoices, AreParted_WhenTheFirstIsForgotten)
{
    ExpectStepsAround([this] { stack.Clear(); }, 1);
    EXPECT_FALSE(stack.CanUndo());
}

TEST_F(JoinedChoices, AreParted_WhenTheFirstIsSaved)
{
    ExpectStepsAround([this] { stack.SetSaved(); }, 2);
    EXPECT_TRUE(stack.IsSaved());
}

TEST_F(JoinedChoices, AreParted_WhenTheViewOfAnotherGridHasChanged)
{
    ExpectStepsAround([this] { other.GetCol(0).SetWidth(44); }, 2);
    EXPECT_EQ(other.GetCol(0).GetWidth(), 100) << "it belongs to what followed";
}

TEST_F(JoinedChoices, AreParted_WhenAnExtensionChangesSomethingElseWithTheSecond)
{
    Reaction reaction(grid);
    ExpectStepsAround([&] { reaction.act = [this] { other.GetCol(0).SetWidth(44); }; }, 2);
    EXPECT_EQ(other.GetCol(0).GetWidth(), 100);
}

TEST_F(JoinedChoices, AreParted_WhenAnExtensionWritesAnotherRow)
{
    Reaction reaction(grid);
    ExpectStepsAround([&] { reaction.act = [this] { grid.GetCell(2, 1).SetText(L"too"); }; }, 2);
    EXPECT_EQ(TextOf(grid, 2, 1), L"2,1");
}

// ---- New folders

class NamedFolders : public WatchedTreeTest
{
protected:
    // A new folder, what happens while its name is being edited, and the name.
    void CreateAndName(const std::function<void()>& meanwhile)
    {
        Begin("a f[x]");
        Select("a");
        tree->CreateNewFolder();
        ASSERT_EQ(UndoName(), L"New folder");
        meanwhile();
        EndLabel(L"mine");
        ASSERT_EQ(Outline().substr(0, 8), "a mine[]");
    }
};

TEST_F(NamedFolders, ThatAreForgotten_LeaveAStepForTheName)
{
    CreateAndName([this] { stack.Clear(); });
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(UndoName(), L"Rename item");
    Undo();
    EXPECT_EQ(Outline(), "a New Folder[] f[x]");
    EXPECT_FALSE(stack.CanUndo());
}

TEST_F(NamedFolders, ThatAreSaved_AreAStepBeforeTheName)
{
    CreateAndName([this] { stack.SetSaved(); });
    EXPECT_EQ(stack.GetUndoNum(), 2);
    EXPECT_FALSE(stack.IsSaved());
    Undo();
    EXPECT_EQ(Outline(), "a New Folder[] f[x]");
    EXPECT_TRUE(stack.IsSaved());
}

TEST_F(NamedFolders, AfterWhichABranchIsOpened_AreAStepBeforeTheName)
{
    CreateAndName([this] { tree->Expand(At("f"), TVE_EXPAND); });
    EXPECT_EQ(stack.GetUndoNum(), 2);
    Undo();
    EXPECT_EQ(Outline(), "a New Folder[] f[x]");
    Undo();
    EXPECT_EQ(Outline(), "a f[x]");
}

TEST_F(NamedFolders, BeforeATransaction_AreAStepOfTheirOwn)
{
    std::optional<TGUndoTransaction> group;
    CreateAndName([&] { group.emplace(stack, L"group"); });
    group.reset();
    EXPECT_EQ(stack.GetUndoNum(), 2);
    EXPECT_EQ(UndoName(), L"group");
    Undo();
    EXPECT_EQ(Outline(), "a New Folder[] f[x]");
}

TEST_F(NamedFolders, WithinAMove_BelongToIt)
{
    Begin("a b c");
    Select("a");
    const std::string before = All();
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage&) {
        owner.answers.clear();
        tree->CreateNewFolder();
        return 0;
    };
    DragByMouse("a", "c", Half::Lower);
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    ASSERT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(UndoName(), L"Move item");
    EXPECT_EQ(tree->GetCount(), 4u);
    Undo();
    EXPECT_EQ(Outline(), "a b c");
}

} // namespace
} // namespace quor::test
