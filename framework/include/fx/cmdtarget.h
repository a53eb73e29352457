// Command targets and message maps: the root of everything that receives messages and commands.
#pragma once

#include "fx/config.h"
#include "fx/object.h"

class CCmdTarget;
class CCmdUI;
class CMenu;
class CWnd;
class CWinThread;

// The common type to which message map entries convert every handler; the entry's signature kind says how to
// call it.
typedef void (CCmdTarget::*AFX_PMSG)(void);
typedef void (CWnd::*AFX_PMSGW)(void);
typedef void (CWinThread::*AFX_PMSGT)(void);

// One line of a message map. nCode is the notification code of a WM_COMMAND or WM_NOTIFY entry; nID and
// nLastID are the inclusive range of control or command ids. nSig is an AfxSig value, except for registered
// messages (nMessage 0xC000), where it is the address of the UINT variable that holds the message number.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    UINT_PTR nSig;
    AFX_PMSG pfn;
};

// The message map of one class: its entries, ended by one with nSig == AfxSig_end, and its base class's map.
struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// How a handler is called. The name lists what the message is decoded into.
enum AfxSig
{
    AfxSig_end = 0,

    // Window messages.
    AfxSig_none,             // void ()
    AfxSig_bool,             // BOOL ()
    AfxSig_uint,             // UINT ()
    AfxSig_cursor,           // HCURSOR ()
    AfxSig_message,          // LRESULT (WPARAM, LPARAM)
    AfxSig_eraseDc,          // BOOL (CDC*)
    AfxSig_wndHitMessage,    // BOOL (CWnd*, UINT, UINT)
    AfxSig_mouseActivate,    // int (CWnd*, UINT, UINT)
    AfxSig_create,           // int (LPCREATESTRUCT)
    AfxSig_ncCreate,         // BOOL (LPCREATESTRUCT)
    AfxSig_size,             // void (UINT, int, int)
    AfxSig_move,             // void (int, int)
    AfxSig_sideRect,         // void (UINT, LPRECT)
    AfxSig_ctlColor,         // HBRUSH (CDC*, CWnd*, UINT)
    AfxSig_wndW,             // void (CWnd*) from wParam
    AfxSig_wndL,             // void (CWnd*) from lParam
    AfxSig_flag,             // void (BOOL)
    AfxSig_boolFlag,         // BOOL (BOOL)
    AfxSig_flagUint,         // void (BOOL, UINT)
    AfxSig_mouse,            // void (UINT, CPoint)
    AfxSig_wheel,            // BOOL (UINT, short, CPoint)
    AfxSig_horizontalWheel,  // void (UINT, short, CPoint)
    AfxSig_xButton,          // void (UINT, UINT, CPoint)
    AfxSig_key,              // void (UINT, UINT, UINT)
    AfxSig_uintLparam,       // void (UINT, LPARAM)
    AfxSig_timer,            // void (UINT_PTR)
    AfxSig_scroll,           // void (UINT, UINT, CScrollBar*)
    AfxSig_wndPoint,         // void (CWnd*, CPoint)
    AfxSig_menu,             // void (CMenu*)
    AfxSig_menuPopup,        // void (CMenu*, UINT, BOOL)
    AfxSig_menuUint,         // void (CMenu*, UINT)
    AfxSig_menuSelect,       // void (UINT, UINT, HMENU)
    AfxSig_menuChar,         // LRESULT (UINT, UINT, CMenu*)
    AfxSig_ncHitTest,        // LRESULT (CPoint)
    AfxSig_ncCalcSize,       // void (BOOL, NCCALCSIZE_PARAMS*)
    AfxSig_activate,         // void (UINT, CWnd*, BOOL)
    AfxSig_activateApp,      // void (BOOL, DWORD)
    AfxSig_intPointer,       // void (int, pointer)
    AfxSig_intPointerResult, // int (int, pointer)
    AfxSig_pointer,          // void (pointer)
    AfxSig_uintText,         // void (UINT, LPCTSTR)
    AfxSig_device,           // BOOL (UINT, DWORD_PTR)
    AfxSig_boolPointer,      // BOOL (pointer)
    AfxSig_listChar,         // int (UINT, CListBox*, UINT)
    AfxSig_enterIdle,        // void (UINT, CWnd*)
    AfxSig_copyData,         // BOOL (CWnd*, COPYDATASTRUCT*)
    AfxSig_dropFiles,        // void (HDROP)
    AfxSig_hotKey,           // void (UINT, UINT, UINT), lParam split
    AfxSig_uintUint,         // void (UINT, UINT)
    AfxSig_mdiActivate,      // void (BOOL, CWnd*, CWnd*)

    // Reflected window messages.
    AfxSig_reflectCtlColor,   // HBRUSH (CDC*, UINT)
    AfxSig_reflectScroll,     // void (UINT, UINT)
    AfxSig_reflectPointerInt, // int (pointer)
    AfxSig_reflectListChar,   // int (UINT, UINT)

    AfxSig_windowCount,

    // Commands and notifications.
    AfxSig_command = 0x100,  // void ()
    AfxSig_commandBool,      // BOOL ()
    AfxSig_commandRange,     // void (UINT)
    AfxSig_commandRangeBool, // BOOL (UINT)
    AfxSig_notify,           // void (NMHDR*, LRESULT*)
    AfxSig_notifyBool,       // BOOL (NMHDR*, LRESULT*)
    AfxSig_notifyRange,      // void (UINT, NMHDR*, LRESULT*)
    AfxSig_notifyRangeBool,  // BOOL (UINT, NMHDR*, LRESULT*)
    AfxSig_updateUI,         // void (CCmdUI*)

    // Thread messages.
    AfxSig_thread = 0x200 // void (WPARAM, LPARAM)
};

// Command codes beside the controls' notification codes.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI ((UINT)(-1))

// A notification that a parent passes back to the control that sent it arrives as this base plus the message.
#define WM_REFLECT_BASE 0xBC00
// The one number under which message maps know the seven WM_CTLCOLOR... messages.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

// What OnCmdMsg gets as pExtra for a WM_NOTIFY message.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// Receives the handler that OnCmdMsg found instead of calling it.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    void (CCmdTarget::*pmf)(void);
};

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                   \
    {                                                                                                        \
        typedef theClass ThisClass __attribute__((unused));                                                  \
        typedef baseClass TheBaseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                           \
    template <typename type_name> const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const               \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    template <typename type_name> const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap()          \
    {                                                                                                        \
        typedef theClass<type_name> ThisClass __attribute__((unused));                                       \
        typedef baseClass TheBaseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0                                                                  \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }

// An object with a message map. Windows, threads, documents and any object on a command route derive from it.
class QFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget() = default;

    // Offers a command to this target. nID is the command or control id. nCode is CN_COMMAND,
    // CN_UPDATE_COMMAND_UI, a WM_COMMAND notification code, or MAKELONG(code, message) for WM_NOTIFY and
    // reflected notifications. pExtra is the CCmdUI* of an update, the AFX_NOTIFY* of a WM_NOTIFY, else NULL.
    // With pHandlerInfo the handler is only looked up. Returns TRUE when a handler was found and did not ask
    // to keep routing. Overrides extend the route.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // Shows the hourglass until the matching EndWaitCursor; the calls nest. RestoreWaitCursor shows it again
    // after something else (a message box) changed the cursor.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

private:
    CCmdTarget(const CCmdTarget&);
    CCmdTarget& operator=(const CCmdTarget&);
};

// Shows the hourglass for the lifetime of the object.
class QFX_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    void Restore();
};

// The state of one user interface element (menu item or control), handed to ON_UPDATE_COMMAND_UI handlers.
class QFX_API CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    UINT m_nID;        // the command or control id
    UINT m_nIndex;     // zero-based position in m_pMenu
    CMenu* m_pMenu;    // the menu that holds the item, NULL for a control
    CMenu* m_pSubMenu; // the popup the item opens, else NULL
    CWnd* m_pOther;    // the window of the control, NULL for a menu item
    UINT m_nIndexMax;  // number of items that the caller walks
    CMenu* m_pParentMenu;

    // Enables or greys the item; also marks it as decided, so that automatic greying leaves it alone.
    virtual void Enable(BOOL bOn = TRUE);
    // 0 unchecked, 1 checked, 2 indeterminate.
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    // Called by a handler that did not decide: the route goes on as if there were no handler.
    void ContinueRouting() { m_bContinueRouting = TRUE; }
    // Asks pTarget's route for the state; without a handler and with bDisableIfNoHndler the item is disabled.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

private:
    friend struct FrameworkAccess;
    friend class CFrameWnd;

    BOOL m_bEnableChanged;
    BOOL m_bContinueRouting;
};
