// Views that are a control: list, tree and edit.
#include "tests/support/HostWindow.h"

#include <afxcview.h>
#include <afxext.h>
#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace quor::test;

// A document that the views do not own.
class PlainDocument : public CDocument
{
public:
    PlainDocument() { m_bAutoDelete = FALSE; }
};

class ControlViews : public testing::Test
{
protected:
    // As a frame creates its view.
    template <class View> View* Make()
    {
        CCreateContext context;
        context.m_pCurrentDoc = &m_document;
        View* const view = static_cast<View*>(RUNTIME_CLASS(View)->CreateObject());
        EXPECT_TRUE(view->Create(NULL, NULL, WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(0, 0, 200, 100),
                                 &m_host, AFX_IDW_PANE_FIRST, &context));
        view->OnInitialUpdate();
        return view;
    }
    static std::wstring ClassOf(const CWnd* window)
    {
        wchar_t name[32] = L"";
        ::GetClassName(window->m_hWnd, name, 32);
        return name;
    }

    PlainDocument m_document;
    HostWindow m_host;
};

TEST_F(ControlViews, AListViewIsAListControl)
{
    CListView* const view = Make<CListView>();
    EXPECT_EQ(ClassOf(view), L"SysListView32");
    EXPECT_EQ(view->GetDocument(), &m_document);
    EXPECT_EQ(view->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_TRUE(view->GetExStyle() & WS_EX_CLIENTEDGE);
    CListCtrl& list = view->GetListCtrl();
    EXPECT_EQ(list.InsertItem(0, L"one"), 0);
    EXPECT_STREQ(list.GetItemText(0, 0), L"one");
    view->UpdateWindow();
    EXPECT_FALSE(view->GetUpdateRect(NULL)) << "the control has painted itself";
    view->DestroyWindow();
}

// A list view in the report style, as programs make it.
class ReportView : public CListView
{
    DECLARE_DYNCREATE(ReportView)

public:
    static int live;
    ReportView() { ++live; }
    ~ReportView() override { --live; }
    using CListView::RemoveImageList;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        cs.style |= LVS_REPORT | LVS_SINGLESEL;
        return CListView::PreCreateWindow(cs);
    }

public:
    void OnInitialUpdate() override
    {
        CListView::OnInitialUpdate();
        GetListCtrl().InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
    }
};
int ReportView::live = 0;
IMPLEMENT_DYNCREATE(ReportView, CListView)

TEST_F(ControlViews, AListViewHasTheStyleThatItsPreCreateWindowAsksFor)
{
    ReportView* const view = Make<ReportView>();
    EXPECT_TRUE(view->GetStyle() & LVS_SINGLESEL);
    EXPECT_EQ(view->GetStyle() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_EQ(view->GetListCtrl().GetColumnWidth(0), 80);
    view->DestroyWindow();
    EXPECT_EQ(ReportView::live, 0) << "views delete themselves";
}

TEST_F(ControlViews, AListViewLeavesImageListsToTheirObjects)
{
    CImageList small, state;
    small.Create(16, 16, ILC_COLOR32, 1, 1);
    state.Create(16, 16, ILC_COLOR32, 1, 1);
    ReportView* const view = Make<ReportView>();
    view->GetListCtrl().SetImageList(&small, LVSIL_SMALL);
    view->GetListCtrl().SetImageList(&state, LVSIL_STATE);
    view->RemoveImageList(LVSIL_STATE);
    EXPECT_EQ(view->GetListCtrl().GetImageList(LVSIL_STATE), nullptr);
    view->DestroyWindow();
    EXPECT_NE(::ImageList_GetImageCount(small), -1);
    int width = 0, height = 0;
    EXPECT_TRUE(::ImageList_GetIconSize(small, &width, &height)) << "it is still alive";
    EXPECT_TRUE(::ImageList_GetIconSize(state, &width, &height));
}

TEST_F(ControlViews, ATreeViewIsATreeControl)
{
    CTreeView* const view = Make<CTreeView>();
    EXPECT_EQ(ClassOf(view), L"SysTreeView32");
    CTreeCtrl& tree = view->GetTreeCtrl();
    const HTREEITEM root = tree.InsertItem(L"root");
    EXPECT_STREQ(tree.GetItemText(root), L"root");
    view->DestroyWindow();
}

// An edit view whose searches can be called.
class TextView : public CEditView
{
    DECLARE_DYNCREATE(TextView)

public:
    int m_notFound = 0;
    using CEditView::OnFindNext;
    using CEditView::OnReplaceAll;
    using CEditView::OnReplaceSel;

protected:
    void OnTextNotFound(LPCTSTR) override { ++m_notFound; }
};
IMPLEMENT_DYNCREATE(TextView, CEditView)

class EditViewTest : public ControlViews
{
protected:
    void SetUp() override { m_view = Make<TextView>(); }
    void TearDown() override { m_view->DestroyWindow(); }

    std::wstring Text() const
    {
        const std::wstring text(m_view->LockBuffer());
        m_view->UnlockBuffer();
        return text;
    }
    std::wstring Selected() const
    {
        CString text;
        m_view->GetSelectedText(text);
        return std::wstring(text);
    }
    int SelectionStart() const
    {
        int first = 0, behind = 0;
        m_view->GetEditCtrl().GetSel(first, behind);
        return first;
    }
    void Command(UINT id) { EXPECT_TRUE(m_view->OnCmdMsg(id, CN_COMMAND, NULL, NULL)); }
    bool IsEnabled(UINT id)
    {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, id, L"Item");
        CCmdUI state;
        state.m_pMenu = &menu;
        state.m_nID = id;
        state.DoUpdate(m_view, TRUE);
        return (menu.GetMenuState(id, MF_BYCOMMAND) & MF_GRAYED) == 0;
    }

    TextView* m_view = nullptr;
};

TEST_F(EditViewTest, IsAMultilineEditWithoutALimit)
{
    EXPECT_EQ(ClassOf(m_view), L"Edit");
    EXPECT_TRUE(m_view->GetStyle() & ES_MULTILINE);
    EXPECT_TRUE(m_view->GetStyle() & WS_VSCROLL);
    const CString longText(L'x', 100'000);
    m_view->SetWindowText(longText);
    EXPECT_EQ(m_view->GetBufferLength(), 100'000u);
    EXPECT_EQ(Text().size(), 100'000u);
}

TEST_F(EditViewTest, AChangeMarksTheDocument)
{
    EXPECT_FALSE(m_document.IsModified());
    m_view->GetEditCtrl().ReplaceSel(L"typed");
    EXPECT_TRUE(m_document.IsModified());
}

TEST_F(EditViewTest, TheSelectedTextIsItsFirstLine)
{
    m_view->SetWindowText(L"one\r\ntwo");
    m_view->GetEditCtrl().SetSel(1, 7);
    EXPECT_EQ(Selected(), L"ne");
    m_view->GetEditCtrl().SetSel(5, 8);
    EXPECT_EQ(Selected(), L"two");
}

TEST_F(EditViewTest, TheCommandsOfTheEditMenuEdit)
{
    m_view->SetWindowText(L"one two");
    Command(ID_EDIT_SELECT_ALL);
    Command(ID_EDIT_CUT);
    EXPECT_EQ(Text(), L"");
    Command(ID_EDIT_PASTE);
    EXPECT_EQ(Text(), L"one two");
    Command(ID_EDIT_CLEAR_ALL);
    EXPECT_EQ(Text(), L"");
    EXPECT_FALSE(m_view->OnCmdMsg(ID_EDIT_PASTE_SPECIAL, CN_COMMAND, NULL, NULL)) << "not one of them";
}

TEST_F(EditViewTest, TheCommandsAreEnabledWhenTheyCanDoSomething)
{
    m_view->SetWindowText(L"");
    EXPECT_FALSE(IsEnabled(ID_EDIT_COPY));
    EXPECT_FALSE(IsEnabled(ID_EDIT_SELECT_ALL));
    EXPECT_FALSE(IsEnabled(ID_EDIT_UNDO));
    m_view->GetEditCtrl().ReplaceSel(L"typed", TRUE);
    EXPECT_TRUE(IsEnabled(ID_EDIT_SELECT_ALL));
    EXPECT_TRUE(IsEnabled(ID_EDIT_UNDO));
    m_view->GetEditCtrl().SetSel(0, 2);
    EXPECT_TRUE(IsEnabled(ID_EDIT_COPY));
    Command(ID_EDIT_COPY);
    EXPECT_TRUE(IsEnabled(ID_EDIT_PASTE));
}

TEST_F(EditViewTest, FindsForwardAndBackward)
{
    m_view->SetWindowText(L"Cat cat CAT");
    m_view->GetEditCtrl().SetSel(0, 0);
    EXPECT_TRUE(m_view->FindText(L"cat"));
    EXPECT_EQ(SelectionStart(), 4);
    EXPECT_FALSE(m_view->FindText(L"cat")) << "the only one in small letters";
    EXPECT_TRUE(m_view->FindText(L"cat", TRUE, FALSE));
    EXPECT_EQ(SelectionStart(), 8);
    EXPECT_TRUE(m_view->FindText(L"cat", FALSE, FALSE));
    EXPECT_EQ(SelectionStart(), 4);
    EXPECT_TRUE(m_view->FindText(L"cat", FALSE, FALSE));
    EXPECT_EQ(SelectionStart(), 0);
    EXPECT_FALSE(m_view->FindText(L"cat", FALSE, FALSE));
}

TEST_F(EditViewTest, ReplacesWhatWasFound)
{
    m_view->SetWindowText(L"a b a b a");
    m_view->GetEditCtrl().SetSel(0, 0);
    m_view->OnReplaceSel(L"a", TRUE, TRUE, L"xx");
    EXPECT_EQ(Text(), L"a b a b a") << "nothing was selected: it only goes there";
    m_view->OnReplaceSel(L"a", TRUE, TRUE, L"xx");
    EXPECT_EQ(Text(), L"xx b a b a");
    EXPECT_EQ(Selected(), L"a");
    m_view->OnReplaceAll(L"b", L"bb", TRUE);
    EXPECT_EQ(Text(), L"xx bb a bb a");
    EXPECT_EQ(m_view->m_notFound, 0);
    m_view->OnFindNext(L"zebra", TRUE, TRUE);
    EXPECT_EQ(m_view->m_notFound, 1);
}

} // namespace
