// A main window with two kinds of documents.
#pragma once

#include "tests/documents/DocumentApp.h"
#include "tests/support/Input.h"

namespace quor::test
{

class MdiDocuments : public testing::Test
{
protected:
    MdiDocuments()
        : m_letters(new CMultiDocTemplate(IDR_LETTER, RUNTIME_CLASS(LetterDocument),
                                          RUNTIME_CLASS(CMDIChildWnd), RUNTIME_CLASS(LetterView))),
          m_notes(new CMultiDocTemplate(IDR_NOTE, RUNTIME_CLASS(NoteDocument), RUNTIME_CLASS(CMDIChildWnd),
                                        RUNTIME_CLASS(LetterView))),
          m_frame(new SigningFrame)
    {
        m_app.AddDocTemplate(m_letters);
        m_app.AddDocTemplate(m_notes);
        m_app.m_pMainWnd = m_frame;
        EXPECT_TRUE(m_frame->LoadFrame(IDR_MDI));
        m_window = m_frame->m_hWnd;
        m_frame->ShowWindow(SW_SHOWNORMAL);
        Activate(m_window);
        TakeTrace();
    }
    ~MdiDocuments() override
    {
        if (::IsWindow(m_window))
            m_frame->DestroyWindow();
        ForgetQuit();
        EXPECT_EQ(LetterDocument::live, 0);
    }

    static CMDIChildWnd* FrameOf(CDocument* document, int number = 0)
    {
        POSITION position = document->GetFirstViewPosition();
        CView* view = document->GetNextView(position);
        for (int i = 0; i < number; ++i)
            view = document->GetNextView(position);
        return static_cast<CMDIChildWnd*>(view->GetParentFrame());
    }
    LetterDocument* NewLetter() { return static_cast<LetterDocument*>(m_letters->OpenDocumentFile(NULL)); }
    LetterDocument* NewNote() { return static_cast<LetterDocument*>(m_notes->OpenDocumentFile(NULL)); }
    std::string FrameTitle() const { return Title(m_window); }
    HMENU Menu() const { return ::GetMenu(m_window); }

    DocumentApp m_app;
    TemporaryFolder m_folder;
    CMultiDocTemplate* m_letters;
    CMultiDocTemplate* m_notes;
    SigningFrame* m_frame;
    HWND m_window;
};

} // namespace quor::test
