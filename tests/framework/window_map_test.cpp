// Handles and their objects: attached and temporary ones, and how long they live.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

#include <thread>

namespace quor::test
{
namespace
{

HWND PlainChild(CWnd& parent)
{
    return ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, parent.m_hWnd, NULL, NULL, NULL);
}

TEST(WindowMap, GivesTheAttachedObject)
{
    ParentWindow parent;
    EXPECT_EQ(CWnd::FromHandle(parent.m_hWnd), &parent);
    EXPECT_EQ(CWnd::FromHandlePermanent(parent.m_hWnd), &parent);
    parent.SetCapture();
    EXPECT_EQ(CWnd::GetCapture(), &parent);
    ::ReleaseCapture();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST(WindowMap, GivesTheSameTemporaryObjectForTheSameWindow)
{
    ParentWindow parent;
    const HWND plain = PlainChild(parent);
    CWnd* const temporary = CWnd::FromHandle(plain);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hWnd, plain);
    EXPECT_EQ(CWnd::FromHandle(plain), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(CWnd::FromHandle(NULL), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(NULL), nullptr);
}

TEST(WindowMap, TemporaryObjectsLeaveTheirWindowAlone)
{
    ParentWindow parent;
    const HWND plain = PlainChild(parent);
    CWnd::FromHandle(plain);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(plain));
}

TEST(WindowMap, AttachReplacesATemporaryObjectAndDetachFreesTheWindow)
{
    ParentWindow parent;
    const HWND plain = PlainChild(parent);
    CWnd* const temporary = CWnd::FromHandle(plain);
    CWnd window;
    ASSERT_TRUE(window.Attach(plain));
    EXPECT_EQ(CWnd::FromHandle(plain), &window);
    EXPECT_EQ(temporary->m_hWnd, plain);

    CWnd second;
    EXPECT_FALSE(second.Attach(plain));
    EXPECT_FALSE(second.Attach(NULL));
    EXPECT_FALSE(window.Attach(PlainChild(parent)));

    EXPECT_EQ(window.Detach(), plain);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_TRUE(::IsWindow(plain));
}

TEST(WindowMap, EveryThreadHasItsOwn)
{
    ParentWindow parent;
    CWnd* permanent = &parent;
    CWnd* temporary = &parent;
    std::thread other([&] {
        permanent = CWnd::FromHandlePermanent(parent.m_hWnd);
        temporary = CWnd::FromHandle(parent.m_hWnd);
    });
    other.join();
    EXPECT_EQ(permanent, nullptr);
    EXPECT_NE(temporary, &parent);
}

TEST(WindowMap, NullPointersHaveANullHandle)
{
    const CWnd* const nothing = nullptr;
    EXPECT_EQ(nothing->GetSafeHwnd(), nullptr);
    CWnd empty;
    EXPECT_EQ(empty.GetSafeHwnd(), nullptr);
    EXPECT_EQ(static_cast<HWND>(empty), nullptr);
}

// Lets idle time pass while it handles a message, in a modal loop and without one.
class IdlingWindow : public CWnd
{
public:
    HWND m_plain = nullptr;
    bool m_survived = false;
    size_t m_kicks = 0;

protected:
    afx_msg LRESULT OnIdleInside(WPARAM useModalLoop, LPARAM)
    {
        CWnd* const temporary = FromHandle(m_plain);
        if (useModalLoop)
        {
            RunModalLoop(MLF_NOIDLEMSG);
        }
        else
        {
            AfxGetApp()->OnIdle(0);
            AfxGetApp()->OnIdle(1);
        }
        // In the checked build this reads freed memory if the object is gone.
        m_survived = FromHandle(m_plain) == temporary && temporary->m_hWnd == m_plain;
        return 0;
    }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        FromHandle(::GetDesktopWindow());
        if (++m_kicks == 3)
            EndModalLoop(0);
        return m_kicks < 3;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(IdlingWindow, CWnd)
    ON_MESSAGE(WM_USER, &IdlingWindow::OnIdleInside)
    ON_MESSAGE(0x036A, &IdlingWindow::OnKickIdle)
END_MESSAGE_MAP()

TEST(WindowMap, TemporaryObjectsSurviveTheMessageThatGotThem)
{
    ParentWindow parent;
    IdlingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.m_plain = PlainChild(parent);
    window.SendMessage(WM_USER, FALSE);
    EXPECT_TRUE(window.m_survived);
}

TEST(WindowMap, TemporaryObjectsSurviveAModalLoopInsideTheirMessage)
{
    ParentWindow parent;
    IdlingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.m_plain = PlainChild(parent);
    window.SendMessage(WM_USER, TRUE);
    EXPECT_EQ(window.m_kicks, 3u);
    EXPECT_TRUE(window.m_survived);
}

// Counts its objects: FromHandle makes none of them, so only what is in the map is deleted.
TEST(WindowMap, IdleTimeBetweenMessagesDeletesTemporaryObjects)
{
    ParentWindow parent;
    const HWND plain = PlainChild(parent);
    CWnd* const temporary = CWnd::FromHandle(plain);
    // A value of one's own in the temporary object tells whether the next one is new.
    temporary->SetOwner(&parent);
    EXPECT_EQ(CWnd::FromHandle(plain)->GetOwner(), &parent);
    CWnd* const other = CWnd::FromHandle(::GetDesktopWindow());
    temporary->SetOwner(other);
    AfxGetApp()->OnIdle(1);
    EXPECT_EQ(CWnd::FromHandle(plain)->GetOwner(), &parent) << "a new object knows no owner but the parent";
}

TEST(WindowMap, IdleTimeDeletesTemporaryObjectsOfEveryKind)
{
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HMENU menu = ::CreatePopupMenu();
    const HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    const HIMAGELIST images = ::ImageList_Create(4, 4, ILC_COLOR, 1, 1);
    // One that has given its handle away stays the object of the handle until it is deleted.
    CDC::FromHandle(dc)->Detach();
    CMenu::FromHandle(menu)->Detach();
    CBrush::FromHandle(brush)->Detach();
    CImageList::FromHandle(images)->Detach();
    EXPECT_EQ(CMenu::FromHandle(menu)->GetSafeHmenu(), HMENU(NULL));
    AfxGetApp()->OnIdle(1);
    EXPECT_EQ(CDC::FromHandle(dc)->GetSafeHdc(), dc);
    EXPECT_EQ(CMenu::FromHandle(menu)->GetSafeHmenu(), menu);
    EXPECT_EQ(CBrush::FromHandle(brush)->GetSafeHandle(), brush);
    EXPECT_EQ(CImageList::FromHandle(images)->GetSafeHandle(), images);
    AfxGetApp()->OnIdle(1);
    ::ImageList_Destroy(images);
    ::DeleteObject(brush);
    ::DestroyMenu(menu);
    ::DeleteDC(dc);
}

TEST(WindowMap, OwnerIsTheParentUnlessSet)
{
    ParentWindow parent;
    CWnd child;
    ASSERT_TRUE(CreateChild(child, parent, 1));
    EXPECT_EQ(child.GetOwner(), &parent);
    CWnd other;
    ASSERT_TRUE(CreateChild(other, parent, 2));
    child.SetOwner(&other);
    EXPECT_EQ(child.GetOwner(), &other);
    EXPECT_EQ(child.GetParent(), &parent);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &parent);
}

} // namespace
} // namespace quor::test
