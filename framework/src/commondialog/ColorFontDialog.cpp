// CColorDialog and CFontDialog.
#include "commondialog/HookScope.h"

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

namespace
{

constexpr int kTwipsPerInch = 1440;

BOOL WINAPI RunChooseColor(void* data)
{
    return ::ChooseColor(static_cast<CHOOSECOLOR*>(data));
}

BOOL WINAPI RunChooseFont(void* data)
{
    return ::ChooseFont(static_cast<CHOOSEFONT*>(data));
}

int ScreenResolution()
{
    const HDC screen = ::GetDC(nullptr);
    const int pixelsPerInch = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return pixelsPerInch;
}

LOGFONT ToLogFont(const CHARFORMAT& format)
{
    LOGFONT font = {};
    if (format.dwMask & CFM_SIZE)
        font.lfHeight = -::MulDiv(format.yHeight, ScreenResolution(), kTwipsPerInch);
    font.lfWeight = (format.dwMask & format.dwEffects & CFM_BOLD) != 0 ? FW_BOLD : FW_NORMAL;
    font.lfItalic = (format.dwMask & format.dwEffects & CFM_ITALIC) != 0;
    font.lfUnderline = (format.dwMask & format.dwEffects & CFM_UNDERLINE) != 0;
    font.lfStrikeOut = (format.dwMask & format.dwEffects & CFM_STRIKEOUT) != 0;
    font.lfCharSet = (format.dwMask & CFM_CHARSET) != 0 ? format.bCharSet : DEFAULT_CHARSET;
    if (format.dwMask & CFM_FACE)
    {
        font.lfPitchAndFamily = format.bPitchAndFamily;
        lstrcpyn(font.lfFaceName, format.szFaceName, LF_FACESIZE);
    }
    return font;
}

} // namespace

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc()
{
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.rgbResult = clrInit;
    m_cc.Flags = dwFlags | CC_ENABLEHOOK | (clrInit != 0 ? CC_RGBINIT : 0);
    m_cc.lpfnHook = &CCommonDialog::HookProcedure;
}

INT_PTR CColorDialog::DoModal()
{
    m_cc.hwndOwner = FindOwner();
    return RunHooked(RunChooseColor, &m_cc);
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors()
{
    struct Colours
    {
        Colours() { std::fill(std::begin(values), std::end(values), RGB(255, 255, 255)); }
        COLORREF values[16];
    };
    static Colours saved;
    return saved.values;
}

void CColorDialog::SetCurrentColor(COLORREF clr)
{
    static const UINT setColour = ::RegisterWindowMessage(SETRGBSTRING);
    ASSERT(m_hWnd != nullptr);
    ::SendMessage(m_hWnd, setColour, 0, static_cast<LPARAM>(clr));
}

BOOL CColorDialog::HandleDialogMessage(UINT message, WPARAM, LPARAM lParam, UINT_PTR& result)
{
    static const UINT colourOk = ::RegisterWindowMessage(COLOROKSTRING);
    if (message != colourOk)
        return FALSE;
    // The dialog works on a copy of m_cc where text is converted.
    if (const CHOOSECOLOR* chosen = reinterpret_cast<const CHOOSECOLOR*>(lParam))
        m_cc.rgbResult = chosen->rgbResult;
    result = static_cast<UINT_PTR>(OnColorOK());
    return TRUE;
}

BOOL CColorDialog::OnColorOK()
{
    return FALSE;
}

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf(), m_logFont(), m_styleName()
{
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    m_cf.lpfnHook = &CCommonDialog::HookProcedure;
    m_cf.lpszStyle = m_styleName;
    m_cf.lpLogFont = &m_logFont;
    if (lplfInitial != nullptr)
    {
        m_logFont = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr)
    {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

CFontDialog::CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CFontDialog(nullptr, dwFlags, pdcPrinter, pParentWnd)
{
    m_logFont = ToLogFont(charformat);
    m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    if (charformat.dwMask & CFM_COLOR)
    {
        m_cf.Flags |= CF_EFFECTS;
        m_cf.rgbColors = charformat.crTextColor;
    }
}

INT_PTR CFontDialog::DoModal()
{
    m_cf.hwndOwner = FindOwner();
    return RunHooked(RunChooseFont, &m_cf);
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf)
{
    ENSURE_ARG(lplf != nullptr);
    if (m_hWnd != nullptr)
        ::SendMessage(m_hWnd, WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    else
        *lplf = *m_cf.lpLogFont;
}

void CFontDialog::GetCharFormat(CHARFORMAT& cf) const
{
    cf.dwMask = CFM_SIZE | CFM_FACE | CFM_CHARSET | CFM_BOLD | CFM_ITALIC;
    cf.dwEffects = (IsBold() ? CFE_BOLD : 0u) | (IsItalic() ? CFE_ITALIC : 0u);
    if (m_cf.Flags & CF_EFFECTS)
    {
        cf.dwMask |= CFM_UNDERLINE | CFM_STRIKEOUT | CFM_COLOR;
        cf.dwEffects |= (IsUnderline() ? CFE_UNDERLINE : 0u) | (IsStrikeOut() ? CFE_STRIKEOUT : 0u);
        cf.crTextColor = GetColor();
    }
    // From tenths of a point.
    cf.yHeight = GetSize() * 2;
    cf.bCharSet = m_cf.lpLogFont->lfCharSet;
    cf.bPitchAndFamily = m_cf.lpLogFont->lfPitchAndFamily;
    lstrcpyn(cf.szFaceName, m_cf.lpLogFont->lfFaceName, LF_FACESIZE);
}
