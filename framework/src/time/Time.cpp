// CTime and CTimeSpan.
#include "atltime.h"

#include "time/TimeText.h"

namespace
{

bool IsWithin(int value, int low, int high)
{
    return value >= low && value <= high;
}

__time64_t FromLocal(int year, int month, int day, int hour, int minute, int second, int dst)
{
    std::tm parts = {};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = dst;
    return _mktime64(&parts);
}

SYSTEMTIME LocalSystemTime(const FILETIME& time)
{
    // This conversion knows whether the time itself lies in daylight saving time.
    SYSTEMTIME parts = {};
    SYSTEMTIME local = {};
    ENSURE_ARG(FileTimeToSystemTime(&time, &parts) &&
               SystemTimeToTzSpecificLocalTime(nullptr, &parts, &local));
    return local;
}

} // namespace

CString CTimeSpan::Format(LPCSTR pFormat) const
{
    return Format(CString(pFormat).GetString());
}

CString CTimeSpan::Format(LPCTSTR pszFormat) const
{
    return quorfx::SpanText(pszFormat, m_timeSpan);
}

CString CTimeSpan::Format(UINT nID) const
{
    return Format(quorfx::FormatFromResource(nID).GetString());
}

CTime WINAPI CTime::GetCurrentTime() throw()
{
    return CTime(_time64(nullptr));
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
{
    ENSURE_ARG(nYear >= 1900 && IsWithin(nMonth, 1, 12) && IsWithin(nDay, 1, 31) && IsWithin(nHour, 0, 23) &&
               IsWithin(nMin, 0, 59) && IsWithin(nSec, 0, 59));
    m_time = FromLocal(nYear, nMonth, nDay, nHour, nMin, nSec, nDST);
    ENSURE_ARG(m_time != -1);
}

// The words hold, from the highest bit down, 7 bits of years since 1980, 4 of months and 5 of days; 5 bits of
// hours, 6 of minutes and 5 of pairs of seconds.
CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : CTime((wDosDate >> 9) + 1980, (wDosDate >> 5) & 15, wDosDate & 31, wDosTime >> 11, (wDosTime >> 5) & 63,
            (wDosTime & 31) * 2, nDST)
{
}

CTime::CTime(const SYSTEMTIME& st, int nDST) throw()
    : m_time(st.wYear < 1900
                 ? 0
                 : FromLocal(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST))
{
}

CTime::CTime(const FILETIME& ft, int nDST) : CTime(LocalSystemTime(ft), nDST) {}

struct tm* CTime::GetGmtTm(struct tm* ptm) const
{
    return ptm != nullptr && _gmtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

struct tm* CTime::GetLocalTm(struct tm* ptm) const
{
    return ptm != nullptr && _localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const throw()
{
    struct tm parts = {};
    if (GetLocalTm(&parts) == nullptr)
        return false;
    st.wYear = static_cast<WORD>(parts.tm_year + 1900);
    st.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    st.wDay = static_cast<WORD>(parts.tm_mday);
    st.wHour = static_cast<WORD>(parts.tm_hour);
    st.wMinute = static_cast<WORD>(parts.tm_min);
    st.wSecond = static_cast<WORD>(parts.tm_sec);
    st.wMilliseconds = 0;
    return true;
}

struct tm CTime::LocalParts() const throw()
{
    struct tm parts = {};
    if (GetLocalTm(&parts) == nullptr)
    {
        // All parts come out as 0.
        parts = {};
        parts.tm_year = -1900;
        parts.tm_mon = -1;
        parts.tm_wday = -1;
    }
    return parts;
}

int CTime::GetYear() const throw()
{
    return LocalParts().tm_year + 1900;
}

int CTime::GetMonth() const throw()
{
    return LocalParts().tm_mon + 1;
}

int CTime::GetDay() const throw()
{
    return LocalParts().tm_mday;
}

int CTime::GetHour() const throw()
{
    return LocalParts().tm_hour;
}

int CTime::GetMinute() const throw()
{
    return LocalParts().tm_min;
}

int CTime::GetSecond() const throw()
{
    return LocalParts().tm_sec;
}

int CTime::GetDayOfWeek() const throw()
{
    return LocalParts().tm_wday + 1;
}

CString CTime::Format(LPCTSTR pszFormat) const
{
    struct tm parts = {};
    ENSURE_ARG(GetLocalTm(&parts) != nullptr);
    return quorfx::TimeText(pszFormat, parts);
}

CString CTime::Format(UINT nFormatID) const
{
    return Format(quorfx::FormatFromResource(nFormatID).GetString());
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const
{
    struct tm parts = {};
    ENSURE_ARG(GetGmtTm(&parts) != nullptr);
    return quorfx::TimeText(pszFormat, parts);
}

CString CTime::FormatGmt(UINT nFormatID) const
{
    return FormatGmt(quorfx::FormatFromResource(nFormatID).GetString());
}
