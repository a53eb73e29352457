// White space, line breaks and characters of HTML as plain text.
#include "rules/HtmlFlow.h"

#include "rules/HtmlEntities.h"
#include "rules/Utf8.h"

#include <algorithm>
#include <array>

namespace QuorUiCtr
{
namespace
{

enum class ByteKind : unsigned char
{
    // A character by itself.
    Plain,
    // White space, which is folded.
    Space,
    // The beginning of a name, of a longer character, or what HTML cannot have.
    Other
};

constexpr auto ByteKinds = [] {
    std::array<ByteKind, 256> kinds = {};
    for (std::size_t code = 0x80; code < kinds.size(); ++code)
        kinds[code] = ByteKind::Other;
    kinds['\0'] = kinds['&'] = ByteKind::Other;
    for (const unsigned char space : {' ', '\t', '\n', '\r', '\f'})
        kinds[space] = ByteKind::Space;
    return kinds;
}();

// How many bytes of a kind a text begins with.
std::size_t RunOf(std::string_view text, ByteKind kind)
{
    std::size_t length = 0;
    while (length < text.size() && ByteKinds[static_cast<unsigned char>(text[length])] == kind)
        ++length;
    return length;
}

} // namespace

// By its style; for runs of blanks there is a property of its own.
bool KeepsSpace(std::string_view attributes)
{
    const std::string_view style = AttributeOf(attributes, "style");
    return !style.empty() &&
           (HasProperty(style, "white-space", "break-spaces") ||
            (HasProperty(style, "white-space", "pre") && !HasProperty(style, "white-space", "pre-line")) ||
            HasProperty(style, "mso-spacerun", "yes"));
}

void HtmlFlow::Begin(bool keepsSpace)
{
    text.clear();
    hasSpace = false;
    hasLineEnd = false;
    cellKeepsSpace = keepsSpace;
    hasContent = false;
    isAfterReturn = false;
    keeperDepth = 0;
}

void HtmlFlow::Add(std::string_view html, std::size_t& wrongBytes)
{
    while (!html.empty())
    {
        if (const std::size_t run = RunOf(html, ByteKind::Plain); run > 0)
        {
            AddPlain(html.substr(0, run));
            html.remove_prefix(run);
            continue;
        }
        if (const std::size_t run = RunOf(html, ByteKind::Space); run > 0)
        {
            AddSpaces(html.substr(0, run));
            html.remove_prefix(run);
            continue;
        }
        const HtmlEntity entity = html.front() == '&' ? EntityAt(html) : HtmlEntity();
        if (entity.isNamedBlank)
            AddFiller(L' ');
        else if (entity.length > 0)
            AddOther(entity.character);
        else
        {
            bool isWrong = false;
            const char32_t character = TakeUtf8(html, isWrong);
            wrongBytes += isWrong ? 1 : 0;
            AddOther(character != 0 ? character : ReplacementCharacter);
        }
        html.remove_prefix(entity.length);
    }
}

void HtmlFlow::AddPlain(std::string_view characters)
{
    Flush();
    hasContent = true;
    const std::size_t before = text.size();
    text.resize(before + characters.size());
    std::copy(characters.begin(), characters.end(), text.data() + before);
}

void HtmlFlow::AddSpaces(std::string_view spaces)
{
    if (!cellKeepsSpace && keeperDepth == 0)
    {
        hasSpace = true;
        return;
    }
    for (const char unit : spaces)
    {
        if (unit == '\n' || unit == '\r')
        {
            if (unit == '\r' || !isAfterReturn)
                AddKept(L"\n");
        }
        else
            AddOther(static_cast<char32_t>(unit));
        isAfterReturn = unit == '\r';
    }
}

void HtmlFlow::AddFiller(wchar_t unit)
{
    const bool isSecond = !text.empty();
    Flush();
    hasContent = hasContent || isSecond;
    text += unit;
}

void HtmlFlow::AddOther(char32_t character)
{
    Flush();
    hasContent = true;
    AppendCharacter(text, character);
}

void HtmlFlow::AddKept(std::wstring_view characters)
{
    Flush();
    hasContent = hasContent || !characters.empty();
    text += characters;
}

// Blanks at the ends of a line go.
void HtmlFlow::Flush()
{
    isAfterReturn = false;
    if (hasLineEnd)
        text += L'\n';
    else if (hasSpace && !text.empty() && text.back() != L'\n')
        text += L' ';
    hasLineEnd = false;
    hasSpace = false;
}

void HtmlFlow::BeginLine()
{
    hasLineEnd = !text.empty() && (hasLineEnd || text.back() != L'\n');
}

void HtmlFlow::EndLine()
{
    Flush();
    hasLineEnd = true;
}

void HtmlFlow::AddBreak()
{
    // Only what has another line is divided from it.
    hasSpace = false;
    AddFiller(L'\n');
}

void HtmlFlow::Open(const HtmlToken& token)
{
    if (keeperDepth > 0)
        keeperDepth += token.text == keeper ? 1 : 0;
    else if (token.tag == HtmlTag::Preformatted || KeepsSpace(token.attributes))
    {
        keeper = token.text;
        keeperDepth = 1;
    }
}

void HtmlFlow::Close(const HtmlToken& token)
{
    if (keeperDepth > 0 && token.text == keeper)
        --keeperDepth;
}

std::wstring_view HtmlFlow::GetText() const
{
    return hasContent || cellKeepsSpace ? std::wstring_view(text) : std::wstring_view();
}

} // namespace QuorUiCtr
