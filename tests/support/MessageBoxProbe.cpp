// Notices message boxes when they are activated: then their texts are set and their loop is about to run.
#include "tests/support/MessageBoxProbe.h"

#include <algorithm>
#include <stdexcept>

namespace quor::test
{

namespace
{

constexpr int TextId = 0xFFFF; // the control that shows the message
constexpr int FirstButtonId = IDOK;
constexpr int LastButtonId = IDCONTINUE;

MessageBoxProbe* activeProbe;

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    if (!text.empty())
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

bool IsMessageBox(HWND window)
{
    wchar_t name[16] = L"";
    return GetClassNameW(window, name, 16) > 0 && std::wstring(name) == L"#32770" &&
           GetDlgItem(window, TextId) != nullptr;
}

// A box has all buttons and hides those that were not asked for. It is itself not shown yet.
bool IsOffered(HWND button)
{
    return button != nullptr && (GetWindowLongPtrW(button, GWL_STYLE) & WS_VISIBLE) != 0;
}

std::vector<int> ButtonsOf(HWND box)
{
    std::vector<int> buttons;
    for (int id = FirstButtonId; id <= LastButtonId; ++id)
        if (IsOffered(GetDlgItem(box, id)))
            buttons.push_back(id);
    return buttons;
}

} // namespace

MessageBoxProbe::MessageBoxProbe(int button) : m_button(button), m_hook(WH_CBT, OnComputerBasedTraining)
{
    if (activeProbe != nullptr)
        throw std::logic_error("there is a message box probe already");
    activeProbe = this;
}

MessageBoxProbe::~MessageBoxProbe()
{
    activeProbe = nullptr;
}

LRESULT CALLBACK MessageBoxProbe::OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && IsMessageBox(window))
        activeProbe->Answer(window);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A box may be activated several times; it is answered once.
void MessageBoxProbe::Answer(HWND box)
{
    if (std::find(m_answered.begin(), m_answered.end(), box) != m_answered.end())
        return;
    m_answered.push_back(box);
    m_shown.push_back({TextOf(box), TextOf(GetDlgItem(box, TextId)), ButtonsOf(box)});
    const std::vector<int>& buttons = m_shown.back().buttons;
    const bool hasWanted = std::find(buttons.begin(), buttons.end(), m_button) != buttons.end();
    const int pressed = hasWanted || buttons.empty() ? m_button : buttons.front();
    PostMessageW(GetDlgItem(box, pressed), BM_CLICK, 0, 0);
}

} // namespace quor::test
