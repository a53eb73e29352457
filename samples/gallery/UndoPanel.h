// UndoPanel: the list of what a user has done on a page, to go back and forth in.
#pragma once

#include "undo/TGUndoStack.h"

#include <afxwin.h>

// A child dialog that stands at the right edge of a page. The list has what can be undone, the oldest first,
// and then what can be done again; the selected line is where the page stands, and a click on another one
// goes there.
class UndoPanel : public CDialog
{
public:
    UndoPanel();

    // What watches the controls of the page.
    QuorUiCtr::TGUndoStack& GetStack() { return stack; }
    // Creates the panel as a child of `page`.
    bool CreateIn(CWnd& page);
    // Moves the panel to the right edge of an area of that size in pixels, below `top`, and returns the width
    // that is left.
    int PlaceAtRight(int width, int height, int top = 0);

protected:
    BOOL OnInitDialog() override;
    // The keys of the stack work in the list, too.
    BOOL PreTranslateMessage(MSG* message) override;
    // Enter and Esc leave the panel alone.
    void OnOK() override {}
    void OnCancel() override {}

    DECLARE_MESSAGE_MAP()
    afx_msg void OnUndo();
    afx_msg void OnRedo();
    afx_msg void OnChosen();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnShowSteps(WPARAM wParam, LPARAM lParam);

private:
    class Stack : public QuorUiCtr::TGUndoStack
    {
    public:
        explicit Stack(UndoPanel& shownPanel) : panel(shownPanel) {}

    protected:
        void OnHistoryChanged() override;

    private:
        UndoPanel& panel;
    };

    void ShowSteps();
    void GoTo(int line);

    Stack stack;
    CListBox steps;
};
