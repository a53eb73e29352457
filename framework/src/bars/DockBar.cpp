// DockBar: which bars it holds, and their places.
#include "bars/DockBar.h"

namespace quorfx
{

IMPLEMENT_DYNAMIC(DockBar, CControlBar)

BEGIN_MESSAGE_MAP(DockBar, CControlBar)
    ON_MESSAGE(WM_SIZEPARENT, &DockBar::OnSizeParent)
END_MESSAGE_MAP()

DockBar::~DockBar()
{
    DestroyWindow();
}

BOOL DockBar::Create(CFrameWnd& frame, UINT id, DWORD align)
{
    SetBorders(0, 0, 0, 0);
    BarAccess::Style(*this) = align;
    return CWnd::CreateEx(0, nullptr, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                          CRect(0, 0, 0, 0), &frame, id);
}

bool DockBar::Holds(const CControlBar* bar) const
{
    for (const DockRow& row : m_rows)
        for (const DockSlot& slot : row.slots)
            if (slot.bar == bar)
                return true;
    return false;
}

void DockBar::Forget(CControlBar* bar)
{
    for (DockRow& row : m_rows)
    {
        auto& slots = row.slots;
        slots.erase(std::remove_if(slots.begin(), slots.end(),
                                   [bar](const DockSlot& slot) { return slot.bar == bar; }),
                    slots.end());
    }
    m_rows.erase(
        std::remove_if(m_rows.begin(), m_rows.end(), [](const DockRow& row) { return row.slots.empty(); }),
        m_rows.end());
}

// Makes the bar's window a child that lies or stands as this edge wants it. Grippers part bars, not lines.
void DockBar::Adopt(CControlBar* bar)
{
    const DWORD own = BarAccess::Style(*this);
    DWORD style = bar->GetBarStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY | CBRS_BORDER_ANY | CBRS_FLOATING);
    style |= own & (CBRS_ALIGN_ANY | CBRS_FLOATING);
    bar->SetParent(this);
    bar->SetBarStyle(style);
}

void DockBar::InsertAt(CControlBar* bar, size_t row, int wanted)
{
    row = (std::min)(row, m_rows.size());
    if (row == m_rows.size())
        m_rows.emplace_back();
    DockSlot slot;
    slot.bar = bar;
    slot.wanted = wanted;
    auto& slots = m_rows[row].slots;
    const auto behind = std::find_if(slots.begin(), slots.end(),
                                     [wanted](const DockSlot& other) { return other.wanted > wanted; });
    slots.insert(behind, slot);
    Adopt(bar);
}

DockPlace DockBar::PlaceOf(const CControlBar* bar) const
{
    DockPlace place;
    for (size_t row = 0; row < m_rows.size(); ++row)
        for (const DockSlot& slot : m_rows[row].slots)
            if (slot.bar == bar)
                place = {row, m_rows[row].slots.size() == 1, slot.wanted};
    return place;
}

void DockBar::PutBack(CControlBar* bar, const DockPlace& place)
{
    const size_t row = (std::min)(place.row, m_rows.size());
    if (place.isAlone)
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(row), DockRow());
    InsertAt(bar, row, place.wanted);
}

void DockBar::Insert(CControlBar* bar, LPCRECT screenRect)
{
    if (screenRect == nullptr)
    {
        InsertAt(bar, m_rows.size(), 0);
        return;
    }
    CRect rect(*screenRect);
    ScreenToClient(&rect);
    const bool horizontal = BarAccess::IsHorizontal(*this);
    const CPoint centre = rect.CenterPoint();
    // Where the bars are now is what the user sees.
    for (DockRow& row : m_rows)
        for (DockSlot& slot : row.slots)
            slot.wanted = horizontal ? slot.place.left : slot.place.top;
    const RowHit hit = HitRow(m_rows, horizontal, horizontal ? centre.y : centre.x);
    if (hit.isNew)
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(hit.row), DockRow());
    InsertAt(bar, hit.row, (std::max)(0, static_cast<int>(horizontal ? rect.left : rect.top)));
}

std::vector<DockRow> DockBar::VisibleRows(bool commits)
{
    const bool horizontal = BarAccess::IsHorizontal(*this);
    DWORD mode = commits ? LM_COMMIT : 0;
    if (BarAccess::Style(*this) & CBRS_FLOATING)
        mode |= horizontal ? LM_HORZ | LM_MRUWIDTH : 0;
    else
        mode |= horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
    std::vector<DockRow> rows;
    for (const DockRow& row : m_rows)
    {
        DockRow shown;
        for (const DockSlot& slot : row.slots)
        {
            if (!slot.bar->IsVisible())
                continue;
            shown.slots.push_back(slot);
            shown.slots.back().size = slot.bar->CalcDynamicLayout(-1, mode);
        }
        if (!shown.slots.empty())
            rows.push_back(shown);
    }
    return rows;
}

CSize DockBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    std::vector<DockRow> rows = VisibleRows(false);
    CSize size = PlaceRows(rows, bHorz != FALSE, INT_MAX / 2);
    if (bStretch && bHorz)
        size.cx = 32767;
    else if (bStretch)
        size.cy = 32767;
    return size;
}

void DockBar::PlaceBars(int length)
{
    std::vector<DockRow> rows = VisibleRows(true);
    PlaceRows(rows, BarAccess::IsHorizontal(*this), length);
    for (const DockRow& shown : rows)
    {
        for (const DockSlot& slot : shown.slots)
        {
            for (DockRow& row : m_rows)
                for (DockSlot& own : row.slots)
                    if (own.bar == slot.bar)
                        own.place = slot.place;
            slot.bar->SetWindowPos(nullptr, slot.place.left, slot.place.top, slot.place.Width(),
                                   slot.place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
}

LRESULT DockBar::OnSizeParent(WPARAM wParam, LPARAM lParam)
{
    const AFX_SIZEPARENTPARAMS& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const CRect room(layout.rect);
    BarAccess::SizeParent(*this, wParam, lParam);
    if (layout.hDWP != nullptr)
        PlaceBars(BarAccess::IsHorizontal(*this) ? room.Width() : room.Height());
    return 0;
}

DockBar* DockBarOf(const CControlBar& bar)
{
    DockBar* const parent = DYNAMIC_DOWNCAST(DockBar, bar.GetParent());
    return parent != nullptr && parent->Holds(&bar) ? parent : nullptr;
}

} // namespace quorfx
