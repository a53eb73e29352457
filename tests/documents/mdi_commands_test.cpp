// Child frames and the program: arranging, menus, what cannot be made, the end of the session, the command
// line.
#include "tests/documents/MdiFixture.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

class MdiCommands : public MdiDocuments
{
protected:
    static CRect PlaceOf(CWnd* window)
    {
        CRect rect;
        window->GetWindowRect(&rect);
        return rect;
    }
    bool Command(UINT id) { return m_frame->OnCmdMsg(id, CN_COMMAND, nullptr, nullptr) != FALSE; }
};

TEST_F(MdiCommands, TilesSideBySideOrOverEachOther)
{
    CMDIChildWnd* const letter = FrameOf(NewLetter());
    CMDIChildWnd* const note = FrameOf(NewNote());
    EXPECT_TRUE(Command(ID_WINDOW_TILE_VERT));
    EXPECT_EQ(PlaceOf(letter).top, PlaceOf(note).top);
    EXPECT_NE(PlaceOf(letter).left, PlaceOf(note).left);
    EXPECT_TRUE(Command(ID_WINDOW_TILE_HORZ));
    EXPECT_EQ(PlaceOf(letter).left, PlaceOf(note).left);
    EXPECT_NE(PlaceOf(letter).top, PlaceOf(note).top);
    m_frame->MDITile();
    EXPECT_EQ(PlaceOf(letter).top, PlaceOf(note).top) << "side by side when nothing is said";
    m_frame->MDICascade();
    EXPECT_NE(PlaceOf(letter).left, PlaceOf(note).left);
    EXPECT_NE(PlaceOf(letter).top, PlaceOf(note).top);
}

TEST_F(MdiCommands, MinimisedChildrenAreArranged)
{
    CMDIChildWnd* const child = FrameOf(NewLetter());
    child->ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(child->IsIconic());
    const CRect place = PlaceOf(child);
    child->SetWindowPos(nullptr, 150, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_NE(PlaceOf(child), place);
    EXPECT_TRUE(Command(ID_WINDOW_ARRANGE));
    EXPECT_EQ(PlaceOf(child), place);
    child->ActivateFrame();
    EXPECT_FALSE(child->IsIconic()) << "activating shows it";
}

TEST_F(MdiCommands, ChildrenAreMaximisedAndRestored)
{
    CMDIChildWnd* const child = FrameOf(NewLetter());
    m_frame->MDIMaximize(child);
    EXPECT_TRUE(child->IsZoomed());
    child->MDIRestore();
    EXPECT_FALSE(child->IsZoomed());
    child->MDIMaximize();
    EXPECT_TRUE(child->IsZoomed());
    m_frame->MDIRestore(child);
    EXPECT_FALSE(child->IsZoomed());
}

TEST_F(MdiCommands, MDISetMenu_ReturnsTheMenuBefore)
{
    CMenu menu;
    menu.CreateMenu();
    menu.AppendMenu(MF_STRING, 100, L"Other");
    const HMENU before = Menu();
    EXPECT_EQ(m_frame->MDISetMenu(&menu, nullptr)->m_hMenu, before);
    EXPECT_EQ(Items(Menu()), "Other");
    EXPECT_EQ(m_frame->MDISetMenu(CMenu::FromHandle(before), nullptr), &menu);
    EXPECT_EQ(Menu(), before);
}

TEST_F(MdiCommands, CommandsOfTheWindowMenuNeedAChild)
{
    class State : public CCmdUI
    {
    public:
        int enabled = -1;
        void Enable(BOOL on) override { enabled = on; }
    };
    for (const UINT id :
         {ID_WINDOW_ARRANGE, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT, ID_WINDOW_NEW})
    {
        State without;
        without.m_nID = id;
        EXPECT_TRUE(m_frame->OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &without, nullptr));
        EXPECT_EQ(without.enabled, FALSE) << id;
    }
    NewLetter();
    for (const UINT id :
         {ID_WINDOW_ARRANGE, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT, ID_WINDOW_NEW})
    {
        State with;
        with.m_nID = id;
        EXPECT_TRUE(m_frame->OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &with, nullptr));
        EXPECT_EQ(with.enabled, TRUE) << id;
    }
}

TEST_F(MdiCommands, NewWindow_WithoutADocumentIsReported)
{
    MessageBoxProbe boxes;
    EXPECT_TRUE(Command(ID_WINDOW_NEW));
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(m_frame->MDIGetActive(), nullptr);
}

// A child frame that does not want to live.
class RefusingChild : public CMDIChildWnd
{
    DECLARE_DYNCREATE(RefusingChild)

public:
    static int live;
    RefusingChild() { ++live; }
    ~RefusingChild() override { --live; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT&) override { return FALSE; }
};

int RefusingChild::live = 0;
IMPLEMENT_DYNCREATE(RefusingChild, CMDIChildWnd)

TEST_F(MdiCommands, CreateNewChild_NeedsAClassOfChildFrames)
{
    EXPECT_EQ(m_frame->CreateNewChild(RUNTIME_CLASS(CFrameWnd), IDR_LETTER), nullptr);
    EXPECT_EQ(m_frame->CreateNewChild(RUNTIME_CLASS(RefusingChild), IDR_LETTER), nullptr);
    EXPECT_EQ(RefusingChild::live, 0) << "what cannot be created deletes itself";
    CMDIChildWnd* const child = m_frame->CreateNewChild(RUNTIME_CLASS(CMDIChildWnd), IDR_LETTER);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(m_frame->MDIGetActive(), child);
    EXPECT_FALSE((new RefusingChild)->Create(nullptr, L"", WS_CHILD, CFrameWnd::rectDefault, nullptr))
        << "no parent";
    EXPECT_EQ(RefusingChild::live, 0);
}

TEST_F(MdiCommands, ADocumentWhoseFrameFailsIsReportedAndGone)
{
    auto* const refusing = new CMultiDocTemplate(IDR_QUIET, RUNTIME_CLASS(LetterDocument),
                                                 RUNTIME_CLASS(RefusingChild), RUNTIME_CLASS(LetterView));
    m_app.AddDocTemplate(refusing);
    MessageBoxProbe boxes;
    EXPECT_EQ(refusing->OpenDocumentFile(nullptr), nullptr);
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(LetterDocument::live, 0);
    EXPECT_EQ(RefusingChild::live, 0);
}

TEST_F(MdiCommands, ADocumentOfAWrongClassIsReported)
{
    auto* const wrong = new CMultiDocTemplate(IDR_QUIET, RUNTIME_CLASS(LetterView),
                                              RUNTIME_CLASS(CMDIChildWnd), RUNTIME_CLASS(LetterView));
    m_app.AddDocTemplate(wrong);
    auto* const wrongFrame = new CMultiDocTemplate(IDR_QUIET, RUNTIME_CLASS(LetterDocument),
                                                   RUNTIME_CLASS(LetterDocument), RUNTIME_CLASS(LetterView));
    m_app.AddDocTemplate(wrongFrame);
    MessageBoxProbe boxes;
    EXPECT_EQ(wrong->OpenDocumentFile(nullptr), nullptr);
    EXPECT_EQ(wrongFrame->OpenDocumentFile(nullptr), nullptr);
    EXPECT_EQ(boxes.Shown().size(), 2u);
    EXPECT_EQ(LetterDocument::live, 0);
}

TEST_F(MdiCommands, AKindWithoutANameMakesUntitledDocuments)
{
    auto* const quiet = new CMultiDocTemplate(IDR_QUIET, RUNTIME_CLASS(LetterDocument),
                                              RUNTIME_CLASS(CMDIChildWnd), RUNTIME_CLASS(LetterView));
    m_app.AddDocTemplate(quiet);
    CDocument* const document = quiet->OpenDocumentFile(nullptr);
    ASSERT_NE(document, nullptr);
    EXPECT_STREQ(document->GetTitle(), L"Untitled");
}

TEST_F(MdiCommands, TheEndOfTheSession_AsksAndCloses)
{
    LetterDocument* const letter = NewLetter();
    letter->Write(L"text");
    {
        MessageBoxProbe boxes(IDCANCEL);
        EXPECT_EQ(m_frame->SendMessage(WM_QUERYENDSESSION), FALSE);
        EXPECT_EQ(boxes.Shown().size(), 1u);
    }
    {
        MessageBoxProbe boxes(IDNO);
        EXPECT_EQ(m_frame->SendMessage(WM_QUERYENDSESSION), TRUE);
    }
    m_frame->SendMessage(WM_ENDSESSION, FALSE);
    EXPECT_EQ(LetterDocument::live, 1) << "the session goes on";
    m_frame->SendMessage(WM_ENDSESSION, TRUE);
    EXPECT_EQ(LetterDocument::live, 0);
}

// Commands that the program gets.
class PrintingFrame : public SigningFrame
{
protected:
    afx_msg void OnPrintDirect() { trace.push_back("print"); }
    afx_msg void OnClose() { trace.push_back("close"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PrintingFrame, SigningFrame)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &PrintingFrame::OnPrintDirect)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

TEST_F(MdiCommands, ACommandLineThatPrintsOpensPrintsAndCloses)
{
    m_frame->DestroyWindow();
    ForgetQuit();
    m_frame = new PrintingFrame;
    m_app.m_pMainWnd = m_frame;
    ASSERT_TRUE(m_frame->LoadFrame(IDR_MDI));
    m_window = m_frame->m_hWnd;
    MakeFile(m_folder.File(L"a.letter"), "");
    TakeTrace();
    CCommandLineInfo commandLine;
    commandLine.m_nShellCommand = CCommandLineInfo::FilePrint;
    commandLine.m_strFileName = m_folder.File(L"a.letter");
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine)) << "the program ends";
    const Log told = TakeTrace();
    ASSERT_GE(told.size(), 2u);
    EXPECT_EQ(told[told.size() - 2], "print");
    EXPECT_EQ(told.back(), "close");
    EXPECT_EQ(m_app.m_nCmdShow, SW_HIDE);
    EXPECT_EQ(LetterDocument::live, 1);

    MessageBoxProbe boxes;
    commandLine.m_nShellCommand = CCommandLineInfo::FilePrintTo;
    commandLine.m_strFileName = m_folder.File(L"nowhere.letter");
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine));
    const Log then = TakeTrace();
    EXPECT_EQ(std::count(then.begin(), then.end(), "print"), 0) << "nothing to print";
    EXPECT_EQ(boxes.Shown().size(), 1u);
}

TEST_F(MdiCommands, OtherCommandLinesGoOnOrEnd)
{
    CCommandLineInfo commandLine;
    commandLine.m_nShellCommand = CCommandLineInfo::FileDDE;
    EXPECT_TRUE(m_app.ProcessShellCommand(commandLine));
    EXPECT_EQ(m_app.m_nCmdShow, SW_HIDE) << "until it is told what to show";
    commandLine.m_nShellCommand = CCommandLineInfo::AppRegister;
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine));
    commandLine.m_nShellCommand = CCommandLineInfo::AppUnregister;
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine));
    commandLine.m_nShellCommand = CCommandLineInfo::FileOpen;
    commandLine.m_strFileName = m_folder.File(L"nowhere.letter");
    MessageBoxProbe boxes;
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine));
    EXPECT_EQ(boxes.Shown().size(), 1u);
}

TEST_F(MdiCommands, PrintSetupIsReportedAsNotThere)
{
    MessageBoxProbe boxes;
    m_app.OnFilePrintSetup();
    EXPECT_EQ(boxes.Shown().size(), 1u);
}

// A program without kinds of documents.
class ProgramWithoutDocuments : public testing::Test
{
protected:
    DocumentApp m_app;
};

TEST_F(ProgramWithoutDocuments, ReportsWhatItCannotMakeOrOpen)
{
    MessageBoxProbe boxes;
    m_app.OnFileNew();
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(m_app.OpenDocumentFile(L"c:\\some.file"), nullptr);
    EXPECT_EQ(boxes.Shown().size(), 2u);
}

TEST_F(ProgramWithoutDocuments, FileNewOfTheCommandLineComesToItsMainWindow)
{
    MessageBoxProbe boxes;
    CCommandLineInfo commandLine;
    commandLine.m_nShellCommand = CCommandLineInfo::FileNew;
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine)) << "there is no window to show";
    EXPECT_EQ(boxes.Shown().size(), 1u);
}

TEST_F(ProgramWithoutDocuments, HasNoRecentFilesWhenItWantsNone)
{
    m_app.LoadStdProfileSettings(0);
    class State : public CCmdUI
    {
    public:
        int enabled = -1;
        void Enable(BOOL on) override { enabled = on; }
    };
    State state;
    state.m_nID = ID_FILE_MRU_FILE1;
    EXPECT_TRUE(m_app.OnCmdMsg(ID_FILE_MRU_FILE1, CN_UPDATE_COMMAND_UI, &state, nullptr));
    EXPECT_EQ(state.enabled, FALSE);
    EXPECT_FALSE(m_app.OnCmdMsg(ID_FILE_MRU_FILE1, CN_COMMAND, nullptr, nullptr));
    m_app.AddToRecentFileList(L"c:\\some.file");
    EXPECT_FALSE(m_app.OnCmdMsg(ID_FILE_MRU_FILE1, CN_COMMAND, nullptr, nullptr));
}

} // namespace
