// COleDateTime: a date with a time, as automation keeps it.
#pragma once

#include "fx/oledatetimespan.h"
#include "fx/time.h"

#include <oaidl.h>
#include <oleauto.h>

// Days since 30 December 1899 with the time as a fraction that counts forward on either side, for the years
// 100 to 9999, and whether that means something. All times are local.
class QFX_API COleDateTime
{
public:
    enum DateTimeStatus
    {
        error = -1,
        valid = 0,
        invalid = 1, // out of range, or no such date
        null = 2
    };

    static COleDateTime WINAPI GetCurrentTime() throw();

    COleDateTime() throw() : m_dt(0), m_status(valid) {}
    // What cannot be converted becomes invalid, an empty variant null.
    COleDateTime(const VARIANT& varSrc) throw();
    COleDateTime(DATE dtSrc) throw() : m_dt(dtSrc), m_status(valid) { CheckRange(); }
    COleDateTime(__time64_t timeSrc) throw() { *this = timeSrc; }
    COleDateTime(const SYSTEMTIME& systimeSrc) throw() { *this = systimeSrc; }
    COleDateTime(const FILETIME& filetimeSrc) throw() { *this = filetimeSrc; }
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) throw()
    {
        SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
    }
    COleDateTime(WORD wDosDate, WORD wDosTime) throw();

    COleDateTime& operator=(const VARIANT& varSrc) throw();
    COleDateTime& operator=(DATE dtSrc) throw() { return *this = COleDateTime(dtSrc); }
    COleDateTime& operator=(const __time64_t& timeSrc) throw();
    COleDateTime& operator=(const SYSTEMTIME& systimeSrc) throw();
    // A universal time.
    COleDateTime& operator=(const FILETIME& filetimeSrc) throw();
    COleDateTime& operator=(const UDATE& uDate) throw();

    // Each returns 0, or 1 and becomes invalid when there is no such date or time.
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) throw();
    int SetDate(int nYear, int nMonth, int nDay) throw();
    // On 30 December 1899.
    int SetTime(int nHour, int nMin, int nSec) throw();
    // Reads a text in the language of lcid; dwFlags may be VAR_TIMEVALUEONLY or VAR_DATEVALUEONLY.
    bool ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) throw();

    void SetStatus(DateTimeStatus status) throw() { m_status = status; }
    DateTimeStatus GetStatus() const throw() { return m_status; }

    // False when the date is not valid.
    bool GetAsSystemTime(SYSTEMTIME& sysTime) const throw();
    bool GetAsUDATE(UDATE& uDate) const throw();
    // The parts, -1 when the date is not valid. The day of the week is 1 on Sundays, that of the year 1 on 1
    // January.
    int GetYear() const throw();
    int GetMonth() const throw();
    int GetDay() const throw();
    int GetHour() const throw();
    int GetMinute() const throw();
    int GetSecond() const throw();
    int GetDayOfWeek() const throw();
    int GetDayOfYear() const throw();
    operator DATE() const throw() { return m_dt; }

    // The result is null when an operand is, else invalid when one is or it is out of range.
    COleDateTime operator+(COleDateTimeSpan dateSpan) const throw();
    COleDateTime operator-(COleDateTimeSpan dateSpan) const throw();
    COleDateTimeSpan operator-(const COleDateTime& date) const throw();
    COleDateTime& operator+=(COleDateTimeSpan dateSpan) throw() { return *this = *this + dateSpan; }
    COleDateTime& operator-=(COleDateTimeSpan dateSpan) throw() { return *this = *this - dateSpan; }
    bool operator==(const COleDateTime& date) const throw();
    bool operator!=(const COleDateTime& date) const throw() { return !(*this == date); }
    bool operator<(const COleDateTime& date) const throw();
    bool operator>(const COleDateTime& date) const throw() { return date < *this; }
    bool operator<=(const COleDateTime& date) const throw() { return !(date < *this); }
    bool operator>=(const COleDateTime& date) const throw() { return !(*this < date); }

    // A text in the language of lcid, dwFlags as for ParseDateTime; or as by strftime, where the format may
    // be a string resource. Empty for a null date, "Invalid DateTime" for one that is not valid.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    CString Format(LPCTSTR lpszFormat) const;
    CString Format(UINT nFormatID) const;

    DATE m_dt;
    DateTimeStatus m_status;

private:
    void CheckRange() throw();
};
