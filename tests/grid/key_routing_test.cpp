// Which window a key belongs to: the open editor, the grid, the dialog or form around it.
#include "tests/grid/HeaderFixture.h"
#include "tests/grid/KeyFormResource.h"

#include <afxext.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A key message as the message loop fetches it, offered to the grid; returns whether the grid keeps it.
bool Offer(CommandGrid& grid, HWND window, UINT key)
{
    MSG message = {};
    message.hwnd = window;
    message.message = WM_KEYDOWN;
    message.wParam = key;
    return grid.PreTranslateMessage(&message) != FALSE;
}

std::string Edited(CommandGrid& grid)
{
    long row = -1;
    long col = -1;
    return grid.GetCurCell(row, col) ? std::to_string(row) + "," + std::to_string(col) : "-";
}

// ---- With an editor open

class EditorKeys : public HeaderFixture
{
protected:
    void SetUp() override
    {
        Make(grid, "abc");
        grid.GetCell(1, 1).SetText(L"text");
    }

    // The keys that the grid keeps while the caret of the editor of cell 1,1 stands at `caret`.
    std::string Kept(int caret, std::initializer_list<UINT> keys)
    {
        std::string kept;
        for (const UINT key : keys)
        {
            grid.BeginEditCell(1, 1);
            CWnd* editor = grid.GetDlgItem(101);
            editor->SendMessage(EM_SETSEL, static_cast<WPARAM>(caret), caret);
            const bool isKept = Offer(grid, editor->m_hWnd, key);
            kept += isKept ? "+" : "-";
            EXPECT_EQ(isKept, Edited(grid) != "1,1") << key;
        }
        return kept;
    }

    CommandGrid grid;
};

TEST_F(EditorKeys, ArrowsLeaveTheEditorOnlyAtItsEnds)
{
    EXPECT_EQ(Kept(0, {VK_LEFT, VK_RIGHT}), "+-");
    EXPECT_EQ(Kept(2, {VK_LEFT, VK_RIGHT}), "--");
    EXPECT_EQ(Kept(4, {VK_LEFT, VK_RIGHT}), "-+");
    EXPECT_EQ(Kept(2, {VK_UP, VK_DOWN}), "++");
}

TEST_F(EditorKeys, KeysThatEndTheEdit_NeverReachTheEditor)
{
    EXPECT_EQ(Kept(2, {VK_TAB, VK_RETURN, VK_ESCAPE}), "+++");
}

TEST_F(EditorKeys, OtherKeysBelongToTheEditor)
{
    EXPECT_EQ(Kept(2, {'A', 'V', VK_DELETE, VK_HOME, VK_END, VK_INSERT, VK_BACK}), "-------");
}

TEST_F(EditorKeys, EscapeDiscardsWhatWasTyped)
{
    grid.BeginEditCell(1, 1);
    CWnd* editor = grid.GetDlgItem(101);
    editor->SetWindowText(L"typed");
    editor->SendMessage(EM_SETMODIFY, TRUE);
    EXPECT_TRUE(Offer(grid, editor->m_hWnd, VK_ESCAPE));
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"text");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(EditorKeys, WithoutAnEditor_OnlyTabIsTakenInAPlainParent)
{
    grid.SetFocus();
    for (const UINT key : {VK_RETURN, VK_ESCAPE, VK_LEFT, VK_UP, VK_DELETE})
        EXPECT_FALSE(Offer(grid, grid.m_hWnd, key)) << key;
    EXPECT_TRUE(Offer(grid, grid.m_hWnd, VK_TAB));
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
    // The grid has no focus to give away now.
    EXPECT_FALSE(Offer(grid, grid.m_hWnd, VK_TAB));
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(EditorKeys, DialogCode_WantsAllKeys)
{
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
}

// ---- In dialogs and forms

class KeyDialog : public CDialog
{
public:
    CommandGrid grid;
    int okCalls = 0;
    int cancelCalls = 0;

    KeyDialog()
    {
        Create(IDD_KEY_DIALOG);
        grid.Create(this, IDC_KEY_GRID, WS_CHILD | WS_VISIBLE | WS_TABSTOP);
        grid.SetColNum(2);
        grid.AddRows("abc");
    }
    ~KeyDialog() override { DestroyWindow(); }

protected:
    void OnOK() override { ++okCalls; }
    void OnCancel() override { ++cancelCalls; }
};

TEST(DialogKeys, EnterAndEscape_ReachTheButtonsWhenNothingIsEdited)
{
    KeyDialog dialog;
    dialog.grid.SelectRow(1, true);
    dialog.grid.SetFocus();
    PostKey(dialog.grid, VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.okCalls == 1; }));
    PostKey(dialog.grid, VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return dialog.cancelCalls == 1; }));
    EXPECT_EQ(dialog.grid.Rows(), "a b* c");
    EXPECT_EQ(Edited(dialog.grid), "-");
}

TEST(DialogKeys, EnterAndEscape_BelongToAnOpenEditor)
{
    KeyDialog dialog;
    dialog.grid.BeginEditCell(0, 0);
    PostKey(*dialog.grid.GetDlgItem(101), VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return Edited(dialog.grid) == "1,0"; }));
    PostKey(*dialog.grid.GetDlgItem(101), VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return Edited(dialog.grid) == "-"; }));
    PumpPending();
    EXPECT_EQ(dialog.okCalls + dialog.cancelCalls, 0);
}

TEST(DialogKeys, ArrowsAndLetters_StayInTheGrid)
{
    KeyDialog dialog;
    dialog.grid.SelectRow(0, true);
    dialog.grid.SetFocus();
    PostKey(dialog.grid, VK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.grid.Rows() == "a b* c"; }));
    PostKey(dialog.grid, 'A');
    EXPECT_TRUE(PumpUntil([&] { return dialog.grid.Rows() == "a* b* c*"; }));
    EXPECT_EQ(::GetFocus(), dialog.grid.m_hWnd);
}

// Counts the keys that are meant for the form itself.
class KeyForm : public CFormView
{
    DECLARE_DYNCREATE(KeyForm)

public:
    CommandGrid grid;
    std::string keys;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_KEYDOWN && message->hwnd == m_hWnd)
            keys += std::to_string(message->wParam) + " ";
        return CFormView::PreTranslateMessage(message);
    }

protected:
    KeyForm() : CFormView(IDD_KEY_FORM) {}
    void OnInitialUpdate() override
    {
        CFormView::OnInitialUpdate();
        grid.Create(this, IDC_KEY_GRID, WS_CHILD | WS_VISIBLE | WS_TABSTOP);
        grid.SetColNum(2);
        grid.AddRows("abc");
    }
};

IMPLEMENT_DYNCREATE(KeyForm, CFormView)

TEST(FormKeys, EnterAndEscape_AreHandedToTheForm)
{
    CFrameWnd* frame = new CFrameWnd;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(KeyForm);
    ASSERT_TRUE(frame->Create(nullptr, L"form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300),
                              nullptr, nullptr, 0, &context));
    frame->InitialUpdateFrame(nullptr, TRUE);
    auto* form = static_cast<KeyForm*>(frame->GetActiveView());
    ASSERT_NE(form, nullptr);
    form->grid.SetFocus();
    PostKey(form->grid, VK_RETURN);
    PostKey(form->grid, VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return form->keys == "13 27 "; }));
    EXPECT_EQ(Edited(form->grid), "-");
    frame->DestroyWindow();
}

// ---- Menu commands

class MenuCommands : public HeaderFixture
{
protected:
    bool Send(CommandGrid& grid, UINT id, UINT code = 0, HWND window = nullptr)
    {
        MSG message = {};
        message.hwnd = window != nullptr ? window : grid.m_hWnd;
        message.message = WM_COMMAND;
        message.wParam = MAKEWPARAM(id, code);
        grid.TakeLog();
        return grid.PreTranslateMessage(&message) != FALSE;
    }
};

TEST_F(MenuCommands, AreRunByTheGrid)
{
    const std::pair<UINT, const char*> commands[] = {
        {1, "OnBeforeInsertRow 1 | OnInsertRow 1 | OnDataChanged"},
        {2, "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged"},
        {3, "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged"},
        {4, ""},
        {5, "OnBeforeCopy | OnEndCopy"},
        {6, "OnBeforeClip | OnEndClip | OnDataChanged"},
        {7, "OnBeforePaste 1 | OnEndPaste | OnDataChanged"},
        {9, "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged"},
        {10, "OnBeforeInsertCol 2 | OnInsertCol 2 | OnDataChanged"},
    };
    for (const auto& [id, log] : commands)
    {
        CommandGrid grid;
        Make(grid, "abc", 2);
        grid.SelectRows({0});
        grid.DoCopy();
        grid.SelectRows({1});
        EXPECT_TRUE(Send(grid, id));
        EXPECT_EQ(grid.TakeText(), log) << id;
        if (id == 4)
        {
            EXPECT_EQ(grid.Rows(), "a* b* c*");
        }
    }
    CommandGrid grid;
    Make(grid, "abc", 2);
    grid.SelectCols({1});
    EXPECT_TRUE(Send(grid, 8));
    EXPECT_EQ(grid.TakeText(), "OnBeforeInsertCol 1 | OnInsertCol 1 | OnDataChanged");
}

TEST_F(MenuCommands, OfOtherIdentifiersCodesAndWindows_PassOn)
{
    CommandGrid grid;
    Make(grid, "abc", 2);
    grid.SelectRows({1});
    EXPECT_FALSE(Send(grid, 0));
    EXPECT_FALSE(Send(grid, 11));
    EXPECT_FALSE(Send(grid, 2, 1));
    EXPECT_FALSE(Send(grid, 2, 0, host.m_hWnd));
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_EQ(grid.Rows(), "a b* c");
}

} // namespace
} // namespace quor::test
