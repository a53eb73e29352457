// The notification list of the gallery.
#include "LogPane.h"

void LogPane::Add(const CString& text)
{
    if (!GetSafeHwnd())
        return;
    CString line;
    if (lineCount > 0 && text == lastText)
    {
        DeleteString(GetCount() - 1);
        line.Format(L"%4d  %s  ×%d", lineCount, static_cast<LPCTSTR>(text), ++lastCount);
    }
    else
    {
        line.Format(L"%4d  %s", ++lineCount, static_cast<LPCTSTR>(text));
        lastText = text;
        lastCount = 1;
    }
    if (GetCount() >= MaxLines)
        DeleteString(0);
    SetTopIndex(AddString(line));
}

void LogPane::RemoveAll()
{
    ResetContent();
    lineCount = 0;
}
