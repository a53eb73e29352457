// Telling tags from text as browsers do. Each byte is looked at a fixed number of times at most: a search
// that has found no end is not begun again.
#include "rules/HtmlTokens.h"

#include <algorithm>

namespace QuorUiCtr
{
namespace
{

struct TagName
{
    std::string_view name;
    HtmlTag tag;
};

constexpr TagName TagNames[] = {
    {"table", HtmlTag::Table},      {"tr", HtmlTag::Row},          {"td", HtmlTag::DataCell},
    {"th", HtmlTag::HeaderCell},    {"thead", HtmlTag::RowGroup},  {"tbody", HtmlTag::RowGroup},
    {"tfoot", HtmlTag::RowGroup},   {"br", HtmlTag::Break},        {"pre", HtmlTag::Preformatted},
    {"script", HtmlTag::Hidden},    {"style", HtmlTag::Hidden},    {"title", HtmlTag::Hidden},
    {"template", HtmlTag::Hidden},  {"noscript", HtmlTag::Hidden}, {"iframe", HtmlTag::Hidden},
    {"p", HtmlTag::Block},          {"div", HtmlTag::Block},       {"li", HtmlTag::Block},
    {"ul", HtmlTag::Block},         {"ol", HtmlTag::Block},        {"dl", HtmlTag::Block},
    {"dt", HtmlTag::Block},         {"dd", HtmlTag::Block},        {"h1", HtmlTag::Block},
    {"h2", HtmlTag::Block},         {"h3", HtmlTag::Block},        {"h4", HtmlTag::Block},
    {"h5", HtmlTag::Block},         {"h6", HtmlTag::Block},        {"hr", HtmlTag::Block},
    {"blockquote", HtmlTag::Block}, {"address", HtmlTag::Block},   {"article", HtmlTag::Block},
    {"aside", HtmlTag::Block},      {"caption", HtmlTag::Block},   {"center", HtmlTag::Block},
    {"details", HtmlTag::Block},    {"fieldset", HtmlTag::Block},  {"figcaption", HtmlTag::Block},
    {"figure", HtmlTag::Block},     {"footer", HtmlTag::Block},    {"form", HtmlTag::Block},
    {"header", HtmlTag::Block},     {"main", HtmlTag::Block},      {"nav", HtmlTag::Block},
    {"option", HtmlTag::Block},     {"section", HtmlTag::Block},   {"summary", HtmlTag::Block},
};

bool IsLetter(char unit)
{
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z');
}

bool IsSpace(char unit)
{
    return unit == ' ' || unit == '\t' || unit == '\n' || unit == '\r' || unit == '\f';
}

char Small(char unit)
{
    return unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit - 'A' + 'a') : unit;
}

// `small` is in small letters.
bool IsSame(std::string_view text, std::string_view small)
{
    return std::equal(text.begin(), text.end(), small.begin(), small.end(),
                      [](char one, char other) { return Small(one) == other; });
}

bool StartsWith(std::string_view text, std::string_view small)
{
    return text.size() >= small.size() && IsSame(text.substr(0, small.size()), small);
}

HtmlTag TagOf(std::string_view name)
{
    for (const TagName& known : TagNames)
        if (IsSame(name, known.name))
            return known.tag;
    return HtmlTag::Other;
}

std::string_view WithoutSpaces(std::string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::size_t AfterSpaces(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsSpace(text[at]))
        ++at;
    return at;
}

bool EndsName(char unit)
{
    return IsSpace(unit) || unit == '/' || unit == '>';
}

std::size_t NameEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && !EndsName(text[at]))
        ++at;
    return at;
}

// Behind the value that begins here, quoted or not; npos when its quote is not closed.
std::size_t ValueEnd(std::string_view text, std::size_t at)
{
    if (at < text.size() && (text[at] == '"' || text[at] == '\''))
    {
        const std::size_t closing = text.find(text[at], at + 1);
        return closing == std::string_view::npos ? closing : closing + 1;
    }
    while (at < text.size() && !IsSpace(text[at]) && text[at] != '>')
        ++at;
    return at;
}

std::string_view Unquoted(std::string_view value)
{
    const bool isQuoted = value.size() > 1 && (value.front() == '"' || value.front() == '\'');
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

} // namespace

// ---- Tokens

// Where markup begins at or behind the front.
std::size_t HtmlTokens::NextMarkup() const
{
    for (std::size_t at = 0; hasTags; ++at)
    {
        at = rest.find('<', at);
        if (at == std::string_view::npos || at + 1 >= rest.size())
            break;
        const char next = rest[at + 1];
        if (IsLetter(next) || next == '/' || next == '!' || next == '?')
            return at;
    }
    return rest.size();
}

HtmlToken HtmlTokens::Next()
{
    HtmlToken token;
    while (!rest.empty())
    {
        const std::size_t markup = NextMarkup();
        if (markup > 0)
        {
            token.kind = HtmlToken::Kind::Text;
            token.text = rest.substr(0, markup);
            rest.remove_prefix(markup);
            return token;
        }
        if (!IsLetter(rest[1]) && (rest[1] != '/' || rest.size() < 3 || !IsLetter(rest[2])))
            SkipMarkup();
        else if (TakeTag(token))
            return token;
    }
    return token;
}

// Comments, and what browsers take for such: declarations, processing instructions, odd closing tags.
void HtmlTokens::SkipMarkup()
{
    const bool isComment = rest.starts_with("<!--");
    // An empty comment may share its dashes.
    const std::size_t end = isComment ? rest.find("-->", 2) : rest.find('>');
    isCut = isCut || end == std::string_view::npos;
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + (isComment ? 3 : 1));
}

// The place of the ">" that ends the tag at the front; npos when a quote or the tag itself has no end.
std::size_t HtmlTokens::TagEnd() const
{
    if (ignoresQuotes)
        return rest.find('>');
    std::size_t at = NameEnd(rest, 1 + (rest[1] == '/' ? 1 : 0));
    while (at < rest.size() && rest[at] != '>')
        if (rest[at] != '=')
            ++at;
        else if (at = ValueEnd(rest, AfterSpaces(rest, at + 1)); at == std::string_view::npos)
            return at;
    return at < rest.size() ? at : std::string_view::npos;
}

bool HtmlTokens::TakeTag(HtmlToken& token)
{
    std::size_t end = TagEnd();
    if (end == std::string_view::npos)
    {
        isCut = true;
        ignoresQuotes = true;
        end = rest.find('>');
    }
    if (end == std::string_view::npos)
    {
        hasTags = false;
        return false;
    }
    const std::size_t name = rest[1] == '/' ? 2 : 1;
    const std::size_t nameEnd = (std::min)(NameEnd(rest, name), end);
    token.kind = name == 2 ? HtmlToken::Kind::Close : HtmlToken::Kind::Open;
    token.text = rest.substr(name, nameEnd - name);
    token.attributes = rest.substr(nameEnd, end - nameEnd);
    token.tag = TagOf(token.text);
    rest.remove_prefix(end + 1);
    if (token.kind == HtmlToken::Kind::Open && token.tag == HtmlTag::Hidden)
        SkipHidden(token.text);
    return true;
}

// Only the closing tag of the same name ends what is hidden.
void HtmlTokens::SkipHidden(std::string_view name)
{
    for (std::size_t at = 0; (at = rest.find("</", at)) != std::string_view::npos; at += 2)
    {
        const std::string_view closing = rest.substr(at + 2);
        const bool isSame = closing.size() >= name.size() &&
                            std::equal(name.begin(), name.end(), closing.begin(),
                                       [](char one, char other) { return Small(one) == Small(other); });
        if (!isSame || (closing.size() > name.size() && !EndsName(closing[name.size()])))
            continue;
        rest.remove_prefix(at);
        return;
    }
    isCut = true;
    rest = {};
}

// ---- Attributes

std::string_view AttributeOf(std::string_view attributes, std::string_view name)
{
    for (std::size_t at = 0; at < attributes.size();)
    {
        while (at < attributes.size() && (IsSpace(attributes[at]) || attributes[at] == '/'))
            ++at;
        const std::size_t first = at;
        while (at < attributes.size() && !EndsName(attributes[at]) && attributes[at] != '=')
            ++at;
        const std::string_view found = attributes.substr(first, at - first);
        at = AfterSpaces(attributes, at);
        std::string_view value;
        if (at < attributes.size() && attributes[at] == '=')
        {
            const std::size_t begin = AfterSpaces(attributes, at + 1);
            at = (std::min)(ValueEnd(attributes, begin), attributes.size());
            value = Unquoted(attributes.substr(begin, at - begin));
        }
        else if (at == first)
            ++at;
        if (IsSame(found, name))
            return value;
    }
    return {};
}

bool HasProperty(std::string_view style, std::string_view property, std::string_view value)
{
    while (!style.empty())
    {
        const std::size_t end = (std::min)(style.find(';'), style.size());
        const std::string_view declaration = style.substr(0, end);
        const std::size_t colon = (std::min)(declaration.find(':'), declaration.size());
        if (colon < declaration.size() && IsSame(WithoutSpaces(declaration.substr(0, colon)), property) &&
            StartsWith(WithoutSpaces(declaration.substr(colon + 1)), value))
            return true;
        style.remove_prefix((std::min)(end + 1, style.size()));
    }
    return false;
}

} // namespace QuorUiCtr
