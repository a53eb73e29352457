// The gallery program: "gallery [FILE.csv] [/pictures FOLDER]".
#include "MainDialog.h"
#include "resource.h"

#include <memory>

namespace
{

struct CommandLine
{
    CString tablePath;
    CString pictureFolder;
};

CommandLine ReadCommandLine()
{
    CommandLine line;
    for (int i = 1; i < __argc; ++i)
    {
        const CString argument = __wargv[i];
        if (argument.CompareNoCase(L"/pictures") == 0 && i + 1 < __argc)
            line.pictureFolder = __wargv[++i];
        else
            line.tablePath = argument;
    }
    return line;
}

class GalleryApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        const CommandLine line = ReadCommandLine();
        dialog = std::make_unique<MainDialog>(line.tablePath);
        m_pMainWnd = dialog.get();
        if (!dialog->Create(IDD_MAIN, nullptr))
            return FALSE;
        dialog->ShowWindow(SW_SHOW);
        dialog->UpdateWindow();
        if (line.pictureFolder.IsEmpty())
            return TRUE;
        exitCode = dialog->WritePictures(line.pictureFolder) ? 0 : 1;
        dialog->DestroyWindow();
        return TRUE;
    }

    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        dialog.reset();
        return exitCode;
    }

private:
    std::unique_ptr<MainDialog> dialog;
    int exitCode = 0;
};

GalleryApp application;

} // namespace
