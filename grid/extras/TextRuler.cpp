// Measures texts.
#include "grid/extras/TextRuler.h"

#include <algorithm>
#include <climits>
#include <cstddef>

namespace QuorUiCtr
{

TextRuler::TextRuler()
{
    context.CreateCompatibleDC(nullptr);
    original = ::GetCurrentObject(context.GetSafeHdc(), OBJ_FONT);
}

TextRuler::~TextRuler()
{
    ::SelectObject(context.GetSafeHdc(), original);
}

// A font that was deleted may have left its handle to another one.
void TextRuler::Select(CFont* font)
{
    HGDIOBJ wanted = font != nullptr ? font->GetSafeHandle() : nullptr;
    if (wanted == nullptr)
        wanted = ::GetStockObject(SYSTEM_FONT);
    ::SelectObject(context.GetSafeHdc(), wanted);
}

CSize TextRuler::Measure(const CString& text, UINT format, CFont* font)
{
    if (text.IsEmpty())
        return CSize(0, 0);
    Select(font);
    CRect place(0, 0, 0, 0);
    const UINT cutting = DT_END_ELLIPSIS | DT_PATH_ELLIPSIS | DT_WORD_ELLIPSIS | DT_WORDBREAK;
    context.DrawText(text, &place, (format & ~cutting) | DT_CALCRECT | DT_NOCLIP);
    ::SelectObject(context.GetSafeHdc(), original);
    return place.Size();
}

CSize TextRuler::MeasureBroken(const CString& text, UINT format, CFont* font, long width)
{
    Select(font);
    CRect place(0, 0, width, 0);
    context.DrawText(text, &place, format | DT_CALCRECT | DT_WORDBREAK);
    ::SelectObject(context.GetSafeHdc(), original);
    return place.Size();
}

long TextRuler::LineHeight(CFont* font)
{
    Select(font);
    TEXTMETRIC metric = {};
    context.GetTextMetrics(&metric);
    ::SelectObject(context.GetSafeHdc(), original);
    return metric.tmHeight;
}

long TextRuler::Estimate(const CString& text, CFont* font)
{
    if (widths.empty())
        widths.assign(static_cast<std::size_t>(USHRT_MAX) + 1, -1);
    long sum = 0;
    bool isSelected = false;
    for (const wchar_t* unit = text; *unit != L'\0'; ++unit)
    {
        short& width = widths[static_cast<unsigned short>(*unit)];
        if (width < 0)
        {
            if (!isSelected)
                Select(font);
            isSelected = true;
            width = static_cast<short>(WidthOf(*unit));
        }
        sum += width;
    }
    if (isSelected)
        ::SelectObject(context.GetSafeHdc(), original);
    return sum;
}

int TextRuler::WidthOf(wchar_t character)
{
    SIZE size = {};
    ::GetTextExtentPoint32(context.GetSafeHdc(), &character, 1, &size);
    return (std::min)(static_cast<int>(size.cx), SHRT_MAX);
}

} // namespace QuorUiCtr
