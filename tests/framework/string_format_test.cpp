// CString::Format and its relatives.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{

template <typename... TArgs> CString Formatted(const wchar_t* format, TArgs... args)
{
    CString text;
    text.Format(format, args...);
    return text;
}

enum Colour
{
    Green = 3
};

void FormatList(CString& text, const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    text.FormatV(format, args);
    va_end(args);
}

} // namespace

TEST(StringFormat, TextArguments_AreWideUnlessMarkedNarrow)
{
    EXPECT_STREQ(L"<wide>", Formatted(L"<%s>", L"wide"));
    EXPECT_STREQ(L"<wide>", Formatted(L"<%ls>", L"wide"));
    EXPECT_STREQ(L"<narrow>", Formatted(L"<%S>", "narrow"));
    EXPECT_STREQ(L"<narrow>", Formatted(L"<%hs>", "narrow"));
    EXPECT_STREQ(L"<c>", Formatted(L"<%c>", L'c'));
    EXPECT_STREQ(L"<\u4e2d\u6587>", Formatted(L"<%s>", L"\u4e2d\u6587"));
    EXPECT_STREQ(L"< ab>", Formatted(L"<%3.2s>", L"abc"));
}

TEST(StringFormat, StringObjects_PassAsTheirText)
{
    const CString wide(L"wide");
    const CStringA narrow("narrow");
    EXPECT_STREQ(L"wide narrow wide 7", Formatted(L"%s %S %s %d", wide, narrow, wide, 7));
    EXPECT_STREQ(L"temporary", Formatted(L"%s", CString(L"temp") + L"orary"));
}

TEST(StringFormat, Numbers)
{
    EXPECT_STREQ(L"5 -5 ff 007", Formatted(L"%d %d %x %03d", 5, -5, 255, 7));
    EXPECT_STREQ(L"9223372036854775807", Formatted(L"%I64d", 9223372036854775807ll));
    EXPECT_STREQ(L"9223372036854775807", Formatted(L"%lld", 9223372036854775807ll));
    EXPECT_STREQ(L"1.50 2.5", Formatted(L"%.2f %g", 1.5, 2.5f));
    EXPECT_STREQ(L"1e+007", Formatted(L"%g", 1e7));
    EXPECT_STREQ(L"3", Formatted(L"%d", Green));
    EXPECT_STREQ(L"1 2", Formatted(L"%d %d", true, static_cast<short>(2)));
    EXPECT_STREQ(L"100%", Formatted(L"%d%%", 100));
}

TEST(StringFormat, EmptyAndLongResults)
{
    EXPECT_STREQ(L"", Formatted(L""));
    EXPECT_STREQ(L"", Formatted(L"%s", L""));
    const CString longText(L'x', 5000);
    EXPECT_EQ(10000, Formatted(L"%s%s", longText, longText).GetLength());
}

TEST(StringFormat, OwnText_CanBeTheFormat)
{
    CString text(L"%d items");
    text.Format(text, 3);
    EXPECT_STREQ(L"3 items", text);
}

TEST(StringFormat, OtherHoldersOfTheText_KeepIt)
{
    CString text(L"before");
    const CString copy(text);
    text.Format(L"%d", 1);
    EXPECT_STREQ(L"before", copy);
}

TEST(StringFormat, AppendFormat_AddsAtTheEnd)
{
    CString text(L"a");
    text.AppendFormat(L"%d", 1);
    text.AppendFormat(L"%s", CString(L"b"));
    EXPECT_STREQ(L"a1b", text);
    text.AppendFormat(L"[%s]", text.GetString());
    EXPECT_STREQ(L"a1b[a1b]", text);
}

TEST(StringFormat, FormatV_TakesAnArgumentList)
{
    CString text;
    FormatList(text, L"%s-%d", L"x", 4);
    EXPECT_STREQ(L"x-4", text);
}

TEST(StringFormat, NarrowString_FormatsNarrowText)
{
    CStringA text;
    text.Format("%s %d %s", "n", 5, CStringA("m"));
    EXPECT_STREQ("n 5 m", text);
}

TEST(NarrowString, BasicOperations)
{
    CStringA text(L"wide");
    text += '-';
    text += "tail";
    EXPECT_STREQ("wide-tail", text);
    EXPECT_EQ(4, text.Find('-'));
    EXPECT_EQ(5, text.Find("tail", 2));
    EXPECT_EQ(-1, text.Find("tail", 6));
    EXPECT_STREQ("tail", text.Mid(5));
    EXPECT_STREQ("wide", text.Left(4));
    EXPECT_TRUE(text == "wide-tail" && text != CStringA("x") && text < CStringA("x"));
    EXPECT_EQ(0, text.CompareNoCase("WIDE-TAIL"));
    EXPECT_STREQ("xx", CStringA('x', 2));
}

TEST(StringFormat, Messages_NameTheirArguments)
{
    CString text;
    text.FormatMessage(L"%2 has %1!d! items, %3!05x!", 3, CString(L"list"), 255);
    EXPECT_STREQ(L"list has 3 items, 000ff", text);
    text.FormatMessage(L"");
    EXPECT_TRUE(text.IsEmpty());
    text = L"<%1>";
    text.FormatMessage(text, L"own text");
    EXPECT_STREQ(L"<own text>", text);
}

TEST(StringFormat, EnvironmentVariable_BecomesTheText)
{
    const CString value(L'v', 300);
    ASSERT_TRUE(::SetEnvironmentVariable(L"QUOR_STRING_TEST", value));
    CString text(L"before");
    EXPECT_TRUE(text.GetEnvironmentVariable(L"QUOR_STRING_TEST"));
    EXPECT_STREQ(value, text);
    ::SetEnvironmentVariable(L"QUOR_STRING_TEST", nullptr);
    EXPECT_FALSE(text.GetEnvironmentVariable(L"QUOR_STRING_TEST"));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(NarrowString, OemAndAnsi_ConvertBothWays)
{
    // Two code pages that have the letter at different places.
    const wchar_t letter[] = L"\u00e4";
    char ansi[4] = {}, oem[4] = {};
    WideCharToMultiByte(CP_ACP, 0, letter, 1, ansi, 3, nullptr, nullptr);
    WideCharToMultiByte(CP_OEMCP, 0, letter, 1, oem, 3, nullptr, nullptr);
    CStringA text(ansi);
    const CStringA before(text);
    text.AnsiToOem();
    EXPECT_STREQ(oem, text);
    EXPECT_STREQ(ansi, before);
    text.OemToAnsi();
    EXPECT_STREQ(ansi, text);
}

TEST(String, AtlNames_AreTheSameTypes)
{
    const CAtlString wide(L"w");
    const CAtlStringA narrow("n");
    CString text(wide);
    text += CString(narrow);
    EXPECT_STREQ(L"wn", text);
}
