// COleDateTimeSpan: a difference between two dates of automation.
#pragma once

#include "fx/string.h"

// A number of days with a fraction, positive or negative, and whether it means something. The parts (days,
// hours of the day ...) are rounded to the second and have the span's sign.
class QFX_API COleDateTimeSpan
{
public:
    enum DateTimeSpanStatus
    {
        valid = 0,
        invalid = 1, // out of the range of +/- 3615897 days, or of no meaning
        null = 2
    };

    COleDateTimeSpan() throw() : m_span(0), m_status(valid) {}
    COleDateTimeSpan(double dblSpanSrc) throw() : m_span(dblSpanSrc), m_status(valid) { CheckRange(); }
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) throw()
    {
        SetDateTimeSpan(lDays, nHours, nMins, nSecs);
    }
    COleDateTimeSpan& operator=(double dblSpanSrc) throw() { return *this = COleDateTimeSpan(dblSpanSrc); }
    void SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) throw();

    void SetStatus(DateTimeSpanStatus status) throw() { m_status = status; }
    DateTimeSpanStatus GetStatus() const throw() { return m_status; }

    double GetTotalDays() const throw() { return m_span; }
    double GetTotalHours() const throw() { return m_span * 24; }
    double GetTotalMinutes() const throw() { return m_span * (24 * 60); }
    double GetTotalSeconds() const throw() { return m_span * (24 * 3600); }
    LONG GetDays() const throw() { return static_cast<LONG>(RoundedSeconds() / (24 * 3600)); }
    LONG GetHours() const throw() { return static_cast<LONG>(RoundedSeconds() / 3600 % 24); }
    LONG GetMinutes() const throw() { return static_cast<LONG>(RoundedSeconds() / 60 % 60); }
    LONG GetSeconds() const throw() { return static_cast<LONG>(RoundedSeconds() % 60); }
    operator double() const throw() { return m_span; }

    // The result is null when one of the spans is, else invalid when one of them is or it is out of range.
    COleDateTimeSpan operator+(const COleDateTimeSpan& dateSpan) const throw();
    COleDateTimeSpan operator-(const COleDateTimeSpan& dateSpan) const throw();
    COleDateTimeSpan operator-() const throw();
    COleDateTimeSpan& operator+=(const COleDateTimeSpan dateSpan) throw() { return *this = *this + dateSpan; }
    COleDateTimeSpan& operator-=(const COleDateTimeSpan dateSpan) throw() { return *this = *this - dateSpan; }
    bool operator==(const COleDateTimeSpan& dateSpan) const throw();
    bool operator!=(const COleDateTimeSpan& dateSpan) const throw() { return !(*this == dateSpan); }
    bool operator<(const COleDateTimeSpan& dateSpan) const throw() { return m_span < dateSpan.m_span; }
    bool operator>(const COleDateTimeSpan& dateSpan) const throw() { return m_span > dateSpan.m_span; }
    bool operator<=(const COleDateTimeSpan& dateSpan) const throw() { return m_span <= dateSpan.m_span; }
    bool operator>=(const COleDateTimeSpan& dateSpan) const throw() { return m_span >= dateSpan.m_span; }

    // The format with %D replaced by the days and %H, %M and %S by the other parts in two digits. The format
    // may be a string resource. Empty for a null span, "Invalid DateTimeSpan" for an invalid one.
    CString Format(LPCTSTR pFormat) const;
    CString Format(UINT nID) const;

    double m_span;
    DateTimeSpanStatus m_status;

private:
    void CheckRange() throw();
    LONGLONG RoundedSeconds() const throw();
};
