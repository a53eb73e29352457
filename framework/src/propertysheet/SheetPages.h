// The pages of a property sheet in their order.
#pragma once

#include "afxcmn.h"
#include "afxdlgs.h"

#include <vector>

struct CPropertySheet::Pages
{
    std::vector<CPropertyPage*> list;
};
