// ChangeMarks: an extension of a grid that colours the cells that were changed until they are accepted.
#pragma once

#include "grid/TGGrid.h"
#include "grid/TGGridExtension.h"

#include <map>

namespace samples
{

class ChangeMarks : public QuorUiCtr::TGGridExtension
{
public:
    explicit ChangeMarks(QuorUiCtr::TGGrid& grid) { AttachTo(grid); }

    std::size_t GetNumber() const { return oldTexts.size(); }

    // The texts as they are now are the right ones.
    void AcceptAll()
    {
        oldTexts.clear();
        if (GetGrid() != nullptr)
            GetGrid()->Invalidate(0);
    }

protected:
    void OnDetach(QuorUiCtr::TGGrid&) override { oldTexts.clear(); }

    // Only the first old text counts; a cell that has it again is not changed.
    void OnTextChanged(QuorUiCtr::TGGridCell& cell, const CString& oldText) override
    {
        const auto mark = oldTexts.emplace(&cell, oldText).first;
        if (mark->second == cell.GetText())
            oldTexts.erase(mark);
        InvalidateLogical(GetCellRect(cell.GetRowIndex(), cell.GetColIndex()));
    }

    // The cells are about to be deleted, or are with somebody who has taken the rows over.
    void OnRowsRemoved(QuorUiCtr::TGRemovedRows& removed) override
    {
        for (QuorUiCtr::TGGridRow* row : removed.GetRows())
            std::erase_if(oldTexts, [row](const auto& mark) { return &mark.first->GetRow() == row; });
    }
    void OnColRemoving(QuorUiCtr::TGGridCol& col) override
    {
        std::erase_if(oldTexts, [&col](const auto& mark) { return &mark.first->GetCol() == &col; });
    }

    void OnCellLook(QuorUiCtr::TGGridCell& cell, QuorUiCtr::TGTextLook& look) override
    {
        if (oldTexts.count(&cell) > 0)
            look.backColor = RGB(255, 244, 200);
    }

    bool OnTip(QuorUiCtr::TGGridPlace place, long row, long col, CString& text) override
    {
        const auto mark =
            place == QuorUiCtr::TGGridPlace::Cell ? oldTexts.find(FindCell(row, col)) : oldTexts.end();
        if (mark == oldTexts.end())
            return false;
        text = L"was " + mark->second;
        return true;
    }

    // The entry is chosen by a message of the grid.
    void OnMenu(QuorUiCtr::TGGridPlace, CMenu& menu) override
    {
        if (!oldTexts.empty())
            menu.AppendMenu(MF_STRING, AcceptId, L"Accept changes");
    }
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM, LRESULT&) override
    {
        const bool chosen = message == WM_COMMAND && wParam == AcceptId && window.m_hWnd == GetGrid()->m_hWnd;
        if (chosen)
            AcceptAll();
        return chosen;
    }

private:
    static constexpr UINT AcceptId = FirstMenuId + 20;

    std::map<QuorUiCtr::TGGridCell*, CString> oldTexts;
};

} // namespace samples
