// The list of what a user has done on a page.
#include "UndoPanel.h"

#include "Language.h"
#include "resource.h"

#include <algorithm>

namespace
{

// Posted to the panel itself when the list is out of date: a step is over by then.
constexpr UINT ShowStepsMessage = WM_APP + 1;

} // namespace

BEGIN_MESSAGE_MAP(UndoPanel, CDialog)
    ON_BN_CLICKED(IDC_UNDO_UNDO, &UndoPanel::OnUndo)
    ON_BN_CLICKED(IDC_UNDO_REDO, &UndoPanel::OnRedo)
    ON_LBN_SELCHANGE(IDC_UNDO_STEPS, &UndoPanel::OnChosen)
    ON_WM_SIZE()
    ON_MESSAGE(ShowStepsMessage, &UndoPanel::OnShowSteps)
END_MESSAGE_MAP()

void UndoPanel::Stack::OnHistoryChanged()
{
    if (panel.GetSafeHwnd() != nullptr)
        panel.PostMessage(ShowStepsMessage);
}

UndoPanel::UndoPanel() : stack(*this) {}

bool UndoPanel::CreateIn(CWnd& page)
{
    return Create(IDD_UNDO_PANEL, &page) != FALSE;
}

BOOL UndoPanel::OnInitDialog()
{
    CDialog::OnInitDialog();
    steps.SubclassDlgItem(IDC_UNDO_STEPS, this);
    TranslateControls(*this);
    ShowSteps();
    return TRUE;
}

BOOL UndoPanel::PreTranslateMessage(MSG* message)
{
    return stack.RunKey(*message) || CDialog::PreTranslateMessage(message);
}

int UndoPanel::PlaceAtRight(int width, int height, int top)
{
    if (GetSafeHwnd() == nullptr)
        return width;
    CRect place;
    GetWindowRect(place);
    const int left = (std::max)(0, width - place.Width());
    MoveWindow(left, top, place.Width(), (std::max)(0, height - top));
    return left;
}

// The list takes the height that there is.
void UndoPanel::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    if (steps.GetSafeHwnd() == nullptr)
        return;
    CRect place;
    steps.GetWindowRect(place);
    ScreenToClient(place);
    steps.SetWindowPos(nullptr, 0, 0, place.Width(), (std::max)(0, height - static_cast<int>(place.top)),
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT UndoPanel::OnShowSteps(WPARAM, LPARAM)
{
    ShowSteps();
    return 0;
}

void UndoPanel::ShowSteps()
{
    steps.SetRedraw(FALSE);
    steps.ResetContent();
    steps.AddString(Tr(L"(at the beginning)"));
    for (long i = stack.GetUndoNum() - 1; i >= 0; --i)
        steps.AddString(stack.GetUndoName(i));
    for (long i = 0; i < stack.GetRedoNum(); ++i)
        steps.AddString(stack.GetRedoName(i));
    steps.SetCurSel(static_cast<int>(stack.GetUndoNum()));
    steps.SetRedraw(TRUE);
    steps.Invalidate();
    GetDlgItem(IDC_UNDO_UNDO)->EnableWindow(stack.CanUndo());
    GetDlgItem(IDC_UNDO_REDO)->EnableWindow(stack.CanRedo());
}

void UndoPanel::OnUndo()
{
    stack.Undo();
}

void UndoPanel::OnRedo()
{
    stack.Redo();
}

void UndoPanel::OnChosen()
{
    GoTo(steps.GetCurSel());
}

// A hook may refuse a step.
void UndoPanel::GoTo(int line)
{
    while (line >= 0 && stack.GetUndoNum() > line && stack.Undo())
        ;
    while (stack.GetUndoNum() < line && stack.Redo())
        ;
    ShowSteps();
}
