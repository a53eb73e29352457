// Property values as text and back.
#include "propertygrid/PropertyValueText.h"

#include "afxpropertygridctrl.h"
#include "propertyrules/NumberText.h"

#include <cmath>
#include <optional>

namespace quorfx
{
namespace
{

// The formats of numbers that programs cannot change.
constexpr const TCHAR* CharacterFormat = _T("%c");
constexpr const TCHAR* UnsignedFormat = _T("%u");
constexpr const TCHAR* UnsignedLongFormat = _T("%lu");

struct IntegerRange
{
    VARTYPE type;
    long long least;
    long long most;
};

constexpr IntegerRange IntegerRanges[] = {
    {VT_I2, SHRT_MIN, SHRT_MAX}, {VT_UI2, 0, USHRT_MAX},     {VT_I4, LONG_MIN, LONG_MAX},
    {VT_UI4, 0, ULONG_MAX},      {VT_INT, INT_MIN, INT_MAX}, {VT_UINT, 0, UINT_MAX},
};

const IntegerRange* RangeOf(VARTYPE type)
{
    for (const IntegerRange& range : IntegerRanges)
        if (range.type == type)
            return &range;
    return nullptr;
}

CString FormatCharacter(BYTE character)
{
    CString text;
    // A zero would end the text in the middle of a longer format.
    if (character != 0)
        text.Format(CharacterFormat, static_cast<wchar_t>(character));
    return text;
}

CString FormatOther(const VARIANT& value)
{
    VARIANT text;
    ::VariantInit(&text);
    if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&value), 0, VT_BSTR)))
        return CString();
    const CString result(text.bstrVal);
    ::VariantClear(&text);
    return result;
}

CString FormatFloat(const CString& format, double number)
{
    CString text;
    text.Format(format, number);
    return text;
}

bool ParseFlag(const CString& text, const FlagLabels& labels, VARIANT& value)
{
    const bool on = text.CompareNoCase(labels.on) == 0;
    if (!on && text.CompareNoCase(labels.off) != 0)
        return false;
    value.boolVal = on ? VARIANT_TRUE : VARIANT_FALSE;
    return true;
}

bool ParseInteger(const CString& text, VARIANT& value)
{
    const IntegerRange& range = *RangeOf(value.vt);
    const std::optional<long long> number = ReadInteger(text.GetString(), range.least, range.most);
    if (number)
        SetInteger(value, *number);
    return number.has_value();
}

bool ParseReal(const CString& text, VARIANT& value)
{
    const std::optional<double> number = ReadReal(text.GetString());
    if (!number)
        return false;
    if (value.vt == VT_R8)
        value.dblVal = *number;
    else if (std::isfinite(static_cast<float>(*number)))
        value.fltVal = static_cast<float>(*number);
    else
        return false;
    return true;
}

bool ParseCharacter(const CString& text, VARIANT& value)
{
    if (text.GetLength() != 1 || text[0] > UCHAR_MAX)
        return false;
    value.bVal = static_cast<BYTE>(text[0]);
    return true;
}

bool ParseText(const CString& text, VARIANT& value)
{
    const BSTR copy = text.AllocSysString();
    ::SysFreeString(value.bstrVal);
    value.bstrVal = copy;
    return true;
}

} // namespace

bool IsSpinType(VARTYPE type)
{
    return RangeOf(type) != nullptr;
}

bool IsEditableType(VARTYPE type)
{
    return IsSpinType(type) || type == VT_BSTR || type == VT_R4 || type == VT_R8 || type == VT_UI1 ||
           type == VT_BOOL;
}

long long IntegerOf(const VARIANT& value)
{
    switch (value.vt)
    {
    case VT_I2:
        return value.iVal;
    case VT_UI2:
        return value.uiVal;
    case VT_I4:
        return value.lVal;
    case VT_UI4:
        return value.ulVal;
    case VT_INT:
        return value.intVal;
    case VT_UINT:
        return value.uintVal;
    default:
        return 0;
    }
}

void SetInteger(VARIANT& value, long long number)
{
    // The members of one width share their bits, whatever the sign.
    if (value.vt == VT_I2 || value.vt == VT_UI2)
        value.iVal = static_cast<short>(number);
    else if (IsSpinType(value.vt))
        value.lVal = static_cast<long>(number);
}

CString FormatValue(const VARIANT& value, const FlagLabels& labels)
{
    CString text;
    switch (value.vt)
    {
    case VT_BSTR:
        return CString(value.bstrVal);
    case VT_BOOL:
        return value.boolVal != VARIANT_FALSE ? labels.on : labels.off;
    case VT_UI1:
        return FormatCharacter(value.bVal);
    case VT_R4:
        return FormatFloat(CMFCPropertyGridProperty::m_strFormatFloat, value.fltVal);
    case VT_R8:
        return FormatFloat(CMFCPropertyGridProperty::m_strFormatDouble, value.dblVal);
    case VT_I2:
        text.Format(CMFCPropertyGridProperty::m_strFormatShort, value.iVal);
        return text;
    case VT_UI2:
        text.Format(UnsignedFormat, value.uiVal);
        return text;
    case VT_I4:
    case VT_INT:
        text.Format(CMFCPropertyGridProperty::m_strFormatLong, value.lVal);
        return text;
    case VT_UI4:
    case VT_UINT:
        text.Format(UnsignedLongFormat, value.ulVal);
        return text;
    default:
        return FormatOther(value);
    }
}

bool ParseValue(const CString& text, const FlagLabels& labels, VARIANT& value)
{
    if (IsSpinType(value.vt))
        return ParseInteger(text, value);
    switch (value.vt)
    {
    case VT_BSTR:
        return ParseText(text, value);
    case VT_BOOL:
        return ParseFlag(text, labels, value);
    case VT_UI1:
        return ParseCharacter(text, value);
    case VT_R4:
    case VT_R8:
        return ParseReal(text, value);
    default:
        return false;
    }
}

} // namespace quorfx
