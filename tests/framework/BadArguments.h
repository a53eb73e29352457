// Calls with arguments that no program may give.
#pragma once

#include <afxwin.h>

namespace quor::test
{

// Whether the call throws CInvalidArgException. With assertions the same mistakes end the process, so that it
// is not made at all.
template <typename TCall> bool RefusesArguments([[maybe_unused]] TCall call)
{
#ifdef _DEBUG
    return true;
#else
    try
    {
        call();
    }
    catch (CInvalidArgException* exception)
    {
        exception->Delete();
        return true;
    }
    return false;
#endif
}

} // namespace quor::test
