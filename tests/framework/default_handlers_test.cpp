// The handlers that CWnd has for window messages: each gives the message to default processing as it came.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr LRESULT Answer = 0x1234;

// A window whose message map leads to the handlers of CWnd, and whose default processing is a note and an
// answer.
class PassingWindow : public CWnd
{
public:
    std::vector<MSG> m_passed;
    bool m_notes = false;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (!m_notes)
            return CWnd::DefWindowProc(message, wParam, lParam);
        m_passed.push_back({m_hWnd, message, wParam, lParam, 0, {}});
        return Answer;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PassingWindow, CWnd)
    ON_WM_CLOSE()
    ON_WM_SIZING()
    ON_WM_MOVE()
    ON_WM_MOVING()
    ON_WM_NCPAINT()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEHWHEEL()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_XBUTTONDOWN()
    ON_WM_XBUTTONUP()
    ON_WM_XBUTTONDBLCLK()
    ON_WM_KEYUP()
    ON_WM_DEADCHAR()
    ON_WM_SYSKEYUP()
    ON_WM_SYSCHAR()
    ON_WM_SYSDEADCHAR()
    ON_WM_HOTKEY()
    ON_WM_CONTEXTMENU()
    ON_WM_INITMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_MENUCHAR()
    ON_WM_ENTERMENULOOP()
    ON_WM_EXITMENULOOP()
    ON_WM_ENTERIDLE()
    ON_WM_GETDLGCODE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_NCRBUTTONDBLCLK()
    ON_WM_NCMBUTTONDOWN()
    ON_WM_NCMBUTTONUP()
    ON_WM_NCMBUTTONDBLCLK()
    ON_WM_ACTIVATEAPP()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_FONTCHANGE()
    ON_WM_TIMECHANGE()
    ON_WM_CHILDACTIVATE()
    ON_WM_QUERYDRAGICON()
    ON_WM_QUERYOPEN()
    ON_WM_QUERYNEWPALETTE()
    ON_WM_PALETTECHANGED()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_WM_STYLECHANGING()
    ON_WM_STYLECHANGED()
    ON_WM_DEVICECHANGE()
    ON_WM_HELPINFO()
    ON_WM_COPYDATA()
    ON_WM_DROPFILES()
    ON_WM_INPUTLANGCHANGE()
END_MESSAGE_MAP()

// What the sender gets: the answer of default processing where the handler has a result, 0 where it has none.
struct Passed
{
    const char* name;
    UINT message;
    LRESULT result;
};

class DefaultHandler : public testing::TestWithParam<Passed>
{
};

TEST_P(DefaultHandler, PassesTheMessageOnAsItCame)
{
    ParentWindow parent;
    PassingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    // Structures of the messages that have one; nobody looks into them.
    char structure[256] = {};
    const LPARAM lParam = reinterpret_cast<LPARAM>(&structure);
    window.m_notes = true;
    const WPARAM wParam = 5;
    const LRESULT result = window.SendMessage(GetParam().message, wParam, lParam);
    window.m_notes = false;
    ASSERT_EQ(window.m_passed.size(), 1u);
    EXPECT_EQ(window.m_passed[0].message, GetParam().message);
    EXPECT_EQ(window.m_passed[0].wParam, wParam);
    EXPECT_EQ(window.m_passed[0].lParam, lParam);
    EXPECT_EQ(result, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, DefaultHandler,
    testing::Values(
        Passed{"Close", WM_CLOSE, 0}, Passed{"Sizing", WM_SIZING, 0}, Passed{"Move", WM_MOVE, 0},
        Passed{"Moving", WM_MOVING, 0}, Passed{"NcPaint", WM_NCPAINT, 0}, Passed{"Enable", WM_ENABLE, 0},
        Passed{"ShowWindow", WM_SHOWWINDOW, 0}, Passed{"MouseHover", WM_MOUSEHOVER, 0},
        Passed{"MouseLeave", WM_MOUSELEAVE, 0}, Passed{"MouseHWheel", WM_MOUSEHWHEEL, 0},
        Passed{"RButtonDown", WM_RBUTTONDOWN, 0}, Passed{"RButtonUp", WM_RBUTTONUP, 0},
        Passed{"RButtonDblClk", WM_RBUTTONDBLCLK, 0}, Passed{"MButtonDown", WM_MBUTTONDOWN, 0},
        Passed{"MButtonUp", WM_MBUTTONUP, 0}, Passed{"MButtonDblClk", WM_MBUTTONDBLCLK, 0},
        Passed{"XButtonDown", WM_XBUTTONDOWN, 0}, Passed{"XButtonUp", WM_XBUTTONUP, 0},
        Passed{"XButtonDblClk", WM_XBUTTONDBLCLK, 0}, Passed{"KeyUp", WM_KEYUP, 0},
        Passed{"DeadChar", WM_DEADCHAR, 0}, Passed{"SysKeyUp", WM_SYSKEYUP, 0},
        Passed{"SysChar", WM_SYSCHAR, 0}, Passed{"SysDeadChar", WM_SYSDEADCHAR, 0},
        Passed{"HotKey", WM_HOTKEY, 0}, Passed{"ContextMenu", WM_CONTEXTMENU, 0},
        Passed{"InitMenu", WM_INITMENU, 0}, Passed{"InitMenuPopup", WM_INITMENUPOPUP, 0},
        Passed{"UnInitMenuPopup", WM_UNINITMENUPOPUP, 0}, Passed{"MenuSelect", WM_MENUSELECT, 0},
        Passed{"MenuChar", WM_MENUCHAR, Answer}, Passed{"EnterMenuLoop", WM_ENTERMENULOOP, 0},
        Passed{"ExitMenuLoop", WM_EXITMENULOOP, 0}, Passed{"EnterIdle", WM_ENTERIDLE, 0},
        Passed{"GetDlgCode", WM_GETDLGCODE, Answer}, Passed{"NcCalcSize", WM_NCCALCSIZE, 0},
        Passed{"NcMouseMove", WM_NCMOUSEMOVE, 0}, Passed{"NcLButtonDown", WM_NCLBUTTONDOWN, 0},
        Passed{"NcLButtonUp", WM_NCLBUTTONUP, 0}, Passed{"NcLButtonDblClk", WM_NCLBUTTONDBLCLK, 0},
        Passed{"NcRButtonDown", WM_NCRBUTTONDOWN, 0}, Passed{"NcRButtonUp", WM_NCRBUTTONUP, 0},
        Passed{"NcRButtonDblClk", WM_NCRBUTTONDBLCLK, 0}, Passed{"NcMButtonDown", WM_NCMBUTTONDOWN, 0},
        Passed{"NcMButtonUp", WM_NCMBUTTONUP, 0}, Passed{"NcMButtonDblClk", WM_NCMBUTTONDBLCLK, 0},
        Passed{"ActivateApp", WM_ACTIVATEAPP, 0}, Passed{"WindowPosChanging", WM_WINDOWPOSCHANGING, 0},
        Passed{"WindowPosChanged", WM_WINDOWPOSCHANGED, 0}, Passed{"FontChange", WM_FONTCHANGE, 0},
        Passed{"TimeChange", WM_TIMECHANGE, 0}, Passed{"ChildActivate", WM_CHILDACTIVATE, 0},
        Passed{"QueryDragIcon", WM_QUERYDRAGICON, Answer}, Passed{"QueryOpen", WM_QUERYOPEN, Answer},
        Passed{"QueryNewPalette", WM_QUERYNEWPALETTE, Answer}, Passed{"PaletteChanged", WM_PALETTECHANGED, 0},
        Passed{"QueryEndSession", WM_QUERYENDSESSION, Answer}, Passed{"EndSession", WM_ENDSESSION, 0},
        Passed{"StyleChanging", WM_STYLECHANGING, 0}, Passed{"StyleChanged", WM_STYLECHANGED, 0},
        Passed{"DeviceChange", WM_DEVICECHANGE, Answer}, Passed{"Help", WM_HELP, Answer},
        Passed{"CopyData", WM_COPYDATA, Answer}, Passed{"DropFiles", WM_DROPFILES, 0},
        Passed{"InputLangChange", WM_INPUTLANGCHANGE, 0}),
    [](const auto& passed) { return passed.param.name; });

// The arguments of the handlers that no table of numbers can show: pointers, and windows.
class PointerWindow : public CWnd
{
public:
    Log m_log;
    CWnd* m_sender = nullptr;

protected:
    afx_msg void OnSizing(UINT side, LPRECT rect)
    {
        m_log.push_back("sizing " + std::to_string(side));
        rect->right += 5;
    }
    afx_msg BOOL OnCopyData(CWnd* sender, COPYDATASTRUCT* data)
    {
        m_sender = sender;
        m_log.push_back("data " + std::to_string(data->dwData) + " of " + std::to_string(data->cbData));
        return 7;
    }
    afx_msg void OnHotKey(UINT id, UINT modifiers, UINT key)
    {
        m_log.push_back("hot key " + std::to_string(id) + " " + std::to_string(modifiers) + " " +
                        std::to_string(key));
    }
    afx_msg void OnInputLangChange(UINT charset, UINT layout)
    {
        m_log.push_back("language " + std::to_string(charset) + " " + std::to_string(layout));
    }
    afx_msg void OnInitMenu(CMenu* menu) { m_log.push_back(menu == m_menu ? "menu" : "other menu"); }
    afx_msg void OnUnInitMenuPopup(CMenu* menu, UINT flags)
    {
        m_log.push_back((menu == m_menu ? "popup " : "other popup ") + std::to_string(flags));
    }
    afx_msg void OnDropFiles(HDROP drop) { m_log.push_back("files " + std::to_string(drop != nullptr)); }
    DECLARE_MESSAGE_MAP()

public:
    CMenu* m_menu = nullptr;
};

BEGIN_MESSAGE_MAP(PointerWindow, CWnd)
    ON_WM_SIZING()
    ON_WM_COPYDATA()
    ON_WM_HOTKEY()
    ON_WM_INPUTLANGCHANGE()
    ON_WM_INITMENU()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_DROPFILES()
END_MESSAGE_MAP()

class MessageArguments : public testing::Test
{
protected:
    MessageArguments() { CreateChild(m_window, m_parent, 1); }

    ParentWindow m_parent;
    PointerWindow m_window;
};

TEST_F(MessageArguments, ASizingHandlerChangesTheRectangleOfTheSender)
{
    CRect rect(1, 2, 3, 4);
    m_window.SendMessage(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(m_window.m_log, Log{"sizing 2"});
    EXPECT_TRUE(rect == CRect(1, 2, 8, 4));
}

TEST_F(MessageArguments, CopiedDataComesWithItsSender)
{
    COPYDATASTRUCT data = {77, 4, &data};
    EXPECT_EQ(m_window.SendMessage(WM_COPYDATA, reinterpret_cast<WPARAM>(m_parent.m_hWnd),
                                   reinterpret_cast<LPARAM>(&data)),
              7);
    EXPECT_EQ(m_window.m_log, Log{"data 77 of 4"});
    EXPECT_EQ(m_window.m_sender, &m_parent);
}

TEST_F(MessageArguments, AHotKeyComesAsItsNumberModifiersAndKey)
{
    m_window.SendMessage(WM_HOTKEY, 3, MAKELPARAM(MOD_CONTROL, VK_F5));
    EXPECT_EQ(m_window.m_log, Log{"hot key 3 2 116"});
}

TEST_F(MessageArguments, AnInputLanguageComesAsCharacterSetAndLayout)
{
    m_window.SendMessage(WM_INPUTLANGCHANGE, 204, 0x0419);
    EXPECT_EQ(m_window.m_log, Log{"language 204 1049"});
}

TEST_F(MessageArguments, MenusComeAsTheirObjects)
{
    CMenu menu;
    menu.CreatePopupMenu();
    m_window.m_menu = &menu;
    m_window.SendMessage(WM_INITMENU, reinterpret_cast<WPARAM>(menu.m_hMenu));
    m_window.SendMessage(WM_UNINITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0x2000);
    EXPECT_EQ(m_window.m_log, (Log{"menu", "popup 8192"}));
}

TEST_F(MessageArguments, DroppedFilesComeAsTheirHandle)
{
    m_window.SendMessage(WM_DROPFILES, 1);
    EXPECT_EQ(m_window.m_log, Log{"files 1"});
}

// Notes what top-level windows have to tell their controls.
class SystemChangeWindow : public CWnd
{
public:
    Log m_log;

protected:
    afx_msg void OnSysColorChange()
    {
        m_log.push_back("colours");
        CWnd::OnSysColorChange();
    }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section)
    {
        m_log.push_back("setting " + std::to_string(flags) + " " + std::string(CStringA(section)));
        CWnd::OnSettingChange(flags, section);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SystemChangeWindow, CWnd)
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

TEST(SystemChanges, ATopLevelWindowTellsAllWindowsBelowItOnce)
{
    ParentWindow parent;
    SystemChangeWindow child;
    SystemChangeWindow grandchild;
    ASSERT_TRUE(CreateChild(child, parent, 1));
    ASSERT_TRUE(CreateChild(grandchild, child, 2));
    child.m_log.clear();
    grandchild.m_log.clear();
    parent.SendMessage(WM_SYSCOLORCHANGE);
    parent.SendMessage(WM_SETTINGCHANGE, 9, reinterpret_cast<LPARAM>(L"intl"));
    EXPECT_EQ(child.m_log, (Log{"colours", "setting 9 intl"}));
    EXPECT_EQ(grandchild.m_log, (Log{"colours", "setting 9 intl"}));
}

TEST(SystemChanges, AChildThatHearsOfThemDoesNotRepeatThem)
{
    ParentWindow parent;
    SystemChangeWindow child;
    SystemChangeWindow grandchild;
    ASSERT_TRUE(CreateChild(child, parent, 1));
    ASSERT_TRUE(CreateChild(grandchild, child, 2));
    grandchild.m_log.clear();
    child.SendMessage(WM_SYSCOLORCHANGE);
    child.SendMessage(WM_SETTINGCHANGE, 9, reinterpret_cast<LPARAM>(L"intl"));
    EXPECT_EQ(grandchild.m_log, Log{});
}

} // namespace
} // namespace quor::test
