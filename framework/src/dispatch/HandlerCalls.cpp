// How each kind of window message handler is called: one decoder per signature kind.
#include "dispatch/MessageMap.h"
#include "threadstate/ThreadState.h"

#include <iterator>

namespace
{

struct Call
{
    CWnd& window;
    AFX_PMSG handler;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    template <typename TResult, typename... TArguments> LRESULT As(TArguments... arguments) const
    {
        using Handler = TResult (CWnd::*)(TArguments...);
        const auto typed = reinterpret_cast<Handler>(static_cast<AFX_PMSGW>(handler));
        if constexpr (std::is_void_v<TResult>)
        {
            (window.*typed)(arguments...);
            return 0;
        }
        else if constexpr (std::is_pointer_v<TResult>)
        {
            return reinterpret_cast<LRESULT>((window.*typed)(arguments...));
        }
        else
        {
            return static_cast<LRESULT>((window.*typed)(arguments...));
        }
    }

    template <typename TPointer> TPointer WordPointer() const { return reinterpret_cast<TPointer>(wParam); }
    template <typename TPointer> TPointer LongPointer() const { return reinterpret_cast<TPointer>(lParam); }
    CWnd* WordWindow() const { return CWnd::FromHandle(WordPointer<HWND>()); }
    CWnd* LongWindow() const { return CWnd::FromHandle(LongPointer<HWND>()); }
    UINT Word() const { return static_cast<UINT>(wParam); }
    BOOL Flag() const { return static_cast<BOOL>(wParam); }
    UINT LowWord() const { return LOWORD(wParam); }
    UINT HighWord() const { return HIWORD(wParam); }
    UINT LowLong() const { return LOWORD(lParam); }
    UINT HighLong() const { return HIWORD(lParam); }
    CPoint Point() const { return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)); }
    CMenu* WordMenu() const { return CMenu::FromHandle(WordPointer<HMENU>()); }
};

using Decoder = LRESULT (*)(const Call&);

// Up-down controls and plain windows arrive here too: the type is what the prototype promises, not what the
// window is.
CScrollBar* AsScrollBar(CWnd* window)
{
    return reinterpret_cast<CScrollBar*>(window);
}

CListBox* AsListBox(CWnd* window)
{
    return reinterpret_cast<CListBox*>(window);
}

LRESULT CallCtlColor(const Call& call)
{
    CDC* const dc = CDC::FromHandle(call.WordPointer<HDC>());
    return call.As<HBRUSH, CDC*, CWnd*, UINT>(dc, call.LongWindow(), call.message - WM_CTLCOLORMSGBOX);
}

LRESULT CallReflectedCtlColor(const Call& call)
{
    CDC* const dc = CDC::FromHandle(call.WordPointer<HDC>());
    return call.As<HBRUSH, CDC*, UINT>(dc, call.message - WM_REFLECT_BASE - WM_CTLCOLORMSGBOX);
}

LRESULT CallWindowHit(const Call& call)
{
    return call.As<BOOL, CWnd*, UINT, UINT>(call.WordWindow(), call.LowLong(), call.HighLong());
}

LRESULT CallWheel(const Call& call)
{
    const short delta = static_cast<short>(HIWORD(call.wParam));
    return call.As<BOOL, UINT, short, CPoint>(call.LowWord(), delta, call.Point());
}

LRESULT CallHorizontalWheel(const Call& call)
{
    const short delta = static_cast<short>(HIWORD(call.wParam));
    return call.As<void, UINT, short, CPoint>(call.LowWord(), delta, call.Point());
}

LRESULT CallSize(const Call& call)
{
    return call.As<void, UINT, int, int>(call.Word(), static_cast<int>(call.LowLong()),
                                         static_cast<int>(call.HighLong()));
}

LRESULT CallScroll(const Call& call)
{
    return call.As<void, UINT, UINT, CScrollBar*>(call.LowWord(), call.HighWord(),
                                                  AsScrollBar(call.LongWindow()));
}

LRESULT CallMenuPopup(const Call& call)
{
    return call.As<void, CMenu*, UINT, BOOL>(call.WordMenu(), call.LowLong(),
                                             static_cast<BOOL>(call.HighLong()));
}

LRESULT CallMenuSelect(const Call& call)
{
    return call.As<void, UINT, UINT, HMENU>(call.LowWord(), call.HighWord(), call.LongPointer<HMENU>());
}

LRESULT CallMenuChar(const Call& call)
{
    CMenu* const menu = CMenu::FromHandle(call.LongPointer<HMENU>());
    return call.As<LRESULT, UINT, UINT, CMenu*>(call.LowWord(), call.HighWord(), menu);
}

LRESULT CallActivate(const Call& call)
{
    return call.As<void, UINT, CWnd*, BOOL>(call.LowWord(), call.LongWindow(),
                                            static_cast<BOOL>(call.HighWord()));
}

LRESULT CallListChar(const Call& call)
{
    return call.As<int, UINT, CListBox*, UINT>(call.LowWord(), AsListBox(call.LongWindow()), call.HighWord());
}

LRESULT CallMouseActivate(const Call& call)
{
    return call.As<int, CWnd*, UINT, UINT>(call.WordWindow(), call.LowLong(), call.HighLong());
}

// The child is told which one becomes active instead of which one it is for.
LRESULT CallMdiActivate(const Call& call)
{
    const BOOL isActivated = call.LongPointer<HWND>() == call.window.m_hWnd;
    return call.As<void, BOOL, CWnd*, CWnd*>(isActivated, call.LongWindow(), call.WordWindow());
}

// A signature and the call of a handler that has it.
struct Signature
{
    AfxSig kind;
    Decoder call;
};

// Found by index.
constexpr Signature Signatures[] = {
    {AfxSig_end, nullptr},
    {AfxSig_none, [](const Call& c) { return c.As<void>(); }},
    {AfxSig_bool, [](const Call& c) { return c.As<BOOL>(); }},
    {AfxSig_uint, [](const Call& c) { return c.As<UINT>(); }},
    {AfxSig_cursor, [](const Call& c) { return c.As<HCURSOR>(); }},
    {AfxSig_message, [](const Call& c) { return c.As<LRESULT, WPARAM, LPARAM>(c.wParam, c.lParam); }},
    {AfxSig_eraseDc, [](const Call& c) { return c.As<BOOL, CDC*>(CDC::FromHandle(c.WordPointer<HDC>())); }},
    {AfxSig_wndHitMessage, CallWindowHit},
    {AfxSig_mouseActivate, CallMouseActivate},
    {AfxSig_create, [](const Call& c) { return c.As<int, LPCREATESTRUCT>(c.LongPointer<LPCREATESTRUCT>()); }},
    {AfxSig_ncCreate,
     [](const Call& c) { return c.As<BOOL, LPCREATESTRUCT>(c.LongPointer<LPCREATESTRUCT>()); }},
    {AfxSig_size, CallSize},
    {AfxSig_move, [](const Call& c) { return c.As<void, int, int>(c.Point().x, c.Point().y); }},
    {AfxSig_sideRect,
     [](const Call& c) { return c.As<void, UINT, LPRECT>(c.Word(), c.LongPointer<LPRECT>()); }},
    {AfxSig_ctlColor, CallCtlColor},
    {AfxSig_wndW, [](const Call& c) { return c.As<void, CWnd*>(c.WordWindow()); }},
    {AfxSig_wndL, [](const Call& c) { return c.As<void, CWnd*>(c.LongWindow()); }},
    {AfxSig_flag, [](const Call& c) { return c.As<void, BOOL>(c.Flag()); }},
    {AfxSig_boolFlag, [](const Call& c) { return c.As<BOOL, BOOL>(c.Flag()); }},
    {AfxSig_flagUint,
     [](const Call& c) { return c.As<void, BOOL, UINT>(c.Flag(), static_cast<UINT>(c.lParam)); }},
    {AfxSig_mouse, [](const Call& c) { return c.As<void, UINT, CPoint>(c.Word(), c.Point()); }},
    {AfxSig_wheel, CallWheel},
    {AfxSig_horizontalWheel, CallHorizontalWheel},
    {AfxSig_xButton,
     [](const Call& c) { return c.As<void, UINT, UINT, CPoint>(c.LowWord(), c.HighWord(), c.Point()); }},
    {AfxSig_key,
     [](const Call& c) { return c.As<void, UINT, UINT, UINT>(c.Word(), c.LowLong(), c.HighLong()); }},
    {AfxSig_uintLparam, [](const Call& c) { return c.As<void, UINT, LPARAM>(c.Word(), c.lParam); }},
    {AfxSig_timer, [](const Call& c) { return c.As<void, UINT_PTR>(c.wParam); }},
    {AfxSig_scroll, CallScroll},
    {AfxSig_wndPoint, [](const Call& c) { return c.As<void, CWnd*, CPoint>(c.WordWindow(), c.Point()); }},
    {AfxSig_menu, [](const Call& c) { return c.As<void, CMenu*>(c.WordMenu()); }},
    {AfxSig_menuPopup, CallMenuPopup},
    {AfxSig_menuUint,
     [](const Call& c) { return c.As<void, CMenu*, UINT>(c.WordMenu(), static_cast<UINT>(c.lParam)); }},
    {AfxSig_menuSelect, CallMenuSelect},
    {AfxSig_menuChar, CallMenuChar},
    {AfxSig_ncHitTest, [](const Call& c) { return c.As<LRESULT, CPoint>(c.Point()); }},
    {AfxSig_ncCalcSize,
     [](const Call& c) {
         return c.As<void, BOOL, NCCALCSIZE_PARAMS*>(c.Flag(), c.LongPointer<NCCALCSIZE_PARAMS*>());
     }},
    {AfxSig_activate, CallActivate},
    {AfxSig_activateApp,
     [](const Call& c) { return c.As<void, BOOL, DWORD>(c.Flag(), static_cast<DWORD>(c.lParam)); }},
    {AfxSig_intPointer,
     [](const Call& c) {
         return c.As<void, int, void*>(static_cast<int>(c.wParam), c.LongPointer<void*>());
     }},
    {AfxSig_intPointerResult,
     [](const Call& c) { return c.As<int, int, void*>(static_cast<int>(c.wParam), c.LongPointer<void*>()); }},
    {AfxSig_pointer, [](const Call& c) { return c.As<void, void*>(c.LongPointer<void*>()); }},
    {AfxSig_uintText,
     [](const Call& c) { return c.As<void, UINT, LPCTSTR>(c.Word(), c.LongPointer<LPCTSTR>()); }},
    {AfxSig_device,
     [](const Call& c) { return c.As<BOOL, UINT, DWORD_PTR>(c.Word(), static_cast<DWORD_PTR>(c.lParam)); }},
    {AfxSig_boolPointer, [](const Call& c) { return c.As<BOOL, void*>(c.LongPointer<void*>()); }},
    {AfxSig_listChar, CallListChar},
    {AfxSig_enterIdle, [](const Call& c) { return c.As<void, UINT, CWnd*>(c.Word(), c.LongWindow()); }},
    {AfxSig_copyData,
     [](const Call& c) {
         return c.As<BOOL, CWnd*, COPYDATASTRUCT*>(c.WordWindow(), c.LongPointer<COPYDATASTRUCT*>());
     }},
    {AfxSig_dropFiles, [](const Call& c) { return c.As<void, HDROP>(c.WordPointer<HDROP>()); }},
    {AfxSig_hotKey,
     [](const Call& c) { return c.As<void, UINT, UINT, UINT>(c.Word(), c.LowLong(), c.HighLong()); }},
    {AfxSig_uintUint,
     [](const Call& c) { return c.As<void, UINT, UINT>(c.Word(), static_cast<UINT>(c.lParam)); }},
    {AfxSig_mdiActivate, CallMdiActivate},
    {AfxSig_reflectCtlColor, CallReflectedCtlColor},
    {AfxSig_reflectScroll, [](const Call& c) { return c.As<void, UINT, UINT>(c.LowWord(), c.HighWord()); }},
    {AfxSig_reflectPointerInt, [](const Call& c) { return c.As<int, void*>(c.LongPointer<void*>()); }},
    {AfxSig_reflectListChar, [](const Call& c) { return c.As<int, UINT, UINT>(c.LowWord(), c.HighWord()); }},
};

constexpr bool AreInOrder()
{
    for (std::size_t i = 0; i < std::size(Signatures); ++i)
        if (static_cast<std::size_t>(Signatures[i].kind) != i)
            return false;
    return true;
}
static_assert(std::size(Signatures) == AfxSig_windowCount && AreInOrder(),
              "one entry per signature, in order");

// A wheel message that the handler declines goes to default processing, which offers it to the parent; once
// only, and only while the object still exists.
bool IsDeclinedWheel(const AFX_MSGMAP_ENTRY& entry, LRESULT result, const CWnd* window)
{
    if (entry.nSig != AfxSig_wheel || result != 0)
        return false;
    const MessageFrame* const current = CurrentThreadState().currentMessage;
    return current != nullptr && !current->passedToDefault &&
           CWnd::FromHandlePermanent(current->message.hwnd) == window;
}

} // namespace

BOOL CallMessageHandler(CWnd& window, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam,
                        LPARAM lParam, LRESULT& result)
{
    const bool isRegistered = entry.nMessage == 0xC000;
    const UINT_PTR kind = isRegistered ? static_cast<UINT_PTR>(AfxSig_message) : entry.nSig;
    if (kind == AfxSig_end || kind >= AfxSig_windowCount)
        return FALSE;
    result = Signatures[kind].call({window, entry.pfn, message, wParam, lParam});
    return !IsDeclinedWheel(entry, result, &window);
}
