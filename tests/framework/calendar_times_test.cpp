// CMonthCalCtrl and its data exchange: every kind of time that they take and give.
#include "tests/framework/DialogTemplateBuilder.h"
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <afxdtctl.h>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace quor::test
{
namespace
{

SYSTEMTIME Day(WORD year, WORD month, WORD day)
{
    SYSTEMTIME time = {};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    return time;
}

class CalendarTimes : public testing::Test
{
protected:
    void Make(DWORD style = 0)
    {
        ASSERT_TRUE(m_calendar.Create(WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 300, 200), &m_host, 1));
    }

    HostWindow m_host;
    CMonthCalCtrl m_calendar;
};

TEST_F(CalendarTimes, ADayIsChosenByAnyKindOfTime)
{
    Make();
    EXPECT_TRUE(m_calendar.IsKindOf(RUNTIME_CLASS(CMonthCalCtrl)));
    EXPECT_TRUE(m_calendar.SetCurSel(CTime(2024, 2, 28, 0, 0, 0)));
    COleDateTime chosen;
    EXPECT_TRUE(m_calendar.GetCurSel(chosen));
    EXPECT_EQ(chosen.GetDay(), 28);
    SYSTEMTIME leapDay = Day(2024, 2, 29);
    EXPECT_TRUE(m_calendar.SetCurSel(&leapDay));
    SYSTEMTIME read = {};
    EXPECT_TRUE(m_calendar.GetCurSel(&read));
    EXPECT_EQ(read.wDay, 29);
}

TEST_F(CalendarTimes, SeveralDaysAreChosenByAnyKindOfTime)
{
    Make(MCS_MULTISELECT);
    m_calendar.SetMaxSelCount(10);
    EXPECT_TRUE(m_calendar.SetSelRange(CTime(2024, 2, 3, 0, 0, 0), CTime(2024, 2, 5, 0, 0, 0)));
    COleDateTime first, last;
    EXPECT_TRUE(m_calendar.GetSelRange(first, last));
    EXPECT_EQ(first.GetDay(), 3);
    EXPECT_EQ(last.GetDay(), 5);
    SYSTEMTIME from = Day(2024, 2, 7);
    SYSTEMTIME to = Day(2024, 2, 9);
    EXPECT_TRUE(m_calendar.SetSelRange(&from, &to));
    SYSTEMTIME readFrom = {};
    SYSTEMTIME readTo = {};
    EXPECT_TRUE(m_calendar.GetSelRange(&readFrom, &readTo));
    EXPECT_EQ(readFrom.wDay, 7);
    EXPECT_EQ(readTo.wDay, 9);
    EXPECT_TRUE(m_calendar.GetSelRange(nullptr, &readTo)) << "one end is enough";
    EXPECT_FALSE(m_calendar.GetCurSel(first)) << "several days are no single one";
}

TEST_F(CalendarTimes, LimitsAreSetByAnyKindOfTime)
{
    Make();
    const COleDateTime low(2024, 1, 10, 0, 0, 0);
    const COleDateTime high(2024, 3, 20, 0, 0, 0);
    EXPECT_TRUE(m_calendar.SetRange(&low, &high));
    CTime readLow, readHigh;
    EXPECT_EQ(m_calendar.GetRange(&readLow, &readHigh), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(readLow.GetDay(), 10);
    EXPECT_EQ(readHigh.GetMonth(), 3);
    SYSTEMTIME from = Day(2024, 2, 1);
    EXPECT_TRUE(m_calendar.SetRange(&from, static_cast<LPSYSTEMTIME>(nullptr)));
    SYSTEMTIME systemLow = {};
    SYSTEMTIME systemHigh = {};
    EXPECT_EQ(m_calendar.GetRange(&systemLow, &systemHigh) & GDTR_MIN, static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(systemLow.wMonth, 2);
    EXPECT_EQ(systemLow.wDay, 1);
    SYSTEMTIME to = Day(2024, 2, 25);
    EXPECT_TRUE(m_calendar.SetRange(&from, &to));
    EXPECT_EQ(m_calendar.GetRange(static_cast<LPSYSTEMTIME>(nullptr), &systemHigh),
              static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(systemHigh.wDay, 25);
}

TEST_F(CalendarTimes, TheShownMonthIsToldByAnyKindOfTime)
{
    Make();
    m_calendar.SetCurSel(CTime(2023, 4, 5, 0, 0, 0));
    CTime first, last;
    EXPECT_GE(m_calendar.GetMonthRange(first, last, GMR_VISIBLE), 1);
    EXPECT_EQ(first.GetDay(), 1);
    SYSTEMTIME systemFirst = {};
    SYSTEMTIME systemLast = {};
    EXPECT_GE(m_calendar.GetMonthRange(&systemFirst, &systemLast, GMR_DAYSTATE), 1);
    EXPECT_LE(CTime(systemFirst), first) << "with the days of the month before";
}

TEST_F(CalendarTimes, TodayIsSetByATime)
{
    Make();
    const CTime day(2024, 2, 3, 0, 0, 0);
    m_calendar.SetToday(&day);
    COleDateTime today;
    EXPECT_TRUE(m_calendar.GetToday(today));
    EXPECT_EQ(today.GetYear(), 2024);
    EXPECT_EQ(today.GetDay(), 3);
}

TEST_F(CalendarTimes, WithoutATimeTheControlIsToldToGoBackToTheSystems)
{
    class Watched : public CMonthCalCtrl
    {
    public:
        std::vector<LPARAM> told;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == MCM_SETTODAY)
                told.push_back(lParam);
            return CMonthCalCtrl::WindowProc(message, wParam, lParam);
        }
    };
    Watched calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host, 2));
    calendar.SetToday(static_cast<const CTime*>(nullptr));
    EXPECT_EQ(calendar.told, std::vector<LPARAM>{0});
}

// Exchanges what the test says.
class ExchangeDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange;

protected:
    void DoDataExchange(CDataExchange* pDX) override { exchange(pDX); }
};

TEST(TimeExchange, AnyKindOfTimeGoesToTheControlsAndBack)
{
    DialogTemplateBuilder layout;
    layout.Add(DATETIMEPICK_CLASS, L"", 0, 101)
        .Add(MONTHCAL_CLASS, L"", 0, 102)
        .Add(DATETIMEPICK_CLASS, L"", 0, 103);
    HostWindow host;
    ExchangeDialog dialog;
    COleDateTime moment(2024, 2, 29, 13, 5, 9);
    CTime day(2023, 4, 5, 0, 0, 0);
    CString text = COleDateTime(2022, 6, 7, 0, 0, 0).Format(VAR_DATEVALUEONLY);
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_DateTimeCtrl(pDX, 101, moment);
        DDX_MonthCalCtrl(pDX, 102, day);
        DDX_DateTimeCtrl(pDX, 103, text);
    };
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), &host));
    COleDateTime shown;
    static_cast<CDateTimeCtrl*>(dialog.GetDlgItem(103))->GetTime(shown);
    EXPECT_EQ(shown.GetYear(), 2022);
    EXPECT_EQ(shown.GetDay(), 7);
    moment = COleDateTime();
    day = CTime();
    text.Empty();
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(moment == COleDateTime(2024, 2, 29, 13, 5, 9));
    EXPECT_EQ(day.GetYear(), 2023);
    EXPECT_EQ(day.GetDay(), 5);
    CString read;
    dialog.GetDlgItemText(103, read);
    EXPECT_FALSE(read.IsEmpty());
    EXPECT_STREQ(text, read) << "the text as it is shown";

    // What is no date leaves the control alone.
    text = L"not a date";
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    static_cast<CDateTimeCtrl*>(dialog.GetDlgItem(103))->GetTime(shown);
    EXPECT_EQ(shown.GetYear(), 2022);
    dialog.DestroyWindow();
}

TEST(PickerInfo, TellsTheState)
{
    HostWindow host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(WS_CHILD | WS_VISIBLE | DTS_SHOWNONE, CRect(0, 0, 150, 24), &host, 1));
    DATETIMEPICKERINFO info = {};
    EXPECT_TRUE(picker.GetDateTimePickerInfo(&info));
    EXPECT_EQ(info.cbSize, sizeof(DATETIMEPICKERINFO));
    EXPECT_TRUE(picker.IsKindOf(RUNTIME_CLASS(CDateTimeCtrl)));
}

} // namespace
} // namespace quor::test
