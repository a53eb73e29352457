// TGCellCombo: the combo box editor of a cell.
#pragma once

#include "grid/TGCellCtrl.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// A combo box over the cell, either with a text field that can be typed into or for choosing only. The grid's
// OnCellComboString fills its list. It ends the edit session when it loses the focus.
class QUOR_EXT_CLASS TGCellCombo : public CComboBox, public TGCellCtrl
{
public:
    TGCellCombo(TGGridCell& editedCell, bool editableText);
    ~TGCellCombo() override;

    CWnd* GetWnd() override { return this; }
    // Shows the combo over `rect` with a list of eleven cell heights and takes the focus. A list combo
    // selects the first item that begins with the cell's text, ignoring case.
    void Create(CRect& rect) override;
    // Set by every change of the text or the selection.
    bool IsModified() override { return modified; }
    void GetNewText(CString& text) override { GetWindowText(text); }
    // The selection of the text field ends at the beginning or the end; always true for a list combo.
    bool IsLeftEnd() override;
    bool IsRightEnd() override;
    // Up and Down stay in the combo and move its selection.
    bool IsUpEnd() override { return false; }
    bool IsDownEnd() override { return false; }

    // Called after every change of the selection in the list; does nothing by default.
    virtual void AfterSelChange();

protected:
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnCbnKillfocus();
    afx_msg void OnCbnSetfocus();
    afx_msg void OnCbnEditchange();
    afx_msg void OnCbnSelchange();

private:
    TGGrid* GetGrid() const;

    bool modified = false;
    bool editable;
};

} // namespace QuorUiCtr
