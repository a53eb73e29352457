// The undo stack as hosts see it: commands, keys, and the way to the history.
#include "undo/TGUndoStack.h"

#include "undo/GridUndo.h"
#include "undo/TreeUndo.h"
#include "undo/UndoHistory.h"

#include <iterator>
#include <utility>

namespace QuorUiCtr
{
namespace
{

constexpr long UsualSteps = 1000;
constexpr std::size_t UsualBytes = 256U << 20;

CString TextIn(HWND editor)
{
    CString text;
    CWnd::FromHandle(editor)->GetWindowText(text);
    return text;
}

} // namespace

BEGIN_MESSAGE_MAP(TGUndoStack, CCmdTarget)
    ON_COMMAND(ID_EDIT_UNDO, &TGUndoStack::OnEditUndo)
    ON_COMMAND(ID_EDIT_REDO, &TGUndoStack::OnEditRedo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &TGUndoStack::OnUpdateEditUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REDO, &TGUndoStack::OnUpdateEditRedo)
END_MESSAGE_MAP()

class TGUndoStack::Listener : public UndoListener
{
public:
    explicit Listener(TGUndoStack& heard) : stack(heard) {}

    bool AskStep(bool back, const CString& name) override
    {
        return back ? stack.OnUndoing(name) : stack.OnRedoing(name);
    }
    void TellStep(bool back, const CString& name) override
    {
        back ? stack.OnUndone(name) : stack.OnRedone(name);
    }
    void TellEnded() override { stack.OnHistoryEnded(); }
    void TellHistory() override { stack.OnHistoryChanged(); }
    bool RunKey(const MSG& message) override { return stack.RunKey(message); }

private:
    TGUndoStack& stack;
};

TGUndoStack::TGUndoStack()
    : listener(std::make_unique<Listener>(*this)), history(std::make_unique<UndoHistory>(*listener))
{
    history->SetLimits(UsualSteps, UsualBytes);
}

TGUndoStack::~TGUndoStack() = default;

// ---- Controls

bool TGUndoStack::Watch(TGGrid& grid)
{
    if (IsWatching(grid))
        return false;
    auto undo = std::make_shared<GridUndo>(*history);
    if (!undo->AttachTo(grid))
        return false;
    history->Add(std::move(undo));
    return true;
}

bool TGUndoStack::Watch(CTreeCtrlDrag& tree, TGTreeUndoHost* treeHost)
{
    std::shared_ptr<TreeUndo> watch = TreeUndo::Watch(*history, tree, treeHost);
    if (watch == nullptr)
        return false;
    history->Add(std::move(watch));
    return true;
}

bool TGUndoStack::Unwatch(CWnd& control)
{
    return history->Leave(control);
}

bool TGUndoStack::IsWatching(const CWnd& control) const
{
    return history->Find(control) != nullptr;
}

// ---- Undoing

bool TGUndoStack::CanUndo() const
{
    return history->CanGo(true);
}

bool TGUndoStack::CanRedo() const
{
    return history->CanGo(false);
}

bool TGUndoStack::Undo()
{
    return history->Go(true);
}

bool TGUndoStack::Redo()
{
    return history->Go(false);
}

long TGUndoStack::GetUndoNum() const
{
    return history->GetNum(true);
}

long TGUndoStack::GetRedoNum() const
{
    return history->GetNum(false);
}

CString TGUndoStack::GetUndoName(long i) const
{
    return history->GetName(true, i);
}

CString TGUndoStack::GetRedoName(long i) const
{
    return history->GetName(false, i);
}

void TGUndoStack::Clear()
{
    history->Clear();
}

void TGUndoStack::SetLimits(long steps, std::size_t bytes)
{
    history->SetLimits(steps, bytes);
}

std::size_t TGUndoStack::GetBytes() const
{
    return history->GetBytes();
}

void TGUndoStack::SetSaved()
{
    history->SetSaved();
}

bool TGUndoStack::IsSaved() const
{
    return history->IsSaved();
}

bool TGUndoStack::OnUndoing(const CString&)
{
    return true;
}

bool TGUndoStack::OnRedoing(const CString&)
{
    return true;
}

void TGUndoStack::OnUndone(const CString&) {}
void TGUndoStack::OnRedone(const CString&) {}
void TGUndoStack::OnHistoryEnded() {}
void TGUndoStack::OnHistoryChanged() {}

// ---- Commands

// What the platform's edit can undo after it has undone is its undoing.
HWND TGUndoStack::EditorWith(bool undo) const
{
    const HWND focus = ::GetFocus();
    wchar_t kind[8] = {};
    if (focus == nullptr || ::GetClassName(focus, kind, static_cast<int>(std::size(kind))) == 0 ||
        ::lstrcmpi(kind, L"Edit") != 0)
        return nullptr;
    for (const auto& recorder : history->GetRecorders())
        if (const CWnd* control = recorder->GetControl();
            control->GetSafeHwnd() != nullptr && ::IsChild(control->m_hWnd, focus))
        {
            const bool isUndone = focus == undoneEditor && TextIn(focus) == undoneText;
            return isUndone != undo && ::SendMessage(focus, EM_CANUNDO, 0, 0) != 0 ? focus : nullptr;
        }
    return nullptr;
}

void TGUndoStack::OnEditUndo()
{
    const HWND editor = EditorWith(true);
    if (editor == nullptr)
    {
        Undo();
        return;
    }
    ::SendMessage(editor, EM_UNDO, 0, 0);
    undoneEditor = editor;
    undoneText = TextIn(editor);
}

// While there is typing that could be undone, nothing behind it could be made again.
void TGUndoStack::OnEditRedo()
{
    if (const HWND editor = EditorWith(false))
    {
        undoneEditor = nullptr;
        ::SendMessage(editor, EM_UNDO, 0, 0);
    }
    else if (EditorWith(true) == nullptr)
        Redo();
}

bool TGUndoStack::RunKey(const MSG& message)
{
    const auto isDown = [](int key) { return (::GetKeyState(key) & 0x8000) != 0; };
    if (message.message != WM_KEYDOWN || !isDown(VK_CONTROL) || isDown(VK_MENU))
        return false;
    const bool shift = isDown(VK_SHIFT);
    if (message.wParam == 'Z' && !shift)
        OnEditUndo();
    else if (message.wParam == 'Z' || (message.wParam == 'Y' && !shift))
        OnEditRedo();
    else
        return false;
    return true;
}

namespace
{

// In a menu an ampersand would mark a key, and a tab begin another column.
void NameUndoEntry(CCmdUI& ui, QuorText entry, CString name)
{
    name.Replace(L"&", L"&&");
    name.Replace(L'\t', L' ');
    CString text = QuorTexts::Get(entry);
    text.Replace(L"%s", name);
    ui.SetText(text);
}

} // namespace

void TGUndoStack::OnUpdateEditUndo(CCmdUI* ui)
{
    const bool inEditor = EditorWith(true) != nullptr;
    ui->Enable(inEditor || CanUndo());
    if (inEditor)
        NameUndoEntry(*ui, QuorText::UndoEntry, QuorTexts::Get(QuorText::UndoTyping));
    else
        NameUndoEntry(*ui, CanUndo() ? QuorText::UndoEntry : QuorText::UndoNothing, GetUndoName());
}

void TGUndoStack::OnUpdateEditRedo(CCmdUI* ui)
{
    const bool inEditor = EditorWith(false) != nullptr;
    const bool can = inEditor || (EditorWith(true) == nullptr && CanRedo());
    ui->Enable(can);
    NameUndoEntry(*ui, can ? QuorText::RedoEntry : QuorText::RedoNothing,
                  inEditor ? QuorTexts::Get(QuorText::UndoTyping) : GetRedoName());
}

// ---- Scopes

TGUndoTransaction::TGUndoTransaction(TGUndoStack& groupedStack, const wchar_t* name) : stack(groupedStack)
{
    UndoName words;
    words.words = name;
    stack.history->BeginStep(nullptr, words);
}

TGUndoTransaction::~TGUndoTransaction()
{
    stack.history->EndStep();
}

TGUndoPause::TGUndoPause(TGUndoStack& pausedStack) : stack(pausedStack)
{
    stack.history->BeginLeavingOut();
}

TGUndoPause::~TGUndoPause()
{
    stack.history->EndLeavingOut();
}

} // namespace QuorUiCtr
