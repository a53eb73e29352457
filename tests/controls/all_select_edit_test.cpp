// The edit that selects all on the first click: class information and messages.
#include "controls/CAllSelectEdit.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace quor::test;
using QuorUiCtr::CAllSelectEdit;

namespace
{

class TestEdit : public CAllSelectEdit
{
public:
    using CAllSelectEdit::selectAllDone;
};

class AllSelectEdit : public testing::Test
{
protected:
    AllSelectEdit()
    {
        edit = std::make_unique<TestEdit>();
        edit->Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 210, 30), &host, 3);
        edit->SetWindowText(L"some text");
        host.SetFocus();
    }

    void Press(CPoint point)
    {
        SendMouse(edit->m_hWnd, WM_LBUTTONDOWN, point, MK_LBUTTON);
        if (edit && edit->m_hWnd)
            SendMouse(edit->m_hWnd, WM_LBUTTONUP, point);
    }

    std::string Selection()
    {
        int first = 0;
        int last = 0;
        edit->GetSel(first, last);
        return std::to_string(first) + "-" + std::to_string(last);
    }

    HostWindow host;
    std::unique_ptr<TestEdit> edit;
    const CPoint front{1, 8};
};

TEST_F(AllSelectEdit, ClassInformation_NamesTheClassAndCreatesNone)
{
    const CRuntimeClass* info = edit->GetRuntimeClass();
    EXPECT_EQ(info, RUNTIME_CLASS(CAllSelectEdit));
    EXPECT_STREQ(info->m_lpszClassName, "CAllSelectEdit");
    EXPECT_EQ(info->m_nObjectSize, static_cast<int>(sizeof(CAllSelectEdit)));
    EXPECT_EQ(info->m_wSchema, 0xFFFFu);
    EXPECT_EQ(info->m_pfnCreateObject, nullptr);
    EXPECT_TRUE(edit->IsKindOf(RUNTIME_CLASS(CEdit)));
}

TEST_F(AllSelectEdit, FirstClick_SelectsAllAndTakesTheFocus)
{
    EXPECT_FALSE(edit->selectAllDone);
    Press(front);
    EXPECT_EQ(Selection(), "0-9");
    EXPECT_EQ(::GetFocus(), edit->m_hWnd);
    EXPECT_TRUE(edit->selectAllDone);
}

TEST_F(AllSelectEdit, FirstClick_BeginsNoMouseSelection)
{
    SendMouse(edit->m_hWnd, WM_LBUTTONDOWN, front, MK_LBUTTON);
    EXPECT_NE(::GetCapture(), edit->m_hWnd);
    SendMouse(edit->m_hWnd, WM_MOUSEMOVE, CPoint(20, 8), MK_LBUTTON);
    EXPECT_EQ(Selection(), "0-9");
}

TEST_F(AllSelectEdit, FirstClickAfterTheKeyboardFocus_SelectsAll)
{
    edit->SetFocus();
    edit->SetSel(3, 3);
    Press(front);
    EXPECT_EQ(Selection(), "0-9");
}

TEST_F(AllSelectEdit, SecondClick_PlacesTheCaret)
{
    Press(front);
    Press(front);
    EXPECT_EQ(Selection(), "0-0");
}

TEST_F(AllSelectEdit, ReturningFocus_SelectsAllAgain)
{
    Press(front);
    Press(front);
    host.SetFocus();
    EXPECT_FALSE(edit->selectAllDone);
    Press(front);
    EXPECT_EQ(Selection(), "0-9");
}

TEST_F(AllSelectEdit, EmptyEdit_TakesClicks)
{
    edit->SetWindowText(L"");
    Press(front);
    EXPECT_EQ(Selection(), "0-0");
    EXPECT_TRUE(edit->selectAllDone);
}

TEST_F(AllSelectEdit, OwnerThatHearsOfTheFocus_FindsAllSelected)
{
    class Owner : public HostWindow
    {
    public:
        std::string heard;
        std::function<std::string()> selection;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_COMMAND && HIWORD(wParam) == EN_SETFOCUS)
                heard = selection();
            return HostWindow::WindowProc(message, wParam, lParam);
        }
    } owner;
    edit->DestroyWindow();
    edit->Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 210, 30), &owner, 3);
    edit->SetWindowText(L"some text");
    owner.selection = [this] { return Selection(); };
    owner.SetFocus();
    Press(front);
    EXPECT_EQ(owner.heard, "0-9");
    edit->DestroyWindow();
}

TEST_F(AllSelectEdit, OwnerHearsThatTheFocusIsLost)
{
    edit->SetFocus();
    host.TakeLog();
    host.SetFocus();
    EXPECT_EQ(host.TakeLog(), std::vector<std::string>{"command 3 code " + std::to_string(EN_KILLFOCUS)});
}

// Another field loses the focus to the edit, and its owner deletes the edit then.
class FocusLosingEdit : public CEdit
{
public:
    explicit FocusLosingEdit(std::function<void()> action) : whenLost(std::move(action)) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KILLFOCUS)
            whenLost();
        return CEdit::WindowProc(message, wParam, lParam);
    }

private:
    std::function<void()> whenLost;
};

TEST_F(AllSelectEdit, EditDeletedWhileItTakesTheFocus_IsLeftAlone)
{
    FocusLosingEdit other([this] { edit.reset(); });
    other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 40, 210, 60), &host, 4);
    other.SetFocus();
    Press(front);
    EXPECT_EQ(edit, nullptr);
}

TEST_F(AllSelectEdit, WindowDestroyedWhileItTakesTheFocus_HasNotSelected)
{
    FocusLosingEdit other([this] { edit->DestroyWindow(); });
    other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 40, 210, 60), &host, 4);
    other.SetFocus();
    Press(front);
    EXPECT_EQ(edit->m_hWnd, nullptr);
    EXPECT_FALSE(edit->selectAllDone);
}

} // namespace
