// TGCellCombo: the combo box editor of a cell.
#pragma once

#include "grid/TGCellCtrl.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// A combo box over the cell, either with a text field that can be typed into or for choosing only. The grid's
// OnCellComboString fills its list. It ends the edit session when it loses the focus; it sends the parent no
// EN_KILLFOCUS, which only text fields do. Made by the default OnGetCellEdit for columns with
// TGGridCol::SetComboEdit or SetComboSel.
//
// Choosing an item calls the grid's OnCmbSelchange, which by default stores the text in the cell at once, and
// then OnDataChanged; the end of the session commits the text again, through OnModified.
class QUOR_EXT_CLASS TGCellCombo : public CComboBox, public TGCellCtrl
{
public:
    // `editableText`: the text can be typed; else it can only be chosen. Without a window, which Create
    // makes.
    TGCellCombo(TGGridCell& editedCell, bool editableText);
    ~TGCellCombo() override;

    CWnd* GetWnd() override { return this; }
    // Shows the combo over `rect`, grown by the cell's frame, with a list of eleven cell heights and takes
    // the focus; `rect` stays as it is. A list combo selects the first item that begins with the cell's text,
    // ignoring case.
    void Create(CRect& rect) override;
    // Set by every change of the text or the selection that the user makes, also by one that leads back.
    bool IsModified() override { return modified; }
    // The text of the field, or of the item chosen.
    void GetNewText(CString& text) override { GetWindowText(text); }
    // The selection of the text field ends at the beginning or the end; always true for a list combo.
    bool IsLeftEnd() override;
    bool IsRightEnd() override;
    // Never: a combo box needs both keys itself, to walk through its list.
    bool IsUpEnd() override { return false; }
    bool IsDownEnd() override { return false; }

    // For derived combos: called after every change of the selection in the list, when the grid's hooks have
    // run. Does nothing by default.
    virtual void AfterSelChange();

protected:
    // Deletes the object as soon as none of its code is running.
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    // The combo's own notifications, reflected by the grid: the session ends; the corner shows the focus; the
    // user typed; the user chose.
    afx_msg void OnCbnKillfocus();
    afx_msg void OnCbnSetfocus();
    afx_msg void OnCbnEditchange();
    afx_msg void OnCbnSelchange();

private:
    // The grid that shows the editor; null once its window is gone.
    TGGrid* GetGrid() const;

    // As IsModified says; cleared by Create.
    bool modified = false;
    // As constructed.
    bool editable;
};

} // namespace QuorUiCtr
