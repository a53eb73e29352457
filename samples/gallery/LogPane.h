// LogPane: the list at the bottom of the gallery that shows what the host was told.
#pragma once

#include <afxwin.h>

// Keeps the newest lines visible and at most MaxLines of them.
class LogPane : public CListBox
{
public:
    static constexpr int MaxLines = 2000;

    // Adds a line "12  text" with a running number and scrolls it into view. A text that equals the one
    // before is counted in its line instead: "12  text  ×3".
    void Add(const CString& text);
    void RemoveAll();

private:
    int lineCount = 0;
    CString lastText;
    int lastCount = 0;
};
