// A list that is shown as icons: without a header it has no columns to move among or to edit.
#include "tests/controls/OwnedList.h"

using namespace quor::test;

namespace
{

TEST(ListWithoutHeader, HasNoColumns)
{
    HostWindow host;
    TestList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_ICON, CRect(0, 0, 300, 200), &host, 7));
    list.InsertItem(0, L"text");
    if (list.GetHeaderCtrl() != nullptr)
        list.GetHeaderCtrl()->DestroyWindow();
    CStatic control;
    ASSERT_TRUE(control.Create(L"", WS_CHILD, CRect(1, 2, 3, 4), &list, 77));
    EXPECT_EQ(list.PositionControl(&control, 0, 0), 0);
}

} // namespace
