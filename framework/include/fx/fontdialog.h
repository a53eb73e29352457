// CFontDialog: choosing a font.
#pragma once

#include "fx/commondialog.h"

#include <richedit.h>

class CDC;

class QFX_API CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)

public:
    // lplfInitial or charformat: the font shown first. pdcPrinter: lists the fonts of that printer.
    CFontDialog(LPLOGFONT lplfInitial = NULL, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL);
    CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags = CF_SCREENFONTS, CDC* pdcPrinter = NULL,
                CWnd* pParentWnd = NULL);

    // The parameters of the dialog.
    CHOOSEFONT m_cf;

    // IDOK or IDCANCEL.
    virtual INT_PTR DoModal();

    // The font chosen, or the one shown while the dialog is open.
    void GetCurrentFont(LPLOGFONT lplf);
    void GetCharFormat(CHARFORMAT& cf) const;
    CString GetFaceName() const { return m_cf.lpLogFont->lfFaceName; }
    CString GetStyleName() const { return m_cf.lpszStyle; }
    // In tenths of a point.
    int GetSize() const { return m_cf.iPointSize; }
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return static_cast<int>(m_cf.lpLogFont->lfWeight); }
    BOOL IsStrikeOut() const { return m_cf.lpLogFont->lfStrikeOut != 0; }
    BOOL IsUnderline() const { return m_cf.lpLogFont->lfUnderline != 0; }
    BOOL IsBold() const { return m_cf.lpLogFont->lfWeight >= FW_BOLD; }
    BOOL IsItalic() const { return m_cf.lpLogFont->lfItalic != 0; }

private:
    LOGFONT m_logFont;
    TCHAR m_styleName[64];
};
