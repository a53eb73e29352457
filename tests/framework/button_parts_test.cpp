// Buttons: pictures of states, margins, split buttons, notes, and buttons that are a bitmap.
#include "tests/support/HostWindow.h"
#include "tests/support/Snapshot.h"
#include "tests/framework/ControlsResource.h"

#include <afxcmn.h>
#include <afxext.h>
#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

// Makes the controls of version 6, which programs ask for in their manifest, those of this thread until the
// end of the scope.
class VersionSix
{
public:
    VersionSix()
    {
        TCHAR folder[MAX_PATH] = {}, file[MAX_PATH] = {};
        ::GetTempPath(MAX_PATH, folder);
        ::GetTempFileName(folder, L"man", 0, file);
        constexpr char manifest[] =
            R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0"><dependency>)"
            R"(<dependentAssembly><assemblyIdentity type="win32" name="Microsoft.Windows.Common-Controls" )"
            R"(version="6.0.0.0" processorArchitecture="*" publicKeyToken="6595b64144ccf1df" language="*"/>)"
            R"(</dependentAssembly></dependency></assembly>)";
        const HANDLE handle = ::CreateFile(file, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
        DWORD written = 0;
        ::WriteFile(handle, manifest, sizeof manifest - 1, &written, NULL);
        ::CloseHandle(handle);
        ACTCTX description = {};
        description.cbSize = sizeof description;
        description.lpSource = file;
        m_context = ::CreateActCtx(&description);
        ::DeleteFile(file);
        ::ActivateActCtx(m_context, &m_cookie);
    }
    ~VersionSix()
    {
        ::DeactivateActCtx(0, m_cookie);
        ::ReleaseActCtx(m_context);
    }
    VersionSix(const VersionSix&) = delete;
    VersionSix& operator=(const VersionSix&) = delete;

private:
    HANDLE m_context = INVALID_HANDLE_VALUE;
    ULONG_PTR m_cookie = 0;
};

class ButtonParts : public testing::Test
{
protected:
    void Create(CButton& button, DWORD style = 0, LPCTSTR text = L"Text")
    {
        ASSERT_TRUE(button.Create(text, WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 110, 40), &m_host, 7));
    }

    const VersionSix m_versionSix;
    HostWindow m_host;
    CButton m_button;
};

TEST_F(ButtonParts, KeepsAnImageList)
{
    Create(m_button);
    CImageList images;
    images.Create(16, 16, ILC_COLOR32, 1, 1);
    BUTTON_IMAGELIST given = {};
    given.himl = images;
    given.uAlign = BUTTON_IMAGELIST_ALIGN_RIGHT;
    EXPECT_TRUE(m_button.SetImageList(&given));
    BUTTON_IMAGELIST got = {};
    EXPECT_TRUE(m_button.GetImageList(&got));
    EXPECT_EQ(got.himl, images.m_hImageList);
    EXPECT_EQ(got.uAlign, given.uAlign);
}

TEST_F(ButtonParts, KeepsItsTextMargin)
{
    Create(m_button);
    RECT given = {1, 2, 3, 4};
    EXPECT_TRUE(m_button.SetTextMargin(&given));
    RECT got = {};
    EXPECT_TRUE(m_button.GetTextMargin(&got));
    EXPECT_TRUE(::EqualRect(&given, &got));
}

TEST_F(ButtonParts, ALongerTextHasALargerIdealSize)
{
    Create(m_button, 0, L"a");
    SIZE small = {}, large = {};
    EXPECT_TRUE(m_button.GetIdealSize(&small));
    m_button.SetWindowText(L"a much longer text");
    EXPECT_TRUE(m_button.GetIdealSize(&large));
    EXPECT_GT(large.cx, small.cx);
}

TEST_F(ButtonParts, ASplitButtonHasAStyleASizeAndAGlyph)
{
    Create(m_button, BS_SPLITBUTTON);
    EXPECT_TRUE(m_button.SetSplitStyle(BCSS_ALIGNLEFT));
    EXPECT_EQ(m_button.GetSplitStyle(), static_cast<UINT>(BCSS_ALIGNLEFT));
    CSize size(23, 0);
    EXPECT_TRUE(m_button.SetSplitSize(&size));
    CSize got(0, 0);
    EXPECT_TRUE(m_button.GetSplitSize(&got));
    EXPECT_EQ(got.cx, 23);
    EXPECT_TRUE(m_button.SetSplitGlyph(L'x'));
    EXPECT_EQ(m_button.GetSplitGlyph(), L'x');
    CImageList images;
    images.Create(16, 16, ILC_COLOR32, 1, 1);
    EXPECT_TRUE(m_button.SetSplitImageList(&images));
    EXPECT_EQ(m_button.GetSplitImageList(), &images);
    m_button.SetDropDownState(TRUE);
    EXPECT_TRUE(m_button.GetState() & BST_DROPDOWNPUSHED);
}

TEST_F(ButtonParts, ACommandLinkHasANote)
{
    Create(m_button, BS_COMMANDLINK);
    EXPECT_TRUE(m_button.SetNote(L"what it does"));
    EXPECT_EQ(m_button.GetNoteLength(), 12u);
    EXPECT_STREQ(m_button.GetNote(), L"what it does");
    wchar_t text[5] = L"";
    UINT size = 5;
    m_button.GetNote(text, &size);
    EXPECT_STREQ(text, L"what");
}

// ---- Buttons that are a bitmap. The pictures of the test are red (up), green (down) and blue (focused).

class BitmapButtonTest : public ButtonParts
{
protected:
    COLORREF Face() const { return Snapshot(m_host.m_hWnd).At(12, 12); }

    CBitmapButton m_bitmapButton;
};

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

TEST_F(BitmapButtonTest, ShowsThePictureOfItsState)
{
    Create(m_bitmapButton, BS_OWNERDRAW);
    ASSERT_TRUE(m_bitmapButton.LoadBitmaps(L"TESTU", L"TESTD", L"TESTF"));
    m_bitmapButton.SizeToContent();
    CRect size;
    m_bitmapButton.GetClientRect(&size);
    EXPECT_EQ(size.Size(), CSize(8, 6));
    m_host.Invalidate();
    EXPECT_EQ(Face(), red);
    m_bitmapButton.SetState(TRUE);
    EXPECT_EQ(Face(), green);
    m_bitmapButton.SetState(FALSE);
    m_bitmapButton.SetFocus();
    EXPECT_EQ(Face(), blue);
    m_host.SetFocus();
    m_bitmapButton.EnableWindow(FALSE);
    EXPECT_EQ(Face(), red) << "there is none for this state";
}

TEST_F(BitmapButtonTest, LoadsByNumberAndRefusesWhatDoesNotExist)
{
    Create(m_bitmapButton, BS_OWNERDRAW);
    EXPECT_FALSE(m_bitmapButton.LoadBitmaps(4711u));
    EXPECT_TRUE(m_bitmapButton.LoadBitmaps(static_cast<UINT>(IDB_NUMBERED)));
    EXPECT_FALSE(m_bitmapButton.LoadBitmaps(IDB_NUMBERED, 4711u));
}

TEST_F(BitmapButtonTest, AutoLoadFindsThePicturesByTheText)
{
    const HWND window = ::CreateWindow(WC_BUTTON, L"TEST", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, 10, 10, 100,
                                       30, m_host, reinterpret_cast<HMENU>(7), NULL, NULL);
    EXPECT_TRUE(m_bitmapButton.AutoLoad(7, &m_host));
    EXPECT_EQ(m_bitmapButton.m_hWnd, window);
    CRect size;
    m_bitmapButton.GetClientRect(&size);
    EXPECT_EQ(size.Size(), CSize(8, 6));
    m_host.Invalidate();
    EXPECT_EQ(Face(), red);
}

} // namespace
