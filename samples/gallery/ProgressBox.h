// ProgressBox: a small window over long work, with a bar and a button that stops it.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

// The window appears when the work has taken a moment; meanwhile its owner takes no input. It lives as long
// as the work.
class ProgressBox : public CDialog
{
public:
    // `text` says what is done. `owner` outlives the box.
    ProgressBox(CWnd& owner, const CString& text);
    ~ProgressBox() override;

    // Shows how far the work is, 0 to 1, and lets windows paint and the user press Cancel. Returns false once
    // that was done.
    bool Report(double done);
    bool IsCancelled() const { return cancelled; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override {}
    void OnCancel() override { cancelled = true; }

private:
    void Appear();

    CWnd& owner;
    CString text;
    CProgressCtrl bar;
    ULONGLONG begun;
    bool cancelled = false;
};
