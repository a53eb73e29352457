// A list whose owner creates the editors, as a host program does it, and writes down what it was told.
#pragma once

#include "controls/CGridListCtrl.h"
#include "controls/CInPlaceEdit.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quor::test
{

// Shows its current column, draws the current cell and counts what it draws.
class TestList : public CGridListCtrl
{
public:
    using CGridListCtrl::curColumn;
    using CGridListCtrl::editFlags;
    using CGridListCtrl::OnCustomDraw;

    // The rows that were painted since the last call, once for each time.
    std::vector<int> TakePaintedRows() { return std::exchange(paintedRows, {}); }
    CRect Bounds(int row);
    // The part of the row's cell in a column, in client pixels, by the header.
    CRect Cell(int row, int column);
    CPoint Middle(int row, int column) { return Cell(row, column).CenterPoint(); }
    void Order(std::vector<int> order);
    int FocusedRow() { return GetNextItem(-1, LVNI_FOCUSED); }

    // Stands for an owner that destroys the list when it hears of scrolling.
    bool destroysItselfWhenScrolled = false;
    // Stands for one that destroys something else then; gets the message that has scrolled.
    std::function<void(UINT)> onScrolled;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDraw(NMHDR* header, LRESULT* result);

private:
    std::vector<int> paintedRows;
};

// Shows what it is.
class TestEditor : public CInPlaceEdit
{
public:
    using CInPlaceEdit::CInPlaceEdit;
    using CInPlaceEdit::escPressed;
    using CInPlaceEdit::item;
    using CInPlaceEdit::subItem;

    std::wstring Text();
    // In client pixels of the list.
    CRect Place();
    // "first-last" of the selection.
    std::string Selection();
};

// The owner of a list. Records as lines
//   "begin 1,2 [text]"     LVN_BEGINLABELEDIT for row 1, column index 2
//   "end 1,2 [text]"       LVN_ENDLABELEDIT; "end 1,2 cancelled" after Esc
// Creates an editor on the first, stores the text on the second and destroys the editor afterwards.
class ListOwner : public HostWindow
{
public:
    static constexpr UINT ListId = 21;
    static constexpr UINT EditorId = 22;
    static constexpr UINT DestroyMessage = WM_APP + 1;

    ListOwner();
    ~ListOwner() override;

    std::vector<std::string> TakeEdits() { return std::exchange(edits, {}); }
    // Creates the editor of a cell and places it; false when either fails.
    bool Edit(int row, int column, const CString& text);
    bool IsEditing() const { return editor && editor->m_hWnd; }
    void CloseEditor();

    std::unique_ptr<TestList> list;
    std::unique_ptr<TestEditor> editor;
    bool createsEditors = true;
    DWORD editorStyle = ES_AUTOHSCROLL;
    NMLVDISPINFO lastRecord = {};
    WPARAM lastWParam = 0;
    // Called in place of the owner's own work when set.
    std::function<void(const NMLVDISPINFO&)> onBegin;
    std::function<void(const NMLVDISPINFO&)> onEnd;
    // Called for every notification of the list, before the owner's own work.
    std::function<void(const NMHDR&)> onNotification;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void OnBegin(const NMLVDISPINFO& record);
    void OnEnd(const NMLVDISPINFO& record);

    std::unique_ptr<TestEditor> finished;
    std::vector<std::string> edits;
};

// A list of 320 by 200 pixels without a border; MakeColumns and MakeRows fill it: columns of 100 pixels,
// texts "r0c0" ...
class ListTest : public testing::Test
{
protected:
    static constexpr int ColumnWidth = 100;

    ListTest();

    void MakeColumns(int count, int width = ColumnWidth);
    void MakeRows(int count);
    // Gives the list the focus and row and display position.
    void SetCurrent(int row, int position);
    // Handles a key message as the application does.
    void Key(WORD key);
    std::string Current();

    ListOwner owner;
    TestList& list;
};

using Lines = std::vector<std::string>;

} // namespace quor::test
