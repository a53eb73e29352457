// Language: the gallery's texts in English and in Chinese.
#pragma once

#include <afxwin.h>

enum class Language
{
    English,
    Chinese
};

// The language in use: English until SetLanguage says otherwise.
Language CurrentLanguage();
void SetLanguage(Language language);

// Chinese when the system speaks it, else English.
Language SystemLanguage();

// The text in the language in use. Sources and resources say everything in English; a text that has no
// translation is returned as it is. The result for a known text stays valid.
const wchar_t* Tr(const wchar_t* english);

// Puts the caption of a window and the texts of its controls, which are English, into the language in use.
void TranslateControls(CWnd& window);
// The same for the items of a menu and of the menus below it.
void TranslateMenu(CMenu& menu);
