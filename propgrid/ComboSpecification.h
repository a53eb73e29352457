// The compact text of a combo property: "value,<option,option,...>[description]".
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

// The parts of the text.
struct ComboSpecification
{
    CString value;
    CArray<CString, const CString&> options;
    CString description;
};

// Reads the text. Returns false when the first comma, a bracket or their order is missing; `parts` is then
// unspecified. There is always at least one option, which may be empty.
bool ParseComboSpecification(const CString& text, ComboSpecification& parts);
