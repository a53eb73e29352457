// HtmlTokens: HTML as a row of texts and tags, whatever the bytes are.
#pragma once

#include <cstddef>
#include <string_view>

namespace QuorUiCtr
{

// What tags mean for the text of tables. All that is not told apart has no meaning.
enum class HtmlTag
{
    Other,
    Table,
    Row,
    DataCell,
    HeaderCell,
    // Head, body and foot of a table.
    RowGroup,
    Break,
    // Begins and ends on a line of its own.
    Block,
    // A block that keeps its white space.
    Preformatted,
    // Its content is no text: a style, a script.
    Hidden
};

struct HtmlToken
{
    enum class Kind
    {
        Text,
        Open,
        Close,
        End
    };
    Kind kind = Kind::End;
    HtmlTag tag = HtmlTag::Other;
    // The text as it is written, or the name of the tag.
    std::string_view text;
    std::string_view attributes;
};

class HtmlTokens
{
public:
    explicit HtmlTokens(std::string_view html) : rest(html) {}

    // Comments, declarations and the content of hidden tags are passed over.
    HtmlToken Next();
    // Whether something that was passed over had no end.
    bool IsCut() const { return isCut; }

private:
    bool TakeTag(HtmlToken& token);
    void SkipMarkup();
    void SkipHidden(std::string_view name);
    std::size_t TagEnd() const;
    std::size_t NextMarkup() const;

    std::string_view rest;
    bool isCut = false;
    // Once a quote has not been closed, none counts any more; once no tag has ended, none begins.
    bool ignoresQuotes = false;
    bool hasTags = true;
};

// The value of an attribute, as it is written; empty when there is none. The name in small letters.
std::string_view AttributeOf(std::string_view attributes, std::string_view name);
// Whether a style, which is a list of properties, has a property with a value that begins in this way; both
// in small letters.
bool HasProperty(std::string_view style, std::string_view property, std::string_view value);

} // namespace QuorUiCtr
