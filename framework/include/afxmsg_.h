// The message map macros: one per message, command and notification. Each checks the handler's prototype.
#pragma once

#include "fx/cmdtarget.h"
#include "fx/wnd.h"
#include "fx/thread.h"

// The building stones: a handler of a window, of any command target and of a thread, as the common type.
#define AFX_WINDOW_HANDLER(memberFxn, result, ...)                                                           \
    (AFX_PMSG)(AFX_PMSGW)(static_cast<result (CWnd::*)(__VA_ARGS__)>(memberFxn))
#define AFX_TARGET_HANDLER(memberFxn, result, ...)                                                           \
    (AFX_PMSG)(static_cast<result (CCmdTarget::*)(__VA_ARGS__)>(memberFxn))
#define AFX_THREAD_HANDLER(memberFxn)                                                                        \
    (AFX_PMSG)(AFX_PMSGT)(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))
#define AFX_WM_ENTRY(message, sig, method, result, ...)                                                      \
    {message, 0, 0, 0, sig, AFX_WINDOW_HANDLER(&ThisClass::method, result, __VA_ARGS__)},

// ---- Commands, control notifications and updates of user interface elements.
#define ON_COMMAND(id, memberFxn)                                                                            \
    {WM_COMMAND, CN_COMMAND,     (UINT)(id),                                                                 \
     (UINT)(id), AfxSig_command, AFX_TARGET_HANDLER(memberFxn, void, void)},
#define ON_COMMAND_EX(id, memberFxn)                                                                         \
    {WM_COMMAND,                                                                                             \
     CN_COMMAND,                                                                                             \
     (UINT)(id),                                                                                             \
     (UINT)(id),                                                                                             \
     AfxSig_commandRangeBool,                                                                                \
     AFX_TARGET_HANDLER(memberFxn, BOOL, UINT)},
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    {WM_COMMAND,     CN_COMMAND,          (UINT)(id),                                                        \
     (UINT)(idLast), AfxSig_commandRange, AFX_TARGET_HANDLER(memberFxn, void, UINT)},
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                           \
    {WM_COMMAND,                                                                                             \
     CN_COMMAND,                                                                                             \
     (UINT)(id),                                                                                             \
     (UINT)(idLast),                                                                                         \
     AfxSig_commandRangeBool,                                                                                \
     AFX_TARGET_HANDLER(memberFxn, BOOL, UINT)},
#define ON_UPDATE_COMMAND_UI(id, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(id, id, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                    \
    {WM_COMMAND,     CN_UPDATE_COMMAND_UI, (UINT)(id),                                                       \
     (UINT)(idLast), AfxSig_updateUI,      AFX_TARGET_HANDLER(memberFxn, void, CCmdUI*)},
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    {WM_COMMAND, (WORD)(wNotifyCode), (UINT)(id),                                                            \
     (UINT)(id), AfxSig_command,      AFX_TARGET_HANDLER(memberFxn, void, void)},
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    {WM_COMMAND,     (WORD)(wNotifyCode), (UINT)(id),                                                        \
     (UINT)(idLast), AfxSig_commandRange, AFX_TARGET_HANDLER(memberFxn, void, UINT)},
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                \
    {WM_NOTIFY,     (WORD)(int)(wNotifyCode),                                                                \
     (UINT)(id),    (UINT)(id),                                                                              \
     AfxSig_notify, AFX_TARGET_HANDLER(memberFxn, void, NMHDR*, LRESULT*)},
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) ON_NOTIFY_EX_RANGE(wNotifyCode, id, id, memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    {WM_NOTIFY,      (WORD)(int)(wNotifyCode), (UINT)(id),                                                   \
     (UINT)(idLast), AfxSig_notifyRange,       AFX_TARGET_HANDLER(memberFxn, void, UINT, NMHDR*, LRESULT*)},
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                               \
    {WM_NOTIFY,      (WORD)(int)(wNotifyCode), (UINT)(id),                                                   \
     (UINT)(idLast), AfxSig_notifyRangeBool,   AFX_TARGET_HANDLER(memberFxn, BOOL, UINT, NMHDR*, LRESULT*)},

// ---- The same, reflected to the control. The _EX forms return FALSE to let the parent have the notification
// too.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    {WM_COMMAND + WM_REFLECT_BASE,                                                                           \
     (WORD)(wNotifyCode),                                                                                    \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig_command,                                                                                         \
     AFX_TARGET_HANDLER(memberFxn, void, void)},
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    {WM_COMMAND + WM_REFLECT_BASE,                                                                           \
     (WORD)(wNotifyCode),                                                                                    \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig_commandBool,                                                                                     \
     AFX_TARGET_HANDLER(memberFxn, BOOL, void)},
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    {WM_NOTIFY + WM_REFLECT_BASE,                                                                            \
     (WORD)(int)(wNotifyCode),                                                                               \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig_notify,                                                                                          \
     AFX_TARGET_HANDLER(memberFxn, void, NMHDR*, LRESULT*)},
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    {WM_NOTIFY + WM_REFLECT_BASE,                                                                            \
     (WORD)(int)(wNotifyCode),                                                                               \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig_notifyBool,                                                                                      \
     AFX_TARGET_HANDLER(memberFxn, BOOL, NMHDR*, LRESULT*)},
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                              \
    {WM_COMMAND + WM_REFLECT_BASE,                                                                           \
     (WORD)CN_UPDATE_COMMAND_UI,                                                                             \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig_updateUI,                                                                                        \
     AFX_TARGET_HANDLER(memberFxn, void, CCmdUI*)},

// ---- Any message by number, and registered messages by the variable that holds the number.
#define ON_MESSAGE(message, memberFxn)                                                                       \
    {message, 0, 0, 0, AfxSig_message, AFX_WINDOW_HANDLER(memberFxn, LRESULT, WPARAM, LPARAM)},
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    {0xC000,                                                                                                 \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     (UINT_PTR)(UINT*)(&nMessageVariable),                                                                   \
     AFX_WINDOW_HANDLER(memberFxn, LRESULT, WPARAM, LPARAM)},
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                \
    {message, 0, 0, 0, AfxSig_thread, AFX_THREAD_HANDLER(memberFxn)},
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                            \
    {0xC000, 0, 0, 0, (UINT_PTR)(UINT*)(&nMessageVariable), AFX_THREAD_HANDLER(memberFxn)},

// ---- Notification codes of the standard controls: void f().
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)

// ---- Window messages: the handler has the name and the prototype of CWnd's member.
#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, AfxSig_create, OnCreate, int, LPCREATESTRUCT)
#define ON_WM_NCCREATE() AFX_WM_ENTRY(WM_NCCREATE, AfxSig_ncCreate, OnNcCreate, BOOL, LPCREATESTRUCT)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_none, OnDestroy, void, void)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_none, OnNcDestroy, void, void)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_none, OnClose, void, void)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_size, OnSize, void, UINT, int, int)
#define ON_WM_SIZING() AFX_WM_ENTRY(WM_SIZING, AfxSig_sideRect, OnSizing, void, UINT, LPRECT)
#define ON_WM_MOVE() AFX_WM_ENTRY(WM_MOVE, AfxSig_move, OnMove, void, int, int)
#define ON_WM_MOVING() AFX_WM_ENTRY(WM_MOVING, AfxSig_sideRect, OnMoving, void, UINT, LPRECT)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AfxSig_none, OnPaint, void, void)
#define ON_WM_NCPAINT() AFX_WM_ENTRY(WM_NCPAINT, AfxSig_none, OnNcPaint, void, void)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_eraseDc, OnEraseBkgnd, BOOL, CDC*)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_ctlColor, OnCtlColor, HBRUSH, CDC*, CWnd*, UINT)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_wndW, OnSetFocus, void, CWnd*)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY(WM_KILLFOCUS, AfxSig_wndW, OnKillFocus, void, CWnd*)
#define ON_WM_ENABLE() AFX_WM_ENTRY(WM_ENABLE, AfxSig_flag, OnEnable, void, BOOL)
#define ON_WM_SHOWWINDOW() AFX_WM_ENTRY(WM_SHOWWINDOW, AfxSig_flagUint, OnShowWindow, void, BOOL, UINT)
#define ON_WM_SETCURSOR()                                                                                    \
    AFX_WM_ENTRY(WM_SETCURSOR, AfxSig_wndHitMessage, OnSetCursor, BOOL, CWnd*, UINT, UINT)
#define ON_WM_MOUSEACTIVATE()                                                                                \
    AFX_WM_ENTRY(WM_MOUSEACTIVATE, AfxSig_mouseActivate, OnMouseActivate, int, CWnd*, UINT, UINT)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY(WM_MOUSEMOVE, AfxSig_mouse, OnMouseMove, void, UINT, CPoint)
#define ON_WM_MOUSEHOVER() AFX_WM_ENTRY(WM_MOUSEHOVER, AfxSig_mouse, OnMouseHover, void, UINT, CPoint)
#define ON_WM_MOUSELEAVE() AFX_WM_ENTRY(WM_MOUSELEAVE, AfxSig_none, OnMouseLeave, void, void)
#define ON_WM_MOUSEWHEEL() AFX_WM_ENTRY(WM_MOUSEWHEEL, AfxSig_wheel, OnMouseWheel, BOOL, UINT, short, CPoint)
#define ON_WM_MOUSEHWHEEL()                                                                                  \
    AFX_WM_ENTRY(WM_MOUSEHWHEEL, AfxSig_horizontalWheel, OnMouseHWheel, void, UINT, short, CPoint)
#define ON_WM_LBUTTONDOWN() AFX_WM_ENTRY(WM_LBUTTONDOWN, AfxSig_mouse, OnLButtonDown, void, UINT, CPoint)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY(WM_LBUTTONUP, AfxSig_mouse, OnLButtonUp, void, UINT, CPoint)
#define ON_WM_LBUTTONDBLCLK()                                                                                \
    AFX_WM_ENTRY(WM_LBUTTONDBLCLK, AfxSig_mouse, OnLButtonDblClk, void, UINT, CPoint)
#define ON_WM_RBUTTONDOWN() AFX_WM_ENTRY(WM_RBUTTONDOWN, AfxSig_mouse, OnRButtonDown, void, UINT, CPoint)
#define ON_WM_RBUTTONUP() AFX_WM_ENTRY(WM_RBUTTONUP, AfxSig_mouse, OnRButtonUp, void, UINT, CPoint)
#define ON_WM_RBUTTONDBLCLK()                                                                                \
    AFX_WM_ENTRY(WM_RBUTTONDBLCLK, AfxSig_mouse, OnRButtonDblClk, void, UINT, CPoint)
#define ON_WM_MBUTTONDOWN() AFX_WM_ENTRY(WM_MBUTTONDOWN, AfxSig_mouse, OnMButtonDown, void, UINT, CPoint)
#define ON_WM_MBUTTONUP() AFX_WM_ENTRY(WM_MBUTTONUP, AfxSig_mouse, OnMButtonUp, void, UINT, CPoint)
#define ON_WM_MBUTTONDBLCLK()                                                                                \
    AFX_WM_ENTRY(WM_MBUTTONDBLCLK, AfxSig_mouse, OnMButtonDblClk, void, UINT, CPoint)
#define ON_WM_XBUTTONDOWN()                                                                                  \
    AFX_WM_ENTRY(WM_XBUTTONDOWN, AfxSig_xButton, OnXButtonDown, void, UINT, UINT, CPoint)
#define ON_WM_XBUTTONUP() AFX_WM_ENTRY(WM_XBUTTONUP, AfxSig_xButton, OnXButtonUp, void, UINT, UINT, CPoint)
#define ON_WM_XBUTTONDBLCLK()                                                                                \
    AFX_WM_ENTRY(WM_XBUTTONDBLCLK, AfxSig_xButton, OnXButtonDblClk, void, UINT, UINT, CPoint)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY(WM_KEYDOWN, AfxSig_key, OnKeyDown, void, UINT, UINT, UINT)
#define ON_WM_KEYUP() AFX_WM_ENTRY(WM_KEYUP, AfxSig_key, OnKeyUp, void, UINT, UINT, UINT)
#define ON_WM_CHAR() AFX_WM_ENTRY(WM_CHAR, AfxSig_key, OnChar, void, UINT, UINT, UINT)
#define ON_WM_DEADCHAR() AFX_WM_ENTRY(WM_DEADCHAR, AfxSig_key, OnDeadChar, void, UINT, UINT, UINT)
#define ON_WM_SYSKEYDOWN() AFX_WM_ENTRY(WM_SYSKEYDOWN, AfxSig_key, OnSysKeyDown, void, UINT, UINT, UINT)
#define ON_WM_SYSKEYUP() AFX_WM_ENTRY(WM_SYSKEYUP, AfxSig_key, OnSysKeyUp, void, UINT, UINT, UINT)
#define ON_WM_SYSCHAR() AFX_WM_ENTRY(WM_SYSCHAR, AfxSig_key, OnSysChar, void, UINT, UINT, UINT)
#define ON_WM_SYSDEADCHAR() AFX_WM_ENTRY(WM_SYSDEADCHAR, AfxSig_key, OnSysDeadChar, void, UINT, UINT, UINT)
#define ON_WM_HOTKEY() AFX_WM_ENTRY(WM_HOTKEY, AfxSig_hotKey, OnHotKey, void, UINT, UINT, UINT)
#define ON_WM_SYSCOMMAND() AFX_WM_ENTRY(WM_SYSCOMMAND, AfxSig_uintLparam, OnSysCommand, void, UINT, LPARAM)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, AfxSig_timer, OnTimer, void, UINT_PTR)
#define ON_WM_HSCROLL() AFX_WM_ENTRY(WM_HSCROLL, AfxSig_scroll, OnHScroll, void, UINT, UINT, CScrollBar*)
#define ON_WM_VSCROLL() AFX_WM_ENTRY(WM_VSCROLL, AfxSig_scroll, OnVScroll, void, UINT, UINT, CScrollBar*)
#define ON_WM_CONTEXTMENU() AFX_WM_ENTRY(WM_CONTEXTMENU, AfxSig_wndPoint, OnContextMenu, void, CWnd*, CPoint)
#define ON_WM_INITMENU() AFX_WM_ENTRY(WM_INITMENU, AfxSig_menu, OnInitMenu, void, CMenu*)
#define ON_WM_INITMENUPOPUP()                                                                                \
    AFX_WM_ENTRY(WM_INITMENUPOPUP, AfxSig_menuPopup, OnInitMenuPopup, void, CMenu*, UINT, BOOL)
#define ON_WM_UNINITMENUPOPUP()                                                                              \
    AFX_WM_ENTRY(WM_UNINITMENUPOPUP, AfxSig_menuUint, OnUnInitMenuPopup, void, CMenu*, UINT)
#define ON_WM_MENUSELECT()                                                                                   \
    AFX_WM_ENTRY(WM_MENUSELECT, AfxSig_menuSelect, OnMenuSelect, void, UINT, UINT, HMENU)
#define ON_WM_MENUCHAR() AFX_WM_ENTRY(WM_MENUCHAR, AfxSig_menuChar, OnMenuChar, LRESULT, UINT, UINT, CMenu*)
#define ON_WM_ENTERMENULOOP() AFX_WM_ENTRY(WM_ENTERMENULOOP, AfxSig_flag, OnEnterMenuLoop, void, BOOL)
#define ON_WM_EXITMENULOOP() AFX_WM_ENTRY(WM_EXITMENULOOP, AfxSig_flag, OnExitMenuLoop, void, BOOL)
#define ON_WM_ENTERIDLE() AFX_WM_ENTRY(WM_ENTERIDLE, AfxSig_enterIdle, OnEnterIdle, void, UINT, CWnd*)
#define ON_WM_GETDLGCODE() AFX_WM_ENTRY(WM_GETDLGCODE, AfxSig_uint, OnGetDlgCode, UINT, void)
#define ON_WM_CANCELMODE() AFX_WM_ENTRY(WM_CANCELMODE, AfxSig_none, OnCancelMode, void, void)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, AfxSig_wndL, OnCaptureChanged, void, CWnd*)
#define ON_WM_NCHITTEST() AFX_WM_ENTRY(WM_NCHITTEST, AfxSig_ncHitTest, OnNcHitTest, LRESULT, CPoint)
#define ON_WM_NCCALCSIZE()                                                                                   \
    AFX_WM_ENTRY(WM_NCCALCSIZE, AfxSig_ncCalcSize, OnNcCalcSize, void, BOOL, NCCALCSIZE_PARAMS*)
#define ON_WM_NCACTIVATE() AFX_WM_ENTRY(WM_NCACTIVATE, AfxSig_boolFlag, OnNcActivate, BOOL, BOOL)
#define ON_WM_NCMOUSEMOVE() AFX_WM_ENTRY(WM_NCMOUSEMOVE, AfxSig_mouse, OnNcMouseMove, void, UINT, CPoint)
#define ON_WM_NCLBUTTONDOWN()                                                                                \
    AFX_WM_ENTRY(WM_NCLBUTTONDOWN, AfxSig_mouse, OnNcLButtonDown, void, UINT, CPoint)
#define ON_WM_NCLBUTTONUP() AFX_WM_ENTRY(WM_NCLBUTTONUP, AfxSig_mouse, OnNcLButtonUp, void, UINT, CPoint)
#define ON_WM_NCLBUTTONDBLCLK()                                                                              \
    AFX_WM_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_mouse, OnNcLButtonDblClk, void, UINT, CPoint)
#define ON_WM_NCRBUTTONDOWN()                                                                                \
    AFX_WM_ENTRY(WM_NCRBUTTONDOWN, AfxSig_mouse, OnNcRButtonDown, void, UINT, CPoint)
#define ON_WM_NCRBUTTONUP() AFX_WM_ENTRY(WM_NCRBUTTONUP, AfxSig_mouse, OnNcRButtonUp, void, UINT, CPoint)
#define ON_WM_NCRBUTTONDBLCLK()                                                                              \
    AFX_WM_ENTRY(WM_NCRBUTTONDBLCLK, AfxSig_mouse, OnNcRButtonDblClk, void, UINT, CPoint)
#define ON_WM_NCMBUTTONDOWN()                                                                                \
    AFX_WM_ENTRY(WM_NCMBUTTONDOWN, AfxSig_mouse, OnNcMButtonDown, void, UINT, CPoint)
#define ON_WM_NCMBUTTONUP() AFX_WM_ENTRY(WM_NCMBUTTONUP, AfxSig_mouse, OnNcMButtonUp, void, UINT, CPoint)
#define ON_WM_NCMBUTTONDBLCLK()                                                                              \
    AFX_WM_ENTRY(WM_NCMBUTTONDBLCLK, AfxSig_mouse, OnNcMButtonDblClk, void, UINT, CPoint)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, AfxSig_activate, OnActivate, void, UINT, CWnd*, BOOL)
#define ON_WM_ACTIVATEAPP() AFX_WM_ENTRY(WM_ACTIVATEAPP, AfxSig_activateApp, OnActivateApp, void, BOOL, DWORD)
#define ON_WM_DRAWITEM() AFX_WM_ENTRY(WM_DRAWITEM, AfxSig_intPointer, OnDrawItem, void, int, LPDRAWITEMSTRUCT)
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_WM_ENTRY(WM_MEASUREITEM, AfxSig_intPointer, OnMeasureItem, void, int, LPMEASUREITEMSTRUCT)
#define ON_WM_COMPAREITEM()                                                                                  \
    AFX_WM_ENTRY(WM_COMPAREITEM, AfxSig_intPointerResult, OnCompareItem, int, int, LPCOMPAREITEMSTRUCT)
#define ON_WM_DELETEITEM()                                                                                   \
    AFX_WM_ENTRY(WM_DELETEITEM, AfxSig_intPointer, OnDeleteItem, void, int, LPDELETEITEMSTRUCT)
#define ON_WM_CHARTOITEM()                                                                                   \
    AFX_WM_ENTRY(WM_CHARTOITEM, AfxSig_listChar, OnCharToItem, int, UINT, CListBox*, UINT)
#define ON_WM_VKEYTOITEM()                                                                                   \
    AFX_WM_ENTRY(WM_VKEYTOITEM, AfxSig_listChar, OnVKeyToItem, int, UINT, CListBox*, UINT)
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_pointer, OnWindowPosChanging, void, WINDOWPOS*)
#define ON_WM_WINDOWPOSCHANGED()                                                                             \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_pointer, OnWindowPosChanged, void, WINDOWPOS*)
#define ON_WM_GETMINMAXINFO()                                                                                \
    AFX_WM_ENTRY(WM_GETMINMAXINFO, AfxSig_pointer, OnGetMinMaxInfo, void, MINMAXINFO*)
#define ON_WM_SETTINGCHANGE()                                                                                \
    AFX_WM_ENTRY(WM_SETTINGCHANGE, AfxSig_uintText, OnSettingChange, void, UINT, LPCTSTR)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AfxSig_none, OnSysColorChange, void, void)
#define ON_WM_FONTCHANGE() AFX_WM_ENTRY(WM_FONTCHANGE, AfxSig_none, OnFontChange, void, void)
#define ON_WM_TIMECHANGE() AFX_WM_ENTRY(WM_TIMECHANGE, AfxSig_none, OnTimeChange, void, void)
#define ON_WM_PARENTNOTIFY()                                                                                 \
    AFX_WM_ENTRY(WM_PARENTNOTIFY, AfxSig_uintLparam, OnParentNotify, void, UINT, LPARAM)
#define ON_WM_CHILDACTIVATE() AFX_WM_ENTRY(WM_CHILDACTIVATE, AfxSig_none, OnChildActivate, void, void)
#define ON_WM_QUERYDRAGICON() AFX_WM_ENTRY(WM_QUERYDRAGICON, AfxSig_cursor, OnQueryDragIcon, HCURSOR, void)
#define ON_WM_QUERYOPEN() AFX_WM_ENTRY(WM_QUERYOPEN, AfxSig_bool, OnQueryOpen, BOOL, void)
#define ON_WM_QUERYNEWPALETTE() AFX_WM_ENTRY(WM_QUERYNEWPALETTE, AfxSig_bool, OnQueryNewPalette, BOOL, void)
#define ON_WM_PALETTECHANGED() AFX_WM_ENTRY(WM_PALETTECHANGED, AfxSig_wndW, OnPaletteChanged, void, CWnd*)
#define ON_WM_QUERYENDSESSION() AFX_WM_ENTRY(WM_QUERYENDSESSION, AfxSig_bool, OnQueryEndSession, BOOL, void)
#define ON_WM_ENDSESSION() AFX_WM_ENTRY(WM_ENDSESSION, AfxSig_flag, OnEndSession, void, BOOL)
#define ON_WM_STYLECHANGING()                                                                                \
    AFX_WM_ENTRY(WM_STYLECHANGING, AfxSig_intPointer, OnStyleChanging, void, int, LPSTYLESTRUCT)
#define ON_WM_STYLECHANGED()                                                                                 \
    AFX_WM_ENTRY(WM_STYLECHANGED, AfxSig_intPointer, OnStyleChanged, void, int, LPSTYLESTRUCT)
#define ON_WM_DEVICECHANGE()                                                                                 \
    AFX_WM_ENTRY(WM_DEVICECHANGE, AfxSig_device, OnDeviceChange, BOOL, UINT, DWORD_PTR)
#define ON_WM_HELPINFO() AFX_WM_ENTRY(WM_HELP, AfxSig_boolPointer, OnHelpInfo, BOOL, HELPINFO*)
#define ON_WM_COPYDATA() AFX_WM_ENTRY(WM_COPYDATA, AfxSig_copyData, OnCopyData, BOOL, CWnd*, COPYDATASTRUCT*)
#define ON_WM_DROPFILES() AFX_WM_ENTRY(WM_DROPFILES, AfxSig_dropFiles, OnDropFiles, void, HDROP)
#define ON_WM_INPUTLANGCHANGE()                                                                              \
    AFX_WM_ENTRY(WM_INPUTLANGCHANGE, AfxSig_uintUint, OnInputLangChange, void, UINT, UINT)

#define ON_WM_MDIACTIVATE()                                                                                  \
    AFX_WM_ENTRY(WM_MDIACTIVATE, AfxSig_mdiActivate, OnMDIActivate, void, BOOL, CWnd*, CWnd*)

// Messages that a parent reflects to the control they came from; see CWnd::OnChildNotify.
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    AFX_WM_ENTRY(WM_CTLCOLOR + WM_REFLECT_BASE, AfxSig_reflectCtlColor, CtlColor, HBRUSH, CDC*, UINT)
#define ON_WM_HSCROLL_REFLECT()                                                                              \
    AFX_WM_ENTRY(WM_HSCROLL + WM_REFLECT_BASE, AfxSig_reflectScroll, HScroll, void, UINT, UINT)
#define ON_WM_VSCROLL_REFLECT()                                                                              \
    AFX_WM_ENTRY(WM_VSCROLL + WM_REFLECT_BASE, AfxSig_reflectScroll, VScroll, void, UINT, UINT)
#define ON_WM_DRAWITEM_REFLECT()                                                                             \
    AFX_WM_ENTRY(WM_DRAWITEM + WM_REFLECT_BASE, AfxSig_pointer, DrawItem, void, LPDRAWITEMSTRUCT)
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    AFX_WM_ENTRY(WM_MEASUREITEM + WM_REFLECT_BASE, AfxSig_pointer, MeasureItem, void, LPMEASUREITEMSTRUCT)
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    AFX_WM_ENTRY(WM_DELETEITEM + WM_REFLECT_BASE, AfxSig_pointer, DeleteItem, void, LPDELETEITEMSTRUCT)
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    AFX_WM_ENTRY(WM_COMPAREITEM + WM_REFLECT_BASE, AfxSig_reflectPointerInt, CompareItem, int,               \
                 LPCOMPAREITEMSTRUCT)
#define ON_WM_CHARTOITEM_REFLECT()                                                                           \
    AFX_WM_ENTRY(WM_CHARTOITEM + WM_REFLECT_BASE, AfxSig_reflectListChar, CharToItem, int, UINT, UINT)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                           \
    AFX_WM_ENTRY(WM_VKEYTOITEM + WM_REFLECT_BASE, AfxSig_reflectListChar, VKeyToItem, int, UINT, UINT)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                         \
    AFX_WM_ENTRY(WM_PARENTNOTIFY + WM_REFLECT_BASE, AfxSig_uintLparam, ParentNotify, void, UINT, LPARAM)
