// ClipboardFormats: tables as the memory that stands on the clipboard, and back.
#pragma once

#include "rules/CellTable.h"

#include <afxwin.h>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace QuorUiCtr
{

// Hands a table over to a sink.
using CellSource = std::function<void(CellSink&)>;

// The formats that are offered, those first that keep the most.
const std::vector<UINT>& ClipboardFormats();
// The clipboard has one of them.
bool HasClipboardCells();
// The library's own format, which keeps captions.
bool IsOwnFormat(UINT format);

// Memory of one of the formats, which the caller owns; null when there is none.
HGLOBAL RenderFormat(UINT format, const CellSource& write);

// The first of the formats from which a table with cells can be read, of the clipboard, which is open.
// Nothing without one.
std::optional<CellTable> ReadClipboardCells();

} // namespace QuorUiCtr
