// The entry point of the fuzzer; tools/fuzz.sh has the manual.
#include "tests/fuzz/Driver.h"
#include "tests/fuzz/Options.h"
#include "tests/fuzz/Runner.h"

#include <afxwin.h>
#include <afxcmn.h>

#include <cstdio>
#include <cstdlib>

namespace
{

CWinApp application(L"QuorFuzz");

} // namespace

int main(int argumentCount, char** arguments)
{
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    quor::fuzz::Options options;
    if (!quor::fuzz::ReadOptions(argumentCount, arguments, options))
        return 2;
    if (!options.isChild)
        return quor::fuzz::Drive(options);
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOWNORMAL))
        return 2;
    const INITCOMMONCONTROLSEX controls{sizeof controls, 0xffff};
    InitCommonControlsEx(&controls);
    return quor::fuzz::RunSteps(options);
}
