// An editor of cells that does something when it loses the focus.
#pragma once

#include "grid/TGCellEdit.h"

#include <functional>

namespace quor::test
{

class ActingEdit : public QuorUiCtr::TGCellEdit
{
public:
    using TGCellEdit::TGCellEdit;
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KILLFOCUS)
            act();
        return TGCellEdit::WindowProc(message, wParam, lParam);
    }
};

} // namespace quor::test
