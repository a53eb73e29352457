// The default message handlers of CWnd that only pass the message on with its original parameters.
#include "afxwin.h"

int CWnd::OnCreate(LPCREATESTRUCT)
{
    return static_cast<int>(Default());
}
BOOL CWnd::OnNcCreate(LPCREATESTRUCT)
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnDestroy()
{
    Default();
}
void CWnd::OnClose()
{
    Default();
}
void CWnd::OnSize(UINT, int, int)
{
    Default();
}
void CWnd::OnSizing(UINT, LPRECT)
{
    Default();
}
void CWnd::OnMove(int, int)
{
    Default();
}
void CWnd::OnMoving(UINT, LPRECT)
{
    Default();
}
void CWnd::OnPaint()
{
    Default();
}
void CWnd::OnNcPaint()
{
    Default();
}
BOOL CWnd::OnEraseBkgnd(CDC*)
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnSetFocus(CWnd*)
{
    Default();
}
void CWnd::OnKillFocus(CWnd*)
{
    Default();
}
void CWnd::OnEnable(BOOL)
{
    Default();
}
void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}
int CWnd::OnMouseActivate(CWnd*, UINT, UINT)
{
    return static_cast<int>(Default());
}
void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}
void CWnd::OnMouseHover(UINT, CPoint)
{
    Default();
}
void CWnd::OnMouseLeave()
{
    Default();
}
BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnMouseHWheel(UINT, short, CPoint)
{
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnMButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnMButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnMButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnXButtonDown(UINT, UINT, CPoint)
{
    Default();
}
void CWnd::OnXButtonUp(UINT, UINT, CPoint)
{
    Default();
}
void CWnd::OnXButtonDblClk(UINT, UINT, CPoint)
{
    Default();
}
void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnKeyUp(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnDeadChar(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnSysKeyDown(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnSysKeyUp(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnSysChar(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnSysDeadChar(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnHotKey(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnSysCommand(UINT, LPARAM)
{
    Default();
}
void CWnd::OnTimer(UINT_PTR)
{
    Default();
}
void CWnd::OnContextMenu(CWnd*, CPoint)
{
    Default();
}
void CWnd::OnInitMenu(CMenu*)
{
    Default();
}
void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL)
{
    Default();
}
void CWnd::OnUnInitMenuPopup(CMenu*, UINT)
{
    Default();
}
void CWnd::OnMenuSelect(UINT, UINT, HMENU)
{
    Default();
}
LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*)
{
    return Default();
}
void CWnd::OnEnterMenuLoop(BOOL)
{
    Default();
}
void CWnd::OnExitMenuLoop(BOOL)
{
    Default();
}
void CWnd::OnEnterIdle(UINT, CWnd*)
{
    Default();
}
UINT CWnd::OnGetDlgCode()
{
    return static_cast<UINT>(Default());
}
void CWnd::OnCancelMode()
{
    Default();
}
void CWnd::OnCaptureChanged(CWnd*)
{
    Default();
}
LRESULT CWnd::OnNcHitTest(CPoint)
{
    return Default();
}
void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*)
{
    Default();
}
BOOL CWnd::OnNcActivate(BOOL)
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnNcMouseMove(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcLButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcLButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcLButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcRButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcRButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcRButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcMButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcMButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnNcMButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnActivate(UINT, CWnd*, BOOL)
{
    Default();
}
void CWnd::OnMDIActivate(BOOL, CWnd*, CWnd*)
{
    Default();
}
void CWnd::OnActivateApp(BOOL, DWORD)
{
    Default();
}
void CWnd::OnWindowPosChanging(WINDOWPOS*)
{
    Default();
}
void CWnd::OnWindowPosChanged(WINDOWPOS*)
{
    Default();
}
void CWnd::OnGetMinMaxInfo(MINMAXINFO*)
{
    Default();
}
void CWnd::OnFontChange()
{
    Default();
}
void CWnd::OnTimeChange()
{
    Default();
}
void CWnd::OnChildActivate()
{
    Default();
}
HCURSOR CWnd::OnQueryDragIcon()
{
    return reinterpret_cast<HCURSOR>(Default());
}
BOOL CWnd::OnQueryOpen()
{
    return static_cast<BOOL>(Default());
}
BOOL CWnd::OnQueryNewPalette()
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnPaletteChanged(CWnd*)
{
    Default();
}
BOOL CWnd::OnQueryEndSession()
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnEndSession(BOOL)
{
    Default();
}
void CWnd::OnStyleChanging(int, LPSTYLESTRUCT)
{
    Default();
}
void CWnd::OnStyleChanged(int, LPSTYLESTRUCT)
{
    Default();
}
BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR)
{
    return static_cast<BOOL>(Default());
}
BOOL CWnd::OnHelpInfo(HELPINFO*)
{
    return static_cast<BOOL>(Default());
}
BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*)
{
    return static_cast<BOOL>(Default());
}
void CWnd::OnDropFiles(HDROP)
{
    Default();
}
void CWnd::OnInputLangChange(UINT, UINT)
{
    Default();
}
