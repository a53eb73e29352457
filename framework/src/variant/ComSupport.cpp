// What <comutil.h> leaves to a library: the conversion of narrow texts for _variant_t and _bstr_t.
#include "afxdisp.h"

#include <comutil.h>

namespace _com_util
{

BSTR WINAPI ConvertStringToBSTR(const char* pSrc)
{
    return pSrc == nullptr ? nullptr : CString(pSrc).AllocSysString();
}

// The caller frees the result with delete[].
char* WINAPI ConvertBSTRToString(BSTR pSrc)
{
    if (pSrc == nullptr)
        return nullptr;
    const CStringA narrow(pSrc);
    const size_t size = static_cast<size_t>(narrow.GetLength()) + 1;
    char* const copy = new char[size];
    std::memcpy(copy, narrow.GetString(), size);
    return copy;
}

} // namespace _com_util
