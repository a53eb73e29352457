// The mode of the edit that selects all on the first click.
#include "tests/fuzz/Modes.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

#include "controls/CAllSelectEdit.h"

#include <memory>

namespace quor::fuzz
{

using QuorUiCtr::CAllSelectEdit;

namespace
{

class SelectAllSubject : public Subject
{
public:
    explicit SelectAllSubject(bool bare) : isBare(bare) {}

    void Create(CWnd& parent) override
    {
        constexpr DWORD styles[] = {0, ES_AUTOHSCROLL, ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL,
                                    ES_PASSWORD, ES_READONLY};
        edit = isBare ? std::make_unique<CEdit>() : std::make_unique<CAllSelectEdit>();
        edit->Create(WS_CHILD | WS_VISIBLE | WS_BORDER | Dice().Pick(styles), CRect(10, 10, 210, 60), &parent,
                     7);
        edit->SetWindowText(AnyText());
    }

    void Destroy() override { edit.reset(); }
    HWND Window() override { return edit ? edit->GetSafeHwnd() : nullptr; }
    void Call() override;
    void Check() override;
    unsigned long Digest() override { return Window() != nullptr ? edit->GetSel() : 0; }
    bool OnHostMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

private:
    bool isBare;
    std::unique_ptr<CEdit> edit;
};

void SelectAllSubject::Call()
{
    const long kind = Dice().Below(7);
    Say("edit, kind %ld", kind);
    switch (kind)
    {
    case 0:
        return edit->SetSel(static_cast<int>(Dice().Between(-1, 20)),
                            static_cast<int>(Dice().Between(-1, 20)));
    case 1:
        return edit->ReplaceSel(AnyText(), Dice().OneIn(2));
    case 2:
        edit->SetReadOnly(Dice().OneIn(4));
        return;
    case 3:
        return edit->SetLimitText(static_cast<UINT>(Dice().Below(60)));
    case 4:
        edit->Undo();
        return;
    case 5:
        if (Dice().OneIn(10))
            edit->DestroyWindow();
        return;
    default:
        return edit->SetWindowText(AnyText());
    }
}

// The owner destroys the edit or changes it while it is told of something. Not from inside EN_CHANGE and
// EN_UPDATE: the platform's edit goes on with the memory of its text.
bool SelectAllSubject::OnHostMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&)
{
    if (message != WM_COMMAND || Window() == nullptr || !WantsMischief(6))
        return false;
    const WORD code = HIWORD(wParam);
    const Mischief mischief("a command");
    if (code == EN_SETFOCUS || code == EN_KILLFOCUS)
        Call();
    return false;
}

void SelectAllSubject::Check()
{
    int first = 0;
    int last = 0;
    edit->GetSel(first, last);
    if (first > last || last > edit->GetWindowTextLength())
        Fail("%d to %d of %d characters are selected", first, last, edit->GetWindowTextLength());
}

} // namespace

std::unique_ptr<Subject> MakeSelectAllMode(bool bare)
{
    return std::make_unique<SelectAllSubject>(bare);
}

} // namespace quor::fuzz
