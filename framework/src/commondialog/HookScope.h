// Names the object that the next common dialog of the thread belongs to.
#pragma once

#include "afxdlgs.h"

class CCommonDialog::HookScope
{
public:
    explicit HookScope(CCommonDialog* dialog);
    ~HookScope();
    HookScope(const HookScope&) = delete;
    HookScope& operator=(const HookScope&) = delete;

private:
    CCommonDialog* m_outer;
};
