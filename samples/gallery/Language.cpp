// The language in use, and how windows and menus get their texts in it.
#include "Language.h"

#include "LanguageTexts.h"

#include "module/QuorTexts.h"

namespace
{

Language language = Language::English;

void TranslateMenuItem(CMenu& menu, UINT position)
{
    CString text;
    menu.GetMenuString(position, text, MF_BYPOSITION);
    MENUITEMINFO item = {};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_STRING;
    CString translated = Tr(text);
    item.dwTypeData = translated.GetBuffer();
    ::SetMenuItemInfo(menu, position, TRUE, &item);
    translated.ReleaseBuffer();
}

} // namespace

Language CurrentLanguage()
{
    return language;
}

void SetLanguage(Language chosen)
{
    language = chosen;
    // The menus of the grids and the words of the drag tree, too.
    QuorUiCtr::QuorTexts::SetLanguage(chosen == Language::Chinese ? QuorUiCtr::QuorLanguage::Chinese
                                                                  : QuorUiCtr::QuorLanguage::English);
}

Language SystemLanguage()
{
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_CHINESE ? Language::Chinese
                                                                       : Language::English;
}

const wchar_t* Tr(const wchar_t* english)
{
    const wchar_t* chinese = language == Language::Chinese ? ChineseText(english) : nullptr;
    return chinese != nullptr ? chinese : english;
}

void TranslateControls(CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    if (!text.IsEmpty())
        window.SetWindowText(Tr(text));
    for (CWnd* child = window.GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
    {
        child->GetWindowText(text);
        if (!text.IsEmpty())
            child->SetWindowText(Tr(text));
    }
}

void TranslateMenu(CMenu& menu)
{
    const UINT count = static_cast<UINT>(menu.GetMenuItemCount());
    for (UINT position = 0; position < count; ++position)
    {
        if (CMenu* popup = menu.GetSubMenu(static_cast<int>(position)))
            TranslateMenu(*popup);
        if ((menu.GetMenuState(position, MF_BYPOSITION) & MF_SEPARATOR) == 0)
            TranslateMenuItem(menu, position);
    }
}
