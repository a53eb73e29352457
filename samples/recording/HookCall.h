// HookCall: one call of a hook, as a recording grid tells its host of it.
#pragma once

#include "grid/TGGrid.h"

#include <afxwin.h>
#include <afxcmn.h>

#include <initializer_list>
#include <string_view>
#include <variant>

namespace samples
{

// What a hook is about.
enum class HookGroup
{
    Mouse,
    // An edit of a cell, from asking for leave to storing its text.
    Edit,
    // OnDataChanged and OnCurChanged.
    Change,
    Paint,
    Col,
    // Rows, cut, copy and paste.
    Row,
    Tip
};

// Whether a hook that may supply an object found one there already.
struct Supplied
{
    bool object;
};

// An argument with its name; what it points to lives as long as the call.
struct HookArgument
{
    const char* name;
    std::variant<long, bool, Supplied, CPoint, const CString*, QuorUiCtr::TGGridRow*,
                 QuorUiCtr::TGGridTreeRow*, QuorUiCtr::TGGridCol*, QuorUiCtr::TGGridCell*>
        value;
};

struct HookCall
{
    // The hook's own name; of the two named OnRefresh "OnRefresh cell" and "OnRefresh row".
    const char* hook;
    HookGroup group;
    // The hook answers whether to go on.
    bool asks;
    std::initializer_list<HookArgument> arguments;

    bool Is(std::string_view name) const { return name == hook; }
};

} // namespace samples
