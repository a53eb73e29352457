// Times and time spans in archives.
#include "afx.h"

CArchive& CTime::Serialize64(CArchive& ar)
{
    return ar.IsStoring() ? ar << *this : ar >> *this;
}

CArchive& CTimeSpan::Serialize64(CArchive& ar)
{
    return ar.IsStoring() ? ar << *this : ar >> *this;
}

CArchive& AFXAPI operator<<(CArchive& ar, CTime time)
{
    return ar << static_cast<LONGLONG>(time.GetTime());
}

CArchive& AFXAPI operator>>(CArchive& ar, CTime& rtime)
{
    LONGLONG seconds = 0;
    ar >> seconds;
    rtime = CTime(static_cast<__time64_t>(seconds));
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, CTimeSpan timeSpan)
{
    return ar << static_cast<LONGLONG>(timeSpan.GetTimeSpan());
}

CArchive& AFXAPI operator>>(CArchive& ar, CTimeSpan& rtimeSpan)
{
    LONGLONG seconds = 0;
    ar >> seconds;
    rtimeSpan = CTimeSpan(static_cast<__time64_t>(seconds));
    return ar;
}
