// CToolBar: rows of buttons, painting, tool tips and the state of the buttons.
#include "bars/BarAccess.h"
#include "FrameworkAccess.h"

namespace
{

constexpr int unlimited = 32767;

// What the arrangement in rows needs to know of a button.
struct Item
{
    int width;
    bool isSeparator;
    bool isHidden;
    bool wraps;
};

// Lets rows end so that none is wider than width, before a separator where there is one; a row has one button
// at least.
void BreakRows(std::vector<Item>& items, int width)
{
    size_t rowStart = 0;
    size_t lastSeparator = 0;
    size_t last = 0; // the item before, hidden ones not counted
    int position = 0;
    for (size_t index = 0; index < items.size(); ++index)
    {
        Item& item = items[index];
        item.wraps = false;
        if (item.isHidden)
            continue;
        if (!item.isSeparator && position > 0 && position + item.width > width)
        {
            const size_t end = lastSeparator > rowStart ? lastSeparator : last;
            items[end].wraps = true;
            rowStart = end + 1;
            position = 0;
            for (size_t kept = rowStart; kept < index; ++kept)
                position += items[kept].isHidden ? 0 : items[kept].width;
        }
        if (item.isSeparator && position > 0)
            lastSeparator = index;
        position += item.width;
        last = index;
    }
}

class ToolBarRows
{
public:
    explicit ToolBarRows(CToolBarCtrl& control) : m_control(control)
    {
        const int count = control.GetButtonCount();
        for (int index = 0; index < count; ++index)
        {
            TBBUTTON button = {};
            control.GetButton(index, &button);
            CRect rect;
            control.GetItemRect(index, &rect);
            const bool isSeparator = (button.fsStyle & TBSTYLE_SEP) != 0;
            m_items.push_back({isSeparator ? button.iBitmap : rect.Width(), isSeparator,
                               (button.fsState & TBSTATE_HIDDEN) != 0, (button.fsState & TBSTATE_WRAP) != 0});
        }
    }

    std::vector<Item> Broken(int width) const
    {
        std::vector<Item> items = m_items;
        BreakRows(items, width);
        return items;
    }

    void Apply(const std::vector<Item>& items)
    {
        for (size_t index = 0; index < items.size(); ++index)
            if (items[index].wraps != m_items[index].wraps)
                SetWrap(static_cast<int>(index), items[index].wraps);
        m_items = items;
    }

    const std::vector<Item>& Items() const { return m_items; }

    // The size of all buttons as the control shows them. The separator at the end of a row is no part of it.
    CSize Measure() const
    {
        CSize size;
        for (size_t index = 0; index < m_items.size(); ++index)
        {
            CRect rect;
            const bool counts =
                !m_items[index].isHidden && !(m_items[index].isSeparator && m_items[index].wraps);
            if (!counts || !m_control.GetItemRect(static_cast<int>(index), &rect))
                continue;
            size.cx = (std::max)(size.cx, rect.right);
            size.cy = (std::max)(size.cy, rect.bottom);
        }
        return size;
    }

private:
    void SetWrap(int index, bool wraps)
    {
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_BYINDEX | TBIF_STATE;
        m_control.GetButtonInfo(index, &info);
        info.fsState = static_cast<BYTE>(wraps ? info.fsState | TBSTATE_WRAP : info.fsState & ~TBSTATE_WRAP);
        m_control.SetButtonInfo(index, &info);
    }

    CToolBarCtrl& m_control;
    std::vector<Item> m_items;
};

bool SameRows(const std::vector<Item>& left, const std::vector<Item>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Item& one, const Item& other) { return one.wraps == other.wraps; });
}

} // namespace

// The control itself tells how large its buttons are in rows: a layout that is only asked for is tried and
// taken back.
CSize CToolBar::LayOut(int nWidth, BOOL bCommit)
{
    ToolBarRows rows(GetToolBarCtrl());
    const std::vector<Item> before = rows.Items();
    const std::vector<Item> wanted = rows.Broken(nWidth);
    if (SameRows(before, wanted))
        return rows.Measure();
    if (!bCommit)
        SetRedraw(FALSE);
    rows.Apply(wanted);
    const CSize size = rows.Measure();
    if (!bCommit)
    {
        rows.Apply(before);
        SetRedraw(TRUE);
    }
    else
    {
        Invalidate();
    }
    return size;
}

// The width that the rows of a layout may have.
int CToolBar::WidthFor(int nLength, DWORD nMode)
{
    if (nLength == -1 && (nMode & LM_MRUWIDTH))
        return m_nMruWidth;
    if (nLength == -1 || (nMode & (LM_HORZDOCK | LM_VERTDOCK)))
        return nMode & LM_HORZ ? unlimited : 0;
    if (!(nMode & LM_LENGTHY))
        return nLength;
    // The least width that makes the bar low enough.
    const int whole = LayOut(unlimited, FALSE).cx;
    int width = m_sizeButton.cx;
    while (width < whole && LayOut(width, FALSE).cy > nLength)
        width += m_sizeButton.cx;
    return width;
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    return AroundItems(LayOut(bHorz ? unlimited : 0, FALSE), bStretch, bHorz);
}

CSize CToolBar::CalcDynamicLayout(int nLength, DWORD nMode)
{
    const BOOL horizontal = (nMode & LM_HORZ) != 0;
    CRect around(0, 0, 0, 0);
    CalcInsideRect(around, horizontal);
    int room = nLength;
    if (nLength != -1)
        room += nMode & LM_LENGTHY ? around.Height() : around.Width();
    const int width = WidthFor(nLength == -1 ? -1 : (std::max)(0, room), nMode);
    const BOOL commits = (nMode & LM_COMMIT) != 0;
    const CSize items = LayOut(width, commits);
    if (commits && !(nMode & (LM_HORZDOCK | LM_VERTDOCK)))
        m_nMruWidth = width;
    if (nMode & (LM_HORZDOCK | LM_VERTDOCK))
        return CalcFixedLayout(nMode & LM_STRETCH, horizontal);
    return AroundItems(items, nMode & LM_STRETCH, horizontal);
}

void CToolBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp)
{
    InsetClient(lpncsp);
}

// The borders are part of the bar: it is dragged by them.
LRESULT CToolBar::OnNcHitTest(CPoint)
{
    return HTCLIENT;
}

void CToolBar::OnNcPaint()
{
    PaintOutsideClient();
}

void CToolBar::OnPaint()
{
    Default();
}

BOOL CToolBar::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    pDC->FillRect(&client, CBrush::FromHandle(::GetSysColorBrush(COLOR_BTNFACE)));
    return TRUE;
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    // Controls in the bar are tools as well.
    const INT_PTR control = CWnd::OnToolHitTest(point, pTI);
    if (control != -1)
        return control;
    CRect client;
    GetClientRect(&client);
    const int index = client.PtInRect(point) ? GetToolBarCtrl().HitTest(&point) : -1;
    if (index < 0 || index >= GetToolBarCtrl().GetButtonCount())
        return -1;
    const UINT command = GetItemID(index);
    if (pTI != nullptr && pTI->cbSize >= sizeof(TOOLINFO))
    {
        pTI->hwnd = m_hWnd;
        pTI->uId = command;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        GetItemRect(index, &pTI->rect);
    }
    return command != 0 ? static_cast<INT_PTR>(command) : -1;
}

namespace
{

// A button, as update handlers see it.
class ToolBarButtonUI : public CCmdUI
{
public:
    void Enable(BOOL bOn) override
    {
        FrameworkAccess::EnableChanged(*this) = TRUE;
        // The bit of a disabled button is set in TBBS_ styles.
        UINT style = Bar().GetButtonStyle(Index()) & ~TBBS_DISABLED;
        if (!bOn)
        {
            style |= TBBS_DISABLED;
            // A button that is disabled while it is held comes up.
            style &= ~TBBS_PRESSED;
        }
        Bar().SetButtonStyle(Index(), style);
    }
    void SetCheck(int nCheck) override
    {
        UINT style = Bar().GetButtonStyle(Index()) & ~(TBBS_CHECKED | TBBS_INDETERMINATE);
        if (nCheck == 1)
            style |= TBBS_CHECKED;
        else if (nCheck == 2)
            style |= TBBS_INDETERMINATE;
        Bar().SetButtonStyle(Index(), style | TBBS_CHECKBOX);
    }
    void SetRadio(BOOL bOn) override { SetCheck(bOn ? 1 : 0); }
    // Buttons show images.
    void SetText(LPCTSTR) override {}

private:
    CToolBar& Bar() const { return *static_cast<CToolBar*>(m_pOther); }
    int Index() const { return static_cast<int>(m_nIndex); }
};

} // namespace

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler)
{
    ToolBarButtonUI state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(GetToolBarCtrl().GetButtonCount());
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        const TBBUTTON button = ButtonAt(static_cast<int>(state.m_nIndex));
        state.m_nID = static_cast<UINT>(button.idCommand);
        if (button.fsStyle & TBSTYLE_SEP)
            continue;
        // The bar itself may have a handler.
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            continue;
        state.DoUpdate(pTarget, bDisableIfNoHndler);
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
