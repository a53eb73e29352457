// Typed SendMessage for the control wrappers: parameters and result may be integers or pointers.
#pragma once

#include "fx/diagnostics.h"

namespace quorfx
{

template <class Target, class Source> inline Target MessageCast(Source value, std::true_type)
{
    return reinterpret_cast<Target>(value);
}

template <class Target, class Source> inline Target MessageCast(Source value, std::false_type)
{
    return static_cast<Target>(value);
}

// Converts between the integer parameters of a message and what they carry. Signed values are sign-extended.
template <class Target, class Source> inline Target MessageCast(Source value)
{
    using Reinterpret =
        std::integral_constant<bool, std::is_pointer<Target>::value || std::is_pointer<Source>::value>;
    return MessageCast<Target>(value, Reinterpret());
}

// Sends the message to the window and returns its answer as Result, which may be void.
// The window must exist: the checked build asserts that.
template <class Result = void, class First = WPARAM, class Second = LPARAM>
inline Result Send(HWND window, UINT message, First first = 0, Second second = 0)
{
    ASSERT(::IsWindow(window));
    return MessageCast<Result>(
        ::SendMessage(window, message, MessageCast<WPARAM>(first), MessageCast<LPARAM>(second)));
}

} // namespace quorfx
