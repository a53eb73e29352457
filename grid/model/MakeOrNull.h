// MakeOrNull: an object that there may be no memory for.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// What `make` returns, or null when it throws: for what can be done without.
template <class Make> auto MakeOrNull(Make make) noexcept -> decltype(make())
{
    try
    {
        return make();
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (...)
    {
    }
    return nullptr;
}

} // namespace QuorUiCtr
