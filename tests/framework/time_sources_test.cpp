// Times made of what the system has: words of old files, file times, variants; and texts by formats of
// resources.
#include "tests/framework/ControlsResource.h"
#include "tests/framework/BadArguments.h"
#include "tests/framework/TemporaryFolder.h"

#include <ATLComTime.h>
#include <afxdisp.h>
#include <atltime.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace quor::test
{
namespace
{

// 29 February 2024, 13:05:08, as old file systems say it.
constexpr WORD DosDate = (44 << 9) | (2 << 5) | 29;
constexpr WORD DosTime = (13 << 11) | (5 << 5) | 4;

TEST(OleDateSources, NowIsTheTimeOfTheSystem)
{
    const COleDateTime now = COleDateTime::GetCurrentTime();
    EXPECT_EQ(now.GetStatus(), COleDateTime::valid);
    const CTime time = CTime::GetCurrentTime();
    const COleDateTime other(time.GetTime());
    EXPECT_LT(std::abs((other - now).GetTotalSeconds()), 60);
}

TEST(OleDateSources, WordsOfOldFiles)
{
    const COleDateTime date(DosDate, DosTime);
    EXPECT_TRUE(date == COleDateTime(2024, 2, 29, 13, 5, 8));
    EXPECT_EQ(COleDateTime(static_cast<WORD>(0), static_cast<WORD>(0xffff)).GetStatus(),
              COleDateTime::invalid);
    EXPECT_TRUE(CTime(DosDate, DosTime) == CTime(2024, 2, 29, 13, 5, 8));
}

TEST(OleDateSources, FileTimesAreUniversal)
{
    SYSTEMTIME universal = {};
    universal.wYear = 2024;
    universal.wMonth = 2;
    universal.wDay = 29;
    universal.wHour = 12;
    FILETIME file = {};
    ASSERT_TRUE(::SystemTimeToFileTime(&universal, &file));
    SYSTEMTIME local = {};
    ASSERT_TRUE(::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local));
    COleDateTime date;
    date = file;
    EXPECT_TRUE(date == COleDateTime(local));
    EXPECT_TRUE(CTime(file) == CTime(local));
    const FILETIME never = {0xffffffff, 0xffffffff};
    date = never;
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(date.m_dt, 0);
    EXPECT_TRUE(RefusesArguments([&] { const CTime time(never); }));
}

TEST(OleDateSources, UnpackedDatesAndSecondsThatAreNone)
{
    UDATE unpacked = {};
    unpacked.st.wYear = 2023;
    unpacked.st.wMonth = 4;
    unpacked.st.wDay = 5;
    COleDateTime date;
    date = unpacked;
    EXPECT_TRUE(date == COleDateTime(2023, 4, 5, 0, 0, 0));
    UDATE read = {};
    EXPECT_TRUE(date.GetAsUDATE(read));
    EXPECT_EQ(read.wDayOfYear, 31 + 28 + 31 + 5);
    date = static_cast<__time64_t>(-1);
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_FALSE(date.GetAsUDATE(read));
}

TEST(OleDateSources, VariantsThatAreDatesOrNot)
{
    COleVariant text(L"2024-02-29");
    COleDateTime date(text);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.GetDay(), 29);
    VARIANT missing = {};
    missing.vt = VT_NULL;
    date = missing;
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
    COleVariant nonsense(L"nonsense");
    date = nonsense;
    EXPECT_EQ(date.GetStatus(), COleDateTime::error);
    VARIANT tooLate = {};
    tooLate.vt = VT_DATE;
    tooLate.date = 1e7;
    date = tooLate;
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_STREQ(date.Format(), L"Invalid DateTime");
    EXPECT_STREQ(date.Format(L"%Y"), L"Invalid DateTime");
    date.SetStatus(COleDateTime::null);
    EXPECT_STREQ(date.Format(), L"");
}

TEST(OleDateSources, ArithmeticWithWhatIsNoDate)
{
    COleDateTime null;
    null.SetStatus(COleDateTime::null);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    const COleDateTime date(2024, 2, 29, 0, 0, 0);
    COleDateTimeSpan nullSpan;
    nullSpan.SetStatus(COleDateTimeSpan::null);
    EXPECT_EQ((null + COleDateTimeSpan(1.0)).GetStatus(), COleDateTime::null);
    EXPECT_EQ((date + nullSpan).GetStatus(), COleDateTime::null);
    EXPECT_EQ((invalid - COleDateTimeSpan(1.0)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((date - null).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((null - date).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((date - invalid).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_EQ(invalid.GetYear(), static_cast<int>(COleDateTime::error));
}

TEST(OleSpans, AreSubtractedAndCompared)
{
    const COleDateTimeSpan day(1, 12, 0, 0);
    const COleDateTimeSpan hour(0, 1, 0, 0);
    EXPECT_TRUE(day - hour == COleDateTimeSpan(1, 11, 0, 0));
    EXPECT_FALSE(day == hour);
    COleDateTimeSpan null(day);
    null.SetStatus(COleDateTimeSpan::null);
    EXPECT_FALSE(null == day) << "the same length, but not the same status";
    EXPECT_EQ((day - null).GetStatus(), COleDateTimeSpan::null);
    EXPECT_STREQ(null.Format(L"%D"), L"");
    EXPECT_STREQ(COleDateTimeSpan(1e9).Format(L"%D"), L"Invalid DateTimeSpan");
}

TEST(TimeTexts, FormatsComeFromResources)
{
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_STREQ(time.Format(static_cast<UINT>(IDS_TIME_FORMAT)), L"13.05 on 29");
    std::tm universal = {};
    ASSERT_NE(time.GetGmtTm(&universal), nullptr);
    CString expected;
    expected.Format(L"%02d.%02d on %02d", universal.tm_hour, universal.tm_min, universal.tm_mday);
    EXPECT_STREQ(time.FormatGmt(static_cast<UINT>(IDS_TIME_FORMAT)), expected);
    EXPECT_STREQ(COleDateTime(2024, 2, 29, 13, 5, 9).Format(static_cast<UINT>(IDS_TIME_FORMAT)),
                 L"13.05 on 29");
    EXPECT_STREQ(CTimeSpan(2, 3, 0, 0).Format(static_cast<UINT>(IDS_SPAN_FORMAT)), L"2 days and 03 hours");
    EXPECT_STREQ(COleDateTimeSpan(2, 3, 0, 0).Format(static_cast<UINT>(IDS_SPAN_FORMAT)),
                 L"2 days and 03 hours");
    EXPECT_TRUE(RefusesArguments([&] { time.Format(static_cast<UINT>(4711)); }));
}

TEST(TimeTexts, AnUnknownPartOfASpanIsRefused)
{
    const CTimeSpan span(1, 2, 3, 4);
    EXPECT_STREQ(span.Format(L"%D %H:%M:%S 100%%"), L"1 02:03:04 100%");
    EXPECT_STREQ(span.Format("%D"), L"1");
    EXPECT_STREQ(span.Format(L"%M %"), L"03 ") << "a lone percent sign at the end";
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { span.Format(L"%Y"); }));
    EXPECT_TRUE(RefusesArguments([&] { span.Format(static_cast<LPCTSTR>(nullptr)); }));
}

TEST(TimeTexts, ATextThatIsTooLongIsRefused)
{
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_EQ(time.Format(CString(L'x', 1000)).GetLength(), 1000);
    EXPECT_TRUE(RefusesArguments([&] { time.Format(CString(L'x', 0x10000)); }));
    EXPECT_STREQ(time.Format(L""), L"");
}

TEST(TimeTexts, ATimeOutsideTheRangeHasNoParts)
{
    const CTime before(static_cast<__time64_t>(-100000));
    SYSTEMTIME parts = {};
    EXPECT_FALSE(before.GetAsSystemTime(parts));
    EXPECT_EQ(before.GetYear(), 0);
    EXPECT_EQ(before.GetMonth(), 0);
    EXPECT_EQ(before.GetDayOfWeek(), 0);
    EXPECT_EQ(before.GetLocalTm(nullptr), nullptr);
    EXPECT_EQ(before.GetGmtTm(nullptr), nullptr);
    EXPECT_TRUE(RefusesArguments([&] { before.Format(L"%Y"); }));
}

TEST(TimeTexts, PartsOutsideTheirRangeAreRefused)
{
    const auto make = [](int year, int month, int day, int hour, int minute, int second) {
        return RefusesArguments([=] { const CTime time(year, month, day, hour, minute, second); });
    };
    EXPECT_EQ(CTime(2024, 1, 1, 0, 0, 0).GetYear(), 2024);
    EXPECT_TRUE(make(1899, 1, 1, 0, 0, 0));
    EXPECT_TRUE(make(2024, 0, 1, 0, 0, 0));
    EXPECT_TRUE(make(2024, 13, 1, 0, 0, 0));
    EXPECT_TRUE(make(2024, 1, 0, 0, 0, 0));
    EXPECT_TRUE(make(2024, 1, 32, 0, 0, 0));
    EXPECT_TRUE(make(2024, 1, 1, 24, 0, 0));
    EXPECT_TRUE(make(2024, 1, 1, 0, 60, 0));
    EXPECT_TRUE(make(2024, 1, 1, 0, 0, 60));
    SYSTEMTIME old = {};
    old.wYear = 1800;
    EXPECT_EQ(CTime(old).GetTime(), 0);
}

TEST(OleDateParts, DatesOutsideTheCalendarAreInvalid)
{
    struct Parts
    {
        int year, month, day, hour, minute, second;
    };
    for (const Parts& p :
         {Parts{99, 1, 1, 0, 0, 0}, Parts{10000, 1, 1, 0, 0, 0}, Parts{2023, 0, 1, 0, 0, 0},
          Parts{2023, 13, 1, 0, 0, 0}, Parts{2023, 2, 29, 0, 0, 0}, Parts{1900, 2, 29, 0, 0, 0},
          Parts{2023, 4, 0, 0, 0, 0}, Parts{2023, 4, 1, -1, 0, 0}, Parts{2023, 4, 1, 24, 0, 0},
          Parts{2023, 4, 1, 0, -1, 0}, Parts{2023, 4, 1, 0, 60, 0}, Parts{2023, 4, 1, 0, 0, -1},
          Parts{2023, 4, 1, 0, 0, 60}})
    {
        COleDateTime date;
        EXPECT_EQ(date.SetDateTime(p.year, p.month, p.day, p.hour, p.minute, p.second), 1)
            << p.year << " " << p.month << " " << p.day << " " << p.hour << " " << p.minute << " "
            << p.second;
        EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    }
    EXPECT_EQ(COleDateTime(2000, 2, 29, 0, 0, 0).GetStatus(), COleDateTime::valid);
}

TEST(OleDateParts, TheLastHalfSecondBelongsToTheNextDayUnlessThereIsNone)
{
    const double almostADay = 1 - 0.25 / 86400;
    const COleDateTime next(45351 + almostADay);
    EXPECT_TRUE(next.GetDay() == COleDateTime(45352.0).GetDay());
    EXPECT_EQ(next.GetHour(), 0);
    const COleDateTime last(2958465 + almostADay);
    ASSERT_EQ(last.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(last.GetYear(), 9999);
    EXPECT_EQ(last.GetDay(), 31);
    EXPECT_EQ(last.GetSecond(), 59);
}

} // namespace
} // namespace quor::test
