// AfxOleInit and its end.
#include "thread/OleState.h"
#include "afxdisp.h"

#include <ole2.h>

namespace
{

bool& IsOleInitialised()
{
    static bool initialised = false;
    return initialised;
}

} // namespace

BOOL AFXAPI AfxOleInit()
{
    // The system counts the calls; the program's end makes up for one only.
    if (!IsOleInitialised())
        IsOleInitialised() = SUCCEEDED(::OleInitialize(nullptr));
    return IsOleInitialised();
}

void LeaveOle()
{
    if (!IsOleInitialised())
        return;
    IsOleInitialised() = false;
    ::OleUninitialize();
}

void AFXAPI AfxEnableControlContainer(COccManager*) {}
