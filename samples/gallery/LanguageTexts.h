// The gallery's Chinese texts; knows nothing of windows or of the framework.
#pragma once

#include <cstddef>

struct Translation
{
    const wchar_t* english;
    const wchar_t* chinese;
};

// All translations; `count` receives their number. Every English text stands there once.
const Translation* Translations(std::size_t& count);

// The Chinese text, nullptr when there is none.
const wchar_t* ChineseText(const wchar_t* english);
