// The entry point of test programs that use the framework: initialises it with an application object. The
// checked build runs all tests twice: what the second run leaves behind, the first did too. When it is a
// cache that has only grown later than usual, a third run leaves nothing more behind.
#include "tests/support/GuiHandles.h"
#include "tests/support/RunTests.h"
#include "tests/support/TaskMemory.h"

#include <afxwin.h>

#include <cstdio>
#include <string>

namespace
{

CWinApp application(L"QuorTests");

#ifdef QUOR_GUARD

// Sees what the guard of the heap does not: objects of GDI, among them those that image lists consist of, and
// of USER, and texts of automation.
class LeakWatch : public testing::EmptyTestEventListener
{
public:
    explicit LeakWatch(bool& grew) : m_grew(grew) {}

    void OnTestIterationEnd(const testing::UnitTest&, int) override
    {
        const quor::test::GuiHandles now = quor::test::CountGuiHandles();
        const int blocks = quor::test::CountTaskBlocks();
        std::string growth = quor::test::Growth(m_before, now);
        if (blocks > m_blocksBefore)
            growth +=
                (growth.empty() ? "" : ", ") + ("task blocks +" + std::to_string(blocks - m_blocksBefore));
        m_before = now;
        m_blocksBefore = blocks;
        m_grew = m_runs++ > 0 && !growth.empty();
        if (m_grew)
            std::printf("[  FAILED  ] These were left behind: %s\n", growth.c_str());
    }

private:
    quor::test::GuiHandles m_before;
    int m_blocksBefore = quor::test::CountTaskBlocks();
    bool& m_grew;
    int m_runs = 0;
};

void RunTwice()
{
    if (GTEST_FLAG_GET(repeat) == 1)
        GTEST_FLAG_SET(repeat, 2);
}

#endif

} // namespace

int main(int argumentCount, char** arguments)
{
    quor::test::InitTests(argumentCount, arguments);
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOWNORMAL))
        return 2;
    const INITCOMMONCONTROLSEX controls{sizeof controls, 0xffff};
    InitCommonControlsEx(&controls);

    bool grew = false;
#ifdef QUOR_GUARD
    testing::UnitTest::GetInstance()->listeners().Append(new LeakWatch(grew));
    RunTwice();
#endif
    int result = RUN_ALL_TESTS();
#ifdef QUOR_GUARD
    if (result == 0 && grew)
    {
        GTEST_FLAG_SET(repeat, 1);
        result = RUN_ALL_TESTS();
    }
#endif
    return grew ? 1 : result;
}
