// COleDateTime.
#include "ATLComTime.h"

#include "time/DateParts.h"
#include "time/TimeText.h"

#include <cmath>

namespace
{

// The part of a valid date that `get` picks, or the error value.
template <typename TGet> int PartOf(const COleDateTime& date, TGet get)
{
    return date.GetStatus() == COleDateTime::valid ? get(quorfx::PartsOf(date)) : COleDateTime::error;
}

COleDateTime::DateTimeStatus StatusOf(HRESULT result)
{
    if (SUCCEEDED(result))
        return COleDateTime::valid;
    return result == DISP_E_OVERFLOW ? COleDateTime::invalid : COleDateTime::error;
}

// A date moved on by a span; null before invalid.
COleDateTime Moved(const COleDateTime& date, const COleDateTimeSpan& span, double days)
{
    if (date.GetStatus() == COleDateTime::valid && span.GetStatus() == COleDateTimeSpan::valid)
        return COleDateTime(quorfx::DateOfLinear(quorfx::LinearOf(date) + days));
    const bool isNull = date.GetStatus() == COleDateTime::null || span.GetStatus() == COleDateTimeSpan::null;
    COleDateTime result;
    result.SetStatus(isNull ? COleDateTime::null : COleDateTime::invalid);
    return result;
}

// The text of a date that has none of its own.
CString TextOfStatus(COleDateTime::DateTimeStatus status)
{
    return status == COleDateTime::null ? CString() : CString(L"Invalid DateTime");
}

} // namespace

COleDateTime WINAPI COleDateTime::GetCurrentTime() throw()
{
    return COleDateTime(_time64(nullptr));
}

COleDateTime::COleDateTime(const VARIANT& varSrc) throw() : COleDateTime()
{
    *this = varSrc;
}

COleDateTime::COleDateTime(WORD wDosDate, WORD wDosTime) throw() : m_dt(0)
{
    m_status = DosDateTimeToVariantTime(wDosDate, wDosTime, &m_dt) ? valid : invalid;
}

COleDateTime& COleDateTime::operator=(const VARIANT& varSrc) throw()
{
    m_dt = 0;
    if (varSrc.vt == VT_NULL || varSrc.vt == VT_EMPTY)
    {
        m_status = null;
        return *this;
    }
    VARIANT date;
    VariantInit(&date);
    m_status = StatusOf(VariantChangeType(&date, const_cast<VARIANT*>(&varSrc), 0, VT_DATE));
    if (m_status == valid)
        m_dt = date.date;
    CheckRange();
    return *this;
}

COleDateTime& COleDateTime::operator=(const __time64_t& timeSrc) throw()
{
    SYSTEMTIME parts = {};
    if (CTime(timeSrc).GetAsSystemTime(parts))
        return *this = parts;
    m_dt = 0;
    m_status = invalid;
    return *this;
}

COleDateTime& COleDateTime::operator=(const SYSTEMTIME& systimeSrc) throw()
{
    SetDateTime(systimeSrc.wYear, systimeSrc.wMonth, systimeSrc.wDay, systimeSrc.wHour, systimeSrc.wMinute,
                systimeSrc.wSecond);
    return *this;
}

COleDateTime& COleDateTime::operator=(const FILETIME& filetimeSrc) throw()
{
    SYSTEMTIME universal = {};
    SYSTEMTIME local = {};
    if (FileTimeToSystemTime(&filetimeSrc, &universal) &&
        SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return *this = local;
    m_dt = 0;
    m_status = invalid;
    return *this;
}

COleDateTime& COleDateTime::operator=(const UDATE& uDate) throw()
{
    return *this = uDate.st;
}

void COleDateTime::CheckRange() throw()
{
    if (m_status == valid && !(m_dt > quorfx::FirstDate - 1 && m_dt < quorfx::EndOfDates))
        m_status = invalid;
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) throw()
{
    m_dt = 0;
    m_status = invalid;
    if (!quorfx::IsDate(nYear, nMonth, nDay, nHour, nMin, nSec))
        return 1;
    // The platform's own arithmetic, to the last bit: dates that it read from a text compare equal then.
    UDATE parts = {};
    parts.st.wYear = static_cast<WORD>(nYear);
    parts.st.wMonth = static_cast<WORD>(nMonth);
    parts.st.wDay = static_cast<WORD>(nDay);
    parts.st.wHour = static_cast<WORD>(nHour);
    parts.st.wMinute = static_cast<WORD>(nMin);
    parts.st.wSecond = static_cast<WORD>(nSec);
    m_status = StatusOf(VarDateFromUdate(&parts, 0, &m_dt));
    return m_status == valid ? 0 : 1;
}

int COleDateTime::SetDate(int nYear, int nMonth, int nDay) throw()
{
    return SetDateTime(nYear, nMonth, nDay, 0, 0, 0);
}

int COleDateTime::SetTime(int nHour, int nMin, int nSec) throw()
{
    return SetDateTime(1899, 12, 30, nHour, nMin, nSec);
}

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid) throw()
{
    m_dt = 0;
    m_status = StatusOf(
        VarDateFromStr(const_cast<LPOLESTR>(lpszDate == nullptr ? L"" : lpszDate), lcid, dwFlags, &m_dt));
    return m_status == valid;
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const throw()
{
    if (m_status != valid)
        return false;
    const std::tm parts = quorfx::PartsOf(m_dt);
    sysTime.wYear = static_cast<WORD>(parts.tm_year + 1900);
    sysTime.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    sysTime.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    sysTime.wDay = static_cast<WORD>(parts.tm_mday);
    sysTime.wHour = static_cast<WORD>(parts.tm_hour);
    sysTime.wMinute = static_cast<WORD>(parts.tm_min);
    sysTime.wSecond = static_cast<WORD>(parts.tm_sec);
    sysTime.wMilliseconds = 0;
    return true;
}

bool COleDateTime::GetAsUDATE(UDATE& uDate) const throw()
{
    if (!GetAsSystemTime(uDate.st))
        return false;
    uDate.wDayOfYear = static_cast<USHORT>(GetDayOfYear());
    return true;
}

int COleDateTime::GetYear() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_year + 1900; });
}

int COleDateTime::GetMonth() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_mon + 1; });
}

int COleDateTime::GetDay() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_mday; });
}

int COleDateTime::GetHour() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_hour; });
}

int COleDateTime::GetMinute() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_min; });
}

int COleDateTime::GetSecond() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_sec; });
}

int COleDateTime::GetDayOfWeek() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_wday + 1; });
}

int COleDateTime::GetDayOfYear() const throw()
{
    return PartOf(*this, [](const std::tm& parts) { return parts.tm_yday + 1; });
}

COleDateTime COleDateTime::operator+(COleDateTimeSpan dateSpan) const throw()
{
    return Moved(*this, dateSpan, dateSpan.m_span);
}

COleDateTime COleDateTime::operator-(COleDateTimeSpan dateSpan) const throw()
{
    return Moved(*this, dateSpan, -dateSpan.m_span);
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& date) const throw()
{
    if (m_status == valid && date.m_status == valid)
        return COleDateTimeSpan(quorfx::LinearOf(m_dt) - quorfx::LinearOf(date.m_dt));
    COleDateTimeSpan result;
    result.SetStatus(m_status == null || date.m_status == null ? COleDateTimeSpan::null
                                                               : COleDateTimeSpan::invalid);
    return result;
}

bool COleDateTime::operator==(const COleDateTime& date) const throw()
{
    return m_status == date.m_status && m_dt == date.m_dt;
}

bool COleDateTime::operator<(const COleDateTime& date) const throw()
{
    return quorfx::LinearOf(m_dt) < quorfx::LinearOf(date.m_dt);
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const
{
    if (m_status != valid)
        return TextOfStatus(m_status);
    BSTR text = nullptr;
    if (FAILED(VarBstrFromDate(m_dt, lcid, dwFlags, &text)))
        return TextOfStatus(invalid);
    const CString result(text, static_cast<int>(SysStringLen(text)));
    SysFreeString(text);
    return result;
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const
{
    return m_status == valid ? quorfx::TimeText(lpszFormat, quorfx::PartsOf(m_dt)) : TextOfStatus(m_status);
}

CString COleDateTime::Format(UINT nFormatID) const
{
    return Format(quorfx::FormatFromResource(nFormatID).GetString());
}
