// Documents and their files: names, reading and writing, and what is asked before they go.
#include "tests/documents/DocumentApp.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

class Documents : public testing::Test
{
protected:
    Documents() { m_document.m_bAutoDelete = FALSE; }

    void MakeLetter(const CString& path, LPCTSTR text)
    {
        LetterDocument letter;
        letter.text = text;
        EXPECT_TRUE(letter.OnSaveDocument(path));
    }

    DocumentApp m_app;
    TemporaryFolder m_folder;
    LetterDocument m_document;
};

TEST_F(Documents, PathName_GivesTheTitle)
{
    m_document.SetPathName(m_folder.File(L"sub\\..\\hello.letter"), FALSE);
    EXPECT_STREQ(m_document.GetPathName(), m_folder.File(L"hello.letter"));
    EXPECT_EQ(Text(m_document.GetTitle()).rfind("hello", 0), 0u);
    m_document.ClearPathName();
    EXPECT_TRUE(m_document.GetPathName().IsEmpty());
}

TEST_F(Documents, AreWrittenAndReadBack)
{
    const CString path = m_folder.File(L"a.letter");
    m_document.Write(L"Dear reader");
    EXPECT_TRUE(m_document.OnSaveDocument(path));
    EXPECT_FALSE(m_document.IsModified());
    m_document.Write(L"something else");
    EXPECT_TRUE(m_document.OnOpenDocument(path));
    EXPECT_STREQ(m_document.text, L"Dear reader");
    EXPECT_FALSE(m_document.IsModified());
}

TEST_F(Documents, AnEmptyFile_IsAnEmptyDocument)
{
    MakeFile(m_folder.File(L"empty"), "");
    m_document.Write(L"text");
    EXPECT_TRUE(m_document.OnOpenDocument(m_folder.File(L"empty")));
    EXPECT_TRUE(m_document.text.IsEmpty());
}

TEST_F(Documents, SavingOverAFile_LeavesOnlyTheNewOne)
{
    const CString path = m_folder.File(L"a.letter");
    MakeLetter(path, L"a rather long text that the next one does not cover");
    MakeLetter(path, L"short");
    EXPECT_TRUE(m_document.OnOpenDocument(path));
    EXPECT_STREQ(m_document.text, L"short");
    WIN32_FIND_DATA found;
    int files = 0;
    const HANDLE search = ::FindFirstFile(m_folder.File(L"*"), &found);
    for (BOOL more = TRUE; more; more = ::FindNextFile(search, &found))
        files += (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    ::FindClose(search);
    EXPECT_EQ(files, 1);
}

TEST_F(Documents, AFailedSave_KeepsTheOldFile)
{
    const CString path = m_folder.File(L"a.letter");
    MakeLetter(path, L"old");
    const std::string before = BytesOf(path);
    m_document.Write(L"unwritable");
    MessageBoxProbe boxes;
    EXPECT_FALSE(m_document.OnSaveDocument(path));
    EXPECT_TRUE(m_document.IsModified());
    EXPECT_EQ(BytesOf(path), before);
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(boxes.Shown()[0].text, L"There is no room on the disk for " + std::wstring(path) + L".");
}

TEST_F(Documents, AMissingFile_LeavesTheDocumentAlone)
{
    m_document.Write(L"text");
    MessageBoxProbe boxes;
    EXPECT_FALSE(m_document.OnOpenDocument(m_folder.File(L"nowhere.letter")));
    EXPECT_STREQ(m_document.text, L"text");
    EXPECT_TRUE(m_document.IsModified());
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_NE(boxes.Shown()[0].text.find(L"nowhere.letter was not found."), std::wstring::npos);
}

TEST_F(Documents, AFileThatCannotBeRead_EmptiesTheDocument)
{
    MakeLetter(m_folder.File(L"a.letter"), L"broken");
    m_document.text = L"text";
    MessageBoxProbe boxes;
    EXPECT_FALSE(m_document.OnOpenDocument(m_folder.File(L"a.letter")));
    EXPECT_TRUE(m_document.text.IsEmpty());
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_NE(boxes.Shown()[0].text.find(L"is not in a format"), std::wstring::npos);
}

TEST_F(Documents, ReportSaveLoadException_SaysTheCauseItKnows)
{
    MessageBoxProbe boxes;
    CFileException sharing(CFileException::sharingViolation), unknown(CFileException::genericException);
    CUserException told;
    m_document.ReportSaveLoadException(L"f", &sharing, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
    m_document.ReportSaveLoadException(L"f", &sharing, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
    m_document.ReportSaveLoadException(L"f", &unknown, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
    m_document.ReportSaveLoadException(L"f", NULL, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
    m_document.ReportSaveLoadException(L"f", &told, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
    ASSERT_EQ(boxes.Shown().size(), 4u);
    EXPECT_EQ(boxes.Shown()[0].text.rfind(L"f could not be written:", 0), 0u);
    EXPECT_EQ(boxes.Shown()[1].text.rfind(L"f could not be read:", 0), 0u);
    EXPECT_EQ(boxes.Shown()[2].text, L"The document could not be saved.");
    EXPECT_EQ(boxes.Shown()[3].text, L"The document could not be opened.");
}

TEST_F(Documents, SaveModified_AsksOnlyAboutChanges)
{
    MessageBoxProbe boxes(IDNO);
    EXPECT_TRUE(m_document.SaveModified());
    EXPECT_TRUE(boxes.Shown().empty());
    m_document.Write(L"text");
    EXPECT_TRUE(m_document.SaveModified());
    m_document.SetTitle(L"Plan");
    EXPECT_TRUE(m_document.SaveModified());
    ASSERT_EQ(boxes.Shown().size(), 2u);
    EXPECT_EQ(boxes.Shown()[0].text, L"Save changes to Untitled?");
    EXPECT_EQ(boxes.Shown()[1].text, L"Save changes to Plan?");
    EXPECT_EQ(boxes.Shown()[1].buttons, (std::vector<int>{IDCANCEL, IDYES, IDNO}));
    EXPECT_TRUE(m_document.IsModified());
}

TEST_F(Documents, SaveModified_SavesOrStops)
{
    const CString path = m_folder.File(L"a.letter");
    m_document.SetPathName(path, FALSE);
    m_document.Write(L"text");
    {
        MessageBoxProbe boxes(IDCANCEL);
        EXPECT_FALSE(m_document.SaveModified());
        EXPECT_EQ(::GetFileAttributes(path), INVALID_FILE_ATTRIBUTES);
    }
    MessageBoxProbe boxes(IDYES);
    EXPECT_TRUE(m_document.SaveModified());
    EXPECT_FALSE(m_document.IsModified());
    EXPECT_TRUE(m_document.OnOpenDocument(path));
    EXPECT_STREQ(m_document.text, L"text");
}

TEST_F(Documents, SaveModified_StopsWhenTheFileCannotBeWritten)
{
    m_document.SetPathName(m_folder.File(L"a.letter"), FALSE);
    m_document.Write(L"unwritable");
    MessageBoxProbe boxes(IDYES);
    EXPECT_FALSE(m_document.SaveModified());
    EXPECT_EQ(boxes.Shown().size(), 2u);
}

TEST_F(Documents, TheFileSaveCommand_WritesTheFile)
{
    const CString path = m_folder.File(L"a.letter");
    m_document.SetPathName(path, FALSE);
    m_document.Write(L"by command");
    EXPECT_TRUE(m_document.OnCmdMsg(ID_FILE_SAVE, CN_COMMAND, NULL, NULL));
    EXPECT_FALSE(m_document.IsModified());
    EXPECT_TRUE(m_document.OnOpenDocument(path));
    EXPECT_STREQ(m_document.text, L"by command");
}

TEST_F(Documents, Saving_EntersTheFileIntoTheRecentOnes)
{
    m_app.LoadStdProfileSettings(2);
    m_document.SetPathName(m_folder.File(L"a.letter"));
    m_app.CWinApp::ExitInstance();
    EXPECT_STREQ(m_app.GetProfileString(L"Recent File List", L"File1"), m_folder.File(L"a.letter"));
    m_app.WriteProfileString(L"Recent File List", NULL, NULL);
}

TEST_F(Documents, NewDocument_ForgetsThePath)
{
    m_document.SetPathName(m_folder.File(L"a.letter"), FALSE);
    m_document.Write(L"text");
    EXPECT_TRUE(m_document.OnNewDocument());
    EXPECT_TRUE(m_document.GetPathName().IsEmpty());
    EXPECT_TRUE(m_document.text.IsEmpty());
    EXPECT_FALSE(m_document.IsModified());
}

} // namespace
