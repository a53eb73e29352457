// The names that HTML has for characters.
#include "rules/HtmlEntities.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace QuorUiCtr
{
namespace
{

struct Entity
{
    std::string_view name;
    char32_t character;
    // Browsers take it without the semicolon, too.
    bool isOld;
};

// In the order of their codes, for the search.
constexpr Entity Entities[] = {
    {"AElig", 0xC6, true},     {"AMP", 0x26, true},        {"Aacute", 0xC1, true},
    {"Acirc", 0xC2, true},     {"Agrave", 0xC0, true},     {"Alpha", 0x391, false},
    {"Aring", 0xC5, true},     {"Atilde", 0xC3, true},     {"Auml", 0xC4, true},
    {"Beta", 0x392, false},    {"COPY", 0xA9, true},       {"Ccedil", 0xC7, true},
    {"Chi", 0x3A7, false},     {"Dagger", 0x2021, false},  {"Delta", 0x394, false},
    {"ETH", 0xD0, true},       {"Eacute", 0xC9, true},     {"Ecirc", 0xCA, true},
    {"Egrave", 0xC8, true},    {"Epsilon", 0x395, false},  {"Eta", 0x397, false},
    {"Euml", 0xCB, true},      {"GT", 0x3E, true},         {"Gamma", 0x393, false},
    {"Iacute", 0xCD, true},    {"Icirc", 0xCE, true},      {"Igrave", 0xCC, true},
    {"Iota", 0x399, false},    {"Iuml", 0xCF, true},       {"Kappa", 0x39A, false},
    {"LT", 0x3C, true},        {"Lambda", 0x39B, false},   {"Mu", 0x39C, false},
    {"Ntilde", 0xD1, true},    {"Nu", 0x39D, false},       {"OElig", 0x152, false},
    {"Oacute", 0xD3, true},    {"Ocirc", 0xD4, true},      {"Ograve", 0xD2, true},
    {"Omega", 0x3A9, false},   {"Omicron", 0x39F, false},  {"Oslash", 0xD8, true},
    {"Otilde", 0xD5, true},    {"Ouml", 0xD6, true},       {"Phi", 0x3A6, false},
    {"Pi", 0x3A0, false},      {"Prime", 0x2033, false},   {"Psi", 0x3A8, false},
    {"QUOT", 0x22, true},      {"REG", 0xAE, true},        {"Rho", 0x3A1, false},
    {"Scaron", 0x160, false},  {"Sigma", 0x3A3, false},    {"THORN", 0xDE, true},
    {"Tau", 0x3A4, false},     {"Theta", 0x398, false},    {"Uacute", 0xDA, true},
    {"Ucirc", 0xDB, true},     {"Ugrave", 0xD9, true},     {"Upsilon", 0x3A5, false},
    {"Uuml", 0xDC, true},      {"Xi", 0x39E, false},       {"Yacute", 0xDD, true},
    {"Yuml", 0x178, false},    {"Zeta", 0x396, false},     {"aacute", 0xE1, true},
    {"acirc", 0xE2, true},     {"acute", 0xB4, true},      {"aelig", 0xE6, true},
    {"agrave", 0xE0, true},    {"alefsym", 0x2135, false}, {"alpha", 0x3B1, false},
    {"amp", 0x26, true},       {"and", 0x2227, false},     {"ang", 0x2220, false},
    {"apos", 0x27, false},     {"aring", 0xE5, true},      {"asymp", 0x2248, false},
    {"atilde", 0xE3, true},    {"auml", 0xE4, true},       {"bdquo", 0x201E, false},
    {"beta", 0x3B2, false},    {"brvbar", 0xA6, true},     {"bull", 0x2022, false},
    {"cap", 0x2229, false},    {"ccedil", 0xE7, true},     {"cedil", 0xB8, true},
    {"cent", 0xA2, true},      {"chi", 0x3C7, false},      {"circ", 0x2C6, false},
    {"clubs", 0x2663, false},  {"cong", 0x2245, false},    {"copy", 0xA9, true},
    {"crarr", 0x21B5, false},  {"cup", 0x222A, false},     {"curren", 0xA4, true},
    {"dArr", 0x21D3, false},   {"dagger", 0x2020, false},  {"darr", 0x2193, false},
    {"deg", 0xB0, true},       {"delta", 0x3B4, false},    {"diams", 0x2666, false},
    {"divide", 0xF7, true},    {"eacute", 0xE9, true},     {"ecirc", 0xEA, true},
    {"egrave", 0xE8, true},    {"empty", 0x2205, false},   {"emsp", 0x2003, false},
    {"ensp", 0x2002, false},   {"epsilon", 0x3B5, false},  {"equiv", 0x2261, false},
    {"eta", 0x3B7, false},     {"eth", 0xF0, true},        {"euml", 0xEB, true},
    {"euro", 0x20AC, false},   {"exist", 0x2203, false},   {"fnof", 0x192, false},
    {"forall", 0x2200, false}, {"frac12", 0xBD, true},     {"frac14", 0xBC, true},
    {"frac34", 0xBE, true},    {"frasl", 0x2044, false},   {"gamma", 0x3B3, false},
    {"ge", 0x2265, false},     {"gt", 0x3E, true},         {"hArr", 0x21D4, false},
    {"harr", 0x2194, false},   {"hearts", 0x2665, false},  {"hellip", 0x2026, false},
    {"iacute", 0xED, true},    {"icirc", 0xEE, true},      {"iexcl", 0xA1, true},
    {"igrave", 0xEC, true},    {"image", 0x2111, false},   {"infin", 0x221E, false},
    {"int", 0x222B, false},    {"iota", 0x3B9, false},     {"iquest", 0xBF, true},
    {"isin", 0x2208, false},   {"iuml", 0xEF, true},       {"kappa", 0x3BA, false},
    {"lArr", 0x21D0, false},   {"lambda", 0x3BB, false},   {"lang", 0x27E8, false},
    {"laquo", 0xAB, true},     {"larr", 0x2190, false},    {"lceil", 0x2308, false},
    {"ldquo", 0x201C, false},  {"le", 0x2264, false},      {"lfloor", 0x230A, false},
    {"lowast", 0x2217, false}, {"loz", 0x25CA, false},     {"lrm", 0x200E, false},
    {"lsaquo", 0x2039, false}, {"lsquo", 0x2018, false},   {"lt", 0x3C, true},
    {"macr", 0xAF, true},      {"mdash", 0x2014, false},   {"micro", 0xB5, true},
    {"middot", 0xB7, true},    {"minus", 0x2212, false},   {"mu", 0x3BC, false},
    {"nabla", 0x2207, false},  {"nbsp", 0xA0, true},       {"ndash", 0x2013, false},
    {"ne", 0x2260, false},     {"ni", 0x220B, false},      {"not", 0xAC, true},
    {"notin", 0x2209, false},  {"nsub", 0x2284, false},    {"ntilde", 0xF1, true},
    {"nu", 0x3BD, false},      {"oacute", 0xF3, true},     {"ocirc", 0xF4, true},
    {"oelig", 0x153, false},   {"ograve", 0xF2, true},     {"oline", 0x203E, false},
    {"omega", 0x3C9, false},   {"omicron", 0x3BF, false},  {"oplus", 0x2295, false},
    {"or", 0x2228, false},     {"ordf", 0xAA, true},       {"ordm", 0xBA, true},
    {"oslash", 0xF8, true},    {"otilde", 0xF5, true},     {"otimes", 0x2297, false},
    {"ouml", 0xF6, true},      {"para", 0xB6, true},       {"part", 0x2202, false},
    {"permil", 0x2030, false}, {"perp", 0x22A5, false},    {"phi", 0x3C6, false},
    {"pi", 0x3C0, false},      {"piv", 0x3D6, false},      {"plusmn", 0xB1, true},
    {"pound", 0xA3, true},     {"prime", 0x2032, false},   {"prod", 0x220F, false},
    {"prop", 0x221D, false},   {"psi", 0x3C8, false},      {"quot", 0x22, true},
    {"rArr", 0x21D2, false},   {"radic", 0x221A, false},   {"rang", 0x27E9, false},
    {"raquo", 0xBB, true},     {"rarr", 0x2192, false},    {"rceil", 0x2309, false},
    {"rdquo", 0x201D, false},  {"real", 0x211C, false},    {"reg", 0xAE, true},
    {"rfloor", 0x230B, false}, {"rho", 0x3C1, false},      {"rlm", 0x200F, false},
    {"rsaquo", 0x203A, false}, {"rsquo", 0x2019, false},   {"sbquo", 0x201A, false},
    {"scaron", 0x161, false},  {"sdot", 0x22C5, false},    {"sect", 0xA7, true},
    {"shy", 0xAD, true},       {"sigma", 0x3C3, false},    {"sigmaf", 0x3C2, false},
    {"sim", 0x223C, false},    {"spades", 0x2660, false},  {"sub", 0x2282, false},
    {"sube", 0x2286, false},   {"sum", 0x2211, false},     {"sup", 0x2283, false},
    {"sup1", 0xB9, true},      {"sup2", 0xB2, true},       {"sup3", 0xB3, true},
    {"supe", 0x2287, false},   {"szlig", 0xDF, true},      {"tau", 0x3C4, false},
    {"there4", 0x2234, false}, {"theta", 0x3B8, false},    {"thetasym", 0x3D1, false},
    {"thinsp", 0x2009, false}, {"thorn", 0xFE, true},      {"tilde", 0x2DC, false},
    {"times", 0xD7, true},     {"trade", 0x2122, false},   {"uArr", 0x21D1, false},
    {"uacute", 0xFA, true},    {"uarr", 0x2191, false},    {"ucirc", 0xFB, true},
    {"ugrave", 0xF9, true},    {"uml", 0xA8, true},        {"upsih", 0x3D2, false},
    {"upsilon", 0x3C5, false}, {"uuml", 0xFC, true},       {"weierp", 0x2118, false},
    {"xi", 0x3BE, false},      {"yacute", 0xFD, true},     {"yen", 0xA5, true},
    {"yuml", 0xFF, true},      {"zeta", 0x3B6, false},     {"zwj", 0x200D, false},
    {"zwnj", 0x200C, false},
};

constexpr std::size_t LongestName = 8;

const Entity* FindEntity(std::string_view name)
{
    const auto* const found =
        std::lower_bound(std::begin(Entities), std::end(Entities), name,
                         [](const Entity& entity, std::string_view wanted) { return entity.name < wanted; });
    return found != std::end(Entities) && found->name == name ? found : nullptr;
}

bool IsNameCharacter(char unit)
{
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') || (unit >= '0' && unit <= '9');
}

int DigitOf(char unit)
{
    if (unit >= '0' && unit <= '9')
        return unit - '0';
    const char small = static_cast<char>(unit | 0x20);
    return small >= 'a' && small <= 'f' ? small - 'a' + 10 : 16;
}

// Numbers of control characters are what the code page has there that most programs wrote once.
char32_t CharacterOf(char32_t number)
{
    constexpr char16_t OldCodes[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                     0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    if (number >= 0x80 && number < 0xA0)
        return OldCodes[number - 0x80];
    const bool isCharacter = number != 0 && number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
    return isCharacter ? number : 0xFFFD;
}

// "&#8364;" or "&#x20AC;"; the semicolon may be missing.
HtmlEntity NumberAt(std::string_view text)
{
    std::size_t at = 2;
    const bool isHex = text.size() > at && (text[at] == 'x' || text[at] == 'X');
    at += isHex ? 1 : 0;
    const std::size_t first = at;
    const int base = isHex ? 16 : 10;
    constexpr std::uint32_t BeyondAll = 0x110000;
    std::uint32_t number = 0;
    for (; at < text.size() && DigitOf(text[at]) < base; ++at)
        number = (std::min)(number * static_cast<unsigned>(base) + static_cast<unsigned>(DigitOf(text[at])),
                            BeyondAll);
    if (at == first)
        return {};
    return {at + (at < text.size() && text[at] == ';' ? 1U : 0U), CharacterOf(number)};
}

} // namespace

HtmlEntity EntityAt(std::string_view text)
{
    if (text.starts_with("&#"))
        return NumberAt(text);
    std::size_t length = 0;
    while (length + 1 < text.size() && length <= LongestName && IsNameCharacter(text[length + 1]))
        ++length;
    const std::string_view name = text.substr(1, length);
    if (length + 1 < text.size() && text[length + 1] == ';')
        if (const Entity* const entity = FindEntity(name))
            return {length + 2, entity->character, name == "nbsp"};
    for (; length > 1; --length)
        if (const Entity* const entity = FindEntity(name.substr(0, length));
            entity != nullptr && entity->isOld)
            return {length + 1, entity->character, entity->name == "nbsp"};
    return {};
}

} // namespace QuorUiCtr
