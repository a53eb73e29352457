// The editor of a cell: creation, growth, keys and its report to the owner.
#include "tests/controls/OwnedList.h"
#include "tests/support/Input.h"

#include <algorithm>

using namespace quor::test;

namespace
{

class InPlaceEdit : public ListTest
{
protected:
    InPlaceEdit()
    {
        MakeColumns(3);
        MakeRows(6);
        SetControlKey(0);
    }

    ~InPlaceEdit() override { SetControlKey(0); }

    TestEditor& Open(int row, int column, const wchar_t* text)
    {
        EXPECT_TRUE(owner.Edit(row, column, text));
        return *owner.editor;
    }

    bool Translates(UINT message, WPARAM key)
    {
        MSG posted = {owner.editor->m_hWnd, message, key, 0, 0, {}};
        return owner.editor->PreTranslateMessage(&posted) != FALSE;
    }

    void Type(std::wstring_view text)
    {
        for (const wchar_t character : text)
            PostCharacter(owner.editor->m_hWnd, character);
        PumpPending();
    }

    // 0x80 is held, 1 is toggled.
    static void SetControlKey(BYTE state)
    {
        BYTE keys[256] = {};
        keys[VK_CONTROL] = state;
        ::SetKeyboardState(keys);
    }

    CSize TextSize(const CString& text)
    {
        CClientDC context(&list);
        CFont* previous = context.SelectObject(list.GetFont());
        const CSize size = context.GetTextExtent(text);
        context.SelectObject(previous);
        return size;
    }
    int TextWidth(const CString& text) { return TextSize(text).cx; }
};

// Writes down what its editors tell of themselves.
class HearingList : public TestList
{
public:
    std::vector<UINT> heard;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        heard.push_back(HIWORD(wParam));
        return TestList::OnCommand(wParam, lParam);
    }
};

TEST(InPlaceEditFocus, IsLostAsThatOfAnyEdit)
{
    HostWindow host;
    HearingList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), &host, 7));
    TestEditor editor(0, 0, L"x");
    ASSERT_TRUE(editor.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 20), &list, 5));
    ASSERT_EQ(::GetFocus(), editor.m_hWnd);
    list.heard.clear();
    host.SetFocus();
    EXPECT_EQ(list.heard, std::vector<UINT>{EN_KILLFOCUS});
    editor.DestroyWindow();
}

TEST_F(InPlaceEdit, NewEditor_ShowsTheSelectedTextInTheFontOfTheList)
{
    CFont font;
    font.CreatePointFont(140, L"MS Shell Dlg");
    list.SetFont(&font);
    TestEditor& editor = Open(1, 1, L"some text");
    EXPECT_EQ(editor.Text(), L"some text");
    EXPECT_EQ(editor.Selection(), "0-9");
    EXPECT_EQ(editor.GetFont()->m_hObject, font.m_hObject);
    EXPECT_EQ(::GetFocus(), editor.m_hWnd);
    EXPECT_EQ(editor.item, 1);
    EXPECT_EQ(editor.subItem, 1);
    EXPECT_FALSE(editor.escPressed);
    owner.CloseEditor();
    list.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
}

TEST_F(InPlaceEdit, NewEditor_IsLargeEnoughForItsText)
{
    TestEditor editor(0, 0, L"a long text");
    editor.Create(WS_CHILD | WS_VISIBLE, CRect(10, 30, 12, 32), &list, 5);
    EXPECT_EQ(editor.Place().left, 10);
    EXPECT_EQ(editor.Place().Width(), TextWidth(L"a long text") + 5);
    EXPECT_EQ(editor.Place().Height(), TextSize(L"a long text").cy);
    owner.createsEditors = false;
    list.SetFocus();
}

TEST_F(InPlaceEdit, Enter_ReportsTheText)
{
    Open(2, 1, L"old");
    Type(L"new");
    Type(L"\r");
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 2,1 [new]"});
    EXPECT_EQ(::GetFocus(), list.m_hWnd);
    EXPECT_EQ(list.GetItemText(2, 1), L"new");
}

TEST_F(InPlaceEdit, Escape_ReportsNoText)
{
    Open(2, 1, L"old");
    Type(L"new\x1B");
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 2,1 cancelled"});
    EXPECT_EQ(owner.lastRecord.item.pszText, nullptr);
    EXPECT_EQ(owner.lastRecord.item.cchTextMax, 0);
    EXPECT_EQ(::GetFocus(), list.m_hWnd);
    EXPECT_EQ(list.GetItemText(2, 1), L"r2c1");
}

TEST_F(InPlaceEdit, LostFocus_ReportsTheText)
{
    Open(0, 0, L"kept");
    owner.SetFocus();
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 0,0 [kept]"});
}

TEST_F(InPlaceEdit, EmptyText_IsReportedAsText)
{
    Open(0, 0, L"");
    list.SetFocus();
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 0,0 []"});
}

TEST_F(InPlaceEdit, Report_NamesListAndEditor)
{
    Open(0, 2, L"x");
    list.SetFocus();
    EXPECT_EQ(owner.lastRecord.hdr.hwndFrom, list.m_hWnd);
    EXPECT_EQ(owner.lastRecord.hdr.idFrom, ListOwner::EditorId);
    EXPECT_EQ(owner.lastRecord.item.mask, static_cast<UINT>(LVIF_TEXT));
    EXPECT_EQ(owner.lastWParam, ListOwner::ListId);
}

TEST_F(InPlaceEdit, FocusedEditorThatIsDestroyed_ReportsOnce)
{
    Open(0, 2, L"x");
    owner.onEnd = [](const NMLVDISPINFO&) {};
    owner.editor->DestroyWindow();
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 0,2 [x]"});
}

TEST_F(InPlaceEdit, Typing_WidensTheEditorWithItsText)
{
    TestEditor& editor = Open(0, 0, L"");
    const CRect before = editor.Place();
    const CString text(L'w', 15);
    Type(text.GetString());
    EXPECT_EQ(editor.Place(),
              CRect(before.left, before.top, before.left + TextWidth(text) + 5, before.bottom));
}

TEST_F(InPlaceEdit, TypingPastTheEdge_StopsTwoPixelsBeforeIt)
{
    TestEditor& editor = Open(0, 1, L"");
    Type(std::wstring(90, L'w'));
    EXPECT_EQ(editor.Place().right, 318);
    EXPECT_EQ(editor.Place().left, 104);
}

TEST_F(InPlaceEdit, ShorterText_LeavesTheSize)
{
    TestEditor& editor = Open(0, 0, L"");
    Type(std::wstring(15, L'w'));
    const CRect grown = editor.Place();
    Type(L"\b\b\b\b\b\b\b\b");
    EXPECT_EQ(editor.Text().size(), 7u);
    EXPECT_EQ(editor.Place(), grown);
}

TEST_F(InPlaceEdit, EditorWithAnEdge_TakesItsClientRectangleAsItsPlace)
{
    TestEditor& editor = Open(0, 0, L"");
    editor.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
    const CRect before = editor.Place();
    CRect client;
    editor.GetClientRect(client);
    ASSERT_EQ(client.Width(), before.Width() - 4);
    const CString text(L'w', 15);
    editor.SetWindowText(text);
    editor.CalculateSize();
    const int height = (std::max)(client.Height(), static_cast<int>(TextSize(text).cy));
    EXPECT_EQ(editor.Place(), CRect(before.TopLeft() + CPoint(2, 2), CSize(TextWidth(text) + 5, height)));
}

TEST_F(InPlaceEdit, CharacterInTheMiddleOfALongText_MovesNothingElse)
{
    TestEditor& editor = Open(0, 1, L"");
    Type(std::wstring(90, L'w'));
    editor.SetSel(60, 60);
    const int before = editor.PosFromChar(59).x;
    Type(L"w");
    EXPECT_EQ(editor.PosFromChar(59).x, before);
    EXPECT_EQ(editor.Selection(), "61-61");
}

TEST_F(InPlaceEdit, MultiLineEditor_GrowsDownwards)
{
    owner.editorStyle = ES_MULTILINE | ES_AUTOVSCROLL;
    TestEditor& editor = Open(0, 2, L"");
    const CRect before = editor.Place();
    editor.SetWindowText(L"one\r\ntwo\r\nthree");
    editor.CalculateSize();
    CRect text(before);
    CClientDC context(&list);
    CFont* previous = context.SelectObject(list.GetFont());
    context.DrawText(L"one\r\ntwo\r\nthree", text, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    context.SelectObject(previous);
    EXPECT_EQ(editor.Place(), CRect(before.left, before.top, before.right, before.top + text.Height() + 5));
    EXPECT_EQ(editor.GetStyle() & WS_VSCROLL, 0u);
}

TEST_F(InPlaceEdit, MultiLineEditor_WidensWhereThatMakesItLower)
{
    list.SetColumnWidth(0, 60);
    owner.editorStyle = ES_MULTILINE | ES_AUTOVSCROLL;
    TestEditor& editor = Open(0, 0, L"");
    const CRect before = editor.Place();
    editor.SetWindowText(L"many short words on one line");
    editor.CalculateSize();
    EXPECT_EQ(editor.Place().Width(), TextWidth(L"many short words on one line") + 5);
    EXPECT_EQ(editor.Place().Height(),
              (std::max)(before.Height(), static_cast<int>(TextSize(L"many short words").cy) + 5));
}

TEST_F(InPlaceEdit, MultiLineEditor_ShowsAScrollBarAtTheEndOfTheList)
{
    owner.editorStyle = ES_MULTILINE | ES_AUTOVSCROLL;
    TestEditor& editor = Open(0, 0, L"");
    CString text;
    for (int line = 0; line < 40; ++line)
        text += L"line\r\n";
    editor.SetWindowText(text);
    editor.CalculateSize();
    EXPECT_EQ(editor.Place().bottom, 198);
    EXPECT_NE(editor.GetStyle() & WS_VSCROLL, 0u);
}

TEST_F(InPlaceEdit, OwnKeys_AreTakenFromTheDialog)
{
    Open(0, 0, L"text");
    EXPECT_FALSE(Translates(WM_KEYDOWN, VK_TAB));
    EXPECT_FALSE(Translates(WM_KEYDOWN, VK_LEFT));
    EXPECT_FALSE(Translates(WM_KEYUP, VK_RETURN));
    EXPECT_TRUE(Translates(WM_KEYDOWN, VK_RETURN));
    EXPECT_TRUE(Translates(WM_KEYDOWN, VK_ESCAPE));
    EXPECT_TRUE(Translates(WM_KEYDOWN, VK_DELETE));
    EXPECT_EQ(owner.editor->Text(), L"") << "Delete was dispatched to the editor";
}

TEST_F(InPlaceEdit, EveryKey_IsTakenWhileControlIsHeldOrToggled)
{
    Open(0, 0, L"text");
    for (const BYTE state : {BYTE{0x80}, BYTE{1}, BYTE{0x81}})
    {
        SetControlKey(state);
        EXPECT_TRUE(Translates(WM_KEYDOWN, VK_HOME)) << static_cast<int>(state);
        EXPECT_FALSE(Translates(WM_KEYUP, VK_HOME)) << static_cast<int>(state);
    }
    SetControlKey(0);
    EXPECT_FALSE(Translates(WM_KEYDOWN, VK_HOME));
}

TEST_F(InPlaceEdit, EscapeInAMultiLineEditor_IsSwallowed)
{
    owner.editorStyle = ES_MULTILINE;
    Open(0, 0, L"text");
    PostKey(owner.editor->m_hWnd, VK_ESCAPE);
    EXPECT_TRUE(owner.IsEditing());
    EXPECT_EQ(owner.TakeEdits(), Lines{});
    EXPECT_EQ(owner.editor->Text(), L"text");
}

TEST_F(InPlaceEdit, EditorWithoutAParent_IsLeftAlone)
{
    TestEditor editor(0, 0, L"x");
    ASSERT_TRUE(editor.CreateEx(0, L"EDIT", L"", WS_POPUP, CRect(0, 0, 50, 20), nullptr, 0));
    editor.CalculateSize();
    editor.SendMessage(WM_CHAR, VK_ESCAPE);
    EXPECT_TRUE(editor.DestroyWindow());
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

} // namespace
