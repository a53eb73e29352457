// Control objects put over existing controls: reflected notifications and colours, and temporary objects.
#include "tests/framework/DialogTemplateBuilder.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

constexpr int editId = 101;
constexpr int listId = 102;
constexpr int buttonId = 103;
constexpr COLORREF backgroundColor = RGB(10, 20, 30);

// Handles its own change notification and colours.
class ReflectingEdit : public CEdit
{
public:
    bool passesOn = false;
    int changes = 0;
    UINT lastColorKind = 99;
    CBrush brush{backgroundColor};

protected:
    afx_msg BOOL OnChange()
    {
        ++changes;
        return !passesOn;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT nCtlColor)
    {
        lastColorKind = nCtlColor;
        return brush;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class DrawingList : public CListBox
{
public:
    int measured = 0;
    std::vector<UINT> drawn;
    int compared = 0;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemHeight = 20;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemID); }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override
    {
        ++compared;
        return item->itemData1 < item->itemData2 ? 1 : item->itemData1 > item->itemData2 ? -1 : 0;
    }
};

class ParentDialog : public CDialog
{
public:
    int changes = 0;
    ReflectingEdit edit;
    CButton button;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        edit.SubclassDlgItem(editId, this);
        return TRUE;
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, buttonId, button);
    }
    afx_msg void OnEditChange() { ++changes; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ParentDialog, CDialog)
    ON_EN_CHANGE(editId, &ParentDialog::OnEditChange)
END_MESSAGE_MAP()

class Subclass : public testing::Test
{
protected:
    Subclass()
    {
        DialogTemplateBuilder layout;
        layout.AddEdit(editId).Add(L"LISTBOX", L"", 0, listId).AddButton(buttonId);
        m_dialog.CreateIndirect(layout.Get(), &m_host);
    }

    HostWindow m_host;
    ParentDialog m_dialog;
};

TEST_F(Subclass, SubclassDlgItem_PutsTheObjectOverTheControl)
{
    EXPECT_EQ(m_dialog.edit.m_hWnd, ::GetDlgItem(m_dialog.m_hWnd, editId));
    EXPECT_EQ(m_dialog.GetDlgItem(editId), &m_dialog.edit);
    m_dialog.edit.SetWindowText(L"abc");
    EXPECT_EQ(m_dialog.edit.LineLength(), 3);
}

TEST_F(Subclass, SubclassDlgItem_FailsWithoutTheControl)
{
    CEdit edit;
    EXPECT_FALSE(edit.SubclassDlgItem(4711, &m_dialog));
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST_F(Subclass, DdxControl_HasAttachedBeforeOnInitDialogReturns)
{
    EXPECT_EQ(m_dialog.button.m_hWnd, ::GetDlgItem(m_dialog.m_hWnd, buttonId));
}

TEST_F(Subclass, ReflectedNotification_ReachesTheParentOnlyIfPassedOn)
{
    m_dialog.edit.ReplaceSel(L"x");
    EXPECT_EQ(m_dialog.edit.changes, 1);
    EXPECT_EQ(m_dialog.changes, 0);
    m_dialog.edit.passesOn = true;
    m_dialog.edit.ReplaceSel(L"y");
    EXPECT_EQ(m_dialog.edit.changes, 2);
    EXPECT_EQ(m_dialog.changes, 1);
}

TEST_F(Subclass, ReflectedColor_IsTheAnswerToTheControl)
{
    CClientDC dc(&m_dialog.edit);
    const LRESULT brush = m_dialog.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                               reinterpret_cast<LPARAM>(m_dialog.edit.m_hWnd));
    EXPECT_EQ(m_dialog.edit.lastColorKind, static_cast<UINT>(CTLCOLOR_EDIT));
    EXPECT_EQ(reinterpret_cast<HBRUSH>(brush), static_cast<HBRUSH>(m_dialog.edit.brush));
}

TEST_F(Subclass, UnsubclassWindow_LeavesTheControlAlive)
{
    const HWND handle = m_dialog.edit.UnsubclassWindow();
    EXPECT_TRUE(::IsWindow(handle));
    EXPECT_EQ(m_dialog.edit.m_hWnd, nullptr);
    EXPECT_NE(m_dialog.GetDlgItem(editId), &m_dialog.edit);
    ::SetWindowText(handle, L"still works");
    EXPECT_EQ(::GetWindowTextLength(handle), 11);
    EXPECT_EQ(m_dialog.edit.changes, 0);
}

TEST_F(Subclass, DestructorOfAControl_DestroysItsWindow)
{
    HWND handle = NULL;
    {
        CListBox list;
        ASSERT_TRUE(list.SubclassDlgItem(listId, &m_dialog));
        handle = list.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST_F(Subclass, OwnerDrawnList_IsMeasuredDrawnAndSortedByItsObject)
{
    DrawingList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_SORT | LBS_NOTIFY,
                            CRect(0, 0, 100, 100), &m_host, 7));
    for (INT_PTR value : {2, 9, 5})
        ::SendMessage(list.m_hWnd, LB_ADDSTRING, 0, value);
    EXPECT_EQ(list.measured, 3);
    EXPECT_GT(list.compared, 0);
    EXPECT_EQ(list.GetItemHeight(0), 20);
    std::vector<DWORD_PTR> order;
    for (int i = 0; i < list.GetCount(); ++i)
        order.push_back(list.GetItemData(i));
    EXPECT_EQ(order, (std::vector<DWORD_PTR>{9, 5, 2}));
    list.drawn.clear();
    list.Invalidate();
    list.UpdateWindow();
    EXPECT_EQ(list.drawn, (std::vector<UINT>{0, 1, 2}));
}

TEST_F(Subclass, OwnerDrawnButton_IsDrawnByItsObject)
{
    class DrawingButton : public CButton
    {
    public:
        UINT action = 0;
        void DrawItem(LPDRAWITEMSTRUCT item) override { action |= item->itemAction; }
    };
    DrawingButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 50, 20), &m_host, 8));
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_TRUE(button.action & ODA_DRAWENTIRE);
}

TEST_F(Subclass, TemporaryObject_CanBeCastToItsControlClass)
{
    CListBox* list = static_cast<CListBox*>(m_dialog.GetDlgItem(listId));
    EXPECT_EQ(CWnd::FromHandlePermanent(list->m_hWnd), nullptr);
    EXPECT_EQ(list->AddString(L"one"), 0);
    EXPECT_EQ(list->AddString(L"two"), 1);
    EXPECT_EQ(list->GetCount(), 2);
}

} // namespace
