// Dialog templates built in memory, for tests that need no resource.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace quor::test
{

// Builds a template control by control. The controls stand below each other, all of the same size.
class DialogTemplateBuilder
{
public:
    explicit DialogTemplateBuilder(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE);

    // Adds a control; WS_CHILD and WS_VISIBLE come by themselves.
    DialogTemplateBuilder& Add(const std::wstring& windowClass, const std::wstring& text, DWORD style,
                               int id);
    DialogTemplateBuilder& AddEdit(int id, DWORD style = WS_TABSTOP | ES_AUTOHSCROLL);
    DialogTemplateBuilder& AddButton(int id, DWORD style = WS_TABSTOP | BS_PUSHBUTTON);
    DialogTemplateBuilder& AddDefaultButton(int id) { return AddButton(id, WS_TABSTOP | BS_DEFPUSHBUTTON); }

    // Valid until the builder changes or dies.
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }
    size_t SizeInBytes() const { return m_words.size() * sizeof(WORD); }

private:
    DLGTEMPLATE& Header() { return *reinterpret_cast<DLGTEMPLATE*>(m_words.data()); }
    void AppendText(const std::wstring& text);
    void Append(const void* data, size_t bytes);

    std::vector<WORD> m_words;
};

} // namespace quor::test
