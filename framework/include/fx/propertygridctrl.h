// CMFCPropertyGridCtrl: a list of named values in groups that the user edits in place.
#pragma once

#include "fx/propertygridproperty.h"

// The header of a property grid.
class QFX_API CMFCHeaderCtrl : public CHeaderCtrl
{
    DECLARE_DYNAMIC(CMFCHeaderCtrl)
};

// Sent to the owner of a property grid after the user changed a value: the control id of the grid and the
// property. The owner may do anything then, also delete the property or destroy the grid. The result is
// ignored.
extern QFX_API UINT AFX_WM_PROPERTY_CHANGED;

// Shows properties in two columns, names and values, with a header above and, on demand, the description of
// the selected property below. The grid owns its properties. The user folds groups, moves the line between
// the columns and edits values in place; each change by the user is sent to the owner as
// AFX_WM_PROPERTY_CHANGED. Points and rectangles are in client coordinates, in pixels.
//
// Keys: Up, Down, Home, End, Page Up and Page Down select; Right and Left or plus and minus unfold and fold;
// Enter, F2 or a character open the editor; F4 or Alt+Down opens the drop-down list. A character that the
// selected property has no use for selects the next property that begins with it. In the editor Enter takes
// the value, Esc does not, Tab takes it and goes to the next property.
class QFX_API CMFCPropertyGridCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMFCPropertyGridCtrl)

    friend class CMFCPropertyGridProperty;

public:
    CMFCPropertyGridCtrl();
    ~CMFCPropertyGridCtrl() override;

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // ---- Properties.
    // Takes a property over and returns its index; -1, and nothing happens, for NULL and for one that has an
    // owner.
    int AddProperty(CMFCPropertyGridProperty* pProp, BOOL bRedraw = TRUE, BOOL bAdjustLayout = TRUE);
    // Deletes a property at any depth and sets the pointer to NULL; an open editor closes without effect.
    // FALSE for a property that is not in this grid.
    BOOL DeleteProperty(CMFCPropertyGridProperty*& pProp, BOOL bRedraw = TRUE, BOOL bAdjustLayout = TRUE);
    // Deletes all properties.
    void RemoveAll();
    int GetPropertyCount() const { return static_cast<int>(m_lstProps.GetCount()); }
    // A property of the first level; NULL for an index out of range.
    CMFCPropertyGridProperty* GetProperty(int nIndex) const;
    // The first property, group by group, with that data; NULL for none.
    CMFCPropertyGridProperty* FindItemByData(DWORD_PTR dwData, BOOL bSearchSubProps = TRUE) const;
    void ExpandAll(BOOL bExpand = TRUE);
    // Returns every property to its original value. The owner is not told.
    void ResetOriginalValues(BOOL bRedraw = TRUE);

    // ---- Selection and editing.
    CMFCPropertyGridProperty* GetCurSel() const { return m_pSel; }
    // Closes an open editor first, taking its value; when that is refused the selection stays. NULL selects
    // nothing.
    void SetCurSel(CMFCPropertyGridProperty* pProp, BOOL bRedraw = TRUE);
    // Scrolls the least that shows the property; bExpandParents unfolds what contains it first.
    void EnsureVisible(CMFCPropertyGridProperty* pProp, BOOL bExpandParents = FALSE);

    // ---- Look.
    // Alphabetic: all properties in one list, sorted by CompareProps, without the groups.
    void SetAlphabeticMode(BOOL bSet = TRUE);
    BOOL IsAlphabeticMode() const { return m_bAlphabeticMode; }
    void EnableHeaderCtrl(BOOL bEnable = TRUE, LPCTSTR lpszLeftColumn = _T("Property"),
                          LPCTSTR lpszRightColumn = _T("Value"));
    BOOL IsHeaderCtrl() const { return m_bHeaderCtrl; }
    // The description of the selected property, below the list; off at first.
    void EnableDescriptionArea(BOOL bEnable = TRUE);
    BOOL IsDescriptionArea() const { return m_bDescriptionArea; }
    void SetDescriptionRows(int nDescRows);
    int GetDescriptionRows() const { return m_nDescrRows; }
    // Pixels, 0 while the area is off.
    int GetDescriptionHeight() const;
    // Draws groups as bands, with the column of fold boxes in the groups' colour.
    void SetVSDotNetLook(BOOL bSet = TRUE);
    BOOL IsVSDotNetLook() const { return m_bVSDotNetLook; }
    // Draws the names of groups over both columns.
    void SetGroupNameFullWidth(BOOL bGroupNameFullWidth = TRUE, BOOL bRedraw = TRUE);
    BOOL IsGroupNameFullWidth() const { return m_bGroupNameFullWidth; }
    // Draws values that differ from their originals in bold.
    void MarkModifiedProperties(BOOL bMark = TRUE, BOOL bRedraw = TRUE);
    BOOL IsMarkModifiedProperties() const { return m_bMarkModified; }
    // Resizes the columns while their line is dragged, not only when it is released.
    void SetShowDragContext(BOOL bShow = TRUE) { m_bShowDragContext = bShow; }
    BOOL IsShowDragContext() const { return m_bShowDragContext; }
    // Shows the tool tips of GetNameTooltip and GetValueTooltip even where the text is not cut.
    void AlwaysShowUserToolTip(BOOL bShow = TRUE) { m_bAlwaysShowUserToolTip = bShow; }
    BOOL IsAlwaysShowUserToolTip() const { return m_bAlwaysShowUserToolTip; }
    // The texts of flags.
    void SetBoolLabels(LPCTSTR lpszTrue, LPCTSTR lpszFalse);
    // The character between the values of a value list.
    void SetListDelimiter(TCHAR c);
    // (COLORREF)-1 stands for the colour of the system.
    void SetCustomColors(COLORREF clrBackground, COLORREF clrText, COLORREF clrGroupBackground,
                         COLORREF clrGroupText, COLORREF clrDescriptionBackground,
                         COLORREF clrDescriptionText, COLORREF clrLine);
    void GetCustomColors(COLORREF& clrBackground, COLORREF& clrText, COLORREF& clrGroupBackground,
                         COLORREF& clrGroupText, COLORREF& clrDescriptionBackground,
                         COLORREF& clrDescriptionText, COLORREF& clrLine);
    COLORREF GetBkColor() const;
    COLORREF GetTextColor() const;
    CFont& GetBoldFont() { return m_fontBold; }

    // ---- Geometry.
    int GetRowHeight() const { return m_nRowHeight; }
    int GetHeaderHeight() const;
    // The width of the names, the column of fold boxes included.
    int GetLeftColumnWidth() const;
    // The width of the values.
    int GetPropertyColumnWidth() const;
    // The rows' part of the client area, without header, scroll bar and description.
    CRect GetListRect() const;
    virtual CMFCHeaderCtrl& GetHeaderCtrl() { return m_wndHeader; }
    CScrollBar* GetScrollBarCtrl(int nBar) const override;
    // The property under a point and, when pnArea is given, its part. Over the description: NULL and
    // ClickDescription, or with bPropsOnly just NULL.
    CMFCPropertyGridProperty* HitTest(CPoint pt, CMFCPropertyGridProperty::ClickArea* pnArea = NULL,
                                      BOOL bPropsOnly = FALSE) const;

    // Sets up the header when it is created.
    virtual void InitHeader();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

    // Sends AFX_WM_PROPERTY_CHANGED to the owner. Properties that change their value themselves call it.
    virtual void OnPropertyChanged(CMFCPropertyGridProperty* pProp) const;

protected:
    // Opens the editor of a property. FALSE when it cannot be edited.
    virtual BOOL EditItem(CMFCPropertyGridProperty* pProp, LPPOINT lptClick = NULL);
    // Closes the editor, taking its value when bUpdateData. FALSE when it stays open.
    virtual BOOL EndEditItem(BOOL bUpdateData = TRUE);
    // The order in alphabetic mode: negative, zero or positive; by name without regard to case.
    virtual int CompareProps(const CMFCPropertyGridProperty* pProp1,
                             const CMFCPropertyGridProperty* pProp2) const;
    // Prepares the control when it gets its window.
    virtual void Init();
    void PreSubclassWindow() override;
    // FALSE keeps the editor open.
    virtual BOOL ValidateItemData(CMFCPropertyGridProperty*) { return TRUE; }
    virtual void OnChangeSelection(CMFCPropertyGridProperty*, CMFCPropertyGridProperty*) {}
    virtual void OnClickButton(CPoint point);
    void OnSelectCombo();
    // Recomputes rows, areas and scroll bar; done with the next paint or question about a place.
    virtual void AdjustLayout();
    virtual void OnDrawBorder(CDC* pDC);
    virtual void OnDrawList(CDC* pDC);
    virtual void OnDrawDescription(CDC* pDC, CRect rect);
    // Draws one row; returns whether it did.
    virtual int OnDrawProperty(CDC* pDC, CMFCPropertyGridProperty* pProp) const;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnSysColorChange();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint screenPoint);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnNcHitTest(CPoint screenPoint);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    friend class PropertyInPlaceEdit;
    using Properties = CArray<CMFCPropertyGridProperty*, CMFCPropertyGridProperty*>;
    enum DragKind
    {
        DragNone,
        DragColumns,
        DragDescription
    };

    void OnCloseCombo();
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFinishCombo(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFinishEdit(WPARAM wParam, LPARAM lParam);

    void AddRowsOf(CMFCPropertyGridProperty& prop);
    void CollectTerminals(CMFCPropertyGridProperty& prop);
    void PrepareTerminals();
    void PrepareRows() const;
    void PrepareLayout() const;
    void PlaceChildren();
    void PlaceHeader(const CRect& rect);
    void PlaceScrollBar(const CRect& rect);
    void CreateChildren();
    void RowsChanged(BOOL bRedraw);
    void PropertyGone(const CMFCPropertyGridProperty* pProp);
    void ForgetTopLevel(const CMFCPropertyGridProperty* pProp);
    void KeepSelectionIn(CMFCPropertyGridProperty* pFolded);
    void DeleteAll();
    void UpdateFonts();

    int RowCount() const;
    int VisibleRows() const;
    CRect RowRect(int row) const;
    int RowOf(const CMFCPropertyGridProperty* pProp) const;
    CMFCPropertyGridProperty* PropertyOfRow(int row) const;
    BOOL ScrollTo(int firstRow);
    void SetColumnWidth(int width);
    void RedrawRow(int row);
    int IndentOf(const CMFCPropertyGridProperty& prop) const;
    COLORREF ColorOr(COLORREF custom, int systemColor) const;
    COLORREF LineColor() const;
    COLORREF GroupColor() const;
    void DrawTrackLine(CDC& dc);
    BOOL IsBand(const CMFCPropertyGridProperty& prop) const;
    BOOL IsWide(const CMFCPropertyGridProperty& prop) const;
    void DrawName(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& row) const;
    void DrawValue(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& row) const;
    void DrawRowBackground(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& rect) const;

    DragKind DragAt(CPoint point) const;
    void BeginDrag(DragKind kind, CPoint point);
    void Drag(CPoint point);
    void EndDrag(BOOL bApply);
    void InvalidateTrack();
    void ClickRow(CMFCPropertyGridProperty* pProp, CPoint point);

    BOOL Select(CMFCPropertyGridProperty* pProp, BOOL bRedraw);
    void SelectRow(int row);
    BOOL OnNavigationKey(UINT nChar);
    BOOL OnFoldKey(UINT nChar);
    BOOL FoldSelected(BOOL bExpand);
    void SelectByLetter(TCHAR letter);
    void OpenDropDown();
    BOOL OnEditorKey(const MSG& message);
    BOOL LeaveEditor(UINT nChar);
    BOOL OnComboKey(MSG& message);
    BOOL IsEditorMessage(const MSG& message) const;
    BOOL HasFocusInside(HWND hWndFocus) const;
    void EditorLostFocus(HWND hWndNewFocus);

    CMFCPropertyGridProperty* m_pSel;
    Properties m_lstProps;
    Properties m_rows;      // what is shown, from the top; valid unless m_bRowsDirty
    Properties m_terminals; // the sorted properties of alphabetic mode; valid unless m_bTerminalsDirty
    BOOL m_bRowsDirty;
    BOOL m_bTerminalsDirty;
    BOOL m_bLayoutDirty;
    BOOL m_bInLayout;
    BOOL m_bEndingEdit;
    BOOL m_bComboAccepted;

    BOOL m_bAlphabeticMode;
    BOOL m_bHeaderCtrl;
    BOOL m_bDescriptionArea;
    BOOL m_bVSDotNetLook;
    BOOL m_bGroupNameFullWidth;
    BOOL m_bMarkModified;
    BOOL m_bShowDragContext;
    BOOL m_bAlwaysShowUserToolTip;

    int m_nDescrRows;
    int m_nRowHeight;
    int m_nFirstRow;        // the topmost row
    int m_nLeftColumnWidth; // -1 until the first layout
    int m_nLayoutWidth;     // the client width that m_nLeftColumnWidth belongs to
    int m_nWheelRest;
    DragKind m_drag;
    int m_nDragOffset; // from the mouse to what is dragged
    int m_nTrack;      // where the dragged column line would go

    CString m_strTrue;
    CString m_strFalse;
    CString m_strLeftColumn;
    CString m_strRightColumn;
    TCHAR m_cListDelimiter;

    COLORREF m_clrBackground;
    COLORREF m_clrText;
    COLORREF m_clrGroupBackground;
    COLORREF m_clrGroupText;
    COLORREF m_clrDescriptionBackground;
    COLORREF m_clrDescriptionText;
    COLORREF m_clrLine;

    HFONT m_hFont; // the host's font; NULL for the own one
    CFont m_fontOwn;
    CFont m_fontBold;
    CBrush m_brushBackground;
    CMFCHeaderCtrl m_wndHeader;
    CScrollBar m_wndScroll;
    PropertyGridWatch* m_pWatches;
};
