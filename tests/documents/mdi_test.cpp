// Child frames: creation, activation, menus, titles, and the commands of the Window menu.
#include "tests/documents/MdiFixture.h"
#include "tests/framework/DebugOutput.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

TEST_F(MdiDocuments, WithoutChildren_TheFrameHasItsOwnMenuAndTitle)
{
    EXPECT_EQ(m_frame->MDIGetActive(), nullptr);
    EXPECT_EQ(m_frame->GetActiveFrame(), m_frame);
    EXPECT_EQ(FrameTitle(), "Writer");
    EXPECT_EQ(Items(Menu()), "&File");
}

TEST_F(MdiDocuments, TheClientWindow_FillsTheFrame)
{
    CWnd* const client = m_frame->GetDlgItem(AFX_IDW_PANE_FIRST);
    ASSERT_NE(client, nullptr);
    for (const int width : {400, 500})
    {
        m_frame->SetWindowPos(NULL, 0, 0, width, 350, SWP_NOMOVE | SWP_NOZORDER);
        CRect inside, place;
        m_frame->GetClientRect(&inside);
        client->GetWindowRect(&place);
        m_frame->ScreenToClient(&place);
        EXPECT_EQ(place, inside);
    }
}

TEST_F(MdiDocuments, AChild_HasThePlaceItIsGiven)
{
    CMDIChildWnd* const child = new CMDIChildWnd;
    const CRect place(30, 20, 230, 170);
    ASSERT_TRUE(child->Create(NULL, L"Placed", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, place, m_frame));
    CRect rect;
    child->GetWindowRect(&rect);
    m_frame->GetDlgItem(AFX_IDW_PANE_FIRST)->ScreenToClient(&rect);
    EXPECT_EQ(rect, place);
    child->DestroyWindow();
}

TEST_F(MdiDocuments, AChild_IsNotCreatedWithoutAFrame)
{
    class Child : public CMDIChildWnd
    {
    public:
        explicit Child(bool& ended) : m_ended(ended) {}
        ~Child() override { m_ended = true; }

    private:
        bool& m_ended;
    };
    bool ended = false;
    m_app.m_pMainWnd = NULL;
    DebugOutput output;
    EXPECT_FALSE((new Child(ended))->Create(NULL, L"Nowhere"));
    EXPECT_TRUE(ended);
    // The checked variant tells why.
    EXPECT_EQ(output.Take().empty(), !HasTraces);
    m_app.m_pMainWnd = m_frame;
}

TEST_F(MdiDocuments, TheClientWindow_IsEmptyUntilTheFrameIsLaidOut)
{
    class EmptyFrame : public CMDIFrameWnd
    {
    public:
        CRect client = CRect(1, 1, 2, 2);

    protected:
        BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context) override
        {
            const BOOL created = CMDIFrameWnd::OnCreateClient(create, context);
            GetDlgItem(AFX_IDW_PANE_FIRST)->GetWindowRect(&client);
            return created;
        }
    };
    EmptyFrame* const frame = new EmptyFrame;
    ASSERT_TRUE(frame->Create(NULL, L"Frame"));
    EXPECT_EQ(frame->client.Size(), CSize(0, 0));
    frame->DestroyWindow();
}

TEST_F(MdiDocuments, ANewDocument_ComesInAnActiveChild)
{
    LetterDocument* document = NewLetter();
    ASSERT_NE(document, nullptr);
    CMDIChildWnd* child = FrameOf(document);
    EXPECT_EQ(m_frame->MDIGetActive(), child);
    EXPECT_EQ(m_frame->GetActiveFrame(), child);
    EXPECT_EQ(child->GetMDIFrame(), m_frame);
    EXPECT_EQ(child->GetActiveDocument(), document);
    EXPECT_TRUE(child->IsWindowVisible());
    EXPECT_EQ(Title(child->m_hWnd), "Letter1");
    EXPECT_EQ(::GetFocus(), child->GetActiveView()->m_hWnd);
    EXPECT_EQ(static_cast<LetterView*>(child->GetActiveView())->updates, 1);
}

TEST_F(MdiDocuments, NewDocuments_AreNumbered)
{
    EXPECT_STREQ(NewLetter()->GetTitle(), L"Letter1");
    EXPECT_STREQ(NewLetter()->GetTitle(), L"Letter2");
    EXPECT_STREQ(NewNote()->GetTitle(), L"Note1");
    POSITION position = m_letters->GetFirstDocPosition();
    EXPECT_STREQ(m_letters->GetNextDoc(position)->GetTitle(), L"Letter1");
    EXPECT_STREQ(m_letters->GetNextDoc(position)->GetTitle(), L"Letter2");
    EXPECT_EQ(position, nullptr);
}

TEST_F(MdiDocuments, TheMenu_IsThatOfTheActiveChild)
{
    LetterDocument* letter = NewLetter();
    EXPECT_EQ(Items(Menu()), "&File|&Letter|&Window");
    LetterDocument* note = NewNote();
    EXPECT_EQ(Items(Menu()), "&Note|&Window");
    m_frame->MDIActivate(FrameOf(letter));
    EXPECT_EQ(Items(Menu()), "&File|&Letter|&Window");
    letter->OnCloseDocument();
    EXPECT_EQ(Items(Menu()), "&Note|&Window");
    note->OnCloseDocument();
    EXPECT_EQ(Items(Menu()), "&File");
}

TEST_F(MdiDocuments, TheWindowMenu_NamesTheChildren)
{
    LetterDocument* letter = NewLetter();
    NewNote();
    m_frame->MDIActivate(FrameOf(letter));
    const HMENU popup = m_frame->GetWindowMenuPopup(Menu());
    ASSERT_EQ(popup, ::GetSubMenu(Menu(), 2));
    EXPECT_EQ(Items(popup), "&New Window|&Cascade|&Tile||&1 Letter1|&2 Note1");
    EXPECT_TRUE(::GetMenuState(popup, 4, MF_BYPOSITION) & MF_CHECKED);
    m_frame->SendMessage(WM_COMMAND, ::GetMenuItemID(popup, 5));
    EXPECT_EQ(Title(m_frame->MDIGetActive()->m_hWnd), "Note1");
}

TEST_F(MdiDocuments, TheTitle_FollowsTheActiveDocument)
{
    LetterDocument* letter = NewLetter();
    EXPECT_EQ(FrameTitle(), "Writer - Letter1");
    LetterDocument* note = NewNote();
    EXPECT_EQ(FrameTitle(), "Writer - Note1");
    note->SetTitle(L"Reminder");
    EXPECT_EQ(FrameTitle(), "Writer - Reminder");
    EXPECT_EQ(Title(FrameOf(note)->m_hWnd), "Reminder");
    FrameOf(letter)->MDIActivate();
    EXPECT_EQ(FrameTitle(), "Writer - Letter1");
    letter->OnCloseDocument();
    note->OnCloseDocument();
    EXPECT_EQ(FrameTitle(), "Writer");
}

TEST_F(MdiDocuments, AMaximizedChild_IsNamedInBrackets)
{
    LetterDocument* letter = NewLetter();
    FrameOf(letter)->MDIMaximize();
    BOOL isMaximized = FALSE;
    EXPECT_EQ(m_frame->MDIGetActive(&isMaximized), FrameOf(letter));
    EXPECT_TRUE(isMaximized);
    EXPECT_EQ(FrameTitle(), "Writer - [Letter1]");
    letter->SetTitle(L"Plan");
    EXPECT_EQ(FrameTitle(), "Writer - [Plan]");
    m_frame->MDIRestore(FrameOf(letter));
    EXPECT_EQ(FrameTitle(), "Writer - Plan");
    m_frame->MDIGetActive(&isMaximized);
    EXPECT_FALSE(isMaximized);
}

TEST_F(MdiDocuments, ANewChild_IsMaximizedLikeTheActiveOne)
{
    FrameOf(NewLetter())->MDIMaximize();
    CMDIChildWnd* second = FrameOf(NewLetter());
    EXPECT_EQ(m_frame->MDIGetActive(), second);
    EXPECT_TRUE(second->IsZoomed());
    EXPECT_EQ(FrameTitle(), "Writer - [Letter2]");
}

TEST_F(MdiDocuments, NextAndPrevious_WalkTheChildren)
{
    CMDIChildWnd* const frames[] = {FrameOf(NewLetter()), FrameOf(NewLetter()), FrameOf(NewLetter())};
    m_frame->MDINext();
    CMDIChildWnd* const after = m_frame->MDIGetActive();
    EXPECT_NE(after, frames[2]);
    m_frame->MDIPrev();
    EXPECT_EQ(m_frame->MDIGetActive(), frames[2]);
}

TEST_F(MdiDocuments, Activation_IsToldToTheViews)
{
    CView* const letterView = FrameOf(NewLetter())->GetActiveView();
    TakeTrace();
    LetterDocument* note = NewNote();
    const Log log = TakeTrace();
    EXPECT_EQ(log.front(), "deactivate view");
    EXPECT_EQ(log.back(), "activate view");
    note->OnCloseDocument();
    const Log closing = TakeTrace();
    EXPECT_EQ(std::count(closing.begin(), closing.end(), "activate view"), 1);
    EXPECT_EQ(::GetFocus(), letterView->m_hWnd);
}

TEST_F(MdiDocuments, Commands_GoToTheActiveDocument)
{
    LetterDocument* letter = NewLetter();
    NewLetter();
    TakeTrace();
    m_frame->SendMessage(WM_COMMAND, ID_LETTER_STAMP);
    m_frame->MDIActivate(FrameOf(letter));
    m_frame->SendMessage(WM_COMMAND, ID_FRAME_SIGN);
    TakeTrace();
    m_frame->SendMessage(WM_COMMAND, ID_LETTER_STAMP);
    m_frame->SendMessage(WM_COMMAND, ID_FRAME_SIGN);
    EXPECT_EQ(TakeTrace(), (Log{"stamp Letter1", "sign"}));
}

TEST_F(MdiDocuments, Keys_AreThoseOfTheChildAndOfTheFrame)
{
    LetterDocument* letter = NewLetter();
    TakeTrace();
    const HWND view = FrameOf(letter)->GetActiveView()->m_hWnd;
    PostKey(view, VK_F7);
    PostKey(view, VK_F8);
    EXPECT_TRUE(PumpUntil([] { return trace.size() >= 2; }));
    EXPECT_EQ(TakeTrace(), (Log{"stamp Letter1", "sign"}));
    // Also while something else in the frame has the focus.
    PostKey(m_window, VK_F7);
    EXPECT_TRUE(PumpUntil([] { return !trace.empty(); }));
    EXPECT_EQ(TakeTrace(), (Log{"stamp Letter1"}));
}

UINT StateOf(CMDIFrameWnd* frame, UINT id)
{
    const HMENU popup = frame->GetWindowMenuPopup(::GetMenu(frame->m_hWnd));
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), 2);
    return ::GetMenuState(popup, id, MF_BYCOMMAND);
}

TEST_F(MdiDocuments, TheWindowMenu_IsEnabledWithChildren)
{
    LetterDocument* letter = NewLetter();
    EXPECT_FALSE(StateOf(m_frame, ID_WINDOW_NEW) & MF_GRAYED);
    EXPECT_FALSE(StateOf(m_frame, ID_WINDOW_CASCADE) & MF_GRAYED);
    letter->OnCloseDocument();
    CCmdUI state;
    state.m_nID = ID_WINDOW_CASCADE;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_WINDOW_CASCADE, L"Cascade");
    state.m_pMenu = &menu;
    state.DoUpdate(m_frame, TRUE);
    EXPECT_TRUE(menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
}

TEST_F(MdiDocuments, NewWindow_ShowsTheDocumentTwice)
{
    LetterDocument* letter = NewLetter();
    m_frame->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    CMDIChildWnd* const first = FrameOf(letter);
    CMDIChildWnd* const second = FrameOf(letter, 1);
    EXPECT_NE(first, second);
    EXPECT_EQ(m_frame->MDIGetActive(), second);
    EXPECT_EQ(Title(first->m_hWnd), "Letter1:1");
    EXPECT_EQ(Title(second->m_hWnd), "Letter1:2");
    EXPECT_EQ(FrameTitle(), "Writer - Letter1:2");
    // Closing one of two does not ask, and the other needs no number any more.
    letter->Write(L"text");
    MessageBoxProbe boxes;
    second->SendMessage(WM_CLOSE);
    EXPECT_TRUE(boxes.Shown().empty());
    EXPECT_EQ(Title(first->m_hWnd), "Letter1");
    EXPECT_EQ(LetterDocument::live, 1);
}

TEST_F(MdiDocuments, TileAndCascade_ArrangeTheChildren)
{
    CMDIChildWnd* const first = FrameOf(NewLetter());
    CMDIChildWnd* const second = FrameOf(NewLetter());
    CRect client, one, two;
    m_frame->GetDlgItem(AFX_IDW_PANE_FIRST)->GetClientRect(&client);
    m_frame->SendMessage(WM_COMMAND, ID_WINDOW_TILE_HORZ);
    first->GetWindowRect(&one);
    second->GetWindowRect(&two);
    EXPECT_EQ(one.Width(), client.Width());
    EXPECT_EQ(two.Width(), client.Width());
    EXPECT_NE(one.top, two.top);
    m_frame->MDITile(MDITILE_VERTICAL);
    first->GetWindowRect(&one);
    EXPECT_EQ(one.Height(), client.Height());
    m_frame->SendMessage(WM_COMMAND, ID_WINDOW_CASCADE);
    first->GetWindowRect(&one);
    second->GetWindowRect(&two);
    EXPECT_NE(one.TopLeft(), two.TopLeft());
    EXPECT_EQ(one.Size(), two.Size());
}

TEST_F(MdiDocuments, CreateNewChild_NeedsNoDocument)
{
    CMDIChildWnd* child = m_frame->CreateNewChild(RUNTIME_CLASS(CMDIChildWnd), IDR_NOTE);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(m_frame->MDIGetActive(), child);
    EXPECT_EQ(Title(child->m_hWnd), "Note");
    EXPECT_EQ(FrameTitle(), "Writer - Note");
    EXPECT_EQ(Items(Menu()), "&Note|&Window");
    EXPECT_TRUE(child->DestroyWindow());
    EXPECT_EQ(m_frame->MDIGetActive(), nullptr);
    EXPECT_EQ(Items(Menu()), "&File");
}

TEST_F(MdiDocuments, SetHandles_GivesAChildItsMenuAndKeys)
{
    const HMENU menu = ::LoadMenu(::GetModuleHandle(NULL), MAKEINTRESOURCE(IDR_LETTER));
    CMDIChildWnd* child = m_frame->CreateNewChild(RUNTIME_CLASS(CMDIChildWnd), IDR_NOTE, menu);
    EXPECT_EQ(Menu(), menu);
    child->DestroyWindow();
    EXPECT_TRUE(::DestroyMenu(menu)) << "the child destroyed a menu that was not its own";
}

} // namespace
