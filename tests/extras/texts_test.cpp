// The library's texts: the language, a host's own words, and the menus that show them.
#include "module/QuorTexts.h"
#include "module/resource.h"
#include "tests/grid/HeaderFixture.h"
#include "tests/support/MenuProbe.h"

#include <atomic>
#include <thread>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// The texts are the process's: put back what a test has changed.
class Texts : public HeaderFixture
{
protected:
    static constexpr int Count = static_cast<int>(QuorText::ClipboardLeftGone) + 1;

    ~Texts() override
    {
        QuorTexts::SetLanguage(QuorLanguage::Default);
        for (int i = 0; i < Count; ++i)
            QuorTexts::Replace(static_cast<QuorText>(i), nullptr);
    }
    void SetUp() override
    {
        Make(grid, "abc");
        grid.showsMenus = true;
        ASSERT_TRUE(Activate(host));
    }
    std::wstring RowMenu()
    {
        MenuProbe probe;
        SendMouse(RowHeader(grid), WM_RBUTTONUP, RowBox(grid, 1));
        return probe.Description();
    }
    std::wstring ColMenu()
    {
        MenuProbe probe;
        SendMouse(ColHeader(grid), WM_RBUTTONUP, ColBox(grid, 1));
        return probe.Description();
    }
    static bool IsChinese(const CString& text)
    {
        for (int i = 0; i < text.GetLength(); ++i)
            if (text[i] >= 0x4E00 && text[i] <= 0x9FFF)
                return true;
        return false;
    }

    CommandGrid grid;
};

TEST_F(Texts, ByDefault_AreWhatTheyWere)
{
    EXPECT_EQ(QuorTexts::GetLanguage(), QuorLanguage::Default);
    EXPECT_EQ(RowMenu(), L"1 插入行(Ins), 2 删除行(Del), 3 新建行(N), 5 复制(C), 6 剪切(X)");
    EXPECT_EQ(ColMenu(), L"8 插入列(Ins), 9 删除列(Del), 10 新建列(N)");
    EXPECT_EQ(QuorTexts::Get(QuorText::TreeNewFolder), L"New Folder");
    EXPECT_EQ(
        QuorTexts::Get(QuorText::TreeDeleteQuestion),
        L"You have chosen to delete a folder.  Please confirm you want to delete this folder and all items "
        L"in it?");
    EXPECT_EQ(QuorTexts::Get(QuorText::TreeInvalidMove),
              L"Invalid move - an item with the same name has been found in the destination location.");
    EXPECT_EQ(QuorTexts::Get(QuorText::TreeInvalidName),
              L"Invalid name - an item with the same name already exists in this location.");
}

TEST_F(Texts, InEnglish)
{
    QuorTexts::SetLanguage(QuorLanguage::English);
    EXPECT_EQ(RowMenu(), L"1 Insert row (Ins), 2 Delete row (Del), 3 New row (N), 5 Copy (C), 6 Cut (X)");
    EXPECT_EQ(ColMenu(), L"8 Insert column (Ins), 9 Delete column (Del), 10 New column (N)");
    EXPECT_EQ(QuorTexts::Get(QuorText::BusyCancel), L"Cancel");
    QuorTexts::SetLanguage(QuorLanguage::Default);
    EXPECT_EQ(ColMenu(), L"8 插入列(Ins), 9 删除列(Del), 10 新建列(N)");
}

TEST_F(Texts, AreThereInBothLanguages)
{
    for (int i = 0; i < Count; ++i)
    {
        const auto text = static_cast<QuorText>(i);
        QuorTexts::SetLanguage(QuorLanguage::English);
        const CString english = QuorTexts::Get(text);
        EXPECT_FALSE(english.IsEmpty() || IsChinese(english)) << i;
        QuorTexts::SetLanguage(QuorLanguage::Chinese);
        EXPECT_TRUE(IsChinese(QuorTexts::Get(text))) << i;
    }
}

TEST_F(Texts, AHostsOwnWords_CountInEveryLanguage)
{
    QuorTexts::Replace(QuorText::MenuAppendRow, L"New part");
    EXPECT_EQ(RowMenu(), L"1 插入行(Ins), 2 删除行(Del), 3 New part, 5 复制(C), 6 剪切(X)");
    QuorTexts::SetLanguage(QuorLanguage::English);
    EXPECT_EQ(RowMenu(), L"1 Insert row (Ins), 2 Delete row (Del), 3 New part, 5 Copy (C), 6 Cut (X)");
    QuorTexts::Replace(QuorText::MenuAppendRow, L"");
    EXPECT_EQ(QuorTexts::Get(QuorText::MenuAppendRow), L"");
    QuorTexts::Replace(QuorText::MenuAppendRow, nullptr);
    EXPECT_EQ(QuorTexts::Get(QuorText::MenuAppendRow), L"New row (N)");
}

TEST_F(Texts, ValuesThatThereAreNot)
{
    for (const int value : {-1, Count, 1000})
    {
        QuorTexts::Replace(static_cast<QuorText>(value), L"words");
        EXPECT_EQ(QuorTexts::Get(static_cast<QuorText>(value)), L"");
    }
    QuorTexts::SetLanguage(static_cast<QuorLanguage>(77));
    EXPECT_EQ(QuorTexts::GetLanguage(), QuorLanguage::Default);
}

// A host's strings of the same number are not the library's.
TEST_F(Texts, ComeFromTheLibraryAlone)
{
    CString own;
    EXPECT_FALSE(own.LoadString(::GetModuleHandle(nullptr), IDS_MENU_COPY));
    EXPECT_EQ(QuorTexts::Get(QuorText::MenuCopy), L"复制(C)");
}

TEST_F(Texts, WhenThreadsChangeThem_AreOneOrTheOther)
{
    std::atomic<bool> stop = false;
    std::thread other([&stop] {
        while (!stop)
            for (const wchar_t* words : {L"first words of a host", L"second words of a host"})
            {
                QuorTexts::Replace(QuorText::MenuCopy, words);
                QuorTexts::SetLanguage(QuorLanguage::English);
            }
    });
    for (int i = 0; i < 2000; ++i)
    {
        const CString text = QuorTexts::Get(QuorText::MenuCopy);
        if (text != L"first words of a host" && text != L"second words of a host")
        {
            EXPECT_EQ(text, L"复制(C)");
        }
    }
    stop = true;
    other.join();
}

} // namespace
} // namespace quor::test
