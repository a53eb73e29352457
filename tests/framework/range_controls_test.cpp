// Progress bars, sliders, date-time pickers and calendars, against the platform's controls.
#include "tests/framework/DialogTemplateBuilder.h"
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <afxdtctl.h>
#include <gtest/gtest.h>

#include <functional>

namespace
{

using namespace quor::test;

TEST(ProgressWrapper, RangePositionAndSteps)
{
    HostWindow host;
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 20), &host, 1));
    int low = -1, high = -1;
    bar.GetRange(low, high);
    EXPECT_EQ(0, low);
    EXPECT_EQ(100, high);
    bar.SetRange(10, 50);
    bar.GetRange(low, high);
    EXPECT_EQ(10, low);
    EXPECT_EQ(50, high);
    bar.SetRange32(0, 100000);
    EXPECT_EQ(10, bar.SetPos(70000));
    EXPECT_EQ(70000, bar.OffsetPos(5));
    EXPECT_EQ(70005, bar.GetPos());
    EXPECT_EQ(10, bar.SetStep(20));
    EXPECT_EQ(20, bar.GetStep());
    EXPECT_EQ(70005, bar.StepIt());
    EXPECT_EQ(70025, bar.GetPos());
    bar.SetBarColor(RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), bar.GetBarColor());
    bar.SetBkColor(RGB(4, 5, 6));
    EXPECT_EQ(RGB(4, 5, 6), bar.GetBkColor());
    EXPECT_EQ(PBST_NORMAL, bar.GetState());
}

class SliderWrapper : public testing::Test
{
protected:
    SliderWrapper()
    {
        m_slider.Create(WS_CHILD | WS_VISIBLE | TBS_ENABLESELRANGE | TBS_FIXEDLENGTH, CRect(0, 0, 200, 40),
                        &m_host, 1);
    }

    HostWindow m_host;
    CSliderCtrl m_slider;
};

TEST_F(SliderWrapper, RangePositionAndSizes)
{
    m_slider.SetRange(-50, 70000, TRUE);
    int low = 0, high = 0;
    m_slider.GetRange(low, high);
    EXPECT_EQ(-50, low);
    EXPECT_EQ(70000, high);
    m_slider.SetRangeMax(100);
    m_slider.SetRangeMin(-100);
    EXPECT_EQ(100, m_slider.GetRangeMax());
    EXPECT_EQ(-100, m_slider.GetRangeMin());
    m_slider.SetPos(42);
    EXPECT_EQ(42, m_slider.GetPos());
    m_slider.SetPos(1000);
    EXPECT_EQ(100, m_slider.GetPos());
    m_slider.SetLineSize(3);
    EXPECT_EQ(3, m_slider.SetLineSize(4));
    EXPECT_EQ(4, m_slider.GetLineSize());
    m_slider.SetPageSize(30);
    EXPECT_EQ(30, m_slider.SetPageSize(40));
    EXPECT_EQ(40, m_slider.GetPageSize());
}

TEST_F(SliderWrapper, SelectionAndTicks)
{
    m_slider.SetRange(0, 10);
    m_slider.SetSelection(2, 7);
    int low = 0, high = 0;
    m_slider.GetSelection(low, high);
    EXPECT_EQ(2, low);
    EXPECT_EQ(7, high);
    m_slider.ClearSel();
    m_slider.GetSelection(low, high);
    EXPECT_EQ(low, high);
    m_slider.ClearTics();
    EXPECT_EQ(2u, m_slider.GetNumTics());
    EXPECT_TRUE(m_slider.SetTic(3));
    EXPECT_TRUE(m_slider.SetTic(6));
    EXPECT_EQ(4u, m_slider.GetNumTics());
    EXPECT_EQ(6, m_slider.GetTic(1));
    EXPECT_EQ(3u, m_slider.GetTicArray()[0]);
    CRect channel;
    m_slider.GetChannelRect(&channel);
    EXPECT_GT(m_slider.GetTicPos(1), m_slider.GetTicPos(0));
    EXPECT_LT(m_slider.GetTicPos(1), channel.right);
}

TEST_F(SliderWrapper, ThumbAndBuddies)
{
    m_slider.SetThumbLength(15);
    EXPECT_EQ(15, m_slider.GetThumbLength());
    m_slider.SetRange(0, 10);
    m_slider.SetPos(0);
    CRect left, right;
    m_slider.GetThumbRect(&left);
    m_slider.SetPos(10);
    m_slider.GetThumbRect(&right);
    EXPECT_GT(right.left, left.right);
    CStatic label;
    label.Create(L"0", WS_CHILD, CRect(0, 0, 10, 10), &m_host);
    EXPECT_EQ(nullptr, m_slider.SetBuddy(&label, FALSE));
    EXPECT_EQ(&label, m_slider.GetBuddy(FALSE));
    EXPECT_EQ(nullptr, m_slider.GetBuddy(TRUE));
}

class PickerWrapper : public testing::Test
{
protected:
    PickerWrapper()
    {
        m_picker.Create(WS_CHILD | WS_VISIBLE | DTS_SHOWNONE, CRect(0, 0, 200, 24), &m_host, 1);
    }

    HostWindow m_host;
    CDateTimeCtrl m_picker;
};

TEST_F(PickerWrapper, TimeInEveryForm)
{
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_TRUE(m_picker.SetTime(&time));
    CTime read;
    EXPECT_EQ(static_cast<DWORD>(GDT_VALID), m_picker.GetTime(read));
    EXPECT_TRUE(read == time);
    COleDateTime date;
    EXPECT_TRUE(m_picker.GetTime(date));
    EXPECT_TRUE(date == COleDateTime(2024, 2, 29, 13, 5, 9));
    EXPECT_TRUE(m_picker.SetTime(COleDateTime(1999, 12, 31, 1, 2, 3)));
    SYSTEMTIME parts = {};
    EXPECT_EQ(static_cast<DWORD>(GDT_VALID), m_picker.GetTime(&parts));
    EXPECT_EQ(1999, parts.wYear);
    EXPECT_EQ(3, parts.wSecond);
}

TEST_F(PickerWrapper, UnsetField_IsNull)
{
    EXPECT_TRUE(m_picker.SetTime());
    CTime time(2024, 2, 29, 0, 0, 0);
    EXPECT_EQ(static_cast<DWORD>(GDT_NONE), m_picker.GetTime(time));
    EXPECT_EQ(2024, time.GetYear());
    COleDateTime date;
    EXPECT_TRUE(m_picker.GetTime(date));
    EXPECT_EQ(COleDateTime::null, date.GetStatus());
    m_picker.SetTime(COleDateTime(2024, 2, 29, 0, 0, 0));
    EXPECT_TRUE(m_picker.SetTime(date));
    EXPECT_EQ(static_cast<DWORD>(GDT_NONE), m_picker.GetTime(time));
}

TEST_F(PickerWrapper, Limits)
{
    const COleDateTime low(2020, 1, 1, 0, 0, 0), high(2020, 12, 31, 0, 0, 0);
    EXPECT_TRUE(m_picker.SetRange(&low, &high));
    COleDateTime readLow, readHigh;
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN | GDTR_MAX), m_picker.GetRange(&readLow, &readHigh));
    EXPECT_TRUE(readLow == low);
    EXPECT_TRUE(readHigh == high);
    const CTime first(2021, 1, 1, 0, 0, 0);
    EXPECT_TRUE(m_picker.SetRange(&first, nullptr));
    CTime readFirst, readLast(1);
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN), m_picker.GetRange(&readFirst, &readLast));
    EXPECT_TRUE(readFirst == first);
    EXPECT_EQ(0, readLast.GetTime());
}

TEST_F(PickerWrapper, LookOfTheCalendar)
{
    EXPECT_TRUE(m_picker.SetFormat(L"yyyy'/'MM"));
    m_picker.SetMonthCalColor(MCSC_TEXT, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), m_picker.GetMonthCalColor(MCSC_TEXT));
    EXPECT_EQ(reinterpret_cast<HWND>(::SendMessage(m_picker, DTM_GETMONTHCAL, 0, 0)),
              m_picker.GetMonthCalCtrl()->GetSafeHwnd());
}

TEST(CalendarWrapper, SelectionAndLimits)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE, CPoint(5, 6), &host, 1));
    CRect needed, place;
    ASSERT_TRUE(calendar.GetMinReqRect(&needed));
    calendar.GetClientRect(&place);
    EXPECT_EQ(needed.Size(), place.Size());
    EXPECT_TRUE(calendar.SetCurSel(COleDateTime(2024, 2, 29, 0, 0, 0)));
    CTime day;
    EXPECT_TRUE(calendar.GetCurSel(day));
    EXPECT_EQ(29, day.GetDay());
    EXPECT_FALSE(calendar.SetCurSel(COleDateTime(2023, 2, 29, 0, 0, 0))) << "no such day";
    const CTime low(2024, 1, 10, 0, 0, 0);
    EXPECT_TRUE(calendar.SetRange(&low, nullptr));
    COleDateTime readLow, readHigh;
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN), calendar.GetRange(&readLow, &readHigh));
    EXPECT_EQ(10, readLow.GetDay());
    EXPECT_EQ(COleDateTime::null, readHigh.GetStatus());
    COleDateTime firstDay, lastDay;
    EXPECT_EQ(1, calendar.GetMonthRange(firstDay, lastDay, GMR_VISIBLE));
    EXPECT_EQ(1, firstDay.GetDay());
    EXPECT_EQ(29, lastDay.GetDay());
    calendar.SetToday(COleDateTime(2024, 2, 3, 0, 0, 0));
    COleDateTime today;
    EXPECT_TRUE(calendar.GetToday(today));
    EXPECT_EQ(3, today.GetDay());
}

TEST(CalendarWrapper, SeveralDaysAndTheWeek)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE | MCS_MULTISELECT, CRect(0, 0, 300, 200), &host, 1));
    EXPECT_TRUE(calendar.SetMaxSelCount(10));
    EXPECT_EQ(10, calendar.GetMaxSelCount());
    EXPECT_TRUE(calendar.SetSelRange(COleDateTime(2024, 2, 3, 0, 0, 0), COleDateTime(2024, 2, 7, 0, 0, 0)));
    CTime low, high;
    EXPECT_TRUE(calendar.GetSelRange(low, high));
    EXPECT_EQ(3, low.GetDay());
    EXPECT_EQ(7, high.GetDay());
    int before = -1;
    calendar.SetFirstDayOfWeek(2, &before);
    EXPECT_EQ(2, calendar.GetFirstDayOfWeek());
    BOOL isOwn = FALSE;
    calendar.SetFirstDayOfWeek(4, &before);
    EXPECT_EQ(2, before);
    EXPECT_EQ(4, calendar.GetFirstDayOfWeek(&isOwn));
    EXPECT_TRUE(isOwn);
    calendar.SetMonthDelta(3);
    EXPECT_EQ(3, calendar.GetMonthDelta());
    calendar.SetColor(MCSC_TEXT, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), calendar.GetColor(MCSC_TEXT));
}

TEST(CalendarWrapper, DaysAreTheSameInEachForm)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE, CPoint(5, 6), &host, 1));
    EXPECT_TRUE(calendar.SetCurSel(CTime(2024, 3, 4, 0, 0, 0)));
    SYSTEMTIME day = {};
    EXPECT_TRUE(calendar.GetCurSel(&day));
    EXPECT_EQ(4, day.wDay);
    EXPECT_EQ(3, day.wMonth);
    day.wDay = 5;
    EXPECT_TRUE(calendar.SetCurSel(&day));
    COleDateTime read;
    EXPECT_TRUE(calendar.GetCurSel(read));
    EXPECT_EQ(5, read.GetDay());
    const CTime today(2024, 3, 20, 0, 0, 0);
    calendar.SetToday(&today);
    EXPECT_TRUE(calendar.GetToday(&day));
    EXPECT_EQ(20, day.wDay);
}

TEST(CalendarWrapper, LimitsAreTheSameInEachForm)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE, CPoint(5, 6), &host, 1));
    const COleDateTime low(2024, 3, 2, 0, 0, 0), high(2024, 3, 25, 0, 0, 0);
    EXPECT_TRUE(calendar.SetRange(&low, &high));
    CTime firstTime, lastTime;
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN | GDTR_MAX), calendar.GetRange(&firstTime, &lastTime));
    EXPECT_EQ(2, firstTime.GetDay());
    EXPECT_EQ(25, lastTime.GetDay());
    SYSTEMTIME first = {}, last = {};
    first.wYear = last.wYear = 2024;
    first.wMonth = last.wMonth = 3;
    first.wDay = 7;
    last.wDay = 9;
    EXPECT_TRUE(calendar.SetRange(&first, &last));
    SYSTEMTIME readFirst = {}, readLast = {};
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN | GDTR_MAX), calendar.GetRange(&readFirst, &readLast));
    EXPECT_EQ(7, readFirst.wDay);
    EXPECT_EQ(9, readLast.wDay);
    EXPECT_TRUE(calendar.SetRange(&first, static_cast<LPSYSTEMTIME>(nullptr)));
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN),
              calendar.GetRange(&readFirst, static_cast<LPSYSTEMTIME>(nullptr)));
    EXPECT_EQ(7, readFirst.wDay);
}

TEST(CalendarWrapper, SelectionsAndMonthsAreTheSameInEachForm)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE | MCS_MULTISELECT, CRect(0, 0, 300, 200), &host, 1));
    ASSERT_TRUE(calendar.SetMaxSelCount(10));
    EXPECT_TRUE(calendar.SetSelRange(CTime(2024, 3, 4, 0, 0, 0), CTime(2024, 3, 6, 0, 0, 0)));
    COleDateTime low, high;
    EXPECT_TRUE(calendar.GetSelRange(low, high));
    EXPECT_EQ(4, low.GetDay());
    EXPECT_EQ(6, high.GetDay());
    SYSTEMTIME first = {}, last = {};
    EXPECT_TRUE(calendar.GetSelRange(&first, &last));
    EXPECT_EQ(4, first.wDay);
    EXPECT_EQ(6, last.wDay);
    last.wDay = 8;
    EXPECT_TRUE(calendar.SetSelRange(&first, &last));
    EXPECT_TRUE(calendar.GetSelRange(low, high));
    EXPECT_EQ(8, high.GetDay());
    CTime firstDay, lastDay;
    EXPECT_EQ(1, calendar.GetMonthRange(firstDay, lastDay, GMR_VISIBLE));
    EXPECT_EQ(31, lastDay.GetDay());
    EXPECT_EQ(1, calendar.GetMonthRange(&first, &last, GMR_VISIBLE));
    EXPECT_EQ(1, first.wDay);
    EXPECT_EQ(31, last.wDay);
}

// Exchanges what the test says.
class TimesDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange;

protected:
    void DoDataExchange(CDataExchange* pDX) override { exchange(pDX); }
};

TEST(ControlExchange, SliderPickerAndCalendar)
{
    DialogTemplateBuilder layout;
    layout.Add(TRACKBAR_CLASS, L"", 0, 101)
        .Add(DATETIMEPICK_CLASS, L"", 0, 102)
        .Add(MONTHCAL_CLASS, L"", 0, 103);
    HostWindow host;
    TimesDialog dialog;
    int position = 42;
    CTime time(2024, 2, 29, 13, 5, 9);
    COleDateTime day(2023, 4, 5, 0, 0, 0);
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Slider(pDX, 101, position);
        DDX_DateTimeCtrl(pDX, 102, time);
        DDX_MonthCalCtrl(pDX, 103, day);
    };
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), &host));
    position = 0;
    time = CTime();
    day = COleDateTime();
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(42, position);
    EXPECT_TRUE(time == CTime(2024, 2, 29, 13, 5, 9));
    EXPECT_EQ(5, day.GetDay());
    EXPECT_EQ(2023, day.GetYear());
    dialog.DestroyWindow();
}

} // namespace
