// The answer of the grid's windows to a tool-tip hit test.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

namespace QuorUiCtr
{

// Fills `info` for a tip that belongs to the whole of `window`: window and id, the flags of a tip that shows
// also while the window is inactive, the text. `extraFlags` are added. A null `info` is left alone. Returns
// `id`, the number by which the hit test tells one item of the window from another, or -1 when there is no
// memory.
INT_PTR AnswerTip(const CWnd& window, const CString& tip, INT_PTR id, UINT extraFlags, TOOLINFO* info);

} // namespace QuorUiCtr
