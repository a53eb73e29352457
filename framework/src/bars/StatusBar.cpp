// CStatusBar: creation, panes, texts and the state of the indicators.
#include "bars/BarAccess.h"
#include "FrameworkAccess.h"
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
    ON_MESSAGE(SB_SETMINHEIGHT, &CStatusBar::OnSetMinHeight)
END_MESSAGE_MAP()

namespace
{

// The space on both sides of a text inside the borders of its pane.
constexpr int textMargin = 3;

// The part of a pane's style that is the control's drawing type.
int DrawingType(UINT style)
{
    return static_cast<int>(style & 0xff00);
}

} // namespace

CStatusBar::CStatusBar() : m_nMinHeight(0)
{
    SetBorders(0, 0, 0, 0);
}

CStatusBar::~CStatusBar()
{
    DestroyWindow();
}

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID)
{
    quorfx::EnsureCommonControls();
    if (pParentWnd->GetStyle() & WS_THICKFRAME)
        dwCtrlStyle |= SBARS_SIZEGRIP;
    const DWORD placedByFrame = CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    return CreateBar(STATUSCLASSNAME, dwCtrlStyle | placedByFrame, dwStyle, pParentWnd, nID);
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const
{
    return *reinterpret_cast<CStatusBarCtrl*>(const_cast<CStatusBar*>(this));
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount)
{
    std::vector<Pane> panes(static_cast<size_t>(nIDCount));
    for (size_t index = 0; index < panes.size(); ++index)
    {
        Pane& pane = panes[index];
        pane.id = lpIDArray != nullptr ? lpIDArray[index] : 0;
        // An indicator without a text would never be seen.
        if (pane.id != 0 && !pane.text.LoadString(pane.id))
        {
            TRACE(_T("Status bar: the string of an indicator is missing.\n"));
            return FALSE;
        }
        if (pane.id != 0)
            MeasureText(pane);
        else
            pane.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
    }
    if (lpIDArray != nullptr && !panes.empty())
        panes.front().style |= SBPS_STRETCH | SBPS_NOBORDERS;
    m_panes.swap(panes);
    m_nCount = nIDCount;
    PlacePanes();
    for (int index = 0; index < nIDCount; ++index)
        ShowPane(index);
    return TRUE;
}

void CStatusBar::MeasureText(Pane& pane) const
{
    CClientDC dc(const_cast<CStatusBar*>(this));
    CFont* const font = GetFont();
    CFont* const before = font != nullptr ? dc.SelectObject(font) : nullptr;
    pane.width = dc.GetTextExtent(pane.text).cx;
    if (before != nullptr)
        dc.SelectObject(before);
}

// Sets the right edges: each pane takes its width, and the one that stretches what is left.
void CStatusBar::PlacePanes()
{
    if (m_panes.empty() || m_hWnd == nullptr)
        return;
    int horizontal = 0, vertical = 0, spacing = 0;
    GetStatusBarCtrl().GetBorders(horizontal, vertical, spacing);
    CRect client;
    GetClientRect(&client);
    int rest = client.Width() - horizontal;
    if ((GetStyle() & SBARS_SIZEGRIP) && !GetTopLevelParent()->IsZoomed())
        rest -= ::GetSystemMetrics(SM_CXVSCROLL);
    const int around = 2 * textMargin + spacing;
    for (const Pane& pane : m_panes)
        rest -= pane.width + around;
    std::vector<int> edges;
    int edge = horizontal;
    for (const Pane& pane : m_panes)
    {
        edge += pane.width + around;
        if (pane.style & SBPS_STRETCH)
            edge += (std::max)(rest, -pane.width);
        edges.push_back(edge);
    }
    GetStatusBarCtrl().SetParts(static_cast<int>(edges.size()), edges.data());
}

void CStatusBar::ShowPane(int nIndex)
{
    Pane& pane = m_panes[static_cast<size_t>(nIndex)];
    pane.isDirty = false;
    const bool isShown = (pane.style & SBPS_DISABLED) == 0;
    GetStatusBarCtrl().SetText(isShown ? pane.text.GetString() : _T(""), nIndex, DrawingType(pane.style));
}

int CStatusBar::CommandToIndex(UINT nIDFind) const
{
    for (size_t index = 0; index < m_panes.size(); ++index)
        if (m_panes[index].id == nIDFind)
            return static_cast<int>(index);
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const
{
    return m_panes.at(static_cast<size_t>(nIndex)).id;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    if (!GetStatusBarCtrl().GetRect(nIndex, lpRect))
        ::SetRectEmpty(lpRect);
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const
{
    const Pane& pane = m_panes.at(static_cast<size_t>(nIndex));
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth)
{
    Pane& pane = m_panes.at(static_cast<size_t>(nIndex));
    pane.id = nID;
    const bool moves = pane.width != cxWidth || ((pane.style ^ nStyle) & SBPS_STRETCH);
    const bool looksDifferent = pane.style != nStyle;
    pane.style = nStyle;
    pane.width = cxWidth;
    if (moves)
        PlacePanes();
    if (looksDifferent || pane.isDirty)
        ShowPane(nIndex);
}

UINT CStatusBar::GetPaneStyle(int nIndex) const
{
    return m_panes.at(static_cast<size_t>(nIndex)).style;
}

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle)
{
    const Pane pane = m_panes.at(static_cast<size_t>(nIndex));
    SetPaneInfo(nIndex, pane.id, nStyle, pane.width);
}

CString CStatusBar::GetPaneText(int nIndex) const
{
    return m_panes.at(static_cast<size_t>(nIndex)).text;
}

void CStatusBar::GetPaneText(int nIndex, CString& rString) const
{
    rString = GetPaneText(nIndex);
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate)
{
    if (nIndex < 0 || static_cast<size_t>(nIndex) >= m_panes.size())
        return FALSE;
    Pane& pane = m_panes[static_cast<size_t>(nIndex)];
    if (pane.text == lpszNewText && !pane.isDirty)
        return TRUE;
    pane.text = lpszNewText;
    pane.isDirty = true;
    if (bUpdate)
        ShowPane(nIndex);
    return TRUE;
}

// The text of the window is that of the message line.
LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam)
{
    const int index = CommandToIndex(0);
    return index < 0 ? -1 : SetPaneText(index, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::OnGetText(WPARAM wParam, LPARAM lParam)
{
    const int size = static_cast<int>(wParam);
    LPTSTR const buffer = reinterpret_cast<LPTSTR>(lParam);
    if (size == 0)
        return 0;
    const int index = CommandToIndex(0);
    ::lstrcpyn(buffer, index < 0 ? _T("") : GetPaneText(index).GetString(), size);
    return ::lstrlen(buffer);
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM)
{
    const int index = CommandToIndex(0);
    return index < 0 ? 0 : GetPaneText(index).GetLength();
}

LRESULT CStatusBar::OnSetMinHeight(WPARAM wParam, LPARAM)
{
    m_nMinHeight = static_cast<int>(wParam);
    return Default();
}

void CStatusBar::OnSize(UINT nType, int cx, int cy)
{
    CControlBar::OnSize(nType, cx, cy);
    PlacePanes();
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL bHorz)
{
    int horizontal = 0, vertical = 0, spacing = 0;
    GetStatusBarCtrl().GetBorders(horizontal, vertical, spacing);
    CClientDC dc(this);
    CFont* const font = GetFont();
    CFont* const before = font != nullptr ? dc.SelectObject(font) : nullptr;
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    if (before != nullptr)
        dc.SelectObject(before);
    const int textHeight = static_cast<int>(metrics.tmHeight) + 2 * (vertical + textMargin);
    return AroundItems(CSize(32767, (std::max)(textHeight, m_nMinHeight)), bHorz, bHorz);
}

// The panes have borders of their own.
void CStatusBar::CalcInsideRect(CRect& rect, BOOL) const
{
    rect.DeflateRect(m_rectBorders.left, m_rectBorders.top, m_rectBorders.right, m_rectBorders.bottom);
}

void CStatusBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp)
{
    InsetClient(lpncsp);
}

void CStatusBar::OnNcPaint()
{
    PaintOutsideClient();
}

void CStatusBar::OnPaint()
{
    Default();
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE);
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return CControlBar::OnChildNotify(message, wParam, lParam, pResult) ||
           quorfx::DrawOwnItem(this, message, lParam);
}

namespace
{

// A pane, as update handlers see it.
class StatusPaneUI : public CCmdUI
{
public:
    void Enable(BOOL bOn) override
    {
        FrameworkAccess::EnableChanged(*this) = TRUE;
        Change(SBPS_DISABLED, !bOn);
    }
    void SetCheck(int nCheck) override { Change(SBPS_POPOUT, nCheck != 0); }
    void SetRadio(BOOL bOn) override { SetCheck(bOn ? 1 : 0); }
    void SetText(LPCTSTR lpszText) override { Bar().SetPaneText(Index(), lpszText); }

private:
    CStatusBar& Bar() const { return *static_cast<CStatusBar*>(m_pOther); }
    int Index() const { return static_cast<int>(m_nIndex); }
    void Change(UINT bits, bool sets)
    {
        const UINT style = Bar().GetPaneStyle(Index());
        Bar().SetPaneStyle(Index(), sets ? style | bits : style & ~bits);
    }
};

} // namespace

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler)
{
    StatusPaneUI state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(m_panes.size());
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        state.m_nID = m_panes[state.m_nIndex].id;
        // The bar itself may have a handler. Panes without one stay as they are.
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            continue;
        state.DoUpdate(pTarget, FALSE);
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
