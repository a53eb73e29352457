// CMFCPropertyGridProperty: one row of a property grid.
#pragma once

#include "afxwin.h"
#include "afxcmn.h"
#include "afxtempl.h"
#include "afxdisp.h"

#include <comutil.h>

class CMFCPropertyGridCtrl;
class PropertyGridWatch;

// The control id of the in-place editors.
#define AFX_PROPLIST_ID_INPLACE 1

// A named value, or a group of properties. Create properties with new and give them to a grid (AddProperty)
// or to another property (AddSubItem), which from then on owns them; a property that is deleted by hand
// leaves its owner by itself. The value is a variant whose type stays what it was at construction. Texts,
// real and integer numbers of 8 to 32 bits and flags can be edited; a flag (VT_BOOL) is chosen from two
// labels. Other types are shown as text and cannot be edited. Rectangles and points are in client coordinates
// of the grid.
class QFX_API CMFCPropertyGridProperty : public CObject
{
    DECLARE_DYNAMIC(CMFCPropertyGridProperty)

    friend class CMFCPropertyGridCtrl;

public:
    // The parts of a grid that HitTest tells apart.
    enum ClickArea
    {
        ClickExpandBox,
        ClickName,
        ClickValue,
        ClickDescription
    };

    // A group. As a value list it shows the values of its sub-items as one text, separated by the grid's list
    // delimiter, and begins folded; a plain group begins unfolded. dwData is any number of the program's.
    CMFCPropertyGridProperty(const CString& strGroupName, DWORD_PTR dwData = 0, BOOL bIsValueList = FALSE);
    // A property. The mask gives the kind of character per position ('D' digit, 'd' digit or blank, '+'
    // digit, sign or blank, 'C' letter, 'c' letter or blank, 'A' letter or digit, 'a' the same or blank, '*'
    // printable, blank for a fixed character), the template the fixed characters with '_' at every position
    // to fill. Only the valid characters can be typed; NULL allows all.
    CMFCPropertyGridProperty(const CString& strName, const _variant_t& varValue, LPCTSTR lpszDescr = NULL,
                             DWORD_PTR dwData = 0, LPCTSTR lpszEditMask = NULL,
                             LPCTSTR lpszEditTemplate = NULL, LPCTSTR lpszValidChars = NULL);
    virtual ~CMFCPropertyGridProperty();

    // ---- Name, description, data.
    LPCTSTR GetName() const { return m_strName; }
    void SetName(LPCTSTR lpszName, BOOL bRedraw = TRUE);
    const CString& GetDescription() const { return m_strDescr; }
    void SetDescription(const CString& strDescr);
    DWORD_PTR GetData() const { return m_dwData; }
    void SetData(DWORD_PTR dwData) { m_dwData = dwData; }

    // ---- Sub-items. The property owns them.
    // FALSE, and nothing is taken over, for NULL, for a property that has an owner already, and for this
    // property or one that contains it.
    BOOL AddSubItem(CMFCPropertyGridProperty* pProp);
    // Takes a direct sub-item out; bDelete also deletes it and sets the pointer to NULL. FALSE for a property
    // that is no direct sub-item.
    BOOL RemoveSubItem(CMFCPropertyGridProperty*& pProp, BOOL bDelete = TRUE);
    int GetSubItemsCount() const { return static_cast<int>(m_lstSubItems.GetCount()); }
    // NULL for an index out of range.
    CMFCPropertyGridProperty* GetSubItem(int nIndex) const;
    CMFCPropertyGridProperty* GetParent() const { return m_pParent; }
    // How many sub-items at all depths an unfolded property shows; with bIncludeHidden those that are not
    // shown (Show) count too. 0 for a folded one.
    int GetExpandedSubItems(BOOL bIncludeHidden = TRUE) const;
    // 0 for a property of the grid itself, 1 for its sub-items, ...
    int GetHierarchyLevel() const;

    // ---- State.
    BOOL IsGroup() const { return m_bGroup; }
    BOOL IsExpanded() const { return m_bExpanded; }
    void Expand(BOOL bExpand = TRUE);
    // Whether all properties that contain this one are unfolded.
    BOOL IsParentExpanded() const;
    void Show(BOOL bShow = TRUE, BOOL bAdjustLayout = TRUE);
    // FALSE also when a property that contains this one is not shown.
    BOOL IsVisible() const;
    // A disabled property is grey and cannot be edited.
    void Enable(BOOL bEnable = TRUE);
    BOOL IsEnabled() const { return m_bEnabled; }
    // Forbids typing. With options the value can still be chosen, without them the property is read-only.
    void AllowEdit(BOOL bAllow = TRUE);
    BOOL IsAllowEdit() const { return m_bAllowEdit; }
    virtual BOOL IsSelected() const;
    BOOL IsInPlaceEditing() const { return m_pWndInPlace != NULL; }

    // ---- Value.
    virtual const _variant_t& GetValue() const { return m_varValue; }
    // Takes a value of the property's own type; one of another type is refused and changes nothing. An open
    // editor shows the new value. The owner is not told.
    virtual void SetValue(const _variant_t& varValue);
    // The value at construction or the one given here; ResetOriginalValue returns to it.
    const COleVariant& GetOriginalValue() const { return m_varValueOrig; }
    virtual void SetOriginalValue(const COleVariant& varValue);
    virtual void ResetOriginalValue();
    // Whether the value, or a sub-item's of a value list, differs from the original one.
    BOOL IsModified() const;
    // The value as the text that is shown and edited.
    virtual CString FormatProperty();

    // ---- Options: the texts of the drop-down list. AddOption refuses a text that is there when
    // bInsertUnique.
    BOOL AddOption(LPCTSTR lpszOption, BOOL bInsertUnique = TRUE);
    void RemoveAllOptions();
    int GetOptionCount() const { return static_cast<int>(m_lstOptions.GetCount()); }
    // NULL for an index out of range.
    LPCTSTR GetOption(int nIndex) const;

    // Adds a spin button to the editor of an integer property. With nMin < nMax the value is kept in that
    // range, both ends included.
    void EnableSpinControl(BOOL bEnable = TRUE, int nMin = 0, int nMax = 0);

    // ---- Place and drawing.
    // The row's rectangle, which may lie above or below the list area; empty when the property has no row.
    CRect GetRect() const;
    // This property for a point in its row, and then its part in *pnArea: ClickName, ClickValue or
    // ClickExpandBox; NULL for another point.
    CMFCPropertyGridProperty* HitTest(CPoint point, CMFCPropertyGridProperty::ClickArea* pnArea = NULL);
    void Redraw();
    // The text for a tool tip; the base gives the name, or value, when it is cut.
    virtual CString GetNameTooltip();
    virtual CString GetValueTooltip();
    virtual void OnDrawName(CDC* pDC, CRect rect);
    virtual void OnDrawValue(CDC* pDC, CRect rect);
    virtual void OnDrawExpandBox(CDC* pDC, CRect rectExpand);
    virtual void OnDrawButton(CDC* pDC, CRect rectButton);
    virtual void OnDrawDescription(CDC* pDC, CRect rect);

    // ---- What the user does. The grid calls these.
    // Opens the editor; lptClick is where the value was clicked, or NULL. FALSE when it cannot be edited.
    virtual BOOL OnEdit(LPPOINT lptClick);
    // Takes the text of the editor as the value and, when that changes it, tells the grid. FALSE keeps the
    // editor open; the base returns TRUE and leaves the value alone when the text is no value.
    virtual BOOL OnUpdateValue();
    // Closes the editor. FALSE keeps it open.
    virtual BOOL OnEndEdit();
    // The button was clicked, or the drop-down list asked for with the keyboard.
    virtual void OnClickButton(CPoint point);
    virtual void OnClickName(CPoint) {}
    // TRUE when the click needs nothing more: the base returns FALSE and the grid opens the editor.
    virtual BOOL OnClickValue(UINT uiMsg, CPoint point);
    virtual void OnRClickName(CPoint) {}
    virtual void OnRClickValue(CPoint, BOOL) {}
    // Chooses the next option, or turns the flag over. FALSE when there is nothing to choose.
    virtual BOOL OnDblClk(CPoint point);
    // The user typed a character with the property selected: opens the editor with it, or chooses the next
    // option that begins with it. FALSE when the character means nothing here.
    virtual BOOL PushChar(UINT nChar);
    virtual void OnSelectCombo();
    virtual void OnCloseCombo();
    virtual void OnSetSelection(CMFCPropertyGridProperty*) {}
    virtual void OnKillSelection(CMFCPropertyGridProperty*) {}
    virtual void OnPosSizeChanged(CRect rectNew);
    // TRUE when the property set the cursor for the value.
    virtual BOOL OnSetCursor() const { return FALSE; }
    // Creates the editor, a heap object that the property owns; with bDefaultFormat set to TRUE it gets the
    // property's text.
    virtual CWnd* CreateInPlaceEdit(CRect rectEdit, BOOL& bDefaultFormat);
    virtual CSpinButtonCtrl* CreateSpinControl(CRect rectSpin);
    // Narrows rectEdit, the value's rectangle, by what stands beside the editor.
    virtual void AdjustInPlaceEditRect(CRect& rectEdit, CRect& rectSpin);
    // Sets m_rectButton.
    virtual void AdjustButtonRect();

    // The printf formats of numbers.
    static CString m_strFormatShort;
    static CString m_strFormatLong;
    static CString m_strFormatFloat;
    static CString m_strFormatDouble;

protected:
    // Creates the combo box whose list drops down; the options are added afterwards.
    virtual CComboBox* CreateCombo(CWnd* pWndParent, CRect rect);
    virtual BOOL HasButton() const;
    virtual void OnDestroyWindow();
    virtual HBRUSH OnCtlColor(CDC* pDC, UINT nCtlColor);

    // Sets all members to their first values.
    void Init();
    // Whether pProp is among the sub-items, at any depth.
    BOOL IsSubItem(CMFCPropertyGridProperty* pProp) const;
    // Whether the property's own value differs from the original one.
    virtual BOOL IsValueChanged() const;
    // The focus left the editor for a window outside the grid: TRUE ends the editing.
    virtual BOOL OnKillFocus(CWnd*) { return TRUE; }

    // What published examples of derived properties use.
    CMFCPropertyGridCtrl* m_pWndList; // NULL while in no grid
    CMFCPropertyGridProperty* m_pParent;
    CList<CString, LPCTSTR> m_lstOptions;
    _variant_t m_varValue;
    BOOL m_bEnabled;
    BOOL m_bAllowEdit;
    BOOL m_bValueIsTruncated;
    CRect m_rectButton;
    CWnd* m_pWndInPlace;
    CComboBox* m_pWndCombo;

private:
    CMFCPropertyGridProperty(const CMFCPropertyGridProperty&) = delete;
    CMFCPropertyGridProperty& operator=(const CMFCPropertyGridProperty&) = delete;

    // Whether there is a value beside the name: not for a plain group.
    BOOL HasValueField() const;
    // Reads a text into the value, keeping its type. FALSE when the text is no such value.
    BOOL TextToVar(const CString& strText);
    void SetOwnerList(CMFCPropertyGridCtrl* pWndList);
    BOOL Contains(const CMFCPropertyGridProperty* pProp) const;
    void LeaveOwner();
    void ForgetSubItem(const CMFCPropertyGridProperty* pProp);
    void AdjustLayout();
    void RedrawWithParents();

    BOOL IsEditable() const;
    BOOL IsTypingAllowed() const;
    void CollectOptions(CStringArray& options) const;
    void ClampToRange();
    CString FormatValueList();
    BOOL ReadValueList(const CString& strText, int& nStart);
    void ChooseOption(const CString& strOption);
    BOOL ApplyText(const CString& strText);

    CRect ValueRect() const;
    ClickArea AreaAt(CPoint point) const;
    void PlaceEditors();
    void ShowText();
    void FillCombo();
    void DestroyEditors();

    CArray<CMFCPropertyGridProperty*, CMFCPropertyGridProperty*> m_lstSubItems;
    CString m_strName;
    CString m_strDescr;
    CString m_strEditMask;
    CString m_strEditTempl;
    CString m_strValidChars;
    COleVariant m_varValueOrig;
    DWORD_PTR m_dwData;
    BOOL m_bGroup;
    BOOL m_bIsValueList;
    BOOL m_bExpanded;
    BOOL m_bVisible;
    BOOL m_bNameIsTruncated;
    BOOL m_bHasSpin;
    int m_nMinValue;
    int m_nMaxValue;
    CSpinButtonCtrl* m_pWndSpin;
    int m_nRow; // index in the grid's visible rows, -1 for none
    PropertyGridWatch* m_pWatches;
};
