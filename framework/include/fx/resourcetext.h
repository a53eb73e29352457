// Texts from string resources: parts of them, and values put into them.
#pragma once

#include "fx/string.h"

// Copies part iSubString (zero-based) of the text, whose parts are separated by chSep. FALSE, and an empty
// string, if there are fewer parts.
QFX_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                        TCHAR chSep = _T('\n'));
// Loads a string resource and replaces %1, and %2, by the texts. Empty if there is no such resource.
QFX_API void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
QFX_API void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
// The same with up to nString texts for %1 to %9.
QFX_API void AFXAPI AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString);
