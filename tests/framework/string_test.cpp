// CString: construction, comparison, searching, cutting and changing in place.
#include <afxwin.h>
#include <afxdisp.h>

#include <gtest/gtest.h>

#include <functional>

namespace
{

struct EditCase
{
    const wchar_t* name;
    const wchar_t* before;
    std::function<void(CString&)> edit;
    const wchar_t* after;
};

struct NumberCase
{
    const wchar_t* name;
    int actual;
    int expected;
};

void CheckNumbers(std::initializer_list<NumberCase> cases)
{
    for (const NumberCase& number : cases)
        EXPECT_EQ(number.expected, number.actual) << testing::PrintToString(std::wstring(number.name));
}

} // namespace

TEST(String, Constructors_TakeEveryKindOfText)
{
    const wchar_t* const missing = nullptr;
    EXPECT_STREQ(L"", CString());
    EXPECT_STREQ(L"", CString(missing));
    EXPECT_STREQ(L"text", CString(L"text"));
    EXPECT_STREQ(L"te", CString(L"text", 2));
    EXPECT_STREQ(L"narrow", CString("narrow"));
    EXPECT_STREQ(L"na", CString("narrow", 2));
    EXPECT_STREQ(L"xxx", CString(L'x', 3));
    EXPECT_STREQ(L"y", CString('y'));
    EXPECT_STREQ(L"", CString(L'x', 0));
    EXPECT_STREQ(L"a\u4e2d", CString(CStringA("a")) + L'\u4e2d');
}

TEST(String, Assignment_TakesEveryKindOfText)
{
    CString text;
    text = L"wide";
    EXPECT_STREQ(L"wide", text);
    text = "narrow";
    EXPECT_STREQ(L"narrow", text);
    text = L'c';
    EXPECT_STREQ(L"c", text);
    text = static_cast<const wchar_t*>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, Assignment_OfAPartOfItself_KeepsThePart)
{
    CString text(L"abcdef");
    text = text.GetString() + 2;
    EXPECT_STREQ(L"cdef", text);

    CString shared(L"abcdef");
    const CString other(shared);
    shared = shared.GetString() + 3;
    EXPECT_STREQ(L"def", shared);
    EXPECT_STREQ(L"abcdef", other);
}

TEST(String, Append_OfItself_DoublesTheText)
{
    CString text(L"ab");
    for (int i = 0; i < 4; ++i)
        text += text;
    EXPECT_STREQ(L"abababababababababababababababab", text);
    text = L"xyz";
    text += text.GetString() + 1;
    EXPECT_STREQ(L"xyzyz", text);
}

TEST(String, Concatenation_JoinsAllKinds)
{
    const CString text(L"m");
    EXPECT_STREQ(L"mm", text + text);
    EXPECT_STREQ(L"m1", text + L"1");
    EXPECT_STREQ(L"1m", L"1" + text);
    EXPECT_STREQ(L"m2", text + "2");
    EXPECT_STREQ(L"2m", "2" + text);
    EXPECT_STREQ(L"mc", text + L'c');
    EXPECT_STREQ(L"cm", L'c' + text);
    EXPECT_STREQ(L"md", text + 'd');
    EXPECT_STREQ(L"dm", 'd' + text);
}

TEST(String, AppendedKinds)
{
    CString text;
    text += L"w";
    text += "n";
    text += L'c';
    text += 'd';
    text += static_cast<unsigned char>('e');
    text += CString(L"s");
    text += COleVariant(5L);
    text.AppendChar(L'!');
    text.Append(L"tail", 2);
    EXPECT_STREQ(L"wncdes5!ta", text);
}

TEST(String, Variants_ConvertToText)
{
    EXPECT_STREQ(L"12", CString(COleVariant(12L)));
    EXPECT_STREQ(L"-1", CString(COleVariant(static_cast<short>(VARIANT_TRUE), VT_BOOL)));
    EXPECT_STREQ(L"0", CString(COleVariant(static_cast<short>(0), VT_BOOL)));
    EXPECT_STREQ(L"", CString(COleVariant()));
    EXPECT_STREQ(L"txt", CString(COleVariant(L"txt")));
    CString text(L"old");
    text = COleVariant(static_cast<BYTE>(7));
    EXPECT_STREQ(L"7", text);
}

TEST(String, Variant_WithoutATextForm_Throws)
{
    VARIANT unconvertible;
    VariantInit(&unconvertible);
    unconvertible.vt = VT_UNKNOWN;
    unconvertible.punkVal = nullptr;
    SCODE code = S_OK;
    try
    {
        CString text(unconvertible);
    }
    catch (COleException* exception)
    {
        code = exception->m_sc;
        exception->Delete();
    }
    EXPECT_EQ(DISP_E_TYPEMISMATCH, code);
}

TEST(String, Comparison)
{
    const CString text(L"Beta");
    EXPECT_LT(text.Compare(L"beta"), 0);
    EXPECT_EQ(0, text.Compare(L"Beta"));
    EXPECT_GT(text.Compare(L"Alpha"), 0);
    EXPECT_EQ(0, text.CompareNoCase(L"bETA"));
    EXPECT_LT(text.CompareNoCase(L"gamma"), 0);
    EXPECT_LT(text.Collate(L"Gamma"), 0);
    EXPECT_EQ(0, text.CollateNoCase(L"BETA"));

    EXPECT_TRUE(text == L"Beta" && L"Beta" == text && text == CString(L"Beta") && text == "Beta");
    EXPECT_TRUE(text != L"beta" && L"beta" != text && text != CString() && text != "beta");
    EXPECT_TRUE(CString(L"x") == L'x' && L'x' == CString(L"x") && text != L'B');
    EXPECT_TRUE(text < L"C" && L"A" < text && text < CString(L"C"));
    EXPECT_TRUE(text > L"A" && L"C" > text && text > CString(L"A"));
    EXPECT_TRUE(text <= L"Beta" && L"Beta" <= text && text >= L"Beta" && L"Beta" >= text);
    EXPECT_FALSE(text < text);
}

TEST(String, Search)
{
    const CString text(L"abcabc");
    CheckNumbers({
        {L"text", text.Find(L"bc"), 1},
        {L"text after the first match", text.Find(L"bc", 2), 4},
        {L"missing text", text.Find(L"x"), -1},
        {L"empty text", text.Find(L"", 3), 3},
        {L"start at the end", text.Find(L"a", 6), -1},
        {L"empty text at the end", text.Find(L"", 6), 6},
        {L"empty text behind the end", text.Find(L"", 7), -1},
        {L"start behind the end", text.Find(L"a", 7), -1},
        {L"negative start", text.Find(L"a", -1), -1},
        {L"character", text.Find(L'c'), 2},
        {L"character after the first match", text.Find(L'c', 3), 5},
        {L"missing character", text.Find(L'x'), -1},
        {L"last character", text.ReverseFind(L'a'), 3},
        {L"last missing character", text.ReverseFind(L'x'), -1},
        {L"one of", text.FindOneOf(L"xcb"), 1},
        {L"none of", text.FindOneOf(L"xyz"), -1},
        {L"in an empty text", CString().Find(L"a"), -1},
    });
}

TEST(String, Parts_AreClamped)
{
    const CString text(L"abcdef");
    EXPECT_STREQ(L"cdef", text.Mid(2));
    EXPECT_STREQ(L"cd", text.Mid(2, 2));
    EXPECT_STREQ(L"ef", text.Mid(4, 99));
    EXPECT_STREQ(L"", text.Mid(99));
    EXPECT_STREQ(L"ab", text.Mid(-3, 2));
    EXPECT_STREQ(L"", text.Mid(1, -1));
    EXPECT_STREQ(L"ab", text.Left(2));
    EXPECT_STREQ(L"abcdef", text.Left(99));
    EXPECT_STREQ(L"", text.Left(-1));
    EXPECT_STREQ(L"ef", text.Right(2));
    EXPECT_STREQ(L"abcdef", text.Right(99));
    EXPECT_STREQ(L"", text.Right(-1));
    EXPECT_STREQ(L"abc", text.SpanIncluding(L"cba"));
    EXPECT_STREQ(L"", text.SpanIncluding(L"x"));
    EXPECT_STREQ(L"abc", text.SpanExcluding(L"xd"));
    EXPECT_STREQ(L"abcdef", text.SpanExcluding(L"x"));
}

TEST(String, Tokenize_SkipsSeparatorsAndEndsWithMinusOne)
{
    const CString text(L"%first%,second#third");
    CString tokens;
    int position = 0;
    for (CString token = text.Tokenize(L"%#,", position); position != -1;
         token = text.Tokenize(L"%#,", position))
        tokens += token + L";";
    EXPECT_STREQ(L"first;second;third;", tokens);

    position = 0;
    EXPECT_STREQ(L"", CString().Tokenize(L",", position));
    EXPECT_EQ(-1, position);
    position = 0;
    EXPECT_STREQ(L"", CString(L",,,").Tokenize(L",", position));
    EXPECT_EQ(-1, position);
    position = 6;
    EXPECT_STREQ(L"%,second#third", text.Tokenize(L"", position));
}

TEST(String, Edits)
{
    const EditCase cases[] = {
        {L"Trim", L" \t a b \r\n", [](CString& s) { s.Trim(); }, L"a b"},
        {L"TrimLeft", L"  a ", [](CString& s) { s.TrimLeft(); }, L"a "},
        {L"TrimRight", L" a  ", [](CString& s) { s.TrimRight(); }, L" a"},
        {L"Trim of only white space", L" \n ", [](CString& s) { s.Trim(); }, L""},
        {L"Trim character", L"xxaxbxx", [](CString& s) { s.Trim(L'x'); }, L"axb"},
        {L"Trim set", L"xyaxby", [](CString& s) { s.Trim(L"yx"); }, L"axb"},
        {L"TrimLeft set", L"xyaxby", [](CString& s) { s.TrimLeft(L"yx"); }, L"axby"},
        {L"TrimRight character", L"aab", [](CString& s) { s.TrimRight(L'b'); }, L"aa"},
        {L"MakeUpper", L"aB1", [](CString& s) { s.MakeUpper(); }, L"AB1"},
        {L"MakeLower", L"aB1", [](CString& s) { s.MakeLower(); }, L"ab1"},
        {L"MakeReverse", L"abc", [](CString& s) { s.MakeReverse(); }, L"cba"},
        {L"MakeReverse of nothing", L"", [](CString& s) { s.MakeReverse(); }, L""},
        {L"Replace longer", L"a-b-c", [](CString& s) { s.Replace(L"-", L"+++"); }, L"a+++b+++c"},
        {L"Replace shorter", L"a--b--", [](CString& s) { s.Replace(L"--", L"+"); }, L"a+b+"},
        {L"Replace by nothing", L"abab", [](CString& s) { s.Replace(L"b", nullptr); }, L"aa"},
        {L"Replace does not rescan", L"aaa", [](CString& s) { s.Replace(L"a", L"aa"); }, L"aaaaaa"},
        {L"Replace character", L"a.b.", [](CString& s) { s.Replace(L'.', L','); }, L"a,b,"},
        {L"Remove", L"banana", [](CString& s) { s.Remove(L'a'); }, L"bnn"},
        {L"Insert text", L"ad", [](CString& s) { s.Insert(1, L"bc"); }, L"abcd"},
        {L"Insert behind the end", L"ab", [](CString& s) { s.Insert(99, L"c"); }, L"abc"},
        {L"Insert before the begin", L"bc", [](CString& s) { s.Insert(-5, L'a'); }, L"abc"},
        {L"Insert itself", L"ab", [](CString& s) { s.Insert(1, s); }, L"aabb"},
        {L"Delete", L"abcd", [](CString& s) { s.Delete(1, 2); }, L"ad"},
        {L"Delete one", L"abcd", [](CString& s) { s.Delete(0); }, L"bcd"},
        {L"Delete more than there is", L"abcd", [](CString& s) { s.Delete(2, 99); }, L"ab"},
        {L"Delete behind the end", L"ab", [](CString& s) { s.Delete(5, 1); }, L"ab"},
        {L"SetAt", L"abc", [](CString& s) { s.SetAt(1, L'x'); }, L"axc"},
        {L"Truncate", L"abc", [](CString& s) { s.Truncate(1); }, L"a"},
        {L"Empty", L"abc", [](CString& s) { s.Empty(); }, L""},
    };
    for (const EditCase& edit : cases)
    {
        CString text(edit.before);
        const CString copy(text);
        edit.edit(text);
        EXPECT_STREQ(edit.after, text) << testing::PrintToString(std::wstring(edit.name));
        EXPECT_EQ(static_cast<int>(std::wcslen(edit.after)), text.GetLength())
            << testing::PrintToString(std::wstring(edit.name));
        EXPECT_STREQ(edit.before, copy)
            << "the copy changed: " << testing::PrintToString(std::wstring(edit.name));
    }
}

TEST(String, Edits_ReportCountsAndLengths)
{
    CString text(L"aXbXc");
    CheckNumbers({
        {L"replaced characters", text.Replace(L'X', L'-'), 2},
        {L"replaced texts", text.Replace(L"-", L"=="), 2},
        {L"nothing to replace", text.Replace(L"q", L"r"), 0},
        {L"empty text to replace", text.Replace(L"", L"r"), 0},
        {L"removed", text.Remove(L'='), 4},
        {L"length after insert", text.Insert(0, L"12"), 5},
        {L"length after delete", text.Delete(0, 2), 3},
    });
    EXPECT_STREQ(L"abc", text);
}

TEST(String, Buffer_CanBeWrittenAndReleased)
{
    CString text(L"abc");
    wchar_t* buffer = text.GetBuffer(10);
    EXPECT_STREQ(L"abc", buffer);
    EXPECT_LE(10, text.GetAllocLength());
    std::wcscpy(buffer, L"0123456789");
    text.ReleaseBuffer();
    EXPECT_EQ(10, text.GetLength());
    text.GetBuffer()[4] = 0;
    text.ReleaseBuffer();
    EXPECT_STREQ(L"0123", text);
    std::wmemset(text.GetBufferSetLength(3), L'z', 3);
    EXPECT_STREQ(L"zzz", text);
    text.GetBuffer(5);
    text.ReleaseBuffer(2);
    EXPECT_STREQ(L"zz", text);

    CString filled;
    filled.GetBuffer(4);
    filled.ReleaseBuffer();
    EXPECT_TRUE(filled.IsEmpty());
}

TEST(String, EmbeddedTerminator_IsKept)
{
    const CString text(L"a\0b", 3);
    EXPECT_EQ(3, text.GetLength());
    EXPECT_EQ(L'b', text[2]);
    EXPECT_EQ(4, (text + L"c").GetLength());
    EXPECT_TRUE(text == CString(L"a\0b", 3));
    EXPECT_FALSE(text == CString(L"a\0c", 3));
}

TEST(String, SysStrings_AreCopies)
{
    const CString text(L"a\0b", 3);
    BSTR copy = text.AllocSysString();
    EXPECT_EQ(3u, SysStringLen(copy));
    CString(L"other").SetSysString(&copy);
    EXPECT_STREQ(L"other", copy);
    SysFreeString(copy);
}

TEST(String, MissingResource_LeavesTheText)
{
    CString text(L"before");
    EXPECT_FALSE(text.LoadString(GetModuleHandle(nullptr), 0xFFF0));
    EXPECT_STREQ(L"before", text);
}

TEST(String, StringOfALoadedModule_IsLoaded)
{
    // The first string resource of a system module: what the platform loads is the expectation.
    const HINSTANCE module = LoadLibrary(L"comdlg32.dll");
    ASSERT_NE(nullptr, module);
    int compared = 0;
    for (UINT id = 0; id < 2000; ++id)
    {
        wchar_t expected[4096];
        const int length = ::LoadString(module, id, expected, _countof(expected));
        CString text;
        ASSERT_EQ(length > 0, text.LoadString(module, id) != FALSE) << id;
        ASSERT_STREQ(length > 0 ? expected : L"", text) << id;
        compared += length > 0;
    }
    FreeLibrary(module);
    EXPECT_LT(0, compared);
}

#ifndef _DEBUG
// With assertions the same mistakes end the process.
TEST(String, BadArguments_Throw)
{
    const std::function<void(CString&)> mistakes[] = {
        [](CString& s) { s.SetAt(3, L'x'); },
        [](CString& s) { s.SetAt(-1, L'x'); },
        [](CString& s) { s.GetBuffer(-1); },
        [](CString& s) { s.Truncate(4); },
        [](CString& s) { s.SetString(nullptr, 2); },
        [](CString& s) { s.Append(L"x", -1); },
        [](CString& s) { s.ReleaseBuffer(1000); },
        [](CString& s) { s = CString(static_cast<LPCSTR>(nullptr), 2); },
        [](CString& s) { s = CString("narrow", -1); },
    };
    for (const auto& mistake : mistakes)
    {
        CString text(L"abc");
        bool thrown = false;
        try
        {
            mistake(text);
        }
        catch (CInvalidArgException* exception)
        {
            thrown = true;
            exception->Delete();
        }
        EXPECT_TRUE(thrown) << "mistake " << (&mistake - mistakes);
        EXPECT_STREQ(L"abc", text) << "mistake " << (&mistake - mistakes);
    }
}
#endif
