// LocaleTexts: numbers, dates and truth values as a locale writes them.
#pragma once

#include "rules/NumberShape.h"

#include <afxwin.h>

#include <optional>
#include <string>

namespace QuorUiCtr
{

struct DateValue;

// Reads the locale's data once.
class LocaleTexts
{
public:
    // An empty name is the user's locale.
    explicit LocaleTexts(const wchar_t* localeName);

    const NumberMarks& Marks() const { return marks; }
    // An empty picture is the short date; a time is added behind it `withTime`. Nothing when the platform
    // cannot write the date.
    std::optional<CString> Date(const DateValue& date, const CString& picture, bool withTime) const;
    const CString& Truth(bool value) const { return value ? trueText : falseText; }

private:
    const wchar_t* Name() const;
    // Texts and numbers of the locale's data; what it does not have stays as it is.
    void Read(LCTYPE type, std::wstring& text) const;
    void Read(LCTYPE type, int& number) const;

    std::wstring name;
    NumberMarks marks;
    CString trueText;
    CString falseText;
};

} // namespace QuorUiCtr
