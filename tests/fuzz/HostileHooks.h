// A grid whose hooks veto, change, re-enter and destroy, by the dice of the step.
#pragma once

#include "grid/TGGrid.h"
#include "tests/fuzz/GridCalls.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

namespace quor::fuzz
{

// `Base` is TGGrid or a class derived from it. The hooks do what the base class does, too.
template <class Base> class HostileHooks : public Base
{
public:
    using Base::Base;

protected:
    using TGCellCtrl = QuorUiCtr::TGCellCtrl;
    using TGGridCell = QuorUiCtr::TGGridCell;
    using TGGridCol = QuorUiCtr::TGGridCol;
    using TGGridRow = QuorUiCtr::TGGridRow;
    using TGGridTreeRow = QuorUiCtr::TGGridTreeRow;

    // How often hooks do something: those of painting and tips are called all the time.
    static constexpr long Often = 12;
    static constexpr long Rarely = 1500;
    static constexpr long VetoesOneIn = 6;
    static constexpr long SuppliesOneIn = 3;

    void Act(const char* hook, long oneIn = Often) const
    {
        if (!WantsMischief(oneIn))
            return;
        const Mischief mischief(hook);
        DoMischief(const_cast<HostileHooks&>(*this));
    }

    bool Agree(const char* hook, long oneIn = Often) const
    {
        Act(hook, oneIn);
        return !Dice().OneIn(VetoesOneIn);
    }

    bool Tip(const char* hook, CString& text) const
    {
        text = AnyText();
        return Agree(hook, Rarely);
    }

    void OnDblClick(TGGridRow& row) override
    {
        Base::OnDblClick(row);
        Act("OnDblClick");
    }
    void OnRClickCell(TGGridCell& cell, CPoint point) override
    {
        Base::OnRClickCell(cell, point);
        Act("OnRClickCell");
    }
    // Context menus take long, so most clicks do without.
    void OnRClickRow(TGGridRow& row, CPoint point) override
    {
        if (Dice().OneIn(8))
            Base::OnRClickRow(row, point);
        Act("OnRClickRow");
    }
    void OnRClickCol(TGGridCol& col, CPoint point) override
    {
        if (Dice().OneIn(8))
            Base::OnRClickCol(col, point);
        Act("OnRClickCol");
    }
    void OnRClickQuad(CPoint point) override
    {
        if (Dice().OneIn(8))
            Base::OnRClickQuad(point);
        Act("OnRClickQuad");
    }
    bool OnBeforeEdit(TGGridCell& cell, bool& commitNewRow) override
    {
        Base::OnBeforeEdit(cell, commitNewRow);
        commitNewRow = Dice().OneIn(3);
        return Agree("OnBeforeEdit");
    }
    TGCellCtrl* OnGetCellEdit(TGGridCell& cell) override
    {
        if (Dice().OneIn(20))
            return nullptr;
        TGCellCtrl* const editor = Base::OnGetCellEdit(cell);
        Act("OnGetCellEdit", 3 * Often);
        return editor;
    }
    void OnCellComboString(TGGridCell& cell, CComboBox& combo) override
    {
        Base::OnCellComboString(cell, combo);
        for (long i = Dice().Below(4); i > 0; --i)
            combo.AddString(AnyText());
        Act("OnCellComboString", 3 * Often);
    }
    bool OnCellButtonDown(TGGridCell& cell, CString& text) override
    {
        Base::OnCellButtonDown(cell, text);
        text = AnyText();
        return Agree("OnCellButtonDown");
    }
    void OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin) override
    {
        Base::OnCellSpinInit(cell, spin);
        Act("OnCellSpinInit", 3 * Often);
    }
    bool OnModified(TGGridCell& cell, CString& text) override
    {
        Base::OnModified(cell, text);
        if (Dice().OneIn(4))
            text = AnyText();
        return Agree("OnModified");
    }
    void OnDataChanged() override
    {
        Base::OnDataChanged();
        Act("OnDataChanged");
    }
    void OnCurChanged() override
    {
        Base::OnCurChanged();
        Act("OnCurChanged", 2 * Often);
    }
    void OnCmbSelchange(TGGridCell& cell, CComboBox* combo) override
    {
        Base::OnCmbSelchange(cell, combo);
        Act("OnCmbSelchange");
    }
    void OnCmbEditchange(TGGridCell& cell, CComboBox* combo) override
    {
        Base::OnCmbEditchange(cell, combo);
        Act("OnCmbEditchange");
    }
    void OnBeforeRefresh(TGGridCell& cell) override
    {
        Base::OnBeforeRefresh(cell);
        Act("OnBeforeRefresh", Rarely);
    }
    bool OnRefresh(TGGridCell& cell) override
    {
        const bool answer = Base::OnRefresh(cell);
        Act("OnRefresh of a cell", Rarely);
        return answer;
    }
    bool OnRefresh(TGGridRow& row) override
    {
        const bool answer = Base::OnRefresh(row);
        Act("OnRefresh of a row", Rarely);
        return answer;
    }

    // The inserting hooks supply an object of their own now and then, and may veto it, or change the grid,
    // after that.
    bool OnBeforeInsertCol(long position, TGGridCol*& col) override
    {
        const bool agrees = Base::OnBeforeInsertCol(position, col);
        if (col == nullptr && Dice().OneIn(SuppliesOneIn))
            col = new TGGridCol(AnyText(8), *this);
        return Agree("OnBeforeInsertCol") && agrees;
    }
    void OnInsertCol(TGGridCol& col) override
    {
        Base::OnInsertCol(col);
        Act("OnInsertCol");
    }
    bool OnBeforeDeleteCol() override { return Base::OnBeforeDeleteCol() && Agree("OnBeforeDeleteCol"); }
    void OnEndDeleteCol() override
    {
        Base::OnEndDeleteCol();
        Act("OnEndDeleteCol");
    }
    bool OnBeginMoveCol() override { return Base::OnBeginMoveCol() && Agree("OnBeginMoveCol"); }
    bool OnMovingCol(long position) override { return Base::OnMovingCol(position) && Agree("OnMovingCol"); }
    bool OnMoveCol(long position) override { return Base::OnMoveCol(position) && Agree("OnMoveCol"); }
    void OnEndMoveCol() override
    {
        Base::OnEndMoveCol();
        Act("OnEndMoveCol");
    }
    bool OnBeforeInsertRow(long position, TGGridRow*& row) override
    {
        const bool agrees = Base::OnBeforeInsertRow(position, row);
        if (row == nullptr && Dice().OneIn(SuppliesOneIn))
            row = MakeRow(*this);
        return Agree("OnBeforeInsertRow") && agrees;
    }
    bool OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child) override
    {
        const bool agrees = Base::OnBeforeInsertChild(parent, position, child);
        if (child == nullptr && Dice().OneIn(SuppliesOneIn))
            child = static_cast<TGGridTreeRow*>(MakeRow(*this));
        return Agree("OnBeforeInsertChild") && agrees;
    }
    void OnInsertRow(TGGridRow& row) override
    {
        Base::OnInsertRow(row);
        Act("OnInsertRow");
    }
    bool OnBeforeDeleteRow() override { return Base::OnBeforeDeleteRow() && Agree("OnBeforeDeleteRow"); }
    void OnEndDeleteRow() override
    {
        Base::OnEndDeleteRow();
        Act("OnEndDeleteRow");
    }
    bool OnBeforeClip() override { return Base::OnBeforeClip() && Agree("OnBeforeClip"); }
    void OnEndClip() override
    {
        Base::OnEndClip();
        Act("OnEndClip");
    }
    bool OnBeforeCopy() override { return Base::OnBeforeCopy() && Agree("OnBeforeCopy"); }
    void OnEndCopy() override
    {
        Base::OnEndCopy();
        Act("OnEndCopy");
    }
    bool OnBeforePaste(long position) override
    {
        return Base::OnBeforePaste(position) && Agree("OnBeforePaste");
    }
    bool OnBeforePasteChild(TGGridTreeRow& parent) override
    {
        return Base::OnBeforePasteChild(parent) && Agree("OnBeforePasteChild");
    }
    void OnEndPaste() override
    {
        Base::OnEndPaste();
        Act("OnEndPaste");
    }
    bool OnBeginMoveRow() override { return Base::OnBeginMoveRow() && Agree("OnBeginMoveRow"); }
    bool OnMovingRow(long position) override { return Base::OnMovingRow(position) && Agree("OnMovingRow"); }
    bool OnMoveRow(long position) override { return Base::OnMoveRow(position) && Agree("OnMoveRow"); }
    void OnEndMoveRow() override
    {
        Base::OnEndMoveRow();
        Act("OnEndMoveRow");
    }

    bool OnCellTip(long, long, CString& text) const override { return Tip("OnCellTip", text); }
    bool OnRowTip(long, CString& text) const override { return Tip("OnRowTip", text); }
    bool OnColTip(long, CString& text) const override { return Tip("OnColTip", text); }
    bool OnCellButtonTip(long, long, CString& text) const override { return Tip("OnCellButtonTip", text); }
    bool OnActiveQuadTip(CString& text) const override { return Tip("OnActiveQuadTip", text); }
};

} // namespace quor::fuzz
