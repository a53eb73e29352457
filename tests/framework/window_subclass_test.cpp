// Adopting windows that exist: subclassing, and classes that are registered with the framework's procedure.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class SubclassedWindow : public CWnd
{
public:
    Log m_log;

protected:
    void PreSubclassWindow() override
    {
        const bool routed =
            ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc());
        m_log.push_back(routed ? "PreSubclassWindow routed" : "PreSubclassWindow");
    }
    afx_msg LRESULT OnSetText(WPARAM, LPARAM)
    {
        m_log.push_back("OnSetText");
        return Default();
    }
    afx_msg int OnCreate(LPCREATESTRUCT)
    {
        m_log.push_back("OnCreate");
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SubclassedWindow, CWnd)
    ON_WM_CREATE()
    ON_MESSAGE(WM_SETTEXT, &SubclassedWindow::OnSetText)
END_MESSAGE_MAP()

HWND PlainEdit(CWnd& parent, UINT_PTR id)
{
    return ::CreateWindow(L"EDIT", L"", WS_CHILD, 0, 0, 50, 20, parent.m_hWnd, reinterpret_cast<HMENU>(id),
                          NULL, NULL);
}

CString TextOf(HWND window)
{
    TCHAR text[64] = {};
    ::GetWindowText(window, text, 64);
    return CString(text);
}

TEST(WindowSubclass, RoutesMessagesThroughTheObjectToTheOldProcedure)
{
    ParentWindow parent;
    const HWND edit = PlainEdit(parent, 3);
    SubclassedWindow window;
    ASSERT_TRUE(window.SubclassWindow(edit));
    EXPECT_EQ(window.m_log, Log{"PreSubclassWindow"});
    EXPECT_EQ(CWnd::FromHandle(edit), &window);
    window.SetWindowText(L"seen");
    EXPECT_EQ(window.m_log, (Log{"PreSubclassWindow", "OnSetText"}));
    EXPECT_STREQ(TextOf(edit), L"seen");
}

TEST(WindowSubclass, UnsubclassRestoresTheOldProcedure)
{
    ParentWindow parent;
    const HWND edit = PlainEdit(parent, 3);
    const LONG_PTR before = ::GetWindowLongPtr(edit, GWLP_WNDPROC);
    SubclassedWindow window;
    ASSERT_TRUE(window.SubclassWindow(edit));
    EXPECT_EQ(window.UnsubclassWindow(), edit);
    EXPECT_EQ(::GetWindowLongPtr(edit, GWLP_WNDPROC), before);
    EXPECT_EQ(window.m_hWnd, nullptr);
    ::SetWindowText(edit, L"alone");
    EXPECT_EQ(window.m_log, Log{"PreSubclassWindow"});
    EXPECT_STREQ(TextOf(edit), L"alone");
    EXPECT_TRUE(window.SubclassWindow(edit)) << "the object can be used again";
}

TEST(WindowSubclass, FindsADialogItemByItsId)
{
    ParentWindow parent;
    const HWND edit = PlainEdit(parent, 3);
    SubclassedWindow window;
    EXPECT_FALSE(window.SubclassDlgItem(4, &parent));
    EXPECT_EQ(window.m_hWnd, nullptr);
    ASSERT_TRUE(window.SubclassDlgItem(3, &parent));
    EXPECT_EQ(window.m_hWnd, edit);
}

TEST(WindowSubclass, RefusesAWindowThatHasAnObject)
{
    ParentWindow parent;
    const HWND edit = PlainEdit(parent, 3);
    SubclassedWindow first;
    SubclassedWindow second;
    ASSERT_TRUE(first.SubclassWindow(edit));
    EXPECT_FALSE(second.SubclassWindow(edit));
    EXPECT_EQ(CWnd::FromHandle(edit), &first);
}

TEST(WindowSubclass, TheWindowsEndDetachesTheObject)
{
    ParentWindow parent;
    const HWND edit = PlainEdit(parent, 3);
    SubclassedWindow window;
    ASSERT_TRUE(window.SubclassWindow(edit));
    ::DestroyWindow(edit);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_TRUE(window.SubclassWindow(PlainEdit(parent, 4)));
    window.SetWindowText(L"again");
    EXPECT_STREQ(TextOf(window.m_hWnd), L"again");
}

TEST(WindowSubclass, AWindowCreatedByTheObjectKeepsItsClassBehaviour)
{
    ParentWindow parent;
    SubclassedWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 3, L"EDIT"));
    window.SendMessage(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"typed"));
    EXPECT_STREQ(TextOf(window.m_hWnd), L"typed");
    EXPECT_EQ(window.m_log, (Log{"PreSubclassWindow", "OnCreate"}));
}

// A window class of the old kind: its procedure makes the object when the first message comes.
class LateWindow : public CWnd
{
public:
    static LateWindow* s_latest;
    Log m_log;

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE)
        {
            s_latest = new LateWindow;
            s_latest->Attach(window);
        }
        return AfxWndProc(window, message, wParam, lParam);
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT)
    {
        m_log.push_back("OnCreate");
        return 0;
    }
    void PostNcDestroy() override
    {
        s_latest = nullptr;
        delete this;
    }
    DECLARE_MESSAGE_MAP()
};

LateWindow* LateWindow::s_latest = nullptr;

BEGIN_MESSAGE_MAP(LateWindow, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

void RegisterPlainClass(LPCTSTR name, WNDPROC procedure)
{
    WNDCLASS info = {};
    info.lpfnWndProc = procedure;
    info.hInstance = AfxGetInstanceHandle();
    info.lpszClassName = name;
    ASSERT_TRUE(AfxRegisterClass(&info));
}

TEST(WindowSubclass, AClassMayAttachInItsFirstMessage)
{
    ParentWindow parent;
    RegisterPlainClass(L"LateClass", LateWindow::Procedure);
    const HWND window = ::CreateWindow(L"LateClass", L"", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd, NULL,
                                       AfxGetInstanceHandle(), NULL);
    ASSERT_NE(window, nullptr);
    ASSERT_NE(LateWindow::s_latest, nullptr);
    EXPECT_EQ(LateWindow::s_latest->m_log, Log{"OnCreate"});
    ::DestroyWindow(window);
    EXPECT_EQ(LateWindow::s_latest, nullptr);
}

TEST(WindowSubclass, TheFrameworksProcedureWorksWithoutAnObject)
{
    ParentWindow parent;
    RegisterPlainClass(L"ObjectlessClass", AfxGetAfxWndProc());
    const HWND window = ::CreateWindow(L"ObjectlessClass", L"text", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd,
                                       NULL, AfxGetInstanceHandle(), NULL);
    ASSERT_NE(window, nullptr);
    EXPECT_STREQ(TextOf(window), L"text");

    SubclassedWindow object;
    ASSERT_TRUE(object.SubclassWindow(window));
    ::SetWindowText(window, L"object");
    EXPECT_STREQ(TextOf(window), L"object") << "the class's procedure is no old procedure to call";
}

} // namespace
} // namespace quor::test
