// The notification list of the gallery.
#include "LogPane.h"

void LogPane::Add(const CString& text)
{
    if (!GetSafeHwnd())
        return;
    CString line;
    line.Format(L"%4d  %s", ++lineCount, static_cast<LPCTSTR>(text));
    if (GetCount() >= MaxLines)
        DeleteString(0);
    SetTopIndex(AddString(line));
}

void LogPane::RemoveAll()
{
    ResetContent();
    lineCount = 0;
}
