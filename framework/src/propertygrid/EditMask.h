// Typing into a text with fixed characters: pure functions for the masked in-place editor.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// What may be typed where. Without a mask every position is free and only the valid characters count.
class EditMask
{
public:
    // See CMFCPropertyGridProperty for the characters of a mask. A mask that is not as long as its template
    // is no mask.
    EditMask(const CString& mask, const CString& editTemplate, const CString& validCharacters);

    bool HasMask() const { return !m_mask.IsEmpty(); }
    // Whether the character is among the valid ones.
    bool IsValid(wchar_t character) const;

    // The text as it is edited: as long as the mask, with the template's characters where it has none that
    // fit.
    CString Complete(const CString& text) const;
    // Types a character at the caret or the next free position: changes the text, which is complete, and
    // moves the caret to the next free position. Returns false when it does not fit.
    bool Type(CString& text, int& caret, wchar_t character) const;
    // Puts the template back into the positions first to last - 1.
    void Erase(CString& text, int first, int last) const;
    // The free position before the caret, or -1.
    int FreeBefore(int caret) const;
    // The free position at or after the caret, or the end.
    int FreeFrom(int caret) const;

private:
    bool Fits(int position, wchar_t character) const;

    CString m_mask;
    CString m_template;
    CString m_valid;
};

} // namespace quorfx
