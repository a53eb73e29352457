// CToolBarCtrl and CStatusBarCtrl on their own: creation, images, texts, tips and the state that is stored.
#include "tests/framework/ControlsResource.h"
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <afxext.h>

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr UINT BarId = 31;
constexpr int FirstButton = 201;
constexpr int SecondButton = 202;

class ToolBarControl : public testing::Test
{
protected:
    ToolBarControl()
    {
        EXPECT_TRUE(m_bar.Create(WS_CHILD | WS_VISIBLE | CCS_NORESIZE, CRect(0, 0, 300, 40), &m_host, BarId));
        TBBUTTON buttons[2] = {};
        buttons[0].idCommand = FirstButton;
        buttons[1].idCommand = SecondButton;
        for (TBBUTTON& button : buttons)
        {
            button.iBitmap = I_IMAGENONE;
            button.fsState = TBSTATE_ENABLED;
            button.iString = -1;
        }
        EXPECT_TRUE(m_bar.AddButtons(2, buttons));
    }

    HostWindow m_host;
    CToolBarCtrl m_bar;
};

TEST_F(ToolBarControl, IsAChildThatKnowsTheSizeOfItsButtons)
{
    EXPECT_TRUE(m_bar.IsKindOf(RUNTIME_CLASS(CToolBarCtrl)));
    EXPECT_EQ(m_bar.GetDlgCtrlID(), static_cast<int>(BarId));
    EXPECT_EQ(m_bar.GetParent(), &m_host);
    EXPECT_EQ(m_bar.GetButtonCount(), 2);
    TBBUTTON second = {};
    ASSERT_TRUE(m_bar.GetButton(1, &second));
    EXPECT_EQ(second.idCommand, SecondButton);
}

TEST_F(ToolBarControl, IsNotMadeWithoutAParent)
{
    CToolBarCtrl orphan;
    EXPECT_FALSE(orphan.Create(WS_CHILD, CRect(0, 0, 10, 10), nullptr, 1));
    EXPECT_EQ(orphan.m_hWnd, nullptr);
}

TEST_F(ToolBarControl, ItsPressedImagesAreAList)
{
    CImageList images;
    images.Create(8, 8, ILC_COLOR24, 1, 1);
    m_bar.SetPressedImageList(0, &images);
    EXPECT_EQ(reinterpret_cast<HIMAGELIST>(m_bar.SendMessage(TB_GETPRESSEDIMAGELIST)),
              m_bar.GetPressedImageList()->GetSafeHandle());
    CImageList plain;
    plain.Create(8, 8, ILC_COLOR24, 1, 1);
    EXPECT_EQ(m_bar.SetImageList(&plain), nullptr);
    EXPECT_EQ(m_bar.GetImageList(), &plain);
    EXPECT_EQ(m_bar.SetImageList(nullptr), &plain);
    m_bar.SetPressedImageList(0, nullptr);
}

TEST_F(ToolBarControl, BitmapsAreAddedBehindEachOther)
{
    CBitmap pixels;
    pixels.CreateBitmap(32, 16, 1, 32, nullptr);
    m_bar.SetBitmapSize(CSize(16, 16));
    EXPECT_EQ(m_bar.AddBitmap(2, &pixels), 0);
    EXPECT_EQ(m_bar.AddBitmap(1, IDB_NUMBERED), 2) << "behind the two of the first bitmap";
    EXPECT_EQ(m_bar.AddBitmap(1, 4711), -1) << "no such bitmap";
}

TEST_F(ToolBarControl, TextsComeFromResourcesAndLists)
{
    // Its first character separates the strings of a resource.
    EXPECT_EQ(m_bar.AddString(IDS_TOOL_TEXTS), 0);
    const int third = m_bar.AddStrings(L"Third\0Fourth\0");
    EXPECT_GE(third, 2);
    CString text(L"before");
    EXPECT_EQ(m_bar.GetString(1, text), 6);
    EXPECT_STREQ(text, L"Second");
    EXPECT_EQ(m_bar.GetString(third + 1, text), 6);
    EXPECT_STREQ(text, L"Fourth");
    EXPECT_EQ(m_bar.GetString(99, text), -1);
    EXPECT_STREQ(text, L"");
}

TEST_F(ToolBarControl, AButtonHasItsText)
{
    EXPECT_TRUE(m_bar.GetButtonText(FirstButton).IsEmpty());
    EXPECT_TRUE(m_bar.GetButtonText(999).IsEmpty()) << "no such button";
    TBBUTTONINFO info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT;
    wchar_t label[] = L"A label";
    info.pszText = label;
    ASSERT_TRUE(m_bar.SetButtonInfo(SecondButton, &info));
    EXPECT_STREQ(m_bar.GetButtonText(SecondButton), L"A label");
}

TEST_F(ToolBarControl, ThePaddingHasTwoParts)
{
    m_bar.SetPadding(2, 1);
    int horizontal = 0;
    int vertical = 0;
    EXPECT_TRUE(m_bar.GetPadding(&horizontal, &vertical));
    EXPECT_EQ(horizontal, 2);
    EXPECT_EQ(vertical, 1);
}

TEST_F(ToolBarControl, ItsToolTipsCanBeReplaced)
{
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_host));
    EXPECT_EQ(m_bar.GetToolTips(), nullptr);
    m_bar.SetToolTips(&tips);
    EXPECT_EQ(m_bar.GetToolTips(), &tips);
    m_bar.SetToolTips(nullptr);
    EXPECT_EQ(m_bar.GetToolTips(), nullptr);
}

// A key of the registry that goes with the object.
class ScratchKey
{
public:
    ScratchKey() { ::RegDeleteTree(HKEY_CURRENT_USER, Path()); }
    ~ScratchKey() { ::RegDeleteTree(HKEY_CURRENT_USER, Path()); }
    ScratchKey(const ScratchKey&) = delete;
    ScratchKey& operator=(const ScratchKey&) = delete;

    static LPCTSTR Path() { return L"Software\\QuorToolBarTest"; }
    bool HasValue(LPCTSTR name) const
    {
        return ::RegGetValue(HKEY_CURRENT_USER, Path(), name, RRF_RT_ANY, nullptr, nullptr, nullptr) ==
               ERROR_SUCCESS;
    }
};

TEST_F(ToolBarControl, ItsStateIsStoredAndComesBack)
{
    const ScratchKey key;
    m_bar.SaveState(HKEY_CURRENT_USER, ScratchKey::Path(), L"Bar");
    ASSERT_TRUE(key.HasValue(L"Bar"));
    m_bar.DeleteButton(0);
    ASSERT_EQ(m_bar.GetButtonCount(), 1);
    m_host.TakeLog();
    m_bar.RestoreState(HKEY_CURRENT_USER, ScratchKey::Path(), L"Bar");
    bool asked = false;
    for (const std::string& line : m_host.TakeLog())
        asked |= line ==
                 "notify " + std::to_string(BarId) + " code " + std::to_string(static_cast<int>(TBN_RESTORE));
    EXPECT_TRUE(asked) << "the parent is asked about what is restored";
}

TEST_F(ToolBarControl, GivesTheDropTargetOfTheControl)
{
    IDropTarget* target = nullptr;
    // Without TBSTYLE_REGISTERDROP there is none.
    EXPECT_TRUE(FAILED(m_bar.GetDropTarget(&target)) || target == nullptr);
}

class StatusBarControl : public testing::Test
{
protected:
    StatusBarControl()
    {
        EXPECT_TRUE(m_bar.Create(WS_CHILD | WS_VISIBLE | SBARS_TOOLTIPS, CRect(), &m_host, 5));
        int edges[] = {100, -1};
        m_bar.SetParts(2, edges);
    }

    HostWindow m_host;
    CStatusBarCtrl m_bar;
};

TEST_F(StatusBarControl, TextsHaveATypeAndALength)
{
    m_bar.SetText(L"popped out", 1, SBT_POPOUT);
    int type = 0;
    EXPECT_EQ(m_bar.GetTextLength(1, &type), 10);
    EXPECT_EQ(type, SBT_POPOUT);
    type = 0;
    EXPECT_STREQ(m_bar.GetText(1, &type), L"popped out");
    EXPECT_EQ(type, SBT_POPOUT);
    EXPECT_EQ(m_bar.GetTextLength(1), 10);
}

TEST_F(StatusBarControl, APaneHasATip)
{
    m_bar.SetTipText(1, L"What the pane shows");
    EXPECT_STREQ(m_bar.GetTipText(1), L"What the pane shows");
    EXPECT_TRUE(m_bar.GetTipText(0).IsEmpty());
}

TEST_F(StatusBarControl, AnOwnerDrawnPaneIsDrawnByItsObject)
{
    class DrawingBar : public CStatusBarCtrl
    {
    public:
        std::vector<UINT> drawn;
        void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemID); }
    };
    DrawingBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | CCS_TOP, CRect(), &m_host, 6));
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CStatusBarCtrl)));
    int edges[] = {100, -1};
    bar.SetParts(2, edges);
    bar.SetText(L"", 1, SBT_OWNERDRAW);
    bar.drawn.clear();
    bar.Invalidate();
    bar.UpdateWindow();
    EXPECT_EQ(bar.drawn, std::vector<UINT>{1u});
}

} // namespace
} // namespace quor::test
