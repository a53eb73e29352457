// Property values as text and back, by the type of the variant.
#pragma once

#include "afxdisp.h"

namespace quorfx
{

// The texts of a flag.
struct FlagLabels
{
    CString on;
    CString off;
};

// Whether values of the type can be typed or chosen.
bool IsEditableType(VARTYPE type);
// Whether the type is an integer that a spin button can step.
bool IsSpinType(VARTYPE type);

// Numbers in the formats of CMFCPropertyGridProperty, a byte as a character, other types as the system
// converts them; empty when it cannot.
CString FormatValue(const VARIANT& value, const FlagLabels& labels);

// Reads the text into the value, which keeps its type: the number at its beginning, the character, one of the
// labels without regard to case, or the text itself. Returns false, and leaves the value alone, when there is
// no such value or it does not fit the type.
bool ParseValue(const CString& text, const FlagLabels& labels, VARIANT& value);

// An integer value as a number and back; other types give 0 and stay.
long long IntegerOf(const VARIANT& value);
void SetInteger(VARIANT& value, long long number);

} // namespace quorfx
