// HtmlFlow: the text of a cell, put together from what stands in its HTML, with white space folded.
#pragma once

#include "rules/HtmlTokens.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace QuorUiCtr
{

// Whether an element with these attributes keeps white space as it is.
bool KeepsSpace(std::string_view attributes);

class HtmlFlow
{
public:
    // Begins anew; `keepsSpace` for an element whose style keeps white space as it is.
    void Begin(bool keepsSpace);
    // Text as it stands between two tags. Wrong UTF-8 is counted.
    void Add(std::string_view html, std::size_t& wrongBytes);
    // A line of its own begins or ends, unless the text is at the beginning of one.
    void BeginLine();
    // A line ends, also an empty one; only what follows shows it.
    void EndLine();
    void AddBreak();
    // Characters that are not folded.
    void AddKept(std::wstring_view characters);
    // Elements that keep white space, or do not; an element that is never closed keeps it to the end.
    void Open(const HtmlToken& token);
    void Close(const HtmlToken& token);

    bool IsEmpty() const { return text.empty(); }
    std::size_t GetLength() const { return text.size(); }
    // Without what others put into an empty cell, so that something is there. Good until the next Begin.
    std::wstring_view GetText() const;

private:
    void AddPlain(std::string_view characters);
    void AddSpaces(std::string_view spaces);
    void AddFiller(wchar_t unit);
    void AddOther(char32_t character);
    // What was held back until it is known that something follows.
    void Flush();

    std::wstring text;
    bool hasSpace = false;
    bool hasLineEnd = false;
    bool cellKeepsSpace = false;
    // Whether there is anything but fillers.
    bool hasContent = false;
    bool isAfterReturn = false;
    // The element that keeps white space, and how many of its name are open within.
    std::string keeper;
    std::size_t keeperDepth = 0;
};

} // namespace QuorUiCtr
