// CMFCPropertyGridCtrl: its life, its properties and its settings.
#include "afxpropertygridctrl.h"
#include "propertygrid/CustomColor.h"
#include "propertygrid/PropertyGridMessages.h"
#include "propertygrid/PropertyGridWatch.h"

IMPLEMENT_DYNAMIC(CMFCHeaderCtrl, CHeaderCtrl)
IMPLEMENT_DYNAMIC(CMFCPropertyGridCtrl, CWnd)

UINT AFX_WM_PROPERTY_CHANGED = ::RegisterWindowMessage(_T("AFX_WM_PROPERTY_CHANGED"));

BEGIN_MESSAGE_MAP(CMFCPropertyGridCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_ENABLE()
    ON_WM_SYSCOLORCHANGE()
    ON_MESSAGE(WM_SETFONT, &CMFCPropertyGridCtrl::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CMFCPropertyGridCtrl::OnGetFont)
    ON_MESSAGE(FinishComboMessage, &CMFCPropertyGridCtrl::OnFinishCombo)
    ON_MESSAGE(FinishEditMessage, &CMFCPropertyGridCtrl::OnFinishEdit)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_CHAR()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_NCHITTEST()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_VSCROLL()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace
{

constexpr int FirstDescriptionRows = 3;

} // namespace

CMFCPropertyGridCtrl::CMFCPropertyGridCtrl()
    : m_pSel(nullptr),
      m_bRowsDirty(TRUE),
      m_bTerminalsDirty(TRUE),
      m_bLayoutDirty(TRUE),
      m_bInLayout(FALSE),
      m_bEndingEdit(FALSE),
      m_bComboAccepted(FALSE),
      m_bAlphabeticMode(FALSE),
      m_bHeaderCtrl(TRUE),
      m_bDescriptionArea(FALSE),
      m_bVSDotNetLook(FALSE),
      m_bGroupNameFullWidth(FALSE),
      m_bMarkModified(FALSE),
      m_bShowDragContext(FALSE),
      m_bAlwaysShowUserToolTip(FALSE),
      m_nDescrRows(FirstDescriptionRows),
      m_nRowHeight(0),
      m_nFirstRow(0),
      m_nLeftColumnWidth(-1),
      m_nLayoutWidth(0),
      m_nWheelRest(0),
      m_drag(DragNone),
      m_nDragOffset(0),
      m_nTrack(0),
      m_strTrue(_T("True")),
      m_strFalse(_T("False")),
      m_strLeftColumn(_T("Property")),
      m_strRightColumn(_T("Value")),
      m_cListDelimiter(_T(',')),
      m_clrBackground(SystemColor),
      m_clrText(SystemColor),
      m_clrGroupBackground(SystemColor),
      m_clrGroupText(SystemColor),
      m_clrDescriptionBackground(SystemColor),
      m_clrDescriptionText(SystemColor),
      m_clrLine(SystemColor),
      m_hFont(nullptr),
      m_pWatches(nullptr)
{
    EnableToolTips();
}

CMFCPropertyGridCtrl::~CMFCPropertyGridCtrl()
{
    DestroyWindow();
    PropertyGridWatch::TellAll(m_pWatches);
    DeleteAll();
}

BOOL CMFCPropertyGridCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), nullptr, nullptr);
    return CWnd::Create(windowClass, nullptr, dwStyle | WS_CHILD | WS_CLIPCHILDREN, rect, pParentWnd, nID);
}

void CMFCPropertyGridCtrl::PreSubclassWindow()
{
    Init();
    CWnd::PreSubclassWindow();
}

void CMFCPropertyGridCtrl::Init()
{
    UpdateFonts();
}

void CMFCPropertyGridCtrl::OnDestroy()
{
    PropertyGridWatch::TellAll(m_pWatches);
    EndDrag(FALSE);
    m_bEndingEdit = FALSE;
    m_bComboAccepted = FALSE;
    if (m_pSel != nullptr)
        m_pSel->OnDestroyWindow();
    m_bLayoutDirty = TRUE;
    CWnd::OnDestroy();
}

// ---- Properties.

int CMFCPropertyGridCtrl::AddProperty(CMFCPropertyGridProperty* pProp, BOOL bRedraw, BOOL bAdjustLayout)
{
    if (pProp == nullptr || pProp->m_pParent != nullptr || pProp->m_pWndList != nullptr)
        return -1;
    const INT_PTR index = m_lstProps.Add(pProp);
    pProp->SetOwnerList(this);
    m_bTerminalsDirty = TRUE;
    RowsChanged(bRedraw || bAdjustLayout);
    return static_cast<int>(index);
}

BOOL CMFCPropertyGridCtrl::DeleteProperty(CMFCPropertyGridProperty*& pProp, BOOL bRedraw, BOOL bAdjustLayout)
{
    if (pProp == nullptr || pProp->m_pWndList != this)
        return FALSE;
    delete pProp;
    pProp = nullptr;
    RowsChanged(bRedraw || bAdjustLayout);
    return TRUE;
}

void CMFCPropertyGridCtrl::RemoveAll()
{
    DeleteAll();
    RowsChanged(TRUE);
}

void CMFCPropertyGridCtrl::DeleteAll()
{
    if (m_pSel != nullptr)
        PropertyGone(m_pSel);
    // From the end, where an array forgets an element without moving others.
    while (!m_lstProps.IsEmpty())
        delete m_lstProps[m_lstProps.GetCount() - 1];
    m_rows.RemoveAll();
    m_terminals.RemoveAll();
}

// A property is taken out of the grid, with all in it.
void CMFCPropertyGridCtrl::PropertyGone(const CMFCPropertyGridProperty* pProp)
{
    if (m_pSel != nullptr && pProp->Contains(m_pSel))
    {
        CMFCPropertyGridProperty* const selected = m_pSel;
        selected->DestroyEditors();
        m_pSel = nullptr;
    }
    m_bTerminalsDirty = TRUE;
    RowsChanged(TRUE);
}

void CMFCPropertyGridCtrl::ForgetTopLevel(const CMFCPropertyGridProperty* pProp)
{
    for (INT_PTR i = m_lstProps.GetCount() - 1; i >= 0; --i)
    {
        if (m_lstProps[i] == pProp)
        {
            m_lstProps.RemoveAt(i);
            return;
        }
    }
}

CMFCPropertyGridProperty* CMFCPropertyGridCtrl::GetProperty(int nIndex) const
{
    return nIndex >= 0 && nIndex < GetPropertyCount() ? m_lstProps[nIndex] : nullptr;
}

namespace
{

CMFCPropertyGridProperty* FindData(CMFCPropertyGridProperty* prop, DWORD_PTR data, BOOL searchSubItems)
{
    if (prop->GetData() == data)
        return prop;
    for (int i = 0; searchSubItems && i < prop->GetSubItemsCount(); ++i)
        if (CMFCPropertyGridProperty* const found = FindData(prop->GetSubItem(i), data, TRUE))
            return found;
    return nullptr;
}

void ExpandWithSubItems(CMFCPropertyGridProperty& prop, BOOL expand)
{
    for (int i = 0; i < prop.GetSubItemsCount(); ++i)
        ExpandWithSubItems(*prop.GetSubItem(i), expand);
    if (prop.GetSubItemsCount() > 0)
        prop.Expand(expand);
}

} // namespace

CMFCPropertyGridProperty* CMFCPropertyGridCtrl::FindItemByData(DWORD_PTR dwData, BOOL bSearchSubProps) const
{
    for (INT_PTR i = 0; i < m_lstProps.GetCount(); ++i)
        if (CMFCPropertyGridProperty* const found = FindData(m_lstProps[i], dwData, bSearchSubProps))
            return found;
    return nullptr;
}

void CMFCPropertyGridCtrl::ExpandAll(BOOL bExpand)
{
    PropertyGridWatch self(m_pWatches);
    EndEditItem();
    for (INT_PTR i = 0; !self.IsGone() && i < m_lstProps.GetCount(); ++i)
        ExpandWithSubItems(*m_lstProps[i], bExpand);
}

void CMFCPropertyGridCtrl::ResetOriginalValues(BOOL bRedraw)
{
    for (INT_PTR i = 0; i < m_lstProps.GetCount(); ++i)
        m_lstProps[i]->ResetOriginalValue();
    if (bRedraw && m_hWnd != nullptr)
        Invalidate(FALSE);
}

// ---- Settings.

void CMFCPropertyGridCtrl::SetAlphabeticMode(BOOL bSet)
{
    m_bAlphabeticMode = bSet ? TRUE : FALSE;
    m_bTerminalsDirty = TRUE;
    AdjustLayout();
}

int CMFCPropertyGridCtrl::CompareProps(const CMFCPropertyGridProperty* pProp1,
                                       const CMFCPropertyGridProperty* pProp2) const
{
    return CString(pProp1->GetName()).CompareNoCase(pProp2->GetName());
}

void CMFCPropertyGridCtrl::EnableHeaderCtrl(BOOL bEnable, LPCTSTR lpszLeftColumn, LPCTSTR lpszRightColumn)
{
    m_bHeaderCtrl = bEnable ? TRUE : FALSE;
    m_strLeftColumn = lpszLeftColumn;
    m_strRightColumn = lpszRightColumn;
    if (m_wndHeader.GetSafeHwnd() != nullptr)
        InitHeader();
    AdjustLayout();
}

void CMFCPropertyGridCtrl::EnableDescriptionArea(BOOL bEnable)
{
    m_bDescriptionArea = bEnable ? TRUE : FALSE;
    AdjustLayout();
}

void CMFCPropertyGridCtrl::SetDescriptionRows(int nDescRows)
{
    m_nDescrRows = (std::max)(1, nDescRows);
    AdjustLayout();
}

void CMFCPropertyGridCtrl::SetVSDotNetLook(BOOL bSet)
{
    m_bVSDotNetLook = bSet ? TRUE : FALSE;
    AdjustLayout();
}

void CMFCPropertyGridCtrl::SetGroupNameFullWidth(BOOL bGroupNameFullWidth, BOOL bRedraw)
{
    m_bGroupNameFullWidth = bGroupNameFullWidth ? TRUE : FALSE;
    if (bRedraw)
        AdjustLayout();
}

void CMFCPropertyGridCtrl::MarkModifiedProperties(BOOL bMark, BOOL bRedraw)
{
    m_bMarkModified = bMark ? TRUE : FALSE;
    if (bRedraw)
        AdjustLayout();
}

void CMFCPropertyGridCtrl::SetBoolLabels(LPCTSTR lpszTrue, LPCTSTR lpszFalse)
{
    m_strTrue = lpszTrue;
    m_strFalse = lpszFalse;
    AdjustLayout();
}

void CMFCPropertyGridCtrl::SetListDelimiter(TCHAR c)
{
    m_cListDelimiter = c;
    AdjustLayout();
}

void CMFCPropertyGridCtrl::SetCustomColors(COLORREF clrBackground, COLORREF clrText,
                                           COLORREF clrGroupBackground, COLORREF clrGroupText,
                                           COLORREF clrDescriptionBackground, COLORREF clrDescriptionText,
                                           COLORREF clrLine)
{
    m_clrBackground = clrBackground;
    m_clrText = clrText;
    m_clrGroupBackground = clrGroupBackground;
    m_clrGroupText = clrGroupText;
    m_clrDescriptionBackground = clrDescriptionBackground;
    m_clrDescriptionText = clrDescriptionText;
    m_clrLine = clrLine;
    m_brushBackground.DeleteObject();
    if (m_hWnd != nullptr)
        Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::GetCustomColors(COLORREF& clrBackground, COLORREF& clrText,
                                           COLORREF& clrGroupBackground, COLORREF& clrGroupText,
                                           COLORREF& clrDescriptionBackground, COLORREF& clrDescriptionText,
                                           COLORREF& clrLine)
{
    clrBackground = m_clrBackground;
    clrText = m_clrText;
    clrGroupBackground = m_clrGroupBackground;
    clrGroupText = m_clrGroupText;
    clrDescriptionBackground = m_clrDescriptionBackground;
    clrDescriptionText = m_clrDescriptionText;
    clrLine = m_clrLine;
}

void CMFCPropertyGridCtrl::OnPropertyChanged(CMFCPropertyGridProperty* pProp) const
{
    CWnd* const owner = m_hWnd == nullptr ? nullptr : GetOwner();
    if (owner != nullptr)
        owner->SendMessage(AFX_WM_PROPERTY_CHANGED, static_cast<WPARAM>(GetDlgCtrlID()),
                           reinterpret_cast<LPARAM>(pProp));
}
