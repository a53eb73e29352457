// The rules of dragging items in a tree: drop places, the insertion line, scroll directions, names.
#pragma once

#include "rules/Shapes.h"

#include <array>
#include <functional>
#include <string>

namespace QuorUiCtr
{

// Where a drop at a point lands, relative to the item under the point.
enum class DropPlace
{
    BeforeItem,
    AfterItem,       // or into it, when it is an empty folder
    BeforeFirstChild // the item is an open folder
};

// The place for a point at height `y` in an item's row; `row` is in the same coordinates. The exact middle
// belongs to the lower half.
DropPlace DropPlaceAt(const Box& row, int y, bool isOpenFolder);

// A stroke of a pen of one pixel, without its last point.
struct LineStroke
{
    Spot from;
    Spot to;
};

// The insertion line at the top (`above`) or the bottom edge of an item: a bar of two pixels, which begins at
// the left edge of `item` and ends two pixels before `clientRight`, between end caps that narrow towards it
// and are six pixels high.
std::array<LineStroke, 6> InsertionLine(const Box& item, int clientRight, bool above);

// The steps of one automatic scroll, along an axis.
enum class ScrollStep
{
    None,
    Back,
    Forward
};

// Which way a drag scrolls for a coordinate outside `low` to `high`, when it is more than `margin` away and
// there is something to scroll to: the position is at least 1 for a step back and differs from `limit` for
// one forward.
ScrollStep ScrollStepFor(int coordinate, int low, int high, int margin, int position, int limit);

// How far outside the client area the cursor must be before a drag scrolls, in pixels.
constexpr int VerticalScrollMargin = 5;
constexpr int HorizontalScrollMargin = 0;

// The name of a new folder: `base`, or when that is taken the first free one of "base 1", "base 2" ...
std::wstring FreeFolderName(const std::wstring& base, const std::function<bool(const std::wstring&)>& isFree);

} // namespace QuorUiCtr
