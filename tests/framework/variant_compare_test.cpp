// Variants that are the same and that are not, by every kind of value; texts of automation, and its
// exceptions.
#include "tests/framework/TemporaryFolder.h"

#include <afxdisp.h>

#include <comutil.h>
#include <gtest/gtest.h>

#include <memory>

namespace quor::test
{
namespace
{

VARIANT Number(VARTYPE kind, LONGLONG value)
{
    VARIANT variant = {};
    variant.vt = kind;
    variant.llVal = value;
    return variant;
}

class SameVariant : public testing::TestWithParam<VARTYPE>
{
};

TEST_P(SameVariant, IsOneOfTheSameKindAndValue)
{
    const VARTYPE kind = GetParam();
    const COleVariant one(Number(kind, 1));
    const VARIANT same = Number(kind, 1);
    const VARIANT other = Number(kind, 2);
    const VARIANT otherKind = Number(kind == VT_I4 ? VT_UI4 : VT_I4, 1);
    EXPECT_TRUE(one == same);
    EXPECT_TRUE(one == &same);
    EXPECT_FALSE(one == other);
    EXPECT_FALSE(one == &other);
    EXPECT_FALSE(one == otherKind);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SameVariant,
                         testing::Values<VARTYPE>(VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT,
                                                  VT_UINT, VT_ERROR, VT_I8, VT_UI8, VT_CY, VT_BOOL));

VARIANT Real(VARTYPE kind, double value)
{
    VARIANT variant = {};
    variant.vt = kind;
    if (kind == VT_R4)
        variant.fltVal = static_cast<float>(value);
    else
        variant.dblVal = value;
    return variant;
}

TEST(VariantComparison, RealNumbersAndDatesAreComparedByTheirValue)
{
    for (const VARTYPE kind : {VT_R4, VT_R8, VT_DATE})
    {
        EXPECT_TRUE(COleVariant(Real(kind, 1.5)) == Real(kind, 1.5)) << kind;
        EXPECT_FALSE(COleVariant(Real(kind, 1.5)) == Real(kind, 1.25)) << kind;
    }
}

TEST(VariantComparison, DecimalsAreComparedByTheirValue)
{
    VARIANT ten = {};
    VARIANT alsoTen = {};
    ASSERT_EQ(VarDecFromI4(10, &ten.decVal), S_OK);
    ten.vt = VT_DECIMAL;
    // 100 with one digit behind the point.
    ASSERT_EQ(VarDecFromI4(100, &alsoTen.decVal), S_OK);
    alsoTen.decVal.scale = 1;
    alsoTen.vt = VT_DECIMAL;
    VARIANT eleven = {};
    ASSERT_EQ(VarDecFromI4(11, &eleven.decVal), S_OK);
    eleven.vt = VT_DECIMAL;
    EXPECT_TRUE(COleVariant(ten) == alsoTen);
    EXPECT_FALSE(COleVariant(ten) == eleven);
}

TEST(VariantComparison, PointersAreComparedByTheirAddress)
{
    long number = 5;
    long equal = 5;
    VARIANT pointer = {};
    pointer.vt = VT_I4 | VT_BYREF;
    pointer.plVal = &number;
    VARIANT other = pointer;
    other.plVal = &equal;
    EXPECT_TRUE(COleVariant(pointer) == pointer);
    EXPECT_FALSE(COleVariant(pointer) == other);
    VARIANT none = {};
    none.vt = VT_UNKNOWN;
    EXPECT_TRUE(COleVariant(none) == none);
}

TEST(VariantComparison, NothingIsTheSameAsNothingOfItsKind)
{
    VARIANT empty = {};
    VARIANT null = {};
    null.vt = VT_NULL;
    EXPECT_TRUE(COleVariant() == empty);
    EXPECT_TRUE(COleVariant(null) == null);
    EXPECT_FALSE(COleVariant(null) == empty);
}

TEST(VariantValues, AreMadeOfPointersAndTypedTexts)
{
    const VARIANT source = Number(VT_I4, 7);
    const COleVariant copy(&source);
    EXPECT_EQ(copy.vt, VT_I4);
    EXPECT_EQ(copy.lVal, 7);
    const COleVariant text(L"text", VT_BSTR);
    EXPECT_EQ(text.vt, VT_BSTR);
    EXPECT_STREQ(text.bstrVal, L"text");
    COleVariant assigned;
    assigned = &source;
    EXPECT_TRUE(assigned == source);
    assigned = static_cast<ULONGLONG>(1) << 63;
    EXPECT_EQ(assigned.vt, VT_UI8);
    EXPECT_EQ(assigned.ullVal, 1ull << 63);
}

TEST(VariantValues, AttachingToItselfKeepsTheValue)
{
    COleVariant text(L"text");
    text.Attach(text);
    EXPECT_STREQ(text.bstrVal, L"text");
    VARIANT detached = text.Detach();
    EXPECT_EQ(text.vt, VT_EMPTY);
    COleVariant other(1L);
    other.Attach(detached);
    EXPECT_EQ(detached.vt, VT_EMPTY);
    EXPECT_STREQ(other.bstrVal, L"text");
}

TEST(VariantValues, AConversionThatCannotBeThrows)
{
    COleVariant text(L"not a number");
    HRESULT reason = S_OK;
    try
    {
        text.ChangeType(VT_I4);
    }
    catch (COleException* exception)
    {
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(COleException)));
        reason = exception->m_sc;
        exception->Delete();
    }
    EXPECT_EQ(reason, DISP_E_TYPEMISMATCH);
    EXPECT_STREQ(text.bstrVal, L"not a number") << "the value is as it was";
    text.ChangeType(VT_BSTR);
    EXPECT_STREQ(text.bstrVal, L"not a number") << "its own kind is no conversion";
}

TEST(VariantValues, TheExceptionSaysWhatTheSystemSays)
{
    wchar_t expected[256] = L"";
    ASSERT_NE(::FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                              static_cast<DWORD>(E_ACCESSDENIED), 0, expected, 256, nullptr),
              0u);
    wchar_t message[256] = L"";
    UINT help = 5;
    try
    {
        AfxThrowOleException(E_ACCESSDENIED);
    }
    catch (COleException* exception)
    {
        EXPECT_TRUE(exception->GetErrorMessage(message, 256, &help));
        EXPECT_FALSE(exception->GetErrorMessage(nullptr, 0));
        exception->Delete();
    }
    EXPECT_STREQ(message, expected);
    EXPECT_EQ(help, 0u);
}

TEST(VariantValues, OutOfMemoryIsItsOwnException)
{
    EXPECT_TRUE(Throws<CMemoryException>([] { AfxThrowOleException(E_OUTOFMEMORY); }));
    EXPECT_TRUE(Throws<COleException>([] { AfxThrowOleException(E_FAIL); }));
    AfxThrowOleException(S_FALSE);
}

TEST(AutomationTexts, AreConvertedFromNarrowOnesAndBack)
{
    const BSTR wide = _com_util::ConvertStringToBSTR("narrow");
    ASSERT_NE(wide, nullptr);
    EXPECT_STREQ(wide, L"narrow");
    EXPECT_EQ(::SysStringLen(wide), 6u);
    const std::unique_ptr<char[]> narrow(_com_util::ConvertBSTRToString(wide));
    EXPECT_STREQ(narrow.get(), "narrow");
    ::SysFreeString(wide);
    EXPECT_EQ(_com_util::ConvertStringToBSTR(nullptr), nullptr);
    EXPECT_EQ(_com_util::ConvertBSTRToString(nullptr), nullptr);
}

} // namespace
} // namespace quor::test
