// CString: who shares characters with whom, and what a string costs.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace
{

bool Share(const CString& left, const CString& right)
{
    return left.GetString() == right.GetString();
}

} // namespace

static_assert(sizeof(CString) == sizeof(void*), "a string is one pointer");
static_assert(sizeof(CStringA) == sizeof(void*), "a string is one pointer");

TEST(StringSharing, Copies_ShareUntilOneChanges)
{
    CString first(L"shared text");
    CString second(first);
    CString third;
    third = second;
    EXPECT_TRUE(Share(first, second) && Share(second, third));
    second += L"!";
    EXPECT_FALSE(Share(first, second));
    EXPECT_TRUE(Share(first, third));
    EXPECT_STREQ(L"shared text", first);
    EXPECT_STREQ(L"shared text!", second);
}

TEST(StringSharing, WholeParts_ShareToo)
{
    const CString text(L"whole");
    EXPECT_TRUE(Share(text, text.Mid(0)));
    EXPECT_TRUE(Share(text, text.Left(5)));
    EXPECT_TRUE(Share(text, text.Right(9)));
}

TEST(StringSharing, GetBuffer_EndsTheSharing)
{
    CString first(L"text");
    const CString second(first);
    first.GetBuffer()[0] = L'n';
    first.ReleaseBuffer();
    EXPECT_STREQ(L"next", first);
    EXPECT_STREQ(L"text", second);
}

TEST(StringSharing, SelfAssignment_KeepsTheText)
{
    CString text(L"self");
    const CString& alias = text;
    text = alias;
    EXPECT_STREQ(L"self", text);
}

TEST(StringSharing, Moves_TakeTheCharacters)
{
    CString source(L"moved");
    const wchar_t* const characters = source;
    CString target(std::move(source));
    EXPECT_EQ(characters, target.GetString());
    CString assigned(L"old");
    assigned = std::move(target);
    EXPECT_EQ(characters, assigned.GetString());
    EXPECT_STREQ(L"moved", assigned);
}

TEST(StringSharing, EmptyStrings_ShareOneBlock)
{
    CString filled(L"x");
    filled.Empty();
    EXPECT_TRUE(Share(CString(), filled));
    EXPECT_TRUE(Share(CString(), CString(L"")));
    CString empty;
    empty.GetBuffer(4)[0] = L'x';
    empty.ReleaseBuffer(1);
    EXPECT_STREQ(L"x", empty);
    EXPECT_STREQ(L"", CString());
}

TEST(StringSharing, ShortTexts_FitIntoSmallBlocks)
{
    // Twelve bytes of header, eight characters and the terminator.
    const CString text(L"12345678");
    const size_t blockSize = 12 + (static_cast<size_t>(text.GetAllocLength()) + 1) * sizeof(wchar_t);
    EXPECT_LE(blockSize, 48u);
}

TEST(StringSharing, ShorterText_ReusesTheBlock)
{
    CString text(L'x', 100);
    const wchar_t* const characters = text;
    text = L"1234";
    EXPECT_EQ(characters, text.GetString());
    EXPECT_STREQ(L"1234", text);
    text.FreeExtra();
    EXPECT_STREQ(L"1234", text);
    EXPECT_GT(100, text.GetAllocLength());
}

TEST(StringSharing, RepeatedAppending_SeldomMoves)
{
    CString text;
    int moves = 0;
    const wchar_t* characters = text;
    for (int i = 0; i < 100000; ++i)
    {
        text += L'x';
        moves += text.GetString() != characters;
        characters = text;
    }
    EXPECT_EQ(100000, text.GetLength());
    EXPECT_LT(moves, 40);
}

TEST(StringSharing, Threads_CanCopyAndDropTheSameText)
{
    const CString text(L"shared by threads");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        threads.emplace_back([&text] {
            for (int n = 0; n < 5000; ++n)
            {
                CString copy(text);
                CString second(copy);
                second += L"!";
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_STREQ(L"shared by threads", text);
    CString last(text);
    EXPECT_TRUE(Share(last, text));
}

TEST(StringSharing, LockedText_IsSharedWithNoOther)
{
    CString before(L"locked");
    CString text(before);
    wchar_t* const characters = text.LockBuffer();
    EXPECT_FALSE(Share(before, text));
    const CString copy(text);
    EXPECT_FALSE(Share(copy, text));
    EXPECT_STREQ(L"locked", copy);
    const CString other(L"other");
    text = other;
    EXPECT_EQ(characters, text.GetString());
    EXPECT_STREQ(L"other", text);
    text.UnlockBuffer();
    const CString shared(text);
    EXPECT_TRUE(Share(shared, text));
}

TEST(StringSharing, LockedText_StaysLockedWhileItChanges)
{
    CString text(L"abc");
    text.LockBuffer();
    text.LockBuffer();
    text += text + CString(L'x', 200);
    text.Append(text, 3);
    EXPECT_STREQ(L"abcabc" + CString(L'x', 200) + L"abc", text);
    EXPECT_FALSE(Share(CString(text), text));
    text.UnlockBuffer();
    EXPECT_FALSE(Share(CString(text), text));
    CString moved(std::move(text));
    EXPECT_FALSE(Share(moved, text));
    text.Empty();
    EXPECT_FALSE(Share(CString(), text));
    text = L"again";
    text.UnlockBuffer();
    EXPECT_TRUE(Share(CString(text), text));
    EXPECT_STREQ(L"again", text);
}

TEST(StringSharing, EmptyText_CanBeLocked)
{
    CString text;
    text.LockBuffer();
    text = L"filled";
    text.UnlockBuffer();
    EXPECT_STREQ(L"filled", text);
    EXPECT_TRUE(CString().IsEmpty());
}

// Texts of every length around the sizes of the blocks, so many that a block is used for several of them.
TEST(StringSharing, TextsOfAllLengths_KeepApart)
{
    constexpr int LongestText = 70;
    const auto textOf = [](int i) { return CString(static_cast<wchar_t>(L'a' + i % 26), i % LongestText); };
    const auto narrowOf = [](int i) { return CStringA(static_cast<char>('a' + i % 26), i % LongestText); };
    std::vector<CString> texts(20000);
    std::vector<CStringA> narrow(texts.size());
    for (int round = 0; round < 3; ++round)
        for (int i = round; i < static_cast<int>(texts.size()); i += round + 1)
        {
            texts[static_cast<size_t>(i)] = textOf(i + round);
            narrow[static_cast<size_t>(i)] = narrowOf(i + round);
        }
    for (int i = 0; i < static_cast<int>(texts.size()); ++i)
    {
        const int round = i >= 2 && (i - 2) % 3 == 0 ? 2 : i % 2 == 1 ? 1 : 0;
        ASSERT_STREQ(textOf(i + round), texts[static_cast<size_t>(i)]) << i;
        ASSERT_STREQ(narrowOf(i + round), narrow[static_cast<size_t>(i)]) << i;
    }
}

// Texts are made and freed by different threads at the same time.
TEST(StringSharing, ThreadsHandTextsToEachOther)
{
    constexpr int Threads = 4;
    constexpr size_t Texts = 5000;
    std::vector<std::vector<CString>> made(Threads, std::vector<CString>(Texts));
    const auto run = [&made](auto work) {
        std::vector<std::thread> threads;
        for (int i = 0; i < Threads; ++i)
            threads.emplace_back([&made, work, i] {
                for (size_t text = 0; text < Texts; ++text)
                    work(made[static_cast<size_t>((i + 1) % Threads)][text], i);
            });
        for (std::thread& thread : threads)
            thread.join();
    };
    run([](CString& text, int i) { text = CString(static_cast<wchar_t>(L'0' + i), 8); });
    run([](CString& text, int i) { text.Append(i % 2 == 0 ? L"" : L" and more of it"); });
    for (int i = 0; i < Threads; ++i)
        for (const CString& text : made[static_cast<size_t>((i + 1) % Threads)])
            ASSERT_STREQ(CString(static_cast<wchar_t>(L'0' + i), 8) + (i % 2 == 0 ? L"" : L" and more of it"),
                         text);
    std::rotate(made.begin(), made.begin() + 1, made.end());
    run([](CString& text, int) { text.Empty(); });
    for (const std::vector<CString>& texts : made)
        for (const CString& text : texts)
            ASSERT_TRUE(text.IsEmpty());
}
