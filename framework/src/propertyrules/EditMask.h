// Typing into a text with fixed characters: the rules of the masked in-place editor.
#pragma once

#include <string>

namespace quorfx
{

// What may be typed where. Without a mask every position is free and only the valid characters count.
class EditMask
{
public:
    // See CMFCPropertyGridProperty for the characters of a mask. A mask that is not as long as its template
    // is no mask.
    EditMask(const std::wstring& mask, const std::wstring& editTemplate, const std::wstring& validCharacters);

    bool HasMask() const { return !m_mask.empty(); }
    // Whether the character is among the valid ones.
    bool IsValid(wchar_t character) const;

    // The text as it is edited: as long as the mask, with the template's characters where it has none that
    // fit.
    std::wstring Complete(const std::wstring& text) const;
    // Types a character at the caret or the next free position: changes the text, which is complete, and
    // moves the caret to the next free position. Returns false when it does not fit.
    bool Type(std::wstring& text, int& caret, wchar_t character) const;
    // Puts the template back into the positions first to last - 1.
    void Erase(std::wstring& text, int first, int last) const;
    // The free position before the caret, or -1.
    int FreeBefore(int caret) const;
    // The free position at or after the caret, or the end.
    int FreeFrom(int caret) const;

private:
    int Length() const { return static_cast<int>(m_mask.length()); }
    // How many positions of the mask the text has.
    int LengthIn(const std::wstring& text) const;
    bool IsFixed(int position) const;
    bool Fits(int position, wchar_t character) const;

    std::wstring m_mask;
    std::wstring m_template;
    std::wstring m_valid;
};

} // namespace quorfx
