// Texts of times and time spans.
#include "time/TimeText.h"

#include <cwchar>

namespace
{

CString SpanPart(wchar_t code, LONGLONG seconds)
{
    CString text;
    switch (code)
    {
    case L'%':
        text = L"%";
        break;
    case L'D':
        text.Format(L"%I64d", seconds / (24 * 3600));
        break;
    case L'H':
        text.Format(L"%02d", static_cast<int>(seconds / 3600 % 24));
        break;
    case L'M':
        text.Format(L"%02d", static_cast<int>(seconds / 60 % 60));
        break;
    case L'S':
        text.Format(L"%02d", static_cast<int>(seconds % 60));
        break;
    default:
        AfxThrowInvalidArgException();
    }
    return text;
}

} // namespace

namespace quorfx
{

CString TimeText(LPCTSTR format, const std::tm& parts)
{
    ENSURE_ARG(format != nullptr);
    // The function reports an empty text like one that does not fit; a blank at the end tells them apart.
    // Some versions fill the room with what fits, so the text counts only when there is room to spare.
    const CString ended = CString(format) + L' ';
    CString text;
    size_t length = 0;
    size_t room = 64;
    while (length == 0 || length + 1 >= room)
    {
        room *= 2;
        ENSURE_ARG(room <= 0x10000);
        length = std::wcsftime(text.GetBuffer(static_cast<int>(room)), room, ended, &parts);
    }
    text.ReleaseBufferSetLength(static_cast<int>(length) - 1);
    return text;
}

CString SpanText(LPCTSTR format, LONGLONG seconds)
{
    ENSURE_ARG(format != nullptr);
    CString text;
    for (LPCTSTR position = format; *position != 0; ++position)
    {
        if (*position != L'%')
            text += *position;
        else if (position[1] != 0)
            text += SpanPart(*++position, seconds);
    }
    return text;
}

CString FormatFromResource(UINT id)
{
    CString format;
    ENSURE_ARG(format.LoadString(id));
    return format;
}

} // namespace quorfx
