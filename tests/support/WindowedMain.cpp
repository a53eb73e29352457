// The entry point of test programs that use the framework: initialises it with an application object. The
// checked build runs all tests twice: what the second run leaves behind, the first did too. When it is a
// cache that has only grown later than usual, a third run leaves nothing more behind.
#include "tests/support/GuiHandles.h"
#include "tests/support/RunTests.h"

#include <afxwin.h>

namespace
{

CWinApp application(L"QuorTests");

#ifdef QUOR_GUARD

class HandleWatch : public testing::EmptyTestEventListener
{
public:
    explicit HandleWatch(bool& grew) : m_grew(grew) {}

    void OnTestIterationEnd(const testing::UnitTest&, int) override
    {
        const quor::test::GuiHandles now = quor::test::CountGuiHandles();
        const std::string growth = quor::test::Growth(m_before, now);
        m_before = now;
        m_grew = m_runs++ > 0 && !growth.empty();
        if (m_grew)
            std::printf("[  FAILED  ] GDI or USER objects were left behind: %s\n", growth.c_str());
    }

private:
    quor::test::GuiHandles m_before;
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

    bool handlesGrew = false;
#ifdef QUOR_GUARD
    testing::UnitTest::GetInstance()->listeners().Append(new HandleWatch(handlesGrew));
    RunTwice();
#endif
    int result = RUN_ALL_TESTS();
#ifdef QUOR_GUARD
    if (result == 0 && handlesGrew)
    {
        GTEST_FLAG_SET(repeat, 1);
        result = RUN_ALL_TESTS();
    }
#endif
    return handlesGrew ? 1 : result;
}
