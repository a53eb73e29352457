// Dialog data exchange: moving values between the members of a window class and its controls, and checking
// them.
#pragma once

#include "fx/string.h"
#include "fx/time.h"
#include "fx/wnd.h"

class CListBox;
class COleDateTime;
class CComboBox;

// The direction and the state of one exchange; CWnd::UpdateData makes it and passes it to DoDataExchange.
class QFX_API CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    // TRUE: from the controls into the members, with checks. FALSE: from the members into the controls.
    BOOL m_bSaveAndValidate;
    // The window with the controls.
    CWnd* m_pDlgWnd;

    // Finds a control and remembers it for Fail. Throws CNotSupportedException if the window has no such
    // control.
    HWND PrepareCtrl(int nIDC);
    // As PrepareCtrl; Fail will also select the text.
    HWND PrepareEditCtrl(int nIDC);
    // Ends the exchange after a failed check: the control gets the focus, the text of an edit is selected,
    // and CUserException is thrown. The caller has told the user.
    void Fail();

private:
    friend struct FrameworkAccess;

    // The control prepared last (0: none), and whether it is an edit: Fail goes back there.
    UINT m_idLastControl;
    BOOL m_bEditLastControl;
};

// Each exchange function moves one value between `value` and the control nIDC of the window.

// Subclasses the control with the object, the first time.
QFX_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

// The text of the control; numbers must parse completely, otherwise the user is told and the exchange fails.
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
// Into a buffer of nMaxLen characters, the terminating zero included.
QFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);

// The state of a check box: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
QFX_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// Which radio button of the group that begins with nIDC (WS_GROUP) is set: zero-based, -1 for none.
QFX_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
// The selection of a list or combo as an index (-1 for none) or as text.
QFX_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
QFX_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
// Setting selects the first item beginning with the text; a combo with an edit shows the text if there is
// none.
QFX_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
QFX_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
// As above, comparing whole texts.
QFX_API void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
QFX_API void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
// The position of a scroll bar control.
QFX_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
// The position of a slider.
QFX_API void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);
// The time of a date-time picker. An unset picker leaves a CTime alone and makes a COleDateTime null.
QFX_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
QFX_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);
// Its text.
QFX_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);
// The selected day of a calendar.
QFX_API void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);
QFX_API void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);

// Checks, each written right after the exchange of its value. When values are saved and one lies outside the
// range (ends included), the user is told and the exchange fails.
QFX_API void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
QFX_API void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
QFX_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
QFX_API void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
QFX_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
QFX_API void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD const& value, DWORD minVal, DWORD maxVal);
QFX_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal);
QFX_API void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                        ULONGLONG maxVal);
QFX_API void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal);
QFX_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
// Limits what the user can type into an edit or combo when values are shown, and fails for longer text when
// they are saved.
QFX_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
