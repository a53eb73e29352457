// The gallery program: "gallery [FILE.csv] [/language en|zh] [/pictures FOLDER]".
#include "Language.h"
#include "MainDialog.h"
#include "resource.h"

#include <memory>
#include <string>

namespace
{

struct CommandLine
{
    CString tablePath;
    CString pictureFolder;
    Language language = SystemLanguage();
};

CommandLine ReadCommandLine()
{
    CommandLine line;
    for (int i = 1; i < __argc; ++i)
    {
        const CString argument = __wargv[i];
        if (argument.CompareNoCase(L"/pictures") == 0 && i + 1 < __argc)
            line.pictureFolder = __wargv[++i];
        else if (argument.CompareNoCase(L"/language") == 0 && i + 1 < __argc)
            line.language =
                CString(__wargv[++i]).CompareNoCase(L"zh") == 0 ? Language::Chinese : Language::English;
        else
            line.tablePath = argument;
    }
    return line;
}

// For runs without anybody who could press a button.
void WriteToErrorStream(CString sentence)
{
    sentence.Replace(L"\n", L" ");
    const CStringA bytes = CStringA("gallery: ") + CStringA(sentence) + "\n";
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), bytes.GetString(), static_cast<DWORD>(bytes.GetLength()),
                &written, nullptr);
}

class GalleryApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        SetRegistryKey(L"QuorUiCtrl");
        const CommandLine line = ReadCommandLine();
        SetLanguage(line.language);
        dialog = std::make_unique<MainDialog>();
        m_pMainWnd = dialog.get();
        if (!dialog->Create(IDD_MAIN, nullptr))
            return FALSE;
        if (line.pictureFolder.IsEmpty())
            dialog->Restore();
        dialog->ShowWindow(SW_SHOW);
        dialog->UpdateWindow();
        const CString problem = line.tablePath.IsEmpty() ? CString() : dialog->OpenTable(line.tablePath);
        if (!line.pictureFolder.IsEmpty())
            TakePictures(problem, line.pictureFolder);
        else if (!problem.IsEmpty())
            AfxMessageBox(problem, MB_OK | MB_ICONWARNING);
        return TRUE;
    }

    BOOL PreTranslateMessage(MSG* message) override
    {
        return (dialog && dialog->RunKey(*message)) || CWinApp::PreTranslateMessage(message);
    }

    BOOL OnIdle(LONG count) override
    {
        if (dialog)
            dialog->ShowStatus();
        return CWinApp::OnIdle(count);
    }

    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        dialog.reset();
        return exitCode;
    }

private:
    void TakePictures(const CString& problem, const CString& folder)
    {
        if (!problem.IsEmpty())
            WriteToErrorStream(problem);
        exitCode = problem.IsEmpty() && dialog->WritePictures(folder) ? 0 : 1;
        dialog->DestroyWindow();
    }

    std::unique_ptr<MainDialog> dialog;
    int exitCode = 0;
};

GalleryApp application;

} // namespace
