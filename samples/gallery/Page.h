// Page: the base of the gallery's pages.
#pragma once

#include <afxwin.h>

class LogPane;

namespace QuorUiCtr
{
class TGClipboard;
class TGUndoStack;
} // namespace QuorUiCtr

// A page is a child dialog that shows one control and writes every notification that the control sends to its
// parent into the log.
class Page : public CDialog
{
public:
    // `templateId` names the page's dialog resource; `log` outlives the page.
    Page(UINT templateId, LogPane& log);

    // The name in the page list.
    virtual CString GetTitle() const = 0;
    // The page's part of a picture's file name: ASCII, no blanks.
    virtual CString GetPictureName() const = 0;
    // Brings the page into its state for the picture `view` (0, 1, ...) and says what to add to the picture's
    // name; returns false when there is no such picture. By default a page has one picture.
    virtual bool ShowPictureView(size_t view, CString& nameSuffix);
    // The control that the page is about, which gets the focus with the page.
    virtual CWnd& MainControl() = 0;
    // Whether the user has changed what the page shows, since it was filled or saved.
    virtual bool IsChanged() { return isMarkedChanged; }
    // Commits an open editor; returns false when it stays open.
    virtual bool EndEditing() { return true; }
    // Whether the page can show table files, and write what it shows.
    virtual bool CanOpenFiles() const { return false; }
    // Shows a table file and returns an empty text, or leaves the page as it is and returns what is wrong
    // with the file. The user may stop the work, which leaves the rows read so far.
    virtual CString OpenFile(const CString& path);
    // Writes a table file and returns an empty text, or what is wrong; a file that was there is then as it
    // was.
    virtual CString SaveFile(const CString& path);
    // Where the user is, what is selected, and how much there is, for the status line; empty texts for what
    // the page does not have. Asked whenever the program has nothing else to do.
    struct Status
    {
        CString position;
        CString selection;
        CString count;
    };
    virtual Status GetStatus() { return {}; }
    // What records the user's steps on the page, and what exchanges cells with other programs; null for none.
    virtual QuorUiCtr::TGUndoStack* FindUndo() { return nullptr; }
    virtual QuorUiCtr::TGClipboard* FindClipboard() { return nullptr; }
    // The resource with the source of the page's host code.
    virtual UINT GetSourceId() const = 0;

    // Creates the hidden page as a child of `parent`.
    bool CreateIn(CWnd& parent);

protected:
    LogPane& Log() { return log; }
    void MarkChanged() { isMarkedChanged = true; }
    // Places the page's control after the page was resized; sizes in pixels.
    virtual void LayOut(int width, int height) = 0;

    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    // Enter and Esc leave the page alone.
    void OnOK() override {}
    void OnCancel() override {}

    DECLARE_MESSAGE_MAP()
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd* loser);

private:
    UINT templateId;
    LogPane& log;
    bool isMarkedChanged = false;
};
