// An outline: tree rows, saved as text with a tab for each level, and loaded again.
#include <afxwin.h>
#include <afxdlgs.h>

#include "FrameApp.h"
#include "grid/TGGrid.h"

#include <algorithm>
#include <vector>

using namespace QuorUiCtr;

constexpr UINT OpenId = 101;
constexpr UINT SaveId = 102;

void SaveRow(CArchive& archive, TGGridTreeRow& row)
{
    for (long level = row.GetParentNum(); level > 0; --level)
        archive.WriteString(L"\t");
    archive.WriteString(row[0].GetText());
    archive.WriteString(L"\r\n");
    for (long i = 0; i < row.GetChildNum(); ++i)
        SaveRow(archive, row.GetChild(i));
}

// The children of folded rows stand in their parents only: begin with the root rows.
void SaveOutline(TGGrid& grid, CArchive& archive)
{
    for (long i = 0; i < grid.GetRowNum(); ++i)
        if (TGGridTreeRow& row = grid.GetTreeRow(i); row.IsRootRow())
            SaveRow(archive, row);
}

// A row goes below the last one of the level above it. All come unfolded.
void LoadOutline(TGGrid& grid, CArchive& archive)
{
    const TGGridUpdate update(grid);
    grid.Clear();
    std::vector<TGGridTreeRow*> path;
    for (CString line; archive.ReadString(line);)
    {
        const CString text = CString(line).TrimLeft(L'\t');
        const int tabs = line.GetLength() - text.GetLength();
        auto* row = new TGGridTreeRow(grid);
        (*row)[0].SetText(text);
        row->SetUnFoldFlag(true);
        path.resize((std::min)(static_cast<size_t>(tabs), path.size()));
        if (path.empty())
            grid.AppendRow(row);
        else
            path.back()->AppendChild(row);
        path.push_back(row);
    }
}

class OutlineFrame : public CFrameWnd
{
public:
    OutlineFrame()
    {
        Create(nullptr, L"Outline", WS_OVERLAPPEDWINDOW, CRect(40, 40, 460, 360));
        CMenu bar;
        bar.CreateMenu();
        bar.AppendMenu(MF_STRING, OpenId, L"&Open...");
        bar.AppendMenu(MF_STRING, SaveId, L"&Save...");
        SetMenu(&bar);
        bar.Detach(); // the window's now
        grid.Create(CRect(), WS_CHILD | WS_VISIBLE, this);
        grid.SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        grid.SetFlatButton(true);
        grid.AppendCol(L"Outline", 360);
        grid.AppendRow(nullptr);
        TGGridTreeRow& root = grid.GetTreeRow(0);
        root[0].SetText(L"Machine");
        for (const wchar_t* part : {L"Frame", L"Drive", L"Cover"})
        {
            root.AppendChild(nullptr);
            root.GetLastChild()[0].SetText(part);
        }
        root.UnFold();
        RecalcLayout();
    }

protected:
    afx_msg void OnOpen() { Transfer(true); }
    afx_msg void OnSave() { Transfer(false); }
    afx_msg void OnSetFocus(CWnd*) { grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    // An open edit ends first, or its text would not be saved.
    void Transfer(bool load)
    {
        grid.EndEditCell();
        CFileDialog dialog(load, L"txt", nullptr, OFN_OVERWRITEPROMPT, L"Outlines (*.txt)|*.txt||", this);
        if (dialog.DoModal() != IDOK)
            return;
        CFile file;
        CFileException error;
        if (!file.Open(dialog.GetPathName(), load ? CFile::modeRead : CFile::modeCreate | CFile::modeWrite,
                       &error))
        {
            error.ReportError();
            return;
        }
        CArchive archive(&file, load ? CArchive::load : CArchive::store);
        load ? LoadOutline(grid, archive) : SaveOutline(grid, archive);
    }

    TGGrid grid{true};
};

BEGIN_MESSAGE_MAP(OutlineFrame, CFrameWnd)
    ON_COMMAND(OpenId, &OutlineFrame::OnOpen)
    ON_COMMAND(SaveId, &OutlineFrame::OnSave)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<OutlineFrame> theApp;
