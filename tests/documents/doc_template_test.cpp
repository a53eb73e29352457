// Templates: their strings, which files they know, and how they open single documents.
#include "tests/documents/DocumentApp.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

// An application with one kind of document at a time.
class SingleDocuments : public testing::Test
{
protected:
    SingleDocuments()
        : m_template(new CSingleDocTemplate(IDR_LETTER, RUNTIME_CLASS(LetterDocument),
                                            RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(LetterView)))
    {
        m_app.AddDocTemplate(m_template);
    }
    ~SingleDocuments() override
    {
        if (m_app.m_pMainWnd != NULL)
            m_app.m_pMainWnd->DestroyWindow();
        ForgetQuit();
        EXPECT_EQ(LetterDocument::live, 0);
    }

    LetterDocument* Open(LPCTSTR path)
    {
        return static_cast<LetterDocument*>(m_template->OpenDocumentFile(path));
    }
    CString MakeLetter(LPCTSTR name, LPCTSTR text)
    {
        LetterDocument letter;
        letter.text = text;
        EXPECT_TRUE(letter.OnSaveDocument(m_folder.File(name)));
        return m_folder.File(name);
    }
    std::string FrameTitle() const { return Title(m_app.m_pMainWnd->GetSafeHwnd()); }

    DocumentApp m_app;
    TemporaryFolder m_folder;
    CSingleDocTemplate* m_template;
};

TEST_F(SingleDocuments, TheString_HasSevenParts)
{
    const char* const parts[] = {"Writer",  "Letter",          "A letter",        "Letters (*.letter)",
                                 ".letter", "QuorTest.Letter", "Quor test letter"};
    CString part;
    for (int i = 0; i < 7; ++i)
    {
        EXPECT_TRUE(m_template->GetDocString(part, static_cast<CDocTemplate::DocStringIndex>(i)));
        EXPECT_EQ(Text(part), parts[i]);
    }
    EXPECT_FALSE(m_template->GetDocString(part, static_cast<CDocTemplate::DocStringIndex>(7)));
    EXPECT_TRUE(part.IsEmpty());
}

TEST_F(SingleDocuments, ANewDocument_ComesWithItsFrame)
{
    LetterDocument* document = Open(NULL);
    ASSERT_NE(document, nullptr);
    ASSERT_NE(m_app.m_pMainWnd, nullptr);
    EXPECT_EQ(FrameTitle(), "Letter - Writer");
    EXPECT_TRUE(m_app.m_pMainWnd->IsWindowVisible());
    EXPECT_EQ(static_cast<CFrameWnd*>(m_app.m_pMainWnd)->GetActiveDocument(), document);
    EXPECT_EQ(document->GetDocTemplate(), m_template);
    POSITION position = m_template->GetFirstDocPosition();
    EXPECT_EQ(m_template->GetNextDoc(position), document);
    EXPECT_EQ(position, nullptr);
}

TEST_F(SingleDocuments, AFile_IsOpenedInTheSameFrame)
{
    LetterDocument* document = Open(NULL);
    CWnd* const frame = m_app.m_pMainWnd;
    const CString path = MakeLetter(L"a.letter", L"Dear reader");
    EXPECT_EQ(Open(path), document);
    EXPECT_EQ(m_app.m_pMainWnd, frame);
    EXPECT_STREQ(document->text, L"Dear reader");
    EXPECT_STREQ(document->GetPathName(), path);
    EXPECT_EQ(FrameTitle(), Text(document->GetTitle()) + " - Writer");
    EXPECT_EQ(Open(NULL), document);
    EXPECT_EQ(FrameTitle(), "Letter - Writer");
    EXPECT_TRUE(document->text.IsEmpty());
}

TEST_F(SingleDocuments, AModifiedDocument_IsAskedAbout)
{
    LetterDocument* document = Open(NULL);
    document->Write(L"kept");
    {
        MessageBoxProbe boxes(IDCANCEL);
        EXPECT_EQ(Open(NULL), nullptr);
        EXPECT_EQ(boxes.Shown().size(), 1u);
        EXPECT_STREQ(document->text, L"kept");
    }
    MessageBoxProbe boxes(IDNO);
    EXPECT_EQ(Open(NULL), document);
    EXPECT_TRUE(document->text.IsEmpty());
}

TEST_F(SingleDocuments, AFileThatIsMissing_KeepsTheDocument)
{
    LetterDocument* document = Open(NULL);
    document->Write(L"kept");
    MessageBoxProbe boxes(IDNO);
    EXPECT_EQ(Open(m_folder.File(L"missing.letter")), nullptr);
    EXPECT_STREQ(document->text, L"kept");
    EXPECT_TRUE(document->IsModified());
}

TEST_F(SingleDocuments, AFileThatIsBroken_LeavesANewDocument)
{
    LetterDocument* document = Open(MakeLetter(L"good.letter", L"good"));
    MessageBoxProbe boxes;
    EXPECT_EQ(Open(MakeLetter(L"bad.letter", L"broken")), nullptr);
    EXPECT_TRUE(document->text.IsEmpty());
    EXPECT_TRUE(document->GetPathName().IsEmpty());
    EXPECT_EQ(FrameTitle(), "Letter - Writer");
}

TEST_F(SingleDocuments, AFirstFileThatIsMissing_LeavesNothing)
{
    MessageBoxProbe boxes;
    EXPECT_EQ(Open(m_folder.File(L"missing.letter")), nullptr);
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
    EXPECT_EQ(m_template->GetFirstDocPosition(), nullptr);
    EXPECT_EQ(LetterDocument::live, 0);
}

TEST_F(SingleDocuments, ClosingTheFrame_AsksAndEndsTheProgram)
{
    LetterDocument* document = Open(NULL);
    document->Write(L"text");
    CWnd* const frame = m_app.m_pMainWnd;
    {
        MessageBoxProbe boxes(IDCANCEL);
        frame->SendMessage(WM_CLOSE);
        EXPECT_EQ(m_app.m_pMainWnd, frame);
        EXPECT_TRUE(frame->IsWindowVisible());
    }
    MessageBoxProbe boxes(IDNO);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
    EXPECT_EQ(LetterDocument::live, 0);
    EXPECT_EQ(boxes.Shown().size(), 1u);
}

TEST_F(SingleDocuments, TheEndOfTheSession_AsksFirst)
{
    Open(NULL)->Write(L"text");
    {
        MessageBoxProbe boxes(IDCANCEL);
        EXPECT_FALSE(m_app.m_pMainWnd->SendMessage(WM_QUERYENDSESSION));
    }
    MessageBoxProbe boxes(IDNO);
    EXPECT_TRUE(m_app.m_pMainWnd->SendMessage(WM_QUERYENDSESSION));
}

TEST_F(SingleDocuments, Match_KnowsExtensionsAndOpenFiles)
{
    CDocument* match = NULL;
    EXPECT_EQ(m_template->MatchDocType(L"c:\\a.LETTER", match), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(m_template->MatchDocType(L"c:\\a.txt", match), CDocTemplate::yesAttemptForeign);
    EXPECT_EQ(match, nullptr);
    const CString path = MakeLetter(L"a.letter", L"text");
    LetterDocument* document = Open(path);
    EXPECT_EQ(m_template->MatchDocType(path, match), CDocTemplate::yesAlreadyOpen);
    EXPECT_EQ(match, document);
}

TEST_F(SingleDocuments, Commands_GoOnFromViewToDocumentAndApplication)
{
    LetterDocument* document = Open(NULL);
    TakeTrace();
    m_app.m_pMainWnd->SendMessage(WM_COMMAND, ID_LETTER_STAMP);
    EXPECT_EQ(TakeTrace(), (Log{"stamp Letter"}));
    document->Write(L"text");
    MessageBoxProbe boxes(IDNO);
    m_app.m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_CLOSE);
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(LetterDocument::live, 0);
}

TEST(DocumentTemplates, ADocumentThatRefuses_LeavesNoFrame)
{
    DocumentApp app;
    CSingleDocTemplate* const refusing = new CSingleDocTemplate(
        IDR_LETTER, RUNTIME_CLASS(RefusingDocument), RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(LetterView));
    app.AddDocTemplate(refusing);
    EXPECT_EQ(refusing->OpenDocumentFile(NULL), nullptr);
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    EXPECT_EQ(refusing->GetFirstDocPosition(), nullptr);
}

TEST(DocumentTemplates, AClassThatIsNoDocument_IsReported)
{
    DocumentApp app;
    CSingleDocTemplate* const wrong = new CSingleDocTemplate(
        IDR_LETTER, RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(LetterView));
    app.AddDocTemplate(wrong);
    MessageBoxProbe boxes;
    EXPECT_EQ(wrong->OpenDocumentFile(NULL), nullptr);
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(boxes.Shown()[0].text, L"A new document could not be created.");
}

TEST(DocumentTemplates, TheApplicationWalksThemInOrder)
{
    DocumentApp app;
    EXPECT_EQ(app.GetFirstDocTemplatePosition(), nullptr);
    CDocTemplate* made[2] = {};
    for (CDocTemplate*& each : made)
    {
        each = new CSingleDocTemplate(IDR_LETTER, RUNTIME_CLASS(LetterDocument), RUNTIME_CLASS(CFrameWnd),
                                      RUNTIME_CLASS(LetterView));
        app.AddDocTemplate(each);
    }
    POSITION position = app.GetFirstDocTemplatePosition();
    EXPECT_EQ(app.GetNextDocTemplate(position), made[0]);
    EXPECT_EQ(app.GetNextDocTemplate(position), made[1]);
    EXPECT_EQ(position, nullptr);
}

TEST(DocumentTemplates, WithoutAny_FilesCannotBeOpened)
{
    DocumentApp app;
    MessageBoxProbe boxes;
    EXPECT_EQ(app.OpenDocumentFile(L"c:\\a.letter"), nullptr);
    app.OnFileNew();
    ASSERT_EQ(boxes.Shown().size(), 2u);
    EXPECT_EQ(boxes.Shown()[0].text, L"The document could not be opened.");
    EXPECT_EQ(boxes.Shown()[1].text, L"A new document could not be created.");
}

std::string ClassValue(LPCTSTR key)
{
    TCHAR value[MAX_PATH] = {};
    LONG bytes = sizeof value;
    return ::RegQueryValue(HKEY_CLASSES_ROOT, key, value, &bytes) == ERROR_SUCCESS ? Text(value) : "none";
}

TEST(DocumentTemplates, KindsOfFiles_AreEnteredIntoTheRegistryAndTakenOut)
{
    DocumentApp app;
    app.AddDocTemplate(new CSingleDocTemplate(IDR_LETTER, RUNTIME_CLASS(LetterDocument),
                                              RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(LetterView)));
    app.RegisterShellFileTypes();
    EXPECT_EQ(ClassValue(L".letter"), "QuorTest.Letter");
    EXPECT_EQ(ClassValue(L"QuorTest.Letter"), "Quor test letter");
    TCHAR program[MAX_PATH] = {};
    ::GetModuleFileName(NULL, program, MAX_PATH);
    EXPECT_EQ(ClassValue(L"QuorTest.Letter\\shell\\open\\command"), "\"" + Text(program) + "\" \"%1\"");
    EXPECT_EQ(ClassValue(L"QuorTest.Letter\\DefaultIcon"), Text(program) + ",1");
    app.UnregisterShellFileTypes();
    EXPECT_EQ(ClassValue(L".letter"), "none");
    EXPECT_EQ(ClassValue(L"QuorTest.Letter"), "none");
}

} // namespace
