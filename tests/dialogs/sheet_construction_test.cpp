// Property sheets and pages: every way to construct them, pictures and headers of wizards, titles, defaults.
#include "tests/dialogs/TestSheet.h"
#include "tests/framework/BadArguments.h"
#include "tests/support/HostWindow.h"

namespace
{

using namespace quor::test;

// Its protected parts.
class OpenPage : public CPropertyPage
{
public:
    using CPropertyPage::CPropertyPage;
};

TEST(PageConstruction, ByNumberOrName)
{
    CPropertyPage byNumber(IDD_FIRST_PAGE, IDS_FIRST_PAGE);
    EXPECT_EQ(byNumber.m_psp.pszTemplate, MAKEINTRESOURCE(IDD_FIRST_PAGE));
    EXPECT_STREQ(byNumber.m_psp.pszTitle, L"Renamed");
    EXPECT_TRUE(byNumber.m_psp.dwFlags & PSP_USETITLE);
    EXPECT_EQ(byNumber.m_psp.dwSize, sizeof(PROPSHEETPAGE));
    CPropertyPage byName(L"A PAGE");
    EXPECT_STREQ(byName.m_psp.pszTemplate, L"A PAGE");
    EXPECT_FALSE(byName.m_psp.dwFlags & PSP_USETITLE);
    EXPECT_TRUE(byName.IsKindOf(RUNTIME_CLASS(CPropertyPage)));
}

TEST(PageConstruction, HeadersComeFromTheResources)
{
    CPropertyPage page(static_cast<UINT>(IDD_FIRST_PAGE), IDS_FIRST_PAGE, IDS_SHEET, IDS_FIRST_PAGE);
    EXPECT_STREQ(page.m_psp.pszHeaderTitle, L"Settings");
    EXPECT_STREQ(page.m_psp.pszHeaderSubTitle, L"Renamed");
    EXPECT_TRUE(page.m_psp.dwFlags & PSP_USEHEADERTITLE);
    EXPECT_TRUE(page.m_psp.dwFlags & PSP_USEHEADERSUBTITLE);
    CPropertyPage named(L"A PAGE", 0, 0, IDS_SHEET);
    EXPECT_FALSE(named.m_psp.dwFlags & PSP_USEHEADERTITLE);
    EXPECT_STREQ(named.m_psp.pszHeaderSubTitle, L"Settings");
    CPropertyPage missing(L"A PAGE", 4711, 4711, 4711);
    EXPECT_FALSE(missing.m_psp.dwFlags & (PSP_USETITLE | PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE));
}

TEST(PageConstruction, InTwoSteps)
{
    CPropertyPage pages[4];
    pages[0].Construct(IDD_FIRST_PAGE, IDS_FIRST_PAGE);
    EXPECT_EQ(pages[0].m_psp.pszTemplate, MAKEINTRESOURCE(IDD_FIRST_PAGE));
    EXPECT_STREQ(pages[0].m_psp.pszTitle, L"Renamed");
    pages[1].Construct(L"A PAGE", IDS_FIRST_PAGE);
    EXPECT_STREQ(pages[1].m_psp.pszTemplate, L"A PAGE");
    EXPECT_STREQ(pages[1].m_psp.pszTitle, L"Renamed");
    EXPECT_FALSE(pages[1].m_psp.dwFlags & (PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE));
    pages[2].Construct(static_cast<UINT>(IDD_FIRST_PAGE), 0, IDS_SHEET);
    EXPECT_EQ(pages[2].m_psp.pszTemplate, MAKEINTRESOURCE(IDD_FIRST_PAGE));
    EXPECT_STREQ(pages[2].m_psp.pszHeaderTitle, L"Settings");
    pages[3].Construct(L"A PAGE", 0, 0, IDS_SHEET);
    EXPECT_STREQ(pages[3].m_psp.pszTemplate, L"A PAGE");
    EXPECT_STREQ(pages[3].m_psp.pszHeaderSubTitle, L"Settings");
}

TEST(PageDefaults, AgreeToEverything)
{
    CPropertyPage page(IDD_FIRST_PAGE);
    EXPECT_TRUE(page.OnQueryCancel());
    EXPECT_EQ(page.OnWizardNext(), 0);
    EXPECT_EQ(page.OnWizardBack(), 0);
    EXPECT_TRUE(page.OnWizardFinish());
    EXPECT_TRUE(page.OnApply());
    page.OnReset();
    page.OnOK();
    page.OnCancel();
    // Without a sheet around it there is nobody to tell.
    page.SetModified();
    page.CancelToClose();
    EXPECT_EQ(page.m_hWnd, nullptr);
}

// Pictures of a wizard, which stay the program's.
class WizardPictures : public testing::Test
{
protected:
    ~WizardPictures() override
    {
        ::DeleteObject(m_watermark);
        ::DeleteObject(m_header);
        ::DeleteObject(m_palette);
    }
    void ExpectPictures(const CPropertySheet& sheet) const
    {
        EXPECT_EQ(sheet.m_psh.hbmWatermark, m_watermark);
        EXPECT_EQ(sheet.m_psh.hplWatermark, m_palette);
        EXPECT_EQ(sheet.m_psh.hbmHeader, m_header);
        constexpr DWORD All =
            PSH_USEHBMWATERMARK | PSH_WATERMARK | PSH_USEHPLWATERMARK | PSH_USEHBMHEADER | PSH_HEADER;
        EXPECT_EQ(sheet.m_psh.dwFlags & All, All);
        EXPECT_EQ(sheet.m_psh.nStartPage, 1u);
    }

    HBITMAP m_watermark = ::CreateBitmap(8, 8, 1, 1, nullptr);
    HBITMAP m_header = ::CreateBitmap(4, 4, 1, 1, nullptr);
    HPALETTE m_palette = static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE));
};

TEST_F(WizardPictures, AreGivenToTheConstructors)
{
    CPropertySheet byNumber(static_cast<UINT>(IDS_SHEET), nullptr, 1, m_watermark, m_palette, m_header);
    ExpectPictures(byNumber);
    EXPECT_TRUE(byNumber.IsKindOf(RUNTIME_CLASS(CPropertySheet)));
    CPropertySheet byText(L"Text", nullptr, 1, m_watermark, m_palette, m_header);
    ExpectPictures(byText);
    CPropertySheet twice;
    twice.Construct(static_cast<UINT>(IDS_SHEET), nullptr, 1, m_watermark, m_palette, m_header);
    ExpectPictures(twice);
    CPropertySheet twiceByText;
    twiceByText.Construct(L"Text", nullptr, 1, m_watermark, m_palette, m_header);
    ExpectPictures(twiceByText);
}

TEST_F(WizardPictures, MayBeLeftOut)
{
    CPropertySheet sheet(L"Text", nullptr, 0, m_watermark);
    EXPECT_TRUE(sheet.m_psh.dwFlags & PSH_WATERMARK);
    EXPECT_FALSE(sheet.m_psh.dwFlags & (PSH_HEADER | PSH_USEHPLWATERMARK));
    CPropertySheet header(L"Text", nullptr, 0, nullptr, nullptr, m_header);
    EXPECT_FALSE(header.m_psh.dwFlags & PSH_WATERMARK);
    EXPECT_TRUE(header.m_psh.dwFlags & PSH_HEADER);
}

class SheetConstruction : public testing::Test
{
protected:
    // The title of the open sheet.
    std::wstring TitleOf(TestSheet& sheet)
    {
        CString title;
        sheet.inLoop = [&] {
            sheet.GetWindowText(title);
            sheet.PressButton(PSBTN_CANCEL);
        };
        sheet.DoModal();
        return std::wstring(title);
    }

    std::string m_log;
    HostWindow m_host;
    TestPage m_one{m_log, "one", IDD_FIRST_PAGE, IDS_FIRST_PAGE};
    TestPage m_two{m_log, "two", IDD_SECOND_PAGE};
};

TEST_F(SheetConstruction, InTwoStepsWithACaptionOfTheResources)
{
    TestSheet sheet;
    sheet.Construct(static_cast<UINT>(IDS_SHEET), &m_host, 1);
    sheet.AddPage(&m_one);
    sheet.AddPage(&m_two);
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_EQ(TitleOf(sheet), L"Settings");
    EXPECT_EQ(m_log.rfind("two:init two:active", 0), 0u) << m_log;
}

TEST_F(SheetConstruction, InTwoStepsWithATextAsCaption)
{
    TestSheet sheet;
    sheet.Construct(L"A caption", &m_host);
    sheet.AddPage(&m_one);
    EXPECT_EQ(TitleOf(sheet), L"A caption");
    TestSheet untitled(static_cast<UINT>(0), &m_host);
    untitled.AddPage(&m_two);
    EXPECT_EQ(TitleOf(untitled), L"") << "no caption for the number 0";
}

TEST_F(SheetConstruction, SetTitle_BeforeTheSheetIsOpen)
{
    TestSheet sheet(L"Before", &m_host);
    sheet.AddPage(&m_one);
    sheet.SetTitle(L"After");
    EXPECT_FALSE(sheet.m_psh.dwFlags & PSH_PROPTITLE);
    EXPECT_EQ(TitleOf(sheet), L"After");
    sheet.SetTitle(L"Mine", PSH_PROPTITLE);
    EXPECT_TRUE(sheet.m_psh.dwFlags & PSH_PROPTITLE);
    EXPECT_NE(TitleOf(sheet).find(L"Mine"), std::wstring::npos);
    sheet.SetTitle(L"Plain");
    EXPECT_FALSE(sheet.m_psh.dwFlags & PSH_PROPTITLE);
}

TEST_F(SheetConstruction, PagesThatAreNotThereAreRefused)
{
    TestSheet sheet(L"Sheet", &m_host);
    sheet.AddPage(&m_one);
    EXPECT_EQ(sheet.GetPageIndex(&m_two), -1);
    EXPECT_FALSE(sheet.SetActivePage(&m_two));
    EXPECT_FALSE(sheet.SetActivePage(-1));
    EXPECT_FALSE(sheet.SetActivePage(1));
    EXPECT_TRUE(RefusesArguments([&] { sheet.GetPage(1); }));
    EXPECT_TRUE(RefusesArguments([&] { sheet.GetPage(-1); }));
    EXPECT_TRUE(RefusesArguments([&] { sheet.RemovePage(1); }));
    EXPECT_TRUE(RefusesArguments([&] { sheet.RemovePage(&m_two); }));
    EXPECT_TRUE(RefusesArguments([&] { sheet.AddPage(nullptr); }));
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &m_one);
    sheet.RemovePage(&m_one);
    EXPECT_EQ(sheet.GetActivePage(), nullptr);
}

TEST_F(SheetConstruction, APageWithoutItsTemplateCannotBeAddedToAnOpenSheet)
{
    TestSheet sheet(L"Sheet", &m_host);
    sheet.AddPage(&m_one);
    CPropertyPage missing(4711);
    bool thrown = false;
    sheet.inLoop = [&] {
        try
        {
            sheet.AddPage(&missing);
        }
        catch (CMemoryException* exception)
        {
            exception->Delete();
            thrown = true;
        }
        sheet.PressButton(PSBTN_CANCEL);
    };
    sheet.DoModal();
    EXPECT_TRUE(thrown);
}

TEST_F(SheetConstruction, TheSheetGoesWithItsObject)
{
    HWND window = nullptr;
    {
        TestSheet sheet(L"Sheet", &m_host);
        sheet.AddPage(&m_one);
        ASSERT_TRUE(sheet.Create(&m_host));
        window = sheet.m_hWnd;
        EXPECT_TRUE(::IsWindow(window));
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(SheetConstruction, NotificationsOfControlsAreThePagesOwn)
{
    class HearingPage : public TestPage
    {
    public:
        using TestPage::TestPage;
        int heard = 0;

    protected:
        BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            const BOOL handled = TestPage::OnNotify(wParam, lParam, result);
            if (reinterpret_cast<NMHDR*>(lParam)->code == NM_CLICK)
                heard += handled ? 100 : 1;
            return handled;
        }
    };
    HearingPage page(m_log, "hearing", IDD_FIRST_PAGE);
    TestSheet sheet(L"Sheet", &m_host);
    sheet.AddPage(&page);
    sheet.inLoop = [&] {
        // From a control, and from the sheet with a code that is none of its own.
        NMHDR header = {page.Item(IDC_NAME), IDC_NAME, NM_CLICK};
        page.SendMessage(WM_NOTIFY, IDC_NAME, reinterpret_cast<LPARAM>(&header));
        header.hwndFrom = sheet.m_hWnd;
        page.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
        sheet.PressButton(PSBTN_CANCEL);
    };
    sheet.DoModal();
    EXPECT_EQ(page.heard, 2) << "nobody handled them";
}

} // namespace
