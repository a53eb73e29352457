// Opening files in child frames, and closing children and the main window.
#include "tests/documents/MdiFixture.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

TEST_F(MdiDocuments, AFile_IsOpenedByTheKindItFits)
{
    const CString path = m_folder.File(L"a.note");
    {
        NoteDocument note;
        note.text = L"remember";
        EXPECT_TRUE(note.OnSaveDocument(path));
    }
    CDocument* document = m_app.OpenDocumentFile(L"\"" + path + L"\"");
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetDocTemplate(), m_notes);
    EXPECT_STREQ(static_cast<LetterDocument*>(document)->text, L"remember");
    EXPECT_EQ(Title(FrameOf(document)->m_hWnd), Text(document->GetTitle()));
}

TEST_F(MdiDocuments, AFileThatIsOpen_IsOnlyShown)
{
    const CString path = m_folder.File(L"a.letter");
    LetterDocument* letter = NewLetter();
    EXPECT_TRUE(letter->OnSaveDocument(path));
    letter->SetPathName(path, FALSE);
    NewNote();
    EXPECT_EQ(m_app.OpenDocumentFile(path), letter);
    EXPECT_EQ(m_frame->MDIGetActive(), FrameOf(letter));
    EXPECT_EQ(LetterDocument::live, 2);
}

TEST_F(MdiDocuments, AFileThatIsMissing_LeavesNoChild)
{
    MessageBoxProbe boxes;
    EXPECT_EQ(m_app.OpenDocumentFile(m_folder.File(L"missing.letter")), nullptr);
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(m_frame->MDIGetActive(), nullptr);
    EXPECT_EQ(Items(Menu()), "&File");
    EXPECT_EQ(LetterDocument::live, 0);
}

TEST_F(MdiDocuments, RecentFiles_AreOpenedFromTheMenu)
{
    m_app.LoadStdProfileSettings(4);
    const CString path = m_folder.File(L"a.letter");
    LetterDocument* letter = NewLetter();
    letter->Write(L"text");
    EXPECT_TRUE(letter->OnSaveDocument(path));
    letter->SetPathName(path);
    const HMENU file = ::GetSubMenu(Menu(), 0);
    m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(file), 0);
    EXPECT_EQ(::GetMenuItemCount(file), 4);
    EXPECT_EQ(Items(file).rfind("&New|&Save|&1 ", 0), 0u);
    EXPECT_FALSE(::GetMenuState(file, 2, MF_BYPOSITION) & MF_GRAYED);
    letter->OnCloseDocument();
    m_frame->SendMessage(WM_COMMAND, ID_FILE_MRU_FILE1);
    ASSERT_NE(m_frame->MDIGetActive(), nullptr);
    EXPECT_STREQ(m_frame->MDIGetActive()->GetActiveDocument()->GetPathName(), path);
    // A file that is gone is not offered again.
    m_frame->MDIGetActive()->GetActiveDocument()->OnCloseDocument();
    ::DeleteFile(path);
    MessageBoxProbe boxes;
    m_frame->SendMessage(WM_COMMAND, ID_FILE_MRU_FILE1);
    EXPECT_EQ(boxes.Shown().size(), 1u);
    NewLetter();
    m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(file), 0);
    EXPECT_EQ(Items(file), "&New|&Save|Recent Letter|E&xit");
}

TEST_F(MdiDocuments, ClosingAChild_AsksAboutItsDocument)
{
    LetterDocument* letter = NewLetter();
    letter->Write(L"text");
    CMDIChildWnd* const child = FrameOf(letter);
    {
        MessageBoxProbe boxes(IDCANCEL);
        child->SendMessage(WM_CLOSE);
        ASSERT_EQ(boxes.Shown().size(), 1u);
        EXPECT_EQ(boxes.Shown()[0].text, L"Save changes to Letter1?");
        EXPECT_EQ(m_frame->MDIGetActive(), child);
    }
    MessageBoxProbe boxes(IDNO);
    child->SendMessage(WM_CLOSE);
    EXPECT_EQ(LetterDocument::live, 0);
    EXPECT_EQ(m_frame->MDIGetActive(), nullptr);
}

TEST_F(MdiDocuments, FileClose_ClosesAllWindowsOfTheDocument)
{
    LetterDocument* letter = NewLetter();
    m_frame->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    NewNote();
    m_frame->MDIActivate(FrameOf(letter));
    m_frame->SendMessage(WM_COMMAND, ID_FILE_CLOSE);
    EXPECT_EQ(LetterDocument::live, 1);
    EXPECT_EQ(FrameTitle(), "Writer - Note1");
}

TEST_F(MdiDocuments, ClosingTheFrame_AsksAboutAllDocuments)
{
    NewLetter()->Write(L"text");
    NewLetter();
    NewNote()->Write(L"text");
    {
        MessageBoxProbe boxes(IDCANCEL);
        m_frame->SendMessage(WM_CLOSE);
        EXPECT_EQ(boxes.Shown().size(), 1u);
        EXPECT_TRUE(m_frame->IsWindowVisible());
        EXPECT_EQ(LetterDocument::live, 3);
    }
    MessageBoxProbe boxes(IDNO);
    m_frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(boxes.Shown().size(), 2u);
    EXPECT_EQ(LetterDocument::live, 0);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
}

TEST_F(MdiDocuments, DestroyingTheFrame_TakesTheChildrenAlong)
{
    NewLetter();
    FrameOf(NewNote())->MDIMaximize();
    m_frame->DestroyWindow();
    EXPECT_EQ(LetterDocument::live, 0);
}

// Chooses an entry of the dialog that ID_FILE_NEW shows; -1 leaves the choice as it is.
class KindChooser
{
public:
    explicit KindChooser(int index, int button) : m_index(index), m_button(button)
    {
        current = this;
        m_timer = ::SetTimer(NULL, 0, 10, &KindChooser::OnTimer);
    }
    ~KindChooser()
    {
        ::KillTimer(NULL, m_timer);
        current = nullptr;
    }

    std::string entries;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND dialog = ::FindWindow(NULL, L"New");
        const HWND list = dialog != NULL ? ::GetDlgItem(dialog, AFX_IDC_LISTBOX) : NULL;
        if (list == NULL || current == nullptr || !current->entries.empty())
            return;
        for (int i = 0; i < static_cast<int>(::SendMessage(list, LB_GETCOUNT, 0, 0)); ++i)
        {
            wchar_t text[64] = {};
            ::SendMessage(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            current->entries += Text(text) + "|";
        }
        if (current->m_index >= 0)
            ::SendMessage(list, LB_SETCURSEL, static_cast<WPARAM>(current->m_index), 0);
        ::PostMessage(dialog, WM_COMMAND, static_cast<WPARAM>(current->m_button), 0);
    }

    static KindChooser* current;
    UINT_PTR m_timer;
    int m_index;
    int m_button;
};
KindChooser* KindChooser::current = nullptr;

TEST_F(MdiDocuments, FileNew_AsksForTheKind)
{
    // A kind without a name for it is not offered.
    m_app.AddDocTemplate(new CMultiDocTemplate(IDR_QUIET, RUNTIME_CLASS(LetterDocument),
                                               RUNTIME_CLASS(CMDIChildWnd), RUNTIME_CLASS(LetterView)));
    {
        KindChooser chooser(1, IDOK);
        m_app.OnFileNew();
        EXPECT_EQ(chooser.entries, "A letter|A note|");
    }
    ASSERT_NE(m_frame->MDIGetActive(), nullptr);
    EXPECT_EQ(Title(m_frame->MDIGetActive()->m_hWnd), "Note1");
    KindChooser chooser(0, IDCANCEL);
    m_app.OnFileNew();
    EXPECT_EQ(LetterDocument::live, 1);
}

TEST_F(MdiDocuments, FileNew_BeginsWithTheFirstKind)
{
    KindChooser chooser(-1, IDOK);
    m_app.OnFileNew();
    EXPECT_EQ(chooser.entries, "A letter|A note|");
    ASSERT_NE(m_frame->MDIGetActive(), nullptr);
    EXPECT_EQ(Title(m_frame->MDIGetActive()->m_hWnd), "Letter1");
}

TEST_F(MdiDocuments, ShellCommand_OpensOrMakesDocuments)
{
    CCommandLineInfo commandLine;
    commandLine.m_nShellCommand = CCommandLineInfo::FileNothing;
    EXPECT_TRUE(m_app.ProcessShellCommand(commandLine));
    EXPECT_EQ(LetterDocument::live, 0);
    const CString path = m_folder.File(L"a.letter");
    MakeFile(path, "");
    commandLine.m_nShellCommand = CCommandLineInfo::FileOpen;
    commandLine.m_strFileName = path;
    EXPECT_TRUE(m_app.ProcessShellCommand(commandLine));
    EXPECT_STREQ(m_frame->MDIGetActive()->GetActiveDocument()->GetPathName(), path);
    MessageBoxProbe boxes;
    commandLine.m_strFileName = m_folder.File(L"missing.letter");
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine));
    commandLine.m_nShellCommand = CCommandLineInfo::AppUnregister;
    EXPECT_FALSE(m_app.ProcessShellCommand(commandLine));
}

} // namespace
