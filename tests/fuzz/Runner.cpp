// Lives of a control: made, used by random steps, destroyed; what a life leaves behind is counted.
#include "tests/fuzz/Runner.h"
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Modal.h"
#include "tests/fuzz/Progress.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Subject.h"
#include "tests/guard/Guard.h"
#include "tests/support/GuiHandles.h"

#include <cstdio>
#include <string>

namespace quor::fuzz
{

namespace
{

constexpr long StepsOfLife = 400;
// Posted messages and painting wait for some steps. That depends on the step's number, so it is the same in a
// replay.
constexpr long StepsBetweenPumps = 4;
constexpr long StepsBetweenChecks = 8;
// Counting takes a tenth of a second.
constexpr long LivesBetweenCounts = 20;
// Caches of the platform fill up in the first lives, and now and then grow later: a device context of a
// window comes with a region and a bitmap, and stays.
constexpr int HandlesOfCaches = 24;
constexpr std::uint64_t SeedOfLives = 0x51BEu;

// The parent of the control. It lives as long as the process: making a window on the screen takes long.
class Host : public CWnd
{
public:
    Subject* subject = nullptr;

    bool Make()
    {
        const CString windowClass =
            AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), GetSysColorBrush(COLOR_WINDOW));
        if (!CreateEx(0, windowClass, _T("Fuzz"), WS_POPUP | WS_CLIPCHILDREN, 0, 0, 640, 480, nullptr,
                      nullptr))
            return false;
        ShowWindow(SW_SHOW);
        SetForegroundWindow();
        return true;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        LRESULT result = 0;
        if (subject != nullptr && subject->OnHostMessage(message, wParam, lParam, result))
            return result;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class Lives
{
public:
    Lives(const Options& given, const Mode& mode, Progress& shown)
        : options(given), progress(shown), subject(mode.make(given.bare))
    {
    }

    int Run()
    {
        if (!host.Make())
            Fail("no host window");
        host.subject = subject.get();
        SetCursorPos(1270, 890);
        Pump();
        if (options.kept.empty())
            Run(0, options.steps - 1);
        for (const auto& [first, last] : options.kept)
            Run(first, last);
        End();
        if (livesEnded > LivesBetweenCounts)
            CountObjects();
        host.subject = nullptr;
        host.DestroyWindow();
        return 0;
    }

private:
    void Run(long first, long last)
    {
        for (long step = first; step <= last; ++step)
            Do(step);
    }

    void Do(long step)
    {
        progress.step = step;
        if (step / StepsOfLife != life)
        {
            End();
            life = step / StepsOfLife;
        }
        if (subject->Window() == nullptr)
            Begin();
        BeginStep(Random(options.seed, static_cast<std::uint64_t>(step)));
        if (CurrentStep().talks)
            std::printf("step %ld\n", step);
        Act();
        if (step % StepsBetweenPumps == 0)
            Pump();
        if (step % 16 == 0)
            AfxGetThread()->OnIdle(1);
        if (subject->Window() != nullptr && (options.checksEach || step % StepsBetweenChecks == 0))
            subject->Check();
        progress.digest =
            static_cast<LONG>(static_cast<unsigned long>(progress.digest) * 31u + subject->Digest());
        progress.done = progress.done + 1;
    }

    void Act()
    {
        subject->Prepare();
        if (subject->Window() == nullptr)
            return;
        if (Dice().OneIn(subject->CallsOneIn()))
            subject->Call();
        else if (const HWND target = subject->Target())
            SendAnyMessage(host, target);
    }

    void Begin()
    {
        // Again in the same life, when the host has destroyed the control.
        BeginStep(Random(options.seed ^ SeedOfLives, static_cast<std::uint64_t>(life * 1000 + again++)));
        CurrentStep().mischiefs = 0;
        BYTE keys[256] = {};
        SetKeyboardState(keys);
        subject->Destroy();
        subject->Create(host);
        if (subject->Window() == nullptr)
            Fail("the control has no window after its creation");
    }

    void End()
    {
        if (life < 0)
            return;
        BeginStep(Random(options.seed ^ SeedOfLives, static_cast<std::uint64_t>(life * 1000 + 999)));
        CurrentStep().mischiefs = 0;
        subject->Destroy();
        ReleaseCapture();
        Pump();
        AfxGetThread()->OnIdle(1);
        if (GetWindow(host, GW_CHILD) != nullptr)
            Fail("a window stays behind when the control is destroyed");
        again = 0;
        if (++livesEnded % LivesBetweenCounts == 0)
            CountObjects();
    }

    void CountObjects()
    {
        const test::GuiHandles now = test::CountGuiHandles();
        const auto blocks = static_cast<long>(QuorGuardLiveBlocks());
        if (livesEnded == LivesBetweenCounts)
        {
            firstCount = now;
            firstBlocks = blocks;
            return;
        }
        const long counts = livesEnded / LivesBetweenCounts - 1;
        if (now.AllGdi() > firstCount.AllGdi() + HandlesOfCaches + counts / 4 ||
            now.AllUser() > firstCount.AllUser() + HandlesOfCaches + counts / 4)
            Fail("objects stay behind: %s", test::Growth(firstCount, now).c_str());
        if (blocks > firstBlocks + LivesBetweenCounts * counts / 2 + 40)
            Fail("%ld blocks of memory stay behind", blocks - firstBlocks);
    }

    const Options& options;
    Progress& progress;
    std::unique_ptr<Subject> subject;
    Host host;
    long life = -1;
    long again = 0;
    long livesEnded = 0;
    test::GuiHandles firstCount;
    long firstBlocks = 0;
};

const Mode* FindMode(const Options& options)
{
    for (const Mode& mode : AllModes())
        if (!options.controls.empty() && options.controls.front() == mode.name)
            return &mode;
    return nullptr;
}

#ifndef QUOR_GUARD

LONG WINAPI OnUnhandled(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"";
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCWSTR>(record.ExceptionAddress), &module);
    GetModuleFileNameW(module, path, MAX_PATH);
    Fail("exception %08lx at %ls+0x%llx", record.ExceptionCode, path,
         static_cast<unsigned long long>(static_cast<char*>(record.ExceptionAddress) -
                                         reinterpret_cast<char*>(module)));
}

#endif

} // namespace

int RunSteps(const Options& options)
{
    const Mode* mode = FindMode(options);
    Progress own = {};
    Progress* progress = options.progress.empty() ? &own : OpenProgress(options.progress.c_str());
    if (mode == nullptr || progress == nullptr)
        Fail("no such control");
#ifndef QUOR_GUARD
    SetUnhandledExceptionFilter(OnUnhandled);
#endif
    CurrentStep().talks = options.talks;
    const ModalEnder ender;
    const int result = Lives(options, *mode, *progress).Run();
    std::printf("%ld steps, digest %08lx\n", progress->done, static_cast<unsigned long>(progress->digest));
    return result;
}

} // namespace quor::fuzz
