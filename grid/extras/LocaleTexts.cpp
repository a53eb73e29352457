// Asks the platform for what a locale writes.
#include "grid/extras/LocaleTexts.h"

#include "rules/ValueTexts.h"

#include <afxdisp.h>

namespace QuorUiCtr
{
namespace
{

constexpr int LongestDate = 200;

// In the language of the locale; English where the platform does not know it.
CString TruthWord(LCID locale, bool value)
{
    BSTR word = nullptr;
    if (FAILED(::VarBstrFromBool(value ? VARIANT_TRUE : VARIANT_FALSE, locale, VAR_LOCALBOOL, &word)))
        return value ? L"True" : L"False";
    CString text(word);
    ::SysFreeString(word);
    return text;
}

} // namespace

LocaleTexts::LocaleTexts(const wchar_t* localeName) : name(localeName)
{
    Read(LOCALE_SDECIMAL, marks.decimal);
    Read(LOCALE_STHOUSAND, marks.group);
    Read(LOCALE_SGROUPING, marks.grouping);
    Read(LOCALE_SNEGATIVESIGN, marks.negative);
    Read(LOCALE_INEGNUMBER, marks.negativeOrder);
    Read(LOCALE_SPERCENT, marks.percent);
    Read(LOCALE_IPOSITIVEPERCENT, marks.percentOrder);
    const LCID id = name.empty() ? LOCALE_USER_DEFAULT : ::LocaleNameToLCID(Name(), 0);
    trueText = TruthWord(id, true);
    falseText = TruthWord(id, false);
}

const wchar_t* LocaleTexts::Name() const
{
    return name.empty() ? LOCALE_NAME_USER_DEFAULT : name.c_str();
}

void LocaleTexts::Read(LCTYPE type, std::wstring& text) const
{
    constexpr int longestMark = 16;
    wchar_t found[longestMark] = {};
    if (::GetLocaleInfoEx(Name(), type, found, longestMark) > 0)
        text = found;
}

void LocaleTexts::Read(LCTYPE type, int& number) const
{
    DWORD found = 0;
    if (::GetLocaleInfoEx(Name(), type | LOCALE_RETURN_NUMBER, reinterpret_cast<LPWSTR>(&found),
                          sizeof(found) / sizeof(wchar_t)) > 0)
        number = static_cast<int>(found);
}

std::optional<CString> LocaleTexts::Date(const DateValue& date, const CString& picture, bool withTime) const
{
    SYSTEMTIME time = {};
    time.wYear = static_cast<WORD>(date.year);
    time.wMonth = static_cast<WORD>(date.month);
    time.wDay = static_cast<WORD>(date.day);
    time.wHour = static_cast<WORD>(date.hour);
    time.wMinute = static_cast<WORD>(date.minute);
    time.wSecond = static_cast<WORD>(date.second);
    wchar_t text[LongestDate] = {};
    if (::GetDateFormatEx(Name(), picture.IsEmpty() ? DATE_SHORTDATE : 0, &time,
                          picture.IsEmpty() ? nullptr : picture.GetString(), text, LongestDate, nullptr) <= 0)
        return std::nullopt;
    CString shown(text);
    if (!withTime)
        return shown;
    const DWORD flags = date.second == 0 ? TIME_NOSECONDS : 0;
    if (::GetTimeFormatEx(Name(), flags, &time, nullptr, text, LongestDate) <= 0)
        return std::nullopt;
    return shown + L" " + text;
}

} // namespace QuorUiCtr
