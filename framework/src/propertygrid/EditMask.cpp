// Typing into a text with fixed characters.
#include "propertygrid/EditMask.h"

#include <cwctype>

namespace quorfx
{
namespace
{

constexpr wchar_t FixedPosition = L' ';

// Whether the character is of the kind that the mask character names.
bool IsOfKind(wchar_t kind, wchar_t character)
{
    const wint_t c = character;
    switch (kind)
    {
    case L'D':
        return iswdigit(c) != 0;
    case L'd':
        return iswdigit(c) != 0 || c == L' ';
    case L'+':
        return iswdigit(c) != 0 || c == L' ' || c == L'+' || c == L'-';
    case L'C':
        return iswalpha(c) != 0;
    case L'c':
        return iswalpha(c) != 0 || c == L' ';
    case L'A':
        return iswalnum(c) != 0;
    case L'a':
        return iswalnum(c) != 0 || c == L' ';
    case L'*':
        return c >= L' ' && c != 0x7F;
    default:
        return false;
    }
}

} // namespace

EditMask::EditMask(const CString& mask, const CString& editTemplate, const CString& validCharacters)
    : m_valid(validCharacters)
{
    if (mask.GetLength() != editTemplate.GetLength())
        return;
    m_mask = mask;
    m_template = editTemplate;
}

bool EditMask::IsValid(wchar_t character) const
{
    return m_valid.IsEmpty() || m_valid.Find(character) >= 0;
}

bool EditMask::Fits(int position, wchar_t character) const
{
    return m_mask[position] != FixedPosition && IsOfKind(m_mask[position], character) && IsValid(character);
}

CString EditMask::Complete(const CString& text) const
{
    CString complete = m_template;
    const int count = (std::min)(text.GetLength(), complete.GetLength());
    for (int i = 0; i < count; ++i)
        if (Fits(i, text[i]))
            complete.SetAt(i, text[i]);
    return complete;
}

bool EditMask::Type(CString& text, int& caret, wchar_t character) const
{
    const int position = FreeFrom(caret);
    if (position >= m_mask.GetLength() || !Fits(position, character))
        return false;
    text.SetAt(position, character);
    caret = FreeFrom(position + 1);
    return true;
}

void EditMask::Erase(CString& text, int first, int last) const
{
    for (int i = (std::max)(first, 0); i < (std::min)(last, m_mask.GetLength()); ++i)
        text.SetAt(i, m_template[i]);
}

int EditMask::FreeBefore(int caret) const
{
    int position = (std::min)(caret, m_mask.GetLength()) - 1;
    while (position >= 0 && m_mask[position] == FixedPosition)
        --position;
    return position;
}

int EditMask::FreeFrom(int caret) const
{
    int position = (std::max)(caret, 0);
    while (position < m_mask.GetLength() && m_mask[position] == FixedPosition)
        ++position;
    return (std::min)(position, m_mask.GetLength());
}

} // namespace quorfx
