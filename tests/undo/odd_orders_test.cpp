// Undo where things come in an odd order: hooks of the stack that change and end, several grids, rows that go
// for good, drags and selections of several ranges.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "grid/extras/TGHeaderSort.h"
#include "tests/grid/EditGrid.h"
#include "tests/support/FailingNew.h"
#include "tests/support/Input.h"
#include "tests/undo/ActingEdit.h"
#include "tests/undo/GridSteps.h"

#include <new>
#include <string_view>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A stack whose hooks a test scripts.
class ActingStack : public TGUndoStack
{
public:
    std::function<void()> undoing;
    std::function<void()> undone;

protected:
    bool OnUndoing(const CString&) override
    {
        if (undoing)
            undoing();
        return true;
    }
    void OnUndone(const CString&) override
    {
        if (undone)
            undone();
    }
};

class OddOrders : public EditTest
{
protected:
    OddOrders()
    {
        EditTest::Make(grid, 4, 3);
        grid.recording = false;
    }
    // A second grid, on top of the first one.
    void MakeOther()
    {
        EditTest::Make(other, 2, 2);
        other.recording = false;
    }
    static void Type(TGGrid& typed, long row, long col, const wchar_t* text)
    {
        const TGUserAction action(typed, TGActionKind::Type);
        typed.GetCell(row, col).SetText(text);
    }

    ActingStack stack;
    EditGrid grid;
    EditGrid other;
};

// ---- Hooks of the stack

TEST_F(OddOrders, WhatOnUndoneChanges_IsNoStep)
{
    stack.Watch(grid);
    Type(grid, 0, 0, L"1");
    stack.undone = [this] { grid.GetCell(1, 1).SetText(L"hook"); };
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.GetRedoNum(), 1);
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(TextOf(grid, 0, 0), L"1");
    EXPECT_EQ(TextOf(grid, 1, 1), L"1,1");
}

TEST_F(OddOrders, AControlThatLeavesWhenAnotherIsAboutToBeReverted_IsLeftOut)
{
    MakeOther();
    ASSERT_TRUE(Activate(host));
    stack.Watch(grid);
    stack.Watch(other);
    {
        const TGUndoTransaction both(stack, L"both");
        grid.GetCell(0, 0).SetText(L"1");
        other.GetCell(0, 0).SetText(L"2");
    }
    int gone = 0;
    grid.makeEditor = [&](TGGridCell& cell) -> TGCellCtrl* {
        auto* const made = new ActingEdit(cell);
        made->act = [&] { gone += stack.Unwatch(other) ? 1 : 0; };
        return made;
    };
    // The edit that the question has opened is cancelled.
    stack.undoing = [this] { grid.BeginEditCell(1, 1); };
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(gone, 1);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    EXPECT_EQ(TextOf(other, 0, 0), L"2");
}

TEST_F(OddOrders, Undo_FromWithinAHookOfAnAction_IsRefused)
{
    MakeOther();
    stack.Watch(grid);
    stack.Watch(other);
    Type(other, 0, 0, L"before");
    int refused = 0;
    grid.dataChanged = [&] { refused += stack.Undo() ? 0 : 1; };
    grid.SelectRow(1, true);
    grid.DoDelete();
    EXPECT_EQ(refused, 1);
    EXPECT_EQ(TextOf(other, 0, 0), L"before");
    grid.dataChanged = nullptr;
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(grid.GetRowNum(), 4);
}

TEST_F(OddOrders, AWindowThatGoesAmidAPaste_LeavesAStep)
{
    TGClipboard clipboard(grid);
    stack.Watch(grid);
    grid.modifiedText = [this](TGGridCell&, CString&) {
        grid.DestroyWindow();
        return true;
    };
    EXPECT_EQ(clipboard.PasteText(L"a\tb").GetDone(), 2);
    EXPECT_EQ(TextOf(grid, 4, 0), L"a");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(grid.GetRowNum(), 4);
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(TextOf(grid, 4, 1), L"b");
}

TEST_F(OddOrders, HooksOfAnUndo_MayDestroyTheWindow)
{
    for (std::function<void()> EditGrid::*const hook : {&EditGrid::curChanged, &EditGrid::dataChanged})
    {
        EditGrid watched;
        EditTest::Make(watched, 4, 3);
        stack.Watch(watched);
        watched.SelectRow(1, true);
        watched.DoDelete();
        watched.*hook = [&watched] { watched.DestroyWindow(); };
        EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(watched.GetSafeHwnd(), nullptr);
        EXPECT_EQ(watched.GetRowNum(), 4);
        EXPECT_TRUE(stack.Redo());
        EXPECT_EQ(watched.GetRowNum(), 3);
    }
}

TEST_F(OddOrders, HooksOfAnUndo_MayEndAnyWatch)
{
    MakeOther();
    for (std::function<void()> EditGrid::*const hook : {&EditGrid::curChanged, &EditGrid::dataChanged})
        for (EditGrid* const leaving : {&grid, &other})
        {
            stack.Watch(grid);
            stack.Watch(other);
            {
                const TGUndoTransaction both(stack, L"both");
                grid.GetCell(0, 0).SetText(L"1");
                other.GetCell(0, 0).SetText(L"2");
            }
            grid.*hook = [&] { stack.Unwatch(*leaving); };
            EXPECT_TRUE(stack.Undo());
            grid.*hook = nullptr;
            EXPECT_FALSE(stack.IsWatching(*leaving));
            EXPECT_FALSE(grid.IsUpdating());
            EXPECT_FALSE(other.IsUpdating());
            EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
            EXPECT_EQ(TextOf(other, 0, 0), L"0,0");
            stack.Unwatch(grid);
            stack.Unwatch(other);
        }
}

// ---- Rows that go for good

TEST_F(OddOrders, ACellThatHasGoneSinceItsEdit_IsNotJoined)
{
    stack.Watch(grid);
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"one"); };
    grid.BeginEditCell(0, 1);
    auto* const combo = static_cast<CComboBox*>(grid.EditorWindow());
    combo->SetCurSel(0);
    grid.SendMessage(WM_COMMAND, MAKEWPARAM(combo->GetDlgCtrlID(), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(combo->m_hWnd));
    ASSERT_EQ(stack.GetUndoNum(), 1);
    {
        const TGUndoPause pause(stack);
        grid.CancelEditCell();
        const TGGridRow* const gone = &grid.GetRow(0);
        grid.DelRow(0);
        // Another row, soon at the same address.
        grid.InsertRow(0, nullptr);
        for (int i = 0; &grid.GetRow(0) != gone && i < 1000; ++i)
            grid.InsertRow(0, nullptr);
    }
    Type(grid, 0, 1, L"typed");
    EXPECT_EQ(stack.GetUndoNum(), 2);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(TextOf(grid, 0, 1), L"");
}

// ---- Memory

TEST_F(OddOrders, ATransactionThatGetsNoMemory_HasNotBegun)
{
    stack.Watch(grid);
    Type(grid, 0, 0, L"1");
    FailingNew::FailAt(1);
    EXPECT_THROW(const TGUndoTransaction step(stack, L"step"), std::bad_alloc);
    FailingNew::FailAt(0);
    EXPECT_TRUE(stack.Undo());
}

// ---- The saved point

TEST_F(OddOrders, AControlThatCameModified_IsNotCalledSaved)
{
    stack.Watch(grid);
    MakeOther();
    Type(grid, 0, 0, L"1");
    other.SetModify(true);
    stack.Watch(other);
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(other.IsModified());
    EXPECT_FALSE(stack.IsSaved());
}

TEST_F(OddOrders, ASavedPointWhoseStepWasDropped_IsNotReached)
{
    stack.Watch(grid);
    stack.SetLimits(2, 0);
    Type(grid, 0, 0, L"1");
    stack.SetSaved();
    for (const wchar_t* text : {L"2", L"3", L"4"})
        Type(grid, 0, 0, text);
    while (stack.Undo())
        EXPECT_FALSE(stack.IsSaved());
    EXPECT_EQ(TextOf(grid, 0, 0), L"2");
    EXPECT_TRUE(grid.IsModified());
}

TEST_F(OddOrders, ASavedPointBelowTheFirstStep_IsReached)
{
    stack.Watch(grid);
    stack.SetLimits(2, 0);
    Type(grid, 0, 0, L"1");
    stack.SetSaved();
    for (const wchar_t* text : {L"2", L"3"})
        Type(grid, 0, 0, text);
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(stack.IsSaved());
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(OddOrders, AStepBeyondTheLimit_TakesTheHistoryAlong_AndNothingElse)
{
    stack.Watch(grid);
    Type(grid, 0, 0, L"1");
    stack.SetLimits(0, 100'000);
    Type(grid, 0, 1, CString(L'x', 1'000'000));
    Type(grid, 0, 1, L"short");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_LT(stack.GetBytes(), 100'000U);
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(TextOf(grid, 0, 1), L"short");
    Type(grid, 0, 2, L"small");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(TextOf(grid, 0, 2), L"0,2");
}

TEST_F(OddOrders, AnUndoneStepBeyondTheLimit_LeavesTheOlderOnes)
{
    stack.Watch(grid);
    stack.SetLimits(0, 100'000);
    Type(grid, 0, 0, L"1");
    grid.SetRowNum(1000);
    EXPECT_EQ(stack.GetUndoNum(), 2);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(stack.GetRedoNum(), 0) << "the rows that are kept are too much";
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
}

// ---- Texts with any characters

CString WithNul()
{
    return CString(L"one\0two", 7);
}

bool IsWithNul(const CString& text)
{
    return std::wstring_view(text.GetString(), static_cast<std::size_t>(text.GetLength())) ==
           std::wstring_view(L"one\0two", 7);
}

// Types as extensions do.
struct Typist : TGGridExtension
{
    explicit Typist(TGGrid& typed) { AttachTo(typed); }
    ~Typist() override { Detach(); }
    void Type(TGGridCell& cell, const CString& text) const { TryTypeInto(cell, text); }
};

TEST_F(OddOrders, ATextWithANul_ComesBackWhole)
{
    stack.Watch(grid);
    const Typist typist(grid);
    typist.Type(grid.GetCell(0, 0), WithNul());
    typist.Type(grid.GetCell(0, 0), CString(L"one\0other", 9));
    EXPECT_EQ(stack.GetUndoNum(), 2) << "what differs behind the NUL is a change";
    typist.Type(grid.GetCell(0, 0), L"plain");
    stack.Undo();
    EXPECT_EQ(grid.GetCell(0, 0).GetText().GetLength(), 9);
    stack.Undo();
    EXPECT_TRUE(IsWithNul(grid.GetCell(0, 0).GetText()));
    stack.Undo();
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    stack.Redo();
    EXPECT_TRUE(IsWithNul(grid.GetCell(0, 0).GetText()));
}

TEST_F(OddOrders, ATextWithANul_ComesBackWithItsColumn)
{
    stack.Watch(grid);
    grid.GetCell(1, 1).GetText() = WithNul();
    grid.DelCol(1);
    stack.Undo();
    EXPECT_TRUE(IsWithNul(grid.GetCell(1, 1).GetText()));
    EXPECT_EQ(TextOf(grid, 2, 1), L"2,1");
}

// ---- Other extensions

TEST_F(OddOrders, ASortByCaptionsGoesBack_AndTheArrowsGo)
{
    TGHeaderSort sorting(grid);
    stack.Watch(grid);
    const std::string before = Texts(grid);
    EXPECT_TRUE(sorting.Sort({{0, false}}));
    const std::string sorted = Texts(grid);
    EXPECT_EQ(sorted, "3,0 2,0 1,0 0,0");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), before);
    EXPECT_TRUE(sorting.GetKeys().empty());
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(Texts(grid), sorted);
    EXPECT_TRUE(sorting.GetKeys().empty());
    // Sorted anew, the order to go back to is the one of now.
    EXPECT_TRUE(sorting.Sort({{0, true}}));
    EXPECT_TRUE(sorting.Sort({}));
    EXPECT_EQ(Texts(grid), sorted);
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), sorted);
}

// ---- What is shown

class OddViews : public OddOrders
{
protected:
    OddViews()
    {
        cursor.AttachTo(grid);
        stack.Watch(grid);
        Activate(host);
        grid.SetFocus();
        PumpPending();
    }
    std::string Ranges() const
    {
        std::string text;
        for (const TGCellRange& range : cursor.GetRanges())
            text += std::to_string(range.top) + "," + std::to_string(range.left) + "-" +
                    std::to_string(range.bottom) + "," + std::to_string(range.right) + " ";
        return text + "at " + std::to_string(cursor.GetRow()) + "," + std::to_string(cursor.GetCol());
    }

    TGCellCursor cursor;
};

TEST_F(OddViews, SeveralRangesComeBack_WithTheCurrentCell)
{
    cursor.SelectRange({0, 0, 0, 1});
    cursor.SelectRange({1, 1, 3, 2}, true);
    const std::string before = Ranges();
    ASSERT_EQ(before, "0,0-0,1 1,1-3,2 at 3,2");
    cursor.EmptyRanges();
    cursor.MoveTo(0, 2);
    stack.Undo();
    EXPECT_EQ(Ranges(), before);
    cursor.MoveTo(0, 2);
    stack.Redo();
    EXPECT_EQ(Ranges(), before);
}

// ---- Drags

class OddDrags : public OddOrders
{
protected:
    OddDrags()
    {
        stack.Watch(grid);
        Activate(host);
        PumpPending();
    }
};

TEST_F(OddDrags, UndoWhileAColumnIsResized_EndsTheDrag)
{
    grid.InsertCol(0, L"new", 60);
    const HWND header = grid.GetDlgItem(103)->m_hWnd;
    SendMouse(header, WM_LBUTTONDOWN, CPoint(59, 10), MK_LBUTTON);
    SendMouse(header, WM_MOUSEMOVE, CPoint(90, 10), MK_LBUTTON);
    ASSERT_EQ(::GetCapture(), header);
    EXPECT_TRUE(stack.Undo());
    SendMouse(header, WM_LBUTTONUP, CPoint(90, 10));
    EXPECT_EQ(grid.GetCol(0).GetWidth(), 100);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.GetRedoNum(), 1);
}

} // namespace
} // namespace quor::test
