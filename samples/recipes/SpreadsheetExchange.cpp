// Spreadsheet exchange: a table in files and on the clipboard, as spreadsheets write and read it.
#include <afxwin.h>
#include <afxdlgs.h>

#include "FrameApp.h"
#include "SeparatedText.h"
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "module/QuorTexts.h"
#include "undo/TGUndoStack.h"

#include <cstdio>

using namespace QuorUiCtr;

constexpr UINT OpenId = 101, SaveId = 102;

class ExchangeFrame : public CFrameWnd
{
public:
    ExchangeFrame()
    {
        QuorTexts::SetLanguage(QuorLanguage::English); // of the steps' names and the reports
        Create(nullptr, L"Spreadsheet exchange", WS_OVERLAPPEDWINDOW, CRect(40, 40, 460, 300));
        CMenu edit;
        edit.CreatePopupMenu();
        edit.AppendMenu(MF_STRING, ID_EDIT_UNDO, L"&Undo\tCtrl+Z");
        edit.AppendMenu(MF_STRING, ID_EDIT_REDO, L"&Redo\tCtrl+Y");
        edit.AppendMenu(MF_SEPARATOR);
        edit.AppendMenu(MF_STRING, ID_EDIT_CUT, L"Cu&t\tCtrl+X");
        edit.AppendMenu(MF_STRING, ID_EDIT_COPY, L"&Copy\tCtrl+C");
        edit.AppendMenu(MF_STRING, ID_EDIT_PASTE, L"&Paste\tCtrl+V");
        CMenu bar;
        bar.CreateMenu();
        bar.AppendMenu(MF_STRING, OpenId, L"&Open...");
        bar.AppendMenu(MF_STRING, SaveId, L"&Save...");
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(edit.Detach()), L"&Edit");
        SetMenu(&bar);
        bar.Detach(); // the window's now
        grid.Create(CRect(), WS_CHILD | WS_VISIBLE, this);
        grid.SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        grid.SetFlatButton(true);
        grid.AppendCol(L"Part", 200);
        grid.AppendCol(L"Stock", 100);
        AppendText(grid, L"Bearing 6204,12\n\"Seal \"\"A\"\", 20 mm\",40\n", L',');
        undo.Watch(grid);
        clipboard.SetOnReport([](const TGClipboardReport& report) {
            if (!report.IsComplete())
                AfxMessageBox(report.GetText());
        });
        RecalcLayout();
    }

protected:
    // Both know the standard commands: the menu is enabled, and names what is undone.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        return undo.OnCmdMsg(id, code, extra, info) || clipboard.OnCmdMsg(id, code, extra, info) ||
               CFrameWnd::OnCmdMsg(id, code, extra, info);
    }
    // The C library knows UTF-8: it writes its mark, by which spreadsheets know it, too, and reads past it.
    afx_msg void OnFile(UINT id)
    {
        grid.EndEditCell();
        const bool load = id == OpenId;
        CFileDialog dialog(load, L"csv", nullptr, OFN_OVERWRITEPROMPT, L"Tables (*.csv)|*.csv||", this);
        if (dialog.DoModal() != IDOK)
            return;
        FILE* file = nullptr;
        const wchar_t* mode = load ? L"rt, ccs=UTF-8" : L"wt, ccs=UTF-8";
        bool done = _wfopen_s(&file, dialog.GetPathName(), mode) == 0;
        CString text = load ? CString() : ToText(grid, L',', false);
        if (done && load)
            for (wint_t unit = std::fgetwc(file); unit != WEOF; unit = std::fgetwc(file))
                text += static_cast<wchar_t>(unit);
        else if (done)
            done = std::fputws(text, file) >= 0;
        done = done && std::ferror(file) == 0;
        if (file != nullptr && std::fclose(file) != 0)
            done = false;
        if (done && load)
        {
            const TGUndoTransaction step(undo, L"Open");
            while (grid.GetRowNum() > 0)
                grid.DelRow(grid.GetRowNum() - 1);
            AppendText(grid, text, L',');
        }
        if (!done)
            AfxMessageBox(load ? L"The file cannot be read." : L"The file cannot be written.");
    }
    afx_msg void OnSetFocus(CWnd*) { grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    TGGrid grid;
    TGCellCursor cursor{grid};
    TGClipboard clipboard{grid};
    TGUndoStack undo;
};

BEGIN_MESSAGE_MAP(ExchangeFrame, CFrameWnd)
    ON_COMMAND_RANGE(OpenId, SaveId, &ExchangeFrame::OnFile)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<ExchangeFrame> theApp;
