// Reading a number the user typed into a box, or that a beam definition file holds.
#pragma once

#include <optional>
#include <string_view>

namespace flexley {

// The finite number that the whole text spells (surrounding blanks allowed, a leading "+" too);
// nothing for an empty text or one that is not a number as a whole.
std::optional<double> typed_number(std::string_view text);

}  // namespace flexley
