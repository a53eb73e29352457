// TextRuler: how wide texts are that are not being drawn.
#pragma once

#include <afxwin.h>

#include <vector>

namespace QuorUiCtr
{

// Measures on a drawing context of its own, in pixels, as texts are drawn in cells and captions.
class TextRuler
{
public:
    TextRuler();
    ~TextRuler();
    TextRuler(const TextRuler&) = delete;
    TextRuler& operator=(const TextRuler&) = delete;

    // The size of a text that CDC::DrawText would draw with `format`; null is the system's font.
    CSize Measure(const CString& text, UINT format, CFont* font);
    // The same in lines of at most that width.
    CSize MeasureBroken(const CString& text, UINT format, CFont* font, long width);
    // The height of a line with all that letters have above and below.
    long LineHeight(CFont* font);
    // The sum of the widths of the characters, in the time that adding them up takes. The font counts that
    // was there first: a ruler for one font.
    long Estimate(const CString& text, CFont* font);

private:
    void Select(CFont* font);
    int WidthOf(wchar_t character);

    CDC context;
    HGDIOBJ original = nullptr;
    // The widths of characters as far as they are known, else -1; empty before the first estimate.
    std::vector<short> widths;
};

} // namespace QuorUiCtr
