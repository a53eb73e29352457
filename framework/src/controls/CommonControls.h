// Registration of the platform's control classes, and reading texts of unknown length from controls.
#pragma once

#include "afxcmn.h"
#include <vector>

namespace quorfx
{

// Makes the classes of the common controls known to the process; cheap when they already are.
void EnsureCommonControls();

// Calls read(buffer, size) with growing buffers until the text it stores leaves room to spare, and returns
// the text. read returns the text, which a control may keep elsewhere than in the buffer, or NULL if it has
// none.
template <class Read> CString ReadText(Read read)
{
    std::vector<TCHAR> buffer;
    for (size_t size = 256;; size *= 2)
    {
        buffer.assign(size, 0);
        const LPCTSTR answer = read(buffer.data(), static_cast<int>(size));
        if (answer == nullptr)
            return CString();
        if (answer != buffer.data() || std::wcslen(answer) < size - 1)
            return CString(answer);
    }
}

// Takes an image list that belongs to a CImageList object out of the list control.
void KeepOwnedImageList(HWND list, int kind);

// Whether the message is a request to draw one's own item; calls the control's DrawItem then.
template <class Control> BOOL DrawOwnItem(Control* control, UINT message, LPARAM lParam)
{
    if (message != WM_DRAWITEM)
        return FALSE;
    control->DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

} // namespace quorfx
