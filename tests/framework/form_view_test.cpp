// Form views: creation from a template, exchange, keys and focus.
#include "tests/framework/ControlsResource.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <afxext.h>
#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

class Form : public CFormView
{
    DECLARE_DYNCREATE(Form)

public:
    CString text = L"initial";
    CEdit second;
    int presses = 0;
    int initialUpdates = 0;

protected:
    Form() : CFormView(IDD_FORM) {}

    void DoDataExchange(CDataExchange* pDX) override
    {
        CFormView::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_FORM_EDIT, text);
        DDX_Control(pDX, IDC_FORM_EDIT2, second);
    }
    void OnInitialUpdate() override
    {
        ++initialUpdates;
        CFormView::OnInitialUpdate();
    }
    afx_msg void OnPress() { ++presses; }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(Form, CFormView)

BEGIN_MESSAGE_MAP(Form, CFormView)
    ON_BN_CLICKED(IDC_FORM_BUTTON, &Form::OnPress)
END_MESSAGE_MAP()

class FormFrame : public CFrameWnd
{
public:
    int commands = 0;

protected:
    afx_msg void OnCommandHere() { ++commands; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(FormFrame, CFrameWnd)
    ON_COMMAND(ID_TEST_FRAME, &FormFrame::OnCommandHere)
END_MESSAGE_MAP()

class FormViews : public testing::Test
{
protected:
    FormViews()
    {
        m_frame = new FormFrame;
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(Form);
        m_frame->LoadFrame(IDR_FRAME, WS_OVERLAPPEDWINDOW, NULL, &context);
        m_frame->SetWindowPos(NULL, 0, 0, 600, 400, SWP_NOMOVE | SWP_NOZORDER);
        m_frame->InitialUpdateFrame(NULL, TRUE);
        m_form = static_cast<Form*>(m_frame->GetActiveView());
        Activate(m_frame->m_hWnd);
    }
    ~FormViews() override { m_frame->DestroyWindow(); }

    HWND Item(int id) const { return ::GetDlgItem(m_form->m_hWnd, id); }

    FormFrame* m_frame;
    Form* m_form;
};

TEST_F(FormViews, Form_IsCreatedFromItsTemplate)
{
    ASSERT_NE(m_form, nullptr);
    EXPECT_TRUE(m_form->IsKindOf(RUNTIME_CLASS(CFormView)));
    EXPECT_TRUE(m_form->IsKindOf(RUNTIME_CLASS(CScrollView)));
    EXPECT_EQ(m_form->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_NE(Item(IDC_FORM_BUTTON), nullptr);
    EXPECT_TRUE(m_form->IsWindowVisible());
    CRect client, view;
    m_frame->GetClientRect(&client);
    m_form->GetWindowRect(&view);
    m_frame->ScreenToClient(&view);
    EXPECT_EQ(view, client);
}

TEST_F(FormViews, InitialUpdate_ShowsTheMembers)
{
    EXPECT_EQ(m_form->initialUpdates, 1);
    CString text;
    m_form->GetDlgItemText(IDC_FORM_EDIT, text);
    EXPECT_STREQ(text, L"initial");
    EXPECT_EQ(m_form->second.m_hWnd, Item(IDC_FORM_EDIT2));
    m_form->SetDlgItemText(IDC_FORM_EDIT, L"typed");
    EXPECT_TRUE(m_form->UpdateData(TRUE));
    EXPECT_STREQ(m_form->text, L"typed");
}

TEST_F(FormViews, ScrollSizes_AreThoseOfTheTemplate)
{
    CRect size(0, 0, 200, 120);
    ::MapDialogRect(m_form->m_hWnd, &size);
    EXPECT_EQ(m_form->GetTotalSize(), size.Size());
}

TEST_F(FormViews, ButtonClick_ReachesTheForm)
{
    ::SendMessage(Item(IDC_FORM_BUTTON), BM_CLICK, 0, 0);
    EXPECT_EQ(m_form->presses, 1);
}

TEST_F(FormViews, TabKey_MovesBetweenControls)
{
    ::SetFocus(Item(IDC_FORM_EDIT));
    PostKey(Item(IDC_FORM_EDIT), VK_TAB);
    EXPECT_TRUE(PumpUntil([this] { return ::GetFocus() == Item(IDC_FORM_BUTTON); }));
}

TEST_F(FormViews, Accelerators_WorkInsideTheForm)
{
    ::SetFocus(Item(IDC_FORM_EDIT));
    PostKey(Item(IDC_FORM_EDIT), VK_F6);
    EXPECT_TRUE(PumpUntil([this] { return m_frame->commands == 1; }));
}

TEST_F(FormViews, FocusReturnsToTheControlThatHadIt)
{
    ::SetFocus(Item(IDC_FORM_EDIT2));
    m_frame->SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    ::SetFocus(NULL);
    m_frame->SetFocus();
    EXPECT_EQ(::GetFocus(), Item(IDC_FORM_EDIT2));
}

TEST_F(FormViews, AFormThatBecomesActiveKeepsTheControlWithTheFocus)
{
    m_frame->SetActiveView(NULL);
    ::SetFocus(Item(IDC_FORM_EDIT2));
    m_frame->SetActiveView(m_form);
    EXPECT_EQ(::GetFocus(), Item(IDC_FORM_EDIT2));
}

TEST_F(FormViews, MissingTemplate_FailsTheCreation)
{
    class Missing : public CFormView
    {
    public:
        Missing() : CFormView(31997) {}
    };
    Missing* form = new Missing;
    EXPECT_FALSE(form->Create(NULL, NULL, WS_CHILD, CRect(0, 0, 10, 10), m_frame, 1));
}

} // namespace
