// A dialog whose test says what it does.
#pragma once

#include "tests/framework/DialogTemplateBuilder.h"

#include <afxwin.h>

#include <functional>
#include <stdexcept>

namespace quor::test
{

// Runs `atStart` in OnInitDialog, and `inLoop` as the first message that its modal loop handles.
class ScriptedDialog : public CDialog
{
public:
    explicit ScriptedDialog(const DialogTemplateBuilder& layout, CWnd* parent = NULL) : CDialog()
    {
        InitModalIndirect(layout.Get(), parent);
    }

    std::function<void()> atStart;
    std::function<void()> inLoop;
    bool closesOnOk = true;
    int okCalls = 0;
    int cancelCalls = 0;
    int initCalls = 0;

    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }

protected:
    BOOL OnInitDialog() override
    {
        const BOOL result = CDialog::OnInitDialog();
        ++initCalls;
        if (inLoop)
            PostMessage(WM_APP);
        if (atStart)
            atStart();
        return result;
    }

    void OnOK() override
    {
        ++okCalls;
        if (closesOnOk)
            CDialog::OnOK();
    }

    void OnCancel() override
    {
        ++cancelCalls;
        CDialog::OnCancel();
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP && inLoop)
            inLoop();
        return CDialog::WindowProc(message, wParam, lParam);
    }
};

} // namespace quor::test
