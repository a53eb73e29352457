// An application with documents, in place of the test program's own.
#include "tests/documents/DocumentApp.h"

namespace quor::test
{

Log trace;

Log TakeTrace()
{
    return std::exchange(trace, {});
}

IMPLEMENT_DYNCREATE(LetterDocument, CDocument)

BEGIN_MESSAGE_MAP(LetterDocument, CDocument)
    ON_COMMAND(ID_LETTER_STAMP, &LetterDocument::OnStamp)
END_MESSAGE_MAP()

int LetterDocument::live = 0;

void LetterDocument::Serialize(CArchive& archive)
{
    EXPECT_EQ(archive.m_pDocument, this);
    if (archive.IsStoring())
    {
        archive << text;
        if (text == L"unwritable")
            AfxThrowFileException(CFileException::diskFull);
    }
    else
    {
        archive >> text;
        if (text == L"broken")
            AfxThrowArchiveException(CArchiveException::badSchema);
    }
}

IMPLEMENT_DYNCREATE(NoteDocument, LetterDocument)
IMPLEMENT_DYNCREATE(RefusingDocument, CDocument)
IMPLEMENT_DYNCREATE(LetterView, CView)

BEGIN_MESSAGE_MAP(SigningFrame, CMDIFrameWnd)
    ON_COMMAND(ID_FRAME_SIGN, &SigningFrame::OnSign)
END_MESSAGE_MAP()

std::string Text(const CString& text)
{
    return std::string(CStringA(text));
}

std::string Title(HWND window)
{
    wchar_t text[256] = {};
    ::GetWindowText(window, text, 256);
    return Text(text);
}

std::string Items(HMENU menu)
{
    std::string items;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i)
    {
        wchar_t text[128] = {};
        ::GetMenuString(menu, static_cast<UINT>(i), text, 128, MF_BYPOSITION);
        items += (i > 0 ? "|" : "") + Text(text);
    }
    return items;
}

void ForgetQuit()
{
    MSG message;
    while (::PeekMessage(&message, NULL, WM_QUIT, WM_QUIT, PM_REMOVE))
    {
    }
}

} // namespace quor::test
