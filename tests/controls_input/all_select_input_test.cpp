// The edit that selects all on the first click, with the real mouse and keyboard.
#include "controls/CAllSelectEdit.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"

#include <gtest/gtest.h>

using namespace quor::test;

namespace
{

class AllSelectInput : public testing::Test
{
protected:
    AllSelectInput()
    {
        edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 10, 210, 34), &host, 3);
        plain.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 40, 210, 64), &host, 4);
        edit.SetWindowText(L"value");
        plain.SetWindowText(L"value");
        EXPECT_TRUE(Activate(host));
        host.SetFocus();
    }

    static CString Text(const CWnd& window)
    {
        CString text;
        window.GetWindowText(text);
        return text;
    }

    HostWindow host;
    QuorUiCtr::CAllSelectEdit edit;
    CEdit plain;
    // In front of the text, apart enough that two clicks are no double click.
    const CPoint front{2, 5};
    const CPoint frontBelow{2, 14};
};

TEST_F(AllSelectInput, TypingAfterTheFirstClick_ReplacesTheText)
{
    Click(edit, front);
    TypeText(L"new");
    EXPECT_EQ(Text(edit), L"new");
}

TEST_F(AllSelectInput, TypingAfterTheSecondClick_InsertsAtTheClick)
{
    Click(edit, front);
    Click(edit, frontBelow);
    TypeText(L"new ");
    EXPECT_EQ(Text(edit), L"new value");
}

TEST_F(AllSelectInput, PlainEdit_InsertsAtTheFirstClick)
{
    Click(plain, front);
    TypeText(L"new ");
    EXPECT_EQ(Text(plain), L"new value");
}

TEST_F(AllSelectInput, FocusThatLeavesAndReturns_SelectsAllAgain)
{
    Click(edit, front);
    Click(edit, frontBelow);
    Click(plain, front);
    Click(edit, front);
    TypeText(L"new");
    EXPECT_EQ(Text(edit), L"new");
}

TEST_F(AllSelectInput, FirstClickAfterTheKeyboard_SelectsAll)
{
    edit.SetFocus();
    KeyPress(VK_END);
    Click(edit, front);
    TypeText(L"new");
    EXPECT_EQ(Text(edit), L"new");
}

} // namespace
