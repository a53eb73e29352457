// The part of clipboard HTML that was copied, which a header or comments tell from the page around it.
#pragma once

#include <string_view>

namespace QuorUiCtr
{

struct ClipboardFragment
{
    std::string_view html;
    // There is a header, and its offsets are not where the fragment is.
    bool hasWrongOffsets = false;
};

// See CellHtml.h for what counts. The block of memory may be longer than the HTML in it.
ClipboardFragment FragmentOf(std::string_view block);

} // namespace QuorUiCtr
