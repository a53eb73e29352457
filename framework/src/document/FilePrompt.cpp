// The dialogs that ask for the file of a document.
#include "document/FilePrompt.h"
#include "FrameworkAccess.h"
#include <commdlg.h>

namespace
{

// The filter of a file dialog: pairs of a name and a pattern, each ended by a NUL character.
class Filter
{
public:
    void AddTemplate(const CDocTemplate& docTemplate)
    {
        CString name, extension;
        if (!docTemplate.GetDocString(extension, CDocTemplate::filterExt) || extension.IsEmpty() ||
            !docTemplate.GetDocString(name, CDocTemplate::filterName) || name.IsEmpty())
            return;
        Add(name, _T("*") + extension);
        // Names without extension get the first kind's.
        if (m_defaultExtension.IsEmpty())
            m_defaultExtension = extension.Mid(1);
    }

    void AddAllFiles()
    {
        CString name;
        name.LoadString(AFX_IDS_ALLFILTER);
        Add(name, _T("*.*"));
    }

    LPCTSTR Text() const { return m_text.c_str(); }
    LPCTSTR DefaultExtension() const
    {
        return m_defaultExtension.IsEmpty() ? nullptr : m_defaultExtension.GetString();
    }

private:
    void Add(const CString& name, const CString& pattern)
    {
        m_text.append(name.GetString()).push_back(0);
        m_text.append(pattern.GetString()).push_back(0);
    }

    std::wstring m_text;
    CString m_defaultExtension;
};

Filter FilterFor(CDocTemplate* docTemplate)
{
    Filter filter;
    if (docTemplate != nullptr)
    {
        filter.AddTemplate(*docTemplate);
    }
    else if (CWinApp* const application = AfxGetApp())
    {
        for (POSITION position = application->GetFirstDocTemplatePosition(); position != nullptr;)
            filter.AddTemplate(*application->GetNextDocTemplate(position));
    }
    filter.AddAllFiles();
    return filter;
}

} // namespace

namespace quorfx
{

bool PromptForFile(CString& fileName, UINT titleId, DWORD flags, bool open, CDocTemplate* docTemplate)
{
    const Filter filter = FilterFor(docTemplate);
    CString title;
    title.LoadString(titleId);
    HWND disabled = nullptr;
    OPENFILENAME parameters = {};
    parameters.lStructSize = sizeof parameters;
    parameters.hwndOwner = FrameworkAccess::SafeOwner(&disabled);
    parameters.lpstrFilter = filter.Text();
    parameters.nFilterIndex = 1;
    parameters.lpstrDefExt = filter.DefaultExtension();
    parameters.lpstrTitle = title;
    parameters.nMaxFile = MAX_PATH;
    parameters.lpstrFile = fileName.GetBuffer(MAX_PATH);
    parameters.Flags = flags | OFN_EXPLORER | OFN_ENABLESIZING | (open ? 0U : OFN_OVERWRITEPROMPT);
    const BOOL chosen = open ? ::GetOpenFileName(&parameters) : ::GetSaveFileName(&parameters);
    if (disabled != nullptr)
        ::EnableWindow(disabled, TRUE);
    fileName.ReleaseBuffer();
    return chosen != FALSE;
}

} // namespace quorfx
