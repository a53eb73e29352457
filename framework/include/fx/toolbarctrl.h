// CToolBarCtrl: the platform's tool bar.
#pragma once

#include "fx/imagelist.h"
#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

class CBitmap;
class CToolTipCtrl;
struct IDropTarget;

// Wraps a tool bar window. The object has no state of its own: a pointer to any CWnd of a tool bar may be
// cast to it. Buttons are named by their command (nID) or their zero-based position (nIndex). Functions
// without a comment are the messages of the same name.
class QFX_API CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl() {}
    ~CToolBarCtrl() override;

    // Create the control as a child; rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // ---- State of a button.
    BOOL IsButtonEnabled(int nID) const { return Ask(TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return Ask(TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return Ask(TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return Ask(TB_ISBUTTONHIDDEN, nID); }
    BOOL IsButtonIndeterminate(int nID) const { return Ask(TB_ISBUTTONINDETERMINATE, nID); }
    BOOL IsButtonHighlighted(int nID) const { return Ask(TB_ISBUTTONHIGHLIGHTED, nID); }
    // TBSTATE_ bits; -1 if there is no such button.
    int GetState(int nID) const { return Ask(TB_GETSTATE, nID); }
    BOOL SetState(int nID, UINT nState) { return Ask(TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }
    BOOL EnableButton(int nID, BOOL bEnable = TRUE) { return Ask(TB_ENABLEBUTTON, nID, Flag(bEnable)); }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE) { return Ask(TB_CHECKBUTTON, nID, Flag(bCheck)); }
    BOOL PressButton(int nID, BOOL bPress = TRUE) { return Ask(TB_PRESSBUTTON, nID, Flag(bPress)); }
    BOOL HideButton(int nID, BOOL bHide = TRUE) { return Ask(TB_HIDEBUTTON, nID, Flag(bHide)); }
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE)
    {
        return Ask(TB_INDETERMINATE, nID, Flag(bIndeterminate));
    }
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE) { return Ask(TB_MARKBUTTON, nID, Flag(fHighlight)); }

    // ---- Buttons.
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons)
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_ADDBUTTONS, nNumButtons, lpButtons);
    }
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton)
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_INSERTBUTTON, nIndex, lpButton);
    }
    BOOL DeleteButton(int nIndex) { return Ask(TB_DELETEBUTTON, nIndex); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_GETBUTTON, nIndex, lpButton);
    }
    int GetButtonCount() const { return Ask(TB_BUTTONCOUNT, 0); }
    UINT CommandToIndex(UINT nID) const { return static_cast<UINT>(Ask(TB_COMMANDTOINDEX, nID)); }
    BOOL MoveButton(UINT nOldPos, UINT nNewPos)
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_MOVEBUTTON, nOldPos, nNewPos);
    }
    BOOL SetCmdID(int nIndex, UINT nID) { return quorfx::Send<BOOL>(m_hWnd, TB_SETCMDID, nIndex, nID); }
    // Both need cbSize and dwMask; the getter returns the index, -1 for none.
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const
    {
        return quorfx::Send<int>(m_hWnd, TB_GETBUTTONINFO, nID, ptbbi);
    }
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi)
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_SETBUTTONINFO, nID, ptbbi);
    }
    void SetButtonStructSize(int nSize) { Ask(TB_BUTTONSTRUCTSIZE, nSize); }
    CString GetButtonText(int idButton) const;

    // ---- Geometry. Sizes are pixels, the width in the low word of a DWORD.
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_GETITEMRECT, nIndex, lpRect);
    }
    BOOL GetRect(int nID, LPRECT lpRect) const { return quorfx::Send<BOOL>(m_hWnd, TB_GETRECT, nID, lpRect); }
    BOOL SetButtonSize(CSize size) { return Ask(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    BOOL SetBitmapSize(CSize size) { return Ask(TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    DWORD GetButtonSize() const { return quorfx::Send<DWORD>(m_hWnd, TB_GETBUTTONSIZE); }
    BOOL SetButtonWidth(int cxMin, int cxMax) { return Ask(TB_SETBUTTONWIDTH, 0, MAKELPARAM(cxMin, cxMax)); }
    BOOL GetMaxSize(LPSIZE pSize) const { return quorfx::Send<BOOL>(m_hWnd, TB_GETMAXSIZE, 0, pSize); }
    BOOL GetPadding(int* pnHorzPadding, int* pnVertPadding) const;
    DWORD SetPadding(int nHorzPadding, int nVertPadding)
    {
        return quorfx::Send<DWORD>(m_hWnd, TB_SETPADDING, 0, MAKELPARAM(nHorzPadding, nVertPadding));
    }
    void GetMetrics(LPTBMETRICS ptbm) const { quorfx::Send(m_hWnd, TB_GETMETRICS, 0, ptbm); }
    void SetMetrics(LPTBMETRICS ptbm) { quorfx::Send(m_hWnd, TB_SETMETRICS, 0, ptbm); }
    BOOL SetIndent(int iIndent) { return Ask(TB_SETINDENT, iIndent); }
    int GetRows() const { return Ask(TB_GETROWS, 0); }
    // lpRect gets the new bounds of the tool bar.
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect)
    {
        quorfx::Send(m_hWnd, TB_SETROWS, MAKEWPARAM(nRows, bLarger), lpRect);
    }
    int GetMaxTextRows() const { return Ask(TB_GETTEXTROWS, 0); }
    BOOL SetMaxTextRows(int iMaxRows) { return Ask(TB_SETMAXTEXTROWS, iMaxRows); }
    void AutoSize() { Ask(TB_AUTOSIZE, 0); }
    // The button at a client point: its index; negative: the nearest one, or a separator.
    int HitTest(LPPOINT ppt) const { return quorfx::Send<int>(m_hWnd, TB_HITTEST, 0, ppt); }

    // ---- Images. The lists stay their owner's; the result is the list before.
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap)
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_REPLACEBITMAP, 0, pReplaceBitmap);
    }
    int GetBitmap(int nID) const { return Ask(TB_GETBITMAP, nID); }
    BOOL ChangeBitmap(int idButton, int iBitmap) { return Ask(TB_CHANGEBITMAP, idButton, iBitmap); }
    UINT GetBitmapFlags() const { return static_cast<UINT>(Ask(TB_GETBITMAPFLAGS, 0)); }
    // A set of standard images (IDB_STD_SMALL_COLOR ... of HINST_COMMCTRL).
    void LoadImages(int iBitmapID, HINSTANCE hinst) { quorfx::Send(m_hWnd, TB_LOADIMAGES, iBitmapID, hinst); }
    CImageList* GetImageList() const { return ListOf(TB_GETIMAGELIST); }
    CImageList* SetImageList(CImageList* pImageList) { return ExchangeList(TB_SETIMAGELIST, 0, pImageList); }
    CImageList* GetHotImageList() const { return ListOf(TB_GETHOTIMAGELIST); }
    CImageList* SetHotImageList(CImageList* pImageList)
    {
        return ExchangeList(TB_SETHOTIMAGELIST, 0, pImageList);
    }
    CImageList* GetDisabledImageList() const { return ListOf(TB_GETDISABLEDIMAGELIST); }
    CImageList* SetDisabledImageList(CImageList* pImageList)
    {
        return ExchangeList(TB_SETDISABLEDIMAGELIST, 0, pImageList);
    }
    CImageList* GetPressedImageList();
    CImageList* SetPressedImageList(int iImageID, CImageList* pImageList);

    // ---- Texts.
    // Adds a string resource whose parts, separated by its first character, become strings; or a list of
    // strings, each ended by a zero and the list by another. Both return the index of the first new string.
    int AddString(UINT nStringID);
    int AddStrings(LPCTSTR lpszStrings) { return quorfx::Send<int>(m_hWnd, TB_ADDSTRING, 0, lpszStrings); }
    // The string of that index; the length, -1 if there is none. cchMaxLen is the room in bytes, as the
    // message wants it.
    int GetString(int nString, LPTSTR lpstrString, int cchMaxLen) const
    {
        return quorfx::Send<int>(m_hWnd, TB_GETSTRING, MAKEWPARAM(cchMaxLen, nString), lpstrString);
    }
    int GetString(int nString, CString& str) const;
    DWORD SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags)
    {
        return quorfx::Send<DWORD>(m_hWnd, TB_SETDRAWTEXTFLAGS, dwMask, dwDTFlags);
    }
    // The button whose text has this accelerator.
    BOOL MapAccelerator(TCHAR chAccel, UINT* pIDBtn)
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_MAPACCELERATOR, chAccel, pIDBtn);
    }

    // ---- Appearance.
    DWORD GetStyle() const { return quorfx::Send<DWORD>(m_hWnd, TB_GETSTYLE); }
    void SetStyle(DWORD dwStyle) { quorfx::Send(m_hWnd, TB_SETSTYLE, 0, dwStyle); }
    DWORD GetExtendedStyle() const { return quorfx::Send<DWORD>(m_hWnd, TB_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwExStyle)
    {
        return quorfx::Send<DWORD>(m_hWnd, TB_SETEXTENDEDSTYLE, 0, dwExStyle);
    }
    BOOL GetColorScheme(COLORSCHEME* lpColorScheme) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_GETCOLORSCHEME, 0, lpColorScheme);
    }
    void SetColorScheme(const COLORSCHEME* lpColorScheme)
    {
        quorfx::Send(m_hWnd, TB_SETCOLORSCHEME, 0, lpColorScheme);
    }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return quorfx::Send<HRESULT>(m_hWnd, TB_SETWINDOWTHEME, 0, pszSubAppName);
    }
    BOOL GetAnchorHighlight() const { return Ask(TB_GETANCHORHIGHLIGHT, 0); }
    BOOL SetAnchorHighlight(BOOL fAnchor = TRUE) { return Ask(TB_SETANCHORHIGHLIGHT, fAnchor); }
    int GetHotItem() const { return Ask(TB_GETHOTITEM, 0); }
    int SetHotItem(int nHot) { return Ask(TB_SETHOTITEM, nHot); }
    void GetInsertMark(TBINSERTMARK* ptbim) const { quorfx::Send(m_hWnd, TB_GETINSERTMARK, 0, ptbim); }
    void SetInsertMark(TBINSERTMARK* ptbim) { quorfx::Send(m_hWnd, TB_SETINSERTMARK, 0, ptbim); }
    COLORREF GetInsertMarkColor() const { return quorfx::Send<COLORREF>(m_hWnd, TB_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clrNew)
    {
        return quorfx::Send<COLORREF>(m_hWnd, TB_SETINSERTMARKCOLOR, 0, clrNew);
    }
    BOOL InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TB_INSERTMARKHITTEST, ppt, ptbim);
    }

    // ---- The rest.
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    // The window that gets the notifications.
    void SetOwner(CWnd* pWnd) { quorfx::Send(m_hWnd, TB_SETPARENT, pWnd->GetSafeHwnd()); }
    void Customize() { Ask(TB_CUSTOMIZE, 0); }
    void SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    HRESULT GetDropTarget(IDropTarget** ppDropTarget) const;

private:
    template <class First> int Ask(UINT message, First first, LPARAM second = 0) const
    {
        return quorfx::Send<int>(m_hWnd, message, first, second);
    }
    static LPARAM Flag(BOOL flag) { return MAKELPARAM(flag, 0); }
    CImageList* ListOf(UINT message) const;
    CImageList* ExchangeList(UINT message, int id, CImageList* list);
};
