// Creation of windows: the order of the calls, and what happens when a step says no.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// Says no at one step of its creation and writes down the steps.
class StepWindow : public CWnd
{
public:
    enum class Refusal
    {
        None,
        PreCreate,
        NcCreate,
        Create,
        DestroyInCreate,
        ThrowInCreate,
        ThrowInPreSubclass
    };

    explicit StepWindow(Log& log, Refusal refusal = Refusal::None) : m_log(log), m_refusal(refusal) {}

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        m_log.push_back("PreCreateWindow");
        return m_refusal != Refusal::PreCreate && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        m_log.push_back(FromHandlePermanent(m_hWnd) == this ? "PreSubclassWindow attached"
                                                            : "PreSubclassWindow");
        if (m_refusal == Refusal::ThrowInPreSubclass)
            AfxThrowUserException();
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (m_log.back().find("PreSubclassWindow") == 0)
            m_log.push_back("first message");
        return CWnd::WindowProc(message, wParam, lParam);
    }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT create)
    {
        m_log.push_back("OnNcCreate");
        return CWnd::OnNcCreate(create) && m_refusal != Refusal::NcCreate;
    }
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        m_log.push_back("OnCreate");
        CWnd::OnCreate(create);
        if (m_refusal == Refusal::DestroyInCreate)
            DestroyWindow();
        if (m_refusal == Refusal::ThrowInCreate)
            AfxThrowUserException();
        return m_refusal == Refusal::Create ? -1 : 0;
    }
    void PostNcDestroy() override
    {
        m_log.push_back(m_hWnd == NULL ? "PostNcDestroy" : "PostNcDestroy attached");
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
    Refusal m_refusal;
};

BEGIN_MESSAGE_MAP(StepWindow, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, StepsComeInOrderAndTheObjectIsAttachedBeforeTheFirstMessage)
{
    ParentWindow parent;
    Log log;
    StepWindow window(log);
    EXPECT_TRUE(CreateChild(window, parent, 5));
    EXPECT_EQ(log, (Log{"PreCreateWindow", "PreSubclassWindow attached", "first message", "OnNcCreate",
                        "OnCreate"}));
    EXPECT_TRUE(::IsWindow(window.m_hWnd));
    EXPECT_EQ(window.GetDlgCtrlID(), 5);
    EXPECT_EQ(window.GetParent(), &parent);
}

TEST(WindowCreation, PreCreateWindowCanRefuse)
{
    ParentWindow parent;
    Log log;
    StepWindow window(log, StepWindow::Refusal::PreCreate);
    EXPECT_FALSE(CreateChild(window, parent, 5));
    EXPECT_EQ(log, (Log{"PreCreateWindow", "PostNcDestroy"}));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

class RefusedCreation : public testing::TestWithParam<StepWindow::Refusal>
{
};

TEST_P(RefusedCreation, LeavesNoWindowAndCallsPostNcDestroyOnce)
{
    ParentWindow parent;
    Log log;
    StepWindow window(log, GetParam());
    EXPECT_FALSE(CreateChild(window, parent, 5));
    EXPECT_EQ(std::count(log.begin(), log.end(), "PostNcDestroy"), 1);
    EXPECT_EQ(log.back(), "PostNcDestroy");
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(::GetWindow(parent.m_hWnd, GW_CHILD), nullptr);
}

INSTANTIATE_TEST_SUITE_P(EveryStep, RefusedCreation,
                         testing::Values(StepWindow::Refusal::NcCreate, StepWindow::Refusal::Create,
                                         StepWindow::Refusal::DestroyInCreate,
                                         StepWindow::Refusal::ThrowInCreate,
                                         StepWindow::Refusal::ThrowInPreSubclass));

TEST(WindowCreation, AnUnknownClassFailsAndTheNextWindowIsNotTakenForIt)
{
    ParentWindow parent;
    Log log;
    StepWindow failed(log);
    EXPECT_FALSE(CreateChild(failed, parent, 5, L"NoSuchClass"));
    EXPECT_EQ(log, (Log{"PreCreateWindow", "PostNcDestroy"}));

    const HWND plain = ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, parent.m_hWnd, NULL, NULL, NULL);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(failed.m_hWnd, nullptr);
    EXPECT_EQ(log.size(), 2u);
}

// Deletes itself with its window, as frames and views do.
class SelfDeletingWindow : public CWnd
{
public:
    SelfDeletingWindow(int& alive, bool refuse) : m_alive(alive), m_refuse(refuse) { ++m_alive; }
    ~SelfDeletingWindow() override { --m_alive; }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT) { return m_refuse ? -1 : 0; }
    void PostNcDestroy() override { delete this; }
    DECLARE_MESSAGE_MAP()

private:
    int& m_alive;
    bool m_refuse;
};

BEGIN_MESSAGE_MAP(SelfDeletingWindow, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, AnObjectThatDeletesItselfIsDeletedOnceWhenItsCreationFails)
{
    ParentWindow parent;
    int alive = 0;
    EXPECT_FALSE(CreateChild(*new SelfDeletingWindow(alive, true), parent, 5));
    EXPECT_EQ(alive, 0);
    EXPECT_FALSE(CreateChild(*new SelfDeletingWindow(alive, true), parent, 5, L"NoSuchClass"));
    EXPECT_EQ(alive, 0);
}

// Creates a child in its own OnCreate, and a window of nobody's.
class NestingWindow : public CWnd
{
public:
    CWnd m_child;
    HWND m_plain = nullptr;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT)
    {
        m_plain = ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, m_hWnd, NULL, NULL, NULL);
        return CreateChild(m_child, *this, 7, L"BUTTON") ? 0 : -1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NestingWindow, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, NestsInOnCreate)
{
    ParentWindow parent;
    NestingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 5));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_child.m_hWnd), &window.m_child);
    EXPECT_EQ(window.GetDlgItem(7), &window.m_child);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_plain), nullptr);
}

TEST(WindowCreation, ANullClassGetsTheClassOfTheFramework)
{
    ParentWindow parent;
    CWnd window;
    ASSERT_TRUE(CreateChild(window, parent, 5));
    const ULONG_PTR style = ::GetClassLongPtr(window.m_hWnd, GCL_STYLE);
    EXPECT_EQ(style, static_cast<ULONG_PTR>(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW));
    EXPECT_EQ(::GetClassLongPtr(window.m_hWnd, GCLP_HBRBACKGROUND), 0u);
    EXPECT_EQ(::GetClassLongPtr(window.m_hWnd, GCLP_HCURSOR),
              reinterpret_cast<ULONG_PTR>(::LoadCursor(NULL, IDC_ARROW)));
}

TEST(WindowCreation, CreateAddsTheChildStyle)
{
    ParentWindow parent;
    CWnd window;
    ASSERT_TRUE(window.Create(NULL, L"text", WS_VISIBLE, CRect(1, 2, 31, 42), &parent, 9));
    EXPECT_TRUE(window.GetStyle() & WS_CHILD);
    CRect rect;
    window.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 31, 42));
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, L"text");
}

} // namespace
} // namespace quor::test
