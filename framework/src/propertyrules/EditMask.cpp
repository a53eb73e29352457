// Typing into a text with fixed characters.
#include "propertyrules/EditMask.h"

#include <algorithm>
#include <cstddef>
#include <cwctype>

namespace quorfx
{
namespace
{

constexpr wchar_t FixedPosition = L' ';

// Whether the character is of the kind that the mask character names.
bool IsOfKind(wchar_t kind, wchar_t character)
{
    const std::wint_t c = static_cast<std::wint_t>(character);
    switch (kind)
    {
    case L'D':
        return std::iswdigit(c) != 0;
    case L'd':
        return std::iswdigit(c) != 0 || c == L' ';
    case L'+':
        return std::iswdigit(c) != 0 || c == L' ' || c == L'+' || c == L'-';
    case L'C':
        return std::iswalpha(c) != 0;
    case L'c':
        return std::iswalpha(c) != 0 || c == L' ';
    case L'A':
        return std::iswalnum(c) != 0;
    case L'a':
        return std::iswalnum(c) != 0 || c == L' ';
    case L'*':
        return c >= L' ' && c != 0x7F;
    default:
        return false;
    }
}

} // namespace

EditMask::EditMask(const std::wstring& mask, const std::wstring& editTemplate,
                   const std::wstring& validCharacters)
    : m_valid(validCharacters)
{
    if (mask.length() != editTemplate.length())
        return;
    m_mask = mask;
    m_template = editTemplate;
}

bool EditMask::IsValid(wchar_t character) const
{
    return m_valid.empty() || m_valid.find(character) != std::wstring::npos;
}

int EditMask::LengthIn(const std::wstring& text) const
{
    return static_cast<int>((std::min)(text.length(), m_mask.length()));
}

bool EditMask::IsFixed(int position) const
{
    return m_mask[static_cast<std::size_t>(position)] == FixedPosition;
}

bool EditMask::Fits(int position, wchar_t character) const
{
    return !IsFixed(position) && IsOfKind(m_mask[static_cast<std::size_t>(position)], character) &&
           IsValid(character);
}

std::wstring EditMask::Complete(const std::wstring& text) const
{
    std::wstring complete = m_template;
    const std::size_t count = (std::min)(text.length(), complete.length());
    for (std::size_t i = 0; i < count; ++i)
        if (Fits(static_cast<int>(i), text[i]))
            complete[i] = text[i];
    return complete;
}

bool EditMask::Type(std::wstring& text, int& caret, wchar_t character) const
{
    const int position = FreeFrom(caret);
    if (position >= LengthIn(text) || !Fits(position, character))
        return false;
    text[static_cast<std::size_t>(position)] = character;
    caret = FreeFrom(position + 1);
    return true;
}

void EditMask::Erase(std::wstring& text, int first, int last) const
{
    for (int i = (std::max)(first, 0); i < (std::min)(last, LengthIn(text)); ++i)
        text[static_cast<std::size_t>(i)] = m_template[static_cast<std::size_t>(i)];
}

int EditMask::FreeBefore(int caret) const
{
    int position = (std::min)(caret, Length()) - 1;
    while (position >= 0 && IsFixed(position))
        --position;
    return position;
}

int EditMask::FreeFrom(int caret) const
{
    int position = (std::max)(caret, 0);
    while (position < Length() && IsFixed(position))
        ++position;
    return (std::min)(position, Length());
}

} // namespace quorfx
