// CTimeSpan: a difference between two times.
#pragma once

#include "fx/string.h"

#include <ctime>

class CArchive;

// A number of seconds, positive or negative. The parts (days, hours of the day ...) all have its sign.
class QFX_API CTimeSpan
{
public:
    CTimeSpan() throw() : m_timeSpan(0) {}
    CTimeSpan(__time64_t time) throw() : m_timeSpan(time) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) throw()
        : m_timeSpan(nSecs + 60 * (nMins + 60 * (nHours + static_cast<__time64_t>(24) * lDays)))
    {
    }

    LONGLONG GetDays() const throw() { return m_timeSpan / (24 * 3600); }
    LONGLONG GetTotalHours() const throw() { return m_timeSpan / 3600; }
    LONG GetHours() const throw() { return static_cast<LONG>(GetTotalHours() % 24); }
    LONGLONG GetTotalMinutes() const throw() { return m_timeSpan / 60; }
    LONG GetMinutes() const throw() { return static_cast<LONG>(GetTotalMinutes() % 60); }
    LONGLONG GetTotalSeconds() const throw() { return m_timeSpan; }
    LONG GetSeconds() const throw() { return static_cast<LONG>(m_timeSpan % 60); }
    __time64_t GetTimeSpan() const throw() { return m_timeSpan; }

    CTimeSpan operator+(CTimeSpan span) const throw() { return CTimeSpan(m_timeSpan + span.m_timeSpan); }
    CTimeSpan operator-(CTimeSpan span) const throw() { return CTimeSpan(m_timeSpan - span.m_timeSpan); }
    CTimeSpan& operator+=(CTimeSpan span) throw()
    {
        m_timeSpan += span.m_timeSpan;
        return *this;
    }
    CTimeSpan& operator-=(CTimeSpan span) throw()
    {
        m_timeSpan -= span.m_timeSpan;
        return *this;
    }
    bool operator==(CTimeSpan span) const throw() { return m_timeSpan == span.m_timeSpan; }
    bool operator!=(CTimeSpan span) const throw() { return m_timeSpan != span.m_timeSpan; }
    bool operator<(CTimeSpan span) const throw() { return m_timeSpan < span.m_timeSpan; }
    bool operator>(CTimeSpan span) const throw() { return m_timeSpan > span.m_timeSpan; }
    bool operator<=(CTimeSpan span) const throw() { return m_timeSpan <= span.m_timeSpan; }
    bool operator>=(CTimeSpan span) const throw() { return m_timeSpan >= span.m_timeSpan; }

    // The format with %D replaced by the days and %H, %M and %S by the other parts in two digits. The format
    // may be a string resource.
    CString Format(LPCSTR pFormat) const;
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nID) const;

    // Stores or loads the span.
    CArchive& Serialize64(CArchive& ar);

private:
    __time64_t m_timeSpan;
};
