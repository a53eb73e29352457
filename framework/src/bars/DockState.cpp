// CDockState: the records about bars, and the members of CFrameWnd that make and use them.
#include "afxadv.h"
#include "bars/FloatFrame.h"
#include "bars/FrameBars.h"

IMPLEMENT_DYNAMIC(CDockState, CObject)

namespace
{

constexpr DWORD recordVersion = 1;

// Where a bar is. Members are ints, as the settings store them.
struct BarRecord
{
    int id = 0;
    int isVisible = TRUE;
    int isFloating = FALSE;
    int isHorizontal = TRUE;
    int dock = 0; // the dock bar, 0 for a bar that is not docked
    int row = 0;
    int wanted = 0; // along the row
    int floatX = 0; // in screen coordinates
    int floatY = 0;
    int width = 0; // the last one while it floated
};

struct Field
{
    LPCTSTR name;
    int BarRecord::*value;
};

const Field fields[] = {{_T("BarID"), &BarRecord::id},
                        {_T("Visible"), &BarRecord::isVisible},
                        {_T("Floating"), &BarRecord::isFloating},
                        {_T("Horz"), &BarRecord::isHorizontal},
                        {_T("Docking"), &BarRecord::dock},
                        {_T("Row"), &BarRecord::row},
                        {_T("Position"), &BarRecord::wanted},
                        {_T("XPos"), &BarRecord::floatX},
                        {_T("YPos"), &BarRecord::floatY},
                        {_T("MRUWidth"), &BarRecord::width}};

BarRecord& RecordAt(const CDockState& state, INT_PTR index)
{
    return *static_cast<BarRecord*>(state.m_arrBarInfo.GetAt(index));
}

CString SectionOfBar(LPCTSTR profileName, INT_PTR index)
{
    CString section;
    section.Format(_T("%s-Bar%d"), profileName, static_cast<int>(index));
    return section;
}

CString SummarySection(LPCTSTR profileName)
{
    return CString(profileName) + _T("-Summary");
}

} // namespace

CDockState::CDockState() {}

CDockState::~CDockState()
{
    Clear();
}

void CDockState::Clear()
{
    for (INT_PTR index = 0; index < m_arrBarInfo.GetSize(); ++index)
        delete &RecordAt(*this, index);
    m_arrBarInfo.RemoveAll();
}

DWORD CDockState::GetVersion()
{
    return recordVersion;
}

void CDockState::SaveState(LPCTSTR lpszProfileName)
{
    CWinApp* const application = AfxGetApp();
    const INT_PTR count = m_arrBarInfo.GetSize();
    for (INT_PTR index = 0; index < count; ++index)
    {
        const CString section = SectionOfBar(lpszProfileName, index);
        for (const Field& field : fields)
            application->WriteProfileInt(section, field.name, RecordAt(*this, index).*field.value);
    }
    const CString summary = SummarySection(lpszProfileName);
    application->WriteProfileInt(summary, _T("Version"), static_cast<int>(recordVersion));
    application->WriteProfileInt(summary, _T("Bars"), static_cast<int>(count));
}

void CDockState::LoadState(LPCTSTR lpszProfileName)
{
    Clear();
    CWinApp* const application = AfxGetApp();
    const CString summary = SummarySection(lpszProfileName);
    if (application->GetProfileInt(summary, _T("Version"), 0) != recordVersion)
        return;
    const int count = static_cast<int>(application->GetProfileInt(summary, _T("Bars"), 0));
    for (int index = 0; index < count; ++index)
    {
        BarRecord* const record = new BarRecord;
        const CString section = SectionOfBar(lpszProfileName, index);
        for (const Field& field : fields)
            record->*field.value =
                static_cast<int>(application->GetProfileInt(section, field.name, record->*field.value));
        m_arrBarInfo.Add(record);
    }
}

using quorfx::BarAccess;
using quorfx::DockBar;
using quorfx::FrameBars;

namespace
{

void FindInRows(const DockBar& dock, const CControlBar* bar, BarRecord& record)
{
    const auto& rows = dock.Rows();
    for (size_t row = 0; row < rows.size(); ++row)
    {
        for (const auto& slot : rows[row].slots)
        {
            if (slot.bar != bar)
                continue;
            record.row = static_cast<int>(row);
            record.wanted = slot.wanted;
        }
    }
}

BarRecord* MakeRecord(const FrameBars& bars, CControlBar& bar)
{
    BarRecord* const record = new BarRecord;
    record->id = bar.GetDlgCtrlID();
    record->isVisible = bar.IsVisible();
    record->isFloating = bar.IsFloating();
    record->isHorizontal = BarAccess::IsHorizontal(bar);
    record->width = BarAccess::MruWidth(bar);
    if (const quorfx::FloatFrame* const frame = bars.FloatOf(&bar))
    {
        const CPoint place = frame->Place();
        record->floatX = place.x;
        record->floatY = place.y;
    }
    else if (const DockBar* const dock = quorfx::DockBarOf(bar))
    {
        record->dock = dock->GetDlgCtrlID();
        FindInRows(*dock, &bar, *record);
    }
    return record;
}

// Records in the order in which their bars are put into rows.
std::vector<BarRecord> InOrder(const CDockState& state)
{
    std::vector<BarRecord> records;
    for (INT_PTR index = 0; index < state.m_arrBarInfo.GetSize(); ++index)
        records.push_back(RecordAt(state, index));
    std::stable_sort(records.begin(), records.end(), [](const BarRecord& left, const BarRecord& right) {
        return left.row != right.row ? left.row < right.row : left.wanted < right.wanted;
    });
    return records;
}

void PutBack(FrameBars& bars, CControlBar& bar, const BarRecord& record)
{
    BarAccess::MruWidth(bar) = record.width;
    if (record.isFloating)
        bars.FloatBar(&bar, CPoint(record.floatX, record.floatY),
                      record.isHorizontal ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
    else if (DockBar* const dock = bars.Dock(static_cast<UINT>(record.dock)))
        dock->InsertAt(&bar, static_cast<size_t>(record.row), record.wanted);
    bar.ShowWindow(record.isVisible ? SW_SHOWNA : SW_HIDE);
}

} // namespace

void CFrameWnd::GetDockState(CDockState& state) const
{
    state.Clear();
    const FrameBars* const bars = BarAccess::BarsIfAny(*this);
    if (bars == nullptr)
        return;
    for (CControlBar* bar : bars->Bars())
        if (DYNAMIC_DOWNCAST(DockBar, bar) == nullptr && bar->GetDlgCtrlID() != 0)
            state.m_arrBarInfo.Add(MakeRecord(*bars, *bar));
}

void CFrameWnd::SetDockState(const CDockState& state)
{
    FrameBars& bars = BarAccess::Bars(*this);
    const std::vector<BarRecord> records = InOrder(state);
    // All leave first: rows are numbered as they were without the bars of today.
    for (const BarRecord& record : records)
        if (CControlBar* const bar = bars.Find(static_cast<UINT>(record.id)))
            if (!record.isFloating && record.dock != 0)
                bars.TakeOut(bar);
    for (const BarRecord& record : records)
        if (CControlBar* const bar = bars.Find(static_cast<UINT>(record.id)))
            PutBack(bars, *bar, record);
    bars.CloseEmptyFloats();
    RecalcLayout();
}

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const
{
    CDockState state;
    GetDockState(state);
    state.SaveState(lpszProfileName);
}

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName)
{
    CDockState state;
    state.LoadState(lpszProfileName);
    SetDockState(state);
}
