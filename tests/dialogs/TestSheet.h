// A property sheet and pages whose test says what they do.
#pragma once

#include "tests/dialogs/PagesResource.h"
#include "tests/support/Pump.h"

#include <afxcmn.h>
#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace quor::test
{

// Writes what the sheet tells it into a log that all pages share, as "one:active two:kill ...".
class TestPage : public CPropertyPage
{
public:
    TestPage(std::string& log, const std::string& name, UINT templateId, UINT captionId = 0)
        : CPropertyPage(templateId, captionId), m_log(log), m_name(name)
    {
    }

    CString text;
    int number = 0;
    BOOL acceptsActivation = TRUE;
    BOOL agreesToCancel = TRUE;
    BOOL applies = TRUE;
    BOOL finishes = TRUE;
    LRESULT next = 0;
    LRESULT siblingAnswer = 0;
    std::function<void()> whenActive;

    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }

    BOOL OnSetActive() override
    {
        Log("active");
        const BOOL result = CPropertyPage::OnSetActive();
        if (whenActive)
            whenActive();
        return result && acceptsActivation;
    }
    BOOL OnKillActive() override
    {
        const BOOL result = CPropertyPage::OnKillActive();
        Log(result ? "kill" : "stays");
        return result;
    }
    BOOL OnApply() override
    {
        Log("apply");
        return CPropertyPage::OnApply() && applies;
    }
    void OnReset() override
    {
        Log("reset");
        CPropertyPage::OnReset();
    }
    void OnOK() override { Log("ok"); }
    void OnCancel() override { Log("cancel"); }
    BOOL OnQueryCancel() override
    {
        Log("query");
        return agreesToCancel;
    }
    LRESULT OnWizardNext() override
    {
        Log("next");
        return next;
    }
    LRESULT OnWizardBack() override
    {
        Log("back");
        return CPropertyPage::OnWizardBack();
    }
    BOOL OnWizardFinish() override
    {
        Log("finish");
        return finishes;
    }

protected:
    BOOL OnInitDialog() override
    {
        Log("init");
        return CPropertyPage::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        CPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, text);
        if (::GetDlgItem(m_hWnd, IDC_NUMBER) != NULL)
            DDX_Text(pDX, IDC_NUMBER, number);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == PSM_QUERYSIBLINGS)
            return siblingAnswer;
        return CPropertyPage::WindowProc(message, wParam, lParam);
    }

private:
    void Log(const char* what) { m_log += m_name + ":" + what + " "; }

    std::string& m_log;
    std::string m_name;
};

// Runs `inLoop` as the first message that the open sheet handles. A sheet that stays open is a failure.
class TestSheet : public CPropertySheet
{
public:
    using CPropertySheet::CPropertySheet;

    std::function<void()> inLoop;
    int initCalls = 0;

    BOOL OnInitDialog() override
    {
        ++initCalls;
        const BOOL result = CPropertySheet::OnInitDialog();
        PostMessage(WM_APP);
        SetTimer(99, DefaultDeadline, NULL);
        return result;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP && inLoop)
            inLoop();
        if (message == WM_TIMER && wParam == 99)
        {
            ADD_FAILURE() << "the sheet stays open";
            EndDialog(-2);
            return 0;
        }
        return CPropertySheet::WindowProc(message, wParam, lParam);
    }
};

} // namespace quor::test
