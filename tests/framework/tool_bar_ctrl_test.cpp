// The tool bar control by itself, against the platform's: its buttons, texts, images and saved state.
#include "tests/framework/ControlsResource.h"
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

TBBUTTON Button(int id, INT_PTR text = -1)
{
    TBBUTTON button = {};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = id;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
    button.iString = text;
    return button;
}

class ToolBarWrapper : public testing::Test
{
protected:
    ToolBarWrapper() { m_bar.Create(WS_VISIBLE | CCS_NOPARENTALIGN, CRect(0, 0, 300, 40), &m_host, 1); }

    HostWindow m_host;
    CToolBarCtrl m_bar;
};

TEST_F(ToolBarWrapper, ButtonsAreAddedMovedAndDeleted)
{
    ASSERT_NE(m_bar.m_hWnd, nullptr);
    TBBUTTON buttons[] = {Button(10), Button(11)};
    ASSERT_TRUE(m_bar.AddButtons(2, buttons));
    TBBUTTON first = Button(9);
    ASSERT_TRUE(m_bar.InsertButton(0, &first));
    EXPECT_EQ(m_bar.GetButtonCount(), 3);
    EXPECT_EQ(m_bar.CommandToIndex(11), 2u);
    EXPECT_TRUE(m_bar.MoveButton(2, 0));
    EXPECT_EQ(m_bar.CommandToIndex(11), 0u);
    EXPECT_TRUE(m_bar.SetCmdID(0, 12));
    TBBUTTON read = {};
    ASSERT_TRUE(m_bar.GetButton(0, &read));
    EXPECT_EQ(read.idCommand, 12);
    EXPECT_TRUE(m_bar.DeleteButton(0));
    EXPECT_EQ(m_bar.GetButtonCount(), 2);
}

TEST_F(ToolBarWrapper, StatesOfAButtonAreSetOneByOne)
{
    TBBUTTON button = Button(10);
    ASSERT_TRUE(m_bar.AddButtons(1, &button));
    EXPECT_TRUE(m_bar.IsButtonEnabled(10));
    EXPECT_TRUE(m_bar.EnableButton(10, FALSE));
    EXPECT_FALSE(m_bar.IsButtonEnabled(10));
    EXPECT_TRUE(m_bar.CheckButton(10));
    EXPECT_TRUE(m_bar.IsButtonChecked(10));
    EXPECT_TRUE(m_bar.PressButton(10));
    EXPECT_TRUE(m_bar.IsButtonPressed(10));
    EXPECT_TRUE(m_bar.HideButton(10));
    EXPECT_TRUE(m_bar.IsButtonHidden(10));
    EXPECT_TRUE(m_bar.Indeterminate(10));
    EXPECT_TRUE(m_bar.IsButtonIndeterminate(10));
    EXPECT_TRUE(m_bar.SetState(10, TBSTATE_ENABLED | TBSTATE_CHECKED));
    EXPECT_EQ(m_bar.GetState(10), TBSTATE_ENABLED | TBSTATE_CHECKED);
    EXPECT_EQ(m_bar.GetState(99), -1);
}

TEST_F(ToolBarWrapper, TextsComeFromListsAndFromResources)
{
    EXPECT_EQ(m_bar.AddStrings(L"Open\0Save\0"), 0);
    TBBUTTON buttons[] = {Button(10, 1), Button(11)};
    ASSERT_TRUE(m_bar.AddButtons(2, buttons));
    EXPECT_EQ(m_bar.GetButtonText(10), L"Save");
    EXPECT_EQ(m_bar.GetButtonText(99), L"");
    wchar_t first[64] = {};
    EXPECT_EQ(m_bar.GetString(0, first, 64), 4);
    EXPECT_STREQ(first, L"Open");
    CString text = L"before";
    EXPECT_EQ(m_bar.GetString(7, text), -1);
    EXPECT_EQ(text, L"");
}

TEST_F(ToolBarWrapper, ImageListsAreExchanged)
{
    CImageList normal, hot;
    normal.Create(16, 16, ILC_COLOR24, 1, 1);
    hot.Create(16, 16, ILC_COLOR24, 1, 1);
    EXPECT_EQ(m_bar.GetImageList(), nullptr);
    EXPECT_EQ(m_bar.SetImageList(&normal), nullptr);
    EXPECT_EQ(m_bar.GetImageList(), &normal);
    EXPECT_EQ(m_bar.SetImageList(&hot), &normal);
    EXPECT_EQ(m_bar.SetHotImageList(&hot), nullptr);
    EXPECT_EQ(m_bar.GetHotImageList(), &hot);
    EXPECT_EQ(m_bar.SetDisabledImageList(&normal), nullptr);
    EXPECT_EQ(m_bar.GetDisabledImageList(), &normal);
    m_bar.SetImageList(nullptr);
    m_bar.SetHotImageList(nullptr);
    m_bar.SetDisabledImageList(nullptr);
}

TEST_F(ToolBarWrapper, BitmapsAreAddedBehindEachOther)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(16, 15, 1, 1, nullptr));
    EXPECT_EQ(m_bar.AddBitmap(1, &bitmap), 0);
    EXPECT_EQ(m_bar.AddBitmap(1, IDB_NUMBERED), 1);
    TBBUTTON button = Button(10);
    ASSERT_TRUE(m_bar.AddButtons(1, &button));
    EXPECT_TRUE(m_bar.ChangeBitmap(10, 1));
    EXPECT_EQ(m_bar.GetBitmap(10), 1);
}

TEST_F(ToolBarWrapper, TipsBelongToTheControlThatWasSet)
{
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_host));
    m_bar.SetToolTips(&tips);
    EXPECT_EQ(m_bar.GetToolTips(), &tips);
    m_bar.SetToolTips(nullptr);
    EXPECT_EQ(m_bar.GetToolTips(), nullptr);
}

TEST_F(ToolBarWrapper, PaddingIsReadAsItWasSet)
{
    m_bar.SetPadding(2, 1);
    int horizontal = 0, vertical = 0;
    EXPECT_TRUE(m_bar.GetPadding(&horizontal, &vertical));
    EXPECT_EQ(horizontal, 2);
    EXPECT_EQ(vertical, 1);
}

TEST_F(ToolBarWrapper, SizesOfButtonsFollowWhatIsSet)
{
    TBBUTTON button = Button(10);
    button.fsStyle = BTNS_BUTTON;
    ASSERT_TRUE(m_bar.AddButtons(1, &button));
    ASSERT_TRUE(m_bar.SetButtonSize(CSize(50, 30)));
    EXPECT_EQ(m_bar.GetButtonSize(), static_cast<DWORD>(MAKELONG(50, 30)));
    CRect byIndex, byId;
    ASSERT_TRUE(m_bar.GetItemRect(0, &byIndex));
    ASSERT_TRUE(m_bar.GetRect(10, &byId));
    EXPECT_EQ(byIndex, byId);
    EXPECT_EQ(byIndex.Size(), CSize(50, 30));
    CPoint inside = byIndex.CenterPoint();
    EXPECT_EQ(m_bar.HitTest(&inside), 0);
}

} // namespace
