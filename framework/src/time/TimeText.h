// Texts of times and time spans.
#pragma once

#include "afx.h"

#include <ctime>

namespace quorfx
{

// A text as by strftime. Throws CInvalidArgException for a format that has no meaning.
CString TimeText(LPCTSTR format, const std::tm& parts);

// The format with %D, %H, %M and %S replaced by the parts of a span of seconds.
CString SpanText(LPCTSTR format, LONGLONG seconds);

// A string resource that is a format. Throws CInvalidArgException when there is none.
CString FormatFromResource(UINT id);

} // namespace quorfx
