// COleDateTimeSpan.
#include "ATLComTime.h"

#include "time/TimeText.h"

#include <cmath>

namespace
{

// A result of two operands: null before invalid.
COleDateTimeSpan Combined(const COleDateTimeSpan& first, const COleDateTimeSpan& second, double days)
{
    COleDateTimeSpan result(days);
    const COleDateTimeSpan::DateTimeSpanStatus status = (std::max)(first.GetStatus(), second.GetStatus());
    if (status != COleDateTimeSpan::valid)
        result.SetStatus(status);
    return result;
}

} // namespace

void COleDateTimeSpan::CheckRange() throw()
{
    constexpr double kMaxDays = 3615897;
    if (m_status == valid && !(std::fabs(m_span) <= kMaxDays))
        m_status = invalid;
}

LONGLONG COleDateTimeSpan::RoundedSeconds() const throw()
{
    return std::llround(GetTotalSeconds());
}

void COleDateTimeSpan::SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) throw()
{
    m_span = lDays + nHours / 24.0 + nMins / (24.0 * 60) + nSecs / (24.0 * 3600);
    m_status = valid;
    CheckRange();
}

COleDateTimeSpan COleDateTimeSpan::operator+(const COleDateTimeSpan& dateSpan) const throw()
{
    return Combined(*this, dateSpan, m_span + dateSpan.m_span);
}

COleDateTimeSpan COleDateTimeSpan::operator-(const COleDateTimeSpan& dateSpan) const throw()
{
    return Combined(*this, dateSpan, m_span - dateSpan.m_span);
}

COleDateTimeSpan COleDateTimeSpan::operator-() const throw()
{
    return Combined(*this, *this, -m_span);
}

bool COleDateTimeSpan::operator==(const COleDateTimeSpan& dateSpan) const throw()
{
    return m_status == dateSpan.m_status && m_span == dateSpan.m_span;
}

CString COleDateTimeSpan::Format(LPCTSTR pFormat) const
{
    if (m_status == null)
        return CString();
    return m_status == valid ? quorfx::SpanText(pFormat, RoundedSeconds()) : CString(L"Invalid DateTimeSpan");
}

CString COleDateTimeSpan::Format(UINT nID) const
{
    return Format(quorfx::FormatFromResource(nID).GetString());
}
