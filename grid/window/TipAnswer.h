// The answer of the grid's windows to a tool-tip hit test.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

namespace QuorUiCtr
{

// Units of the buffer of a tip, its terminator included.
const int tipBufferLength = 20;

// Formats `tip` with itself as the format and zeros as arguments, so that "100%%" reads "100%", and fits the
// result into a new buffer of tipBufferLength units, which the caller releases with free(). A longer tip is
// cut, never inside a surrogate pair. Returns null when there is no memory.
wchar_t* MakeTipText(const CString& tip);

// Fills `info` for a tip that belongs to the whole of `window`: window and id, the flags of a tip that shows
// also while the window is inactive, the text. `extraFlags` are added. A null `info` is left alone. Returns
// `id`, the number by which the hit test tells one item of the window from another, or -1 when there is no
// memory.
INT_PTR AnswerTip(const CWnd& window, const CString& tip, INT_PTR id, UINT extraFlags, TOOLINFO* info);

} // namespace QuorUiCtr
