// The choice of a kind of document for ID_FILE_NEW.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// Offers the kinds that have a name for it; NULL when the user cancels. A single one is not offered.
CDocTemplate* ChooseDocTemplate(const std::vector<CDocTemplate*>& docTemplates);

} // namespace quorfx
