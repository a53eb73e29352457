// CTime, CTimeSpan, COleDateTime and COleDateTimeSpan.
#include <afxwin.h>
#include <ATLComTime.h>

#include <gtest/gtest.h>

namespace
{

std::wstring Parts(const COleDateTime& date)
{
    CString text;
    text.Format(L"%d-%d-%d %d:%d:%d day %d of year, %d of week", date.GetYear(), date.GetMonth(),
                date.GetDay(), date.GetHour(), date.GetMinute(), date.GetSecond(), date.GetDayOfYear(),
                date.GetDayOfWeek());
    return text.GetString();
}

COleDateTime Null()
{
    COleDateTime date;
    date.SetStatus(COleDateTime::null);
    return date;
}

} // namespace

TEST(Time, LocalParts_ComeBack)
{
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_EQ(2024, time.GetYear());
    EXPECT_EQ(2, time.GetMonth());
    EXPECT_EQ(29, time.GetDay());
    EXPECT_EQ(13, time.GetHour());
    EXPECT_EQ(5, time.GetMinute());
    EXPECT_EQ(9, time.GetSecond());
    EXPECT_EQ(5, time.GetDayOfWeek()) << "a Thursday";
    SYSTEMTIME parts = {};
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(29, parts.wDay);
    EXPECT_EQ(4, parts.wDayOfWeek);
    EXPECT_TRUE(CTime(parts) == time);
    struct tm local = {};
    ASSERT_EQ(&local, time.GetLocalTm(&local));
    EXPECT_EQ(59, local.tm_yday);
}

TEST(Time, SecondsAndUniversalTime)
{
    const CTime time(static_cast<__time64_t>(1000000000));
    EXPECT_EQ(1000000000, time.GetTime());
    struct tm universal = {};
    ASSERT_NE(nullptr, time.GetGmtTm(&universal));
    EXPECT_EQ(46, universal.tm_min);
    EXPECT_STREQ(L"2001-09-09 01:46:40", time.FormatGmt(L"%Y-%m-%d %H:%M:%S"));
    FILETIME file = {};
    const ULONGLONG ticks = (11644473600ULL + 1000000000ULL) * 10000000ULL;
    file.dwLowDateTime = static_cast<DWORD>(ticks);
    file.dwHighDateTime = static_cast<DWORD>(ticks >> 32);
    EXPECT_EQ(1000000000, CTime(file).GetTime());
    EXPECT_EQ(0, CTime().GetTime());
    const __time64_t before = _time64(nullptr);
    const __time64_t now = CTime::GetCurrentTime().GetTime();
    EXPECT_LE(before, now);
    EXPECT_LE(now, _time64(nullptr));
}

TEST(Time, DosTime_IsUnpacked)
{
    const WORD date = static_cast<WORD>((2021 - 1980) << 9 | 7 << 5 | 15);
    const WORD hour = static_cast<WORD>(20 << 11 | 30 << 5 | 22);
    EXPECT_TRUE(CTime(date, hour) == CTime(2021, 7, 15, 20, 30, 44));
}

TEST(Time, Texts)
{
    const CTime time(1999, 3, 19, 22, 15, 0);
    EXPECT_STREQ(L"19.03.99 100%", time.Format(L"%d.%m.%y 100%%"));
    EXPECT_STREQ(L"", time.Format(L""));
    const CString blanks(L' ', 500);
    EXPECT_STREQ(blanks + L"1999", time.Format(blanks + L"%Y"));
}

TEST(Time, Arithmetic)
{
    CTime time(2024, 1, 31, 12, 0, 0);
    const CTime later(2024, 2, 1, 13, 0, 0);
    const CTimeSpan span = later - time;
    EXPECT_EQ(25, span.GetTotalHours());
    EXPECT_TRUE(time + span == later);
    EXPECT_TRUE(later - span == time);
    EXPECT_TRUE(time < later && later > time && time != later && time <= later && !(time >= later));
    time += span;
    EXPECT_TRUE(time == later);
    time -= CTimeSpan(0, 0, 0, 1);
    EXPECT_EQ(59, time.GetSecond());
}

TEST(TimeSpan, PartsAndTotals)
{
    const CTimeSpan span(3, 1, 5, 12);
    EXPECT_EQ(3, span.GetDays());
    EXPECT_EQ(1, span.GetHours());
    EXPECT_EQ(5, span.GetMinutes());
    EXPECT_EQ(12, span.GetSeconds());
    EXPECT_EQ(73, span.GetTotalHours());
    EXPECT_EQ(4385, span.GetTotalMinutes());
    EXPECT_EQ(263112, span.GetTotalSeconds());
    EXPECT_EQ(-1, CTimeSpan(-25 * 3600).GetDays());
    EXPECT_EQ(-1, CTimeSpan(-25 * 3600).GetHours());
    EXPECT_STREQ(L"Total days: 3, hours: 01, mins: 05, secs: 12 %",
                 span.Format(L"Total days: %D, hours: %H, mins: %M, secs: %S %%"));
    EXPECT_STREQ(L"3", span.Format("%D"));
    EXPECT_TRUE(span - CTimeSpan(0, 0, 0, 12) + CTimeSpan(12) == span);
    EXPECT_TRUE(CTimeSpan(1) < CTimeSpan(2));
}

TEST(OleDateTime, PartsOfKnownDates)
{
    struct
    {
        DATE date;
        const wchar_t* parts;
    } const known[] = {
        {0, L"1899-12-30 0:0:0 day 364 of year, 7 of week"},
        {-1.25, L"1899-12-29 6:0:0 day 363 of year, 6 of week"},
        {1.5, L"1899-12-31 12:0:0 day 365 of year, 1 of week"},
        {36585, L"2000-2-29 0:0:0 day 60 of year, 3 of week"},
        {45657.999999, L"2025-1-1 0:0:0 day 1 of year, 4 of week"},
        {-657434, L"100-1-1 0:0:0 day 1 of year, 6 of week"},
        {2958465.75, L"9999-12-31 18:0:0 day 365 of year, 6 of week"},
    };
    for (const auto& entry : known)
        EXPECT_EQ(entry.parts, Parts(COleDateTime(entry.date))) << entry.date;
}

TEST(OleDateTime, EveryDay_ComesBackFromItsParts)
{
    for (int day = -657434; day <= 2958465; day += 97)
    {
        const COleDateTime date(static_cast<DATE>(day));
        const COleDateTime again(date.GetYear(), date.GetMonth(), date.GetDay(), 0, 0, 0);
        ASSERT_EQ(day, again.m_dt) << day;
        ASSERT_EQ((day % 7 + 7 + 6) % 7 + 1, date.GetDayOfWeek()) << day;
    }
}

TEST(OleDateTime, AgreesWithThePlatform)
{
    const SYSTEMTIME parts = {1987, 6, 0, 5, 4, 3, 2, 0};
    double expected = 0;
    ASSERT_TRUE(SystemTimeToVariantTime(const_cast<SYSTEMTIME*>(&parts), &expected));
    EXPECT_DOUBLE_EQ(expected, COleDateTime(parts).m_dt);
    EXPECT_DOUBLE_EQ(expected, COleDateTime(1987, 6, 5, 4, 3, 2).m_dt);
    const SYSTEMTIME old = {1850, 6, 0, 5, 18, 0, 0, 0};
    ASSERT_TRUE(SystemTimeToVariantTime(const_cast<SYSTEMTIME*>(&old), &expected));
    EXPECT_DOUBLE_EQ(expected, COleDateTime(old).m_dt);
    UDATE date = {};
    ASSERT_TRUE(COleDateTime(parts).GetAsUDATE(date));
    EXPECT_EQ(156, date.wDayOfYear);
    EXPECT_EQ(2, date.st.wSecond);
}

TEST(OleDateTime, WhatIsNoDate_IsInvalid)
{
    COleDateTime date;
    EXPECT_EQ(COleDateTime::valid, date.GetStatus());
    EXPECT_EQ(1, date.SetDate(2023, 2, 29));
    EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
    EXPECT_EQ(-1, date.GetYear());
    SYSTEMTIME parts = {};
    EXPECT_FALSE(date.GetAsSystemTime(parts));
    EXPECT_EQ(0, date.SetDate(2024, 2, 29));
    EXPECT_EQ(COleDateTime::valid, date.GetStatus());
    EXPECT_EQ(1, date.SetTime(24, 0, 0));
    EXPECT_EQ(0, date.SetTime(6, 0, 0));
    EXPECT_DOUBLE_EQ(0.25, date.m_dt);
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(99, 1, 1, 0, 0, 0).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(3e6).GetStatus());
}

TEST(OleDateTime, VariantsAndTimes_Convert)
{
    VARIANT value;
    VariantInit(&value);
    EXPECT_EQ(COleDateTime::null, COleDateTime(value).GetStatus());
    value.vt = VT_R8;
    value.dblVal = 36585.5;
    EXPECT_DOUBLE_EQ(36585.5, COleDateTime(value).m_dt);
    value.vt = VT_DISPATCH;
    value.pdispVal = nullptr;
    EXPECT_NE(COleDateTime::valid, COleDateTime(value).GetStatus());
    const CTime time(2024, 5, 6, 7, 8, 9);
    EXPECT_TRUE(COleDateTime(time.GetTime()) == COleDateTime(2024, 5, 6, 7, 8, 9));
}

TEST(OleDateTime, Arithmetic_CrossesTheEpoch)
{
    const COleDateTime before(1899, 12, 29, 18, 0, 0);
    const COleDateTime after(1899, 12, 30, 6, 0, 0);
    const COleDateTimeSpan half(0, 12, 0, 0);
    EXPECT_TRUE(before + half == after);
    EXPECT_TRUE(after - half == before);
    EXPECT_DOUBLE_EQ(0.5, (after - before).m_span);
    EXPECT_TRUE(before < after && after > before && before <= after && before != after);
    EXPECT_TRUE(COleDateTime(-1.75) > COleDateTime(-1.25)) << "later on the same day";
    EXPECT_EQ(COleDateTime::null, (Null() + half).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, (after + COleDateTimeSpan(3e6)).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::null, (after - Null()).GetStatus());
}

TEST(OleDateTime, TextsBothWays)
{
    const COleDateTime date(1999, 3, 19, 22, 15, 0);
    const LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    EXPECT_STREQ(L"3/19/1999", date.Format(VAR_DATEVALUEONLY, english));
    EXPECT_STREQ(L"19.03.1999 22:15", date.Format(L"%d.%m.%Y %H:%M"));
    COleDateTime read;
    EXPECT_TRUE(read.ParseDateTime(L"March 19, 1999 10:15 PM", 0, english));
    EXPECT_TRUE(read == date);
    EXPECT_FALSE(read.ParseDateTime(L"no date", 0, english));
    EXPECT_EQ(COleDateTime::error, read.GetStatus());
    EXPECT_STREQ(L"Invalid DateTime", read.Format(L"%d"));
    EXPECT_STREQ(L"", Null().Format(L"%d"));
}

TEST(OleDateTimeSpan, PartsTextAndStatus)
{
    COleDateTimeSpan span(3, 1, 5, 12);
    EXPECT_EQ(3, span.GetDays());
    EXPECT_EQ(1, span.GetHours());
    EXPECT_EQ(5, span.GetMinutes());
    EXPECT_EQ(12, span.GetSeconds());
    EXPECT_NEAR(73 + 5 / 60.0 + 12 / 3600.0, span.GetTotalHours(), 1e-9);
    EXPECT_STREQ(L"3 days 01:05:12", span.Format(L"%D days %H:%M:%S"));
    EXPECT_EQ(-3, (-span).GetDays());
    EXPECT_EQ(-12, (-span).GetSeconds());
    span += COleDateTimeSpan(1.0);
    EXPECT_EQ(4, span.GetDays());
    EXPECT_TRUE(span > COleDateTimeSpan(4.0));
    EXPECT_EQ(COleDateTimeSpan::invalid, COleDateTimeSpan(4e6).GetStatus());
    span.SetStatus(COleDateTimeSpan::null);
    EXPECT_EQ(COleDateTimeSpan::null, (span + COleDateTimeSpan(1.0)).GetStatus());
    EXPECT_STREQ(L"", span.Format(L"%D"));
}
