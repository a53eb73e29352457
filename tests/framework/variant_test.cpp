// COleVariant and COleException.
#include <afxwin.h>
#include <afxdisp.h>

#include "tests/support/TaskMemory.h"

#include <gtest/gtest.h>

namespace
{

BOOL Equal(const COleVariant& one, const VARIANT& other)
{
    return one == other;
}

// What converting throws; S_OK when it succeeds.
SCODE ConversionFailure(COleVariant& value, VARTYPE type)
{
    try
    {
        value.ChangeType(type);
    }
    catch (COleException* exception)
    {
        const SCODE code = exception->m_sc;
        exception->Delete();
        return code;
    }
    return S_OK;
}

} // namespace

TEST(Variant, Constructors_ChooseTheType)
{
    EXPECT_EQ(VT_EMPTY, COleVariant().vt);
    EXPECT_EQ(VT_BSTR, COleVariant(L"x").vt);
    EXPECT_EQ(VT_BSTR, COleVariant(CString(L"x")).vt);
    EXPECT_EQ(VT_UI1, COleVariant(static_cast<BYTE>(1)).vt);
    EXPECT_EQ(VT_I2, COleVariant(static_cast<short>(1)).vt);
    EXPECT_EQ(VT_BOOL, COleVariant(static_cast<short>(1), VT_BOOL).vt);
    EXPECT_EQ(VT_I4, COleVariant(1L).vt);
    EXPECT_EQ(VT_ERROR, COleVariant(1L, VT_ERROR).vt);
    EXPECT_EQ(VT_BOOL, COleVariant(1L, VT_BOOL).vt);
    EXPECT_EQ(VT_R4, COleVariant(1.0f).vt);
    EXPECT_EQ(VT_R8, COleVariant(1.0).vt);
}

TEST(Variant, Booleans_AreMinusOneOrZero)
{
    EXPECT_EQ(VARIANT_TRUE, COleVariant(static_cast<short>(5), VT_BOOL).boolVal);
    EXPECT_EQ(VARIANT_FALSE, COleVariant(0L, VT_BOOL).boolVal);
    COleVariant value(static_cast<short>(VARIANT_TRUE), VT_BOOL);
    value = static_cast<short>(0);
    EXPECT_EQ(VT_BOOL, value.vt);
    EXPECT_EQ(VARIANT_FALSE, value.boolVal);
    value = 7L;
    EXPECT_EQ(VT_BOOL, value.vt);
    EXPECT_EQ(VARIANT_TRUE, value.boolVal);
}

TEST(Variant, Texts_AreCopied)
{
    COleVariant first(L"text");
    COleVariant second(first);
    EXPECT_NE(first.bstrVal, second.bstrVal);
    EXPECT_STREQ(L"text", second.bstrVal);
    second = L"other";
    EXPECT_STREQ(L"text", first.bstrVal);
    // The text comes from the value that it replaces.
    second = static_cast<LPCTSTR>(second.bstrVal + 2);
    EXPECT_STREQ(L"her", second.bstrVal);
    second = static_cast<LPCTSTR>(nullptr);
    EXPECT_EQ(VT_BSTR, second.vt);
    EXPECT_EQ(0u, SysStringLen(second.bstrVal));
}

TEST(Variant, Texts_AreGivenBack)
{
    const auto useTexts = [] {
        for (int i = 0; i < 20; ++i)
        {
            COleVariant value(L"a text that is given back");
            value = L"a second one, which replaces it";
            value.SetString(L"a third one", VT_BSTR);
            value = CString(L"a fourth one");
            COleVariant other(value);
            other = 5L;
            other = value;
            other = 2.5;
            value.ChangeType(VT_BSTR);
            COleVariant moved(std::move(value));
            moved.Clear();
        }
    };
    quor::test::CountTaskBlocks();
    useTexts();
    const int before = quor::test::CountTaskBlocks();
    useTexts();
    EXPECT_EQ(quor::test::CountTaskBlocks(), before);
    // What is counted: a text that is kept counts.
    const BSTR kept = ::SysAllocString(L"a text that is kept for a while");
    EXPECT_EQ(quor::test::CountTaskBlocks(), before + 1);
    ::SysFreeString(kept);
    EXPECT_EQ(quor::test::CountTaskBlocks(), before);
}

TEST(Variant, Assignment_ReplacesTypeAndValue)
{
    COleVariant value(L"text");
    value = 2.5;
    EXPECT_EQ(VT_R8, value.vt);
    EXPECT_EQ(2.5, value.dblVal);
    value = 3L;
    EXPECT_EQ(VT_I4, value.vt);
    value = CString(L"again");
    EXPECT_STREQ(L"again", value.bstrVal);
    value = COleVariant(static_cast<BYTE>(9));
    EXPECT_EQ(VT_UI1, value.vt);
    value.Clear();
    EXPECT_EQ(VT_EMPTY, value.vt);
}

TEST(Variant, ChangeType_ConvertsInPlace)
{
    COleVariant value(L"42");
    value.ChangeType(VT_I4);
    EXPECT_EQ(42, value.lVal);
    value.ChangeType(VT_BSTR);
    EXPECT_STREQ(L"42", value.bstrVal);
    value.ChangeType(VT_R8);
    EXPECT_EQ(42.0, value.dblVal);
    COleVariant source(5L);
    value.ChangeType(VT_BSTR, &source);
    EXPECT_STREQ(L"5", value.bstrVal);
    EXPECT_EQ(VT_I4, source.vt);
}

TEST(Variant, ImpossibleConversion_ThrowsAndKeepsTheValue)
{
    COleVariant value(L"not a number");
    EXPECT_EQ(DISP_E_TYPEMISMATCH, ConversionFailure(value, VT_I4));
    EXPECT_STREQ(L"not a number", value.bstrVal);
    COleVariant large(100000L);
    EXPECT_EQ(DISP_E_OVERFLOW, ConversionFailure(large, VT_UI1));
    EXPECT_EQ(S_OK, ConversionFailure(large, VT_BSTR));
}

TEST(Variant, Comparison_NeedsTypeAndValue)
{
    EXPECT_TRUE(Equal(COleVariant(5L), COleVariant(5L)));
    EXPECT_FALSE(Equal(COleVariant(5L), COleVariant(6L)));
    EXPECT_FALSE(Equal(COleVariant(5L), COleVariant(static_cast<short>(5))));
    EXPECT_TRUE(Equal(COleVariant(L"a"), COleVariant(CString(L"a").GetString())));
    EXPECT_FALSE(Equal(COleVariant(L"a"), COleVariant(L"A")));
    EXPECT_FALSE(Equal(COleVariant(L"a"), COleVariant(L"ab")));
    EXPECT_TRUE(Equal(COleVariant(2.5), COleVariant(2.5)));
    EXPECT_FALSE(Equal(COleVariant(2.5), COleVariant(2.25)));
    EXPECT_TRUE(Equal(COleVariant(), COleVariant()));
    EXPECT_TRUE(Equal(COleVariant(1.5f), COleVariant(1.5f)));
    COleVariant one, two;
    one = 1LL;
    two = 2LL;
    EXPECT_FALSE(Equal(one, two));
}

TEST(Variant, Attach_EmptiesTheSourceAndDetachGivesTheValueAway)
{
    VARIANT plain;
    VariantInit(&plain);
    plain.vt = VT_BSTR;
    plain.bstrVal = SysAllocString(L"attached");
    const BSTR characters = plain.bstrVal;
    COleVariant value(1L);
    value.Attach(plain);
    EXPECT_EQ(VT_EMPTY, plain.vt);
    EXPECT_EQ(characters, value.bstrVal);
    VARIANT detached = value.Detach();
    EXPECT_EQ(VT_EMPTY, value.vt);
    EXPECT_EQ(characters, detached.bstrVal);
    VariantClear(&detached);
}

TEST(Variant, Moves_TakeTheValue)
{
    COleVariant source(L"moved");
    const BSTR characters = source.bstrVal;
    COleVariant target(std::move(source));
    EXPECT_EQ(characters, target.bstrVal);
}

TEST(OleException, HasTheSystemsText)
{
    wchar_t message[256];
    SCODE code = S_OK;
    try
    {
        AfxThrowOleException(E_ACCESSDENIED);
    }
    catch (COleException* exception)
    {
        code = exception->m_sc;
        EXPECT_TRUE(exception->GetErrorMessage(message, _countof(message)));
        EXPECT_NE(0u, std::wcslen(message));
        exception->Delete();
    }
    EXPECT_EQ(E_ACCESSDENIED, code);
    EXPECT_NO_THROW(AfxThrowOleException(S_FALSE));
    EXPECT_THROW(AfxThrowOleException(E_OUTOFMEMORY), CMemoryException*);
}

TEST(Variant, Comparison_KnowsEachType)
{
    // Two of a type that differ, as they are converted from texts or numbers.
    for (const VARTYPE type : {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT, VT_UINT, VT_I8, VT_UI8,
                               VT_CY, VT_R4, VT_R8, VT_DATE, VT_DECIMAL})
    {
        COleVariant one(1.0), same(1.0), other(2.0);
        one.ChangeType(type);
        same.ChangeType(type);
        other.ChangeType(type);
        EXPECT_EQ(one.vt, type);
        EXPECT_TRUE(Equal(one, same)) << type;
        EXPECT_FALSE(Equal(one, other)) << type;
    }
}

TEST(Variant, Comparison_OfReferencesIsThatOfTheirTargets)
{
    long one = 1, other = 1;
    VARIANT first = {}, same = {}, second = {};
    first.vt = same.vt = second.vt = VT_BYREF | VT_I4;
    first.plVal = same.plVal = &one;
    second.plVal = &other;
    COleVariant value;
    value.vt = first.vt;
    value.plVal = &one;
    EXPECT_TRUE(Equal(value, same));
    EXPECT_FALSE(Equal(value, second));
    EXPECT_TRUE(value.operator==(static_cast<LPCVARIANT>(&same)));
    value.vt = VT_EMPTY;
}

TEST(Variant, ALongUnsignedNumberKeepsItsType)
{
    COleVariant value;
    value = static_cast<ULONGLONG>(0xffffffffffffffff);
    EXPECT_EQ(VT_UI8, value.vt);
    EXPECT_EQ(0xffffffffffffffffull, value.ullVal);
}

TEST(Variant, IsMadeFromAPointerToAnother)
{
    const COleVariant source(5L);
    const COleVariant made(static_cast<LPCVARIANT>(&source));
    EXPECT_TRUE(Equal(made, source));
    COleVariant assigned;
    assigned = static_cast<LPCVARIANT>(&source);
    EXPECT_TRUE(Equal(assigned, source));
    const COleVariant text(L"abc", VT_BSTR);
    EXPECT_STREQ(L"abc", text.bstrVal);
}
