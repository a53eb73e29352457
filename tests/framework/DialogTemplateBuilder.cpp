// Dialog templates built in memory.
#include "tests/framework/DialogTemplateBuilder.h"

namespace quor::test
{

DialogTemplateBuilder::DialogTemplateBuilder(DWORD style)
{
    DLGTEMPLATE header = {};
    header.style = style;
    header.cx = 120;
    header.cy = 100;
    Append(&header, sizeof header);
    AppendText(L""); // no menu
    AppendText(L""); // the dialog's own class
    AppendText(L"Dialog");
}

DialogTemplateBuilder& DialogTemplateBuilder::Add(const std::wstring& windowClass, const std::wstring& text,
                                                  DWORD style, int id)
{
    if (m_words.size() % 2 != 0)
        m_words.push_back(0);
    DLGITEMTEMPLATE item = {};
    item.style = style | WS_CHILD | WS_VISIBLE;
    item.x = 5;
    item.y = static_cast<short>(5 + 15 * Header().cdit);
    item.cx = 100;
    item.cy = 12;
    item.id = static_cast<WORD>(id);
    ++Header().cdit;
    Append(&item, sizeof item);
    AppendText(windowClass);
    AppendText(text);
    m_words.push_back(0); // no creation data
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::AddEdit(int id, DWORD style)
{
    return Add(L"EDIT", L"", style, id);
}

DialogTemplateBuilder& DialogTemplateBuilder::AddButton(int id, DWORD style)
{
    return Add(L"BUTTON", L"Button", style, id);
}

void DialogTemplateBuilder::AppendText(const std::wstring& text)
{
    Append(text.c_str(), (text.size() + 1) * sizeof(WORD));
}

void DialogTemplateBuilder::Append(const void* data, size_t bytes)
{
    const size_t end = m_words.size();
    m_words.resize(end + bytes / sizeof(WORD));
    std::memcpy(m_words.data() + end, data, bytes);
}

} // namespace quor::test
