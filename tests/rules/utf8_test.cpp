// UTF-8 and the characters of wide texts.
#include "rules/Utf8.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(Utf8, WritesAndReadsCharactersOfEveryLength)
{
    const std::wstring text = L"A\xE4\x20AC\xFFFF\U0001F600\U0010FFFF";
    const std::string bytes = "A\xC3\xA4\xE2\x82\xAC\xEF\xBF\xBF\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(ToUtf8(text), bytes);
    EXPECT_EQ(FromUtf8(bytes), text);
    EXPECT_TRUE(IsUtf8(bytes));
    using namespace std::string_view_literals;
    EXPECT_EQ(ToUtf8(L"a\0b"sv), "a\0b"sv);
    EXPECT_EQ(FromUtf8("a\0b"sv), L"a\0b"sv);
}

TEST(Utf8, HalvesOfPairs_AreReplaced)
{
    EXPECT_EQ(ToUtf8(L"\xD83Dx"), "\xEF\xBF\xBDx");
    EXPECT_EQ(ToUtf8(L"\xDE00\xD83D"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(L"\xD83D\xDE00"), "\xF0\x9F\x98\x80");
}

TEST(Utf8, WrongBytes_AreReplaced_AsFarAsTheyBeginACharacter)
{
    EXPECT_EQ(FromUtf8("a\x80z"), L"a\xFFFDz");
    EXPECT_EQ(FromUtf8("\xE2\x82"), L"\xFFFD");
    EXPECT_EQ(FromUtf8("\xE2\x82z"), L"\xFFFDz");
    EXPECT_EQ(FromUtf8("\xF0\x9F\x98\xC3\xA4"), L"\xFFFD\xE4");
    for (const char* longer :
         {"\xC0\x80", "\xE0\x80", "\xF0\x80", "\xED\xA0", "\xF4\x90", "\xF5\x80", "\xFF\xFE"})
    {
        EXPECT_EQ(FromUtf8(longer), L"\xFFFD\xFFFD") << longer;
        EXPECT_FALSE(IsUtf8(longer));
    }
    EXPECT_FALSE(IsUtf8("Gr\xF6\xDF"
                        "e"));
}

} // namespace
} // namespace quor::test
