// HookRecorder: a grid that tells its host of every hook under one name, for hosts that log, veto or test
// hooks.
#pragma once

#include "samples/recording/HookCall.h"

namespace samples
{

// `Grid` is TGGrid or a class derived from it. Overrides each of its hooks, in their order: the host hears of
// the call in Note() and may leave out the default by answering false, which vetoes a hook that asks. A host
// overrides further hooks only where it answers differently, and calls the recorder's there.
template <class Grid> class HookRecorder : public Grid
{
public:
    using Grid::Grid;

protected:
    using Cell = QuorUiCtr::TGGridCell;
    using Col = QuorUiCtr::TGGridCol;
    using Row = QuorUiCtr::TGGridRow;
    using TreeRow = QuorUiCtr::TGGridTreeRow;

    // A hook is called. True goes on to the default; false leaves it out and answers false or null.
    virtual bool Note(const HookCall& call) const = 0;
    // A hook whose answer is not asked for, or that makes an editor, has been through its default. What its
    // arguments were may be gone.
    virtual void NoteEnd(const char*) const {}

    void OnDblClick(Row& row) override
    {
        Tell("OnDblClick", HookGroup::Mouse, {{"row", &row}}, [&] { Grid::OnDblClick(row); });
    }
    void OnRClickCell(Cell& cell, CPoint point) override
    {
        Tell("OnRClickCell", HookGroup::Mouse, {{"cell", &cell}, {"point", point}},
             [&] { Grid::OnRClickCell(cell, point); });
    }
    void OnRClickRow(Row& row, CPoint point) override
    {
        Tell("OnRClickRow", HookGroup::Mouse, {{"row", &row}, {"point", point}},
             [&] { Grid::OnRClickRow(row, point); });
    }
    void OnRClickCol(Col& col, CPoint point) override
    {
        Tell("OnRClickCol", HookGroup::Mouse, {{"column", &col}, {"point", point}},
             [&] { Grid::OnRClickCol(col, point); });
    }
    void OnRClickQuad(CPoint point) override
    {
        Tell("OnRClickQuad", HookGroup::Mouse, {{"point", point}}, [&] { Grid::OnRClickQuad(point); });
    }

    using Grid::OnBeforeEdit;
    bool OnBeforeEdit(Cell& cell, bool& commitNewRow) override
    {
        return Ask("OnBeforeEdit", HookGroup::Edit, {{"cell", &cell}, {"commitNewRow", commitNewRow}},
                   [&] { return Grid::OnBeforeEdit(cell, commitNewRow); });
    }
    QuorUiCtr::TGCellCtrl* OnGetCellEdit(Cell& cell) override
    {
        QuorUiCtr::TGCellCtrl* editor = nullptr;
        Tell("OnGetCellEdit", HookGroup::Edit, {{"cell", &cell}},
             [&] { editor = Grid::OnGetCellEdit(cell); });
        return editor;
    }
    void OnCellComboString(Cell& cell, CComboBox& combo) override
    {
        Tell("OnCellComboString", HookGroup::Edit, {{"cell", &cell}},
             [&] { Grid::OnCellComboString(cell, combo); });
    }
    bool OnCellButtonDown(Cell& cell, CString& text) override
    {
        return Ask("OnCellButtonDown", HookGroup::Edit, {{"cell", &cell}, {"text", &text}},
                   [&] { return Grid::OnCellButtonDown(cell, text); });
    }
    void OnCellSpinInit(Cell& cell, CSpinButtonCtrl& spin) override
    {
        Tell("OnCellSpinInit", HookGroup::Edit, {{"cell", &cell}}, [&] { Grid::OnCellSpinInit(cell, spin); });
    }
    bool OnModified(Cell& cell, CString& text) override
    {
        return Ask("OnModified", HookGroup::Edit, {{"cell", &cell}, {"text", &text}},
                   [&] { return Grid::OnModified(cell, text); });
    }
    void OnDataChanged() override
    {
        Tell("OnDataChanged", HookGroup::Change, {}, [&] { Grid::OnDataChanged(); });
    }
    // What it tells is what the default has found, so this default always comes first.
    void OnCurChanged() override
    {
        Grid::OnCurChanged();
        Tell("OnCurChanged", HookGroup::Change,
             {{"row", this->GetCurRowIndex()}, {"column", this->GetCurColIndex()}}, [] {});
    }
    void OnCmbSelchange(Cell& cell, CComboBox* combo) override
    {
        Tell("OnCmbSelchange", HookGroup::Edit, {{"cell", &cell}},
             [&] { Grid::OnCmbSelchange(cell, combo); });
    }
    void OnCmbEditchange(Cell& cell, CComboBox* combo) override
    {
        Tell("OnCmbEditchange", HookGroup::Edit, {{"cell", &cell}},
             [&] { Grid::OnCmbEditchange(cell, combo); });
    }

    void OnBeforeRefresh(Cell& cell) override
    {
        Tell("OnBeforeRefresh", HookGroup::Paint, {{"cell", &cell}}, [&] { Grid::OnBeforeRefresh(cell); });
    }
    // Two hooks of one name, told apart by their argument.
    bool OnRefresh(Cell& cell) override
    {
        return Ask("OnRefresh cell", HookGroup::Paint, {{"cell", &cell}},
                   [&] { return Grid::OnRefresh(cell); });
    }
    bool OnRefresh(Row& row) override
    {
        return Ask("OnRefresh row", HookGroup::Paint, {{"row", &row}}, [&] { return Grid::OnRefresh(row); });
    }

    bool OnBeforeInsertCol(long position, Col*& col) override
    {
        return Ask("OnBeforeInsertCol", HookGroup::Col,
                   {{"position", position}, {"column", Supplied{col != nullptr}}},
                   [&] { return Grid::OnBeforeInsertCol(position, col); });
    }
    void OnInsertCol(Col& col) override
    {
        Tell("OnInsertCol", HookGroup::Col, {{"column", &col}}, [&] { Grid::OnInsertCol(col); });
    }
    bool OnBeforeDeleteCol() override
    {
        return Ask("OnBeforeDeleteCol", HookGroup::Col, {}, [&] { return Grid::OnBeforeDeleteCol(); });
    }
    void OnEndDeleteCol() override
    {
        Tell("OnEndDeleteCol", HookGroup::Col, {}, [&] { Grid::OnEndDeleteCol(); });
    }
    bool OnBeginMoveCol() override
    {
        return Ask("OnBeginMoveCol", HookGroup::Col, {}, [&] { return Grid::OnBeginMoveCol(); });
    }
    bool OnMovingCol(long position) override
    {
        return Ask("OnMovingCol", HookGroup::Col, {{"position", position}},
                   [&] { return Grid::OnMovingCol(position); });
    }
    bool OnMoveCol(long position) override
    {
        return Ask("OnMoveCol", HookGroup::Col, {{"position", position}},
                   [&] { return Grid::OnMoveCol(position); });
    }
    void OnEndMoveCol() override
    {
        Tell("OnEndMoveCol", HookGroup::Col, {}, [&] { Grid::OnEndMoveCol(); });
    }

    bool OnBeforeInsertRow(long position, Row*& row) override
    {
        return Ask("OnBeforeInsertRow", HookGroup::Row,
                   {{"position", position}, {"row", Supplied{row != nullptr}}},
                   [&] { return Grid::OnBeforeInsertRow(position, row); });
    }
    bool OnBeforeInsertChild(TreeRow& parent, long position, TreeRow*& child) override
    {
        return Ask("OnBeforeInsertChild", HookGroup::Row,
                   {{"parent", &parent}, {"position", position}, {"child", Supplied{child != nullptr}}},
                   [&] { return Grid::OnBeforeInsertChild(parent, position, child); });
    }
    void OnInsertRow(Row& row) override
    {
        Tell("OnInsertRow", HookGroup::Row, {{"row", &row}}, [&] { Grid::OnInsertRow(row); });
    }
    bool OnBeforeDeleteRow() override
    {
        return Ask("OnBeforeDeleteRow", HookGroup::Row, {}, [&] { return Grid::OnBeforeDeleteRow(); });
    }
    void OnEndDeleteRow() override
    {
        Tell("OnEndDeleteRow", HookGroup::Row, {}, [&] { Grid::OnEndDeleteRow(); });
    }
    bool OnBeforeClip() override
    {
        return Ask("OnBeforeClip", HookGroup::Row, {}, [&] { return Grid::OnBeforeClip(); });
    }
    void OnEndClip() override
    {
        Tell("OnEndClip", HookGroup::Row, {}, [&] { Grid::OnEndClip(); });
    }
    bool OnBeforeCopy() override
    {
        return Ask("OnBeforeCopy", HookGroup::Row, {}, [&] { return Grid::OnBeforeCopy(); });
    }
    void OnEndCopy() override
    {
        Tell("OnEndCopy", HookGroup::Row, {}, [&] { Grid::OnEndCopy(); });
    }
    bool OnBeforePaste(long position) override
    {
        return Ask("OnBeforePaste", HookGroup::Row, {{"position", position}},
                   [&] { return Grid::OnBeforePaste(position); });
    }
    bool OnBeforePasteChild(TreeRow& parent) override
    {
        return Ask("OnBeforePasteChild", HookGroup::Row, {{"parent", &parent}},
                   [&] { return Grid::OnBeforePasteChild(parent); });
    }
    void OnEndPaste() override
    {
        Tell("OnEndPaste", HookGroup::Row, {}, [&] { Grid::OnEndPaste(); });
    }
    bool OnBeginMoveRow() override
    {
        return Ask("OnBeginMoveRow", HookGroup::Row, {}, [&] { return Grid::OnBeginMoveRow(); });
    }
    bool OnMovingRow(long position) override
    {
        return Ask("OnMovingRow", HookGroup::Row, {{"position", position}},
                   [&] { return Grid::OnMovingRow(position); });
    }
    bool OnMoveRow(long position) override
    {
        return Ask("OnMoveRow", HookGroup::Row, {{"position", position}},
                   [&] { return Grid::OnMoveRow(position); });
    }
    void OnEndMoveRow() override
    {
        Tell("OnEndMoveRow", HookGroup::Row, {}, [&] { Grid::OnEndMoveRow(); });
    }

    bool OnCellTip(long row, long col, CString& text) const override
    {
        return Ask("OnCellTip", HookGroup::Tip, {{"row", row}, {"column", col}},
                   [&] { return Grid::OnCellTip(row, col, text); });
    }
    bool OnRowTip(long row, CString& text) const override
    {
        return Ask("OnRowTip", HookGroup::Tip, {{"row", row}}, [&] { return Grid::OnRowTip(row, text); });
    }
    bool OnColTip(long col, CString& text) const override
    {
        return Ask("OnColTip", HookGroup::Tip, {{"column", col}}, [&] { return Grid::OnColTip(col, text); });
    }
    bool OnCellButtonTip(long row, long col, CString& text) const override
    {
        return Ask("OnCellButtonTip", HookGroup::Tip, {{"row", row}, {"column", col}},
                   [&] { return Grid::OnCellButtonTip(row, col, text); });
    }
    bool OnActiveQuadTip(CString& text) const override
    {
        return Ask("OnActiveQuadTip", HookGroup::Tip, {}, [&] { return Grid::OnActiveQuadTip(text); });
    }

private:
    using Arguments = std::initializer_list<HookArgument>;

    template <class Default>
    bool Ask(const char* hook, HookGroup group, Arguments arguments, Default runDefault) const
    {
        return Note({hook, group, true, arguments}) && runDefault();
    }
    template <class Default>
    void Tell(const char* hook, HookGroup group, Arguments arguments, Default runDefault) const
    {
        if (Note({hook, group, false, arguments}))
            runDefault();
        NoteEnd(hook);
    }
};

} // namespace samples
