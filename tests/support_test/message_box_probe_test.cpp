// Tests of the probe for message boxes.
#include "tests/support/HostWindow.h"
#include "tests/support/MessageBoxProbe.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

TEST(MessageBoxProbe, NoBox_ShowsNothing)
{
    const MessageBoxProbe probe;
    EXPECT_TRUE(probe.Shown().empty());
}

TEST(MessageBoxProbe, Box_IsReadAndItsButtonPressed)
{
    HostWindow host;
    const MessageBoxProbe probe(IDNO);
    EXPECT_EQ(MessageBoxW(host, L"Delete all rows?", L"Question", MB_YESNO), IDNO);
    ASSERT_EQ(probe.Shown().size(), 1u);
    EXPECT_EQ(probe.Shown()[0].caption, L"Question");
    EXPECT_EQ(probe.Shown()[0].text, L"Delete all rows?");
    EXPECT_EQ(probe.Shown()[0].buttons, (std::vector<int>{IDYES, IDNO}));
}

TEST(MessageBoxProbe, MissingButton_FirstOneIsPressed)
{
    HostWindow host;
    const MessageBoxProbe probe(IDNO);
    EXPECT_EQ(MessageBoxW(host, L"Done", L"Note", MB_OK), IDOK);
}

TEST(MessageBoxProbe, SeveralBoxes_AreAllAnswered)
{
    HostWindow host;
    const MessageBoxProbe probe(IDCANCEL);
    EXPECT_EQ(MessageBoxW(host, L"first", L"", MB_OKCANCEL), IDCANCEL);
    EXPECT_EQ(MessageBoxW(nullptr, L"second", L"", MB_YESNOCANCEL), IDCANCEL);
    ASSERT_EQ(probe.Shown().size(), 2u);
    EXPECT_EQ(probe.Shown()[1].text, L"second");
}

TEST(MessageBoxProbe, FrameworkBox_IsAnswered)
{
    HostWindow host;
    const MessageBoxProbe probe(IDYES);
    EXPECT_EQ(AfxMessageBox(L"Really?", MB_YESNO), IDYES);
    ASSERT_EQ(probe.Shown().size(), 1u);
    EXPECT_EQ(probe.Shown()[0].caption, L"QuorTests");
}

} // namespace
} // namespace quor::test
