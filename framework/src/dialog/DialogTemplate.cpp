// Dialog templates in memory and the windows made from them.
#include "dialog/DialogTemplate.h"
#include "controls/CommonControls.h"
#include "window/CreationScope.h"

namespace quorfx
{

namespace
{

// The beginning of an extended template, which has no declaration in the platform's headers.
struct ExtendedTemplate
{
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD itemCount;
    short x, y, cx, cy;
};

bool IsExtended(LPCDLGTEMPLATE dialogTemplate)
{
    return reinterpret_cast<const ExtendedTemplate*>(dialogTemplate)->signature == 0xffff;
}

} // namespace

LPCDLGTEMPLATE FindDialogTemplate(LPCTSTR name)
{
    const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC resource = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL memory = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    return memory != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(memory)) : nullptr;
}

CSize DialogTemplateSize(HWND dialog, LPCDLGTEMPLATE dialogTemplate)
{
    CRect rect;
    if (IsExtended(dialogTemplate))
    {
        const ExtendedTemplate* extended = reinterpret_cast<const ExtendedTemplate*>(dialogTemplate);
        rect.SetRect(0, 0, extended->cx, extended->cy);
    }
    else
    {
        rect.SetRect(0, 0, dialogTemplate->cx, dialogTemplate->cy);
    }
    ::MapDialogRect(dialog, &rect);
    return rect.Size();
}

bool HasPlace(LPCDLGTEMPLATE dialogTemplate)
{
    constexpr DWORD placingStyles = DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN;
    const ExtendedTemplate* const extended = reinterpret_cast<const ExtendedTemplate*>(dialogTemplate);
    const bool isExtended = IsExtended(dialogTemplate);
    const DWORD style = isExtended ? extended->style : dialogTemplate->style;
    const int x = isExtended ? extended->x : dialogTemplate->x;
    const int y = isExtended ? extended->y : dialogTemplate->y;
    return x != 0 || y != 0 || (style & placingStyles) != 0;
}

BOOL CreateFromTemplate(CWnd* window, LPCDLGTEMPLATE dialogTemplate, CWnd* parent, DLGPROC procedure)
{
    EnsureCommonControls();
    CreationScope scope(*window);
    const HWND created =
        ::CreateDialogIndirectParam(AfxGetInstanceHandle(), dialogTemplate, parent->GetSafeHwnd(), procedure,
                                    reinterpret_cast<LPARAM>(dialogTemplate));
    return scope.Finish(created);
}

} // namespace quorfx
