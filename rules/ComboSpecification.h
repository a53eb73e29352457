// The compact text of a combo property: "value,<option,option,...>[description]".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace QuorUiCtr
{

// The parts of the text. There is always at least one option, which may be empty.
struct ComboSpecification
{
    std::wstring value;
    std::vector<std::wstring> options;
    std::wstring description;
};

// Reads the text. Nothing when the first comma, a bracket or their order is missing.
std::optional<ComboSpecification> ParseComboSpecification(std::wstring_view text);

} // namespace QuorUiCtr
