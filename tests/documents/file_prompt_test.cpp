// What asks the user for a file: opening, saving under a name, and saving what has none.
#include "tests/documents/MdiFixture.h"
#include "tests/support/FilePromptProbe.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;

class FilePrompts : public MdiDocuments
{
protected:
    // An answer that takes a name in the folder of the test.
    std::function<void(HWND)> Taking(LPCTSTR name)
    {
        return [path = m_folder.File(name)](HWND dialog) { FilePromptProbe::Take(dialog, path); };
    }
    static bool Command(CCmdTarget& target, UINT id)
    {
        return target.OnCmdMsg(id, CN_COMMAND, nullptr, nullptr) != FALSE;
    }
    CString MakeLetter(LPCTSTR name, LPCTSTR text)
    {
        const CString path = m_folder.File(name);
        LetterDocument letter;
        letter.text = text;
        EXPECT_TRUE(letter.OnSaveDocument(path));
        return path;
    }
    CString TextIn(const CString& path)
    {
        LetterDocument letter;
        EXPECT_TRUE(letter.OnOpenDocument(path));
        return letter.text;
    }

    // Questions of the system would wait for ever.
    MessageBoxProbe m_boxes{IDYES};
};

TEST_F(FilePrompts, Open_OffersTheKindsOfTheProgram)
{
    FilePromptProbe prompt(&FilePromptProbe::Cancel);
    m_app.OnFileOpen();
    ASSERT_TRUE(prompt.Opened());
    EXPECT_EQ(prompt.Title(), L"Open");
    EXPECT_EQ(prompt.Filters(), L"Letters (*.letter)|Notes (*.note)|All Files (*.*)|");
    EXPECT_EQ(prompt.ProposedName(), L"");
    EXPECT_EQ(LetterDocument::live, 0);
    EXPECT_TRUE(m_frame->IsWindowEnabled());
}

TEST_F(FilePrompts, Open_OpensWhatIsTaken)
{
    const CString path = MakeLetter(L"a.letter", L"Dear reader");
    FilePromptProbe prompt(Taking(L"a.letter"));
    m_app.OnFileOpen();
    ASSERT_NE(m_frame->MDIGetActive(), nullptr);
    const auto* const document = static_cast<LetterDocument*>(m_frame->MDIGetActive()->GetActiveDocument());
    EXPECT_STREQ(document->text, L"Dear reader");
    EXPECT_STREQ(document->GetPathName(), path);
}

TEST_F(FilePrompts, SaveAs_ProposesTheTitleWithTheExtensionOfItsKind)
{
    LetterDocument* const note = NewNote();
    FilePromptProbe prompt(&FilePromptProbe::Cancel);
    EXPECT_TRUE(Command(*note, ID_FILE_SAVE_AS));
    EXPECT_EQ(prompt.Title(), L"Save As");
    EXPECT_EQ(prompt.ProposedName(), L"Note1.note");
    EXPECT_EQ(prompt.Filters(), L"Notes (*.note)|All Files (*.*)|");
    EXPECT_TRUE(note->GetPathName().IsEmpty());
}

TEST_F(FilePrompts, SaveAs_ProposesTheTitleUpToWhatNoNameMayHave)
{
    LetterDocument* const letter = NewLetter();
    letter->SetTitle(L"Plan: the first");
    FilePromptProbe prompt(&FilePromptProbe::Cancel);
    Command(*letter, ID_FILE_SAVE_AS);
    EXPECT_EQ(prompt.ProposedName(), L"Plan.letter");
}

TEST_F(FilePrompts, SaveAs_GivesTheDocumentItsNewNameAndTitle)
{
    LetterDocument* const letter = NewLetter();
    letter->Write(L"Dear reader");
    FilePromptProbe prompt(Taking(L"fresh"));
    Command(*letter, ID_FILE_SAVE_AS);
    EXPECT_STREQ(letter->GetPathName(), m_folder.File(L"fresh.letter"));
    EXPECT_EQ(Text(letter->GetTitle()).rfind("fresh", 0), 0u);
    EXPECT_FALSE(letter->IsModified());
    EXPECT_STREQ(TextIn(m_folder.File(L"fresh.letter")), L"Dear reader");
}

TEST_F(FilePrompts, SaveAs_ProposesTheNameOfTheFile)
{
    const CString path = MakeLetter(L"a.letter", L"old");
    auto* const letter = static_cast<LetterDocument*>(m_letters->OpenDocumentFile(path));
    ASSERT_NE(letter, nullptr);
    FilePromptProbe prompt(&FilePromptProbe::Cancel);
    Command(*letter, ID_FILE_SAVE_AS);
    EXPECT_EQ(prompt.ProposedName(), L"a.letter");
    EXPECT_STREQ(letter->GetPathName(), path);
}

TEST_F(FilePrompts, Save_AsksForANameWhereThereIsNone)
{
    LetterDocument* const letter = NewLetter();
    letter->Write(L"Dear reader");
    {
        FilePromptProbe prompt(&FilePromptProbe::Cancel);
        Command(*letter, ID_FILE_SAVE);
        EXPECT_TRUE(prompt.Opened());
        EXPECT_TRUE(letter->IsModified());
    }
    FilePromptProbe prompt(Taking(L"b.letter"));
    Command(*letter, ID_FILE_SAVE);
    EXPECT_FALSE(letter->IsModified());
    EXPECT_STREQ(TextIn(m_folder.File(L"b.letter")), L"Dear reader");
}

TEST_F(FilePrompts, Save_AsksForAnotherNameThanThatOfAReadOnlyFile)
{
    const CString path = MakeLetter(L"a.letter", L"old");
    auto* const letter = static_cast<LetterDocument*>(m_letters->OpenDocumentFile(path));
    ASSERT_NE(letter, nullptr);
    ::SetFileAttributes(path, FILE_ATTRIBUTE_READONLY);
    letter->Write(L"new");
    FilePromptProbe prompt(Taking(L"other.letter"));
    Command(*letter, ID_FILE_SAVE);
    EXPECT_TRUE(prompt.Opened());
    EXPECT_STREQ(TextIn(path), L"old");
    EXPECT_STREQ(TextIn(m_folder.File(L"other.letter")), L"new");
}

TEST_F(FilePrompts, ClosingAChangedDocumentStopsWhenNoNameIsTaken)
{
    LetterDocument* const letter = NewLetter();
    letter->Write(L"Dear reader");
    FilePromptProbe prompt(&FilePromptProbe::Cancel);
    EXPECT_FALSE(letter->SaveModified());
    EXPECT_TRUE(prompt.Opened());
    ASSERT_EQ(m_boxes.Shown().size(), 1u);
    letter->SetModifiedFlag(FALSE);
}

TEST_F(FilePrompts, WhatCannotBeSavedThereIsReported)
{
    LetterDocument* const letter = NewLetter();
    EXPECT_FALSE(letter->OnSaveDocument(m_folder.File(L"no such folder\\a.letter")));
    ASSERT_EQ(m_boxes.Shown().size(), 1u);
    EXPECT_NE(m_boxes.Shown()[0].text.find(L"a.letter"), std::wstring::npos);
    EXPECT_FALSE(letter->OnSaveDocument(m_folder.Path())) << "a folder";
    EXPECT_EQ(m_boxes.Shown().size(), 2u);
}

TEST_F(FilePrompts, ReportSaveLoadException_TellsTheKindsOfCausesApart)
{
    LetterDocument* const letter = NewLetter();
    const auto report = [&](int cause, BOOL saving) {
        CFileException exception(cause);
        const size_t before = m_boxes.Shown().size();
        letter->ReportSaveLoadException(L"f", &exception, saving, AFX_IDP_FAILED_TO_SAVE_DOC);
        EXPECT_EQ(m_boxes.Shown().size(), before + 1);
        return m_boxes.Shown().back().text;
    };
    EXPECT_EQ(report(CFileException::badPath, FALSE), report(CFileException::fileNotFound, FALSE));
    EXPECT_EQ(report(CFileException::diskFull, TRUE), report(CFileException::directoryFull, TRUE));
    EXPECT_EQ(report(CFileException::accessDenied, TRUE), report(CFileException::lockViolation, TRUE));
    EXPECT_NE(report(CFileException::accessDenied, TRUE), report(CFileException::accessDenied, FALSE));
    const std::wstring failedReading = report(CFileException::hardIO, FALSE);
    for (const int cause :
         {CFileException::badSeek, CFileException::tooManyOpenFiles, CFileException::invalidFile})
        EXPECT_EQ(report(cause, FALSE), failedReading);
    EXPECT_NE(report(CFileException::hardIO, TRUE), failedReading);
    CArchiveException archive(CArchiveException::endOfFile);
    letter->ReportSaveLoadException(L"f", &archive, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
    EXPECT_EQ(m_boxes.Shown().back().text, report(CFileException::hardIO, TRUE));
}

} // namespace
