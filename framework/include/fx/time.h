// CTime: a point in time, to the second.
#pragma once

#include "fx/timespan.h"

// A macro of the platform with the name of a member function of this API.
#undef GetCurrentTime

// Seconds since 1970 in universal time. Parts and texts are in local time unless a comment says otherwise.
// nDST tells whether a local time lies in daylight saving time: 0 no, positive yes, -1 as the system knows.
class QFX_API CTime
{
public:
    static CTime WINAPI GetCurrentTime() throw();

    CTime() throw() : m_time(0) {}
    CTime(__time64_t time) throw() : m_time(time) {}
    // A local time. A part out of its range (years from 1900) throws CInvalidArgException.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    // 0 for years before 1900.
    CTime(const SYSTEMTIME& st, int nDST = -1) throw();
    // A universal time.
    CTime(const FILETIME& ft, int nDST = -1);

    CTime& operator=(__time64_t time) throw()
    {
        m_time = time;
        return *this;
    }
    CTime& operator+=(CTimeSpan span) throw()
    {
        m_time += span.GetTimeSpan();
        return *this;
    }
    CTime& operator-=(CTimeSpan span) throw()
    {
        m_time -= span.GetTimeSpan();
        return *this;
    }
    CTimeSpan operator-(CTime time) const throw() { return CTimeSpan(m_time - time.m_time); }
    CTime operator-(CTimeSpan timeSpan) const throw() { return CTime(m_time - timeSpan.GetTimeSpan()); }
    CTime operator+(CTimeSpan timeSpan) const throw() { return CTime(m_time + timeSpan.GetTimeSpan()); }
    bool operator==(CTime time) const throw() { return m_time == time.m_time; }
    bool operator!=(CTime time) const throw() { return m_time != time.m_time; }
    bool operator<(CTime time) const throw() { return m_time < time.m_time; }
    bool operator>(CTime time) const throw() { return m_time > time.m_time; }
    bool operator<=(CTime time) const throw() { return m_time <= time.m_time; }
    bool operator>=(CTime time) const throw() { return m_time >= time.m_time; }

    // Fill *ptm and return it; NULL for a time that has no such form.
    struct tm* GetGmtTm(struct tm* ptm) const;
    struct tm* GetLocalTm(struct tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const throw();
    __time64_t GetTime() const throw() { return m_time; }

    // The parts of the local time, 0 for a time that has none. The day of the week is 1 on Sundays.
    int GetYear() const throw();
    int GetMonth() const throw();
    int GetDay() const throw();
    int GetHour() const throw();
    int GetMinute() const throw();
    int GetSecond() const throw();
    int GetDayOfWeek() const throw();

    // A text as by strftime, of the local or the universal time. The format may be a string resource.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
    CString FormatGmt(UINT nFormatID) const;

    // Stores or loads the time.
    CArchive& Serialize64(CArchive& ar);

private:
    struct tm LocalParts() const throw();

    __time64_t m_time;
};
