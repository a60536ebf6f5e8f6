// Reading a number from a dimension box of the calculator or a field of the beam definition file.
#pragma once

#include <optional>
#include <string_view>

namespace flexley {

// The finite number that the whole text spells (surrounding blanks allowed, a leading "+" too);
// nothing for an empty text or one that is not a number as a whole.
std::optional<double> section_number(std::string_view text);

}  // namespace flexley
