// Workload: the property grid: filling it, looking properties up by title, painting few and many.
#include "Subjects.h"
#include "Workloads.h"

#include "propgrid/CMFCPropertyGridCtrlEx.h"

#include <memory>

namespace bench
{
namespace
{

constexpr int GroupNumber = 10;

CString TitleOf(int group, int item)
{
    CString title;
    title.Format(L"Property %d.%d", group, item);
    return title;
}

// A grid in a window, filled with groups of equal size.
class PropertySubject
{
public:
    explicit PropertySubject(CWnd& parent)
    {
        grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, ViewWidth, ViewHeight), &parent, 7);
    }

    CMFCPropertyGridCtrlEx& Grid() { return grid; }

    // Group by group into the living grid, as hosts do.
    void Fill(int itemsPerGroup)
    {
        for (int group = 0; group < GroupNumber; ++group)
        {
            CMFCPropertyGridProperty* owner = new CMFCPropertyGridProperty(TitleOf(group, -1));
            grid.AddProperty(owner);
            for (int item = 0; item < itemsPerGroup; ++item)
                owner->AddSubItem(
                    new CMFCPropertyGridProperty(TitleOf(group, item), _variant_t(CellText(item))));
        }
    }

    void Paint()
    {
        grid.Invalidate(FALSE);
        grid.UpdateWindow();
    }

private:
    CMFCPropertyGridCtrlEx grid;
};

void FillGrid(Report& report, Host& host, int itemsPerGroup)
{
    PropertySubject subject(host);
    const double ours = MedianMs(
        [&] {
            subject.Fill(itemsPerGroup);
            subject.Paint();
        },
        [&] { subject.Grid().RemoveAll(); });
    std::vector<std::unique_ptr<CMFCPropertyGridProperty>> bare;
    const double floor = MedianMs(
        [&] {
            for (int item = 0; item < GroupNumber * itemsPerGroup; ++item)
                bare.push_back(
                    std::make_unique<CMFCPropertyGridProperty>(TitleOf(0, item), _variant_t(CellText(item))));
        },
        [&] { bare.clear(); });
    report.Add(
        {"property grid: fill and paint", GroupNumber * itemsPerGroup, ours, "bare properties", floor});
}

// The last title of the last group: the longest way.
void LookUpByTitle(Report& report, Host& host, int itemsPerGroup)
{
    constexpr int LookUps = 100;
    PropertySubject subject(host);
    subject.Fill(itemsPerGroup);
    const CString title = TitleOf(GroupNumber - 1, itemsPerGroup - 1);
    const double ours = MedianMs([&] {
        for (int i = 0; i < LookUps; ++i)
        {
            CMFCPropertyGridProperty* found = nullptr;
            subject.Grid().GetItemByTitle(found, title);
        }
    });
    std::vector<std::wstring> titles;
    for (int group = 0; group < GroupNumber; ++group)
        for (int item = 0; item < itemsPerGroup; ++item)
            titles.emplace_back(TitleOf(group, item).GetString());
    volatile size_t position = 0;
    const double floor = MedianMs([&] {
        for (int i = 0; i < LookUps; ++i)
            for (size_t at = 0; at < titles.size(); ++at)
                if (std::wcscmp(titles[at].c_str(), title) == 0)
                    position = at;
    });
    report.Add({"property grid: 100 look-ups by title", GroupNumber * itemsPerGroup, ours,
                "vector of wstring", floor});
}

// Few and many properties in turn, so that both meet the same machine.
void PaintFewAndMany(Report& report, Host& host)
{
    constexpr int Few = 10;
    constexpr int Many = 1000;
    constexpr int Paints = 20;
    constexpr int Runs = 15;
    PropertySubject few(host);
    PropertySubject many(host);
    few.Fill(Few);
    many.Fill(Many);
    const auto paint = [](PropertySubject& subject) {
        subject.Grid().BringWindowToTop();
        subject.Paint();
        return TimeMs([&] {
            for (int i = 0; i < Paints; ++i)
                subject.Paint();
        });
    };
    std::vector<double> fewTimes;
    std::vector<double> manyTimes;
    for (int run = 0; run < Runs; ++run)
    {
        fewTimes.push_back(paint(few));
        manyTimes.push_back(paint(many));
    }
    std::sort(fewTimes.begin(), fewTimes.end());
    std::sort(manyTimes.begin(), manyTimes.end());
    report.Add({"property grid: 20 paints", GroupNumber * Many, manyTimes[Runs / 2], "with 100 properties",
                fewTimes[Runs / 2]});
}

double FillPropertiesMs(Host& host, long properties)
{
    PropertySubject subject(host);
    return TimeMs([&] {
        subject.Fill(static_cast<int>(properties / GroupNumber));
        subject.Paint();
    });
}

// The selection goes down by keys, each painted.
double PropertyKeyMs(Host& host, long properties)
{
    constexpr int Presses = 50;
    PropertySubject subject(host);
    subject.Fill(static_cast<int>(properties / GroupNumber));
    CMFCPropertyGridCtrlEx& grid = subject.Grid();
    grid.SetCurSel(grid.GetProperty(0)->GetSubItem(0), FALSE);
    grid.SetFocus();
    subject.Paint();
    return TimeMs([&] {
               for (int i = 0; i < Presses; ++i)
               {
                   grid.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
                   grid.UpdateWindow();
               }
           }) /
           Presses;
}

} // namespace

void RunPropGridGrowth(Report& report)
{
    Host host;
    AddGrowth(report, "property grid: fill and paint", 1000, 10000, Growth::Linear,
              [&](long properties) { return FillPropertiesMs(host, properties); });
    AddGrowth(report, "property grid: a key and a paint", 1000, 10000, Growth::Constant,
              [&](long properties) { return PropertyKeyMs(host, properties); });
}

void RunPropGrid(Report& report)
{
    Host host;
    for (int items : {10, 100, 1000})
        FillGrid(report, host, items);
    LookUpByTitle(report, host, 1000);
    PaintFewAndMany(report, host);
}

} // namespace bench
