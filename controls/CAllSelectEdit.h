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
// Has run-time class information, but cannot be created from it.
class QUOR_EXT_CLASS CAllSelectEdit : public CEdit
{
    DECLARE_DYNAMIC(CAllSelectEdit)

public:
    CAllSelectEdit();
    ~CAllSelectEdit() override;

protected:
    // Selects all on the first click, else works as in any edit.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // Lets the next click select all.
    afx_msg void OnKillFocus(CWnd* newFocus);

    DECLARE_MESSAGE_MAP()

    // Whether a click has selected all since the focus last left.
    BOOL selectAllDone;
};

} // namespace QuorUiCtr
