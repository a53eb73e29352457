// The compact text of a combo property.
#include "propgrid/ComboSpecification.h"

namespace
{

// Takes what is between the first `open` and the first `close` out of `rest`, of which the part behind
// `close` stays.
bool TakeBetween(CString& rest, wchar_t open, wchar_t close, CString& between)
{
    const int first = rest.Find(open);
    const int last = rest.Find(close);
    if (first < 0 || last < first)
        return false;
    between = rest.Mid(first + 1, last - first - 1);
    rest = rest.Mid(last + 1);
    return true;
}

void SplitAtCommas(const CString& text, CArray<CString, const CString&>& options)
{
    int start = 0;
    for (int comma = text.Find(L','); comma >= 0; comma = text.Find(L',', start))
    {
        options.Add(text.Mid(start, comma - start));
        start = comma + 1;
    }
    options.Add(text.Mid(start));
}

} // namespace

bool ParseComboSpecification(const CString& text, ComboSpecification& parts)
{
    const int comma = text.Find(L',');
    if (comma < 0)
        return false;
    parts.value = text.Left(comma);
    CString rest = text.Mid(comma + 1);
    CString optionList;
    if (!TakeBetween(rest, L'<', L'>', optionList) || !TakeBetween(rest, L'[', L']', parts.description))
        return false;
    parts.options.RemoveAll();
    SplitAtCommas(optionList, parts.options);
    return true;
}
