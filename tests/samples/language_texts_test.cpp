// The gallery's translations fit their originals.
#include "samples/gallery/LanguageTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace
{

std::vector<Translation> All()
{
    std::size_t count = 0;
    const Translation* const first = Translations(count);
    return {first, first + count};
}

// The places that Format fills, in their order: "%s %d".
std::wstring Places(const std::wstring& text)
{
    std::wstring places;
    for (std::size_t at = text.find(L'%'); at != std::wstring::npos; at = text.find(L'%', at + 1))
    {
        const std::size_t end = text.find_first_of(L"sdgu", at);
        places += text.substr(at, end - at + 1) + L" ";
    }
    return places;
}

std::string Narrow(const wchar_t* text)
{
    std::string narrow;
    for (; *text != L'\0'; ++text)
        narrow += static_cast<char>(*text < 128 ? *text : L'?');
    return narrow;
}

TEST(Translations, EachTextStandsThereOnce)
{
    std::set<std::wstring> seen;
    for (const Translation& text : All())
        EXPECT_TRUE(seen.insert(text.english).second) << Narrow(text.english);
}

TEST(Translations, FillTheSamePlaces)
{
    for (const Translation& text : All())
        EXPECT_EQ(Places(text.english), Places(text.chinese)) << Narrow(text.english);
}

TEST(Translations, KeepTheKeysOfMenuItems)
{
    for (const Translation& text : All())
    {
        const std::wstring english = text.english;
        const std::wstring chinese = text.chinese;
        const std::size_t tab = english.find(L'\t');
        if (tab != std::wstring::npos)
        {
            EXPECT_EQ(english.substr(tab), chinese.substr((std::min)(chinese.find(L'\t'), chinese.size())));
        }
        const std::size_t mark = english.find(L'&');
        if (mark == std::wstring::npos || mark + 1 == english.size())
            continue;
        const std::wstring key = {L'&', static_cast<wchar_t>(towupper(english[mark + 1]))};
        EXPECT_NE(chinese.find(key), std::wstring::npos) << Narrow(text.english);
    }
}

TEST(Translations, AnUnknownTextHasNone)
{
    EXPECT_EQ(ChineseText(L"There is no such text"), nullptr);
    EXPECT_STREQ(ChineseText(L"&File"), L"\u6587\u4EF6(&F)");
}

} // namespace
