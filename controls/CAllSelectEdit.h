// CAllSelectEdit: an edit whose text is selected by the first click into it.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// The first click after the edit has got the focus, by that click or before, selects the whole text and takes
// the focus, so that typing replaces the text; it neither moves the caret nor begins a selection. Later
// clicks work as in any edit. When the focus leaves, the next click selects all again.
//
// Meant for fields whose value is replaced more often than corrected, such as numbers in a dialog: bind it to
// the template's edit (DDX_Control, SubclassDlgItem) or create it; nothing needs to be set. Coming by Tab
// selects all already, as in any dialog. No notification is sent beyond those of an edit. The owner may
// destroy the edit while it takes the focus or loses it.
//
// Has run-time class information, but cannot be created from it.
class QUOR_EXT_CLASS CAllSelectEdit : public CEdit
{
    DECLARE_DYNAMIC(CAllSelectEdit)

public:
    // Without a window; the first click is still to come.
    CAllSelectEdit();
    ~CAllSelectEdit() override;

protected:
    // Selects all on the first click, else works as in any edit.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // Lets the next click select all.
    afx_msg void OnKillFocus(CWnd* newFocus);

    DECLARE_MESSAGE_MAP()

    // Whether a click has selected all since the focus last left. It survives a change of the text.
    BOOL selectAllDone;
};

} // namespace QuorUiCtr
