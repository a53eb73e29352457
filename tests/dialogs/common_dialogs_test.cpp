// CColorDialog, CFontDialog and CFindReplaceDialog.
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <afxdlgs.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <functional>

namespace
{

using namespace quor::test;

// Runs what the test says as the first message that the open dialog handles.
template <class TDialog> class Scripted : public TDialog
{
public:
    using TDialog::TDialog;

    std::function<void()> inLoop;
    int initCalls = 0;

    void Press(int id) { this->PostMessage(WM_COMMAND, static_cast<WPARAM>(id)); }

protected:
    BOOL OnInitDialog() override
    {
        ++initCalls;
        this->PostMessage(WM_APP);
        return TDialog::OnInitDialog();
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP && inLoop)
            inLoop();
        return TDialog::WindowProc(message, wParam, lParam);
    }
};

class ColorDialog : public Scripted<CColorDialog>
{
public:
    using Scripted::Scripted;
    std::function<BOOL()> colorOk = [] { return FALSE; };
    COLORREF colourSet = 0;

protected:
    BOOL OnColorOK() override { return colorOk(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == ::RegisterWindowMessage(SETRGBSTRING))
            colourSet = static_cast<COLORREF>(lParam);
        return Scripted::WindowProc(message, wParam, lParam);
    }
};

TEST(CColorDialogTest, GivesTheColourItBeganWith)
{
    HostWindow host;
    ColorDialog dialog(RGB(10, 20, 30), 0, &host);
    dialog.inLoop = [&] { dialog.Press(IDOK); };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(RGB(10, 20, 30), dialog.GetColor());
    EXPECT_EQ(1, dialog.initCalls);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(CColorDialogTest, CanBeCancelled)
{
    HostWindow host;
    ColorDialog dialog(0, 0, &host);
    BOOL hostEnabled = TRUE;
    dialog.inLoop = [&] {
        hostEnabled = host.IsWindowEnabled();
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_FALSE(hostEnabled);
    EXPECT_TRUE(host.IsWindowEnabled());
}

TEST(CColorDialogTest, AColourCanBeRefused)
{
    HostWindow host;
    ColorDialog dialog(RGB(255, 0, 0), 0, &host);
    dialog.colorOk = [&] { return dialog.GetColor() == RGB(0, 0, 255); };
    UINT_PTR blueRefused = 0, greenRefused = 1;
    dialog.inLoop = [&] {
        // As the system asks before it closes the dialog.
        const UINT colourOk = ::RegisterWindowMessage(COLOROKSTRING);
        CHOOSECOLOR chosen = dialog.m_cc;
        chosen.rgbResult = RGB(0, 0, 255);
        blueRefused = dialog.m_cc.lpfnHook(dialog.m_hWnd, colourOk, 0, reinterpret_cast<LPARAM>(&chosen));
        chosen.rgbResult = RGB(0, 255, 0);
        greenRefused = dialog.m_cc.lpfnHook(dialog.m_hWnd, colourOk, 0, reinterpret_cast<LPARAM>(&chosen));
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(1u, blueRefused);
    EXPECT_EQ(0u, greenRefused);
}

TEST(CColorDialogTest, SetCurrentColorTellsTheDialog)
{
    HostWindow host;
    ColorDialog dialog(RGB(255, 0, 0), 0, &host);
    dialog.inLoop = [&] {
        dialog.SetCurrentColor(RGB(0, 0, 255));
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(RGB(0, 0, 255), dialog.colourSet);
}

TEST(CColorDialogTest, CustomColoursAreSharedAndBeginWhite)
{
    COLORREF* colours = CColorDialog::GetSavedCustomColors();
    EXPECT_EQ(RGB(255, 255, 255), colours[15]);
    CColorDialog dialog;
    EXPECT_EQ(colours, dialog.m_cc.lpCustColors);
}

int CALLBACK TakeScalableFont(const LOGFONT* font, const TEXTMETRIC*, DWORD kind, LPARAM name)
{
    if ((kind & TRUETYPE_FONTTYPE) == 0 || font->lfFaceName[0] == '@' || font->lfCharSet == SYMBOL_CHARSET)
        return 1;
    *reinterpret_cast<CString*>(name) = font->lfFaceName;
    return 0;
}

// The name of a font that this system has.
CString SomeFont()
{
    CString name;
    CClientDC screen(CWnd::GetDesktopWindow());
    LOGFONT all = {};
    all.lfCharSet = ANSI_CHARSET;
    ::EnumFontFamiliesEx(screen, &all, TakeScalableFont, reinterpret_cast<LPARAM>(&name), 0);
    return name;
}

TEST(CFontDialogTest, GivesTheFontItBeganWith)
{
    const CString face = SomeFont();
    ASSERT_FALSE(face.IsEmpty());
    HostWindow host;
    LOGFONT initial = {};
    initial.lfHeight = -16;
    initial.lfWeight = FW_BOLD;
    initial.lfItalic = TRUE;
    lstrcpyn(initial.lfFaceName, face, LF_FACESIZE);
    Scripted<CFontDialog> dialog(&initial, CF_EFFECTS | CF_SCREENFONTS, nullptr, &host);
    LOGFONT shown = {};
    dialog.inLoop = [&] {
        dialog.GetCurrentFont(&shown);
        dialog.Press(IDOK);
    };
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_STREQ(face, dialog.GetFaceName());
    EXPECT_STREQ(face, shown.lfFaceName);
    EXPECT_EQ(FW_BOLD, dialog.GetWeight());
    EXPECT_TRUE(dialog.IsBold());
    EXPECT_TRUE(dialog.IsItalic());
    EXPECT_FALSE(dialog.IsUnderline());
    EXPECT_FALSE(dialog.IsStrikeOut());
    EXPECT_EQ(120, dialog.GetSize()) << "16 pixels at 96 per inch";
    LOGFONT chosen = {};
    dialog.GetCurrentFont(&chosen);
    EXPECT_STREQ(face, chosen.lfFaceName);
}

TEST(CFontDialogTest, TakesAndGivesCharacterFormats)
{
    const CString face = SomeFont();
    HostWindow host;
    CHARFORMAT format = {};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_SIZE | CFM_FACE | CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_COLOR;
    format.dwEffects = CFE_ITALIC | CFE_UNDERLINE;
    format.yHeight = 240;
    format.crTextColor = RGB(255, 0, 0);
    lstrcpyn(format.szFaceName, face, LF_FACESIZE);
    Scripted<CFontDialog> dialog(format, CF_SCREENFONTS, nullptr, &host);
    dialog.inLoop = [&] { dialog.Press(IDOK); };
    ASSERT_EQ(IDOK, dialog.DoModal());
    CHARFORMAT chosen = {};
    dialog.GetCharFormat(chosen);
    EXPECT_STREQ(face, chosen.szFaceName);
    EXPECT_EQ(240, chosen.yHeight);
    EXPECT_EQ(static_cast<DWORD>(CFE_ITALIC | CFE_UNDERLINE), chosen.dwEffects);
    EXPECT_EQ(RGB(255, 0, 0), chosen.crTextColor);
    EXPECT_EQ(RGB(255, 0, 0), dialog.GetColor());
}

// Hears of what the user does in the dialog.
class FindHost : public HostWindow
{
public:
    std::string log;
    CFindReplaceDialog* notifier = NULL;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        static const UINT find = ::RegisterWindowMessage(FINDMSGSTRING);
        if (message == find)
        {
            notifier = CFindReplaceDialog::GetNotifier(lParam);
            log += notifier->IsTerminating()    ? "end"
                   : notifier->FindNext()       ? "find "
                   : notifier->ReplaceCurrent() ? "replace "
                   : notifier->ReplaceAll()     ? "all "
                                                : "? ";
            if (!notifier->IsTerminating())
                log += CStringA(notifier->GetFindString() + _T(">") + notifier->GetReplaceString()) +
                       (notifier->MatchCase() ? " case" : "") + (notifier->SearchDown() ? " down" : "") +
                       (notifier->MatchWholeWord() ? " word; " : "; ");
        }
        return HostWindow::WindowProc(message, wParam, lParam);
    }
};

class CountedFindDialog : public CFindReplaceDialog
{
public:
    ~CountedFindDialog() override { ++deleted; }
    static int deleted;
};
int CountedFindDialog::deleted = 0;

TEST(CFindReplaceDialogTest, TellsItsParentAndDeletesItself)
{
    FindHost host;
    CountedFindDialog::deleted = 0;
    CountedFindDialog* dialog = new CountedFindDialog;
    ASSERT_TRUE(dialog->Create(TRUE, _T("needle"), NULL, FR_DOWN | FR_MATCHCASE, &host));
    EXPECT_TRUE(dialog->IsWindowVisible());
    dialog->SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(dialog, host.notifier);
    EXPECT_EQ("find needle> case down; ", host.log);
    EXPECT_EQ(0, CountedFindDialog::deleted);
    host.log.clear();
    dialog->SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ("end", host.log);
    EXPECT_EQ(1, CountedFindDialog::deleted);
}

TEST(CFindReplaceDialogTest, Replaces)
{
    FindHost host;
    CFindReplaceDialog* dialog = new CFindReplaceDialog;
    ASSERT_TRUE(dialog->Create(FALSE, _T("old"), _T("new"), FR_DOWN | FR_WHOLEWORD, &host));
    dialog->SetDlgItemText(edt2, _T("newer"));
    dialog->SendMessage(WM_COMMAND, psh1);
    dialog->SendMessage(WM_COMMAND, psh2);
    EXPECT_EQ("replace old>newer down word; all old>newer down word; ", host.log);
    dialog->DestroyWindow();
}

TEST(CFindReplaceDialogTest, KeysWorkThroughTheMessagePump)
{
    FindHost host;
    CFindReplaceDialog* dialog = new CFindReplaceDialog;
    ASSERT_TRUE(dialog->Create(TRUE, _T("needle"), NULL, FR_DOWN, &host));
    PostKey(::GetDlgItem(dialog->m_hWnd, edt1), VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return host.log == "end"; }));
}

} // namespace
