// CSplitterWnd: creation, panes, sizes and activation.
#include "bars/BarAccess.h"
#include "bars/SplitterGeometry.h"
#include "bars/FrameMessages.h"

using namespace quorfx;

IMPLEMENT_DYNAMIC(CSplitterWnd, CWnd)

BEGIN_MESSAGE_MAP(CSplitterWnd, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_CANCELMODE()
    ON_WM_KEYDOWN()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_MESSAGE(WM_INITIALUPDATE, &CSplitterWnd::OnInitialUpdate)
END_MESSAGE_MAP()

CSplitterWnd::CSplitterWnd()
    : m_pDynamicViewClass(nullptr),
      m_nMaxRows(0),
      m_nMaxCols(0),
      m_nRows(0),
      m_nCols(0),
      m_dwScrollStyle(0),
      m_bTracking(FALSE),
      m_hWndFocusBefore(nullptr)
{
}

CSplitterWnd::~CSplitterWnd()
{
    DestroyWindow();
}

BOOL CSplitterWnd::Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin,
                          CCreateContext* pContext, DWORD dwStyle, UINT nID)
{
    ASSERT(pContext != nullptr && pContext->m_pNewViewClass != nullptr);
    ASSERT(nMaxRows >= 1 && nMaxRows <= 2 && nMaxCols >= 1 && nMaxCols <= 2);
    m_pDynamicViewClass = pContext->m_pNewViewClass;
    m_nMaxRows = nMaxRows;
    m_nMaxCols = nMaxCols;
    m_nRows = m_nCols = 1;
    if (!CreateCommon(pParentWnd, 1, 1, sizeMin, dwStyle, nID))
        return FALSE;
    if (!CreateView(0, 0, m_pDynamicViewClass, sizeMin, pContext))
    {
        DestroyWindow();
        return FALSE;
    }
    RecalcLayout();
    return TRUE;
}

BOOL CSplitterWnd::CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle, UINT nID)
{
    ASSERT(nRows >= 1 && nRows <= 16 && nCols >= 1 && nCols <= 16);
    ASSERT(!(dwStyle & SPLS_DYNAMIC_SPLIT));
    m_nMaxRows = nRows;
    m_nMaxCols = nCols;
    return CreateCommon(pParentWnd, nRows, nCols, CSize(0, 0), dwStyle, nID);
}

BOOL CSplitterWnd::CreateCommon(CWnd* pParentWnd, int nRows, int nCols, SIZE sizeMin, DWORD dwStyle, UINT nID)
{
    m_nRows = nRows;
    m_nCols = nCols;
    m_rows.assign(static_cast<size_t>(m_nMaxRows), {sizeMin.cy, sizeMin.cy, 0});
    m_columns.assign(static_cast<size_t>(m_nMaxCols), {sizeMin.cx, sizeMin.cx, 0});
    // The scroll bars are controls, not parts of the window.
    const DWORD windowStyle = dwStyle & ~static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL | WS_BORDER);
    const LPCTSTR className = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CWnd::CreateEx(0, className, nullptr, windowStyle | WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                        pParentWnd, nID))
        return FALSE;
    SetScrollStyle(dwStyle);
    return TRUE;
}

namespace
{

// Where the views that a splitter creates find what they show when nobody else says it.
struct ViewContext : CCreateContext
{
    explicit ViewContext(CView* like)
    {
        m_pLastView = like;
        m_pCurrentDoc = like != nullptr ? like->GetDocument() : nullptr;
        m_pCurrentFrame = like != nullptr ? like->GetParentFrame() : nullptr;
        m_pNewViewClass = like != nullptr ? like->GetRuntimeClass() : nullptr;
    }
};

} // namespace

CCreateContext CSplitterWnd::ContextOfActivePane()
{
    return ViewContext(DYNAMIC_DOWNCAST(CView, GetActivePane()));
}

BOOL CSplitterWnd::CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit,
                              CCreateContext* pContext)
{
    ASSERT(row >= 0 && row < m_nRows && col >= 0 && col < m_nCols);
    if (GetDlgItem(IdFromRowCol(row, col)) != nullptr)
    {
        TRACE(_T("Splitter: the pane exists already.\n"));
        return FALSE;
    }
    m_rows[static_cast<size_t>(row)].ideal = sizeInit.cy;
    m_columns[static_cast<size_t>(col)].ideal = sizeInit.cx;
    CCreateContext own = ContextOfActivePane();
    const bool updates = pContext == nullptr;
    CObject* const object = pViewClass->CreateObject();
    CWnd* const pane = DYNAMIC_DOWNCAST(CWnd, object);
    if (pane == nullptr)
    {
        delete object;
        return FALSE;
    }
    // The splitter draws the border. A view that cannot be created deletes itself.
    const DWORD style = defaultViewStyle & ~static_cast<DWORD>(WS_BORDER);
    if (!pane->Create(nullptr, nullptr, style, CRect(CPoint(0, 0), CSize(sizeInit)), this,
                      static_cast<UINT>(IdFromRowCol(row, col)), updates ? &own : pContext))
        return FALSE;
    // With a context, whoever made it sends the update to all windows.
    if (updates)
        pane->SendMessage(WM_INITIALUPDATE);
    return TRUE;
}

int CSplitterWnd::IdFromRowCol(int row, int col) const
{
    return AFX_IDW_PANE_FIRST + row * 16 + col;
}

CWnd* CSplitterWnd::GetPane(int row, int col) const
{
    return GetDlgItem(IdFromRowCol(row, col));
}

BOOL CSplitterWnd::IsChildPane(CWnd* pWnd, int* pRow, int* pCol)
{
    if (pWnd->GetSafeHwnd() == nullptr || ::GetParent(pWnd->m_hWnd) != m_hWnd)
        return FALSE;
    const int index = pWnd->GetDlgCtrlID() - AFX_IDW_PANE_FIRST;
    if (index < 0 || index / 16 >= m_nRows || index % 16 >= m_nCols)
        return FALSE;
    if (pRow != nullptr)
        *pRow = index / 16;
    if (pCol != nullptr)
        *pCol = index % 16;
    return TRUE;
}

void CSplitterWnd::GetRowInfo(int row, int& cyCur, int& cyMin) const
{
    cyCur = m_rows.at(static_cast<size_t>(row)).current;
    cyMin = m_rows.at(static_cast<size_t>(row)).least;
}

void CSplitterWnd::SetRowInfo(int row, int cyIdeal, int cyMin)
{
    m_rows.at(static_cast<size_t>(row)).ideal = cyIdeal;
    m_rows.at(static_cast<size_t>(row)).least = cyMin;
}

void CSplitterWnd::GetColumnInfo(int col, int& cxCur, int& cxMin) const
{
    cxCur = m_columns.at(static_cast<size_t>(col)).current;
    cxMin = m_columns.at(static_cast<size_t>(col)).least;
}

void CSplitterWnd::SetColumnInfo(int col, int cxIdeal, int cxMin)
{
    m_columns.at(static_cast<size_t>(col)).ideal = cxIdeal;
    m_columns.at(static_cast<size_t>(col)).least = cxMin;
}

CWnd* CSplitterWnd::GetActivePane(int* pRow, int* pCol)
{
    CFrameWnd* const frame = GetParentFrame();
    CWnd* pane = frame != nullptr ? frame->GetActiveView() : nullptr;
    if (pane == nullptr)
        pane = GetFocus();
    return pane != nullptr && IsChildPane(pane, pRow, pCol) ? pane : nullptr;
}

void CSplitterWnd::SetActivePane(int row, int col, CWnd* pWnd)
{
    CWnd* const pane = pWnd != nullptr ? pWnd : GetPane(row, col);
    CFrameWnd* const frame = GetParentFrame();
    CView* const view = DYNAMIC_DOWNCAST(CView, pane);
    if (view != nullptr && frame != nullptr)
        frame->SetActiveView(view);
    else if (pane != nullptr)
        pane->SetFocus();
}

BOOL CSplitterWnd::CanActivateNext(BOOL)
{
    return GetActivePane() != nullptr && m_nRows * m_nCols > 1;
}

void CSplitterWnd::ActivateNext(BOOL bPrev)
{
    int row = 0, col = 0;
    if (GetActivePane(&row, &col) == nullptr)
        return;
    const int count = m_nRows * m_nCols;
    const int next = (row * m_nCols + col + (bPrev ? count - 1 : 1)) % count;
    SetActivePane(next / m_nCols, next % m_nCols);
}

// Commands of the controls in panes are the frame's.
BOOL CSplitterWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return CWnd::OnCommand(wParam, lParam) || GetParent()->SendMessage(WM_COMMAND, wParam, lParam) != 0;
}

BOOL CSplitterWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (CWnd::OnNotify(wParam, lParam, pResult))
        return TRUE;
    *pResult = GetParent()->SendMessage(WM_NOTIFY, wParam, lParam);
    return TRUE;
}

LRESULT CSplitterWnd::OnInitialUpdate(WPARAM, LPARAM)
{
    RecalcLayout();
    return 0;
}

void CSplitterWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED && cx > 0 && cy > 0)
        RecalcLayout();
}
