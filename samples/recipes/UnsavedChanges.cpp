// Unsaved changes: the window asks before it closes, and an edit that is still open counts.
#include <afxwin.h>

#include "FrameApp.h"
#include "grid/TGGrid.h"

using namespace QuorUiCtr;

constexpr UINT SaveId = 101;

class ListFrame : public CFrameWnd
{
public:
    ListFrame()
    {
        Create(nullptr, L"Unsaved changes", WS_OVERLAPPEDWINDOW, CRect(40, 40, 460, 300));
        CMenu bar;
        bar.CreateMenu();
        bar.AppendMenu(MF_STRING, SaveId, L"&Save");
        SetMenu(&bar);
        bar.Detach(); // the window's now
        grid.Create(CRect(), WS_CHILD | WS_VISIBLE, this);
        grid.SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        grid.SetFlatButton(true);
        grid.AppendCol(L"Name", 160);
        grid.AppendCol(L"Telephone", 160);
        grid.AppendRow(nullptr);
        grid.GetCell(0, 0).SetText(L"Miller");
        RecalcLayout();
    }

protected:
    // The title bar takes no focus away, so the edit is ended here, before the flag is looked at.
    afx_msg void OnClose()
    {
        grid.EndEditCell();
        if (grid.IsModified() && !IsClosingAllowed())
            return;
        CFrameWnd::OnClose();
    }
    afx_msg BOOL OnQueryEndSession()
    {
        grid.EndEditCell();
        return !grid.IsModified() || IsClosingAllowed();
    }
    afx_msg void OnSave()
    {
        grid.EndEditCell();
        Save();
    }
    afx_msg void OnGridChanged() { SetWindowText(L"Unsaved changes *"); }
    afx_msg void OnSetFocus(CWnd*) { grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    bool IsClosingAllowed()
    {
        switch (AfxMessageBox(L"Save the changes?", MB_YESNOCANCEL | MB_ICONQUESTION))
        {
        case IDYES:
            return Save();
        case IDNO:
            return true;
        default:
            return false;
        }
    }
    // Where a program writes its file; only what is written is no longer modified.
    bool Save()
    {
        grid.SetModify(false);
        SetWindowText(L"Unsaved changes");
        return true;
    }

    TGGrid grid;
};

BEGIN_MESSAGE_MAP(ListFrame, CFrameWnd)
    ON_COMMAND(SaveId, &ListFrame::OnSave)
    ON_EN_CHANGE(AFX_IDW_PANE_FIRST, &ListFrame::OnGridChanged)
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<ListFrame> theApp;
