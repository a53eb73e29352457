// Spreadsheet exchange: a table in files and on the clipboard, as spreadsheets write and read it.
#include <afxwin.h>
#include <afxdlgs.h>

#include "FrameApp.h"
#include "SeparatedText.h"

#include <cstdio>
#include <cstring>

using namespace QuorUiCtr;

constexpr UINT OpenId = 101, SaveId = 102, CopyId = 103, PasteId = 104;

class ExchangeFrame : public CFrameWnd
{
public:
    ExchangeFrame()
    {
        Create(nullptr, L"Spreadsheet exchange", WS_OVERLAPPEDWINDOW, CRect(40, 40, 460, 300));
        CMenu bar;
        bar.CreateMenu();
        bar.AppendMenu(MF_STRING, OpenId, L"&Open...");
        bar.AppendMenu(MF_STRING, SaveId, L"&Save...");
        bar.AppendMenu(MF_STRING, CopyId, L"&Copy");
        bar.AppendMenu(MF_STRING, PasteId, L"&Paste");
        SetMenu(&bar);
        bar.Detach(); // the window's now
        grid.Create(CRect(), WS_CHILD | WS_VISIBLE, this);
        grid.SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        grid.SetFlatButton(true);
        grid.AppendCol(L"Part", 200);
        grid.AppendCol(L"Stock", 100);
        AppendText(grid, L"Bearing 6204,12\n\"Seal \"\"A\"\", 20 mm\",40\n", L',');
        RecalcLayout();
    }

protected:
    // Tabs between the cells are what spreadsheets put on the clipboard and take from it.
    afx_msg void OnCopy()
    {
        grid.EndEditCell();
        CString text = ToText(grid, L'\t', grid.IsRowSelected());
        text.Replace(L"\n", L"\r\n");
        if (!OpenClipboard())
            return;
        ::EmptyClipboard();
        const size_t size = (static_cast<size_t>(text.GetLength()) + 1) * sizeof(wchar_t);
        if (HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size))
        {
            std::memcpy(::GlobalLock(memory), text.GetString(), size);
            ::GlobalUnlock(memory);
            ::SetClipboardData(CF_UNICODETEXT, memory); // the clipboard's from now on
        }
        ::CloseClipboard();
    }
    afx_msg void OnPaste()
    {
        grid.EndEditCell();
        if (!OpenClipboard())
            return;
        if (HGLOBAL memory = ::GetClipboardData(CF_UNICODETEXT))
        {
            AppendText(grid, static_cast<const wchar_t*>(::GlobalLock(memory)), L'\t');
            ::GlobalUnlock(memory);
        }
        ::CloseClipboard();
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
            grid.Clear();
            AppendText(grid, text, L',');
        }
        if (!done)
            AfxMessageBox(load ? L"The file cannot be read." : L"The file cannot be written.");
    }
    afx_msg void OnSetFocus(CWnd*) { grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    TGGrid grid;
};

BEGIN_MESSAGE_MAP(ExchangeFrame, CFrameWnd)
    ON_COMMAND_RANGE(OpenId, SaveId, &ExchangeFrame::OnFile)
    ON_COMMAND(CopyId, &ExchangeFrame::OnCopy)
    ON_COMMAND(PasteId, &ExchangeFrame::OnPaste)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<ExchangeFrame> theApp;
