// Editing labels: the messages, the rules for names, the keys.
#include "tests/treedrag/DragTreeTest.h"

#include "tests/support/MessageBoxProbe.h"

#include <commctrl.h>

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class Labels : public DragTreeTest
{
protected:
    explicit Labels(DWORD style = UsualStyle) : DragTreeTest(style)
    {
        Activate(owner);
        tree->SetFocus();
    }

    HWND Editor() const { return tree->GetEditControl()->GetSafeHwnd(); }

    void Edit(const std::string& name, const wchar_t* text)
    {
        tree->SelectItem(At(name));
        tree->RenameSelected();
        ASSERT_NE(Editor(), nullptr);
        ::SetWindowTextW(Editor(), text);
    }
    void EndEdit() { tree->SendMessage(TVM_ENDEDITLABELNOW, FALSE); }
    void Rename(const std::string& name, const wchar_t* text)
    {
        Edit(name, text);
        EndEdit();
    }
    std::wstring EditedText() const
    {
        wchar_t text[100] = L"";
        ::GetWindowTextW(Editor(), text, 100);
        return text;
    }
    bool HasEditStyle() const { return (tree->GetStyle() & TVS_EDITLABELS) != 0; }
};

class LabelsWithoutStyle : public Labels
{
protected:
    LabelsWithoutStyle() : Labels(UsualStyle & ~static_cast<DWORD>(TVS_EDITLABELS)) {}
};

TEST_F(Labels, NewText_IsStoredAndReported)
{
    Fill("a b");
    Rename("a", L"c");
    EXPECT_EQ(Outline(), "c b");
    EXPECT_EQ(owner.TakeMessages(), "edits a, renamed c");
}

TEST_F(Labels, BlanksAroundTheText_AreCutOff)
{
    Fill("a b");
    Rename("a", L" \t abc  ");
    EXPECT_EQ(Outline(), "abc b");
}

TEST_F(Labels, BlanksOnly_KeepTheOldLabel)
{
    Fill("a b");
    Rename("a", L"   ");
    EXPECT_EQ(Outline(), "a b");
    Rename("a", L"");
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(owner.TakeMessages(), "edits a, edits a");
}

TEST_F(Labels, CancelledEdit_KeepsTheOldLabel)
{
    Fill("a b");
    Edit("a", L"c");
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(owner.TakeMessages(), "edits a");
}

TEST_F(Labels, SameText_CountsAsRenamed)
{
    Fill("a b");
    tree->SetNoDuplicates(TRUE);
    Rename("a", L"a");
    EXPECT_EQ(owner.TakeMessages(), "edits a, renamed a");
}

TEST_F(Labels, Owner_MayRefuseTheEdit)
{
    Fill("a b");
    owner.answers[TDM_BEGIN_LABEL_EDIT] = [](const OwnerMessage& message) -> LRESULT {
        *reinterpret_cast<LRESULT*>(message.place) = TRUE;
        return 0;
    };
    tree->SelectItem(At("a"));
    tree->RenameSelected();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(owner.TakeMessages(), "edits a");
}

TEST_F(Labels, Rename_WithoutASelection_DoesNothing)
{
    Fill("a b");
    tree->SelectItem(nullptr);
    tree->RenameSelected();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(Labels, UniqueNames_RefuseASiblingsNameInAnyCase)
{
    Fill("a b");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    Rename("a", L" B ");
    EXPECT_EQ(Outline(), "a b");
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(boxes.Shown()[0].text,
              L"Invalid name - an item with the same name already exists in this location.");
    EXPECT_EQ(boxes.Shown()[0].buttons, std::vector<int>{IDOK});
    EXPECT_EQ(owner.TakeMessages().find("renamed"), std::string::npos);
}

TEST_F(Labels, RefusedName_IsEditedAgain)
{
    Fill("a b");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    Rename("a", L"b");
    PumpPending();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(EditedText(), L"a");
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_TRUE(HasEditStyle());
    owner.TakeMessages();
    ::SetWindowTextW(Editor(), L"c");
    EndEdit();
    PumpPending();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "c b");
    EXPECT_EQ(owner.TakeMessages(), "renamed c");
}

// Where the platform's tree has no edit control any more when it says what was typed.
TEST_F(Labels, NameRefusedAfterTheEdit_IsEditedAgainAtOnce)
{
    Fill("a b");
    tree->SetNoDuplicates(TRUE);
    tree->SetFocus();
    MessageBoxProbe boxes;
    wchar_t typed[] = L"b";
    NMTVDISPINFOW ended = {};
    ended.hdr.hwndFrom = *tree;
    ended.hdr.idFrom = TreeId;
    ended.hdr.code = TVN_ENDLABELEDITW;
    ended.item.hItem = At("a");
    ended.item.pszText = typed;
    owner.SendMessage(WM_NOTIFY, TreeId, reinterpret_cast<LPARAM>(&ended));
    EXPECT_EQ(boxes.Shown().size(), 1u);
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(EditedText(), L"a");
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
}

// The message box makes the window inactive.
LRESULT CALLBACK DeleteSelectedWhenLeft(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR tree)
{
    const HWND treeWindow = reinterpret_cast<HWND>(tree);
    if (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE && TreeView_GetCount(treeWindow) == 3)
        TreeView_DeleteItem(treeWindow, TreeView_GetSelection(treeWindow));
    return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(Labels, ItemDeletedWhileItsNameIsRefused_IsNotEditedAgain)
{
    Fill("a b c");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    ASSERT_TRUE(
        SetWindowSubclass(owner, DeleteSelectedWhenLeft, 1, reinterpret_cast<DWORD_PTR>(tree->m_hWnd)));
    Rename("a", L"b");
    PumpPending();
    RemoveWindowSubclass(owner, DeleteSelectedWhenLeft, 1);
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "b c");
}

TEST_F(Labels, RefusedTwice_AsksTwice)
{
    Fill("a b");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    Rename("a", L"b");
    PumpPending();
    ::SetWindowTextW(Editor(), L"B");
    EndEdit();
    PumpPending();
    EXPECT_EQ(boxes.Shown().size(), 2u);
    ASSERT_NE(Editor(), nullptr);
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    PumpPending();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(Labels, UniqueNames_AllowTheNameOnAnotherLevel)
{
    Fill("a f+[b]");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    Rename("a", L"b");
    EXPECT_TRUE(boxes.Shown().empty());
    EXPECT_EQ(Outline(), "b f+[b]");
}

TEST_F(Labels, WithoutUniqueNames_NothingIsRefused)
{
    Fill("a b");
    MessageBoxProbe boxes;
    Rename("a", L"b");
    EXPECT_TRUE(boxes.Shown().empty());
    EXPECT_EQ(Outline(), "b b");
}

TEST_F(LabelsWithoutStyle, NewFolder_IsEditedForThisOnce)
{
    tree->CreateNewFolder();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(HasEditStyle());
    ::SetWindowTextW(Editor(), L"named");
    EndEdit();
    EXPECT_EQ(Outline(), "named[]");
    EXPECT_FALSE(HasEditStyle());
    EXPECT_EQ(owner.TakeMessages(), "edits New Folder, renamed named");
}

TEST_F(LabelsWithoutStyle, CancelledNewFolder_StaysWithItsName)
{
    tree->CreateNewFolder();
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    EXPECT_EQ(Outline(), "New Folder[]");
    EXPECT_FALSE(HasEditStyle());
}

TEST_F(LabelsWithoutStyle, NewFolderWhoseEditIsRefused_LeavesTheStyleOff)
{
    owner.answers[TDM_BEGIN_LABEL_EDIT] = [](const OwnerMessage& message) -> LRESULT {
        *reinterpret_cast<LRESULT*>(message.place) = TRUE;
        return 0;
    };
    const HTREEITEM folder = tree->CreateNewFolder();
    EXPECT_EQ(NameOf(folder), "New Folder");
    EXPECT_FALSE(HasEditStyle());
}

TEST_F(LabelsWithoutStyle, RefusedNameOfANewFolder_IsEditedAgain)
{
    Fill("a[]");
    tree->SetNoDuplicates(TRUE);
    tree->SelectItem(nullptr);
    MessageBoxProbe boxes;
    tree->CreateNewFolder();
    ::SetWindowTextW(Editor(), L"A");
    EndEdit();
    PumpPending();
    ASSERT_NE(Editor(), nullptr);
    ::SetWindowTextW(Editor(), L"b");
    EndEdit();
    EXPECT_EQ(Outline(), "b[] a[]");
    EXPECT_FALSE(HasEditStyle());
}

TEST_F(Labels, NewFolder_KeepsTheStyleThatWasThere)
{
    tree->CreateNewFolder();
    EndEdit();
    EXPECT_TRUE(HasEditStyle());
}

TEST_F(Labels, Return_AcceptsTheText)
{
    Fill("a b");
    Edit("a", L"c");
    PostKey(Editor(), VK_RETURN);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "c b");
}

TEST_F(Labels, Escape_CancelsTheEdit)
{
    Fill("a b");
    Edit("a", L"c");
    PostKey(Editor(), VK_ESCAPE);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "a b");
}

MSG KeyMessage(HWND window, WPARAM key, UINT message = WM_KEYDOWN)
{
    MSG keyMessage = {};
    keyMessage.hwnd = window;
    keyMessage.message = message;
    keyMessage.wParam = key;
    keyMessage.lParam = 1;
    return keyMessage;
}

TEST_F(Labels, EditKeys_AreConsumed)
{
    Fill("a b");
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE})
    {
        Edit("a", L"a");
        MSG message = KeyMessage(Editor(), key);
        EXPECT_TRUE(tree->PreTranslateMessage(&message));
        EXPECT_EQ(Editor(), nullptr);
        EXPECT_FALSE(tree->PreTranslateMessage(&message)) << "without an edit";
    }
    Edit("a", L"a");
    MSG other = KeyMessage(Editor(), 'A');
    EXPECT_FALSE(tree->PreTranslateMessage(&other));
    MSG up = KeyMessage(Editor(), VK_RETURN, WM_KEYUP);
    EXPECT_FALSE(tree->PreTranslateMessage(&up));
    EXPECT_NE(Editor(), nullptr);
}

// Holds the control key for this thread's key state, as a key press seen by the message loop does.
class HeldControl
{
public:
    HeldControl() { Set(0x80); }
    ~HeldControl() { Set(0); }

private:
    static void Set(BYTE state)
    {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[VK_CONTROL] = state;
        ::SetKeyboardState(keys);
    }
};

TEST_F(Labels, ControlX_CutsFromTheEdit)
{
    Fill("a b");
    for (const WPARAM key : {WPARAM{'X'}, WPARAM{0x78}})
    {
        Edit("a", L"abcdef");
        ::SendMessageW(Editor(), EM_SETSEL, 1, 3);
        MSG message = KeyMessage(Editor(), key);
        EXPECT_FALSE(tree->PreTranslateMessage(&message)) << "without Ctrl";
        EXPECT_EQ(EditedText(), L"abcdef");
        const HeldControl held;
        EXPECT_TRUE(tree->PreTranslateMessage(&message));
        EXPECT_EQ(EditedText(), L"adef");
        tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    }
}

TEST_F(Labels, F2_EditsTheSelectedItemAndIsNotConsumed)
{
    Fill("a b");
    tree->SelectItem(At("b"));
    MSG message = KeyMessage(*tree, VK_F2);
    EXPECT_FALSE(tree->PreTranslateMessage(&message));
    EXPECT_NE(Editor(), nullptr);
    EXPECT_EQ(owner.TakeMessages(), "edits b");
}

TEST_F(LabelsWithoutStyle, F2_DoesNothing)
{
    Fill("a b");
    tree->SelectItem(At("b"));
    MSG message = KeyMessage(*tree, VK_F2);
    EXPECT_FALSE(tree->PreTranslateMessage(&message));
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(Labels, OpenEdit_IsAcceptedBeforeAMove)
{
    Fill("a b");
    Edit("b", L"c");
    tree->MoveItemUp();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "c a");
    Edit("c", L"d");
    tree->MoveItemDown();
    EXPECT_EQ(Outline(), "a d");
}

TEST_F(Labels, OpenEdit_IsAcceptedBeforeADrop)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    Edit("a", L"d");
    Drop();
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Outline(), "b c d");
}

TEST_F(Labels, RefusedName_HoldsCommandsBack)
{
    Fill("a b f[x]");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    Edit("b", L"A");
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "a b f[x]");
    PumpPending();
    EXPECT_NE(Editor(), nullptr);
    ::SetWindowTextW(Editor(), L"a");
    tree->DeleteSelected();
    EXPECT_EQ(Outline(), "a b f[x]");
    PumpPending();
    ::SetWindowTextW(Editor(), L"a");
    EXPECT_EQ(tree->CreateNewFolder(), nullptr);
    PumpPending();
    EXPECT_EQ(Outline(), "a b f[x]");
    EXPECT_NE(Editor(), nullptr);
    EXPECT_EQ(boxes.Shown().size(), 3u);
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "b a f[x]");
}

} // namespace
