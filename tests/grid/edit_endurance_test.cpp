// Very many edits leave nothing behind.
#include "tests/grid/EditGrid.h"

#include "tests/guard/Guard.h"
#include "tests/support/GuiHandles.h"
#include "tests/support/Rounds.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// The blocks in use on all heaps of the process.
size_t CountHeapBlocks()
{
    HANDLE heaps[64];
    const DWORD number = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    size_t blocks = 0;
    for (DWORD i = 0; i < number; ++i)
    {
        ::HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heaps[i], &entry))
            blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
        ::HeapUnlock(heaps[i]);
    }
    return blocks;
}

int CountChildren(CWnd& parent)
{
    int number = 0;
    for (CWnd* child = parent.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
        ++number;
    return number;
}

struct Residue
{
    GuiHandles handles;
    int children;
    size_t heapBlocks;
    size_t guardedBlocks;
};

class EditEndurance : public EditTest
{
protected:
    // Edits cells of all kinds, with a new text each time.
    void EditMany(EditGrid& grid, int times)
    {
        committed = 0;
        CString text;
        for (int i = 0; i < times; ++i)
        {
            grid.BeginEditCell(i % 3, ColumnOf(i));
            CWnd& editor = *grid.EditorWindow();
            text.Format(L"%d", i % 1000);
            editor.SetWindowText(text);
            grid.editor->SetModified(true);
            // Combo boxes count what their list tells.
            if (editor.SendMessage(CB_SETCURSEL) == 0)
                grid.SendMessage(WM_COMMAND, MAKEWPARAM(101, CBN_SELCHANGE),
                                 reinterpret_cast<LPARAM>(editor.m_hWnd));
            if (grid.editor->IsModified())
                ++committed;
            grid.EndEditCell();
            if (i % 50 == 49)
                Settle();
        }
    }
    // The host's log would be what grows.
    void Settle()
    {
        PumpPending();
        host.TakeLog();
    }
    // Every kind, but few combo boxes: their drop-down lists are top-level windows, which cost ten times the
    // rest.
    static long ColumnOf(int edit) { return edit % 20 >= 18 ? 3 + edit % 2 : edit % 3; }
    // A soak run asks for more by the environment.
    static int NumberOfEdits()
    {
        const char* asked = std::getenv("QUOR_SOAK_EDITS");
        return asked ? (std::max)(1, std::atoi(asked)) : Rounds(1000);
    }
    static Residue Measure(EditGrid& grid)
    {
        return {CountGuiHandles(), CountChildren(grid), CountHeapBlocks(), QuorGuardLiveBlocks()};
    }

    int committed = 0;
};

TEST_F(EditEndurance, ThousandsOfEdits_LeaveNoWindowsHandlesOrMemory)
{
    EditGrid grid;
    Make(grid, 3, 5);
    grid.recording = false;
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"item"); };
    grid.GetCol(1).SetRightButton(true);
    grid.GetCol(2).SetRightSpin(true);
    grid.GetCol(3).SetComboEdit(true);
    grid.GetCol(4).SetComboSel(true);
    // What is made once and kept has been made after a first round.
    EditMany(grid, 200);
    CountGuiHandles();
    const Residue before = Measure(grid);
    const int edits = NumberOfEdits();
    EditMany(grid, edits);
    const Residue after = Measure(grid);
    EXPECT_EQ(committed, edits);
    EXPECT_EQ(before.handles.AllUser(), after.handles.AllUser());
    // The system caches some device contexts and brushes of its own.
    EXPECT_LE(after.handles.AllGdi(), before.handles.AllGdi() + 20) << Growth(before.handles, after.handles);
    EXPECT_EQ(before.children, after.children);
    // Texts of other lengths and the system's own caches move the count a little; one block per edit would
    // move it by a thousand.
    EXPECT_LT(after.heapBlocks, before.heapBlocks + 500);
    EXPECT_EQ(before.guardedBlocks, after.guardedBlocks);
}

} // namespace
} // namespace quor::test
